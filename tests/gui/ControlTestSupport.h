#pragma once
// Controls, windowless controls and receivers that write what happens to
// them into a shared log, and a hint that counts its live instances.
#include <string>
#include <utility>
#include <vector>

#include "GuiTestSupport.h"
#include "TestSupport.h"
#include "vorn/VirtualControl.h"
#include "vorn/VornControl.h"
#include "vorn/VornControlGroup.h"

using EventLog = std::vector<std::string>;

class CountingHint : public VornControlHint {
 public:
  CountingHint() { ++s_alive; }
  ~CountingHint() override { --s_alive; }
  static int s_alive;
};

class RecordingControl : public VornControl {
 public:
  RecordingControl(wxWindow* parent, int id, VornControlGroup* group, EventLog* log,
                   std::string name = "c")
      : VornControl(0, 0, 30, 20, parent, id, group), m_log(log), m_name(std::move(name)) {}
  ~RecordingControl() override { ++s_destroyed; }

  void OnMouseOver() override { Note("over"); }
  void OnMouseDownLeft() override { Note("downLeft"); }
  void OnMouseDownRight() override { Note("downRight"); }
  void OnMouseButton() override { Note("button"); }
  void OnMouseEntering() override { Note("entering"); }
  void OnMouseLeaving() override { Note("leaving"); }
  void OnMouseMove(int x, int y) override {
    Note("move " + std::to_string(x) + "," + std::to_string(y));
  }
  void OnEnable(bool enabled) override { Note(enabled ? "enable" : "disable"); }
  void RecalcState() override {
    Note("recalc");
    VornControl::RecalcState();
  }
  void OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) override {
    Note("update " + m_name);
    lastId = id;
    lastSource = source;
    lastHint = hint;
    if (onUpdate) onUpdate();
  }

  unsigned int lastId = 0;
  VornControl* lastSource = nullptr;
  VornControlHint* lastHint = nullptr;
  std::function<void()> onUpdate;
  static int s_destroyed;

 private:
  void Note(const std::string& what) {
    if (m_log) m_log->push_back(what);
  }
  EventLog* m_log;
  std::string m_name;
};

class RecordingVirtual : public VirtualControl {
 public:
  RecordingVirtual(unsigned int id, VornControlGroup* group, EventLog* log, std::string name)
      : m_log(log), m_name(std::move(name)) {
    Create(0, 0, nullptr, nullptr, id, group);
  }
  void OnUpdate(unsigned int, void*, VornControlHint*) override {
    m_log->push_back("update " + m_name);
  }

 private:
  EventLog* m_log;
  std::string m_name;
};

class RecordingReceiver : public MessageReceiver {
 public:
  RecordingReceiver(EventLog* log, std::string name) : m_log(log), m_name(std::move(name)) {}
  void OnUpdate(unsigned int, VornControl*, VornControlHint*) override {
    m_log->push_back("update " + m_name);
  }

 private:
  EventLog* m_log;
  std::string m_name;
};

// Sends a mouse event through the control's own event handler, as wx would.
inline void SendMouse(wxWindow* window, wxEventType type, int x = 5, int y = 5, bool shift = false,
                      bool alt = false) {
  wxMouseEvent event = MakeMouseEvent(window, type, x, y, shift, alt);
  window->GetEventHandler()->ProcessEvent(event);
}

// The condition text and function of the assertion f fires, or two empty
// strings.
template <class F>
std::pair<std::string, std::string> FiredAssertionIn(F&& f) {
  ScopedAssertThrow guard;
  try {
    f();
  } catch (const VornAssertionError& e) {
    return {e.condition, e.function};
  }
  return {};
}
