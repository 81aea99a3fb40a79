// The momentary button's auto-repeat: one selection at the press, one at the
// first tick, then one per elapsed repeat interval plus one, with the
// remainder carried from tick to tick and from press to press.
#include <gtest/gtest.h>
#include <wx/evtloop.h>

#include "ControlTestSupport.h"

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
    EventLog pairs;
    for (std::size_t i = 0; i < log.size() / 2; ++i)
      pairs.insert(pairs.end(), {"sel 6", "repeat 6"});
    EXPECT_EQ(pairs, log) << "each selection is followed by its hint";
    return static_cast<int>(log.size() / 2);
  }

  TestFrame frame;
  EventLog log;
  RecordingGroup group{&log};
  RecordingReceiver hints{&log};
  std::unique_ptr<VornwxBitmapCache> cache = MakeCache(AllStates());
  VornMomentBtn button{cache.get(), 0, 0, frame.Get(), 6, &group, 0, kDelay, kInterval};
  long elapsed = 0;
};

TEST_F(ButtonMomentTest, PressStartsTheTimerAndOnlyAReleaseOverItUnselects) {
  Do(&button, "enter down");
  EXPECT_EQ((EventLog{"sel 6", "first 6"}), log);
  VornButtonTimer* timer = button.GetTimer();
  EXPECT_TRUE(timer->IsRunning() && timer->IsOneShot() && timer->GetFirstTick());
  EXPECT_EQ(kDelay, timer->GetInterval());
  log.clear();
  Do(&button, "up");
  EXPECT_EQ((EventLog{"unsel 6"}), log);
  EXPECT_FALSE(timer->IsRunning());

  // Released away from the button: no unselection.
  Do(&button, "down");
  log.clear();
  Do(&button, "leave");
  EXPECT_TRUE(log.empty());
  EXPECT_FALSE(timer->IsRunning());
}

TEST_F(ButtonMomentTest, RepeatsOncePerIntervalPlusOneAndCarriesTheRemainder) {
  Do(&button, "down");
  EXPECT_EQ(1, Tick(kDelay));  // first tick: count 0
  EXPECT_FALSE(button.GetTimer()->GetFirstTick());
  EXPECT_EQ(kInterval, button.GetTimer()->GetInterval());
  EXPECT_TRUE(button.GetTimer()->IsOneShot());
  const struct {
    long ms;
    int repeats, remainder;
  } ticks[] = {{kInterval, 2, 0}, {kInterval, 2, 0},
               {kInterval, 2, 0}, {250, 3, 50},  // late: 2 intervals, 50 carried
               {60, 2, 10},                      // 60 + 50 = 110
               {30, 1, 40}};                     // 40 < one interval
  for (const auto& t : ticks) {
    EXPECT_EQ(t.repeats, Tick(t.ms)) << t.ms;
    EXPECT_EQ(t.remainder, button.GetTimer()->GetRemainder()) << t.ms;
  }
  // The remainder survives the next press; its first tick counts nothing.
  Do(&button, "up down");
  EXPECT_EQ(1, Tick(kDelay));
  EXPECT_EQ(40, button.GetTimer()->GetRemainder());
  EXPECT_EQ(2, Tick(60));
  EXPECT_EQ(0, button.GetTimer()->GetRemainder());
}

TEST_F(ButtonMomentTest, DisablingStopsTheRepeatAndNoGroupMeansNoNotifications) {
  Do(&button, "down");
  EXPECT_EQ(1, Tick(kDelay));
  EXPECT_TRUE(button.GetTimer()->IsRunning());
  button.SetEnabled(false);
  EXPECT_FALSE(button.GetTimer()->IsRunning() || button.GetMouseDown());
  EXPECT_EQ(0, Tick(kInterval));  // a tick already queued sends nothing

  VornMomentBtn lone(cache.get(), 30, 0, frame.Get(), 7, nullptr, 0, kDelay, kInterval);
  lone.GetTimer()->SetClock([] { return 1000L; });
  Do(&lone, "down");
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
  Do(&button, "down");
  log.clear();
  // The suite runs without a main loop, so one is activated to deliver the
  // timer's events.
  wxEventLoop loop;
  wxEventLoopActivator active(&loop);
  for (int i = 0; i < 500 && log.size() < 4; ++i) loop.DispatchTimeout(10);
  ASSERT_GE(log.size(), 4u);
  EXPECT_EQ((EventLog{"sel 6", "repeat 6"}), EventLog(log.begin(), log.begin() + 2));
  Do(&button, "up");
  EXPECT_FALSE(button.GetTimer()->IsRunning());
}

}  // namespace
