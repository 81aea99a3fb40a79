#pragma once
// The single-line text field: custom drawn over an edit widget picture (or a
// plain colour), with a blinking caret, mouse and keyboard selection, the
// clipboard, horizontal scrolling of long texts and a per-field style that
// formats numbers. It reports the finished text to its group as a
// StringValChanged hint. Also the three display boxes built on it.
#include <wx/bitmap.h>
#include <wx/cursor.h>
#include <wx/timer.h>

#include <memory>

#include "vorn/AssetManager.h"
#include "vorn/ValInterface.h"
#include "vorn/VornControl.h"
#include "vornhost/Types.h"

namespace VornEditShared {
class CaretBlink;
class DragScroll;
}  // namespace VornEditShared

class VornEdit;

// Declared by the host: told when Tab is released in an edit.
class VornEditCallBack {
 public:
  virtual void TabPressed(VornEdit* edit) = 0;

 protected:
  ~VornEditCallBack() = default;
};

class VornEdit : public VornControl {
 public:
  enum EDITSTYLE {
    ES_INT = 0,       // rewritten as "%d" when reported
    ES_REAL = 1,      // rewritten as "%f"
    ES_TEXT = 2,      // plain text
    ES_PASSWORD = 3,  // drawn as stars; copy and cut refused
    ES_REAL2 = 4,     // rewritten as "%.2f"
    ES_MAX5 = 5,      // at most 5 characters
  };
  // Window style bit: a read-only field draws its text flush right.
  static constexpr long kRightAligned = 0x200;

  // ---- Construction -----------------------------------------------------------
  VornEdit();
  // From an edit widget picture (may be null) and its layout; wxStyle is read
  // only for kRightAligned.
  VornEdit(const wxBitmap* picture, VornEditInfo& info, int x, int y, wxWindow* parent, int id,
           bool editable, int style, VornControlGroup* group, long wxStyle = 0);
  // A read-only text on a plain fill.
  VornEdit(int x, int y, int w, int h, wxWindow* parent, const wxColour& textColour,
           const wxColour& fillColour, int id, VornControlGroup* group, long wxStyle = 0);
  ~VornEdit() override;

  void OnDraw(wxDC* dc) override;
  void OnEnable(bool enabled) override;

  virtual bool Create(const wxBitmap* picture, VornEditInfo& info, int x, int y, wxWindow* parent,
                      int id, bool editable, int style, VornControlGroup* group, long wxStyle = 0);
  virtual bool Create(int x, int y, int w, int h, wxWindow* parent, const wxColour& textColour,
                      const wxColour& fillColour, int id, VornControlGroup* group,
                      long wxStyle = 0);

  // ---- The text -----------------------------------------------------------------
  // Texts come and go as UTF-8; caret and selection count characters.
  // Ignored while the field has the focus, so typing is never overwritten.
  // With notify the text is reported as if the user had entered it.
  virtual void SetText(const VornString& text, bool notify = false);
  virtual void GetText(VornString& out);
  virtual void SetEditable(bool editable);
  virtual bool IsEditable();
  // Hook: called with a report's text just before it is sent. Override to
  // convert; this class leaves the text as it is.
  virtual void DoSendTranslation(VornString& text);

  // ---- Operations a host calls --------------------------------------------------
  void SetCallBackHandler(VornEditCallBack* handler) { m_pCallBack = handler; }
  // The fill drawn when there is no widget picture.
  void SetBackgroundCol(const wxColour& colour);
  // The caret is black unless a skin asks for another colour.
  void SetCaretColour(const wxColour& colour);
  bool IThinkIHaveFocus() const { return m_bHasFocus; }
  // Rewrites the text as the style's number format.
  void CheckFormating();
  // The character boundary nearest to x, x measured from the start of text.
  int MapMouseToCharacter(wxString text, int x, wxDC& dc);
  // Only editable, enabled fields take the focus.
  bool AcceptsFocus() const override;

  // ---- State, for hosts and tests -------------------------------------------------
  int GetStyle() const { return m_style; }
  int GetCaret() const { return m_caret; }
  int GetSelectionStart() const { return m_selStart; }
  int GetSelectionEnd() const { return m_selEnd; }
  int GetScroll() const { return m_scroll; }
  bool IsModified() const { return m_bModified; }
  wxRect GetTextArea() const { return wxRect(m_textX, m_textY, m_textWidth, m_textHeight); }
  bool IsCaretShown() const;
  wxTimer& GetBlinkTimer();
  wxTimer& GetDragTimer();

  using VornControl::Create;

