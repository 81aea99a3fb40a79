// The tree's slider: a slider and a value box. The slider runs from 0 to 1
// and the box shows the parameter's value between its minimum and maximum,
// so each talks to the control through a group of its own and the control
// converts between them.
#include <cmath>
#include <cstdlib>

#include "../controls/edit/EditFormat.h"
#include "VUITreeTexts.h"
#include "vorn/VUIControls.h"
#include "vorn/VornAssert.h"

namespace {
constexpr int kSliderHeight = 16;
constexpr int kBoxGap = 8;
}  // namespace

VUITreeSlider::VUITreeSlider(AssetManager* assetman, VornString name, bool functionable,
                             double minimum, double maximum, double value, bool integer)
    : VUITreeControlBase(assetman, std::move(name), functionable),
      m_minimum(minimum),
      m_maximum(maximum),
      m_value(0.0),
      m_bInteger(integer) {
  m_value = Limited(value);
}

VUITreeSlider::~VUITreeSlider() {
  // The inner editors report to groups of ours.
  DestroyChildren();
}

bool VUITreeSlider::Create(wxWindow* parent, int id, VornControlGroup* group, long style) {
  if (!VUITreeControlBase::Create(parent, id, group, style)) return false;
  const wxColour bg = BackgroundColour();
  wxColour track = *wxLIGHT_GREY, thumb = *wxWHITE;
  m_pAssetManager->GetColour(VUITreeTexts::kSliderTrack, track);
  m_pAssetManager->GetColour(VUITreeTexts::kSliderThumb, thumb);
  m_pSlider = new VUITreeSubSlider(track, thumb, EditorLeft(), RowTop(kSliderHeight), kSliderWidth,
                                   kSliderHeight, this, 1, &m_sliderGroup);
  m_pSlider->SetBgColour(bg);
  m_sliderGroup.Register(static_cast<VornControl*>(this));

  const wxBitmap* picture = nullptr;
  VornEditInfo info;
  const bool val = m_pAssetManager->LoadEditWidgetCached(VUITreeTexts::kValueBox, picture, info);
  VORN_ASSERT_TEXT(val == true, VUITreeTexts::kLoadFailed);
  const int boxHeight = picture ? picture->GetHeight() : info.height;
  m_pEdit = new VUITreeSubEditBox(picture, info, EditorLeft() + kSliderWidth + kBoxGap,
                                  RowTop(boxHeight), this, 2, true,
                                  m_bInteger ? VornEdit::ES_INT : VornEdit::ES_REAL, &m_boxGroup);
  m_boxGroup.Register(static_cast<VornControl*>(this));
  SetVal(m_value, false);
  return true;
}

double VUITreeSlider::Limited(double value) const {
  const double low = std::min(m_minimum, m_maximum), high = std::max(m_minimum, m_maximum);
  value = value < low ? low : (value > high ? high : value);
  return m_bInteger ? std::round(value) : value;
}

void VUITreeSlider::ShowInBox() {
  RealValChanging hint(m_value);
  // Sent as coming from the control, so the box takes it.
  m_boxGroup.Update(0, this, &hint);
}

void VUITreeSlider::SetVal(double value, bool notify, int id) {
  m_value = Limited(value);
  if (m_pSlider) {
    const double span = m_maximum - m_minimum;
    m_pSlider->SetValue(span != 0.0 ? (m_value - m_minimum) / span : 0.0, false);
  }
  if (m_pEdit) ShowInBox();
  if (notify && GetGroup()) {
    RealValChanged hint(m_value);
    GetGroup()->Update(id, this, &hint);
  }
}

bool VUITreeSlider::GetValue(double& out) {
  out = m_value;
  return true;
}

bool VUITreeSlider::SetValue(double value) {
  SetVal(value, true);
  return true;
}

bool VUITreeSlider::GetValue(int32& out) {
  out = static_cast<int32>(std::lround(m_value));
  return true;
}

bool VUITreeSlider::SetValue(int32 value) {
  SetVal(value, true);
  return true;
}

void VUITreeSlider::OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) {
  if (!IsInner(source)) return;
  if (source == m_pSlider) {
    if (auto* value = dynamic_cast<RealValMessage*>(hint)) {
      m_value = Limited(m_minimum + value->m_value * (m_maximum - m_minimum));
      ShowInBox();
    }
  } else if (source == m_pEdit) {
    if (auto* text = dynamic_cast<StringValMessage*>(hint)) {
      const double typed = VornEditFormat::ReadReal(wxString::FromUTF8(text->m_value.c_str()));
      SetVal(typed, false);
    } else if (auto* real = dynamic_cast<RealValMessage*>(hint)) {
      SetVal(real->m_value, false);
    } else if (auto* whole = dynamic_cast<IntValMessage*>(hint)) {
      SetVal(whole->m_value, false);
    }
  }
  NotifyParentGroup(id, source, hint);
}
