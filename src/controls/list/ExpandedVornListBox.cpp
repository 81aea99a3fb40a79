// The pop-up list: a borderless top-level frame that holds the mouse, tracks
// the pointer and the keyboard, scrolls long lists and reports a choice to
// its owner before destroying itself.
#include <wx/dcbuffer.h>
#include <wx/dcclient.h>
#include <wx/dcmemory.h>

#include <algorithm>
#include <cmath>

#include "VornListBoxTexts.h"
#include "vorn/VornListBox.h"
#include "vornhost/Debug.h"

using namespace vorn_list_texts;

namespace {
// The borderless tool-window frame a pop-up needs: no decoration, no
// task-bar entry, above its owner.
constexpr long kPopupStyle = wxCLIP_CHILDREN | wxBORDER_NONE | wxCLOSE_BOX | wxFRAME_TOOL_WINDOW |
                             wxFRAME_NO_TASKBAR | wxSTAY_ON_TOP;
constexpr int kPrefixTimerId = wxID_HIGHEST + 411;
constexpr int kPrefixMilliseconds = 1000;
constexpr int kBarInset = 13;  // from the right edge to the bar's left
constexpr int kMarkSpace = 9;  // left of each row, where the selection mark sits
constexpr int kWheelRows = 3;
int s_live = 0;
}  // namespace

wxBEGIN_EVENT_TABLE(ExpandedVornListBox, wxFrame) EVT_LEFT_DOWN(ExpandedVornListBox::OnLeftDown)
    EVT_LEFT_DCLICK(ExpandedVornListBox::OnLeftDown) EVT_LEFT_UP(ExpandedVornListBox::OnLeftUp)
        EVT_MOTION(ExpandedVornListBox::OnMouseMove)
            EVT_KILL_FOCUS(ExpandedVornListBox::OnKillFocus)
                EVT_LEAVE_WINDOW(ExpandedVornListBox::OnLeaveWindow)
                    EVT_CHAR(ExpandedVornListBox::OnChar) EVT_PAINT(ExpandedVornListBox::OnPaint)
                        EVT_ERASE_BACKGROUND(ExpandedVornListBox::OnEraseBackground)
                            EVT_TIMER(kPrefixTimerId, ExpandedVornListBox::OnPrefixTimer)
                                EVT_SCROLL(ExpandedVornListBox::OnScrollBar)
                                    EVT_MOUSEWHEEL(ExpandedVornListBox::OnMouseWheel)
                                        EVT_MOUSE_CAPTURE_LOST(ExpandedVornListBox::OnCaptureLost)
                                            wxEND_EVENT_TABLE()

                                                ExpandedVornListBox::ExpandedVornListBox(
                                                    VornListBoxCallback* owner, wxWindow* parent,
                                                    wxFont& font, bool fontGiven, int x, int y,
                                                    int width, int height, int offset)
    : wxFrame(parent, wxID_ANY, wxEmptyString, wxPoint(x, y), wxSize(width, height), kPopupStyle),
      m_pOwner(owner),
      m_width(width),
      m_visibleHeight(height),
      m_offset(offset),
      m_font(font),
      m_bFontGiven(fontGiven),
      m_prefixTimer(this, kPrefixTimerId) {
  ++s_live;
  SetBackgroundStyle(wxBG_STYLE_PAINT);
  if (m_bFontGiven) SetFont(m_font);
  if (m_pOwner) {
    m_colours = m_pOwner->GetColours();
    for (int i = 0; i < m_pOwner->GetCount(); ++i)
      m_totalHeight += m_pOwner->GetElement(i)->GetHeight();
    m_highlighted = m_pOwner->GetSelected();
  }
  m_totalHeight += 2;
  SetClientSize(width, height);
  CheckForScroll();
  CheckHighlight();
  Refresh(false);
}

ExpandedVornListBox::~ExpandedVornListBox() {
  m_prefixTimer.Stop();
  --s_live;
}

int ExpandedVornListBox::LiveCount() {
  return s_live;
}

// ---- geometry ---------------------------------------------------------------

