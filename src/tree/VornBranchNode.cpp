// A collapsible branch: header control plus sub-tree.
#include "TreeTexts.h"
#include "vorn/VornAssert.h"
#include "vorn/VornNode.h"

using namespace vorn_tree;

VornBranchNode::VornBranchNode(VornTreeNode* parent, VornString name) {
  VORN_ASSERT_TEXT(parent != nullptr, kParentNotNull);
  if (!parent) return;
  SetParent(parent);
  VornTreeRootNode* root = parent->GetRoot();
  if (root) root->Register(this);
  m_pTree = std::make_unique<VornTreeNode>();
  m_pTree->SetParent(this);
  VornNode::SetVisible(parent->IsVisible());
  m_bExpanded = false;
  m_pControl =
      std::make_unique<VornVUIBranchControl>(root ? root->GetAssetManager() : nullptr, name, this);
  if (root) {
    m_pControl->SetBackgroundCol(root->GetBackgroundCol());
    m_pControl->SetLineCol(root->GetLineCol());
    if (VornMainVUITreeControl* tree = root->GetTreeControl())
      m_pControl->SetMouseOverCol(tree->GetMouseOverCol());
  }
  // The id is taken now so that the node can be found by it before its
  // header has a window.
  m_pControl->SetId(wxWindow::NewControlId());
  // A header is made at once only while the tree still ends inside the view
  // (where this branch will show when appended); else when first placed in
  // view, so that a long tree costs windows only for what is seen.
  bool make = parent->IsVisible();
  int top = 0, bottom = 0;
  if (make && ViewSpan(parent, top, bottom)) {
    // The level's end, counted no further than the view's: building a long
    // tree stays linear.
    int end = 0;
    for (int i = 0; i < parent->GetSize() && end < bottom; ++i)
      end += parent->GetAtPos(i)->GetHeight();
    make = end < bottom && end + GetHeight() > top;
  }
  if (make) CreateWindow();
}

bool VornBranchNode::HasWindow() const {
  return m_pControl && m_pControl->GetHandle();
}

bool VornBranchNode::TreeHasWindow() const {
  VornTreeRootNode* root = m_pParent ? m_pParent->GetRoot() : nullptr;
  return root && root->GetVornVUIControl() && root->GetVornVUIControl()->GetHandle();
}

bool VornBranchNode::ParentHasWindow() const {
  VornVUIControl* parentControl = m_pParent ? m_pParent->GetVornVUIControl() : nullptr;
  return parentControl && parentControl->GetHandle();
}

bool VornBranchNode::CreateWindow() {
  if (!m_pControl || !ParentHasWindow()) return false;
  return m_pControl->Create(m_pParent->GetVornVUIControl(), m_pControl->GetId(), nullptr);
}

VornBranchNode::~VornBranchNode() {
  if (VornTreeRootNode* root = GetRoot()) root->Deregister(this);
  // The sub-tree's windows are children of the header's window: they go
  // first so that wx does not delete them under their owners.
  m_pTree.reset();
  m_pControl.reset();
}

// ---- layout ------------------------------------------------------------------

int VornBranchNode::GetWidth() {
  return m_pControl ? m_pControl->GetMaxWidth() : 0;
}

int VornBranchNode::GetHeight() {
  return m_pControl ? m_pControl->GetMaxHeight() : 0;
}

int VornBranchNode::GetAllignmentPoint() {
  return m_pControl ? m_pControl->GetAllignmentPt() : 0;
}

void VornBranchNode::SetDisplay(int x1, int y1, int x2, int y2) {
  // The header may have no window yet (it is made when placed in view), but
  // it must be able to get one.
  VORN_ASSERT_TEXT(m_pControl && (m_pControl->GetHandle() || TreeHasWindow()), kWindowExists);
  VORN_ASSERT_TEXT((x2 - x1) == this->GetWidth(), kBranchWidth);
  VORN_ASSERT_TEXT((y2 - y1) == this->GetHeight(), kBranchHeight);
  m_x1 = x1;
  m_y1 = y1;
  m_x2 = x2;
  m_y2 = y2;
  if (!m_pControl) return;
  const int ox = m_pControl->GetTreeOffsetX();
  const int oy = m_pControl->GetTreeOffsetY();
  m_pTree->SetDisplay(ox, oy, ox + m_pTree->GetWidth(), oy + m_pTree->GetHeight());
}

void VornBranchNode::GetNodeFromPoint(VornNode*& out, int x, int y) {
  // The header row is the branch; below it, the sub-tree when shown.
  if (!m_bExpanded || !m_pControl) {
    out = this;
    return;
  }
  const int ox = m_pControl->GetTreeOffsetX();
  const int oy = m_pControl->GetTreeOffsetY();
  if (y < oy || m_pTree->GetSize() == 0) {
    out = this;
    return;
  }
  m_pTree->GetNodeFromPoint(out, x - ox, y - oy);
}

void VornBranchNode::SetVisible(bool visible) {
  VornNode::SetVisible(visible);
  // Children are shown only while the branch is open.
  m_pTree->SetVisible(visible && m_bExpanded);
}

VornVUIControl* VornBranchNode::GetVornVUIControl() {
  return m_pControl.get();
}

void VornBranchNode::Refresh() {
  VORN_ASSERT_TEXT(m_pControl && (m_pControl->GetHandle() || TreeHasWindow()), kWindowExists);
  if (!m_pControl) return;
  if (!m_pControl->GetHandle()) {
    // Out of view, or under a parent without a window: stays a node.
    if (!IsVisible() || !InView(m_pParent, m_y1, m_y2) || !CreateWindow()) return;
  }
  if (!IsVisible()) {
    // Its sub-tree is hidden with it and placed when shown again.
    if (m_pControl->IsShown()) m_pControl->Show(false);
    return;
  }
  PlaceWindow(m_pControl.get(), m_x1, m_y1 - WindowShiftOf(m_pParent), m_x2 - m_x1, m_y2 - m_y1);
  if (!m_pControl->IsShown()) m_pControl->Show(true);
  RepaintWindow(m_pParent, m_pControl.get());
  m_pTree->Refresh();
}

void VornBranchNode::GetDisplay(int& x1, int& y1, int& x2, int& y2) const {
  x1 = m_x1;
  y1 = m_y1;
  x2 = m_x2;
  y2 = m_y2;
}

// ---- expansion ------------------------------------------------------------------

void VornBranchNode::OnExpand() {}

void VornBranchNode::OnCollapse() {}

void VornBranchNode::Exp() {
  m_bExpanded = true;
  m_pTree->SetVisible(IsVisible());
}

void VornBranchNode::Col() {
  m_bExpanded = false;
  m_pTree->SetVisible(false);
}

void VornBranchNode::Expand() {
  Exp();
}

void VornBranchNode::Collapse() {
  Col();
}

void VornBranchNode::Toggle() {
  if (m_bExpanded)
    Col();
  else
    Exp();
}

void VornBranchNode::SetExpandedVal(bool expanded) {
  if (expanded)
    Exp();
  else
    Col();
}

void VornBranchNode::SetNull(bool null) {
  if (null == m_bNull) return;
  if (null) {
    Col();
    m_pTree->DeleteAllLeafNodes();
  }
  m_bNull = null;
}
