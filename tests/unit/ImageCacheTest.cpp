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
  int width, height, tag;
  Counted(int w, int h, int t = 0) : width(w), height(h), tag(t) { ++alive; }
  ~Counted() {
    --alive;
    ++destroyed;
  }
};
int Counted::alive = 0;
int Counted::destroyed = 0;

template <class Base>
class Sized : public Base {
 public:
  int GetImageWidth(const Counted* image) const override { return image->width; }
  int GetImageHeight(const Counted* image) const override { return image->height; }
};
using CountedCache = Sized<VornImageCache<Counted>>;

// Images cut out of a "sheet" remember the rectangle they came from.
class CountedWallpaperCache : public Sized<VornWallpaperImageCache<Counted>> {
 public:
  std::unique_ptr<Counted> MakeImageFromWallpaper(WallpaperImageInfo<Counted> info) const override {
    ++cuts;
    return std::make_unique<Counted>(info.width, info.height, info.x * 1000 + info.y);
  }
  mutable int cuts = 0;
};

class CountingTest : public ::testing::Test {
 protected:
  void SetUp() override { Counted::alive = Counted::destroyed = 0; }
};

std::vector<WallpaperImageInfo<Counted>> InfoList(const Counted* sheet, std::vector<int> states) {
  std::vector<WallpaperImageInfo<Counted>> list(VIT_COUNT);
  for (int s : states) list[s] = WallpaperImageInfo<Counted>{s * 10, s, 20 + s, 8 + s, sheet};
  return list;
}

template <class Cache>
std::vector<VORNIMAGETYPE> States(const Cache& cache, std::vector<VORNIMAGETYPE> states = {}) {
  EXPECT_TRUE(cache.GetStates(states));
  return states;
}

TEST_F(CountingTest, EmptyCacheThenOnlyMouseOver) {
  CountedCache cache;
  EXPECT_EQ(States(cache, {VIT_SPARE}), std::vector<VORNIMAGETYPE>{VIT_SPARE});  // appended to
  int w = 0, h = 0;
  EXPECT_FALSE(cache.GetSize(w, h));
  EXPECT_EQ(w, -1);
  EXPECT_EQ(h, -1);
  const Counted* out = reinterpret_cast<const Counted*>(&w);
  EXPECT_FALSE(cache.GetImage(VIT_OFF, out));
  EXPECT_EQ(out, nullptr);

  // Size comes from the lowest filled state; the fallback chain finds substitutes.
  Counted mouseOver(30, 12), down(50, 40), spare(1, 1);
  cache.AssignImage(VIT_OFF_DOWN, &down);
  cache.AssignImage(VIT_ON_MOUSE_OVER, &mouseOver);
  EXPECT_TRUE(cache.GetSize(w, h));
  EXPECT_EQ(w, 30);
  EXPECT_EQ(h, 12);
  EXPECT_EQ(States(cache), (std::vector<VORNIMAGETYPE>{VIT_ON_MOUSE_OVER, VIT_OFF_DOWN}));
  EXPECT_TRUE(VornGetImageWithFallback(cache, VIT_ON_DOWN, out));
  EXPECT_EQ(out, &mouseOver);
  for (VORNIMAGETYPE none : {VIT_ON, VIT_OFF, VIT_OFF_MOUSE_OVER, VIT_NONE}) {
    EXPECT_FALSE(VornGetImageWithFallback(cache, none, out)) << none;
    EXPECT_EQ(out, nullptr);
  }
  EXPECT_NE(FiredAssertion([&] { VornGetImageWithFallback(cache, VIT_SPARE, out); }), "");
  cache.AssignImage(VIT_SPARE, &spare);
  EXPECT_TRUE(VornGetImageWithFallback(cache, VIT_SPARE, out));
  EXPECT_EQ(out, &spare);
}

TEST_F(CountingTest, ClearDeletesOwnedImagesOnceAndNeverBorrowedOnes) {
  Counted borrowed(4, 4);
  {
    CountedCache cache;
    EXPECT_TRUE(cache.AssignImage(VIT_OFF, &borrowed));
    EXPECT_TRUE(cache.AssignImageOwn(VIT_ON, new Counted(4, 4)));
    EXPECT_TRUE(cache.AssignImageOwn(VIT_ON_DOWN, new Counted(4, 4)));
    // A filled slot refuses another image and keeps its own.
    EXPECT_EQ(FiredAssertion([&] { cache.AssignImage(VIT_OFF, &borrowed); }),
              "m_images[index].pVal == __null");
    EXPECT_EQ(FiredAssertion([&] { cache.AssignImage(VIT_ON, &borrowed); }),
              "m_images[index].bOwn == false");
    EXPECT_EQ(Counted::alive, 3);
    EXPECT_TRUE(cache.Clear());
    EXPECT_EQ(Counted::destroyed, 2);
    EXPECT_TRUE(States(cache).empty());
    // Slots are free again and a later owned image dies with the cache.
    EXPECT_TRUE(cache.AssignImage(VIT_ON, &borrowed));
    EXPECT_TRUE(cache.AssignImageOwn(VIT_OFF, new Counted(1, 1)));
  }
  EXPECT_EQ(Counted::destroyed, 3);
  EXPECT_EQ(Counted::alive, 1);  // the borrowed one
}

