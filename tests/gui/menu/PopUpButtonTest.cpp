// The menu buttons driven by real events: placement above, below and
// beside, opening, a second press, closing by a click outside or a choice,
// the companion window, and many open-close rounds.
#include "MenuTestSupport.h"

namespace {

struct ButtonFixture : MenuFixture {
  ButtonFixture() : images(MakeCache(AllStates(), 32, 32)) {}
  template <class Button, class... Args>
  Button* Make(Args... args) {
    auto* button = new Button(images.get(), MakeMenu(), args...);
    buttons.push_back(button);
    return button;
  }
  std::unique_ptr<VornwxBitmapCache> images;
};

// Opens a menu with a press and the release that follows it.
void Press(VornControl* button) {
  Do(button, "enter down up");
}

TEST(PopUpButton, PlacesItsMenuAboveBelowOrBeside) {
  struct Case {
    bool side;
    int mode, vertical;
    // Expected menu corner from the button's rectangle b, menu size m and
    // item height ih, in screen coordinates.
    std::function<wxPoint(const wxRect& b, const wxSize& m, int ih)> at;
  };
  const Case cases[] = {
      // Upwards, right edges aligned: the bottom one item height above.
      {false, 0, 1,
       [](const wxRect& b, const wxSize& m, int ih) {
         return wxPoint(b.GetRight() + 1 - m.x, b.y - ih - m.y);
       }},
      // Downwards, left edges aligned.
      {false, 1, 0,
       [](const wxRect& b, const wxSize&, int) { return wxPoint(b.x, b.GetBottom() + 1); }},
      // To the left: the menu's right edge at the button's left edge.
      {true, 0, 0, [](const wxRect& b, const wxSize& m, int) { return wxPoint(b.x - m.x, b.y); }},
      // To the right.
      {true, 1, 0,
       [](const wxRect& b, const wxSize&, int) { return wxPoint(b.GetRight() + 1, b.y); }},
  };
  for (const Case& c : cases) {
    ButtonFixture f;
    VornMenuOpener* button =
        c.side ? static_cast<VornMenuOpener*>(f.Make<VornPopSideButton>(
                     c.mode, c.vertical, 220, 200, f.frame.Get(), 31, &f.group))
               : f.Make<VornPopUpButton>(c.mode, c.vertical, 220, 200, f.frame.Get(), 31, &f.group);
    PumpEvents();
    VornMenu* menu = button->GetMenu();
    EXPECT_EQ(menu->GetPopUpButton(), button);  // told at creation
    Press(button);
    ASSERT_TRUE(menu->IsShown());
    const wxRect b(button->GetScreenPosition(), button->GetSize());
    EXPECT_EQ(b.GetSize(), wxSize(32, 32));
    EXPECT_EQ(menu->GetPosition(), c.at(b, menu->GetMenuSize(), menu->GetItemHeight()))
        << c.side << c.mode << c.vertical;
    button->Reset();
  }
}

TEST(PopUpButton, PressOpensASecondPressDoesNothingAnOutsideClickCloses) {
  ButtonFixture f;
  auto* button = f.Make<VornPopSideButton>(1, 0, 100, 100, f.frame.Get(), 31, &f.group);
  VornMenu* menu = button->GetMenu();
  Press(button);
  EXPECT_TRUE(button->GetOn());
  EXPECT_TRUE(menu->IsShown());
  EXPECT_EQ(Joined(f.log), "sel 31");  // the side button reports its opening
  const wxPoint at = menu->GetPosition();
  Press(button);
  EXPECT_EQ(Joined(f.log), "sel 31");
  EXPECT_EQ(menu->GetPosition(), at);
  EXPECT_TRUE(menu->IsShown());

  Mouse(menu, wxEVT_LEFT_DOWN, -6, 5);  // outside the menu
  EXPECT_FALSE(button->GetOn());
  EXPECT_FALSE(button->GetButtonDown());
  EXPECT_FALSE(menu->IsShown());
  EXPECT_FALSE(menu->HasCapture());
  EXPECT_EQ(Joined(f.log), "sel 31");  // nothing chosen
  // The button opens again on the next press.
  Press(button);
  EXPECT_TRUE(menu->IsShown());
  button->Reset();
}

TEST(PopUpButton, AChoiceReportsAndClosesATitleOrLineDoesNot) {
  ButtonFixture f;
  auto* button = f.Make<VornPopUpButton>(0, 0, 100, 60, f.frame.Get(), 31, &f.group);
  VornMenu* menu = button->GetMenu();
  Press(button);
  for (int row : {0, 2}) {
    const wxPoint p = MenuFixture::Row(menu, row);
    Mouse(menu, wxEVT_LEFT_UP, p.x, p.y);
  }
  EXPECT_TRUE(menu->IsShown());
  EXPECT_EQ(Joined(f.log), "");
  const wxPoint fast = MenuFixture::Row(menu, 3);
  Mouse(menu, wxEVT_MOTION, fast.x, fast.y);
  Mouse(menu, wxEVT_LEFT_UP, fast.x, fast.y);
  EXPECT_EQ(Joined(f.log), "pick 4");
  EXPECT_EQ(button->GetSelected(), 4);
  EXPECT_FALSE(menu->IsShown());
  EXPECT_FALSE(button->GetOn());
  // The highlight left from the choice is gone when the menu shows again.
  Press(button);
  EXPECT_FALSE(menu->GetEntry(3)->IsHighlighted());
  button->Reset();
}

TEST(PopUpButton, CompanionShowsBesideAnUpwardMenuAndHidesOnReset) {
  ButtonFixture f;
  auto* companion = new wxWindow(f.frame.Get(), wxID_ANY, wxPoint(0, 0), wxSize(40, 30));
  companion->Hide();
  auto* button = new VornPopUpButton();
  f.buttons.push_back(button);
  button->Create(f.images.get(), f.MakeMenu(), 1, 1, 150, 250, 32, 32, f.frame.Get(), 31, &f.group,
                 0, companion);
  VornMenu* menu = button->GetMenu();
  Press(button);
  EXPECT_TRUE(companion->IsShown());
  const wxPoint expected =
      f.frame->ScreenToClient(menu->GetPosition() + wxPoint(menu->GetMenuSize().x, 0));
  EXPECT_EQ(companion->GetPosition(), expected);
  button->Reset();
  EXPECT_FALSE(companion->IsShown());
  EXPECT_FALSE(menu->IsShown());
}

TEST(PopUpButton, ForwardsTheMenuOperations) {
  ButtonFixture f;
  auto* button = f.Make<VornPopUpButton>(0, 0, 100, 60, f.frame.Get(), 31, &f.group);
  button->AppendSelectItem("More", 40);
  button->AppendLineBreak();
  button->AppendRadioItem("Other", 41);
  EXPECT_EQ(button->GetCount(), 8);
  EXPECT_EQ(button->FindItem(41), 7);
  button->SetItemText(40, "Less");
  EXPECT_EQ(button->GetMenu()->GetEntry(5)->GetText(), "Less");
  button->SetSelected(41);
  EXPECT_EQ(button->GetSelected(), 41);
  EXPECT_TRUE(button->GetMenu()->GetEntry(7)->GetOn());
  button->DeleteItemID(40);
  button->DeleteItemPos(0);
  EXPECT_EQ(button->GetCount(), 6);
  button->ClearAll();
  EXPECT_EQ(button->GetCount(), 0);
}

TEST(PopUpButton, ManyOpenCloseRoundsLeaveNoWindowBehind) {
  const std::size_t before = wxTopLevelWindows.size();
  {
    ButtonFixture f;
    auto* button = f.Make<VornPopUpButton>(0, 1, 100, 200, f.frame.Get(), 31, &f.group);
    VornMenu* menu = button->GetMenu();
    for (int i = 0; i < 300; ++i) {
      Press(button);
      ASSERT_TRUE(menu->IsShown()) << i;
      Mouse(menu, wxEVT_LEFT_DOWN, -3, -3);
      ASSERT_FALSE(menu->IsShown()) << i;
    }
    EXPECT_EQ(wxWindow::GetCapture(), nullptr);
    EXPECT_EQ(wxTopLevelWindows.size(), before + 2);  // the frame and the one menu
    // Menus made and destroyed leave the group as they found it.
    for (int i = 0; i < 50; ++i) {
      auto* menu2 =
          new VornMenu(f.items, f.marks.get(), *wxBLACK, *wxBLUE, *wxRED, *wxWHITE, *wxNORMAL_FONT,
                       *wxNORMAL_FONT, 0, 0, &f.group2, f.frame.Get(), wxID_ANY);
      menu2->Show(true);
      menu2->Destroy();
    }
    wxTheApp->ProcessIdle();
    EXPECT_TRUE(f.group2.IsEmpty());
    EXPECT_EQ(wxTopLevelWindows.size(), before + 2);
  }
  wxTheApp->ProcessIdle();
  EXPECT_EQ(wxTopLevelWindows.size(), before);
}

}  // namespace
