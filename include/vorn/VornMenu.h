#pragma once
// Custom-drawn pop-up menus: VornMenu is a borderless frame holding a column
// of windowless entries (VornMenuItem) built from menu-text records. The
// first character of a record's text picks the entry's kind: '@' a title,
// '%' a text entry, '*' a radio entry with a mark image, '-' a separator.
// Choosing an entry reports ControlSelected with its id to the menu's group;
// a pop-up button (vorn/VornPopUpButton.h) shows the menu and closes it.
#include <wx/bitmap.h>
#include <wx/colour.h>
#include <wx/dcmemory.h>
#include <wx/font.h>
#include <wx/frame.h>

#include <memory>
#include <vector>

#include "vorn/AssetManager.h"
#include "vorn/VirtualControl.h"
#include "vorn/VornImageCache.h"

class VornControl;
class VornControlGroup;

// ---- entries -------------------------------------------------------------------

// One row of a menu, drawn into its own bitmap and copied into the menu.
class VornMenuItem : public VirtualButton {
 public:
  // The label's left edge in the entry (titles use their own).
  static constexpr int kTextX = 15;
  static constexpr int kMarkY = 4;

  VornMenuItem() = default;
  ~VornMenuItem() override;

  // --- construction
  // id -1 and a null group for entries that report nothing. marks may be
  // null except for radio entries.
  bool Create(wxWindow* host, int x, int y, int w, int h, int id, VornControlGroup* group,
              const VornwxBitmapCache* marks);

  // --- hooks a subclass overrides
  // Drops the highlight (run each time the menu is shown).
  void Reset() override;
  // On / highlight to the four plain and mouse-over states.
  void RecalcState() override;
  // Stores the flag, nothing else: the menu redraws itself.
  void SetOn(bool on) override;
  // Strictly inside: reports the choice and returns true (reporting
  // entries); false for the others.
  virtual bool InSide(int x, int y);
  // Follows the pointer (highlight tracking); nothing for the others.
  virtual void Status(int x, int y);
  // Draws the entry and copies it to target at its place.
  virtual void OnDraw(wxMemoryDC* target);
  using VirtualButton::OnDraw;

  // --- accessors
  void SetColours(wxColour normalBackground, wxColour text, wxColour highlightBackground);
  void SetFont(wxFont font) { m_font = font; }
  void SetText(wxString text) { m_text = text; }
  const wxString& GetText() const { return m_text; }
  void GetPosition(int& x, int& y) const;
  // The mark image of the current state, following the fallback chain;
  // false when no state of the chain has one. Needs a mark image set.
  bool GetImageInfo(WallpaperImageInfo<wxBitmap>& info);
  bool IsHighlighted() const { return m_bHighlight; }
  const wxColour& GetCurrentBackground() const { return m_current; }
  wxWindow* GetHostWindow() const { return m_pHostWindow; }
  // Strict on all four sides, in menu coordinates.
  bool Contains(int x, int y) const;
  // The entry's row moves (the menu re-lays its column out).
  void SetWidth(int w);

 protected:
  // What goes on the entry's bitmap after the background and the font:
  // by default the label at (kTextX, 0).
  virtual void DrawContent(wxDC& dc);
  // Reporting entries: ControlSelected to the group when strictly inside.
  bool ReportIfInside(int x, int y);
  // Highlight tracking of the text and radio entries.
  void TrackHighlight(int x, int y);
  void SetHighlight(bool on);

  wxWindow* m_pHostWindow = nullptr;            // the menu; not owned
  const VornwxBitmapCache* m_pMarks = nullptr;  // the menu's; not owned
  wxBitmap m_bitmap;
  wxFont m_font;
  bool m_bHighlight = false;
  wxColour m_normal;
  wxColour m_textColour;
  wxColour m_highlight;
  wxColour m_current;
  wxString m_text;
};

// '%': reports itself when released over.
class VornMenuTextEntry : public VornMenuItem {
 public:
  bool InSide(int x, int y) override;
  void Status(int x, int y) override;
};

// '*': reports itself and turns on; draws its mark at (0, kMarkY).
class VornMenuRadioEntry : public VornMenuItem {
 public:
  bool InSide(int x, int y) override;
  void Status(int x, int y) override;

 protected:
  void DrawContent(wxDC& dc) override;
};

// '@': a heading on the title background; never reports.
class VornMenuTitleEntry : public VornMenuItem {
 public:
  static constexpr int kTitleX = 10;
  bool InSide(int x, int y) override;
  void Status(int x, int y) override;

 protected:
  void DrawContent(wxDC& dc) override;
};

// '-': a line at half the row height; never reports.
class VornMenuBreakEntry : public VornMenuItem {
 public:
  bool InSide(int x, int y) override;
  void Status(int x, int y) override;

 protected:
  void DrawContent(wxDC& dc) override;
};

// ---- the menu ------------------------------------------------------------------------

