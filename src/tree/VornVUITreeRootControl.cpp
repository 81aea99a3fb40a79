// The window the top level of the tree sits in.
#include <algorithm>

#include "TreeDrawing.h"
#include "vorn/VornNode.h"

using namespace vorn_tree;

wxBEGIN_EVENT_TABLE(VornVUITreeRootControl, VornVUIControl)
    EVT_MOUSEWHEEL(VornVUITreeRootControl::OnWheel) wxEND_EVENT_TABLE()

        VornVUITreeRootControl::VornVUITreeRootControl(VornTreeRootNode* root)
    : m_pRoot(root) {}

VornVUITreeRootControl::~VornVUITreeRootControl() = default;

int VornVUITreeRootControl::GetAllignmentPt() {
  return m_pRoot->GetAllignmentPoint();
}

int VornVUITreeRootControl::GetMaxWidth() {
  return m_pRoot->GetWidth();
}

int VornVUITreeRootControl::GetMaxHeight() {
  return m_pRoot->GetHeight();
}

VornMainVUITreeControl* VornVUITreeRootControl::FindTreeControl() {
  return m_pRoot->GetTreeControl();
}

void VornVUITreeRootControl::OnWheel(wxMouseEvent& event) {
  VornMainVUITreeControl* tree = FindTreeControl();
  if (!tree || event.GetWheelRotation() == 0) return;
  const int notches = event.GetWheelRotation() / std::max(1, event.GetWheelDelta());
  tree->ScrollBy(-notches * 3.0 * kHeaderRowHeight);
}

void VornVUITreeRootControl::OnDraw(wxDC* dc) {
  if (!dc) return;
  int w = 0;
  int h = 0;
  GetSize(w, h);
  FillRect(*dc, wxRect(0, 0, w, h), m_backgroundCol);
  // Rows are in tree coordinates; the window shows them scrolled.
  const int scroll = FindTreeControl() ? FindTreeControl()->GetScrollPos() : 0;
  std::vector<ConnectorRow> rows;
  int stemX = w;
  for (int i = 0; i < m_pRoot->GetSize(); ++i) {
    VornLeafNode* child = m_pRoot->GetAtPos(i);
    VornVUIControl* control = child->GetVornVUIControl();
    if (!control || !control->GetHandle()) continue;
    int x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    if (auto* leaf = dynamic_cast<VornVUIControlNode*>(child))
      leaf->GetDisplay(x1, y1, x2, y2);
    else if (auto* branch = dynamic_cast<VornBranchNode*>(child))
      branch->GetDisplay(x1, y1, x2, y2);
    stemX = std::min(stemX, x1 - 8);
    rows.push_back({x1, y1 - scroll, y1 - scroll + std::min(y2 - y1, kHeaderRowHeight)});
  }
  if (rows.empty()) return;
  stemX = std::max(stemX, 2);
  DrawConnectors(*dc, stemX, rows.front().top + kHeaderRowHeight / 2, rows, m_lineCol);
}
