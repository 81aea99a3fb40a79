// The parts' shared hint reactions, the range bar's drags, the preview and
// the colour slug.
#include "GradientTestSupport.h"

using namespace gradtest;

namespace {

TEST_F(GradientTest, EveryPartReactsToTheOtherPartsHintsAsTheTableSays) {
  auto* part = new GradientControlComp;
  part->VornControl::Create(0, 0, 50, 20, frame.Get(), 3, &group);
  RecordingControl other(frame.Get(), 4, nullptr, nullptr);
  GradientHintAdd add(7);
  GradientHintRange range(0.2, 0.6);
  GradientHintSelect select(2);
  GradientHintDelete del(5);
  GradientHintValue value;
  GradientHintColSmooth smooth;
  GradientHintScroll scroll(true, 0.5);
  GradientHintMove move(0.1, 0.2);
  CountingHint unrelated;
  const struct {
    VornControlHint* hint;
    VornControl* from;
    unsigned int selected;
    bool dirty;
    double min, max;
  } cases[] = {
      {&add, &other, 7, true, 0, 1},
      {&range, &other, 5, true, 0.2, 0.6},
      {&select, &other, 2, false, 0, 1},
      {&del, &other, 0, true, 0, 1},
      {&value, &other, 5, true, 0, 1},
      {&smooth, &other, 5, false, 0, 1},
      {&scroll, &other, 5, false, 0, 1},
      {&move, &other, 5, false, 0, 1},
      {&unrelated, &other, 5, false, 0, 1},
      {&add, part, 5, false, 0, 1},  // its own hints are ignored
      {&range, part, 5, false, 0, 1},
  };
  for (const auto& k : cases) {
    part->SetSelect(5);
    part->SetDisplayRange(0, 1);
    part->SetDirty(k.hint == &smooth);  // the smoothing hint clears the mark
    group.Update(0, k.from, k.hint);
    EXPECT_EQ(part->GetSelect(), k.selected) << Describe(k.hint);
    EXPECT_EQ(part->IsDirty(), k.dirty) << Describe(k.hint);
    EXPECT_DOUBLE_EQ(part->GetDisplayMin(), k.min) << Describe(k.hint);
    EXPECT_DOUBLE_EQ(part->GetDisplayMax(), k.max) << Describe(k.hint);
  }
  // The strip and the preview also redraw for a move.
  for (GradientControlComp* p :
       {static_cast<GradientControlComp*>(MakeStrip()), static_cast<GradientControlComp*>([&] {
          auto* s = new GradientSummary;
          s->Create(0, 100, 220, 24, frame.Get(), 8, &group);
          return s;
        }())}) {
    p->ClearDirty();
    group.Update(0, &other, &move);
    EXPECT_TRUE(p->IsDirty());
  }
}

// D = 200: a pixel is 0.005 of the range.
TEST_F(GradientTest, TheRangeBarsEndsAndWindowFollowTheDrag) {
  const struct {
    int press, to;
    bool alt;
    double left, right;
    bool reports;
  } cases[] = {
      {60, 80, false, 0.35, 0.75, true},    // left end
      {60, 200, false, 0.95, 0.95, true},   // left end pushes the right one along
      {60, 0, false, 0.0, 0.75, true},      // and stops at 0
      {160, 100, false, 0.25, 0.45, true},  // right end
      {160, 20, false, 0.05, 0.05, true},   // pushes the left one
      {60, 80, true, 0.35, 0.65, true},     // Alt: both ends, symmetrically
      {160, 180, true, 0.15, 0.85, true},
      {110, 200, false, 0.5, 1.0, true},     // the whole window stops at 1
      {110, 0, false, 0.0, 0.5, true},       // and at 0
      {200, 150, false, 0.25, 0.75, false},  // outside the window: nothing
      {110, 110, false, 0.25, 0.75, false},  // no travel: nothing
  };
  for (const auto& k : cases) {
    auto* bar = new GradientRangeControl;
    bar->VornControl::Create(0, 0, 220, 20, frame.Get(), 5, &group);
    bar->SetDisplayRange(0.25, 0.75);
    Mouse(bar, wxEVT_LEFT_DOWN, k.press, 10);
    Mouse(bar, wxEVT_MOTION, k.to, 10, false, k.alt);
    Mouse(bar, wxEVT_LEFT_UP, k.to, 10);
    const std::string what = std::to_string(k.press) + " -> " + std::to_string(k.to);
    EXPECT_NEAR(bar->GetLeft(), k.left, 1e-9) << what;
    EXPECT_NEAR(bar->GetRight(), k.right, 1e-9) << what;
    const std::string log = Take();
    EXPECT_EQ(log.find("range") != std::string::npos, k.reports) << what << ": " << log;
    bar->Destroy();
  }
}

TEST_F(GradientTest, TheRangeBarsUpdatesClampAndKeepTheEndsInOrder) {
  auto* bar = new GradientRangeControl;
  bar->VornControl::Create(0, 0, 220, 20, frame.Get(), 5, &group);
  bar->SetDisplayRange(0.25, 0.75);
  Mouse(bar, wxEVT_LEFT_DOWN, 110, 10);  // sets the values at the press
  bar->UpdateRight(-200);
  EXPECT_DOUBLE_EQ(bar->GetRight(), 0.0);
  EXPECT_DOUBLE_EQ(bar->GetLeft(), 0.0);
  bar->UpdateLeft(300);
  EXPECT_DOUBLE_EQ(bar->GetLeft(), 1.0);
  EXPECT_DOUBLE_EQ(bar->GetRight(), 1.0);
  bar->UpdateMove(-20);
  EXPECT_DOUBLE_EQ(bar->GetLeft(), 0.15);
  EXPECT_DOUBLE_EQ(bar->GetRight(), 0.65);
  Mouse(bar, wxEVT_LEFT_UP, 110, 10);
}

TEST_F(GradientTest, ThePreviewShowsTheWholeGradientWithTheDisplayedPartOutlined) {
  auto* s = new GradientSummary;
  s->Create(0, 0, 220, 24, frame.Get(), 8, &group);
  s->Bind(&gradient);
  s->SetBgColour(wxColour(10, 20, 30));
  s->SetFgColour(wxColour(250, 250, 250));
  s->SetDisplayRange(0.5, 0.75);
  const wxBitmap shot = Render(s, 220, 24);
  EXPECT_EQ(PixelAt(shot, 10, 12), wxColour(255, 0, 0));       // 0: before the first point
  EXPECT_EQ(PixelAt(shot, 209, 12), wxColour(0, 0, 255));      // 1
  EXPECT_EQ(PixelAt(shot, 109, 12), wxColour(250, 250, 250));  // left edge of the outline
  EXPECT_EQ(PixelAt(shot, 130, 0), wxColour(10, 20, 30));
  EXPECT_EQ(PixelAt(shot, 130, 1), wxColour(250, 250, 250));  // its top
  EXPECT_EQ(s->GetColours().size(), 200u);
}

TEST_F(GradientTest, TheSlugsMarkersMoveAndSwitchThroughItsButtons) {
  auto* slug = new ColourSlug;
  slug->Create(0, 0, 228, 16, frame.Get(), 6, &group);  // strip x 14..213
  slug->Bind(&gradient);
  slug->SetMinMax(0.2, 0.8);
  CaptureDprintf debug;
  Mouse(slug, wxEVT_LEFT_DOWN, 34, 8);  // nearer the minimum
  Mouse(slug, wxEVT_MOTION, 14 + 199 / 2, 8);
  Mouse(slug, wxEVT_LEFT_UP, 14 + 199 / 2, 8);
  EXPECT_NEAR(slug->GetMin(), 99.0 / 199, 1e-9);
  Mouse(slug, wxEVT_LEFT_DOWN, 200, 8);
  Mouse(slug, wxEVT_MOTION, 20, 8);  // the maximum cannot pass the minimum
  Mouse(slug, wxEVT_LEFT_UP, 20, 8);
  EXPECT_DOUBLE_EQ(slug->GetMax(), slug->GetMin());
  Take();
  Click(slug->GetButton(true));
  EXPECT_FALSE(slug->GetMinEnable());
  EXPECT_TRUE(debug.Contains(" Min = 0.497487, Max = 0.497487, MinEnable = 0, MaxEnable = 1\n"));
  EXPECT_EQ(Take(), "range 0.497487 0.497487");
  slug->SetMinMax(0.2, 0.8);
  Mouse(slug, wxEVT_LEFT_DOWN, 30, 8);  // only the maximum is on: it comes
  Mouse(slug, wxEVT_MOTION, 150, 8);
  Mouse(slug, wxEVT_LEFT_UP, 150, 8);
  EXPECT_NEAR(slug->GetMax(), 136.0 / 199, 1e-9);
  EXPECT_DOUBLE_EQ(slug->GetMin(), 0.2);
  Click(slug->GetButton(false));
  Take();
  Mouse(slug, wxEVT_LEFT_DOWN, 100, 8);  // both off: nothing moves
  Mouse(slug, wxEVT_LEFT_UP, 100, 8);
  EXPECT_EQ(Take(), "");
  // Drawing: one colour per strip pixel, from a table of the strip's width.
  EXPECT_EQ(PixelAt(Render(slug, 228, 16), 14, 8), wxColour(255, 0, 0));
  EXPECT_EQ(slug->GetColours().size(), 200u);
  slug->RecalcColours(50);
  EXPECT_EQ(FiredAssertion([&] { Render(slug, 228, 16); }), "m_colours.size() == width");
  slug->SetSize(260, 16);  // a resize recalculates
  EXPECT_EQ(FiredAssertion([&] { Render(slug, 260, 16); }), "");
  EXPECT_EQ(slug->GetColours().size(), 232u);
}

}  // namespace
