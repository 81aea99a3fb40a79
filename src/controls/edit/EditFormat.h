#pragma once
// Number reading and printing of the edits' numeric styles. Independent of
// the C locale: a field shows "3.14" whatever language the host runs in.
#include <wx/string.h>

namespace VornEditFormat {

// The base-10 integer the text starts with (after blanks and a sign), 0 when
// it starts with none; saturated to the 32-bit range.
int ReadInt(const wxString& text);
// The decimal real the text starts with, 0 when it starts with none or the
// number is not finite.
double ReadReal(const wxString& text);
// value printed as "%.<decimals>f" would in the C locale.
wxString Fixed(double value, int decimals);
// The text rewritten in the number format of an edit style; texts of the
// other styles come back unchanged.
wxString ForStyle(int style, const wxString& text);

}  // namespace VornEditFormat
