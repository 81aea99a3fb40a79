// A column's heading: the title (drawn by the kind) and a one-pixel
// separator at its right edge.
#include <wx/dc.h>

#include "MonsterBoxParts.h"
#include "vorn/VornMonsterBox.h"

void ColumnHeading::SetPlace(const wxRect& rect, const wxColour& separator) {
  m_place = rect;
  m_separator = separator;
}

void ColumnHeading::Draw(wxDC* dc) {
  if (!dc || m_place.IsEmpty()) return;
  wxRect inner = m_place;
  inner.Deflate(monster::kTitlePadding, 0);
  dc->SetClippingRegion(m_place);
  DrawTitle(*dc, inner);
  dc->DestroyClippingRegion();
  dc->SetPen(wxPen(m_separator));
  const int x = m_place.GetRight();
  dc->DrawLine(x, m_place.y, x, m_place.GetBottom() + 1);
}