int ExpandedVornListBox::ItemTop(int index) const {
  int top = 0;
  for (int i = 0; i < index && m_pOwner; ++i) top += m_pOwner->GetElement(i)->GetHeight();
  return top;
}

int ExpandedVornListBox::ItemAt(int contentY) const {
  if (!m_pOwner) return -1;
  int top = 0;
  for (int i = 0; i < m_pOwner->GetCount(); ++i) {
    const VornListBoxElement* e = m_pOwner->GetElement(i);
    if (e->IsSelectable() && contentY >= top && contentY <= top + e->GetHeight()) return i;
    top += e->GetHeight();
  }
  return -1;
}

void ExpandedVornListBox::ClampOffset() {
  if (m_totalHeight - 2 <= m_visibleHeight) {
    m_offset = 1;
    return;
  }
  m_offset = std::max(std::min(m_offset, 1), m_visibleHeight - m_totalHeight + 1);
}

// ---- scrolling ----------------------------------------------------------------

void ExpandedVornListBox::CheckForScroll() {
  if (!m_pScrollBar) {
    m_pScrollBar = std::make_unique<VornListBoxScrollBar>(m_colours.border, m_colours.background,
                                                          m_colours.highlight, m_width - kBarInset,
                                                          2, m_visibleHeight - 2, this);
    m_pScrollBar->SetBox(this);
  }
  // The bar reports value changes back through SetScrollPos; the offset is
  // already right here.
  m_bSyncingBar = true;
  if (m_totalHeight - 2 > m_visibleHeight) {
    m_pScrollBar->SetSliderVal(-static_cast<double>(m_offset) / (m_totalHeight - m_visibleHeight));
    m_pScrollBar->Show(true);
    m_pScrollBar->SetFractionVal(static_cast<double>(m_visibleHeight) / m_totalHeight);
  } else {
    m_pScrollBar->SetSliderVal(0.0);
    m_pScrollBar->Show(false);
  }
  m_bSyncingBar = false;
}

void ExpandedVornListBox::CheckHighlight() {
  if (m_pOwner && m_highlighted >= 0 && m_highlighted < m_pOwner->GetCount()) {
    const int count = m_pOwner->GetCount();
    const int height = m_pOwner->GetElement(m_highlighted)->GetHeight();
    auto top = [&] { return m_offset + ItemTop(m_highlighted); };
    if (top() < 0) {
      for (int k = m_highlighted; k < count && top() <= 0; ++k)
        m_offset += m_pOwner->GetElement(k)->GetHeight();
    } else if (top() + height > m_visibleHeight) {
      for (int k = m_highlighted; k >= 0 && top() + height >= m_visibleHeight - 1; --k)
        m_offset -= m_pOwner->GetElement(k)->GetHeight();
    }
    ClampOffset();
  }
  CheckForScroll();
}

void ExpandedVornListBox::SetScrollPos(double v) {
  if (m_bSyncingBar) return;
  m_offset = -static_cast<int>(std::trunc((m_totalHeight - m_visibleHeight) * v));
  ClampOffset();
  RedrawNow();
}

// ---- closing ----------------------------------------------------------------------

void ExpandedVornListBox::CloseBox() {
  VornListBoxCallback* owner = m_pOwner;
  m_pOwner = nullptr;
  m_prefixTimer.Stop();
  if (owner) {
    owner->ForgetExpanded();
    owner->Show(true);
  }
  Hide();
  if (HasCapture()) ReleaseMouse();
}

void ExpandedVornListBox::Dismiss() {
  if (IsClosed()) return;
  CloseBox();
  Destroy();
}

void ExpandedVornListBox::OwnerGone() {
  if (IsClosed()) return;
  m_pOwner = nullptr;
  m_prefixTimer.Stop();
  Hide();
  if (HasCapture()) ReleaseMouse();
  Destroy();
}

void ExpandedVornListBox::Choose(int index) {
  VornListBoxCallback* owner = m_pOwner;
  if (!owner) return;
  CloseBox();
  dprintf(kSelectedItem, index);
  if (index >= -1 && index < owner->GetCount()) owner->SetSelected(index, true);
  Destroy();
}

// ---- pointer ------------------------------------------------------------------------

