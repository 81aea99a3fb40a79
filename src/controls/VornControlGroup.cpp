// Control groups: registration, hint dispatch, bulk operations, one-of-N
// selection and child-to-parent forwarding.
#include "vorn/VornControlGroup.h"

#include <algorithm>
#include <cstdio>
#include <string>

#include "vorn/VirtualControl.h"
#include "vorn/VornAssert.h"
#include "vorn/VornButton.h"
#include "vorn/VornControl.h"
#include "vornhost/Debug.h"

namespace {

template <class Entry>
typename std::vector<Entry>::iterator LowerBound(std::vector<Entry>& map, unsigned int id) {
  return std::lower_bound(map.begin(), map.end(), id,
                          [](const Entry& e, unsigned int key) { return e.id < key; });
}

template <class Entry>
typename std::vector<Entry>::iterator FindId(std::vector<Entry>& map, unsigned int id) {
  auto it = LowerBound(map, id);
  return it != map.end() && it->id == id ? it : map.end();
}

// Inserts in id order; false when the id is taken.
template <class Entry>
bool InsertSorted(std::vector<Entry>& map, Entry entry) {
  auto it = LowerBound(map, entry.id);
  if (it != map.end() && it->id == entry.id) return false;
  map.insert(it, std::move(entry));
  return true;
}

// Walks a by-id map in ascending id order while f may register or
// deregister members: after any change the walk resumes after the id just
// visited instead of trusting the position. f must read what it needs from
// the entry before calling out.
template <class Entry, class F>
void WalkById(std::vector<Entry>& map, const unsigned int& generation, F f) {
  for (std::size_t i = 0; i < map.size();) {
    const unsigned int id = map[i].id;
    const unsigned int before = generation;
    f(map[i]);
    if (generation != before)
      i = static_cast<std::size_t>(
          std::upper_bound(map.begin(), map.end(), id,
                           [](unsigned int key, const Entry& e) { return key < e.id; }) -
          map.begin());
    else
      ++i;
  }
}

template <class T>
bool Contains(const std::vector<T*>& sequence, const T* member) {
  return std::find(sequence.begin(), sequence.end(), member) != sequence.end();
}

// False when member is already there. The callers assert, so that the
// report names the operation.
template <class T>
bool Append(std::vector<T*>& sequence, T* member) {
  if (Contains(sequence, member)) return false;
  sequence.push_back(member);
  return true;
}

// Removes member keeping the order of the rest; false when absent.
template <class T>
bool Remove(std::vector<T*>& sequence, T* member) {
  auto it = std::find(sequence.begin(), sequence.end(), member);
  if (it == sequence.end()) return false;
  sequence.erase(it);
  return true;
}

std::string Address(const void* p) {
  char buf[32];
  std::snprintf(buf, sizeof buf, "%p", p);
  return buf;
}

template <class Entry>
void DumpEntries(const char* heading, const std::vector<Entry>& map) {
  dprintf(heading, static_cast<int>(map.size()));
  for (const Entry& entry : map) {
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
  WalkById(m_controlsById, m_generation, [&](VornControlEntry& e) {
    if (e.control) e.control->Show(show);
  });
  WalkById(m_virtualControlsById, m_generation, [&](VirtualControlEntry& e) {
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
  WalkById(m_controlsById, m_generation, [&](VornControlEntry& e) {
    if (e.control) enableControl(e.control);
  });
  WalkById(m_virtualControlsById, m_generation, [&](VirtualControlEntry& e) {
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
  WalkById(m_controlsById, m_generation, [&](VornControlEntry& e) {
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

// Both return false, changing nothing, when the id is taken; the callers
// assert so that the report names the operation.
bool VornControlGroup::InsertControl(unsigned int id, VornControl* control, VornString name,
                                     bool own) {
  if (!InsertSorted(m_controlsById, VornControlEntry{id, own, control, std::move(name)}))
    return false;
  ++m_generation;
  return true;
}

bool VornControlGroup::InsertVirtual(unsigned int id, VirtualControl* control, bool own) {
  if (!InsertSorted(m_virtualControlsById, VirtualControlEntry{id, own, control, "NONAME"}))
    return false;
  ++m_generation;
  return true;
}

bool VornControlGroup::Register(unsigned int id, VornControl* control, VornString name) {
  const bool inserted = InsertControl(id, control, std::move(name), false);
  VORN_ASSERT_TEXT(inserted, "0");
  return inserted;
}

bool VornControlGroup::Register(unsigned int id, VornControl* control) {
  const bool inserted = InsertControl(id, control, "NONAME", false);
  VORN_ASSERT_TEXT(inserted, "0");
  return inserted;
}

bool VornControlGroup::Register(unsigned int id, VirtualControl* control) {
  const bool inserted = InsertVirtual(id, control, false);
  VORN_ASSERT_TEXT(inserted, "0");
  return inserted;
}

bool VornControlGroup::RegisterOwner(unsigned int id, VornControl* control, VornString name) {
  const bool inserted = InsertControl(id, control, std::move(name), true);
  VORN_ASSERT_TEXT(inserted, "0");
  return inserted;
}

bool VornControlGroup::RegisterOwner(unsigned int id, VornControl* control) {
  const bool inserted = InsertControl(id, control, "NONAME", true);
  VORN_ASSERT_TEXT(inserted, "0");
  return inserted;
}

bool VornControlGroup::RegisterOwner(unsigned int id, VirtualControl* control) {
  const bool inserted = InsertVirtual(id, control, true);
  VORN_ASSERT_TEXT(inserted, "0");
  return inserted;
}

bool VornControlGroup::EraseControlEntry(std::vector<VornControlEntry>::iterator it, bool keep) {
  const VornControlEntry entry = *it;
  m_controlsById.erase(it);
  ++m_generation;
  if (entry.control && entry.control->GetGroup() == this) entry.control->SetGroup(nullptr);
  // The group link is already cleared, so the control's destructor does not
  // come back here.
  if (entry.own && !keep) delete entry.control;
  return true;
}

bool VornControlGroup::EraseVirtualEntry(std::vector<VirtualControlEntry>::iterator it, bool keep) {
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
  VORN_ASSERT(control != nullptr);
  const bool appended = control && Append(m_controls, control);
  VORN_ASSERT_TEXT(appended || !control, "0");
  return appended;
}

bool VornControlGroup::Register(VirtualControl* control) {
  VORN_ASSERT(control != nullptr);
  const bool appended = control && Append(m_virtualControls, control);
  VORN_ASSERT_TEXT(appended || !control, "0");
  return appended;
}

bool VornControlGroup::Register(VornControlGroup* group) {
  VORN_ASSERT(group != nullptr);
  const bool appended = group && Append(m_groups, group);
  VORN_ASSERT_TEXT(appended || !group, "0");
  return appended;
}

bool VornControlGroup::Register(MessageReceiver* receiver) {
  dprintf("VornControlGroup::Register(MessageReceiver* %p)\n", static_cast<void*>(receiver));
  VORN_ASSERT(receiver != nullptr);
  const bool appended = receiver && Append(m_receivers, receiver);
  VORN_ASSERT_TEXT(appended || !receiver, "0");
  return appended;
}

bool VornControlGroup::DeRegister(VornControl* control) {
  if (!control) return false;
  const bool removed = Remove(m_controls, control);
  VORN_ASSERT_TEXT(removed, "0");
  if (removed && control->GetGroup() == this) control->SetGroup(nullptr);
  return removed;
}

bool VornControlGroup::DeRegister(VirtualControl* control) {
  if (!control) return false;
  const bool removed = Remove(m_virtualControls, control);
  VORN_ASSERT_TEXT(removed, "0");
  if (removed && control->GetGroup() == this) control->SetGroup(nullptr);
  return removed;
}

bool VornControlGroup::DeRegister(VornControlGroup* group) {
  if (!group) return false;
  const bool removed = Remove(m_groups, group);
  VORN_ASSERT_TEXT(removed, "0");
  if (removed && group->GetGroup() == this) group->SetGroup(nullptr);
  return removed;
}

bool VornControlGroup::DeRegister(MessageReceiver* receiver) {
  if (!receiver) return false;
  dprintf("VornControlGroup::DeRegister(MessageReceiver* %p)\n", static_cast<void*>(receiver));
  const bool removed = Remove(m_receivers, receiver);
  VORN_ASSERT_TEXT(removed, "0");
  return removed;
}

bool VornControlGroup::Clear() {
  // This registry's own removal, not the virtual DeRegister(id, keep): a
  // subclass may point that at another registry.
  while (!m_controlsById.empty()) EraseControlEntry(m_controlsById.begin(), true);
  while (!m_virtualControlsById.empty()) EraseVirtualEntry(m_virtualControlsById.begin(), true);
  while (!m_controls.empty()) {
    const std::size_t before = m_controls.size();
    DeRegister(m_controls.front());
    if (m_controls.size() == before) m_controls.erase(m_controls.begin());
  }
  while (!m_virtualControls.empty()) {
    const std::size_t before = m_virtualControls.size();
    DeRegister(m_virtualControls.front());
    if (m_virtualControls.size() == before) m_virtualControls.erase(m_virtualControls.begin());
  }
  while (!m_groups.empty()) {
    const std::size_t before = m_groups.size();
    DeRegister(m_groups.front());
    if (m_groups.size() == before) m_groups.erase(m_groups.begin());
  }
  while (!m_receivers.empty()) {
    const std::size_t before = m_receivers.size();
    DeRegister(m_receivers.front());
    if (m_receivers.size() == before) m_receivers.erase(m_receivers.begin());
  }
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
  WalkById(m_controlsById, m_generation, [&](VornControlEntry& e) {
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
  WalkById(m_virtualControlsById, m_generation, [&](VirtualControlEntry& e) {
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
