#pragma once
// Shared pieces of the monster box family: its assertion texts, its fixed
// layout numbers and the drawing helpers the box and its headings use.
#include <wx/bitmap.h>
#include <wx/dc.h>

namespace monster {

// Assertion texts.
constexpr const char* kColumnInRange = "column < columns.size()";
constexpr const char* kIndexInRange = "index < entries.size()";

// Layout of the box, in box pixels.
constexpr int kPanelX = 12;
constexpr int kPanelY = 40;
constexpr int kPanelWidthLess = 50;  // panel width = box width - 50
constexpr int kListHeightLess = 62;  // list height = box height - 62
constexpr int kFitHeightLess = 61;   // rows fit while content <= height - 61
constexpr int kBarWidth = 11;
constexpr int kButtonX = 38;          // first button: spacer width + 38
constexpr int kButtonBelowList = 45;  // buttons at list height + 45
constexpr int kHeadingHeight = 22;    // the strip right above the panel
constexpr int kMinHeight = 75;
constexpr int kGripLeftLess = 21;  // grip: width - 21 .. width - 11
constexpr int kGripTopLess = 22;   //       height - 22 .. height - 12
constexpr int kGripSize = 10;
constexpr int kTitlePadding = 4;

// Draws picture stretched over rect, keeping corners of up to corner pixels
// unscaled (so rounded frames stay round at any size).
void DrawStretched(wxDC& dc, const wxBitmap& picture, const wxRect& rect, int corner);

}  // namespace monster
