// Windowless windows, controls and buttons inside a real host window.
#include <gtest/gtest.h>
#include <wx/dcmemory.h>
#include <wx/wx.h>

#include <map>

#include "ControlTestSupport.h"
#include "vorn/VornWindow.h"

namespace {

const std::map<VORNIMAGETYPE, wxColour> kStateColours = {
    {VIT_OFF, wxColour(10, 0, 0)},           {VIT_ON, wxColour(20, 0, 0)},
    {VIT_ON_MOUSE_OVER, wxColour(30, 0, 0)}, {VIT_OFF_MOUSE_OVER, wxColour(40, 0, 0)},
    {VIT_DISABLED_ON, wxColour(50, 0, 0)},   {VIT_DISABLED_OFF, wxColour(60, 0, 0)},
    {VIT_ON_DOWN, wxColour(70, 0, 0)},       {VIT_OFF_DOWN, wxColour(80, 0, 0)},
};

wxBitmap* Solid(const wxColour& colour) {
  auto* bitmap = new wxBitmap(6, 5, 24);
  wxMemoryDC dc(*bitmap);
  dc.SetBackground(wxBrush(colour));
  dc.Clear();
  return bitmap;
}

class CountingCache : public VornwxBitmapCache {
 public:
  ~CountingCache() override { ++s_deleted; }
  static int s_deleted;
};
int CountingCache::s_deleted = 0;

class Windowless : public ::testing::Test {
 protected:
  void SetUp() override { host = new VornPanel(0, 0, 100, 100, frame.Get(), wxID_ANY); }
  wxMouseEvent Mouse(wxEventType type, int x = 2, int y = 2) {
    return MakeMouseEvent(host, type, x, y);
  }
  // What the button draws, read back from the pixel at (1, 1); black when
  // it draws nothing.
  wxColour Drawn(VirtualButton& button) {
    wxBitmap target(6, 5, 24);
    {
      wxMemoryDC dc(target);
      dc.SetBackground(*wxBLACK_BRUSH);
      dc.Clear();
      button.OnDraw(&dc);
    }
    return PixelAt(target, 1, 1);
  }
  TestFrame frame;
  VornPanel* host = nullptr;
};

TEST_F(Windowless, GeometryVisibilityAndColours) {
  VirtualWindow window;
  window.Create(3, 4, nullptr, host, 9);
  EXPECT_EQ(window.GetWidth(), 10);
  EXPECT_EQ(window.GetHeight(), 10);
  EXPECT_EQ(window.GetPosX(), 3);
  EXPECT_EQ(window.GetId(), 9u);
  window.SetWindowPos(1, 2, 3, 4);
  EXPECT_EQ(window.GetPosY(), 2);
  EXPECT_EQ(window.GetHeight(), 4);
  EXPECT_EQ(host->GetPosition(), wxPoint(0, 0));  // nothing real moves
  EXPECT_TRUE(window.Show());
  EXPECT_TRUE(window.IsVisible());
  window.Hide();
  EXPECT_FALSE(window.IsVisible());
  window.SetFgColour(Color(0.5, 0.25, 1.0));
  EXPECT_EQ(window.GetFgColour(), wxColour(127, 63, 255));
  EXPECT_EQ(FiredAssertion([&] { window.OnDraw(nullptr); }), "dc != nullptr");
}

TEST_F(Windowless, ToolTipBelongsToTheHostOrToTheWindow) {
  VirtualWindow hosted, alone;
  hosted.Create(0, 0, nullptr, host, 1);
  alone.Create(0, 0, nullptr, nullptr, 2);
  hosted.SetToolTip("on host");
  ASSERT_NE(host->GetToolTip(), nullptr);
  EXPECT_EQ(host->GetToolTip()->GetTip(), "on host");
  EXPECT_EQ(hosted.GetToolTip(), host->GetToolTip());
  alone.SetToolTip("own");
  alone.SetToolTip("own again");
  ASSERT_NE(alone.GetToolTip(), nullptr);
  EXPECT_EQ(alone.GetToolTip()->GetTip(), "own again");
  alone.Clear();
  EXPECT_EQ(alone.GetToolTip(), nullptr);
}

TEST_F(Windowless, CaptureGoesThroughTheHost) {
  VirtualControl control;
  control.Create(0, 0, nullptr, host, 1, nullptr);
  control.CaptureMouse();
  EXPECT_TRUE(control.IsMouseCaptive());
  EXPECT_TRUE(host->IsMouseCaptive());
  control.ReleaseMouse();
  EXPECT_FALSE(control.IsMouseCaptive());
  EXPECT_FALSE(host->HasCapture());

  host->CaptureMouse();  // the host's own capture
  control.CaptureMouse();
  EXPECT_FALSE(control.IsMouseCaptive());
  control.ReleaseMouse();  // releases the host's capture anyway
  EXPECT_FALSE(host->IsMouseCaptive());
}

TEST_F(Windowless, MouseHandlersKeepTheirOwnState) {
  VirtualControl control;
  control.Create(0, 0, nullptr, host, 1, nullptr);
  wxMouseEvent down = Mouse(wxEVT_LEFT_DOWN, 4, 5);
  down.m_controlDown = true;
  control.OnLeftDown(down);
  EXPECT_TRUE(control.GetMouseDownLeft());
  EXPECT_FALSE(control.GetMouseOver());  // unlike a window control
  EXPECT_TRUE(control.GetMetaB());       // Control, not Shift
  EXPECT_FALSE(control.GetMetaA());

  wxMouseEvent leave = Mouse(wxEVT_LEAVE_WINDOW, 50, 50);
  control.CaptureMouse();
  control.OnLeaving(leave);
  EXPECT_TRUE(control.GetMouseDownLeft());  // captive: the button stays held
  control.ReleaseMouse();
  wxMouseEvent enter = Mouse(wxEVT_ENTER_WINDOW, 1, 1);
  control.OnEntering(enter);
  EXPECT_TRUE(control.GetMouseOver());
  control.OnLeaving(leave);
  EXPECT_FALSE(control.GetMouseDownLeft());
  EXPECT_FALSE(control.GetMouseOver());
  int x, y;
  control.GetLastMousePos(x, y);
  EXPECT_EQ(std::make_pair(x, y), std::make_pair(50, 50));

  control.SetEnabled(false);
  wxMouseEvent right = Mouse(wxEVT_RIGHT_DOWN);
  control.OnRightDown(right);
  control.OnEntering(enter);
  EXPECT_FALSE(control.GetMouseDown());
  EXPECT_FALSE(control.GetMouseOver());
  EXPECT_FALSE(control.IsDirty());  // SetEnabled ends with RecalcState
}

struct StateCase {
  const char* name;
  bool enabled;
  bool on;
  bool over;
  bool held;
  std::vector<VORNIMAGETYPE> filled;  // states the cache has images for
  VORNIMAGETYPE expectedState;
  VORNIMAGETYPE drawnFrom;  // VIT_NONE: nothing drawn
};

TEST_F(Windowless, ButtonStatesAndFallbackChain) {
  const std::vector<VORNIMAGETYPE> all = {
      VIT_OFF,         VIT_ON,           VIT_ON_MOUSE_OVER, VIT_OFF_MOUSE_OVER,
      VIT_DISABLED_ON, VIT_DISABLED_OFF, VIT_ON_DOWN,       VIT_OFF_DOWN};
  const std::vector<StateCase> cases = {
      {"plain off", true, false, false, false, all, VIT_OFF, VIT_OFF},
      {"plain on", true, true, false, false, all, VIT_ON, VIT_ON},
      {"over on", true, true, true, false, all, VIT_ON_MOUSE_OVER, VIT_ON_MOUSE_OVER},
      {"over off", true, false, true, false, all, VIT_OFF_MOUSE_OVER, VIT_OFF_MOUSE_OVER},
      {"held wins over over", true, true, true, true, all, VIT_ON_DOWN, VIT_ON_DOWN},
      {"held off", true, false, false, true, all, VIT_OFF_DOWN, VIT_OFF_DOWN},
      {"held off to over",
       true,
       false,
       false,
       true,
       {VIT_OFF, VIT_OFF_MOUSE_OVER},
       VIT_OFF_DOWN,
       VIT_OFF_MOUSE_OVER},
      {"held off to plain", true, false, true, true, {VIT_OFF}, VIT_OFF_DOWN, VIT_OFF},
      {"disabled on", false, true, false, false, all, VIT_DISABLED_ON, VIT_DISABLED_ON},
      {"disabled on to plain",
       false,
       true,
       true,
       false,
       {VIT_ON, VIT_OFF},
       VIT_DISABLED_ON,
       VIT_ON},
      {"disabled off", false, false, false, false, all, VIT_DISABLED_OFF, VIT_DISABLED_OFF},
      {"nothing to draw", true, true, false, false, {VIT_OFF}, VIT_ON, VIT_NONE},
  };
  for (const StateCase& c : cases) {
    SCOPED_TRACE(c.name);
    VornwxBitmapCache cache;
    for (VORNIMAGETYPE state : c.filled)
      cache.AssignImageOwn(state, Solid(kStateColours.at(state)));
    VirtualButton button;
    button.Create(&cache, false, 0, 0, nullptr, host, 1, nullptr);
    EXPECT_EQ(button.GetWidth(), 6);  // sized from the cache
    EXPECT_EQ(button.GetHeight(), 5);
    button.SetOn(c.on);
    if (c.over) {
      wxMouseEvent enter = Mouse(wxEVT_ENTER_WINDOW);
      button.OnEntering(enter);
    }
    if (c.held) {
      wxMouseEvent down = Mouse(wxEVT_LEFT_DOWN);
      button.OnLeftDown(down);
      EXPECT_TRUE(button.GetButtonDown());
    }
    button.SetEnabled(c.enabled);
    EXPECT_EQ(button.GetState(), c.expectedState);
    const wxBitmap* image = button.GetImage();
    if (c.drawnFrom == VIT_NONE) {
      EXPECT_EQ(image, nullptr);
      EXPECT_EQ(Drawn(button), *wxBLACK);
    } else {
      ASSERT_NE(image, nullptr);
      EXPECT_EQ(Drawn(button), kStateColours.at(c.drawnFrom));
    }
  }
}

TEST_F(Windowless, ButtonPressAndReleaseFollowTheMouse) {
  VornwxBitmapCache cache;
  for (const auto& [state, colour] : kStateColours) cache.AssignImageOwn(state, Solid(colour));
  VirtualButton button;
  button.Create(&cache, false, 0, 0, 20, 20, nullptr, host, 1, nullptr);
  EXPECT_EQ(button.GetWidth(), 20);  // a given size wins
  wxMouseEvent down = Mouse(wxEVT_LEFT_DOWN), up = Mouse(wxEVT_LEFT_UP);
  button.OnLeftDown(down);
  EXPECT_EQ(Drawn(button), kStateColours.at(VIT_OFF_DOWN));
  button.OnLeftUp(up);
  EXPECT_FALSE(button.GetButtonDown());
  EXPECT_FALSE(button.GetOn());  // a click alone does not switch it on
  EXPECT_EQ(Drawn(button), kStateColours.at(VIT_OFF));

  const wxBitmap* out = nullptr;
  EXPECT_EQ(FiredAssertion([&] { button.GetImage(VIT_SPARE, cache, out); }), "state != VIT_SPARE");
  EXPECT_FALSE(button.GetImage(VIT_NONE, cache, out));
  EXPECT_EQ(out, nullptr);
}

TEST_F(Windowless, ButtonOwnsItsCacheOnlyWhenTold) {
  CountingCache::s_deleted = 0;
  {
    VirtualButton owner;
    owner.Create(new CountingCache, true, 0, 0, nullptr, host, 1, nullptr);
    CountingCache borrowed;
    VirtualButton borrower;
    borrower.Create(&borrowed, false, 0, 0, nullptr, host, 2, nullptr);
    EXPECT_EQ(borrower.GetImageCache(), &borrowed);
  }
  EXPECT_EQ(CountingCache::s_deleted, 2);  // the owned one and the stack one

  VirtualButton none;
  none.Create(nullptr, false, 0, 0, nullptr, host, 3, nullptr);
  EXPECT_EQ(none.GetImage(), nullptr);
  EXPECT_EQ(none.GetWidth(), 10);
}

TEST_F(Windowless, GroupBindingAndDeregistration) {
  VornControlGroup group;
  EventLog log;
  auto* control = new RecordingVirtual(4, nullptr, &log, "w");
  control->Bind(&group);
  EXPECT_EQ(FiredAssertionIn([&] { control->Bind(&group); }).first, "m_pControlGroup == __null");
  group.SetOnControl(4, true, nullptr);  // not a button: untouched
  delete control;
  EXPECT_TRUE(group.IsEmpty());
}

}  // namespace
