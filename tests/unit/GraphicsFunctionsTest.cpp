// Image conversions, colour conversions, grey masks and the wxImage filter.
#include <gtest/gtest.h>

#include <array>

#include "TestSupport.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/UIFilters.h"

namespace {
// A one-pixel-high mask whose pixels have the given RGB triples.
wxImage Mask(std::initializer_list<std::array<unsigned char, 3>> pixels) {
  wxImage mask(static_cast<int>(pixels.size()), 1, false);
  int x = 0;
  for (const auto& p : pixels) mask.SetRGB(x++, 0, p[0], p[1], p[2]);
  return mask;
}

BitmapA Filled(int width, int height, std::array<unsigned char, 4> rgba) {
  BitmapA bmp;
  bmp.width = width;
  bmp.height = height;
  bmp.format = 3;
  for (int i = 0; i < width * height; ++i)
    bmp.data.insert(bmp.data.end(), rgba.begin(), rgba.end());
  return bmp;
}

std::array<unsigned char, 4> PixelOf(const BitmapA& bmp, int x) {
  const unsigned char* p = bmp.Pixel(x, 0);
  return {p[0], p[1], p[2], p[3]};
}

const Color kColour(1.0, 0.5, 0.25);
const std::array<unsigned char, 4> kStart = {200, 100, 50, 77};
// Grey levels 0, 1, 128, 254, 255 (the first two from uneven channels).
wxImage GreyLevels() {
  return Mask({{1, 0, 0}, {2, 1, 0}, {128, 128, 128}, {255, 255, 254}, {255, 255, 255}});
}
}  // namespace

TEST(GreyMasks, AlphaFromGrey) {
  BitmapA mapped = Filled(5, 1, kStart);
  BitmapA set = Filled(5, 1, kStart);
  ASSERT_TRUE(MapAlphaFromGrey(mapped, GreyLevels()));
  ASSERT_TRUE(SetAlphaFromGrey(set, GreyLevels()));
  const unsigned char mapAlpha[] = {0, 255, 255, 255, 255};
  const unsigned char setAlpha[] = {0, 1, 128, 254, 255};
  for (int x = 0; x < 5; ++x) {
    EXPECT_EQ(PixelOf(mapped, x), (std::array<unsigned char, 4>{200, 100, 50, mapAlpha[x]})) << x;
    EXPECT_EQ(PixelOf(set, x), (std::array<unsigned char, 4>{200, 100, 50, setAlpha[x]})) << x;
  }
}

TEST(GreyMasks, ColoursFromGrey) {
  // Expected bytes worked out from the blend d = trunc(trunc(c*t*255) + d*(1-t))
  // and the overwrite d = trunc(c * grey).
  const std::array<unsigned char, 3> mapped[] = {
      {200, 100, 50}, {200, 99, 49}, {227, 113, 56}, {254, 127, 63}, {255, 127, 63}};
  const std::array<unsigned char, 3> set[] = {
      {0, 0, 0}, {1, 0, 0}, {128, 64, 32}, {254, 127, 63}, {255, 127, 63}};
  const unsigned char mapAlpha[] = {0, 255, 255, 255, 255};
  const unsigned char setAlpha[] = {0, 1, 128, 254, 255};

  BitmapA mapColours = Filled(5, 1, kStart), mapAll = Filled(5, 1, kStart);
  BitmapA setColours = Filled(5, 1, kStart), setAll = Filled(5, 1, kStart);
  ASSERT_TRUE(MapColoursFromGrey(mapColours, GreyLevels(), kColour));
  ASSERT_TRUE(MapAllFromGrey(mapAll, GreyLevels(), kColour));
  ASSERT_TRUE(SetColoursFromGrey(setColours, GreyLevels(), kColour));
  ASSERT_TRUE(SetAllFromGrey(setAll, GreyLevels(), kColour));
  for (int x = 0; x < 5; ++x) {
    const auto& m = mapped[x];
    const auto& s = set[x];
    EXPECT_EQ(PixelOf(mapColours, x), (std::array<unsigned char, 4>{m[0], m[1], m[2], 77})) << x;
    EXPECT_EQ(PixelOf(mapAll, x), (std::array<unsigned char, 4>{m[0], m[1], m[2], mapAlpha[x]}))
        << x;
    EXPECT_EQ(PixelOf(setColours, x), (std::array<unsigned char, 4>{s[0], s[1], s[2], 77})) << x;
    EXPECT_EQ(PixelOf(setAll, x), (std::array<unsigned char, 4>{s[0], s[1], s[2], setAlpha[x]}))
        << x;
  }
}

