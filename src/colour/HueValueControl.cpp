#include <wx/dc.h>

#include <algorithm>
#include <cmath>

#include "ColourDrawing.h"
#include "ColourTexts.h"
#include "vorn/ColourPicker.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/VornAssert.h"

namespace {

// The frame around the field: 6 pixels left, right and above, the outline
// below. The tables cover the client size less these.
constexpr int kTableWidthLoss = 12;
constexpr int kTableHeightLoss = 7;
// Hue and value margins inside the field, where the tables stay at their
// ends, and the grey strip's height.
constexpr int kClampColumns = 5;
constexpr int kStripRows = 20;

// The marker's column for a hue and row for a value, span being the field's
// hue or value travel in pixels (W - 22, H - 36).
int ColumnOf(int span, double h) {
  return static_cast<int>(span * h + 11);
}
int RowOf(int span, double v) {
  return static_cast<int>(span * (1.0 - v) + 11);
}

unsigned char Byte(double c) {
  return static_cast<unsigned char>(std::clamp(static_cast<int>(c * 255.0), 0, 255));
}

}  // namespace

HueValueControl::HueValueControl(int x, int y, int w, int h, wxWindow* parent, int id,
                                 VornControlGroup* group)
    : ColourPickerComp(x, y, w, h, parent, id, group) {
  EnsureTables();
}

void HueValueControl::SetHueValue(double h, double v) {
  h = std::clamp(h, 0.0, 1.0);
  v = std::clamp(v, 0.0, 1.0);
  if (h == m_hue && v == m_value) return;
  StoreHSV(h, m_saturation, v);
  OnColourChanged();
}

void HueValueControl::GetHueValue(double& h, double& v) const {
  h = m_hue;
  v = m_value;
}

void HueValueControl::Recalc(int width, int height) {
  VORN_ASSERT_TEXT(width >= 0, ColourTexts::kWidthNotNegative);
  VORN_ASSERT_TEXT(height >= 0, ColourTexts::kHeightNotNegative);
  width = std::max(width, 2);
  height = std::max(height, 2);
  ::Create(m_field, width, height);
  m_hues.assign(width, 0.0);
  m_values.assign(height, 0.0);
  // Every entry is nudged by at most a few ulps so that the marker's
  // position of an entry is the pixel the entry came from.
  const int hueSpan = std::max(1, width - 2 * kClampColumns);
  for (int i = 0; i < width; ++i) {
    double h = i <= kClampColumns - 1      ? 0.0
               : i > width - kClampColumns ? 1.0
                                           : static_cast<double>(i - kClampColumns) / hueSpan;
    while (h < 1.0 && ColumnOf(hueSpan, h) < i + kFieldLeft) h = std::nextafter(h, 2.0);
    m_hues[i] = h;
  }
  // Value falls from 1 to 0 over the rows the marker can reach; the few rows
  // between those and the strip stay at 0, keeping the table monotonic.
  const int valueSpan = std::max(1, height + kTableHeightLoss - 36);
  for (int j = 0; j < height; ++j) {
    double v;
    if (j >= height - kStripRows)
      v = -1.0;
    else if (j <= kClampColumns - 1)
      v = 1.0;
    else
      v = std::max(0.0, 1.0 - static_cast<double>(j - kClampColumns) / valueSpan);
    while (v > 0.0 && RowOf(valueSpan, v) < j + kFieldTop) v = std::nextafter(v, -1.0);
    m_values[j] = v;
  }
  PaintField();
}

void HueValueControl::Clear() {
  m_hues.clear();
  m_values.clear();
  ::Clear(m_field);
  m_fieldPicture = wxBitmap();
  m_fieldSaturation = -1.0;
}

void HueValueControl::EnsureTables() {
  const wxSize size = GetClientSize();
  const int width = std::max(0, size.x - kTableWidthLoss);
  const int height = std::max(0, size.y - kTableHeightLoss);
  if (static_cast<int>(m_hues.size()) != std::max(width, 2) ||
      static_cast<int>(m_values.size()) != std::max(height, 2))
    Recalc(width, height);
}

