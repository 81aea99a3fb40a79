#pragma once
// Drawing helpers the picker's parts share; they only read their arguments.
#include <wx/dc.h>

namespace ColourDrawing {

void Fill(wxDC& dc, const wxRect& rect, const wxColour& colour);
// A one-pixel line just inside rect.
void Outline(wxDC& dc, const wxRect& rect, const wxColour& colour);
// A ring centred on at, light inside a dark edge, readable on any colour.
void Marker(wxDC& dc, const wxPoint& at, const wxColour& light, const wxColour& dark);
// A tab pointing left with its tip at (tipX, centreY).
void Tab(wxDC& dc, int tipX, int centreY, int width, const wxColour& fill, const wxColour& edge);

}  // namespace ColourDrawing
