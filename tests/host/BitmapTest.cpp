#include <gtest/gtest.h>

#include <climits>
#include <vector>

#include "HostTestUtil.h"
#include "vornhost/Bitmap.h"

TEST(HostBitmap, CreateRefusesBadSizesAndFormats) {
  struct Case {
    int w, h, format;
    bool ok;
  } cases[] = {{1, 1, 3, true},       {5, 2, 1, true},  {0, 4, 3, false},
               {4, -1, 3, false},     {4, 4, 2, false}, {kMaxBitmapSide + 1, 1, 3, false},
               {1, INT_MAX, 1, false}};
  for (const Case& c : cases) {
    BitmapA b;
    Create(b, 3, 3, 1);  // must be emptied on failure
    EXPECT_EQ(Create(b, c.w, c.h, c.format), c.ok) << c.w << "x" << c.h << " f" << c.format;
    EXPECT_EQ(b.data, Px(c.ok ? std::size_t(c.w) * c.h * (c.format == 1 ? 2 : 4) : 0, 0));
    EXPECT_EQ(b.IsEmpty(), !c.ok);
    EXPECT_EQ(b.format, c.ok ? c.format : 3);
  }
}

TEST(HostBitmap, SetTruncatesAndClampsChannels) {
  struct Case {
    double v;
    unsigned char byte;
  } cases[] = {{0.0, 0},   {0.2, 51},  {0.5, 127}, {0.7, 178},      {0.999, 254},
               {1.0, 255}, {1.5, 255}, {-0.3, 0},  {1.0 / 255.0, 1}};
  for (const Case& c : cases) {
    BitmapA b;
    Create(b, 2, 2, 3);
    ASSERT_TRUE(Set(b, 1, 1, ColorA(c.v, c.v, c.v, c.v)));
    EXPECT_EQ(Bytes(b, 1, 1), Px(4, c.byte)) << c.v;
    EXPECT_EQ(Bytes(b, 0, 0), Px(4, 0));
  }
  // Grey formats store the mean of the colour channels.
  Bitmap grey;
  Create(grey, 2, 1, 1);
  ASSERT_TRUE(Set(grey, 1, 0, Color(0.2, 0.4, 0.9)));
  EXPECT_EQ(Bytes(grey, 1, 0), Px{127});
  BitmapA greyA;
  Create(greyA, 2, 1, 1);
  ASSERT_TRUE(Set(greyA, 0, 0, ColorA(0.2, 0.4, 0.9, 0.2)));
  EXPECT_EQ(Bytes(greyA, 0, 0), (Px{127, 51}));
  ColorA back;
  ASSERT_TRUE(Get(greyA, 0, 0, back));
  EXPECT_EQ(back, ColorA(127 / 255.0, 127 / 255.0, 127 / 255.0, 51 / 255.0));
  // Every byte value survives Get followed by Set.
  Bitmap rgb;
  Create(rgb, 1, 1, 3);
  for (int i = 0; i < 256; ++i) {
    Color c;
    rgb.data = Px(3, i);
    ASSERT_TRUE(Get(rgb, 0, 0, c) && Set(rgb, 0, 0, c));
    ASSERT_EQ(rgb.data, Px(3, i));
  }
}

TEST(HostBitmap, AccessOutsideOrOnInconsistentImagesFails) {
  Bitmap b;
  Create(b, 3, 2, 3);
  Color c;
  for (auto xy : std::vector<std::pair<int, int>>{{-1, 0}, {3, 0}, {0, 2}, {0, -1}, {INT_MIN, 0}}) {
    EXPECT_FALSE(Set(b, xy.first, xy.second, Color(1, 1, 1)));
    EXPECT_FALSE(Get(b, xy.first, xy.second, c));
  }
  EXPECT_EQ(b.data, Px(18, 0));
  // Fields that disagree with the buffer must not lead to reads past it.
  Bitmap broken = b, copy;
  broken.height = 50;
  EXPECT_FALSE(Set(broken, 0, 40, Color(1, 1, 1)));
  EXPECT_FALSE(ClearBitmap(broken, Color(1, 1, 1)));
  EXPECT_FALSE(Copy(copy, broken));
  broken.format = 2;
  broken.height = 2;
  EXPECT_FALSE(Get(broken, 0, 0, c));
  BitmapA a;
  EXPECT_FALSE(ConvertTo(a, broken));
}

