// The single-line edit: construction, the text and its report, drawing.
// Keyboard, mouse, focus and timers are in VornEditInput.cpp.
#include "vorn/VornEdit.h"

#include <wx/dcclient.h>
#include <wx/dcmemory.h>

#include <algorithm>

#include "EditFormat.h"
#include "EditShared.h"
#include "vorn/VornControlGroup.h"

namespace {
constexpr long kBaseStyle = wxWANTS_CHARS;
constexpr int kMaxLength = 5;  // ES_MAX5
constexpr int kCaretPenWidth = 2;
}  // namespace

VornEdit::VornEdit() {
  InitTimers();
}

VornEdit::VornEdit(const wxBitmap* picture, VornEditInfo& info, int x, int y, wxWindow* parent,
                   int id, bool editable, int style, VornControlGroup* group, long wxStyle) {
  InitTimers();
  VornEdit::Create(picture, info, x, y, parent, id, editable, style, group, wxStyle);
}

VornEdit::VornEdit(int x, int y, int w, int h, wxWindow* parent, const wxColour& textColour,
                   const wxColour& fillColour, int id, VornControlGroup* group, long wxStyle) {
  InitTimers();
  VornEdit::Create(x, y, w, h, parent, textColour, fillColour, id, group, wxStyle);
}

VornEdit::~VornEdit() {
  m_pBlink->Stop();
  m_pDrag->Cancel();
}

void VornEdit::InitTimers() {
  m_pBlink = std::make_unique<VornEditShared::CaretBlink>(this);
  m_pDrag = std::make_unique<VornEditShared::DragScroll>(this);
  m_bForwardKeyDown = false;
}

bool VornEdit::Create(const wxBitmap* picture, VornEditInfo& info, int x, int y, wxWindow* parent,
                      int id, bool editable, int style, VornControlGroup* group, long wxStyle) {
  const int w = picture ? picture->GetWidth() : info.x + info.width;
  const int h = picture ? picture->GetHeight() : info.y + info.height;
  const bool created = VornControl::Create(x, y, w, h, parent, id, group, kBaseStyle);
  m_pPicture = picture;
  m_style = style;
  m_bEditable = editable;
  m_textX = info.x;
  m_textY = info.y;
  m_textWidth = info.width;
  m_textHeight = info.height;
  m_textColour = info.colour1;
  m_selectionColour = info.colour2;
  m_fillColour = info.background;
  if (info.font.IsOk()) SetFont(info.font);
  FinishCreate(w, h, wxStyle);
  return created;
}

bool VornEdit::Create(int x, int y, int w, int h, wxWindow* parent, const wxColour& textColour,
                      const wxColour& fillColour, int id, VornControlGroup* group, long wxStyle) {
  const bool created = VornControl::Create(x, y, w, h, parent, id, group, kBaseStyle);
  m_pPicture = nullptr;
  m_style = ES_TEXT;
  m_bEditable = false;
  m_textX = m_textY = 0;
  m_textWidth = w;
  m_textHeight = h;
  m_textColour = textColour;
  m_fillColour = fillColour;
  m_selectionColour = *wxBLACK;
  FinishCreate(w, h, wxStyle);
  return created;
}

void VornEdit::FinishCreate(int w, int h, long wxStyle) {
  m_backBuffer = wxBitmap(w > 0 ? w : 1, h > 0 ? h : 1);
  m_caret = m_selStart = m_selEnd = m_scroll = 0;
  m_bModified = true;
  m_bRightAligned = (wxStyle & kRightAligned) != 0;
  SetCanFocus(AcceptsFocus());
}

// ---- The text -------------------------------------------------------------------

void VornEdit::SetText(const VornString& text, bool notify) {
  if (m_bHasFocus) return;
  m_text = wxString::FromUTF8(text.c_str());
  CheckFormating();
  m_bModified = true;
  m_caret = m_selStart = m_selEnd = 0;
  m_scroll = 0;
  LimitLength();
  if (notify && m_pControlGroup) {
    if (auto* values = dynamic_cast<VornControlGroupValue*>(m_pControlGroup))
      values->ControlDrag(static_cast<unsigned int>(GetId()), this);
    SendText();
  }
  if (GetHandle()) {
    wxClientDC dc(this);
    OnDraw(&dc);
  }
}

void VornEdit::GetText(VornString& out) {
  out = VornString(m_text.utf8_str().data());
}

void VornEdit::SetEditable(bool editable) {
  m_bEditable = editable;
  SetCanFocus(AcceptsFocus());
  Refresh(false);
}

bool VornEdit::IsEditable() {
  return m_bEditable;
}

void VornEdit::DoSendTranslation(VornString&) {}

void VornEdit::SetBackgroundCol(const wxColour& colour) {
  m_fillColour = colour;
  Refresh(false);
}

void VornEdit::SetCaretColour(const wxColour& colour) {
  m_caretColour = colour;
  Refresh(false);
}

void VornEdit::OnEnable(bool enabled) {
  VornControl::OnEnable(enabled);
  SetCanFocus(AcceptsFocus());
  Refresh(false);
}

bool VornEdit::AcceptsFocus() const {
  return m_bEditable && m_bEnabled && VornControl::AcceptsFocus();
}

