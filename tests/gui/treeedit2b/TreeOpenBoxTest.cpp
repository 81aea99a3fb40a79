// The table and pop-up editors: their metrics closed and open, the toggle
// opening the box and the tree laying itself out again (also after the
// table is resized by its grip or the pop-up box by the host), the box's
// changes reaching the host as node hints; and the blob marker's image.
#include <gtest/gtest.h>

#include "TreeEdit2bSupport.h"
#include "vorn/VornMonsterBox.h"

namespace {

using namespace treeedit2b;

struct Rect {
  int x1, y1, x2, y2;
};
Rect DisplayOf(VornVUIControlNode* node) {
  Rect r{};
  node->GetDisplay(r.x1, r.y1, r.x2, r.y2);
  return r;
}

TEST(TreeOpenBox, BothEditorsAreARowWhenClosedAndTheirBoxWithMarginsWhenOpen) {
  TestFrame frame{wxSize(600, 400)};
  LoggedGroup host;
  auto* table = new VUITreeMonsterBox(&Skin(), "Rows", false, 240, 150);
  auto* pop = new VUITreePopControl(&Skin(), "More", true, 200, 60);
  for (VUITreeControlBase* c :
       {static_cast<VUITreeControlBase*>(table), static_cast<VUITreeControlBase*>(pop)}) {
    NameWidth::Force(c, 60);
    c->Create(frame.Get(), c == table ? 11 : 12, &host.group);
  }
  // The toggles are 18 wide: the box starts 4 + 18 + 4 right of the line.
  EXPECT_EQ(table->GetOffset(), 26);
  EXPECT_EQ(table->GetSize(), wxSize(80 + 103, 32));
  EXPECT_EQ(pop->GetSize(), wxSize(80 + 103 + 22, 32));  // and its function button
  EXPECT_FALSE(table->GetMonsterBox()->IsShown());
  EXPECT_FALSE(pop->GetBox()->IsShown());

  Click(table->GetToggle());
  Click(pop->GetToggle());
  EXPECT_TRUE(table->IsOpen() && pop->IsOpen() && table->GetToggle()->GetOn());
  EXPECT_EQ(table->GetSize(), wxSize(80 + 26 + 240, 150 + 16));
  EXPECT_EQ(table->GetMonsterBox()->GetPosition(), wxPoint(106, 8));
  EXPECT_EQ(pop->GetSize(), wxSize(80 + 26 + 200 + 22, 60 + 16));
  EXPECT_EQ(pop->GetBox()->GetRect(), wxRect(106, 8, 200, 60));
  EXPECT_TRUE(pop->GetBox()->IsShown());
  // The toggle stays in the top row, beside the name and the box's top.
  EXPECT_EQ(table->GetToggle()->GetPosition(), wxPoint(84, (36 - 18) / 2));
  // So does the name's connector, where the tree's line meets the row.
  const wxBitmap label = Render(table, table->GetMaxWidth(), 166);
  EXPECT_EQ(PixelAt(label, 1, 18), CtoWxC(table->GetLineCol()));
  EXPECT_EQ(PixelAt(label, 1, 83), CtoWxC(table->GetBackgroundCol()));

  Click(pop->GetToggle());
  EXPECT_FALSE(pop->IsOpen() || pop->GetBox()->IsShown());
  EXPECT_EQ(pop->GetSize(), wxSize(80 + 103 + 22, 32));
  // A press taken back does not toggle.
  Do(table->GetToggle(), "enter down leave up");
  EXPECT_TRUE(table->IsOpen());
  EXPECT_EQ(host.hints.Take(), "");
}

TEST(TreeOpenBox, TheTreeLaysItselfOutAgainWhenTheTableOpensAndIsResized) {
  TreeOnFrame t;
  VornVUIControlNode *tableNode = nullptr, *belowNode = nullptr;
  auto* table = t.Add(t.root, new VUITreeMonsterBox(&Skin(), "Keys", false, 260, 120), &tableNode);
  t.Add(t.root, new VUITreeCheckBox(&Skin(), "Loop", false), &belowNode);
  VornMonsterBox* box = table->GetMonsterBox();
  box->SetMaxSize(200);
  box->AddColumn("Frame", *wxWHITE, 120);
  for (int i = 0; i < 12; ++i) box->AddEntry(0, VornString("k"), *wxWHITE, false);

  EXPECT_EQ(DisplayOf(belowNode).y1, DisplayOf(tableNode).y1 + 32);
  Click(table->GetToggle());
  Rect r = DisplayOf(tableNode);
  EXPECT_EQ(r.y2 - r.y1, 136);
  EXPECT_EQ(DisplayOf(belowNode).y1, r.y1 + 136);

  // Drag the grip 40 pixels down: the box, the leaf and the rows below grow.
  const wxRect grip = box->GripRect();
  const int gx = grip.x + 5, gy = grip.y + 5;
  Mouse(box, wxEVT_LEFT_DOWN, gx, gy);
  Mouse(box, wxEVT_MOTION, gx, gy + 40);
  Mouse(box, wxEVT_LEFT_UP, gx, gy + 40);
  ASSERT_EQ(box->GetSize().y, 160);
  r = DisplayOf(tableNode);
  EXPECT_EQ(r.y2 - r.y1, 176);
  EXPECT_EQ(table->GetSize().y, 176);
  EXPECT_EQ(DisplayOf(belowNode).y1, r.y1 + 176);
  // A resize is the tree's business, not a change of the parameter.
  EXPECT_EQ(t.hints.Take(), "");

  Click(table->GetToggle());
  EXPECT_EQ(DisplayOf(belowNode).y1, DisplayOf(tableNode).y1 + 32);
}

TEST(TreeOpenBox, ChangesInsideTheBoxesReachTheHostAsNodeHints) {
  TreeOnFrame t;
  auto* table = t.Add(t.root, new VUITreeMonsterBox(&Skin(), "Lights", false, 200, 100, true));
  auto* pop = t.Add(t.root, new VUITreePopControl(&Skin(), "Advanced", false, 160, 40, true));
  auto* other = t.Add(t.root, new VUITreeCheckBox(&Skin(), "Other", false));
  auto checks = MakeCache({VIT_OFF, VIT_ON}, 12, 12);
  table->GetMonsterBox()->AddColumn("On", *wxWHITE, 40);
  table->GetMonsterBox()->AddEntry(0, checks.get(), false);
  // The host's own control in the pop-up box.
  auto* mine = new VornButtonToggle(checks.get(), 4, 4, pop->GetBox(), 5, pop->GetBoxGroup());
  const std::string tableId = std::to_string(TreeOnFrame::IdOf(table));
  const std::string popId = std::to_string(TreeOnFrame::IdOf(pop));
  const std::string otherId = std::to_string(TreeOnFrame::IdOf(other));

  Click(table->GetMonsterBox()->GetRowColumn(0, 0));
  EXPECT_EQ(t.hints.Take(), "changed " + tableId);
  Click(mine);
  EXPECT_EQ(t.hints.Take(), "changed " + popId);
  // Another leaf's change is reported once, as its own.
  Click(other->GetButton());
  EXPECT_EQ(t.hints.Take(), "changed " + otherId);
}

TEST(TreeOpenBox, APopUpBoxResizedByTheHostIsLaidOutAgainWhileOpen) {
  TreeOnFrame t;
  VornVUIControlNode *popNode = nullptr, *belowNode = nullptr;
  auto* pop =
      t.Add(t.root, new VUITreePopControl(&Skin(), "Curve", false, 160, 40, true), &popNode);
  t.Add(t.root, new VUITreeCheckBox(&Skin(), "After", false), &belowNode);
  pop->SetBoxSize(180, 50);
  EXPECT_EQ(DisplayOf(belowNode).y1, DisplayOf(popNode).y1 + 66);
  EXPECT_EQ(DisplayOf(popNode).x2 - DisplayOf(popNode).x1, pop->GetAllignmentPt() + 26 + 180);
}

TEST(TreeOpenBox, TheHostFillsABoxOnceItsWindowsExist) {
  TreeOnFrame t;
  auto* branch = new VornBranchNode(t.root, "Closed");
  t.root->AddToEnd(branch);
  auto* table = t.Add(branch->GetTree(), new VUITreeMonsterBox(&Skin(), "Rows", false, 200, 80));
  auto* pop = t.Add(branch->GetTree(), new VUITreePopControl(&Skin(), "More", false, 120, 30));
  int tableFills = 0, popFills = 0;
  table->WhenBoxReady([&](VornMonsterBox* box) {
    ++tableFills;
    box->AddColumn("A", *wxWHITE, 50);
  });
  pop->WhenBoxReady([&](wxWindow* box, VornControlGroup* group) {
    ++popFills;
    EXPECT_EQ(group, pop->GetBoxGroup());
    new wxWindow(box, wxID_ANY);
  });
  // A closed branch's leaves get their windows when it first opens.
  EXPECT_EQ(table->GetMonsterBox(), nullptr);
  EXPECT_EQ(tableFills + popFills, 0);
  branch->Expand();
  t.tree->RefreshTree();
  ASSERT_NE(table->GetMonsterBox(), nullptr);
  EXPECT_TRUE(tableFills == 1 && popFills == 1);
  EXPECT_EQ(table->GetMonsterBox()->GetColumnCount(), 1);
  EXPECT_EQ(pop->GetBox()->GetChildren().GetCount(), 1u);
  // A box that exists is filled at once.
  table->WhenBoxReady([&](VornMonsterBox* box) { box->AddColumn("B", *wxWHITE, 50); });
  EXPECT_EQ(table->GetMonsterBox()->GetColumnCount(), 2);
}

TEST(TreeOpenBox, TheBlobIsADiscInTheLineColourOnTheRow) {
  TreeOnFrame t;
  VornVUIControlNode* node = nullptr;
  auto* blob = t.Add(t.root, new VornBlobbyControl, &node);
  EXPECT_EQ(DisplayOf(node).y2 - DisplayOf(node).y1, 12);
  EXPECT_EQ(blob->GetAllignmentPt(), 9);
  EXPECT_EQ(blob->GetSize(), wxSize(19, 12));
  wxColour line, background;
  ASSERT_TRUE(Skin().GetColour("vuiedit_tree_fg", line) &&
              Skin().GetColour("vuiedit_tree_bg", background));
  wxBitmap drawn = Render(blob, 19, 12);
  EXPECT_EQ(PixelAt(drawn, 9, 6), line);
  EXPECT_EQ(PixelAt(drawn, 9, 0), background);  // round: the top edge stays clear
  // Edge pixels blend the two (anti-aliased).
  EXPECT_LT(CountNear(drawn, line, 0) + CountNear(drawn, background, 0), 19 * 12);
  // New colours give a new image.
  blob->SetLineCol(Color(1.0, 0.0, 0.0));
  drawn = Render(blob, 19, 12);
  EXPECT_EQ(PixelAt(drawn, 9, 6), wxColour(255, 0, 0));
}

}  // namespace
