#include <gtest/gtest.h>
#include <wx/image.h>

#include <climits>
#include <cmath>
#include <functional>
#include <memory>
#include <string>

#include "vornhost/Filter.h"

namespace {

// Every kind of filter over its own image, so one test covers all of them.
struct FilterKind {
  std::string name;
  bool hasAlpha;
  bool grey;
};

class Holder {
 public:
  explicit Holder(const FilterKind& k, int w, int h) {
    if (k.name == "wxImage") {
      img.Create(w, h, true);
      filter = CreateFilter(img);
    } else if (k.name.find("BitmapA") == 0) {
      Create(bmpA, w, h, k.grey ? 1 : 3);
      filter = CreateFilter(bmpA);
    } else {
      Create(bmp, w, h, k.grey ? 1 : 3);
      filter = CreateFilter(bmp);
    }
  }
  Bitmap bmp;
  BitmapA bmpA;
  wxImage img;
  std::unique_ptr<Filter> filter;
};

const FilterKind kKinds[] = {{"Bitmap", false, false},
                             {"Bitmap grey", false, true},
                             {"BitmapA", true, false},
                             {"BitmapA grey", true, true},
                             {"wxImage", false, false}};

ColorA At(const Filter& f, int x, int y) {
  ColorA c(-1, -1, -1, -1);
  EXPECT_TRUE(f.ReadPixel(c, x, y)) << x << "," << y;
  return c;
}

// Fills a 4-channel image with R = x/10, G = y/10, opaque.
void Number(Filter& f) {
  for (int y = 0; y < f.GetHeight(); ++y)
    for (int x = 0; x < f.GetWidth(); ++x) {
      ColorA c(x / 10.0, y / 10.0, 0.0, 1.0);
      f.WritePixel(x, y, c);
    }
}
// (x, y) that Number wrote at a pixel.
std::pair<int, int> Origin(const Filter& f, int x, int y) {
  const ColorA c = At(f, x, y);
  return {static_cast<int>(c.r * 10 + 0.5), static_cast<int>(c.g * 10 + 0.5)};
}

}  // namespace

TEST(HostFilter, EveryKindReadsWritesAndBlends) {
  for (const FilterKind& k : kKinds) {
    SCOPED_TRACE(k.name);
    Holder h(k, 4, 3);
    Filter& f = *h.filter;
    EXPECT_EQ(f.GetWidth(), 4);
    EXPECT_EQ(f.GetHeight(), 3);
    ColorA c(0.2, 0.2, 0.2, 0.4);
    ASSERT_TRUE(f.WritePixel(3, 2, c));
    const ColorA back = At(f, 3, 2);
    EXPECT_NEAR(back.r, 51 / 255.0, 1e-12);
    EXPECT_DOUBLE_EQ(back.a, k.hasAlpha ? 0.4 : 1.0);
    for (auto xy : std::vector<std::pair<int, int>>{{-1, 0}, {4, 0}, {0, 3}, {INT_MAX, INT_MIN}}) {
      EXPECT_FALSE(f.WritePixel(xy.first, xy.second, c));
      EXPECT_FALSE(f.ReadPixel(c, xy.first, xy.second));
      EXPECT_FALSE(f.WritePixelI(xy.first, xy.second, c, 0.5));
    }
    // Half of white over an opaque black pixel gives mid grey.
    ColorA black(0, 0, 0, 1), white(1, 1, 1, 1);
    f.WritePixel(0, 0, black);
    ASSERT_TRUE(f.WritePixelI(0, 0, white, 0.5));
    EXPECT_NEAR(At(f, 0, 0).r, 127 / 255.0, 1e-12);
    EXPECT_DOUBLE_EQ(At(f, 0, 0).a, 1.0);
    ASSERT_TRUE(f.WritePixelI(0, 0, white, 0.0));  // no change at zero intensity
    EXPECT_NEAR(At(f, 0, 0).r, 127 / 255.0, 1e-12);
    ASSERT_TRUE(Clear(f, white));
    EXPECT_EQ(At(f, 1, 1), white);
    ASSERT_TRUE(f.Clear());
    EXPECT_EQ(At(f, 1, 1).r, 0.0);
    ASSERT_TRUE(f.Create(2, 5));
    EXPECT_EQ(f.GetWidth(), 2);
    EXPECT_EQ(f.GetHeight(), 5);
    EXPECT_FALSE(f.Create(0, 5));
  }
}

TEST(HostFilter, BlendingOverTransparencyKeepsTheColour) {
  BitmapA a;
  Create(a, 1, 1, 3);  // transparent black
  auto f = CreateFilter(a);
  ColorA red(1, 0, 0, 1);
  f->WritePixelI(0, 0, red, 0.5);
  EXPECT_EQ(a.data, (std::vector<unsigned char>{255, 0, 0, 127}));
}

