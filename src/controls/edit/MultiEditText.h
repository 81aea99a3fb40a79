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

}  // namespace multiedit
