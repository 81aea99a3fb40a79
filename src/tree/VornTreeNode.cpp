// One level of the tree: the list of children and the vertical stacking.
#include <algorithm>

#include "TreeTexts.h"
#include "vorn/VornAssert.h"
#include "vorn/VornNode.h"

using namespace vorn_tree;

VornTreeNode::~VornTreeNode() {
  DeleteAllLeafNodes();
}

// ---- layout ------------------------------------------------------------------

int VornTreeNode::GetHeight() {
  int height = 0;
  for (VornLeafNode* child : m_children) height += child->GetHeight();
  return height;
}

int VornTreeNode::GetAllignmentPoint() {
  int alignment = 0;
  for (VornLeafNode* child : m_children)
    alignment = std::max(alignment, child->GetAllignmentPoint());
  return alignment;
}

int VornTreeNode::GetWidth() {
  if (m_children.empty()) return 0;
  int alignment = 0;
  int right = 0;  // the widest part right of the alignment line
  for (VornLeafNode* child : m_children) {
    const int a = child->GetAllignmentPoint();
    alignment = std::max(alignment, a);
    right = std::max(right, child->GetWidth() - a);
  }
  return alignment + right;
}

void VornTreeNode::SetDisplay(int x1, int y1, int x2, int y2) {
  VORN_ASSERT_TEXT((x2 - x1) == VornTreeNode::GetWidth(), kLevelWidth);
  VORN_ASSERT_TEXT((y2 - y1) == VornTreeNode::GetHeight(), kLevelHeight);
  m_x1 = x1;
  m_y1 = y1;
  m_x2 = x2;
  m_y2 = y2;
  const int alignment = VornTreeNode::GetAllignmentPoint();
  int y = 0;
  for (VornLeafNode* child : m_children) {
    const int left = x1 + alignment - child->GetAllignmentPoint();
    const int top = y1 + y;
    const int height = child->GetHeight();
    child->SetDisplay(left, top, left + child->GetWidth(), top + height);
    y += height;
  }
}

void VornTreeNode::GetNodeFromPoint(VornNode*& out, int x, int y) {
  int top = 0;
  VornLeafNode* hit = nullptr;
  for (VornLeafNode* child : m_children) {
    const int bottom = top + child->GetHeight();
    if (bottom >= y) {
      hit = child;
      break;
    }
    top = bottom;
  }
  if (!hit) {
    out = this;
    return;
  }
  const int left = VornTreeNode::GetAllignmentPoint() - hit->GetAllignmentPoint();
  if (x < left || x > left + hit->GetWidth()) {
    out = this;
    return;
  }
  hit->GetNodeFromPoint(out, x - left, y - top);
}

void VornTreeNode::SetVisible(bool visible) {
  VornNode::SetVisible(visible);
  for (VornLeafNode* child : m_children) child->SetVisible(visible);
}

void VornTreeNode::Refresh() {
  for (VornLeafNode* child : m_children) child->Refresh();
}

VornVUIControl* VornTreeNode::GetVornVUIControl() {
  return m_pParent ? m_pParent->GetVornVUIControl() : nullptr;
}

void VornTreeNode::GetDisplay(int& x1, int& y1, int& x2, int& y2) const {
  x1 = m_x1;
  y1 = m_y1;
  x2 = m_x2;
  y2 = m_y2;
}

// ---- the list of children -------------------------------------------------------

void VornTreeNode::Attach(VornLeafNode* leaf) {
  leaf->SetOnTree(true);
  leaf->SetParent(this);
}

void VornTreeNode::Detach(VornLeafNode* leaf) {
  leaf->SetOnTree(false);
  leaf->SetPosition(VornLeafNode::P_NONE);
}

bool VornTreeNode::AddToBegin(VornLeafNode* leaf) {
  return AddAtPosition(leaf, 0);
}

bool VornTreeNode::AddToEnd(VornLeafNode* leaf) {
  return AddAtPosition(leaf, GetSize());
}

bool VornTreeNode::AddAtPosition(VornLeafNode* leaf, int pos) {
  if (!leaf || pos < 0 || pos > GetSize()) return false;
  m_children.insert(m_children.begin() + pos, leaf);
  Attach(leaf);
  ResetPositionValues();
  return true;
}

bool VornTreeNode::RemoveFromBegin(VornLeafNode*& leaf) {
  return RemoveAtPosition(leaf, 0);
}

bool VornTreeNode::RemoveFromEnd(VornLeafNode*& leaf) {
  return RemoveAtPosition(leaf, GetSize() - 1);
}

bool VornTreeNode::RemoveAtPosition(VornLeafNode*& leaf, int pos) {
  leaf = nullptr;
  if (pos < 0 || pos >= GetSize()) return false;
  leaf = m_children[pos];
  m_children.erase(m_children.begin() + pos);
  Detach(leaf);
  ResetPositionValues();
  return true;
}

VornLeafNode* VornTreeNode::GetBegin() const {
  return m_children.empty() ? nullptr : m_children.front();
}

VornLeafNode* VornTreeNode::GetEnd() const {
  return m_children.empty() ? nullptr : m_children.back();
}

VornLeafNode* VornTreeNode::GetAtPos(int i) const {
  return (i >= 0 && i < GetSize()) ? m_children[i] : nullptr;
}

bool VornTreeNode::GetNodePos(VornLeafNode* leaf, int& pos) const {
  const auto it = std::find(m_children.begin(), m_children.end(), leaf);
  if (it == m_children.end()) return false;
  pos = static_cast<int>(it - m_children.begin());
  return true;
}

bool VornTreeNode::Exchange(VornLeafNode* first, VornLeafNode* second) {
  int a = 0;
  int b = 0;
  if (!GetNodePos(first, a) || !GetNodePos(second, b)) return false;
  std::swap(m_children[a], m_children[b]);
  ResetPositionValues();
  return true;
}

bool VornTreeNode::SwapAtPos(VornLeafNode* leaf, VornLeafNode*& old, int pos) {
  old = nullptr;
  if (!leaf || pos < 0 || pos >= GetSize()) return false;
  old = m_children[pos];
  m_children[pos] = leaf;
  Detach(old);
  Attach(leaf);
  ResetPositionValues();
  return true;
}

void VornTreeNode::DeleteAllLeafNodes() {
  // Detach first: a child's destructor may look at its siblings' tree.
  std::vector<VornLeafNode*> children;
  children.swap(m_children);
  for (VornLeafNode* child : children) delete child;
}

void VornTreeNode::ResetPositionValues() {
  const int n = GetSize();
  for (int i = 0; i < n; ++i) {
    VornLeafNode::POSITION p = VornLeafNode::P_MIDDLE;
    if (n == 1)
      p = VornLeafNode::P_ONLY;
    else if (i == 0)
      p = VornLeafNode::P_FIRST;
    else if (i == n - 1)
      p = VornLeafNode::P_LAST;
    m_children[i]->SetPosition(p);
  }
}
