#include "vornhost/Utility.h"

#include <cmath>
#include <ctime>

VornString ToLower(const VornString& s) {
  VornString out(s);
  for (char& c : out)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return out;
}

namespace {
VornString FormatUtc(double seconds, const char* format) {
  // time_t covers every year strftime can print; refuse what it cannot hold.
  if (!std::isfinite(seconds) || seconds < -62135596800.0 || seconds > 253402300799.0) return "--";
  const std::time_t t = static_cast<std::time_t>(std::floor(seconds));
  std::tm parts{};
  if (!gmtime_r(&t, &parts)) return "--";
  char buffer[64];
  const std::size_t n = std::strftime(buffer, sizeof buffer, format, &parts);
  return n ? VornString(buffer, n) : VornString("--");
}
}  // namespace

VornString MakeDate(double seconds) { return FormatUtc(seconds, "%Y-%m-%d"); }
VornString MakeTime(double seconds) { return FormatUtc(seconds, "%H:%M:%S"); }

namespace ExtremeHelper {
bool ClampValue(double low, double high, double& value) {
  if (value < low) {
    value = low;
    return true;
  }
  if (value > high) {
    value = high;
    return true;
  }
  return false;
}

bool ClampValue(int low, int high, int& value) {
  if (value < low) {
    value = low;
    return true;
  }
  if (value > high) {
    value = high;
    return true;
  }
  return false;
}
}  // namespace ExtremeHelper

int EnumStringParser::Parse(const VornString& text) {
  m_names.clear();
  VornString current;
  auto flush = [&]() {
    const auto first = current.find_first_not_of(" \t\r\n");
    if (first != VornString::npos) {
      const auto last = current.find_last_not_of(" \t\r\n");
      m_names.push_back(current.substr(first, last - first + 1));
    }
    current.clear();
  };
  for (char c : text) {
    if (c == '|' || c == ',')
      flush();
    else
      current += c;
  }
  flush();
  return GetCount();
}

VornString EnumStringParser::GetName(int index) const {
  if (index < 0 || index >= GetCount()) return VornString();
  return m_names[static_cast<std::size_t>(index)];
}

int EnumStringParser::GetIndex(const VornString& name) const {
  for (std::size_t i = 0; i < m_names.size(); ++i)
    if (m_names[i] == name) return static_cast<int>(i);
  return -1;
}
