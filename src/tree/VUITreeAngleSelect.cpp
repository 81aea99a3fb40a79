// The tree's angle selector: a dial and a value box, each in a group of its
// own with the control, which maps the dial's turn onto the range and a
// typed value, limited, back onto the dial.
#include <algorithm>
#include <cmath>

#include "../controls/edit/EditFormat.h"
#include "VUITreeTexts.h"
#include "vorn/VUIControls.h"
#include "vorn/VornAssert.h"

namespace {
constexpr int kBoxGap = 8;

ColorA SkinColourA(AssetManager* assets, const char* name) {
  ColorA c(1.0, 1.0, 1.0, 1.0);
  const bool val = assets->GetColour(name, c);
  VORN_ASSERT_TEXT(val == true, VUITreeTexts::kLoadFailed);
  return c;
}
}  // namespace

VUITreeAngleSelect::VUITreeAngleSelect(AssetManager* assetman, VornString name, bool functionable,
                                       double value)
    : VUITreeControlBase(assetman, std::move(name), functionable), m_value(0.0) {
  m_value = Limited(value);
}

VUITreeAngleSelect::~VUITreeAngleSelect() {
  DestroyChildren();
}

int VUITreeAngleSelect::GetMaxHeight() {
  return kDialSize + 6;
}

bool VUITreeAngleSelect::Create(wxWindow* parent, int id, VornControlGroup* group, long style) {
  if (!VUITreeControlBase::Create(parent, id, group, style)) return false;
  const int top = (GetMaxHeight() - kDialSize) / 2;
  m_pDial = new VUITreeSubAngle(SkinColourA(m_pAssetManager, VUITreeTexts::kDialRing),
                                SkinColourA(m_pAssetManager, VUITreeTexts::kDialNeedle),
                                EditorLeft(), top, kDialSize, kDialSize, this, 1, &m_dialGroup);
  m_pDial->SetBgColour(BackgroundColour());
  m_pDial->SetZeroVal(m_zero);
  m_dialGroup.Register(static_cast<VornControl*>(this));

  const wxBitmap* picture = nullptr;
  VornEditInfo info;
  const bool val = m_pAssetManager->LoadEditWidgetCached(VUITreeTexts::kValueBox, picture, info);
  VORN_ASSERT_TEXT(val == true, VUITreeTexts::kLoadFailed);
  const int boxHeight = picture ? picture->GetHeight() : info.height;
  m_pEdit = new VUITreeSubEditBox(
      picture, info, EditorLeft() + kDialSize + kBoxGap, (GetMaxHeight() - boxHeight) / 2, this, 2,
      true, m_displayStyle == DS_WHOLE ? VornEdit::ES_INT : VornEdit::ES_REAL, &m_boxGroup);
  m_pEdit->Show(m_displayStyle != DS_DIAL_ONLY);
  m_boxGroup.Register(static_cast<VornControl*>(this));
  ShowValue();
  return true;
}

// ---- settings -----------------------------------------------------------------------

void VUITreeAngleSelect::SetDisplayStyle(int style) {
  m_displayStyle = style;
  if (!m_pEdit) return;
  m_pEdit->ForceStyle(style == DS_WHOLE ? VornEdit::ES_INT : VornEdit::ES_REAL);
  m_pEdit->Show(style != DS_DIAL_ONLY);
  ShowValue();
}

void VUITreeAngleSelect::SetRangeVals(double minimum, double maximum) {
  m_minimum = minimum;
  m_maximum = maximum;
  m_value = Limited(m_value);
  ShowValue();
}

void VUITreeAngleSelect::SetZeroVal(double degrees) {
  m_zero = degrees;
  if (m_pDial) m_pDial->SetZeroVal(degrees);
  ShowValue();
}

// ---- the value ------------------------------------------------------------------------

double VUITreeAngleSelect::Limited(double value) const {
  const double low = std::min(m_minimum, m_maximum), high = std::max(m_minimum, m_maximum);
  return value < low ? low : (value > high ? high : value);
}

double VUITreeAngleSelect::TurnOf(double value) const {
  const double span = m_maximum - m_minimum;
  return span != 0.0 ? (value - m_minimum) / span : 0.0;
}

void VUITreeAngleSelect::ShowValue() {
  if (m_pDial) m_pDial->SetValue(static_cast<float>(TurnOf(m_value)), false);
  if (m_pEdit) {
    // Sent as coming from the control, so the box takes it.
    RealValChanging shown(m_value);
    m_boxGroup.Update(0, this, &shown);
  }
}

bool VUITreeAngleSelect::GetValue(double& out) {
  out = m_value;
  return true;
}

bool VUITreeAngleSelect::SetValue(double value) {
  m_value = Limited(value);
  ShowValue();
  return true;
}

bool VUITreeAngleSelect::GetValue(int32& out) {
  out = static_cast<int32>(std::lround(m_value));
  return true;
}

bool VUITreeAngleSelect::SetValue(int32 value) {
  SetValue(static_cast<double>(value));
  if (GetGroup()) {
    IntValChanged hint(static_cast<int32>(std::lround(m_value)));
    GetGroup()->Update(GetId(), this, &hint);
  }
  return true;
}

void VUITreeAngleSelect::OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) {
  if (!IsInner(source)) return;
  if (source == m_pDial) {
    if (auto* turn = dynamic_cast<RealValMessage*>(hint)) {
      m_value = Limited(m_minimum + turn->m_value * (m_maximum - m_minimum));
      RealValChanging shown(m_value);
      m_boxGroup.Update(0, this, &shown);
    }
  } else if (source == m_pEdit) {
    if (auto* text = dynamic_cast<StringValMessage*>(hint))
      SetValue(VornEditFormat::ReadReal(wxString::FromUTF8(text->m_value.c_str())));
  }
  NotifyParentGroup(id, source, hint);
}
