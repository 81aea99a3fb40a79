#include <wx/dc.h>

#include <algorithm>

#include "vorn/GraphicsFunctions.h"
#include "vorn/VornAngleControl.h"

VornCompassControl::VornCompassControl(const BitmapA* strip, const BitmapA* frame,
                                       const BitmapA* marker, int x, int y, int w, int h,
                                       wxWindow* parent, int id, VornControlGroup* group,
                                       long style) {
  VornCompassControl::Create(strip, frame, marker, x, y, w, h, parent, id, group, style);
}

bool VornCompassControl::Create(const BitmapA* strip, const BitmapA* frame, const BitmapA* marker,
                                int x, int y, int w, int h, wxWindow* parent, int id,
                                VornControlGroup* group, long style) {
  m_pImages[0] = strip;
  m_pImages[1] = frame;
  m_pImages[2] = marker;
  return VornControl::Create(x, y, w, h, parent, id, group, style);
}

void VornCompassControl::WrapAndRecompute() {
  if (m_offset > m_period)
    m_offset -= m_period;
  else if (m_offset < 0)
    m_offset += m_period;
  // A fast drag can move more than a whole period in one event.
  if (m_offset > m_period || m_offset < 0) m_offset = ((m_offset % m_period) + m_period) % m_period;
  m_value = static_cast<float>(m_offset - m_offsetBase) / m_period;
}

void VornCompassControl::Moved() {
  WrapAndRecompute();
  if (VornControlGroup* group = VornControl::GetGroup()) group->ControlSelected(GetId(), this);
}

void VornCompassControl::MoveLeft() {
  m_offset += m_step;
  Moved();
  Refresh(false);
}

void VornCompassControl::MoveRight() {
  m_offset -= m_step;
  Moved();
  Refresh(false);
}

void VornCompassControl::SetValue(int x, int) {
  int delta = x - m_lastX;
  if (!GetMetaKey()) delta *= m_step;
  m_lastX = x;
  m_offset -= delta;
  Moved();
}

void VornCompassControl::SetValue(float value) {
  m_value = value;
  m_offset = static_cast<int>(value * m_period + m_offsetBase);
  WrapAndRecompute();
  Refresh(false);
}

void VornCompassControl::OnMouseButton() {
  VornControl::OnMouseButton();
  if (GetMouseDownLeft()) {
    CaptureMouse();
    int x, y;
    GetLastDownPos(x, y);
    m_lastX = x;
  } else {
    ReleaseMouse();
  }
}

void VornCompassControl::OnMouseMove(int x, int y) {
  if (!GetMouseDownLeft()) return;
  SetValue(x, y);
  Refresh(false);
}

// The strip is cut so that the heading of the value lies under the middle
// of the control, joined across the period's end; frame and marker go over
// it, centred.
void VornCompassControl::Compose() {
  const int w = std::max(1, GetWidth()), h = std::max(1, GetHeight());
  BitmapA canvas;
  if (!::Create(canvas, w, h)) return;
  ClearBitmap(canvas, WxCtoCA(GetBgColour()));
  const BitmapA* strip = m_pImages[0];
  if (strip && !strip->IsEmpty()) {
    const int period = std::min(m_period, strip->width);
    int from = ((m_offset - w / 2) % period + period) % period;
    const int top = (h - strip->height) / 2;
    for (int x = 0; x < w;) {
      BitmapA piece;
      const int take = std::min(w - x, period - from);
      if (!Crop(piece, *strip, from, 0, take, strip->height)) break;
      Blit(canvas, piece, x, top);
      x += take;
      from = 0;
    }
  }
  for (int i = 1; i < 3; ++i)
    if (m_pImages[i] && !m_pImages[i]->IsEmpty())
      Blit(canvas, *m_pImages[i], (w - m_pImages[i]->width) / 2, (h - m_pImages[i]->height) / 2);
  ConvertTo(m_drawing, canvas);
  m_lastDrawn = m_value;
}

void VornCompassControl::OnDraw(wxDC* dc) {
  if (!IsShown()) return;
  if (m_lastDrawn != m_value || !m_drawing.IsOk() || m_drawing.GetWidth() != GetWidth()) Compose();
  if (m_drawing.IsOk()) dc->DrawBitmap(m_drawing, 0, 0, false);
}
