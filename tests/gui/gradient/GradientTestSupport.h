#pragma once
// Gradient editors under test: a receiver that writes each gradient hint
// ("select 2", "move 0.5 0.5", "scroll up 0.7", "range 0.2 0.8", "add 3",
// "delete 2", "value", "smooth"), a standalone strip with an injected clock
// on a test frame, and a composite with an injected colour chooser.
#include <sstream>

#include "../ControlTestSupport.h"
#include "../tree/TreeTestSupport.h"
#include "vorn/GradientControl.h"

namespace gradtest {

inline std::string Describe(VornControlHint* hint) {
  std::ostringstream s;
  if (auto* h = dynamic_cast<GradientHintAdd*>(hint))
    s << "add " << h->m_index;
  else if (auto* h = dynamic_cast<GradientHintDelete*>(hint))
    s << "delete " << h->m_index;
  else if (auto* h = dynamic_cast<GradientHintSelect*>(hint))
    s << "select " << h->m_index;
  else if (auto* h = dynamic_cast<GradientHintMove*>(hint))
    s << "move " << h->m_oldPos << " " << h->m_newPos;
  else if (dynamic_cast<GradientHintValue*>(hint))
    s << "value";
  else if (auto* h = dynamic_cast<GradientHintRange*>(hint))
    s << "range " << h->m_min << " " << h->m_max;
  else if (auto* h = dynamic_cast<GradientHintScroll*>(hint))
    s << "scroll " << (h->m_bUp ? "up " : "down ") << h->m_amount;
  else if (dynamic_cast<GradientHintColSmooth*>(hint))
    s << "smooth";
  return s.str();
}

class GradientLog : public MessageReceiver {
 public:
  explicit GradientLog(EventLog* log) : m_log(log) {}
  void OnUpdate(unsigned int, VornControl*, VornControlHint* hint) override {
    const std::string what = Describe(hint);
    if (!what.empty()) m_log->push_back(what);
  }

 private:
  EventLog* m_log;
};

// Points at 0.25 (red), 0.5 (green) and 0.75 (blue): indices 1, 2, 3.
inline void ThreePoints(Gradient& g) {
  g = Gradient();  // indices start at 1 again
  g.AddPoint(0.25, Color(1, 0, 0));
  g.AddPoint(0.5, Color(0, 1, 0));
  g.AddPoint(0.75, Color(0, 0, 1));
}

class GradientTest : public ::testing::Test {
 protected:
  EventLog log;
  RecordingValueGroupOf<VornControlGroupValue> group{&log};
  GradientLog hints{&log};
  TestFrame frame{wxSize(520, 360)};
  Gradient gradient;
  long now = 1000;

  GradientTest() {
    group.Register(&hints);
    ThreePoints(gradient);
  }
  ~GradientTest() override {
    frame->DestroyChildren();
    group.DeRegister(&hints);
  }
  std::string Take() {
    std::string s = Joined(log);
    log.clear();
    return s;
  }

  // A 220 x 96 strip at the frame's origin, margins 10 and 10, showing 0..1.
  ColourControl* MakeStrip(int width = 220) {
    auto* c = new ColourControl;
    c->Create(TreeSkin(), 0, 0, width, 96, frame.Get(), 7, &group);
    c->SetClock([this] { return now; });
    c->Bind(&gradient);
    PumpEvents();
    return c;
  }
  GradientControl* MakeEditor() {
    auto* e = new GradientControl;
    e->Create(TreeSkin(), 0, 0, frame.Get(), 9, &group);
    e->Bind(&gradient);
    e->GetColourControl()->SetClock([this] { return now; });
    PumpEvents();
    return e;
  }
  double Pos(unsigned int index) const {
    Gradient::CONTROL_POINT p;
    return gradient.GetPoint(index, p) ? p.position : -1.0;
  }
};

}  // namespace gradtest
