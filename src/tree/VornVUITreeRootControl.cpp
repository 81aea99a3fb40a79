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
  // Rows come from the layout, not the windows: a row out of view may have
  // none. Only the rows in view get ticks; the stem runs from the first row
  // to the last wherever they are.
  std::vector<ConnectorRow> rows;
  int stemX = w;
  int stemTop = 0;
  const int n = m_pRoot->GetSize();
  for (int i = 0; i < n; ++i) {
    VornLeafNode* child = m_pRoot->GetAtPos(i);
    int x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    if (auto* leaf = dynamic_cast<VornVUIControlNode*>(child))
      leaf->GetDisplay(x1, y1, x2, y2);
    else if (auto* branch = dynamic_cast<VornBranchNode*>(child))
      branch->GetDisplay(x1, y1, x2, y2);
    else
      continue;
    const ConnectorRow row{x1, y1 - scroll, y1 - scroll + std::min(y2 - y1, kHeaderRowHeight)};
    stemX = std::min(stemX, x1 - 8);
    if (i == 0) stemTop = row.top + kHeaderRowHeight / 2;
    if ((row.bottom >= 0 && row.top < h) || i == n - 1) rows.push_back(row);
  }
  if (rows.empty()) return;
  stemX = std::max(stemX, 2);
  DrawConnectors(*dc, stemX, stemTop, rows, m_lineCol);
}
