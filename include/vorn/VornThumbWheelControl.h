#pragma once
// An endless wheel: its surface (a strip picture that repeats every period)
// scrolls under the pointer, and the value moves by about 1/350 of itself
// per pixel of drag, so a drag's effect scales with the value.
#include <wx/bitmap.h>

#include "vorn/VornControl.h"
#include "vorn/VornControlGroup.h"
#include "vornhost/Bitmap.h"

class VornThumbWheelControl : public VornControl {
 public:
  // ---- construction
  VornThumbWheelControl() = default;
  VornThumbWheelControl(const BitmapA* frame, const BitmapA* strip, const BitmapA* window, int x,
                        int y, bool vertical, int period, wxWindow* parent, int id,
                        VornControlGroupValue* group, long style = 0);
  // Sized to the frame picture. The pictures are not owned. period: the
  // strip's repeat length in pixels.
  virtual bool Create(const BitmapA* frame, const BitmapA* strip, const BitmapA* window, int x,
                      int y, bool vertical, int period, wxWindow* parent, int id,
                      VornControlGroupValue* group, long style = 0);
  using VornControl::Create;

  // ---- the value: setting it neither redraws nor notifies
  void SetMinValue(float value) { m_minimum = value; }
  void SetMaxValue(float value) { m_maximum = value; }
  void SetStepAmount(float step) { m_step = step; }
  void SetCurrentValue(float value) { m_value = value; }
  float GetCurrentValue() const { return m_value; }
  void MoveLeft() {}
  void MoveRight() {}
  // One drag step to pointer coordinate p (x, or y when vertical).
  void SetValue(int p);
  double GetStep() const { return m_step; }
  int GetRotation() const { return m_rotation; }  // tenths of a pixel
  int GetPeriod() const { return m_period; }      // tenths of a pixel
  bool IsVertical() const { return m_bVertical; }

  // ---- reactions and drawing
  void OnDraw(wxDC* dc) override;
  void OnMouseButton() override;
  void OnMouseMove(int x, int y) override;
  // Disabling ends a turn as a release would.
  void OnEnable(bool enabled) override;
  void OnMouseDownLeft() override {}
  void OnMouseDownRight() override {}
  void OnMouseOver() override {}
  const wxBitmap& GetBackBuffer() const { return m_backBuffer; }

  // The value group while the wheel is still registered with it.
  virtual VornControlGroupValue* GetGroup();

 protected:
  void Press();
  void Release();
  // One notch of the mouse wheel turns like one pixel of drag.
  void OnWheel(wxMouseEvent& event);
  // The step a drag uses, from the value at its start.
  void TakeStep();
  void Redraw();

  const BitmapA* m_pFrame = nullptr;   // not owned
  const BitmapA* m_pStrip = nullptr;   // not owned
  const BitmapA* m_pWindow = nullptr;  // not owned
  int m_rotation = 0;
  int m_period = 10;
  int m_scale = 10;
  int m_lastPosition = 0;
  bool m_bVertical = false;
  VornControlGroupValue* m_pGroup = nullptr;  // not owned
  float m_value = 0.0f;
  double m_maximum = 1e50;
  double m_minimum = -1e50;
  double m_step = 10.0;
  bool m_bTurning = false;  // a press is being held
  wxBitmap m_backBuffer;

  wxDECLARE_EVENT_TABLE();
};
