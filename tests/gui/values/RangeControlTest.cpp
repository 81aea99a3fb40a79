// Range bars: zoom and scroll values, the three hooks, drags of the window
// and of its end handles (plain and symmetric), and the area assertions.
#include <gtest/gtest.h>

#include "ValueTestSupport.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/VornRangeControl.h"

namespace {

template <class Bar>
class HookedBar : public Bar {
 public:
  template <class... Args>
  HookedBar(EventLog* log, Args&&... args) : Bar(std::forward<Args>(args)...), m_log(log) {}
  void OnSliderChange() override { m_log->push_back("slider"); }
  void OnZoomChange() override { m_log->push_back("zoom"); }
  void OnAnyChange() override { m_log->push_back("any"); }

 private:
  EventLog* m_log;
};

const Color kTrack(0.2, 0.2, 0.2), kBar(0.2, 0.8, 0.8);

// The scroll area runs from x 10 to 210: 200 pixels. At zoom 2 and slider
// 0.5 the window covers x 60..160, its handles 60..66 and 153..159.
class RangeControlTest : public ::testing::Test {
 protected:
  TestFrame frame{wxSize(300, 300)};
  ValueRecorder rec;
  HookedBar<VornRangeControl> bar{&rec.log, kTrack, kBar,    0,           0, 220,       20,
                                  10,       210,    nullptr, frame.Get(), 4, &rec.group};
  HookedBar<VornVertRangeControl> tall{
      &rec.log, kTrack, kBar, 0, 30, 20, 220, 10, 210, nullptr, false, frame.Get(), 6, &rec.group};

  void SetUp() override {
    for (VornRangeBase* b :
         {static_cast<VornRangeBase*>(&bar), static_cast<VornRangeBase*>(&tall)}) {
      b->SetZoomValue(2, false);
      b->SetSliderValue(0.5, false);
    }
  }
  std::string Run(VornRangeBase& b, const std::string& script, bool vertical = false) {
    rec.log.clear();
    Drag(&b, script, 10, vertical);
    return rec.Take();
  }
};

TEST_F(RangeControlTest, SettersRecomputeAndCallTheHooks) {
  EXPECT_DOUBLE_EQ(bar.GetWindowStart(), 0.25);
  EXPECT_EQ(rec.Take(), "");
  bar.SetSliderValue(0.0, true);
  EXPECT_EQ(rec.Take(), "slider any");
  // Zooming keeps the window's middle (0.25) where it is, within the whole.
  bar.SetZoomValue(4, true);
  EXPECT_EQ(rec.Take(), "zoom any");
  EXPECT_DOUBLE_EQ(bar.GetWindowStart(), 0.125);
  EXPECT_DOUBLE_EQ(bar.GetSliderValue(), 0.125 / 0.75);
  // Never below 1, never shorter than the two 7-pixel handles.
  bar.SetZoomValue(0.5, false);
  EXPECT_DOUBLE_EQ(bar.GetZoomValue(), 1.0);
  bar.SetZoomValue(1000, false);
  EXPECT_DOUBLE_EQ(bar.GetZoomValue(), 200.0 / 14);
}

TEST_F(RangeControlTest, DragsScrollOrZoomAboutTheOppositeEnd) {
  const struct {
    const char* script;
    const char* log;
    double start, end;
  } cases[] = {
      // The middle scrolls; the window keeps its length.
      {"d100 m120", "sel 4 slider any drag 4", 0.35, 0.85},
      {"d100 m400", "sel 4 slider any drag 4", 0.5, 1.0},
      // An end handle zooms and the other end stays put.
      {"d62 m82", "sel 4 zoom any drag 4", 0.35, 0.75},
      {"d156 m136", "sel 4 zoom any drag 4", 0.25, 0.65},
      {"d62 m42", "sel 4 zoom any drag 4", 0.15, 0.75},
      {"d62 m500", "sel 4 zoom any drag 4", 0.75 - 14 / 200.0, 0.75},
      // With Alt both ends move about the middle.
      {"d62 m82a", "sel 4 zoom any drag 4", 0.35, 0.65},
      {"d156 m176a", "sel 4 zoom any drag 4", 0.15, 0.85},
      {"d62 m-300a", "sel 4 zoom any drag 4", 0.0, 1.0},
      // A press on the track centres the window there, then drags it.
      {"d30 m40", "slider any sel 4 slider any drag 4", 0.05, 0.55},
      // Nothing moves, nothing is reported; outside the area nothing starts.
      {"d100 m100", "sel 4", 0.25, 0.75},
      {"d5 m50", "", 0.25, 0.75},
  };
  for (const auto& c : cases) {
    SetUp();
    EXPECT_EQ(Run(bar, c.script), c.log) << c.script;
    EXPECT_NEAR(bar.GetWindowStart(), c.start, 1e-9) << c.script;
    EXPECT_NEAR(bar.GetWindowEnd(), c.end, 1e-9) << c.script;
    EXPECT_EQ(Run(bar, "u0"), std::string(c.log).empty() ? "" : "unsel 4") << c.script;
  }
  // The vertical bar works along y.
  EXPECT_EQ(Run(tall, "d62 m82 u82", true), "sel 6 zoom any drag 6 unsel 6");
  EXPECT_NEAR(tall.GetWindowStart(), 0.35, 1e-9);
}

TEST_F(RangeControlTest, AnEmptyScrollAreaIsRefused) {
  EXPECT_EQ(FiredAssertionIn([&] {
              VornRangeControl r(kTrack, kBar, 0, 0, 100, 20, 50, 50, nullptr, frame.Get());
            }).first,
            "scrollX1 < scrollX2");
  EXPECT_EQ(FiredAssertionIn([&] {
              VornVertRangeControl r(kTrack, kBar, 0, 0, 20, 100, 60, 10, nullptr, false,
                                     frame.Get());
            }).first,
            "scrollY1 < scrollY2");
  EXPECT_EQ(FiredAssertionIn([&] { bar.SetSpace(120, 120); }).first, "scrollX1 < scrollX2");
  EXPECT_EQ(bar.GetLayout().trackEnd, 210);  // the refused area is not taken
  bar.SetSpace(20, 20);
  EXPECT_EQ(bar.GetLayout().trackEnd, 200);
}

TEST_F(RangeControlTest, DrawsTrackWindowAndHandles) {
  bar.SetBarHeight(10);
  const wxBitmap bmp = Render(&bar, 220, 20);
  const wxColour track = CtoWxC(kTrack), handle = CtoWxC(kBar);
  EXPECT_EQ(PixelAt(bmp, 30, 10), track);
  EXPECT_EQ(PixelAt(bmp, 61, 10), handle);
  EXPECT_EQ(PixelAt(bmp, 157, 10), handle);
  const wxColour inside = PixelAt(bmp, 100, 10);
  EXPECT_TRUE(inside != track && inside != handle);
  EXPECT_NE(PixelAt(bmp, 30, 2), track);  // outside the 10-pixel bar
  bar.SetEnabled(false);
  EXPECT_NE(PixelAt(Render(&bar, 220, 20), 61, 10), handle);
}

}  // namespace
