// The movie bar in the tree's drawing style: thin connector-like lines
// instead of filled bands, on the tree's background.
#include <wx/dcmemory.h>

#include "TreeDrawing.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/VUIControls.h"

namespace {
void DrawImage(wxDC& dc, const wxBitmap* image, int x, int y) {
  if (image && image->IsOk()) dc.DrawBitmap(*image, x, y, true);
}
}  // namespace

VornVUIMovieBar::VornVUIMovieBar(const wxBitmap* startMarker, const wxBitmap* endMarker,
                                 const wxBitmap* playhead, int x, int y, int w, int h,
                                 wxWindow* parent, int id, VornControlGroup* group, long style) {
  VornMovieBar::Create(startMarker, endMarker, playhead, x, y, w, h, parent, id, group, style);
}

VornVUIMovieBar::~VornVUIMovieBar() = default;

void VornVUIMovieBar::SetTreeColours(const Color& background, const Color& line,
                                     const Color& played) {
  m_background = background;
  m_line = line;
  m_played = played;
  Refresh(false);
}

void VornVUIMovieBar::OnDraw(wxDC* dc) {
  const int w = GetWidth(), h = GetHeight();
  if (!dc || w <= 0 || h <= 0) return;
  if (!m_backBuffer.IsOk() || m_backBuffer.GetSize() != wxSize(w, h)) m_backBuffer.Create(w, h);
  const VornMovieBarLayout l = GetLayout();
  const int mid = (m_bandTop + m_bandBottom) / 2;
  {
    wxMemoryDC mem(m_backBuffer);
    vorn_tree::FillRect(mem, wxRect(0, 0, w, h), m_background);
    // The whole track: one line through the band's middle.
    mem.SetPen(wxPen(CtoWxC(m_line), 1));
    mem.DrawLine(l.trackLeft, mid, l.trackRight, mid);
    // The sub-range: the band's outline; the played part: filled inside it.
    if (l.rangeRight > l.rangeLeft && m_bandBottom > m_bandTop) {
      mem.SetBrush(*wxTRANSPARENT_BRUSH);
      mem.DrawRectangle(l.rangeLeft, m_bandTop, l.rangeRight - l.rangeLeft,
                        m_bandBottom - m_bandTop);
      if (l.playedRight > l.rangeLeft + 1 && m_bandBottom - m_bandTop > 2)
        vorn_tree::FillRect(mem,
                            wxRect(l.rangeLeft + 1, m_bandTop + 1, l.playedRight - l.rangeLeft - 1,
                                   m_bandBottom - m_bandTop - 2),
                            m_played);
    }
    DrawImage(mem, m_pStartImage, l.startMarker.x, l.startMarker.y);
    DrawImage(mem, m_pEndImage, l.endMarker.x, l.endMarker.y);
    DrawImage(mem, m_pPlayheadImage, l.playhead.x, l.playhead.y);
  }
  dc->DrawBitmap(m_backBuffer, 0, 0, false);
  if (IsDirty()) RecalcState();
}
