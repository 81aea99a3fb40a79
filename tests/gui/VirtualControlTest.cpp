// Windowless windows, controls and buttons inside a real host window.
#include <gtest/gtest.h>
#include <wx/wx.h>

#include "ControlTestSupport.h"
#include "vorn/VornWindow.h"

namespace {

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
  // What the button draws at (1, 1); black when it draws nothing.
  static wxColour Drawn(VirtualButton& button) {
    return PixelAt(Render(&button, 6, 5, *wxBLACK), 1, 1);
  }
  TestFrame frame;
  VornPanel* host = nullptr;
};

TEST_F(Windowless, GeometryVisibilityColoursToolTipAndGroup) {
  VirtualWindow window, alone;
  window.Create(3, 4, nullptr, host, 9);
  EXPECT_EQ(std::vector<int>({window.GetPosX(), window.GetWidth(), window.GetHeight()}),
            std::vector<int>({3, 10, 10}));
  EXPECT_EQ(window.GetId(), 9u);
  window.SetWindowPos(1, 2, 3, 4);
  EXPECT_EQ(std::vector<int>({window.GetPosY(), window.GetHeight()}), std::vector<int>({2, 4}));
  EXPECT_EQ(host->GetPosition(), wxPoint(0, 0));  // nothing real moves
  EXPECT_TRUE(window.Show());
  EXPECT_TRUE(window.IsVisible());
  window.Hide();
  EXPECT_FALSE(window.IsVisible());
  window.SetFgColour(Color(0.5, 0.25, 1.0));
  EXPECT_EQ(window.GetFgColour(), wxColour(127, 63, 255));
  EXPECT_EQ(FiredAssertion([&] { window.OnDraw(nullptr); }), "dc != nullptr");

  // The tool tip is the host's when there is one, else the window's own.
  alone.Create(0, 0, nullptr, nullptr, 2);
  window.SetToolTip("on host");
  ASSERT_NE(host->GetToolTip(), nullptr);
  EXPECT_EQ(host->GetToolTip()->GetTip(), "on host");
  EXPECT_EQ(window.GetToolTip(), host->GetToolTip());
  alone.SetToolTip("own");
  alone.SetToolTip("own again");
  ASSERT_NE(alone.GetToolTip(), nullptr);
  EXPECT_EQ(alone.GetToolTip()->GetTip(), "own again");
  alone.Clear();
  EXPECT_EQ(alone.GetToolTip(), nullptr);

  VornControlGroup group;
  EventLog log;
  RecordingVirtual control(4, nullptr, &log, "w");
  control.Bind(&group);
  EXPECT_EQ(FiredAssertionIn([&] { control.Bind(&group); }).first, "m_pControlGroup == __null");
}

TEST_F(Windowless, CaptureGoesThroughTheHost) {
  VirtualControl control;
  control.Create(0, 0, nullptr, host, 1, nullptr);
  control.CaptureMouse();
  EXPECT_TRUE(control.IsMouseCaptive() && host->IsMouseCaptive());
  control.ReleaseMouse();
  EXPECT_FALSE(control.IsMouseCaptive() || host->HasCapture());

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
  // Unlike a window control: no over, and Control (not Shift) is meta B.
  EXPECT_EQ(MouseFlags(control), "left down B meta");

  wxMouseEvent leave = Mouse(wxEVT_LEAVE_WINDOW, 50, 50);
  control.CaptureMouse();
  control.OnLeaving(leave);
  EXPECT_TRUE(control.GetMouseDownLeft());  // captive: the button stays held
  control.ReleaseMouse();
  wxMouseEvent enter = Mouse(wxEVT_ENTER_WINDOW, 1, 1);
  control.OnEntering(enter);
  EXPECT_TRUE(control.GetMouseOver());
  control.OnLeaving(leave);
  EXPECT_EQ(MouseFlags(control), "B meta");
  EXPECT_EQ(Positions(control), "mouse 50,50 down 4,5");

  control.SetEnabled(false);
  wxMouseEvent right = Mouse(wxEVT_RIGHT_DOWN);
  control.OnRightDown(right);
  control.OnEntering(enter);
  EXPECT_EQ(MouseFlags(control), "B meta");
  EXPECT_FALSE(control.IsDirty());  // SetEnabled ends with RecalcState
}

