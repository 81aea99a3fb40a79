// A list-box branch in a real tree: the start sequence fills and shows the
// list in the header, the list moves with the branch's state, and a choice
// reaches the host with the branch's id, as do the list editors' choices.
#include <gtest/gtest.h>

#include "../list/ListTestSupport.h"
#include "../tree/TreeEditorTestSupport.h"

namespace {

using namespace treetest;

class PresetBranch : public VornLBBranchNode {
 public:
  using VornLBBranchNode::VornLBBranchNode;
  void OnStartUp() override {
    ++startUps;
    for (const char* p : {"Default", "Glass", "Chrome"}) GetListBox()->Append(p, nullptr);
  }
  int startUps = 0;
};

ExpandedVornListBox* ChooseLast(VornListBox* list) {
  ExpandedVornListBox* popup = ListFixture::Open(list);
  if (!popup) return nullptr;
  Key(popup, WXK_END);
  Key(popup, WXK_RETURN);
  Do(list, "up leave");
  return popup;
}

TEST(TreeListBranchTest, TheListSitsInTheHeaderMovesWithTheBranchAndReportsTheChoice) {
  LoggedGroup host;
  TestFrame frame{wxSize(700, 360)};
  auto* tree = new VornMainVUITreeControl;
  tree->Create(120, &Skin(), 0, 0, 640, 300, frame.Get(), 1, &host.group);
  VornTreeRootNode* root = tree->GetTreeRoot();
  auto* branch = new PresetBranch(root, "Material");
  root->AddToEnd(branch);
  auto* leaf = new VornVUIControlNode(new VUITreeEnumLB(&Skin(), "Filter", false, "Linear|Cubic"),
                                      branch->GetTree(), true);
  branch->GetTree()->AddToEnd(leaf);
  ASSERT_TRUE(branch->DoStartSequence());
  tree->RefreshTree();

  VornListBox* list = branch->GetListBox();
  ASSERT_NE(list, nullptr);
  VornVUIBranchControl* header = branch->GetBranchControl();
  EXPECT_EQ(list->GetParent(), header);
  EXPECT_TRUE(list->IsShown());
  EXPECT_EQ(branch->startUps, 1);
  EXPECT_EQ(list->GetCount(), 3);
  EXPECT_EQ(list->GetSize(), wxSize(120, 18));  // the skin's tree list
  // Collapsed: in the header row, right of the toggle and the name, inside
  // the header.
  const wxPoint collapsed = list->GetPosition();
  EXPECT_EQ(collapsed, wxPoint(header->GetAllignmentPt() + 4, (36 - 18) / 2));
  EXPECT_GT(collapsed.x, header->GetToggleButton()->GetRect().GetRight());
  EXPECT_LE(list->GetRect().GetRight(), header->GetSize().x);
  // Open: at the sub-tree's left offset, half its height lower, above the
  // first child; closed again: back.
  Click(header->GetToggleButton());
  ASSERT_TRUE(branch->IsExpanded());
  EXPECT_EQ(list->GetPosition(), wxPoint(header->GetTreeOffsetX(), collapsed.y + 9));
  EXPECT_LE(list->GetRect().GetBottom(), header->GetTreeOffsetY());
  EXPECT_LE(list->GetRect().GetRight(), header->GetSize().x);

  // The branch's choice and a leaf's choice carry their own node ids.
  ASSERT_NE(ChooseLast(list), nullptr);
  auto* filter = dynamic_cast<VUITreeEnumLB*>(leaf->GetVornVUIControl());
  ASSERT_NE(ChooseLast(filter->GetList()), nullptr);
  EXPECT_EQ(host.hints.Take(), "changed " + std::to_string(branch->GetNodeID()) + " changed " +
                                   std::to_string(leaf->GetNodeID()));
  EXPECT_EQ(list->GetShownText(), "Chrome");

  Click(header->GetToggleButton());
  EXPECT_EQ(list->GetPosition(), collapsed);
}

}  // namespace
