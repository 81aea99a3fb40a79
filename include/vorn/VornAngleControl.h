#pragma once
// Angle and instrument controls: a knob on a circle and the dials built on it
// (a two-colour dial, a clock face), callipers, a compass strip and an
// artificial horizon. Angles are fractions of a turn (0..1); radians appear
// only inside the drawing arithmetic.
#include <wx/bitmap.h>
#include <wx/gdicmn.h>

#include "vorn/VornControl.h"
#include "vorn/VornControlGroup.h"
#include "vorn/VornImageCache.h"
#include "vornhost/Bitmap.h"
#include "vornhost/Color.h"

// Wraps any real into [0, 1): the remainder of v / 1, counted back from 1
// for negative v.
float GetZeroToOne(float v);

// The point at radius and turn (counter-clockwise from the positive x axis,
// y pointing up) around (cx, cy), each offset truncated. Knobs, jaws and
// handles are placed with it, for hit-testing and drawing alike.
wxPoint VornPointOnCircle(int cx, int cy, int radius, double turn);

// ---------------------------------------------------------------------------
// A knob on a circle. Its value is the knob's turn measured from the zero
// angle; the dial always runs counter-clockwise.
class VornAngleControl : public VornControl {
 public:
  // ---- construction
  VornAngleControl() = default;
  VornAngleControl(int cx, int cy, int radius, int x, int y, int w, int h, wxWindow* parent, int id,
                   VornControlGroupValue* group, long style = 0);

  // Stores the centre and radius, then SetValue(0, false).
  virtual bool Create(int cx, int cy, int radius, int x, int y, int w, int h, wxWindow* parent,
                      int id, VornControlGroupValue* group, long style = 0);
  // The value group (hides the base's plain-group accessor).
  virtual VornControlGroupValue* GetGroup() const { return m_pGroup; }

  // ---- the value
  // value + zero / 360 wrapped once becomes the turn; notify sends
  // ControlDrag and RealValChanging.
  void SetValue(float value, bool notify);
  // From the pointer (control pixels); a tenth of the motion in fine mode.
  void SetValue(int x, int y);
  float GetValue() const;
  // The angle, in degrees, at which the value is 0. Resets the value to 0.
  void SetZeroVal(double degrees);
  double GetZeroVal() const { return m_zero; }
  // Kept for hosts that call them: the dial always runs counter-clockwise.
  void SetClockwiseVal(bool) {}
  bool GetClockwiseVal() const { return false; }

  // ---- geometry
  void GetCurPosition(int& x, int& y) const;
  void GetCentre(int& x, int& y) const;
  int GetRadius() const { return m_radius; }
  float GetTurn() const { return m_turn; }

  // ---- reactions (subclasses override OnDraw only)
  void OnMouseButton() override;
  void OnMouseMove(int x, int y) override;
  void OnDraw(wxDC* dc) override;

 protected:
  void PlaceKnob();
  void BeginDrag();
  void EndDrag();
  // Redraws at once during a drag, through the same OnDraw path as a paint.
  void RedrawNow();

  float m_turn = 0.0f;
  int m_knobX = 0;
  int m_knobY = 0;
  int m_centreX = 0;
  int m_centreY = 0;
  int m_radius = 0;
  double m_zero = 0.0;
  double m_fineAnchor = 0.0;
  VornControlGroupValue* m_pGroup = nullptr;  // not owned
};

// ---------------------------------------------------------------------------
// A dial drawn with two colours: a ring with quarter ticks (first colour) and
// a needle ending in a dot (second colour), anti-aliased.
class VornAngleControlB : public VornAngleControl {
 public:
  VornAngleControlB() = default;
  VornAngleControlB(const ColorA& ring, const ColorA& needle, int x, int y, int w, int h,
                    wxWindow* parent, int id, VornControlGroupValue* group, long style = 0);
  // The circle is centred in the control, 3 pixels inside its smaller side.
  virtual bool Create(const ColorA& ring, const ColorA& needle, int x, int y, int w, int h,
                      wxWindow* parent, int id, VornControlGroupValue* group, long style = 0);
  using VornAngleControl::Create;

