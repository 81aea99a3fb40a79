// The tree's angle callipers: the callipers report to an inner group with
// the control, which keeps the value and passes changes on as node hints.
#include <cmath>

#include "VUITreeTexts.h"
#include "vorn/VUIControls.h"
#include "vorn/VornAssert.h"
#include "vorn/VornValueNotify.h"

namespace {
ColorA SkinColourA(AssetManager* assets, const char* name) {
  ColorA c(1.0, 1.0, 1.0, 1.0);
  const bool val = assets->GetColour(name, c);
  VORN_ASSERT_TEXT(val == true, VUITreeTexts::kLoadFailed);
  return c;
}
}  // namespace

VUITreeAngleClippers::VUITreeAngleClippers(AssetManager* assetman, VornString name,
                                           bool functionable, double value)
    : VUITreeControlBase(assetman, std::move(name), functionable),
      m_value(VornValueNotify::Clamp(value)) {}

VUITreeAngleClippers::~VUITreeAngleClippers() {
  // The callipers report to a group of ours.
  DestroyChildren();
}

int VUITreeAngleClippers::GetMaxHeight() {
  return kClippersHeight + 6;
}

bool VUITreeAngleClippers::Create(wxWindow* parent, int id, VornControlGroup* group, long style) {
  if (!VUITreeControlBase::Create(parent, id, group, style)) return false;
  m_pClippers = new VUITreeSubAngleClippers(
      SkinColourA(m_pAssetManager, VUITreeTexts::kClippersFrame),
      SkinColourA(m_pAssetManager, VUITreeTexts::kClippersScale),
      SkinColourA(m_pAssetManager, VUITreeTexts::kClippersMarker), kSpan, EditorLeft(),
      (GetMaxHeight() - kClippersHeight) / 2, kClippersWidth, kClippersHeight, this, 1, &m_inner);
  m_pClippers->SetBgColour(BackgroundColour());
  m_inner.Register(static_cast<VornControl*>(this));
  m_pClippers->SetValue(m_value, false);
  return true;
}

bool VUITreeAngleClippers::GetValue(double& out) {
  out = m_value;
  return true;
}

bool VUITreeAngleClippers::SetValue(double value) {
  m_value = VornValueNotify::Clamp(value);
  if (m_pClippers) m_pClippers->SetValue(m_value, false);
  if (GetGroup()) {
    RealValChanged hint(m_value);
    GetGroup()->Update(GetId(), this, &hint);
  }
  return true;
}

bool VUITreeAngleClippers::GetValue(int32& out) {
  out = static_cast<int32>(std::lround(m_value));
  return true;
}

bool VUITreeAngleClippers::SetValue(int32 value) {
  return SetValue(static_cast<double>(value));
}

void VUITreeAngleClippers::OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) {
  if (!IsInner(source)) return;
  if (auto* value = dynamic_cast<RealValMessage*>(hint)) m_value = value->m_value;
  NotifyParentGroup(id, source, hint);
}
