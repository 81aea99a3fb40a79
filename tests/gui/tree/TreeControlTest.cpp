// The tree's controls in a window: the toggle button, the outer control's
// scroll bar and scrolling, colours and drawing.
#include "TreeTestSupport.h"

namespace {

wxColour Skin(const char* name) {
  wxColour c;
  TreeSkin().GetColour(name, c);
  return c;
}

// Where a node's window is on the screen, relative to the root control.
wxPoint OnScreen(TreeFixture& f, VornNode* node) {
  return node->GetVornVUIControl()->GetScreenPosition() -
         f.Root()->GetRootControl()->GetScreenPosition();
}

}  // namespace

TEST(TreeControl, ToggleButtonExpandsCollapsesAndRefreshesTheRoot) {
  TreeFixture f;
  VornBranchNode* b = TreeFixture::AddBranch(f.Root());
  VornVUIControlNode* inner = TreeFixture::AddLeaf(b->GetTree(), 10, 40, 100);
  VornVUIControlNode* below = TreeFixture::AddLeaf(f.Root(), 10, 40, 20);
  f.tree->RefreshTree();
  PumpEvents();
  EXPECT_EQ(OnScreen(f, below).y, 36);
  // A closed branch's leaves get their windows when first shown, under the
  // id they were given at once.
  EXPECT_EQ(inner->GetVornVUIControl()->GetHandle(), nullptr);
  const int innerId = inner->GetVornVUIControl()->GetId();
  EXPECT_EQ(f.Root()->GetNodeFromVornControlID(innerId), inner);

  VornBranchToggleButton* toggle = b->GetBranchControl()->GetToggleButton();
  Click(toggle);
  PumpEvents();
  EXPECT_TRUE(b->IsExpanded());
  EXPECT_TRUE(toggle->GetOn());
  EXPECT_EQ(b->GetBranchControl()->GetHeight(), 138);
  EXPECT_EQ(OnScreen(f, below).y, 138);
  EXPECT_TRUE(inner->GetVornVUIControl()->IsShownOnScreen());
  EXPECT_EQ(OnScreen(f, inner).y, 38);
  EXPECT_EQ(inner->GetVornVUIControl()->GetId(), innerId);
  EXPECT_EQ(inner->GetVornVUIControl()->GetGroup(), &f.group);

  Click(toggle);
  PumpEvents();
  EXPECT_FALSE(b->IsExpanded());
  EXPECT_FALSE(toggle->GetOn());
  EXPECT_EQ(b->GetBranchControl()->GetHeight(), 36);
  EXPECT_EQ(OnScreen(f, below).y, 36);
  EXPECT_FALSE(inner->GetVornVUIControl()->IsShownOnScreen());

  // A press alone, or a release away from the button, changes nothing.
  Do(toggle, "enter down leave up");
  EXPECT_FALSE(b->IsExpanded());
}

