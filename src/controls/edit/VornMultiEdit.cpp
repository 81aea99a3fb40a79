// VornMultiEdit: construction, the text model (wrapping, editing, mapping)
// and scrolling. Drawing is in VornMultiEditDraw.cpp, keyboard and mouse
// reactions in VornMultiEditEvents.cpp.
#include "vorn/VornMultiEdit.h"

#include <wx/dcclient.h>
#include <wx/dcmemory.h>

#include <algorithm>

#include "EditShared.h"
#include "MultiEditText.h"
#include "MultiEditWrap.h"
#include "vorn/ValInterface.h"
#include "vorn/VornControlGroup.h"

namespace {
constexpr int kScrollBarWidth = 11;
constexpr int kScrollBarGap = 2;              // between the text and the bar
constexpr long kNoScrollBarStyle = 1L << 31;  // the sign bit of a 32-bit style
}  // namespace

VornMultiEdit::VornMultiEdit()
    : m_pBlink(std::make_unique<VornEditShared::CaretBlink>(this)),
      m_ibeamCursor(wxCURSOR_IBEAM),
      m_pDragScroll(std::make_unique<VornEditShared::DragScroll>(this)) {}

VornMultiEdit::VornMultiEdit(const wxBitmap* picture, VornEditInfo& info, int x, int y,
                             wxWindow* parent, int id, bool editable, VornControlGroup* group,
                             long style)
    : VornMultiEdit() {
  VornMultiEdit::Create(picture, info, x, y, parent, id, editable, group, style);
}

VornMultiEdit::~VornMultiEdit() {
  m_pBlink->Stop();
  m_pDragScroll->Cancel();
  // The bar is a child of our parent; wx may already have deleted it when
  // the parent goes first, which the weak reference notices.
  if (m_pScrollBar) delete m_pScrollBar.get();
}

bool VornMultiEdit::Create(const wxBitmap* picture, VornEditInfo& info, int x, int y,
                           wxWindow* parent, int id, bool editable, VornControlGroup* group,
                           long style) {
  m_pPicture = picture && picture->IsOk() ? picture : nullptr;
  const int w = m_pPicture ? m_pPicture->GetWidth() : info.x + info.width;
  const int h = m_pPicture ? m_pPicture->GetHeight() : info.y + info.height;
  m_bScrollAllowed = (style & kNoScrollBarStyle) == 0;
  const long wxStyle = (style & ~kNoScrollBarStyle) | wxWANTS_CHARS;
  const bool ok = VornControl::Create(x, y, w, h, parent, id, group, wxStyle);
  m_bForwardKeyDown = false;  // skipped presses must become characters
  m_backBuffer = wxBitmap(std::max(w, 1), std::max(h, 1));
  m_bEditable = editable;
  SetCanFocus(AcceptsFocus());
  m_textX = info.x;
  m_textY = info.y;
  m_textWidth = info.width;
  m_textHeight = info.height;
  m_textColour = info.colour1;
  m_selectionColour = info.colour2;
  m_fillColour = info.background;
  // Scroll bar colours until the host sets its own.
  m_scrollColours[0] = m_textColour;
  m_scrollColours[1] = m_fillColour.IsOk() ? m_fillColour : *wxBLACK;
  m_scrollColours[2] = m_selectionColour;
  InitState();
  if (info.font.IsOk())
    SetFont(info.font);  // also measures and wraps
  else
    SetFont(GetFont());
  return ok;
}

void VornMultiEdit::InitState() {
  m_caret = m_selStart = m_selEnd = m_anchor = 0;
  m_firstVisibleLine = 0;
  m_bModified = true;
  m_keptX = -1;
}

// ---- Text ------------------------------------------------------------------

void VornMultiEdit::SetText(const VornString& text, bool notify) {
  m_text = wxString::FromUTF8(text.c_str());
  m_caret = m_selStart = m_selEnd = m_anchor = 0;
  m_keptX = -1;
  UpdateLineBreaks();
  m_bModified = true;
  CheckForScroll();
  Refresh(false);
  if (notify && m_pControlGroup) ReportText();
}

void VornMultiEdit::GetText(VornString& out) {
  out = VornString(m_text.utf8_str().data());
}

void VornMultiEdit::SetEditable(bool editable) {
  m_bEditable = editable;
  SetCanFocus(AcceptsFocus());
  Refresh(false);
}

bool VornMultiEdit::AcceptsFocus() const {
  return m_bEditable && m_bEnabled;
}

void VornMultiEdit::OnEnable(bool enabled) {
  VornControl::OnEnable(enabled);
  SetCanFocus(AcceptsFocus());
  Refresh(false);
}

bool VornMultiEdit::Show(bool show) {
  const bool changed = VornControl::Show(show);
  if (m_pScrollBar) m_pScrollBar->Show(show && m_lineCount > m_visibleLines);
  return changed;
}

bool VornMultiEdit::IsEditable() const {
  return m_bEditable;
}

