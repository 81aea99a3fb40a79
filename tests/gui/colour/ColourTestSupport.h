#pragma once
// Pickers under test: a group whose receiver writes each colour hint with
// its sender's name ("hsv hv 0.5 1 1", "rgb picker 1 0 0", "prev picker
// 0 0 1"), and checks that every part holds the same colour.
#include <sstream>

#include "../ControlTestSupport.h"
#include "vorn/ColourPicker.h"

namespace colourtest {

class ColourLog : public MessageReceiver {
 public:
  explicit ColourLog(EventLog* log) : m_log(log) {}
  std::map<VornControl*, std::string> names;
  void OnUpdate(unsigned int, VornControl* source, VornControlHint* hint) override {
    std::ostringstream s;
    const std::string who = names.count(source) ? names[source] : "?";
    if (auto* rgb = dynamic_cast<ColourHintCurrentRGB*>(hint))
      s << "rgb " << who << " " << rgb->m_colour.r << " " << rgb->m_colour.g << " "
        << rgb->m_colour.b;
    else if (auto* hsv = dynamic_cast<ColourHintCurrentHSV*>(hint))
      s << "hsv " << who << " " << hsv->m_hue << " " << hsv->m_saturation << " " << hsv->m_value;
    else if (auto* prev = dynamic_cast<ColourHintPrev*>(hint))
      s << "prev " << who << " " << prev->m_colour.r << " " << prev->m_colour.g << " "
        << prev->m_colour.b;
    else
      return;
    m_log->push_back(s.str());
  }

 private:
  EventLog* m_log;
};

// "h s v | r g b" of a part.
inline std::string State(const ColourPickerComp& part) {
  double h, s, v;
  part.GetCurrentHSV(h, s, v);
  const Color& c = part.GetCurrentRGB();
  std::ostringstream out;
  out << h << " " << s << " " << v << " | " << c.r << " " << c.g << " " << c.b;
  return out.str();
}

// A recording group with the colour log; the group outlives the frame.
class ColourTest : public ::testing::Test {
 protected:
  EventLog log;
  RecordingGroupOf<VornControlGroup> group{&log};
  ColourLog colours{&log};
  TestFrame frame{wxSize(500, 240)};

  ColourTest() { group.Register(&colours); }
  ~ColourTest() override {
    frame->DestroyChildren();
    group.DeRegister(&colours);
  }
  std::string Take() {
    std::string s = Joined(log);
    log.clear();
    return s;
  }
  // A colour arriving from another part.
  void Arrive(VornControlHint&& hint) {
    group.Update(9, nullptr, &hint);
    log.clear();
  }
};

class PickerTest : public ColourTest {
 protected:
  ColourPicker* picker = new ColourPicker(0, 0, frame.Get(), 40, &group);
  HueValueControl* hv = picker->GetHueValueControl();
  SaturationPreview* sp = picker->GetSaturationPreview();

  PickerTest() {
    colours.names = {{picker, "picker"}, {hv, "hv"}, {sp, "sp"}};
    log.clear();
  }
  // Every part holds the picker's colour.
  ::testing::AssertionResult InStep() const {
    const std::string p = State(*picker), h = State(*hv), s = State(*sp);
    if (p == h && p == s) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "picker " << p << ", hv " << h << ", sp " << s;
  }
};

}  // namespace colourtest
