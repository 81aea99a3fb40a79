#pragma once
// Geometry and drawing shared by the tree's controls: the branch header's
// layout (used by hit-testing, the toggle button's place and drawing) and
// the connector lines.
#include <wx/dc.h>
#include <wx/font.h>
#include <wx/gdicmn.h>

#include <vector>

#include "vornhost/Color.h"

namespace vorn_tree {

// The header row of a branch, in the branch control's coordinates.
struct BranchHeaderGeometry {
  wxRect row;       // the whole header row (highlighted under the pointer)
  wxRect toggle;    // the toggle button
  wxPoint name;     // top-left of the name text
  int stemX = 0;    // x of the vertical connector down to the children
  int stemTop = 0;  // where it starts (below the toggle)
};

constexpr int kHeaderRowHeight = 36;
constexpr int kToggleSize = 14;

BranchHeaderGeometry ComputeBranchHeader(int alignment, int nameWidth, int nameHeight, int width);

// The extent of text in font, measured without a window (controls measure
// their names before they have one).
wxSize MeasureText(const wxString& text, const wxFont& font);

// Fills rect with a colour.
void FillRect(wxDC& dc, const wxRect& rect, const Color& colour);

// A vertical stem at x from top down to the middle of the last row, and a
// short tick from the stem to the left edge of every row (rows: x1, y1, y2 of
// each child). Does nothing without rows.
struct ConnectorRow {
  int left;
  int top;
  int bottom;
};
void DrawConnectors(wxDC& dc, int stemX, int stemTop, const std::vector<ConnectorRow>& rows,
                    const Color& line);

// A box with a plus (collapsed) or a minus (expanded).
void DrawToggleBox(wxDC& dc, const wxRect& box, bool expanded, const Color& line,
                   const Color& fill);

}  // namespace vorn_tree
