// A display box showing the date of the number it is sent.
#include "EditFormat.h"
#include "vorn/VornEdit.h"
#include "vornhost/Utility.h"

void DateEditBox::OnUpdate(unsigned int, VornControl* source, VornControlHint* hint) {
  // Its own reports come back through the group; a date text read as a
  // number would turn the shown date into another one.
  if (source == this || !hint) return;
  double value = 0.0;
  if (auto* real = dynamic_cast<RealValMessage*>(hint))
    value = real->m_value;
  else if (auto* whole = dynamic_cast<IntValMessage*>(hint))
    value = whole->m_value;
  else if (auto* text = dynamic_cast<StringValMessage*>(hint))
    value = VornEditFormat::ReadReal(wxString::FromUTF8(text->m_value.c_str()));
  else
    return;  // not a value: a receiver wired wrongly must not stop the host
  SetText(Format(value), false);
}

VornString DateEditBox::Format(double value) const {
  return MakeDate(value);
}
