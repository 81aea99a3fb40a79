#include <gtest/gtest.h>
#include <wx/image.h>

#include <climits>
#include <cmath>
#include <memory>
#include <string>

#include "HostTestUtil.h"
#include "vornhost/Filter.h"

namespace {

const ColorA kWhite(1, 1, 1, 1);

ColorA At(const Filter& f, int x, int y) {
  ColorA c(-1, -1, -1, -1);
  EXPECT_TRUE(f.ReadPixel(c, x, y)) << x << "," << y;
  return c;
}

// (x, y) that Numbered wrote at a pixel.
std::pair<int, int> Origin(const Filter& f, int x, int y) {
  const ColorA c = At(f, x, y);
  return {static_cast<int>(c.r * 255 + 0.5), static_cast<int>(c.g * 255 + 0.5)};
}

}  // namespace

TEST(HostFilter, EveryKindReadsWritesAndBlends) {
  Bitmap rgb, grey;
  BitmapA rgba, greyA;
  wxImage img(4, 3, true);
  Create(rgb, 4, 3, 3);
  Create(grey, 4, 3, 1);
  Create(rgba, 4, 3, 3);
  Create(greyA, 4, 3, 1);
  struct Kind {
    const char* name;
    std::unique_ptr<Filter> filter;
    bool hasAlpha;
  } kinds[] = {{"Bitmap", CreateFilter(rgb), false},
               {"Bitmap grey", CreateFilter(grey), false},
               {"BitmapA", CreateFilter(rgba), true},
               {"BitmapA grey", CreateFilter(greyA), true},
               {"wxImage", CreateFilter(img), false}};
  for (const Kind& k : kinds) {
    SCOPED_TRACE(k.name);
    Filter& f = *k.filter;
    ColorA c(0.2, 0.2, 0.2, 0.4);
    ASSERT_TRUE(f.WritePixel(3, 2, c));
    EXPECT_NEAR(At(f, 3, 2).r, 51 / 255.0, 1e-12);
    EXPECT_DOUBLE_EQ(At(f, 3, 2).a, k.hasAlpha ? 0.4 : 1.0);
    for (auto xy : std::vector<std::pair<int, int>>{{-1, 0}, {4, 0}, {0, 3}, {INT_MAX, INT_MIN}}) {
      EXPECT_FALSE(f.WritePixel(xy.first, xy.second, c));
      EXPECT_FALSE(f.ReadPixel(c, xy.first, xy.second));
      EXPECT_FALSE(f.WritePixelI(xy.first, xy.second, c, 0.5));
    }
    // Half of white over an opaque black pixel gives mid grey; zero intensity changes nothing.
    ColorA black(0, 0, 0, 1), white = kWhite;
    f.WritePixel(0, 0, black);
    ASSERT_TRUE(f.WritePixelI(0, 0, white, 0.5) && f.WritePixelI(0, 0, white, 0.0));
    EXPECT_NEAR(At(f, 0, 0).r, 127 / 255.0, 1e-12);
    EXPECT_DOUBLE_EQ(At(f, 0, 0).a, 1.0);
    ASSERT_TRUE(Clear(f, white));
    EXPECT_EQ(At(f, 1, 1), white);
    ASSERT_TRUE(f.Clear());
    EXPECT_EQ(At(f, 1, 1).r, 0.0);
    ASSERT_TRUE(f.Create(2, 5));
    EXPECT_EQ(f.GetWidth() * 10 + f.GetHeight(), 25);
    EXPECT_FALSE(f.Create(0, 5));
  }
}

TEST(HostFilter, TransparencyAndSharedWxImages) {
  BitmapA a;
  Create(a, 1, 1, 3);  // transparent black does not darken what is blended over it
  ColorA red(1, 0, 0, 1), white = kWhite;
  CreateFilter(a)->WritePixelI(0, 0, red, 0.5);
  EXPECT_EQ(a.data, (Px{255, 0, 0, 127}));

  wxImage img(2, 2, true);
  wxImage shared = img;  // shares the pixel data
  CreateFilter(img)->WritePixel(1, 1, white);
  EXPECT_EQ(img.GetRed(1, 1), 255);
  EXPECT_EQ(shared.GetRed(1, 1), 0);
  wxImage invalid;
  EXPECT_FALSE(CreateFilter(invalid)->WritePixel(0, 0, white));
}