TEST(HostFilter, WxImageFilterDoesNotWriteIntoSharedCopies) {
  wxImage img(2, 2, true);
  wxImage shared = img;  // shares the pixel data
  auto f = CreateFilter(img);
  ColorA white(1, 1, 1, 1);
  f->WritePixel(1, 1, white);
  EXPECT_EQ(img.GetRed(1, 1), 255);
  EXPECT_EQ(shared.GetRed(1, 1), 0);
  wxImage invalid;
  auto g = CreateFilter(invalid);
  EXPECT_EQ(g->GetWidth(), 0);
  EXPECT_FALSE(g->WritePixel(0, 0, white));
}

TEST(HostFilter, CropIsAViewOfTheRectangle) {
  BitmapA big;
  Create(big, 6, 5, 3);
  auto f = CreateFilter(big);
  Number(*f);
  CropFilter view = Crop(*f, 2, 1, 5, 3);
  EXPECT_EQ(view.GetWidth(), 3);
  EXPECT_EQ(view.GetHeight(), 2);
  EXPECT_EQ(Origin(view, 0, 0), std::make_pair(2, 1));
  EXPECT_EQ(Origin(view, 2, 1), std::make_pair(4, 2));
  ColorA c;
  EXPECT_FALSE(view.ReadPixel(c, 3, 0));  // inside the parent, outside the view
  EXPECT_FALSE(view.ReadPixel(c, -1, 0));
  ASSERT_TRUE(view.Clear());
  EXPECT_EQ(At(*f, 2, 1), ColorA(0, 0, 0, 0));
  EXPECT_EQ(Origin(*f, 5, 1), std::make_pair(5, 1));  // right of the view: untouched
  EXPECT_EQ(Origin(*f, 2, 3), std::make_pair(2, 3));  // below: untouched
  EXPECT_FALSE(view.Create(4, 4));
  EXPECT_TRUE(view.Create(3, 2));

  // A view reaching past the parent: only the parent's part is accessible.
  CropFilter edge = Crop(*f, -2, 4, 3, 9);
  EXPECT_EQ(edge.GetWidth(), 5);
  ColorA white(1, 1, 1, 1);
  EXPECT_FALSE(edge.WritePixel(1, 0, white));  // parent (-1, 4)
  EXPECT_TRUE(edge.WritePixel(2, 0, white));   // parent (0, 4)
  EXPECT_FALSE(edge.WritePixel(2, 1, white));  // parent (0, 5)
  EXPECT_EQ(At(*f, 0, 4), white);
  CropFilter inverted = Crop(*f, 4, 4, 1, 1);
  EXPECT_EQ(inverted.GetWidth(), 0);
  EXPECT_FALSE(inverted.WritePixel(0, 0, white));
  // Offsets that would overflow an int are simply outside.
  CropFilter far = Crop(*f, INT_MAX - 1, 0, INT_MAX, 1);
  EXPECT_FALSE(far.WritePixel(0, 0, white));
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
  const std::vector<unsigned char> original = b.data;
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

  DrawLine(undo, 0, 2, 2, 2, ColorA(1, 1, 1, 1));
  undo.Initialize();
  EXPECT_TRUE(undo.GetRecords().empty());
  undo.UnDo();
  EXPECT_EQ(b.Pixel(2, 2)[0], 255);  // forgotten changes stay
  undo.WritePixel(0, 0, red);
  ASSERT_TRUE(undo.Create(2, 2));
  EXPECT_TRUE(undo.GetRecords().empty());
}

