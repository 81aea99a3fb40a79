#pragma once
// The drop-down choice controls: VornListBox shows the chosen item's text on
// an image background, VornListButton is a push button; a press on either
// opens ExpandedVornListBox, a borderless pop-up that lists every item,
// follows the pointer and the keyboard and scrolls when the list is long.
// Items and list state live in the shared base VornListBoxCallback.
#include <wx/font.h>
#include <wx/frame.h>
#include <wx/timer.h>

#include <memory>
#include <vector>

#include "vorn/AssetManager.h"
#include "vorn/VornButton.h"
#include "vorn/VornControl.h"
#include "vorn/VornSimpleScrollBar.h"

class ExpandedVornListBox;
class VornListBox;
class VornListButton;

// ---- items -----------------------------------------------------------------

// One row of a list; the list owns its items.
class VornListBoxElement {
 public:
  VornListBoxElement(int height, void* data, bool selectable, const VornString& text = "");
  virtual ~VornListBoxElement();
  // Draws the row with its top-left corner at (x, y).
  virtual void Draw(wxDC* dc, int x, int y);
  virtual VornString GetString() const;
  virtual void SetString(const VornString& text);

  int GetHeight() const { return m_height; }
  void* GetItemData() const { return m_pItemData; }
  bool IsSelectable() const { return m_bSelectable; }

 protected:
  int m_height;
  void* m_pItemData;  // the caller's, not owned
  bool m_bSelectable;
  VornString m_string;
};

// A text row as tall as a character of the owner's font.
class VornListBoxText : public VornListBoxElement {
 public:
  VornListBoxText(VornControl* owner, const VornString& text, void* data);
  // The string in the DC's current font and text colour.
  void Draw(wxDC* dc, int x, int y) override;
};

// A line across the list, 8 pixels tall; it can be neither highlighted nor
// chosen.
class VornListBoxSeperator : public VornListBoxElement {
 public:
  static constexpr int kHeight = 8;
  VornListBoxSeperator();
  // One line in the DC's current pen across the clipping box.
  void Draw(wxDC* dc, int x, int y) override;
};

// ---- owners' refresh hooks ---------------------------------------------------

// Lets the owner refill the items just before the pop-up opens.
class LBDisplayCallback {
 public:
  virtual ~LBDisplayCallback() = default;
  virtual void UpDateData(VornListBox* list) = 0;
};

class LButDisplayCallback {
 public:
  virtual ~LButDisplayCallback() = default;
  virtual void UpDateData(VornListButton* button) = 0;
};

// ---- pop-up geometry (shared by opening and by tests) ------------------------

// Where the pop-up opens relative to the control: y relative to the
// control's top, the visible height and the first row's offset from the
// box's top (1 unscrolled, negative when scrolled down).
struct VornListPopupPlace {
  int y = 0;
  int height = 0;
  int offset = 1;
};

// heights: every row's height; selected: -1 for none, which places the
// list as if row 0 were selected.
VornListPopupPlace VornListPopupPlacement(const std::vector<int>& heights, int selected,
                                          int maxHeight);

// Moves a screen rectangle's top-left corner so that the rectangle stays on
// a display of the given size (one pixel in from the right and bottom edges).
wxPoint VornKeepOnDisplay(const wxRect& box, const wxSize& display);

// ---- the shared list state ---------------------------------------------------

// The colours of a list and its pop-up.
struct VornListBoxColours {
  wxColour text;           // rows
  wxColour highlightText;  // the highlighted row
  wxColour background;     // the pop-up's fill
  wxColour highlight;      // the highlighted row's fill and the selection mark
  wxColour border;         // the pop-up's frame, separators and scroll-bar outline
};

// Items, selection and the open pop-up of a list box or list button.
class VornListBoxCallback {
 public:
  VornListBoxCallback();
  // Deletes the items and closes an open pop-up.
  virtual ~VornListBoxCallback();
  VornListBoxCallback(const VornListBoxCallback&) = delete;
  VornListBoxCallback& operator=(const VornListBoxCallback&) = delete;

  // --- hooks the two owners override
  virtual int GetSelected() const;
  // index < GetCount() or -1; notify reports ControlSelected to the group.
  virtual void SetSelected(int index, bool notify);
  // The pop-up calls Show(true) on its owner when it closes.
  virtual bool Show(bool show) = 0;

