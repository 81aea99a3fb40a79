// What typing into an edit does: the styles' formatting on Enter and on focus
// loss, the report, SetText against the user, the clipboard and the keys.
#include "EditTestSupport.h"

namespace edittest {
namespace {

using VornEditKeysTest = EditTest;

TEST_F(VornEditKeysTest, StylesFormatTheReportOnEnterAndOnFocusLoss) {
  const struct {
    int style;
    const char *typed, *reported;
  } cases[] = {
      {VornEdit::ES_INT, "12abc", "12"},          {VornEdit::ES_INT, "abc", "0"},
      {VornEdit::ES_INT, " -7x", "-7"},           {VornEdit::ES_REAL2, "3.14159", "3.14"},
      {VornEdit::ES_REAL, "2.5e1z", "25.000000"}, {VornEdit::ES_REAL2, "x1", "0.00"},
      {VornEdit::ES_TEXT, "a b!", "a b!"},        {VornEdit::ES_MAX5, "abcdefg", "abcde"},
  };
  for (bool byEnter : {true, false})
    for (const auto& c : cases) {
      SCOPED_TRACE(testing::Message() << c.typed << (byEnter ? " enter" : " focus loss"));
      std::unique_ptr<VornEdit> edit(Make(c.style));
      Focus(edit.get(), true);
      Type(edit.get(), c.typed);
      byEnter ? Press(edit.get(), WXK_RETURN) : Focus(edit.get(), false);
      EXPECT_EQ(Logged(), std::string("sel 7 text ") + c.reported);
      EXPECT_EQ(GetText(edit.get()), c.reported);
      EXPECT_FALSE(group.focusSeen);  // no caret while receivers redraw
      // Reported once: leaving the field afterwards says nothing more.
      Focus(edit.get(), false);
      EXPECT_EQ(Logged(), "");
    }
}

TEST_F(VornEditKeysTest, SetTextLeavesTheUserAloneAndNotifiesOnRequest) {
  std::unique_ptr<VornEdit> edit(Make(VornEdit::ES_REAL2));
  Focus(edit.get(), true);
  Type(edit.get(), "5");
  edit->SetText("99", true);
  EXPECT_EQ(GetText(edit.get()), "5");
  EXPECT_EQ(Logged(), "");
  Focus(edit.get(), false);
  Logged();
  edit->SetText("1.239", false);
  EXPECT_EQ(Logged(), "");
  edit->SetText("2", true);
  EXPECT_EQ(Logged(), "drag 7 text 2.00");
  EXPECT_EQ(edit->GetCaret(), 0);
}

TEST_F(VornEditKeysTest, PasswordsDrawStarsAndKeepOffTheClipboard) {
  std::unique_ptr<VornEdit> secret(Make(VornEdit::ES_PASSWORD));
  std::unique_ptr<VornEdit> stars(Make(VornEdit::ES_TEXT, true, 0, 8));
  secret->SetText("abcd");
  stars->SetText("****");
  EXPECT_TRUE(SamePixels(Render(secret.get(), 108, 22), Render(stars.get(), 108, 22)));
  Focus(secret.get(), true);
  SetClipboard("kept");
  Ctrl(secret.get(), 'a');
  Ctrl(secret.get(), 'c');
  Ctrl(secret.get(), 'x');
  EXPECT_EQ(GetClipboard(), "kept");
  EXPECT_EQ(GetText(secret.get()), "abcd");
  // A plain field copies and cuts its selection.
  Focus(stars.get(), true);
  Ctrl(stars.get(), 'a');
  Ctrl(stars.get(), 'x');
  EXPECT_EQ(GetClipboard(), "****");
  EXPECT_EQ(GetText(stars.get()), "");
}

TEST_F(VornEditKeysTest, PasteReplacesTheSelection) {
  std::unique_ptr<VornEdit> edit(Make(VornEdit::ES_TEXT));
  edit->SetText("hello world");
  Focus(edit.get(), true);
  Press(edit.get(), WXK_END);
  for (int i = 0; i < 5; ++i) Press(edit.get(), WXK_LEFT, true);
  SetClipboard("there\nnow");
  Ctrl(edit.get(), 'v');
  EXPECT_EQ(GetText(edit.get()), "hello there now");
  EXPECT_EQ(edit->GetCaret(), 15);
  EXPECT_EQ(edit->GetSelectionStart(), edit->GetSelectionEnd());
}

TEST_F(VornEditKeysTest, NavigationKeysMoveSelectAndDelete) {
  std::unique_ptr<VornEdit> edit(Make(VornEdit::ES_TEXT));
  edit->SetText("abcdef");
  Focus(edit.get(), true);
  const struct {
    int key;
    bool shift;
    int caret, selStart, selEnd;
    const char* text;
  } steps[] = {
      {WXK_END, false, 6, 6, 6, "abcdef"}, {WXK_LEFT, true, 5, 5, 6, "abcdef"},
      {WXK_HOME, true, 0, 0, 6, "abcdef"}, {WXK_RIGHT, false, 1, 1, 1, "abcdef"},
      {WXK_END, true, 6, 1, 6, "abcdef"},  {WXK_LEFT, true, 5, 1, 5, "abcdef"},
      {WXK_DELETE, false, 1, 1, 1, "af"},  {WXK_DELETE, false, 1, 1, 1, "a"},
      {WXK_LEFT, false, 0, 0, 0, "a"},     {WXK_LEFT, false, 0, 0, 0, "a"},
      {WXK_BACK, false, 0, 0, 0, "a"},     {WXK_END, false, 1, 1, 1, "a"},
      {WXK_BACK, false, 0, 0, 0, ""},
  };
  for (const auto& s : steps) {
    SCOPED_TRACE(testing::Message() << "key " << s.key << " shift " << s.shift);
    Press(edit.get(), s.key, s.shift);
    EXPECT_EQ(
        std::vector<int>({edit->GetCaret(), edit->GetSelectionStart(), edit->GetSelectionEnd()}),
        std::vector<int>({s.caret, s.selStart, s.selEnd}));
    EXPECT_EQ(GetText(edit.get()), s.text);
  }
  // A read-only field lets every key pass.
  edit->SetEditable(false);
  EXPECT_FALSE(Key(edit.get(), wxEVT_KEY_DOWN, WXK_LEFT));
}

TEST_F(VornEditKeysTest, TypingPastTheEdgeKeepsTheCaretInside) {
  std::unique_ptr<VornEdit> edit(Make(VornEdit::ES_TEXT));
  Focus(edit.get(), true);
  const std::string text = "the quick brown fox jumps over the lazy dog";
  for (std::size_t n = 1; n <= text.size(); ++n) {
    Type(edit.get(), text.substr(n - 1, 1));
    const int caretX = edit->GetScroll() + Width(text, n);
    ASSERT_GE(caretX, 0) << n;
    ASSERT_LE(caretX, edit->GetTextArea().width) << n;
  }
  EXPECT_LT(edit->GetScroll(), -Width(text) + 100 + 10);
  Press(edit.get(), WXK_HOME);
  EXPECT_EQ(edit->GetScroll(), 0);
  Press(edit.get(), WXK_END);
  EXPECT_LT(edit->GetScroll(), 0);
  // The last character is drawn, the first has scrolled out.
  const wxBitmap drawn = Render(edit.get(), 108, 22);
  EXPECT_GT(ColumnsOf(drawn, kText).second, 90);
}

TEST_F(VornEditKeysTest, TabGoesToTheCallBackOrElseToTheParent) {
  struct Handler : VornEditCallBack {
    void TabPressed(VornEdit* e) override { edits.push_back(e); }
    std::vector<VornEdit*> edits;
  } handler;
  std::vector<long> parentKeys;
  frame->Bind(VORNEVT_KEY_UP, [&](VornWindowKeyEvent& e) { parentKeys.push_back(e.GetKeyCode()); });
  frame->Bind(VORNEVT_KEY_DOWN, [&](VornWindowKeyEvent&) { parentKeys.push_back(-1); });
  std::unique_ptr<VornEdit> edit(Make(VornEdit::ES_TEXT));
  Press(edit.get(), WXK_TAB);
  EXPECT_EQ(parentKeys, std::vector<long>({WXK_TAB}));
  edit->SetCallBackHandler(&handler);
  Press(edit.get(), WXK_TAB);
  EXPECT_EQ(handler.edits, std::vector<VornEdit*>({edit.get()}));
  EXPECT_EQ(parentKeys.size(), 1u);
  // A typed letter is left to the character event, not raised as a key.
  EXPECT_FALSE(Key(edit.get(), wxEVT_KEY_DOWN, 'q'));
  EXPECT_EQ(parentKeys.size(), 1u);
}

}  // namespace
}  // namespace edittest
