#pragma once
// Where the toggle and the box of an editor that opens a box inside the tree
// (the table and pop-up editors) lie: the toggle right of the alignment line,
// in the control's top row beside the name; the open box right of the
// toggle's column, with a margin above and below.
#include <wx/gdicmn.h>

#include <algorithm>

#include "TreeDrawing.h"

namespace vorn_tree {

struct OpenBoxGeometry {
  int offset = 0;  // from the alignment line to the box
  int width = 0;   // right of the alignment line
  int height = 0;  // of the whole control
  wxPoint toggle;  // top-left of the toggle
  wxPoint box;     // top-left of the box (when open)
};

// closedWidth / closedHeight: the control's metrics right of the alignment
// line while the box is closed.
inline OpenBoxGeometry ComputeOpenBox(int alignment, const wxSize& toggle, const wxSize& box,
                                      bool open, int gap, int margin, int closedWidth,
                                      int closedHeight) {
  OpenBoxGeometry g;
  g.offset = gap + toggle.x + gap;
  g.width = open ? g.offset + box.x : closedWidth;
  g.height = open ? box.y + 2 * margin : closedHeight;
  g.toggle = wxPoint(alignment + gap, (std::min(g.height, kHeaderRowHeight) - toggle.y) / 2);
  g.box = wxPoint(alignment + g.offset, margin);
  return g;
}

}  // namespace vorn_tree
