// A pitch from outside 0..1 is held at the nearer end of the track, as a
// drag's is, so that the pitch handle never leaves the ball.
#include <gtest/gtest.h>

#include <cmath>

#include "InstrumentTestSupport.h"

TEST(HorizonPitch, OutsideItsRangeIsClampedToTheTrackEnds) {
  TestFrame frame{wxSize(200, 200)};
  VornAHorizonControl horizon(nullptr, 60, 60, 40, 0, 0, 120, 120, frame.Get(), 3, nullptr);
  const struct {
    float in, pitch;
    wxPoint c;
  } cases[] = {{0.25f, 0.25f, wxPoint(60, 40)},    {1e9f, 1.0f, wxPoint(60, 100)},
               {-3.0f, 0.0f, wxPoint(60, 20)},     {NAN, 0.0f, wxPoint(60, 20)},
               {INFINITY, 1.0f, wxPoint(60, 100)}, {0.5f, 0.5f, wxPoint(60, 60)}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.in);
    horizon.SetPitchValue(c.in);
    EXPECT_FLOAT_EQ(horizon.GetPitchValue(), c.pitch);
    EXPECT_EQ(horizon.GetHandles().c, c.c);
    Render(&horizon, 120, 120);  // draws within the ball
  }
}
