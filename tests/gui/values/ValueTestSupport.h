#pragma once
// Shared pieces of the value-control tests: a receiver that writes the value
// hints with their values into the common log, and drag scripts.
#include <sstream>
#include <string>

#include "../ControlTestSupport.h"

// Logs "changing 0.5 0" / "changed 0.5 0" (value, then the hint's id).
class ValueReceiver : public MessageReceiver {
 public:
  explicit ValueReceiver(EventLog* log) : m_log(log) {}
  void OnUpdate(unsigned int id, VornControl*, VornControlHint* hint) override {
    std::ostringstream s;
    if (auto* changing = dynamic_cast<RealValChanging*>(hint))
      s << "changing " << changing->m_value << " " << id;
    else if (auto* changed = dynamic_cast<RealValChanged*>(hint))
      s << "changed " << changed->m_value << " " << id;
    else
      s << "hint " << id;
    m_log->push_back(s.str());
  }

 private:
  EventLog* m_log;
};

// A value group with its receiver, recording into one log.
struct ValueRecorder {
  EventLog log;
  RecordingValueGroupOf<VornControlGroupValue> group{&log};
  ValueReceiver receiver{&log};
  ValueRecorder() { group.Register(&receiver); }
  ~ValueRecorder() { group.DeRegister(&receiver); }
  std::string Take() {
    std::string s = Joined(log);
    log.clear();
    return s;
  }
};

// Sends a drag script to a control along one axis: "d10" press at 10,
// "m25" move to 25, "u25" release at 25; a trailing "s" holds Shift, "a"
// Alt. The other coordinate is `across`.
inline void Drag(wxWindow* w, const std::string& script, int across, bool vertical = false) {
  std::istringstream in(script);
  for (std::string step; in >> step;) {
    const char kind = step[0];
    const bool shift = step.back() == 's', alt = step.back() == 'a';
    const int along = std::stoi(step.substr(1));
    const int x = vertical ? across : along, y = vertical ? along : across;
    const wxEventType type = kind == 'd'   ? wxEVT_LEFT_DOWN
                             : kind == 'u' ? wxEVT_LEFT_UP
                                           : wxEVT_MOTION;
    Mouse(w, type, x, y, shift, alt);
  }
}
