#pragma once
// Range bars: a track showing a window onto a whole. The window's length is
// 1 / zoom of the track (never shorter than its two end handles) and its
// place is the slider value, 0 at one end of the travel and 1 at the other.
// Dragging the window scrolls; dragging an end handle zooms about the
// opposite end (about the middle with Alt held); a press on the track
// beside the window centres it there and scrolls from then on.
#include <wx/bitmap.h>

#include <memory>

#include "vorn/VornControl.h"
#include "vorn/VornControlGroup.h"
#include "vornhost/Color.h"

// Geometry that hit-testing and drawing share, in pixels along the bar's
// axis (x, or y for the vertical bar) and across it.
struct RangeLayout {
  int trackStart = 0, trackEnd = 0;    // the scroll area, end excluded
  int windowStart = 0, windowEnd = 0;  // the shown window, end excluded
  int handle = 0;                      // length of each end handle
  int crossStart = 0, crossEnd = 0;    // the bar's extent across the axis
};

class VornRangeBase : public VornControl {
 public:
  // ---- the values
  // zoom >= 1 (limited so the window keeps room for its handles); the
  // slider value is recomputed so that the window's middle stays put.
  void SetZoomValue(double zoom, bool notify = true);
  double GetZoomValue() const { return m_zoom; }
  // 0..1: where the window lies within its travel.
  void SetSliderValue(double value, bool notify = true);
  double GetSliderValue() const { return m_slider; }
  // The window's two ends as fractions of the whole.
  double GetWindowStart() const;
  double GetWindowEnd() const { return GetWindowStart() + 1.0 / m_zoom; }
  // Largest zoom the track allows.
  double GetMaxZoom() const;
  RangeLayout GetLayout() const;

  // ---- reactions and drawing
  void OnDraw(wxDC* dc) override;
  void OnMouseButton() override;
  void OnMouseMove(int x, int y) override;
  // Disabling ends a drag as a release would.
  void OnEnable(bool enabled) override;
  void OnMouseDownLeft() override {}
  void OnMouseDownRight() override {}
  void OnMouseOver() override {}

  // The value group while the bar is still registered with it.
  virtual VornControlGroupValue* GetGroup();

  // ---- hooks a subclass overrides to follow the bar
  virtual void OnSliderChange() {}
  virtual void OnZoomChange() {}
  virtual void OnAnyChange() {}

 protected:
  VornRangeBase(const Color& track, const Color& bar, int x, int y, int w, int h, int scroll1,
                int scroll2, const wxBitmap* picture, bool vertical, wxWindow* parent, int id,
                VornControlGroupValue* group, long style);
  // Sets the scroll area; false (area left unchanged) when it is empty.
  bool SetScrollArea(int scroll1, int scroll2, const char* orderText);
  // The window as fractions [start, start + length]; zoom and slider follow.
  void SetWindow(double start, double length, bool notify);

  enum class Grip { kNone, kWindow, kLow, kHigh };
  Grip HitTest(int along) const;
  void Press(int along);
  void Drag(int along);
  void Release();
  int Along(int x, int y) const { return m_bVertical ? y : x; }
  int TrackLength() const { return m_scroll2 - m_scroll1; }

  Color m_track;
  Color m_bar;
  bool m_bVertical = false;
  int m_scroll1 = 0;
  int m_scroll2 = 1;
  int m_barHeight = 0;  // across the axis; 0 for the whole control
  double m_zoom = 1.0;
  double m_slider = 0.0;
  const wxBitmap* m_pPicture = nullptr;  // drawn under the bar; not owned
  std::unique_ptr<wxBitmap> m_ownPicture;
  wxBitmap m_scaledPicture;                   // the picture at the track's size, made on demand
  VornControlGroupValue* m_pGroup = nullptr;  // not owned
  // The drag: what was gripped, where, and the window's ends at the press.
  Grip m_grip = Grip::kNone;
  int m_pressAlong = 0;
  double m_pressStart = 0;
  double m_pressEnd = 1;
};

// The horizontal bar. The scroll area runs from scrollX1 to scrollX2
// (pixels, the second excluded) inside the control.
class VornRangeControl : public VornRangeBase {
 public:
  VornRangeControl(const Color& track, const Color& bar, int x, int y, int w, int h, int scrollX1,
                   int scrollX2, const wxBitmap* picture, wxWindow* parent, int id = -1,
                   VornControlGroupValue* group = nullptr, long style = 0);
  // Thickness of the bar, centred in the control's height.
  void SetBarHeight(int height);
  // Margins left and right of the scroll area.
  void SetSpace(int left, int right);
};

// The vertical bar; the slider value 0 is at the top. With ownPicture the
// bar deletes the picture.
class VornVertRangeControl : public VornRangeBase {
 public:
  VornVertRangeControl(const Color& track, const Color& bar, int x, int y, int w, int h,
                       int scrollY1, int scrollY2, wxBitmap* picture, bool ownPicture,
                       wxWindow* parent, int id = -1, VornControlGroupValue* group = nullptr,
                       long style = 0);
};
