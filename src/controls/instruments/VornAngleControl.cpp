#include "vorn/VornAngleControl.h"

#include <wx/dcclient.h>

#include <cmath>

#include "vorn/VornValueNotify.h"

namespace {
constexpr double kPi = 3.14159265358979323846;
constexpr double kTwoPi = 2.0 * kPi;
// The knob's colour, a wxWidgets colour name.
constexpr const char* kKnobColour = "BLUE";
constexpr int kKnobSize = 10;
}  // namespace

float GetZeroToOne(float v) {
  const float rest = std::fmod(v, 1.0f);
  return v >= 0.0f ? rest : 1.0f - std::fabs(rest);
}

wxPoint VornPointOnCircle(int cx, int cy, int radius, double turn) {
  const double a = kTwoPi * turn;
  return wxPoint(cx + static_cast<int>(radius * std::cos(a)),
                 cy - static_cast<int>(radius * std::sin(a)));
}

VornAngleControl::VornAngleControl(int cx, int cy, int radius, int x, int y, int w, int h,
                                   wxWindow* parent, int id, VornControlGroupValue* group,
                                   long style) {
  VornAngleControl::Create(cx, cy, radius, x, y, w, h, parent, id, group, style);
}

bool VornAngleControl::Create(int cx, int cy, int radius, int x, int y, int w, int h,
                              wxWindow* parent, int id, VornControlGroupValue* group, long style) {
  const bool created = VornControl::Create(x, y, w, h, parent, id, group, style);
  m_pGroup = group;
  m_centreX = cx;
  m_centreY = cy;
  m_radius = radius;
  SetValue(0.0f, false);
  return created;
}

void VornAngleControl::SetValue(float value, bool notify) {
  float turn = static_cast<float>(value + m_zero / 360.0);
  if (turn > 1.0f) turn -= 1.0f;
  m_turn = turn;
  PlaceKnob();
  if (notify) VornValueNotify::Dragged(*this, m_pGroup, GetValue());
  Refresh(false);
}

void VornAngleControl::SetValue(int x, int y) {
  const double dx = x - m_centreX, dy = m_centreY - y;
  const double length = std::hypot(dx, dy);
  if (length == 0.0) return;  // the centre has no direction
  const double ux = dx / length, uy = dy / length;
  const double raw = (std::atan2(-uy, -ux) + kPi) / kTwoPi;
  if (GetMetaKey()) {
    // Keep anchor and pointer on the same side of the seam, so that the
    // knob moves continuously through 0.
    if (m_fineAnchor > 0.75 && raw < 0.25) m_fineAnchor -= 1.0;
    if (m_fineAnchor < 0.25 && raw > 0.75) m_fineAnchor += 1.0;
    const double turn = m_turn - (m_fineAnchor - raw) * VornValueNotify::kFineFactor;
    m_turn = GetZeroToOne(static_cast<float>(turn));
    m_fineAnchor = raw;
    PlaceKnob();
  } else {
    m_turn = static_cast<float>(raw);
    m_knobX = static_cast<int>(m_centreX + m_radius * ux);
    m_knobY = static_cast<int>(m_centreY - m_radius * uy);
  }
  VornValueNotify::Dragged(*this, m_pGroup, GetValue());
}

float VornAngleControl::GetValue() const {
  float value = static_cast<float>(m_turn - m_zero / 360.0);
  if (value < 0.0f) value += 1.0f;
  return value;
}

void VornAngleControl::SetZeroVal(double degrees) {
  m_zero = degrees;
  SetValue(0.0f, false);
}

void VornAngleControl::GetCurPosition(int& x, int& y) const {
  x = m_knobX;
  y = m_knobY;
}

void VornAngleControl::GetCentre(int& x, int& y) const {
  x = m_centreX;
  y = m_centreY;
}

void VornAngleControl::PlaceKnob() {
  const wxPoint knob = VornPointOnCircle(m_centreX, m_centreY, m_radius, m_turn);
  m_knobX = knob.x;
  m_knobY = knob.y;
}

void VornAngleControl::OnMouseButton() {
  VornControl::OnMouseButton();
  if (GetMouseDownLeft())
    BeginDrag();
  else if (IsMouseCaptive())
    EndDrag();
}

void VornAngleControl::BeginDrag() {
  CaptureMouse();
  VornValueNotify::Pressed(*this, m_pGroup);
  m_fineAnchor = m_turn;
}

void VornAngleControl::EndDrag() {
  ReleaseMouse();
  VornValueNotify::Released(*this, m_pGroup, GetValue());
}

void VornAngleControl::OnMouseMove(int x, int y) {
  if (!GetMouseDownLeft()) return;
  SetValue(x, y);
  RedrawNow();
}

void VornAngleControl::RedrawNow() {
  if (!IsShownOnScreen()) return;
  wxClientDC dc(this);
  OnDraw(&dc);
}

void VornAngleControl::OnDraw(wxDC* dc) {
  if (!IsShown()) return;
  VornWindow::OnDraw(dc);
  const wxColour knob(kKnobColour);
  dc->SetBrush(wxBrush(knob));
  dc->SetPen(wxPen(knob, 1, wxPENSTYLE_TRANSPARENT));
  dc->DrawEllipse(m_knobX - kKnobSize / 2, m_knobY - kKnobSize / 2, kKnobSize, kKnobSize);
}
