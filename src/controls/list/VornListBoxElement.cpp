// The base row of a list: height, caller data, selectability and text.
#include <wx/dc.h>

#include "vorn/VornListBox.h"

VornListBoxElement::VornListBoxElement(int height, void* data, bool selectable,
                                       const VornString& text)
    : m_height(height), m_pItemData(data), m_bSelectable(selectable), m_string(text) {}

VornListBoxElement::~VornListBoxElement() = default;

void VornListBoxElement::Draw(wxDC*, int, int) {}

VornString VornListBoxElement::GetString() const {
  return m_string;
}

void VornListBoxElement::SetString(const VornString& text) {
  m_string = text;
}