  void OnDraw(wxDC* dc) override;
  // The picture as last drawn (empty before the first drawing).
  const BitmapA& GetPicture() const { return m_picture; }

 private:
  void DrawPicture();

  ColorA m_ring;
  ColorA m_needle;
  BitmapA m_picture;
  float m_drawnTurn = -1000.0f;
};

// ---------------------------------------------------------------------------
// A clock face: a state image set with one layer (a hand) turned by
// -720 x value degrees about the centre, twice round over the value range.
class VornTimeControl : public VornAngleControl {
 public:
  VornTimeControl() = default;
  // The centre is the middle of the control.
  VornTimeControl(const VornBitmapACache* images, const BitmapA* layer, int radius, int x, int y,
                  int w, int h, wxWindow* parent, int id, VornControlGroupValue* group,
                  long style = 0);
  virtual bool Create(const VornBitmapACache* images, const BitmapA* layer, int radius, int x,
                      int y, int w, int h, wxWindow* parent, int id, VornControlGroupValue* group,
                      long style = 0);
  virtual bool Create(const VornBitmapACache* images, const BitmapA* layer, int cx, int cy,
                      int radius, int x, int y, int w, int h, wxWindow* parent, int id,
                      VornControlGroupValue* group, long style = 0);
  using VornAngleControl::Create;

  // The turning layer.
  const BitmapA* GetImage() const { return m_pLayer; }
  // Rebuilds the drawing for the current state and value.
  void RecalcState() override;
  void OnDraw(wxDC* dc) override;
  // The state whose image the face is drawn from.
  VORNIMAGETYPE GetState() const;

 private:
  const VornBitmapACache* m_pImages = nullptr;  // not owned
  const BitmapA* m_pLayer = nullptr;            // not owned
  wxBitmap m_drawing;
  float m_drawnTurn = -1000.0f;
};

// ---------------------------------------------------------------------------
// Callipers: a fixed jaw and a jaw that opens a quarter turn over the value
// range, set by dragging along the control (x, or y with wxVERTICAL).
class VornAngleClippers : public VornControl {
 public:
  VornAngleClippers() = default;
  // frame: the jaws; scale: ticks and ruler; marker: the travel marker.
  VornAngleClippers(const ColorA& frame, const ColorA& scale, const ColorA& marker, int span, int x,
                    int y, int w, int h, wxWindow* parent, int id, VornControlGroupValue* group,
                    long style = 0);
  virtual bool Create(const ColorA& frame, const ColorA& scale, const ColorA& marker, int span,
                      int x, int y, int w, int h, wxWindow* parent, int id,
                      VornControlGroupValue* group, long style = 0);
  virtual VornControlGroupValue* GetGroup() const { return m_pGroup; }

  // Clamped to [0, 1]; notify reports a change of the travel position.
  void SetValue(double value, bool notify);
  // From the pointer coordinate along the travel.
  void SetValue(int p);
  double GetValue() const { return m_value; }

  // The moving jaw's two points (inner and outer radius) and the pivot.
  struct Jaws {
    wxPoint pivot, inner, outer;
  };
  Jaws GetJaws() const { return {m_pivot, m_innerJaw, m_outerJaw}; }
  int GetTravel() const { return m_position; }
  int GetLength() const { return m_length; }

  void OnMouseButton() override;
  void OnMouseMove(int x, int y) override;
  void OnDraw(wxDC* dc) override;

 private:
  int PointerCoordinate(int x, int y) const;
  void DrawPicture();

  ColorA m_frame, m_scale, m_marker;
  double m_value = 0.0;
  int m_length = 0;
  int m_step = 10;
  int m_position = 0;
  int m_lastP = 0;
  wxPoint m_pivot, m_innerJaw, m_outerJaw;
  int m_innerRadius = 0;
  int m_outerRadius = 0;
  BitmapA m_picture;
  double m_drawnValue = -1000.0;
  VornControlGroupValue* m_pGroup = nullptr;  // not owned
};

// ---------------------------------------------------------------------------
// A compass strip that scrolls sideways: the heading under the middle of the
// control. The strip picture repeats every kPeriod pixels.
class VornCompassControl : public VornControl {
 public:
  static constexpr int kPeriod = 3210;
  static constexpr int kStep = 10;

