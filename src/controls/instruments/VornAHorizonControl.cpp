#include <wx/dc.h>

#include <algorithm>
#include <cmath>

#include "vorn/GraphicsFunctions.h"
#include "vorn/VornAngleControl.h"
#include "vorn/VornValueNotify.h"

namespace {
// The horizon's arithmetic uses these decimal values of pi and 2 pi.
constexpr double kHorizonPi = 3.1415926535;
constexpr double kHorizonTwoPi = 6.283185307;
// A handle is grabbed by a press strictly within this many pixels on both axes.
constexpr int kGrabReach = 5;

bool Near(const wxPoint& handle, int x, int y) {
  return handle.x - kGrabReach < x && x < handle.x + kGrabReach && handle.y - kGrabReach < y &&
         y < handle.y + kGrabReach;
}
}  // namespace

VornAHorizonControl::VornAHorizonControl(const BitmapA* ball, int cx, int cy, int radius, int x,
                                         int y, int w, int h, wxWindow* parent, int id,
                                         VornControlGroupValue* group, long style) {
  VornAHorizonControl::Create(ball, cx, cy, radius, x, y, w, h, parent, id, group, style);
}

bool VornAHorizonControl::Create(const BitmapA* ball, int cx, int cy, int radius, int x, int y,
                                 int w, int h, wxWindow* parent, int id,
                                 VornControlGroupValue* group, long style) {
  const bool created = VornControl::Create(x, y, w, h, parent, id, group, style);
  m_pGroup = group;
  m_pBall = ball;
  m_centreX = cx;
  m_centreY = cy;
  m_radius = radius;
  m_roll = 0.0f;
  m_pitch = 0.5f;
  PlaceRoll();
  SetCValue(m_pitch);
  return created;
}

void VornAHorizonControl::PlaceRoll() {
  const double a = kHorizonTwoPi * m_roll;
  const int dx = static_cast<int>(m_radius * std::cos(a));
  const int dy = static_cast<int>(m_radius * std::sin(a));
  m_a = wxPoint(m_centreX + dx, m_centreY - dy);
  m_b = wxPoint(m_centreX - dx, m_centreY + dy);
}

void VornAHorizonControl::SetValue(float roll) {
  if (roll == m_roll) return;
  m_roll = roll;
  PlaceRoll();
  SetCValue(m_pitch);
  Refresh(false);
}

void VornAHorizonControl::SetCValue(float pitch) {
  m_pitch = pitch;
  m_end1 = wxPoint(m_centreX + (m_centreY - m_a.y), m_centreY + (m_a.x - m_centreX));
  m_end2 = wxPoint(m_centreX - (m_centreY - m_a.y), m_centreY - (m_a.x - m_centreX));
  m_c = wxPoint(static_cast<int>(m_end2.x + pitch * (m_end1.x - m_end2.x)),
                static_cast<int>(m_end2.y + pitch * (m_end1.y - m_end2.y)));
}

void VornAHorizonControl::SetPitchValue(float pitch) {
  if (pitch == m_pitch) return;
  SetCValue(pitch);
  Refresh(false);
}

void VornAHorizonControl::RollFromPointer(int x, int y, bool pointerIsA) {
  const double dx = x - m_centreX, dy = m_centreY - y;
  const double length = std::hypot(dx, dy);
  if (length == 0.0) return;  // the centre has no direction
  const double ux = dx / length, uy = dy / length;
  const double angle = (std::atan2(-uy, -ux) + kHorizonPi) / kHorizonTwoPi;
  const wxPoint toward(static_cast<int>(m_centreX + m_radius * ux),
                       static_cast<int>(m_centreY - m_radius * uy));
  const wxPoint away(static_cast<int>(m_centreX - m_radius * ux),
                     static_cast<int>(m_centreY + m_radius * uy));
  if (pointerIsA) {
    m_roll = static_cast<float>(angle);
    m_a = toward;
    m_b = away;
  } else {
    m_roll = GetZeroToOne(static_cast<float>(angle + 0.5));
    m_b = toward;
    m_a = away;
  }
  SetCValue(m_pitch);
}

void VornAHorizonControl::SetAValue(int x, int y) {
  RollFromPointer(x, y, true);
}

void VornAHorizonControl::SetBValue(int x, int y) {
  RollFromPointer(x, y, false);
}

void VornAHorizonControl::SetCValue(int x, int y) {
  const int dx = x - m_grab.x, dy = y - m_grab.y;
  double pitch = m_pitch;
  if (m_end1.x == m_end2.x) {
    m_c = wxPoint(m_centreX, y);
    if (m_end1.y != m_end2.y) pitch = static_cast<double>(m_c.y - m_end2.y) / (m_end1.y - m_end2.y);
  } else {
    const double m = static_cast<double>(m_end1.y - m_end2.y) / (m_end1.x - m_end2.x);
    const double limit = m_radius / 2.0;
    if (-limit < m && m < limit) {
      m_c.x += dx;
      m_c.y = static_cast<int>(m * (m_c.x - m_end2.x) + m_end2.y);
      pitch = static_cast<double>(m_c.x - m_end2.x) / (m_end1.x - m_end2.x);
    } else {
      m_c.y += dy;
      m_c.x = static_cast<int>((m_c.y - m_end2.y) / m + m_end2.x);
      pitch = static_cast<double>(m_c.y - m_end2.y) / (m_end1.y - m_end2.y);
    }
  }
  m_grab = wxPoint(x, y);
  m_c.x = std::clamp(m_c.x, std::min(m_end1.x, m_end2.x), std::max(m_end1.x, m_end2.x));
  m_c.y = std::clamp(m_c.y, std::min(m_end1.y, m_end2.y), std::max(m_end1.y, m_end2.y));
  m_pitch = static_cast<float>(VornValueNotify::Clamp(pitch));
}

void VornAHorizonControl::GetCurPosition(int& x, int& y) const {
  x = m_a.x;
  y = m_a.y;
}

void VornAHorizonControl::OnMouseButton() {
  VornControl::OnMouseButton();
  if (GetMouseDownLeft()) {
    int x, y;
    GetLastDownPos(x, y);
    m_bGrabA = Near(m_a, x, y);
    m_bGrabB = Near(m_b, x, y);
    m_bGrabC = Near(m_c, x, y);
    if (m_bGrabC) m_grab = wxPoint(x, y);
    if (m_bGrabA || m_bGrabB || m_bGrabC) {
      CaptureMouse();
      m_bDragging = true;
    }
  } else {
    m_bGrabA = m_bGrabB = m_bGrabC = false;
    m_bDragging = false;
    ReleaseMouse();
  }
}

void VornAHorizonControl::OnMouseMove(int x, int y) {
  if (!GetMouseDownLeft() || !m_bDragging) return;
  if (m_bGrabA) SetAValue(x, y);
  if (m_bGrabB) SetBValue(x, y);
  if (m_bGrabC) SetCValue(x, y);
  Refresh(false);
  if (m_pGroup) m_pGroup->ControlDrag(GetId(), this);
}
