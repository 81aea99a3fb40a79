// The multi-line edit driven with real key and mouse events: wrapping,
// editing, caret movement and the text report.
#include "MultiEditTestSupport.h"

namespace {

using MultiEdit = MultiEditFixture;

TEST_F(MultiEdit, TypedWordWiderThanTheAreaIsCutIntoFittingPieces) {
  const std::string word(40, 'W');
  Type(word);
  ASSERT_EQ(Text(), word);
  const std::vector<int>& starts = box->GetLineStarts();
  ASSERT_GE(starts.size(), 2u);
  std::string joined;
  for (std::size_t i = 0; i < starts.size(); ++i) {
    const int end = i + 1 < starts.size() ? starts[i + 1] : int(word.size());
    const std::string piece = word.substr(starts[i], end - starts[i]);
    EXPECT_LE(Width(piece), box->GetWrapWidth()) << "line " << i;
    // Each piece but the last is as long as fits.
    if (i + 1 < starts.size()) {
      EXPECT_GT(Width(piece + "W"), box->GetWrapWidth()) << "line " << i;
    }
    joined += piece;
  }
  EXPECT_EQ(joined, word);
  EXPECT_EQ(box->GetCaret(), 40);
  EXPECT_EQ(box->GetCurrentLineNo(), box->GetLineCount() - 1);
}

TEST_F(MultiEdit, EnterInTheMiddleSplitsTheLine) {
  box->SetText("hello world", false);
  ClickText(Width("hello"), 2);  // on the boundary after "hello"
  ASSERT_EQ(box->GetCaret(), 5);
  Char(WXK_RETURN);
  EXPECT_EQ(Text(), "hello\n world");
  EXPECT_EQ(box->GetLineStarts(), (std::vector<int>{0, 6}));
  EXPECT_EQ(box->GetCaret(), 6);
  EXPECT_EQ(box->GetCurrentLineNo(), 1);
  // Enter replaces a selection.
  Key(WXK_RIGHT, true);
  Key(WXK_RIGHT, true);
  Char(WXK_RETURN);
  EXPECT_EQ(Text(), "hello\n\norld");
}

TEST_F(MultiEdit, BackspaceDeleteAndSelectionReplacement) {
  Type("abcdef");
  Char(WXK_BACK);
  EXPECT_EQ(Text(), "abcde");
  Key(WXK_LEFT);
  Key(WXK_LEFT);
  Key(WXK_DELETE);
  EXPECT_EQ(Text(), "abce");
  Key(WXK_LEFT, true);
  Key(WXK_LEFT, true);  // selects "bc"
  EXPECT_EQ(Selection(), "1..3");
  Type("XY");
  EXPECT_EQ(Text(), "aXYe");
  Char('a', true);  // Control + A
  EXPECT_EQ(Selection(), "0..4");
  Char(WXK_BACK);
  EXPECT_EQ(Text(), "");
  Char(WXK_BACK);  // nothing left: no change
  EXPECT_EQ(box->GetCaret(), 0);
}

TEST_F(MultiEdit, UpAndDownKeepTheXThroughAShortLine) {
  box->SetText("abcdefghij\nab\nabcdefghij", false);
  ClickText(Width("abcdefgh"), 2);
  ASSERT_EQ(box->GetCaret(), 8);
  Key(WXK_DOWN);
  EXPECT_EQ(box->GetCaret(), 13);  // the short line's end
  Key(WXK_DOWN);
  EXPECT_EQ(box->GetCaret(), 22);  // back at column 8
  Key(WXK_UP);
  Key(WXK_UP);
  EXPECT_EQ(box->GetCaret(), 8);
  Key(WXK_UP);  // no line above: stays
  EXPECT_EQ(box->GetCaret(), 8);
  Key(WXK_DOWN, true);
  EXPECT_EQ(Selection(), "8..13");
  Key(WXK_LEFT);  // a plain move ends the kept x and the selection
  Key(WXK_DOWN);
  EXPECT_EQ(box->GetCaret(), 14 + 1);
}

TEST_F(MultiEdit, HomeAndEndGoToTheLineEdgesAndShiftExtends) {
  box->SetText("first line\nsecond line", false);
  ClickText(Width("sec"), lineHeight + 2);
  ASSERT_EQ(box->GetCaret(), 14);
  Key(WXK_HOME);
  EXPECT_EQ(box->GetCaret(), 11);
  Key(WXK_END, true);
  EXPECT_EQ(Selection(), "11..22");
  Key(WXK_HOME, true);  // back over the anchor
  EXPECT_EQ(Selection(), "11..11");
  Key(WXK_UP);
  Key(WXK_END);
  EXPECT_EQ(box->GetCaret(), 10);  // before the line feed
  // On a wrapped line End stops before the next line's first character.
  box->SetText(std::string(30, 'W'), false);
  Key(WXK_END);
  EXPECT_EQ(box->GetCaret(), box->GetLineStarts()[1] - 1);
  EXPECT_EQ(box->GetCurrentLineNo(), 0);
}

TEST_F(MultiEdit, ShiftClickAndDoubleClickSelect) {
  box->SetText("one two three", false);
  ClickText(Width("o"), 2);
  ClickText(Width("one tw"), 2, true);
  EXPECT_EQ(Selection(), "1..6");
  Mouse(box, wxEVT_LEFT_DCLICK, kAreaX + Width("one t"), kAreaY + 2);
  EXPECT_EQ(Selection(), "4..7");
  EXPECT_EQ(box->GetCaret(), 7);
}

TEST_F(MultiEdit, FocusLossReportsAnEditedTextOnce) {
  wxFocusEvent gain(wxEVT_SET_FOCUS), lose(wxEVT_KILL_FOCUS);
  box->GetEventHandler()->ProcessEvent(gain);
  box->GetEventHandler()->ProcessEvent(lose);
  EXPECT_EQ(Joined(log), "");  // nothing typed
  box->GetEventHandler()->ProcessEvent(gain);
  Type("hi\nyou");
  box->GetEventHandler()->ProcessEvent(lose);
  EXPECT_EQ(Joined(log), "sel 7 text hi\nyou");
  box->SetText("set", true);
  EXPECT_EQ(Joined(log), "sel 7 text hi\nyou sel 7 text set");
}

TEST_F(MultiEdit, DrawsTheSelectionOnItsLine) {
  box->SetText("abc\ndef", false);
  ClickText(0, lineHeight + 2);
  Key(WXK_RIGHT, true);
  const int w = box->GetWidth(), h = box->GetHeight();
  const wxImage img = Render(box, w, h).ConvertToImage();
  // The selection colour lies on the second line only.
  int first = 0, second = 0;
  for (int y = kAreaY; y < kAreaY + 2 * lineHeight; ++y)
    for (int x = kAreaX; x < kAreaX + Width("d"); ++x)
      if (ImagePixel(img, x, y) == info.colour2) ++(y < kAreaY + lineHeight ? first : second);
  EXPECT_EQ(first, 0);
  EXPECT_GT(second, 0);
}

TEST_F(MultiEditFixture, CutAndPasteAcrossLines) {
  box->SetText("one two\nthree", false);
  ClickText(Width("one "), 2);
  Key(WXK_END, true);
  Char('x', true);  // Control + X
  EXPECT_EQ(Text(), "one \nthree");
  Key(WXK_DOWN);
  Key(WXK_END);
  Char(WXK_CONTROL_V, true);  // as wx delivers Control + V
  EXPECT_EQ(Text(), "one \nthreetwo");
  EXPECT_EQ(box->GetCaret(), 13);
}

TEST_F(MultiEditFixture, TextIsUtf8AtTheInterfaceAndIndexedByCharacter) {
  box->SetText("gr\xC3\xBCn\nx", false);
  EXPECT_EQ(box->GetLineStarts(), (std::vector<int>{0, 5}));
  Key(WXK_END);
  Type("e");
  EXPECT_EQ(Text(), "gr\xC3\xBCne\nx");
}

}  // namespace
