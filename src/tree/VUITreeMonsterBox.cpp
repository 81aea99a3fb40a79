// The tree's table editor: a multi-column box that opens under a toggle.
// The box's height follows its grip, and every change of the control's size
// lays the whole tree out again.
#include <utility>

#include "VUITreeOpenBox.h"
#include "VUITreeTexts.h"
#include "vorn/VUIControls.h"
#include "vorn/VornMonsterBox.h"

namespace {
// Optional skin pictures and colours of the box (the tables' own).
const char* const kPictures[] = {"table_frame.sts", "table_heading.sts", "table_spacer.sts"};
}  // namespace

VUITreeMonsterBox::VUITreeMonsterBox(AssetManager* assetman, VornString name, bool functionable,
                                     int boxWidth, int boxHeight, bool open)
    : VUITreeControlBase(assetman, std::move(name), functionable),
      m_boxWidth(boxWidth),
      m_boxHeight(boxHeight),
      m_bOpen(open) {
  m_pToggleImages = VUITreeSubPrimBase::LoadButtonImages(assetman, VUITreeTexts::kTableToggle);
}

VUITreeMonsterBox::~VUITreeMonsterBox() {
  // The box and the toggle report to groups of ours.
  DestroyChildren();
}

bool VUITreeMonsterBox::Create(wxWindow* parent, int id, VornControlGroup* group, long style) {
  if (!VUITreeControlBase::Create(parent, id, group, style)) return false;
  const wxBitmap* pictures[3] = {};
  for (int i = 0; i < 3; ++i)
    if (!m_pAssetManager->LoadImageCached(kPictures[i], pictures[i])) pictures[i] = nullptr;
  m_pBox = new VornMonsterBox;
  wxColour cell, text, separator;
  if (m_pAssetManager->GetColour("table_cell", cell) &&
      m_pAssetManager->GetColour("table_cell_text", text))
    m_pBox->SetColors(cell, text);
  if (m_pAssetManager->GetColour("table_separator", separator)) m_pBox->SetSepColour(separator);
  VornString boxName = m_name;
  const wxPoint at = vorn_tree::ComputeOpenBox(GetAllignmentPt(), wxSize(), BoxSize(), true,
                                               kEditorGap, kBoxMargin, 0, 0)
                         .box;
  m_pBox->Create(pictures[0], pictures[1], pictures[2], at.x, at.y, m_boxWidth, m_boxHeight,
                 boxName, this, kBoxId, &m_boxGroup, kMonsterBoxResizable);
  m_boxGroup.Register(static_cast<VornControl*>(this));
  m_pToggle = new VornVUIMonToggleButton(this, m_pToggleImages, EditorLeft(), 0, this, kToggleId);
  m_pToggle->SetOn(m_bOpen);
  m_pBox->Show(m_bOpen);
  if (m_fill) std::exchange(m_fill, nullptr)(m_pBox);
  // The node lays the tree out once the leaf is in it.
  SetSize(GetMaxWidth(), GetMaxHeight());
  PlaceParts();
  return true;
}

void VUITreeMonsterBox::WhenBoxReady(std::function<void(VornMonsterBox*)> fill) {
  if (m_pBox && fill)
    fill(m_pBox);
  else
    m_fill = std::move(fill);
}

wxSize VUITreeMonsterBox::BoxSize() const {
  return m_pBox ? m_pBox->GetSize() : wxSize(m_boxWidth, m_boxHeight);
}

int VUITreeMonsterBox::GetOffset() const {
  const wxSize toggle = m_pToggle ? m_pToggle->GetSize() : wxSize();
  return vorn_tree::ComputeOpenBox(0, toggle, BoxSize(), true, kEditorGap, kBoxMargin, 0, 0).offset;
}

int VUITreeMonsterBox::EditorWidth() {
  if (!m_bOpen) return VUITreeControlBase::EditorWidth();
  return GetOffset() + BoxSize().x;
}

int VUITreeMonsterBox::GetMaxHeight() {
  return m_bOpen ? BoxSize().y + 2 * kBoxMargin : kHeight;
}

void VUITreeMonsterBox::PlaceParts() {
  if (!m_pToggle) return;
  const vorn_tree::OpenBoxGeometry g =
      vorn_tree::ComputeOpenBox(GetAllignmentPt(), m_pToggle->GetSize(), BoxSize(), m_bOpen,
                                kEditorGap, kBoxMargin, EditorWidth(), GetMaxHeight());
  m_pToggle->Move(g.toggle);
  if (m_pBox) m_pBox->Move(g.box);
  PlaceFunctionButton();
}

void VUITreeMonsterBox::FitToBox() {
  if (!m_pToggle) return;
  SetSize(GetMaxWidth(), GetMaxHeight());
  PlaceParts();
  InvalidateLabel();
  Refresh(false);
  Relayout();
}

void VUITreeMonsterBox::SetOpen(bool open) {
  if (open == m_bOpen) return;
  m_bOpen = open;
  if (m_pToggle) m_pToggle->SetOn(open);
  if (m_pBox) m_pBox->Show(open);
  FitToBox();
}

void VUITreeMonsterBox::OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) {
  if (!m_pBox || !source || (source != m_pBox && !m_pBox->IsDescendant(source))) return;
  if (dynamic_cast<MonSizeChangeHint*>(hint)) {
    FitToBox();
    return;
  }
  NotifyParentGroup(id, source, hint);
}
