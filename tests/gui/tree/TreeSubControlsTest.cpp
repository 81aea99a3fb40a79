// The tree's sub-controls: a sibling's value message shown without a report
// back, their own hints ignored, and a text refused by the numeric ones.
#include <gtest/gtest.h>

#include "../ControlTestSupport.h"
#include "vorn/VUIControls.h"

namespace {

BitmapA Solid(int w, int h, const ColorA& c) {
  BitmapA b;
  Create(b, w, h);
  ClearBitmap(b, c);
  return b;
}

VornEditInfo FieldInfo() {
  VornEditInfo info;
  info.x = 2;
  info.y = 2;
  info.width = 80;
  info.height = 14;
  info.colour1 = *wxWHITE;
  info.colour2 = *wxBLUE;
  info.background = *wxBLACK;
  info.font = wxFont(wxFontInfo(9));
  return info;
}

// One inner group as a tree editor wires it: every sub-control plus a
// sibling that sends, and a receiver that logs what reaches the group.
class SubControlsTest : public ::testing::Test {
 protected:
  SubControlsTest() { group.Register(&receiver); }
  ~SubControlsTest() override { group.DeRegister(&receiver); }

  std::string Text(VornEdit& edit) {
    VornString s;
    edit.GetText(s);
    return s;
  }

  TestFrame window{wxSize(400, 200)};
  EventLog log;
  RecordingReceiver receiver{&log};
  VornControlGroupValue group;
  VornEditInfo info = FieldInfo();
  RecordingControl sibling{window.Get(), 1, nullptr, nullptr};
  VUITreeSubEditBox real{nullptr, info, 0, 0, window.Get(), 2, true, VornEdit::ES_REAL, &group};
  VUITreeSubEditBox whole{nullptr, info, 0, 20, window.Get(), 3, true, VornEdit::ES_INT, &group};
  VUITreeSubEditBox text{nullptr, info, 0, 40, window.Get(), 4, true, VornEdit::ES_TEXT, &group};
  std::unique_ptr<VornwxBitmapCache> cache = MakeCache(AllStates(), 14, 14);
  VUITreeSubButtonToggle toggle{cache.get(), 0, 60, window.Get(), 5, &group};
  VUITreeSubSlider slider{*wxWHITE, *wxRED, 0, 80, 100, 16, window.Get(), 6, &group};
  BitmapA frame = Solid(40, 10, ColorA(0, 0, 0, 0)), strip = Solid(60, 10, ColorA(1, 1, 1)),
          shown = Solid(40, 10, ColorA(1, 1, 1));
  VUITreeSubThumbWheel wheel{&frame, &strip, &shown, 0, 100, false, 4, window.Get(), 8, &group};
};

TEST_F(SubControlsTest, ASiblingsValueIsShownByEveryEditorWithoutAReportBack) {
  struct Case {
    const char* what;
    VornControlHint* hint;
    const char *real, *whole, *text;
    bool on;
    double slider, wheel;
  };
  RealValChanging half(0.5);
  RealValChanged beyond(2.75);
  IntValChanged seven(7);
  IntValChanged zero(0);
  const Case cases[] = {
      // Only the real style prints reals; the others print integers.
      {"real 0.5", &half, "0.500000", "0", "0", false, 0.5, 0.5},
      {"real 2.75", &beyond, "2.750000", "2", "2", false, 1.0, 2.75},
      {"int 7", &seven, "7.000000", "7", "7", true, 1.0, 7},
      {"int 0", &zero, "0.000000", "0", "0", false, 0.0, 0},
  };
  for (const Case& c : cases) {
    log.clear();
    group.Update(0, &sibling, c.hint);
    EXPECT_EQ(Text(real), c.real) << c.what;
    EXPECT_EQ(Text(whole), c.whole) << c.what;
    EXPECT_EQ(Text(text), c.text) << c.what;
    EXPECT_EQ(toggle.GetOn(), c.on) << c.what;
    EXPECT_DOUBLE_EQ(slider.GetValue(), c.slider) << c.what;
    EXPECT_NEAR(wheel.GetCurrentValue(), c.wheel, 1e-6) << c.what;
    // Only the sibling's own hint reached the receiver: nothing echoed.
    EXPECT_EQ(log.size(), 1u) << c.what << ": " << Joined(log);
  }
}

TEST_F(SubControlsTest, ATextReachesTheEditBoxesAndIsRefusedByTheNumericEditors) {
  group.DeRegister(&slider, true);
  group.DeRegister(&wheel, true);
  StringValChanged words("left as typed");
  group.Update(0, &sibling, &words);
  EXPECT_EQ(Text(text), "left as typed");
  EXPECT_EQ(Text(whole), "0");  // the int style formats what it is given
  EXPECT_FALSE(toggle.GetOn());
  for (VornControl* numeric :
       {static_cast<VornControl*>(&slider), static_cast<VornControl*>(&wheel)})
    EXPECT_EQ(FiredAssertion([&] { numeric->OnUpdate(0, &sibling, &words); }),
              "dynamic_cast<StringValMessage*>(hint) == __null");
  // Other hints are none of their business.
  VornMomentHint moment(true);
  EXPECT_EQ(FiredAssertion([&] { slider.OnUpdate(0, &sibling, &moment); }), "");
}

TEST_F(SubControlsTest, ASubControlIgnoresTheHintsItSentItself) {
  real.SetText("1.250000");
  whole.SetText("3");
  slider.SetValue(0.25, false);
  wheel.SetCurrentValue(4);
  toggle.SetOn(true);
  RealValChanged value(0.75);
  IntValChanged off(0);
  for (VornControl* self : std::initializer_list<VornControl*>{&real, &whole, &slider, &wheel})
    self->OnUpdate(0, self, &value);
  toggle.OnUpdate(0, &toggle, &off);
  EXPECT_EQ(Text(real), "1.250000");
  EXPECT_EQ(Text(whole), "3");
  EXPECT_DOUBLE_EQ(slider.GetValue(), 0.25);
  EXPECT_FLOAT_EQ(wheel.GetCurrentValue(), 4);
  EXPECT_TRUE(toggle.GetOn());
  // The same hints from a sibling are taken.
  slider.OnUpdate(0, &sibling, &value);
  toggle.OnUpdate(0, &sibling, &off);
  EXPECT_DOUBLE_EQ(slider.GetValue(), 0.75);
  EXPECT_FALSE(toggle.GetOn());
}

TEST_F(SubControlsTest, AUserDragOnTheSliderReachesItsSiblingsButNotItselfAgain) {
  // The value box beside a slider follows the thumb; the slider's own
  // RealValChanging comes back to it through the group and is ignored.
  Mouse(&slider, wxEVT_ENTER_WINDOW, 5, 8);
  Mouse(&slider, wxEVT_LEFT_DOWN, 5, 8);
  Mouse(&slider, wxEVT_MOTION, 50, 8);
  const double dragged = slider.GetValue();
  Mouse(&slider, wxEVT_LEFT_UP, 50, 8);
  EXPECT_GT(dragged, 0.3);
  EXPECT_DOUBLE_EQ(slider.GetValue(), dragged);
  char expected[32];
  snprintf(expected, sizeof expected, "%.6f", dragged);
  EXPECT_EQ(Text(real), expected);
}

}  // namespace
