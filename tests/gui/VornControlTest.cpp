// The control base: the mouse state machine driven by real wx events,
// enabling, group binding.
#include <gtest/gtest.h>
#include <wx/dcmemory.h>
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

TEST_F(VornControlMouse, PressAndReleaseFollowTheTable) {
  SendMouse(control, wxEVT_LEFT_DOWN, 3, 4, /*shift=*/true, /*alt=*/false);
  EXPECT_EQ(log, EventLog({"over", "downLeft", "button"}));
  EXPECT_TRUE(control->GetMouseDownLeft());
  EXPECT_TRUE(control->GetMouseOver());
  EXPECT_TRUE(control->GetMetaB());
  EXPECT_FALSE(control->GetMetaA());
  EXPECT_TRUE(control->GetMetaKey());
  int x, y;
  control->GetLastDownPos(x, y);
  EXPECT_EQ(std::make_pair(x, y), std::make_pair(3, 4));

  log.clear();
  SendMouse(control, wxEVT_LEFT_UP, 8, 9, false, true);
  EXPECT_EQ(log, EventLog({"downLeft", "button"}));
  EXPECT_FALSE(control->GetMouseDown());
  EXPECT_TRUE(control->GetMouseOver());  // a release does not clear over
  EXPECT_TRUE(control->GetMetaA());
  EXPECT_FALSE(control->GetMetaB());
  control->GetLastMousePos(x, y);
  EXPECT_EQ(std::make_pair(x, y), std::make_pair(8, 9));
  control->GetLastDownPos(x, y);
  EXPECT_EQ(std::make_pair(x, y), std::make_pair(3, 4));

  log.clear();
  SendMouse(control, wxEVT_RIGHT_DOWN);
  SendMouse(control, wxEVT_RIGHT_DOWN);  // unchanged: no notification
  EXPECT_TRUE(control->GetMouseDownRight());
  SendMouse(control, wxEVT_RIGHT_UP);
  EXPECT_EQ(log, EventLog({"downRight", "button", "downRight", "button"}));
}

TEST_F(VornControlMouse, EnterLeaveAndMotion) {
  SendMouse(control, wxEVT_ENTER_WINDOW, 2, 3);
  EXPECT_EQ(log, EventLog({"over", "entering"}));
  int x, y;
  control->GetLastMousePos(x, y);
  EXPECT_EQ(std::make_pair(x, y), std::make_pair(2, 3));

  log.clear();
  SendMouse(control, wxEVT_MOTION, 6, 7, false, true);
  EXPECT_EQ(log, EventLog({"move 6,7"}));
  EXPECT_TRUE(control->GetMetaA());
  control->GetLastMousePos(x, y);  // motion does not store the position
  EXPECT_EQ(std::make_pair(x, y), std::make_pair(2, 3));

  log.clear();
  SendMouse(control, wxEVT_LEAVE_WINDOW, 40, 1);
  EXPECT_EQ(log, EventLog({"over", "leaving"}));
  EXPECT_FALSE(control->GetMouseOver());
}

TEST_F(VornControlMouse, LeavingWithoutCaptureReleasesTheButtons) {
  SendMouse(control, wxEVT_LEFT_DOWN);
  SendMouse(control, wxEVT_RIGHT_DOWN);
  log.clear();
  SendMouse(control, wxEVT_LEAVE_WINDOW, 50, 50);
  EXPECT_EQ(log, EventLog({"over", "downLeft", "button", "downRight", "button", "leaving"}));
  EXPECT_FALSE(control->GetMouseDown());
}

TEST_F(VornControlMouse, LeavingWithCaptureKeepsTheButton) {
  SendMouse(control, wxEVT_LEFT_DOWN);
  control->CaptureMouse();
  log.clear();
  SendMouse(control, wxEVT_LEAVE_WINDOW, 50, 50);
  EXPECT_EQ(log, EventLog({"over", "leaving"}));
  EXPECT_TRUE(control->GetMouseDownLeft());
  SendMouse(control, wxEVT_LEFT_UP, 60, 60);  // the release still arrives
  EXPECT_FALSE(control->GetMouseDownLeft());
  control->ReleaseMouse();
}

TEST_F(VornControlMouse, DisabledControlIgnoresEverything) {
  control->SetEnabled(false);
  log.clear();
  for (wxEventType type : {wxEVT_LEFT_DOWN, wxEVT_RIGHT_DOWN, wxEVT_ENTER_WINDOW, wxEVT_MOTION,
                           wxEVT_LEFT_UP, wxEVT_RIGHT_UP, wxEVT_LEAVE_WINDOW})
    SendMouse(control, type, 1, 1, true, true);
  EXPECT_TRUE(log.empty());
  EXPECT_FALSE(control->GetMouseOver());
  EXPECT_FALSE(control->GetMouseDown());
  EXPECT_FALSE(control->GetMetaKey());
}

TEST_F(VornControlMouse, SetEnabledClearsButtonsSilentlyAndAlwaysRecalcs) {
  SendMouse(control, wxEVT_LEFT_DOWN);
  log.clear();
  control->SetEnabled(false);
  EXPECT_EQ(log, EventLog({"disable", "recalc"}));
  EXPECT_FALSE(control->GetMouseDownLeft());
  EXPECT_FALSE(control->GetEnabled());

  log.clear();
  control->SetEnabled(false);  // unchanged
  EXPECT_EQ(log, EventLog({"recalc"}));
  control->SetEnabled(true);
  EXPECT_EQ(log, EventLog({"recalc", "enable", "recalc"}));
  EXPECT_FALSE(control->IsDirty());
}

TEST(VornControl, DrawRecalculatesOnlyWhenDirty) {
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
}

TEST(VornControl, DefaultReactionsMarkDirty) {
  TestFrame frame;
  VornControl control(0, 0, 10, 10, frame.Get(), 3, nullptr);
  control.ClearDirty();
  control.SetMouseDownLeft(true);  // OnMouseButton sets dirty
  EXPECT_TRUE(control.IsDirty());
  control.ClearDirty();
  control.SetMouseOver(true);
  EXPECT_TRUE(control.IsDirty());
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
  auto fired = FiredAssertionIn([&] { control.Bind(&second); });
  EXPECT_EQ(fired.first, "m_pControlGroup == __null");
  EXPECT_EQ(fired.second, "Bind");
  EXPECT_TRUE(second.IsEmpty());

  control.SetGroup(&second);  // replaces silently, stays registered in first
  EXPECT_EQ(control.GetGroup(), &second);
  EXPECT_FALSE(second.IsEmpty());
  EXPECT_FALSE(first.IsEmpty());
  first.DeRegister(12u, true);
}

TEST(VornControl, HintEventReachesOnUpdateThroughTheTable) {
  TestFrame frame;
  VornControlGroup group;
  RecordingControl control(frame.Get(), 2, &group, nullptr);
  CountingHint hint;
  group.Update(9, &control, &hint);  // the source receives its own hint
  EXPECT_EQ(control.lastSource, &control);
  EXPECT_EQ(control.lastHint, &hint);
  EXPECT_EQ(control.lastId, 9u);
}

}  // namespace
