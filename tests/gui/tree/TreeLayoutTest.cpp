// Layout arithmetic of the node model: level widths and alignment, branch
// heights, placement of children, hit-testing and the size assertions.
#include "TreeTestSupport.h"

namespace {

struct Box {
  int alignment, width, height;
};

// A level holding leaves of the given metrics.
VornTreeNode* Level(TreeFixture& f, const std::vector<Box>& boxes) {
  for (const Box& b : boxes) TreeFixture::AddLeaf(f.Root(), b.alignment, b.width, b.height);
  return f.Root();
}

std::string Rect(VornLeafNode* leaf) {
  int x1, y1, x2, y2;
  if (auto* c = dynamic_cast<VornVUIControlNode*>(leaf))
    c->GetDisplay(x1, y1, x2, y2);
  else
    dynamic_cast<VornBranchNode*>(leaf)->GetDisplay(x1, y1, x2, y2);
  return std::to_string(x1) + "," + std::to_string(y1) + "-" + std::to_string(x2) + "," +
         std::to_string(y2);
}

}  // namespace

TEST(TreeLayout, LevelAlignsChildrenOnOneLine) {
  struct Case {
    std::vector<Box> boxes;
    int alignment, width, height;
    std::vector<std::string> rects;  // after SetDisplay(10, 5, ...)
  } cases[] = {
      {{}, 0, 0, 0, {}},
      {{{30, 100, 20}, {50, 90, 40}}, 50, 120, 60, {"30,5-130,25", "10,25-100,65"}},
      // The widest right part need not belong to the largest alignment.
      {{{10, 200, 10}, {80, 90, 10}, {0, 5, 10}},
       80,
       270,
       30,
       {"80,5-280,15", "10,15-100,25", "90,25-95,35"}},
  };
  for (const Case& c : cases) {
    TreeFixture f;
    VornTreeNode* level = Level(f, c.boxes);
    VornTreeNode& asLevel = *level;
    EXPECT_EQ(asLevel.VornTreeNode::GetAllignmentPoint(), c.alignment);
    EXPECT_EQ(asLevel.VornTreeNode::GetWidth(), c.width);
    EXPECT_EQ(level->GetHeight(), c.height);
    asLevel.VornTreeNode::SetDisplay(10, 5, 10 + c.width, 5 + c.height);
    for (size_t i = 0; i < c.rects.size(); ++i)
      EXPECT_EQ(Rect(level->GetAtPos(static_cast<int>(i))), c.rects[i]) << "child " << i;
  }
}

TEST(TreeLayout, BranchGrowsByItsSubTreeWhenExpanded) {
  TreeFixture f;
  VornBranchNode* branch = TreeFixture::AddBranch(f.Root());
  TreeFixture::AddLeaf(branch->GetTree(), 30, 300, 60);
  TreeFixture::AddLeaf(branch->GetTree(), 50, 90, 40);
  VornVUIBranchControl* header = branch->GetBranchControl();
  const int a = header->GetAllignmentPt();
  EXPECT_EQ(a, header->GetNameWidth() + 20);

  EXPECT_EQ(branch->GetHeight(), 36);
  EXPECT_EQ(branch->GetWidth(), a + 10);
  branch->Expand();
  EXPECT_EQ(branch->GetHeight(), 138);
  EXPECT_EQ(branch->GetWidth(), 320 + a + 10);  // sub-tree 50 + 270
  branch->Collapse();
  EXPECT_EQ(branch->GetHeight(), 36);

  // Settings move the sub-tree; sums are truncated after adding.
  header->SetTopOffset(5.6);
  header->SetExpGapFromTop(2.7);
  header->SetIndent(3.5);
  header->SetRightMargin(400.9);
  EXPECT_EQ(header->GetTreeOffsetY(), 26);  // 5.6 + 18 + 2.7
  EXPECT_EQ(header->GetTreeOffsetX(), a + 3);
  EXPECT_EQ(branch->GetWidth(), a + 404);  // a + 3.5 + 400.9
  branch->Toggle();
  EXPECT_EQ(branch->GetHeight(), 126);
  EXPECT_EQ(branch->GetWidth(), a + 404);  // the collapsed width is larger

  // The sub-tree is laid out at the offsets inside the header control.
  f.tree->RefreshTree();
  int x1, y1, x2, y2;
  branch->GetTree()->GetDisplay(x1, y1, x2, y2);
  EXPECT_EQ(std::to_string(x1) + "," + std::to_string(y1), std::to_string(a + 3) + ",26");
  EXPECT_EQ(Rect(branch->GetTree()->GetAtPos(0)),
            std::to_string(a + 23) + ",26-" + std::to_string(a + 323) + ",86");
  EXPECT_EQ(Rect(branch->GetTree()->GetAtPos(1)),
            std::to_string(a + 3) + ",86-" + std::to_string(a + 93) + ",126");
}

