// Compass strip, artificial horizon and callipers: their value arithmetic
// under real mouse events, what reaches the group, and what they draw.
#include <gtest/gtest.h>

#include <cmath>

#include "InstrumentTestSupport.h"

namespace {

class InstrumentControlTest : public ::testing::Test {
 protected:
  TestFrame frame{wxSize(400, 300)};
  EventLog log;
  ValueLogGroup group{&log};
};

// A strip whose column x has red x % 256 and green x / 256.
BitmapA NumberedStrip(int width, int height) {
  BitmapA strip;
  Create(strip, width, height);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) {
      unsigned char* p = strip.Pixel(x, y);
      p[0] = static_cast<unsigned char>(x % 256);
      p[1] = static_cast<unsigned char>(x / 256);
      p[2] = 0;
      p[3] = 255;
    }
  return strip;
}
int ColumnAt(const wxBitmap& bmp, int x, int y) {
  const wxColour c = PixelAt(bmp, x, y);
  return c.Red() + 256 * c.Green();
}

TEST_F(InstrumentControlTest, CompassStepsAndWraps) {
  const BitmapA strip = NumberedStrip(VornCompassControl::kPeriod, 10);
  VornCompassControl compass(&strip, nullptr, nullptr, 0, 0, 100, 10, frame.Get(), 9, &group);
  for (int i = 0; i < 10; ++i) compass.MoveLeft();
  EXPECT_EQ(compass.GetOffset(), 100);
  EXPECT_FLOAT_EQ(compass.GetValue(), 100.0f / 3210);
  EXPECT_EQ(Joined(log), "sel 9 sel 9 sel 9 sel 9 sel 9 sel 9 sel 9 sel 9 sel 9 sel 9");
  // The heading sits under the middle; the strip joins across its end.
  wxBitmap drawn = Render(&compass, 100, 10);
  EXPECT_EQ(ColumnAt(drawn, 50, 5), 100);
  EXPECT_EQ(ColumnAt(drawn, 0, 5), 50);
  compass.SetValue(0.0f);
  drawn = Render(&compass, 100, 10);
  EXPECT_EQ(ColumnAt(drawn, 50, 5), 0);
  EXPECT_EQ(ColumnAt(drawn, 49, 5), 3209);
  EXPECT_EQ(ColumnAt(drawn, 0, 5), 3160);

  log.clear();
  const struct {
    float start;
    bool left;
    int offset;
  } steps[] = {{0.0f, false, 3200},
               {3205.0f / 3210, true, 5},
               {1.0f, false, 3200},
               {3200.0f / 3210, true, 3210}};
  for (const auto& s : steps) {
    compass.SetValue(s.start);
    s.left ? compass.MoveLeft() : compass.MoveRight();
    EXPECT_EQ(compass.GetOffset(), s.offset) << s.start;
  }
  EXPECT_EQ(log.size(), 4u);  // SetValue(float) reports nothing

  // Drags move the strip ten times as fast as the pointer, or at its speed
  // with the meta key; far drags still wrap into one period.
  compass.SetValue(0.5f);
  const int half = compass.GetOffset();
  Mouse(&compass, wxEVT_LEFT_DOWN, 50, 5);
  Mouse(&compass, wxEVT_MOTION, 53, 5);
  EXPECT_EQ(compass.GetOffset(), half - 30);
  Mouse(&compass, wxEVT_MOTION, 46, 5, true);
  EXPECT_EQ(compass.GetOffset(), half - 23);
  Mouse(&compass, wxEVT_MOTION, 46 + 700, 5);
  EXPECT_GE(compass.GetOffset(), 0);
  EXPECT_LE(compass.GetOffset(), 3210);
  EXPECT_EQ(compass.GetOffset(), ((half - 23 - 7000) % 3210 + 3210) % 3210);
  Mouse(&compass, wxEVT_LEFT_UP, 746, 5);
  Mouse(&compass, wxEVT_MOTION, 0, 5);
  EXPECT_EQ(compass.GetOffset(), ((half - 23 - 7000) % 3210 + 3210) % 3210);
}