TEST(TreeControl, ScrollBarAppearsWhenTheTreeOutgrowsTheView) {
  TreeFixture f(300, 200);
  VornTreeRootScrollControl* bar = f.tree->GetScrollBar();
  std::vector<VornVUIControlNode*> rows;
  for (int i = 0; i < 3; ++i) rows.push_back(TreeFixture::AddLeaf(f.Root(), 30, 100, 50));
  f.tree->RefreshTree();
  EXPECT_FALSE(bar->IsVisible());  // 150 fits in 200

  for (int i = 0; i < 2; ++i) rows.push_back(TreeFixture::AddLeaf(f.Root(), 30, 100, 50));
  f.tree->RefreshTree();
  PumpEvents();
  EXPECT_TRUE(bar->IsVisible());
  EXPECT_DOUBLE_EQ(bar->GetFractionVal(), 200.0 / 250.0);
  EXPECT_EQ(bar->GetHeight(), 180);

  // The bar's value scrolls the windows: 0.5 of the 50 hidden pixels.
  bar->SetSliderVal(0.5, true);
  PumpEvents();
  EXPECT_EQ(f.tree->GetScrollPos(), 25);
  EXPECT_EQ(OnScreen(f, rows[2]).y, 100 - 25);
  // A re-layout keeps the view where it was.
  f.tree->RefreshTree();
  PumpEvents();
  EXPECT_EQ(OnScreen(f, rows[2]).y, 100 - 25);
  bar->SetSliderVal(1.0, true);
  EXPECT_EQ(OnScreen(f, rows[4]).y, 150);

  // The wheel over the tree scrolls it up by three rows' worth.
  wxMouseEvent wheel = MakeMouseEvent(f.Root()->GetRootControl(), wxEVT_MOUSEWHEEL, 5, 5);
  wheel.m_wheelRotation = 120;
  wheel.m_wheelDelta = 120;
  wheel.m_wheelAxis = wxMOUSE_WHEEL_VERTICAL;
  f.Root()->GetRootControl()->GetEventHandler()->ProcessEvent(wheel);
  EXPECT_EQ(f.tree->GetScrollPos(), 0);
  EXPECT_EQ(OnScreen(f, rows[0]).y, 0);

  // Shrinking the tree below the view hides the bar.
  VornLeafNode* leaf = nullptr;
  for (int i = 0; i < 2; ++i) {
    f.Root()->RemoveFromEnd(leaf);
    delete leaf;
  }
  f.tree->RefreshTree();
  EXPECT_FALSE(bar->IsVisible());

  // A taller window shows more of the tree: the root gets the new height.
  f.tree->SetTreeSize(300, 100);
  EXPECT_TRUE(bar->IsVisible());
  EXPECT_DOUBLE_EQ(bar->GetFractionVal(), 100.0 / 150.0);
  EXPECT_EQ(bar->GetHeight(), 80);
  // Lower than the bar's margins, narrower than the bar and its gap: one
  // pixel, never a negative size.
  f.tree->SetTreeSize(20, 12);
  EXPECT_EQ(bar->GetSize().y, 1);
  EXPECT_EQ(f.Root()->GetRootControl()->GetSize().x, 1);
}

TEST(TreeControl, CreateReadsTheTreeColoursFromTheSkin) {
  TreeFixture f;
  EXPECT_EQ(CtoWxC(f.tree->GetBackgroundCol()), Skin("vuiedit_tree_bg"));
  EXPECT_EQ(CtoWxC(f.tree->GetLineCol()), Skin("vuiedit_tree_fg"));
  EXPECT_EQ(CtoWxC(f.tree->GetMouseOverCol()), Skin("vuiedit_tree_mo"));
  EXPECT_EQ(f.tree->GetScrollBar()->GetFirstColour(), Skin("vuiedit_scrollbar_fg"));
  EXPECT_EQ(f.tree->GetScrollBar()->GetSecondColour(), Skin("vuiedit_scrollbar_bg"));
  EXPECT_EQ(f.tree->GetScrollBar()->GetThirdColour(), Skin("vuiedit_scrollbar_mo"));
  // New leaves take the tree's colours; later changes reach every control.
  VornVUIControlNode* leaf = TreeFixture::AddLeaf(f.Root(), 10, 20, 20);
  EXPECT_EQ(CtoWxC(leaf->GetVornVUIControl()->GetBackgroundCol()), Skin("vuiedit_tree_bg"));
  f.tree->SetLineCol(Color(1.0, 0.0, 0.0));
  EXPECT_EQ(leaf->GetVornVUIControl()->GetLineCol(), Color(1.0, 0.0, 0.0));

  TestFrame frame;
  VornMainVUITreeControl bare;
  EXPECT_EQ(FiredAssertionIn([&] {
              bare.Create(100, nullptr, 0, 0, 100, 100, frame.Get(), 1, nullptr);
            }).first,
            "assetman != __null");
}

