#include <gtest/gtest.h>
#include <png.h>
#include <zlib.h>

#include <algorithm>
#include <csetjmp>
#include <cstdlib>
#include <new>
#include <string>
#include <vector>

#include "HostTestUtil.h"
#include "vornhost/Bitmap.h"

namespace {

// The largest single allocation made while watching: refusals must not allocate for a size
// the bytes cannot hold.
bool g_watchAllocations = false;
std::size_t g_largestAllocation = 0;

void* Allocate(std::size_t n) noexcept {
  if (g_watchAllocations) g_largestAllocation = std::max(g_largestAllocation, n);
  return std::malloc(n ? n : 1);
}

}  // namespace

// Every form of new and delete, so that they stay paired under the address sanitizer.
void* operator new(std::size_t n) {
  if (void* p = Allocate(n)) return p;
  throw std::bad_alloc();
}
void* operator new[](std::size_t n) {
  return operator new(n);
}
void* operator new(std::size_t n, const std::nothrow_t&) noexcept {
  return Allocate(n);
}
void* operator new[](std::size_t n, const std::nothrow_t&) noexcept {
  return Allocate(n);
}
// GCC cannot see that these pair with the malloc above.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"
void operator delete(void* p) noexcept {
  std::free(p);
}
void operator delete[](void* p) noexcept {
  std::free(p);
}
void operator delete(void* p, std::size_t) noexcept {
  std::free(p);
}
void operator delete[](void* p, std::size_t) noexcept {
  std::free(p);
}
void operator delete(void* p, const std::nothrow_t&) noexcept {
  std::free(p);
}
void operator delete[](void* p, const std::nothrow_t&) noexcept {
  std::free(p);
}
#pragma GCC diagnostic pop

