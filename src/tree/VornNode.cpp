// The node base and the leaf base.
#include "vorn/VornNode.h"

#include <wx/gdicmn.h>

VornNode::VornNode() = default;

VornNode::~VornNode() = default;

void VornNode::GetNodeFromPoint(VornNode*& out, int, int) {
  out = this;
}

void VornNode::SetVisible(bool visible) {
  m_bVisible = visible;
}

VornTreeRootNode* VornNode::GetRoot() {
  return m_pParent ? m_pParent->GetRoot() : nullptr;
}

int VornNode::WindowShiftOf(VornNode* parent) {
  VornTreeRootNode* root = parent ? parent->GetRoot() : nullptr;
  if (!root || root != parent || !root->GetTreeControl()) return 0;
  return root->GetTreeControl()->GetScrollPos();
}

void VornNode::PlaceWindow(VornControl* control, int x, int y, int w, int h) {
  // Compared with where wx has the window: a scroll moves the root's
  // children without telling their stored geometry.
  if (control->wxWindow::GetRect() == wxRect(x, y, w, h)) return;
  control->SetWindowPos(x, y, w, h);
}

void VornNode::RepaintWindow(VornNode* parent, VornControl* control) {
  VornTreeRootNode* root = parent ? parent->GetRoot() : nullptr;
  if (root && root == parent) {
    const wxRect place = control->wxWindow::GetRect();
    const int viewHeight = root->GetVornVUIControl()->wxWindow::GetClientSize().y;
    if (place.GetBottom() < 0 || place.y >= viewHeight) return;
  }
  control->wxWindow::Refresh(false);
}

bool VornNode::ViewSpan(VornNode* parent, int& top, int& bottom) {
  VornTreeRootNode* root = parent ? parent->GetRoot() : nullptr;
  if (!root || root != parent || !root->GetTreeControl()) return false;
  VornControl* view = root->GetVornVUIControl();
  if (!view || !view->GetHandle()) return false;
  // A row's worth of slack each side, so that a small scroll finds its
  // neighbours ready.
  constexpr int kSlack = 36;
  top = root->GetTreeControl()->GetScrollPos() - kSlack;
  bottom = root->GetTreeControl()->GetScrollPos() + view->wxWindow::GetClientSize().y + kSlack;
  return true;
}

bool VornNode::InView(VornNode* parent, int y1, int y2) {
  int top = 0, bottom = 0;
  return !ViewSpan(parent, top, bottom) || (y2 > top && y1 < bottom);
}

VornLeafNode::~VornLeafNode() = default;

void VornLeafNode::SetPosition(POSITION position) {
  m_position = position;
}