TEST_F(Windowless, ButtonStatesAndFallbackChain) {
  const std::vector<VORNIMAGETYPE> all = AllStates();
  const struct {
    const char* name;
    bool enabled, on, over, held;
    VORNIMAGETYPE expectedState;
    VORNIMAGETYPE drawnFrom;            // VIT_NONE: nothing drawn
    std::vector<VORNIMAGETYPE> filled;  // states the cache has images for
  } cases[] = {
      {"plain off", true, false, false, false, VIT_OFF, VIT_OFF, all},
      {"plain on", true, true, false, false, VIT_ON, VIT_ON, all},
      {"over on", true, true, true, false, VIT_ON_MOUSE_OVER, VIT_ON_MOUSE_OVER, all},
      {"over off", true, false, true, false, VIT_OFF_MOUSE_OVER, VIT_OFF_MOUSE_OVER, all},
      {"held wins over over", true, true, true, true, VIT_ON_DOWN, VIT_ON_DOWN, all},
      {"held off", true, false, false, true, VIT_OFF_DOWN, VIT_OFF_DOWN, all},
      {"held off to over",
       true,
       false,
       false,
       true,
       VIT_OFF_DOWN,
       VIT_OFF_MOUSE_OVER,
       {VIT_OFF, VIT_OFF_MOUSE_OVER}},
      {"held off to plain", true, false, true, true, VIT_OFF_DOWN, VIT_OFF, {VIT_OFF}},
      {"disabled on", false, true, false, false, VIT_DISABLED_ON, VIT_DISABLED_ON, all},
      {"disabled on to plain",
       false,
       true,
       true,
       false,
       VIT_DISABLED_ON,
       VIT_ON,
       {VIT_ON, VIT_OFF}},
      {"disabled off", false, false, false, false, VIT_DISABLED_OFF, VIT_DISABLED_OFF, all},
      {"nothing to draw", true, true, false, false, VIT_ON, VIT_NONE, {VIT_OFF}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    auto cache = MakeCache(c.filled, 6, 5);
    VirtualButton button;
    button.Create(cache.get(), false, 0, 0, nullptr, host, 1, nullptr);
    EXPECT_EQ(std::make_pair(button.GetWidth(), button.GetHeight()), std::make_pair(6, 5));
    button.SetOn(c.on);
    wxMouseEvent enter = Mouse(wxEVT_ENTER_WINDOW), down = Mouse(wxEVT_LEFT_DOWN);
    if (c.over) button.OnEntering(enter);
    if (c.held) button.OnLeftDown(down);
    EXPECT_EQ(button.GetButtonDown(), c.held);
    button.SetEnabled(c.enabled);
    EXPECT_EQ(button.GetState(), c.expectedState);
    EXPECT_EQ(button.GetImage() == nullptr, c.drawnFrom == VIT_NONE);
    EXPECT_EQ(Drawn(button), c.drawnFrom == VIT_NONE ? *wxBLACK : StateColour(c.drawnFrom));
  }
}

TEST_F(Windowless, ButtonPressAndReleaseFollowTheMouse) {
  auto cache = MakeCache(AllStates(), 6, 5);
  VirtualButton button;
  button.Create(cache.get(), false, 0, 0, 20, 20, nullptr, host, 1, nullptr);
  EXPECT_EQ(button.GetWidth(), 20);  // a given size wins
  wxMouseEvent down = Mouse(wxEVT_LEFT_DOWN), up = Mouse(wxEVT_LEFT_UP);
  button.OnLeftDown(down);
  EXPECT_EQ(Drawn(button), StateColour(VIT_OFF_DOWN));
  button.OnLeftUp(up);
  EXPECT_FALSE(button.GetButtonDown());
  EXPECT_FALSE(button.GetOn());  // a click alone does not switch it on
  EXPECT_EQ(Drawn(button), StateColour(VIT_OFF));

  const wxBitmap* out = nullptr;
  EXPECT_EQ(FiredAssertion([&] { button.GetImage(VIT_SPARE, *cache, out); }), "state != VIT_SPARE");
  EXPECT_FALSE(button.GetImage(VIT_NONE, *cache, out));
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

}  // namespace
