#pragma once
// The list family's fixed texts: assertion conditions and debug lines.
namespace vorn_list_texts {
constexpr const char* kIndexInRange = "index < elements.size()";
constexpr const char* kIndexOrNone = "index < elements.size() || index == -1";
constexpr const char* kSelectedItem = "selected item %d\n";
constexpr const char* kEllipsis = "....";
}  // namespace vorn_list_texts
