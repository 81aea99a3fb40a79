// The lists and menus page. The left half holds the list controls: a short
// list box, a long list box with separators and a list button. The right
// half holds two menu buttons (one opening upwards, one to the side, their
// menus built from the menu-text assets, so a language switch relabels
// them), a title bar that moves the gallery window and a movie bar. Every
// choice and notification goes to the log.
#include <wx/dcmemory.h>

#include <functional>

#include "Gallery.h"

namespace {

constexpr int kTextX = 24;
constexpr int kTop = 14;
constexpr int kLeftX = 40;   // the list controls' column
constexpr int kRowGap = 64;  // between the list controls
constexpr int kFirstRowY = 80;
constexpr int kRightHalfX = 480;  // menus and pop-up buttons start here
constexpr int kLongItems = 40;

enum Id : unsigned int {
  kShortList = 700,
  kLongList,
  kListButton,
  kUpButton,
  kSideButton,
  kTitleBar,
  kMovieBar
};

constexpr int kMenuButtonY = 170;
constexpr int kSideButtonX = kRightHalfX + 200;
constexpr int kTitleBarY = 214;
constexpr int kMovieBarY = 262;
constexpr int kBarWidth = 440;

// Logs each menu choice under its entry's label.
class MenuGroup : public LoggingGroup<VornControlGroup1ofN> {
 public:
  using LoggingGroup::LoggingGroup;
  // Names the reporting entries of a menu after their labels.
  void NameEntries(const std::vector<MENUITEM>& items) {
    for (const MENUITEM& item : items)
      if (!item.text.empty() && (item.text[0] == '%' || item.text[0] == '*'))
        SetName(static_cast<unsigned int>(item.id), item.text.Mid(1));
  }
};

// Logs the movie bar's press, drags and marker moves with its values.
class MovieGroup : public LoggingGroup<VornMovieBarCG> {
 public:
  using LoggingGroup::LoggingGroup;
  void ControlDrag(unsigned int id, VornControl* control) override {
    Values("ControlDrag", id, control);
  }
  void ControlShapeChanged(unsigned int id, VornControl* control) override {
    Values("ControlShapeChanged", id, control);
  }

 private:
  void Values(const char* what, unsigned int id, VornControl* control) {
    auto* bar = dynamic_cast<VornMovieBar*>(control);
    if (!bar) return Note(what, id);
    m_log.Add(wxString::Format("%s  %s: value %.2f, range %.2f-%.2f", what, NameOf(id),
                               bar->GetValue(), bar->GetStart(), bar->GetEnd()));
  }
};

// Logs each choice with the chosen item's text.
class ListGroup : public LoggingGroup<VornControlGroup> {
 public:
  using LoggingGroup::LoggingGroup;
  void ControlSelected(unsigned int id, VornControl* control) override {
    LoggingGroup::ControlSelected(id, control);
    if (auto* list = dynamic_cast<VornListBoxCallback*>(control)) {
      const int index = list->GetSelected();
      const wxString text =
          index < 0 ? wxString("-") : wxString::FromUTF8(list->GetItemText(index).c_str());
      m_log.Add(wxString::Format("  %s: %d \"%s\"", NameOf(id), index, text));
    }
    if (onChoice) onChoice();
  }
  std::function<void()> onChoice;
};

class ListsAndMenusPage : public GalleryPage {
 public:
  ListsAndMenusPage(wxWindow* parent, GalleryContext& ctx)
      : GalleryPage(parent, ctx),
        m_group(ctx.Log()),
        m_menuGroup(ctx.Log()),
        m_movieGroup(ctx.Log()) {
    BuildLists();
    BuildMenus();
    BuildBars();
    m_group.onChoice = [this] { Refresh(false); };
    SetSize(960, kFirstRowY + 3 * kRowGap + 40);
  }
  ~ListsAndMenusPage() override {
    // The buttons let go of their menus before the menus go.
    for (wxWindow* button : {static_cast<wxWindow*>(m_pUp), static_cast<wxWindow*>(m_pSide)})
      if (button) button->Destroy();
    DestroyChildren();
  }

