// Shared image sheets, wxBitmap caches filled from them, colour-dot images and
// the bitmap-mirroring undo filter.
#include <gtest/gtest.h>
#include <wx/wx.h>

#include <memory>
#include <vector>

#include "GuiTestSupport.h"
#include "TestSupport.h"
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

::testing::AssertionResult SamePixels(const wxBitmap& a, const wxBitmap& b) {
  if (a.GetWidth() != b.GetWidth() || a.GetHeight() != b.GetHeight())
    return ::testing::AssertionFailure() << "sizes " << a.GetWidth() << "x" << a.GetHeight()
                                         << " and " << b.GetWidth() << "x" << b.GetHeight();
  const wxImage ia = a.ConvertToImage();
  const wxImage ib = b.ConvertToImage();
  for (int y = 0; y < a.GetHeight(); ++y)
    for (int x = 0; x < a.GetWidth(); ++x)
      if (ia.GetRed(x, y) != ib.GetRed(x, y) || ia.GetGreen(x, y) != ib.GetGreen(x, y) ||
          ia.GetBlue(x, y) != ib.GetBlue(x, y))
        return ::testing::AssertionFailure() << "pixels differ at " << x << "," << y;
  return ::testing::AssertionSuccess();
}

// The rectangle of info cut out of its sheet.
wxBitmap CutOut(const WallpaperImageInfo<wxBitmap>& info) {
  VornwxBitmapCache cutter;
  std::unique_ptr<wxBitmap> piece = cutter.MakeImageFromWallpaper(info);
  return piece ? *piece : wxBitmap();
}

void ExpectPlaced(const WallpaperImageInfo<wxBitmap>& info, int x, int y, int w, int h) {
  EXPECT_EQ(info.x, x);
  EXPECT_EQ(info.y, y);
  EXPECT_EQ(info.width, w);
  EXPECT_EQ(info.height, h);
}
}  // namespace

TEST(ImageSheet, ShelvesFillLeftToRightThenDown) {
  VornwxBitmapWallpaper sheet;
  EXPECT_EQ(sheet.GetSheet().GetWidth(), 1000);
  EXPECT_EQ(sheet.GetSheet().GetHeight(), 1000);
  const wxBitmap a = Pattern(600, 40, 1), b = Pattern(500, 30, 2), c = Pattern(300, 70, 3);
  const wxBitmap d = Pattern(1000, 10, 4), tooTall = Pattern(10, 900, 5),
                 fits = Pattern(10, 880, 6);
  WallpaperImageInfo<wxBitmap> ia, ib, ic, id, ie, ifits;
  ASSERT_TRUE(sheet.AddImage(&a, ia));
  ASSERT_TRUE(sheet.AddImage(&b, ib));
  ASSERT_TRUE(sheet.AddImage(&c, ic));
  ASSERT_TRUE(sheet.AddImage(&d, id));
  ExpectPlaced(ia, 0, 0, 600, 40);
  ExpectPlaced(ib, 0, 40, 500, 30);    // 600 + 500 does not fit on the first shelf
  ExpectPlaced(ic, 500, 40, 300, 70);  // same shelf; its bottom is now 110
  ExpectPlaced(id, 0, 110, 1000, 10);  // exactly 1000 wide, alone on its shelf
  EXPECT_EQ(ia.bitmap, &sheet.GetSheet());

  ie.x = -5;
  EXPECT_FALSE(sheet.AddImage(&tooTall, ie));  // 120 + 900 > 1000
  EXPECT_EQ(ie.x, -5);
  EXPECT_EQ(sheet.NumImages(), 4);
  ASSERT_TRUE(sheet.AddImage(&fits, ifits));  // 120 + 880 == 1000
  ExpectPlaced(ifits, 0, 120, 10, 880);

  const wxBitmap oversized = Pattern(1001, 2, 7);
  EXPECT_FALSE(sheet.AddImage(&oversized, ie));
  EXPECT_EQ(sheet.NumImages(), 5);

  EXPECT_TRUE(SamePixels(CutOut(ia), a));
  EXPECT_TRUE(SamePixels(CutOut(ib), b));
  EXPECT_TRUE(SamePixels(CutOut(ic), c));
  EXPECT_TRUE(SamePixels(CutOut(id), d));
  EXPECT_TRUE(SamePixels(CutOut(ifits), fits));
}

TEST(ImageSheet, HolderOpensANewSheetOrKeepsLargeCopies) {
  WallpaperBitmapHolder holder;
  const wxBitmap full = Pattern(1000, 1000, 1);
  const wxBitmap small = Pattern(20, 10, 2);
  WallpaperImageInfo<wxBitmap> info, next;
  ASSERT_TRUE(holder.AddImage(&full, info));
  ExpectPlaced(info, 0, 0, 1000, 1000);
  EXPECT_EQ(holder.NumSheets(), 1);
  ASSERT_TRUE(holder.AddImage(&small, next));
  ExpectPlaced(next, 0, 0, 20, 10);
  EXPECT_EQ(holder.NumSheets(), 2);
  EXPECT_NE(next.bitmap, info.bitmap);
  EXPECT_TRUE(SamePixels(CutOut(info), full));
  EXPECT_TRUE(SamePixels(CutOut(next), small));

  for (wxSize size : {wxSize(1001, 4), wxSize(3, 1001)}) {
    const wxBitmap large = Pattern(size.x, size.y, 3);
    WallpaperImageInfo<wxBitmap> big;
    ASSERT_TRUE(holder.AddImage(&large, big));
    ExpectPlaced(big, 0, 0, size.x, size.y);
    ASSERT_NE(big.bitmap, nullptr);
    EXPECT_NE(big.bitmap, &large);
    EXPECT_TRUE(SamePixels(*big.bitmap, large));
  }
  EXPECT_EQ(holder.NumLargeImages(), 2);
  EXPECT_EQ(holder.NumSheets(), 2);

  holder.ClearAll();
  EXPECT_EQ(holder.NumSheets(), 0);
  EXPECT_EQ(holder.NumLargeImages(), 0);
}

