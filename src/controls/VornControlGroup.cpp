// Control groups: registration, hint dispatch, bulk operations, one-of-N
// selection and child-to-parent forwarding.
#include "vorn/VornControlGroup.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <type_traits>

#include "vorn/VirtualControl.h"
#include "vorn/VornAssert.h"
#include "vorn/VornButton.h"
#include "vorn/VornControl.h"
#include "vornhost/Debug.h"

namespace {

template <class Map>
typename Map::iterator FindId(Map& map, unsigned int id) {
  return map.find(id);
}

// Inserts in id order; false when the id is taken.
template <class Map, class Entry>
bool InsertSorted(Map& map, Entry entry) {
  return map.insert(std::move(entry));
}

// Walks a by-id map in ascending id order while f may register or
// deregister members: after any change the walk resumes after the id just
// visited instead of trusting the position. f must read what it needs from
// the entry before calling out.
template <class Map, class F>
void WalkById(Map& map, const unsigned int& generation, F f) {
  for (auto it = map.begin(); it != map.end();) {
    const unsigned int id = it->id;
    const unsigned int before = generation;
    f(*it);
    if (generation != before)
      it = map.upper_bound(id);
    else
      ++it;
  }
}

template <class T>
bool Contains(const std::vector<T*>& sequence, const T* member) {
  return std::find(sequence.begin(), sequence.end(), member) != sequence.end();
}

// A failed registry operation, reported under the operation's own name.
void RegistryFailed(const char* operation, int line) {
  VornAssertFailed("0", operation, __FILE__, line);
}

template <class T>
bool AppendMember(std::vector<T*>& sequence, T* member) {
  VORN_ASSERT_TEXT(member != nullptr, "member != __null");
  if (!member) return false;
  if (Contains(sequence, member)) {
    RegistryFailed("Register", __LINE__);
    return false;
  }
  sequence.push_back(member);
  return true;
}

// Removes member keeping the order of the rest and clears its link to group
// if it points there. Null does nothing; a stranger is an assertion.
template <class T>
bool RemoveMember(std::vector<T*>& sequence, T* member, VornControlGroup* group) {
  if (!member) return false;
  auto it = std::find(sequence.begin(), sequence.end(), member);
  if (it == sequence.end()) {
    RegistryFailed("DeRegister", __LINE__);
    return false;
  }
  sequence.erase(it);
  if constexpr (!std::is_same_v<T, MessageReceiver>) {
    if (member->GetGroup() == group) member->SetGroup(nullptr);
  }
  return true;
}

// Deregisters the first member until none is left; a subclass whose
// DeRegister keeps the member cannot stall the loop.
template <class T>
void DrainSequence(VornControlGroup& group, std::vector<T*>& sequence) {
  while (!sequence.empty()) {
    const std::size_t before = sequence.size();
    group.DeRegister(sequence.front());
    if (sequence.size() == before) sequence.erase(sequence.begin());
  }
}

std::string Address(const void* p) {
  char buf[32];
  std::snprintf(buf, sizeof buf, "%p", p);
  return buf;
}

template <class Map>
void DumpEntries(const char* heading, const Map& map) {
  dprintf(heading, static_cast<int>(map.size()));
  for (const auto& entry : map) {
    const std::string line = "  ID = " + std::to_string(entry.id) +
                             ", mce: id = " + std::to_string(entry.id) +
                             ", own = " + (entry.own ? "1" : "0") +
                             ", control = " + Address(entry.control) + ", name = " + entry.name;
    dprintf("%s\n", line.c_str());
  }
}

}  // namespace

VornControlGroup::~VornControlGroup() {
  // Leave the parent's sub-group list so that it never holds a dead group.
  if (m_pControlGroup && m_pControlGroup->CurrentlyRegistered(this))
    m_pControlGroup->DeRegister(this);
  VornControlGroup::Clear();
}

bool VornControlGroup::ShowAll(void* context, bool show, VornControlHint* hint) {
  WalkById(m_controlsById, m_generation, [&](const VornControlEntry& e) {
    if (e.control) e.control->Show(show);
  });
  WalkById(m_virtualControlsById, m_generation, [&](const VirtualControlEntry& e) {
    if (e.control) e.control->Show(show);
  });
  for (std::size_t i = 0; i < m_controls.size(); ++i) m_controls[i]->Show(show);
  for (std::size_t i = 0; i < m_virtualControls.size(); ++i) m_virtualControls[i]->Show(show);
  for (std::size_t i = 0; i < m_groups.size(); ++i) m_groups[i]->ShowAll(context, show, hint);
  return true;
}

