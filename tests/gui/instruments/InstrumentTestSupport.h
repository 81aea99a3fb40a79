#pragma once
// Shared pieces of the instrument tests: a value group whose log also names
// the value hints, and pointer positions on a circle.
#include <cmath>
#include <cstdio>

#include "../ControlTestSupport.h"
#include "vorn/VornAngleControl.h"

// Logs "sel 5", "drag 5", "unsel 5" and the value hints as "changing 0.25"
// and "changed 0.25" (three decimals).
class ValueLogGroup : public RecordingValueGroupOf<VornControlGroupValue>, public MessageReceiver {
 public:
  explicit ValueLogGroup(EventLog* log) : RecordingValueGroupOf(log) {
    Register(static_cast<MessageReceiver*>(this));
  }
  ~ValueLogGroup() override { DeRegister(static_cast<MessageReceiver*>(this)); }
  void OnUpdate(unsigned int, VornControl*, VornControlHint* hint) override {
    if (auto* changing = dynamic_cast<RealValChanging*>(hint))
      m_log->push_back("changing " + Fixed(changing->m_value));
    else if (auto* changed = dynamic_cast<RealValChanged*>(hint))
      m_log->push_back("changed " + Fixed(changed->m_value));
    else
      m_log->push_back("hint");
  }
  static std::string Fixed(double v) {
    char text[32];
    std::snprintf(text, sizeof text, "%.3f", v);
    return text;
  }
};

// The pixel at radius and turn around (cx, cy), rounded.
inline wxPoint OnCircle(int cx, int cy, double radius, double turn) {
  const double a = 2.0 * 3.14159265358979323846 * turn;
  return wxPoint(cx + static_cast<int>(std::lround(radius * std::cos(a))),
                 cy - static_cast<int>(std::lround(radius * std::sin(a))));
}

// The wrapped distance between two turns (0..0.5).
inline double TurnDistance(double a, double b) {
  const double d = std::fabs(a - b);
  return d > 0.5 ? 1.0 - d : d;
}
