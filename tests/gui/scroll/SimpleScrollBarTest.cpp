// The simple scroll bar driven by real mouse events: thumb size, the caps
// its drawn thumb shows, drags, end-button steps with their auto-repeat, the
// wheel, and the absence of redraws for unchanged values.
#include <gtest/gtest.h>

#include "../ControlTestSupport.h"
#include "vorn/VornSimpleScrollBar.h"

namespace {

const wxColour kOutline(220, 40, 40);
const wxColour kBack(10, 20, 30);
const wxColour kHover(40, 220, 40);

// Counts the repaints and notifications the tests look for.
class CountingBar : public VornSimpleScrollBar {
 public:
  void Refresh(bool erase = true, const wxRect* rect = nullptr) override {
    ++refreshes;
    VornSimpleScrollBar::Refresh(erase, rect);
  }
  void OnDraw(wxDC* dc) override {
    ++draws;
    VornSimpleScrollBar::OnDraw(dc);
  }
  void OnSliderChange() override { changes.push_back(GetSliderVal()); }
  void MakeTabImages() override {
    ++tabBuilds;
    VornSimpleScrollBar::MakeTabImages();
  }
  int refreshes = 0, draws = 0, tabBuilds = 0;
  std::vector<double> changes;
};

class SimpleScrollBarTest : public ::testing::Test {
 protected:
  CountingBar* Make(int height, bool endButtons, double fraction = 0.2, bool left = true) {
    auto bar = std::make_unique<CountingBar>();
    bar->SetEndButtons(endButtons);
    bar->SetLeft(left);
    bar->Create(kOutline, kBack, kHover, 10, 10, height, frame.Get(), 5 + bars.size(), &group);
    bar->SetFractionVal(fraction);
    bars.push_back(std::move(bar));
    return bars.back().get();
  }
  void TearDown() override {
    for (auto& bar : bars)
      for (VornMomentBtn* b : {bar->GetUpButton(), bar->GetDownButton()})
        if (b) b->GetTimer()->Stop();
  }
  static void Wheel(VornControl* bar, int rotation,
                    wxMouseWheelAxis axis = wxMOUSE_WHEEL_VERTICAL) {
    wxMouseEvent event = MakeMouseEvent(bar, wxEVT_MOUSEWHEEL, 4, 30);
    event.m_wheelRotation = rotation;
    event.m_wheelDelta = 120;
    event.m_wheelAxis = axis;
    bar->GetEventHandler()->ProcessEvent(event);
  }

