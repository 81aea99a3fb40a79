// Menus built from menu texts and driven by real events: entry kinds, the
// strict inside test, choices, radio selection, marks and drawing.
#include "MenuTestSupport.h"

namespace {

TEST(Menu, FiveLineMenuTextGivesFourKindsAndAnEmptyRow) {
  MenuFixture f(std::string(kFiveLines) + "6 #Other\n7 %Quit\n");
  VornMenu* menu = f.MakeMenu();
  ASSERT_EQ(menu->GetCount(), 6);  // the '#' line leaves its row empty
  const int h = menu->GetItemHeight();
  ASSERT_GT(h, 0);
  EXPECT_EQ(menu->GetMenuSize().y, 7 * h);
  EXPECT_FALSE(menu->IsShown());
  struct Expect {
    bool title, text, radio, line;
    int id, row;
    const char* label;
  };
  const Expect expected[] = {
      {true, false, false, false, -1, 0, "Title"}, {false, true, false, false, 2, 1, "Open"},
      {false, false, false, true, -1, 2, ""},      {false, false, true, false, 4, 3, "Fast"},
      {false, false, true, false, 5, 4, "Slow"},   {false, true, false, false, 7, 6, "Quit"}};
  for (int i = 0; i < 6; ++i) {
    VornMenuItem* e = menu->GetEntry(i);
    const Expect& x = expected[i];
    SCOPED_TRACE(x.label);
    EXPECT_EQ(dynamic_cast<VornMenuTitleEntry*>(e) != nullptr, x.title);
    EXPECT_EQ(dynamic_cast<VornMenuTextEntry*>(e) != nullptr, x.text);
    EXPECT_EQ(dynamic_cast<VornMenuRadioEntry*>(e) != nullptr, x.radio);
    EXPECT_EQ(dynamic_cast<VornMenuBreakEntry*>(e) != nullptr, x.line);
    EXPECT_EQ(e->GetId(), static_cast<unsigned int>(x.id));
    EXPECT_EQ(e->GetPosY(), x.row * h);
    EXPECT_EQ(e->GetWidth(), menu->GetMenuSize().x);
    EXPECT_EQ(e->GetText(), x.label);
  }
  // Only reporting entries joined the group.
  EXPECT_EQ(menu->FindItem(2), 1);
  EXPECT_EQ(menu->FindItem(6), -1);
  // The pointer over the empty row lights nothing.
  Mouse(menu, wxEVT_MOTION, 30, 5 * h + h / 2);
  for (int i = 0; i < 6; ++i) EXPECT_FALSE(menu->GetEntry(i)->IsHighlighted()) << i;
}

TEST(Menu, StrictInsideTestAndSilentRows) {
  MenuFixture f;
  VornMenu* menu = f.MakeMenu();
  const int h = menu->GetItemHeight(), w = menu->GetMenuSize().x;
  const struct {
    int x, y;
    const char* log;
  } cases[] = {
      {10, h, ""},            // the border between the title and Open
      {10, h + 1, "pick 2"},  // just inside Open
      {10, 2 * h - 1, "pick 2"},
      {10, 2 * h, ""},          // Open's bottom edge, the line's top edge
      {0, h + h / 2, ""},       // the frame's left edge
      {w, h + h / 2, ""},       // its right edge
      {10, h / 2, ""},          // the title
      {10, 2 * h + h / 2, ""},  // the separator
      {10, 4 * h + h / 2, "pick 5"},
  };
  for (const auto& c : cases) {
    f.log.clear();
    Mouse(menu, wxEVT_LEFT_UP, c.x, c.y);
    EXPECT_EQ(Joined(f.log), c.log) << c.x << "," << c.y;
  }
}

TEST(Menu, HighlightFollowsThePointerAndShowingResetsIt) {
  MenuFixture f;
  VornMenu* menu = f.MakeMenu();
  const wxPoint open = MenuFixture::Row(menu, 1), title = MenuFixture::Row(menu, 0);
  Mouse(menu, wxEVT_MOTION, open.x, open.y);
  EXPECT_TRUE(menu->GetEntry(1)->IsHighlighted());
  EXPECT_EQ(menu->GetEntry(1)->GetCurrentBackground(), MenuFixture::kSecond);
  Mouse(menu, wxEVT_MOTION, title.x, title.y);
  EXPECT_FALSE(menu->GetEntry(1)->IsHighlighted());
  EXPECT_FALSE(menu->GetEntry(0)->IsHighlighted());  // titles never light
  Mouse(menu, wxEVT_MOTION, open.x, open.y);
  Mouse(menu, wxEVT_MOTION, -20, open.y);  // off the menu
  EXPECT_FALSE(menu->GetEntry(1)->IsHighlighted());
  Mouse(menu, wxEVT_MOTION, open.x, open.y);
  menu->Show(true);
  EXPECT_FALSE(menu->GetEntry(1)->IsHighlighted());
  menu->Show(false);
}

TEST(Menu, RadioSelectionGoesThroughTheGroup) {
  MenuFixture f;
  VornMenu* menu = f.MakeMenu();
  auto on = [&](int position) { return menu->GetEntry(position)->GetOn(); };
  EXPECT_EQ(menu->GetSelected(), 0);
  menu->SetSelected(4);
  EXPECT_TRUE(on(3));
  EXPECT_FALSE(on(4));
  EXPECT_EQ(f.group.GetSelected(), 4u);
  // Choosing Slow turns it on and Fast off.
  const wxPoint slow = MenuFixture::Row(menu, 4);
  Mouse(menu, wxEVT_LEFT_UP, slow.x, slow.y);
  EXPECT_EQ(Joined(f.log), "pick 5");
  EXPECT_FALSE(on(3));
  EXPECT_TRUE(on(4));
  EXPECT_EQ(menu->GetSelected(), 5);
  EXPECT_EQ(f.group.GetSelected(), 5u);
}

TEST(Menu, MarkFallsBackAlongItsChainOrIsLeftOut) {
  MenuFixture f;
  VornMenu* menu = f.MakeMenu();
  VornMenuItem* fast = menu->GetEntry(3);
  const int h = menu->GetItemHeight();
  auto markAt = [&](VornMenu* m) {
    wxBitmap shot = SolidBitmap(m->GetMenuSize().x, m->GetMenuSize().y, wxColour(1, 2, 3));
    wxMemoryDC dc(shot);
    m->OnDraw(&dc);
    dc.SelectObject(wxNullBitmap);
    return PixelAt(shot, 4, 3 * h + VornMenuItem::kMarkY + 4);
  };
  EXPECT_EQ(markAt(menu), StateColour(VIT_OFF));
  menu->SetSelected(4);
  EXPECT_EQ(markAt(menu), StateColour(VIT_ON));
  const wxPoint p = MenuFixture::Row(menu, 3);
  Mouse(menu, wxEVT_MOTION, p.x, p.y);
  EXPECT_EQ(markAt(menu), StateColour(VIT_ON_MOUSE_OVER));
  // With only a mouse-over image for the off states, a plain off entry has
  // no mark and an off entry under the pointer has one.
  const auto offOver = MakeCache({VIT_OFF_MOUSE_OVER}, 9, 9);
  VornMenu* other = f.MakeMenu(&f.group2, offOver.get());
  EXPECT_EQ(markAt(other), MenuFixture::kFirst);
  Mouse(other, wxEVT_MOTION, p.x, p.y);
  EXPECT_EQ(markAt(other), StateColour(VIT_OFF_MOUSE_OVER));
  WallpaperImageInfo<wxBitmap> info;
  EXPECT_TRUE(fast->GetImageInfo(info));
  VornMenuTextEntry bare;
  bare.Create(nullptr, 0, 0, 40, 12, 9, nullptr, nullptr);
  info = WallpaperImageInfo<wxBitmap>();
  EXPECT_EQ(FiredAssertionIn([&] { bare.GetImageInfo(info); }).first, "m_pMarks != __null");
  EXPECT_EQ(info.bitmap, nullptr);
  {
    // Past the assertion, no mark set means no mark.
    ScopedAssertThrow quiet;
    VornSetAssertHandler([](const VornAssertInfo&) {});
    EXPECT_FALSE(bare.GetImageInfo(info));
  }
}

TEST(Menu, DrawsTitleHighlightAndLineInTheirColours) {
  MenuFixture f;
  VornMenu* menu = f.MakeMenu();
  const int h = menu->GetItemHeight(), w = menu->GetMenuSize().x;
  const wxPoint open = MenuFixture::Row(menu, 1);
  Mouse(menu, wxEVT_MOTION, open.x, open.y);
  wxBitmap shot = SolidBitmap(w, 5 * h, wxColour(1, 2, 3));
  {
    wxMemoryDC dc(shot);
    menu->OnDraw(&dc);
  }
  EXPECT_EQ(PixelAt(shot, w - 3, 1), MenuFixture::kThird);               // title background
  EXPECT_EQ(PixelAt(shot, w - 3, h + 2), MenuFixture::kSecond);          // lit row
  EXPECT_EQ(PixelAt(shot, w / 2, 2 * h + h / 2), MenuFixture::kFourth);  // the line
  EXPECT_EQ(PixelAt(shot, w / 2, 2 * h + h / 2 - 2), MenuFixture::kFirst);
  EXPECT_GT(CountNear(shot, MenuFixture::kFourth, 60), 20);  // labels drawn
}

TEST(Menu, AppendDeleteAndFindKeepTheColumnTight) {
  MenuFixture f;
  VornMenu* menu = f.MakeMenu();
  const int h = menu->GetItemHeight(), w = menu->GetMenuSize().x;
  menu->AppendSelectItem("A much longer entry than the others", 20);
  menu->AppendLineBreak();
  menu->AppendRadioItem("Medium", 21);
  EXPECT_EQ(menu->GetCount(), 8);
  EXPECT_EQ(menu->GetMenuSize().y, 8 * h);
  EXPECT_GT(menu->GetMenuSize().x, w);
  EXPECT_EQ(menu->GetEntry(0)->GetWidth(), menu->GetMenuSize().x);
  EXPECT_EQ(menu->GetEntry(5)->GetPosY(), 5 * h);
  EXPECT_EQ(menu->FindItem(21), 7);
  menu->DeleteItemID(2);  // Open: the rows below move up
  EXPECT_EQ(menu->FindItem(2), -1);
  EXPECT_EQ(menu->FindItem(21), 6);
  EXPECT_EQ(menu->GetEntry(6)->GetPosY(), 6 * h);
  EXPECT_EQ(menu->GetMenuSize().y, 7 * h);
  menu->DeleteItemPos(0);
  EXPECT_EQ(menu->GetEntry(0)->GetPosY(), 0);
  menu->SetItemText(21, "Renamed");
  EXPECT_EQ(menu->GetEntry(menu->FindItem(21))->GetText(), "Renamed");
  EXPECT_EQ(FiredAssertionIn([&] { menu->DeleteItemPos(9); }).first, "position < entries.size()");
  // A choice of an appended entry reports through the menu's group.
  const wxPoint p = MenuFixture::Row(menu, menu->FindItem(20));
  Mouse(menu, wxEVT_LEFT_UP, p.x, p.y);
  EXPECT_EQ(Joined(f.log), "pick 20");
  menu->ClearAll();
  EXPECT_EQ(menu->GetCount(), 0);
  EXPECT_TRUE(f.group.IsEmpty());  // the entries left the group
}

TEST(Menu, RepeatedIdInAMenuTextIsShownButNotRegisteredTwice) {
  MenuFixture f("1 %One\n1 %Again\n");
  VornMenu* menu = f.MakeMenu();
  ASSERT_EQ(menu->GetCount(), 2);
  EXPECT_EQ(menu->GetEntry(1)->GetGroup(), nullptr);
  const wxPoint p = MenuFixture::Row(menu, 1);
  Mouse(menu, wxEVT_LEFT_UP, p.x, p.y);
  EXPECT_EQ(Joined(f.log), "");
}

}  // namespace
