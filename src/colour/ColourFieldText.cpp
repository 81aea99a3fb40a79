#include "ColourFieldText.h"

#include <wx/string.h>

#include <algorithm>
#include <cctype>
#include <cmath>

#include "ColourTexts.h"

namespace ColourFieldText {

namespace {

int Byte(double c) {
  return std::clamp(static_cast<int>(c * 255.0), 0, 255);
}

wxString Trimmed(const VornString& text) {
  wxString s = wxString::FromUTF8(text.c_str());
  s.Trim(true).Trim(false);
  return s;
}

}  // namespace

VornString FormatComponent(double value) {
  return VornString(wxString::FromCDouble(value, 3).utf8_str().data());
}

VornString FormatHex(const Color& colour) {
  return VornString(
      wxString::Format(ColourTexts::kHexFormat, Byte(colour.r), Byte(colour.g), Byte(colour.b))
          .utf8_str()
          .data());
}

bool ParseComponent(const VornString& text, double& out) {
  const wxString s = Trimmed(text);
  double value = 0.0;
  if (s.empty() || !s.ToCDouble(&value) || !std::isfinite(value)) return false;
  out = value;
  return true;
}

bool ParseHex(const VornString& text, Color& out) {
  wxString s = Trimmed(text);
  if (s.StartsWith("#")) s.Remove(0, 1);
  if (s.length() != 6) return false;
  unsigned long rgb = 0;
  for (wxUniChar c : s)
    if (!c.IsAscii() || !std::isxdigit(static_cast<int>(c.GetValue()))) return false;
  if (!s.ToULong(&rgb, 16)) return false;
  out = Color(((rgb >> 16) & 0xFF) / 255.0, ((rgb >> 8) & 0xFF) / 255.0, (rgb & 0xFF) / 255.0);
  return true;
}

}  // namespace ColourFieldText