  // --- the items
  void Append(const VornString& text, void* data);
  void Append();  // a separator
  void Insert(int index, const VornString& text, void* data);
  void Insert(int index);  // a separator before index
  void Delete(int index);
  void Delete(const VornString& text);  // the first text item with that string
  void ClearAll();
  int GetCount() const { return static_cast<int>(m_elements.size()); }
  void* GetItemData(int index) const;
  VornString GetItemText(int index) const;
  void SetItemText(int index, const VornString& text);
  VornListBoxElement* GetElement(int index) const { return m_elements[index].get(); }

  // --- the pop-up
  // Closes an open pop-up without choosing.
  void HideExpandedBox();
  ExpandedVornListBox* GetExpanded() const { return m_pExpanded; }
  // Called by the pop-up as it closes.
  void ForgetExpanded() { m_pExpanded = nullptr; }
  const VornListBoxColours& GetColours() const { return m_colours; }
  void SetColours(const VornListBoxColours& colours) { m_colours = colours; }
  int GetMaxHeight() const { return m_maxHeight; }
  const VornString& GetShownText() const { return m_shownText; }

 protected:
  // The control the list belongs to (for ids, groups and positions).
  virtual VornControl* GetListControl() = 0;
  void TakeInfo(const VornListBoxInfo& info);
  // Opens the pop-up over the control, width pixels wide; false when the
  // list is empty.
  bool OpenExpanded(int width, wxFont& font, bool fontGiven);
  void CheckIndex(int index) const;

  ExpandedVornListBox* m_pExpanded = nullptr;  // destroys itself
  std::vector<std::unique_ptr<VornListBoxElement>> m_elements;
  VornListBoxColours m_colours;
  int m_selected = -1;
  VornString m_shownText;
  int m_maxHeight = 240;
};

// ---- the list box -------------------------------------------------------------

class VornListBox : public VornListBoxCallback, public VornControl {
 public:
  VornListBox();
  VornListBox(VornListBoxInfo& info, int x, int y, wxWindow* parent, int id,
              VornControlGroup* group, long style = 0);
  VornListBox(VornListBoxInfo& info, int x, int y, wxWindow* parent, wxFont& font, int id,
              VornControlGroup* group, long style = 0);
  ~VornListBox() override;

  // The default font is 12-point Swiss. With a font given, a text too long
  // for the text area is cut and ends in "....".
  bool Create(VornListBoxInfo& info, int x, int y, wxWindow* parent, int id,
              VornControlGroup* group, long style = 0);
  bool Create(VornListBoxInfo& info, int x, int y, wxWindow* parent, wxFont& font, int id,
              VornControlGroup* group, long style = 0);
  using VornControl::Create;

  void SetSelected(int index, bool notify) override;
  bool Show(bool show = true) override;
  void SetDisplayCallback(LBDisplayCallback* callback) { m_pDisplayCallback = callback; }
  LBDisplayCallback* GetDisplayCallback() const { return m_pDisplayCallback; }
  const wxFont& GetListFont() const { return m_font; }
  // The text the closed box draws (cut to fit when a font was given).
  VornString GetDrawnText(wxDC& dc) const;

  void OnDraw(wxDC* dc) override;
  void OnMouseButton() override;
  void OnMouseEntering() override;
  void OnMouseLeaving() override;

 protected:
  VornControl* GetListControl() override { return this; }
  bool Setup(VornListBoxInfo& info, int x, int y, wxWindow* parent, int id, VornControlGroup* group,
             long style);

  const VornwxBitmapCache* m_pImages = nullptr;  // the manager's
  wxRect m_textRect;
  wxBitmap m_backBuffer;
  bool m_bOver = false;
  wxFont m_font;
  bool m_bFontGiven = false;
  LBDisplayCallback* m_pDisplayCallback = nullptr;  // not owned
};

// ---- the list button ------------------------------------------------------------

// A push button that opens the list; it draws like any push button.
class VornListButton : public VornListBoxCallback, public VornPushButton {
 public:
  VornListButton() = default;
  VornListButton(VornListBoxInfo& info, int x, int y, wxWindow* parent, int id,
                 VornControlGroup* group, long style = 0);
  ~VornListButton() override;

