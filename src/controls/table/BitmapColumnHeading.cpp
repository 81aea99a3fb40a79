// A heading that shows a picture, left-aligned and centred vertically.
#include <wx/dc.h>

#include "vorn/VornMonsterBox.h"

BitmapColumnHeading::BitmapColumnHeading(const wxBitmap* bitmap) : m_pBitmap(bitmap) {}

void BitmapColumnHeading::DrawTitle(wxDC& dc, const wxRect& rect) {
  if (!m_pBitmap || !m_pBitmap->IsOk()) return;
  dc.DrawBitmap(*m_pBitmap, rect.x, rect.y + (rect.height - m_pBitmap->GetHeight()) / 2, true);
}
