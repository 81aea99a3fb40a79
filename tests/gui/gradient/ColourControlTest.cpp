// The strip of control points: positions, hit bands, the hold before an
// already selected point follows, marks, double-click adding, assertions
// and drawing.
#include "GradientTestSupport.h"

using namespace gradtest;

namespace {

// The point at 0.5 (index 2) is drawn at x = 110 on a 220-wide strip.
constexpr int kMid = 110;

TEST_F(GradientTest, LogicalAndPixelPositionsFollowTheMarginsAndTheDisplayedPart) {
  ColourControl* c = MakeStrip();
  c->SetDisplayRange(0.25, 0.75);
  EXPECT_EQ(c->GetActiveWidth(), 200);
  const struct {
    int x;
    double v;
  } cases[] = {{0, 0.25}, {10, 0.25}, {60, 0.375}, {110, 0.5}, {210, 0.75}, {215, 0.75}};
  for (const auto& k : cases) EXPECT_DOUBLE_EQ(c->CalcLogicalPosition(k.x), k.v) << k.x;
  for (int x = 10; x <= 210; x += 7) EXPECT_EQ(c->CalcPixelPosition(c->CalcLogicalPosition(x)), x);
  c->SetSpace(20, 40);
  EXPECT_EQ(c->GetActiveWidth(), 160);
  EXPECT_DOUBLE_EQ(c->CalcLogicalPosition(100), 0.5);
  EXPECT_EQ(c->CalcPixelPosition(0.75), 180);
}

TEST_F(GradientTest, APressSelectsAPointOnlyInsideItsHitColumn) {
  const struct {
    int dx, y;
    bool selects, arms;
  } cases[] = {{6, 10, true, true},    {-6, 10, true, true}, {7, 10, false, false},
               {-7, 10, false, false}, {0, 15, true, true},  {0, 16, true, false},
               {3, 49, true, false},   {0, 50, false, false}};
  for (const auto& k : cases) {
    ColourControl* c = MakeStrip();
    Mouse(c, wxEVT_LEFT_DOWN, kMid + k.dx, k.y);
    EXPECT_EQ(c->GetSelect(), k.selects ? 2u : 0u) << k.dx << "," << k.y;
    EXPECT_EQ(c->IsDragArmed(), k.arms) << k.dx << "," << k.y;
    EXPECT_EQ(Take(), k.selects ? "select 2" : "") << k.dx << "," << k.y;
    c->Destroy();
  }
}

TEST_F(GradientTest, AnEmptyGradientSelectsNothingAndSaysSo) {
  gradient.Clear();
  ColourControl* c = MakeStrip();
  CaptureDprintf debug;
  Mouse(c, wxEVT_LEFT_DOWN, kMid, 4);
  EXPECT_EQ(c->GetSelect(), 0u);
  EXPECT_TRUE(debug.Contains("No closest gradient point\n"));
}

TEST_F(GradientTest, AFreshlySelectedPointFollowsThePointerAtOnce) {
  ColourControl* c = MakeStrip();
  Mouse(c, wxEVT_LEFT_DOWN, kMid, 4);
  Mouse(c, wxEVT_MOTION, kMid + 20, 4);
  EXPECT_DOUBLE_EQ(Pos(2), 0.6);
  Mouse(c, wxEVT_LEFT_UP, kMid + 40, 4);
  EXPECT_DOUBLE_EQ(Pos(2), 0.7);
  EXPECT_EQ(Take(), "select 2 move 0.5 0.6 move 0.6 0.7 unsel 7");
  EXPECT_FALSE(c->IsDragArmed());
}

// On a point that is already selected the press only prepares the drag.
TEST_F(GradientTest, ASelectedPointMovesOnlyAfterBeingHeldStill) {
  ColourControl* c = MakeStrip();
  c->SetSelect(2);
  CaptureDprintf debug;
  const struct {
    long heldMs;
    int firstDx;  // the first motion
    bool follows;
  } cases[] = {{50, 2, false}, {100, 2, false}, {101, 2, true}, {300, 30, true}, {50, 1, true}};
  for (const auto& k : cases) {
    ThreePoints(gradient);
    Mouse(c, wxEVT_LEFT_DOWN, kMid, 4);
    EXPECT_FALSE(c->IsDragArmed());
    now += k.heldMs;
    Mouse(c, wxEVT_MOTION, kMid + k.firstDx, 4);
    now += 200;
    Mouse(c, wxEVT_MOTION, kMid + 40, 4);
    EXPECT_EQ(Pos(2) != 0.5, k.follows) << k.heldMs << " " << k.firstDx;
    Mouse(c, wxEVT_LEFT_UP, kMid + 40, 4);
  }
  EXPECT_TRUE(debug.Contains("Prepare mouse drag\n"));
  EXPECT_TRUE(debug.Contains("Cancelled mouse drag\n"));
  EXPECT_TRUE(debug.Contains("Tracking mouse drag\n"));
}

TEST_F(GradientTest, SmallStraysDuringTheHoldKeepTheDragPending) {
  ColourControl* c = MakeStrip();
  c->SetSelect(2);
  Mouse(c, wxEVT_LEFT_DOWN, kMid, 4);
  now += 30;
  Mouse(c, wxEVT_MOTION, kMid + 1, 5);  // one pixel: still waiting
  EXPECT_TRUE(c->IsDragPending());
  now += 80;
  Mouse(c, wxEVT_MOTION, kMid + 20, 5);
  EXPECT_TRUE(c->IsDragArmed());
  EXPECT_DOUBLE_EQ(Pos(2), 0.6);
}

TEST_F(GradientTest, AClickOnAMarkTogglesItWhenReleasedInTheSameBand) {
  const struct {
    int pressY, releaseDx, releaseY;
    bool toggles;
  } cases[] = {{19, 0, 19, true},   {16, 3, 22, true},  {19, 4, 19, false},
               {19, -4, 19, false}, {19, 0, 28, false}, {24, 0, 24, false}};
  for (int mark = 0; mark < 3; ++mark)
    for (const auto& k : cases) {
      ThreePoints(gradient);
      ColourControl* c = MakeStrip();
      const int shift = 12 * mark;  // the second and third bands
      Mouse(c, wxEVT_LEFT_DOWN, kMid, k.pressY + shift);
      Take();
      Mouse(c, wxEVT_LEFT_UP, kMid + k.releaseDx, k.releaseY + shift);
      Gradient::CONTROL_POINT p;
      gradient.GetPoint(2, p);
      const bool marks[3] = {p.mark1, p.mark2, p.mark3};
      for (int i = 0; i < 3; ++i)
        EXPECT_EQ(marks[i], k.toggles && i == mark)
            << mark << " " << k.pressY << " " << k.releaseDx;
      EXPECT_EQ(Take(), k.toggles ? "move 0.5 0.5" : "") << mark << " " << k.pressY;
      c->Destroy();
    }
}

TEST_F(GradientTest, ADoubleClickOnEmptyStripAddsAPointOfTheGradientsColour) {
  ColourControl* c = MakeStrip();
  Mouse(c, wxEVT_LEFT_DCLICK, 85, 10);  // 0.375, between red and green
  ASSERT_EQ(gradient.GetNumPoints(), 4);
  Gradient::CONTROL_POINT p;
  ASSERT_TRUE(gradient.GetPoint(4, p));
  EXPECT_DOUBLE_EQ(p.position, 0.375);
  EXPECT_NEAR(p.colour.r, 0.5, 1e-9);
  EXPECT_NEAR(p.colour.g, 0.5, 1e-9);
  EXPECT_EQ(c->GetSelect(), 4u);
  EXPECT_EQ(Take(), "add 4");
  Mouse(c, wxEVT_LEFT_UP, 85, 10);
  Mouse(c, wxEVT_LEFT_DCLICK, kMid + 3, 10);  // on a point: a press, nothing added
  EXPECT_EQ(gradient.GetNumPoints(), 4);
  EXPECT_EQ(c->GetSelect(), 2u);
}

TEST_F(GradientTest, ADragBeyondTheDisplayedPartAsksToScroll) {
  ColourControl* c = MakeStrip();
  c->SetDisplayRange(0.25, 0.75);
  Mouse(c, wxEVT_LEFT_DOWN, kMid, 4);
  Take();
  Mouse(c, wxEVT_MOTION, 216, 4);
  EXPECT_EQ(Take(), "scroll up 0.725 move 0.5 0.75");
  Mouse(c, wxEVT_MOTION, 3, 4);
  EXPECT_EQ(Take(), "scroll down 0.725 move 0.75 0.25");
  c->TrackDrag(0.9);  // directly: outside the displayed part
  EXPECT_EQ(Take(), "scroll up 0.725 move 0.25 0.9");
}

TEST_F(GradientTest, EveryStripAssertionNamesItsCondition) {
  ColourControl* c = MakeStrip();
  EXPECT_EQ(FiredAssertion([&] { c->TrackDrag(-0.1); }), "val >= 0.0");
  EXPECT_EQ(FiredAssertion([&] { c->TrackDrag(1.1); }), "val <= 1.0");
  EXPECT_EQ(FiredAssertion([&] { c->TrackDrag(0.5); }), "m_bDragSelected");
  Mouse(c, wxEVT_LEFT_DOWN, kMid, 4);  // armed
  GradientHintSelect none(0);
  c->OnUpdate(0, nullptr, &none);
  EXPECT_EQ(FiredAssertion([&] { c->TrackDrag(0.5); }), "0 != m_selected");
  EXPECT_EQ(FiredAssertion([&] { c->SetMouseDownLeft(false); }), "m_selected != 0");
  c->ReleaseMouse();

  Gradient::CONTROL_POINT p;
  EXPECT_EQ(FiredAssertion([&] { c->SetTree(p, p); }), "m_pTree");
  ColourControl bare;
  EXPECT_EQ(FiredAssertion([&] { bare.SetTree(p, p); }), "m_bInit");
  auto* tree = reinterpret_cast<VornMainVUITreeControl*>(c);  // only tested against null
  auto* node = reinterpret_cast<VornVUIControlNode*>(c);
  const char* missing[] = {"m_pNodePos", "m_pNodeRed", "m_pNodeGreen", "m_pNodeBlue"};
  for (int i = 0; i < 4; ++i) {
    c->SetTreeNodes(tree, i == 0 ? nullptr : node, i == 1 ? nullptr : node, i == 2 ? nullptr : node,
                    i == 3 ? nullptr : node);
    EXPECT_EQ(FiredAssertion([&] { c->SetTree(p, p); }), missing[i]);
  }
  c->SetTreeNodes(nullptr, nullptr, nullptr, nullptr, nullptr);

  gradient.AddPoint(1.5, Color());
  EXPECT_EQ(FiredAssertion([&] { Render(c, 220, 96); }), "val >= 0.0 && val <= 1.0");
}

// The strip, an unselected point's triangle, the selected point's handle,
// marks (filled when set) and the colour dot, read back from the pixels.
TEST_F(GradientTest, TheStripDrawsThePointsAndTheSelectedPointsMarks) {
  ColourControl* c = MakeStrip();
  c->SetBgColour(wxColour(10, 20, 30));
  c->SetFgColour(wxColour(200, 200, 200));
  c->SetHandleColour(wxColour(0, 128, 128));
  Gradient::CONTROL_POINT p;
  gradient.GetPoint(2, p);
  p.mark2 = true;
  gradient.SetPoint(2, p);
  c->SetSelect(2);
  const wxBitmap shot = Render(c, 220, 96);
  EXPECT_EQ(PixelAt(shot, 60, 2), wxColour(255, 0, 0));        // red triangle
  EXPECT_EQ(PixelAt(shot, 160, 2), wxColour(0, 0, 255));       // blue triangle
  EXPECT_EQ(PixelAt(shot, 110, 3), wxColour(0, 128, 128));     // handle
  EXPECT_EQ(PixelAt(shot, 85, 11), wxColour(127, 127, 0));     // strip at 0.375
  EXPECT_EQ(PixelAt(shot, 110, 19), wxColour(10, 20, 30));     // first mark: clear
  EXPECT_EQ(PixelAt(shot, 110, 31), wxColour(200, 200, 200));  // second: set
  EXPECT_EQ(PixelAt(shot, 200, 85), wxColour(0, 255, 0));      // the colour dot
  EXPECT_EQ(PixelAt(shot, 30, 60), wxColour(10, 20, 30));
  c->SetSelect(0);
  EXPECT_EQ(PixelAt(Render(c, 220, 96), 200, 85), wxColour(10, 20, 30));
}

}  // namespace
