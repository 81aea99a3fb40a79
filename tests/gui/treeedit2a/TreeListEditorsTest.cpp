// The tree's list editors: items and a selection kept for a window made
// late, a choice in the pop-up reaching the tree's group as a node hint,
// and the enumeration's names and indices.
#include <gtest/gtest.h>

#include "../list/ListTestSupport.h"
#include "../tree/TreeEditorTestSupport.h"

namespace {

using namespace treetest;

// Opens the list, moves down from the first row and chooses.
void Choose(VornListBox* list, int downs) {
  ExpandedVornListBox* popup = ListFixture::Open(list);
  ASSERT_NE(popup, nullptr);
  Key(popup, WXK_HOME);
  for (int i = 0; i < downs; ++i) Key(popup, WXK_DOWN);
  Key(popup, WXK_RETURN);
  Do(list, "up leave");
}

class TreeListEditorsTest : public ::testing::Test {
 protected:
  LoggedGroup tree;
  TestFrame frame{wxSize(700, 300)};
};

TEST_F(TreeListEditorsTest, ItemsGivenBeforeTheWindowAreListedAndAChoiceIsANodeChange) {
  auto* lb = new VUITreeLB(&Skin(), "Blend", false);
  for (const char* item : {"Add", "Multiply", "Screen"}) lb->Append(item);
  lb->SetSelected(2);
  lb->Create(frame.Get(), 20, &tree.group);
  VornListBox* list = lb->GetList();
  ASSERT_NE(list, nullptr);
  EXPECT_GE(list->GetPosition().x, lb->GetAllignmentPt());
  ASSERT_EQ(list->GetCount(), 3);
  EXPECT_EQ(list->GetItemText(1), "Multiply");
  EXPECT_EQ(list->GetShownText(), "Screen");
  Choose(list, 1);
  EXPECT_EQ(tree.hints.Take(), "changed -1");
  EXPECT_EQ(lb->GetSelected(), 1);
  // The host's own selection is quiet; a bad index selects nothing.
  lb->SetSelected(0);
  lb->SetSelected(7);
  EXPECT_EQ(tree.hints.Take(), "");
  EXPECT_EQ(list->GetSelected(), -1);
}

TEST_F(TreeListEditorsTest, TheEnumerationListMapsNamesAndIndices) {
  auto* e = new VUITreeEnumLB(&Skin(), "Filter", false, " Linear | Smooth,Step ||");
  EXPECT_EQ(e->GetCount(), 3);
  EXPECT_EQ(e->IndexOf("Smooth"), 1);
  EXPECT_EQ(e->NameOf(2), "Step");
  EXPECT_EQ(e->NameOf(3), "");
  VornString v = "unchanged";
  EXPECT_FALSE(e->GetValue(v));                  // nothing chosen yet
  ASSERT_TRUE(e->SetValue(VornString("Step")));  // before the window: kept
  e->Create(frame.Get(), 22, &tree.group);
  EXPECT_EQ(e->GetList()->GetSelected(), 2);
  EXPECT_FALSE(e->SetValue(VornString("Cubic")));
  ASSERT_TRUE(e->GetValue(v));
  EXPECT_EQ(v, "Step");
  EXPECT_EQ(tree.hints.Take(), "");
  Choose(e->GetList(), 0);
  EXPECT_EQ(tree.hints.Take(), "changed -1");
  ASSERT_TRUE(e->GetValue(v));
  EXPECT_EQ(v, "Linear");
  // New names keep the chosen one where it survives, else nothing.
  e->SetEnumeration("Nearest, Linear");
  EXPECT_EQ(e->GetList()->GetShownText(), "Linear");
  e->SetEnumeration("Box | Gauss");
  EXPECT_FALSE(e->GetValue(v));
  EXPECT_EQ(e->GetList()->GetCount(), 2);
}

}  // namespace
