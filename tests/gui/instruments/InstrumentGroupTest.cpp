// A destroyed value group must not be reached through an instrument's typed
// group pointer: the instruments report only while still bound to it.
#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "InstrumentTestSupport.h"

namespace {

TEST(InstrumentGroup, ADestroyedGroupIsNeverReported) {
  TestFrame frame{wxSize(400, 300)};
  using Make = std::function<VornControl*(VornControlGroupValue*)>;
  const struct {
    const char* name;
    Make make;
    std::function<void(VornControl*)> notify;
  } cases[] = {
      {"angle dial",
       [&](VornControlGroupValue* g) {
         return new VornAngleControlB(ColorA(1, 1, 1), ColorA(1, 0, 0), 0, 0, 60, 60, frame.Get(),
                                      5, g);
       },
       [](VornControl* c) { static_cast<VornAngleControl*>(c)->SetValue(0.25f, true); }},
      {"callipers",
       [&](VornControlGroupValue* g) {
         return new VornAngleClippers(ColorA(1, 1, 1), ColorA(0.5, 0.5, 0.5), ColorA(0, 1, 1), 10,
                                      0, 0, 200, 60, frame.Get(), 5, g);
       },
       [](VornControl* c) { static_cast<VornAngleClippers*>(c)->SetValue(0.7, true); }},
      {"horizon",
       [&](VornControlGroupValue* g) {
         return new VornAHorizonControl(nullptr, 60, 60, 40, 0, 0, 120, 120, frame.Get(), 5, g);
       },
       // The pitch handle dragged down its track.
       [](VornControl* c) {
         Mouse(c, wxEVT_LEFT_DOWN, 63, 57);
         Mouse(c, wxEVT_MOTION, 70, 80);
         Mouse(c, wxEVT_LEFT_UP, 70, 80);
       }},
  };
  // The typed accessor each instrument hides the base's with.
  auto typed = [](VornControl* c) -> VornControlGroupValue* {
    if (auto* dial = dynamic_cast<VornAngleControl*>(c)) return dial->GetGroup();
    if (auto* callipers = dynamic_cast<VornAngleClippers*>(c)) return callipers->GetGroup();
    return static_cast<VornAHorizonControl*>(c)->GetGroup();
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    EventLog log;
    auto group = std::make_unique<ValueLogGroup>(&log);
    std::unique_ptr<VornControl> control(c.make(group.get()));
    EXPECT_EQ(typed(control.get()), group.get());
    c.notify(control.get());
    EXPECT_FALSE(log.empty());  // reports reach the live group
    group.reset();
    EXPECT_EQ(typed(control.get()), nullptr);
    c.notify(control.get());  // a stale pointer would be used here
  }
}

}  // namespace
