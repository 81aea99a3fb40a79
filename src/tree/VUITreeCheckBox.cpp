// The tree's check box: a toggle button drawn from the skin's check-box set.
#include "VUITreeTexts.h"
#include "vorn/VUIControls.h"
#include "vorn/VornAssert.h"

VUITreeCheckBox::VUITreeCheckBox(AssetManager* assetman, VornString name, bool functionable,
                                 bool on)
    : VUITreeControlBase(assetman, std::move(name), functionable), m_bOn(on) {}

VUITreeCheckBox::~VUITreeCheckBox() {
  DestroyChildren();
}

bool VUITreeCheckBox::Create(wxWindow* parent, int id, VornControlGroup* group, long style) {
  if (!VUITreeControlBase::Create(parent, id, group, style)) return false;
  const VornwxBitmapCache* images = nullptr;
  const bool val = m_pAssetManager->LoadImagesCached(VUITreeTexts::kCheckBox, images);
  VORN_ASSERT_TEXT(val == true, VUITreeTexts::kLoadFailed);
  m_pButton = new VUITreeSubButtonToggle(images, EditorLeft(), 0, this, 1, &m_inner);
  m_pButton->Move(EditorLeft(), RowTop(m_pButton->GetSize().y));
  m_pButton->SetOn(m_bOn);
  m_inner.Register(static_cast<VornControl*>(this));
  return true;
}

bool VUITreeCheckBox::GetValue(int32& out) {
  out = m_bOn ? 1 : 0;
  return true;
}

bool VUITreeCheckBox::SetValue(int32 value) {
  m_bOn = value != 0;
  if (m_pButton) m_pButton->SetOn(m_bOn);
  if (GetGroup()) {
    IntValChanged hint(m_bOn ? 1 : 0);
    GetGroup()->Update(GetId(), this, &hint);
  }
  return true;
}

void VUITreeCheckBox::OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) {
  if (!IsInner(source)) return;
  if (auto* value = dynamic_cast<IntValMessage*>(hint)) m_bOn = value->m_value != 0;
  NotifyParentGroup(id, source, hint);
}
