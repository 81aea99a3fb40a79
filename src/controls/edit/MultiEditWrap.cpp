// Token-by-token line wrapping of the multi-line edit.
#include "MultiEditWrap.h"

#include <algorithm>
#include <array>

#include "EditShared.h"

namespace multiedit {
namespace {

bool IsSpace(wxUniChar c) {
  return VornEditShared::IsBlank(c);
}

// Width of single characters, measured once per wrap: white space makes up
// about one token in two.
class CharWidths {
 public:
  explicit CharWidths(const TextWidth& width) : m_width(width) { m_known.fill(-1); }
  int operator()(wxUniChar c) {
    const wxUint32 code = c.GetValue();
    if (code >= m_known.size()) return m_width(wxString(c));
    int& w = m_known[code];
    if (w < 0) w = m_width(wxString(c));
    return w;
  }

 private:
  const TextWidth& m_width;
  std::array<int, 256> m_known;
};

// NextToken that also hands back the token's width without measuring twice.
int TakeToken(const wxString& text, int& index, int areaWidth, const TextWidth& width,
              CharWidths& charWidth, int& tokenWidth) {
  const int n = static_cast<int>(text.length());
  const int start = index;
  if (IsSpace(text[index])) {
    tokenWidth = charWidth(text[index]);
    return ++index - start;
  }
  int end = index;
  while (end < n && !IsSpace(text[end])) ++end;
  int length = end - start;
  tokenWidth = length == 1 ? charWidth(text[start]) : width(text.Mid(start, length));
  if (tokenWidth > areaWidth && length > 1) {
    // The longest piece that fits; one character goes even when it does not.
    int lo = 1, hi = length - 1;
    while (lo < hi) {
      const int mid = (lo + hi + 1) / 2;
      if (width(text.Mid(start, mid)) <= areaWidth)
        lo = mid;
      else
        hi = mid - 1;
    }
    length = lo;
    tokenWidth = width(text.Mid(start, length));
  }
  index = start + length;
  return length;
}

// Wraps from the line start `from`, appending the following line starts to
// `out` until the text ends or `stop` accepts a new start.
template <class Stop>
void WrapLoop(const wxString& text, int from, int areaWidth, const TextWidth& width,
              std::vector<int>& out, Stop stop) {
  CharWidths charWidth(width);
  const int n = static_cast<int>(text.length());
  int lineStart = from, lineWidth = 0, index = from;
  while (index < n) {
    const int tokenStart = index;
    int tokenWidth = 0;
    TakeToken(text, index, areaWidth, width, charWidth, tokenWidth);
    int newStart = -1;
    if (text[tokenStart] == wxUniChar('\n')) {
      newStart = index;
    } else if (tokenStart > lineStart && lineWidth + tokenWidth > areaWidth) {
      newStart = tokenStart;
      lineWidth = tokenWidth;
    } else {
      lineWidth += tokenWidth;
    }
    if (newStart < 0) continue;
    if (newStart == index) lineWidth = 0;
    lineStart = newStart;
    out.push_back(newStart);
    if (stop(newStart)) return;
  }
}

}  // namespace

wxString NextToken(const wxString& text, int& index, int areaWidth, const TextWidth& width) {
  if (index < 0 || index >= static_cast<int>(text.length())) return wxString();
  CharWidths charWidth(width);
  int tokenWidth = 0;
  const int start = index;
  const int length = TakeToken(text, index, areaWidth, width, charWidth, tokenWidth);
  return text.Mid(start, length);
}

std::vector<int> WrapFrom(const wxString& text, int areaWidth, const TextWidth& width) {
  std::vector<int> starts{0};
  WrapLoop(text, 0, areaWidth, width, starts, [](int) { return false; });
  return starts;
}

int Rewrap(const wxString& text, std::vector<int>& starts, int changeAt, int removed, int inserted,
           int areaWidth, const TextWidth& width) {
  if (starts.empty()) {
    starts = WrapFrom(text, areaWidth, width);
    return 0;
  }
  // A change can pull the first token of its line, or a piece of a cut word,
  // back onto the line before, so wrapping restarts one line earlier.
  const int first = std::max(0, LineOf(starts, std::max(0, changeAt - 1)) - 1);
  const int delta = inserted - removed;
  const int oldChangeEnd = changeAt + removed;
  const std::vector<int> old(starts.begin() + first + 1, starts.end());
  starts.resize(first + 1);
  std::size_t k = 0;
  WrapLoop(text, starts[first], areaWidth, width, starts, [&](int start) {
    const int oldStart = start - delta;
    if (oldStart < oldChangeEnd) return false;
    while (k < old.size() && old[k] < oldStart) ++k;
    if (k == old.size() || old[k] != oldStart) return false;
    for (std::size_t i = k + 1; i < old.size(); ++i) starts.push_back(old[i] + delta);
    return true;
  });
  return first;
}

int LineOf(const std::vector<int>& starts, int index) {
  const auto it = std::upper_bound(starts.begin(), starts.end(), index);
  return std::max(0, static_cast<int>(it - starts.begin()) - 1);
}

int LineEnd(const wxString& text, const std::vector<int>& starts, int line) {
  const int n = static_cast<int>(text.length());
  int end = line + 1 < static_cast<int>(starts.size()) ? starts[line + 1] : n;
  if (end > starts[line] && text[end - 1] == wxUniChar('\n')) --end;
  return end;
}

int LastCaretIndex(const wxString& text, const std::vector<int>& starts, int line) {
  const int end = LineEnd(text, starts, line);
  const bool softBreak = line + 1 < static_cast<int>(starts.size()) && end == starts[line + 1];
  return softBreak && end > starts[line] ? end - 1 : end;
}

}  // namespace multiedit
