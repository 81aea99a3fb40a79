#include "vorn/VornSkinNames.h"

const std::vector<VornSkinName>& VornToolkitSkinNames() {
  using N = VornSkinName;
  static const std::vector<VornSkinName> names = {
      // The image script parser fills a broken script's states with these.
      {N::kColour, "pink", "image scripts"},
      {N::kColour, "red", "image scripts"},
      {N::kColour, "blue", "image scripts"},
      {N::kColour, "purple", "image scripts"},
      {N::kColour, "brown", "image scripts"},
      {N::kColour, "green", "image scripts"},
      {N::kColour, "orange", "image scripts"},
      {N::kColour, "lightblue", "image scripts"},
      // List-box scripts take their pop-up scroll pictures from these.
      {N::kAsset, "plenth_scroll_off.sts", "list box"},
      {N::kAsset, "plenth_scroll_up.sts", "list box"},
      {N::kAsset, "plenth_scroll_down.sts", "list box"},
      // The colour picker's look and its dialog's buttons.
      {N::kColour, "colourpicker_frame", "colour picker"},
      {N::kColour, "colourpicker_edge", "colour picker"},
      {N::kColour, "colourpicker_label", "colour picker"},
      {N::kColour, "colourpicker_field_text", "colour picker"},
      {N::kColour, "colourpicker_field_fill", "colour picker"},
      {N::kColour, "colourpicker_field_selection", "colour picker"},
      {N::kColour, "colourpicker_marker", "colour picker"},
      {N::kColour, "colourpicker_marker_shadow", "colour picker"},
      {N::kColour, "colourpicker_slider", "colour picker"},
      {N::kFont, "colourpicker_label", "colour picker"},
      {N::kFont, "colourpicker_field", "colour picker"},
      {N::kAsset, "button_text.sts", "colour picker"},
  };
  return names;
}