  bool Create(VornListBoxInfo& info, int x, int y, wxWindow* parent, int id,
              VornControlGroup* group, long style = 0);
  using VornPushButton::Create;

  void SetSelected(int index, bool notify) override;
  bool Show(bool show = true) override;
  void SetDisplayCallback(LButDisplayCallback* callback) { m_pDisplayCallback = callback; }
  LButDisplayCallback* GetDisplayCallback() const { return m_pDisplayCallback; }
  // The pop-up's width: the text area's, at least the button's.
  int GetListWidth() const;

  void OnMouseButton() override;

 protected:
  VornControl* GetListControl() override { return this; }

  int m_listWidth = 0;
  wxFont m_font;
  LButDisplayCallback* m_pDisplayCallback = nullptr;  // not owned
};

// ---- the pop-up ---------------------------------------------------------------

// A borderless top-level frame that holds the mouse while open and destroys
// itself when it closes.
class ExpandedVornListBox : public wxFrame, public VornListBoxScrollOwner {
 public:
  ExpandedVornListBox(VornListBoxCallback* owner, wxWindow* parent, wxFont& font, bool fontGiven,
                      int x, int y, int width, int height, int offset);
  ~ExpandedVornListBox() override;

  // From the scroll bar: v of the scrollable travel.
  void SetScrollPos(double v) override;
  void OnDrawBox(wxDC& dc) override;
  // Shows and hides the scroll bar to suit the content and offset.
  void CheckForScroll();
  // Scrolls the highlighted row into the box.
  void CheckHighlight();
  // Closes without choosing and destroys the frame.
  void Dismiss();
  // The owner is going away: close without calling it back.
  void OwnerGone();

  int GetOffset() const { return m_offset; }
  int GetHighlighted() const { return m_highlighted; }
  int GetVisibleHeight() const { return m_visibleHeight; }
  int GetTotalHeight() const { return m_totalHeight; }
  const wxString& GetPrefix() const { return m_prefix; }
  wxTimer& GetPrefixTimer() { return m_prefixTimer; }
  VornListBoxScrollBar* GetScrollBar() const { return m_pScrollBar.get(); }
  bool IsClosed() const { return m_pOwner == nullptr; }
  // The row under content y (client y minus the offset), selectable rows
  // only; -1 for none.
  int ItemAt(int contentY) const;
  // Pop-ups not yet deleted.
  static int LiveCount();

  void OnLeftDown(wxMouseEvent& event);
  void OnLeftUp(wxMouseEvent& event);
  void OnMouseMove(wxMouseEvent& event);
  void OnKillFocus(wxFocusEvent& event);
  void OnLeaveWindow(wxMouseEvent& event);
  void OnChar(wxKeyEvent& event);
  void OnPaint(wxPaintEvent& event);
  void OnEraseBackground(wxEraseEvent& event);
  void OnPrefixTimer(wxTimerEvent& event);
  void OnScrollBar(wxScrollEvent& event);
  void OnMouseWheel(wxMouseEvent& event);
  void OnCaptureLost(wxMouseCaptureLostEvent& event);

 private:
  void CloseBox();
  void Choose(int index);
  void SetHighlight(int index);
  void TypeAhead(wxChar c);
  int ItemTop(int index) const;  // content y of a row's top
  void ClampOffset();
  void RedrawNow();
  // While the thumb is dragged the bar gets every pointer event, pulled
  // into its rectangle, so a drag follows the pointer outside it.
  wxMouseEvent ForBar(const wxMouseEvent& event) const;

  VornListBoxCallback* m_pOwner;  // null once closed
  int m_width;
  int m_visibleHeight;
  int m_totalHeight = 0;
  int m_offset;
  int m_highlighted = -1;
  bool m_bSyncingBar = false;
  std::unique_ptr<VornListBoxScrollBar> m_pScrollBar;
  VornListBoxColours m_colours;
  wxFont m_font;
  bool m_bFontGiven;
  wxString m_prefix;
  wxTimer m_prefixTimer;
  wxBitmap m_backBuffer;

  wxDECLARE_EVENT_TABLE();
};
