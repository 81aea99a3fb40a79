#include <algorithm>

#include "vorn/ColourPicker.h"

namespace {

double Unit(double x) {
  return std::clamp(x, 0.0, 1.0);
}

}  // namespace

ColourPickerComp::ColourPickerComp(int x, int y, int w, int h, wxWindow* parent, int id,
                                   VornControlGroup* group)
    : VornControl(x, y, w, h, parent, id, group) {}

void ColourPickerComp::GetCurrentHSV(double& h, double& s, double& v) const {
  h = m_hue;
  s = m_saturation;
  v = m_value;
}

void ColourPickerComp::SetLook(const ColourPickerLook& look) {
  m_look = look;
  SetBgColour(look.frame);
  SetDirty();
  Refresh(false);
}

void ColourPickerComp::OnUpdate(unsigned int, VornControl* sender, VornControlHint* hint) {
  if (sender == this) return;
  TakeHint(hint);
}

void ColourPickerComp::OnEnable(bool enabled) {
  if (!enabled) ReleaseMouse();
}

bool ColourPickerComp::TakeHint(const VornControlHint* hint) {
  if (auto* rgb = dynamic_cast<const ColourHintCurrentRGB*>(hint)) {
    StoreRGB(rgb->m_colour);
    OnColourChanged();
  } else if (auto* hsv = dynamic_cast<const ColourHintCurrentHSV*>(hint)) {
    StoreHSV(hsv->m_hue, hsv->m_saturation, hsv->m_value);
    OnColourChanged();
  } else if (auto* prev = dynamic_cast<const ColourHintPrev*>(hint)) {
    m_previous = Color(Unit(prev->m_colour.r), Unit(prev->m_colour.g), Unit(prev->m_colour.b));
    OnPreviousChanged();
  } else {
    return false;
  }
  return true;
}

void ColourPickerComp::StoreRGB(const Color& colour) {
  const double lastHue = m_hue;
  m_colour = Color(Unit(colour.r), Unit(colour.g), Unit(colour.b));
  m_colour.RGBtoHSV(m_hue, m_saturation, m_value);
  // A grey has no hue of its own: keep the last one so that the marker does
  // not jump while the colour passes through grey.
  if (m_saturation == 0.0) m_hue = lastHue;
}

void ColourPickerComp::StoreHSV(double h, double s, double v) {
  m_hue = Unit(h);
  m_saturation = Unit(s);
  m_value = Unit(v);
  m_colour.HSVtoRGB(m_hue, m_saturation, m_value);
}

void ColourPickerComp::OnColourChanged() {
  SetDirty();
  Refresh(false);
}

void ColourPickerComp::OnPreviousChanged() {
  SetDirty();
  Refresh(false);
}

void ColourPickerComp::SendCurrentRGB() {
  ColourHintCurrentRGB hint(m_colour);
  Send(hint);
}

void ColourPickerComp::SendCurrentHSV() {
  ColourHintCurrentHSV hint(m_hue, m_saturation, m_value);
  Send(hint);
}

void ColourPickerComp::SendPrevious() {
  ColourHintPrev hint(m_previous);
  Send(hint);
}

void ColourPickerComp::Send(VornControlHint& hint) {
  if (m_pControlGroup) m_pControlGroup->Update(static_cast<unsigned int>(GetId()), this, &hint);
}