TEST(GreyMasks, WalksEveryRow) {
  wxImage mask(3, 4, false);
  for (int y = 0; y < 4; ++y)
    for (int x = 0; x < 3; ++x) mask.SetRGB(x, y, y * 60, y * 60, y * 60);
  BitmapA dst = Filled(3, 4, {0, 0, 0, 0});
  ASSERT_TRUE(SetAllFromGrey(dst, mask, Color(1, 1, 1)));
  for (int y = 0; y < 4; ++y)
    for (int x = 0; x < 3; ++x) EXPECT_EQ(dst.Pixel(x, y)[3], y * 60) << x << "," << y;
}

TEST(GreyMasks, SizeAndFormatAreChecked) {
  BitmapA dst = Filled(2, 2, kStart);
  wxImage wide(3, 2);
  EXPECT_EQ(FiredAssertion([&] { MapAlphaFromGrey(dst, wide); }),
            "dst.width == gw && dst.height == gh");
  EXPECT_EQ(FiredAssertion([&] { SetAllFromGrey(dst, wxImage(), kColour); }),
            "dst.width == gw && dst.height == gh");
  BitmapA grey;
  grey.width = 3;
  grey.height = 2;
  grey.format = 1;
  grey.data.assign(12, 0);
  EXPECT_EQ(FiredAssertion([&] { MapColoursFromGrey(grey, wide, kColour); }), "dst.format == 3");
  EXPECT_EQ(grey.data, std::vector<unsigned char>(12, 0));
}

TEST(Conversions, BitmapToImageFormats) {
  BitmapA rgba = Filled(2, 1, {10, 20, 30, 0});
  rgba.Pixel(1, 0)[0] = 99;
  wxImage image;
  ASSERT_TRUE(ConvertTo(image, rgba));
  EXPECT_EQ(image.GetWidth(), 2);
  EXPECT_EQ(image.GetRed(0, 0), 10);
  EXPECT_EQ(image.GetBlue(0, 0), 30);
  EXPECT_EQ(image.GetRed(1, 0), 99);
  EXPECT_FALSE(image.HasAlpha());

  BitmapA greyAlpha;
  greyAlpha.width = 2;
  greyAlpha.height = 2;
  greyAlpha.format = 1;
  greyAlpha.data = {7, 0, 8, 1, 9, 2, 250, 3};
  ASSERT_TRUE(ConvertTo(image, greyAlpha));
  EXPECT_EQ(image.GetHeight(), 2);
  EXPECT_EQ(wxColour(image.GetRed(1, 1), image.GetGreen(1, 1), image.GetBlue(1, 1)),
            wxColour(250, 250, 250));
  EXPECT_EQ(image.GetGreen(0, 1), 9);

  Bitmap rgb;
  rgb.width = 1;
  rgb.height = 2;
  rgb.format = 3;
  rgb.data = {1, 2, 3, 4, 5, 6};
  ASSERT_TRUE(ConvertTo(image, rgb));
  EXPECT_EQ(image.GetBlue(0, 1), 6);
  Bitmap grey;
  grey.width = 3;
  grey.height = 1;
  grey.format = 1;
  grey.data = {0, 128, 255};
  ASSERT_TRUE(ConvertTo(image, grey));
  EXPECT_EQ(image.GetRed(1, 0), 128);
  EXPECT_EQ(image.GetBlue(2, 0), 255);

  rgb.format = 2;
  EXPECT_EQ(FiredAssertion([&] { ConvertTo(image, rgb); }), "src.format == 3 || src.format == 1");
  greyAlpha.format = 4;
  EXPECT_EQ(FiredAssertion([&] { ConvertTo(image, greyAlpha); }),
            "src.format == 3 || src.format == 1");
}

TEST(Conversions, ImageToBitmap) {
  wxImage image(2, 1, false);
  image.SetRGB(0, 0, 1, 2, 3);
  image.SetRGB(1, 0, 200, 201, 202);
  Bitmap rgb;
  rgb.format = 1;
  ASSERT_TRUE(ConvertTo(rgb, image));
  EXPECT_EQ(rgb.format, 3);
  EXPECT_EQ(rgb.data, (std::vector<unsigned char>{1, 2, 3, 200, 201, 202}));
  BitmapA rgba;
  ASSERT_TRUE(ConvertTo(rgba, image));
  EXPECT_EQ(rgba.data, (std::vector<unsigned char>{1, 2, 3, 255, 200, 201, 202, 255}));
  EXPECT_FALSE(ConvertTo(rgba, wxImage()));
  EXPECT_EQ(rgba.width, 0);
}

