#pragma once
// Control groups: the registry and dispatcher every control reports to, and
// the base of every hint.
#include <algorithm>
#include <vector>

#include "vornhost/Types.h"

class VornControl;
class VirtualControl;

// Base of every hint. Receivers recognise a hint's kind with dynamic_cast.
// Hints belong to their sender; no receiver keeps one after OnUpdate.
class VornControlHint {
 public:
  virtual ~VornControlHint();
};

// Implemented by the host to receive every hint a group dispatches.
class MessageReceiver {
 public:
  virtual void OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) = 0;
  virtual ~MessageReceiver() = default;
};

class VornControlGroup {
 public:
  struct VornControlEntry {
    unsigned int id = 0;
    bool own = false;  // the group deletes the control in DeRegister(..., false)
    VornControl* control = nullptr;
    VornString name = "NONAME";
  };
  struct VirtualControlEntry {
    unsigned int id = 0;
    bool own = false;
    VirtualControl* control = nullptr;
    VornString name = "NONAME";
  };
  // Entries in ascending id order, contiguous so that a dispatch walks them
  // at memory speed. Room is kept before the first entry as well as after
  // the last, and a new or removed entry moves only the entries on its
  // nearer side: wx's automatic ids come each below the last, explicit ones
  // mostly each above. Nothing is allocated before the first entry.
  template <class Entry>
  class ByIdEntries {
   public:
    using iterator = typename std::vector<Entry>::iterator;
    using const_iterator = typename std::vector<Entry>::const_iterator;

    iterator begin() { return m_items.begin() + m_first; }
    iterator end() { return m_items.end(); }
    const_iterator begin() const { return m_items.begin() + m_first; }
    const_iterator end() const { return m_items.end(); }
    bool empty() const { return size() == 0; }
    std::size_t size() const { return m_items.size() - m_first; }

    iterator lower_bound(unsigned int id) {
      return std::lower_bound(begin(), end(), id,
                              [](const Entry& e, unsigned int key) { return e.id < key; });
    }
    iterator upper_bound(unsigned int id) {
      return std::upper_bound(begin(), end(), id,
                              [](unsigned int key, const Entry& e) { return key < e.id; });
    }
    iterator find(unsigned int id) {
      const iterator it = lower_bound(id);
      return it != end() && it->id == id ? it : end();
    }

    // False, changing nothing, when the id is taken.
    bool insert(Entry entry) {
      iterator at = lower_bound(entry.id);
      if (at != end() && at->id == entry.id) return false;
      std::size_t before = static_cast<std::size_t>(at - begin());
      if (before * 2 >= size()) {
        m_items.insert(at, std::move(entry));
        return true;
      }
      if (m_first == 0) {  // no room before the first: leave as much as there are entries
        std::vector<Entry> grown(size() + 1 + std::max<std::size_t>(size(), 4));
        const std::size_t gap = grown.size() - size();
        std::move(begin(), end(), grown.begin() + gap);
        m_items.swap(grown);
        m_first = gap;
      }
      --m_first;
      std::move(begin() + 1, begin() + 1 + before, begin());
      begin()[before] = std::move(entry);
      return true;
    }

    void erase(iterator it) {
      if (it - begin() < end() - it) {
        std::move_backward(begin(), it, it + 1);
        m_items[m_first++] = Entry{};
      } else {
        m_items.erase(it);
      }
      if (empty()) {
        m_items.clear();
        m_first = 0;
      }
    }

   private:
    std::vector<Entry> m_items;  // [0, m_first) is room: default entries
    std::size_t m_first = 0;
  };
  using ControlMap = ByIdEntries<VornControlEntry>;
  using VirtualMap = ByIdEntries<VirtualControlEntry>;

  VornControlGroup() = default;
  VornControlGroup(const VornControlGroup&) = delete;
  VornControlGroup& operator=(const VornControlGroup&) = delete;

