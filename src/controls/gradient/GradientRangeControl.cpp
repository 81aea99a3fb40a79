#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "vorn/GradientControl.h"

namespace {
double Clamp01(double v) {
  return std::min(1.0, std::max(0.0, v));
}
}  // namespace

GradientRangeControl::~GradientRangeControl() = default;

void GradientRangeControl::SetSpace(int left, int right) {
  m_left = left;
  m_right = right;
  Refresh(false);
}

void GradientRangeControl::SetColours(const wxColour& track, const wxColour& window,
                                      const wxColour& handle) {
  m_track = track;
  m_window = window;
  m_handle = handle;
  Refresh(false);
}

void GradientRangeControl::SetDisplayRange(double minimum, double maximum) {
  GradientControlComp::SetDisplayRange(minimum, maximum);
  m_leftEnd = minimum;
  m_rightEnd = maximum;
}

int GradientRangeControl::Span() const {
  return GetClientSize().GetWidth() - m_left - m_right;
}

int GradientRangeControl::PixelOf(double v) const {
  return m_left + static_cast<int>(std::floor(Span() * v + 0.5));
}

// ---- dragging ---------------------------------------------------------------------

void GradientRangeControl::OnMouseDownLeft() {
  if (!GetMouseDownLeft()) {
    const bool dragged = m_bDragLeft || m_bDragRight || m_bDragMove;
    m_bDragLeft = m_bDragRight = m_bDragMove = false;
    ReleaseMouse();
    if (dragged && m_pControlGroup) m_pControlGroup->ControlUnSelected(GetId(), this);
    return;
  }
  const int x = m_lastDownX;
  m_pressX = x;
  m_pressLeft = m_leftEnd;
  m_pressRight = m_rightEnd;
  const int pl = PixelOf(m_leftEnd), pr = PixelOf(m_rightEnd);
  const int dl = std::abs(x - pl), dr = std::abs(x - pr);
  if (dl <= kHandleHalfWidth || dr <= kHandleHalfWidth) {
    // Ends that meet: the side of the press decides.
    if (dl == dr)
      (x > pr ? m_bDragRight : m_bDragLeft) = true;
    else
      (dl < dr ? m_bDragLeft : m_bDragRight) = true;
  } else if (x > pl && x < pr) {
    m_bDragMove = true;
  } else {
    return;
  }
  CaptureMouse();
  if (m_pControlGroup) m_pControlGroup->ControlSelected(GetId(), this);
}

void GradientRangeControl::OnMouseMove(int x, int) {
  if (!GetMouseDownLeft()) return;
  const int dx = x - m_pressX;
  if (dx == 0) return;
  if (m_bDragMove) {
    UpdateMove(dx);
  } else if (m_bDragLeft) {
    UpdateLeft(dx);
    if (GetMetaA()) UpdateRight(-dx);
  } else if (m_bDragRight) {
    UpdateRight(dx);
    if (GetMetaA()) UpdateLeft(-dx);
  } else {
    return;
  }
  Changed();
}

void GradientRangeControl::UpdateLeft(int dx) {
  const int span = Span();
  if (dx == 0 || span <= 0) return;
  m_leftEnd = Clamp01(m_pressLeft + static_cast<double>(dx) / span);
  m_rightEnd = Clamp01(m_rightEnd);
  if (m_leftEnd > m_rightEnd) m_rightEnd = m_leftEnd;
}

void GradientRangeControl::UpdateRight(int dx) {
  const int span = Span();
  if (dx == 0 || span <= 0) return;
  m_rightEnd = Clamp01(m_pressRight + static_cast<double>(dx) / span);
  m_leftEnd = Clamp01(m_leftEnd);
  if (m_leftEnd > m_rightEnd) m_leftEnd = m_rightEnd;
}

void GradientRangeControl::UpdateMove(int dx) {
  const int span = Span();
  if (dx == 0 || span <= 0) return;
  double d = static_cast<double>(dx) / span;
  if (d > 0.0) d = std::min(d, 1.0 - m_pressRight);
  if (d < 0.0) d = std::max(d, -m_pressLeft);
  m_leftEnd = Clamp01(m_pressLeft + d);
  m_rightEnd = Clamp01(m_pressRight + d);
}

// The new displayed part goes to the other parts.
void GradientRangeControl::Changed() {
  m_displayMin = m_leftEnd;
  m_displayMax = m_rightEnd;
  GradientHintRange hint(m_leftEnd, m_rightEnd);
  Send(hint);
  Refresh(false);
}

// ---- drawing ----------------------------------------------------------------------

// A track across the active width, the displayed part as a window on it and
// a handle at each end.
void GradientRangeControl::OnDraw(wxDC* dc) {
  if (IsDirty()) RecalcState();
  dc->SetBackground(wxBrush(GetBackgroundColour()));
  dc->Clear();
  const int h = GetClientSize().GetHeight();
  const int top = std::max(0, (h - m_barHeight) / 2);
  dc->SetPen(*wxTRANSPARENT_PEN);
  dc->SetBrush(wxBrush(m_track));
  dc->DrawRectangle(m_left, top, std::max(0, Span()), m_barHeight);
  const int pl = PixelOf(m_leftEnd), pr = PixelOf(m_rightEnd);
  dc->SetBrush(wxBrush(m_window));
  dc->DrawRectangle(pl, top, pr - pl + 1, m_barHeight);
  dc->SetBrush(wxBrush(m_handle));
  for (int px : {pl, pr})
    dc->DrawRectangle(px - kHandleHalfWidth / 2, std::max(0, top - 2), kHandleHalfWidth + 1,
                      m_barHeight + 4);
}
