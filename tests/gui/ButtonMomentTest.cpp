// The momentary button's auto-repeat: one selection at the press, one at the
// first tick, then one per elapsed repeat interval plus one, with the
// remainder carried from tick to tick and from press to press.
#include <gtest/gtest.h>
#include <wx/evtloop.h>

#include <algorithm>

#include "ButtonTestSupport.h"

using namespace buttontest;

namespace {

constexpr int kDelay = 300;
constexpr int kInterval = 100;

class ButtonMomentTest : public ::testing::Test {
 protected:
  void SetUp() override {
    group.Register(&hints);
    // Ticks are driven by hand; the elapsed time comes from `elapsed`.
    button.GetTimer()->SetClock([this] { return elapsed; });
  }
  void TearDown() override {
    button.GetTimer()->Stop();
    group.DeRegister(&hints);
  }

  // Runs one tick after ms milliseconds and returns the number of
  // (selection, repeat hint) pairs it sent.
  int Tick(long ms) {
    log.clear();
    elapsed = ms;
    button.GetTimer()->Notify();
    const long sel = std::count(log.begin(), log.end(), "sel 6");
    const long rep = std::count(log.begin(), log.end(), "repeat 6");
    EXPECT_EQ(sel, rep);
    EXPECT_EQ(static_cast<std::size_t>(sel + rep), log.size());
    // Each pair is a selection followed by its hint.
    for (std::size_t i = 0; i + 1 < log.size(); i += 2) {
      EXPECT_EQ("sel 6", log[i]);
      EXPECT_EQ("repeat 6", log[i + 1]);
    }
    return static_cast<int>(sel);
  }

  TestFrame frame;
  Log log;
  RecordingGroup group{&log};
  HintLog hints{&log};
  std::unique_ptr<VornwxBitmapCache> cache = MakeCache(AllStates());
  VornMomentBtn button{cache.get(), 0, 0, frame.Get(), 6, &group, 0, kDelay, kInterval};
  long elapsed = 0;
};

TEST_F(ButtonMomentTest, PressSendsSelectionAndFirstPressHintAndStartsTheTimer) {
  Mouse(&button, wxEVT_ENTER_WINDOW);
  Mouse(&button, wxEVT_LEFT_DOWN);
  EXPECT_EQ((Log{"sel 6", "first 6"}), log);
  EXPECT_TRUE(button.GetTimer()->IsRunning());
  EXPECT_TRUE(button.GetTimer()->IsOneShot());
  EXPECT_EQ(kDelay, button.GetTimer()->GetInterval());
  EXPECT_TRUE(button.GetTimer()->GetFirstTick());

  log.clear();
  Mouse(&button, wxEVT_LEFT_UP);
  EXPECT_EQ((Log{"unsel 6"}), log);
  EXPECT_FALSE(button.GetTimer()->IsRunning());
}

TEST_F(ButtonMomentTest, ReleasedAwayFromTheButtonSendsNoUnselection) {
  Mouse(&button, wxEVT_ENTER_WINDOW);
  Mouse(&button, wxEVT_LEFT_DOWN);
  log.clear();
  Mouse(&button, wxEVT_LEAVE_WINDOW);
  EXPECT_TRUE(log.empty());
  EXPECT_FALSE(button.GetTimer()->IsRunning());
}

TEST_F(ButtonMomentTest, RepeatsOncePerIntervalPlusOneAndCarriesTheRemainder) {
  Mouse(&button, wxEVT_LEFT_DOWN);
  EXPECT_EQ(1, Tick(kDelay));  // first tick: count 0
  EXPECT_FALSE(button.GetTimer()->GetFirstTick());
  EXPECT_EQ(kInterval, button.GetTimer()->GetInterval());
  EXPECT_TRUE(button.GetTimer()->IsOneShot());
  for (int i = 0; i < 3; ++i) EXPECT_EQ(2, Tick(kInterval)) << "punctual tick " << i;
  EXPECT_EQ(0, button.GetTimer()->GetRemainder());

  EXPECT_EQ(3, Tick(250));  // late: 2 intervals, 50 carried
  EXPECT_EQ(50, button.GetTimer()->GetRemainder());
  EXPECT_EQ(2, Tick(60));  // 60 + 50 = 110
  EXPECT_EQ(10, button.GetTimer()->GetRemainder());
  EXPECT_EQ(1, Tick(30));  // 40 < one interval
  EXPECT_EQ(40, button.GetTimer()->GetRemainder());

  // The remainder survives the next press; its first tick counts nothing.
  Mouse(&button, wxEVT_LEFT_UP);
  Mouse(&button, wxEVT_LEFT_DOWN);
  EXPECT_EQ(1, Tick(kDelay));
  EXPECT_EQ(40, button.GetTimer()->GetRemainder());
  EXPECT_EQ(2, Tick(60));
  EXPECT_EQ(0, button.GetTimer()->GetRemainder());
}

TEST_F(ButtonMomentTest, DisablingStopsTheRepeatAtOnce) {
  Mouse(&button, wxEVT_LEFT_DOWN);
  EXPECT_EQ(1, Tick(kDelay));
  EXPECT_TRUE(button.GetTimer()->IsRunning());
  button.SetEnabled(false);
  EXPECT_FALSE(button.GetTimer()->IsRunning());
  EXPECT_FALSE(button.GetMouseDown());
  // A tick already queued sends nothing for a disabled button.
  EXPECT_EQ(0, Tick(kInterval));
  button.GetTimer()->Stop();
}

TEST_F(ButtonMomentTest, NoGroupNoNotificationsButTheTimerStillRuns) {
  VornMomentBtn lone(cache.get(), 30, 0, frame.Get(), 7, nullptr, 0, kDelay, kInterval);
  lone.GetTimer()->SetClock([] { return 1000L; });
  Mouse(&lone, wxEVT_LEFT_DOWN);
  EXPECT_TRUE(lone.GetTimer()->IsRunning());
  lone.GetTimer()->Notify();
  lone.GetTimer()->Notify();
  EXPECT_TRUE(log.empty());
  lone.GetTimer()->Stop();
}

// The wiring through the wx timer: a held button repeats by itself.
TEST_F(ButtonMomentTest, TheRealTimerRepeatsWhileHeld) {
  button.GetTimer()->SetClock(nullptr);
  button.SetInitialDelay(1);
  button.SetRepeatInterval(1);
  Mouse(&button, wxEVT_LEFT_DOWN);
  log.clear();
  // The suite runs without a main loop, so one is activated to deliver the
  // timer's events.
  wxEventLoop loop;
  wxEventLoopActivator active(&loop);
  for (int i = 0; i < 500 && log.size() < 4; ++i) loop.DispatchTimeout(10);
  ASSERT_GE(log.size(), 4u);
  EXPECT_EQ("sel 6", log[0]);
  EXPECT_EQ("repeat 6", log[1]);
  Mouse(&button, wxEVT_LEFT_UP);
  EXPECT_FALSE(button.GetTimer()->IsRunning());
}

}  // namespace
