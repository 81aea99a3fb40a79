// The range bars: a window onto a whole that is scrolled by dragging its
// middle and zoomed by dragging its end handles.
#include "vorn/VornRangeControl.h"

#include <wx/dc.h>

#include <algorithm>
#include <cmath>

#include "ValueDrawing.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/VornAssert.h"
#include "vorn/VornValueNotify.h"

using VornValueNotify::Clamp;

namespace {

// Assertion texts of the family.
constexpr const char* kScrollXOrder = "scrollX1 < scrollX2";
constexpr const char* kScrollYOrder = "scrollY1 < scrollY2";

// Length of each end handle, in pixels.
constexpr int kHandle = 7;

}  // namespace

VornRangeBase::VornRangeBase(const Color& track, const Color& bar, int x, int y, int w, int h,
                             int scroll1, int scroll2, const wxBitmap* picture, bool vertical,
                             wxWindow* parent, int id, VornControlGroupValue* group, long style)
    : m_track(track), m_bar(bar), m_bVertical(vertical), m_pPicture(picture), m_pGroup(group) {
  // Checked before the window exists, so a refused bar leaves nothing behind.
  SetScrollArea(scroll1, scroll2, vertical ? kScrollYOrder : kScrollXOrder);
  VornControl::Create(x, y, w, h, parent, id, group, style);
}

bool VornRangeBase::SetScrollArea(int scroll1, int scroll2, const char* orderText) {
  VORN_ASSERT_TEXT(scroll1 < scroll2, orderText);
  if (scroll1 >= scroll2) return false;
  m_scroll1 = scroll1;
  m_scroll2 = scroll2;
  m_scaledPicture = wxBitmap();
  return true;
}

VornControlGroupValue* VornRangeBase::GetGroup() {
  return VornControl::GetGroup() ? m_pGroup : nullptr;
}

// ---- the values ------------------------------------------------------------

double VornRangeBase::GetMaxZoom() const {
  const double handles = std::min(2.0 * kHandle, static_cast<double>(TrackLength()));
  return TrackLength() / handles;
}

double VornRangeBase::GetWindowStart() const {
  return m_slider * (1.0 - 1.0 / m_zoom);
}

void VornRangeBase::SetSliderValue(double value, bool notify) {
  m_slider = value;
  if (notify) {
    OnSliderChange();
    OnAnyChange();
  }
  Refresh(false);
}

void VornRangeBase::SetZoomValue(double zoom, bool notify) {
  zoom = Clamp(zoom, 1.0, GetMaxZoom());
  const double middle = GetWindowStart() + 0.5 / m_zoom;
  const double length = 1.0 / zoom;
  m_zoom = zoom;
  if (length < 1.0) m_slider = Clamp((middle - length / 2) / (1.0 - length));
  if (notify) {
    OnZoomChange();
    OnAnyChange();
  }
  Refresh(false);
}

void VornRangeBase::SetWindow(double start, double length, bool notify) {
  length = Clamp(length, 1.0 / GetMaxZoom(), 1.0);
  const double zoom = 1.0 / length;
  const double slider = length < 1.0 ? Clamp(start / (1.0 - length)) : m_slider;
  if (zoom == m_zoom && slider == m_slider) return;
  m_zoom = zoom;
  m_slider = slider;
  if (notify) {
    OnZoomChange();
    OnAnyChange();
  }
  Refresh(false);
}

RangeLayout VornRangeBase::GetLayout() const {
  RangeLayout l;
  l.trackStart = m_scroll1;
  l.trackEnd = m_scroll2;
  const int length = TrackLength();
  l.windowStart = m_scroll1 + static_cast<int>(std::lround(GetWindowStart() * length));
  l.windowEnd = m_scroll1 + static_cast<int>(std::lround(GetWindowEnd() * length));
  l.handle = std::min(kHandle, (l.windowEnd - l.windowStart) / 2);
  const int cross = m_bVertical ? GetWidth() : GetHeight();
  const int thickness = m_barHeight > 0 ? std::min(m_barHeight, cross) : cross;
  l.crossStart = (cross - thickness) / 2;
  l.crossEnd = l.crossStart + thickness;
  return l;
}

// ---- press, drag, release ---------------------------------------------------

VornRangeBase::Grip VornRangeBase::HitTest(int along) const {
  const RangeLayout l = GetLayout();
  if (along < l.windowStart || along >= l.windowEnd) return Grip::kNone;
  if (along < l.windowStart + l.handle) return Grip::kLow;
  if (along >= l.windowEnd - l.handle) return Grip::kHigh;
  return Grip::kWindow;
}

void VornRangeBase::OnMouseButton() {
  int x, y;
  GetLastMousePos(x, y);
  if (GetMouseDown() && m_grip == Grip::kNone)
    Press(Along(x, y));
  else if (!GetMouseDown() && m_grip != Grip::kNone)
    Release();
}

// A press on the track beside the window centres the window there, then
// scrolls as if the window had been gripped.
void VornRangeBase::Press(int along) {
  if (along < m_scroll1 || along >= m_scroll2) return;
  m_grip = HitTest(along);
  if (m_grip == Grip::kNone) {
    const double length = 1.0 / m_zoom;
    const double start = static_cast<double>(along - m_scroll1) / TrackLength() - length / 2;
    if (length < 1.0) SetSliderValue(Clamp(start / (1.0 - length)), true);
    m_grip = Grip::kWindow;
  }
  m_pressAlong = along;
  m_pressStart = GetWindowStart();
  m_pressEnd = GetWindowEnd();
  CaptureMouse();
  VornValueNotify::Pressed(*this, GetGroup());
}

