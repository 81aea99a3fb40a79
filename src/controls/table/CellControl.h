#pragma once
// A control inside a cell: it joins the box's group without an id (all
// cells carry the box's id) and leaves it again when destroyed.
#include <utility>

#include "vorn/VornControl.h"
#include "vorn/VornControlGroup.h"

template <class Base>
class CellControl : public Base {
 public:
  template <class... Args>
  explicit CellControl(VornControlGroup* group, Args&&... args)
      : Base(std::forward<Args>(args)...) {
    this->m_pControlGroup = group;
    if (group) group->Register(static_cast<VornControl*>(this));
  }
  ~CellControl() override {
    if (this->m_pControlGroup) this->m_pControlGroup->DeRegister(static_cast<VornControl*>(this));
    this->m_pControlGroup = nullptr;
  }
};
