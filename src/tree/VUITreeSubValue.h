#pragma once
// The number a sibling's value message carries, for the tree's numeric
// sub-controls.
#include "VUITreeTexts.h"
#include "vorn/ValInterface.h"
#include "vorn/VornAssert.h"

namespace vorn_tree {

// A real, or an integer widened; false for neither. A text message is
// refused with an assertion: numeric editors are only wired to numeric
// siblings.
inline bool SiblingNumber(VornControlHint* hint, double& out) {
  if (auto* real = dynamic_cast<RealValMessage*>(hint)) {
    out = real->m_value;
    return true;
  }
  if (auto* whole = dynamic_cast<IntValMessage*>(hint)) {
    out = whole->m_value;
    return true;
  }
  VORN_ASSERT_TEXT(dynamic_cast<StringValMessage*>(hint) == nullptr, VUITreeTexts::kTextToNumeric);
  return false;
}

}  // namespace vorn_tree