constexpr int kCx = 60, kCy = 60, kR = 40;

std::vector<int> Coords(const VornAHorizonControl& h) {
  const VornAHorizonControl::Handles p = h.GetHandles();
  return {p.a.x, p.a.y, p.b.x, p.b.y, p.c.x, p.c.y, p.end1.x, p.end1.y, p.end2.x, p.end2.y};
}

TEST_F(InstrumentControlTest, HorizonHandlesFollowRollAndPitch) {
  VornAHorizonControl horizon(nullptr, kCx, kCy, kR, 0, 0, 120, 120, frame.Get(), 11, &group);
  // Level: A right, B left, C in the middle of a vertical track.
  EXPECT_EQ(Coords(horizon), std::vector<int>({100, 60, 20, 60, 60, 60, 60, 100, 60, 20}));
  // The pitch puts C along the track; outside 0..1 it is held at the nearer
  // end, as a drag's is, so that C never leaves the ball.
  const struct {
    float in, pitch;
    wxPoint c;
  } pitches[] = {{0.0f, 0.0f, {60, 20}},      {1.0f, 1.0f, {60, 100}}, {0.25f, 0.25f, {60, 40}},
                 {1e9f, 1.0f, {60, 100}},     {-3.0f, 0.0f, {60, 20}}, {NAN, 0.0f, {60, 20}},
                 {INFINITY, 1.0f, {60, 100}}, {0.5f, 0.5f, {60, 60}}};
  for (const auto& p : pitches) {
    SCOPED_TRACE(p.in);
    horizon.SetPitchValue(p.in);
    EXPECT_FLOAT_EQ(horizon.GetPitchValue(), p.pitch);
    EXPECT_EQ(horizon.GetHandles().c, p.c);
    Render(&horizon, 120, 120);  // draws within the ball
  }
  horizon.SetValue(0.25f);  // A on top, the track across
  EXPECT_EQ(Coords(horizon), std::vector<int>({60, 20, 60, 100, 60, 60, 100, 60, 20, 60}));
  horizon.SetValue(0.125f);
  EXPECT_EQ(Coords(horizon), std::vector<int>({88, 32, 32, 88, 60, 60, 88, 88, 32, 32}));
  int x, y;
  horizon.GetCurPosition(x, y);
  EXPECT_EQ(wxPoint(x, y), wxPoint(88, 32));
  EXPECT_EQ(Joined(log), "");
}