bool VornControlGroup::SetOnControl(unsigned int id, bool on, VornControlHint*) {
  auto it = FindId(m_controlsById, id);
  if (it != m_controlsById.end()) {
    if (auto* button = dynamic_cast<VornButton*>(it->control)) {
      button->SetOn(on);
      button->Refresh(false);
    }
  }
  // Id-less controls match every id.
  for (std::size_t i = 0; i < m_controls.size(); ++i) {
    if (auto* button = dynamic_cast<VornButton*>(m_controls[i])) {
      button->SetOn(on);
      button->Refresh(false);
    }
  }
  auto vit = FindId(m_virtualControlsById, id);
  if (vit != m_virtualControlsById.end()) {
    if (auto* button = dynamic_cast<VirtualButton*>(vit->control)) {
      button->SetOn(on);
      button->Refresh(false);
    }
  }
  return true;
}

bool VornControlGroup::SetEnableAll(void* context, bool enable, VornControlHint* hint) {
  auto enableControl = [enable](VornControl* c) {
    c->SetEnabled(enable);
    c->Refresh(false);
  };
  auto enableVirtual = [enable](VirtualControl* c) {
    c->SetEnabled(enable);
    c->Refresh(false);
  };
  WalkById(m_controlsById, m_generation, [&](const VornControlEntry& e) {
    if (e.control) enableControl(e.control);
  });
  WalkById(m_virtualControlsById, m_generation, [&](const VirtualControlEntry& e) {
    if (e.control) enableVirtual(e.control);
  });
  for (std::size_t i = 0; i < m_controls.size(); ++i) enableControl(m_controls[i]);
  for (std::size_t i = 0; i < m_virtualControls.size(); ++i) enableVirtual(m_virtualControls[i]);
  for (std::size_t i = 0; i < m_groups.size(); ++i)
    m_groups[i]->SetEnableAll(context, enable, hint);
  return true;
}

bool VornControlGroup::SetEnableControl(unsigned int id, bool enable, VornControlHint*) {
  auto enableButton = [enable](VornControl* c) {
    if (auto* button = dynamic_cast<VornButton*>(c)) {
      button->SetEnabled(enable);
      button->Refresh(false);
    }
  };
  auto it = FindId(m_controlsById, id);
  if (it != m_controlsById.end()) enableButton(it->control);
  for (std::size_t i = 0; i < m_controls.size(); ++i) enableButton(m_controls[i]);
  return true;
}

bool VornControlGroup::Update(unsigned int id, VornControl* source, VornControlHint* hint) {
  WalkById(m_controlsById, m_generation, [&](const VornControlEntry& e) {
    if (e.control) e.control->OnUpdate(id, source, hint);
  });
  for (std::size_t i = 0; i < m_controls.size(); ++i) m_controls[i]->OnUpdate(id, source, hint);
  for (std::size_t i = 0; i < m_virtualControls.size(); ++i)
    m_virtualControls[i]->OnUpdate(id, source, hint);
  for (std::size_t i = 0; i < m_groups.size(); ++i) m_groups[i]->Update(id, source, hint);
  for (std::size_t i = 0; i < m_receivers.size(); ++i) m_receivers[i]->OnUpdate(id, source, hint);
  return true;
}

void VornControlGroup::ControlSelected(unsigned int, VornControl*) {}
void VornControlGroup::ControlUnSelected(unsigned int, VornControl*) {}
void VornControlGroup::ControlDoubleClick(unsigned int, VornControl*) {}
void VornControlGroup::ControlSelected(unsigned int, VirtualControl*) {}
void VornControlGroup::ControlUnSelected(unsigned int, VirtualControl*) {}
void VornControlGroup::ControlDoubleClick(unsigned int, VirtualControl*) {}

// Both change nothing and assert, under the operation's name, when the id
// is taken.
bool VornControlGroup::InsertControl(unsigned int id, VornControl* control, VornString name,
                                     bool own) {
  if (!InsertSorted(m_controlsById, VornControlEntry{id, own, control, std::move(name)})) {
    RegistryFailed(own ? "RegisterOwner" : "Register", __LINE__);
    return false;
  }
  ++m_generation;
  return true;
}

bool VornControlGroup::InsertVirtual(unsigned int id, VirtualControl* control, bool own) {
  if (!InsertSorted(m_virtualControlsById, VirtualControlEntry{id, own, control, "NONAME"})) {
    RegistryFailed(own ? "RegisterOwner" : "Register", __LINE__);
    return false;
  }
  ++m_generation;
  return true;
}

