// The tree's drop-down list. The items and the selection live in the
// control too, so a leaf whose window is made late loses nothing; the list
// reports a choice to the control through its own group.
#include "VUITreeTexts.h"
#include "vorn/VUIControls.h"
#include "vorn/VornAssert.h"

namespace {
constexpr int kListSpace = 23;  // right of the alignment point, beside the list
}  // namespace

void VornTreeLBCG::ControlSelected(unsigned int, VornControl*) {
  if (m_pOwner) m_pOwner->OnListItemSelected();
}

VUITreeLB::VUITreeLB(AssetManager* assetman, VornString name, bool functionable)
    : VUITreeControlBase(assetman, std::move(name), functionable) {
  if (!assetman) return;
  // Read now: the tree lays leaves out before their windows exist.
  VornListBoxInfo info;
  const bool val = assetman->LoadListBoxCached(VUITreeTexts::kListScript, info);
  VORN_ASSERT_TEXT(val == true, VUITreeTexts::kLoadFailed);
  if (val && info.bitmaps) m_listWidth = info.bitmaps->GetWidth();
}

VUITreeLB::~VUITreeLB() {
  // The list reports to a group of ours.
  DestroyChildren();
}

int VUITreeLB::EditorWidth() {
  return m_listWidth > 0 ? m_listWidth + kListSpace : kBaseWidth;
}

bool VUITreeLB::Create(wxWindow* parent, int id, VornControlGroup* group, long style) {
  if (!VUITreeControlBase::Create(parent, id, group, style)) return false;
  bool val = m_pAssetManager->GetFont(VUITreeTexts::kListFont, m_listFont);
  VORN_ASSERT_TEXT(val == true, VUITreeTexts::kLoadFailed);
  VornListBoxInfo info;
  val = m_pAssetManager->LoadListBoxCached(VUITreeTexts::kListScript, info);
  VORN_ASSERT_TEXT(val == true, VUITreeTexts::kLoadFailed);
  if (!val) return true;
  m_pList = new VornListBox(info, EditorLeft(), 0, this, m_listFont, 1, &m_listGroup);
  m_pList->Move(EditorLeft(), RowTop(m_pList->GetSize().y));
  m_listWidth = m_pList->GetSize().x;
  for (const VornString& item : m_items) m_pList->Append(item, nullptr);
  m_pList->SetSelected(m_selected, false);
  PlaceFunctionButton();
  return true;
}

void VUITreeLB::Append(const VornString& text) {
  m_items.push_back(text);
  if (m_pList) m_pList->Append(text, nullptr);
}

void VUITreeLB::ClearAll() {
  m_items.clear();
  m_selected = -1;
  if (m_pList) m_pList->ClearAll();
}

VornString VUITreeLB::GetItemText(int index) const {
  if (index < 0 || index >= GetCount()) return VornString();
  return m_items[static_cast<std::size_t>(index)];
}

void VUITreeLB::SetSelected(int index) {
  m_selected = (index >= 0 && index < GetCount()) ? index : -1;
  if (m_pList) m_pList->SetSelected(m_selected, false);
}

void VUITreeLB::OnListItemSelected() {
  if (!m_pList) return;
  m_selected = m_pList->GetSelected();
  IntValChanged hint(m_selected);
  NotifyParentGroup(GetId(), m_pList, &hint);
}
