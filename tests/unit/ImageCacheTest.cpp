// State caches, the fallback chain, state words and the wallpaper form of the
// cache, with a counting image type so that ownership is checked exactly.
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "TestSupport.h"
#include "vorn/VornGLTextureCache.h"
#include "vorn/VornImageCache.h"

namespace {
struct Counted {
  static int alive;
  static int destroyed;
  int width;
  int height;
  int tag;
  Counted(int w, int h, int t = 0) : width(w), height(h), tag(t) { ++alive; }
  ~Counted() {
    --alive;
    ++destroyed;
  }
};
int Counted::alive = 0;
int Counted::destroyed = 0;

class CountedCache : public VornImageCache<Counted> {
 public:
  int GetImageWidth(const Counted* image) const override { return image->width; }
  int GetImageHeight(const Counted* image) const override { return image->height; }
};

// Images cut out of a "sheet" remember the rectangle they came from.
class CountedWallpaperCache : public VornWallpaperImageCache<Counted> {
 public:
  int GetImageWidth(const Counted* image) const override { return image->width; }
  int GetImageHeight(const Counted* image) const override { return image->height; }
  std::unique_ptr<Counted> MakeImageFromWallpaper(WallpaperImageInfo<Counted> info) const override {
    ++cuts;
    return std::make_unique<Counted>(info.width, info.height, info.x * 1000 + info.y);
  }
  mutable int cuts = 0;
};

class CountingTest : public ::testing::Test {
 protected:
  void SetUp() override {
    Counted::alive = 0;
    Counted::destroyed = 0;
  }
};

std::vector<WallpaperImageInfo<Counted>> InfoList(const Counted* sheet, std::vector<int> states) {
  std::vector<WallpaperImageInfo<Counted>> list(VIT_COUNT);
  for (int s : states) list[s] = WallpaperImageInfo<Counted>{s * 10, s, 20 + s, 8 + s, sheet};
  return list;
}
}  // namespace

TEST_F(CountingTest, EmptyCacheHasNoStatesAndNoSize) {
  CountedCache cache;
  std::vector<VORNIMAGETYPE> states = {VIT_SPARE};
  EXPECT_TRUE(cache.GetStates(states));
  EXPECT_EQ(states, std::vector<VORNIMAGETYPE>{VIT_SPARE});  // appended to, not cleared
  EXPECT_EQ(cache.GetWidth(), -1);
  EXPECT_EQ(cache.GetHeight(), -1);
  int w = 0, h = 0;
  EXPECT_FALSE(cache.GetSize(w, h));
  EXPECT_EQ(w, -1);
  const Counted* out = reinterpret_cast<const Counted*>(&w);
  EXPECT_FALSE(cache.GetImage(VIT_OFF, out));
  EXPECT_EQ(out, nullptr);
}

TEST_F(CountingTest, SizeComesFromLowestFilledState) {
  CountedCache cache;
  Counted mouseOver(30, 12), down(50, 40);
  cache.AssignImage(VIT_ON_DOWN, &down);
  cache.AssignImage(VIT_ON_MOUSE_OVER, &mouseOver);
  int w = 0, h = 0;
  EXPECT_TRUE(cache.GetSize(w, h));
  EXPECT_EQ(w, 30);
  EXPECT_EQ(h, 12);
  std::vector<VORNIMAGETYPE> states;
  cache.GetStates(states);
  EXPECT_EQ(states, (std::vector<VORNIMAGETYPE>{VIT_ON_MOUSE_OVER, VIT_ON_DOWN}));
}

TEST_F(CountingTest, ClearDeletesOwnedImagesOnceAndNeverBorrowedOnes) {
  Counted borrowed(4, 4);
  {
    CountedCache cache;
    EXPECT_TRUE(cache.AssignImage(VIT_OFF, &borrowed));
    EXPECT_TRUE(cache.AssignImageOwn(VIT_ON, new Counted(4, 4)));
    EXPECT_TRUE(cache.AssignImageOwn(VIT_ON_DOWN, new Counted(4, 4)));
    EXPECT_EQ(Counted::alive, 3);
    EXPECT_TRUE(cache.Clear());
    EXPECT_EQ(Counted::destroyed, 2);
    std::vector<VORNIMAGETYPE> states;
    cache.GetStates(states);
    EXPECT_TRUE(states.empty());
    // Slots are free again and a later owned image dies with the cache.
    EXPECT_TRUE(cache.AssignImage(VIT_ON, &borrowed));
    EXPECT_TRUE(cache.AssignImageOwn(VIT_OFF, new Counted(1, 1)));
  }
  EXPECT_EQ(Counted::destroyed, 3);
  EXPECT_EQ(Counted::alive, 1);  // the borrowed one
  EXPECT_EQ(borrowed.width, 4);
}