bool VornMultiEdit::SetFont(const wxFont& font) {
  const bool changed = VornControl::SetFont(font);
  SetLineHeight();
  UpdateLineBreaks();
  CheckForScroll();
  Refresh(false);
  return changed;
}

void VornMultiEdit::SetLineHeight() {
  wxClientDC dc(this);
  dc.SetFont(GetFont());
  m_lineHeight = std::max(1, dc.GetCharHeight());
  // A box lower than one line still shows (the top of) one.
  m_visibleLines = std::max(1, m_textHeight / m_lineHeight);
}

void VornMultiEdit::ReportText() {
  m_pControlGroup->ControlSelected(GetId(), this);
  StringValChanged hint(VornString(m_text.utf8_str().data()));
  hint.m_bFlag = true;
  // A receiver that redraws the box meanwhile shows no caret.
  const bool focus = m_bHasFocus;
  m_bHasFocus = false;
  m_pControlGroup->Update(0, this, &hint);
  m_bHasFocus = focus;
}

// ---- Wrapping ----------------------------------------------------------------

bool VornMultiEdit::FindToken(const wxString& text, wxString& token, int& index) {
  wxClientDC dc(this);
  dc.SetFont(GetFont());
  token = multiedit::NextToken(text, index, GetWrapWidth(), multiedit::DcWidth(dc));
  return !token.empty();
}

void VornMultiEdit::UpdateLineBreaks() {
  wxClientDC dc(this);
  dc.SetFont(GetFont());
  m_lineStarts = multiedit::WrapFrom(m_text, GetWrapWidth(), multiedit::DcWidth(dc));
  m_lineCount = static_cast<int>(m_lineStarts.size());
  m_firstVisibleLine = std::min(m_firstVisibleLine, float(GetMaxFirstLine()));
}

void VornMultiEdit::TextChanged(int at, int removed, int inserted) {
  wxClientDC dc(this);
  dc.SetFont(GetFont());
  multiedit::Rewrap(m_text, m_lineStarts, at, removed, inserted, GetWrapWidth(),
                    multiedit::DcWidth(dc));
  m_lineCount = static_cast<int>(m_lineStarts.size());
  m_bModified = true;
  m_keptX = -1;
  // Fewer lines may leave the view below the text's end.
  m_firstVisibleLine = std::min(m_firstVisibleLine, float(GetMaxFirstLine()));
}

// ---- Editing primitives --------------------------------------------------

bool VornMultiEdit::DeleteSelection() {
  if (m_selStart == m_selEnd) return false;
  const int start = std::clamp(std::min(m_selStart, m_selEnd), 0, int(m_text.length()));
  const int end = std::clamp(std::max(m_selStart, m_selEnd), 0, int(m_text.length()));
  m_text.Remove(start, end - start);
  m_caret = m_selStart = m_selEnd = m_anchor = start;
  TextChanged(start, end - start, 0);
  return true;
}

void VornMultiEdit::Insert(char c) {
  InsertText(wxString(wxUniChar(static_cast<unsigned char>(c))));
}

void VornMultiEdit::Insert(const VornString& text) {
  InsertText(wxString::FromUTF8(text.c_str()));
}

void VornMultiEdit::InsertText(const wxString& text) {
  const int at = std::clamp(m_caret, 0, int(m_text.length()));
  m_text.insert(at, text);
  m_caret = m_selStart = m_selEnd = m_anchor = at + int(text.length());
  TextChanged(at, 0, int(text.length()));
}

void VornMultiEdit::ReplaceSelection(const wxString& text) {
  DeleteSelection();
  InsertText(text);
}

void VornMultiEdit::Delete() {
  if (DeleteSelection()) return;
  if (m_caret >= int(m_text.length())) return;
  m_text.Remove(m_caret, 1);
  m_selStart = m_selEnd = m_anchor = m_caret;
  TextChanged(m_caret, 1, 0);
}

void VornMultiEdit::Backspace() {
  if (DeleteSelection()) return;
  if (m_caret <= 0) return;
  --m_caret;
  m_text.Remove(m_caret, 1);
  m_selStart = m_selEnd = m_anchor = m_caret;
  TextChanged(m_caret, 1, 0);
}

void VornMultiEdit::GetSelection(int& start, int& end) const {
  start = std::min(m_selStart, m_selEnd);
  end = std::max(m_selStart, m_selEnd);
}

void VornMultiEdit::SetSelection(int start, int end) {
  const int n = int(m_text.length());
  m_selStart = std::clamp(start, 0, n);
  m_selEnd = std::clamp(end, 0, n);
  m_anchor = m_selStart;
  UpdateCaretPos(m_selEnd);
  Refresh(false);
}

// ---- Caret, mapping and scrolling --------------------------------------------

void VornMultiEdit::UpdateCaretPos(int index) {
  m_caret = std::clamp(index, 0, int(m_text.length()));
  const int line = GetCurrentLineNo();
  const int top = GetTopLine();
  if (line >= top + m_visibleLines)
    SetScrollPos(m_lineHeight);
  else if (line < top && m_firstVisibleLine > 0)
    SetScrollPos(-m_lineHeight);
}

