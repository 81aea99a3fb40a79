// Filters that let the host's drawing functions paint into wx images.
#include "vorn/UIFilters.h"

#include <wx/dcmemory.h>
#include <wx/pen.h>

#include "vorn/GraphicsFunctions.h"

namespace {
// trunc(v + 0.5) kept within a byte; drawing code may hand in channels a hair
// outside 0..1.
inline unsigned char RoundByte(double v) {
  v += 0.5;
  if (!(v > 0.0)) return 0;
  if (v >= 255.0) return 255;
  return static_cast<unsigned char>(v);
}
}  // namespace

// ---- BasicwxImageFilter ----

BasicwxImageFilter::~BasicwxImageFilter() = default;

bool BasicwxImageFilter::WritePixel(int x, int y, ColorA& c) {
  if (!Inside(x, y)) return false;
  m_image.SetRGB(x, y, RoundByte(c.r * 255), RoundByte(c.g * 255), RoundByte(c.b * 255));
  return true;
}

bool BasicwxImageFilter::ReadPixel(ColorA& c, int x, int y) const {
  if (!Inside(x, y)) return false;
  c = ColorA(m_image.GetRed(x, y) / 255.0, m_image.GetGreen(x, y) / 255.0,
             m_image.GetBlue(x, y) / 255.0, 1.0);
  return true;
}

bool BasicwxImageFilter::WritePixelI(int x, int y, ColorA& c, double intensity) {
  if (!Inside(x, y)) return false;
  const double keep = 1 - intensity;
  m_image.SetRGB(x, y, RoundByte(c.r * intensity * 255 + m_image.GetRed(x, y) * keep),
                 RoundByte(c.g * intensity * 255 + m_image.GetGreen(x, y) * keep),
                 RoundByte(c.b * intensity * 255 + m_image.GetBlue(x, y) * keep));
  return true;
}

int BasicwxImageFilter::GetWidth() const {
  return m_image.IsOk() ? m_image.GetWidth() : 0;
}

int BasicwxImageFilter::GetHeight() const {
  return m_image.IsOk() ? m_image.GetHeight() : 0;
}

bool BasicwxImageFilter::Clear() {
  if (!m_image.IsOk()) return false;
  m_image.Clear(0);
  return true;
}

bool BasicwxImageFilter::Create(int width, int height) {
  if (width <= 0 || height <= 0 || width > kMaxBitmapSide || height > kMaxBitmapSide) return false;
  return m_image.Create(width, height, true);
}

// ---- wxBitmapUnDoFilter ----

wxBitmapUnDoFilter::wxBitmapUnDoFilter(Filter& target) : m_undo(target) {
  m_undo.Initialize();
  updatebitmap();
}

wxBitmapUnDoFilter::~wxBitmapUnDoFilter() = default;

bool wxBitmapUnDoFilter::WritePixel(int x, int y, ColorA& c) {
  if (!m_undo.WritePixel(x, y, c)) return false;
  MirrorPixel(x, y);
  return true;
}

bool wxBitmapUnDoFilter::ReadPixel(ColorA& c, int x, int y) const {
  return m_undo.ReadPixel(c, x, y);
}

bool wxBitmapUnDoFilter::WritePixelI(int x, int y, ColorA& c, double intensity) {
  if (!m_undo.WritePixelI(x, y, c, intensity)) return false;
  MirrorPixel(x, y);
  return true;
}

int wxBitmapUnDoFilter::GetWidth() const {
  return m_undo.GetWidth();
}

int wxBitmapUnDoFilter::GetHeight() const {
  return m_undo.GetHeight();
}

bool wxBitmapUnDoFilter::Clear() {
  const bool cleared = m_undo.Clear();
  updatebitmap();
  return cleared;
}

bool wxBitmapUnDoFilter::Create(int width, int height) {
  const bool created = m_undo.Create(width, height);
  updatebitmap();
  return created;
}

bool wxBitmapUnDoFilter::UnDo() {
  const std::vector<UnDoFilter::RECORD>& records = m_undo.GetRecords();
  if (m_bitmap.IsOk() && !records.empty()) {
    wxMemoryDC dc;
    dc.SelectObject(m_bitmap);
    for (auto it = records.rbegin(); it != records.rend(); ++it) {
      dc.SetPen(wxPen(CAtoWxC(it->old), 1, wxPENSTYLE_SOLID));
      dc.DrawPoint(it->x, it->y);
    }
    dc.SelectObject(wxNullBitmap);
  }
  return m_undo.UnDo();
}

void wxBitmapUnDoFilter::Initialize() {
  m_undo.Initialize();
  updatebitmap();
}

void wxBitmapUnDoFilter::updatebitmap() {
  const int width = m_undo.GetWidth();
  const int height = m_undo.GetHeight();
  if (width <= 0 || height <= 0) {
    m_bitmap = wxNullBitmap;
    return;
  }
  wxImage picture(width, height, false);
  unsigned char* px = picture.GetData();
  ColorA c;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x, px += 3) {
      if (!m_undo.ReadPixel(c, x, y)) c = ColorA(0, 0, 0, 1);
      const wxColour wc = CAtoWxC(c);
      px[0] = wc.Red();
      px[1] = wc.Green();
      px[2] = wc.Blue();
    }
  }
  m_bitmap = wxBitmap(picture);
}

void wxBitmapUnDoFilter::MirrorPixel(int x, int y) {
  ColorA now;
  if (!m_bitmap.IsOk() || !m_undo.ReadPixel(now, x, y)) return;
  wxMemoryDC dc;
  dc.SelectObject(m_bitmap);
  dc.SetPen(wxPen(CAtoWxC(now), 1, wxPENSTYLE_SOLID));
  dc.DrawPoint(x, y);
  dc.SelectObject(wxNullBitmap);
}