// A borderless top-level frame; hidden after Create, shown and hidden by
// its pop-up button. It owns its entries.
class VornMenu : public wxFrame {
 public:
  VornMenu();
  VornMenu(std::vector<MENUITEM>& items, const VornwxBitmapCache* marks, wxColour first,
           wxColour second, wxColour third, wxColour fourth, wxFont firstFont, wxFont secondFont,
           int x, int y, VornControlGroup* group, wxWindow* parent, int id, long style = 0);
  ~VornMenu() override;
  // The entries leave their groups at once; the frame itself goes at idle
  // time, as every top-level window does.
  bool Destroy() override;

  // --- construction
  // Colours: first the frame and entry background, second the background
  // under the pointer, third the title background, fourth text and lines.
  // The first font sets titles and measures the menu, the second the other
  // entries.
  bool Create(std::vector<MENUITEM>& items, const VornwxBitmapCache* marks, wxColour first,
              wxColour second, wxColour third, wxColour fourth, wxFont firstFont, wxFont secondFont,
              int x, int y, VornControlGroup* group, wxWindow* parent, int id, long style = 0);

  // --- hooks a subclass overrides
  virtual void OnMouseButton();
  // Frame coordinates: highlight tracking of every entry, redrawn at once.
  virtual void OnMouseMove(int x, int y);
  // Each time the menu is shown or hidden: every entry's Reset.
  virtual void OnShow();
  // Runs OnShow, then shows or hides the frame.
  bool Show(bool show = true) override;

  // --- building
  // Size from the items: the longest text in the first font, one row each.
  void SetupMenu();
  void CreateEntries();
  // A null group means the menu's.
  void AppendSelectItem(wxString text, int id, VornControlGroup* group = nullptr);
  void AppendRadioItem(wxString text, int id, VornControlGroup* group = nullptr);
  void AppendLineBreak();
  // Rows below a deleted entry move up.
  void DeleteItemPos(int position);
  void DeleteItemID(int id);
  void ClearAll();
  // Position of the first entry with that id, or -1.
  int FindItem(int id) const;
  void SetItemText(int id, wxString text);
  int GetCount() const { return static_cast<int>(m_entries.size()); }
  VornMenuItem* GetEntry(int position) const;

  // --- selection and the pop-up button
  // Switches the radio entries through the group: the old one off, id on.
  void SetSelected(int id);
  int GetSelected() const { return m_selected; }
  VornControlGroup* GetGroup() const { return m_pGroup; }
  void SetPopUpButton(VornControl* button) { m_pPopUpButton = button; }
  VornControl* GetPopUpButton() const { return m_pPopUpButton; }
  // Releases the mouse, then shows or hides.
  void ShowMenu(bool show);
  // The title background.
  const wxColour& GetHeadColour() const { return m_third; }
  int GetItemHeight() const { return m_itemHeight; }
  // The frame's size as laid out (width by rows - 1 item heights).
  wxSize GetMenuSize() const { return wxSize(FrameWidth(), FrameHeight()); }
  int GetRows() const { return m_rows; }
  const std::vector<MENUITEM>& GetItems() const { return m_items; }
  void Clear() {}

  // --- pointer and drawing, frame coordinates
  void OnLeftDown(int x, int y);
  void OnLeftUp(int x, int y);
  // Every entry, then the frame's outline.
  void OnDraw(wxDC* dc);

 protected:
  void OnLeftDownHdlr(wxMouseEvent& event);
  void OnLeftUpHdlr(wxMouseEvent& event);
  void OnMouseMoveHdlr(wxMouseEvent& event);
  void OnPaint(wxPaintEvent& event);
  void OnEraseBackground(wxEraseEvent& event);
  void OnKillFocus(wxFocusEvent& event);
  void OnCaptureLost(wxMouseCaptureLostEvent& event);

 private:
  // Strictly inside the frame.
  bool InFrame(int x, int y) const;
  int FrameWidth() const { return m_width; }
  int FrameHeight() const { return (m_rows - 1) * m_itemHeight; }
  void ApplyFrameSize();
  // A new entry of the kind the first character names, or null.
  std::unique_ptr<VornMenuItem> MakeEntry(wxChar kind, const wxString& label, int id,
                                          VornControlGroup* group, int y);
  void Append(wxChar kind, const wxString& label, int id, VornControlGroup* group);
  void RemoveEntry(std::size_t position);
  void ClosePopUp();
  void RedrawNow();

  std::vector<std::unique_ptr<VornMenuItem>> m_entries;
  const VornwxBitmapCache* m_pMarks = nullptr;  // not owned
  std::vector<MENUITEM> m_items;
  wxFont m_firstFont;
  wxFont m_secondFont;
  wxColour m_first;
  wxColour m_second;
  wxColour m_third;
  wxColour m_fourth;
  int m_selected = 0;
  int m_rows = 1;
  VornControl* m_pPopUpButton = nullptr;  // not owned
  int m_itemHeight = 0;
  int m_width = 20;
  VornControlGroup* m_pGroup = nullptr;  // not owned

  wxDECLARE_EVENT_TABLE();
};