int VornMultiEdit::GetCurrentLineNo() const {
  return multiedit::LineOf(m_lineStarts, m_caret);
}

int VornMultiEdit::GetMaxFirstLine() const {
  return std::max(0, m_lineCount - m_visibleLines);
}

int VornMultiEdit::GetTopLine() const {
  // Rounded, so that a position reached through the scroll bar's real value
  // lands on the line it means.
  return std::clamp(int(m_firstVisibleLine + 0.5f), 0, std::max(0, m_lineCount - 1));
}

void VornMultiEdit::SetScrollPos(double delta) {
  ScrollToLine(m_firstVisibleLine + delta / std::max(1, m_lineHeight));
}

void VornMultiEdit::ScrollToLine(double line) {
  m_firstVisibleLine = float(std::clamp(line, 0.0, double(GetMaxFirstLine())));
  Refresh(false);
}

void VornMultiEdit::IndexToScreen(int index, int& line, int& x) {
  line = multiedit::LineOf(m_lineStarts, index);
  const int start = m_lineStarts[line];
  x = index > start ? TextWidth(m_text.Mid(start, index - start)) : 0;
}

int VornMultiEdit::ScreenToIndex(int x, int y) {
  const int line = GetTopLine() + (y < 0 ? -1 : y / m_lineHeight);
  return IndexOnLine(std::clamp(line, 0, m_lineCount - 1), x);
}

int VornMultiEdit::IndexOnLine(int line, int x) {
  const int start = m_lineStarts[line];
  const int last = multiedit::LastCaretIndex(m_text, m_lineStarts, line);
  wxClientDC dc(this);
  dc.SetFont(GetFont());
  const wxString shown = m_text.Mid(start, last - start);
  return start + VornEditShared::MapXToCharacter(shown, x, dc);
}

// ---- Scroll bar ----------------------------------------------------------------

void VornMultiEdit::SetScrollColours(const wxColour& first, const wxColour& second,
                                     const wxColour& third) {
  m_scrollColours[0] = first;
  m_scrollColours[1] = second;
  m_scrollColours[2] = third;
  // The bar takes its colours when it is made: make it again.
  if (m_pScrollBar) delete m_pScrollBar.get();
  CheckForScroll();
}

void VornMultiEdit::CheckForScroll() {
  if (!m_bScrollAllowed || !GetParent()) return;
  const bool fits = m_lineCount <= m_visibleLines;
  if (!m_pScrollBar && !fits) {
    m_pScrollBar =
        new VornMultiEditScrollBar(m_scrollColours[0], m_scrollColours[1], m_scrollColours[2], 0, 0,
                                   std::max(m_textHeight, 1), GetParent());
    m_pScrollBar->SetBox(this);
    PlaceScrollBar();
  }
  if (fits) {
    ScrollToLine(0);
    if (m_pScrollBar) m_pScrollBar->Show(false);
    return;
  }
  m_pScrollBar->Show(IsShown());
  SyncScrollBar();
  Refresh(false);
}

void VornMultiEdit::SyncScrollBar() {
  const int maxFirst = GetMaxFirstLine();
  VornMultiEditScrollBar& bar = *m_pScrollBar;
  bar.SetFractionVal(double(m_visibleLines) / std::max(1, m_lineCount));
  bar.SetSliderVal(maxFirst > 0 ? m_firstVisibleLine / maxFirst : 0.0, false);
  // The bar counts steps in pixels of content height / fraction; one line
  // is a 1 / maxFirst change of the value. End buttons and the wheel then
  // move by whole lines.
  if (maxFirst > 0) {
    const double line = bar.GetHeight() / bar.GetFractionVal() / maxFirst;
    bar.SetMomentSetpVal(line);
    bar.SetInitialStepVal(line);
  }
}

void VornMultiEdit::PlaceScrollBar() {
  if (!m_pScrollBar) return;
  m_pScrollBar->SetWindowPos(GetPosX() + m_textX + m_textWidth - kScrollBarWidth,
                             GetPosY() + m_textY, kScrollBarWidth, std::max(m_textHeight, 1));
}

int VornMultiEdit::GetWrapWidth() const {
  // The bar's strip is kept free whether or not the bar shows, so that its
  // coming and going never re-wraps the text.
  return m_bScrollAllowed ? std::max(1, m_textWidth - kScrollBarWidth - kScrollBarGap)
                          : m_textWidth;
}

bool VornMultiEdit::InTextArea(int x, int y) const {
  return x >= m_textX && x <= m_textX + m_textWidth && y >= m_textY && y <= m_textY + m_textHeight;
}

int VornMultiEdit::TextWidth(const wxString& piece) {
  wxClientDC dc(this);
  dc.SetFont(GetFont());
  return dc.GetTextExtent(piece).x;
}
