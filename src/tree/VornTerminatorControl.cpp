// A small end mark placed as a leaf.
#include "TreeDrawing.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/VornNode.h"

using namespace vorn_tree;

namespace {
constexpr int kAlignment = 20;
constexpr int kSize = 40;
}  // namespace

VornTerminatorControl::~VornTerminatorControl() = default;

int VornTerminatorControl::GetAllignmentPt() {
  return kAlignment;
}

int VornTerminatorControl::GetMaxWidth() {
  return kSize;
}

int VornTerminatorControl::GetMaxHeight() {
  return kSize;
}

void VornTerminatorControl::OnDraw(wxDC* dc) {
  if (!dc) return;
  FillRect(*dc, wxRect(0, 0, kSize, kSize), GetRowBackgroundCol());
  // The connector ends in a short bar across it.
  dc->SetPen(wxPen(CtoWxC(m_lineCol), 1));
  dc->DrawLine(0, kSize / 2, kAlignment, kSize / 2);
  dc->DrawLine(kAlignment, kSize / 2 - 6, kAlignment, kSize / 2 + 7);
}
