#pragma once
// Shared pieces of the control tests: controls, groups and receivers that
// write what happens to them into one log, solid-colour state caches, mouse
// events sent through a window's own handler, and pixel comparisons.
#include <gtest/gtest.h>
#include <wx/dcmemory.h>

#include <cstdlib>
#include <functional>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "GuiTestSupport.h"
#include "TestSupport.h"
#include "vorn/ValInterface.h"
#include "vorn/VirtualControl.h"
#include "vorn/VornButton.h"
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

// With a name logs "update <name>"; without one names the hint it received:
// "int 1 4", "first 6", "repeat 6" or "hint 6".
class RecordingReceiver : public MessageReceiver {
 public:
  explicit RecordingReceiver(EventLog* log, std::string name = "")
      : m_log(log), m_name(std::move(name)) {}
  void OnUpdate(unsigned int id, VornControl*, VornControlHint* hint) override {
    const std::string tail = " " + std::to_string(id);
    if (!m_name.empty())
      m_log->push_back("update " + m_name);
    else if (auto* value = dynamic_cast<IntValChanged*>(hint))
      m_log->push_back("int " + std::to_string(value->m_value) + tail);
    else if (auto* moment = dynamic_cast<VornMomentHint*>(hint))
      m_log->push_back(std::string(moment->m_bFirstPress ? "first" : "repeat") + tail);
    else
      m_log->push_back("hint" + tail);
  }

 private:
  EventLog* m_log;
  std::string m_name;
};

// A group of type Base that records its selection notifications ("sel 3").
template <class Base>
class RecordingGroupOf : public Base {
 public:
  explicit RecordingGroupOf(EventLog* log) : m_log(log) {}
  void ControlSelected(unsigned int id, VornControl*) override { Note("sel", id); }
  void ControlUnSelected(unsigned int id, VornControl*) override { Note("unsel", id); }
  void ControlDoubleClick(unsigned int id, VornControl*) override { Note("dbl", id); }
  void ControlDoubleClick(unsigned int id, VirtualControl*) override { Note("dbl", id); }

 protected:
  void Note(const char* what, unsigned int id) {
    m_log->push_back(std::string(what) + " " + std::to_string(id));
  }
  EventLog* m_log;
};

// ... and its drag and shape notifications ("drag 9", "shape 9").
template <class Base>
class RecordingValueGroupOf : public RecordingGroupOf<Base> {
 public:
  using RecordingGroupOf<Base>::RecordingGroupOf;
  void ControlDrag(unsigned int id, VornControl*) override { this->Note("drag", id); }
  void ControlShapeChanged(unsigned int id, VornControl*) override { this->Note("shape", id); }
};

using RecordingGroup = RecordingGroupOf<VornControlGroup1ofN>;
using RecordingValueGroup = RecordingValueGroupOf<VornValueControlGroup1ofN>;

// Sends a mouse event through the window's own event handler, as wx would.
inline void Mouse(wxWindow* window, wxEventType type, int x = 4, int y = 4, bool shift = false,
                  bool alt = false) {
  wxMouseEvent event = MakeMouseEvent(window, type, x, y, shift, alt);
  window->GetEventHandler()->ProcessEvent(event);
}

// Sends the mouse events of a space-separated list: enter, leave, down, up,
// dclick, rdown, rup; "disable" disables the control instead.
inline void Do(VornControl* control, const std::string& events, int x = 4, int y = 4) {
  static const std::map<std::string, wxEventType> kTypes = {
      {"enter", wxEVT_ENTER_WINDOW}, {"leave", wxEVT_LEAVE_WINDOW}, {"down", wxEVT_LEFT_DOWN},
      {"up", wxEVT_LEFT_UP},         {"rdown", wxEVT_RIGHT_DOWN},   {"rup", wxEVT_RIGHT_UP},
      {"dclick", wxEVT_LEFT_DCLICK}};
  std::istringstream in(events);
  for (std::string e; in >> e;)
    e == "disable" ? control->SetEnabled(false) : Mouse(control, kTypes.at(e), x, y);
}

