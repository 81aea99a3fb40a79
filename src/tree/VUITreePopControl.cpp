// The tree's pop-up editor: a box of the host's controls that opens under a
// toggle; opening, closing and resizing it lay the tree out again.
#include <wx/panel.h>

#include <utility>

#include "VUITreeOpenBox.h"
#include "VUITreeTexts.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/VUIControls.h"

VUITreePopControl::VUITreePopControl(AssetManager* assetman, VornString name, bool functionable,
                                     int boxWidth, int boxHeight, bool open)
    : VUITreeControlBase(assetman, std::move(name), functionable),
      m_boxWidth(boxWidth),
      m_boxHeight(boxHeight),
      m_bOpen(open) {
  m_pToggleImages = VUITreeSubPrimBase::LoadButtonImages(assetman, VUITreeTexts::kPopToggle);
}

VUITreePopControl::~VUITreePopControl() {
  // The host's controls in the box report to a group of ours.
  DestroyChildren();
}

bool VUITreePopControl::Create(wxWindow* parent, int id, VornControlGroup* group, long style) {
  if (!VUITreeControlBase::Create(parent, id, group, style)) return false;
  m_pBox = new wxPanel(this, wxID_ANY, wxDefaultPosition, wxSize(m_boxWidth, m_boxHeight),
                       wxBORDER_NONE);
  wxColour fill;
  if (m_pAssetManager->GetColour(VUITreeTexts::kPopBoxColour, fill))
    m_pBox->SetBackgroundColour(fill);
  else
    m_pBox->SetBackgroundColour(BackgroundColour());
  m_boxGroup.Register(static_cast<VornControl*>(this));
  m_pToggle = new VornTreePopToggleButton(this, m_pToggleImages, EditorLeft(), 0, this, kToggleId);
  m_pToggle->SetOn(m_bOpen);
  m_pBox->Show(m_bOpen);
  if (m_fill) std::exchange(m_fill, nullptr)(m_pBox, &m_boxGroup);
  // The node lays the tree out once the leaf is in it.
  SetSize(GetMaxWidth(), GetMaxHeight());
  PlaceParts();
  return true;
}

void VUITreePopControl::WhenBoxReady(std::function<void(wxWindow*, VornControlGroup*)> fill) {
  if (m_pBox && fill)
    fill(m_pBox, &m_boxGroup);
  else
    m_fill = std::move(fill);
}

int VUITreePopControl::GetOffset() const {
  const wxSize toggle = m_pToggle ? m_pToggle->GetSize() : wxSize();
  return vorn_tree::ComputeOpenBox(0, toggle, wxSize(m_boxWidth, m_boxHeight), true, kEditorGap,
                                   kBoxMargin, 0, 0)
      .offset;
}

int VUITreePopControl::EditorWidth() {
  if (!m_bOpen) return VUITreeControlBase::EditorWidth();
  return GetOffset() + m_boxWidth;
}

int VUITreePopControl::GetMaxHeight() {
  return m_bOpen ? m_boxHeight + 2 * kBoxMargin : kHeight;
}

void VUITreePopControl::PlaceParts() {
  if (!m_pToggle) return;
  const vorn_tree::OpenBoxGeometry g = vorn_tree::ComputeOpenBox(
      GetAllignmentPt(), m_pToggle->GetSize(), wxSize(m_boxWidth, m_boxHeight), m_bOpen, kEditorGap,
      kBoxMargin, EditorWidth(), GetMaxHeight());
  m_pToggle->Move(g.toggle);
  if (m_pBox) m_pBox->SetSize(g.box.x, g.box.y, m_boxWidth, m_boxHeight);
  PlaceFunctionButton();
}

void VUITreePopControl::FitToBox() {
  if (!m_pToggle) return;
  SetSize(GetMaxWidth(), GetMaxHeight());
  PlaceParts();
  InvalidateLabel();
  Refresh(false);
  Relayout();
}

void VUITreePopControl::SetOpen(bool open) {
  if (open == m_bOpen) return;
  m_bOpen = open;
  if (m_pToggle) m_pToggle->SetOn(open);
  if (m_pBox) m_pBox->Show(open);
  FitToBox();
}

void VUITreePopControl::SetBoxSize(int w, int h) {
  if (w == m_boxWidth && h == m_boxHeight) return;
  m_boxWidth = w;
  m_boxHeight = h;
  if (m_bOpen)
    FitToBox();
  else
    PlaceParts();
}

void VUITreePopControl::OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) {
  // Only the host's controls in the box speak for this parameter.
  if (m_pBox && source && m_pBox->IsDescendant(source)) NotifyParentGroup(id, source, hint);
}
