// The tree's dial: shows a sibling's turn without reporting it back.
#include "VUITreeSubValue.h"
#include "vorn/VUIControls.h"

void VUITreeSubAngle::OnUpdate(unsigned int, VornControl* source, VornControlHint* hint) {
  if (source == this || !hint) return;
  double turn = 0.0;
  if (vorn_tree::SiblingNumber(hint, turn)) SetValue(static_cast<float>(turn), false);
}
