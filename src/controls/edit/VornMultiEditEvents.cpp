// VornMultiEdit: keyboard, mouse, focus, timer and size reactions.
#include <wx/dcclient.h>

#include <algorithm>
#include <cctype>

#include "EditShared.h"
#include "MultiEditText.h"
#include "MultiEditWrap.h"
#include "vorn/VornControlGroup.h"
#include "vorn/VornMultiEdit.h"

namespace {
using VornEditShared::CaretBlink;
using VornEditShared::DragScroll;

// The letter of a Control combination, lower case, whether wx delivered the
// letter or its control code (1 for A ...).
int ControlLetter(const wxKeyEvent& event) {
  const int code = event.GetKeyCode();
  if (code >= 1 && code <= 26) return 'a' + code - 1;
  return code < 256 ? std::tolower(code) : 0;
}
}  // namespace

wxBEGIN_EVENT_TABLE(VornMultiEdit, VornControl) EVT_CHAR(VornMultiEdit::LocalChar)
    EVT_LEFT_DOWN(VornMultiEdit::LocalLeftDown) EVT_LEFT_UP(VornMultiEdit::LocalLeftUp)
        EVT_LEFT_DCLICK(VornMultiEdit::LocalLeftDClick) EVT_MOTION(VornMultiEdit::LocalMotion)
            EVT_ENTER_WINDOW(VornMultiEdit::LocalEnterWindow)
                EVT_LEAVE_WINDOW(VornMultiEdit::LocalLeaveWindow)
                    EVT_TIMER(CaretBlink::kTimerId, VornMultiEdit::LocalTimer)
                        EVT_TIMER(DragScroll::kTimerId, VornMultiEdit::ShooftyTimer)
                            EVT_SET_FOCUS(VornMultiEdit::LocalSetFocus)
                                EVT_KILL_FOCUS(VornMultiEdit::LocalKillFocus)
                                    EVT_KEY_UP(VornMultiEdit::OnVornKeyUp)
                                        EVT_KEY_DOWN(VornMultiEdit::OnVornKeyDown)
                                            EVT_SIZE(VornMultiEdit::LocalOnSize)
                                                EVT_MOUSEWHEEL(VornMultiEdit::LocalWheel)
                                                    wxEND_EVENT_TABLE()

    // ---- Keys ------------------------------------------------------------------

    void VornMultiEdit::LocalChar(wxKeyEvent& event) {
  if (!m_bEditable || !m_bEnabled) {
    event.Skip();
    return;
  }
  const int code = event.GetKeyCode();
  if (event.ControlDown()) {
    switch (ControlLetter(event)) {
      case 'a':
        SetSelection(0, int(m_text.length()));
        break;
      case 'c':
        CopySelection();
        break;
      case 'x':
        CopySelection();
        DeleteSelection();
        break;
      case 'v':
        PasteClipboard();
        break;
      default:
        event.Skip();
        return;
    }
  } else if (code == WXK_BACK) {
    Backspace();
  } else if (code == WXK_RETURN || code == WXK_NUMPAD_ENTER) {
    DeleteSelection();
    Insert('\n');
  } else if (code > 0 && code <= 255 && std::isprint(code)) {
    ReplaceSelection(wxString(wxUniChar(code)));
  } else {
    event.Skip();
    return;
  }
  UpdateCaretPos(m_caret);
  CheckForScroll();
  Refresh(false);
}

void VornMultiEdit::OnVornKeyDown(wxKeyEvent& event) {
  if (!m_bEditable || !m_bEnabled) {
    event.Skip();
    return;
  }
  const bool shift = event.ShiftDown();
  switch (event.GetKeyCode()) {
    case WXK_LEFT:
      MoveCaret(m_caret - 1, shift);
      break;
    case WXK_RIGHT:
      MoveCaret(m_caret + 1, shift);
      break;
    case WXK_UP:
      MoveVertically(-1, shift);
      break;
    case WXK_DOWN:
      MoveVertically(1, shift);
      break;
    case WXK_HOME:
      MoveToLineEdge(false, shift);
      break;
    case WXK_END:
      MoveToLineEdge(true, shift);
      break;
    case WXK_DELETE:
      Delete();
      UpdateCaretPos(m_caret);
      break;
    default:
      event.Skip();
      return;
  }
  CheckForScroll();
  Refresh(false);
}

void VornMultiEdit::OnVornKeyUp(wxKeyEvent& event) {
  // Releases travel on to the parent windows.
  event.Skip();
}

void VornMultiEdit::MoveCaret(int index, bool extend) {
  index = std::clamp(index, 0, int(m_text.length()));
  if (extend) {
    // The fixed end: the caret's position when the selection was empty.
    if (m_selStart == m_selEnd) m_anchor = m_caret;
    m_selStart = std::min(m_anchor, index);
    m_selEnd = std::max(m_anchor, index);
  } else {
    m_anchor = m_selStart = m_selEnd = index;
  }
  m_keptX = -1;
  UpdateCaretPos(index);
}

void VornMultiEdit::MoveVertically(int lines, bool extend) {
  int line, x;
  IndexToScreen(m_caret, line, x);
  const int keptX = m_keptX >= 0 ? m_keptX : x;
  const int target = line + lines;
  if (target < 0 || target >= m_lineCount) return;
  MoveCaret(IndexOnLine(target, keptX), extend);
  // Through short lines and back, the caret returns to the x it left from.
  m_keptX = keptX;
}

void VornMultiEdit::MoveToLineEdge(bool end, bool extend) {
  const int line = GetCurrentLineNo();
  MoveCaret(end ? multiedit::LastCaretIndex(m_text, m_lineStarts, line) : m_lineStarts[line],
            extend);
}

