// Line wrapping of the multi-line edit with a fixed-pitch width (10 pixels
// a character), and the incremental re-wrap against the full one.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "../../../src/controls/edit/MultiEditWrap.h"

namespace {

int Pitch10(const wxString& s) {
  return 10 * static_cast<int>(s.length());
}

struct WrapCase {
  const char* text;
  int area;
  std::vector<int> starts;
};

class MultiEditWrap : public ::testing::TestWithParam<WrapCase> {};

TEST_P(MultiEditWrap, LineStarts) {
  const WrapCase& c = GetParam();
  EXPECT_EQ(multiedit::WrapFrom(c.text, c.area, Pitch10), c.starts) << '"' << c.text << '"';
}

INSTANTIATE_TEST_SUITE_P(
    Cases, MultiEditWrap,
    ::testing::Values(WrapCase{"", 50, {0}},                     // one empty line
                      WrapCase{"abcde", 50, {0}},                // exactly fills
                      WrapCase{"abcdefghijkl", 50, {0, 5, 10}},  // word wider: cut to fit
                      WrapCase{"ab\ncd", 50, {0, 3}},            // hard break
                      WrapCase{"ab\n", 50, {0, 3}},              // empty last line
                      WrapCase{"\n\n", 50, {0, 1, 2}},           // empty lines
                      WrapCase{"ab cd ef", 50, {0, 5}},          // the blank starts the line
                      WrapCase{"ab cdefghij", 50, {0, 3, 8}},    // whole word moves, then cut
                      WrapCase{"abc", 5, {0, 1, 2}},             // area narrower than a char
                      WrapCase{"a\nbcdefg h", 50, {0, 2, 7}}));

TEST(MultiEditWrapLines, LineOfEndAndLastCaretIndex) {
  const wxString text = "ab cd ef\nxy";  // area 50: "ab cd", " ef\n", "xy"
  const std::vector<int> starts = multiedit::WrapFrom(text, 50, Pitch10);
  ASSERT_EQ(starts, (std::vector<int>{0, 5, 9}));
  EXPECT_EQ(multiedit::LineOf(starts, 4), 0);
  EXPECT_EQ(multiedit::LineOf(starts, 5), 1);  // a soft break belongs to the next line
  EXPECT_EQ(multiedit::LineOf(starts, 11), 2);
  EXPECT_EQ(multiedit::LineEnd(text, starts, 1), 8);  // without the line feed
  EXPECT_EQ(multiedit::LastCaretIndex(text, starts, 0), 4);
  EXPECT_EQ(multiedit::LastCaretIndex(text, starts, 1), 8);
  EXPECT_EQ(multiedit::LastCaretIndex(text, starts, 2), 11);
}

// Random edits of random text with uneven character widths: the re-wrap
// from the changed line must always equal wrapping from scratch.
TEST(MultiEditWrapIncremental, AgreesWithFullWrap) {
  std::mt19937 rng(1234);
  const std::string alphabet = "aaaabbbcciiiWWmm    \n";
  auto uneven = [](const wxString& s) {
    int w = 0;
    for (wxUniChar c : s) w += c == 'W' || c == 'm' ? 14 : c == 'i' ? 4 : 9;
    return w;
  };
  auto randomText = [&](int n) {
    std::string s;
    for (int i = 0; i < n; ++i) s += alphabet[rng() % alphabet.size()];
    return s;
  };
  for (int round = 0; round < 40; ++round) {
    const int area = 30 + static_cast<int>(rng() % 90);
    wxString text = randomText(static_cast<int>(rng() % 300));
    std::vector<int> starts = multiedit::WrapFrom(text, area, uneven);
    for (int edit = 0; edit < 60; ++edit) {
      const int at = text.empty() ? 0 : static_cast<int>(rng() % (text.length() + 1));
      const int removed = std::min<int>(static_cast<int>(rng() % 4), text.length() - at);
      const wxString inserted = randomText(static_cast<int>(rng() % 5));
      text.replace(at, removed, inserted);
      multiedit::Rewrap(text, starts, at, removed, static_cast<int>(inserted.length()), area,
                        uneven);
      ASSERT_EQ(starts, multiedit::WrapFrom(text, area, uneven))
          << "round " << round << " edit " << edit << " area " << area;
    }
  }
}

}  // namespace