TEST(TreeControl, BranchHeaderDrawsConnectorsNameAndRowHighlight) {
  TreeFixture f;
  VornBranchNode* b = TreeFixture::AddBranch(f.Root(), "Material");
  TreeFixture::AddLeaf(b->GetTree(), 10, 40, 30);
  VornVUIControlNode* second = TreeFixture::AddLeaf(b->GetTree(), 10, 40, 30);
  b->Expand();
  f.tree->RefreshTree();
  VornVUIBranchControl* header = b->GetBranchControl();
  const int w = header->GetWidth();
  const int h = header->GetHeight();
  const wxColour bg = Skin("vuiedit_tree_bg");
  const wxColour line = Skin("vuiedit_tree_fg");
  const wxColour mo = Skin("vuiedit_tree_mo");

  wxBitmap plain = Render(header, w, h);
  const int stemX = 3 + 7;                     // the toggle's middle
  EXPECT_EQ(PixelAt(plain, 1, 18), line);      // into the toggle
  EXPECT_EQ(PixelAt(plain, stemX, 45), line);  // the stem down to the children
  const int secondMid = second->GetVornVUIControl()->GetPosY() + 15;
  EXPECT_EQ(PixelAt(plain, stemX + 5, secondMid), line);  // the tick to the last child
  EXPECT_EQ(PixelAt(plain, stemX, secondMid + 5), bg);    // the stem ends there
  EXPECT_EQ(PixelAt(plain, w - 1, 2), bg);
  EXPECT_GT(CountNear(plain, Skin("vuiedit_tree_ContNameCol"), 40), 10);  // the name

  // The pointer over the header highlights its row only.
  Do(header, "enter");
  EXPECT_EQ(f.tree->GetHighlightedRow(), header);
  wxBitmap lit = Render(header, w, h);
  EXPECT_EQ(PixelAt(lit, w - 1, 2), mo);
  EXPECT_EQ(PixelAt(lit, w - 1, 40), bg);
  // Moving to another row moves the highlight.
  Do(second->GetVornVUIControl(), "enter");
  EXPECT_FALSE(header->IsRowHighlighted());
  EXPECT_EQ(PixelAt(Render(header, w, h), w - 1, 2), bg);
  EXPECT_EQ(PixelAt(Render(second->GetVornVUIControl(), 40, 30), 5, 5), mo);
  Do(second->GetVornVUIControl(), "leave");
  EXPECT_EQ(f.tree->GetHighlightedRow(), nullptr);
}

TEST(TreeControl, ALongTreeMakesHeaderWindowsOnlyAsTheyComeIntoView) {
  TreeFixture f(300, 200);
  std::vector<VornBranchNode*> branches;
  for (int i = 0; i < 30; ++i) branches.push_back(TreeFixture::AddBranch(f.Root()));
  // An open branch far down holds a branch of its own: neither has a window.
  VornBranchNode* nested = TreeFixture::AddBranch(branches[28]->GetTree());
  branches[28]->Expand();
  f.tree->RefreshTree();
  PumpEvents();
  // Rows of 36 in a 200 view, with a row of slack below: rows 0..6.
  for (int i = 0; i < 30; ++i) EXPECT_EQ(branches[i]->HasWindow(), i <= 6) << i;
  // A header without a window is still a node to find and to lay out.
  VornBranchNode* last = branches.back();
  EXPECT_EQ(f.Root()->GetNodeFromVornControlID(last->GetBranchControl()->GetId()), last);
  EXPECT_EQ(FiredAssertionIn([&] { f.tree->RefreshTree(); }).first, "");

  // The root draws the stem past the view's bottom although the rows there
  // have no windows.
  VornVUITreeRootControl* view = f.Root()->GetRootControl();
  int x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  branches[0]->GetDisplay(x1, y1, x2, y2);
  const wxBitmap drawn = Render(view, view->GetWidth(), view->GetHeight());
  EXPECT_EQ(PixelAt(drawn, std::max(x1 - 8, 2), view->GetHeight() - 2), Skin("vuiedit_tree_fg"));

  // Scrolling to the end makes the last rows' windows where they show.
  f.tree->GetScrollBar()->SetSliderVal(1.0, true);
  PumpEvents();
  ASSERT_TRUE(last->HasWindow());
  EXPECT_TRUE(nested->HasWindow());
  EXPECT_EQ(TreeFixture::WindowPos(last).y, 200 - 36);
  EXPECT_FALSE(branches[15]->HasWindow());
  // Expanding a row made late works as for any other.
  TreeFixture::AddLeaf(last->GetTree(), 10, 40, 30);
  Click(last->GetBranchControl()->GetToggleButton());
  EXPECT_TRUE(last->IsExpanded());
  EXPECT_TRUE(last->GetTree()->GetAtPos(0)->GetVornVUIControl()->GetHandle() != nullptr);
}
