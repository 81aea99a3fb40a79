// Shared image sheets, wxBitmap caches filled from them, colour-dot images and
// the bitmap-mirroring undo filter.
#include <gtest/gtest.h>
#include <wx/wx.h>

#include <memory>
#include <vector>

#include "ControlTestSupport.h"
#include "vorn/UIFilters.h"
#include "vorn/VornImageCache.h"

namespace {
// An opaque bitmap whose every pixel depends on its position and the seed.
wxBitmap Pattern(int width, int height, int seed) {
  wxImage image(width, height, false);
  unsigned char* p = image.GetData();
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x, p += 3) {
      p[0] = static_cast<unsigned char>(x * 7 + seed * 31);
      p[1] = static_cast<unsigned char>(y * 5 + seed * 17);
      p[2] = static_cast<unsigned char>((x ^ y) + seed);
    }
  return wxBitmap(image);
}

// The rectangle of info cut out of its sheet.
wxBitmap CutOut(const WallpaperImageInfo<wxBitmap>& info) {
  std::unique_ptr<wxBitmap> piece = VornwxBitmapCache().MakeImageFromWallpaper(info);
  return piece ? *piece : wxBitmap();
}

wxRect Placed(const WallpaperImageInfo<wxBitmap>& info) {
  return wxRect(info.x, info.y, info.width, info.height);
}

}  // namespace

TEST(ImageSheet, ShelvesFillLeftToRightThenDown) {
  VornwxBitmapWallpaper sheet;
  EXPECT_EQ(sheet.GetSheet().GetSize(), wxSize(1000, 1000));
  // 600 + 500 does not fit on the first shelf; 300 joins 500 on the second,
  // whose bottom is then 110; 1000 wide is alone on its shelf; the last
  // one ends exactly at the bottom, 120 + 880.
  const struct {
    wxSize size;
    wxRect placed;
  } images[] = {{{600, 40}, {0, 0, 600, 40}},
                {{500, 30}, {0, 40, 500, 30}},
                {{300, 70}, {500, 40, 300, 70}},
                {{1000, 10}, {0, 110, 1000, 10}},
                {{10, 880}, {0, 120, 10, 880}}};
  std::vector<wxBitmap> bitmaps(5);
  std::vector<WallpaperImageInfo<wxBitmap>> infos(5);
  auto add = [&](int i) {
    bitmaps[i] = Pattern(images[i].size.x, images[i].size.y, i);
    ASSERT_TRUE(sheet.AddImage(&bitmaps[i], infos[i])) << i;
    EXPECT_EQ(Placed(infos[i]), images[i].placed) << i;
    EXPECT_EQ(infos[i].bitmap, &sheet.GetSheet());
  };
  for (int i = 0; i < 4; ++i) add(i);
  // 120 + 900 > 1000: refused, and the info is left alone.
  const wxBitmap tooTall = Pattern(10, 900, 9);
  WallpaperImageInfo<wxBitmap> refused;
  refused.x = -5;
  EXPECT_FALSE(sheet.AddImage(&tooTall, refused));
  EXPECT_EQ(refused.x, -5);
  EXPECT_EQ(sheet.NumImages(), 4);
  add(4);
  const wxBitmap oversized = Pattern(1001, 2, 7);
  EXPECT_FALSE(sheet.AddImage(&oversized, refused));
  EXPECT_EQ(sheet.NumImages(), 5);
  for (int i = 0; i < 5; ++i) EXPECT_TRUE(SamePixels(CutOut(infos[i]), bitmaps[i])) << i;
}

