#pragma once
// The toolkit's own vertical scroll bars. VornSimpleScrollBar draws its thumb
// (the tab) and end buttons from three colours and reports through
// OnSliderChange; MonsterScrollBar scrolls a monster box; VornListBoxScrollBar
// is the windowless form a pop-up list draws and feeds; VornScrollBar is the
// older bar whose thumb comes from three bitmaps.
#include <wx/bitmap.h>
#include <wx/colour.h>
#include <wx/event.h>

#include <memory>

#include "vorn/VornButton.h"
#include "vorn/VornControl.h"
#include "vorn/VornControlGroup.h"
#include "vorn/VornImageCache.h"

class VornScrollThumb;  // the tab pieces and tab images
struct VornScrollThumbSpan;
class VornMonsterBox;

// A vertical bar 11 pixels wide. Its value runs from 0 (the top of the content
// shown) to 1 (the bottom shown); its fraction is the visible share of the
// content and sets the thumb's length.
class VornSimpleScrollBar : public VornControl {
 public:
  // --- construction
  VornSimpleScrollBar();
  ~VornSimpleScrollBar() override;
  VornSimpleScrollBar(const VornSimpleScrollBar&) = delete;
  VornSimpleScrollBar& operator=(const VornSimpleScrollBar&) = delete;

  // first: outline, second: background, third: outline under the pointer.
  // The width is always 11. Set the end-button flag before this.
  bool Create(const wxColour& first, const wxColour& second, const wxColour& third, int x, int y,
              int height, wxWindow* parent, int id, VornControlGroupValue* group, long style = 0);
  using VornControl::Create;

  // --- the value and its accessors
  double GetSliderVal() const { return m_sliderVal; }
  // Clamped to [0, 1]; an unchanged value does nothing. notify calls
  // OnSliderChange.
  void SetSliderVal(double value, bool notify);
  double GetFractionVal() const { return m_fraction; }
  // Clamped to [0.0001, 0.9999]; rebuilds the tab images.
  void SetFractionVal(double fraction);

  // --- geometry
  int GetScrollStart() const;   // 12 with end buttons, else 0
  int GetScrollHeight() const;  // the track: height - 24 with end buttons
  int GetThumbHeight() const;   // the tab images' height (0 before Create)
  int GetThumbTop() const;

  // --- settings
  void SetLeft(bool left) { m_bLeft = left; }
  bool GetLeft() const { return m_bLeft; }
  void SetEndButtons(bool on) { m_bEndButtons = on; }
  bool GetEndButtons() const { return m_bEndButtons; }
  // Content pixels of the first step of an end-button press.
  void SetInitialStepVal(double step) { m_initialStep = step; }
  double GetInitialStepVal() const { return m_initialStep; }
  // Content pixels of each auto-repeat step (and of each wheel notch).
  void SetMomentSetpVal(double step) { m_momentStep = step; }
  double GetMomentStepVal() const { return m_momentStep; }

  // --- state a host or test may read
  bool IsDragging() const { return m_bDragging; }
  bool GetMouseOverTab() const { return m_bMouseOverTab; }
  VornMomentBtn* GetUpButton() const { return m_pUpButton.get(); }
  VornMomentBtn* GetDownButton() const { return m_pDownButton.get(); }
  const wxColour& GetFirstColour() const { return m_first; }
  const wxColour& GetSecondColour() const { return m_second; }
  const wxColour& GetThirdColour() const { return m_third; }

  // The four cap pieces of a tab: top, bottom, top with arrow, bottom with
  // arrow, in the foreground colour on the background. Each pointer must be
  // null; the caller owns the results.
  static void MakeBaseTabImages(wxBitmap*& pbase, wxBitmap*& pbottombase, wxBitmap*& parrow,
                                wxBitmap*& pbottomarrow, const wxColour& foreground,
                                const wxColour& background);

