// ColourControl's drawing: reads state only.
#include "GradientTexts.h"
#include "vorn/GradientControl.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/VornAssert.h"

using namespace GradientTexts;
using Geo = GradientPointGeometry;

namespace {
constexpr int kTriangleHalfWidth = 4;
}

void ColourControl::RecalcColours() {
  const int active = GetActiveWidth();
  m_colours.assign(active > 0 ? active : 0, GetBackgroundColour());
  if (!m_pGradient) return;
  for (int i = 0; i < static_cast<int>(m_colours.size()); ++i)
    m_colours[i] = CtoWxC(m_pGradient->GetColour(CalcLogicalPosition(m_left + i)));
}

void ColourControl::SetBgColour(const wxColour& colour) {
  VornWindow::SetBgColour(colour);
  SetDirty();
  Refresh(false);
}

void ColourControl::SetFgColour(const wxColour& colour) {
  VornWindow::SetFgColour(colour);
  Refresh(false);
}

void ColourControl::OnDraw(wxDC* dc) {
  if (IsDirty()) {
    RecalcColours();
    RecalcState();
  }
  dc->SetBackground(wxBrush(GetBackgroundColour()));
  dc->Clear();
  for (int i = 0; i < static_cast<int>(m_colours.size()); ++i) {
    dc->SetPen(wxPen(m_colours[i]));
    dc->DrawLine(m_left + i, Geo::kStripTop, m_left + i, Geo::kStripTop + Geo::kStripHeight);
  }
  if (!m_pGradient) return;
  const Gradient::CONTROL_POINT* selected = nullptr;
  const std::vector<Gradient::CONTROL_POINT> points = m_pGradient->GetSortedPoints();
  for (const Gradient::CONTROL_POINT& p : points) {
    VORN_ASSERT_TEXT(p.position >= 0.0 && p.position <= 1.0, kPositionInRange);
    if (p.index == m_selected) selected = &p;
    if (p.index == m_selected || p.position < m_displayMin || p.position > m_displayMax) continue;
    DrawUnselected(*dc, p);
  }
  if (!selected) return;
  if (selected->position >= m_displayMin && selected->position <= m_displayMax)
    DrawSelected(*dc, *selected);
  DrawColourDot(*dc, *selected);
}

void ColourControl::DrawUnselected(wxDC& dc, const Gradient::CONTROL_POINT& point) const {
  const int px = CalcPixelPosition(point.position);
  const wxPoint triangle[3] = {wxPoint(px - kTriangleHalfWidth, 0),
                               wxPoint(px + kTriangleHalfWidth, 0),
                               wxPoint(px, Geo::kHandleHeight)};
  dc.SetPen(wxPen(m_fgColour));
  dc.SetBrush(wxBrush(CtoWxC(point.colour)));
  dc.DrawPolygon(3, triangle);
}

// The handle, the three marks (filled when set) and the line to the dot.
void ColourControl::DrawSelected(wxDC& dc, const Gradient::CONTROL_POINT& point) const {
  const int px = CalcPixelPosition(point.position);
  dc.SetPen(wxPen(m_fgColour));
  dc.SetBrush(wxBrush(m_handleColour));
  dc.DrawRectangle(m_geometry.Handle(px));
  const bool marks[3] = {point.mark1, point.mark2, point.mark3};
  for (int i = 0; i < 3; ++i) {
    dc.SetBrush(marks[i] ? wxBrush(m_fgColour) : wxBrush(GetBackgroundColour()));
    dc.DrawEllipse(m_geometry.Mark(px, i));
  }
  dc.DrawLine(px, Geo::kLineTop, Geo::kDotX, Geo::kDotY);
}

void ColourControl::DrawColourDot(wxDC& dc, const Gradient::CONTROL_POINT& point) const {
  dc.SetPen(wxPen(m_fgColour));
  dc.SetBrush(wxBrush(CtoWxC(point.colour)));
  dc.DrawEllipse(m_geometry.Dot());
}
