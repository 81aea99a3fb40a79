// The six grey-mask functions against the per-pixel formulas written out
// directly, over every grey level and every destination byte.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <functional>
#include <string>

#include "vorn/GraphicsFunctions.h"

namespace {

unsigned char Trunc(double v) {
  return static_cast<unsigned char>(static_cast<long long>(std::trunc(v)));
}

// One pixel as the formulas state it; which says what the function does:
// bit 0 map colours, bit 1 set colours, bit 2 map alpha, bit 3 set alpha.
void Reference(unsigned char* px, const unsigned char* rgb, const Color& colour, int which) {
  const int grey = (rgb[0] + rgb[1] + rgb[2]) / 3;
  const double t = grey / 255.0;
  const double c[3] = {colour.r, colour.g, colour.b};
  for (int ch = 0; ch < 3; ++ch) {
    if (which & 1) px[ch] = Trunc((Trunc(c[ch] * t * 255) % 256) + px[ch] * (1 - t));
    if (which & 2) px[ch] = Trunc(c[ch] * grey);
  }
  if (which & 4) px[3] = grey == 0 ? 0 : 255;
  if (which & 8) px[3] = static_cast<unsigned char>(grey);
}

struct Case {
  const char* name;
  int which;
  std::function<bool(BitmapA&, const wxImage&, const Color&)> fn;
};

const Case kCases[] = {
    {"MapAlphaFromGrey", 4,
     [](BitmapA& b, const wxImage& m, const Color&) { return MapAlphaFromGrey(b, m); }},
    {"SetAlphaFromGrey", 8,
     [](BitmapA& b, const wxImage& m, const Color&) { return SetAlphaFromGrey(b, m); }},
    {"MapColoursFromGrey", 1, MapColoursFromGrey},
    {"MapAllFromGrey", 1 | 4, MapAllFromGrey},
    {"SetColoursFromGrey", 2, SetColoursFromGrey},
    {"SetAllFromGrey", 2 | 8, SetAllFromGrey},
};

// Row y has grey level y % 256 (its channel sums vary within the level),
// column x gives destination bytes x, 255 - x, x ^ 0x5A and alpha 7x; a
// width or height off sixteen checks the last, partial step.
void Fill(wxImage& mask, BitmapA& dst, int width, int height) {
  mask.Create(width, height, false);
  Create(dst, width, height, 3);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const int level = y % 256;
      const int extra = level < 255 ? x % 3 : 0;
      mask.SetRGB(x, y, static_cast<unsigned char>(level + (extra > 0)),
                  static_cast<unsigned char>(level + (extra > 1)),
                  static_cast<unsigned char>(level));
      unsigned char* p = dst.Pixel(x, y);
      p[0] = static_cast<unsigned char>(x);
      p[1] = static_cast<unsigned char>(255 - x);
      p[2] = static_cast<unsigned char>(x ^ 0x5A);
      p[3] = static_cast<unsigned char>(x * 7);
    }
  }
}

TEST(GreyMapping, EveryFunctionMatchesItsFormulaForEveryGreyAndDestinationByte) {
  const Color colours[] = {Color(0, 0, 0),        Color(1, 1, 1),       Color(0.9, 0.4, 0.2),
                           Color(1, 0, 0.5),      Color(0.2, 0.6, 0.8), Color(1.0 / 3, 0.7, 0.0039),
                           Color(1.5, -0.25, 2.0)};
  const int sizes[][2] = {{256, 256}, {255, 261}, {7, 3}};
  for (const Case& c : kCases) {
    for (const Color& colour : colours) {
      for (const auto& size : sizes) {
        wxImage mask;
        BitmapA dst;
        Fill(mask, dst, size[0], size[1]);
        BitmapA expected = dst;
        const unsigned char* rgb = mask.GetData();
        for (int i = 0; i < size[0] * size[1]; ++i)
          Reference(&expected.data[4 * i], rgb + 3 * i, colour, c.which);
        ASSERT_TRUE(c.fn(dst, mask, colour));
        std::string firstDifference;
        for (std::size_t i = 0; i < dst.data.size() && firstDifference.empty(); ++i)
          if (dst.data[i] != expected.data[i])
            firstDifference = "pixel " + std::to_string(i / 4) + " byte " + std::to_string(i % 4) +
                              ": " + std::to_string(dst.data[i]) + " instead of " +
                              std::to_string(expected.data[i]);
        EXPECT_EQ(firstDifference, "")
            << c.name << " colour (" << colour.r << ", " << colour.g << ", " << colour.b
            << ") size " << size[0] << "x" << size[1];
      }
    }
  }
}

}  // namespace