TEST(HostFilter, CopyAndFlipGiveTheSourceSize) {
  BitmapA src;
  Create(src, 4, 3, 3);
  auto s = CreateFilter(src);
  Number(*s);
  struct Case {
    const char* name;
    std::function<bool(Filter&, const Filter&)> op;
    std::pair<int, int> at00;
  } cases[] = {{"Copy", [](Filter& d, const Filter& f) { return Copy(d, f); }, {0, 0}},
               {"FlipVert", [](Filter& d, const Filter& f) { return FlipVert(d, f); }, {0, 2}},
               {"FlipHoz", [](Filter& d, const Filter& f) { return FlipHoz(d, f); }, {3, 0}}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    wxImage img(1, 7);
    auto d = CreateFilter(img);
    ASSERT_TRUE(c.op(*d, *s));
    EXPECT_EQ(img.GetWidth(), 4);
    EXPECT_EQ(img.GetHeight(), 3);
    EXPECT_EQ(Origin(*d, 0, 0), c.at00);
    EXPECT_EQ(Origin(*d, 1, 1).second, 1);
    // In place, through the same filter.
    BitmapA self = src;
    auto sf = CreateFilter(self);
    ASSERT_TRUE(c.op(*sf, *sf));
    EXPECT_EQ(Origin(*sf, 0, 0), c.at00);
    EXPECT_EQ(Origin(*sf, 3, 2), std::make_pair(3 - c.at00.first, 2 - c.at00.second));
  }
  // A view cannot be resized: the overlap is copied, the rest kept.
  BitmapA big;
  Create(big, 6, 6, 3);
  auto bf = CreateFilter(big);
  ASSERT_TRUE(Clear(*bf, ColorA(1, 1, 1, 1)));
  ASSERT_TRUE(Copy(Crop(*bf, 4, 4, 6, 6), *s));
  EXPECT_EQ(Origin(*bf, 5, 5), std::make_pair(1, 1));
  EXPECT_EQ(At(*bf, 3, 3), ColorA(1, 1, 1, 1));
  BitmapA empty;
  auto ef = CreateFilter(empty);
  EXPECT_FALSE(Copy(*bf, *ef));
}

TEST(HostFilter, BlitClipsAtEveryEdge) {
  BitmapA top;
  Create(top, 3, 3, 3);
  auto tf = CreateFilter(top);
  Number(*tf);
  struct Case {
    int x, y, changed;
  } cases[] = {{1, 1, 9}, {-2, -1, 2}, {3, 2, 2}, {-3, 0, 0}, {4, 0, 0}, {INT_MIN, INT_MAX, 0}};
  for (const Case& c : cases) {
    Bitmap dst;
    Create(dst, 4, 4, 3);
    auto df = CreateFilter(dst);
    ASSERT_TRUE(Clear(*df, ColorA(1, 1, 1, 1)));
    ASSERT_TRUE(Blit(*df, *tf, c.x, c.y));
    int changed = 0;
    for (int y = 0; y < 4; ++y)
      for (int x = 0; x < 4; ++x) {
        if (At(*df, x, y).b == 1.0) continue;
        ++changed;
        EXPECT_EQ(Origin(*df, x, y), std::make_pair(x - c.x, y - c.y));
      }
    EXPECT_EQ(changed, c.changed) << c.x << "," << c.y;
  }
}

TEST(HostFilter, MaskedBlitWeighsByMaskBrightnessAndAlpha) {
  Bitmap dst;
  Create(dst, 4, 1, 3);
  auto df = CreateFilter(dst);
  BitmapA src;
  Create(src, 4, 1, 3);
  auto sf = CreateFilter(src);
  ASSERT_TRUE(Clear(*sf, ColorA(1, 1, 1, 1)));
  BitmapA mask;
  Create(mask, 3, 1, 3);  // one pixel narrower than src
  auto mf = CreateFilter(mask);
  ColorA full(1, 1, 1, 1), grey(0.6, 0.6, 0.6, 1), halfAlpha(1, 1, 1, 0.5), dark(0, 0, 0, 1);
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
  BitmapA src;
  Create(src, 3, 3, 3);
  auto sf = CreateFilter(src);
  Number(*sf);
  struct Case {
    double degrees;
    int x, y;  // where the source pixel (2, 1) lands
  } cases[] = {{90, 1, 0}, {180, 0, 1}, {270, 1, 2}, {-90, 1, 2}, {360, 2, 1}, {450, 1, 0}};
  for (const Case& c : cases) {
    Bitmap dst;
    auto df = CreateFilter(dst);
    ASSERT_TRUE(Rotate(*df, *sf, c.degrees));
    ASSERT_EQ(dst.width, 3);
    ASSERT_EQ(dst.height, 3);
    EXPECT_EQ(Origin(*df, c.x, c.y), std::make_pair(2, 1)) << c.degrees;
    EXPECT_EQ(Origin(*df, 1, 1), std::make_pair(1, 1)) << c.degrees;
  }
  // In place, and an arbitrary angle leaves the corners uncovered.
  ASSERT_TRUE(Rotate(*sf, *sf, 180));
  EXPECT_EQ(Origin(*sf, 0, 0), std::make_pair(2, 2));
  BitmapA wide;
  Create(wide, 9, 9, 3);
  auto wf = CreateFilter(wide);
  Clear(*wf, ColorA(1, 1, 1, 1));
  BitmapA out;
  auto of = CreateFilter(out);
  ASSERT_TRUE(Rotate(*of, *wf, 45));
  EXPECT_EQ(At(*of, 0, 0).a, 0.0);
  EXPECT_EQ(At(*of, 4, 4), ColorA(1, 1, 1, 1));
  EXPECT_FALSE(Rotate(*of, *wf, std::nan("")));
}
