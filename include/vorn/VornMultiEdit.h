#pragma once
// The multi-line text box: wraps its text into lines that fit the text area
// of an edit widget picture, scrolls by whole lines with its own scroll bar
// when the lines do not fit, and reports the finished text as a
// StringValChanged hint. VornMultiEditScrollBar is that scroll bar.
#include <wx/bitmap.h>
#include <wx/cursor.h>
#include <wx/timer.h>
#include <wx/weakref.h>

#include <memory>
#include <vector>

#include "vorn/AssetManager.h"
#include "vorn/VornControl.h"
#include "vorn/VornSimpleScrollBar.h"

class VornMultiEdit;
namespace VornEditShared {
class CaretBlink;
class DragScroll;
}  // namespace VornEditShared

// The box's scroll bar: a child of the box's parent, inside the right edge
// of the text area. Its value 0..1 is the first visible line over the last possible
// first line, so the thumb and the view always agree.
class VornMultiEditScrollBar : public VornSimpleScrollBar {
 public:
  // Creates the bar at once.
  VornMultiEditScrollBar(const wxColour& first, const wxColour& second, const wxColour& third,
                         int x, int y, int height, wxWindow* parent, int id = wxID_ANY);

  void SetBox(VornMultiEdit* box) { m_pBox = box; }
  VornMultiEdit* GetBox() const { return m_pBox; }

  // Scrolls the box to the slider value.
  void OnSliderChange() override;

 private:
  void OnLostFocus(wxFocusEvent& event);

  VornMultiEdit* m_pBox = nullptr;  // not owned

  wxDECLARE_EVENT_TABLE();
};

class VornMultiEdit : public VornControl {
 public:
  // ---- Construction -------------------------------------------------------
  VornMultiEdit();
  // picture: the widget background (not owned; null draws the info's
  // background colour). Bit 31 of style forbids the scroll bar.
  VornMultiEdit(const wxBitmap* picture, VornEditInfo& info, int x, int y, wxWindow* parent, int id,
                bool editable, VornControlGroup* group, long style = 0);
  ~VornMultiEdit() override;

  void OnDraw(wxDC* dc) override;

  virtual bool Create(const wxBitmap* picture, VornEditInfo& info, int x, int y, wxWindow* parent,
                      int id, bool editable, VornControlGroup* group, long style = 0);
  using VornControl::Create;

  // ---- The text -----------------------------------------------------------
  // Texts are UTF-8 at this interface. Stores, re-wraps and refreshes; with
  // notify reports the text.
  virtual void SetText(const VornString& text, bool notify);
  virtual void GetText(VornString& out);
  virtual void SetEditable(bool editable);
  virtual bool IsEditable() const;

  // Only editable, enabled boxes take the focus.
  bool AcceptsFocus() const override;
  void OnEnable(bool enabled) override;
  // The scroll bar, a sibling window, shows and hides with the box.
  bool Show(bool show) override;
  using VornWindow::Show;

  // ---- Operations a host calls ------------------------------------------
  // Sets the font, then recomputes the line height and the wrapping.
  bool SetFont(const wxFont& font) override;
  // Outline, background and hover colours of the scroll bar.
  void SetScrollColours(const wxColour& first, const wxColour& second, const wxColour& third);
  // Scrolls by delta pixels (whole lines are drawn); clamped to the text.
  using wxWindow::SetScrollPos;
  void SetScrollPos(double delta);
  // The line holding the caret.
  int GetCurrentLineNo() const;
  // Shows the scroll bar when the lines do not fit, hides it when they do.
  void CheckForScroll();
  // Re-wraps the whole text.
  void UpdateLineBreaks();
  // The token at index (advancing index past it); false at the text's end.
  bool FindToken(const wxString& text, wxString& token, int& index);

  // ---- Editing primitives (each sets modified and re-wraps) ---------------
  void Insert(char c);
  void Insert(const VornString& text);
  void Delete();
  void Backspace();
  // Moves the caret to index and scrolls at most one line toward it.
  void UpdateCaretPos(int index);

