// The mouse and the picture: the midpoint rule, word selection, drag
// scrolling, the caret and its blink, right-aligned read-only text.
#include "EditTestSupport.h"

namespace edittest {
namespace {

using VornEditMouseTest = EditTest;

TEST_F(VornEditMouseTest, MappingSplitsEachCharacterAtItsMidpoint) {
  std::unique_ptr<VornEdit> edit(Make(VornEdit::ES_TEXT));
  wxBitmap bmp(8, 8);
  wxMemoryDC dc(bmp);
  dc.SetFont(wxFont(wxFontInfo(11).Family(wxFONTFAMILY_SWISS)));
  const wxString text = "Wil lM.";
  std::vector<int> w;
  for (size_t k = 0; k <= text.length(); ++k) w.push_back(dc.GetTextExtent(text.Left(k)).x);
  for (int x = -3; x <= w.back() + 3; ++x) {
    // Boundary k + 1 owns x from the integer midpoint of character k on.
    int expected = 0;
    for (size_t k = 0; k + 1 < w.size(); ++k) expected += (w[k] + w[k + 1]) / 2 <= x;
    if (x >= w.back()) expected = static_cast<int>(text.length());
    ASSERT_EQ(edit->MapMouseToCharacter(text, x, dc), expected) << "x " << x;
  }
  // Real clicks: exactly on the midpoint of 'b' lands after it.
  edit->SetText("abc");
  Focus(edit.get(), true);
  const int mid = 4 + (Width("abc", 1) + Width("abc", 2)) / 2;
  Mouse(edit.get(), wxEVT_LEFT_DOWN, mid, 8);
  Mouse(edit.get(), wxEVT_LEFT_UP, mid, 8);
  EXPECT_EQ(edit->GetCaret(), 2);
  Mouse(edit.get(), wxEVT_LEFT_DOWN, mid - 1, 8);
  Mouse(edit.get(), wxEVT_LEFT_UP, mid - 1, 8);
  EXPECT_EQ(edit->GetCaret(), 1);
}

TEST_F(VornEditMouseTest, DoubleClickSelectsTheWordUnderThePointer) {
  std::unique_ptr<VornEdit> edit(Make(VornEdit::ES_TEXT));
  const wxString text = "alpha beta  gamma";
  edit->SetText("alpha beta  gamma");
  Focus(edit.get(), true);
  const struct {
    int index;  // character under the pointer
    int selStart, selEnd;
  } cases[] = {{7, 6, 10}, {0, 0, 5}, {9, 6, 10}, {10, 0, 0}, {11, 0, 0}, {12, 12, 17}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.index);
    Press(edit.get(), WXK_HOME);
    Logged();
    Mouse(edit.get(), wxEVT_LEFT_DCLICK, 4 + Width(text, c.index) + 2, 8);
    EXPECT_EQ(Logged(), "dclick 7");
    EXPECT_EQ(std::vector<int>({edit->GetSelectionStart(), edit->GetSelectionEnd()}),
              std::vector<int>({c.selStart, c.selEnd}));
    EXPECT_EQ(edit->GetCaret(), c.selEnd);
  }
}

TEST_F(VornEditMouseTest, DraggingPastTheEdgeKeepsScrolling) {
  // The right edge falls just left of a character's midpoint, so mapping the
  // edge alone would never pass it.
  const int cw = Width("x");
  VornEditInfo info = Info(12 * cw + cw / 2 - 1);
  auto edit = std::make_unique<VornEdit>(nullptr, info, 0, 0, frame.Get(), kId, true,
                                         VornEdit::ES_TEXT, &group);
  edit->SetText(std::string(40, 'x'));
  Focus(edit.get(), true);
  Mouse(edit.get(), wxEVT_LEFT_DOWN, 4, 8);
  CaptureDprintf trace;
  Mouse(edit.get(), wxEVT_MOTION, 200, 8);
  ASSERT_TRUE(edit->GetDragTimer().IsRunning());
  int caret = edit->GetCaret();
  EXPECT_GT(caret, 0);
  EXPECT_TRUE(trace.Contains("mouse mapped to character " + std::to_string(caret) + "\n"));
  for (int tick = 0; tick < 50; ++tick) edit->GetDragTimer().Notify();
  EXPECT_GT(edit->GetCaret(), caret);
  EXPECT_LT(edit->GetScroll(), 0);
  EXPECT_EQ(edit->GetSelectionStart(), 0);
  EXPECT_EQ(edit->GetSelectionEnd(), edit->GetCaret());
  Mouse(edit.get(), wxEVT_LEFT_UP, 200, 8);
  EXPECT_FALSE(edit->GetDragTimer().IsRunning());
  caret = edit->GetCaret();
  Mouse(edit.get(), wxEVT_MOTION, 300, 8);
  EXPECT_EQ(edit->GetCaret(), caret);
}

TEST_F(VornEditMouseTest, CaretBlinksOnlyInAFocusedEditableField) {
  const wxColour red(255, 0, 0);
  std::unique_ptr<VornEdit> edit(Make(VornEdit::ES_TEXT));
  edit->SetCaretColour(red);
  edit->SetText("ab");
  EXPECT_EQ(ColumnsOf(Render(edit.get(), 108, 22), red).first, -1);
  Focus(edit.get(), true);
  EXPECT_TRUE(edit->GetBlinkTimer().IsRunning());
  Press(edit.get(), WXK_END);
  const auto caret = ColumnsOf(Render(edit.get(), 108, 22), red);
  EXPECT_NEAR(caret.first, 4 + Width("ab"), 1);
  EXPECT_LE(caret.second - caret.first, 1);
  edit->GetBlinkTimer().Notify();
  EXPECT_EQ(ColumnsOf(Render(edit.get(), 108, 22), red).first, -1);
  edit->GetBlinkTimer().Notify();
  EXPECT_NE(ColumnsOf(Render(edit.get(), 108, 22), red).first, -1);
  Focus(edit.get(), false);
  EXPECT_FALSE(edit->GetBlinkTimer().IsRunning());
}

TEST_F(VornEditMouseTest, ReadOnlyRightAlignedTextSitsFlushRight) {
  std::unique_ptr<VornEdit> right(Make(VornEdit::ES_TEXT, false, VornEdit::kRightAligned));
  std::unique_ptr<VornEdit> left(Make(VornEdit::ES_TEXT, false, 0, 8));
  for (VornEdit* e : {right.get(), left.get()}) {
    e->SetCaretColour(wxColour(255, 0, 0));
    e->SetText("42");
    Focus(e, true);
  }
  const wxBitmap drawn = Render(right.get(), 108, 22);
  const auto text = ColumnsOf(drawn, kText);
  EXPECT_GE(text.second, 4 + 100 - 3);
  EXPECT_LE(text.second, 4 + 100);
  EXPECT_GE(text.first, 4 + 100 - Width("42"));
  EXPECT_LE(ColumnsOf(Render(left.get(), 108, 22), kText).first, 4 + 2);
  EXPECT_EQ(ColumnsOf(drawn, wxColour(255, 0, 0)).first, -1);  // no caret
  // Nothing outside the text is touched: the fill shows around it.
  EXPECT_EQ(PixelAt(drawn, 1, 1), kFill);
  // An editable field ignores the flag and starts at the left.
  std::unique_ptr<VornEdit> editable(Make(VornEdit::ES_TEXT, true, VornEdit::kRightAligned, 9));
  editable->SetText("42");
  EXPECT_LE(ColumnsOf(Render(editable.get(), 108, 22), kText).first, 4 + 2);
}

}  // namespace
}  // namespace edittest