namespace {

struct PngLayout {
  int width, height, colourType, depth;
  std::vector<Px> rows;  // packed scan lines as libpng expects them
  std::vector<png_color> palette = {};
  Px transparency = {};
  bool interlace = false;
};

void AppendToVector(png_structp png, png_bytep data, size_t n) {
  Px* out = static_cast<Px*>(png_get_io_ptr(png));
  out->insert(out->end(), data, data + n);
}

// Writes fixtures in formats the simplified write API cannot produce.
Px WritePng(PngLayout layout) {
  Px out;
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  std::vector<png_bytep> rows;
  for (Px& r : layout.rows) rows.push_back(r.data());
  if (setjmp(png_jmpbuf(png))) {
    png_destroy_write_struct(&png, &info);
    ADD_FAILURE() << "could not write the fixture";
    return Px();
  }
  png_set_write_fn(png, &out, AppendToVector, nullptr);
  png_set_IHDR(png, info, layout.width, layout.height, layout.depth, layout.colourType,
               layout.interlace ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE,
               PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  if (!layout.palette.empty())
    png_set_PLTE(png, info, layout.palette.data(), static_cast<int>(layout.palette.size()));
  if (!layout.transparency.empty())
    png_set_tRNS(png, info, layout.transparency.data(),
                 static_cast<int>(layout.transparency.size()), nullptr);
  png_write_info(png, info);
  png_write_image(png, rows.data());
  png_write_end(png, nullptr);
  png_destroy_write_struct(&png, &info);
  return out;
}

bool Decode(const Px& png, Bitmap& out) {
  return LoadBitmapDecode(png.data(), static_cast<int>(png.size()), out);
}
bool Decode(const Px& png, BitmapA& out) {
  return LoadBitmapADecode(png.data(), static_cast<int>(png.size()), out);
}

// A file whose IHDR claims the given size, with a valid checksum.
Px WithHeaderSize(Px png, std::uint32_t w, std::uint32_t h) {
  for (int i = 0; i < 4; ++i) {
    png[16 + i] = static_cast<unsigned char>(w >> (24 - 8 * i));
    png[20 + i] = static_cast<unsigned char>(h >> (24 - 8 * i));
  }
  const uLong crc = crc32(0, png.data() + 12, 17);
  for (int i = 0; i < 4; ++i) png[29 + i] = static_cast<unsigned char>(crc >> (24 - 8 * i));
  return png;
}

// A 3x2 RGB image with distinct bytes, and its PNG encoding.
Bitmap SmallRgb(Px& png) {
  Bitmap b;
  Create(b, 3, 2, 3);
  for (std::size_t i = 0; i < b.data.size(); ++i) b.data[i] = static_cast<unsigned char>(i * 13);
  EXPECT_TRUE(SaveBitmapEncode(b, png));
  return b;
}

}  // namespace

TEST(HostPng, RgbAndRgbaRoundTrip) {
  Px png;
  const Bitmap rgb = SmallRgb(png);
  Bitmap back;
  ASSERT_TRUE(Decode(png, back));
  EXPECT_EQ(back.width * 10 + back.format, 33);
  EXPECT_EQ(back.data, rgb.data);
  BitmapA withAlpha;
  ASSERT_TRUE(Decode(png, withAlpha));
  EXPECT_EQ(Bytes(withAlpha, 1, 0), (Px{39, 52, 65, 255}));

  BitmapA rgba;
  Create(rgba, 2, 2, 3);
  rgba.data = {255, 0, 0, 255, 10, 200, 30, 128, 0, 0, 0, 0, 90, 80, 70, 1};
  ASSERT_TRUE(SaveBitmapAEncode(rgba, png));
  BitmapA backA;
  Bitmap dropped;  // alpha dropped, colour kept
  ASSERT_TRUE(Decode(png, backA) && Decode(png, dropped));
  EXPECT_EQ(backA.data, rgba.data);
  EXPECT_EQ(Bytes(dropped, 1, 0), (Px{10, 200, 30}));

  Bitmap grey;
  Create(grey, 2, 2, 1);
  EXPECT_FALSE(SaveBitmapEncode(grey, png));  // only RGB(A) is encoded
  EXPECT_FALSE(SaveBitmapEncode(Bitmap(), png));
}

TEST(HostPng, DecodesEveryColourTypeToRgba) {
  // Each fixture is 2x1; want holds the RGBA of both pixels.
  struct Case {
    const char* name;
    PngLayout layout;
    Px want;
  } cases[] = {
      {"grey 8",
       {2, 1, PNG_COLOR_TYPE_GRAY, 8, {{64, 255}}},
       {64, 64, 64, 255, 255, 255, 255, 255}},
      {"grey 1", {2, 1, PNG_COLOR_TYPE_GRAY, 1, {{0x80}}}, {255, 255, 255, 255, 0, 0, 0, 255}},
      {"grey 4",
       {2, 1, PNG_COLOR_TYPE_GRAY, 4, {{0x8F}}},
       {136, 136, 136, 255, 255, 255, 255, 255}},
      {"grey 16",
       {2, 1, PNG_COLOR_TYPE_GRAY, 16, {{0x80, 0x80, 0xFF, 0xFF}}},
       {128, 128, 128, 255, 255, 255, 255, 255}},
      {"grey alpha",
       {2, 1, PNG_COLOR_TYPE_GRAY_ALPHA, 8, {{100, 255, 7, 0}}},
       {100, 100, 100, 255, 0, 0, 0, 0}},
      {"rgb 16",
       {2, 1, PNG_COLOR_TYPE_RGB, 16, {{0xFF, 0xFF, 0, 0, 0x80, 0x80, 0, 0, 0, 0, 0, 0}}},
       {255, 0, 128, 255, 0, 0, 0, 255}},
      {"palette",
       {2, 1, PNG_COLOR_TYPE_PALETTE, 8, {{1, 0}}, {{10, 20, 30}, {200, 100, 50}}, {0, 128}},
       {200, 100, 50, 128, 0, 0, 0, 0}},
      {"palette 2-bit",
       {2, 1, PNG_COLOR_TYPE_PALETTE, 2, {{0x90}}, {{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}},
       {7, 8, 9, 255, 4, 5, 6, 255}},
      {"interlaced rgb",
       {2, 1, PNG_COLOR_TYPE_RGB, 8, {{1, 2, 3, 4, 5, 6}}, {}, {}, true},
       {1, 2, 3, 255, 4, 5, 6, 255}},
  };
  for (Case& c : cases) {
    SCOPED_TRACE(c.name);
    const Px png = WritePng(c.layout);
    BitmapA out;
    Bitmap rgb;
    ASSERT_TRUE(Decode(png, out) && Decode(png, rgb));
    ASSERT_EQ(out.width * 10 + out.height, 21);
    EXPECT_EQ(out.format, 3);
    if (c.want[7] == 0)  // a clear pixel may have any colour
      for (int i = 4; i < 7; ++i) c.want[i] = out.data.at(i);
    EXPECT_EQ(out.data, c.want);
    EXPECT_EQ(Bytes(rgb, 0, 0), Px(c.want.begin(), c.want.begin() + 3));
  }
}

TEST(HostPng, RefusesBrokenInputAndLeavesTheOutput) {
  Px good;
  SmallRgb(good);
  std::vector<std::pair<std::string, Px>> bad = {
      {"empty", Px()},
      {"not a png", Px(64, 'x')},
      {"signature only", Px(good.begin(), good.begin() + 8)},
      {"too wide", WithHeaderSize(good, kMaxBitmapSide + 1, 2)},
      {"too tall", WithHeaderSize(good, 3, 0x7FFFFFFF)},
      {"zero size", WithHeaderSize(good, 0, 2)},
      {"huge claim, few bytes", WithHeaderSize(good, kMaxBitmapSide, kMaxBitmapSide)},
      {"larger than its data", WithHeaderSize(good, 3, 9)},
  };
  Px header = good;
  header[17] ^= 1;  // checksum no longer matches
  bad.push_back({"bad header checksum", header});
  // Every cut before the end chunk loses pixel data or its checksum.
  const std::size_t iend = good.size() - 12;
  for (std::size_t n = 1; n < iend; ++n)
    bad.push_back({"cut at " + std::to_string(n), Px(good.begin(), good.begin() + n)});
  // Damage anywhere in the pixel data chunk, including its length and checksum.
  const std::size_t idat = std::string(good.begin(), good.end()).find("IDAT") - 4;
  const std::size_t idatEnd = idat + 12 + ((good[idat + 2] << 8) | good[idat + 3]);
  ASSERT_LT(idatEnd, good.size());
  for (std::size_t i = idat; i < idatEnd; ++i) {
    Px flipped = good;
    flipped[i] ^= 0x55;
    bad.push_back({"flipped byte " + std::to_string(i), flipped});
  }
  // A marker output that a refused decode must leave alone.
  BitmapA marker;
  Create(marker, 1, 1, 1);
  marker.data = {42, 43};
  g_watchAllocations = true;
  for (const auto& b : bad) {
    SCOPED_TRACE(b.first);
    BitmapA outA = marker;
    EXPECT_FALSE(Decode(b.second, outA));
    EXPECT_EQ(outA.data, (Px{42, 43}));
    Bitmap out;
    Create(out, 1, 1, 1);
    EXPECT_FALSE(Decode(b.second, out));
    EXPECT_EQ(out.width, 1);
  }
  g_watchAllocations = false;
  EXPECT_LT(g_largestAllocation, std::size_t(1) << 24);
  EXPECT_FALSE(LoadBitmapADecode(nullptr, 100, marker));
  EXPECT_FALSE(LoadBitmapADecode(good.data(), 0, marker));
  EXPECT_FALSE(LoadBitmapADecode(good.data(), -5, marker));
  EXPECT_EQ(marker.data, (Px{42, 43}));
  ASSERT_TRUE(Decode(good, marker));
}

TEST(HostPng, HighlyCompressedLegitimateImagesAreAccepted) {
  // 2000 x 2000 one-bit grey compresses about a thousandfold: the plausibility
  // check must still let it through.
  PngLayout layout{2000, 2000, PNG_COLOR_TYPE_GRAY, 1, {}};
  layout.rows.assign(2000, Px(250, 0));
  layout.rows[1999][249] = 0x01;
  const Px png = WritePng(layout);
  ASSERT_LT(png.size(), 20000u);
  BitmapA out;
  ASSERT_TRUE(Decode(png, out));
  EXPECT_EQ(out.width, 2000);
  EXPECT_EQ(Bytes(out, 1999, 1999), (Px{255, 255, 255, 255}));
  EXPECT_EQ(Bytes(out, 1998, 1999), (Px{0, 0, 0, 255}));
}