bool VornControlGroup::Register(unsigned int id, VornControl* control, VornString name) {
  return InsertControl(id, control, std::move(name), false);
}

bool VornControlGroup::Register(unsigned int id, VornControl* control) {
  return InsertControl(id, control, "NONAME", false);
}

bool VornControlGroup::Register(unsigned int id, VirtualControl* control) {
  return InsertVirtual(id, control, false);
}

bool VornControlGroup::RegisterOwner(unsigned int id, VornControl* control, VornString name) {
  return InsertControl(id, control, std::move(name), true);
}

bool VornControlGroup::RegisterOwner(unsigned int id, VornControl* control) {
  return InsertControl(id, control, "NONAME", true);
}

bool VornControlGroup::RegisterOwner(unsigned int id, VirtualControl* control) {
  return InsertVirtual(id, control, true);
}

bool VornControlGroup::EraseControlEntry(ControlMap::iterator it, bool keep) {
  const VornControlEntry entry = *it;
  m_controlsById.erase(it);
  ++m_generation;
  if (entry.control && entry.control->GetGroup() == this) entry.control->SetGroup(nullptr);
  // The group link is already cleared, so the control's destructor does not
  // come back here.
  if (entry.own && !keep) delete entry.control;
  return true;
}

bool VornControlGroup::EraseVirtualEntry(VirtualMap::iterator it, bool keep) {
  const VirtualControlEntry entry = *it;
  m_virtualControlsById.erase(it);
  ++m_generation;
  if (entry.control && entry.control->GetGroup() == this) entry.control->SetGroup(nullptr);
  if (entry.own && !keep) delete entry.control;
  return true;
}

bool VornControlGroup::DeRegisterById(unsigned int id, bool keep) {
  auto it = FindId(m_controlsById, id);
  if (it != m_controlsById.end()) return EraseControlEntry(it, keep);
  auto vit = FindId(m_virtualControlsById, id);
  if (vit != m_virtualControlsById.end()) return EraseVirtualEntry(vit, keep);
  return false;
}

bool VornControlGroup::DeRegister(VornControl* control, bool keep) {
  auto it = std::find_if(m_controlsById.begin(), m_controlsById.end(),
                         [control](const auto& e) { return e.control == control; });
  return it != m_controlsById.end() && EraseControlEntry(it, keep);
}

bool VornControlGroup::DeRegister(VirtualControl* control, bool keep) {
  auto it = std::find_if(m_virtualControlsById.begin(), m_virtualControlsById.end(),
                         [control](const auto& e) { return e.control == control; });
  return it != m_virtualControlsById.end() && EraseVirtualEntry(it, keep);
}

bool VornControlGroup::DeRegister(unsigned int id, bool keep) {
  return DeRegisterById(id, keep);
}

bool VornControlGroup::Register(VornControl* control) {
  return AppendMember(m_controls, control);
}

bool VornControlGroup::Register(VirtualControl* control) {
  return AppendMember(m_virtualControls, control);
}

bool VornControlGroup::Register(VornControlGroup* group) {
  return AppendMember(m_groups, group);
}

bool VornControlGroup::Register(MessageReceiver* receiver) {
  dprintf("VornControlGroup::Register(MessageReceiver* %p)\n", static_cast<void*>(receiver));
  return AppendMember(m_receivers, receiver);
}

bool VornControlGroup::DeRegister(VornControl* control) {
  return RemoveMember(m_controls, control, this);
}

bool VornControlGroup::DeRegister(VirtualControl* control) {
  return RemoveMember(m_virtualControls, control, this);
}

bool VornControlGroup::DeRegister(VornControlGroup* group) {
  return RemoveMember(m_groups, group, this);
}

bool VornControlGroup::DeRegister(MessageReceiver* receiver) {
  if (!receiver) return false;
  dprintf("VornControlGroup::DeRegister(MessageReceiver* %p)\n", static_cast<void*>(receiver));
  return RemoveMember(m_receivers, receiver, this);
}

bool VornControlGroup::Clear() {
  // This registry's own removal, not the virtual DeRegister(id, keep): a
  // subclass may point that at another registry.
  while (!m_controlsById.empty()) EraseControlEntry(m_controlsById.begin(), true);
  while (!m_virtualControlsById.empty()) EraseVirtualEntry(m_virtualControlsById.begin(), true);
  DrainSequence(*this, m_controls);
  DrainSequence(*this, m_virtualControls);
  DrainSequence(*this, m_groups);
  DrainSequence(*this, m_receivers);
  m_pControlGroup = nullptr;
  return true;
}

