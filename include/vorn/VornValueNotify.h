#pragma once
// The notification sequences of the value controls (sliders, thumb wheel,
// dials, callipers), written once so that their order cannot drift apart.
#include "vorn/ValInterface.h"
#include "vorn/VornControl.h"
#include "vorn/VornControlGroup.h"

namespace VornValueNotify {

// Speed of a drag while the meta key is held (fine mode).
constexpr double kFineFactor = 0.1;

// value limited to [low, high].
inline double Clamp(double value, double low = 0.0, double high = 1.0) {
  return value < low ? low : (value > high ? high : value);
}

// The drag's own factor: a tenth while fine mode is on.
inline double DragFactor(bool fine) {
  return fine ? kFineFactor : 1.0;
}

// A press that starts a drag: ControlSelected.
void Pressed(VornControl& control, VornControlGroupValue* group);
// One step of a drag: ControlDrag, then RealValChanging with value (the
// value hints go out under id 0, the gestures under the control's id).
void Dragged(VornControl& control, VornControlGroupValue* group, double value);
// The release: ControlUnSelected, then RealValChanged with value.
void Released(VornControl& control, VornControlGroupValue* group, double value);

}  // namespace VornValueNotify
