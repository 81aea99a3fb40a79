// A box showing a 0..1 value on the scale lo..hi and reporting typed numbers
// back on 0..1.
#include <algorithm>
#include <cmath>
#include <limits>

#include "EditFormat.h"
#include "vorn/VornEdit.h"

void ScaleEditBox::SetScale(double lo, double hi) {
  m_lo = lo;
  m_hi = hi;
}

void ScaleEditBox::OnUpdate(unsigned int, VornControl* source, VornControlHint* hint) {
  if (source == this || !hint) return;
  double v = 0.0;
  if (auto* real = dynamic_cast<RealValMessage*>(hint))
    v = real->m_value;
  else if (auto* whole = dynamic_cast<IntValMessage*>(hint))
    v = whole->m_value;
  else
    return;
  const double shown = m_lo + (m_hi - m_lo) * v;
  wxString text;
  if (m_style == ES_INT) {
    // Rounded by adding a half and truncating; kept inside int's range.
    const double limit = std::numeric_limits<int>::max();
    const double rounded = std::isfinite(shown) ? std::clamp(shown + 0.5, -limit, limit) : 0.0;
    text = wxString::Format("%i", static_cast<int>(rounded));
  } else {
    text = VornEditFormat::Fixed(std::isfinite(shown) ? shown : 0.0, 6);
  }
  SetText(VornString(text.utf8_str().data()), false);
}

void ScaleEditBox::DoSendTranslation(VornString& text) {
  const double x = VornEditFormat::ReadReal(wxString::FromUTF8(text.c_str()));
  const double range = m_hi - m_lo;
  const double v = range != 0.0 ? (x - m_lo) / range : 0.0;
  text = VornString(VornEditFormat::Fixed(v, 6).utf8_str().data());
}
