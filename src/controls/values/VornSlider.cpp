// The slider base: value, thumb position in tenths of a pixel, press, drag
// (with fine mode) and release, drawn through a back buffer.
#include "vorn/VornSlider.h"

#include <wx/dcclient.h>
#include <wx/dcmemory.h>

#include <cmath>

#include "vorn/VornValueNotify.h"

using VornValueNotify::Clamp;

VornSlider::VornSlider(int x, int y, int w, int h, wxWindow* parent, int id,
                       VornControlGroupValue* group, long style) {
  VornSlider::Create(x, y, w, h, parent, id, group, style);
}

VornSlider::~VornSlider() = default;

bool VornSlider::Create(int x, int y, int w, int h, wxWindow* parent, int id,
                        VornControlGroupValue* group, long style) {
  if (!VornControl::Create(x, y, parent, id, group, style)) return false;
  m_pGroup = group;
  m_thumbWidth = 10;
  m_thumbHeight = 10;
  m_start = 0;
  m_lastX = 0;
  m_scale = 10;
  m_bDragging = false;
  SetSize(w, h);
  m_end = (w - m_thumbWidth) * m_scale;
  m_position = m_start;
  SetValue(0.0, false);
  return true;
}

void VornSlider::SetupSlider(int start, int thumbWidth, int thumbHeight, int endGap) {
  m_start = start;
  m_lastX = start;
  m_thumbWidth = thumbWidth;
  m_thumbHeight = thumbHeight;
  m_end = GetWidth() - thumbWidth - (endGap == -1 ? 0 : endGap);
  m_start *= m_scale;
  m_end *= m_scale;
  SetValue(0.0, false);
}

VornControlGroupValue* VornSlider::GetGroup() {
  return VornControl::GetGroup() ? m_pGroup : nullptr;
}

// ---- the value -----------------------------------------------------------

double VornSlider::GetValue() const {
  if (m_end == m_start) return 0.0;
  return (m_position - m_start) / (m_end - m_start);
}

int VornSlider::GetGap() const {
  return GetWidth() - m_thumbWidth - m_end / m_scale;
}

void VornSlider::SetValue(double value, bool notify) {
  value = Clamp(value);
  m_position = value * (m_end - m_start) + m_start;
  Refresh(false);
  m_lastX = static_cast<int>(m_position / m_scale);
  if (notify) VornValueNotify::Dragged(*this, GetGroup(), GetValue());
}

void VornSlider::SetValue(int x, int) {
  const bool fine = GetMetaKey();
  // The factor is formed first so that fine mode moves whole tenths.
  const double delta = (x - m_lastX) * (m_scale * VornValueNotify::DragFactor(fine));
  m_lastX = x;
  const double before = m_position;
  m_position = Clamp(m_position + delta, std::min(m_start, m_end), std::max(m_start, m_end));
  if (std::trunc(m_position) != std::trunc(before))
    VornValueNotify::Dragged(*this, GetGroup(), GetValue());
}

void VornSlider::SetSliderType(SliderType type) {
  m_type = type;
  Refresh(false);
}

SliderLayout VornSlider::GetLayout() const {
  SliderLayout l;
  const int w = GetWidth(), h = GetHeight();
  l.thumbLeft = m_position / m_scale;
  l.thumbX = static_cast<int>(l.thumbLeft);
  l.thumbWidth = m_thumbWidth;
  l.thumbHeight = m_thumbHeight;
  l.bandTop = (h - m_thumbHeight) / 2;
  l.bandBottom = h - (h - m_thumbHeight) / 2;
  l.trackLeft = m_start / m_scale + m_thumbWidth / 2;
  l.trackRight = std::max(l.trackLeft, std::min(w, m_end / m_scale + m_thumbWidth / 2));
  l.thumbMiddle = l.thumbX + m_thumbWidth / 2;
  return l;
}

// ---- press, drag, release ---------------------------------------------------

void VornSlider::OnMouseButton() {
  int x, y;
  GetLastMousePos(x, y);
  if (GetMouseDown() && !m_bDragging)
    Press(x, y);
  else if (!GetMouseDown() && m_bDragging)
    Release();
}

// Only a press within the thumb's band counts. Beside the thumb it jumps so
// that the thumb's middle comes under the pointer, and the drag goes on
// from there.
void VornSlider::Press(int x, int y) {
  const SliderLayout l = GetLayout();
  if (y < l.bandTop || y > l.bandBottom) return;
  m_bDragging = true;
  CaptureMouse();
  const bool onThumb = x >= l.thumbLeft && x <= l.thumbLeft + m_thumbWidth;
  if (onThumb) m_lastX = x;
  VornValueNotify::Pressed(*this, GetGroup());
  if (onThumb) return;
  m_position += static_cast<double>(x - m_lastX - m_thumbWidth / 2) * m_scale;
  m_position = Clamp(m_position, std::min(m_start, m_end), std::max(m_start, m_end));
  m_lastX = x;
  Redraw();
  if (VornControlGroupValue* group = GetGroup()) group->ControlDrag(GetId(), this);
}

void VornSlider::Release() {
  m_bDragging = false;
  ReleaseMouse();
  m_lastX = static_cast<int>(m_position / m_scale);
  VornValueNotify::Released(*this, GetGroup(), GetValue());
}

void VornSlider::OnEnable(bool enabled) {
  if (!enabled && m_bDragging) Release();
}

void VornSlider::OnMouseMove(int x, int y) {
  if (!m_bDragging) return;
  if (!GetMetaKey()) x = std::max(0, std::min(GetWidth(), x));
  SetValue(x, y);
  Redraw();
}

// ---- drawing ------------------------------------------------------------------

// At once, through a client DC: a drag must not wait for the next paint.
void VornSlider::Redraw() {
  if (!IsShownOnScreen()) {
    Refresh(false);
    return;
  }
  wxClientDC dc(this);
  OnDraw(&dc);
}

void VornSlider::OnDraw(wxDC* dc) {
  if (m_bDirty) RecalcState();
  const int w = std::max(1, GetWidth()), h = std::max(1, GetHeight());
  if (!m_backBuffer.IsOk() || m_backBuffer.GetWidth() != w || m_backBuffer.GetHeight() != h)
    m_backBuffer.Create(w, h, 24);
  {
    wxMemoryDC mem(m_backBuffer);
    mem.SetBackground(wxBrush(GetBgColour()));
    mem.Clear();
    DrawSlider(mem);
  }
  wxMemoryDC source(m_backBuffer);
  dc->Blit(0, 0, w, h, &source, 0, 0, wxCOPY);
}

void VornSlider::DrawSlider(wxDC& dc) {
  const SliderLayout l = GetLayout();
  const int h = GetHeight();
  const wxColour fg = GetFgColour().IsOk() ? GetFgColour() : *wxBLACK;
  const wxColour ink = GetEnabled() ? fg : wxColour(128, 128, 128);
  dc.SetPen(wxPen(ink));
  dc.SetBrush(*wxTRANSPARENT_BRUSH);
  dc.DrawRectangle(l.trackLeft, h / 2 - 2, l.trackRight - l.trackLeft, 4);
  dc.SetBrush(wxBrush(ink));
  dc.DrawRectangle(l.thumbX, l.bandTop, l.thumbWidth, l.thumbHeight);
}