  // ---- Mapping between text and screen ---------------------------------
  // The line holding index and the x of index on it (relative to the line).
  void IndexToScreen(int index, int& line, int& x);
  // The index nearest to (x, y), relative to the text area's top left.
  int ScreenToIndex(int x, int y);
  // The index on line nearest to x (relative to the line).
  int IndexOnLine(int line, int x);

  void DrawSingleLine(wxDC& dc, int line, int y);
  void DrawBlinkingCaret(wxDC& dc);

  // ---- State for hosts and tests ----------------------------------------
  int GetCaret() const { return m_caret; }
  void GetSelection(int& start, int& end) const;
  void SetSelection(int start, int end);
  double GetFirstVisibleLine() const { return m_firstVisibleLine; }
  // The first line actually drawn: scrolling is by whole lines.
  int GetTopLine() const;
  int GetLineCount() const { return m_lineCount; }
  int GetVisibleLines() const { return m_visibleLines; }
  int GetLineHeight() const { return m_lineHeight; }
  const std::vector<int>& GetLineStarts() const { return m_lineStarts; }
  VornMultiEditScrollBar* GetScrollBar() const { return m_pScrollBar.get(); }
  bool IsModified() const { return m_bModified; }
  bool HasFocusFlag() const { return m_bHasFocus; }
  wxRect GetTextArea() const { return wxRect(m_textX, m_textY, m_textWidth, m_textHeight); }
  // The width lines wrap to: the text area less the scroll bar's strip
  // when a bar is allowed.
  int GetWrapWidth() const;
  // The largest first visible line: the line count less the visible lines.
  int GetMaxFirstLine() const;

  // Event handlers, public so that hosts and tests may send events through
  // the window's handler or call them directly.
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
  void OnVornKeyUp(wxKeyEvent& event);
  void OnVornKeyDown(wxKeyEvent& event);
  void LocalOnSize(wxSizeEvent& event);
  void LocalWheel(wxMouseEvent& event);

 private:
  void InitState();
  void SetLineHeight();
  // Re-wraps after text [at, at + removed) became `inserted` characters.
  void TextChanged(int at, int removed, int inserted);
  void InsertText(const wxString& text);
  void ReplaceSelection(const wxString& text);
  bool DeleteSelection();
  void MoveCaret(int index, bool extend);
  void MoveVertically(int lines, bool extend);
  void MoveToLineEdge(bool end, bool extend);
  void ReportText();
  void CopySelection();
  void PasteClipboard();
  void SelectWordAt(int index);
  void ScrollToLine(double line);
  void SyncScrollBar();
  void PlaceScrollBar();
  bool InTextArea(int x, int y) const;
  void DragTo(int x, int y);
  int TextWidth(const wxString& piece);

  wxColour m_scrollColours[3];
  bool m_bScrollAllowed = true;
  // Created on first need as a child of our parent; deleted with the box
  // unless wx deleted it first.
  wxWeakRef<VornMultiEditScrollBar> m_pScrollBar;
  wxString m_text;  // indices count characters
  wxBitmap m_backBuffer;
  std::unique_ptr<VornEditShared::CaretBlink> m_pBlink;  // id 101
  wxCursor m_ibeamCursor;
  // Id 102; keeps the last drag motion for replay.
  std::unique_ptr<VornEditShared::DragScroll> m_pDragScroll;
  bool m_bEditable = true;
  int m_caret = 0;
  int m_selStart = 0;
  int m_selEnd = 0;
  float m_firstVisibleLine = 0;
  int m_lineHeight = 1;
  int m_visibleLines = 1;
  std::vector<int> m_lineStarts{0};
  int m_lineCount = 1;
  bool m_bDragging = false;
  int m_textX = 0, m_textWidth = 0, m_textY = 0, m_textHeight = 0;
  bool m_bModified = false;
  wxColour m_textColour;
  wxColour m_selectionColour;

  // Beyond the listed state: the picture, fill, focus, the
  // anchor of a selection and the x that Up and Down keep.
  const wxBitmap* m_pPicture = nullptr;  // not owned
  wxColour m_fillColour;
  bool m_bHasFocus = false;
  bool m_bCursorShown = false;
  int m_anchor = 0;
  int m_keptX = -1;  // -1: not moving vertically

  wxDECLARE_EVENT_TABLE();
};