TEST(ImageSheet, HolderOpensANewSheetOrKeepsLargeCopies) {
  WallpaperBitmapHolder holder;
  const wxBitmap full = Pattern(1000, 1000, 1), small = Pattern(20, 10, 2);
  WallpaperImageInfo<wxBitmap> info, next;
  ASSERT_TRUE(holder.AddImage(&full, info));
  EXPECT_EQ(Placed(info), wxRect(0, 0, 1000, 1000));
  EXPECT_EQ(holder.NumSheets(), 1);
  ASSERT_TRUE(holder.AddImage(&small, next));
  EXPECT_EQ(Placed(next), wxRect(0, 0, 20, 10));
  EXPECT_EQ(holder.NumSheets(), 2);
  EXPECT_NE(next.bitmap, info.bitmap);
  EXPECT_TRUE(SamePixels(CutOut(info), full));
  EXPECT_TRUE(SamePixels(CutOut(next), small));

  for (wxSize size : {wxSize(1001, 4), wxSize(3, 1001)}) {
    const wxBitmap large = Pattern(size.x, size.y, 3);
    WallpaperImageInfo<wxBitmap> big;
    ASSERT_TRUE(holder.AddImage(&large, big));
    EXPECT_EQ(Placed(big), wxRect(wxPoint(0, 0), size));
    ASSERT_NE(big.bitmap, nullptr);
    EXPECT_NE(big.bitmap, &large);
    EXPECT_TRUE(SamePixels(*big.bitmap, large));
  }
  EXPECT_EQ(holder.NumLargeImages(), 2);
  EXPECT_EQ(holder.NumSheets(), 2);

  // Named images: found by exact name, added once.
  const wxBitmap a = Pattern(30, 20, 1);
  WallpaperImageInfo<wxBitmap> placed, found;
  ASSERT_TRUE(holder.AddImage("button", a, placed));
  ASSERT_TRUE(holder.GetImage("button", found));
  EXPECT_EQ(Placed(found), Placed(placed));
  EXPECT_EQ(found.bitmap, placed.bitmap);
  EXPECT_FALSE(holder.GetImage("Button", found));
  EXPECT_NE(FiredAssertion([&] { holder.AddImage("button", a, placed); }), "");

  holder.ClearAll();
  EXPECT_EQ(holder.NumSheets(), 0);
  EXPECT_EQ(holder.NumLargeImages(), 0);
  EXPECT_FALSE(holder.GetImage("button", found));
}

TEST(ImageSheet, CacheFilledFromHolderMatchesTheOriginal) {
  WallpaperBitmapHolder holder;
  // Some images first so the cache does not start at the sheet's corner.
  for (int i = 0; i < 30; ++i) {
    WallpaperImageInfo<wxBitmap> info;
    const wxBitmap filler = Pattern(90, 30 + i, i);
    holder.AddImage(&filler, info);
  }
  VornwxBitmapCache original;
  const VORNIMAGETYPE states[] = {VIT_OFF, VIT_ON, VIT_ON_MOUSE_OVER, VIT_OFF_DOWN};
  wxBitmap images[4];
  for (int i = 0; i < 4; ++i) {
    images[i] = Pattern(40, 24, 10 + i);
    original.AssignImage(states[i], &images[i]);
  }
  const wxBitmap large = Pattern(1200, 3, 99);
  original.AssignImage(VIT_DISABLED_OFF, &large);
  ASSERT_TRUE(holder.AddImageCache("check", original));

  VornwxBitmapCache filled;
  wxBitmap stale = Pattern(5, 5, 0);
  filled.AssignImage(VIT_SPARE, &stale);
  ASSERT_TRUE(holder.GetImageCache("check", filled));
  std::vector<VORNIMAGETYPE> want, got;
  original.GetStates(want);
  filled.GetStates(got);
  EXPECT_EQ(got, want);
  EXPECT_EQ(wxSize(filled.GetWidth(), filled.GetHeight()), wxSize(40, 24));

  for (int i = 0; i < 4; ++i) {
    const wxBitmap *cut = nullptr, *again = nullptr;
    ASSERT_TRUE(filled.GetImage(states[i], cut)) << i;
    EXPECT_NE(cut, &images[i]);
    EXPECT_TRUE(SamePixels(*cut, images[i])) << i;
    filled.GetImage(states[i], again);
    EXPECT_EQ(cut, again) << "cut out once, then kept";
  }
  const wxBitmap* cut = nullptr;
  ASSERT_TRUE(filled.GetImage(VIT_DISABLED_OFF, cut));
  EXPECT_TRUE(SamePixels(*cut, large));
  EXPECT_FALSE(filled.GetImage(VIT_ON_DOWN, cut));

  VornwxBitmapCache unknown;
  EXPECT_FALSE(holder.GetImageCache("other", unknown));
  EXPECT_NE(FiredAssertion([&] { holder.AddImageCache("check", original); }), "");
  filled.Clear();  // caches must let go of the sheets before these go
}

