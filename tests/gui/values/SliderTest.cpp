// Sliders: the value, the press beside and on the thumb, drags with and
// without fine mode, the notification order, and the three looks.
#include <gtest/gtest.h>

#include "ValueTestSupport.h"
#include "vorn/VornSlider.h"

namespace {

// 110 wide with the default 10-pixel thumb: 100 pixels (1000 tenths) of
// travel, so the value is the thumb's left edge / 100. The band is y 10..20.
class SliderTest : public ::testing::Test {
 protected:
  TestFrame frame{wxSize(300, 200)};
  ValueRecorder rec;
  VornSlider slider{0, 0, 110, 30, frame.Get(), 5, &rec.group};

  std::string Run(const std::string& script, int y = 15) {
    rec.log.clear();
    Drag(&slider, script, y);
    return rec.Take();
  }
};

TEST_F(SliderTest, SetValueClampsAndNotifiesOnRequest) {
  const struct {
    double in, out;
    bool notify;
    const char* log;
  } cases[] = {{1.5, 1.0, true, "drag 5 changing 1 0"},
               {-1, 0.0, true, "drag 5 changing 0 0"},
               {0.25, 0.25, false, ""}};
  for (const auto& c : cases) {
    slider.SetValue(c.in, c.notify);
    EXPECT_DOUBLE_EQ(slider.GetValue(), c.out) << c.in;
    EXPECT_EQ(rec.Take(), c.log) << c.in;
  }
  EXPECT_DOUBLE_EQ(slider.GetCurPosition(), 250);
}

TEST_F(SliderTest, PressBesideTheThumbCentresItAndDragsInOneStep) {
  // The whole gesture, in order: the jump reports only the drag; moves
  // report drag then the changing value; the release unselects, then the
  // final value.
  EXPECT_EQ(Run("d60 m70 u70"), "sel 5 drag 5 drag 5 changing 0.65 0 unsel 5 changed 0.65 0");
  EXPECT_EQ(slider.GetLayout().thumbMiddle, 70);
  EXPECT_FALSE(slider.IsDragging());
  EXPECT_FALSE(slider.IsMouseCaptive());
  // Disabled in the middle of a drag: the drag ends as if released.
  EXPECT_EQ(Run("d40 m45"), "sel 5 drag 5 drag 5 changing 0.4 0");
  slider.SetEnabled(false);
  EXPECT_EQ(rec.Take(), "unsel 5 changed 0.4 0");
  EXPECT_FALSE(slider.IsMouseCaptive());
  EXPECT_EQ(Run("m80 u80"), "");
}

TEST_F(SliderTest, PressOnTheThumbKeepsItAndOutsideTheBandDoesNothing) {
  slider.SetValue(0.5, false);  // thumb over x 50..60
  EXPECT_EQ(Run("d58"), "sel 5");
  EXPECT_DOUBLE_EQ(slider.GetValue(), 0.5);
  EXPECT_TRUE(slider.IsDragging());
  EXPECT_TRUE(slider.IsMouseCaptive());
  EXPECT_EQ(Run("u58"), "unsel 5 changed 0.5 0");
  // Above and below the thumb's band.
  EXPECT_EQ(Run("d80 m90 u90", 9), "");
  EXPECT_EQ(Run("d80 m90 u90", 21), "");
  EXPECT_DOUBLE_EQ(slider.GetValue(), 0.5);
}

TEST_F(SliderTest, DragsFollowThePointer) {
  const struct {
    const char* script;
    double value;
  } cases[] = {
      {"d5 m15", 0.10},
      // Fine mode, Shift or Alt: ten pixels move the thumb one.
      {"d5 m15s", 0.01},
      {"d5 m15a", 0.01},
      {"d5 m6s m7s m8s", 0.003},
      // Held at either end, moving back starts at once.
      {"d5 m400 m105", 0.95},
      {"d5 m-300 m-200 m3", 0.03},
      // Fine mode is not clamped to the control: the pointer's own travel.
      {"d5 m-50s m-40s", 0.01},
  };
  for (const auto& c : cases) {
    slider.SetValue(0.0, false);
    Run(c.script);
    EXPECT_NEAR(slider.GetValue(), c.value, 1e-12) << c.script;
    Run("u0");
  }
}

TEST_F(SliderTest, NoDragWhileTheThumbStaysInTheSameTenth) {
  EXPECT_EQ(Run("d5 m5 m5s"), "sel 5");                      // no movement at all
  EXPECT_EQ(Run("m500 m600 m1000"), "drag 5 changing 1 0");  // held at the end
  EXPECT_EQ(Run("m109s"), "drag 5 changing 0.999 0");
  Run("u0");
  // A setup moves the ends and sets the value to 0 quietly.
  slider.SetupSlider(5, 20, 12, 15);
  EXPECT_EQ(rec.Take(), "");
  EXPECT_EQ(slider.GetCurPosition(), 50);
  EXPECT_EQ(slider.GetGap(), 15);
  EXPECT_EQ(Run("d50 u50"), "sel 5 drag 5 unsel 5 changed 0.5 0");
}

// One colour per picture, so a pixel tells which picture was drawn there.
TEST(SliderLookTest, EachLookDrawsTrackFillAndThumb) {
  TestFrame frame;
  const wxColour kLeft(200, 0, 0), kMiddle(0, 200, 0), kRight(0, 0, 200), kCap(200, 200, 0),
      kFill(0, 200, 200), kThumb(200, 0, 200), kBack(9, 9, 9);
  const wxBitmap left = SolidBitmap(6, 8, kLeft), middle = SolidBitmap(4, 8, kMiddle),
                 right = SolidBitmap(6, 8, kRight), cap = SolidBitmap(6, 8, kCap),
                 fill = SolidBitmap(4, 8, kFill), thumb = SolidBitmap(10, 20, kThumb);
  VornSliderA a(SLIDER_PLAIN, &left, &middle, &right, &cap, &fill, &thumb, 0, 0, 110, 24, kBack,
                frame.Get(), 1, nullptr);
  a.SetValue(0.5, false);  // thumb over x 50..60, its middle at 55
  auto row = [&](const wxBitmap& bmp, std::initializer_list<int> xs, int y = 12) {
    std::string s;
    for (int x : xs) s += PixelAt(bmp, x, y).GetAsString(wxC2S_HTML_SYNTAX) + " ";
    return s;
  };
  auto colours = [](std::initializer_list<wxColour> cs) {
    std::string s;
    for (const wxColour& c : cs) s += c.GetAsString(wxC2S_HTML_SYNTAX) + " ";
    return s;
  };
  EXPECT_EQ(row(Render(&a, 110, 24), {2, 30, 55, 80, 107}),
            colours({kCap, kFill, kThumb, kMiddle, kRight}));
  EXPECT_EQ(row(Render(&a, 110, 24), {55}, 1), colours({kBack}));
  a.SetSliderType(SLIDER_CENTRED);
  a.SetValue(0.1, false);  // fill from the middle (55) back to 15
  EXPECT_EQ(row(Render(&a, 110, 24), {2, 8, 30, 70}), colours({kLeft, kMiddle, kFill, kMiddle}));
  a.SetValue(1.0, false);  // the fill reaches the right end: the mirrored cap
  EXPECT_EQ(row(Render(&a, 110, 24), {3, 80, 104}), colours({kLeft, kFill, kThumb}));
  a.SetEnabled(false);
  const wxBitmap greyed = Render(&a, 110, 24);
  EXPECT_NE(PixelAt(greyed, 80, 12), kFill);
  EXPECT_NE(PixelAt(greyed, 104, 12), kThumb);

  // The base: a block thumb in the foreground colour.
  VornSlider plainSlider(0, 120, 110, 24, frame.Get(), 4, nullptr);
  plainSlider.SetFgColour(kThumb);
  plainSlider.SetValue(1.0, false);
  EXPECT_EQ(row(Render(&plainSlider, 110, 24), {105}), colours({kThumb}));

  VornSliderC c(&middle, &thumb, 0, 40, 110, 24, frame.Get(), 2, nullptr);
  c.SetValue(0.0, false);
  EXPECT_EQ(row(Render(&c, 110, 24), {5, 50}), colours({kThumb, kMiddle}));

  const wxColour kTrack(40, 40, 200), kKnob(240, 240, 40);
  VornSliderB b(kTrack, kKnob, 0, 80, 120, 20, frame.Get(), 3, nullptr);
  b.SetBgColour(kBack);
  b.SetValue(1.0, false);
  const SliderLayout l = b.GetLayout();
  const wxBitmap round = Render(&b, 120, 20);
  EXPECT_EQ(PixelAt(round, l.thumbMiddle, 10), kKnob);
  EXPECT_EQ(PixelAt(round, l.thumbMiddle, 0), kBack);
  // The fill mixes the two colours; it ends at the thumb.
  const wxColour filled = PixelAt(round, l.trackLeft + 5, 10);
  EXPECT_TRUE(filled != kTrack && filled != kKnob && filled != kBack);
  // Anti-aliased: the thumb's rim has in-between shades.
  int shades = 0;
  for (int y = 0; y < 20; ++y)
    for (int x = l.thumbX; x < l.thumbX + l.thumbWidth; ++x) {
      const wxColour p = PixelAt(round, x, y);
      shades += p != kBack && p != kKnob && p != filled && p != kTrack;
    }
  EXPECT_GT(shades, 0);
  b.SetEnabled(false);
  EXPECT_NE(PixelAt(Render(&b, 120, 20), l.thumbMiddle, 10), kKnob);
}

}  // namespace
