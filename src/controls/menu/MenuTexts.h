#pragma once
// The menu family's fixed texts: assertion conditions.
namespace vorn_menu_texts {
constexpr const char* kMarksNeeded = "m_pMarks != __null";
constexpr const char* kPositionInRange = "position < entries.size()";
}  // namespace vorn_menu_texts
