#pragma once
// A menu built from a menu text on a test frame, with distinct colours, a
// group that records the entries' choices and solid mark images.
#include <memory>
#include <string>
#include <vector>

#include "../../unit/AssetTestUtil.h"
#include "../ControlTestSupport.h"
#include "vorn/VornMenu.h"
#include "vorn/VornPopUpButton.h"

// Records the windowless entries' choices as "pick <id>" beside the
// buttons' "sel <id>".
class MenuGroup : public RecordingGroup {
 public:
  using RecordingGroup::ControlSelected;
  using RecordingGroup::RecordingGroup;
  void ControlSelected(unsigned int id, VirtualControl*) override { Note("pick", id); }
};

// The items a menu-text asset of these lines yields.
inline std::vector<MENUITEM> MenuItemsFrom(const std::string& text) {
  TempDir dir;
  dir.Write("menu.txt", text);
  AssetManager assets;
  std::vector<MENUITEM> items;
  if (!LoadTree(assets, dir.Path()) || !assets.LoadMenuText("menu.txt", items)) items.clear();
  return items;
}

constexpr const char* kFiveLines = "1 @Title\n2 %Open\n3 -\n4 *Fast\n5 *Slow\n";

struct MenuFixture {
  explicit MenuFixture(const std::string& text = kFiveLines) : items(MenuItemsFrom(text)) {
    frame->SetPosition(wxPoint(200, 200));
    marks = MakeCache({VIT_OFF, VIT_ON, VIT_ON_MOUSE_OVER}, 9, 9);
    PumpEvents();
  }
  // Buttons go before the menus they open.
  ~MenuFixture() {
    for (wxWindow* button : buttons) button->Destroy();
    for (VornMenu* menu : menus) menu->Destroy();
    wxTheApp->ProcessIdle();
  }
  VornMenu* MakeMenu(VornControlGroup* g = nullptr, const VornwxBitmapCache* m = nullptr) {
    wxFont font(9, wxFONTFAMILY_SWISS, wxFONTSTYLE_NORMAL, wxFONTWEIGHT_NORMAL);
    auto* menu = new VornMenu(items, m ? m : marks.get(), kFirst, kSecond, kThird, kFourth, font,
                              font, 0, 0, g ? g : &group, frame.Get(), wxID_ANY);
    menus.push_back(menu);
    return menu;
  }
  // The middle of row r of a menu.
  static wxPoint Row(const VornMenu* menu, int r) {
    return wxPoint(menu->GetMenuSize().x / 2,
                   r * menu->GetItemHeight() + menu->GetItemHeight() / 2);
  }

  static inline const wxColour kFirst{20, 30, 40};
  static inline const wxColour kSecond{0, 150, 160};
  static inline const wxColour kThird{70, 80, 90};
  static inline const wxColour kFourth{240, 240, 240};

  std::vector<MENUITEM> items;
  EventLog log;
  MenuGroup group{&log};
  MenuGroup group2{&log};
  TestFrame frame{wxSize(500, 400)};
  std::unique_ptr<VornwxBitmapCache> marks;
  std::vector<VornMenu*> menus;
  std::vector<wxWindow*> buttons;
};
