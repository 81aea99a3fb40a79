#pragma once
// Small utilities: case folding, clamping, date/time text and enumeration
// strings.
#include <vector>

#include "vornhost/Types.h"

// ASCII lower-case copy; other bytes are left alone.
VornString ToLower(const VornString& s);

// Display text of a date or a time of day. The value is seconds since
// 1970-01-01 00:00 UTC; both are formatted in UTC so results do not depend on
// the machine's zone: MakeDate gives "YYYY-MM-DD", MakeTime "HH:MM:SS".
// A value outside the representable range gives "--".
VornString MakeDate(double seconds);
VornString MakeTime(double seconds);

namespace ExtremeHelper {
// Clamps value into [low, high] in place; true when it had to be changed.
bool ClampValue(double low, double high, double& value);
bool ClampValue(int low, int high, int& value);
}  // namespace ExtremeHelper

// Parses the description of an enumeration: names separated by '|' or ','
// with surrounding blanks trimmed, for example "Linear | Smooth | Step".
// Empty names are dropped. Index lookups are exact (case-sensitive).
class EnumStringParser {
 public:
  EnumStringParser() = default;
  explicit EnumStringParser(const VornString& text) { Parse(text); }
  // Replaces the names; returns the number of names found.
  int Parse(const VornString& text);
  int GetCount() const { return static_cast<int>(m_names.size()); }
  // The name at index, or "" for a bad index.
  VornString GetName(int index) const;
  // The index of name, or -1.
  int GetIndex(const VornString& name) const;
  const std::vector<VornString>& GetNames() const { return m_names; }

 private:
  std::vector<VornString> m_names;
};
