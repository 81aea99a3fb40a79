// The single-line edit's reactions: typed characters, navigation keys, the
// mouse, focus, the caret blink and the drag scroll.
#include <wx/dcclient.h>

#include <algorithm>
#include <cwctype>

#include "EditShared.h"
#include "vorn/VornControlGroup.h"
#include "vorn/VornEdit.h"
#include "vornhost/Debug.h"

namespace {

constexpr const char* kTraceMapped = "mouse mapped to character %d\n";
// Pixels kept free right of the caret so that its pen is not clipped.
constexpr int kCaretRoom = 1;

enum CharCode : int {
  kBackspace = 8,
  kEnter = 13,
  kCtrlA = 1,
  kCtrlC = 3,
  kCtrlV = 22,
  kCtrlX = 24,
};

// Control letters arrive as control codes on some platforms and as the
// letter in either case on others.
bool IsControlLetter(const wxKeyEvent& event, char letter, int code) {
  const int key = event.GetKeyCode();
  return event.ControlDown() && (key == code || key == letter || key == letter - 'a' + 'A');
}

// Printable codes of the 8-bit range, as the C library classes them.
bool IsTypable(int code) {
  return code >= 32 && code <= 255 && std::iswprint(static_cast<wint_t>(code));
}

// A measuring DC in the edit's font.
struct MeasureDC {
  explicit MeasureDC(wxWindow* window) : dc(window) { dc.SetFont(window->GetFont()); }
  wxClientDC dc;
};

}  // namespace

// ---- State changes --------------------------------------------------------------

int VornEdit::Anchor() const {
  if (!HasSelection()) return m_caret;
  return m_caret == m_selEnd ? m_selStart : m_selEnd;
}

void VornEdit::MoveCaret(int position, bool extend) {
  const int anchor = Anchor();
  m_caret = std::clamp(position, 0, static_cast<int>(m_text.length()));
  if (extend) {
    m_selStart = std::min(anchor, m_caret);
    m_selEnd = std::max(anchor, m_caret);
  } else {
    m_selStart = m_selEnd = m_caret;
  }
}

void VornEdit::DeleteSelection() {
  if (!HasSelection()) return;
  const int start = std::min(m_selStart, m_selEnd), end = std::max(m_selStart, m_selEnd);
  m_text.erase(static_cast<size_t>(start), static_cast<size_t>(end - start));
  m_caret = m_selStart = m_selEnd = start;
  m_bModified = true;
}

void VornEdit::ReplaceSelection(const wxString& insert) {
  DeleteSelection();
  m_text.insert(static_cast<size_t>(m_caret), insert);
  m_caret += static_cast<int>(insert.length());
  m_selStart = m_selEnd = m_caret;
  m_bModified = true;
  LimitLength();
}

void VornEdit::Copy() {
  if (m_style == ES_PASSWORD || !HasSelection()) return;
  const int start = std::min(m_selStart, m_selEnd), end = std::max(m_selStart, m_selEnd);
  VornEditShared::CopyToClipboard(
      m_text.Mid(static_cast<size_t>(start), static_cast<size_t>(end - start)));
}

void VornEdit::Paste() {
  wxString text;
  if (!VornEditShared::PasteFromClipboard(text)) return;
  // One line: line breaks and other control characters become blanks.
  for (auto it = text.begin(); it != text.end(); ++it)
    if ((*it).GetValue() < 32) *it = ' ';
  ReplaceSelection(text);
}

void VornEdit::KeepCaretVisible() {
  MeasureDC measure(this);
  wxDC& dc = measure.dc;
  const wxString shown = ShownText();
  const int length = static_cast<int>(shown.length());
  if (m_caret == 0) {
    m_scroll = 0;
  } else {
    // The first character at or right of the left edge.
    int first = 0;
    while (first < length && VornEditShared::PrefixWidth(dc, shown, first) < -m_scroll) ++first;
    while (CaretX(dc, shown) > m_textWidth - kCaretRoom && first < m_caret) {
      ++first;
      m_scroll = -VornEditShared::PrefixWidth(dc, shown, first);
    }
    while (CaretX(dc, shown) < 0 && first > 0) {
      --first;
      m_scroll = -VornEditShared::PrefixWidth(dc, shown, first);
    }
  }
  Refresh(false);
}

