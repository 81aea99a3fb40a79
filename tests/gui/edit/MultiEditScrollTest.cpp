// The multi-line edit's scrolling: the bar follows the line count, and the
// slider and the first visible line agree both ways.
#include "MultiEditTestSupport.h"

namespace {

using MultiEditScroll = MultiEditFixture;

const char* const kTenLines = "l0\nl1\nl2\nl3\nl4\nl5\nl6\nl7\nl8\nl9";

bool BarShown(VornMultiEdit* box) {
  return box->GetScrollBar() && box->GetScrollBar()->IsVisible();
}

TEST_F(MultiEditScroll, BarAppearsAndDisappearsWithTheLineCount) {
  ASSERT_EQ(box->GetVisibleLines(), kLines);
  Type("a\nb\nc");
  EXPECT_EQ(box->GetLineCount(), 3);
  EXPECT_FALSE(BarShown(box));
  Type("\nd");
  ASSERT_TRUE(BarShown(box));
  VornMultiEditScrollBar* bar = box->GetScrollBar();
  EXPECT_DOUBLE_EQ(bar->GetFractionVal(), 3.0 / 4.0);
  // Inside the right edge of the text area, as tall as it; lines wrap short
  // of it.
  int x, y, w, h;
  bar->GetWindowPos(x, y, w, h);
  EXPECT_EQ(std::vector<int>({x, y, w, h}),
            std::vector<int>({10 + kAreaX + kAreaWidth - 11, 10 + kAreaY, 11, info.height}));
  EXPECT_EQ(box->GetWrapWidth(), kAreaWidth - 13);
  // The caret went onto the hidden fourth line: one line down, thumb at the end.
  EXPECT_EQ(box->GetTopLine(), 1);
  EXPECT_DOUBLE_EQ(bar->GetSliderVal(), 1.0);
  Char(WXK_BACK);
  Char(WXK_BACK);
  EXPECT_EQ(box->GetLineCount(), 3);
  EXPECT_FALSE(BarShown(box));
  EXPECT_EQ(box->GetFirstVisibleLine(), 0);
}

TEST_F(MultiEditScroll, DraggingTheThumbMovesTheView) {
  box->SetText(kTenLines, false);
  ASSERT_TRUE(BarShown(box));
  VornMultiEditScrollBar* bar = box->GetScrollBar();
  const int grab = bar->GetThumbTop() + 3;
  Mouse(bar, wxEVT_LEFT_DOWN, 5, grab);
  Mouse(bar, wxEVT_MOTION, 5, grab + 500);
  Mouse(bar, wxEVT_LEFT_UP, 5, grab + 500);
  EXPECT_DOUBLE_EQ(bar->GetSliderVal(), 1.0);
  EXPECT_EQ(box->GetTopLine(), 10 - kLines);  // the last line shows
  // Drawn: the top row holds the text of line 7.
  ClickText(1, 1);
  EXPECT_EQ(box->GetCurrentLineNo(), 7);
  // Half way: the view follows the value.
  const int travel = bar->GetScrollHeight() - bar->GetThumbHeight();
  const int top = bar->GetThumbTop() + 3;
  Mouse(bar, wxEVT_LEFT_DOWN, 5, top);
  Mouse(bar, wxEVT_MOTION, 5, top - travel / 2);
  Mouse(bar, wxEVT_LEFT_UP, 5, top - travel / 2);
  const double value = bar->GetSliderVal();
  EXPECT_GT(value, 0.3);
  EXPECT_LT(value, 0.7);
  EXPECT_EQ(box->GetTopLine(), int(value * (10 - kLines) + 0.5));
}

TEST_F(MultiEditScroll, MovingTheCaretOntoAHiddenLineMovesTheThumb) {
  box->SetText(kTenLines, false);
  VornMultiEditScrollBar* bar = box->GetScrollBar();
  ASSERT_NE(bar, nullptr);
  ClickText(1, 1);
  for (int line = 1; line < 10; ++line) {
    Key(WXK_DOWN);
    const int top = std::max(0, line - (kLines - 1));
    ASSERT_EQ(box->GetTopLine(), top) << "line " << line;
    EXPECT_NEAR(bar->GetSliderVal(), double(top) / (10 - kLines), 1e-6) << "line " << line;
  }
  for (int i = 0; i < 9; ++i) Key(WXK_UP);
  EXPECT_EQ(box->GetTopLine(), 0);
  EXPECT_DOUBLE_EQ(bar->GetSliderVal(), 0.0);
}

TEST_F(MultiEditScroll, WheelAndEndButtonsScrollByWholeLines) {
  box->SetText(kTenLines, false);
  VornMultiEditScrollBar* bar = box->GetScrollBar();
  ASSERT_NE(bar, nullptr);
  auto wheel = [&](int rotation) {
    wxMouseEvent event = MakeMouseEvent(box, wxEVT_MOUSEWHEEL, 20, 20);
    event.m_wheelRotation = rotation;
    event.m_wheelDelta = 120;
    event.m_wheelAxis = wxMOUSE_WHEEL_VERTICAL;
    box->GetEventHandler()->ProcessEvent(event);
  };
  wheel(-120);  // towards the user: later lines
  EXPECT_EQ(box->GetTopLine(), 1);
  EXPECT_NEAR(bar->GetSliderVal(), 1.0 / 7, 1e-6);
  wheel(-240);
  EXPECT_EQ(box->GetTopLine(), 3);
  wheel(+600);  // clamped at the top
  EXPECT_EQ(box->GetTopLine(), 0);
  Click(bar->GetDownButton());
  EXPECT_EQ(box->GetTopLine(), 1);
  Click(bar->GetUpButton());
  EXPECT_EQ(box->GetTopLine(), 0);
}

TEST_F(MultiEditScroll, DragBelowTheAreaScrollsALinePerReplay) {
  box->SetText(kTenLines, false);
  Mouse(box, wxEVT_LEFT_DOWN, kAreaX + 1, kAreaY + 1);
  Mouse(box, wxEVT_MOTION, kAreaX + 1, kAreaY + info.height + 20);
  EXPECT_EQ(box->GetTopLine(), 1);
  wxTimer timer;
  wxTimerEvent tick(timer);
  box->ShooftyTimer(tick);
  EXPECT_EQ(box->GetTopLine(), 2);
  EXPECT_NEAR(box->GetScrollBar()->GetSliderVal(), 2.0 / 7, 1e-6);
  Mouse(box, wxEVT_LEFT_UP, kAreaX + 1, kAreaY + info.height + 20);
}

TEST_F(MultiEditScroll, SignBitOfTheStyleForbidsTheBar) {
  auto* plain =
      new VornMultiEdit(nullptr, info, 10, 150, box->GetParent(), 8, true, nullptr, long(1) << 31);
  plain->SetText(kTenLines, false);
  EXPECT_EQ(plain->GetScrollBar(), nullptr);
  for (int i = 0; i < 5; ++i) {
    wxKeyEvent down(wxEVT_KEY_DOWN);
    down.m_keyCode = WXK_DOWN;
    plain->GetEventHandler()->ProcessEvent(down);
  }
  EXPECT_EQ(plain->GetTopLine(), 5 - (kLines - 1));  // the caret still scrolls the text
  EXPECT_EQ(plain->GetScrollBar(), nullptr);
}

TEST_F(MultiEditFixture, ViewStaysOnTheTextWhenLinesGo) {
  box->SetText(kTenLines, false);
  box->SetScrollPos(100 * lineHeight);
  ASSERT_EQ(box->GetTopLine(), 7);
  // Cutting the last lines leaves no empty rows at the bottom.
  box->SetSelection(int(std::string(kTenLines).size()) - 9, int(std::string(kTenLines).size()));
  Char(WXK_BACK);
  EXPECT_EQ(box->GetLineCount(), 7);
  EXPECT_EQ(box->GetTopLine(), 4);
}

}  // namespace