  void Demo() override {
    // Open the short list with a real press and choose its third row.
    if (!m_pShort) return;
    ClickOn(m_pShort);
    if (ExpandedVornListBox* box = m_pShort->GetExpanded()) {
      const int y = box->GetOffset() + 2 * m_pShort->GetElement(0)->GetHeight() + 4;
      SendMouse(box, wxEVT_MOTION, 30, y);
      SendMouse(box, wxEVT_LEFT_DOWN, 30, y);
    }
    // The list button by keyboard: the second view.
    if (!m_pButton) return;
    ClickOn(m_pButton);
    if (ExpandedVornListBox* box = m_pButton->GetExpanded()) {
      for (int key : {WXK_DOWN, WXK_DOWN, WXK_RETURN}) {
        wxKeyEvent e(wxEVT_CHAR);
        e.SetEventObject(box);
        e.m_keyCode = key;
        box->GetEventHandler()->ProcessEvent(e);
      }
    }
    // The side menu: open it and choose its second radio entry.
    if (m_pSide && m_pSideMenu && m_pSideMenu->GetCount() > 0) {
      ClickOn(m_pSide);
      // Let the menu show and paint, as it would before a user's choice.
      wxTheApp->Yield(true);
      const int position = m_pSideMenu->FindItem(25);
      if (VornMenuItem* entry = m_pSideMenu->GetEntry(position)) {
        const int y = entry->GetPosY() + entry->GetHeight() / 2;
        SendMouse(m_pSideMenu, wxEVT_MOTION, 40, y);
        SendMouse(m_pSideMenu, wxEVT_LEFT_UP, 40, y);
      }
    }
    // The movie bar: drag the playhead a third of the way.
    if (m_pMovie) {
      const int x = m_pMovie->GetPlayhead() + 4;
      SendMouse(m_pMovie, wxEVT_LEFT_DOWN, x, 6);
      SendMouse(m_pMovie, wxEVT_MOTION, x + kBarWidth / 3, 6);
      SendMouse(m_pMovie, wxEVT_LEFT_UP, x + kBarWidth / 3, 6);
    }
  }

  bool OpenPopUpForShot() override {
    if (!m_pLong) return false;
    ClickOn(m_pLong);
    return m_pLong->GetExpanded() != nullptr;
  }

  bool OpenMenuForShot() override {
    if (!m_pUp || !m_pUpMenu) return false;
    ClickOn(m_pUp);
    if (!m_pUpMenu->IsShown()) return false;
    // Light the second entry, as the pointer would.
    if (VornMenuItem* entry = m_pUpMenu->GetEntry(1))
      SendMouse(m_pUpMenu, wxEVT_MOTION, 40, entry->GetPosY() + entry->GetHeight() / 2);
    return true;
  }

  void RenderPopUps(wxDC& dc, const wxPoint& at) override {
    for (VornMenu* menu : {m_pUpMenu, m_pSideMenu}) {
      if (!menu || !menu->IsShown()) continue;
      wxBitmap image(menu->GetMenuSize());
      {
        wxMemoryDC mem(image);
        menu->OnDraw(&mem);
      }
      const wxPoint where = ScreenToClient(menu->GetPosition()) + at;
      dc.DrawBitmap(image, where.x, where.y, false);
    }
    ExpandedVornListBox* box = m_pLong ? m_pLong->GetExpanded() : nullptr;
    if (!box) return;
    wxBitmap image(box->GetClientSize());
    {
      wxMemoryDC mem(image);
      box->OnDrawBox(mem);
    }
    const wxPoint where = ScreenToClient(box->GetPosition()) + at;
    dc.DrawBitmap(image, where.x, where.y, false);
  }

  void ClosePopUps() override {
    if (m_pLong) m_pLong->HideExpandedBox();
    if (m_pUp) m_pUp->Reset();
    if (m_pSide) m_pSide->Reset();
  }