bool VornEdit::InsideTextArea(int x, int y) const {
  return x >= m_textX && x <= m_textX + m_textWidth && y >= m_textY && y <= m_textY + m_textHeight;
}

void VornEdit::SetPointer(bool ibeam) {
  if (ibeam == m_bCursorShown) return;
  SetCursor(ibeam ? m_ibeam : wxNullCursor);
  m_bCursorShown = ibeam;
}

void VornEdit::DragTo(int x) {
  MeasureDC measure(this);
  const wxString shown = ShownText();
  const int clamped = std::clamp(x, m_textX, m_textX + m_textWidth);
  int target = MapMouseToCharacter(shown, clamped - m_textX - m_scroll, measure.dc);
  // Outside the area each replay moves at least one character on, so the
  // text keeps scrolling even when the edge falls inside a character.
  if (x > m_textX + m_textWidth) target = std::max(target, m_caret + 1);
  if (x < m_textX) target = std::min(target, m_caret - 1);
  MoveCaret(target, true);
  dprintf(kTraceMapped, m_caret);
  KeepCaretVisible();
}

void VornEdit::SelectWordAt(int x) {
  MeasureDC measure(this);
  const int index =
      VornEditShared::CharacterUnderX(ShownText(), x - m_textX - m_scroll, measure.dc);
  int start = 0, end = 0;
  if (!VornEditShared::WordAt(ShownText(), index, start, end)) return;
  m_selStart = start;
  m_selEnd = m_caret = end;
  Refresh(false);
}

// ---- Keys -------------------------------------------------------------------------

void VornEdit::LocalChar(wxKeyEvent& event) {
  if (!Interactive()) {
    event.Skip();
    return;
  }
  const int code = event.GetKeyCode();
  if (code == kBackspace) {
    if (HasSelection()) {
      DeleteSelection();
    } else if (m_caret > 0) {
      m_text.erase(static_cast<size_t>(m_caret - 1), 1);
      MoveCaret(m_caret - 1, false);
      m_bModified = true;
    }
  } else if (code == kEnter || code == WXK_NUMPAD_ENTER) {
    CheckFormating();
    Report(true);
    m_bModified = false;
  } else if (IsControlLetter(event, 'a', kCtrlA)) {
    m_selStart = 0;
    m_selEnd = m_caret = static_cast<int>(m_text.length());
  } else if (IsControlLetter(event, 'c', kCtrlC)) {
    Copy();
  } else if (IsControlLetter(event, 'x', kCtrlX)) {
    if (m_style == ES_PASSWORD) return;
    Copy();
    DeleteSelection();
  } else if (IsControlLetter(event, 'v', kCtrlV)) {
    Paste();
  } else if (!event.ControlDown() && IsTypable(static_cast<int>(event.GetUnicodeKey()))) {
    ReplaceSelection(wxString(event.GetUnicodeKey()));
  } else {
    return;
  }
  KeepCaretVisible();
}

void VornEdit::OnVornKeyDown(wxKeyEvent& event) {
  if (!Interactive()) {
    event.Skip();
    return;
  }
  const int length = static_cast<int>(m_text.length());
  switch (event.GetKeyCode()) {
    case WXK_LEFT:
    case WXK_NUMPAD_LEFT:
      MoveCaret(m_caret - 1, event.ShiftDown());
      break;
    case WXK_RIGHT:
    case WXK_NUMPAD_RIGHT:
      MoveCaret(m_caret + 1, event.ShiftDown());
      break;
    case WXK_HOME:
    case WXK_NUMPAD_HOME:
      MoveCaret(0, event.ShiftDown());
      break;
    case WXK_END:
    case WXK_NUMPAD_END:
      MoveCaret(length, event.ShiftDown());
      break;
    case WXK_DELETE:
    case WXK_NUMPAD_DELETE:
      if (HasSelection()) {
        DeleteSelection();
      } else if (m_caret < length) {
        m_text.erase(static_cast<size_t>(m_caret), 1);
        m_bModified = true;
      }
      break;
    default:
      event.Skip();
      return;
  }
  KeepCaretVisible();
}

void VornEdit::OnVornKeyUp(wxKeyEvent& event) {
  if (Interactive() && event.GetKeyCode() == WXK_TAB && m_pCallBack) {
    m_pCallBack->TabPressed(this);
    return;
  }
  // The window's own handler forwards the key to the parents.
  event.Skip();
}

