#include "vorn/VornValueNotify.h"

namespace VornValueNotify {

// Value hints travel under id 0: receivers tell the control by the source.

void Pressed(VornControl& control, VornControlGroupValue* group) {
  if (group) group->ControlSelected(control.GetId(), &control);
}

void Dragged(VornControl& control, VornControlGroupValue* group, double value) {
  if (!group) return;
  group->ControlDrag(control.GetId(), &control);
  RealValChanging hint(value);
  group->Update(0, &control, &hint);
}

void Released(VornControl& control, VornControlGroupValue* group, double value) {
  if (!group) return;
  group->ControlUnSelected(control.GetId(), &control);
  RealValChanged hint(value);
  group->Update(0, &control, &hint);
}

}  // namespace VornValueNotify
