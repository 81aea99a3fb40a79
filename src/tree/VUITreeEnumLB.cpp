// The tree's enumeration list: the names an enumeration text yields, the
// chosen one the value.
#include "vorn/VUIControls.h"

VUITreeEnumLB::VUITreeEnumLB(AssetManager* assetman, VornString name, bool functionable,
                             const VornString& enumeration)
    : VUITreeLB(assetman, std::move(name), functionable) {
  SetEnumeration(enumeration);
}

VUITreeEnumLB::~VUITreeEnumLB() = default;

void VUITreeEnumLB::SetEnumeration(const VornString& enumeration) {
  const VornString chosen = m_names.GetName(m_selected);
  m_names.Parse(enumeration);
  ClearAll();
  for (const VornString& n : m_names.GetNames()) Append(n);
  SetSelected(m_names.GetIndex(chosen));
}

bool VUITreeEnumLB::GetValue(VornString& out) {
  if (m_selected < 0) return false;
  out = m_names.GetName(m_selected);
  return true;
}

bool VUITreeEnumLB::SetValue(VornString value) {
  const int index = m_names.GetIndex(value);
  if (index < 0) return false;
  SetSelected(index);
  return true;
}

void VUITreeEnumLB::OnListItemSelected() {
  if (!m_pList) return;
  m_selected = m_pList->GetSelected();
  StringValChanged hint(m_names.GetName(m_selected));
  NotifyParentGroup(GetId(), m_pList, &hint);
}