wxMouseEvent ExpandedVornListBox::ForBar(const wxMouseEvent& event) const {
  wxMouseEvent copy(event);
  if (m_pScrollBar && m_pScrollBar->IsDragging()) {
    const wxRect bar = m_pScrollBar->GetRect();
    copy.m_x = std::clamp(copy.m_x, bar.x, bar.x + bar.width);
    copy.m_y = std::clamp(copy.m_y, bar.y, bar.y + bar.height);
  }
  return copy;
}

void ExpandedVornListBox::OnMouseMove(wxMouseEvent& event) {
  if (IsClosed()) return;
  wxMouseEvent forBar = ForBar(event);
  if (m_pScrollBar && m_pScrollBar->OnMouseMove(forBar)) {
    RedrawNow();
    return;
  }
  const int index = ItemAt(event.GetY() - m_offset);
  if (index >= 0 && index != m_highlighted) {
    m_highlighted = index;
    RedrawNow();
  }
}

void ExpandedVornListBox::OnLeftDown(wxMouseEvent& event) {
  if (IsClosed()) return;
  const wxPoint p = event.GetPosition();
  if (p.x < 0 || p.y < 0 || p.x >= m_width || p.y >= m_visibleHeight) {
    Dismiss();
    return;
  }
  wxMouseEvent forBar = ForBar(event);
  if (m_pScrollBar && m_pScrollBar->OnLeftDown(forBar)) {
    Refresh(false);
    return;
  }
  // Only a press on a row chooses; a separator or the frame does nothing.
  const int index = ItemAt(p.y - m_offset);
  if (index >= 0) {
    m_highlighted = index;
    Choose(index);
  }
}

void ExpandedVornListBox::OnLeftUp(wxMouseEvent& event) {
  if (IsClosed()) return;
  wxMouseEvent forBar = ForBar(event);
  if (m_pScrollBar && m_pScrollBar->OnLeftUp(forBar)) Refresh(false);
}

void ExpandedVornListBox::OnMouseWheel(wxMouseEvent& event) {
  if (IsClosed() || m_totalHeight - 2 <= m_visibleHeight) return;
  const int delta = event.GetWheelDelta() > 0 ? event.GetWheelDelta() : 120;
  const double notches = static_cast<double>(event.GetWheelRotation()) / delta;
  const int row = m_pOwner->GetCount() > 0 ? m_pOwner->GetElement(0)->GetHeight() : 16;
  m_offset += static_cast<int>(std::lround(notches * kWheelRows * row));
  ClampOffset();
  CheckForScroll();
  RedrawNow();
}

void ExpandedVornListBox::OnKillFocus(wxFocusEvent&) {
  Dismiss();
}

void ExpandedVornListBox::OnCaptureLost(wxMouseCaptureLostEvent&) {
  // Another window took the pointer: the pop-up can no longer see a click
  // outside, so it goes.
  if (!IsClosed()) CallAfter([this] { Dismiss(); });
}

void ExpandedVornListBox::OnLeaveWindow(wxMouseEvent&) {}

void ExpandedVornListBox::OnScrollBar(wxScrollEvent&) {}

// ---- keyboard ---------------------------------------------------------------------

void ExpandedVornListBox::SetHighlight(int index) {
  m_highlighted = index;
  CheckHighlight();
  Refresh(false);
}

void ExpandedVornListBox::OnChar(wxKeyEvent& event) {
  if (IsClosed()) return;
  const int count = m_pOwner->GetCount();
  auto selectable = [this](int i) { return m_pOwner->GetElement(i)->IsSelectable(); };
  switch (event.GetKeyCode()) {
    case WXK_ESCAPE:
      Dismiss();
      return;
    case WXK_RETURN:
    case WXK_NUMPAD_ENTER:
      Choose(m_highlighted);
      return;
    case WXK_HOME:
      SetHighlight(0);
      return;
    case WXK_END:
      SetHighlight(count - 1);
      return;
    case WXK_LEFT:
    case WXK_UP:
      for (int i = m_highlighted - 1; i >= 0 && m_highlighted > 0; --i) {
        if (i == 0 || selectable(i)) {
          SetHighlight(i);
          break;
        }
      }
      return;
    case WXK_RIGHT:
    case WXK_DOWN:
      for (int i = m_highlighted + 1; i < count; ++i) {
        if (selectable(i)) {
          SetHighlight(i);
          break;
        }
      }
      return;
    default:
      break;
  }
  const wxChar c = event.GetUnicodeKey();
  if (c != WXK_NONE && c >= 32 && c != 127)
    TypeAhead(c);
  else
    event.Skip();
}