TEST(HostFilter, CropIsAViewOfTheRectangle) {
  BitmapA big = Numbered<BitmapA>(6, 5);
  auto f = CreateFilter(big);
  CropFilter view = Crop(*f, 2, 1, 5, 3);
  EXPECT_EQ(view.GetWidth() * 10 + view.GetHeight(), 32);
  EXPECT_EQ(Origin(view, 0, 0), std::make_pair(2, 1));
  EXPECT_EQ(Origin(view, 2, 1), std::make_pair(4, 2));
  ColorA c, white = kWhite;
  EXPECT_FALSE(view.ReadPixel(c, 3, 0));  // inside the parent, outside the view
  ASSERT_TRUE(view.Clear());
  EXPECT_EQ(At(*f, 2, 1), ColorA(0, 0, 0, 0));
  EXPECT_EQ(Origin(*f, 5, 1), std::make_pair(5, 1));  // right of the view: untouched
  EXPECT_EQ(Origin(*f, 2, 3), std::make_pair(2, 3));  // below: untouched
  EXPECT_FALSE(view.Create(4, 4));
  EXPECT_TRUE(view.Create(3, 2));

  // A view reaching past the parent: only the parent's part is accessible.
  CropFilter edge = Crop(*f, -2, 4, 3, 9);
  EXPECT_FALSE(edge.WritePixel(1, 0, white));  // parent (-1, 4)
  EXPECT_TRUE(edge.WritePixel(2, 0, white));   // parent (0, 4)
  EXPECT_FALSE(edge.WritePixel(2, 1, white));  // parent (0, 5)
  EXPECT_EQ(At(*f, 0, 4), white);
  EXPECT_EQ(Crop(*f, 4, 4, 1, 1).GetWidth(), 0);  // inverted corners give an empty view
  // Offsets that would overflow an int are simply outside.
  EXPECT_FALSE(Crop(*f, INT_MAX - 1, 0, INT_MAX, 1).WritePixel(0, 0, white));
  // Views of an anti-aliasing filter draw anti-aliased too.
  AntiAliasFilter smooth = AntiAlias(*f);
  EXPECT_TRUE(Crop(smooth, 0, 0, 2, 2).IsAntiAliased());
  EXPECT_FALSE(view.IsAntiAliased());
}

TEST(HostFilter, UnDoRestoresNewestFirst) {
  Bitmap b;
  Create(b, 3, 3, 3);
  auto f = CreateFilter(b);
  ClearBitmap(b, Color(0.2, 0.2, 0.2));
  const Px original = b.data;
  UnDoFilter undo(*f);
  ColorA red(1, 0, 0, 1), green(0, 1, 0, 1);
  undo.WritePixel(1, 1, red);
  undo.WritePixel(1, 1, green);  // records red as the old colour
  undo.WritePixelI(0, 0, red, 0.5);
  EXPECT_FALSE(undo.WritePixel(5, 5, red));  // not recorded
  ASSERT_EQ(undo.GetRecords().size(), 3u);
  EXPECT_EQ(undo.GetRecords()[1].old.r, 1.0);
  ASSERT_TRUE(undo.UnDo());
  EXPECT_EQ(b.data, original);  // oldest-last restores the first old colour
  EXPECT_TRUE(undo.GetRecords().empty());

  DrawLine(undo, 0, 2, 2, 2, kWhite);
  undo.Initialize();
  EXPECT_TRUE(undo.GetRecords().empty());
  undo.UnDo();
  EXPECT_EQ(b.Pixel(2, 2)[0], 255);  // forgotten changes stay
  undo.WritePixel(0, 0, red);
  ASSERT_TRUE(undo.Create(2, 2));
  EXPECT_TRUE(undo.GetRecords().empty());
}