TEST(Conversions, BlitComposesOntoACopyOfTheBase) {
  BitmapA base = Filled(3, 3, {255, 0, 0, 255});
  BitmapA top = Filled(1, 1, {0, 0, 255, 255});
  wxImage out;
  ASSERT_TRUE(BlitwxImage(out, base, top, 2, 1));
  EXPECT_EQ(wxColour(out.GetRed(2, 1), out.GetGreen(2, 1), out.GetBlue(2, 1)), *wxBLUE);
  EXPECT_EQ(wxColour(out.GetRed(1, 1), out.GetGreen(1, 1), out.GetBlue(1, 1)), *wxRED);
  EXPECT_EQ(base.Pixel(2, 1)[0], 255);  // the base itself is untouched
}

TEST(Conversions, CopySharesImageData) {
  wxImage src(4, 4);
  wxImage dst(1, 1);
  ASSERT_TRUE(Copy(dst, src));
  EXPECT_TRUE(dst.IsSameAs(src));
  ASSERT_TRUE(Copy(dst, dst));
  EXPECT_TRUE(dst.IsSameAs(src));
}

TEST(Conversions, ColoursTruncate) {
  EXPECT_EQ(CtoWxC(Color(1.0, 0.999, 0.5)), wxColour(255, 254, 127));
  EXPECT_EQ(CtoWxC(Color(-0.2, 1.5, 0.0)), wxColour(0, 255, 0));
  EXPECT_EQ(CAtoWxC(ColorA(0.2, 0.4, 0.6, 0.0)), wxColour(51, 102, 153));
  const Color c = WxCtoC(wxColour(255, 128, 0));
  EXPECT_DOUBLE_EQ(c.r, 1.0);
  EXPECT_DOUBLE_EQ(c.g, 128 / 255.0);
  EXPECT_DOUBLE_EQ(c.b, 0.0);
  const ColorA ca = WxCtoCA(wxColour(3, 2, 1));
  EXPECT_DOUBLE_EQ(ca.a, 1.0);
  EXPECT_DOUBLE_EQ(ca.r, 3 / 255.0);
  for (int v = 0; v < 256; ++v)  // the round trip is lossless
    ASSERT_EQ(CtoWxC(WxCtoC(wxColour(v, v, v))), wxColour(v, v, v)) << v;
}

TEST(Conversions, ClearwxImage) {
  wxImage image(3, 2);
  Color c(0.5, 1.0, 0.999);
  ASSERT_TRUE(ClearwxImage(image, c));
  for (int y = 0; y < 2; ++y)
    for (int x = 0; x < 3; ++x)
      EXPECT_EQ(wxColour(image.GetRed(x, y), image.GetGreen(x, y), image.GetBlue(x, y)),
                wxColour(127, 255, 254));
  wxImage empty;
  EXPECT_NE(FiredAssertion([&] { ClearwxImage(empty, c); }), "");
}

TEST(ImageFilter, RoundsHalfUpAndBlends) {
  wxImage image(2, 2);
  image.SetRGB(1, 1, 100, 0, 255);
  BasicwxImageFilter f(image);
  EXPECT_EQ(f.GetWidth(), 2);
  ColorA c(0.5, 127.49 / 255, 1.0, 0.0);
  ASSERT_TRUE(f.WritePixel(0, 0, c));
  EXPECT_EQ(wxColour(image.GetRed(0, 0), image.GetGreen(0, 0), image.GetBlue(0, 0)),
            wxColour(128, 127, 255));
  ColorA white(1.0, 1.0, 0.0);
  ASSERT_TRUE(f.WritePixelI(1, 1, white, 0.5));  // 127.5 + old/2 + 0.5
  EXPECT_EQ(wxColour(image.GetRed(1, 1), image.GetGreen(1, 1), image.GetBlue(1, 1)),
            wxColour(178, 128, 128));
  ColorA read;
  ASSERT_TRUE(f.ReadPixel(read, 1, 1));
  EXPECT_DOUBLE_EQ(read.r, 178 / 255.0);
  EXPECT_DOUBLE_EQ(read.a, 1.0);
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