 protected:
  // ---- Event handlers ------------------------------------------------------------
  void LocalChar(wxKeyEvent& event);
  void LocalLeftDown(wxMouseEvent& event);
  void LocalLeftUp(wxMouseEvent& event);
  void LocalLeftDClick(wxMouseEvent& event);
  void LocalMotion(wxMouseEvent& event);
  void LocalEnterWindow(wxMouseEvent& event);
  void LocalLeaveWindow(wxMouseEvent& event);
  void LocalTimer(wxTimerEvent& event);
  void ShooftyTimer(wxTimerEvent& event);
  void LocalSetFocus(wxFocusEvent& event);
  void LocalKillFocus(wxFocusEvent& event);
  void LocalOnSize(wxSizeEvent& event);
  void OnVornKeyUp(wxKeyEvent& event);
  void OnVornKeyDown(wxKeyEvent& event);

  // ---- State changes -------------------------------------------------------------
  bool Interactive() const { return m_bEditable && m_bEnabled; }
  bool HasSelection() const { return m_selStart != m_selEnd; }
  // The end of the selection that stays put while the caret moves.
  int Anchor() const;
  void MoveCaret(int position, bool extend);
  void ReplaceSelection(const wxString& insert);
  void DeleteSelection();
  void LimitLength();
  void Copy();
  void Paste();
  void SelectWordAt(int x);
  void DragTo(int x);
  void KeepCaretVisible();
  // The text report: ControlSelected first when the user finished the edit.
  void Report(bool selectFirst);
  void SendText();
  bool InsideTextArea(int x, int y) const;
  void SetPointer(bool ibeam);

  // ---- Drawing helpers (read state only) -------------------------------------------
  // The string drawn: stars in a password field.
  wxString ShownText() const;
  void DrawBackground(wxDC& dc) const;
  void DrawString(wxDC& dc, const wxString& shown) const;
  void DrawCaret(wxDC& dc, const wxString& shown) const;
  // The caret's x relative to the text area, measured in dc's font.
  int CaretX(wxDC& dc, const wxString& shown) const;

  int m_style = ES_TEXT;
  wxString m_text;
  wxBitmap m_backBuffer;
  std::unique_ptr<VornEditShared::CaretBlink> m_pBlink;
  wxCursor m_ibeam{wxCURSOR_IBEAM};
  std::unique_ptr<VornEditShared::DragScroll> m_pDrag;
  const wxBitmap* m_pPicture = nullptr;  // not owned
  bool m_bEditable = false;
  int m_caret = 0;
  int m_selStart = 0;
  int m_selEnd = 0;
  int m_scroll = 0;  // 0 or negative
  bool m_bDragging = false;
  bool m_bHasFocus = false;
  bool m_bCursorShown = false;
  int m_textX = 0;
  int m_textWidth = 0;
  int m_textY = 0;
  int m_textHeight = 0;
  wxColour m_selectionColour{*wxBLACK};
  wxColour m_textColour{*wxBLACK};
  wxColour m_fillColour{*wxWHITE};
  wxColour m_caretColour{*wxBLACK};
  bool m_bRightAligned = false;
  bool m_bModified = true;
  VornEditCallBack* m_pCallBack = nullptr;  // not owned

 private:
  void InitTimers();
  void FinishCreate(int w, int h, long wxStyle);

  wxDECLARE_EVENT_TABLE();
};

// The text of an edit.
VornString GetText(VornEdit* edit);

// A display-only box showing the date of the number it is sent.
class DateEditBox : public VornEdit {
 public:
  DateEditBox() = default;
  DateEditBox(const wxBitmap* picture, VornEditInfo& info, int x, int y, wxWindow* parent, int id,
              bool editable, int style, VornControlGroup* group, long wxStyle = 0)
      : VornEdit(picture, info, x, y, parent, id, editable, style, group, wxStyle) {}
  // Real and integer value messages, and text read as a real; other hints
  // are ignored.
  void OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) override;

 protected:
  virtual VornString Format(double value) const;
};

// A display-only box showing the time of day of the number it is sent.
class TimeEditBox : public DateEditBox {
 public:
  using DateEditBox::DateEditBox;

 protected:
  VornString Format(double value) const override;
};

// Shows a value v (normally 0 to 1) as lo + (hi - lo) * v, 0 to 100 unless
// set otherwise, and reports a typed number converted back.
class ScaleEditBox : public VornEdit {
 public:
  ScaleEditBox() = default;
  ScaleEditBox(const wxBitmap* picture, VornEditInfo& info, int x, int y, wxWindow* parent, int id,
               bool editable, int style, VornControlGroup* group, long wxStyle = 0)
      : VornEdit(picture, info, x, y, parent, id, editable, style, group, wxStyle) {}

  void OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) override;
  void DoSendTranslation(VornString& text) override;

  void SetScale(double lo, double hi);
  double GetLo() const { return m_lo; }
  double GetHi() const { return m_hi; }

 protected:
  double m_hi = 100.0;
  double m_lo = 0.0;
};
