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
  // Clears the log, sends the events and returns what was logged.
  std::string Events(VornControl* control, const char* events) {
    log.clear();
    Do(control, events);
    return Joined(log);
  }
  void TearDown() override { group.DeRegister(&hints); }
};

TEST_F(ButtonReactionTest, EachKindNotifiesItsGroup) {
  enum Kind { kBase, kPush, kTextPush, kToggle, kLoneToggle, kLoneRadio };
  const struct {
    Kind kind;
    const char *events, *log;
    bool on, held;
  } cases[] = {
      {kBase, "enter down up", "", false, false},  // follows the mouse only
      {kPush, "enter down up", "sel 3 unsel 3", false, false},
      // Released outside: leaving clears the press, and the pointer is gone.
      {kPush, "enter down leave", "sel 3", false, false},
      {kTextPush, "enter down up", "sel 3 unsel 3", false, false},
      {kToggle, "down", "", false, true},
      {kToggle, "down up", "sel 3 int 1 3", true, false},
      {kToggle, "down up down up", "sel 3 int 1 3 unsel 3 int 0 3", false, false},
      // Released outside without the capture it still flips.
      {kToggle, "enter down leave", "sel 3 int 1 3", true, false},
      // The right button counts as a press too.
      {kToggle, "down rdown up", "", false, true},
      {kToggle, "down rdown up rup", "sel 3 int 1 3", true, false},
      {kToggle, "disable enter down up", "", false, false},
      {kPush, "disable enter down up", "", false, false},
      // Without a group they still follow the mouse.
      {kLoneToggle, "enter down up", "", true, false},
      {kLoneRadio, "enter down up", "", true, false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << "kind " << c.kind << ": " << c.events);
    std::unique_ptr<VornControl> control;
    wxWindow* parent = frame.Get();
    switch (c.kind) {
      case kBase:
        control = std::make_unique<VornButton>(cache.get(), 0, 0, parent, 3, &group);
        break;
      case kPush:
        control = std::make_unique<VornPushButton>(cache.get(), 0, 0, parent, 3, &group);
        break;
      case kTextPush:
        control =
            std::make_unique<VornTextPushButton>("Apply", -1, -1, *wxNORMAL_FONT, *wxWHITE,
                                                 *wxBLACK, *wxRED, 0, 0, 80, 20, parent, 3, &group);
        break;
      case kToggle:
        control = std::make_unique<VornButtonToggle>(cache.get(), 0, 0, parent, 3, &group);
        break;
      case kLoneToggle:
        control = std::make_unique<VornButtonToggle>(cache.get(), 0, 0, parent, 3, nullptr);
        break;
      case kLoneRadio:
        control = std::make_unique<VornRadioButton>(cache.get(), 0, 0, parent, 3, nullptr);
        break;
    }
    log.clear();
    CaptureDprintf debug;
    Do(control.get(), c.events);
    EXPECT_EQ(Joined(log), c.log);
    auto* button = dynamic_cast<VornButton*>(control.get());
    EXPECT_EQ(button && button->GetOn(), c.on);
    EXPECT_EQ(control->GetMouseDown(), c.held);
    if (c.kind == kBase) {
      EXPECT_EQ(debug.Lines(), EventLog({"button - mouse down\n", "button - mouse up\n"}));
    }
  }
}

TEST_F(ButtonReactionTest, ThreeRadiosKeepOneOn) {
  VornRadioButton a(cache.get(), 0, 0, frame.Get(), 1, &group);
  VornRadioButton b(cache.get(), 30, 0, frame.Get(), 2, &group);
  VornRadioButton c(cache.get(), 60, 0, frame.Get(), 3, &group);
  a.SetOn(true);
  c.SetOn(true);

  EXPECT_EQ(Events(&b, "down"), "");  // nothing happens on press
  EXPECT_EQ(Events(&b, "up"), "sel 2");
  EXPECT_EQ(std::vector<bool>({a.GetOn(), b.GetOn(), c.GetOn()}),
            std::vector<bool>({false, true, false}));
  EXPECT_EQ(2u, group.GetSelected());
  // A radio that is on ignores a click, unless it may toggle off.
  EXPECT_EQ(Events(&b, "enter down up"), "");
  EXPECT_TRUE(b.GetOn());
  b.SetToggle(true);
  EXPECT_EQ(Events(&b, "enter down up"), "unsel 2");
  EXPECT_FALSE(b.GetOn());
  EXPECT_EQ(Events(&c, "enter down up"), "sel 3");
  EXPECT_EQ(3u, group.GetSelected());
}

TEST_F(ButtonReactionTest, TextRadioButtonsReactAsRadios) {
  VornTextRadioButton one(cache.get(), "One", "1", *wxNORMAL_FONT, *wxWHITE, *wxGREEN, *wxRED, 0,
                          30, frame.Get(), 11, &group);
  VornTextRadioButton two(cache.get(), "Two", "", *wxNORMAL_FONT, *wxWHITE, *wxGREEN, *wxRED, 0, 60,
                          frame.Get(), 12, &group);
  EXPECT_EQ(Events(&one, "enter down up leave"), "sel 11");
  EXPECT_EQ(Events(&two, "enter down up"), "sel 12");
  EXPECT_FALSE(one.GetOn());
  EXPECT_EQ(Events(&two, "enter down up"), "");
  two.SetToggle(true);
  EXPECT_EQ(Events(&two, "enter down up"), "unsel 12");
  EXPECT_FALSE(two.GetOn());

  // The label colour follows the on and mouse-over states.
  EXPECT_EQ(*wxRED, two.GetTextColour());  // still under the pointer
  Do(&two, "leave");
  EXPECT_EQ(*wxWHITE, two.GetTextColour());
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
  Do(moment, "down");
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
