#pragma once
// Drawing helpers the value controls share: they need only a DC, pictures
// and a few numbers.
#include <wx/bitmap.h>
#include <wx/dc.h>

namespace ValueDrawing {

// A copy of bmp for the disabled look: greyed and sunk halfway into the
// background; an empty bitmap stays empty.
wxBitmap Greyed(const wxBitmap& bmp, const wxColour& background);
// bmp mirrored left to right.
wxBitmap Mirrored(const wxBitmap& bmp);
// bmp scaled to w x h (a copy when the size already matches).
wxBitmap Scaled(const wxBitmap& bmp, int w, int h);
// bmp repeated from x0 up to, not including, x1 at row y (the last copy cut).
void TileAcross(wxDC& dc, const wxBitmap& bmp, int x0, int x1, int y);
// bmp drawn at (x, y), only the part between columns x0 and x1 (excluded).
void DrawClipped(wxDC& dc, const wxBitmap& bmp, int x, int y, int x0, int x1);
// Picture drawn at (x, y) if it exists, using its alpha or mask.
void Draw(wxDC& dc, const wxBitmap& bmp, int x, int y);
// a blended towards b by t (0..1).
wxColour Mix(const wxColour& a, const wxColour& b, double t);

}  // namespace ValueDrawing