TEST(HostBitmap, ConvertToBothWaysKeepsFormat) {
  BitmapA rgba;
  Create(rgba, 2, 1, 3);
  Set(rgba, 0, 0, ColorA(1, 0.5, 0.2, 0.4));
  Bitmap rgb;
  ASSERT_TRUE(ConvertTo(rgb, rgba));
  EXPECT_EQ(rgb.data, (Px{255, 127, 51, 0, 0, 0}));  // alpha dropped
  BitmapA back;
  ASSERT_TRUE(ConvertTo(back, rgb));
  EXPECT_EQ(back.data, (Px{255, 127, 51, 255, 0, 0, 0, 255}));

  Bitmap grey;
  Create(grey, 1, 2, 1);
  grey.data = {10, 200};
  BitmapA greyA;
  ASSERT_TRUE(ConvertTo(greyA, grey));
  EXPECT_EQ(greyA.format, 1);
  EXPECT_EQ(greyA.data, (Px{10, 255, 200, 255}));
  greyA.data[1] = 3;
  ASSERT_TRUE(ConvertTo(grey, greyA));
  EXPECT_EQ(grey.format, 1);
  EXPECT_EQ(grey.data, (Px{10, 200}));
}

TEST(HostBitmap, CropClipsToSource) {
  const Bitmap src = Numbered<Bitmap>(6, 4);
  struct Case {
    int x, y, w, h;
    bool ok;
    int ox = 0, oy = 0, ow = 0, oh = 0;  // expected origin in src and size
  } cases[] = {
      {1, 1, 2, 2, true, 1, 1, 2, 2},
      {-2, -1, 4, 3, true, 0, 0, 2, 2},
      {4, 2, 10, 10, true, 4, 2, 2, 2},
      {-5, -5, 20, 20, true, 0, 0, 6, 4},
      {6, 0, 2, 2, false},
      {-3, 0, 3, 4, false},
      {0, 0, 0, 3, false},
      {INT_MAX - 1, 0, INT_MAX, 2, false},
      {INT_MIN, 0, INT_MAX, 4, false},
  };
  for (const Case& c : cases) {
    Bitmap dst = Numbered<Bitmap>(1, 1);
    EXPECT_EQ(Crop(dst, src, c.x, c.y, c.w, c.h), c.ok) << c.x << "," << c.y;
    if (!c.ok) {
      EXPECT_EQ(dst.width, 1);  // unchanged
      continue;
    }
    ASSERT_EQ(dst.width, c.ow);
    ASSERT_EQ(dst.height, c.oh);
    EXPECT_EQ(Bytes(dst, 0, 0), (Px{(unsigned char)c.ox, (unsigned char)c.oy, 7}));
    EXPECT_EQ(Bytes(dst, c.ow - 1, c.oh - 1),
              (Px{(unsigned char)(c.ox + c.ow - 1), (unsigned char)(c.oy + c.oh - 1), 7}));
  }
}

TEST(HostBitmap, BlitAComposesOver) {
  BitmapA dst, top;
  Create(dst, 3, 1, 3);
  ClearBitmap(dst, ColorA(0, 0, 1, 1));
  Set(dst, 2, 0, ColorA(0, 0, 0, 0));  // transparent pixel
  Create(top, 3, 1, 3);
  Set(top, 0, 0, ColorA(1, 0, 0, 0));    // invisible
  Set(top, 1, 0, ColorA(1, 0, 0, 0.6));  // partly covers blue
  Set(top, 2, 0, ColorA(1, 0, 0, 0.6));  // over nothing keeps its colour
  ASSERT_TRUE(Blit(dst, top, 0, 0));
  EXPECT_EQ(Bytes(dst, 0, 0), (Px{0, 0, 255, 255}));
  const Px mixed = Bytes(dst, 1, 0), alone = Bytes(dst, 2, 0);
  EXPECT_NEAR(mixed[0], 153, 1);
  EXPECT_NEAR(mixed[2], 102, 1);
  EXPECT_EQ(mixed[3], 255);
  EXPECT_EQ(alone[0], 255);
  EXPECT_EQ(alone[2], 0);
  EXPECT_NEAR(alone[3], 153, 1);
}