  VornCompassControl() = default;
  // strip: the repeating rose; frame: drawn over it; marker: the lubber mark
  // centred on top. Borrowed: they must outlive the control.
  VornCompassControl(const BitmapA* strip, const BitmapA* frame, const BitmapA* marker, int x,
                     int y, int w, int h, wxWindow* parent, int id, VornControlGroup* group,
                     long style = 0);
  virtual bool Create(const BitmapA* strip, const BitmapA* frame, const BitmapA* marker, int x,
                      int y, int w, int h, wxWindow* parent, int id, VornControlGroup* group,
                      long style = 0);

  // No notification.
  void SetValue(float value);
  // Dragging: the strip follows the pointer ten times as fast, or at its
  // speed with the meta key.
  void SetValue(int x, int y);
  float GetValue() const { return m_value; }
  void MoveLeft();
  void MoveRight();
  int GetOffset() const { return m_offset; }

  void OnMouseButton() override;
  void OnMouseMove(int x, int y) override;
  void OnDraw(wxDC* dc) override;

 private:
  void WrapAndRecompute();
  void Moved();
  void Compose();

  float m_value = 0.0f;
  const BitmapA* m_pImages[3] = {nullptr, nullptr, nullptr};  // not owned
  wxBitmap m_drawing;
  int m_offset = 0;
  int m_period = kPeriod;
  int m_offsetBase = 0;
  int m_lastX = 0;
  int m_step = kStep;
  float m_lastDrawn = -1000.0f;
};

// ---------------------------------------------------------------------------
// An artificial horizon: roll handles A and B at the ends of the roll line,
// pitch handle C on the diameter across it. Sky lies towards the track's
// second end (up at roll 0), ground towards the first.
class VornAHorizonControl : public VornControl {
 public:
  VornAHorizonControl() = default;
  // ball: the sky, ground and pitch ladder picture, its horizon across the
  // middle; borrowed.
  VornAHorizonControl(const BitmapA* ball, int cx, int cy, int radius, int x, int y, int w, int h,
                      wxWindow* parent, int id, VornControlGroupValue* group, long style = 0);
  virtual bool Create(const BitmapA* ball, int cx, int cy, int radius, int x, int y, int w, int h,
                      wxWindow* parent, int id, VornControlGroupValue* group, long style = 0);
  virtual VornControlGroupValue* GetGroup() const { return m_pGroup; }

  // Roll in turns; pitch 0..1 (0.5 level).
  void SetValue(float roll);
  float GetValue() const { return m_roll; }
  void SetPitchValue(float pitch);
  float GetPitchValue() const { return m_pitch; }
  // Handle drags, from the pointer.
  void SetAValue(int x, int y);
  void SetBValue(int x, int y);
  void SetCValue(int x, int y);
  // Places C on the track at pitch.
  void SetCValue(float pitch);
  // Handle A.
  void GetCurPosition(int& x, int& y) const;
  bool WeCurrentlyDragging() const { return m_bDragging; }

  struct Handles {
    wxPoint a, b, c, end1, end2;
  };
  Handles GetHandles() const { return {m_a, m_b, m_c, m_end1, m_end2}; }

  void OnMouseButton() override;
  void OnMouseMove(int x, int y) override;
  void OnDraw(wxDC* dc) override;

 private:
  void PlaceRoll();
  void RollFromPointer(int x, int y, bool pointerIsA);
  // The ball turned and shifted to the handles, inside the ring.
  void DrawBall(wxDC& dc);

  float m_roll = 0.0f;
  float m_pitch = 0.5f;
  int m_centreX = 0;
  int m_centreY = 0;
  int m_radius = 0;
  wxPoint m_a, m_b;
  bool m_bGrabA = false;
  bool m_bGrabB = false;
  wxPoint m_c;
  bool m_bGrabC = false;
  wxPoint m_grab;
  wxPoint m_end1, m_end2;
  bool m_bDragging = false;
  const BitmapA* m_pBall = nullptr;           // not owned
  VornControlGroupValue* m_pGroup = nullptr;  // not owned
};
