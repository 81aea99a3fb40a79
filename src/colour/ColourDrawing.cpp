#include "ColourDrawing.h"

namespace ColourDrawing {

void Fill(wxDC& dc, const wxRect& rect, const wxColour& colour) {
  dc.SetPen(*wxTRANSPARENT_PEN);
  dc.SetBrush(wxBrush(colour));
  dc.DrawRectangle(rect);
}

void Outline(wxDC& dc, const wxRect& rect, const wxColour& colour) {
  dc.SetPen(wxPen(colour));
  dc.SetBrush(*wxTRANSPARENT_BRUSH);
  dc.DrawRectangle(rect);
}

void Marker(wxDC& dc, const wxPoint& at, const wxColour& light, const wxColour& dark) {
  dc.SetBrush(*wxTRANSPARENT_BRUSH);
  dc.SetPen(wxPen(dark, 3));
  dc.DrawCircle(at, 4);
  dc.SetPen(wxPen(light, 1));
  dc.DrawCircle(at, 4);
}

void Tab(wxDC& dc, int tipX, int centreY, int width, const wxColour& fill, const wxColour& edge) {
  const wxPoint points[] = {wxPoint(tipX, centreY), wxPoint(tipX + width, centreY - 3),
                            wxPoint(tipX + width, centreY + 3)};
  dc.SetPen(wxPen(edge));
  dc.SetBrush(wxBrush(fill));
  dc.DrawPolygon(3, points);
}

}  // namespace ColourDrawing
