// Locale-independent number formats of the edits.
#include "EditFormat.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include "vorn/VornEdit.h"

namespace VornEditFormat {

namespace {

// The ASCII text after leading blanks and one '+' (from_chars takes no '+').
std::string NumberStart(const wxString& text) {
  std::string s(text.utf8_str().data());
  std::size_t i = s.find_first_not_of(" \t\n\r\f\v");
  if (i == std::string::npos) return std::string();
  if (s[i] == '+') ++i;
  return s.substr(i);
}

}  // namespace

int ReadInt(const wxString& text) {
  const std::string s = NumberStart(text);
  long long value = 0;
  const auto result = std::from_chars(s.data(), s.data() + s.size(), value, 10);
  if (result.ec == std::errc::result_out_of_range)
    value = (!s.empty() && s[0] == '-') ? std::numeric_limits<long long>::min()
                                        : std::numeric_limits<long long>::max();
  else if (result.ec != std::errc())
    return 0;
  if (value > INT32_MAX) return INT32_MAX;
  if (value < INT32_MIN) return INT32_MIN;
  return static_cast<int>(value);
}

double ReadReal(const wxString& text) {
  const std::string s = NumberStart(text);
  double value = 0.0;
  const auto result =
      std::from_chars(s.data(), s.data() + s.size(), value, std::chars_format::general);
  if (result.ec != std::errc() || !std::isfinite(value)) return 0.0;
  return value;
}

wxString Fixed(double value, int decimals) {
  char buffer[400];
  const auto result =
      std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, decimals);
  if (result.ec != std::errc()) return "0";
  return wxString::FromAscii(buffer, static_cast<size_t>(result.ptr - buffer));
}

wxString ForStyle(int style, const wxString& text) {
  switch (style) {
    case VornEdit::ES_INT:
      return wxString::Format("%d", ReadInt(text));
    case VornEdit::ES_REAL:
      return Fixed(ReadReal(text), 6);
    case VornEdit::ES_REAL2:
      return Fixed(ReadReal(text), 2);
    default:
      return text;
  }
}

}  // namespace VornEditFormat
