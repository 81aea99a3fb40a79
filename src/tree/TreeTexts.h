#pragma once
// The tree family's assertion texts and skin names, in one place: hosts and
// tests match these words exactly.

namespace vorn_tree {

// Assertion texts.
inline constexpr const char* kControlNotNull = "control != __null";
inline constexpr const char* kParentNotNull = "parent != __null";
inline constexpr const char* kOwnedControlExists = "m_Controlptr != __null";
inline constexpr const char* kNodeUnregistered = "node->m_NodeID == -1";
inline constexpr const char* kLevelWidth = "(x2 - x1) == VornTreeNode::GetWidth()";
inline constexpr const char* kLevelHeight = "(y2 - y1) == VornTreeNode::GetHeight()";
inline constexpr const char* kWindowExists = "this->m_Controlptr->GetHandle() != __null";
inline constexpr const char* kBranchWidth = "(x2 - x1) == this->GetWidth()";
inline constexpr const char* kBranchHeight = "(y2 - y1) == this->GetHeight()";
inline constexpr const char* kToggleOffWithoutTree = "GetOn() == false";
inline constexpr const char* kAssetManagerNotNull = "assetman != __null";
inline constexpr const char* kLoaded = "val == true";

// Skin names.
inline constexpr const char* kScrollBarFg = "vuiedit_scrollbar_fg";
inline constexpr const char* kScrollBarBg = "vuiedit_scrollbar_bg";
inline constexpr const char* kScrollBarMo = "vuiedit_scrollbar_mo";
inline constexpr const char* kTreeFg = "vuiedit_tree_fg";  // lines
inline constexpr const char* kTreeBg = "vuiedit_tree_bg";  // background
inline constexpr const char* kTreeMo = "vuiedit_tree_mo";  // the row under the pointer
inline constexpr const char* kNameFont = "vuiedit_tree_contname";
inline constexpr const char* kNameColour = "vuiedit_tree_ContNameCol";
inline constexpr const char* kToggleImages = "vuiedit_tree_toggle.sts";

}  // namespace vorn_tree
