// The name label of a tree editor: the tree connector and the parameter
// name left of the alignment line, kept in a bitmap that is rebuilt only
// when the control's x position or its name changed.
#include <wx/dcmemory.h>
#include <wx/image.h>

#include <algorithm>

#include "TreeDrawing.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/VUIControls.h"
#include "vornhost/Filter.h"

namespace {

// The connector: a stub from the left edge (where the tree's own lines
// meet the row) to a small circle, the name, and a leader from the name to
// the alignment line.
constexpr int kStubEnd = 4;
constexpr int kCircleX = 7;
constexpr int kCircleRadius = 2;
constexpr int kNameX = 12;
constexpr int kLeaderGap = 2;

// A taller control keeps its name in its top row, where the tree's
// connector meets it.
int LabelMid(int h) {
  return std::min(h, vorn_tree::kHeaderRowHeight) / 2;
}

wxString FromUtf8(const VornString& text) {
  return wxString::FromUTF8(text.c_str());
}

}  // namespace

void VUITreeControlBase::GetCoolMushName(VornString name, VornString& out, int& width, wxDC* dc) {
  const wxString full = FromUtf8(name);
  wxCoord w = 0, h = 0;
  dc->GetTextExtent(full, &w, &h);
  if (w <= width) {
    out = name;
    width = w;
    return;
  }
  // Three dots when they fit, else two, else nothing at all.
  wxCoord three = 0, two = 0;
  dc->GetTextExtent("...", &three, &h);
  dc->GetTextExtent("..", &two, &h);
  const wxString dots = three <= width ? "..." : "..";
  const wxCoord dotsWidth = three <= width ? three : two;
  if (dotsWidth > width) {
    out.clear();
    width = 0;
    return;
  }
  wxString kept = full;
  while (!kept.empty()) {
    kept.RemoveLast();
    dc->GetTextExtent(kept + dots, &w, &h);
    if (w <= width) break;
  }
  const wxString shortened = kept + dots;
  dc->GetTextExtent(shortened, &w, &h);
  out = VornString(shortened.utf8_str().data());
  width = w;
}

void VUITreeControlBase::BuildLabel() {
  const int w = std::max(1, GetMaxWidth()), h = GetMaxHeight();
  const int x = GetPosition().x;
  wxImage image(w, h);
  const wxColour bg = CtoWxC(GetRowBackgroundCol());
  image.SetRGB(wxRect(0, 0, w, h), bg.Red(), bg.Green(), bg.Blue());
  {
    std::unique_ptr<Filter> f = CreateFilter(image);
    const ColorA line = CtoCA(GetLineCol());
    const int mid = LabelMid(h);
    DrawLine(*f, 0, mid, kStubEnd, mid, line);
    DrawCircle(AntiAlias(*f), kCircleX, mid, kCircleRadius, line, false);
    const int leader = kNameX + m_nameWidth + kLeaderGap;
    if (leader < GetAllignmentPt() - kLeaderGap)
      DrawLine(*f, leader, mid, GetAllignmentPt() - kLeaderGap, mid, line);
  }
  m_label = wxBitmap(image);
  wxMemoryDC dc(m_label);
  dc.SetFont(m_nameFont);
  dc.SetTextForeground(m_bChanging ? m_highlightColour : m_nameColour);
  dc.SetBackgroundMode(wxTRANSPARENT);
  VornString shown = m_name;
  int width = m_nameWidth;
  if (x < 0) {
    // Scrolled off to the left: the name keeps what still shows.
    width = std::max(0, x + m_nameWidth);
    GetCoolMushName(m_name, shown, width, &dc);
  }
  wxCoord tw = 0, th = 0;
  dc.GetTextExtent("Ag", &tw, &th);
  dc.DrawText(FromUtf8(shown), kNameX + m_nameWidth - width, (2 * LabelMid(h) - th) / 2);
  dc.SelectObject(wxNullBitmap);
  m_labelX = x;
  m_labelName = m_name;
  m_bLabelRowHighlight = IsRowHighlighted();
}

void VUITreeControlBase::OnDraw(wxDC* dc) {
  if (!dc) return;
  if (m_labelX != GetPosition().x || m_labelName != m_name ||
      m_bLabelRowHighlight != IsRowHighlighted() || !m_label.IsOk())
    BuildLabel();
  dc->DrawBitmap(m_label, 0, 0);
}
