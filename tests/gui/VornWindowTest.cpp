// Windows and panels: construction, geometry, visibility, capture, painting,
// key forwarding and hint events.
#include <gtest/gtest.h>
#include <wx/wx.h>

#include "ControlTestSupport.h"
#include "vorn/VornWindow.h"

int CountingHint::s_alive = 0;
int RecordingControl::s_destroyed = 0;

namespace {

class ShowRecorder : public VornPanel {
 public:
  explicit ShowRecorder(wxWindow* parent) : VornPanel(0, 0, 20, 20, parent, wxID_ANY) {}
  void OnShow() override { log.push_back("show"); }
  void OnHide() override { log.push_back("hide"); }
  EventLog log;
};

std::vector<int> WindowPos(VornWindow* win) {
  int x, y, w, h;
  win->GetWindowPos(x, y, w, h);
  return {x, y, w, h};
}

TEST(VornWindow, ConstructionGeometryAndBackground) {
  TestFrame frame;
  auto* plain = new wxWindow(frame.Get(), wxID_ANY);
  auto* unsized = new VornPanel(4, 6, plain, wxID_ANY);
  EXPECT_EQ(unsized->GetBgColour(), wxTheColourDatabase->Find("YELLOW GREEN"));
  EXPECT_EQ(WindowPos(unsized), std::vector<int>({4, 6, -1, -1}));
  plain->SetBackgroundColour(wxColour(10, 20, 30));
  EXPECT_EQ((new VornPanel(0, 0, plain, wxID_ANY))->GetBgColour(), wxColour(10, 20, 30));

  auto* win = new VornPanel(1, 2, 30, 40, frame.Get(), wxID_ANY);
  EXPECT_EQ(win->GetRect(), wxRect(1, 2, 30, 40));
  win->SetPosition(7, 8);
  win->SetSize(50, 60);
  EXPECT_EQ(win->GetRect(), wxRect(7, 8, 50, 60));
  win->SetWindowPos(11, 12, 13, 14);
  EXPECT_EQ(WindowPos(win), std::vector<int>({11, 12, 13, 14}));
  EXPECT_EQ(win->GetRect(), wxRect(11, 12, 13, 14));
}

TEST(VornWindow, ShowHideCaptureAndColours) {
  TestFrame frame;
  auto* win = new ShowRecorder(frame.Get());
  EXPECT_FALSE(win->IsVisible());  // construction alone does not count as Show
  win->Hide();
  EXPECT_FALSE(win->IsShown());
  win->Show();
  EXPECT_TRUE(win->IsVisible() && win->IsShown());
  win->Show(false);
  EXPECT_FALSE(win->IsVisible());
  EXPECT_EQ(win->log, EventLog({"hide", "show", "hide"}));

  // Capture and release never nest.
  win->ReleaseMouse();  // without capture: nothing happens
  EXPECT_FALSE(win->IsMouseCaptive());
  win->CaptureMouse();
  win->CaptureMouse();
  EXPECT_TRUE(win->IsMouseCaptive() && win->HasCapture());
  win->ReleaseMouse();
  EXPECT_FALSE(win->IsMouseCaptive());
  EXPECT_EQ(wxWindow::GetCapture(), nullptr);
  win->ReleaseMouse();
  EXPECT_EQ(wxWindow::GetCapture(), nullptr);

  win->SetFgColour(Color(1.0, 0.5, 0.999));
  EXPECT_EQ(win->GetFgColour(), wxColour(255, 127, 254));  // truncated, not rounded
  EXPECT_EQ(win->SetBgColour(Color(0.0, 1.0, 0.0)), wxColour(0, 255, 0));
  EXPECT_EQ(win->SetBgColour(wxString("RED")), wxColour(255, 0, 0));
  wxBitmap bmp(8, 8);
  {
    wxMemoryDC dc(bmp);
    win->OnDraw(&dc);
  }
  EXPECT_EQ(PixelAt(bmp, 3, 3), wxColour(255, 0, 0));  // cleared to the background
  EXPECT_EQ(FiredAssertion([&] { win->OnDraw(nullptr); }), "dc != nullptr");

  win->SetToolTip("first");
  wxToolTip* tip = win->GetToolTip();
  ASSERT_NE(tip, nullptr);
  win->SetToolTip(VornString("second"));
  EXPECT_EQ(win->GetToolTip(), tip);  // the same tip, new text
  EXPECT_EQ(tip->GetTip(), "second");
}

TEST(VornWindow, KeyPressReachesTheHostPanelAsVornKeyEvent) {
  TestFrame frame;
  auto* host = new wxPanel(frame.Get());
  auto* panel = new VornPanel(0, 0, 50, 50, host, wxID_ANY);
  auto* control = new RecordingControl(panel, wxID_ANY, nullptr, nullptr);

  std::vector<VornWindowKeyEvent> seen;
  host->Bind(VORNEVT_KEY_DOWN, [&](VornWindowKeyEvent& e) { seen.push_back(e); });
  host->Bind(VORNEVT_KEY_UP, [&](VornWindowKeyEvent& e) { seen.push_back(e); });
  int seenByControl = 0;  // wxEvtHandler::Bind stays usable beside Bind(group)
  control->Bind(VORNEVT_KEY_UP, [&](VornWindowKeyEvent& e) {
    ++seenByControl;
    e.Skip();
  });

  wxKeyEvent down(wxEVT_KEY_DOWN);
  down.m_keyCode = WXK_F5;
  down.m_controlDown = down.m_shiftDown = true;
  down.m_x = 3;
  down.m_y = 4;
  control->GetEventHandler()->ProcessEvent(down);
  wxKeyEvent up(wxEVT_KEY_UP);
  up.m_keyCode = 'Q';
  up.m_altDown = true;
  control->GetEventHandler()->ProcessEvent(up);

  ASSERT_EQ(seen.size(), 2u);
  const VornWindowKeyEvent& d = seen[0];
  EXPECT_EQ(std::vector<long>({d.GetEventType(), d.GetKeyCode(), d.ControlDown(), d.ShiftDown(),
                               d.AltDown(), d.GetX(), d.GetY(), d.GetFlag(), d.GetId()}),
            std::vector<long>({22000, WXK_F5, 1, 1, 0, 3, 4, 0, 0}));
  EXPECT_EQ(d.GetEventObject(), control);
  EXPECT_EQ(std::vector<long>({seen[1].GetEventType(), seen[1].GetKeyCode(), seen[1].AltDown()}),
            std::vector<long>({22001, 'Q', 1}));
  EXPECT_EQ(seenByControl, 1);
  EXPECT_EQ(static_cast<wxEventType>(VORNEVT_HINT), 22010);
}

TEST(VornHintEvent, DeliversItsHintAndDeletesIt) {
  TestFrame frame;
  RecordingControl control(frame.Get(), 40, nullptr, nullptr);
  RecordingControl source(frame.Get(), 41, nullptr, nullptr);
  CountingHint* hint = new CountingHint;
  {
    VornHintEvent event(VORNEVT_HINT, 77, &source, hint);
    control.GetEventHandler()->ProcessEvent(event);
    EXPECT_EQ(control.lastId, 77u);
    EXPECT_EQ(control.lastSource, &source);
    EXPECT_EQ(control.lastHint, hint);
    EXPECT_EQ(CountingHint::s_alive, 1);  // still owned by the event
    event.SetHint(new CountingHint);      // replacing deletes the old one
    EXPECT_EQ(CountingHint::s_alive, 1);
  }
  EXPECT_EQ(CountingHint::s_alive, 0);

  // A posted copy carries the only hint and deletes it after delivery.
  hint = new CountingHint;
  {
    VornHintEvent event(VORNEVT_HINT, 5, nullptr, hint);
    wxPostEvent(&control, event);  // queues a clone
    EXPECT_EQ(event.GetHint(), nullptr);
  }
  EXPECT_EQ(CountingHint::s_alive, 1);
  PumpEvents();
  EXPECT_EQ(control.lastHint, hint);
  EXPECT_EQ(control.lastId, 5u);
  EXPECT_EQ(CountingHint::s_alive, 0);
}

}  // namespace
