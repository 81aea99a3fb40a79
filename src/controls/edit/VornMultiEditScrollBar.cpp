// The multi-line edit's scroll bar: turns slider changes into scrolling of
// its box.
#include <algorithm>

#include "vorn/VornMultiEdit.h"

wxBEGIN_EVENT_TABLE(VornMultiEditScrollBar, VornSimpleScrollBar)
    EVT_KILL_FOCUS(VornMultiEditScrollBar::OnLostFocus) wxEND_EVENT_TABLE()

        VornMultiEditScrollBar::VornMultiEditScrollBar(const wxColour& first,
                                                       const wxColour& second,
                                                       const wxColour& third, int x, int y,
                                                       int height, wxWindow* parent, int id) {
  Create(first, second, third, x, y, height, parent, id, nullptr, 0);
}

void VornMultiEditScrollBar::OnSliderChange() {
  if (!m_pBox) return;
  // The value is the first visible line over the last possible one; the box
  // takes the difference as a pixel delta.
  const double target = GetSliderVal() * m_pBox->GetMaxFirstLine();
  m_pBox->SetScrollPos((target - m_pBox->GetFirstVisibleLine()) * m_pBox->GetLineHeight());
}

void VornMultiEditScrollBar::OnLostFocus(wxFocusEvent&) {}
