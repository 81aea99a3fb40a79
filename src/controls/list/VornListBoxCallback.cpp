// The list state shared by the list box and the list button: items,
// selection, colours and the opening of the pop-up.
#include <wx/display.h>

#include "VornListBoxTexts.h"
#include "vorn/VornAssert.h"
#include "vorn/VornControlGroup.h"
#include "vorn/VornListBox.h"

using namespace vorn_list_texts;

VornListBoxCallback::VornListBoxCallback() = default;

// The owners close their pop-up in their own destructors; this is the last
// guard, and must not call back into a half-destroyed owner.
VornListBoxCallback::~VornListBoxCallback() {
  if (ExpandedVornListBox* box = m_pExpanded) {
    m_pExpanded = nullptr;
    box->OwnerGone();
  }
}

int VornListBoxCallback::GetSelected() const {
  return m_selected;
}

void VornListBoxCallback::SetSelected(int index, bool notify) {
  VORN_ASSERT_TEXT(index < GetCount() || index == -1, kIndexOrNone);
  if (index >= GetCount() || index < -1) return;
  m_selected = index;
  m_shownText = index == -1 ? VornString() : m_elements[index]->GetString();
  VornControl* control = GetListControl();
  if (!control) return;
  if (notify) {
    if (VornControlGroup* group = control->GetGroup())
      group->ControlSelected(control->GetId(), control);
  }
  control->Refresh(false);
}

void VornListBoxCallback::CheckIndex(int index) const {
  VORN_ASSERT_TEXT(index >= 0 && index < GetCount(), kIndexInRange);
}

// ---- items -------------------------------------------------------------------

void VornListBoxCallback::Append(const VornString& text, void* data) {
  m_elements.push_back(std::make_unique<VornListBoxText>(GetListControl(), text, data));
}

void VornListBoxCallback::Append() {
  m_elements.push_back(std::make_unique<VornListBoxSeperator>());
}

void VornListBoxCallback::Insert(int index, const VornString& text, void* data) {
  CheckIndex(index);
  if (index < 0 || index >= GetCount()) return;
  m_elements.insert(m_elements.begin() + index,
                    std::make_unique<VornListBoxText>(GetListControl(), text, data));
  if (m_selected >= index) ++m_selected;
}

void VornListBoxCallback::Insert(int index) {
  CheckIndex(index);
  if (index < 0 || index >= GetCount()) return;
  m_elements.insert(m_elements.begin() + index, std::make_unique<VornListBoxSeperator>());
  if (m_selected >= index) ++m_selected;
}

void VornListBoxCallback::Delete(int index) {
  CheckIndex(index);
  if (index < 0 || index >= GetCount()) return;
  HideExpandedBox();  // the pop-up reads the rows
  m_elements.erase(m_elements.begin() + index);
  if (m_selected == index) {
    SetSelected(-1, false);
  } else if (m_selected > index) {
    --m_selected;
  }
}

void VornListBoxCallback::Delete(const VornString& text) {
  for (int i = 0; i < GetCount(); ++i) {
    if (m_elements[i]->IsSelectable() && m_elements[i]->GetString() == text) {
      Delete(i);
      return;
    }
  }
}

void VornListBoxCallback::ClearAll() {
  HideExpandedBox();
  m_elements.clear();
  SetSelected(-1, false);
}

void* VornListBoxCallback::GetItemData(int index) const {
  CheckIndex(index);
  return index >= 0 && index < GetCount() ? m_elements[index]->GetItemData() : nullptr;
}

VornString VornListBoxCallback::GetItemText(int index) const {
  CheckIndex(index);
  return index >= 0 && index < GetCount() ? m_elements[index]->GetString() : VornString();
}

void VornListBoxCallback::SetItemText(int index, const VornString& text) {
  CheckIndex(index);
  if (index < 0 || index >= GetCount()) return;
  m_elements[index]->SetString(text);
  if (index == m_selected) SetSelected(index, false);
}

// ---- the pop-up ---------------------------------------------------------------

void VornListBoxCallback::HideExpandedBox() {
  if (m_pExpanded) m_pExpanded->Dismiss();
  m_pExpanded = nullptr;
}

void VornListBoxCallback::TakeInfo(const VornListBoxInfo& info) {
  // The script's expansion colours are the bar's outline, fill and hover:
  // the pop-up takes its frame, fill and highlight from them.
  m_colours.text = info.textColour;
  m_colours.border = info.expandColour1;
  m_colours.background = info.expandColour2;
  m_colours.highlight = info.expandColour3;
  m_colours.highlightText = info.expandColour2;
  if (info.expand > 0) m_maxHeight = info.expand;
}

bool VornListBoxCallback::OpenExpanded(int width, wxFont& font, bool fontGiven) {
  VornControl* control = GetListControl();
  if (m_pExpanded || !control || m_elements.empty()) return false;
  std::vector<int> heights;
  heights.reserve(m_elements.size());
  for (const auto& e : m_elements) heights.push_back(e->GetHeight());
  const VornListPopupPlace place = VornListPopupPlacement(heights, m_selected, m_maxHeight);
  wxPoint at = control->GetPosition();
  at.y += place.y;
  if (wxWindow* parent = control->GetParent()) at = parent->ClientToScreen(at);
  at = VornKeepOnDisplay(wxRect(at, wxSize(width, place.height)), wxGetDisplaySize());
  m_pExpanded = new ExpandedVornListBox(this, nullptr, font, fontGiven, at.x, at.y, width,
                                        place.height, place.offset);
  m_pExpanded->SetBackgroundColour(m_colours.background);
  m_pExpanded->SetForegroundColour(m_colours.text);
  m_pExpanded->Show(true);
  // wxGTK's first show of a frame without decorations loses the size it was
  // created with; set it again once the frame is mapped.
  m_pExpanded->SetSize(at.x, at.y, width, place.height);
  m_pExpanded->Raise();
  m_pExpanded->SetFocus();
  if (!m_pExpanded->HasCapture()) m_pExpanded->CaptureMouse();
  return true;
}
