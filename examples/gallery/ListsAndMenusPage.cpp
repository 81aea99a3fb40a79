// The lists and menus page. The left half holds the list controls: a short
// list box, a long list box with separators and a list button, every choice
// in the log. The right half is kept for the menus and pop-up buttons.
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

enum Id : unsigned int { kShortList = 700, kLongList, kListButton };

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
      : GalleryPage(parent, ctx), m_group(ctx.Log()) {
    BuildLists();
    m_group.onChoice = [this] { Refresh(false); };
    SetSize(960, kFirstRowY + 3 * kRowGap + 40);
  }
  ~ListsAndMenusPage() override { DestroyChildren(); }

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
  }

  bool OpenPopUpForShot() override {
    if (!m_pLong) return false;
    ClickOn(m_pLong);
    return m_pLong->GetExpanded() != nullptr;
  }

  void RenderPopUps(wxDC& dc, const wxPoint& at) override {
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
    // Menus and pop-up buttons go from kRightHalfX rightwards.
    static_cast<void>(kRightHalfX);
  }

  ListGroup m_group;
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