  // --- VornControl reactions
  void OnDraw(wxDC* dc) override;
  void OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) override;
  void OnMouseMove(int x, int y) override;
  void OnMouseButton() override;
  void OnMouseLeaving() override;
  // The end buttons follow the bar.
  void OnEnable(bool enabled) override;

  // --- hooks a subclass overrides
  // Called after every notified value change; override to scroll the owner.
  virtual void OnSliderChange();
  // Rebuilds the tab images for the current track and fraction.
  virtual void MakeTabImages();
  // Makes the up and down button image sets.
  virtual void MakeButtonImages();

 protected:
  // The wheel moves by the repeat step per notch.
  void OnMouseWheel(wxMouseEvent& event);
  // A step of step content pixels; negative moves up.
  void StepBy(double step);
  // Repaints at once (while dragging and for hover changes).
  void RedrawNow();

  std::unique_ptr<VornScrollThumb> m_pThumb;  // pieces and tab images
  wxBitmap m_backBuffer;
  std::unique_ptr<VornControlGroup> m_pInternalGroup;
  bool m_bLeft = true;
  bool m_bEndButtons = true;
  double m_sliderVal = 0.0;
  bool m_bDragging = false;
  bool m_bMouseOverTab = false;
  int m_dragStartY = 0;
  double m_dragStartVal = 0.0;
  double m_fraction = 0.2;
  double m_momentStep = 5.0;
  double m_initialStep = 20.0;
  std::unique_ptr<VornMomentBtn> m_pUpButton;
  std::unique_ptr<VornMomentBtn> m_pDownButton;
  wxColour m_first;
  wxColour m_second;
  wxColour m_third;
  std::unique_ptr<VornwxBitmapCache> m_pUpImages;
  std::unique_ptr<VornwxBitmapCache> m_pDownImages;

 private:
  void CreateEndButtons();
  void DestroyEndButtons();
  VornScrollThumbSpan ThumbSpan() const;

  wxDECLARE_EVENT_TABLE();
};

// The bar of the monster box: always at the box's right with end buttons;
// unless plainUp, its up button carries a rounded corner that closes the
// box's header.
class MonsterScrollBar : public VornSimpleScrollBar {
 public:
  // The three bitmaps are not used.
  MonsterScrollBar(const wxBitmap* normal, const wxBitmap* atEnd, const wxBitmap* atStart,
                   const wxColour& first, const wxColour& second, const wxColour& third, int x,
                   int y, int height, wxWindow* parent, int id, VornControlGroupValue* group,
                   bool plainUp);

  void SetBox(VornMonsterBox* box) { m_pBox = box; }
  VornMonsterBox* GetBox() const { return m_pBox; }
  bool GetPlainUp() const { return m_bPlainUp; }

  void OnSliderChange() override;
  void MakeButtonImages() override;

 protected:
  VornMonsterBox* m_pBox = nullptr;  // not owned
  bool m_bPlainUp = false;
};

// What a windowless list-box bar needs from the list that owns it; the
// pop-up list implements it and hands itself to SetBox.
class VornListBoxScrollOwner {
 public:
  virtual ~VornListBoxScrollOwner() = default;
  // The bar's value changed.
  virtual void SetScrollPos(double value) = 0;
  // Repaint the list box (and so the bar) into dc.
  virtual void OnDrawBox(wxDC& dc) = 0;
};

// The simple bar's thumb without a window: the owner positions it, forwards
// its mouse events and calls OnDraw. No end buttons; the track keeps 12
// pixels free at each end.
class VornListBoxScrollBar {
 public:
  VornListBoxScrollBar(const wxColour& first, const wxColour& second, const wxColour& third, int x,
                       int y, int height, wxWindow* window);
  ~VornListBoxScrollBar();
  VornListBoxScrollBar(const VornListBoxScrollBar&) = delete;
  VornListBoxScrollBar& operator=(const VornListBoxScrollBar&) = delete;

  void SetBox(VornListBoxScrollOwner* box) { m_pBox = box; }
  void Show(bool show) { m_bVisible = show; }
  bool IsVisible() const { return m_bVisible; }

  double GetSliderVal() const { return m_sliderVal; }
  // Clamped to [0, 1]; an unchanged value does nothing, else the box scrolls.
  void SetSliderVal(double value);
  double GetFractionVal() const { return m_fraction; }
  void SetFractionVal(double fraction);
  int GetScrollStart() const { return 12; }
  int GetScrollHeight() const { return m_height - 24; }
  int GetThumbHeight() const;
  int GetThumbTop() const;
  bool IsDragging() const { return m_bDragging; }
  bool GetMouseOverTab() const { return m_bMouseOverTab; }
  wxRect GetRect() const { return wxRect(m_x, m_y, m_width, m_height); }

