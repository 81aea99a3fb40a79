#pragma once
// What the single-line and the multi-line edit share: the mapping of a pointer
// x to a character boundary, word selection, the clipboard, and the caret
// blink and drag-scroll timers. Private to the library. Everything works on a
// plain string, a DC in the edit's font and x measured from the start of the
// text, so neither edit's members leak in here.
#include <wx/dc.h>
#include <wx/event.h>
#include <wx/string.h>
#include <wx/timer.h>

namespace VornEditShared {

// ---- Measuring and mapping ---------------------------------------------------

// Pixel width of the first count characters of text (count is clamped).
int PrefixWidth(wxDC& dc, const wxString& text, int count);

// The character boundary (0 to length) nearest to x, x measured from the
// start of the text. With W(k) the width of the first k characters, boundary
// k + 1 is chosen when (W(k) + W(k + 1)) / 2 <= x; a pointer exactly on a
// midpoint goes to the right-hand boundary. At or right of the whole width
// the result is the length; left of the first midpoint it is 0.
int MapXToCharacter(const wxString& text, int x, wxDC& dc);

// The index of the character whose cell [W(i), W(i + 1)) holds x, or -1 when
// x lies left of the text or at or right of its end.
int CharacterUnderX(const wxString& text, int x, wxDC& dc);

// ---- Words -------------------------------------------------------------------

// True for the characters that end a word (C isspace over the 8-bit range).
bool IsBlank(wxUniChar c);

// The word holding the character at index: the longest run of non-blank
// characters around it, as [start, end). False, with start and end left
// alone, when index is out of range or the character there is blank: a
// double click on white space selects nothing.
bool WordAt(const wxString& text, int index, int& start, int& end);

// ---- Clipboard ---------------------------------------------------------------

// Puts text on the system clipboard as text; false when the clipboard could
// not be opened.
bool CopyToClipboard(const wxString& text);

// Takes text from the system clipboard; false (out untouched) when the
// clipboard cannot be opened or offers no text.
bool PasteFromClipboard(wxString& out);

// ---- Timers ------------------------------------------------------------------

// The caret's blink: a repeating timer that posts to its owner with id
// kTimerId; the owner's handler calls Toggle and redraws.
class CaretBlink {
 public:
  static constexpr int kTimerId = 101;
  static constexpr int kPeriodMs = 500;

  explicit CaretBlink(wxEvtHandler* owner) : m_timer(owner, kTimerId) {}
  CaretBlink(const CaretBlink&) = delete;
  CaretBlink& operator=(const CaretBlink&) = delete;

  // Starts blinking with the caret shown.
  void Start();
  // Stops the timer; the phase is left as it is.
  void Stop();
  // One tick: flips the phase.
  void Toggle() { m_bPhase = !m_bPhase; }
  bool CaretShown() const { return m_bPhase; }
  bool IsRunning() const { return m_timer.IsRunning(); }
  wxTimer& GetTimer() { return m_timer; }

 private:
  wxTimer m_timer;
  bool m_bPhase = true;
};

// Keeps a drag scrolling while the pointer rests outside the text: the owner
// arms it with each motion outside the text area; the one-shot timer (id
// kTimerId) then lets the owner's handler replay that motion.
class DragScroll {
 public:
  static constexpr int kTimerId = 102;
  static constexpr int kDelayMs = 50;

  explicit DragScroll(wxEvtHandler* owner) : m_timer(owner, kTimerId) {}
  DragScroll(const DragScroll&) = delete;
  DragScroll& operator=(const DragScroll&) = delete;

  // Keeps a copy of motion and starts the one-shot timer.
  void Arm(const wxMouseEvent& motion);
  // Stops the timer; a pending replay is dropped.
  void Cancel();
  bool IsArmed() const { return m_timer.IsRunning(); }
  // A copy of the kept motion, safe to replay even if the replay re-arms.
  wxMouseEvent Motion() const { return m_motion; }
  wxTimer& GetTimer() { return m_timer; }

 private:
  wxTimer m_timer;
  wxMouseEvent m_motion;
};

}  // namespace VornEditShared
