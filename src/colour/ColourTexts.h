#pragma once
// The colour family's fixed texts: assertion texts, skin names and the
// numeric fields' formats, kept together so that they read as deliberate.
namespace ColourTexts {

// Assertions.
constexpr const char* kWidthNotNegative = "width >= 0";
constexpr const char* kHeightNotNegative = "height >= 0";
constexpr const char* kColumnInRange = "column < m_hues.size()";
constexpr const char* kRowInRange = "row < m_values.size()";

// Field formats.
constexpr const char* kComponentFormat = "%0.3f";
constexpr const char* kHexFormat = "#%02X%02X%02X";

// Skin names: colours and fonts of the frame, and the dialog's buttons.
constexpr const char* kFrameColour = "colourpicker_frame";
constexpr const char* kEdgeColour = "colourpicker_edge";
constexpr const char* kLabelColour = "colourpicker_label";
constexpr const char* kFieldTextColour = "colourpicker_field_text";
constexpr const char* kFieldFillColour = "colourpicker_field_fill";
constexpr const char* kFieldSelectionColour = "colourpicker_field_selection";
constexpr const char* kMarkerColour = "colourpicker_marker";
constexpr const char* kMarkerShadowColour = "colourpicker_marker_shadow";
constexpr const char* kSliderColour = "colourpicker_slider";
constexpr const char* kLabelFont = "colourpicker_label";
constexpr const char* kFieldFont = "colourpicker_field";
constexpr const char* kButtonImages = "button_text.sts";
constexpr const char* kButtonFont = "label";
constexpr const char* kButtonText = "text";
constexpr const char* kButtonTextBright = "text_bright";
constexpr const char* kButtonFace = "face";

// Messages of the dialog.
constexpr const char* kDialogTitle = "Colour";
constexpr const char* kOk = "OK";
constexpr const char* kCancel = "Cancel";

}  // namespace ColourTexts
