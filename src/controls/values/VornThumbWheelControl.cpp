// The thumb wheel: a strip picture turning under the pointer, a value that
// moves by a step proportional to itself.
#include "vorn/VornThumbWheelControl.h"

#include <wx/dcclient.h>
#include <wx/dcmemory.h>
#include <wx/image.h>

#include <cmath>
#include <memory>

#include "vorn/VornValueNotify.h"
#include "vornhost/Filter.h"

namespace {
// Below this magnitude a released value is 0, and from 0 a drag starts with
// this step.
constexpr double kTiny = 1e-6;
// A drag moves the value by 1/kStepDivisor of itself per pixel.
constexpr double kStepDivisor = 350.0;
}  // namespace

// clang-format off
wxBEGIN_EVENT_TABLE(VornThumbWheelControl, VornControl)
  EVT_MOUSEWHEEL(VornThumbWheelControl::OnWheel)
wxEND_EVENT_TABLE()
    // clang-format on

    VornThumbWheelControl::VornThumbWheelControl(const BitmapA* frame, const BitmapA* strip,
                                                 const BitmapA* window, int x, int y, bool vertical,
                                                 int period, wxWindow* parent, int id,
                                                 VornControlGroupValue* group, long style) {
  VornThumbWheelControl::Create(frame, strip, window, x, y, vertical, period, parent, id, group,
                                style);
}

bool VornThumbWheelControl::Create(const BitmapA* frame, const BitmapA* strip,
                                   const BitmapA* window, int x, int y, bool vertical, int period,
                                   wxWindow* parent, int id, VornControlGroupValue* group,
                                   long style) {
  const int w = frame && !frame->IsEmpty() ? frame->width : 10;
  const int h = frame && !frame->IsEmpty() ? frame->height : 10;
  if (!VornControl::Create(x, y, w, h, parent, id, group, style)) return false;
  m_pFrame = frame;
  m_pStrip = strip;
  m_pWindow = window;
  m_bVertical = vertical;
  m_scale = 10;
  m_period = period * m_scale;
  m_rotation = 0;
  m_pGroup = group;
  return true;
}

VornControlGroupValue* VornThumbWheelControl::GetGroup() {
  return VornControl::GetGroup() ? m_pGroup : nullptr;
}

// ---- turning ------------------------------------------------------------------

void VornThumbWheelControl::TakeStep() {
  m_step = m_value == 0.0f ? kTiny : std::fabs(m_value / kStepDivisor);
  // Dragging right turns a horizontal wheel up.
  if (!m_bVertical) m_step *= -1.0;
}

void VornThumbWheelControl::SetValue(int p) {
  const bool fine = GetMetaKey();
  const int delta = p - m_lastPosition;
  m_rotation -= delta * static_cast<int>(std::lround(m_scale * VornValueNotify::DragFactor(fine)));
  m_lastPosition = p;
  if (m_period > 0) {
    while (m_rotation > m_period) m_rotation -= m_period;
    while (m_rotation < 0) m_rotation += m_period;
  }
  double value = m_value - delta * m_step * VornValueNotify::DragFactor(fine);
  if (value > m_maximum) value = m_maximum;
  if (value <= m_minimum) value = m_minimum;
  m_value = static_cast<float>(value);
  VornValueNotify::Dragged(*this, GetGroup(), m_value);
}

void VornThumbWheelControl::OnMouseButton() {
  if (GetMouseDown() && !m_bTurning)
    Press();
  else if (!GetMouseDown() && m_bTurning)
    Release();
}

void VornThumbWheelControl::Press() {
  m_bTurning = true;
  CaptureMouse();
  int x, y;
  GetLastMousePos(x, y);
  m_lastPosition = m_bVertical ? y : x;
  VornValueNotify::Pressed(*this, GetGroup());
  TakeStep();
}

void VornThumbWheelControl::Release() {
  m_bTurning = false;
  if (std::fabs(m_value) < kTiny) m_value = 0.0f;
  ReleaseMouse();
  VornValueNotify::Released(*this, GetGroup(), m_value);
}

void VornThumbWheelControl::OnEnable(bool enabled) {
  if (!enabled && m_bTurning) Release();
}

void VornThumbWheelControl::OnMouseMove(int x, int y) {
  if (!m_bTurning) return;
  SetValue(m_bVertical ? y : x);
  Redraw();
}

// Each notch is a whole gesture (press, one pixel of drag, release), so
// receivers that act on the release see every notch.
void VornThumbWheelControl::OnWheel(wxMouseEvent& event) {
  if (!GetEnabled() || m_bTurning || event.GetWheelDelta() == 0) return;
  m_bMetaA = event.AltDown();
  m_bMetaB = event.ShiftDown();
  const int notches = event.GetWheelRotation() / event.GetWheelDelta();
  // Wheel up raises the value: right on a horizontal wheel, up on a vertical.
  const int pixel = m_bVertical ? -1 : 1;
  for (int i = 0; i < std::abs(notches); ++i) {
    VornValueNotify::Pressed(*this, GetGroup());
    TakeStep();
    m_lastPosition = 0;
    SetValue(notches > 0 ? pixel : -pixel);
    if (std::fabs(m_value) < kTiny) m_value = 0.0f;
    VornValueNotify::Released(*this, GetGroup(), m_value);
  }
  Redraw();
}

// ---- drawing ------------------------------------------------------------------

void VornThumbWheelControl::Redraw() {
  if (!IsShownOnScreen()) {
    Refresh(false);
    return;
  }
  wxClientDC dc(this);
  OnDraw(&dc);
}

void VornThumbWheelControl::OnDraw(wxDC* dc) {
  if (m_bDirty) RecalcState();
  if (!m_pFrame || m_pFrame->IsEmpty()) {
    VornWindow::OnDraw(dc);
    return;
  }
  const int w = m_pFrame->width, h = m_pFrame->height;
  wxImage image(w, h);
  std::unique_ptr<Filter> out = CreateFilter(image);
  if (m_pStrip && m_pWindow && !m_pStrip->IsEmpty() && !m_pWindow->IsEmpty()) {
    BitmapA& strip = const_cast<BitmapA&>(*m_pStrip);  // read only, through the filter
    BitmapA& window = const_cast<BitmapA&>(*m_pWindow);
    std::unique_ptr<Filter> stripFilter = CreateFilter(strip);
    std::unique_ptr<Filter> windowFilter = CreateFilter(window);
    const int offset = m_rotation / m_scale;
    const int ww = window.width, wh = window.height;
    CropFilter shown = m_bVertical ? Crop(*stripFilter, 0, offset, ww, offset + wh)
                                   : Crop(*stripFilter, offset, 0, offset + ww, wh);
    Blit(*out, shown, *windowFilter, 0, 0);
  }
  BitmapA& frame = const_cast<BitmapA&>(*m_pFrame);
  std::unique_ptr<Filter> frameFilter = CreateFilter(frame);
  Blit(*out, *frameFilter, 0, 0);
  out.reset();
  m_backBuffer = wxBitmap(image);
  wxMemoryDC source(m_backBuffer);
  dc->Blit(0, 0, w, h, &source, 0, 0, wxCOPY);
}
