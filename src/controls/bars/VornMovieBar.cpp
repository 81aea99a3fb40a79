// The movie bar: a playhead and two markers on a track, their drags with
// clamping, the value inside the sub-range, and its drawing.
#include "vorn/VornMovieBar.h"

#include <wx/dcmemory.h>

#include <algorithm>
#include <cmath>

#include "vorn/VornAssert.h"

namespace {
int WidthOf(const wxBitmap* image) {
  return image && image->IsOk() ? image->GetWidth() : 0;
}
int HeightOf(const wxBitmap* image) {
  return image && image->IsOk() ? image->GetHeight() : 0;
}
// Strictly inside on all four sides.
bool StrictlyIn(const wxRect& r, int x, int y) {
  return x > r.x && x < r.x + r.width && y > r.y && y < r.y + r.height;
}
void DrawImage(wxDC& dc, const wxBitmap* image, int x, int y) {
  if (image && image->IsOk()) dc.DrawBitmap(*image, x, y, true);
}
void FillBand(wxDC& dc, const wxColour& colour, int left, int right, int top, int bottom) {
  if (right <= left || bottom <= top) return;
  dc.SetPen(*wxTRANSPARENT_PEN);
  dc.SetBrush(wxBrush(colour));
  dc.DrawRectangle(left, top, right - left, bottom - top);
}
}  // namespace

VornMovieBar::VornMovieBar(const wxBitmap* startMarker, const wxBitmap* endMarker,
                           const wxBitmap* playhead, int x, int y, int w, int h, wxWindow* parent,
                           int id, VornControlGroup* group, long style) {
  VornMovieBar::Create(startMarker, endMarker, playhead, x, y, w, h, parent, id, group, style);
}

VornMovieBar::~VornMovieBar() = default;

bool VornMovieBar::Create(const wxBitmap* startMarker, const wxBitmap* endMarker,
                          const wxBitmap* playhead, int x, int y, int w, int h, wxWindow* parent,
                          int id, VornControlGroup* group, long style) {
  m_pStartImage = startMarker;
  m_pEndImage = endMarker;
  m_pPlayheadImage = playhead;
  const bool created = VornControl::Create(x, y, w, h, parent, id, group, style);
  m_trackStart = WidthOf(startMarker);
  // A bar too narrow for its images keeps a track of no length.
  m_trackEnd = std::max(m_trackStart, w - WidthOf(playhead) - WidthOf(endMarker));
  m_markerTop = h - HeightOf(startMarker);
  m_bandTop = static_cast<int>(h / 3.0);
  m_bandBottom = static_cast<int>(2 * h / 3.0);
  m_playhead = m_start = m_trackStart;
  m_end = m_trackEnd;
  m_startFraction = 0.0;
  m_endFraction = 1.0;
  Recompute();
  return created;
}

// ---- geometry -------------------------------------------------------------------

VornMovieBarLayout VornMovieBar::GetLayout() const {
  VornMovieBarLayout l;
  const int w1 = WidthOf(m_pStartImage), w2 = WidthOf(m_pEndImage);
  const int w3 = WidthOf(m_pPlayheadImage);
  const int markerHeight = GetHeight() - m_markerTop;
  l.playhead = wxRect(m_playhead, 0, w3, HeightOf(m_pPlayheadImage));
  // The start marker ends where the range starts; the end marker sits one
  // of its widths beyond the end, past a playhead standing there.
  l.startMarker = wxRect(m_start - w1, m_markerTop, w1, markerHeight);
  l.endMarker = wxRect(m_end + w2, m_markerTop, w2, markerHeight);
  l.trackLeft = m_trackStart;
  l.trackRight = m_trackEnd + w3;
  l.rangeLeft = m_start;
  l.rangeRight = m_end + w3;
  l.playedRight = m_playhead + w3 / 2;
  return l;
}

double VornMovieBar::TrackFraction(int marker) const {
  const int span = m_trackEnd - m_trackStart;
  return span > 0 ? static_cast<double>(marker - m_trackStart) / span : 0.0;
}

void VornMovieBar::Recompute() {
  const int span = m_end - m_start;
  m_value = span > 0 ? static_cast<double>(m_playhead - m_start) / span : 0.0;
}

// ---- notifications ------------------------------------------------------------------

VornMovieBarCG* VornMovieBar::MovieGroup() const {
  return dynamic_cast<VornMovieBarCG*>(GetGroup());
}

void VornMovieBar::ReportDrag() {
  if (VornMovieBarCG* group = MovieGroup()) group->ControlDrag(GetId(), this);
}

void VornMovieBar::ReportShape() {
  if (VornMovieBarCG* group = MovieGroup()) group->ControlShapeChanged(GetId(), this);
}

// ---- pointer --------------------------------------------------------------------------

void VornMovieBar::Press(int x, int y) {
  const VornMovieBarLayout l = GetLayout();
  if (StrictlyIn(l.playhead, x, y)) {
    m_bDragPlayhead = true;
    m_grab = x - m_playhead;
    m_lastPlayheadX = x;
    CaptureMouse();
    if (VornMovieBarCG* group = MovieGroup())
      group->ControlSelected(VornMovieBarCG::kPressId, this);
  } else if (StrictlyIn(l.startMarker, x, y)) {
    m_bDragStart = true;
    m_grab = x - m_start;
    m_lastStartX = x;
    CaptureMouse();
  } else if (StrictlyIn(l.endMarker, x, y)) {
    m_bDragEnd = true;
    m_grab = x - m_end;
    m_lastEndX = x;
    CaptureMouse();
  }
}