  TestFrame frame;
  VornControlGroupValue group;
  std::vector<std::unique_ptr<CountingBar>> bars;
};

TEST_F(SimpleScrollBarTest, ThumbHeightFollowsTrackAndFractionWithAFloorOf29) {
  const struct {
    int height;
    bool endButtons;
    double fraction, stored;
    int thumb;
  } cases[] = {{100, false, 0.05, 0.05, 29},  {124, true, 0.05, 0.05, 29},
               {124, true, 0.5, 0.5, 50},     {100, false, 1.0, 0.9999, 99},
               {100, false, 0.0, 0.0001, 29}, {224, true, 0.37, 0.37, 74}};
  for (const auto& c : cases) {
    CountingBar* bar = Make(c.height, c.endButtons, c.fraction);
    EXPECT_EQ(c.stored, bar->GetFractionVal()) << c.height << " " << c.fraction;
    EXPECT_EQ(c.thumb, bar->GetThumbHeight()) << c.height << " " << c.fraction;
    EXPECT_EQ(c.endButtons ? 12 : 0, bar->GetScrollStart());
    EXPECT_EQ(c.height - (c.endButtons ? 24 : 0), bar->GetScrollHeight());
    EXPECT_EQ(c.endButtons, bar->GetUpButton() != nullptr && bar->GetDownButton() != nullptr);
    EXPECT_EQ(11, bar->GetWidth());
  }
}

// The thumb's ends read from the drawn pixels: an arrow shows at each end
// toward which the thumb can still move.
TEST_F(SimpleScrollBarTest, DrawnCapsShowWhereTheThumbCanStillMove) {
  wxBitmap *plainTop = nullptr, *plainBottom = nullptr, *arrowTop = nullptr, *arrowBottom = nullptr;
  VornSimpleScrollBar::MakeBaseTabImages(plainTop, plainBottom, arrowTop, arrowBottom, kOutline,
                                         kBack);
  std::unique_ptr<wxBitmap> owned[] = {
      std::unique_ptr<wxBitmap>(plainTop), std::unique_ptr<wxBitmap>(plainBottom),
      std::unique_ptr<wxBitmap>(arrowTop), std::unique_ptr<wxBitmap>(arrowBottom)};
  ASSERT_FALSE(SamePixels(*plainTop, *arrowTop));
  ASSERT_FALSE(SamePixels(*plainBottom, *arrowBottom));

  CountingBar* bar = Make(100, false, 0.5);
  // The left bar shows the tab's columns 0..9.
  auto cap = [&](int y) { return Render(bar, 11, 100).GetSubBitmap(wxRect(0, y, 10, 13)); };
  auto piece = [](const wxBitmap* p) { return p->GetSubBitmap(wxRect(0, 0, 10, 13)); };
  const struct {
    double value;
    const wxBitmap *top, *bottom;
  } cases[] = {{0.0, plainTop, arrowBottom},
               {1.0, arrowTop, plainBottom},
               {0.5, arrowTop, arrowBottom},
               {0.02, arrowTop, arrowBottom}};
  for (const auto& c : cases) {
    bar->SetSliderVal(c.value, false);
    const int top = bar->GetThumbTop();
    EXPECT_EQ(static_cast<int>(50 * c.value), top);
    EXPECT_TRUE(SamePixels(piece(c.top), cap(top))) << c.value;
    EXPECT_TRUE(SamePixels(piece(c.bottom), cap(top + 50 - 13))) << c.value;
    // Above and below the thumb lies the background.
    const wxBitmap drawn = Render(bar, 11, 100);
    if (top > 0) {
      EXPECT_EQ(kBack, PixelAt(drawn, 5, top - 1));
    }
    if (top + 50 < 100) {
      EXPECT_EQ(kBack, PixelAt(drawn, 5, top + 50));
    }
  }
}

TEST_F(SimpleScrollBarTest, SeparatorOnlyWithEndButtonsOnTheSideFacingTheContent) {
  const struct {
    bool endButtons, left;
    int column;
    bool line;
  } cases[] = {{true, true, 10, true}, {true, false, 0, true}, {false, true, 10, false}};
  for (const auto& c : cases) {
    CountingBar* bar = Make(200, c.endButtons, 0.2, c.left);
    const wxBitmap drawn = Render(bar, 11, 200);
    // Below the thumb, inside the track.
    EXPECT_EQ(c.line ? kOutline : kBack, PixelAt(drawn, c.column, 150)) << c.left;
  }
}

TEST_F(SimpleScrollBarTest, DragMovesByTravelAndHoverPaintsTheThumbInTheThirdColour) {
  CountingBar* bar = Make(100, false, 0.5);  // thumb 50, travel 50
  EXPECT_EQ(0, CountNear(Render(bar, 11, 100), kHover, 0));
  Mouse(bar, wxEVT_MOTION, 5, 20);
  EXPECT_TRUE(bar->GetMouseOverTab());
  EXPECT_GT(CountNear(Render(bar, 11, 100), kHover, 0), 20);

  Mouse(bar, wxEVT_LEFT_DOWN, 5, 20);
  EXPECT_TRUE(bar->IsDragging());
  const int drawsBefore = bar->draws;
  Mouse(bar, wxEVT_MOTION, 5, 45);
  EXPECT_DOUBLE_EQ(0.5, bar->GetSliderVal());
  EXPECT_GT(bar->draws, drawsBefore) << "a drag redraws at once";
  Mouse(bar, wxEVT_MOTION, 300, 500);  // far outside: clamped
  EXPECT_EQ(1.0, bar->GetSliderVal());
  Mouse(bar, wxEVT_MOTION, 5, 30);
  EXPECT_DOUBLE_EQ(0.2, bar->GetSliderVal());
  Mouse(bar, wxEVT_LEFT_UP, 5, 30);
  EXPECT_FALSE(bar->IsDragging());
  EXPECT_EQ((std::vector<double>{0.5, 1.0, 0.2}), bar->changes);

  Mouse(bar, wxEVT_LEAVE_WINDOW, 50, 50);
  EXPECT_FALSE(bar->GetMouseOverTab());
}

TEST_F(SimpleScrollBarTest, AThumbAsTallAsTheTrackAlwaysDragsToZero) {
  CountingBar* bar = Make(50, true, 0.5);  // track 26, thumb 29
  bar->SetSliderVal(0.5, false);
  const int top = bar->GetThumbTop();
  Mouse(bar, wxEVT_LEFT_DOWN, 5, top + 5);
  ASSERT_TRUE(bar->IsDragging());
  for (int y : {top + 20, top - 40, top + 5}) {
    Mouse(bar, wxEVT_MOTION, 5, y);
    EXPECT_EQ(0.0, bar->GetSliderVal()) << y;
  }
  Mouse(bar, wxEVT_LEFT_UP, 5, top);
}

TEST_F(SimpleScrollBarTest, APressBesideTheThumbDoesNothing) {
  CountingBar* bar = Make(100, false, 0.5);
  bar->SetSliderVal(0.2, false);  // thumb 10..59
  for (int y : {3, 80}) {
    Mouse(bar, wxEVT_LEFT_DOWN, 5, y);
    EXPECT_FALSE(bar->IsDragging()) << y;
    Mouse(bar, wxEVT_MOTION, 5, y + 10);
    Mouse(bar, wxEVT_LEFT_UP, 5, y + 10);
  }
  EXPECT_EQ(0.2, bar->GetSliderVal());
  EXPECT_TRUE(bar->changes.empty());
}

// Control height 200, fraction 0.2: the content is 1000 pixels, so the
// first step of 20 is 0.02 and each repeat of 5 is 0.005.
TEST_F(SimpleScrollBarTest, EndButtonsStepFirstByTheInitialThenByTheRepeatStep) {
  CountingBar* bar = Make(200, true, 0.2);
  VornMomentBtn* down = bar->GetDownButton();
  VornMomentBtn* up = bar->GetUpButton();
  EXPECT_EQ(wxSize(11, 12), up->GetSize());
  EXPECT_EQ(188, down->GetPosY());
  EXPECT_EQ(500, down->GetInitialDelay());
  EXPECT_EQ(10, down->GetRepeatInterval());
  long elapsed = 0;
  for (VornMomentBtn* b : {up, down}) b->GetTimer()->SetClock([&elapsed] { return elapsed; });

  Do(down, "enter down");
  EXPECT_DOUBLE_EQ(0.02, bar->GetSliderVal());
  elapsed = 500;
  down->GetTimer()->Notify();  // first tick: one repeat
  EXPECT_DOUBLE_EQ(0.025, bar->GetSliderVal());
  elapsed = 10;
  down->GetTimer()->Notify();  // one interval later: two repeats
  EXPECT_DOUBLE_EQ(0.035, bar->GetSliderVal());
  Do(down, "up leave");
  EXPECT_FALSE(down->GetTimer()->IsRunning());

  Do(up, "enter down");
  EXPECT_DOUBLE_EQ(0.015, bar->GetSliderVal());
  elapsed = 500;
  up->GetTimer()->Notify();
  EXPECT_DOUBLE_EQ(0.01, bar->GetSliderVal());
  Do(up, "up");
  ASSERT_EQ(6u, bar->changes.size());  // 1 + 1 + 2 down, 1 + 1 up
  EXPECT_DOUBLE_EQ(0.01, bar->changes.back());

  // Hints the bar sends itself, or from elsewhere, move nothing.
  VornMomentHint first(true);
  bar->OnUpdate(5, bar, &first);
  bar->OnUpdate(5, nullptr, &first);
  EXPECT_DOUBLE_EQ(0.01, bar->GetSliderVal());

  bar->SetEnabled(false);
  Do(down, "enter down up");
  EXPECT_DOUBLE_EQ(0.01, bar->GetSliderVal()) << "the buttons follow the bar";
}

TEST_F(SimpleScrollBarTest, WheelMovesByTheRepeatStepPerNotch) {
  CountingBar* bar = Make(200, false, 0.2);
  Wheel(bar, -120);  // one notch toward the user: down
  EXPECT_DOUBLE_EQ(0.005, bar->GetSliderVal());
  Wheel(bar, -360);
  EXPECT_DOUBLE_EQ(0.02, bar->GetSliderVal());
  Wheel(bar, 60);  // half a notch from a fine wheel
  EXPECT_DOUBLE_EQ(0.0175, bar->GetSliderVal());
  Wheel(bar, -120, wxMOUSE_WHEEL_HORIZONTAL);
  bar->SetEnabled(false);
  Wheel(bar, -120);
  EXPECT_DOUBLE_EQ(0.0175, bar->GetSliderVal());
  EXPECT_EQ(3u, bar->changes.size());
  bar->SetEnabled(true);
  Wheel(bar, 1200);
  EXPECT_EQ(0.0, bar->GetSliderVal());
}

TEST_F(SimpleScrollBarTest, SettingTheSameValueOrFractionAgainCausesNoRedraw) {
  CountingBar* bar = Make(200, true, 0.2);
  const int tabs = bar->tabBuilds, refreshes = bar->refreshes;
  bar->SetFractionVal(0.2);
  EXPECT_EQ(tabs, bar->tabBuilds);
  EXPECT_EQ(refreshes, bar->refreshes);
  bar->SetFractionVal(0.5);
  EXPECT_EQ(tabs + 1, bar->tabBuilds);
  EXPECT_EQ(refreshes + 1, bar->refreshes);
  EXPECT_EQ(88, bar->GetThumbHeight());

  bar->SetSliderVal(0.3, true);
  bar->SetSliderVal(0.3, true);
  bar->SetSliderVal(7.0, false);  // clamped, silent
  bar->SetSliderVal(1.0, true);   // equals the stored 1: nothing
  EXPECT_EQ(refreshes + 3, bar->refreshes);
  EXPECT_EQ((std::vector<double>{0.3}), bar->changes);
  EXPECT_EQ(1.0, bar->GetSliderVal());
}

TEST_F(SimpleScrollBarTest, TabPiecesMustStartEmpty) {
  wxBitmap existing;
  const char* names[] = {"!pbase", "!pbottombase", "!parrow", "!pbottomarrow"};
  for (int i = 0; i < 4; ++i) {
    wxBitmap* pieces[4] = {nullptr, nullptr, nullptr, nullptr};
    pieces[i] = &existing;
    const auto fired = FiredAssertionIn([&] {
      VornSimpleScrollBar::MakeBaseTabImages(pieces[0], pieces[1], pieces[2], pieces[3], kOutline,
                                             kBack);
    });
    EXPECT_EQ(names[i], fired.first);
    EXPECT_EQ(&existing, pieces[i]);
  }
}

}  // namespace
