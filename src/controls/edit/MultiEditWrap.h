#pragma once
// Line wrapping of the multi-line edit, apart from any window so that the
// box, its tests and the benchmark share one implementation. A line starts
// at index 0, after each line feed, and wherever the next token would make
// the line wider than the area.
#include <wx/string.h>

#include <functional>
#include <vector>

namespace multiedit {

// Pixel width of a piece of the text.
using TextWidth = std::function<int(const wxString& piece)>;

// The token at index, advancing index past it: one white-space character,
// or a run of other characters that ends before the next white space or,
// for a word wider than the area, at the longest piece that still fits
// (at least one character, so that wrapping always advances).
wxString NextToken(const wxString& text, int& index, int areaWidth, const TextWidth& width);

// The start index of every line, from scratch.
std::vector<int> WrapFrom(const wxString& text, int areaWidth, const TextWidth& width);

// Re-wraps after an edit that replaced old text [changeAt, changeAt + removed)
// by `inserted` characters; `starts` holds the line starts of the old text and
// is brought up to date. Wrapping from a line start depends only on the text
// after it, so the work stops as soon as a new line start meets an old one
// beyond the change. Returns the first line whose start may have changed.
int Rewrap(const wxString& text, std::vector<int>& starts, int changeAt, int removed, int inserted,
           int areaWidth, const TextWidth& width);

// The line holding index: the last line starting at or before it.
int LineOf(const std::vector<int>& starts, int index);

// End of line `line` for display and hit-testing: the next line's start,
// less a line feed that ends the line.
int LineEnd(const wxString& text, const std::vector<int>& starts, int line);

// The last index the caret may take on line `line`: its end, or for a line
// that wraps without a line feed the index before the next line's start,
// which belongs to (and is shown on) the next line.
int LastCaretIndex(const wxString& text, const std::vector<int>& starts, int line);

}  // namespace multiedit