void ExpandedVornListBox::TypeAhead(wxChar c) {
  m_prefix += wxString(c).Lower();
  m_prefixTimer.StartOnce(kPrefixMilliseconds);
  for (int i = 0; i < m_pOwner->GetCount(); ++i) {
    const VornListBoxElement* e = m_pOwner->GetElement(i);
    if (wxString::FromUTF8(e->GetString().c_str()).Lower().StartsWith(m_prefix)) {
      SetHighlight(i);
      return;
    }
  }
}

void ExpandedVornListBox::OnPrefixTimer(wxTimerEvent&) {
  m_prefix.clear();
}

// ---- drawing ------------------------------------------------------------------------

void ExpandedVornListBox::OnPaint(wxPaintEvent&) {
  wxPaintDC dc(this);
  OnDrawBox(dc);
}

void ExpandedVornListBox::OnEraseBackground(wxEraseEvent&) {}

void ExpandedVornListBox::RedrawNow() {
  if (!IsShown()) return;
  wxClientDC dc(this);
  OnDrawBox(dc);
}

void ExpandedVornListBox::OnDrawBox(wxDC& target) {
  const int w = m_width, h = m_visibleHeight;
  if (w <= 0 || h <= 0) return;
  if (!m_backBuffer.IsOk() || m_backBuffer.GetSize() != wxSize(w, h)) m_backBuffer.Create(w, h);
  wxMemoryDC dc(m_backBuffer);
  dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
  dc.SetBackground(wxBrush(m_colours.background));
  dc.Clear();
  dc.SetFont(m_bFontGiven ? m_font : GetFont());
  const bool bar = m_pScrollBar && m_pScrollBar->IsVisible();
  const int clipRight = bar ? m_pScrollBar->GetRect().x : w - 1;
  dc.SetClippingRegion(1, 1, clipRight - 1, h - 2);
  dc.SetPen(wxPen(m_colours.border));
  const int selected = m_pOwner ? m_pOwner->GetSelected() : -1;
  int y = m_offset;
  for (int i = 0; m_pOwner && i < m_pOwner->GetCount(); ++i) {
    VornListBoxElement* e = m_pOwner->GetElement(i);
    const int rowHeight = e->GetHeight();
    if (y >= -(rowHeight + 1) && y < h - 2) {
      const bool lit = i == m_highlighted && e->IsSelectable();
      if (lit) {
        dc.SetPen(*wxTRANSPARENT_PEN);
        dc.SetBrush(wxBrush(m_colours.highlight));
        dc.DrawRectangle(1, y, clipRight - 1, rowHeight);
        dc.SetPen(wxPen(m_colours.border));
      }
      dc.SetTextForeground(lit ? m_colours.highlightText : m_colours.text);
      e->Draw(&dc, 1 + kMarkSpace, y);
      if (i == selected) {
        // The chosen row's mark: a dot in the highlight colour.
        const wxColour mark = lit ? m_colours.highlightText : m_colours.highlight;
        dc.SetPen(wxPen(mark));
        dc.SetBrush(wxBrush(mark));
        dc.DrawCircle(1 + kMarkSpace / 2, y + rowHeight / 2, 2);
        dc.SetPen(wxPen(m_colours.border));
      }
    }
    y += rowHeight;
  }
  dc.DestroyClippingRegion();
  dc.SetPen(wxPen(m_colours.border));
  dc.SetBrush(*wxTRANSPARENT_BRUSH);
  dc.DrawRectangle(0, 0, w, h);
  if (m_pScrollBar) m_pScrollBar->OnDraw(dc);
  dc.SelectObject(wxNullBitmap);
  target.DrawBitmap(m_backBuffer, 0, 0, false);
}
