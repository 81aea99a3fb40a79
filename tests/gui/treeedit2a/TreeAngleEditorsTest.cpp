// The tree's angle editors: metrics, the callipers and the dial driven by
// the pointer reaching the tree's group as node hints, the selector's range,
// zero and value box, and the two angle sub-controls.
#include <gtest/gtest.h>

#include "../tree/TreeEditorTestSupport.h"

namespace {

using namespace treetest;

using TreeAngleEditorsTest = EditorFixture;

TEST_F(TreeAngleEditorsTest, MetricsFollowTheNameWidthAndTheEditor) {
  const struct {
    VUITreeControlBase* control;
    int width;
  } cases[] = {
      {Make<VUITreeAngleClippers>("n", false), 80 + 118},
      {Make<VUITreeAngleClippers>("n", true), 80 + 118 + 22},
      {Make<VUITreeAngleSelect>("n", false), 80 + 26 + 103},
      {Make<VUITreeLB>("n", false), 80 + 120 + 23},  // the skin's 120-pixel list
  };
  for (const auto& c : cases) {
    NameWidth::Force(c.control, 60);
    EXPECT_EQ(c.control->GetAllignmentPt(), 80);
    EXPECT_EQ(c.control->GetMaxWidth(), c.width);
    EXPECT_EQ(c.control->GetMaxHeight(), 32);
  }
}

TEST_F(TreeAngleEditorsTest, DraggingTheCallipersBecomesNodeHintsAndTheValue) {
  auto* c = Make<VUITreeAngleClippers>("Cone angle", false, 0.25);
  VUITreeSubAngleClippers* jaws = c->GetClippers();
  Mouse(jaws, wxEVT_ENTER_WINDOW, 20, 10);
  Mouse(jaws, wxEVT_LEFT_DOWN, 20, 10);
  Mouse(jaws, wxEVT_MOTION, 23, 10);  // 3 pixels, ten times the step: 30 of 100
  Mouse(jaws, wxEVT_MOTION, 24, 10);
  EXPECT_EQ(tree.hints.Take(), "changing -1 x2");
  Mouse(jaws, wxEVT_LEFT_UP, 24, 10);
  EXPECT_EQ(tree.hints.Take(), "changed -1");
  double v = 0;
  int32 whole = -1;
  ASSERT_TRUE(c->GetValue(v) && c->GetValue(whole));
  EXPECT_NEAR(v, 0.65, 1e-9);
  EXPECT_EQ(whole, 1);
  // The host's value is clamped, moves the jaws and is reported.
  c->SetValue(1.5);
  EXPECT_EQ(tree.hints.Take(), "real 1.000000");
  EXPECT_EQ(jaws->GetTravel(), 100);
  c->SetValue(int32(0));
  EXPECT_EQ(tree.hints.Take(), "real 0.000000");
  EXPECT_EQ(jaws->GetTravel(), 0);
}

TEST_F(TreeAngleEditorsTest, TheSelectorMapsTheDialOntoItsRangeAndShowsItInTheBox) {
  auto* s = Make<VUITreeAngleSelect>("Heading", false, 45.0);
  VUITreeSubAngle* dial = s->GetDial();
  EXPECT_NEAR(dial->GetValue(), 0.125, 1e-6);
  EXPECT_EQ(TextOf(s->GetEditBox()), "45.000000");
  int cx = 0, cy = 0;
  dial->GetCentre(cx, cy);
  // Dragged to straight above the centre: a quarter turn, 90 of 360.
  Mouse(dial, wxEVT_ENTER_WINDOW, cx + 5, cy);
  Mouse(dial, wxEVT_LEFT_DOWN, cx + 5, cy);
  Mouse(dial, wxEVT_MOTION, cx, cy - 8);
  Mouse(dial, wxEVT_LEFT_UP, cx, cy - 8);
  EXPECT_EQ(tree.hints.Take(), "changing -1 changed -1");
  double v = 0;
  ASSERT_TRUE(s->GetValue(v));
  EXPECT_NEAR(v, 90.0, 1e-3);
  EXPECT_EQ(TextOf(s->GetEditBox()).substr(0, 5), "90.00");
  // A typed value is limited to the range.
  s->GetEditBox()->SetText("450", true);
  EXPECT_EQ(tree.hints.Take(), "changed -1");
  EXPECT_EQ(TextOf(s->GetEditBox()), "360.000000");
  // Another range: the turn is a share of 10..20. Only an int is reported.
  s->SetRangeVals(10.0, 20.0);
  s->SetValue(12.5);
  EXPECT_EQ(tree.hints.Take(), "");
  EXPECT_NEAR(dial->GetValue(), 0.25, 1e-6);
  s->SetValue(int32(15));
  EXPECT_EQ(tree.hints.Take(), "int 15");
  EXPECT_NEAR(dial->GetValue(), 0.5, 1e-6);
}

TEST_F(TreeAngleEditorsTest, ZeroTurnsTheDialAndTheDisplayStyleSetsTheBox) {
  auto* s = Make<VUITreeAngleSelect>("Sun", false, 0.0);
  int cx = 0, cy = 0, kx = 0, ky = 0;
  s->GetDial()->GetCentre(cx, cy);
  s->SetZeroVal(90.0);       // the minimum points up
  s->SetClockwiseVal(true);  // unsupported: changes nothing
  s->GetDial()->GetCurPosition(kx, ky);
  EXPECT_EQ(kx, cx);
  EXPECT_LT(ky, cy);
  s->SetValue(33.75);
  s->SetDisplayStyle(VUITreeAngleSelect::DS_WHOLE);
  EXPECT_EQ(TextOf(s->GetEditBox()), "33");
  s->SetDisplayStyle(VUITreeAngleSelect::DS_DIAL_ONLY);
  EXPECT_FALSE(s->GetEditBox()->IsShown());
}

TEST_F(TreeAngleEditorsTest, AngleSubControlsShowASiblingsValueIgnoreTheirOwnAndRefuseText) {
  VornControlGroupValue group;
  VUITreeSubAngle dial(ColorA(1, 1, 1), ColorA(1, 0, 0), 0, 0, 26, 26, frame.Get(), 1, &group);
  VUITreeSubAngleClippers jaws(ColorA(1, 1, 1), ColorA(1, 1, 1), ColorA(1, 0, 0), 10, 0, 30, 110,
                               26, frame.Get(), 2, &group);
  EventLog log;
  RecordingControl sibling{frame.Get(), 3, &group, &log};
  RealValChanging quarter(0.25);
  group.Update(0, &sibling, &quarter);
  EXPECT_NEAR(dial.GetValue(), 0.25, 1e-6);
  EXPECT_DOUBLE_EQ(jaws.GetValue(), 0.25);
  IntValChanged one(1);
  group.Update(0, &sibling, &one);
  EXPECT_DOUBLE_EQ(jaws.GetValue(), 1.0);
  // Shown without a report back: the sibling heard only its own two hints.
  EXPECT_EQ(Joined(log), "update c update c");
  RealValChanging own(0.5);
  jaws.OnUpdate(0, &jaws, &own);
  EXPECT_DOUBLE_EQ(jaws.GetValue(), 1.0);
  StringValChanged text("0.5");
  for (VornControl* c : {static_cast<VornControl*>(&dial), static_cast<VornControl*>(&jaws)})
    EXPECT_EQ(FiredAssertion([&] { c->OnUpdate(0, &sibling, &text); }),
              "dynamic_cast<StringValMessage*>(hint) == __null");
}

}  // namespace
