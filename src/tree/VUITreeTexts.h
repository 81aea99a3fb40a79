#pragma once
// The tree editors' fixed texts: asset names, list entries and assertion
// texts. They are part of the behaviour (skins and tests rely on them).

namespace VUITreeTexts {

// Skin names.
constexpr const char* kNameFont = "vuiedit_tree_contname";
constexpr const char* kNameColour = "vuiedit_tree_ContNameCol";
constexpr const char* kHighlightColour = "vuiedit_tree_texthilite";
constexpr const char* kListFont = "vuiedit_tree_lbfont";
constexpr const char* kFunctionList = "vui_tree_funcbutn.lbs";
constexpr const char* kValueBox = "vui_tree_control_text.sts";
constexpr const char* kCheckBox = "vui_tree_checkbox.sts";
constexpr const char* kWheelFrame = "thumbwheel_frame.sts";
constexpr const char* kWheelStrip = "thumbwheel_strip.sts";
constexpr const char* kWheelWindow = "thumbwheel_window.sts";
constexpr const char* kSliderTrack = "slider_round_track";
constexpr const char* kSliderThumb = "slider_round_thumb";

// The function button's rows.
constexpr const char* kWidget = "Widget";
constexpr const char* kTexture = "Texture";
constexpr const char* kFunction = "Function";

// Assertion texts.
constexpr const char* kNoAssetManager = "assetman != __null";
constexpr const char* kLoadFailed = "val == true";
constexpr const char* kNotFunctionable = "this->m_functionable";
constexpr const char* kBadFunctionRow = "row == 0 || row == 2 || row == 3";
constexpr const char* kBadType = "type >= PT_INT && type <= PT_STRING";
constexpr const char* kTextToNumeric = "dynamic_cast<StringValMessage*>(hint) == __null";

// Number formats of the value boxes.
constexpr int kRealDecimals = 6;  // "%.6f"

}  // namespace VUITreeTexts

// The angle and list editors, the error control and list-box branches.
namespace VUITreeTexts {

constexpr const char* kListScript = "vuitree_listbox.lbs";
constexpr const char* kErrorFont = "vui_control_name";
constexpr const char* kDialRing = "dial_ring";
constexpr const char* kDialNeedle = "dial_needle";
constexpr const char* kClippersFrame = "calliper_frame";
constexpr const char* kClippersScale = "calliper_scale";
constexpr const char* kClippersMarker = "calliper_marker";
constexpr const char* kErrorText = "vuiedit_tree_ContNameCol";

// The error control's three lines.
constexpr const char* kErrorLine = "Error: ";
constexpr const char* kValTypeLine = "ValType: ";
constexpr const char* kWidgetLine = "Widget: ";

constexpr const char* kNoHeaderWindow = "this->m_Controlptr->GetHandle() != __null";

}  // namespace VUITreeTexts

// The button, table and pop-up editors' image sets (state sets of the skin).
namespace VUITreeTexts {
constexpr const char* kColourButton = "vui_tree_prim_colour.sts";
constexpr const char* kTextureButton = "vui_tree_prim_texture.sts";
constexpr const char* kFunctionButton = "vui_tree_prim_function.sts";
constexpr const char* kCurveButton = "vui_tree_prim_curve.sts";
constexpr const char* kGradientButton = "vui_tree_prim_gradient.sts";
constexpr const char* kMaterialButton = "vui_tree_prim_material.sts";
constexpr const char* kTableToggle = "vui_tree_montoggle.sts";
constexpr const char* kPopToggle = "vui_tree_poptoggle.sts";
// Optional: the fill of an open pop-up box (the tree's background without it).
constexpr const char* kPopBoxColour = "vuiedit_tree_popbox";
}  // namespace VUITreeTexts
