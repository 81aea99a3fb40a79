// The angle dial: zero offset, pointer mapping, fine mode across the seam,
// notifications, and what the three dials draw.
#include <gtest/gtest.h>

#include "InstrumentTestSupport.h"

namespace {

constexpr int kId = 5;
constexpr int kCx = 60, kCy = 60, kRadius = 40;

class AngleControlTest : public ::testing::Test {
 protected:
  TestFrame frame{wxSize(300, 200)};
  EventLog log;
  ValueLogGroup group{&log};
  VornAngleControl* dial =
      new VornAngleControl(kCx, kCy, kRadius, 0, 0, 120, 120, frame.Get(), kId, &group);

  wxPoint Knob() const {
    wxPoint p;
    dial->GetCurPosition(p.x, p.y);
    return p;
  }
  void Move(int x, int y, bool shift = false, bool alt = false) {
    Mouse(dial, wxEVT_MOTION, x, y, shift, alt);
  }
};

TEST(GetZeroToOne, WrapsIntoTheUnitRange) {
  const std::pair<float, float> cases[] = {{0.f, 0.f},   {0.25f, 0.25f},  {1.25f, 0.25f},
                                           {3.5f, 0.5f}, {-0.25f, 0.75f}, {-1.75f, 0.25f},
                                           {-0.5f, 0.5f}};
  for (auto [in, out] : cases) EXPECT_NEAR(GetZeroToOne(in), out, 1e-6) << in;
}

TEST_F(AngleControlTest, ZeroOffsetShiftsTheTurn) {
  const struct {
    double zero;
    float value, turn;
    wxPoint knob;
  } cases[] = {
      {0, 0.0f, 0.0f, {kCx + kRadius, kCy}},
      {0, 0.25f, 0.25f, {kCx, kCy - kRadius}},
      {90, 0.0f, 0.25f, {kCx, kCy - kRadius}},  // straight up
      {90, 0.5f, 0.75f, {kCx, kCy + kRadius}},
      {180, 0.9f, 0.4f, {kCx - 32, kCy - 23}},  // 0.9 + 0.5 wraps once
      {270, 0.25f, 1.0f, {kCx + kRadius, kCy}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << "zero " << c.zero << " value " << c.value);
    dial->SetZeroVal(c.zero);
    EXPECT_EQ(dial->GetZeroVal(), c.zero);
    EXPECT_NEAR(dial->GetValue(), 0.0, 1e-6);
    dial->SetValue(c.value, false);
    EXPECT_NEAR(dial->GetTurn(), c.turn, 1e-6);
    EXPECT_NEAR(GetZeroToOne(dial->GetValue()), c.value, 1e-6);
    EXPECT_EQ(Knob(), c.knob);
  }
  EXPECT_EQ(Joined(log), "");
  dial->SetValue(0.5f, true);
  EXPECT_EQ(Joined(log), "drag 5 changing 0.500");
}

TEST_F(AngleControlTest, PointerDirectionGivesTheValue) {
  const struct {
    wxPoint pointer;
    double zero;
    const char* value;
    wxPoint knob;
  } cases[] = {
      {{kCx + 10, kCy}, 0, "0.000", {kCx + kRadius, kCy}},  // right
      {{kCx, kCy - 70}, 0, "0.250", {kCx, kCy - kRadius}},  // above
      {{kCx - 3, kCy}, 0, "0.500", {kCx - kRadius, kCy}},
      {{kCx, kCy + 9}, 0, "0.750", {kCx, kCy + kRadius}},
      // The knob is truncated after the centre is added.
      {{kCx + 20, kCy - 20}, 0, "0.125", {kCx + 28, kCy - 29}},
      {{kCx, kCy - 70}, 90, "0.000", {kCx, kCy - kRadius}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << c.pointer.x << "," << c.pointer.y);
    dial->SetZeroVal(c.zero);
    log.clear();
    Mouse(dial, wxEVT_LEFT_DOWN, kCx, kCy);
    Move(c.pointer.x, c.pointer.y);
    Mouse(dial, wxEVT_LEFT_UP, c.pointer.x, c.pointer.y);
    const std::string v = c.value;
    EXPECT_EQ(Joined(log), "sel 5 drag 5 changing " + v + " unsel 5 changed " + v);
    EXPECT_EQ(Knob(), c.knob);
  }
  // Without a pressed button the pointer changes nothing; the centre has no
  // direction.
  log.clear();
  Move(kCx - 30, kCy);
  dial->SetValue(kCx, kCy);
  EXPECT_EQ(Joined(log), "");
  EXPECT_EQ(Knob(), wxPoint(kCx, kCy - kRadius));
}

TEST_F(AngleControlTest, FineModeTurnsATenthAcrossTheSeam) {
  for (bool shift : {true, false}) {
    SCOPED_TRACE(shift ? "shift" : "alt");
    dial->SetValue(0.97f, false);
    const wxPoint start = OnCircle(kCx, kCy, 50, 0.97);
    Mouse(dial, wxEVT_LEFT_DOWN, start.x, start.y, shift, !shift);
    double last = dial->GetValue();
    double largestStep = 0.0;
    for (int step = 1; step <= 360; ++step) {
      const wxPoint p = OnCircle(kCx, kCy, 50, 0.97 + step / 360.0);
      Move(p.x, p.y, shift, !shift);
      largestStep = std::max(largestStep, TurnDistance(dial->GetValue(), last));
      last = dial->GetValue();
    }
    Mouse(dial, wxEVT_LEFT_UP, start.x, start.y, shift, !shift);
    EXPECT_NEAR(dial->GetValue(), 0.07, 0.002);
    EXPECT_LT(largestStep, 0.001);  // continuous, no jump at the seam
    // Back the other way: clockwise a half circle is a twentieth.
    Mouse(dial, wxEVT_LEFT_DOWN, start.x, start.y, shift, !shift);
    for (int step = 1; step <= 180; ++step) {
      const wxPoint p = OnCircle(kCx, kCy, 50, 0.07 - step / 360.0);
      Move(p.x, p.y, shift, !shift);
    }
    Mouse(dial, wxEVT_LEFT_UP, start.x, start.y, shift, !shift);
    EXPECT_NEAR(dial->GetValue(), 0.02, 0.002);
  }
}

TEST_F(AngleControlTest, DialsDrawTheirKnob) {
  dial->SetBgColour(wxColour(20, 30, 40));
  dial->SetValue(0.25f, false);
  const wxBitmap plain = Render(dial, 120, 120);
  EXPECT_EQ(PixelAt(plain, kCx, kCy - kRadius), wxColour(0, 0, 255));
  EXPECT_EQ(PixelAt(plain, kCx + kRadius, kCy), wxColour(20, 30, 40));
  EXPECT_GT(CountNear(plain, wxColour(0, 0, 255), 0), 50);

  // The B dial: a ring and a needle from the centre to the knob.
  auto* b = new VornAngleControlB(ColorA(0, 1, 0), ColorA(1, 0, 0), 130, 0, 100, 100, frame.Get(),
                                  6, &group);
  b->SetBgColour(*wxBLACK);
  b->SetValue(0.5f, false);
  // Centre (50, 50), radius 47: the knob at (3, 50).
  const int cx = 50, cy = 50, kx = 3;
  const wxBitmap drawn = Render(b, 100, 100);
  EXPECT_GT(PixelAt(drawn, (cx + kx) / 2, cy).Red(), 200);          // needle
  EXPECT_GT(PixelAt(drawn, cx, cy - b->GetRadius()).Green(), 100);  // ring
  EXPECT_EQ(PixelAt(drawn, cx + 10, cy + 10), *wxBLACK);
}

// A hand layer pointing up from the middle of a 41 x 41 picture.
BitmapA Hand() {
  BitmapA hand;
  Create(hand, 41, 41);
  for (int y = 2; y <= 20; ++y)
    for (int x = 19; x <= 21; ++x) Set(hand, x, y, ColorA(1, 1, 0, 1));
  return hand;
}

TEST_F(AngleControlTest, ClockHandTurnsTwicePerValueRange) {
  BitmapA face;
  Create(face, 60, 60);
  ClearBitmap(face, ColorA(0, 0, 0.5, 1));
  VornBitmapACache faces;
  faces.AssignImage(VIT_OFF, &face);
  const BitmapA hand = Hand();
  auto* clock = new VornTimeControl(&faces, &hand, 25, 140, 0, 60, 60, frame.Get(), 8, &group);
  EXPECT_EQ(clock->GetImage(), &hand);
  // The hand's tip, clockwise from the top: value 0.125 is a quarter turn.
  const struct {
    float value;
    wxPoint tip;
  } cases[] = {{0.0f, {30, 15}},   {0.125f, {45, 30}}, {0.25f, {30, 45}},
               {0.375f, {15, 30}}, {0.5f, {30, 15}},   {0.625f, {45, 30}}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.value);
    clock->SetValue(c.value, false);
    const wxBitmap drawn = Render(clock, 60, 60);
    const wxColour tip = PixelAt(drawn, c.tip.x, c.tip.y);
    EXPECT_TRUE(tip.Red() > 240 && tip.Green() > 240 && tip.Blue() < 10) << tip.GetAsString();
    EXPECT_EQ(PixelAt(drawn, 60 - c.tip.x, 60 - c.tip.y), wxColour(0, 0, 127));
  }
  // The face follows the state, through the fallback chain.
  BitmapA down;
  Create(down, 60, 60);
  ClearBitmap(down, ColorA(0.5, 0, 0, 1));
  faces.AssignImage(VIT_OFF_DOWN, &down);
  Mouse(clock, wxEVT_LEFT_DOWN, 5, 5);
  EXPECT_EQ(clock->GetState(), VIT_OFF_DOWN);
  EXPECT_EQ(PixelAt(Render(clock, 60, 60), 5, 5), wxColour(127, 0, 0));
  Mouse(clock, wxEVT_LEFT_UP, 5, 5);
  clock->SetEnabled(false);
  EXPECT_EQ(PixelAt(Render(clock, 60, 60), 5, 5), wxColour(0, 0, 127));
}

}  // namespace
