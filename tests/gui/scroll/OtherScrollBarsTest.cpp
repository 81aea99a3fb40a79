// The windowless list-box bar, the monster box's bar and the image-based
// bar: ownership of events, the shared thumb, and what each reports.
#include <gtest/gtest.h>

#include <sstream>

#include "../ControlTestSupport.h"
#include "vorn/VornSimpleScrollBar.h"

namespace {

const wxColour kOutline(220, 40, 40);
const wxColour kBack(10, 20, 30);
const wxColour kHover(40, 220, 40);

class RecordingOwner : public VornListBoxScrollOwner {
 public:
  void SetScrollPos(double value) override {
    std::ostringstream s;
    s << "pos " << value;
    log.push_back(s.str());
  }
  void OnDrawBox(wxDC&) override { log.push_back("draw"); }
  EventLog log;
};

wxMouseEvent At(wxWindow* window, wxEventType type, int x, int y) {
  return MakeMouseEvent(window, type, x, y);
}

TEST(ListBoxScrollBarTest, ActsOnlyWhileVisibleAndInsideAndDragsTheSharedThumb) {
  TestFrame frame;
  RecordingOwner owner;
  // Track 100 (12 free at each end), fraction 0.2 from the constructor.
  VornListBoxScrollBar bar(kOutline, kBack, kHover, 50, 20, 124, frame.Get());
  bar.SetBox(&owner);
  EXPECT_EQ(0.2, bar.GetFractionVal());
  EXPECT_EQ(29, bar.GetThumbHeight());
  EXPECT_EQ(12, bar.GetScrollStart());
  EXPECT_EQ(100, bar.GetScrollHeight());

  wxMouseEvent press = At(frame.Get(), wxEVT_LEFT_DOWN, 55, 20 + 12 + 5);
  EXPECT_FALSE(bar.OnLeftDown(press)) << "hidden";
  bar.Show(true);
  wxMouseEvent outside = At(frame.Get(), wxEVT_LEFT_DOWN, 62, 40);
  EXPECT_FALSE(bar.OnLeftDown(outside));
  EXPECT_TRUE(bar.OnLeftDown(press));
  EXPECT_TRUE(bar.IsDragging());
  wxMouseEvent move = At(frame.Get(), wxEVT_MOTION, 55, 20 + 12 + 5 + 71);  // the whole travel
  EXPECT_TRUE(bar.OnMouseMove(move));
  EXPECT_EQ(1.0, bar.GetSliderVal());
  wxMouseEvent release = At(frame.Get(), wxEVT_LEFT_UP, 55, 60);
  EXPECT_TRUE(bar.OnLeftUp(release));
  EXPECT_FALSE(bar.IsDragging());
  EXPECT_EQ((EventLog{"pos 1", "draw"}), owner.log);

  owner.log.clear();
  bar.SetSliderVal(1.0);
  bar.SetSliderVal(-3.0);
  EXPECT_EQ((EventLog{"pos 0"}), owner.log);
  // A press beside the thumb is consumed but starts nothing.
  wxMouseEvent beside = At(frame.Get(), wxEVT_LEFT_DOWN, 55, 120);
  EXPECT_TRUE(bar.OnLeftDown(beside));
  EXPECT_FALSE(bar.IsDragging());
}

// Both bars draw their thumb through one function: a right-hand simple bar
// with end buttons and the list-box bar give the same picture.
TEST(ListBoxScrollBarTest, DrawsTheSamePictureAsTheSimpleBar) {
  TestFrame frame;
  VornListBoxScrollBar listBar(kOutline, kBack, kHover, 0, 0, 160, frame.Get());
  listBar.Show(true);
  VornSimpleScrollBar simple;
  simple.SetLeft(false);
  simple.Create(kOutline, kBack, kHover, 0, 0, 160, frame.Get(), 3, nullptr);
  for (double value : {0.0, 0.4, 1.0}) {
    listBar.SetSliderVal(value);
    simple.SetSliderVal(value, false);
    EXPECT_EQ(simple.GetThumbTop(), listBar.GetThumbTop());
    wxBitmap drawn = SolidBitmap(11, 160, wxColour(1, 2, 3));
    {
      wxMemoryDC dc(drawn);
      listBar.OnDraw(dc);
    }
    EXPECT_TRUE(SamePixels(Render(&simple, 11, 160), drawn)) << value;
  }
}

TEST(MonsterScrollBarTest, StandsRightWithEndButtonsAndACornerUnlessPlain) {
  TestFrame frame;
  VornControlGroupValue group;
  MonsterScrollBar corner(nullptr, nullptr, nullptr, kOutline, kBack, kHover, 0, 0, 200,
                          frame.Get(), 1, &group, false);
  MonsterScrollBar plain(nullptr, nullptr, nullptr, kOutline, kBack, kHover, 20, 0, 200,
                         frame.Get(), 2, &group, true);
  EXPECT_FALSE(corner.GetLeft());
  ASSERT_TRUE(corner.GetUpButton() && plain.GetUpButton());
  auto image = [](VornMomentBtn* b, VORNIMAGETYPE state) {
    const wxBitmap* out = nullptr;
    EXPECT_TRUE(b->GetImageCache()->GetImage(state, out)) << state;
    return out ? *out : wxBitmap();
  };
  for (VORNIMAGETYPE s : {VIT_OFF, VIT_OFF_MOUSE_OVER, VIT_OFF_DOWN})
    EXPECT_FALSE(SamePixels(image(corner.GetUpButton(), s), image(plain.GetUpButton(), s))) << s;
  EXPECT_TRUE(SamePixels(image(corner.GetUpButton(), VIT_DISABLED_OFF),
                         image(plain.GetUpButton(), VIT_DISABLED_OFF)));
  EXPECT_TRUE(
      SamePixels(image(corner.GetDownButton(), VIT_OFF), image(plain.GetDownButton(), VIT_OFF)));
}

class ImageScrollBarTest : public ::testing::Test {
 protected:
  TestFrame frame;
  EventLog log;
  RecordingValueGroupOf<VornControlGroupValue> group{&log};
  const wxColour normalColour{200, 0, 0}, endColour{0, 200, 0}, startColour{0, 0, 200};
  wxBitmap normal = SolidBitmap(10, 20, normalColour), atEnd = SolidBitmap(10, 20, endColour),
           atStart = SolidBitmap(10, 20, startColour);
  // Caps 11 square: the thumb travels from 11 to 200 - 20 - 11 = 169.
  VornScrollBar bar{&normal, &atEnd, &atStart, kOutline,    kBack, 100.0,
                    0,       0,      200,      frame.Get(), 9,     &group};
};

TEST_F(ImageScrollBarTest, ValueTravelAndDragsReportToTheGroup) {
  EXPECT_EQ(11, bar.GetWidth());
  EXPECT_EQ(11, bar.GetLowestTop());
  EXPECT_EQ(169, bar.GetHighestTop());
  bar.AddToRange(300.0, false);
  bar.SetValue(0.5);
  EXPECT_EQ(90, bar.GetThumbTop());
  EXPECT_DOUBLE_EQ(200.0 * 79 / 158, bar.GetValue());
  EXPECT_EQ(normalColour, PixelAt(Render(&bar, 11, 200), 2, 95));

  Do(&bar, "down", 3, 95);
  Mouse(&bar, wxEVT_MOTION, 3, 105);
  Mouse(&bar, wxEVT_MOTION, 3, 400);  // clamped at the highest top
  Mouse(&bar, wxEVT_MOTION, 3, 450);  // no further: no report
  EXPECT_EQ(169, bar.GetThumbTop());
  EXPECT_EQ(endColour, PixelAt(Render(&bar, 11, 200), 2, 175));
  Do(&bar, "up", 3, 450);
  EXPECT_EQ((EventLog{"drag 9", "sel 9", "drag 9", "drag 9", "unsel 9"}), log);

  // Shrinking the content below the page puts the thumb at the end and
  // shows no thumb at all.
  log.clear();
  bar.SetValue(0.0);
  bar.AddToRange(-250.0, true);
  EXPECT_EQ(169, bar.GetThumbTop());
  EXPECT_EQ(0.0, bar.GetValue());
  EXPECT_TRUE(Uniform(Render(&bar, 11, 200), kBack));
  EXPECT_EQ((EventLog{"drag 9", "drag 9", "drag 9"}), log);
}

}  // namespace