  // Removes this group from its parent's sub-groups, then Clear.
  virtual ~VornControlGroup();
  virtual bool ShowAll(void* context, bool show, VornControlHint* hint);
  virtual bool SetOnControl(unsigned int id, bool on, VornControlHint* hint);
  virtual bool SetEnableAll(void* context, bool enable, VornControlHint* hint);
  virtual bool SetEnableControl(unsigned int id, bool enable, VornControlHint* hint);
  // Dispatch order: controls by ascending id, id-less controls, id-less
  // windowless controls, sub-groups (downwards), receivers. Sequences are
  // walked by index with their length re-read, so members appended during
  // dispatch are visited in the same pass.
  virtual bool Update(unsigned int id, VornControl* source, VornControlHint* hint);
  virtual void ControlSelected(unsigned int id, VornControl* control);
  virtual void ControlUnSelected(unsigned int id, VornControl* control);
  virtual void ControlDoubleClick(unsigned int id, VornControl* control);
  virtual void ControlSelected(unsigned int id, VirtualControl* control);
  virtual void ControlUnSelected(unsigned int id, VirtualControl* control);
  virtual void ControlDoubleClick(unsigned int id, VirtualControl* control);
  virtual bool Register(unsigned int id, VornControl* control, VornString name);
  virtual bool Register(unsigned int id, VornControl* control);
  virtual bool Register(unsigned int id, VirtualControl* control);
  virtual bool RegisterOwner(unsigned int id, VornControl* control, VornString name);
  virtual bool RegisterOwner(unsigned int id, VornControl* control);
  virtual bool RegisterOwner(unsigned int id, VirtualControl* control);
  virtual bool DeRegister(VornControl* control, bool keep);
  virtual bool DeRegister(VirtualControl* control, bool keep);
  // Unknown ids do nothing. An owned control is deleted only when keep is
  // false.
  virtual bool DeRegister(unsigned int id, bool keep);
  virtual bool Register(VornControl* control);
  virtual bool Register(VirtualControl* control);
  virtual bool Register(VornControlGroup* group);
  virtual bool Register(MessageReceiver* receiver);
  virtual bool DeRegister(VornControl* control);
  virtual bool DeRegister(VirtualControl* control);
  virtual bool DeRegister(VornControlGroup* group);
  virtual bool DeRegister(MessageReceiver* receiver);
  // Deregisters every member without deleting any and drops the parent link
  // (the parent's sub-group list is left alone).
  virtual bool Clear();
  // Writes the registry through dprintf; addresses are printed with %p.
  virtual void DumpTrace();

  bool CurrentlyRegistered(VornControl* control) const;
  bool CurrentlyRegistered(VirtualControl* control) const;
  bool CurrentlyRegistered(VornControlGroup* group) const;
  bool CurrentlyRegistered(MessageReceiver* receiver) const;
  bool IsEmpty() const;

  // The parent group link. Bind asserts that no parent is set.
  VornControlGroup* GetGroup() const { return m_pControlGroup; }
  void SetGroup(VornControlGroup* parent);
  void Bind(VornControlGroup* parent);

 protected:
  // The registry work of DeRegister(id, keep) on this object's own maps.
  bool DeRegisterById(unsigned int id, bool keep);
  bool InsertControl(unsigned int id, VornControl* control, VornString name, bool own);
  bool InsertVirtual(unsigned int id, VirtualControl* control, bool own);
  bool EraseControlEntry(ControlMap::iterator it, bool keep);
  bool EraseVirtualEntry(VirtualMap::iterator it, bool keep);

  VornControlGroup* m_pControlGroup = nullptr;  // parent; not owned
  // The two by-id maps, in ascending id order.
  ControlMap m_controlsById;
  VirtualMap m_virtualControlsById;
  std::vector<VornControl*> m_controls;
  std::vector<VirtualControl*> m_virtualControls;
  std::vector<VornControlGroup*> m_groups;    // not owned
  std::vector<MessageReceiver*> m_receivers;  // not owned
  // Counts changes of the two maps, so that walks over them survive members
  // that register or deregister during the walk.
  unsigned int m_generation = 0;
};

// Keeps one button of a set on.
class VornControlGroup1ofN : public VornControlGroup {
 public:
  // Records id as selected when on is true, then the base reaction.
  bool SetOnControl(unsigned int id, bool on, VornControlHint* hint) override;

  unsigned int GetSelected() const { return m_selected; }
  // Switches every registered button except on to value; on's id becomes
  // the selection. on itself is not switched.
  bool SetOnAll(VornControl* on, bool value, VornControlHint* hint);
  bool SetOnAll(VirtualControl* on, bool value, VornControlHint* hint);

 protected:
  unsigned int m_selected = 0;
};

// A group for value controls: drag and shape notifications.
class VornControlGroupValue : public VornControlGroup {
 public:
  virtual void ControlDrag(unsigned int id, VornControl* control);
  virtual void ControlShapeChanged(unsigned int id, VornControl* control);
};

// Both a one-of-N group and a value group, with two separate registries.
// Callers name the side they mean (convert to VornControlGroup1ofN* or
// VornControlGroupValue* first).
class VornValueControlGroup1ofN : public VornControlGroup1ofN, public VornControlGroupValue {
 public:
  // Acts on the value registry. An id found only in the one-of-N registry is
  // removed there, so a control registered on that side and destroyed
  // before the group leaves no stale entry behind.
  bool DeRegister(unsigned int id, bool keep) override;
};

// Re-addresses a child control's notifications to the compound control
// (the parent) that contains it.
class ChildToParentControlGroup : public VornControlGroupValue {
 public:
  ChildToParentControlGroup() = default;
  explicit ChildToParentControlGroup(VornControl* parent) : m_pParent(parent) {}

  using VornControlGroup::ControlSelected;
  using VornControlGroup::ControlUnSelected;
  void ControlSelected(unsigned int id, VornControl* control) override;
  void ControlUnSelected(unsigned int id, VornControl* control) override;
  void ControlDrag(unsigned int id, VornControl* control) override;
  void ControlShapeChanged(unsigned int id, VornControl* control) override;

  VornControl* GetParentControl() const { return m_pParent; }
  void SetParentControl(VornControl* parent) { m_pParent = parent; }

 protected:
  VornControl* m_pParent = nullptr;  // not owned
};