void VornMovieBar::Release() {
  const bool playhead = m_bDragPlayhead;
  m_bDragPlayhead = m_bDragStart = m_bDragEnd = false;
  ReleaseMouse();
  if (playhead) {
    if (VornMovieBarCG* group = MovieGroup())
      group->ControlUnSelected(VornMovieBarCG::kPressId, this);
  }
}

void VornMovieBar::DragPlayhead(int x) {
  m_lastPlayheadX = x;
  m_playhead = std::clamp(x - m_grab, m_start, std::max(m_start, m_end));
  Recompute();
  ReportDrag();
}

void VornMovieBar::DragStart(int x) {
  m_lastStartX = x;
  m_start = std::clamp(x - m_grab, m_trackStart, std::max(m_trackStart, m_end));
  m_startFraction = TrackFraction(m_start);
  const bool pushed = m_playhead < m_start;
  if (pushed) m_playhead = m_start;
  Recompute();
  if (pushed) ReportDrag();
  ReportShape();
}

void VornMovieBar::DragEnd(int x) {
  m_lastEndX = x;
  m_end = std::clamp(x - m_grab, m_start, std::max(m_start, m_trackEnd));
  m_endFraction = TrackFraction(m_end);
  const bool pushed = m_playhead > m_end;
  if (pushed) m_playhead = m_end;
  Recompute();
  if (pushed) ReportDrag();
  ReportShape();
}

void VornMovieBar::OnMouseButton() {
  if (GetMouseDownLeft() && !IsDragging()) {
    int x = 0, y = 0;
    GetLastDownPos(x, y);
    Press(x, y);
  } else if (!GetMouseDownLeft() && IsDragging()) {
    Release();
  }
  Refresh(false);
}

void VornMovieBar::OnMouseMove(int x, int) {
  if (m_bDragPlayhead)
    DragPlayhead(x);
  else if (m_bDragStart)
    DragStart(x);
  else if (m_bDragEnd)
    DragEnd(x);
  else
    return;
  Refresh(false);
}

// ---- values set by the host -----------------------------------------------------------------

void VornMovieBar::SetValue(double v) {
  v = std::clamp(v, 0.0, 1.0);
  m_playhead = static_cast<int>(std::trunc(v * (m_end - m_start))) + m_start;
  Recompute();
  Refresh(false);
}

void VornMovieBar::SetStart(double fraction) {
  m_startFraction = std::clamp(fraction, 0.0, 1.0);
  m_start =
      static_cast<int>(std::trunc(m_startFraction * (m_trackEnd - m_trackStart) + m_trackStart));
  // The playhead stays inside the range, so the value stays in [0, 1].
  if (m_start <= m_end) m_playhead = std::clamp(m_playhead, m_start, m_end);
  Recompute();
  Refresh(false);
}

void VornMovieBar::SetEnd(double fraction) {
  m_endFraction = std::clamp(fraction, 0.0, 1.0);
  m_end = static_cast<int>(std::trunc(m_endFraction * (m_trackEnd - m_trackStart) + m_trackStart));
  if (m_start <= m_end) m_playhead = std::clamp(m_playhead, m_start, m_end);
  Recompute();
  Refresh(false);
}

void VornMovieBar::Reset() {
  if (IsDragging()) ReleaseMouse();
  m_bDragPlayhead = m_bDragStart = m_bDragEnd = false;
  m_end = m_trackEnd;
  m_start = m_playhead = m_trackStart;
  m_startFraction = 0.0;
  m_endFraction = 1.0;
  Recompute();
  Refresh(false);
}

void VornMovieBar::SetColours(wxColour track, wxColour range, wxColour played) {
  m_colour1 = track;
  m_colour2 = range;
  m_colour3 = played;
  Refresh(false);
}

void VornMovieBar::SetUp(int top, int bottom) {
  m_bandTop = top;
  m_bandBottom = bottom;
  Refresh(false);
}

// ---- drawing ---------------------------------------------------------------------------------

void VornMovieBar::OnDraw(wxDC* dc) {
  VORN_ASSERT(dc != nullptr);
  const int w = GetWidth(), h = GetHeight();
  if (!dc || w <= 0 || h <= 0) return;
  if (!m_backBuffer.IsOk() || m_backBuffer.GetSize() != wxSize(w, h)) m_backBuffer.Create(w, h);
  const VornMovieBarLayout l = GetLayout();
  {
    wxMemoryDC mem(m_backBuffer);
    mem.SetBackground(wxBrush(GetBackgroundColour()));
    mem.Clear();
    FillBand(mem, m_colour1, l.trackLeft, l.trackRight, m_bandTop, m_bandBottom);
    FillBand(mem, m_colour2, l.rangeLeft, l.rangeRight, m_bandTop, m_bandBottom);
    FillBand(mem, m_colour3, l.rangeLeft, l.playedRight, m_bandTop, m_bandBottom);
    DrawImage(mem, m_pStartImage, l.startMarker.x, l.startMarker.y);
    DrawImage(mem, m_pEndImage, l.endMarker.x, l.endMarker.y);
    DrawImage(mem, m_pPlayheadImage, l.playhead.x, l.playhead.y);
  }
  dc->DrawBitmap(m_backBuffer, 0, 0, false);
  if (IsDirty()) RecalcState();
}