// ---- Mouse ------------------------------------------------------------------------

void VornEdit::LocalLeftDown(wxMouseEvent& event) {
  if (!Interactive() || !InsideTextArea(event.GetX(), event.GetY())) return;
  if (FindFocus() != this) SetFocus();
  MeasureDC measure(this);
  MoveCaret(MapMouseToCharacter(ShownText(), event.GetX() - m_scroll - m_textX, measure.dc), false);
  Refresh(false);
  m_bDragging = true;
  CaptureMouse();
}

void VornEdit::LocalLeftUp(wxMouseEvent&) {
  m_bDragging = false;
  m_pDrag->Cancel();
  ReleaseMouse();
}

void VornEdit::LocalLeftDClick(wxMouseEvent& event) {
  if (m_pControlGroup)
    m_pControlGroup->ControlDoubleClick(static_cast<unsigned int>(GetId()), this);
  if (Interactive() && InsideTextArea(event.GetX(), event.GetY())) SelectWordAt(event.GetX());
}

void VornEdit::LocalMotion(wxMouseEvent& event) {
  const int x = event.GetX(), y = event.GetY();
  if (!m_bDragging) {
    SetPointer(Interactive() && InsideTextArea(x, y));
    return;
  }
  DragTo(x);
  if (!InsideTextArea(x, y)) m_pDrag->Arm(event);
}

void VornEdit::LocalEnterWindow(wxMouseEvent& event) {
  SetPointer(Interactive() && InsideTextArea(event.GetX(), event.GetY()));
}

void VornEdit::LocalLeaveWindow(wxMouseEvent&) {
  if (!m_bDragging) SetPointer(false);
}

// ---- Focus and timers -------------------------------------------------------------

void VornEdit::LocalSetFocus(wxFocusEvent& event) {
  event.Skip();
  if (!m_bEnabled) return;
  m_bHasFocus = true;
  m_pBlink->Start();
  m_bModified = false;
  Refresh(false);
}

void VornEdit::LocalKillFocus(wxFocusEvent& event) {
  event.Skip();
  m_pBlink->Stop();
  m_bHasFocus = false;
  m_bDragging = false;
  m_pDrag->Cancel();
  ReleaseMouse();
  Refresh(false);
  if (m_bModified) {
    CheckFormating();
    Report(true);
  }
  m_bModified = false;
  MoveCaret(m_caret, false);
}

void VornEdit::LocalTimer(wxTimerEvent&) {
  m_pBlink->Toggle();
  Refresh(false);
}

void VornEdit::ShooftyTimer(wxTimerEvent&) {
  if (!m_bDragging) return;
  wxMouseEvent motion = m_pDrag->Motion();
  LocalMotion(motion);
}

void VornEdit::LocalOnSize(wxSizeEvent& event) {
  event.Skip();
  if (m_pPicture) return;
  const wxSize size = event.GetSize();
  if (size.x <= 0 || size.y <= 0) return;
  m_backBuffer = wxBitmap(size.x, size.y);
  m_textWidth = size.x - m_textX;
  m_textHeight = size.y - m_textY;
  Refresh(false);
}

// clang-format off
wxBEGIN_EVENT_TABLE(VornEdit, VornControl)
  EVT_CHAR(VornEdit::LocalChar)
  EVT_LEFT_DOWN(VornEdit::LocalLeftDown)
  EVT_LEFT_UP(VornEdit::LocalLeftUp)
  EVT_LEFT_DCLICK(VornEdit::LocalLeftDClick)
  EVT_MOTION(VornEdit::LocalMotion)
  EVT_ENTER_WINDOW(VornEdit::LocalEnterWindow)
  EVT_LEAVE_WINDOW(VornEdit::LocalLeaveWindow)
  EVT_TIMER(VornEditShared::CaretBlink::kTimerId, VornEdit::LocalTimer)
  EVT_TIMER(VornEditShared::DragScroll::kTimerId, VornEdit::ShooftyTimer)
  EVT_SET_FOCUS(VornEdit::LocalSetFocus)
  EVT_KILL_FOCUS(VornEdit::LocalKillFocus)
  EVT_SIZE(VornEdit::LocalOnSize)
  EVT_KEY_UP(VornEdit::OnVornKeyUp)
  EVT_KEY_DOWN(VornEdit::OnVornKeyDown)
wxEND_EVENT_TABLE()
    // clang-format on
