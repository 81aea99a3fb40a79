#pragma once
// Drawing steps the scroll bars' generated pictures share: small images
// drawn through the host's filters, the arrow of the end buttons, and the
// mirroring that turns a drawn piece into its final orientation.
#include <wx/bitmap.h>
#include <wx/colour.h>
#include <wx/image.h>

#include <memory>

// A w x h image filled with colour.
wxImage VornScrollImage(int w, int h, const wxColour& colour);
// The end buttons' arrow, point at (3, 7), anti-aliased.
void DrawVornScrollArrow(wxImage& image, const wxColour& colour);
// A new bitmap of image mirrored left-to-right, and first top-to-bottom when
// flipVert.
std::unique_ptr<wxBitmap> MirroredVornScrollBitmap(const wxImage& image, bool flipVert);
