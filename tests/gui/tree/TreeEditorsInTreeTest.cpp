// The tree editors as leaves of a real tree: their changes reach the host's
// group as node hints carrying the leaf's node id, and a leaf that changes
// size is laid out again.
#include <gtest/gtest.h>

#include "../list/ListTestSupport.h"
#include "TreeEditorTestSupport.h"

namespace {

using namespace treetest;

class TreeEditorsInTreeTest : public ::testing::Test {
 protected:
  TreeEditorsInTreeTest() {
    tree = new VornMainVUITreeControl;
    tree->Create(120, &Skin(), 0, 0, 640, 300, frame.Get(), 1, &host.group);
    root = tree->GetTreeRoot();
  }
  // A leaf at the end of level, returned with its node.
  template <class Editor>
  Editor* Add(VornTreeNode* level, Editor* editor, VornVUIControlNode** node = nullptr) {
    auto* leaf = new VornVUIControlNode(editor, level, true);
    level->AddToEnd(leaf);
    if (node) *node = leaf;
    tree->RefreshTree();
    return editor;
  }

  LoggedGroup host;
  TestFrame frame{wxSize(700, 360)};
  VornMainVUITreeControl* tree = nullptr;
  VornTreeRootNode* root = nullptr;
};

TEST_F(TreeEditorsInTreeTest, ASliderDragReachesTheHostAsNodeHintsWithTheLeafsId) {
  Add(root, new VUITreeCheckBox(&Skin(), "Visible", false));
  VornVUIControlNode* node = nullptr;
  auto* slider = Add(root, new VUITreeSlider(&Skin(), "Metalness", false, 0.0, 1.0, 0.5), &node);
  ASSERT_GT(node->GetNodeID(), 0);
  EXPECT_EQ(slider->GetNodeId(), node->GetNodeID());
  const std::string id = std::to_string(node->GetNodeID());
  VUITreeSubSlider* inner = slider->GetSlider();
  const int x = inner->GetLayout().thumbMiddle, y = inner->GetSize().y / 2;
  Mouse(inner, wxEVT_ENTER_WINDOW, x, y);
  Mouse(inner, wxEVT_LEFT_DOWN, x, y);
  Mouse(inner, wxEVT_MOTION, x + 9, y);
  EXPECT_EQ(host.hints.Take(), "changing " + id);
  Mouse(inner, wxEVT_LEFT_UP, x + 9, y);
  EXPECT_EQ(host.hints.Take(), "changed " + id);
  // The host finds the leaf from the hint's id and reads the value.
  double value = 0;
  VornVUIControlNode* leaf = nullptr;
  for (VornNode* n : root->GetNodeList())
    if (n && n->GetNodeID() == node->GetNodeID()) leaf = dynamic_cast<VornVUIControlNode*>(n);
  ASSERT_NE(leaf, nullptr);
  ASSERT_TRUE(dynamic_cast<RealVal*>(leaf->GetVornVUIControl())->GetValue(value));
  EXPECT_GT(value, 0.6);
}

TEST_F(TreeEditorsInTreeTest, EditorsInABranchReportTheirOwnIdsAndTheFunctionChoice) {
  auto* branch = new VornBranchNode(root, "Material");
  root->AddToEnd(branch);
  VornVUIControlNode *first = nullptr, *second = nullptr;
  auto* colour =
      Add(branch->GetTree(),
          new VUITreeTextEdits(&Skin(), "Albedo", true, VUITreeTextEdits::PT_COLOR), &first);
  auto* shiny = Add(branch->GetTree(), new VUITreeCheckBox(&Skin(), "Glossy", true), &second);
  branch->Expand();
  tree->RefreshTree();
  colour->GetField(2)->SetText("0.5", true);
  Click(shiny->GetButton());
  EXPECT_EQ(host.hints.Take(), "changed " + std::to_string(first->GetNodeID()) + " changed " +
                                   std::to_string(second->GetNodeID()));
  ExpandedVornListBox* popup = ListFixture::Open(shiny->GetFunctionButton());
  ASSERT_NE(popup, nullptr);
  Key(popup, WXK_END);
  Key(popup, WXK_RETURN);
  EXPECT_EQ(host.hints.Take(), "function " + std::to_string(second->GetNodeID()) + " 2 0");
}

TEST_F(TreeEditorsInTreeTest, AnExpandingLeafIsLaidOutAgainAtItsNewWidth) {
  VornVUIControlNode* node = nullptr;
  auto* edits = Add(root, new VUITreeExpandTextEdits(&Skin(), "Offset", false, 2, 40), &node);
  int x1, y1, x2, y2;
  node->GetDisplay(x1, y1, x2, y2);
  EXPECT_EQ(x2 - x1, edits->GetAllignmentPt() + 23 + 80);
  edits->SetValue(Vec4d(1, 2, 3, 4));
  node->GetDisplay(x1, y1, x2, y2);
  EXPECT_EQ(x2 - x1, edits->GetAllignmentPt() + 39 + 160);
  EXPECT_EQ(edits->GetSize().x, x2 - x1);
}

TEST_F(TreeEditorsInTreeTest, LeavesTakeTheTreesColoursForTheirLabel) {
  auto* box = Add(root, new VUITreeCheckBox(&Skin(), "Casts shadows", false));
  wxColour background;
  ASSERT_TRUE(Skin().GetColour("vuiedit_tree_bg", background));
  const wxBitmap drawn = Render(box, box->GetMaxWidth(), 32);
  EXPECT_EQ(PixelAt(drawn, box->GetAllignmentPt() + 60, 2), background);
  wxColour line;
  ASSERT_TRUE(Skin().GetColour("vuiedit_tree_fg", line));
  EXPECT_EQ(PixelAt(drawn, 0, 16), line);  // the stub the tree's lines meet
  EXPECT_EQ(PixelAt(drawn, 0, 2), background);
}

}  // namespace
