// Stretching a skin picture over a rectangle of any size.
#include "MonsterBoxParts.h"

#include <wx/dcmemory.h>
#include <wx/image.h>

#include <algorithm>

namespace monster {

namespace {

// Copies source rectangle s of picture onto d of dc, scaling when the sizes
// differ.
void Piece(wxDC& dc, const wxImage& picture, const wxRect& s, const wxRect& d) {
  if (s.width <= 0 || s.height <= 0 || d.width <= 0 || d.height <= 0) return;
  wxImage part = picture.GetSubImage(s);
  if (s.GetSize() != d.GetSize()) part.Rescale(d.width, d.height, wxIMAGE_QUALITY_NEAREST);
  dc.DrawBitmap(wxBitmap(part), d.x, d.y, true);
}

}  // namespace

void DrawStretched(wxDC& dc, const wxBitmap& picture, const wxRect& rect, int corner) {
  if (!picture.IsOk() || rect.IsEmpty()) return;
  const wxImage image = picture.ConvertToImage();
  const int pw = image.GetWidth(), ph = image.GetHeight();
  // The corners may take at most half of either the picture or the target.
  const int cx = std::max(0, std::min({corner, (pw - 1) / 2, rect.width / 2}));
  const int cy = std::max(0, std::min({corner, (ph - 1) / 2, rect.height / 2}));
  const int sx[] = {0, cx, pw - cx, pw}, sy[] = {0, cy, ph - cy, ph};
  const int dx[] = {rect.x, rect.x + cx, rect.GetRight() + 1 - cx, rect.GetRight() + 1};
  const int dy[] = {rect.y, rect.y + cy, rect.GetBottom() + 1 - cy, rect.GetBottom() + 1};
  for (int row = 0; row < 3; ++row)
    for (int col = 0; col < 3; ++col)
      Piece(dc, image, wxRect(sx[col], sy[row], sx[col + 1] - sx[col], sy[row + 1] - sy[row]),
            wxRect(dx[col], dy[row], dx[col + 1] - dx[col], dy[row + 1] - dy[row]));
}

}  // namespace monster
