#pragma once
// The value controls: horizontal sliders whose value runs from 0 to 1 (a
// base and three looks: pictures, colours, one track and one thumb picture),
// the scroll-and-zoom range bars and the endless thumb wheel.
#include <wx/bitmap.h>
#include <wx/colour.h>

#include <memory>

#include "vorn/VornControl.h"
#include "vorn/VornControlGroup.h"
#include "vornhost/Bitmap.h"
#include "vornhost/Color.h"

// How a slider fills its track: from the left end up to the thumb, or from
// the middle towards the thumb (for values centred on a neutral middle).
enum SliderType { SLIDER_PLAIN = 0, SLIDER_CENTRED = 1 };

// Geometry that hit-testing and drawing share, in pixels.
struct SliderLayout {
  double thumbLeft = 0;  // position / scale
  int thumbX = 0;        // thumbLeft truncated: where the thumb is drawn
  int thumbWidth = 0;
  int thumbHeight = 0;
  int bandTop = 0;     // the rows a press must hit
  int bandBottom = 0;  // inclusive
  int trackLeft = 0;   // the travel of the thumb's middle
  int trackRight = 0;
  int thumbMiddle = 0;  // thumbX + thumbWidth / 2
};

class VornSlider : public VornControl {
 public:
  // ---- construction
  VornSlider() = default;
  VornSlider(int x, int y, int w, int h, wxWindow* parent, int id, VornControlGroupValue* group,
             long style = 0);
  ~VornSlider() override;
  // Creates the window, sizes it to w x h, then SetValue(0, false).
  virtual bool Create(int x, int y, int w, int h, wxWindow* parent, int id,
                      VornControlGroupValue* group, long style = 0);
  using VornControl::Create;
  // start: lowest thumb position (pixels); endGap: pixels kept free right of
  // the highest position, -1 for none. Then SetValue(0, false).
  void SetupSlider(int start, int thumbWidth, int thumbHeight, int endGap);

  // ---- the value
  // Clamps to [0, 1] and moves the thumb; with notify, ControlDrag then
  // RealValChanging.
  void SetValue(double value, bool notify = true);
  // One drag step to pointer x: the thumb follows the pointer's movement
  // since the last step (a tenth of it in fine mode).
  void SetValue(int x, int y);
  double GetValue() const;
  double GetCurPosition() const { return m_position; }  // in tenths of a pixel
  int GetGap() const;                                   // pixels right of the end
  bool IsDragging() const { return m_bDragging; }
  SliderLayout GetLayout() const;
  // Where the fill starts: the left end or the middle (looks with a fill).
  void SetSliderType(SliderType type);
  SliderType GetSliderType() const { return m_type; }

  // ---- reactions and drawing
  void OnDraw(wxDC* dc) override;
  void OnMouseButton() override;
  void OnMouseMove(int x, int y) override;
  // Disabling ends a drag as a release would.
  void OnEnable(bool enabled) override;
  void OnMouseDownLeft() override {}
  void OnMouseDownRight() override {}
  void OnMouseOver() override {}
  // The last picture OnDraw made; the window is painted by copying it.
  const wxBitmap& GetBackBuffer() const { return m_backBuffer; }

  // The value group while the slider is still registered with it.
  virtual VornControlGroupValue* GetGroup();

 protected:
  // ---- hook: the look. Draws the whole control into dc (w x h); reads
  // state only. The base draws a plain groove and a block thumb.
  virtual void DrawSlider(wxDC& dc);

  void Press(int x, int y);
  void Release();
  void Redraw();

  int m_end = 0;          // highest thumb position, tenths
  double m_position = 0;  // tenths
  int m_lastX = 0;        // pixels
  int m_thumbWidth = 10;
  int m_thumbHeight = 10;
  int m_start = 0;  // tenths
  bool m_bDragging = false;
  int m_scale = 10;
  VornControlGroupValue* m_pGroup = nullptr;  // not owned
  SliderType m_type = SLIDER_PLAIN;
  wxBitmap m_backBuffer;
};

// Track from three pictures (left cap, middle, right cap), a fill up to the
// thumb from two (the fill's cap, its middle) and the thumb from the sixth.
class VornSliderA : public VornSlider {
 public:
  VornSliderA() = default;
  VornSliderA(SliderType type, const wxBitmap* left, const wxBitmap* middle, const wxBitmap* right,
              const wxBitmap* fillCap, const wxBitmap* fillMiddle, const wxBitmap* thumb, int x,
              int y, int w, int h, const wxColour& background, wxWindow* parent, int id,
              VornControlGroupValue* group, long style = 0);
  // The track's left cap, middle (repeated) and right cap; the fill's cap
  // (mirrored for the right end) and middle; the thumb. The slider keeps
  // copies; a null picture is left out. background fills around them.
  virtual bool Create(SliderType type, const wxBitmap* left, const wxBitmap* middle,
                      const wxBitmap* right, const wxBitmap* fillCap, const wxBitmap* fillMiddle,
                      const wxBitmap* thumb, int x, int y, int w, int h, const wxColour& background,
                      wxWindow* parent, int id, VornControlGroupValue* group, long style = 0);
  using VornSlider::Create;

 protected:
  void DrawSlider(wxDC& dc) override;

 private:
  enum { kLeft, kMiddle, kRight, kFillCap, kFillMiddle, kThumb, kPictures };
  wxBitmap m_pictures[kPictures];
  wxBitmap m_disabled[kPictures];  // the same, greyed
  wxBitmap m_fillCapRight;         // the fill cap mirrored for the right end
};

// A rounded track and a round thumb drawn from two colours, anti-aliased.
class VornSliderB : public VornSlider {
 public:
  VornSliderB() = default;
  VornSliderB(const wxColour& track, const wxColour& thumb, int x, int y, int w, int h,
              wxWindow* parent, int id, VornControlGroupValue* group, long style = 0);
  virtual bool Create(const wxColour& track, const wxColour& thumb, int x, int y, int w, int h,
                      wxWindow* parent, int id, VornControlGroupValue* group, long style = 0);
  using VornSlider::Create;

 protected:
  void DrawSlider(wxDC& dc) override;

 private:
  wxColour m_track;
  wxColour m_thumb;
};

// One track picture (stretched to the width) and one thumb picture.
class VornSliderC : public VornSlider {
 public:
  VornSliderC() = default;
  VornSliderC(const wxBitmap* track, const wxBitmap* thumb, int x, int y, int w, int h,
              wxWindow* parent, int id, VornControlGroupValue* group, long style = 0);
  virtual bool Create(const wxBitmap* track, const wxBitmap* thumb, int x, int y, int w, int h,
                      wxWindow* parent, int id, VornControlGroupValue* group, long style = 0);
  using VornSlider::Create;

 protected:
  void DrawSlider(wxDC& dc) override;

 private:
  wxBitmap m_track, m_thumb;
  wxBitmap m_trackDisabled, m_thumbDisabled;
};

#include "vorn/VornRangeControl.h"
#include "vorn/VornThumbWheelControl.h"
