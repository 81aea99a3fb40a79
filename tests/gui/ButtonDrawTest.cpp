// Button drawing: the state image (or its fallback) copied from the cache or
// its sheet, the labels of the text buttons and the ring button's ring.
#include <gtest/gtest.h>

#include <numeric>

#include "ControlTestSupport.h"

namespace {

// Per column, the number of pixels that differ from the background.
std::vector<int> InkPerColumn(const wxBitmap& bmp, const wxColour& background) {
  const wxImage image = bmp.ConvertToImage();
  std::vector<int> ink(image.GetWidth(), 0);
  for (int y = 0; y < image.GetHeight(); ++y)
    for (int x = 0; x < image.GetWidth(); ++x) ink[x] += ImagePixel(image, x, y) != background;
  return ink;
}

class ButtonDrawTest : public ::testing::Test {
 protected:
  TestFrame frame;
};

TEST_F(ButtonDrawTest, DrawsTheStateImageOrItsFallback) {
  const struct {
    bool on;
    const char* events;
    VORNIMAGETYPE full;     // drawn with every state image
    VORNIMAGETYPE partial;  // drawn with only the plain off and on images
  } states[] = {
      {false, "", VIT_OFF, VIT_OFF},
      {false, "enter", VIT_OFF_MOUSE_OVER, VIT_OFF},
      {false, "enter down", VIT_OFF_DOWN, VIT_OFF},
      {false, "down", VIT_OFF_DOWN, VIT_OFF},
      {true, "", VIT_ON, VIT_ON},
      {true, "enter", VIT_ON_MOUSE_OVER, VIT_ON},
      {true, "enter down", VIT_ON_DOWN, VIT_ON},
      {false, "enter disable", VIT_DISABLED_OFF, VIT_OFF},
      {true, "disable", VIT_DISABLED_ON, VIT_ON},
  };
  auto full = MakeCache(AllStates());
  auto partial = MakeCache({VIT_OFF, VIT_ON});
  for (const auto& c : states) {
    for (bool usePartial : {false, true}) {
      SCOPED_TRACE(testing::Message() << c.events << (usePartial ? " partial" : ""));
      // The base button keeps the on flag as set: no click reaction flips it.
      VornButton button(usePartial ? partial.get() : full.get(), 0, 0, frame.Get(), 1, nullptr);
      button.SetOn(c.on);
      Do(&button, c.events);
      button.RecalcState();
      EXPECT_EQ(c.full, button.GetState());
      EXPECT_TRUE(Uniform(Render(&button, 24, 16), StateColour(usePartial ? c.partial : c.full)));
    }
  }
}

TEST_F(ButtonDrawTest, CopiesTheRectangleFromASharedSheet) {
  auto full = MakeCache(AllStates());
  WallpaperBitmapHolder holder;
  WallpaperImageInfo<wxBitmap> pad;
  // Something else first, so the button's images do not start at (0, 0).
  holder.AddImage("pad", SolidBitmap(37, 11, *wxRED), pad);
  ASSERT_TRUE(holder.AddImageCache("button", *full));
  VornwxBitmapCache sheetCache;
  ASSERT_TRUE(holder.GetImageCache("button", sheetCache));

  VornButtonToggle toggle(&sheetCache, 0, 0, frame.Get(), 1, nullptr);
  EXPECT_EQ(24, toggle.GetWidth());
  WallpaperImageInfo<wxBitmap> info;
  toggle.RecalcState();
  ASSERT_TRUE(toggle.GetImageInfo(info));
  EXPECT_NE(0, info.x + info.y);
  EXPECT_TRUE(Uniform(Render(&toggle, 24, 16), StateColour(VIT_OFF)));
  Click(&toggle);
  EXPECT_TRUE(Uniform(Render(&toggle, 24, 16), StateColour(VIT_ON_MOUSE_OVER)));
  Do(&toggle, "down");
  EXPECT_TRUE(Uniform(Render(&toggle, 24, 16), StateColour(VIT_ON_DOWN)));
}

TEST_F(ButtonDrawTest, DrawsNothingWithoutAnImage) {
  auto onOnly = MakeCache({VIT_ON});
  const wxColour fill(1, 2, 3);
  VornButton noImage(onOnly.get(), 0, 0, frame.Get(), 1, nullptr);
  VornButton noCache(nullptr, 0, 0, 24, 16, frame.Get(), 2, nullptr);
  WallpaperImageInfo<wxBitmap> info;
  for (VornButton* button : {&noImage, &noCache}) {
    EXPECT_TRUE(Uniform(Render(button, 24, 16, fill), fill));
    EXPECT_FALSE(button->GetImageInfo(info));
  }
  // Switching on brings the only image in; a new cache replaces it.
  noImage.SetOn(true);
  EXPECT_TRUE(Uniform(Render(&noImage, 24, 16, fill), StateColour(VIT_ON)));
  auto offOnly = MakeCache({VIT_OFF});
  noCache.SetImageCache(offOnly.get());
  EXPECT_TRUE(Uniform(Render(&noCache, 24, 16, fill), StateColour(VIT_OFF)));
}

TEST_F(ButtonDrawTest, TextPushButtonDrawsItsFaceAndLabel) {
  const wxColour text(250, 250, 250), hover(250, 40, 40), back(10, 20, 30);
  VornTextPushButton plain("Apply", -1, -1, *wxNORMAL_FONT, text, back, hover, 0, 0, 90, 24,
                           frame.Get(), 1, nullptr);
  wxBitmap shot = Render(&plain, 90, 24);
  EXPECT_EQ(back, PixelAt(shot, 0, 0));
  EXPECT_EQ(back, PixelAt(shot, 89, 23));
  EXPECT_GT(CountNear(shot, text, 10), 8);
  EXPECT_EQ(0, CountNear(shot, hover, 10));
  Do(&plain, "enter");
  shot = Render(&plain, 90, 24);
  EXPECT_GT(CountNear(shot, hover, 10), 8);
  // Centred: the label's ink is balanced around the middle.
  const std::vector<int> ink = InkPerColumn(shot, back);
  auto inked = [](int n) { return n > 0; };
  const int left = std::find_if(ink.begin(), ink.end(), inked) - ink.begin();
  const int right = ink.rend() - std::find_if(ink.rbegin(), ink.rend(), inked) - 1;
  EXPECT_NEAR(45, (left + right) / 2.0, 3);

  // With images the state image is the whole face.
  auto cache = MakeCache({VIT_OFF, VIT_OFF_MOUSE_OVER, VIT_OFF_DOWN, VIT_ON}, 90, 24);
  const std::pair<const char*, VORNIMAGETYPE> cases[] = {{"", VIT_OFF},
                                                         {"enter", VIT_OFF_MOUSE_OVER},
                                                         {"enter down", VIT_OFF_DOWN},
                                                         {"disable", VIT_OFF}};
  for (const auto& [events, state] : cases) {
    VornTextPushButton b("", -1, -1, *wxNORMAL_FONT, text, back, hover, cache.get(), 0, 30,
                         frame.Get(), 3, nullptr);
    EXPECT_EQ(90, b.GetWidth());
    Do(&b, events);
    EXPECT_TRUE(Uniform(Render(&b, 90, 24), StateColour(state))) << events;
  }
}

TEST_F(ButtonDrawTest, TextRadioButtonDrawsItsImageThenBothLabels) {
  auto cache = MakeCache(AllStates(), 100, 24);
  const wxColour off(200, 200, 200), on(40, 250, 250), over(250, 250, 40);
  VornTextRadioButton radio(cache.get(), "Left", "Right", *wxNORMAL_FONT, off, on, over, 0, 0,
                            frame.Get(), 1, nullptr);
  wxBitmap shot = Render(&radio, 100, 24);
  EXPECT_EQ(StateColour(VIT_OFF), PixelAt(shot, 0, 0));
  EXPECT_GT(CountNear(shot, off, 12), 8);
  // One label in each half.
  const std::vector<int> ink = InkPerColumn(shot, StateColour(VIT_OFF));
  EXPECT_GT(std::accumulate(ink.begin(), ink.begin() + 50, 0), 8);
  EXPECT_GT(std::accumulate(ink.begin() + 50, ink.end(), 0), 8);

  radio.SetOn(true);
  shot = Render(&radio, 100, 24);
  EXPECT_EQ(StateColour(VIT_ON), PixelAt(shot, 0, 0));
  EXPECT_GT(CountNear(shot, on, 12), 8);
  EXPECT_EQ(0, CountNear(shot, off, 12));
}

TEST_F(ButtonDrawTest, RingButtonDrawsARingInItsColour) {
  VornValueControlGroup1ofN group;
  const wxColour red(230, 30, 30), grey(30, 30, 30), light(230, 230, 230);
  VornRingButton ring(red, 3, 8, 8, 0, 0, 56, 40, frame.Get(), 1, &group);
  ring.SetBgColour(grey);
  const wxBitmap off = Render(&ring, 56, 40);
  EXPECT_EQ(grey, PixelAt(off, 0, 0));
  EXPECT_EQ(grey, PixelAt(off, 28, 20));  // the centre stays empty
  EXPECT_GT(CountNear(off, red, 8), 40);
  EXPECT_LT(CountNear(off, light, 40), 5);

  ring.SetOn(true);
  const wxBitmap on = Render(&ring, 56, 40);
  EXPECT_GT(CountNear(on, red, 8), 0);
  EXPECT_GT(CountNear(on, light, 40), 20);  // halo and handles
  ring.SetEnabled(false);
  EXPECT_EQ(0, CountNear(Render(&ring, 56, 40), red, 8));  // faded towards the background
}

}  // namespace