TEST_F(CountingTest, AssigningIntoAFilledSlotIsAnError) {
  CountedCache cache;
  Counted a(1, 1), b(1, 1);
  cache.AssignImage(VIT_OFF, &a);
  cache.AssignImageOwn(VIT_ON, new Counted(1, 1));
  EXPECT_EQ(FiredAssertion([&] { cache.AssignImage(VIT_OFF, &b); }),
            "m_images[index].pVal == __null");
  EXPECT_EQ(FiredAssertion([&] { cache.AssignImage(VIT_ON, &b); }),
            "m_images[index].bOwn == false");
  const Counted* out = nullptr;
  ASSERT_TRUE(cache.GetImage(VIT_OFF, out));
  EXPECT_EQ(out, &a);
}

TEST(ImageStates, FallbackChain) {
  const struct {
    VORNIMAGETYPE asked, next;
  } chain[] = {
      {VIT_OFF, VIT_NONE},
      {VIT_ON, VIT_NONE},
      {VIT_ON_MOUSE_OVER, VIT_ON},
      {VIT_OFF_MOUSE_OVER, VIT_OFF},
      {VIT_DISABLED_ON, VIT_ON},
      {VIT_DISABLED_OFF, VIT_OFF},
      {VIT_ON_DOWN, VIT_ON_MOUSE_OVER},
      {VIT_OFF_DOWN, VIT_OFF_MOUSE_OVER},
  };
  for (const auto& step : chain)
    EXPECT_EQ(VornNextFallbackState(step.asked), step.next) << step.asked;
  EXPECT_NE(FiredAssertion([] { VornNextFallbackState(VIT_NONE); }), "");
  EXPECT_NE(FiredAssertion([] { VornNextFallbackState(VIT_SPARE); }), "");
}

TEST_F(CountingTest, FallbackFindsTheNearestSubstitute) {
  CountedCache cache;
  Counted mouseOver(7, 7);
  cache.AssignImage(VIT_ON_MOUSE_OVER, &mouseOver);
  const Counted* out = nullptr;
  EXPECT_TRUE(VornGetImageWithFallback(cache, VIT_ON_DOWN, out));
  EXPECT_EQ(out, &mouseOver);
  EXPECT_FALSE(VornGetImageWithFallback(cache, VIT_ON, out));
  EXPECT_EQ(out, nullptr);
  EXPECT_FALSE(VornGetImageWithFallback(cache, VIT_OFF, out));
  EXPECT_FALSE(VornGetImageWithFallback(cache, VIT_OFF_DOWN, out));
  EXPECT_FALSE(VornGetImageWithFallback(cache, VIT_NONE, out));

  Counted spare(1, 1);
  EXPECT_NE(FiredAssertion([&] { VornGetImageWithFallback(cache, VIT_SPARE, out); }), "");
  cache.AssignImage(VIT_SPARE, &spare);
  EXPECT_TRUE(VornGetImageWithFallback(cache, VIT_SPARE, out));
  EXPECT_EQ(out, &spare);
}

TEST(ImageStates, TokensRoundTrip) {
  const char* words[] = {"off",         "on",           "on_mouse_over", "off_mouse_over",
                         "disabled_on", "disabled_off", "on_down",       "off_down"};
  for (int i = 0; i < 8; ++i) {
    VORNIMAGETYPE state = VIT_NONE;
    ASSERT_TRUE(VornImageStateFromToken(words[i], state)) << words[i];
    EXPECT_EQ(state, static_cast<VORNIMAGETYPE>(VIT_OFF + i));
    EXPECT_STREQ(VornImageStateToken(state), words[i]);
  }
  VORNIMAGETYPE state = VIT_ON;
  for (const char* bad : {"", "none", "spare", "Off", "on_down ", "mouse_over"})
    EXPECT_FALSE(VornImageStateFromToken(bad, state)) << bad;
  EXPECT_EQ(state, VIT_ON);
  EXPECT_STREQ(VornImageStateToken(VIT_NONE), "");
  EXPECT_STREQ(VornImageStateToken(VIT_SPARE), "");
}

TEST(ImageCaches, HostBitmapSizesAndNullPointers) {
  Bitmap rgb;
  rgb.width = 12;
  rgb.height = 5;
  BitmapA rgba;
  rgba.width = 3;
  rgba.height = 9;
  VornBitmapCache bitmaps;
  VornBitmapACache bitmapsA;
  bitmaps.AssignImage(VIT_ON, &rgb);
  bitmapsA.AssignImage(VIT_OFF_DOWN, &rgba);
  EXPECT_EQ(bitmaps.GetWidth(), 12);
  EXPECT_EQ(bitmaps.GetHeight(), 5);
  EXPECT_EQ(bitmapsA.GetWidth(), 3);
  EXPECT_EQ(bitmapsA.GetHeight(), 9);
  EXPECT_EQ(FiredAssertion([&] { bitmaps.GetImageWidth(nullptr); }), "image != nullptr");
  EXPECT_EQ(FiredAssertion([&] { bitmapsA.GetImageHeight(nullptr); }), "image != nullptr");
  VornwxImageCache images;
  EXPECT_EQ(FiredAssertion([&] { images.GetImageWidth(nullptr); }), "image != nullptr");
  VornGLTextureCache textures;
  EXPECT_EQ(FiredAssertion([&] { textures.GetImageHeight(nullptr); }), "image != nullptr");
}

