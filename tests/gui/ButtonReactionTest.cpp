// What a press and a release mean to each kind of button: the notifications
// its group receives, the on flag, and drags.
#include <gtest/gtest.h>

#include "ControlTestSupport.h"

namespace {

class ButtonReactionTest : public ::testing::Test {
 protected:
  TestFrame frame{wxSize(300, 200)};
  EventLog log;
  RecordingGroup group{&log};
  RecordingReceiver hints{&log};
  std::unique_ptr<VornwxBitmapCache> cache = MakeCache(AllStates());

  void SetUp() override { group.Register(&hints); }
  void TearDown() override { group.DeRegister(&hints); }
};

TEST_F(ButtonReactionTest, BaseButtonOnlyFollowsTheMouseAndPrintsDebugLines) {
  VornButton button(cache.get(), 0, 0, frame.Get(), 7, &group);
  EXPECT_EQ(std::make_pair(24, 16), std::make_pair(button.GetWidth(), button.GetHeight()));
  CaptureDprintf lines;
  Mouse(&button, wxEVT_LEFT_DOWN);
  EXPECT_TRUE(button.GetButtonDown());
  Mouse(&button, wxEVT_LEFT_UP);
  EXPECT_FALSE(button.GetButtonDown());
  EXPECT_EQ((EventLog{"button - mouse down\n", "button - mouse up\n"}), lines.Lines());
  EXPECT_TRUE(log.empty());
  EXPECT_FALSE(button.GetOn());
}

TEST_F(ButtonReactionTest, PushButtonUnselectsOnlyWhenReleasedOverIt) {
  VornPushButton push(cache.get(), 0, 0, frame.Get(), 3, &group);
  Click(&push);
  EXPECT_EQ((EventLog{"sel 3", "unsel 3"}), log);

  // Released outside: leaving clears the press, and the pointer is gone.
  log.clear();
  Mouse(&push, wxEVT_LEFT_DOWN);
  Mouse(&push, wxEVT_LEAVE_WINDOW);
  EXPECT_FALSE(push.GetMouseDown() || push.GetOn());
  EXPECT_EQ((EventLog{"sel 3"}), log);
}

TEST_F(ButtonReactionTest, ToggleFlipsOnReleaseAndReportsTheValue) {
  VornButtonToggle toggle(cache.get(), 0, 0, frame.Get(), 4, &group);
  Mouse(&toggle, wxEVT_LEFT_DOWN);
  EXPECT_TRUE(log.empty());
  EXPECT_FALSE(toggle.GetOn());
  Mouse(&toggle, wxEVT_LEFT_UP);
  EXPECT_TRUE(toggle.GetOn());
  EXPECT_EQ((EventLog{"sel 4", "int 1 4"}), log);
  log.clear();
  Click(&toggle);
  EXPECT_FALSE(toggle.GetOn());
  EXPECT_EQ((EventLog{"unsel 4", "int 0 4"}), log);

  // Released outside without the capture it still flips.
  log.clear();
  Mouse(&toggle, wxEVT_LEFT_DOWN);
  Mouse(&toggle, wxEVT_LEAVE_WINDOW);
  EXPECT_TRUE(toggle.GetOn());
  EXPECT_EQ((EventLog{"sel 4", "int 1 4"}), log);

  // The right button counts as a press too: nothing flips while it is held.
  Mouse(&toggle, wxEVT_LEFT_DOWN);
  Mouse(&toggle, wxEVT_RIGHT_DOWN);
  Mouse(&toggle, wxEVT_LEFT_UP);
  EXPECT_TRUE(toggle.GetOn());
  Mouse(&toggle, wxEVT_RIGHT_UP);
  EXPECT_FALSE(toggle.GetOn());
}

TEST_F(ButtonReactionTest, ThreeRadiosKeepOneOn) {
  VornRadioButton a(cache.get(), 0, 0, frame.Get(), 1, &group);
  VornRadioButton b(cache.get(), 30, 0, frame.Get(), 2, &group);
  VornRadioButton c(cache.get(), 60, 0, frame.Get(), 3, &group);
  a.SetOn(true);
  c.SetOn(true);

  Mouse(&b, wxEVT_LEFT_DOWN);
  EXPECT_TRUE(log.empty());  // nothing happens on press
  Mouse(&b, wxEVT_LEFT_UP);
  EXPECT_EQ(std::vector<bool>({a.GetOn(), b.GetOn(), c.GetOn()}),
            std::vector<bool>({false, true, false}));
  EXPECT_EQ(2u, group.GetSelected());
  EXPECT_EQ((EventLog{"sel 2"}), log);

  // A radio that is on ignores a click ...
  log.clear();
  Click(&b);
  EXPECT_TRUE(b.GetOn());
  EXPECT_TRUE(log.empty());
  // ... unless it may toggle off.
  b.SetToggle(true);
  Click(&b);
  EXPECT_FALSE(b.GetOn());
  EXPECT_EQ((EventLog{"unsel 2"}), log);

  log.clear();
  Click(&c);
  EXPECT_EQ(3u, group.GetSelected());
  EXPECT_EQ((EventLog{"sel 3"}), log);
}

TEST_F(ButtonReactionTest, DisabledOrGrouplessButtons) {
  VornButtonToggle toggle(cache.get(), 0, 0, frame.Get(), 4, &group);
  VornPushButton push(cache.get(), 30, 0, frame.Get(), 5, &group);
  toggle.SetEnabled(false);
  push.SetEnabled(false);
  Click(&toggle);
  Click(&push);
  EXPECT_FALSE(toggle.GetOn());

  // Without a group they still follow the mouse.
  VornButtonToggle lone(cache.get(), 0, 30, frame.Get(), 4, nullptr);
  VornRadioButton radio(cache.get(), 30, 30, frame.Get(), 5, nullptr);
  Mouse(&lone, wxEVT_LEFT_DOWN);
  lone.RecalcState();
  EXPECT_EQ(VIT_OFF_DOWN, lone.GetState());
  Mouse(&lone, wxEVT_LEFT_UP);
  Click(&radio);
  EXPECT_TRUE(lone.GetOn() && radio.GetOn());
  EXPECT_TRUE(log.empty());
}

TEST_F(ButtonReactionTest, TextButtonsReactAsPushAndRadioButtons) {
  VornTextPushButton push("Apply", -1, -1, *wxNORMAL_FONT, *wxWHITE, *wxBLACK, *wxRED, 0, 0, 80, 20,
                          frame.Get(), 8, &group);
  Click(&push);
  EXPECT_EQ((EventLog{"sel 8", "unsel 8"}), log);

  log.clear();
  VornTextRadioButton one(cache.get(), "One", "1", *wxNORMAL_FONT, *wxWHITE, *wxGREEN, *wxRED, 0,
                          30, frame.Get(), 11, &group);
  VornTextRadioButton two(cache.get(), "Two", "", *wxNORMAL_FONT, *wxWHITE, *wxGREEN, *wxRED, 0, 60,
                          frame.Get(), 12, &group);
  Click(&one);
  Click(&two);
  EXPECT_FALSE(one.GetOn());
  Click(&two);
  EXPECT_TRUE(two.GetOn());
  two.SetToggle(true);
  Click(&two);
  EXPECT_FALSE(two.GetOn());
  EXPECT_EQ((EventLog{"sel 11", "sel 12", "unsel 12"}), log);

  // The label colour follows the on and mouse-over states.
  EXPECT_EQ(*wxRED, two.GetTextColour());  // still under the pointer
  Mouse(&two, wxEVT_LEAVE_WINDOW);
  EXPECT_EQ(*wxWHITE, two.GetTextColour());
  Mouse(&one, wxEVT_LEAVE_WINDOW);
  one.SetOn(true);
  EXPECT_EQ(*wxGREEN, one.GetTextColour());
}

TEST_F(ButtonReactionTest, MoonButtonDragsInsideItsParentAndReportsDrags) {
  EventLog valueLog;
  RecordingValueGroup values(&valueLog);
  wxWindow panel(frame.Get(), wxID_ANY, wxPoint(0, 0), wxSize(200, 40));
  VornMoonButton moon(cache.get(), 50, 10, &panel, 9, &values);
  ASSERT_EQ(200, panel.GetClientSize().GetWidth());

  // Pointer positions are given in the parent's coordinates and converted to
  // the button's current client coordinates, as wx would deliver them.
  auto moveTo = [&](int parentX) { Mouse(&moon, wxEVT_MOTION, parentX - moon.GetPosX(), 5); };
  Mouse(&moon, wxEVT_ENTER_WINDOW, 5, 5);
  Mouse(&moon, wxEVT_LEFT_DOWN, 5, 5);
  EXPECT_TRUE(moon.IsMouseCaptive());
  moveTo(85);
  EXPECT_EQ(std::make_pair(80, 10), std::make_pair(moon.GetPosX(), moon.GetPosY()));
  EXPECT_EQ(80, moon.wxWindow::GetPosition().x);
  moveTo(900);
  EXPECT_EQ(200 - 24, moon.GetPosX());
  moveTo(-300);
  EXPECT_EQ(0, moon.GetPosX());
  moveTo(35);  // the pointer keeps its grip on the button
  EXPECT_EQ(30, moon.GetPosX());
  EXPECT_EQ(EventLog(4, "drag 9"), valueLog);

  Mouse(&moon, wxEVT_LEFT_UP, 5, 5);
  EXPECT_FALSE(moon.IsMouseCaptive());
  EXPECT_TRUE(moon.GetOn());
  EXPECT_EQ("sel 9", valueLog.back());
  moveTo(100);  // without a button held nothing moves
  EXPECT_EQ(30, moon.GetPosX());
  EXPECT_EQ(5u, valueLog.size());
}

class RecordingRing : public VornRingButton {
 public:
  using VornRingButton::VornRingButton;
  void OnMoveLeft(int x, int) override { moves.push_back("left " + std::to_string(x)); }
  void OnMoveRight(int x, int) override { moves.push_back("right " + std::to_string(x)); }
  void OnMoveRing(int x, int) override { moves.push_back("ring " + std::to_string(x)); }
  EventLog moves;
};

TEST_F(ButtonReactionTest, RingButtonSelectsOnPressAndRoutesDragsByPart) {
  EventLog valueLog;
  RecordingValueGroup values(&valueLog);
  RecordingRing first(*wxRED, 2, 8, 8, 0, 0, 48, 32, frame.Get(), 1, &values);
  RecordingRing second(*wxBLUE, 2, 8, 8, 50, 0, 48, 32, frame.Get(), 2, &values);
  first.SetOn(true);

  const struct {
    int x;
    bool left, right, ring;
    const char* move;
  } cases[] = {{3, true, false, false, "left 10"},
               {44, false, true, false, "right 10"},
               {24, false, false, true, "ring 10"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.x);
    second.moves.clear();
    Mouse(&second, wxEVT_LEFT_DOWN, c.x, 16);
    EXPECT_TRUE(second.GetOn() && !first.GetOn() && second.IsMouseCaptive());
    EXPECT_EQ(std::vector<bool>({second.GetLeftHit(), second.GetRightHit(), second.GetRingHit()}),
              std::vector<bool>({c.left, c.right, c.ring}));
    Mouse(&second, wxEVT_MOTION, 10, 16);
    EXPECT_EQ((EventLog{c.move}), second.moves);
    Mouse(&second, wxEVT_LEFT_UP, 10, 16);
    EXPECT_FALSE(second.GetLeftHit() || second.GetRightHit() || second.GetRingHit());
    EXPECT_FALSE(second.IsMouseCaptive());
  }
  EXPECT_EQ(2u, values.GetSelected());
  EXPECT_EQ(EventLog(3, "sel 2"), valueLog);
}

// The group may go first or last; either way nothing dangles.
TEST_F(ButtonReactionTest, ButtonsAndGroupsDieInEitherOrder) {
  auto early = std::make_unique<RecordingGroup>(&log);
  auto* radio = new VornRadioButton(cache.get(), 0, 0, frame.Get(), 1, early.get());
  auto* moment = new VornMomentBtn(cache.get(), 30, 0, frame.Get(), 2, early.get(), 0, 100, 50);
  early.reset();
  EXPECT_EQ(nullptr, radio->GetGroup());
  Click(radio);  // no group left to report to
  Mouse(moment, wxEVT_LEFT_DOWN);
  EXPECT_TRUE(radio->GetOn());
  EXPECT_TRUE(moment->GetTimer()->IsRunning());
  delete radio;
  delete moment;  // with its repeat timer still running
  PumpEvents();

  RecordingValueGroup values(&log);
  delete new VornMoonButton(cache.get(), 0, 0, frame.Get(), 3, &values);
  delete new VornRingButton(*wxRED, 2, 4, 4, 30, 0, 30, 30, frame.Get(), 4, &values);
  delete new VornPushButton(cache.get(), 70, 0, frame.Get(), 5, &group);
  EXPECT_TRUE(static_cast<VornControlGroup1ofN&>(values).IsEmpty());
  EXPECT_TRUE(log.empty());
}

}  // namespace