// ---- Clipboard and words -----------------------------------------------------

void VornMultiEdit::CopySelection() {
  int start, end;
  GetSelection(start, end);
  if (start < end) VornEditShared::CopyToClipboard(m_text.Mid(start, end - start));
}

void VornMultiEdit::PasteClipboard() {
  wxString pasted;
  if (!VornEditShared::PasteFromClipboard(pasted)) return;
  ReplaceSelection(pasted);
  // A long paste may end many lines down: bring its end into view.
  for (int guard = m_lineCount; guard > 0; --guard) {
    const int line = GetCurrentLineNo();
    if (line >= GetTopLine() && line < GetTopLine() + m_visibleLines) break;
    UpdateCaretPos(m_caret);
  }
}

void VornMultiEdit::SelectWordAt(int index) {
  // index is a boundary: the word may lie on either side of it.
  int start, end;
  if (!VornEditShared::WordAt(m_text, index, start, end) &&
      !VornEditShared::WordAt(m_text, index - 1, start, end))
    return;
  m_anchor = m_selStart = start;
  m_selEnd = end;
  UpdateCaretPos(end);
}

// ---- Mouse -------------------------------------------------------------------

void VornMultiEdit::LocalLeftDown(wxMouseEvent& event) {
  event.Skip();  // the base keeps its mouse state
  if (!m_bEditable || !m_bEnabled || !InTextArea(event.GetX(), event.GetY())) return;
  SetFocus();
  const int index = ScreenToIndex(event.GetX() - m_textX, event.GetY() - m_textY);
  MoveCaret(index, event.ShiftDown());
  m_bDragging = true;
  CaptureMouse();
  Refresh(false);
}

void VornMultiEdit::LocalLeftUp(wxMouseEvent& event) {
  event.Skip();
  m_bDragging = false;
  m_pDragScroll->Cancel();
  ReleaseMouse();
}

void VornMultiEdit::LocalLeftDClick(wxMouseEvent& event) {
  if (m_pControlGroup) m_pControlGroup->ControlDoubleClick(GetId(), this);
  if (!m_bEditable || !m_bEnabled || !InTextArea(event.GetX(), event.GetY())) return;
  SelectWordAt(ScreenToIndex(event.GetX() - m_textX, event.GetY() - m_textY));
  Refresh(false);
}

void VornMultiEdit::LocalMotion(wxMouseEvent& event) {
  event.Skip();
  const int x = event.GetX(), y = event.GetY();
  if (!m_bDragging) {
    const bool inside = InTextArea(x, y);
    if (inside != m_bCursorShown) {
      SetCursor(inside ? m_ibeamCursor : wxNullCursor);
      m_bCursorShown = inside;
    }
    return;
  }
  DragTo(x, y);
  if (!InTextArea(x, y)) {
    // Keep scrolling while the pointer stays outside.
    m_pDragScroll->Arm(event);
  }
}

void VornMultiEdit::DragTo(int x, int y) {
  const int cx = std::clamp(x - m_textX, 0, m_textWidth);
  // Above or below the area aims one line beyond the visible ones, so
  // UpdateCaretPos scrolls a line per motion.
  const int index = ScreenToIndex(cx, y - m_textY);
  MoveCaret(index, true);
  if (m_pScrollBar && m_pScrollBar->IsVisible()) SyncScrollBar();
  Refresh(false);
}

void VornMultiEdit::ShooftyTimer(wxTimerEvent&) {
  if (!m_bDragging) return;
  wxMouseEvent motion = m_pDragScroll->Motion();
  LocalMotion(motion);
}

void VornMultiEdit::LocalEnterWindow(wxMouseEvent& event) {
  event.Skip();
}

void VornMultiEdit::LocalLeaveWindow(wxMouseEvent& event) {
  event.Skip();
  if (m_bCursorShown && !m_bDragging) {
    SetCursor(wxNullCursor);
    m_bCursorShown = false;
  }
}

void VornMultiEdit::LocalWheel(wxMouseEvent& event) {
  VornMultiEditScrollBar* bar = m_pScrollBar.get();
  if (!bar || !bar->IsVisible()) {
    event.Skip();
    return;
  }
  // The bar moves by its repeat step per notch, which is one line.
  wxMouseEvent forwarded(event);
  forwarded.SetEventObject(bar);
  bar->GetEventHandler()->ProcessEvent(forwarded);
}

// ---- Focus, timers, size -------------------------------------------------------

void VornMultiEdit::LocalSetFocus(wxFocusEvent& event) {
  event.Skip();
  if (!m_bEnabled) return;
  m_bHasFocus = true;
  m_pBlink->Start();
  m_bModified = false;
  Refresh(false);
}

void VornMultiEdit::LocalKillFocus(wxFocusEvent& event) {
  event.Skip();
  m_pBlink->Stop();
  m_bHasFocus = false;
  m_bDragging = false;
  ReleaseMouse();
  Refresh(false);
  if (m_bModified && m_pControlGroup) ReportText();
  m_bModified = false;
}

void VornMultiEdit::LocalTimer(wxTimerEvent&) {
  m_pBlink->Toggle();
  Refresh(false);
}

void VornMultiEdit::LocalOnSize(wxSizeEvent& event) {
  event.Skip();
  if (!m_backBuffer.IsOk()) return;  // still inside Create
  if (!m_pPicture) {
    const wxSize size = event.GetSize();
    m_textWidth = std::max(0, size.x - m_textX);
    m_textHeight = std::max(0, size.y - m_textY);
  }
  SetLineHeight();
  UpdateLineBreaks();
  m_caret = std::min(m_caret, int(m_text.length()));
  PlaceScrollBar();
  CheckForScroll();
  Refresh(false);
}
