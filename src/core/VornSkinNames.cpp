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
      // The parameter tree and its editors.
      {N::kColour, "vuiedit_scrollbar_fg", "parameter tree"},
      {N::kColour, "vuiedit_scrollbar_bg", "parameter tree"},
      {N::kColour, "vuiedit_scrollbar_mo", "parameter tree"},
      {N::kColour, "vuiedit_tree_fg", "parameter tree"},
      {N::kColour, "vuiedit_tree_bg", "parameter tree"},
      {N::kColour, "vuiedit_tree_mo", "parameter tree"},
      {N::kColour, "vuiedit_tree_ContNameCol", "parameter tree"},
      {N::kColour, "vuiedit_tree_texthilite", "parameter tree"},
      {N::kFont, "vuiedit_tree_contname", "parameter tree"},
      {N::kFont, "vuiedit_tree_lbfont", "parameter tree"},
      {N::kAsset, "vui_tree_control_text.sts", "parameter tree"},
      {N::kAsset, "vui_tree_funcbutn.lbs", "parameter tree"},
      {N::kAsset, "vui_tree_checkbox.sts", "parameter tree"},
      {N::kAsset, "vuiedit_tree_toggle.sts", "parameter tree"},
      // The gradient editor.
      {N::kColour, "gradient_bg", "gradient editor"},
      {N::kColour, "gradient_fg", "gradient editor"},
      {N::kColour, "gradient_handle", "gradient editor"},
      {N::kColour, "gradient_range_track", "gradient editor"},
      {N::kColour, "gradient_range_window", "gradient editor"},
      {N::kColour, "gradient_range_handle", "gradient editor"},
      // The tree's button, table and pop-up editors.
      {N::kAsset, "vui_tree_prim_colour.sts", "parameter tree"},
      {N::kAsset, "vui_tree_prim_texture.sts", "parameter tree"},
      {N::kAsset, "vui_tree_prim_function.sts", "parameter tree"},
      {N::kAsset, "vui_tree_prim_curve.sts", "parameter tree"},
      {N::kAsset, "vui_tree_prim_gradient.sts", "parameter tree"},
      {N::kAsset, "vui_tree_prim_material.sts", "parameter tree"},
      {N::kAsset, "vui_tree_montoggle.sts", "parameter tree"},
      {N::kAsset, "vui_tree_poptoggle.sts", "parameter tree"},
      {N::kColour, "vuiedit_tree_popbox", "parameter tree"},
  };
  return names;
}