TEST(TreeLayout, HitTestWalksRowsAndColumns) {
  TreeFixture f;
  VornTreeNode* level = Level(f, {{30, 100, 60}, {50, 90, 40}});
  VornLeafNode* first = level->GetAtPos(0);
  VornLeafNode* second = level->GetAtPos(1);
  struct Case {
    int x, y;
    VornNode* expected;
  } cases[] = {
      {25, 0, first},    {25, 60, first},   // the bottom edge belongs to the row
      {25, 61, second},  {19, 30, level},   // left of the first child: the level
      {20, 30, first},   {120, 30, first},  // both edges of the first child
      {121, 30, level},  {0, 80, second},   // the second reaches further left
      {90, 100, second}, {91, 100, level},  // right of the second
      {25, 101, level},                     // below every row
  };
  for (const Case& c : cases) {
    VornNode* out = nullptr;
    level->VornTreeNode::GetNodeFromPoint(out, c.x, c.y);
    EXPECT_EQ(out, c.expected) << c.x << "," << c.y;
  }
}

TEST(TreeLayout, HitTestEntersOpenBranchesAndShiftsByTheRootLine) {
  TreeFixture f;  // root alignment line at 100
  VornBranchNode* branch = TreeFixture::AddBranch(f.Root());
  VornVUIControlNode* inner = TreeFixture::AddLeaf(branch->GetTree(), 10, 50, 40);
  VornVUIControlNode* below = TreeFixture::AddLeaf(f.Root(), 10, 50, 30);
  const int a = branch->GetAllignmentPoint();
  const int shift = 100 - a;  // the root moves the level onto its line
  VornNode* out = nullptr;
  f.Root()->GetNodeFromPoint(out, shift + 5, 10);
  EXPECT_EQ(out, branch);
  f.Root()->GetNodeFromPoint(out, shift + a + 5, 36 + 5);
  EXPECT_EQ(out, below);  // collapsed: the leaf below follows the header
  branch->Expand();
  const int ox = branch->GetBranchControl()->GetTreeOffsetX();
  f.Root()->GetNodeFromPoint(out, shift + ox + 5, 38 + 20);
  EXPECT_EQ(out, inner);
  f.Root()->GetNodeFromPoint(out, shift + ox + 5, 10);
  EXPECT_EQ(out, branch);  // the header row
}

TEST(TreeLayout, SetDisplayRefusesRectanglesOfTheWrongSize) {
  TreeFixture f;
  VornBranchNode* branch = TreeFixture::AddBranch(f.Root());
  VornTreeNode* level = branch->GetTree();
  TreeFixture::AddLeaf(level, 30, 100, 20);
  TreeFixture::AddLeaf(level, 50, 90, 40);
  const int w = branch->GetWidth();
  struct Case {
    std::function<void()> call;
    std::string text;
  } cases[] = {
      {[&] { level->SetDisplay(0, 0, 119, 60); }, "(x2 - x1) == VornTreeNode::GetWidth()"},
      {[&] { level->SetDisplay(0, 0, 120, 61); }, "(y2 - y1) == VornTreeNode::GetHeight()"},
      {[&] { level->SetDisplay(0, 0, 120, 60); }, ""},
      {[&] { branch->SetDisplay(0, 0, w + 1, 36); }, "(x2 - x1) == this->GetWidth()"},
      {[&] { branch->SetDisplay(0, 0, w, 35); }, "(y2 - y1) == this->GetHeight()"},
      {[&] { branch->SetDisplay(0, 0, w, 36); }, ""},
      {[&] {
         branch->Expand();
         branch->SetDisplay(0, 0, branch->GetWidth(), 36);
       },
       "(y2 - y1) == this->GetHeight()"},
  };
  for (const Case& c : cases) EXPECT_EQ(FiredAssertionIn(c.call).first, c.text);
}

TEST(TreeLayout, NodesWithoutWindowsCannotBePlaced) {
  // A root that no tree control holds has no window, nor has what is built
  // under it.
  VornTreeRootNode root(100, Color(), &TreeSkin());
  auto* branch = new VornBranchNode(&root, "x");
  root.AddToEnd(branch);
  EXPECT_EQ(FiredAssertionIn([&] { root.SetDisplay(0, 0, 10, 10); }).first,
            "this->m_Controlptr->GetHandle() != __null");
  EXPECT_EQ(FiredAssertionIn([&] { branch->SetDisplay(0, 0, branch->GetWidth(), 36); }).first,
            "this->m_Controlptr->GetHandle() != __null");
  EXPECT_EQ(FiredAssertionIn([&] { branch->Refresh(); }).first,
            "this->m_Controlptr->GetHandle() != __null");
  EXPECT_EQ(FiredAssertionIn([&] { VornVUIControlNode(nullptr, &root, true); }).first,
            "control != __null");
  EXPECT_EQ(FiredAssertionIn([&] { VornBranchNode(nullptr, "y"); }).first, "parent != __null");
}
