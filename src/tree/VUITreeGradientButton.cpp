// The gradient button of the tree: a click opens the gradient editor on the
// bound gradient in a window of its own, or asks the host for its own editor
// (a NodeButtonPushHint) when none is bound.
#include "VUITreeTexts.h"
#include "vorn/GradientControl.h"
#include "vorn/VUIControls.h"

namespace {

// Hears the editor's hints and tells the button of each change; the button
// may be gone first, so it is held weakly.
class EditedGroup : public VornControlGroup {
 public:
  explicit EditedGroup(VUITreeGradientButton* button) : m_button(button) {}
  bool Update(unsigned int id, VornControl* source, VornControlHint* hint) override {
    const bool changes = dynamic_cast<GradientHintMove*>(hint) ||
                         dynamic_cast<GradientHintValue*>(hint) ||
                         dynamic_cast<GradientHintAdd*>(hint) ||
                         dynamic_cast<GradientHintDelete*>(hint) ||
                         dynamic_cast<GradientHintColSmooth*>(hint);
    if (changes && m_button) m_button->OnGradientEdited();
    return VornControlGroup::Update(id, source, hint);
  }

 private:
  wxWeakRef<VUITreeGradientButton> m_button;
};

// The editor's window: owns the editor's group, which must outlive the
// editor (wx deletes the children before the frame's members).
class EditorWindow : public wxFrame {
 public:
  EditorWindow(VUITreeGradientButton* button, AssetManager& assets, Gradient* gradient,
               const wxString& title)
      : wxFrame(wxGetTopLevelParent(button), wxID_ANY, title, wxDefaultPosition, wxDefaultSize,
                wxDEFAULT_FRAME_STYLE | wxFRAME_TOOL_WINDOW | wxFRAME_FLOAT_ON_PARENT),
        m_group(button) {
    SetClientSize(GradientControl::kWidth, GradientControl::kHeight);
    m_editor = new GradientControl;
    m_editor->Create(assets, 0, 0, this, 1, &m_group);
    m_editor->Bind(gradient);
  }
  ~EditorWindow() override { DestroyChildren(); }
  GradientControl* Editor() const { return m_editor; }

 private:
  EditedGroup m_group;
  GradientControl* m_editor = nullptr;  // a child window
};

}  // namespace

VUITreeGradientButton::VUITreeGradientButton(AssetManager* assetman, VornString name,
                                             bool functionable)
    : VUITreeSubPrimBase(assetman, std::move(name), functionable,
                         LoadButtonImages(assetman, VUITreeTexts::kGradientButton)) {}

VUITreeGradientButton::~VUITreeGradientButton() {
  // The window may point at the gradient the host frees next.
  if (wxFrame* window = m_pWindow.get()) delete window;
}

GradientControl* VUITreeGradientButton::GetEditor() const {
  auto* window = dynamic_cast<EditorWindow*>(m_pWindow.get());
  return window ? window->Editor() : nullptr;
}

void VUITreeGradientButton::OnButtonPush(int buttonId) {
  if (!m_pGradient || !m_pAssetManager) {
    VUITreeSubPrimBase::OnButtonPush(buttonId);
    return;
  }
  if (!m_pWindow) {
    m_pWindow = new EditorWindow(this, *m_pAssetManager, m_pGradient,
                                 wxString::FromUTF8(m_name.c_str()));
    m_pWindow->Show();
  }
  m_pWindow->Raise();
}

void VUITreeGradientButton::OnGradientEdited() {
  NodeChangedHint hint(GetNodeId());
  if (GetGroup()) GetGroup()->Update(0, this, &hint);
}
