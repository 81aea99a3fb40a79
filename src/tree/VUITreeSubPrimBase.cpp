// The sub-primitive editors' common part: one push button drawn from an
// image set, right of the alignment line, whose click goes to the control
// (through its own group) and by default to the host as a button-push hint.
#include "VUITreeTexts.h"
#include "vorn/VUIControls.h"
#include "vorn/VornAssert.h"

namespace {

// The push button with the owner's face drawn over its image.
class SubPrimButton : public VornPushButton {
 public:
  SubPrimButton(VUITreeSubPrimBase* owner, const VornwxBitmapCache* images, int x, int y,
                wxWindow* parent, int id, VornControlGroup* group)
      : VornPushButton(images, x, y, parent, id, group), m_pOwner(owner) {}
  void OnDraw(wxDC* dc) override {
    VornPushButton::OnDraw(dc);
    if (dc && m_pOwner) m_pOwner->DrawButtonFace(*dc, wxRect(wxPoint(0, 0), GetSize()));
  }

 private:
  VUITreeSubPrimBase* m_pOwner;  // the parent window
};

}  // namespace

NodeButtonPushHint::~NodeButtonPushHint() = default;

void VUITreeSubPrimBaseCG::ControlUnSelected(unsigned int id, VornControl*) {
  if (m_pOwner) m_pOwner->OnButtonPush(static_cast<int>(id));
}

VUITreeSubPrimBase::VUITreeSubPrimBase(AssetManager* assetman, VornString name, bool functionable,
                                       const VornwxBitmapCache* images)
    : VUITreeControlBase(assetman, std::move(name), functionable), m_pImages(images) {}

VUITreeSubPrimBase::~VUITreeSubPrimBase() {
  // The button reports to a group of ours.
  DestroyChildren();
}

const VornwxBitmapCache* VUITreeSubPrimBase::LoadButtonImages(AssetManager* assetman,
                                                              const char* name) {
  const VornwxBitmapCache* images = nullptr;
  if (!assetman) return nullptr;  // the base constructor reports it
  const bool val = assetman->LoadImagesCached(name, images);
  VORN_ASSERT_TEXT(val == true, VUITreeTexts::kLoadFailed);
  return val ? images : nullptr;
}

bool VUITreeSubPrimBase::Create(wxWindow* parent, int id, VornControlGroup* group, long style) {
  if (!VUITreeControlBase::Create(parent, id, group, style)) return false;
  if (m_pImages && m_pImages->GetHeight() > 0) {
    m_pButton = new SubPrimButton(this, m_pImages, EditorLeft(), RowTop(m_pImages->GetHeight()),
                                  this, kButtonId, &m_buttonGroup);
    m_pButton->Show();
  }
  return true;
}

int VUITreeSubPrimBase::EditorWidth() {
  if (!m_pImages || m_pImages->GetWidth() <= 0) return kNoImageSpace;
  return m_pImages->GetWidth() + kImageSpace;
}

void VUITreeSubPrimBase::OnButtonPush(int buttonId) {
  NodeButtonPushHint hint(GetNodeId(), buttonId);
  if (GetGroup()) GetGroup()->Update(0, this, &hint);
}

void VUITreeSubPrimBase::DrawButtonFace(wxDC&, const wxRect&) {}
