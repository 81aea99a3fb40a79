#pragma once
// The numeric fields' texts: components as "%0.3f" and colours as
// "#RRGGBB", written and read in the C locale whatever the host's locale.
#include "vornhost/Color.h"
#include "vornhost/Types.h"

namespace ColourFieldText {

VornString FormatComponent(double value);
VornString FormatHex(const Color& colour);
// The whole text (blanks around it aside) must be a finite number.
bool ParseComponent(const VornString& text, double& out);
// "#RRGGBB" or "RRGGBB", either case.
bool ParseHex(const VornString& text, Color& out);

}  // namespace ColourFieldText
