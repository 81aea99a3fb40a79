// VornMultiEdit: drawing the visible lines, the selection and the caret. Only
// reads the box's state.
#include <wx/dcmemory.h>

#include <algorithm>

#include "EditShared.h"
#include "MultiEditWrap.h"
#include "vorn/VornMultiEdit.h"

void VornMultiEdit::OnDraw(wxDC* dc) {
  if (m_backBuffer.GetWidth() != GetWidth() || m_backBuffer.GetHeight() != GetHeight())
    m_backBuffer = wxBitmap(std::max(GetWidth(), 1), std::max(GetHeight(), 1));
  wxMemoryDC mdc(m_backBuffer);
  mdc.SetBackground(wxBrush(m_fillColour.IsOk() ? m_fillColour : *wxWHITE));
  mdc.Clear();
  if (m_pPicture) mdc.DrawBitmap(*m_pPicture, 0, 0, true);
  mdc.SetFont(GetFont());
  mdc.SetClippingRegion(GetTextArea());
  const int top = GetTopLine();
  // Whole lines only: a line the keys treat as hidden is not half shown.
  const int end = std::min(m_lineCount, top + m_visibleLines);
  for (int line = top, y = m_textY; line < end; ++line, y += m_lineHeight)
    DrawSingleLine(mdc, line, y);
  DrawBlinkingCaret(mdc);
  mdc.DestroyClippingRegion();
  mdc.SelectObject(wxNullBitmap);
  dc->DrawBitmap(m_backBuffer, 0, 0);
}

void VornMultiEdit::DrawSingleLine(wxDC& dc, int line, int y) {
  const int start = m_lineStarts[line];
  const int end = multiedit::LineEnd(m_text, m_lineStarts, line);
  int selStart, selEnd;
  GetSelection(selStart, selEnd);
  selStart = std::clamp(selStart, start, end);
  selEnd = std::clamp(selEnd, start, end);
  dc.SetTextForeground(m_textColour);
  dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
  int x = m_textX;
  // Before, in and after the selection; empty parts draw nothing.
  const int cuts[] = {start, selStart, selEnd, end};
  for (int part = 0; part < 3; ++part) {
    if (cuts[part + 1] <= cuts[part]) continue;
    const wxString piece = m_text.Mid(cuts[part], cuts[part + 1] - cuts[part]);
    const wxSize size = dc.GetTextExtent(piece);
    if (part == 1) {
      dc.SetPen(*wxTRANSPARENT_PEN);
      dc.SetBrush(wxBrush(m_selectionColour));
      dc.DrawRectangle(x, y, size.x, m_lineHeight);
    }
    dc.DrawText(piece, x, y);
    x += size.x;
  }
}

void VornMultiEdit::DrawBlinkingCaret(wxDC& dc) {
  if (!m_bEditable || !m_bHasFocus || !m_pBlink->CaretShown()) return;
  int line, x;
  IndexToScreen(m_caret, line, x);
  const int y = m_textY + (line - GetTopLine()) * m_lineHeight;
  dc.SetPen(wxPen(m_textColour, 2));
  dc.DrawLine(m_textX + x, y, m_textX + x, y + m_lineHeight);
}
