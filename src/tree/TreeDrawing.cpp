// Drawing helpers of the tree's controls.
#include "TreeDrawing.h"

#include <wx/bitmap.h>
#include <wx/brush.h>
#include <wx/dcmemory.h>
#include <wx/pen.h>

#include <algorithm>
#include <map>
#include <vector>

#include "vorn/GraphicsFunctions.h"

namespace vorn_tree {

wxSize MeasureText(const wxString& text, const wxFont& font) {
  // A tree measures every name, and names repeat from branch to branch:
  // extents are kept per font and text. A font is known by its shared data,
  // which the kept copy holds alive (a changed font gets new data).
  struct Key {
    const wxObjectRefData* font;
    wxString text;
    bool operator<(const Key& o) const { return font != o.font ? font < o.font : text < o.text; }
  };
  // Never freed, like the DC below, so that none outlives the toolkit.
  static auto& extents = *new std::map<Key, wxSize>;
  static auto& fonts = *new std::vector<wxFont>;
  constexpr size_t kMaxKept = 4096;
  const wxFont& used = font.IsOk() ? font : *wxNORMAL_FONT;
  const Key key{used.GetRefData(), text};
  if (auto it = extents.find(key); it != extents.end()) return it->second;
  if (extents.size() >= kMaxKept) {
    extents.clear();
    fonts.clear();
  }
  // One DC for every measurement: making one costs more than measuring.
  static wxBitmap* scratch = new wxBitmap(1, 1);
  static wxMemoryDC* dc = new wxMemoryDC(*scratch);
  dc->SetFont(used);
  wxCoord w = 0, h = 0;
  dc->GetTextExtent(text, &w, &h);
  if (std::none_of(fonts.begin(), fonts.end(),
                   [&](const wxFont& f) { return f.GetRefData() == key.font; }))
    fonts.push_back(used);
  return extents[key] = wxSize(w, h);
}

BranchHeaderGeometry ComputeBranchHeader(int alignment, int nameWidth, int nameHeight, int width) {
  BranchHeaderGeometry g;
  g.row = wxRect(0, 0, width, kHeaderRowHeight);
  g.toggle = wxRect(3, (kHeaderRowHeight - kToggleSize) / 2, kToggleSize, kToggleSize);
  // The name ends just left of the alignment line.
  g.name = wxPoint(alignment - nameWidth - 2, (kHeaderRowHeight - nameHeight) / 2);
  g.stemX = g.toggle.x + kToggleSize / 2;
  g.stemTop = g.toggle.GetBottom() + 1;
  return g;
}

void FillRect(wxDC& dc, const wxRect& rect, const Color& colour) {
  const wxColour c = CtoWxC(colour);
  dc.SetPen(*wxTRANSPARENT_PEN);
  dc.SetBrush(wxBrush(c));
  dc.DrawRectangle(rect);
}

void DrawConnectors(wxDC& dc, int stemX, int stemTop, const std::vector<ConnectorRow>& rows,
                    const Color& line) {
  if (rows.empty()) return;
  dc.SetPen(wxPen(CtoWxC(line), 1));
  const ConnectorRow& last = rows.back();
  const int lastMid = (last.top + last.bottom) / 2;
  dc.DrawLine(stemX, stemTop, stemX, lastMid + 1);
  for (const ConnectorRow& row : rows) {
    const int mid = (row.top + row.bottom) / 2;
    if (row.left > stemX) dc.DrawLine(stemX, mid, row.left, mid);
  }
}

void DrawToggleBox(wxDC& dc, const wxRect& box, bool expanded, const Color& line,
                   const Color& fill) {
  dc.SetPen(wxPen(CtoWxC(line), 1));
  dc.SetBrush(wxBrush(CtoWxC(fill)));
  dc.DrawRectangle(box);
  const int cx = box.x + box.width / 2;
  const int cy = box.y + box.height / 2;
  dc.DrawLine(box.x + 3, cy, box.GetRight() - 2, cy);
  if (!expanded) dc.DrawLine(cx, box.y + 3, cx, box.GetBottom() - 2);
}

}  // namespace vorn_tree