void VornControlGroup::DumpTrace() {
  dprintf("Current control group address is %p\n", static_cast<void*>(this));
  DumpEntries(" Controls (%d):\n", m_controlsById);
  DumpEntries(" Virtual Controls (%d):\n", m_virtualControlsById);
  dprintf(" Groups (%d):\n", static_cast<int>(m_groups.size()));
  for (VornControlGroup* group : m_groups) dprintf("  Address = %p\n", static_cast<void*>(group));
}

bool VornControlGroup::CurrentlyRegistered(VornControl* control) const {
  return Contains(m_controls, control);
}

bool VornControlGroup::CurrentlyRegistered(VirtualControl* control) const {
  return Contains(m_virtualControls, control);
}

bool VornControlGroup::CurrentlyRegistered(VornControlGroup* group) const {
  return Contains(m_groups, group);
}

bool VornControlGroup::CurrentlyRegistered(MessageReceiver* receiver) const {
  return Contains(m_receivers, receiver);
}

bool VornControlGroup::IsEmpty() const {
  return m_controlsById.empty() && m_virtualControlsById.empty() && m_controls.empty() &&
         m_virtualControls.empty() && m_groups.empty() && m_receivers.empty();
}

void VornControlGroup::SetGroup(VornControlGroup* parent) {
  m_pControlGroup = parent;
  if (parent) parent->Register(this);
}

void VornControlGroup::Bind(VornControlGroup* parent) {
  VORN_ASSERT_TEXT(m_pControlGroup == nullptr, "m_pControlGroup == __null");
  if (m_pControlGroup) return;
  m_pControlGroup = parent;
  if (parent) parent->Register(this);
}

// ---------------------------------------------------------------------------

bool VornControlGroup1ofN::SetOnControl(unsigned int id, bool on, VornControlHint* hint) {
  if (on) m_selected = id;
  return VornControlGroup::SetOnControl(id, on, hint);
}

bool VornControlGroup1ofN::SetOnAll(VornControl* on, bool value, VornControlHint*) {
  WalkById(m_controlsById, m_generation, [&](const VornControlEntry& e) {
    auto* button = dynamic_cast<VornButton*>(e.control);
    if (!button) return;
    if (e.control == on)
      m_selected = static_cast<unsigned int>(on->GetId());
    else
      button->SetOn(value);
  });
  return true;
}

bool VornControlGroup1ofN::SetOnAll(VirtualControl* on, bool value, VornControlHint*) {
  WalkById(m_virtualControlsById, m_generation, [&](const VirtualControlEntry& e) {
    auto* button = dynamic_cast<VirtualButton*>(e.control);
    if (!button) return;
    if (e.control == on)
      m_selected = on->GetId();
    else
      button->SetOn(value);
  });
  return true;
}

void VornControlGroupValue::ControlDrag(unsigned int, VornControl*) {}
void VornControlGroupValue::ControlShapeChanged(unsigned int, VornControl*) {}

bool VornValueControlGroup1ofN::DeRegister(unsigned int id, bool keep) {
  if (VornControlGroupValue::DeRegisterById(id, keep)) return true;
  return VornControlGroup1ofN::DeRegisterById(id, keep);
}

void ChildToParentControlGroup::ControlSelected(unsigned int, VornControl*) {
  if (m_pParent && m_pParent->GetGroup())
    m_pParent->GetGroup()->ControlSelected(static_cast<unsigned int>(m_pParent->GetId()),
                                           m_pParent);
}

void ChildToParentControlGroup::ControlUnSelected(unsigned int, VornControl*) {
  if (m_pParent && m_pParent->GetGroup())
    m_pParent->GetGroup()->ControlUnSelected(static_cast<unsigned int>(m_pParent->GetId()),
                                             m_pParent);
}

void ChildToParentControlGroup::ControlDrag(unsigned int, VornControl*) {
  if (!m_pParent) return;
  if (auto* group = dynamic_cast<VornControlGroupValue*>(m_pParent->GetGroup()))
    group->ControlDrag(static_cast<unsigned int>(m_pParent->GetId()), m_pParent);
}

void ChildToParentControlGroup::ControlShapeChanged(unsigned int, VornControl*) {
  if (!m_pParent) return;
  if (auto* group = dynamic_cast<VornControlGroupValue*>(m_pParent->GetGroup()))
    group->ControlShapeChanged(static_cast<unsigned int>(m_pParent->GetId()), m_pParent);
}