TEST(HostFilter, CopyAndFlipMatchTheBitmapForms) {
  const Bitmap src = Numbered<Bitmap>(4, 3);
  BitmapA srcA = Numbered<BitmapA>(4, 3);
  auto sf = CreateFilter(srcA);
  struct Case {
    const char* name;
    bool (*inPlace)(Bitmap&);
    bool (*filter)(Filter&, const Filter&);
    bool mirrorX, mirrorY;
  } cases[] = {{"Copy", nullptr, Copy, false, false},
               {"FlipVert", FlipVert, FlipVert, false, true},
               {"FlipHoz", FlipHoz, FlipHoz, true, false}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    Bitmap b = Numbered<Bitmap>(1, 1);
    ASSERT_TRUE(Copy(b, src));
    ASSERT_TRUE(!c.inPlace || c.inPlace(b));
    wxImage img(1, 7);  // resized to the source
    ASSERT_TRUE(c.filter(*CreateFilter(img), *sf));
    BitmapA self = srcA;  // in place, through one filter
    auto selfFilter = CreateFilter(self);
    ASSERT_TRUE(c.filter(*selfFilter, *selfFilter));
    ASSERT_EQ(b.width * 10 + b.height, 43);
    ASSERT_EQ(img.GetWidth() * 10 + img.GetHeight(), 43);
    for (int y = 0; y < 3; ++y)
      for (int x = 0; x < 4; ++x) {
        const Px want{(unsigned char)(c.mirrorX ? 3 - x : x),
                      (unsigned char)(c.mirrorY ? 2 - y : y), 7};
        EXPECT_EQ(Bytes(b, x, y), want) << x << "," << y;
        EXPECT_EQ((Px{img.GetRed(x, y), img.GetGreen(x, y), img.GetBlue(x, y)}), want);
        EXPECT_EQ(Bytes(self, x, y), (Px{want[0], want[1], 7, 255})) << x << "," << y;
      }
  }
  BitmapA a;  // grey with alpha moves two-byte pixels
  Create(a, 2, 1, 1);
  a.data = {1, 2, 3, 4};
  ASSERT_TRUE(FlipHoz(a));
  EXPECT_EQ(a.data, (Px{3, 4, 1, 2}));
  // A view cannot be resized: the overlap is copied, the rest kept.
  BitmapA big;
  Create(big, 6, 6, 3);
  auto bf = CreateFilter(big);
  ASSERT_TRUE(Clear(*bf, kWhite));
  ASSERT_TRUE(Copy(Crop(*bf, 4, 4, 6, 6), *sf));
  EXPECT_EQ(Origin(*bf, 5, 5), std::make_pair(1, 1));
  EXPECT_EQ(At(*bf, 3, 3), kWhite);
  // Empty sources: the bitmap copies as empty, the filter refuses.
  Bitmap copy = src;
  ASSERT_TRUE(Copy(copy, Bitmap()));
  EXPECT_TRUE(copy.IsEmpty());
  EXPECT_FALSE(FlipVert(copy));
  BitmapA empty;
  EXPECT_FALSE(Copy(*bf, *CreateFilter(empty)));
}