void VornEdit::CheckFormating() {
  m_text = VornEditFormat::ForStyle(m_style, m_text);
  const int length = static_cast<int>(m_text.length());
  if (m_caret > length) m_caret = length;
  if (m_selStart > length) m_selStart = length;
  if (m_selEnd > length) m_selEnd = length;
  Refresh(false);
}

int VornEdit::MapMouseToCharacter(wxString text, int x, wxDC& dc) {
  return VornEditShared::MapXToCharacter(text, x, dc);
}

void VornEdit::LimitLength() {
  if (m_style != ES_MAX5 || static_cast<int>(m_text.length()) <= kMaxLength) return;
  m_text.Truncate(kMaxLength);
  m_caret = kMaxLength;
  m_selStart = m_selEnd = m_caret;
}

void VornEdit::Report(bool selectFirst) {
  if (!m_pControlGroup) return;
  if (selectFirst) m_pControlGroup->ControlSelected(static_cast<unsigned int>(GetId()), this);
  SendText();
}

void VornEdit::SendText() {
  StringValChanged hint(VornString(m_text.utf8_str().data()));
  hint.m_bFlag = true;
  DoSendTranslation(hint.m_value);
  // A receiver that redraws the field must not see a caret in it.
  const bool focus = m_bHasFocus;
  m_bHasFocus = false;
  m_pControlGroup->Update(0, this, &hint);
  m_bHasFocus = focus;
}

VornString GetText(VornEdit* edit) {
  VornString text;
  if (edit) edit->GetText(text);
  return text;
}

// ---- Drawing ----------------------------------------------------------------------

wxString VornEdit::ShownText() const {
  if (m_style == ES_PASSWORD) return wxString('*', m_text.length());
  return m_text;
}

bool VornEdit::IsCaretShown() const {
  return m_bEditable && m_bHasFocus && m_pBlink->CaretShown();
}

wxTimer& VornEdit::GetBlinkTimer() {
  return m_pBlink->GetTimer();
}

wxTimer& VornEdit::GetDragTimer() {
  return m_pDrag->GetTimer();
}

void VornEdit::OnDraw(wxDC* dc) {
  if (!dc) return;
  const wxSize size = GetClientSize();
  if (!m_backBuffer.IsOk() || m_backBuffer.GetWidth() < size.x || m_backBuffer.GetHeight() < size.y)
    m_backBuffer = wxBitmap(std::max(size.x, 1), std::max(size.y, 1));
  wxMemoryDC buffer(m_backBuffer);
  buffer.SetFont(GetFont());
  DrawBackground(buffer);
  const wxString shown = ShownText();
  DrawString(buffer, shown);
  if (IsCaretShown()) DrawCaret(buffer, shown);
  dc->Blit(0, 0, size.x, size.y, &buffer, 0, 0);
}

void VornEdit::DrawBackground(wxDC& dc) const {
  if (m_pPicture && m_pPicture->IsOk()) {
    dc.DrawBitmap(*m_pPicture, 0, 0, false);
    return;
  }
  dc.SetBackground(wxBrush(m_fillColour, wxBRUSHSTYLE_SOLID));
  dc.Clear();
}

void VornEdit::DrawString(wxDC& dc, const wxString& shown) const {
  dc.SetTextForeground(m_textColour);
  dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
  wxDCClipper clip(dc, GetTextArea());
  if (!m_bEditable && m_bRightAligned) {
    const int width = VornEditShared::PrefixWidth(dc, shown, static_cast<int>(shown.length()));
    dc.DrawText(shown, m_textX + m_textWidth - width, m_textY);
    return;
  }
  const int x = m_textX + m_scroll;
  if (!HasSelection()) {
    dc.DrawText(shown, x, m_textY);
    return;
  }
  const int start = std::min(m_selStart, m_selEnd), end = std::max(m_selStart, m_selEnd);
  const int x1 = x + VornEditShared::PrefixWidth(dc, shown, start);
  const int x2 = x + VornEditShared::PrefixWidth(dc, shown, end);
  dc.DrawText(shown.Left(static_cast<size_t>(start)), x, m_textY);
  const wxString selected = shown.Mid(static_cast<size_t>(start), static_cast<size_t>(end - start));
  dc.SetPen(*wxTRANSPARENT_PEN);
  dc.SetBrush(wxBrush(m_selectionColour, wxBRUSHSTYLE_SOLID));
  dc.DrawRectangle(x1, m_textY, x2 - x1, dc.GetTextExtent(selected).y);
  dc.DrawText(selected, x1, m_textY);
  dc.DrawText(shown.Mid(static_cast<size_t>(end)), x2, m_textY);
}

int VornEdit::CaretX(wxDC& dc, const wxString& shown) const {
  return m_scroll + VornEditShared::PrefixWidth(dc, shown, m_caret);
}

void VornEdit::DrawCaret(wxDC& dc, const wxString& shown) const {
  wxDCClipper clip(dc, GetTextArea());
  const int x = m_textX + CaretX(dc, shown);
  dc.SetPen(wxPen(m_caretColour, kCaretPenWidth));
  dc.DrawLine(x, m_textY, x, m_textY + m_textHeight);
}
