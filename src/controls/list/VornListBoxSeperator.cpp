// A separator row: one line at half its height across the clipping box.
#include <wx/dc.h>

#include "vorn/VornListBox.h"

VornListBoxSeperator::VornListBoxSeperator() : VornListBoxElement(kHeight, nullptr, false) {}

void VornListBoxSeperator::Draw(wxDC* dc, int x, int y) {
  if (!dc) return;
  wxCoord cx = 0, cy = 0, cw = 0, ch = 0;
  dc->GetClippingBox(&cx, &cy, &cw, &ch);
  const int mid = y + m_height / 2;
  dc->DrawLine(cx, mid, x + cw, mid);
}
