// The thumb shared by the simple and the list-box scroll bar.
#include "VornScrollThumb.h"

#include <wx/dcmemory.h>

#include "vorn/VornSimpleScrollBar.h"

namespace {
constexpr int kMinThumbHeight = 29;
constexpr int kCapLength = 12;  // the side lines run between the caps
}  // namespace

void VornScrollThumb::Make(int scrollHeight, double fraction, const wxColour& first,
                           const wxColour& second, const wxColour& third) {
  const int height = VornScrollThumbHeight(scrollHeight, fraction);
  if (GetHeight() == height) return;
  if (!m_pieces[0][kTop]) MakePieces(first, second, third);
  for (int set = 0; set < 2; ++set) {
    const wxColour& outline = set == 0 ? first : third;
    auto& p = m_pieces[set];
    auto& tabs = m_tabs[set];
    // An arrow shows at each end toward which the thumb can still move.
    tabs[kNormal] = std::make_unique<wxBitmap>(
        MakeTab(height, outline, *p[kTopArrow], *p[kBottomArrow], second));
    tabs[kAtBottom] =
        std::make_unique<wxBitmap>(MakeTab(height, outline, *p[kTopArrow], *p[kBottom], second));
    tabs[kAtTop] =
        std::make_unique<wxBitmap>(MakeTab(height, outline, *p[kTop], *p[kBottomArrow], second));
  }
}

int VornScrollThumb::GetHeight() const {
  return m_tabs[0][kNormal] ? m_tabs[0][kNormal]->GetHeight() : 0;
}

const wxBitmap* VornScrollThumb::GetTab(double value, bool hover) const {
  const int kind = value == 0.0 ? kAtTop : (value == 1.0 ? kAtBottom : kNormal);
  return m_tabs[hover ? 1 : 0][kind].get();
}

void VornScrollThumb::MakePieces(const wxColour& first, const wxColour& second,
                                 const wxColour& third) {
  const wxColour* foreground[2] = {&first, &third};
  for (int set = 0; set < 2; ++set) {
    wxBitmap *base = nullptr, *bottomBase = nullptr, *arrow = nullptr, *bottomArrow = nullptr;
    VornSimpleScrollBar::MakeBaseTabImages(base, bottomBase, arrow, bottomArrow, *foreground[set],
                                           second);
    m_pieces[set][kTop].reset(base);
    m_pieces[set][kBottom].reset(bottomBase);
    m_pieces[set][kTopArrow].reset(arrow);
    m_pieces[set][kBottomArrow].reset(bottomArrow);
  }
}

wxBitmap VornScrollThumb::MakeTab(int height, const wxColour& outline, const wxBitmap& top,
                                  const wxBitmap& bottom, const wxColour& background) const {
  wxBitmap tab(11, height);
  wxMemoryDC dc(tab);
  dc.SetBackground(wxBrush(background));
  dc.Clear();
  dc.SetPen(wxPen(outline, 1, wxPENSTYLE_SOLID));
  dc.DrawLine(0, kCapLength, 0, height - kCapLength);
  dc.DrawLine(10, kCapLength, 10, height - kCapLength);
  dc.DrawBitmap(top, 0, 0);
  dc.DrawBitmap(bottom, 0, height - bottom.GetHeight());
  dc.SelectObject(wxNullBitmap);
  return tab;
}

int VornScrollThumbHeight(int scrollHeight, double fraction) {
  const int height = static_cast<int>(scrollHeight * fraction);
  return height < kMinThumbHeight ? kMinThumbHeight : height;
}

VornScrollThumbSpan VornScrollThumbAt(int scrollStart, int scrollHeight, int thumbHeight,
                                      double value) {
  VornScrollThumbSpan span;
  span.top = scrollStart + static_cast<int>((scrollHeight - thumbHeight) * value);
  span.height = thumbHeight;
  return span;
}

double VornScrollDragValue(int scrollHeight, int thumbHeight, int pointerY, int startY,
                           double startValue) {
  const int travel = scrollHeight - thumbHeight;
  if (travel <= 0) return 0.0;
  return static_cast<double>(pointerY - startY) / travel + startValue;
}

VornScrollPointer VornScrollPointerAt(const VornScrollThumbSpan& thumb, int scrollHeight,
                                      int barWidth, int x, int y, bool dragging, int startY,
                                      double startValue, double current) {
  VornScrollPointer pointer;
  pointer.over = thumb.Contains(y) && x >= 0 && x <= barWidth;
  pointer.value = current;
  if (dragging) {
    pointer.over = true;
    pointer.value = VornScrollDragValue(scrollHeight, thumb.height, y, startY, startValue);
  }
  return pointer;
}

void DrawVornScrollBar(wxDC& dc, const VornScrollBarLook& look) {
  const wxRect& r = look.rect;
  dc.SetPen(*wxTRANSPARENT_PEN);
  dc.SetBrush(wxBrush(look.background));
  dc.DrawRectangle(r);
  dc.SetPen(wxPen(look.outline, 1, wxPENSTYLE_SOLID));
  if (look.separator) {
    const int x = r.x + (look.left ? r.width - 1 : 0);
    dc.DrawLine(x, r.y + look.scrollStart, x, r.y + look.scrollStart + look.scrollHeight);
  }
  if (!look.tab || !look.tab->IsOk()) return;
  // The tab's outer column gives way to the separator: a bar on the left
  // keeps the tab's columns 0..w-2, one on the right its columns 1..w-1.
  wxMemoryDC source;
  source.SelectObjectAsSource(*look.tab);
  const int w = look.tab->GetWidth() - 1, h = look.tab->GetHeight();
  if (look.left)
    dc.Blit(r.x, r.y + look.thumbTop, w, h, &source, 0, 0, wxCOPY, false);
  else
    dc.Blit(r.x + 1, r.y + look.thumbTop, w, h, &source, 1, 0, wxCOPY, false);
  source.SelectObject(wxNullBitmap);
}
