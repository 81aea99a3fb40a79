// A check-box cell: a toggle from the given image set, centred in the cell.
#include "CellControl.h"
#include "vorn/VornMonsterBox.h"

CheckBoxColumnEntry::CheckBoxColumnEntry(wxPanel* panel, const VornwxBitmapCache* images,
                                         VornControlGroup* group, bool on)
    : ColumnEntry(panel) {
  m_pToggle = new CellControl<VornButtonToggle>(group, images, 0, 0, this, BoxId(panel), nullptr);
  m_pToggle->SetOn(on);
  ForwardWheelOf(m_pToggle);
}

void CheckBoxColumnEntry::SetGeometry(int x, int y, int w, int h) {
  ColumnEntry::SetGeometry(x, y, w, h);
  // The box sits in the middle of the cell, above the line under the row.
  const int bw = m_pToggle->GetWidth(), bh = m_pToggle->GetHeight();
  m_pToggle->SetPosition((w - bw) / 2, (h - 1 - bh) / 2);
}

void CheckBoxColumnEntry::SetCellColours(const wxColour& text, const wxColour& background) {
  ColumnEntry::SetCellColours(text, background);
  m_pToggle->SetBgColour(background);
}
