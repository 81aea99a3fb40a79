// Image conversions, colour conversions, grey masks and the wxImage filter.
#include <gtest/gtest.h>

#include <array>
#include <functional>

#include "TestSupport.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/UIFilters.h"

namespace {
using Rgba = std::array<unsigned char, 4>;

BitmapA Filled(int width, int height, Rgba rgba) {
  BitmapA bmp{width, height, 3, {}};
  for (int i = 0; i < width * height; ++i)
    bmp.data.insert(bmp.data.end(), rgba.begin(), rgba.end());
  return bmp;
}

Rgba PixelOf(const BitmapA& bmp, int x, int y) {
  const unsigned char* p = bmp.Pixel(x, y);
  return {p[0], p[1], p[2], p[3]};
}

wxColour RgbOf(const wxImage& image, int x, int y) {
  return wxColour(image.GetRed(x, y), image.GetGreen(x, y), image.GetBlue(x, y));
}

const Color kColour(1.0, 0.5, 0.25);

TEST(GreyMasks, EveryFormulaAtTheBoundaryLevels) {
  // Grey levels 0, 1, 128, 254, 255 (the first two from uneven channels) on
  // row 0, the same levels right to left on row 1.
  const std::array<unsigned char, 3> levels[5] = {
      {1, 0, 0}, {2, 1, 0}, {128, 128, 128}, {255, 255, 254}, {255, 255, 255}};
  wxImage mask(5, 2, false);
  for (int x = 0; x < 5; ++x) {
    mask.SetRGB(x, 0, levels[x][0], levels[x][1], levels[x][2]);
    mask.SetRGB(4 - x, 1, levels[x][0], levels[x][1], levels[x][2]);
  }
  // Worked out from the blend d = trunc(trunc(c*t*255) + d*(1-t)) and the
  // overwrite d = trunc(c * grey), over the pixel (200, 100, 50, 77).
  const std::array<unsigned char, 3> keep[5] = {
      {200, 100, 50}, {200, 100, 50}, {200, 100, 50}, {200, 100, 50}, {200, 100, 50}};
  const std::array<unsigned char, 3> mapped[5] = {
      {200, 100, 50}, {200, 99, 49}, {227, 113, 56}, {254, 127, 63}, {255, 127, 63}};
  const std::array<unsigned char, 3> set[5] = {
      {0, 0, 0}, {1, 0, 0}, {128, 64, 32}, {254, 127, 63}, {255, 127, 63}};
  const unsigned char keepAlpha[5] = {77, 77, 77, 77, 77};
  const unsigned char mapAlpha[5] = {0, 255, 255, 255, 255};
  const unsigned char setAlpha[5] = {0, 1, 128, 254, 255};
  using Fn = std::function<bool(BitmapA&, const wxImage&)>;
  const struct {
    const char* name;
    Fn fn;
    const std::array<unsigned char, 3>* rgb;
    const unsigned char* alpha;
  } cases[] = {
      {"MapAlphaFromGrey", [](BitmapA& b, const wxImage& m) { return MapAlphaFromGrey(b, m); },
       keep, mapAlpha},
      {"SetAlphaFromGrey", [](BitmapA& b, const wxImage& m) { return SetAlphaFromGrey(b, m); },
       keep, setAlpha},
      {"MapColoursFromGrey",
       [](BitmapA& b, const wxImage& m) { return MapColoursFromGrey(b, m, kColour); }, mapped,
       keepAlpha},
      {"MapAllFromGrey", [](BitmapA& b, const wxImage& m) { return MapAllFromGrey(b, m, kColour); },
       mapped, mapAlpha},
      {"SetColoursFromGrey",
       [](BitmapA& b, const wxImage& m) { return SetColoursFromGrey(b, m, kColour); }, set,
       keepAlpha},
      {"SetAllFromGrey", [](BitmapA& b, const wxImage& m) { return SetAllFromGrey(b, m, kColour); },
       set, setAlpha},
  };
  for (const auto& c : cases) {
    BitmapA dst = Filled(5, 2, {200, 100, 50, 77});
    ASSERT_TRUE(c.fn(dst, mask)) << c.name;
    for (int x = 0; x < 5; ++x) {
      const auto& rgb = c.rgb[x];
      const Rgba expected = {rgb[0], rgb[1], rgb[2], c.alpha[x]};
      EXPECT_EQ(PixelOf(dst, x, 0), expected) << c.name << " level " << x;
      EXPECT_EQ(PixelOf(dst, 4 - x, 1), expected) << c.name << " level " << x << ", row 1";
    }
    BitmapA grey{5, 2, 1, std::vector<unsigned char>(20, 0)};
    EXPECT_EQ(FiredAssertion([&] { c.fn(grey, mask); }), "dst.format == 3") << c.name;
    EXPECT_EQ(grey.data, std::vector<unsigned char>(20, 0));
    EXPECT_EQ(FiredAssertion([&] { c.fn(dst, wxImage(2, 5)); }),
              "dst.width == gw && dst.height == gh")
        << c.name;
  }
}

TEST(Conversions, BetweenHostBitmapsAndImages) {
  wxImage image;
  ASSERT_TRUE(ConvertTo(image, BitmapA{2, 1, 3, {10, 20, 30, 0, 99, 98, 97, 255}}));
  EXPECT_EQ(image.GetWidth(), 2);
  EXPECT_EQ(RgbOf(image, 0, 0), wxColour(10, 20, 30));
  EXPECT_EQ(RgbOf(image, 1, 0), wxColour(99, 98, 97));
  EXPECT_FALSE(image.HasAlpha());
  Bitmap rgb{0, 0, 1, {}};
  ASSERT_TRUE(ConvertTo(rgb, image));
  EXPECT_EQ(rgb.format, 3);
  EXPECT_EQ(rgb.data, (std::vector<unsigned char>{10, 20, 30, 99, 98, 97}));
  BitmapA rgba;
  ASSERT_TRUE(ConvertTo(rgba, image));
  EXPECT_EQ(rgba.data, (std::vector<unsigned char>{10, 20, 30, 255, 99, 98, 97, 255}));
  EXPECT_FALSE(ConvertTo(rgba, wxImage()));
  EXPECT_EQ(rgba.width, 0);

  ASSERT_TRUE(ConvertTo(image, BitmapA{2, 2, 1, {7, 0, 8, 1, 9, 2, 250, 3}}));
  EXPECT_EQ(RgbOf(image, 0, 1), wxColour(9, 9, 9));
  EXPECT_EQ(RgbOf(image, 1, 1), wxColour(250, 250, 250));
  ASSERT_TRUE(ConvertTo(image, Bitmap{1, 2, 3, {1, 2, 3, 4, 5, 6}}));
  EXPECT_EQ(RgbOf(image, 0, 1), wxColour(4, 5, 6));
  ASSERT_TRUE(ConvertTo(image, Bitmap{3, 1, 1, {0, 128, 255}}));
  EXPECT_EQ(RgbOf(image, 1, 0), wxColour(128, 128, 128));
  EXPECT_EQ(RgbOf(image, 2, 0), wxColour(255, 255, 255));
  auto fired = [&](const auto& bmp) { return FiredAssertion([&] { ConvertTo(image, bmp); }); };
  EXPECT_EQ(fired(Bitmap{1, 1, 2, {1, 2}}), "src.format == 3 || src.format == 1");
  EXPECT_EQ(fired(BitmapA{1, 1, 4, {1, 2, 3, 4}}), "src.format == 3 || src.format == 1");
}

TEST(Conversions, BlitCopyAndClear) {
  BitmapA base = Filled(3, 3, {255, 0, 0, 255});
  BitmapA top = Filled(1, 1, {0, 0, 255, 255});
  wxImage out;
  ASSERT_TRUE(BlitwxImage(out, base, top, 2, 1));
  EXPECT_EQ(RgbOf(out, 2, 1), *wxBLUE);
  EXPECT_EQ(RgbOf(out, 1, 1), *wxRED);
  EXPECT_EQ(base.Pixel(2, 1)[0], 255);  // the base itself is untouched

  wxImage shared(1, 1);
  ASSERT_TRUE(Copy(shared, out));
  EXPECT_TRUE(shared.IsSameAs(out));
  ASSERT_TRUE(Copy(shared, shared));
  EXPECT_TRUE(shared.IsSameAs(out));

  Color c(0.5, 1.0, 0.999);
  ASSERT_TRUE(ClearwxImage(out, c));
  for (int y = 0; y < 3; ++y)
    for (int x = 0; x < 3; ++x) EXPECT_EQ(RgbOf(out, x, y), wxColour(127, 255, 254));
  wxImage empty;
  EXPECT_NE(FiredAssertion([&] { ClearwxImage(empty, c); }), "");
}

TEST(Conversions, ColoursTruncate) {
  EXPECT_EQ(CtoWxC(Color(1.0, 0.999, 0.5)), wxColour(255, 254, 127));
  EXPECT_EQ(CtoWxC(Color(-0.2, 1.5, 0.0)), wxColour(0, 255, 0));
  EXPECT_EQ(CAtoWxC(ColorA(0.2, 0.4, 0.6, 0.0)), wxColour(51, 102, 153));
  EXPECT_EQ(WxCtoC(wxColour(255, 128, 0)), Color(1.0, 128 / 255.0, 0.0));
  EXPECT_EQ(WxCtoCA(wxColour(3, 2, 1)), ColorA(3 / 255.0, 2 / 255.0, 1 / 255.0, 1.0));
  for (int v = 0; v < 256; ++v)  // the round trip is lossless
    ASSERT_EQ(CtoWxC(WxCtoC(wxColour(v, v, v))), wxColour(v, v, v)) << v;
}

TEST(ImageFilter, RoundsHalfUpAndBlends) {
  wxImage image(2, 2);
  image.SetRGB(1, 1, 100, 0, 255);
  BasicwxImageFilter f(image);
  EXPECT_EQ(f.GetWidth(), 2);
  ColorA c(0.5, 127.49 / 255, 1.0, 0.0);
  ASSERT_TRUE(f.WritePixel(0, 0, c));
  EXPECT_EQ(RgbOf(image, 0, 0), wxColour(128, 127, 255));
  ColorA white(1.0, 1.0, 0.0);
  ASSERT_TRUE(f.WritePixelI(1, 1, white, 0.5));  // 127.5 + old/2 + 0.5
  EXPECT_EQ(RgbOf(image, 1, 1), wxColour(178, 128, 128));
  ColorA read;
  ASSERT_TRUE(f.ReadPixel(read, 1, 1));
  EXPECT_EQ(read, ColorA(178 / 255.0, 128 / 255.0, 128 / 255.0, 1.0));
  for (auto [x, y] : {std::pair{-1, 0}, {2, 0}, {0, 2}, {0, -1}}) {
    EXPECT_FALSE(f.WritePixel(x, y, c));
    EXPECT_FALSE(f.WritePixelI(x, y, c, 1.0));
    EXPECT_FALSE(f.ReadPixel(read, x, y));
  }
  ASSERT_TRUE(f.ReadPoint(read, FilterPoint{0, 0}));
  EXPECT_DOUBLE_EQ(read.r, 128 / 255.0);
  ASSERT_TRUE(f.Create(5, 3));
  EXPECT_EQ(image.GetWidth(), 5);
  EXPECT_EQ(image.GetRed(4, 2), 0);
  EXPECT_FALSE(f.Create(0, 3));
}

}  // namespace