TEST(ImageStates, FallbackChainAndTokens) {
  const struct {
    VORNIMAGETYPE asked, next;
    const char* token;
  } chain[] = {
      {VIT_OFF, VIT_NONE, "off"},
      {VIT_ON, VIT_NONE, "on"},
      {VIT_ON_MOUSE_OVER, VIT_ON, "on_mouse_over"},
      {VIT_OFF_MOUSE_OVER, VIT_OFF, "off_mouse_over"},
      {VIT_DISABLED_ON, VIT_ON, "disabled_on"},
      {VIT_DISABLED_OFF, VIT_OFF, "disabled_off"},
      {VIT_ON_DOWN, VIT_ON_MOUSE_OVER, "on_down"},
      {VIT_OFF_DOWN, VIT_OFF_MOUSE_OVER, "off_down"},
  };
  for (const auto& step : chain) {
    EXPECT_EQ(VornNextFallbackState(step.asked), step.next) << step.asked;
    VORNIMAGETYPE state = VIT_NONE;
    ASSERT_TRUE(VornImageStateFromToken(step.token, state)) << step.token;
    EXPECT_EQ(state, step.asked);
    EXPECT_STREQ(VornImageStateToken(state), step.token);
  }
  EXPECT_NE(FiredAssertion([] { VornNextFallbackState(VIT_NONE); }), "");
  EXPECT_NE(FiredAssertion([] { VornNextFallbackState(VIT_SPARE); }), "");
  VORNIMAGETYPE state = VIT_ON;
  for (const char* bad : {"", "none", "spare", "Off", "on_down ", "mouse_over"})
    EXPECT_FALSE(VornImageStateFromToken(bad, state)) << bad;
  EXPECT_EQ(state, VIT_ON);
  EXPECT_STREQ(VornImageStateToken(VIT_NONE), "");
  EXPECT_STREQ(VornImageStateToken(VIT_SPARE), "");
}

TEST(ImageCaches, HostBitmapSizesAndNullPointers) {
  Bitmap rgb{12, 5, 3, {}};
  BitmapA rgba{3, 9, 3, {}};
  VornBitmapCache bitmaps;
  VornBitmapACache bitmapsA;
  VornwxImageCache images;
  VornGLTextureCache textures;
  EXPECT_EQ(std::pair(bitmaps.GetImageWidth(&rgb), bitmaps.GetImageHeight(&rgb)), std::pair(12, 5));
  EXPECT_EQ(std::pair(bitmapsA.GetImageWidth(&rgba), bitmapsA.GetImageHeight(&rgba)),
            std::pair(3, 9));
  for (const std::string& fired : {FiredAssertion([&] { bitmaps.GetImageWidth(nullptr); }),
                                   FiredAssertion([&] { bitmapsA.GetImageHeight(nullptr); }),
                                   FiredAssertion([&] { images.GetImageWidth(nullptr); }),
                                   FiredAssertion([&] { textures.GetImageHeight(nullptr); })})
    EXPECT_EQ(fired, "image != nullptr");
}

TEST_F(CountingTest, WallpaperCacheCutsEachStateOutOnceAndOwnsIt) {
  Counted sheet(1000, 1000);
  {
    CountedWallpaperCache cache;
    cache.SetWallpaperInfo(InfoList(&sheet, {VIT_ON_MOUSE_OVER, VIT_OFF_DOWN}));
    EXPECT_EQ(cache.GetWidth(), 24);  // from the sheet entries, lowest state first
    EXPECT_EQ(cache.GetHeight(), 12);
    Counted own(5, 6);
    cache.AssignImage(VIT_OFF_DOWN, &own);
    EXPECT_EQ(cache.GetWidth(), 5);  // a slot image wins even in a later state
    EXPECT_EQ(States(cache, {VIT_ON_DOWN, VIT_OFF}),
              (std::vector<VORNIMAGETYPE>{VIT_OFF, VIT_ON_MOUSE_OVER, VIT_ON_DOWN, VIT_OFF_DOWN}));
    EXPECT_EQ(cache.cuts, 0);

    const Counted *first = nullptr, *again = nullptr;
    ASSERT_TRUE(cache.GetImage(VIT_ON_MOUSE_OVER, first));
    EXPECT_EQ(first->width, 24);
    EXPECT_EQ(first->height, 12);
    EXPECT_EQ(first->tag, 40 * 1000 + 4);
    ASSERT_TRUE(cache.GetImage(VIT_ON_MOUSE_OVER, again));
    EXPECT_EQ(first, again);
    EXPECT_EQ(cache.cuts, 1);
    EXPECT_FALSE(cache.GetImage(VIT_ON, again));
    EXPECT_EQ(again, nullptr);

    // A slot image is its own sheet.
    WallpaperImageInfo<Counted> info;
    ASSERT_TRUE(cache.GetImageFromWallpaper(VIT_OFF_DOWN, info));
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
    // A short list is read only within its entries; the cache dies owning a cut-out.
    auto list = InfoList(&sheet, {VIT_SPARE, VIT_OFF_DOWN});
    list.resize(3);
    cache.SetWallpaperInfo(list);
    EXPECT_FALSE(cache.GetImage(VIT_OFF_DOWN, first));
    ASSERT_TRUE(cache.GetImage(VIT_SPARE, first));
  }
  EXPECT_EQ(Counted::alive, 1);
}

TEST(TextureSize, RoundsUpToPowersOfTwo) {
  const int cases[][2] = {{1, 1},       {2, 2},       {3, 4},       {64, 64},
                          {65, 128},    {100, 128},   {127, 128},   {128, 128},
                          {1000, 1024}, {1024, 1024}, {1025, 2048}, {16383, 16384}};
  for (const auto& c : cases) EXPECT_EQ(VornTextureSize(c[0]), c[1]) << c[0];
}

}  // namespace
