#include "vorn/VornValueNotify.h"

namespace VornValueNotify {

void Pressed(VornControl& control, VornControlGroupValue* group) {
  if (group) group->ControlSelected(control.GetId(), &control);
}

void Dragged(VornControl& control, VornControlGroupValue* group, double value) {
  if (!group) return;
  group->ControlDrag(control.GetId(), &control);
  RealValChanging hint(value);
  group->Update(control.GetId(), &control, &hint);
}

void Released(VornControl& control, VornControlGroupValue* group, double value) {
  if (!group) return;
  group->ControlUnSelected(control.GetId(), &control);
  RealValChanged hint(value);
  group->Update(control.GetId(), &control, &hint);
}

}  // namespace VornValueNotify
