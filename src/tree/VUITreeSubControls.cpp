// The tree's sub-controls: basic editors that show a sibling editor's value
// message without reporting it back, so one parameter's editors (a slider
// and its value box, say) stay in step without echoing each other.
#include "../controls/edit/EditFormat.h"
#include "VUITreeSubValue.h"
#include "VUITreeTexts.h"
#include "vorn/VUIControls.h"
#include "vorn/VornAssert.h"

namespace {

VornString Utf8Of(const wxString& text) {
  return VornString(text.utf8_str().data());
}

}  // namespace

NodeChangingHint::~NodeChangingHint() = default;
NodeChangedHint::~NodeChangedHint() = default;
FunctionButtonPushHint::~FunctionButtonPushHint() = default;

void VUITreeSubEditBox::OnUpdate(unsigned int, VornControl* source, VornControlHint* hint) {
  if (source == this || !hint) return;
  const bool real = GetStyle() == ES_REAL;
  if (auto* value = dynamic_cast<RealValMessage*>(hint)) {
    SetText(real ? Utf8Of(VornEditFormat::Fixed(value->m_value, VUITreeTexts::kRealDecimals))
                 : Utf8Of(wxString::Format("%i", static_cast<int>(value->m_value))),
            false);
  } else if (auto* whole = dynamic_cast<IntValMessage*>(hint)) {
    SetText(real ? Utf8Of(VornEditFormat::Fixed(whole->m_value, VUITreeTexts::kRealDecimals))
                 : Utf8Of(wxString::Format("%i", whole->m_value)),
            false);
  } else if (auto* text = dynamic_cast<StringValMessage*>(hint)) {
    SetText(text->m_value, false);
  }
}

void VUITreeSubEditBox::ForceStyle(int style) {
  m_style = style;
  CheckFormating();
  Refresh(false);
}

void VUITreeSubButtonToggle::OnUpdate(unsigned int, VornControl* source, VornControlHint* hint) {
  if (source == this || !hint) return;
  if (auto* whole = dynamic_cast<IntValMessage*>(hint)) SetOn(whole->m_value != 0);
}

void VUITreeSubSlider::OnUpdate(unsigned int, VornControl* source, VornControlHint* hint) {
  if (source == this || !hint) return;
  double value = 0.0;
  if (vorn_tree::SiblingNumber(hint, value)) SetValue(value, false);
}

void VUITreeSubThumbWheel::OnUpdate(unsigned int, VornControl* source, VornControlHint* hint) {
  if (source == this || !hint) return;
  double value = 0.0;
  if (!vorn_tree::SiblingNumber(hint, value)) return;
  SetCurrentValue(static_cast<float>(value));
  Refresh(false);
}
