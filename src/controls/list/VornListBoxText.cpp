// A text row, measured with the owner control's font.
#include <wx/dcclient.h>

#include "vorn/VornListBox.h"

namespace {
int CharHeightOf(VornControl* owner) {
  if (!owner || !owner->GetHandle()) return 16;
  wxClientDC dc(owner);
  dc.SetFont(owner->GetFont());
  return dc.GetCharHeight();
}
}  // namespace

VornListBoxText::VornListBoxText(VornControl* owner, const VornString& text, void* data)
    : VornListBoxElement(CharHeightOf(owner), data, true, text) {}

void VornListBoxText::Draw(wxDC* dc, int x, int y) {
  if (dc) dc->DrawText(wxString::FromUTF8(m_string.c_str()), x, y);
}