 protected:
  void DrawPage(wxDC& dc) override {
    DrawText(dc, m_ctx.Msg("Lists and menus"), kTextX, kTop, "label_bold", "text");
    DrawText(dc, m_ctx.Msg("Click a list to open it; type to jump to an item."), kTextX, kTop + 22,
             "small", "text_dim");
    const char* captions[] = {"Short list", "Long list", "List button"};
    for (int i = 0; i < 3; ++i)
      DrawText(dc, m_ctx.Msg(captions[i]), kLeftX, kFirstRowY + i * kRowGap - 20, "small",
               "text_dim");
    if (m_pButton && m_pButton->GetSelected() >= 0) {
      // The button shows no text of its own: its choice is written beside it.
      const wxPoint at = m_pButton->GetPosition();
      DrawText(dc, wxString::FromUTF8(m_pButton->GetShownText().c_str()), at.x + 44, at.y + 8,
               "label", "text");
    }
    DrawText(dc, m_ctx.Msg("Menus"), kRightHalfX, kFirstRowY - 20, "small", "text_dim");
    DrawText(dc, m_ctx.Msg("Press a button to open its menu."), kRightHalfX, kFirstRowY, "small",
             "text_dim");
    DrawText(dc, m_ctx.Msg("Opens upwards"), kRightHalfX + 40, kMenuButtonY + 9, "label", "text");
    DrawText(dc, m_ctx.Msg("Opens to the side"), kSideButtonX + 40, kMenuButtonY + 9, "label",
             "text");
    DrawText(dc, m_ctx.Msg("Movie bar"), kRightHalfX, kMovieBarY - 16, "small", "text_dim");
  }

 private:
  bool LoadInfo(const char* script, VornListBoxInfo& info) {
    if (m_ctx.Assets().LoadListBoxCached(script, info)) return true;
    m_ctx.Log().Add(wxString::Format("cannot load %s", script));
    return false;
  }

  void BuildLists() {
    VornListBoxInfo info;
    if (LoadInfo("listbox.lbs", info)) {
      m_font = m_ctx.Font("label");
      m_pShort = new VornListBox(info, kLeftX, kFirstRowY, this, m_font, kShortList, &m_group);
      for (const char* fruit : {"Apple", "Banana", "Cherry", "Damson", "Elderberry"})
        m_pShort->Append(Utf8(m_ctx.Msg(fruit)), nullptr);
      m_pShort->SetSelected(0, false);
      m_group.SetName(kShortList, m_ctx.Msg("Short list"));

      m_pLong =
          new VornListBox(info, kLeftX, kFirstRowY + kRowGap, this, m_font, kLongList, &m_group);
      const wxString item = m_ctx.Msg("Item");
      for (int i = 1; i <= kLongItems; ++i) {
        m_pLong->Append(Utf8(wxString::Format("%s %d", item, i)), nullptr);
        if (i % 10 == 0 && i < kLongItems) m_pLong->Append();
      }
      m_pLong->SetSelected(20, false);
      m_group.SetName(kLongList, m_ctx.Msg("Long list"));
    }
    VornListBoxInfo buttonInfo;
    if (LoadInfo("listbutton.lbs", buttonInfo)) {
      m_pButton = new VornListButton(buttonInfo, kLeftX, kFirstRowY + 2 * kRowGap, this,
                                     kListButton, &m_group);
      for (const char* view : {"Front", "Back", "Left", "Right", "Top", "Bottom"})
        m_pButton->Append(Utf8(m_ctx.Msg(view)), nullptr);
      m_group.SetName(kListButton, m_ctx.Msg("List button"));
    }
  }