TEST(ColourDots, SixStatesOfRingAndDot) {
  const Color white(1, 1, 1), red(1, 0, 0), green(0, 1, 0), blue(0, 0, 1), dot(0, 0, 0);
  VornColImageHolder holder(21, 15, white, red, green, blue, dot);
  VornwxBitmapCache* cache = holder.GetImageCache();
  ASSERT_NE(cache, nullptr);
  std::vector<VORNIMAGETYPE> states;
  cache->GetStates(states);
  EXPECT_EQ(states, (std::vector<VORNIMAGETYPE>{VIT_OFF, VIT_ON, VIT_ON_MOUSE_OVER,
                                                VIT_OFF_MOUSE_OVER, VIT_ON_DOWN, VIT_OFF_DOWN}));
  EXPECT_EQ(wxSize(cache->GetWidth(), cache->GetHeight()), wxSize(21, 15));

  const struct {
    VORNIMAGETYPE off, on;
    wxColour ring;
  } pairs[] = {{VIT_OFF, VIT_ON, *wxRED},
               {VIT_OFF_MOUSE_OVER, VIT_ON_MOUSE_OVER, *wxGREEN},
               {VIT_OFF_DOWN, VIT_ON_DOWN, *wxBLUE}};
  for (const auto& pair : pairs) {
    const wxBitmap *off = nullptr, *on = nullptr;
    ASSERT_TRUE(cache->GetImage(pair.off, off) && cache->GetImage(pair.on, on));
    EXPECT_TRUE(SamePixels(*off, *on));
    EXPECT_EQ(PixelAt(*off, 10, 7), *wxBLACK);  // the centre is the dot
    EXPECT_EQ(PixelAt(*off, 0, 0), *wxWHITE);   // corners stay background
    EXPECT_EQ(PixelAt(*off, 20, 14), *wxWHITE);
    EXPECT_GT(CountNear(*off, pair.ring, 0), 0);
  }

  holder.ChangeColour(Color(1, 1, 0));
  const wxBitmap* on = nullptr;
  ASSERT_TRUE(holder.GetImageCache()->GetImage(VIT_ON, on));
  EXPECT_EQ(PixelAt(*on, 10, 7), *wxYELLOW);
  EXPECT_FALSE(holder.GetImageCache()->GetImage(VIT_DISABLED_ON, on));

  EXPECT_EQ(FiredAssertion([&] { VornColImageHolder bad(0, 5, white, red, green, blue, dot); }),
            "xsize > 0");
  EXPECT_EQ(FiredAssertion([&] { VornColImageHolder bad(5, -1, white, red, green, blue, dot); }),
            "ysize > 0");
}

TEST(UnDoFilter, MirrorsWritesAndTakesThemBack) {
  const wxColour grey(50, 60, 70);
  wxImage picture(6, 4);
  picture.SetRGB(wxRect(0, 0, 6, 4), grey.Red(), grey.Green(), grey.Blue());
  BasicwxImageFilter target(picture);
  wxBitmapUnDoFilter undo(target);
  ASSERT_TRUE(undo.GetBitmap().IsOk());
  EXPECT_EQ(undo.GetWidth(), 6);
  EXPECT_TRUE(Uniform(undo.GetBitmap(), grey));

  ColorA red(1, 0, 0), blue(0, 0, 1), green(0, 1, 0);
  ASSERT_TRUE(undo.WritePixel(1, 1, red));
  ASSERT_TRUE(undo.WritePixelI(2, 1, green, 0.5));
  ASSERT_TRUE(undo.WritePixel(1, 1, blue));
  EXPECT_FALSE(undo.WritePixel(6, 0, red));
  EXPECT_EQ(ImagePixel(picture, 2, 1), wxColour(25, 158, 35));
  EXPECT_EQ(ImagePixel(picture, 1, 1), *wxBLUE);
  EXPECT_TRUE(SamePixels(undo.GetBitmap(), wxBitmap(picture)));  // the mirror

  ASSERT_TRUE(undo.UnDo());
  EXPECT_TRUE(Uniform(wxBitmap(picture), grey));
  EXPECT_TRUE(Uniform(undo.GetBitmap(), grey));

  // Initialize forgets earlier writes: they survive a later UnDo.
  undo.WritePixel(0, 0, red);
  undo.Initialize();
  undo.WritePixel(5, 3, green);
  undo.UnDo();
  EXPECT_EQ(PixelAt(undo.GetBitmap(), 0, 0), *wxRED);
  EXPECT_EQ(PixelAt(undo.GetBitmap(), 5, 3), grey);
  EXPECT_EQ(picture.GetRed(0, 0), 255);
}