TEST(ImageSheet, NamedImages) {
  WallpaperBitmapHolder holder;
  const wxBitmap a = Pattern(30, 20, 1);
  WallpaperImageInfo<wxBitmap> placed, found;
  ASSERT_TRUE(holder.AddImage("button", a, placed));
  ASSERT_TRUE(holder.GetImage("button", found));
  ExpectPlaced(found, placed.x, placed.y, 30, 20);
  EXPECT_EQ(found.bitmap, placed.bitmap);
  EXPECT_FALSE(holder.GetImage("Button", found));
  EXPECT_NE(FiredAssertion([&] { holder.AddImage("button", a, placed); }), "");
  holder.ClearAll();
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
  EXPECT_EQ(filled.GetWidth(), 40);
  EXPECT_EQ(filled.GetHeight(), 24);

  for (int i = 0; i < 4; ++i) {
    const wxBitmap* cut = nullptr;
    ASSERT_TRUE(filled.GetImage(states[i], cut)) << i;
    EXPECT_NE(cut, &images[i]);
    EXPECT_TRUE(SamePixels(*cut, images[i])) << i;
    const wxBitmap* again = nullptr;
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
  EXPECT_EQ(cache->GetWidth(), 21);
  EXPECT_EQ(cache->GetHeight(), 15);

  const struct {
    VORNIMAGETYPE off, on;
    wxColour ring;
  } pairs[] = {{VIT_OFF, VIT_ON, *wxRED},
               {VIT_OFF_MOUSE_OVER, VIT_ON_MOUSE_OVER, *wxGREEN},
               {VIT_OFF_DOWN, VIT_ON_DOWN, *wxBLUE}};
  for (const auto& pair : pairs) {
    const wxBitmap *off = nullptr, *on = nullptr;
    ASSERT_TRUE(cache->GetImage(pair.off, off));
    ASSERT_TRUE(cache->GetImage(pair.on, on));
    EXPECT_TRUE(SamePixels(*off, *on));
    EXPECT_EQ(PixelAt(*off, 10, 7), *wxBLACK);  // the centre is the dot
    EXPECT_EQ(PixelAt(*off, 0, 0), *wxWHITE);   // corners stay background
    EXPECT_EQ(PixelAt(*off, 20, 14), *wxWHITE);
    const wxImage img = off->ConvertToImage();
    int ringPixels = 0;
    for (int y = 0; y < 15; ++y)
      for (int x = 0; x < 21; ++x)
        ringPixels +=
            wxColour(img.GetRed(x, y), img.GetGreen(x, y), img.GetBlue(x, y)) == pair.ring;
    EXPECT_GT(ringPixels, 0);
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
  wxImage picture(6, 4);
  picture.SetRGB(wxRect(0, 0, 6, 4), 50, 60, 70);
  BasicwxImageFilter target(picture);
  wxBitmapUnDoFilter undo(target);
  ASSERT_TRUE(undo.GetBitmap().IsOk());
  EXPECT_EQ(undo.GetWidth(), 6);
  EXPECT_EQ(PixelAt(undo.GetBitmap(), 5, 3), wxColour(50, 60, 70));

  ColorA red(1, 0, 0), blue(0, 0, 1), green(0, 1, 0);
  ASSERT_TRUE(undo.WritePixel(1, 1, red));
  ASSERT_TRUE(undo.WritePixelI(2, 1, green, 0.5));
  ASSERT_TRUE(undo.WritePixel(1, 1, blue));
  EXPECT_FALSE(undo.WritePixel(6, 0, red));
  const wxColour blended(picture.GetRed(2, 1), picture.GetGreen(2, 1), picture.GetBlue(2, 1));
  EXPECT_EQ(blended, wxColour(25, 158, 35));
  EXPECT_EQ(wxColour(picture.GetRed(1, 1), picture.GetGreen(1, 1), picture.GetBlue(1, 1)), *wxBLUE);
  const wxImage mirror = undo.GetBitmap().ConvertToImage();
  for (int y = 0; y < 4; ++y)
    for (int x = 0; x < 6; ++x)
      EXPECT_EQ(wxColour(mirror.GetRed(x, y), mirror.GetGreen(x, y), mirror.GetBlue(x, y)),
                wxColour(picture.GetRed(x, y), picture.GetGreen(x, y), picture.GetBlue(x, y)))
          << x << "," << y;

  ASSERT_TRUE(undo.UnDo());
  const wxImage restored = undo.GetBitmap().ConvertToImage();
  for (int y = 0; y < 4; ++y)
    for (int x = 0; x < 6; ++x) {
      EXPECT_EQ(wxColour(picture.GetRed(x, y), picture.GetGreen(x, y), picture.GetBlue(x, y)),
                wxColour(50, 60, 70))
          << x << "," << y;
      EXPECT_EQ(wxColour(restored.GetRed(x, y), restored.GetGreen(x, y), restored.GetBlue(x, y)),
                wxColour(50, 60, 70))
          << x << "," << y;
    }

  // Initialize forgets earlier writes: they survive a later UnDo.
  undo.WritePixel(0, 0, red);
  undo.Initialize();
  undo.WritePixel(5, 3, green);
  undo.UnDo();
  EXPECT_EQ(PixelAt(undo.GetBitmap(), 0, 0), *wxRED);
  EXPECT_EQ(PixelAt(undo.GetBitmap(), 5, 3), wxColour(50, 60, 70));
  EXPECT_EQ(picture.GetRed(0, 0), 255);
}
