// The control base: the mouse state machine driven by real wx events,
// enabling, dirtiness and group binding.
#include <gtest/gtest.h>
#include <wx/wx.h>

#include "ControlTestSupport.h"

namespace {

class VornControlMouse : public ::testing::Test {
 protected:
  void SetUp() override { control = new RecordingControl(frame.Get(), 10, nullptr, &log); }
  TestFrame frame;
  EventLog log;
  RecordingControl* control = nullptr;
};

TEST_F(VornControlMouse, EventsFollowTheStateTable) {
  // mods: S shift, A alt, C the control holds the mouse capture from then on.
  const struct {
    wxEventType type;
    int x, y;
    const char *mods, *log, *flags, *positions;
  } steps[] = {
      {wxEVT_LEFT_DOWN, 3, 4, "S", "over downLeft button", "over left down B meta",
       "mouse 3,4 down 3,4"},
      // A release does not clear over.
      {wxEVT_LEFT_UP, 8, 9, "A", "downLeft button", "over A meta", "mouse 8,9 down 3,4"},
      {wxEVT_RIGHT_DOWN, 5, 5, "", "downRight button", "over right down", "mouse 5,5 down 5,5"},
      {wxEVT_RIGHT_DOWN, 5, 5, "", "", "over right down", "mouse 5,5 down 5,5"},
      {wxEVT_RIGHT_UP, 6, 6, "", "downRight button", "over", "mouse 6,6 down 5,5"},
      {wxEVT_LEAVE_WINDOW, 40, 1, "", "over leaving", "", "mouse 40,1 down 5,5"},
      {wxEVT_ENTER_WINDOW, 2, 3, "", "over entering", "over", "mouse 2,3 down 5,5"},
      // Motion reads the modifiers but does not store the position.
      {wxEVT_MOTION, 6, 7, "A", "move 6,7", "over A meta", "mouse 2,3 down 5,5"},
      {wxEVT_LEFT_DOWN, 4, 4, "", "downLeft button", "over left down", "mouse 4,4 down 4,4"},
      {wxEVT_RIGHT_DOWN, 4, 4, "", "downRight button", "over left right down",
       "mouse 4,4 down 4,4"},
      // Leaving without the capture lets go of both buttons.
      {wxEVT_LEAVE_WINDOW, 50, 50, "", "over downLeft button downRight button leaving", "",
       "mouse 50,50 down 4,4"},
      {wxEVT_LEFT_DOWN, 4, 4, "", "over downLeft button", "over left down", "mouse 4,4 down 4,4"},
      // With the capture held the button stays down and the release arrives.
      {wxEVT_LEAVE_WINDOW, 50, 50, "C", "over leaving", "left down", "mouse 50,50 down 4,4"},
      {wxEVT_LEFT_UP, 60, 60, "C", "downLeft button", "", "mouse 60,60 down 4,4"},
  };
  int n = 0;
  for (const auto& s : steps) {
    SCOPED_TRACE("step " + std::to_string(n++));
    const std::string mods = s.mods;
    if (mods.find('C') != std::string::npos) control->CaptureMouse();
    log.clear();
    Mouse(control, s.type, s.x, s.y, mods.find('S') != std::string::npos,
          mods.find('A') != std::string::npos);
    EXPECT_EQ(Joined(log), s.log);
    EXPECT_EQ(MouseFlags(*control), s.flags);
    EXPECT_EQ(Positions(*control), s.positions);
  }
  control->ReleaseMouse();
}

TEST_F(VornControlMouse, DisabledControlIgnoresEverything) {
  control->SetEnabled(false);
  log.clear();
  for (wxEventType type : {wxEVT_LEFT_DOWN, wxEVT_RIGHT_DOWN, wxEVT_ENTER_WINDOW, wxEVT_MOTION,
                           wxEVT_LEFT_UP, wxEVT_RIGHT_UP, wxEVT_LEAVE_WINDOW})
    Mouse(control, type, 1, 1, true, true);
  EXPECT_TRUE(log.empty());
  EXPECT_EQ(MouseFlags(*control), "");
}

TEST_F(VornControlMouse, SetEnabledClearsButtonsSilentlyAndAlwaysRecalcs) {
  Mouse(control, wxEVT_LEFT_DOWN);
  log.clear();
  control->SetEnabled(false);
  EXPECT_EQ(log, EventLog({"disable", "recalc"}));
  EXPECT_EQ(MouseFlags(*control), "over");
  EXPECT_FALSE(control->GetEnabled());
  control->SetEnabled(false);  // unchanged
  control->SetEnabled(true);
  EXPECT_EQ(log, EventLog({"disable", "recalc", "recalc", "enable", "recalc"}));
  EXPECT_TRUE(control->GetEnabled());
  EXPECT_FALSE(control->IsDirty());
}

TEST(VornControl, DirtyStartsSetIsSetByReactionsAndDrawRecalcsOnlyThen) {
  TestFrame frame;
  EventLog log;
  RecordingControl control(frame.Get(), 1, nullptr, &log);
  EXPECT_TRUE(control.IsDirty());  // the first paint builds the state
  wxBitmap bmp(30, 20);
  wxMemoryDC dc(bmp);
  control.OnDraw(&dc);
  control.OnDraw(&dc);
  EXPECT_EQ(log, EventLog({"recalc"}));
  control.SetDirty();
  control.OnDraw(&dc);
  EXPECT_EQ(log.size(), 2u);

  VornControl plain(0, 0, 10, 10, frame.Get(), 3, nullptr);
  plain.ClearDirty();
  plain.SetMouseDownLeft(true);  // OnMouseButton sets dirty
  EXPECT_TRUE(plain.IsDirty());
  plain.ClearDirty();
  plain.SetMouseOver(true);
  EXPECT_TRUE(plain.IsDirty());
}

TEST(VornControl, RegistersWithItsGroupUnderTheAssignedId) {
  TestFrame frame;
  VornControlGroup group;
  EventLog log;
  auto* control = new RecordingControl(frame.Get(), wxID_ANY, &group, &log);
  EXPECT_LT(control->GetId(), 0);  // wx assigns ids below zero
  EXPECT_EQ(control->GetGroup(), &group);
  group.Update(1, nullptr, nullptr);
  EXPECT_EQ(log, EventLog({"update c"}));
  EXPECT_TRUE(group.DeRegister(static_cast<unsigned int>(control->GetId()), true));
  EXPECT_EQ(control->GetGroup(), nullptr);
  delete control;
}

TEST(VornControl, BindAssertsOnASecondGroupAndSetGroupDoesNot) {
  TestFrame frame;
  VornControlGroup first, second;
  RecordingControl control(frame.Get(), 12, nullptr, nullptr);
  control.Bind(&first);
  EXPECT_EQ(control.GetGroup(), &first);
  EXPECT_EQ(FiredAssertionIn([&] { control.Bind(&second); }),
            std::make_pair(std::string("m_pControlGroup == __null"), std::string("Bind")));
  EXPECT_TRUE(second.IsEmpty());

  control.SetGroup(&second);  // replaces silently, stays registered in first
  EXPECT_EQ(control.GetGroup(), &second);
  EXPECT_FALSE(second.IsEmpty());
  EXPECT_FALSE(first.IsEmpty());
  first.DeRegister(12u, true);
}

}  // namespace
