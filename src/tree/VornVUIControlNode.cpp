// A leaf that wraps one parameter control.
#include "TreeTexts.h"
#include "vorn/VornAssert.h"
#include "vorn/VornNode.h"

using namespace vorn_tree;

VornVUIControlNode::VornVUIControlNode(VornVUIControl* control, VornTreeNode* parent,
                                       bool setDefaults)
    : m_pControl(control) {
  VORN_ASSERT_TEXT(control != nullptr, kControlNotNull);
  VORN_ASSERT_TEXT(parent != nullptr, kParentNotNull);
  if (!control || !parent) return;
  control->SetVUIControlNode(this);
  VornTreeRootNode* root = parent->GetRoot();
  VornMainVUITreeControl* tree = root ? root->GetTreeControl() : nullptr;
  if (setDefaults && root) {
    control->SetBackgroundCol(root->GetBackgroundCol());
    control->SetLineCol(root->GetLineCol());
    if (tree) control->SetMouseOverCol(tree->GetMouseOverCol());
  }
  SetParent(parent);
  if (!control->GetHandle()) {
    // A hidden level's leaves (or those of a header not made yet) are nodes
    // only until first shown; the id is taken now so that the node can be
    // found by it.
    const bool created = parent->IsVisible() && CreateWindow();
    if (!created && control->GetId() == wxID_ANY) control->SetId(wxWindow::NewControlId());
  }
  SetVisible(parent->IsVisible());
  if (root) root->Register(this);
  if (tree && tree->GetGroup()) control->SetGroup(tree->GetGroup());
}

VornVUIControlNode::~VornVUIControlNode() {
  VORN_ASSERT_TEXT(m_pControl != nullptr, kOwnedControlExists);
  if (VornTreeRootNode* root = GetRoot()) root->Deregister(this);
  if (m_pControl) m_pControl->SetVUIControlNode(nullptr);
}

int VornVUIControlNode::GetWidth() {
  return m_pControl ? m_pControl->GetMaxWidth() : 0;
}

int VornVUIControlNode::GetHeight() {
  return m_pControl ? m_pControl->GetMaxHeight() : 0;
}

int VornVUIControlNode::GetAllignmentPoint() {
  return m_pControl ? m_pControl->GetAllignmentPt() : 0;
}

void VornVUIControlNode::SetDisplay(int x1, int y1, int x2, int y2) {
  m_x1 = x1;
  m_y1 = y1;
  m_x2 = x2;
  m_y2 = y2;
}

VornVUIControl* VornVUIControlNode::GetVornVUIControl() {
  return m_pControl.get();
}

bool VornVUIControlNode::CreateWindow() {
  VornVUIControl* parentControl = m_pParent ? m_pParent->GetVornVUIControl() : nullptr;
  if (!parentControl || !parentControl->GetHandle()) return false;
  // Creating resets the control's group: it leaves the group and joins it
  // again through Create, under the same id.
  VornControlGroup* group = m_pControl->GetGroup();
  if (group) group->DeRegister(static_cast<unsigned int>(m_pControl->GetId()), true);
  return m_pControl->Create(parentControl, m_pControl->GetId(), group);
}

void VornVUIControlNode::Refresh() {
  if (!m_pControl) return;
  if (!m_pControl->GetHandle() && (!IsVisible() || !CreateWindow())) return;
  if (!IsVisible()) {
    // A hidden window keeps its old place until it is shown again.
    if (m_pControl->IsShown()) m_pControl->Show(false);
    return;
  }
  PlaceWindow(m_pControl.get(), m_x1, m_y1 - WindowShiftOf(m_pParent), m_x2 - m_x1, m_y2 - m_y1);
  if (!m_pControl->IsShown()) m_pControl->Show(true);
  RepaintWindow(m_pParent, m_pControl.get());
}

void VornVUIControlNode::GetDisplay(int& x1, int& y1, int& x2, int& y2) const {
  x1 = m_x1;
  y1 = m_y1;
  x2 = m_x2;
  y2 = m_y2;
}
