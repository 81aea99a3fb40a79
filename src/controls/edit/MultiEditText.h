#pragma once
// The multi-line edit's wrapping width measured with a DC in the box's font.
#include <wx/dc.h>

#include "MultiEditWrap.h"

namespace multiedit {

inline TextWidth DcWidth(wxDC& dc) {
  return [&dc](const wxString& piece) { return dc.GetTextExtent(piece).x; };
}

}  // namespace multiedit
