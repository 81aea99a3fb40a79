// A heading that shows a text, left-aligned and centred vertically.
#include <wx/dc.h>
#include <wx/settings.h>

#include "vorn/VornMonsterBox.h"

TextColumnHeading::TextColumnHeading(const VornString& text, const wxColour& colour)
    : TextColumnHeading(text, colour, wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT)) {}

TextColumnHeading::TextColumnHeading(const VornString& text, const wxColour& colour,
                                     const wxFont& font)
    : m_text(text), m_colour(colour), m_font(font) {}

void TextColumnHeading::DrawTitle(wxDC& dc, const wxRect& rect) {
  dc.SetFont(m_font);
  dc.SetTextForeground(m_colour);
  const wxString text = wxString::FromUTF8(m_text.c_str());
  const wxSize size = dc.GetTextExtent(text);
  dc.DrawText(text, rect.x, rect.y + (rect.height - size.y) / 2);
}