  // True when the event fell on the visible bar and was consumed. Positions
  // are in the window's client coordinates.
  bool OnLeftDown(wxMouseEvent& event);
  bool OnLeftUp(wxMouseEvent& event);
  bool OnMouseMove(wxMouseEvent& event);
  // Draws the bar at its position.
  void OnDraw(wxDC& dc);

 private:
  bool Hit(const wxMouseEvent& event) const;
  void RepaintBox();
  VornScrollThumbSpan ThumbSpan() const;

  bool m_bVisible = false;
  wxColour m_first;
  wxColour m_second;
  wxColour m_third;
  int m_width = 11;
  int m_height = 0;
  int m_x = 0;
  int m_y = 0;
  std::unique_ptr<VornScrollThumb> m_pThumb;
  double m_sliderVal = 0.0;
  bool m_bDragging = false;
  bool m_bMouseOverTab = false;
  int m_dragStartY = 0;
  double m_dragStartVal = 0.0;
  double m_fraction = -999.9;  // so that the constructor's fraction always takes effect
  VornListBoxScrollOwner* m_pBox = nullptr;  // not owned
  wxWindow* m_pWindow = nullptr;             // not owned
};

// The older image-based bar: the thumb is one of three caller-supplied
// bitmaps, the position is reported to a value group as drags.
class VornScrollBar : public VornControl {
 public:
  VornScrollBar();
  VornScrollBar(const wxBitmap* normal, const wxBitmap* atEnd, const wxBitmap* atStart,
                const wxColour& outline, const wxColour& background, double pageSize, int x, int y,
                int height, wxWindow* parent, int id, VornControlGroupValue* group, long style = 0);
  ~VornScrollBar() override;

  // The width is the normal thumb's width + 1. The bitmaps are borrowed.
  bool Create(const wxBitmap* normal, const wxBitmap* atEnd, const wxBitmap* atStart,
              const wxColour& outline, const wxColour& background, double pageSize, int x, int y,
              int height, wxWindow* parent, int id, VornControlGroupValue* group, long style = 0);
  using VornControl::Create;

  // Places the thumb at v of its travel (clamped to [0, 1]).
  void SetValue(double v);
  // Moves the thumb by the pointer's travel since the last anchor.
  void SetValue(int x, int y);
  // The content offset shown: 0 while everything fits.
  double GetValue() const;
  void SetRange(double range) { m_range = range; }
  double GetRange() const { return m_range; }
  void AddToRange(double amount, bool notify);
  int GetThumbTop() const { return m_thumbTop; }
  int GetLowestTop() const { return m_lowestTop; }
  int GetHighestTop() const { return m_highestTop; }
  bool IsDragging() const { return m_bDragging; }
  // These three do nothing: the bar has no working end buttons.
  void SetScrollButtons(const VornwxBitmapCache* up, const VornwxBitmapCache* down);
  void MoveScrollUp();
  void MoveScrollDown();

  void OnDraw(wxDC* dc) override;
  void OnMouseMove(int x, int y) override;
  void OnMouseButton() override;

  // The value group while the bar is still registered with it.
  virtual VornControlGroupValue* GetGroup();

 protected:
  void CreateItems();
  void NotifyDrag();

  const wxBitmap* m_pNormal = nullptr;   // not owned
  const wxBitmap* m_pAtEnd = nullptr;    // not owned
  const wxBitmap* m_pAtStart = nullptr;  // not owned
  wxColour m_outline;
  wxColour m_background;
  double m_range = 0.0;
  double m_pageSize = 0.0;
  int m_thumbTop = 0;
  int m_lowestTop = 0;
  int m_highestTop = 0;
  int m_dragAnchorY = 0;
  bool m_bDragging = false;
  int m_thumbHeight = 0;
  wxBitmap m_topCap;
  wxBitmap m_bottomCap;
  wxBitmap m_backBuffer;
  VornMomentBtn m_upButton;
  VornMomentBtn m_downButton;
  VornControlGroupValue* m_pValueGroup = nullptr;  // not owned
};

// The group of a VornScrollBar's end buttons (ids 100 and 101); a selection
// takes no action.
class VornScrollBarControlGroup : public VornControlGroup {
 public:
  explicit VornScrollBarControlGroup(VornScrollBar* bar) : m_pBar(bar) {}
  using VornControlGroup::ControlSelected;
  void ControlSelected(unsigned int id, VornControl* control) override;
  VornScrollBar* GetBar() const { return m_pBar; }

 protected:
  VornScrollBar* m_pBar = nullptr;  // not owned
};
