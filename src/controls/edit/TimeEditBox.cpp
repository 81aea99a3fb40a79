// A display box showing the time of day of the number it is sent.
#include "vorn/VornEdit.h"
#include "vornhost/Utility.h"

VornString TimeEditBox::Format(double value) const {
  return MakeTime(value);
}
