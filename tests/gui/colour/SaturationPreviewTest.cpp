// The saturation slider: position and saturation at both ends, relative
// drags with and without Alt, presses on the scale, scrolling.
#include <gtest/gtest.h>

#include "ColourTestSupport.h"

namespace {

TEST(SaturationScale, PositionsAndSaturations) {
  const struct {
    double s;
    int pos;
  } toPos[] = {{1, 3}, {1.5, 3}, {0, 117}, {-1, 117}, {0.5, 59}, {0.99, 5}};
  for (const auto& c : toPos) EXPECT_EQ(SaturationPreview::SatToPos(c.s), c.pos) << c.s;
  const struct {
    int y;
    double s;
  } toSat[] = {{5, 1}, {0, 1}, {115, 0}, {200, 0}, {60, 0.5}};
  for (const auto& c : toSat) EXPECT_DOUBLE_EQ(SaturationPreview::PosToSat(c.y), c.s) << c.y;
}

class SaturationTest : public colourtest::ColourTest {
 protected:
  SaturationPreview* sp = new SaturationPreview(0, 0, 32, 124, frame.Get(), 4, &group);
  static constexpr int kTabX = 25;  // inside the tab's column

  SaturationTest() {
    colours.names = {{sp, "sp"}};
    Arrive(ColourHintCurrentHSV(0.25, 0.5, 0.8));
  }
};

TEST_F(SaturationTest, DragsAreRelativeToThePress) {
  // On the tab (its centre is 59, 3 pixels either side): no jump. Eleven
  // pixels up add a tenth; with Alt a hundredth.
  EXPECT_FALSE(sp->IsSlider(kTabX, 63));
  Mouse(sp, wxEVT_LEFT_DOWN, kTabX, 62);
  EXPECT_EQ(Take(), "sel 4");
  EXPECT_TRUE(sp->IsMouseCaptive());
  Mouse(sp, wxEVT_MOTION, kTabX, 51);
  EXPECT_EQ(Take(), "hsv sp 0.25 0.6 0.8");
  Mouse(sp, wxEVT_MOTION, kTabX, 40, false, true);
  EXPECT_EQ(Take(), "hsv sp 0.25 0.52 0.8");
  // Far beyond either end: clamped, and no repeat once there.
  Mouse(sp, wxEVT_MOTION, kTabX, -400);
  Mouse(sp, wxEVT_MOTION, kTabX, -500);
  EXPECT_EQ(Take(), "hsv sp 0.25 1 0.8");
  Mouse(sp, wxEVT_MOTION, kTabX, 62);
  Mouse(sp, wxEVT_LEFT_UP, kTabX, 62);
  EXPECT_EQ(Take(), "hsv sp 0.25 0.5 0.8 unsel 4");
  EXPECT_FALSE(sp->IsMouseCaptive());
}

TEST_F(SaturationTest, PressOnTheScaleJumpsThenDrags) {
  Mouse(sp, wxEVT_LEFT_DOWN, 8, 115);
  Mouse(sp, wxEVT_MOTION, 8, 104);
  Mouse(sp, wxEVT_LEFT_UP, 8, 104);
  EXPECT_EQ(Take(), "sel 4 hsv sp 0.25 0 0.8 hsv sp 0.25 0.1 0.8 unsel 4");
  // Outside the scale and off the tab nothing starts.
  Mouse(sp, wxEVT_LEFT_DOWN, 8, 120);
  Mouse(sp, wxEVT_MOTION, 8, 60);
  Mouse(sp, wxEVT_LEFT_UP, 8, 60);
  EXPECT_EQ(Take(), "");
}

TEST_F(SaturationTest, ScrollingStepsOnePixelOfTheScale) {
  sp->ScrollUp();
  EXPECT_DOUBLE_EQ(sp->GetSaturation(), 0.5 + 1 / 110.0);
  sp->ScrollDown();
  sp->ScrollDown();
  EXPECT_DOUBLE_EQ(sp->GetSaturation(), 0.5 - 1 / 110.0);
  EXPECT_EQ(log.size(), 3u);
  // The wheel scrolls too; at the top a further step sends nothing.
  sp->SetSaturation(1.0);
  log.clear();
  wxMouseEvent wheel(wxEVT_MOUSEWHEEL);
  wheel.m_wheelRotation = 120;
  sp->GetEventHandler()->ProcessEvent(wheel);
  EXPECT_EQ(Take(), "");
  wheel.m_wheelRotation = -120;
  sp->GetEventHandler()->ProcessEvent(wheel);
  EXPECT_DOUBLE_EQ(sp->GetSaturation(), 1.0 - 1 / 110.0);
}

TEST_F(SaturationTest, ScaleShowsTheHueAndValueAtEverySaturation) {
  const wxBitmap shot = Render(sp, 32, 124);
  for (int y : {5, 60, 115}) {
    Color c;
    c.HSVtoRGB(0.25, SaturationPreview::PosToSat(y), 0.8);
    EXPECT_EQ(PixelAt(shot, 8, y), wxColour(int(c.r * 255), int(c.g * 255), int(c.b * 255))) << y;
  }
}

}  // namespace
