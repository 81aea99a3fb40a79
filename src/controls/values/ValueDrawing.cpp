#include "ValueDrawing.h"

#include <wx/image.h>

#include <algorithm>

namespace ValueDrawing {

wxBitmap Greyed(const wxBitmap& bmp, const wxColour& background) {
  if (!bmp.IsOk()) return wxBitmap();
  wxImage image = bmp.ConvertToImage();
  unsigned char* p = image.GetData();
  const int bg[3] = {background.Red(), background.Green(), background.Blue()};
  for (long i = 0, n = static_cast<long>(image.GetWidth()) * image.GetHeight(); i < n; ++i) {
    const int grey = (p[3 * i] + p[3 * i + 1] + p[3 * i + 2]) / 3;
    for (int c = 0; c < 3; ++c) p[3 * i + c] = static_cast<unsigned char>((grey + bg[c]) / 2);
  }
  return wxBitmap(image);
}

wxBitmap Mirrored(const wxBitmap& bmp) {
  if (!bmp.IsOk()) return wxBitmap();
  return wxBitmap(bmp.ConvertToImage().Mirror(true));
}

wxBitmap Scaled(const wxBitmap& bmp, int w, int h) {
  if (!bmp.IsOk() || w <= 0 || h <= 0) return wxBitmap();
  if (bmp.GetWidth() == w && bmp.GetHeight() == h) return bmp;
  return wxBitmap(bmp.ConvertToImage().Scale(w, h, wxIMAGE_QUALITY_BILINEAR));
}

void TileAcross(wxDC& dc, const wxBitmap& bmp, int x0, int x1, int y) {
  if (!bmp.IsOk() || bmp.GetWidth() <= 0 || x1 <= x0) return;
  dc.SetClippingRegion(x0, y, x1 - x0, bmp.GetHeight());
  for (int x = x0; x < x1; x += bmp.GetWidth()) dc.DrawBitmap(bmp, x, y, true);
  dc.DestroyClippingRegion();
}

void DrawClipped(wxDC& dc, const wxBitmap& bmp, int x, int y, int x0, int x1) {
  if (!bmp.IsOk() || x1 <= x0) return;
  dc.SetClippingRegion(x0, y, x1 - x0, bmp.GetHeight());
  dc.DrawBitmap(bmp, x, y, true);
  dc.DestroyClippingRegion();
}

void Draw(wxDC& dc, const wxBitmap& bmp, int x, int y) {
  if (bmp.IsOk()) dc.DrawBitmap(bmp, x, y, true);
}

wxColour Mix(const wxColour& a, const wxColour& b, double t) {
  t = std::min(1.0, std::max(0.0, t));
  auto ch = [t](int p, int q) { return static_cast<unsigned char>(p + (q - p) * t + 0.5); };
  return wxColour(ch(a.Red(), b.Red()), ch(a.Green(), b.Green()), ch(a.Blue(), b.Blue()));
}

}  // namespace ValueDrawing
