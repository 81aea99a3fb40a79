// The root's registry and ids, the list operations of a level, null
// branches.
#include "TreeTestSupport.h"

namespace {

// The children's ids and positions: "1f 2m 3l".
std::string Children(VornTreeNode* level) {
  static const char kPos[] = {'-', 'f', 'm', 'l', 'o'};
  std::string s;
  for (int i = 0; i < level->GetSize(); ++i) {
    VornLeafNode* leaf = level->GetAtPos(i);
    s += (s.empty() ? "" : " ") + std::to_string(leaf->GetNodeID()) + kPos[leaf->GetPosition()];
  }
  return s;
}

}  // namespace

TEST(TreeRegistry, NodesTakeIdsInOrderAndAreFoundByTheirControlsId) {
  TreeFixture f;
  EXPECT_EQ(f.Root()->GetNodeID(), 0);
  VornVUIControlNode* a = TreeFixture::AddLeaf(f.Root(), 10, 20, 20);
  VornBranchNode* b = TreeFixture::AddBranch(f.Root());
  VornVUIControlNode* c = TreeFixture::AddLeaf(b->GetTree(), 10, 20, 20);
  EXPECT_EQ(std::to_string(a->GetNodeID()) + std::to_string(b->GetNodeID()) +
                std::to_string(c->GetNodeID()),
            "123");
  for (VornNode* node :
       {static_cast<VornNode*>(a), static_cast<VornNode*>(b), static_cast<VornNode*>(c)})
    EXPECT_EQ(f.Root()->GetNodeFromVornControlID(node->GetVornVUIControl()->GetId()), node);
  EXPECT_EQ(f.Root()->GetNodeList().size(), 3u);
  EXPECT_EQ(FiredAssertionIn([&] { f.Root()->Register(a); }).first, "node->m_NodeID == -1");

  // Controls join the tree control's group.
  EXPECT_EQ(a->GetVornVUIControl()->GetGroup(), &f.group);
}

TEST(TreeRegistry, DeletedNodesCannotBeFoundAnyMore) {
  TreeFixture f;
  std::vector<int> ids;
  VornBranchNode* b = TreeFixture::AddBranch(f.Root());
  const int inner = TreeFixture::AddLeaf(b->GetTree(), 10, 20, 20)->GetVornVUIControl()->GetId();
  for (int i = 0; i < 40; ++i)
    ids.push_back(TreeFixture::AddLeaf(f.Root(), 10, 20, 20)->GetVornVUIControl()->GetId());
  const int branchId = b->GetVornVUIControl()->GetId();

  // Deleting most leaves one by one leaves the rest reachable.
  for (int i = 0; i < 30; ++i) {
    VornLeafNode* leaf = nullptr;
    ASSERT_TRUE(f.Root()->RemoveFromEnd(leaf));
    delete leaf;
    EXPECT_EQ(f.Root()->GetNodeFromVornControlID(ids[39 - i]), nullptr);
  }
  for (int i = 0; i < 10; ++i) EXPECT_NE(f.Root()->GetNodeFromVornControlID(ids[i]), nullptr) << i;
  EXPECT_EQ(f.Root()->GetNodeList().size(), 12u);

  // A deleted branch takes its sub-tree with it.
  VornLeafNode* leaf = nullptr;
  ASSERT_TRUE(f.Root()->RemoveFromBegin(leaf));
  ASSERT_EQ(leaf, b);
  delete leaf;
  EXPECT_EQ(f.Root()->GetNodeFromVornControlID(branchId), nullptr);
  EXPECT_EQ(f.Root()->GetNodeFromVornControlID(inner), nullptr);
  EXPECT_EQ(f.Root()->GetNodeList().size(), 10u);
}

TEST(TreeRegistry, ListOperationsKeepOrderAndPositions) {
  TreeFixture f;
  VornTreeNode* level = TreeFixture::AddBranch(f.Root())->GetTree();  // id 1
  auto make = [&] { return new VornVUIControlNode(new BoxControl(5, 10, 10), level, true); };
  VornLeafNode* n2 = make();
  VornLeafNode* n3 = make();
  VornLeafNode* n4 = make();
  VornLeafNode* n5 = make();
  EXPECT_FALSE(n2->IsOnTree());
  EXPECT_TRUE(level->AddToEnd(n2));
  EXPECT_EQ(Children(level), "2o");
  EXPECT_TRUE(level->AddToBegin(n3));
  EXPECT_TRUE(level->AddAtPosition(n4, 1));
  EXPECT_FALSE(level->AddAtPosition(n5, 4));
  EXPECT_FALSE(level->AddToEnd(nullptr));
  EXPECT_EQ(Children(level), "3f 4m 2l");
  EXPECT_TRUE(n4->IsOnTree());

  int pos = -1;
  EXPECT_TRUE(level->GetNodePos(n2, pos));
  EXPECT_EQ(pos, 2);
  EXPECT_FALSE(level->GetNodePos(n5, pos));
  EXPECT_EQ(level->GetBegin(), n3);
  EXPECT_EQ(level->GetEnd(), n2);
  EXPECT_EQ(level->GetAtPos(3), nullptr);

  EXPECT_TRUE(level->Exchange(n3, n2));
  EXPECT_EQ(Children(level), "2f 4m 3l");
  EXPECT_FALSE(level->Exchange(n3, n5));

  VornLeafNode* old = nullptr;
  EXPECT_TRUE(level->SwapAtPos(n5, old, 1));
  EXPECT_EQ(old, n4);
  EXPECT_FALSE(n4->IsOnTree());
  EXPECT_EQ(Children(level), "2f 5m 3l");

  VornLeafNode* out = nullptr;
  EXPECT_TRUE(level->RemoveAtPosition(out, 1));
  EXPECT_EQ(out, n5);
  EXPECT_FALSE(level->RemoveAtPosition(out, 2));
  EXPECT_EQ(out, nullptr);
  EXPECT_TRUE(level->RemoveFromBegin(out));
  EXPECT_EQ(out, n2);
  EXPECT_EQ(Children(level), "3o");
  EXPECT_TRUE(level->RemoveFromEnd(out));
  EXPECT_FALSE(level->RemoveFromEnd(out));
  EXPECT_EQ(level->GetSize(), 0);
  for (VornLeafNode* n : {n2, n3, n4, n5}) delete n;
  EXPECT_EQ(f.Root()->GetNodeList().size(), 1u);
}

TEST(TreeRegistry, NullBranchDropsItsLeavesAndIgnoresTheToggle) {
  TreeFixture f;
  VornBranchNode* b = TreeFixture::AddBranch(f.Root());
  const int id = TreeFixture::AddLeaf(b->GetTree(), 10, 20, 20)->GetVornVUIControl()->GetId();
  TreeFixture::AddLeaf(b->GetTree(), 10, 20, 20);
  b->Expand();
  b->SetNull(true);
  EXPECT_TRUE(b->IsNull());
  EXPECT_FALSE(b->IsExpanded());
  EXPECT_EQ(b->GetTree()->GetSize(), 0);
  EXPECT_EQ(f.Root()->GetNodeFromVornControlID(id), nullptr);
  Click(b->GetBranchControl()->GetToggleButton());
  EXPECT_FALSE(b->IsExpanded());
  b->SetNull(false);
  EXPECT_FALSE(b->IsNull());
  Click(b->GetBranchControl()->GetToggleButton());
  EXPECT_TRUE(b->IsExpanded());
}
