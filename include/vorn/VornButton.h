#pragma once
// The button family: a base that draws one image per state from a cache and
// keeps an on flag, and subclasses that decide what a press and a release
// mean (push, toggle, radio, moon, ring, momentary with auto-repeat, and two
// buttons with text labels).
#include <wx/colour.h>
#include <wx/font.h>
#include <wx/stopwatch.h>
#include <wx/timer.h>

#include <functional>
#include <memory>

#include "vorn/VornControl.h"
#include "vorn/VornControlGroup.h"
#include "vorn/VornImageCache.h"

class VornButton : public VornControl {
 public:
  VornButton();
  // Sizes the window to the cache's image size.
  VornButton(const VornwxBitmapCache* cache, int x, int y, wxWindow* parent, int id,
             VornControlGroup* group, long style = 0);
  VornButton(const VornwxBitmapCache* cache, int x, int y, int w, int h, wxWindow* parent, int id,
             VornControlGroup* group, long style = 0);
  ~VornButton() override;

  void OnDraw(wxDC* dc) override;
  void RecalcState() override;
  void OnMouseButton() override;

  virtual bool Create(const VornwxBitmapCache* cache, int x, int y, wxWindow* parent, int id,
                      VornControlGroup* group, long style = 0);
  virtual bool Create(const VornwxBitmapCache* cache, int x, int y, int w, int h, wxWindow* parent,
                      int id, VornControlGroup* group, long style = 0);
  virtual void SetOn(bool on);
  virtual bool GetOn() const;
  virtual void SetButtonDown(bool down);
  virtual bool GetButtonDown() const;
  virtual void OnButtonDown();

  // The sheet rectangle of the current state's image, following the fallback
  // chain; false when there is no cache or no image.
  bool GetImageInfo(WallpaperImageInfo<wxBitmap>& info);
  const VornwxBitmapCache* GetImageCache() const { return m_pImageCache; }
  void SetImageCache(const VornwxBitmapCache* cache);
  VORNIMAGETYPE GetState() const { return m_state; }

  using VornControl::Create;

 protected:
  // The state the table gives for the current flags (does not store it).
  VORNIMAGETYPE ComputeState() const;
  // A release as the subclasses see it: no mouse button held and the
  // button-down flag clear.
  bool IsRelease() const { return !GetMouseDown() && !m_bButtonDown; }
  // Marks the state images stale and repaints without erasing.
  void Redraw();

  VORNIMAGETYPE m_state = VIT_NONE;
  bool m_bOn = false;
  bool m_bButtonDown = false;
  const VornwxBitmapCache* m_pImageCache = nullptr;  // not owned
};

// Reports selection on press and unselection on a release over it.
class VornPushButton : public VornButton {
 public:
  using VornButton::VornButton;
  void OnMouseButton() override;
};

// Flips on release and reports the new value as an IntValChanged.
class VornButtonToggle : public VornButton {
 public:
  using VornButton::VornButton;
  void OnMouseButton() override;
};

// One of a set: switching it on switches the others of its one-of-N group
// off. A click on a button that is on does nothing unless toggle is set.
class VornRadioButton : public VornButton {
 public:
  VornRadioButton() = default;
  VornRadioButton(const VornwxBitmapCache* cache, int x, int y, wxWindow* parent, int id,
                  VornControlGroup1ofN* group, long style = 0);
  VornRadioButton(const VornwxBitmapCache* cache, int x, int y, int w, int h, wxWindow* parent,
                  int id, VornControlGroup1ofN* group, long style = 0);

  void OnMouseButton() override;

  // The one-of-N group while the button is still registered with it.
  virtual VornControlGroup1ofN* GetGroup();
  virtual bool Create(const VornwxBitmapCache* cache, int x, int y, wxWindow* parent, int id,
                      VornControlGroup1ofN* group, long style = 0);
  virtual bool Create(const VornwxBitmapCache* cache, int x, int y, int w, int h, wxWindow* parent,
                      int id, VornControlGroup1ofN* group, long style = 0);

  using VornButton::Create;
  void SetToggle(bool toggle) { m_bToggle = toggle; }
  bool GetToggle() const { return m_bToggle; }

 protected:
  VornControlGroup1ofN* m_pGroup1ofN = nullptr;  // not owned
  bool m_bToggle = false;
};

// A radio button that can be dragged sideways inside its parent.
class VornMoonButton : public VornRadioButton {
 public:
  VornMoonButton() = default;
  VornMoonButton(const VornwxBitmapCache* cache, int x, int y, wxWindow* parent, int id,
                 VornValueControlGroup1ofN* group, long style = 0);
  VornMoonButton(const VornwxBitmapCache* cache, int x, int y, int w, int h, wxWindow* parent,
                 int id, VornValueControlGroup1ofN* group, long style = 0);

  void OnMouseButton() override;
  void OnMouseMove(int x, int y) override;

  // The value side of the group (for ControlDrag) while still registered.
  VornValueControlGroup1ofN* GetValueGroup();

 protected:
  void SetValueGroup(VornValueControlGroup1ofN* group) { m_pValueGroup = group; }