TEST(HostFilter, BlitClipsAtEveryEdgeLikeTheBitmapForm) {
  Bitmap top = Numbered<Bitmap>(3, 3);
  BitmapA topA = Numbered<BitmapA>(3, 3);
  struct Case {
    int x, y;
    int changed;  // pixels of the 5x4 destination that change
  } cases[] = {{1, 1, 9}, {-1, -2, 2}, {-2, -1, 2}, {4, 3, 1},
               {3, 2, 4}, {5, 0, 0},   {-3, 0, 0},  {INT_MIN, INT_MAX, 0}};
  for (bool viaFilter : {false, true}) {
    for (const Case& c : cases) {
      SCOPED_TRACE(std::to_string(c.x) + "," + std::to_string(c.y) + (viaFilter ? " filter" : ""));
      Bitmap dst;
      Create(dst, 5, 4, 3);
      ClearBitmap(dst, Color(1, 1, 1));
      ASSERT_TRUE(viaFilter ? Blit(*CreateFilter(dst), *CreateFilter(topA), c.x, c.y)
                            : Blit(dst, top, c.x, c.y));
      int changed = 0;
      for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 5; ++x) {
          if (Bytes(dst, x, y) == Px(3, 255)) continue;
          ++changed;
          EXPECT_EQ(Bytes(dst, x, y), (Px{(unsigned char)(x - c.x), (unsigned char)(y - c.y), 7}));
        }
      EXPECT_EQ(changed, c.changed);
    }
  }
  Bitmap grey, dst = top;
  Create(grey, 2, 2, 1);
  EXPECT_FALSE(Blit(dst, grey, 0, 0));  // formats differ
}

TEST(HostFilter, MaskedBlitWeighsByMaskBrightnessAndAlpha) {
  Bitmap dst;
  Create(dst, 4, 1, 3);
  auto df = CreateFilter(dst);
  BitmapA src, mask;
  Create(src, 4, 1, 3);
  auto sf = CreateFilter(src);
  ASSERT_TRUE(Clear(*sf, kWhite));
  Create(mask, 3, 1, 3);  // one pixel narrower than src
  auto mf = CreateFilter(mask);
  ColorA full = kWhite, grey(0.6, 0.6, 0.6, 1), halfAlpha(1, 1, 1, 0.5), dark(0, 0, 0, 1);
  mf->WritePixel(0, 0, full);
  mf->WritePixel(1, 0, grey);
  mf->WritePixel(2, 0, halfAlpha);
  ASSERT_TRUE(Blit(*df, *sf, *mf, 0, 0));
  EXPECT_EQ(dst.data[0], 255);
  EXPECT_NEAR(dst.data[3], 153, 1);
  EXPECT_NEAR(dst.data[6], 127, 1);
  EXPECT_EQ(dst.data[9], 0);  // no mask pixel there
  mf->WritePixel(0, 0, dark);
  Clear(*df, ColorA(0, 0, 0, 1));
  ASSERT_TRUE(Blit(*df, *sf, *mf, -1, 0));  // mask read at src coordinates
  EXPECT_NEAR(dst.data[0], 153, 1);
  EXPECT_NEAR(dst.data[3], 127, 1);
}

TEST(HostFilter, RotateByQuarterTurns) {
  BitmapA src = Numbered<BitmapA>(3, 3);
  auto sf = CreateFilter(src);
  struct Case {
    double degrees;
    int x, y;  // where the source pixel (2, 1) lands
  } cases[] = {{90, 1, 0}, {180, 0, 1}, {270, 1, 2}, {-90, 1, 2}, {360, 2, 1}, {450, 1, 0}};
  for (const Case& c : cases) {
    Bitmap dst;
    auto df = CreateFilter(dst);
    ASSERT_TRUE(Rotate(*df, *sf, c.degrees));
    ASSERT_EQ(dst.width * 10 + dst.height, 33);
    EXPECT_EQ(Origin(*df, c.x, c.y), std::make_pair(2, 1)) << c.degrees;
    EXPECT_EQ(Origin(*df, 1, 1), std::make_pair(1, 1)) << c.degrees;
  }
  // In place, and an arbitrary angle leaves the corners uncovered.
  ASSERT_TRUE(Rotate(*sf, *sf, 180));
  EXPECT_EQ(Origin(*sf, 0, 0), std::make_pair(2, 2));
  BitmapA wide, out;
  Create(wide, 9, 9, 3);
  auto wf = CreateFilter(wide), of = CreateFilter(out);
  Clear(*wf, kWhite);
  ASSERT_TRUE(Rotate(*of, *wf, 45));
  EXPECT_EQ(At(*of, 0, 0).a, 0.0);
  EXPECT_EQ(At(*of, 4, 4), kWhite);
  EXPECT_FALSE(Rotate(*of, *wf, std::nan("")));
}
