#include <wx/dc.h>

#include <algorithm>
#include <cmath>
#include <memory>

#include "vorn/GraphicsFunctions.h"
#include "vorn/VornAngleControl.h"
#include "vorn/VornValueNotify.h"
#include "vornhost/Filter.h"

namespace {
// The callipers' arithmetic uses this decimal value of pi.
constexpr double kClipperPi = 3.1415926535;
// A value of 1 opens the jaws a quarter turn.
constexpr double kOpening = 0.25;
constexpr int kScaleTicks = 8;
constexpr int kRulerTicks = 10;
constexpr double kOpeningTint = 0.2;

wxPoint JawPoint(const wxPoint& pivot, int radius, double value) {
  const double a = value * kOpening * 2.0 * kClipperPi;
  return wxPoint(pivot.x + static_cast<int>(radius * std::cos(a)),
                 pivot.y - static_cast<int>(radius * std::sin(a)));
}

// A line three pixels wide (vertical or horizontal offsets, whichever is
// across the line).
void ThickLine(Filter& f, const wxPoint& a, const wxPoint& b, const ColorA& c) {
  const bool steep = std::abs(b.y - a.y) > std::abs(b.x - a.x);
  for (int d = -1; d <= 1; ++d) {
    const int dx = steep ? d : 0, dy = steep ? 0 : d;
    DrawLine(AntiAlias(f), a.x + dx, a.y + dy, b.x + dx, b.y + dy, c);
  }
}
}  // namespace

VornAngleClippers::VornAngleClippers(const ColorA& frame, const ColorA& scale, const ColorA& marker,
                                     int span, int x, int y, int w, int h, wxWindow* parent, int id,
                                     VornControlGroupValue* group, long style) {
  VornAngleClippers::Create(frame, scale, marker, span, x, y, w, h, parent, id, group, style);
}

bool VornAngleClippers::Create(const ColorA& frame, const ColorA& scale, const ColorA& marker,
                               int span, int x, int y, int w, int h, wxWindow* parent, int id,
                               VornControlGroupValue* group, long style) {
  const bool created = VornControl::Create(x, y, w, h, parent, id, group, style);
  m_pGroup = group;
  m_frame = frame;
  m_scale = scale;
  m_marker = marker;
  m_value = 0.0;
  m_length = std::max(0, span) * 10;
  m_step = 10;
  const int half = static_cast<int>(h * 0.5);
  m_pivot = wxPoint(w - half - 5, half);
  m_innerRadius = half - 5;
  m_outerRadius = half;
  m_drawnValue = -1000.0;  // the first drawing builds the picture
  SetValue(0.0, false);
  return created;
}

void VornAngleClippers::SetValue(double value, bool notify) {
  value = VornValueNotify::Clamp(value);
  m_value = value;
  m_innerJaw = JawPoint(m_pivot, m_innerRadius, value);
  m_outerJaw = JawPoint(m_pivot, m_outerRadius, value);
  const int position = static_cast<int>(m_length * value);
  const bool changed = position != m_position;
  m_position = position;
  Refresh(false);
  if (changed && notify) VornValueNotify::Dragged(*this, m_pGroup, value);
}

void VornAngleClippers::SetValue(int p) {
  int delta = p - m_lastP;
  if (!GetMetaKey()) delta *= m_step;
  m_lastP = p;
  const int position = std::min(std::max(m_position + delta, 0), m_length);
  if (position == m_position) return;
  const double value = m_length > 0 ? static_cast<double>(position) / m_length : 0.0;
  SetValue(value, false);
  m_position = position;  // exact, whatever the division rounded to
  VornValueNotify::Dragged(*this, m_pGroup, value);
}

int VornAngleClippers::PointerCoordinate(int x, int y) const {
  return (GetWindowStyleFlag() & wxVERTICAL) ? y : x;
}

void VornAngleClippers::OnMouseButton() {
  VornControl::OnMouseButton();
  if (GetMouseDownLeft()) {
    CaptureMouse();
    int x, y;
    GetLastDownPos(x, y);
    m_lastP = PointerCoordinate(x, y);
    VornValueNotify::Pressed(*this, m_pGroup);
  } else if (IsMouseCaptive()) {
    ReleaseMouse();
    VornValueNotify::Released(*this, m_pGroup, m_value);
  }
}

void VornAngleClippers::OnMouseMove(int x, int y) {
  if (!GetMouseDownLeft()) return;
  SetValue(PointerCoordinate(x, y));
  Refresh(false);
}

void VornAngleClippers::DrawPicture() {
  if (!::Create(m_picture, std::max(1, GetWidth()), std::max(1, GetHeight()))) return;
  ClearBitmap(m_picture, WxCtoCA(GetBgColour()));
  std::unique_ptr<Filter> f = CreateFilter(m_picture);
  // The scale: ticks across the quarter the jaw sweeps.
  for (int i = 0; i <= kScaleTicks; ++i) {
    const double v = static_cast<double>(i) / kScaleTicks;
    const int inset = i % 4 == 0 ? 7 : 4;
    const wxPoint a = JawPoint(m_pivot, m_innerRadius - inset, v);
    const wxPoint b = JawPoint(m_pivot, m_innerRadius - 1, v);
    DrawLine(AntiAlias(*f), a.x, a.y, b.x, b.y, m_scale);
  }
  // The ruler of the travel, left of the jaws, with the travel marker.
  const int rulerEnd = m_pivot.x - m_outerRadius - 10, rulerY = GetHeight() - 8;
  if (rulerEnd > 16) {
    DrawLine(*f, 6, rulerY, rulerEnd, rulerY, m_scale);
    for (int i = 0; i <= kRulerTicks; ++i) {
      const int x = 6 + (rulerEnd - 6) * i / kRulerTicks;
      DrawLine(*f, x, rulerY - (i % 5 == 0 ? 6 : 3), x, rulerY, m_scale);
    }
    const int mx = 6 + static_cast<int>((rulerEnd - 6) * m_value);
    DrawCircle(AntiAlias(*f), mx, rulerY + 3, 3, m_marker, true);
  }
  // The opening between the jaws, lightly tinted.
  const double opening = m_value * kOpening * 2.0 * kClipperPi;
  ColorA tint = m_marker;
  for (int y = m_pivot.y - m_outerRadius; y <= m_pivot.y; ++y)
    for (int x = m_pivot.x; x <= m_pivot.x + m_outerRadius; ++x) {
      const double dx = x - m_pivot.x, dy = m_pivot.y - y;
      if (std::hypot(dx, dy) < m_outerRadius && std::atan2(dy, dx) < opening)
        f->WritePixelI(x, y, tint, kOpeningTint);
    }
  // The fixed jaw along the zero direction, the moving jaw at the value.
  ThickLine(*f, m_pivot, JawPoint(m_pivot, m_outerRadius, 0.0), m_frame);
  ThickLine(*f, m_pivot, m_outerJaw, m_frame);
  ThickLine(*f, m_innerJaw, m_outerJaw, m_marker);
  DrawCircle(AntiAlias(*f), m_pivot.x, m_pivot.y, 4, m_frame, true);
  DrawCircle(AntiAlias(*f), m_pivot.x, m_pivot.y, 1, m_marker, true);
  m_drawnValue = m_value;
}

void VornAngleClippers::OnDraw(wxDC* dc) {
  if (!IsShown()) return;
  if (m_drawnValue != m_value || m_picture.width != GetWidth()) DrawPicture();
  wxBitmap bitmap;
  if (ConvertTo(bitmap, m_picture)) dc->DrawBitmap(bitmap, 0, 0, false);
}