// Enter, press and release inside the control.
inline void Click(VornControl* control) {
  Do(control, "enter down up");
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

// A distinct colour per state, so a drawn pixel tells which image was used.
inline wxColour StateColour(VORNIMAGETYPE state) {
  return wxColour(20 * static_cast<int>(state) + 10, 255 - 20 * static_cast<int>(state), 90);
}

inline wxBitmap SolidBitmap(int w, int h, const wxColour& c) {
  wxImage image(w, h);
  image.SetRGB(wxRect(0, 0, w, h), c.Red(), c.Green(), c.Blue());
  return wxBitmap(image);
}

inline std::vector<VORNIMAGETYPE> AllStates() {
  return {VIT_OFF,         VIT_ON,           VIT_ON_MOUSE_OVER, VIT_OFF_MOUSE_OVER,
          VIT_DISABLED_ON, VIT_DISABLED_OFF, VIT_ON_DOWN,       VIT_OFF_DOWN};
}

// A cache holding solid images of the given states only.
inline std::unique_ptr<VornwxBitmapCache> MakeCache(const std::vector<VORNIMAGETYPE>& states,
                                                    int w = 24, int h = 16) {
  auto cache = std::make_unique<VornwxBitmapCache>();
  for (VORNIMAGETYPE s : states)
    cache->AssignImageOwn(s, new wxBitmap(SolidBitmap(w, h, StateColour(s))));
  return cache;
}

// Renders a control's OnDraw into a bitmap pre-filled with fill.
template <class Control>
wxBitmap Render(Control* control, int w, int h, const wxColour& fill = wxColour(1, 2, 3)) {
  wxBitmap target = SolidBitmap(w, h, fill);
  wxMemoryDC dc(target);
  control->OnDraw(&dc);
  dc.SelectObject(wxNullBitmap);
  return target;
}

inline wxColour ImagePixel(const wxImage& image, int x, int y) {
  return wxColour(image.GetRed(x, y), image.GetGreen(x, y), image.GetBlue(x, y));
}

inline ::testing::AssertionResult SamePixels(const wxBitmap& a, const wxBitmap& b) {
  if (a.GetSize() != b.GetSize())
    return ::testing::AssertionFailure() << "sizes " << a.GetWidth() << "x" << a.GetHeight()
                                         << " and " << b.GetWidth() << "x" << b.GetHeight();
  const wxImage ia = a.ConvertToImage(), ib = b.ConvertToImage();
  for (int y = 0; y < a.GetHeight(); ++y)
    for (int x = 0; x < a.GetWidth(); ++x)
      if (ImagePixel(ia, x, y) != ImagePixel(ib, x, y))
        return ::testing::AssertionFailure() << "pixels differ at " << x << "," << y;
  return ::testing::AssertionSuccess();
}

// Every pixel of bmp has colour c.
inline ::testing::AssertionResult Uniform(const wxBitmap& bmp, const wxColour& c) {
  return SamePixels(bmp, SolidBitmap(bmp.GetWidth(), bmp.GetHeight(), c));
}

// Number of pixels within tolerance of c.
inline int CountNear(const wxBitmap& bmp, const wxColour& c, int tolerance) {
  const wxImage image = bmp.ConvertToImage();
  int n = 0;
  for (int y = 0; y < image.GetHeight(); ++y)
    for (int x = 0; x < image.GetWidth(); ++x)
      n += std::abs(image.GetRed(x, y) - c.Red()) <= tolerance &&
           std::abs(image.GetGreen(x, y) - c.Green()) <= tolerance &&
           std::abs(image.GetBlue(x, y) - c.Blue()) <= tolerance;
  return n;
}

// The log's entries separated by spaces.
inline std::string Joined(const EventLog& log) {
  std::string s;
  for (const std::string& entry : log) s += (s.empty() ? "" : " ") + entry;
  return s;
}

// The mouse flags of a window or windowless control, e.g. "over left down B meta".
template <class C>
std::string MouseFlags(const C& c) {
  const bool set[] = {c.GetMouseOver(), c.GetMouseDownLeft(), c.GetMouseDownRight(),
                      c.GetMouseDown(), c.GetMetaA(),         c.GetMetaB(),
                      c.GetMetaKey()};
  const char* names[] = {"over", "left", "right", "down", "A", "B", "meta"};
  EventLog flags;
  for (int i = 0; i < 7; ++i)
    if (set[i]) flags.push_back(names[i]);
  return Joined(flags);
}

// The last pointer and press positions: "mouse 3,4 down 3,4".
template <class C>
std::string Positions(C& c) {
  int mx, my, dx, dy;
  c.GetLastMousePos(mx, my);
  c.GetLastDownPos(dx, dy);
  return "mouse " + std::to_string(mx) + "," + std::to_string(my) + " down " + std::to_string(dx) +
         "," + std::to_string(dy);
}
