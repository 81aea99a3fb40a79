// Base of the tree's controls: size metrics, the three tree colours and the
// row highlight.
#include "vorn/VornNode.h"

wxBEGIN_EVENT_TABLE(VornVUIControl, VornControl) EVT_ENTER_WINDOW(VornVUIControl::OnRowEnter)
    EVT_LEAVE_WINDOW(VornVUIControl::OnRowLeave) wxEND_EVENT_TABLE()

        VornVUIControl::VornVUIControl() = default;

VornVUIControl::~VornVUIControl() = default;

bool VornVUIControl::Create(wxWindow* parent, int id, VornControlGroup* group, long style) {
  return VornControl::Create(0, 0, GetMaxWidth(), GetMaxHeight(), parent, id, group, style);
}

void VornVUIControl::OnMouseMove(int, int) {}
void VornVUIControl::OnMouseOver() {}
void VornVUIControl::OnMouseDownLeft() {}
void VornVUIControl::OnMouseDownRight() {}
void VornVUIControl::OnMouseButton() {}
void VornVUIControl::OnMouseEntering() {}
void VornVUIControl::OnMouseLeaving() {}

void VornVUIControl::SetMouseOverCol(const Color& colour) {
  m_mouseOverCol = colour;
  m_bMouseOverColSet = true;
}

void VornVUIControl::SetRowHighlight(bool on) {
  if (on == m_bRowHighlight) return;
  m_bRowHighlight = on;
  if (GetHandle()) wxWindow::Refresh(false);
}

const Color& VornVUIControl::GetRowBackgroundCol() const {
  return (m_bRowHighlight && m_bMouseOverColSet) ? m_mouseOverCol : m_backgroundCol;
}

VornMainVUITreeControl* VornVUIControl::FindTreeControl() {
  VornNode* node = m_pVUIControlNode;
  VornTreeRootNode* root = node ? node->GetRoot() : nullptr;
  return root ? root->GetTreeControl() : nullptr;
}

void VornVUIControl::OnRowEnter(wxMouseEvent& event) {
  if (VornMainVUITreeControl* tree = FindTreeControl()) tree->SetHighlightedRow(this);
  event.Skip();
}

void VornVUIControl::OnRowLeave(wxMouseEvent& event) {
  if (VornMainVUITreeControl* tree = FindTreeControl())
    if (tree->GetHighlightedRow() == this) tree->SetHighlightedRow(nullptr);
  event.Skip();
}