TEST_F(InstrumentControlTest, HorizonHandlesDragAlongTheirTracks) {
  VornAHorizonControl horizon(nullptr, kCx, kCy, kR, 0, 0, 120, 120, frame.Get(), 11, &group);
  auto drag = [&](wxPoint from, std::vector<wxPoint> path) {
    log.clear();
    Mouse(&horizon, wxEVT_LEFT_DOWN, from.x, from.y);
    const bool dragging = horizon.WeCurrentlyDragging();
    for (const wxPoint& p : path) Mouse(&horizon, wxEVT_MOTION, p.x, p.y);
    Mouse(&horizon, wxEVT_LEFT_UP, path.back().x, path.back().y);
    EXPECT_FALSE(horizon.WeCurrentlyDragging());
    return dragging;
  };
  // C along the vertical track: the pointer's y, clamped to the ends.
  EXPECT_TRUE(drag({63, 57}, {{70, 80}}));
  EXPECT_EQ(horizon.GetHandles().c, wxPoint(60, 80));
  EXPECT_FLOAT_EQ(horizon.GetPitchValue(), 0.75f);
  EXPECT_EQ(Joined(log), "drag 11");
  drag({60, 80}, {{60, 150}});
  EXPECT_EQ(horizon.GetHandles().c, wxPoint(60, 100));
  EXPECT_FLOAT_EQ(horizon.GetPitchValue(), 1.0f);

  // A sloped track (roll 1/8, slope 1): C follows the pointer's x motion.
  horizon.SetPitchValue(0.5f);
  horizon.SetValue(0.125f);
  drag({61, 61}, {{66, 70}, {71, 60}});
  EXPECT_EQ(horizon.GetHandles().c, wxPoint(70, 70));
  EXPECT_FLOAT_EQ(horizon.GetPitchValue(), 38.0f / 56);
  EXPECT_EQ(Joined(log), "drag 11 drag 11");
  drag({70, 70}, {{200, 70}});
  EXPECT_EQ(horizon.GetHandles().c, wxPoint(88, 88));
  EXPECT_FLOAT_EQ(horizon.GetPitchValue(), 1.0f);

  // A and B set the roll from the pointer's direction; C keeps its pitch.
  horizon.SetPitchValue(0.5f);
  EXPECT_TRUE(drag({88, 32}, {{60, 5}}));
  EXPECT_FLOAT_EQ(horizon.GetValue(), 0.25f);
  EXPECT_EQ(Coords(horizon), std::vector<int>({60, 20, 60, 100, 60, 60, 100, 60, 20, 60}));
  drag({60, 100}, {{0, 60}});  // B to the left: level again
  EXPECT_NEAR(horizon.GetValue(), 0.0, 1e-6);
  EXPECT_EQ(Coords(horizon), std::vector<int>({100, 60, 20, 60, 60, 60, 60, 100, 60, 20}));
  // Within 5 pixels on both axes, strictly.
  EXPECT_FALSE(drag({105, 60}, {{60, 5}}));
  EXPECT_FALSE(drag({40, 40}, {{60, 5}}));
  EXPECT_EQ(Joined(log), "");
  EXPECT_NEAR(horizon.GetValue(), 0.0, 1e-6);
}

TEST_F(InstrumentControlTest, HorizonSplitsSkyAndGroundAlongTheRollLine) {
  BitmapA ball;
  Create(ball, 40, 40);
  for (int y = 0; y < 40; ++y)
    for (int x = 0; x < 40; ++x) Set(ball, x, y, y < 20 ? ColorA(0, 0, 1) : ColorA(0, 1, 0));
  VornAHorizonControl horizon(&ball, kCx, kCy, kR, 0, 0, 120, 120, frame.Get(), 11, &group);
  horizon.SetBgColour(*wxBLACK);
  auto at = [&](int x, int y) {
    return PixelAt(Render(&horizon, 120, 120), x, y).GetAsString(wxC2S_HTML_SYNTAX).ToStdString();
  };
  EXPECT_EQ(at(60, 40), "#0000FF");  // sky above
  EXPECT_EQ(at(60, 85), "#00FF00");  // ground below
  EXPECT_EQ(at(3, 3), "#000000");    // outside the disc
  horizon.SetValue(0.5f);            // upside down
  EXPECT_EQ(at(60, 40), "#00FF00");
  // The track now runs upwards: pitch 0.8 lifts the horizon (and C, at
  // 60,36) above the point, whose sky lies below it.
  horizon.SetPitchValue(0.8f);
  EXPECT_EQ(at(60, 45), "#0000FF");
  EXPECT_EQ(at(60, 26), "#00FF00");
  horizon.SetPitchValue(0.5f);
  horizon.SetValue(0.25f);  // on its side: sky to the left
  EXPECT_EQ(at(30, 60), "#0000FF");
  EXPECT_EQ(at(80, 70), "#00FF00");
}

