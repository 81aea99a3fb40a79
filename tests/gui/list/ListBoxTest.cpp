// The list box and its pop-up driven by real events: placement, choosing,
// closing, keyboard, type-ahead, index checks, truncation and churn.
#include "ListTestSupport.h"

namespace {

struct PlaceCase {
  std::vector<int> heights;
  int selected, maxHeight;
  int y, height, offset;
};

TEST(ListPopupPlacement, ShortAndLongLists) {
  const std::vector<int> forty(40, 20);
  const PlaceCase cases[] = {
      // Three rows of 20: 62 tall, the chosen row over the control.
      {{20, 20, 20}, 1, 100, -20, 62, 1},
      {{20, 20, 20}, -1, 100, 0, 62, 1},
      // A long list opens at the maximum height, centred on the choice...
      {forty, 20, 100, -40, 100, -360},
      // ...except near the start and the end; nothing chosen acts as row 0.
      {forty, 1, 100, -20, 100, 1},
      {forty, -1, 100, 0, 100, 1},
      {forty, 39, 100, -78, 100, -701},
  };
  for (const PlaceCase& c : cases) {
    const VornListPopupPlace p = VornListPopupPlacement(c.heights, c.selected, c.maxHeight);
    EXPECT_EQ(p.y, c.y) << c.selected;
    EXPECT_EQ(p.height, c.height) << c.selected;
    EXPECT_EQ(p.offset, c.offset) << c.selected;
  }
}

TEST(ListPopupPlacement, KeptOnTheDisplayOnePixelIn) {
  const wxSize display(1280, 1024);
  EXPECT_EQ(VornKeepOnDisplay(wxRect(1200, 990, 140, 62), display), wxPoint(1139, 961));
  EXPECT_EQ(VornKeepOnDisplay(wxRect(-5, -30, 140, 62), display), wxPoint(0, 0));
  EXPECT_EQ(VornKeepOnDisplay(wxRect(10, 20, 140, 62), display), wxPoint(10, 20));
}

TEST(ListBox, OpensOverTheControlAndChoosesARow) {
  ListFixture f;
  VornListBox* box = f.MakeBox();
  for (const char* s : {"alpha", "beta", "gamma"}) box->Append(s, nullptr);
  box->SetSelected(1, false);
  const int row = box->GetElement(0)->GetHeight();
  ExpandedVornListBox* popup = ListFixture::Open(box);
  ASSERT_NE(popup, nullptr);
  PumpEvents();
  EXPECT_EQ(popup->GetClientSize(), wxSize(140, 3 * row + 2));
  EXPECT_EQ(popup->GetPosition().y, box->GetScreenPosition().y - row);
  EXPECT_EQ(popup->GetOffset(), 1);
  EXPECT_FALSE(popup->GetScrollBar()->IsVisible());
  EXPECT_EQ(ExpandedVornListBox::LiveCount(), 1);

  Mouse(popup, wxEVT_MOTION, 30, 1 + 2 * row + 3);
  EXPECT_EQ(popup->GetHighlighted(), 2);
  Mouse(popup, wxEVT_LEFT_DOWN, 30, 1 + 2 * row + 3);
  EXPECT_EQ(box->GetExpanded(), nullptr);
  EXPECT_EQ(box->GetSelected(), 2);
  EXPECT_EQ(box->GetShownText(), "gamma");
  EXPECT_EQ(Joined(f.log), "sel 7");
  wxTheApp->ProcessIdle();
  EXPECT_EQ(ExpandedVornListBox::LiveCount(), 0);
}

TEST(ListBox, LongListScrollsAndNearAnEdgeIsPushedIn) {
  ListFixture f(wxPoint(1180, 940));
  VornListBox* box = f.MakeBox(20, 40);
  for (int i = 0; i < 40; ++i) box->Append("item " + std::to_string(i), nullptr);
  box->SetSelected(20, false);
  ExpandedVornListBox* popup = ListFixture::Open(box);
  ASSERT_NE(popup, nullptr);
  PumpEvents();
  const wxSize display = wxGetDisplaySize();
  EXPECT_EQ(popup->GetClientSize().y, 100);
  EXPECT_EQ(popup->GetPosition(), wxPoint(display.x - 141, display.y - 101));
  EXPECT_TRUE(popup->GetScrollBar()->IsVisible());
  EXPECT_LT(popup->GetOffset(), 0);
  // The wheel scrolls towards the top and stops there.
  wxMouseEvent wheel(wxEVT_MOUSEWHEEL);
  wheel.SetEventObject(popup);
  wheel.m_wheelRotation = 120 * 100;
  wheel.m_wheelDelta = 120;
  popup->GetEventHandler()->ProcessEvent(wheel);
  EXPECT_EQ(popup->GetOffset(), 1);
  EXPECT_EQ(popup->GetScrollBar()->GetSliderVal(), 0.0);
  Key(popup, WXK_ESCAPE);
  EXPECT_EQ(box->GetExpanded(), nullptr);
  EXPECT_EQ(box->GetSelected(), 20);
}

TEST(ListBox, ThumbDragFollowsThePointerOutsideTheBar) {
  ListFixture f;
  VornListBox* box = f.MakeBox();
  for (int i = 0; i < 40; ++i) box->Append("item " + std::to_string(i), nullptr);
  ExpandedVornListBox* popup = ListFixture::Open(box);
  ASSERT_NE(popup, nullptr);
  VornListBoxScrollBar* bar = popup->GetScrollBar();
  const wxRect r = bar->GetRect();
  const int y = r.y + bar->GetThumbTop() + 3;
  Mouse(popup, wxEVT_LEFT_DOWN, r.x + 5, y);
  ASSERT_TRUE(bar->IsDragging());
  Mouse(popup, wxEVT_MOTION, 20, y + 500);  // far below and left of the bar
  EXPECT_EQ(bar->GetSliderVal(), 1.0);
  EXPECT_EQ(popup->GetOffset(), 101 - popup->GetTotalHeight());  // as far as opening goes
  Mouse(popup, wxEVT_LEFT_UP, 20, y + 500);
  EXPECT_FALSE(bar->IsDragging());
  EXPECT_NE(box->GetExpanded(), nullptr);  // a drag is not a choice
  box->HideExpandedBox();
}

TEST(ListBox, SeparatorsAndOutsideClicksChooseNothing) {
  ListFixture f;
  VornListBox* box = f.MakeBox();
  box->Append("one", nullptr);
  box->Append();
  box->Append("two", nullptr);
  box->SetSelected(0, false);
  ExpandedVornListBox* popup = ListFixture::Open(box);
  ASSERT_NE(popup, nullptr);
  const int row = box->GetElement(0)->GetHeight();
  const int sepY = 1 + row + VornListBoxSeperator::kHeight / 2;
  Mouse(popup, wxEVT_MOTION, 30, sepY);
  EXPECT_EQ(popup->GetHighlighted(), 0);  // the highlight stays
  Mouse(popup, wxEVT_LEFT_DOWN, 30, sepY);
  EXPECT_EQ(box->GetExpanded(), popup);   // still open
  Mouse(popup, wxEVT_LEFT_DOWN, -10, 5);  // outside
  EXPECT_EQ(box->GetExpanded(), nullptr);
  EXPECT_EQ(box->GetSelected(), 0);
  EXPECT_EQ(Joined(f.log), "");
}

TEST(ListBox, KeyboardMovesSkippingSeparatorsAndReturnChooses) {
  ListFixture f;
  VornListBox* box = f.MakeBox();
  box->Append("a", nullptr);
  box->Append();
  box->Append("b", nullptr);
  box->Append("c", nullptr);
  ExpandedVornListBox* popup = ListFixture::Open(box);
  ASSERT_NE(popup, nullptr);
  EXPECT_EQ(popup->GetHighlighted(), -1);
  const std::pair<int, int> steps[] = {{WXK_DOWN, 0}, {WXK_DOWN, 2}, {WXK_RIGHT, 3},
                                       {WXK_DOWN, 3}, {WXK_UP, 2},   {WXK_LEFT, 0},
                                       {WXK_UP, 0},   {WXK_END, 3},  {WXK_HOME, 0}};
  for (const auto& [key, expected] : steps) {
    Key(popup, key);
    EXPECT_EQ(popup->GetHighlighted(), expected) << key;
  }
  Key(popup, WXK_END);
  Key(popup, WXK_RETURN);
  EXPECT_EQ(box->GetExpanded(), nullptr);
  EXPECT_EQ(box->GetSelected(), 3);
  EXPECT_EQ(Joined(f.log), "sel 7");
}

TEST(ListBox, TypeAheadPrefixResetsWhenItsTimerFires) {
  ListFixture f;
  VornListBox* box = f.MakeBox();
  for (const char* s : {"Apple", "Banana", "Berry", "Brown", "Bread"}) box->Append(s, nullptr);
  ExpandedVornListBox* popup = ListFixture::Open(box);
  ASSERT_NE(popup, nullptr);
  Type(popup, 'b');
  EXPECT_EQ(popup->GetHighlighted(), 1);
  EXPECT_TRUE(popup->GetPrefixTimer().IsRunning());
  EXPECT_TRUE(popup->GetPrefixTimer().IsOneShot());
  Type(popup, 'r');
  EXPECT_EQ(popup->GetHighlighted(), 3);  // "Brown", the first "br"
  EXPECT_EQ(popup->GetPrefix(), "br");
  popup->GetPrefixTimer().Notify();
  EXPECT_EQ(popup->GetPrefix(), "");
  Type(popup, 'A');
  EXPECT_EQ(popup->GetHighlighted(), 0);
  box->HideExpandedBox();
}

TEST(ListBox, IndexChecksAssert) {
  ListFixture f;
  VornListBox* box = f.MakeBox();
  box->Append("only", nullptr);
  const std::string inRange = "index < elements.size()";
  EXPECT_EQ(FiredAssertionIn([&] { box->GetItemData(1); }).first, inRange);
  EXPECT_EQ(FiredAssertionIn([&] { box->GetItemText(5); }).first, inRange);
  EXPECT_EQ(FiredAssertionIn([&] { box->SetItemText(1, "x"); }).first, inRange);
  EXPECT_EQ(FiredAssertionIn([&] { box->Insert(1, "x", nullptr); }).first, inRange);
  EXPECT_EQ(FiredAssertionIn([&] { box->Delete(3); }).first, inRange);
  EXPECT_EQ(FiredAssertionIn([&] { box->SetSelected(1, false); }).first,
            "index < elements.size() || index == -1");
  EXPECT_EQ(FiredAssertionIn([&] { box->SetSelected(-1, false); }).first, "");
  EXPECT_EQ(box->GetCount(), 1);
}

TEST(ListBox, GivenFontCutsLongTextWithDots) {
  ListFixture f;
  wxFont font(12, wxFONTFAMILY_SWISS, wxFONTSTYLE_NORMAL, wxFONTWEIGHT_NORMAL);
  auto* box = new VornListBox(f.info, 20, 40, f.frame.Get(), font, 7, &f.group);
  box->Append("short", nullptr);
  box->Append("a very long item text that cannot fit in the box", nullptr);
  wxBitmap scratch(10, 10);
  wxMemoryDC dc(scratch);
  box->SetSelected(0, false);
  EXPECT_EQ(box->GetDrawnText(dc), "short");
  box->SetSelected(1, false);
  const wxString drawn = wxString::FromUTF8(box->GetDrawnText(dc).c_str());
  EXPECT_TRUE(drawn.EndsWith("....")) << drawn;
  dc.SetFont(font);
  const wxString kept = drawn.Left(drawn.length() - 4);
  EXPECT_LE(8 + dc.GetTextExtent(kept).x, 106 - 4);
  EXPECT_GT(
      8 + dc.GetTextExtent(wxString::FromUTF8(box->GetItemText(1).c_str()).Left(kept.length() + 1))
              .x,
      106 - 4);
  // The default font draws the text whole.
  VornListBox* plain = f.MakeBox(20, 80, 8);
  plain->Append("a very long item text that cannot fit in the box", nullptr);
  plain->SetSelected(0, false);
  EXPECT_EQ(plain->GetDrawnText(dc), plain->GetItemText(0));
}

TEST(ListBox, PopupDrawsHighlightMarkAndBorder) {
  ListFixture f;
  VornListBox* box = f.MakeBox();
  for (const char* s : {"a", "b", "c"}) box->Append(s, nullptr);
  box->SetSelected(0, false);
  ExpandedVornListBox* popup = ListFixture::Open(box);
  ASSERT_NE(popup, nullptr);
  const int row = box->GetElement(0)->GetHeight();
  Mouse(popup, wxEVT_MOTION, 30, 1 + row + 2);  // highlight row 1
  wxBitmap shot = SolidBitmap(140, 3 * row + 2, wxColour(1, 2, 3));
  {
    wxMemoryDC dc(shot);
    popup->OnDrawBox(dc);
  }
  EXPECT_EQ(PixelAt(shot, 0, 5), f.info.expandColour1);                    // border
  EXPECT_EQ(PixelAt(shot, 60, 1 + row / 2), f.info.expandColour2);         // plain row
  EXPECT_EQ(PixelAt(shot, 130, 1 + row + row / 2), f.info.expandColour3);  // highlighted
  EXPECT_EQ(PixelAt(shot, 5, 1 + row / 2), f.info.expandColour3);          // the chosen row's dot
  box->HideExpandedBox();
}

TEST(ListBox, ListButtonOpensAndReportsItsChoice) {
  ListFixture f;
  f.info.bitmaps = f.images.get();
  auto* button = new VornListButton(f.info, 20, 40, f.frame.Get(), 9, &f.group);
  button->Append("x", nullptr);
  button->Append("y", nullptr);
  ExpandedVornListBox* popup = ListFixture::Open(button);
  ASSERT_NE(popup, nullptr);
  EXPECT_EQ(popup->GetClientSize().x, 140);
  Key(popup, WXK_DOWN);
  Key(popup, WXK_DOWN);
  Key(popup, WXK_RETURN);
  EXPECT_EQ(button->GetSelected(), 1);
  EXPECT_EQ(Joined(f.log), "sel 9");
  EXPECT_FALSE(button->GetMouseDown());
}

TEST(ListBox, ThousandOpenChooseCloseCyclesLeaveNothingBehind) {
  ListFixture f;
  VornListBox* box = f.MakeBox();
  for (int i = 0; i < 30; ++i) box->Append("item " + std::to_string(i), nullptr);
  const std::size_t windowsBefore = wxTopLevelWindows.size();
  for (int i = 0; i < 1000; ++i) {
    ExpandedVornListBox* popup = ListFixture::Open(box);
    ASSERT_NE(popup, nullptr) << i;
    switch (i % 3) {
      case 0:
        Key(popup, WXK_DOWN);
        Key(popup, WXK_RETURN);
        break;
      case 1:
        Key(popup, WXK_ESCAPE);
        break;
      default:
        Mouse(popup, wxEVT_LEFT_DOWN, -5, -5);
        break;
    }
    ASSERT_EQ(box->GetExpanded(), nullptr) << i;
    Do(box, "up");
    if (i % 50 == 0) wxTheApp->ProcessIdle();
  }
  wxTheApp->ProcessIdle();
  EXPECT_EQ(ExpandedVornListBox::LiveCount(), 0);
  EXPECT_EQ(wxTopLevelWindows.size(), windowsBefore);
}

TEST(ListBox, DeletingTheBoxClosesItsPopup) {
  ListFixture f;
  VornListBox* box = f.MakeBox();
  box->Append("a", nullptr);
  ASSERT_NE(ListFixture::Open(box), nullptr);
  box->Destroy();
  wxTheApp->ProcessIdle();
  PumpEvents();
  EXPECT_EQ(ExpandedVornListBox::LiveCount(), 0);
}

}  // namespace