TEST_F(CountingTest, WallpaperCacheCutsEachStateOutOnceAndOwnsIt) {
  Counted sheet(1000, 1000);
  {
    CountedWallpaperCache cache;
    cache.SetWallpaperInfo(InfoList(&sheet, {VIT_ON, VIT_OFF_DOWN}));
    Counted own(5, 6);
    cache.AssignImage(VIT_OFF, &own);

    std::vector<VORNIMAGETYPE> states = {VIT_ON_DOWN, VIT_ON};
    cache.GetStates(states);
    EXPECT_EQ(states, (std::vector<VORNIMAGETYPE>{VIT_OFF, VIT_ON, VIT_ON_DOWN, VIT_OFF_DOWN}));

    const Counted* first = nullptr;
    ASSERT_TRUE(cache.GetImage(VIT_ON, first));
    EXPECT_EQ(first->width, 23);
    EXPECT_EQ(first->height, 11);
    EXPECT_EQ(first->tag, 30 * 1000 + 3);
    const Counted* again = nullptr;
    ASSERT_TRUE(cache.GetImage(VIT_ON, again));
    EXPECT_EQ(first, again);
    EXPECT_EQ(cache.cuts, 1);

    const Counted* none = &sheet;
    EXPECT_FALSE(cache.GetImage(VIT_ON_MOUSE_OVER, none));
    EXPECT_EQ(none, nullptr);

    // A slot image is its own sheet.
    WallpaperImageInfo<Counted> info;
    ASSERT_TRUE(cache.GetImageFromWallpaper(VIT_OFF, info));
    EXPECT_EQ(info.bitmap, &own);
    EXPECT_EQ(info.width, 5);
    EXPECT_EQ(info.x, 0);
    info.bitmap = &sheet;
    EXPECT_FALSE(cache.GetImageFromWallpaper(VIT_DISABLED_ON, info));
    EXPECT_EQ(info.bitmap, nullptr);

    EXPECT_EQ(FiredAssertion([&] { cache.SetWallpaperInfo(InfoList(&sheet, {VIT_ON})); }),
              "ImageInfoList.size() == 0");
    EXPECT_EQ(Counted::alive, 3);  // sheet, own, one cut-out
    cache.Clear();
    EXPECT_EQ(Counted::alive, 2);
    EXPECT_TRUE(cache.GetWallpaperInfo().empty());
    EXPECT_EQ(cache.GetWidth(), -1);
    // Wallpaper entries may be set again after Clear; the cache dies owning a cut-out.
    cache.SetWallpaperInfo(InfoList(&sheet, {VIT_OFF_DOWN}));
    ASSERT_TRUE(cache.GetImage(VIT_OFF_DOWN, first));
  }
  EXPECT_EQ(Counted::alive, 1);
}

TEST_F(CountingTest, WallpaperCacheSizeFallsBackToSheetEntries) {
  Counted sheet(1000, 1000);
  CountedWallpaperCache cache;
  cache.SetWallpaperInfo(InfoList(&sheet, {VIT_ON_DOWN, VIT_ON_MOUSE_OVER}));
  EXPECT_EQ(cache.GetWidth(), 24);  // entry 4 comes before entry 8
  EXPECT_EQ(cache.GetHeight(), 12);
  Counted slot(3, 2);
  cache.AssignImage(VIT_OFF_DOWN, &slot);
  EXPECT_EQ(cache.GetWidth(), 3);  // a slot image wins even in a later state
  EXPECT_EQ(cache.cuts, 0);
}

TEST(TextureSize, RoundsUpToPowersOfTwo) {
  const int cases[][2] = {{1, 1},       {2, 2},       {3, 4},       {64, 64},
                          {65, 128},    {100, 128},   {127, 128},   {128, 128},
                          {1000, 1024}, {1024, 1024}, {1025, 2048}, {16383, 16384}};
  for (const auto& c : cases) EXPECT_EQ(VornTextureSize(c[0]), c[1]) << c[0];
}

TEST_F(CountingTest, ShortWallpaperListIsReadOnlyWithinItsEntries) {
  Counted sheet(1000, 1000);
  CountedWallpaperCache cache;
  std::vector<WallpaperImageInfo<Counted>> list = InfoList(&sheet, {VIT_SPARE});
  list.resize(3);
  cache.SetWallpaperInfo(list);
  const Counted* out = nullptr;
  EXPECT_FALSE(cache.GetImage(VIT_OFF_DOWN, out));
  EXPECT_TRUE(cache.GetImage(VIT_SPARE, out));
}
