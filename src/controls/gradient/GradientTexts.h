#pragma once
// The gradient editor's fixed texts: debug lines, assertion texts and skin
// names, kept together so that they read as deliberate.
namespace GradientTexts {

// Debug lines.
constexpr const char* kNoClosest = "No closest gradient point\n";
constexpr const char* kPrepareDrag = "Prepare mouse drag\n";
constexpr const char* kColourDotClick =
    "Colour dot click - try lauching the ColourPicker from (%d,%d)\n";
constexpr const char* kTrackingDrag = "Tracking mouse drag\n";
constexpr const char* kCancelledDrag = "Cancelled mouse drag\n";
constexpr const char* kKeyDown = "GradientControl: Vorn Key Down (code = %d)\n";
constexpr const char* kDeleteThanks =
    "Colour Control says \"thank you for the delete key notification\"\n";
constexpr const char* kSlugState = " Min = %f, Max = %f, MinEnable = %d, MaxEnable = %d\n";

// Assertions.
constexpr const char* kValNotNegative = "val >= 0.0";
constexpr const char* kValNotAboveOne = "val <= 1.0";
constexpr const char* kDragArmed = "m_bDragSelected";
constexpr const char* kSelectedForDrag = "0 != m_selected";
constexpr const char* kInit = "m_bInit";
constexpr const char* kTree = "m_pTree";
constexpr const char* kNodePos = "m_pNodePos";
constexpr const char* kNodeRed = "m_pNodeRed";
constexpr const char* kNodeGreen = "m_pNodeGreen";
constexpr const char* kNodeBlue = "m_pNodeBlue";
constexpr const char* kPositionInRange = "val >= 0.0 && val <= 1.0";
constexpr const char* kSelectedOnRelease = "m_selected != 0";
constexpr const char* kSlugColours = "m_colours.size() == width";

// Skin names.
constexpr const char* kBgColour = "gradient_bg";
constexpr const char* kFgColour = "gradient_fg";
constexpr const char* kHandleColour = "gradient_handle";
constexpr const char* kTrackColour = "gradient_range_track";
constexpr const char* kWindowColour = "gradient_range_window";
constexpr const char* kRangeHandleColour = "gradient_range_handle";

// The tree's rows.
constexpr const char* kPositionRow = "Position";
constexpr const char* kRedRow = "Red";
constexpr const char* kGreenRow = "Green";
constexpr const char* kBlueRow = "Blue";

}  // namespace GradientTexts