  VornValueControlGroup1ofN* m_pValueGroup = nullptr;  // not owned
  // Pointer and button x at the press, in the parent's coordinates (the
  // parent does not move during a drag, so its movement is the screen's).
  int m_dragStartPointerX = 0;
  int m_dragStartX = 0;
};

// A round selector drawn as a ring in one colour. The ring itself and two
// handles, at its left and right edges, can be dragged; subclasses give the
// drags their meaning through OnMoveLeft, OnMoveRight and OnMoveRing.
class VornRingButton : public VornRadioButton {
 public:
  VornRingButton() = default;
  // thickness: the ring's line width; leftWidth / rightWidth: the widths of
  // the two handle zones at the sides (0 for none).
  VornRingButton(const wxColour& colour, int thickness, int leftWidth, int rightWidth, int x, int y,
                 int w, int h, wxWindow* parent, int id, VornValueControlGroup1ofN* group,
                 long style = 0);

  void OnDraw(wxDC* dc) override;
  void OnMouseButton() override;
  void OnMouseMove(int x, int y) override;

  virtual bool Create(const wxColour& colour, int thickness, int leftWidth, int rightWidth, int x,
                      int y, int w, int h, wxWindow* parent, int id,
                      VornValueControlGroup1ofN* group, long style = 0);
  // Drag of the part hit at the press, with the pointer's client position.
  virtual void OnMoveLeft(int x, int y);
  virtual void OnMoveRight(int x, int y);
  virtual void OnMoveRing(int x, int y);

  using VornRadioButton::Create;
  void SetColour(const wxColour& colour);
  const wxColour& GetColour() const { return m_colour; }
  bool GetLeftHit() const { return m_bLeftHit; }
  bool GetRightHit() const { return m_bRightHit; }
  bool GetRingHit() const { return m_bRingHit; }
  VornValueControlGroup1ofN* GetValueGroup();

 protected:
  wxColour m_colour;
  int m_thickness = 2;
  int m_leftWidth = 0;
  int m_rightWidth = 0;
  bool m_bLeftHit = false;
  bool m_bRightHit = false;
  bool m_bRingHit = false;
  VornValueControlGroup1ofN* m_pValueGroup = nullptr;  // not owned
};

class VornMomentBtn;

// Sent on press (first-press flag true) and on every repeat (false).
class VornMomentHint : public VornControlHint {
 public:
  explicit VornMomentHint(bool firstPress = false) : m_bFirstPress(firstPress) {}
  ~VornMomentHint() override;
  bool GetFirstPress() const { return m_bFirstPress; }
  bool m_bFirstPress;
};

// The auto-repeat of a momentary button. Each tick restarts itself as a
// one-shot and fires once per repeat interval that passed since the last
// tick, carrying the remainder over.
class VornButtonTimer : public wxTimer {
 public:
  // Reads the milliseconds since the last tick; by default the stop watch.
  using Clock = std::function<long()>;

  explicit VornButtonTimer(VornMomentBtn* button);
  void Notify() override;

  void SetFirstTick(bool first) { m_bFirstTick = first; }
  bool GetFirstTick() const { return m_bFirstTick; }
  int GetRemainder() const { return m_remainder; }
  // Replaces the stop watch as the source of elapsed time (an empty
  // function restores it); lets a tick be driven deterministically.
  void SetClock(Clock clock) { m_clock = std::move(clock); }

 protected:
  long ElapsedMilliseconds() const;

  VornMomentBtn* m_pButton;  // not owned: the button owns the timer
  wxStopWatch m_stopWatch;
  int m_remainder = 0;
  bool m_bFirstTick = true;
  Clock m_clock;
};

// Repeats its selection while held: once at the press, once after the
// initial delay and then once per repeat interval.
class VornMomentBtn : public VornButton {
 public:
  // The timing the scroll bars' end buttons use: first repeat after half a
  // second, then one every 10 ms.
  static constexpr int kDefaultInitialDelay = 500;
  static constexpr int kDefaultRepeatInterval = 10;

  VornMomentBtn();
  VornMomentBtn(const VornwxBitmapCache* cache, int x, int y, wxWindow* parent, int id,
                VornControlGroup* group, long style = 0,
                int initialDelay = kDefaultInitialDelay,
                int repeatInterval = kDefaultRepeatInterval);
  VornMomentBtn(const VornwxBitmapCache* cache, int x, int y, int w, int h, wxWindow* parent,
                int id, VornControlGroup* group, long style = 0,
                int initialDelay = kDefaultInitialDelay,
                int repeatInterval = kDefaultRepeatInterval);
  ~VornMomentBtn() override;

  void OnEnable(bool enabled) override;
  void OnMouseButton() override;

  virtual bool Create(const VornwxBitmapCache* cache, int x, int y, wxWindow* parent, int id,
                      VornControlGroup* group, long style, int initialDelay, int repeatInterval);
  virtual bool Create(const VornwxBitmapCache* cache, int x, int y, int w, int h, wxWindow* parent,
                      int id, VornControlGroup* group, long style, int initialDelay,
                      int repeatInterval);