void VornRangeBase::OnEnable(bool enabled) {
  if (!enabled && m_grip != Grip::kNone) Release();
}

void VornRangeBase::OnMouseMove(int x, int y) {
  if (m_grip != Grip::kNone) Drag(Along(x, y));
}

void VornRangeBase::Drag(int along) {
  const double d = static_cast<double>(along - m_pressAlong) / TrackLength();
  const double minLength = 1.0 / GetMaxZoom();
  const double zoomBefore = m_zoom, sliderBefore = m_slider;
  if (m_grip == Grip::kWindow) {
    const double length = m_pressEnd - m_pressStart;
    const double slider = length < 1.0 ? Clamp((m_pressStart + d) / (1.0 - length)) : m_slider;
    if (slider != m_slider) SetSliderValue(slider, true);
  } else if (GetMetaA()) {
    // Both ends move, mirrored about the window's middle.
    const double inward = m_grip == Grip::kLow ? d : -d;
    const double most = (m_pressEnd - m_pressStart - minLength) / 2;
    const double least = -std::min(m_pressStart, 1.0 - m_pressEnd);
    const double step = Clamp(inward, least, std::max(least, most));
    SetWindow(m_pressStart + step, m_pressEnd - m_pressStart - 2 * step, true);
  } else if (m_grip == Grip::kLow) {
    const double start = Clamp(m_pressStart + d, 0.0, m_pressEnd - minLength);
    SetWindow(start, m_pressEnd - start, true);
  } else {
    const double end = Clamp(m_pressEnd + d, m_pressStart + minLength, 1.0);
    SetWindow(m_pressStart, end - m_pressStart, true);
  }
  VornControlGroupValue* group = GetGroup();
  if (group && (m_zoom != zoomBefore || m_slider != sliderBefore))
    group->ControlDrag(GetId(), this);
}

void VornRangeBase::Release() {
  m_grip = Grip::kNone;
  ReleaseMouse();
  if (VornControlGroupValue* group = GetGroup()) group->ControlUnSelected(GetId(), this);
}

// ---- drawing ------------------------------------------------------------------

void VornRangeBase::OnDraw(wxDC* dc) {
  VornWindow::OnDraw(dc);
  if (m_bDirty) RecalcState();
  const RangeLayout l = GetLayout();
  auto rect = [&](int a0, int a1, int c0, int c1) {
    return m_bVertical ? wxRect(c0, a0, c1 - c0, a1 - a0) : wxRect(a0, c0, a1 - a0, c1 - c0);
  };
  const wxColour bg = GetBgColour();
  const double fade = GetEnabled() ? 0.0 : 0.55;
  const wxColour track = ValueDrawing::Mix(CtoWxC(m_track), bg, fade);
  const wxColour bar = ValueDrawing::Mix(CtoWxC(m_bar), bg, fade);
  const wxRect trackRect = rect(l.trackStart, l.trackEnd, l.crossStart, l.crossEnd);
  dc->SetPen(*wxTRANSPARENT_PEN);
  dc->SetBrush(wxBrush(track));
  dc->DrawRoundedRectangle(trackRect, 3);
  if (m_pPicture && m_pPicture->IsOk()) {
    if (!m_scaledPicture.IsOk() || m_scaledPicture.GetSize() != trackRect.GetSize())
      m_scaledPicture =
          ValueDrawing::Scaled(*m_pPicture, trackRect.GetWidth(), trackRect.GetHeight());
    dc->DrawBitmap(GetEnabled() ? m_scaledPicture : ValueDrawing::Greyed(m_scaledPicture, bg),
                   trackRect.GetPosition(), true);
  }
  // The window: translucent over the picture, its handles solid.
  const wxRect window = rect(l.windowStart, l.windowEnd, l.crossStart, l.crossEnd);
  dc->SetPen(wxPen(bar));
  dc->SetBrush(m_pPicture ? *wxTRANSPARENT_BRUSH : wxBrush(ValueDrawing::Mix(track, bar, 0.45)));
  dc->DrawRoundedRectangle(window, 3);
  dc->SetBrush(wxBrush(bar));
  dc->DrawRoundedRectangle(rect(l.windowStart, l.windowStart + l.handle, l.crossStart, l.crossEnd),
                           2);
  dc->DrawRoundedRectangle(rect(l.windowEnd - l.handle, l.windowEnd, l.crossStart, l.crossEnd), 2);
  // A grip line in the middle of each handle.
  dc->SetPen(wxPen(ValueDrawing::Mix(bar, track, 0.6)));
  const int c0 = l.crossStart + 3, c1 = l.crossEnd - 3;
  for (int a : {l.windowStart + l.handle / 2, l.windowEnd - 1 - l.handle / 2}) {
    if (m_bVertical)
      dc->DrawLine(c0, a, c1, a);
    else
      dc->DrawLine(a, c0, a, c1);
  }
}

// ---- the horizontal bar -------------------------------------------------------

VornRangeControl::VornRangeControl(const Color& track, const Color& bar, int x, int y, int w, int h,
                                   int scrollX1, int scrollX2, const wxBitmap* picture,
                                   wxWindow* parent, int id, VornControlGroupValue* group,
                                   long style)
    : VornRangeBase(track, bar, x, y, w, h, scrollX1, scrollX2, picture, false, parent, id, group,
                    style) {}

void VornRangeControl::SetBarHeight(int height) {
  m_barHeight = std::max(0, height);
  Refresh(false);
}

void VornRangeControl::SetSpace(int left, int right) {
  if (SetScrollArea(left, GetWidth() - right, kScrollXOrder)) Refresh(false);
}
