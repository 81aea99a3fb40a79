// The tree's thumb wheel: a wheel and a value box, each in a group of its
// own with the control (the wheel takes numbers only), which passes the
// wheel's value to the box and a typed value, limited, to the wheel.
#include <algorithm>
#include <cmath>

#include "../controls/edit/EditFormat.h"
#include "VUITreeTexts.h"
#include "vorn/VUIControls.h"
#include "vorn/VornAssert.h"

namespace {
constexpr int kBoxGap = 6;
constexpr int kWheelPeriod = 6;  // the skin's strip repeats every 6 pixels
constexpr int kDefaultWheelWidth = 96;
constexpr int kDefaultBoxWidth = 72;

const BitmapA* Picture(AssetManager* assets, const char* name) {
  const BitmapA* picture = nullptr;
  const bool val = assets->LoadImageCached(name, picture);
  VORN_ASSERT_TEXT(val == true, VUITreeTexts::kLoadFailed);
  return picture;
}
}  // namespace

VUITreeThumbWheel::VUITreeThumbWheel(AssetManager* assetman, VornString name, bool functionable,
                                     double minimum, double maximum, double value, double step,
                                     bool integer)
    : VUITreeControlBase(assetman, std::move(name), functionable),
      m_minimum(minimum),
      m_maximum(maximum),
      m_value(0.0),
      m_step(step),
      m_bInteger(integer) {
  m_value = Limited(value);
}

VUITreeThumbWheel::~VUITreeThumbWheel() {
  DestroyChildren();
}

int VUITreeThumbWheel::EditorWidth() {
  const int wheel = m_pFrame ? m_pFrame->width : kDefaultWheelWidth;
  const int box = m_pEdit ? m_pEdit->GetSize().x : kDefaultBoxWidth;
  return kEditorGap + wheel + kBoxGap + box + 3;
}

bool VUITreeThumbWheel::Create(wxWindow* parent, int id, VornControlGroup* group, long style) {
  m_pFrame = Picture(m_pAssetManager, VUITreeTexts::kWheelFrame);
  m_pStrip = Picture(m_pAssetManager, VUITreeTexts::kWheelStrip);
  m_pWindow = Picture(m_pAssetManager, VUITreeTexts::kWheelWindow);
  if (!VUITreeControlBase::Create(parent, id, group, style)) return false;
  if (m_pFrame && m_pStrip && m_pWindow) {
    m_pWheel = new VUITreeSubThumbWheel(m_pFrame, m_pStrip, m_pWindow, EditorLeft(),
                                        RowTop(m_pFrame->height), false, kWheelPeriod, this, 1,
                                        &m_wheelGroup);
    m_pWheel->SetStepAmount(static_cast<float>(m_step));
  }
  const wxBitmap* picture = nullptr;
  VornEditInfo info;
  const bool val = m_pAssetManager->LoadEditWidgetCached(VUITreeTexts::kValueBox, picture, info);
  VORN_ASSERT_TEXT(val == true, VUITreeTexts::kLoadFailed);
  const int boxX = EditorLeft() + (m_pFrame ? m_pFrame->width + kBoxGap : 0);
  m_pEdit = new VUITreeSubEditBox(
      picture, info, boxX, RowTop(picture ? picture->GetHeight() : info.height), this, 2, true,
      m_bInteger ? VornEdit::ES_INT : VornEdit::ES_REAL, &m_boxGroup);
  m_wheelGroup.Register(static_cast<VornControl*>(this));
  m_boxGroup.Register(static_cast<VornControl*>(this));
  ResetVals(m_minimum, m_maximum, m_value);
  PlaceFunctionButton();
  return true;
}

double VUITreeThumbWheel::Limited(double value) const {
  const double low = std::min(m_minimum, m_maximum), high = std::max(m_minimum, m_maximum);
  value = value < low ? low : (value > high ? high : value);
  return m_bInteger ? std::round(value) : value;
}

void VUITreeThumbWheel::ShowValue() {
  // Sent as coming from the control, so the wheel and the box take it.
  RealValChanging hint(m_value);
  m_wheelGroup.Update(0, this, &hint);
  m_boxGroup.Update(0, this, &hint);
}

void VUITreeThumbWheel::ResetVals(double minimum, double maximum, double value) {
  m_minimum = minimum;
  m_maximum = maximum;
  m_value = Limited(value);
  if (m_pWheel) {
    m_pWheel->SetMinValue(static_cast<float>(std::min(minimum, maximum)));
    m_pWheel->SetMaxValue(static_cast<float>(std::max(minimum, maximum)));
  }
  ShowValue();
}

void VUITreeThumbWheel::SetVal(double value, bool notify, int id) {
  m_value = Limited(value);
  ShowValue();
  if (notify && GetGroup()) {
    RealValChanged hint(m_value);
    GetGroup()->Update(id, this, &hint);
  }
}

bool VUITreeThumbWheel::GetValue(double& out) {
  out = m_value;
  return true;
}

bool VUITreeThumbWheel::SetValue(double value) {
  SetVal(value, true);
  return true;
}

bool VUITreeThumbWheel::GetValue(int32& out) {
  out = static_cast<int32>(std::lround(m_value));
  return true;
}

bool VUITreeThumbWheel::SetValue(int32 value) {
  SetVal(value, true);
  return true;
}

void VUITreeThumbWheel::OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) {
  if (!IsInner(source)) return;
  if (source == m_pWheel) {
    // The wheel turns in fractions; a whole-number parameter reads rounded.
    if (auto* value = dynamic_cast<RealValMessage*>(hint)) {
      m_value = Limited(value->m_value);
      RealValChanging shown(m_value);
      m_boxGroup.Update(0, this, &shown);
    }
  } else if (source == m_pEdit) {
    if (auto* text = dynamic_cast<StringValMessage*>(hint))
      SetVal(VornEditFormat::ReadReal(wxString::FromUTF8(text->m_value.c_str())), false);
  }
  NotifyParentGroup(id, source, hint);
}