  using VornButton::Create;
  int GetInitialDelay() const { return m_initialDelay; }
  int GetRepeatInterval() const { return m_repeatInterval; }
  void SetInitialDelay(int ms) { m_initialDelay = ms; }
  void SetRepeatInterval(int ms) { m_repeatInterval = ms; }
  VornButtonTimer* GetTimer() const { return m_pTimer.get(); }

 protected:
  std::unique_ptr<VornButtonTimer> m_pTimer;
  int m_initialDelay = 400;
  int m_repeatInterval = 100;
};

// A push button with a text label, drawn on a solid background or on the
// off-state images of a cache.
class VornTextPushButton : public VornControl {
 public:
  VornTextPushButton() = default;
  // textX / textY place the label's top-left corner; -1 centres it on that
  // axis. textColour is used normally, textColour2 under the pointer and
  // while pressed; background fills the button and becomes the window's
  // background colour. The size comes from the cache.
  VornTextPushButton(const VornString& text, int textX, int textY, const wxFont& font,
                     const wxColour& textColour, const wxColour& background,
                     const wxColour& textColour2, const VornwxBitmapCache* cache, int x, int y,
                     wxWindow* parent, int id, VornControlGroup* group, long style = 0);
  VornTextPushButton(const VornString& text, int textX, int textY, const wxFont& font,
                     const wxColour& textColour, const wxColour& background,
                     const wxColour& textColour2, int x, int y, int w, int h, wxWindow* parent,
                     int id, VornControlGroup* group, long style = 0,
                     const VornwxBitmapCache* cache = nullptr);

  void OnDraw(wxDC* dc) override;
  void OnMouseButton() override;

  virtual bool Create(const VornString& text, int textX, int textY, const wxFont& font,
                      const wxColour& textColour, const wxColour& background,
                      const wxColour& textColour2, const VornwxBitmapCache* cache, int x, int y,
                      wxWindow* parent, int id, VornControlGroup* group, long style = 0);
  virtual bool Create(const VornString& text, int textX, int textY, const wxFont& font,
                      const wxColour& textColour, const wxColour& background,
                      const wxColour& textColour2, int x, int y, int w, int h, wxWindow* parent,
                      int id, VornControlGroup* group, long style = 0,
                      const VornwxBitmapCache* cache = nullptr);
  // The image for state, following the fallback chain; null without one.
  virtual const wxBitmap* GetImage(VORNIMAGETYPE state) const;

  using VornControl::Create;
  void SetText(const VornString& text);
  const VornString& GetText() const { return m_text; }
  const VornwxBitmapCache* GetImageCache() const { return m_pImageCache; }
  // The image state drawn for the current flags.
  VORNIMAGETYPE GetDrawState() const;

 protected:
  void Setup(const VornString& text, int textX, int textY, const wxFont& font,
             const wxColour& textColour, const wxColour& background, const wxColour& textColour2,
             const VornwxBitmapCache* cache);

  VornString m_text;
  int m_textX = -1;
  int m_textY = -1;
  wxFont m_font;
  wxColour m_textColour;
  wxColour m_background;
  wxColour m_textColour2;
  const VornwxBitmapCache* m_pImageCache = nullptr;  // not owned
};

// A radio button drawn from its state images with two labels: the first at
// the left (centred when there is no second), the second right-aligned.
class VornTextRadioButton : public VornButton {
 public:
  VornTextRadioButton() = default;
  // offColour labels a button that is off, onColour one that is on,
  // overColour either under the pointer. The size comes from the cache.
  VornTextRadioButton(const VornwxBitmapCache* cache, const VornString& text,
                      const VornString& text2, const wxFont& font, const wxColour& offColour,
                      const wxColour& onColour, const wxColour& overColour, int x, int y,
                      wxWindow* parent, int id, VornControlGroup1ofN* group, long style = 0);
  VornTextRadioButton(const VornwxBitmapCache* cache, const VornString& text,
                      const VornString& text2, const wxFont& font, const wxColour& offColour,
                      const wxColour& onColour, const wxColour& overColour, int x, int y, int w,
                      int h, wxWindow* parent, int id, VornControlGroup1ofN* group, long style = 0);

  void OnDraw(wxDC* dc) override;
  void OnMouseButton() override;

  virtual VornControlGroup1ofN* GetGroup();

  void SetToggle(bool toggle) { m_bToggle = toggle; }
  bool GetToggle() const { return m_bToggle; }
  void SetText(const VornString& text);
  const VornString& GetText() const { return m_text; }
  void SetText2(const VornString& text);
  const VornString& GetText2() const { return m_text2; }
  // The label colour for the current flags.
  wxColour GetTextColour() const;

 private:
  // The labels and colours both public constructors store before creating.
  VornTextRadioButton(VornControlGroup1ofN* group, const VornString& text, const VornString& text2,
                      const wxFont& font, const wxColour& offColour, const wxColour& onColour,
                      const wxColour& overColour);

 protected:
  VornControlGroup1ofN* m_pGroup1ofN = nullptr;  // not owned
  bool m_bToggle = false;
  VornString m_text;
  VornString m_text2;
  wxFont m_font;
  wxColour m_offColour;
  wxColour m_onColour;
  wxColour m_overColour;
};
