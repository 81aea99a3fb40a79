// The expand/collapse button of a branch header.
#include "TreeDrawing.h"
#include "TreeTexts.h"
#include "vorn/VornAssert.h"
#include "vorn/VornNode.h"

using namespace vorn_tree;

VornBranchToggleButton::VornBranchToggleButton(VornBranchNode* branch) : m_pBranch(branch) {}

VornBranchToggleButton::~VornBranchToggleButton() = default;

void VornBranchToggleButton::OnMouseButton() {
  VornButton::OnMouseButton();
  const bool hasTree = m_pBranch && m_pBranch->GetTree() != nullptr;
  if (!hasTree) VORN_ASSERT_TEXT(GetOn() == false, kToggleOffWithoutTree);
  if (!m_pBranch || m_pBranch->IsNull() || !IsRelease() || !GetMouseOver()) return;
  const bool expand = !GetOn();
  SetOn(expand);
  m_pBranch->SetExpandedVal(expand);
  if (expand)
    m_pBranch->OnExpand();
  else
    m_pBranch->OnCollapse();
  if (VornTreeRootNode* root = m_pBranch->GetRoot()) root->Refresh();
  Redraw();
}

void VornBranchToggleButton::OnDraw(wxDC* dc) {
  if (!dc) return;
  if (GetImageCache()) {
    VornButton::OnDraw(dc);
    return;
  }
  auto* header = dynamic_cast<VornVUIControl*>(GetParent());
  const Color line = header ? header->GetLineCol() : Color(1.0, 1.0, 1.0);
  const Color fill = header ? header->GetRowBackgroundCol() : Color();
  int w = 0;
  int h = 0;
  GetSize(w, h);
  DrawToggleBox(*dc, wxRect(0, 0, w, h), GetOn(), line, fill);
}
