// Runs the GUI test suite inside a real wxApp (under Xvfb when there is no
// display).
#include <gtest/gtest.h>
#include <wx/wx.h>

#include <cstdio>

#include "GuiTestSupport.h"

namespace {
class GuiTestApp : public wxApp {
 public:
  bool OnInit() override { return true; }
};
}  // namespace

TestFrame::TestFrame(const wxSize& size)
    : m_frame(new wxFrame(nullptr, wxID_ANY, "vorn test", wxDefaultPosition, size)) {
  m_frame->Show();
  PumpEvents();
}

TestFrame::~TestFrame() {
  m_frame->Destroy();
  PumpEvents();
}

void PumpEvents() {
  if (!wxTheApp) return;
  for (int i = 0; i < 3; ++i) {
    wxTheApp->ProcessPendingEvents();
    while (wxTheApp->Pending()) wxTheApp->Dispatch();
    wxTheApp->ProcessIdle();
  }
}

wxColour PixelAt(const wxBitmap& bmp, int x, int y) {
  wxImage img = bmp.ConvertToImage();
  return wxColour(img.GetRed(x, y), img.GetGreen(x, y), img.GetBlue(x, y));
}

wxMouseEvent MakeMouseEvent(wxWindow* window, wxEventType type, int x, int y, bool shift,
                            bool alt) {
  wxMouseEvent e(type);
  e.SetEventObject(window);
  e.SetId(window->GetId());
  e.m_x = x;
  e.m_y = y;
  e.m_shiftDown = shift;
  e.m_altDown = alt;
  e.m_leftDown = (type == wxEVT_LEFT_DOWN);
  e.m_rightDown = (type == wxEVT_RIGHT_DOWN);
  return e;
}

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  wxApp::SetInstance(new GuiTestApp);
  if (!wxEntryStart(argc, argv)) {
    std::fprintf(stderr, "vorn_gui_tests: cannot start wxWidgets (no display? run under xvfb-run)\n");
    return 1;
  }
  wxTheApp->CallOnInit();
  wxInitAllImageHandlers();
  const int rc = RUN_ALL_TESTS();
  PumpEvents();
  wxTheApp->OnExit();
  wxEntryCleanup();
  return rc;
}