void HueValueControl::PaintField() {
  if (m_field.IsEmpty()) return;
  const int width = m_field.width;
  // Every channel of an HSV colour is the value times the channel at value
  // 1, so one conversion per column gives the same bytes as one per pixel.
  std::vector<Color> atFull(width);
  for (int i = 0; i < width; ++i) atFull[i].HSVtoRGB(m_hues[i], m_saturation, 1.0);
  for (int j = 0; j < m_field.height; ++j) {
    unsigned char* p = m_field.Pixel(0, j);
    const double v = m_values[j];
    for (int i = 0; i < width; ++i, p += 3) {
      if (v < 0.0) {
        p[0] = p[1] = p[2] = Byte(m_hues[i]);
      } else {
        p[0] = Byte(v * atFull[i].r);
        p[1] = Byte(v * atFull[i].g);
        p[2] = Byte(v * atFull[i].b);
      }
    }
  }
  m_fieldSaturation = m_saturation;
  m_fieldPicture = wxBitmap();  // converted again when drawn
}

bool HueValueControl::GetColourPixelPos(double h, double v, int& x, int& y) const {
  if (!(h >= 0.0 && h <= 1.0 && v >= 0.0 && v <= 1.0)) return false;
  const wxSize size = GetClientSize();
  x = ColumnOf(size.x - 22, h);
  y = RowOf(size.y - 36, v);
  return true;
}

bool HueValueControl::GetGreyPixelPos(double v, int& x, int& y) const {
  if (!(v >= 0.0 && v <= 1.0)) return false;
  const wxSize size = GetClientSize();
  x = ColumnOf(size.x - 22, v);
  y = size.y - 11;
  return true;
}

void HueValueControl::SetColourFromPos(int x, int y) {
  const wxSize size = GetClientSize();
  if (!(x > 5 && x <= size.x - 7 && y > 5 && y <= size.y - 2)) return;
  EnsureTables();
  const std::size_t column = static_cast<std::size_t>(x - kFieldLeft);
  const std::size_t row = static_cast<std::size_t>(y - kFieldTop);
  VORN_ASSERT_TEXT(column < m_hues.size(), ColourTexts::kColumnInRange);
  VORN_ASSERT_TEXT(row < m_values.size(), ColourTexts::kRowInRange);
  if (column >= m_hues.size() || row >= m_values.size()) return;
  if (m_values[row] < 0.0)
    StoreHSV(m_hue, 0.0, m_hues[column]);  // a grey keeps the hue
  else
    StoreHSV(m_hues[column], m_saturation, m_values[row]);
  OnColourChanged();
  SendCurrentHSV();
}

void HueValueControl::OnMouseDownLeft() {
  if (GetMouseDownLeft()) {
    CaptureMouse();
    if (m_pControlGroup) m_pControlGroup->ControlSelected(GetId(), this);
    SetColourFromPos(m_lastDownX, m_lastDownY);
  } else {
    ReleaseMouse();
    if (m_pControlGroup) m_pControlGroup->ControlUnSelected(GetId(), this);
  }
}

void HueValueControl::OnMouseMove(int x, int y) {
  if (GetMouseDownLeft()) SetColourFromPos(x, y);
}

void HueValueControl::OnDraw(wxDC* dc) {
  VORN_ASSERT(dc != nullptr);
  if (!dc) return;
  EnsureTables();
  if (m_fieldSaturation != m_saturation) PaintField();
  if (!m_fieldPicture.IsOk()) ConvertTo(m_fieldPicture, m_field);
  const wxSize size = GetClientSize();
  ColourDrawing::Fill(*dc, wxRect(wxPoint(0, 0), size), m_look.frame);
  const wxRect field(kFieldLeft, kFieldTop, m_field.width, m_field.height);
  ColourDrawing::Outline(*dc, field.Inflate(1, 1), m_look.edge);
  dc->DrawBitmap(m_fieldPicture, field.GetTopLeft());
  dc->SetClippingRegion(field);
  DrawMarker(*dc);
  dc->DestroyClippingRegion();
  ClearDirty();
}

void HueValueControl::DrawMarker(wxDC& dc) const {
  int x = 0, y = 0;
  const bool placed =
      m_saturation > 0.0 ? GetColourPixelPos(m_hue, m_value, x, y) : GetGreyPixelPos(m_value, x, y);
  if (placed) ColourDrawing::Marker(dc, wxPoint(x, y), m_look.marker, m_look.markerShadow);
}
