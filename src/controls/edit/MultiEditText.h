#pragma once
// Small text helpers of the multi-line edit: the conversion between the
// toolkit's byte strings (one byte per character) and wxString, and a
// wrapping width measured with a DC.
#include <wx/dc.h>
#include <wx/string.h>

#include <string>

#include "MultiEditWrap.h"

inline wxString ToWx(const std::string& text) {
  return wxString::From8BitData(text.data(), text.size());
}

inline std::string FromWx(const wxString& text) {
  const wxCharBuffer bytes = text.To8BitData();
  return std::string(bytes.data(), bytes.length());
}

namespace multiedit {

inline TextWidth DcWidth(wxDC& dc) {
  return [&dc](const std::string& piece) { return dc.GetTextExtent(ToWx(piece)).x; };
}

// TEMPORARY until the shared caret mapping lands.
inline int CharacterAt(const wxString& text, int x, wxDC& dc) {
  const int n = int(text.length());
  if (x >= dc.GetTextExtent(text).x) return n;
  wxArrayInt w;
  dc.GetPartialTextExtents(text, w);
  int prevMid = dc.GetTextExtent(text).x;
  for (int k = n - 1; k >= 0; --k) {
    const int wk = k == 0 ? 0 : w[k - 1];
    const int mid = (wk + w[k]) / 2;
    if (mid <= x && x <= prevMid) return k + 1;
    prevMid = mid;
  }
  return 0;
}

}  // namespace multiedit