  // A menu from a menu-text asset, in the skin's menu colours and fonts.
  VornMenu* LoadMenu(const char* asset, int id) {
    std::vector<MENUITEM> items;
    if (!m_ctx.Assets().LoadMenuText(asset, items)) {
      m_ctx.Log().Add(wxString::Format("cannot load %s", asset));
      return nullptr;
    }
    m_menuGroup.NameEntries(items);
    return new VornMenu(items, m_ctx.Images("menu_mark.sts"), m_ctx.Colour("menu_bg"),
                        m_ctx.Colour("menu_highlight"), m_ctx.Colour("menu_title_bg"),
                        m_ctx.Colour("menu_text"), m_ctx.Font("menu_title"),
                        m_ctx.Font("menu_entry"), 0, 0, &m_menuGroup, this, id);
  }

  void BuildMenus() {
    m_pUpMenu = LoadMenu("menu_playback.txt", wxID_ANY);
    m_pSideMenu = LoadMenu("menu_view.txt", wxID_ANY);
    if (m_pUpMenu) {
      m_pUpMenu->SetSelected(12);
      m_pUp = new VornPopUpButton(m_ctx.Images("button_popup_up.sts"), m_pUpMenu, 1, 1, kRightHalfX,
                                  kMenuButtonY, this, kUpButton, &m_menuGroup);
      m_menuGroup.SetName(kUpButton, m_ctx.Msg("Opens upwards"));
    }
    if (m_pSideMenu) {
      m_pSideMenu->SetSelected(24);
      m_pSide = new VornPopSideButton(m_ctx.Images("button_popup_side.sts"), m_pSideMenu, 1, 0,
                                      kSideButtonX, kMenuButtonY, this, kSideButton, &m_menuGroup);
      m_menuGroup.SetName(kSideButton, m_ctx.Msg("Opens to the side"));
    }
  }

  void BuildBars() {
    auto* title = new VornTitleBar(m_ctx.Msg("Drag this bar to move the gallery window"),
                                   kRightHalfX, kTitleBarY, kBarWidth, 24, this, kTitleBar);
    title->SetBackgroundColour(m_ctx.Colour("titlebar_bg"));
    title->SetFgColour(m_ctx.Colour("titlebar_text"));
    title->SetFont(m_ctx.Font("titlebar"));
    title->SetTitlePos(12, 4);
    title->SetMovedWindow(wxGetTopLevelParent(this));

    const wxBitmap *start = nullptr, *end = nullptr, *head = nullptr;
    AssetManager& assets = m_ctx.Assets();
    if (!assets.LoadImageCached("movie_start.sts", start) ||
        !assets.LoadImageCached("movie_end.sts", end) ||
        !assets.LoadImageCached("movie_head.sts", head)) {
      m_ctx.Log().Add("cannot load the movie bar pictures");
      return;
    }
    m_pMovie = new VornMovieBar(start, end, head, kRightHalfX, kMovieBarY, kBarWidth, 30, this,
                                kMovieBar, &m_movieGroup);
    m_pMovie->SetColours(m_ctx.Colour("movie_track"), m_ctx.Colour("movie_range"),
                         m_ctx.Colour("movie_played"));
    m_pMovie->SetUp(11, 19);
    m_pMovie->SetStart(0.1);
    m_pMovie->SetEnd(0.85);
    m_movieGroup.SetName(kMovieBar, m_ctx.Msg("Movie bar"));
    m_movieGroup.SetName(VornMovieBarCG::kPressId, m_ctx.Msg("Movie bar playhead"));
  }

  ListGroup m_group;
  MenuGroup m_menuGroup;
  MovieGroup m_movieGroup;
  VornMenu* m_pUpMenu = nullptr;
  VornMenu* m_pSideMenu = nullptr;
  VornPopUpButton* m_pUp = nullptr;
  VornPopSideButton* m_pSide = nullptr;
  VornMovieBar* m_pMovie = nullptr;
  wxFont m_font;
  VornListBox* m_pShort = nullptr;
  VornListBox* m_pLong = nullptr;
  VornListButton* m_pButton = nullptr;
};

const GalleryPageRegistrar kRegistrar({50, "Lists and menus", "lists-and-menus",
                                       [](wxWindow* parent, GalleryContext& ctx) -> GalleryPage* {
                                         return new ListsAndMenusPage(parent, ctx);
                                       }});

}  // namespace
