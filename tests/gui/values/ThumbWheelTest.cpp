// The thumb wheel: the step rule, fine mode, wrapping of the strip, clamps,
// snapping to 0 on release, the mouse wheel and the composed picture.
#include <gtest/gtest.h>

#include "ValueTestSupport.h"
#include "vorn/VornThumbWheelControl.h"

namespace {

BitmapA Solid(int w, int h, const ColorA& c) {
  BitmapA b;
  Create(b, w, h);
  ClearBitmap(b, c);
  return b;
}

// A 12 x 4 wheel whose strip repeats every 4 pixels: red in column 0 of each
// period, black elsewhere. The window shows the strip everywhere; the frame
// is clear but for a blue left column.
class ThumbWheelTest : public ::testing::Test {
 protected:
  ThumbWheelTest() {
    Create(strip, 16, 4);
    for (int y = 0; y < 4; ++y)
      for (int x = 0; x < 16; ++x) Set(strip, x, y, x % 4 ? ColorA(0, 0, 0) : ColorA(1, 0, 0));
    for (int y = 0; y < 4; ++y) Set(frame, 0, y, ColorA(0, 0, 1));
  }
  TestFrame window{wxSize(300, 200)};
  ValueRecorder rec;
  BitmapA frame = Solid(12, 4, ColorA(0, 0, 0, 0)), strip, shown = Solid(12, 4, ColorA(1, 1, 1));
  VornThumbWheelControl wheel{&frame, &strip, &shown, 0, 0, false, 4, window.Get(), 7, &rec.group};
  VornThumbWheelControl upright{&frame, &strip, &shown,       0, 20,
                                true,   4,      window.Get(), 8, &rec.group};

  std::string Run(VornThumbWheelControl& w, const std::string& script) {
    rec.log.clear();
    Drag(&w, script, 2, w.IsVertical());
    return rec.Take();
  }
};

TEST_F(ThumbWheelTest, EachDragMovesByAStepProportionalToTheValue) {
  const struct {
    bool vertical;
    float start;
    const char* script;
    double value;
  } cases[] = {
      {false, 350, "d5 m6 u6", 351},      // right raises a horizontal wheel
      {true, 350, "d5 m6 u6", 349},       // down lowers a vertical one
      {false, 350, "d5 m15s u15s", 351},  // fine mode: a tenth per pixel
      {false, -700, "d5 m6 u6", -698},    // the step's size, not its sign
      {false, 0, "d5 m8 u8", 3e-6},       // 0 leaves slowly
      {false, 0, "d5 m8 m5 u5", 0},       // ... and a tiny remainder snaps back
  };
  for (const auto& c : cases) {
    VornThumbWheelControl& w = c.vertical ? upright : wheel;
    w.SetCurrentValue(c.start);
    Run(w, c.script);
    EXPECT_NEAR(w.GetCurrentValue(), c.value, 1e-9) << c.start << " " << c.script;
  }
  wheel.SetCurrentValue(0.0000005f);
  EXPECT_NE(wheel.GetCurrentValue(), 0.0f);  // setting neither snaps nor notifies
  EXPECT_EQ(Run(wheel, "d5 u5"), "sel 7 unsel 7 changed 0 0");
  EXPECT_EQ(wheel.GetCurrentValue(), 0.0f);
}

TEST_F(ThumbWheelTest, NotifiesInOrderAndWrapsTheStripNotTheValue) {
  wheel.SetCurrentValue(350);
  EXPECT_EQ(Run(wheel, "d5 m6 u6"), "sel 7 drag 7 changing 351 0 unsel 7 changed 351 0");
  EXPECT_EQ(wheel.GetRotation(), 30);  // -10 wrapped into the 40-tenth period
  // Thirteen pixels: more than three periods of the strip, thirteen steps.
  wheel.SetCurrentValue(350);
  Run(wheel, "d0 m13 u13");
  EXPECT_EQ(wheel.GetRotation(), 30 - 130 + 3 * 40);
  EXPECT_FLOAT_EQ(wheel.GetCurrentValue(), 363);
  // Clamped at both ends while the strip keeps turning.
  wheel.SetMaxValue(352);
  wheel.SetMinValue(348);
  Run(wheel, "d0 m5");
  EXPECT_FLOAT_EQ(wheel.GetCurrentValue(), 352);
  const int turned = wheel.GetRotation();
  Run(wheel, "m6 u6");
  EXPECT_FLOAT_EQ(wheel.GetCurrentValue(), 352);
  EXPECT_NE(wheel.GetRotation(), turned);
  Run(wheel, "d20 m0 u0");
  EXPECT_FLOAT_EQ(wheel.GetCurrentValue(), 348);
}

TEST_F(ThumbWheelTest, MouseWheelNotchTurnsLikeOnePixel) {
  auto notch = [&](VornThumbWheelControl& w, int rotation) {
    rec.log.clear();
    wxMouseEvent e = MakeMouseEvent(&w, wxEVT_MOUSEWHEEL, 3, 2);
    e.m_wheelRotation = rotation;
    e.m_wheelDelta = 120;
    w.GetEventHandler()->ProcessEvent(e);
    return rec.Take();
  };
  wheel.SetCurrentValue(350);
  EXPECT_EQ(notch(wheel, 120), "sel 7 drag 7 changing 351 0 unsel 7 changed 351 0");
  upright.SetCurrentValue(350);
  notch(upright, -240);
  EXPECT_NEAR(upright.GetCurrentValue(), 349.0 * (1 - 1 / 350.0), 1e-3);
  wheel.SetEnabled(false);
  EXPECT_EQ(notch(wheel, 120), "");
}

TEST_F(ThumbWheelTest, DrawsTheStripThroughTheWindowUnderTheFrame) {
  auto row = [&](VornThumbWheelControl& w) {
    const wxBitmap bmp = Render(&w, 12, 4);
    std::string s;
    for (int x = 0; x < 12; ++x) {
      const wxColour p = PixelAt(bmp, x, 1);
      s += p == *wxBLUE ? 'B' : p == *wxRED ? 'r' : p == *wxBLACK ? '.' : '?';
    }
    return s;
  };
  EXPECT_EQ(row(wheel), "B...r...r...");
  Run(wheel, "d5 m4 u4");  // one pixel left: the pattern follows the pointer
  EXPECT_EQ(row(wheel), "B..r...r...r");
  // A half-shown window darkens the strip.
  shown = Solid(12, 4, ColorA(0.5, 0.5, 0.5));
  const wxBitmap dim = Render(&wheel, 12, 4);
  EXPECT_NEAR(PixelAt(dim, 3, 1).Red(), 127, 1);
}

}  // namespace
