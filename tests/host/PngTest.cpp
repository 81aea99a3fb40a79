#include <gtest/gtest.h>
#include <png.h>
#include <zlib.h>

#include <csetjmp>
#include <cstring>
#include <string>
#include <vector>

#include "vornhost/Bitmap.h"

namespace {

typedef std::vector<unsigned char> Bytes;

struct PngSpec {
  int width, height, colourType, depth;
  std::vector<Bytes> rows;  // packed scan lines as libpng expects them
  std::vector<png_color> palette = {};
  Bytes transparency = {};
  bool interlace = false;
};

void AppendToVector(png_structp png, png_bytep data, size_t n) {
  Bytes* out = static_cast<Bytes*>(png_get_io_ptr(png));
  out->insert(out->end(), data, data + n);
}

// Writes fixtures in formats the simplified write API cannot produce.
Bytes WritePng(PngSpec spec) {
  Bytes out;
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  std::vector<png_bytep> rows;
  for (Bytes& r : spec.rows) rows.push_back(r.data());
  if (setjmp(png_jmpbuf(png))) {
    png_destroy_write_struct(&png, &info);
    ADD_FAILURE() << "could not write the fixture";
    return Bytes();
  }
  png_set_write_fn(png, &out, AppendToVector, nullptr);
  png_set_IHDR(png, info, spec.width, spec.height, spec.depth, spec.colourType,
               spec.interlace ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE,
               PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  if (!spec.palette.empty())
    png_set_PLTE(png, info, spec.palette.data(), static_cast<int>(spec.palette.size()));
  if (!spec.transparency.empty())
    png_set_tRNS(png, info, spec.transparency.data(), static_cast<int>(spec.transparency.size()),
                 nullptr);
  png_write_info(png, info);
  png_write_image(png, rows.data());
  png_write_end(png, nullptr);
  png_destroy_write_struct(&png, &info);
  return out;
}

Bytes Rgba(const BitmapA& b, int x, int y) {
  return Bytes(b.Pixel(x, y), b.Pixel(x, y) + 4);
}

// A marker output that a refused decode must leave alone.
BitmapA Marker() {
  BitmapA m;
  Create(m, 1, 1, 1);
  m.data = {42, 43};
  return m;
}

// A file whose IHDR claims the given size, with a valid checksum.
Bytes WithHeaderSize(Bytes png, std::uint32_t w, std::uint32_t h) {
  for (int i = 0; i < 4; ++i) {
    png[16 + i] = static_cast<unsigned char>(w >> (24 - 8 * i));
    png[20 + i] = static_cast<unsigned char>(h >> (24 - 8 * i));
  }
  const uLong crc = crc32(0, png.data() + 12, 17);
  for (int i = 0; i < 4; ++i) png[29 + i] = static_cast<unsigned char>(crc >> (24 - 8 * i));
  return png;
}

Bytes SmallRgb() {
  Bitmap b;
  Create(b, 3, 2, 3);
  for (std::size_t i = 0; i < b.data.size(); ++i) b.data[i] = static_cast<unsigned char>(i * 20);
  Bytes png;
  EXPECT_TRUE(SaveBitmapEncode(b, png));
  return png;
}

}  // namespace

TEST(HostPng, RgbAndRgbaRoundTrip) {
  Bitmap rgb;
  Create(rgb, 3, 2, 3);
  for (std::size_t i = 0; i < rgb.data.size(); ++i)
    rgb.data[i] = static_cast<unsigned char>(i * 13);
  Bytes png;
  ASSERT_TRUE(SaveBitmapEncode(rgb, png));
  Bitmap back;
  ASSERT_TRUE(LoadBitmapDecode(png.data(), static_cast<int>(png.size()), back));
  EXPECT_EQ(back.width, 3);
  EXPECT_EQ(back.format, 3);
  EXPECT_EQ(back.data, rgb.data);
  BitmapA withAlpha;
  ASSERT_TRUE(LoadBitmapADecode(png.data(), static_cast<int>(png.size()), withAlpha));
  EXPECT_EQ(Rgba(withAlpha, 1, 0), (Bytes{39, 52, 65, 255}));

  BitmapA rgba;
  Create(rgba, 2, 2, 3);
  rgba.data = {255, 0, 0, 255, 10, 200, 30, 128, 1, 2, 3, 0, 90, 80, 70, 1};
  ASSERT_TRUE(SaveBitmapAEncode(rgba, png));
  BitmapA backA;
  ASSERT_TRUE(LoadBitmapADecode(png.data(), static_cast<int>(png.size()), backA));
  EXPECT_EQ(backA.data[0], 255);
  EXPECT_EQ(Rgba(backA, 1, 0), (Bytes{10, 200, 30, 128}));
  EXPECT_EQ(backA.data[11], 0);
  EXPECT_EQ(backA.data[15], 1);
  Bitmap dropped;  // alpha dropped, colour kept
  ASSERT_TRUE(LoadBitmapDecode(png.data(), static_cast<int>(png.size()), dropped));
  EXPECT_EQ(Bytes(dropped.Pixel(1, 0), dropped.Pixel(1, 0) + 3), (Bytes{10, 200, 30}));

  Bitmap grey;
  Create(grey, 2, 2, 1);
  EXPECT_FALSE(SaveBitmapEncode(grey, png));  // only RGB(A) is encoded
  EXPECT_FALSE(SaveBitmapEncode(Bitmap(), png));
}

TEST(HostPng, DecodesEveryColourTypeToRgba) {
  struct Case {
    std::string name;
    PngSpec spec;
    Bytes first, second;  // RGBA of pixels (0, 0) and (1, 0)
  } cases[] = {
      {"grey 8",
       {2, 1, PNG_COLOR_TYPE_GRAY, 8, {{64, 255}}},
       {64, 64, 64, 255},
       {255, 255, 255, 255}},
      {"grey 1", {2, 1, PNG_COLOR_TYPE_GRAY, 1, {{0x80}}}, {255, 255, 255, 255}, {0, 0, 0, 255}},
      {"grey 4",
       {2, 1, PNG_COLOR_TYPE_GRAY, 4, {{0x8F}}},
       {136, 136, 136, 255},
       {255, 255, 255, 255}},
      {"grey 16",
       {2, 1, PNG_COLOR_TYPE_GRAY, 16, {{0x80, 0x80, 0xFF, 0xFF}}},
       {128, 128, 128, 255},
       {255, 255, 255, 255}},
      {"grey alpha",
       {2, 1, PNG_COLOR_TYPE_GRAY_ALPHA, 8, {{100, 255, 7, 0}}},
       {100, 100, 100, 255},
       {0, 0, 0, 0}},
      {"rgb 16",
       {2, 1, PNG_COLOR_TYPE_RGB, 16, {{0xFF, 0xFF, 0, 0, 0x80, 0x80, 0, 0, 0, 0, 0, 0}}},
       {255, 0, 128, 255},
       {0, 0, 0, 255}},
      {"palette",
       {2, 1, PNG_COLOR_TYPE_PALETTE, 8, {{1, 0}}, {{10, 20, 30}, {200, 100, 50}}, {0, 128}},
       {200, 100, 50, 128},
       {0, 0, 0, 0}},
      {"palette 2-bit",
       {2, 1, PNG_COLOR_TYPE_PALETTE, 2, {{0x90}}, {{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}},
       {7, 8, 9, 255},
       {4, 5, 6, 255}},
      {"interlaced rgb",
       {2, 1, PNG_COLOR_TYPE_RGB, 8, {{1, 2, 3, 4, 5, 6}}, {}, {}, true},
       {1, 2, 3, 255},
       {4, 5, 6, 255}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const Bytes png = WritePng(c.spec);
    BitmapA out;
    ASSERT_TRUE(LoadBitmapADecode(png.data(), static_cast<int>(png.size()), out));
    ASSERT_EQ(out.width, 2);
    ASSERT_EQ(out.height, 1);
    EXPECT_EQ(out.format, 3);
    EXPECT_EQ(Rgba(out, 0, 0), c.first);
    // Fully transparent pixels may come back with any colour.
    if (c.second[3] == 0)
      EXPECT_EQ(out.data[7], 0);
    else
      EXPECT_EQ(Rgba(out, 1, 0), c.second);
    Bitmap rgb;
    ASSERT_TRUE(LoadBitmapDecode(png.data(), static_cast<int>(png.size()), rgb));
    EXPECT_EQ(Bytes(rgb.data.begin(), rgb.data.begin() + 3),
              Bytes(c.first.begin(), c.first.begin() + 3));
  }
}

TEST(HostPng, RefusesBrokenInputAndLeavesTheOutput) {
  const Bytes good = SmallRgb();
  std::vector<std::pair<std::string, Bytes>> bad = {
      {"empty", Bytes()},
      {"not a png", Bytes(64, 'x')},
      {"signature only", Bytes(good.begin(), good.begin() + 8)},
      {"too wide", WithHeaderSize(good, kMaxBitmapSide + 1, 2)},
      {"too tall", WithHeaderSize(good, 3, 0x7FFFFFFF)},
      {"zero size", WithHeaderSize(good, 0, 2)},
      {"huge claim, few bytes", WithHeaderSize(good, kMaxBitmapSide, kMaxBitmapSide)},
      {"larger than its data", WithHeaderSize(good, 3, 9)},
  };
  Bytes header = good;
  header[17] ^= 1;  // checksum no longer matches
  bad.push_back({"bad header checksum", header});
  // Every cut before the end chunk loses pixel data or its checksum.
  const std::size_t iend = good.size() - 12;
  for (std::size_t n = 1; n < iend; ++n)
    bad.push_back({"cut at " + std::to_string(n), Bytes(good.begin(), good.begin() + n)});
  // Damage anywhere in the pixel data chunk, including its length and checksum.
  const std::size_t idat = std::string(good.begin(), good.end()).find("IDAT") - 4;
  const std::size_t idatEnd = idat + 12 + ((good[idat + 2] << 8) | good[idat + 3]);
  ASSERT_LT(idatEnd, good.size());
  for (std::size_t i = idat; i < idatEnd; ++i) {
    Bytes flipped = good;
    flipped[i] ^= 0x55;
    bad.push_back({"flipped byte " + std::to_string(i), flipped});
  }
  for (const auto& b : bad) {
    SCOPED_TRACE(b.first);
    BitmapA outA = Marker();
    EXPECT_FALSE(LoadBitmapADecode(b.second.data(), static_cast<int>(b.second.size()), outA));
    EXPECT_EQ(outA.data, (Bytes{42, 43}));
    Bitmap out;
    Create(out, 1, 1, 1);
    EXPECT_FALSE(LoadBitmapDecode(b.second.data(), static_cast<int>(b.second.size()), out));
    EXPECT_EQ(out.width, 1);
  }
  BitmapA out = Marker();
  EXPECT_FALSE(LoadBitmapADecode(nullptr, 100, out));
  EXPECT_FALSE(LoadBitmapADecode(good.data(), 0, out));
  EXPECT_FALSE(LoadBitmapADecode(good.data(), -5, out));
  EXPECT_EQ(out.data, (Bytes{42, 43}));
  ASSERT_TRUE(LoadBitmapADecode(good.data(), static_cast<int>(good.size()), out));
}

TEST(HostPng, HighlyCompressedLegitimateImagesAreAccepted) {
  // 2000 x 2000 one-bit grey compresses about a thousandfold: the plausibility
  // check must still let it through.
  PngSpec spec{2000, 2000, PNG_COLOR_TYPE_GRAY, 1, {}};
  spec.rows.assign(2000, Bytes(250, 0));
  spec.rows[1999][249] = 0x01;
  const Bytes png = WritePng(spec);
  ASSERT_LT(png.size(), 20000u);
  BitmapA out;
  ASSERT_TRUE(LoadBitmapADecode(png.data(), static_cast<int>(png.size()), out));
  EXPECT_EQ(out.width, 2000);
  EXPECT_EQ(Rgba(out, 1999, 1999), (Bytes{255, 255, 255, 255}));
  EXPECT_EQ(Rgba(out, 1998, 1999), (Bytes{0, 0, 0, 255}));
}