TEST_F(InstrumentControlTest, CallipersClampAndNotify) {
  VornAngleClippers callipers(ColorA(1, 1, 1), ColorA(0.5, 0.5, 0.5), ColorA(0, 1, 1), 10, 0, 0,
                              200, 60, frame.Get(), 7, &group);
  // Geometry from the size: pivot, inner and outer jaw radius.
  auto jaws = [&] {
    const VornAngleClippers::Jaws j = callipers.GetJaws();
    return std::vector<int>({j.pivot.x, j.pivot.y, j.inner.x, j.inner.y, j.outer.x, j.outer.y});
  };
  EXPECT_EQ(jaws(), std::vector<int>({165, 30, 190, 30, 195, 30}));
  EXPECT_EQ(callipers.GetLength(), 100);
  const struct {
    double in;
    double value;
    int travel;
    const char* log;
    std::vector<int> jaws;
  } cases[] = {
      {0.5, 0.5, 50, "drag 7 changing 0.500", {165, 30, 182, 13, 186, 9}},
      {0.5, 0.5, 50, "", {165, 30, 182, 13, 186, 9}},      // travel unchanged
      {0.505, 0.505, 50, "", {165, 30, 182, 13, 186, 9}},  // still 50
      {1.7, 1.0, 100, "drag 7 changing 1.000", {165, 30, 165, 5, 165, 0}},
      {-2.0, 0.0, 0, "drag 7 changing 0.000", {165, 30, 190, 30, 195, 30}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.in);
    log.clear();
    callipers.SetValue(c.in, true);
    EXPECT_DOUBLE_EQ(callipers.GetValue(), c.value);
    EXPECT_EQ(callipers.GetTravel(), c.travel);
    EXPECT_EQ(Joined(log), c.log);
    EXPECT_EQ(jaws(), c.jaws);
  }
  log.clear();
  callipers.SetValue(0.3, false);
  EXPECT_EQ(Joined(log), "");

  // Drags: ten travel pixels per pointer pixel, one with the meta key,
  // clamped to the length.
  callipers.SetValue(0.0, false);
  Mouse(&callipers, wxEVT_LEFT_DOWN, 20, 30);
  Mouse(&callipers, wxEVT_MOTION, 23, 50);
  Mouse(&callipers, wxEVT_MOTION, 25, 0, false, true);
  Mouse(&callipers, wxEVT_MOTION, 25, 0);
  Mouse(&callipers, wxEVT_MOTION, 90, 0);
  Mouse(&callipers, wxEVT_MOTION, 95, 0);
  Mouse(&callipers, wxEVT_MOTION, 0, 0, true);
  Mouse(&callipers, wxEVT_LEFT_UP, 0, 0);
  EXPECT_EQ(Joined(log),
            "sel 7 drag 7 changing 0.300 drag 7 changing 0.320 drag 7 changing 1.000 "
            "drag 7 changing 0.050 unsel 7 changed 0.050");
  EXPECT_EQ(callipers.GetTravel(), 5);

  // Vertical callipers follow y.
  VornAngleClippers upright(ColorA(1, 1, 1), ColorA(0.5, 0.5, 0.5), ColorA(0, 1, 1), 4, 0, 70, 200,
                            60, frame.Get(), 12, &group, wxVERTICAL);
  log.clear();
  Mouse(&upright, wxEVT_LEFT_DOWN, 20, 30);
  Mouse(&upright, wxEVT_MOTION, 90, 32);
  Mouse(&upright, wxEVT_LEFT_UP, 90, 32);
  EXPECT_EQ(Joined(log), "sel 12 drag 12 changing 0.500 unsel 12 changed 0.500");
}

TEST_F(InstrumentControlTest, CallipersDrawTheOpenJaw) {
  VornAngleClippers callipers(ColorA(1, 1, 1), ColorA(0.5, 0.5, 0.5), ColorA(0, 1, 1), 10, 0, 0,
                              200, 60, frame.Get(), 7, &group);
  callipers.SetBgColour(*wxBLACK);
  auto marker = [](const wxBitmap& b, wxPoint p) {
    const wxColour c = PixelAt(b, p.x, p.y);
    return c.Red() < 80 && c.Blue() > 200;
  };
  wxBitmap closed = Render(&callipers, 200, 60);
  EXPECT_TRUE(marker(closed, wxPoint(192, 30)));
  EXPECT_FALSE(marker(closed, wxPoint(165, 2)));
  callipers.SetValue(1.0, false);
  wxBitmap open = Render(&callipers, 200, 60);
  EXPECT_TRUE(marker(open, wxPoint(165, 2)));
  EXPECT_FALSE(marker(open, wxPoint(192, 30)));
}

}  // namespace
