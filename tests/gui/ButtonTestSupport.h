#pragma once
// Shared pieces of the button tests: groups and a receiver that write every
// notification and hint into one log, solid-colour state caches, and mouse
// events sent through a window's own handler.
#include <wx/dcmemory.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "GuiTestSupport.h"
#include "TestSupport.h"
#include "vorn/ValInterface.h"
#include "vorn/VornButton.h"
#include "vorn/VornControlGroup.h"

namespace buttontest {

using Log = std::vector<std::string>;

// Records the selection notifications of Base ("sel 3", "unsel 3", ...).
template <class Base>
class Recording : public Base {
 public:
  explicit Recording(Log* log) : m_log(log) {}
  void ControlSelected(unsigned int id, VornControl*) override { Note("sel", id); }
  void ControlUnSelected(unsigned int id, VornControl*) override { Note("unsel", id); }

 protected:
  void Note(const char* what, unsigned int id) {
    m_log->push_back(std::string(what) + " " + std::to_string(id));
  }
  Log* m_log;
};

using RecordingGroup = Recording<VornControlGroup1ofN>;

class RecordingValueGroup : public Recording<VornValueControlGroup1ofN> {
 public:
  using Recording::Recording;
  void ControlDrag(unsigned int id, VornControl*) override { Note("drag", id); }
};

// Names the hints it receives: "int 1", "moment first", "moment repeat".
class HintLog : public MessageReceiver {
 public:
  explicit HintLog(Log* log) : m_log(log) {}
  void OnUpdate(unsigned int id, VornControl*, VornControlHint* hint) override {
    const std::string tail = " " + std::to_string(id);
    if (auto* value = dynamic_cast<IntValChanged*>(hint))
      m_log->push_back("int " + std::to_string(value->m_value) + tail);
    else if (auto* moment = dynamic_cast<VornMomentHint*>(hint))
      m_log->push_back(std::string(moment->m_bFirstPress ? "first" : "repeat") + tail);
    else
      m_log->push_back("hint" + tail);
  }

 private:
  Log* m_log;
};

// A distinct colour per state, so a drawn pixel tells which image was used.
inline wxColour StateColour(VORNIMAGETYPE state) {
  return wxColour(20 * static_cast<int>(state) + 10, 255 - 20 * static_cast<int>(state), 90);
}

inline wxBitmap SolidBitmap(int w, int h, const wxColour& c) {
  wxImage image(w, h);
  image.SetRGB(wxRect(0, 0, w, h), c.Red(), c.Green(), c.Blue());
  return wxBitmap(image);
}

// A cache holding solid images of the given states only.
inline std::unique_ptr<VornwxBitmapCache> MakeCache(const std::vector<VORNIMAGETYPE>& states,
                                                    int w = 24, int h = 16) {
  auto cache = std::make_unique<VornwxBitmapCache>();
  for (VORNIMAGETYPE s : states)
    cache->AssignImageOwn(s, new wxBitmap(SolidBitmap(w, h, StateColour(s))));
  return cache;
}

inline std::vector<VORNIMAGETYPE> AllStates() {
  return {VIT_OFF,         VIT_ON,           VIT_ON_MOUSE_OVER, VIT_OFF_MOUSE_OVER,
          VIT_DISABLED_ON, VIT_DISABLED_OFF, VIT_ON_DOWN,       VIT_OFF_DOWN};
}

inline void Mouse(wxWindow* window, wxEventType type, int x = 4, int y = 4) {
  wxMouseEvent event = MakeMouseEvent(window, type, x, y);
  window->GetEventHandler()->ProcessEvent(event);
}

// Enter, press and release inside the window.
inline void Click(wxWindow* window) {
  Mouse(window, wxEVT_ENTER_WINDOW);
  Mouse(window, wxEVT_LEFT_DOWN);
  Mouse(window, wxEVT_LEFT_UP);
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

}  // namespace buttontest
