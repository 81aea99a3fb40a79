// The tree's callipers: show a sibling's opening without reporting it back.
#include "VUITreeSubValue.h"
#include "vorn/VUIControls.h"

void VUITreeSubAngleClippers::OnUpdate(unsigned int, VornControl* source, VornControlHint* hint) {
  if (source == this || !hint) return;
  double value = 0.0;
  if (vorn_tree::SiblingNumber(hint, value)) SetValue(value, false);
}
