#pragma once
// A list box on a test frame with solid images and distinct colours, and
// key events for its pop-up.
#include <memory>

#include "../ControlTestSupport.h"
#include "vorn/VornListBox.h"

struct ListFixture {
  explicit ListFixture(const wxPoint& at = wxPoint(300, 300)) {
    frame->SetPosition(at);
    images = MakeCache({VIT_ON, VIT_ON_MOUSE_OVER}, 140, 22);
    info.bitmaps = images.get();
    info.textX = 8;
    info.textY = 3;
    info.textWidth = 106;
    info.textHeight = 16;
    info.textColour = wxColour(250, 250, 250);
    info.expand = 100;
    info.expandColour1 = wxColour(200, 0, 0);    // border
    info.expandColour2 = wxColour(0, 0, 60);     // background
    info.expandColour3 = wxColour(0, 200, 200);  // highlight
    PumpEvents();
  }
  VornListBox* MakeBox(int x = 20, int y = 40, int id = 7) {
    return new VornListBox(info, x, y, frame.Get(), id, &group);
  }
  // Presses the box open; the pop-up or null.
  static ExpandedVornListBox* Open(VornControl* box) {
    Do(box, "enter down");
    auto* list = dynamic_cast<VornListBoxCallback*>(box);
    return list ? list->GetExpanded() : nullptr;
  }
  EventLog log;
  RecordingGroup group{&log};
  TestFrame frame{wxSize(400, 300)};
  std::unique_ptr<VornwxBitmapCache> images;
  VornListBoxInfo info;
};

inline void Key(wxWindow* window, int code, wxChar unicode = WXK_NONE) {
  wxKeyEvent e(wxEVT_CHAR);
  e.SetEventObject(window);
  e.m_keyCode = code;
  e.m_uniChar = unicode;
  window->GetEventHandler()->ProcessEvent(e);
}

inline void Type(wxWindow* window, char c) {
  Key(window, c, static_cast<wxChar>(c));
}
