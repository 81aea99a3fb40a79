#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <functional>
#include <map>
#include <set>
#include <string>

#include "vornhost/Filter.h"

namespace {

typedef std::pair<int, int> XY;

// Records every write the drawing code attempts, including refused ones.
class RecordingFilter : public Filter {
 public:
  RecordingFilter(int w, int h) : m_w(w), m_h(h) {}
  bool WritePixel(int x, int y, ColorA&) override { return Record(x, y, 1.0); }
  bool WritePixelI(int x, int y, ColorA&, double i) override { return Record(x, y, i); }
  bool ReadPixel(ColorA& c, int x, int y) const override {
    c = ColorA(0, 0, 0, 1);
    return Inside(x, y);
  }
  int GetWidth() const override { return m_w; }
  int GetHeight() const override { return m_h; }
  bool Clear() override { return true; }
  bool Create(int, int) override { return false; }

  int outside = 0;
  std::map<XY, int> writes;       // number of writes per pixel
  std::map<XY, double> coverage;  // summed intensity per pixel

  std::set<XY> Pixels() const {
    std::set<XY> s;
    for (const auto& w : writes) s.insert(w.first);
    return s;
  }
  double At(int x, int y) const {
    auto it = coverage.find({x, y});
    return it == coverage.end() ? 0.0 : it->second;
  }

 private:
  bool Inside(int x, int y) const { return x >= 0 && y >= 0 && x < m_w && y < m_h; }
  bool Record(int x, int y, double i) {
    if (!Inside(x, y)) {
      ++outside;
      return false;
    }
    ++writes[{x, y}];
    coverage[{x, y}] += i;
    return true;
  }
  int m_w, m_h;
};

const ColorA kWhite(1, 1, 1, 1);

struct Shape {
  std::string name;
  std::function<bool(Filter&)> draw;
};

std::vector<Shape> FarReachingShapes() {
  return {
      {"diagonal across int range",
       [](Filter& f) { return DrawLine(f, INT_MIN, INT_MIN, INT_MAX, INT_MAX, kWhite); }},
      {"long shallow line",
       [](Filter& f) { return DrawLine(f, -1000000000, 7, 1000000000, 8, kWhite); }},
      {"long steep line", [](Filter& f) { return DrawLine(f, 5, INT_MIN, 6, INT_MAX, kWhite); }},
      {"line left of image", [](Filter& f) { return DrawLine(f, -100, -100, -5, 300, kWhite); }},
      {"huge far arc", [](Filter& f) { return DrawArc(f, INT_MAX, 0, 0, INT_MAX, kWhite); }},
      {"wide arc through image", [](Filter& f) { return DrawArc(f, -1000, 7, 1000, -3, kWhite); }},
      {"arc leaving at the top", [](Filter& f) { return DrawArc(f, 10, -5, 30, 40, kWhite); }},
      {"arc with negative extent", [](Filter& f) { return DrawArc(f, 25, 20, -30, -2, kWhite); }},
      {"huge circle", [](Filter& f) { return DrawCircle(f, 10, 7, 1000000000, kWhite, false); }},
      {"huge filled circle",
       [](Filter& f) { return DrawCircle(f, 10, 7, 1000000000, kWhite, true); }},
      {"extreme circle",
       [](Filter& f) { return DrawCircle(f, INT_MIN, 0, INT_MAX, kWhite, true); }},
      {"circle over corner", [](Filter& f) { return DrawCircle(f, -2, -2, 6, kWhite, false); }},
      {"filled circle over edge", [](Filter& f) { return DrawCircle(f, 19, 8, 5, kWhite, true); }},
  };
}

// Pixel distance of (x, y) from the ellipse with centre c and radii rx, ry.
double EllipseDistance(int x, int y, XY c, double rx, double ry) {
  const double dx = (x - c.first) / rx, dy = (y - c.second) / ry;
  return std::fabs(std::sqrt(dx * dx + dy * dy) - 1.0) * std::min(rx, ry);
}

}  // namespace

TEST(HostDrawing, NothingIsWrittenOutsideTheImageOrTwice) {
  for (bool aa : {false, true}) {
    for (const Shape& s : FarReachingShapes()) {
      SCOPED_TRACE(s.name + (aa ? " (anti-aliased)" : ""));
      RecordingFilter rec(20, 15);
      AntiAliasFilter smooth = AntiAlias(rec);
      ASSERT_TRUE(aa ? s.draw(smooth) : s.draw(rec));
      EXPECT_EQ(rec.outside, 0);
      for (const auto& w : rec.writes)
        EXPECT_EQ(w.second, 1) << w.first.first << "," << w.first.second;

      // Drawn into a view, the rest of the picture stays as it was.
      Bitmap big;
      Create(big, 40, 35, 3);
      auto f = CreateFilter(big);
      CropFilter view = Crop(*f, 10, 10, 30, 25);
      AntiAliasFilter smoothView = AntiAlias(view);
      ASSERT_TRUE(aa ? s.draw(smoothView) : s.draw(view));
      for (int y = 0; y < 35; ++y)
        for (int x = 0; x < 40; ++x) {
          if (x >= 10 && x < 30 && y >= 10 && y < 25) continue;
          ASSERT_EQ(big.Pixel(x, y)[0], 0) << x << "," << y;
        }
    }
  }
  RecordingFilter rec(5, 5);
  EXPECT_FALSE(DrawCircle(rec, 2, 2, -1, kWhite, true));
  RecordingFilter none(0, 0);
  EXPECT_FALSE(DrawLine(none, 0, 0, 3, 3, kWhite));
}

TEST(HostDrawing, PlainLinesHitTheExpectedPixels) {
  struct Case {
    int x1, y1, x2, y2;
    std::set<XY> pixels;
  } cases[] = {
      {0, 0, 4, 4, {{0, 0}, {1, 1}, {2, 2}, {3, 3}, {4, 4}}},
      {4, 4, 0, 0, {{0, 0}, {1, 1}, {2, 2}, {3, 3}, {4, 4}}},
      {1, 0, 3, 4, {{1, 0}, {2, 1}, {2, 2}, {3, 3}, {3, 4}}},
      {-5, 2, 100, 2, {{0, 2}, {1, 2}, {2, 2}, {3, 2}, {4, 2}, {5, 2}}},
      {3, 3, 3, 3, {{3, 3}}},
      {-1, 0, -1, 5, {}},
  };
  for (const Case& c : cases) {
    RecordingFilter rec(6, 5);
    DrawLine(rec, c.x1, c.y1, c.x2, c.y2, kWhite);
    EXPECT_EQ(rec.Pixels(), c.pixels) << c.x1 << "," << c.y1 << " " << c.x2 << "," << c.y2;
  }
}

TEST(HostDrawing, AntiAliasedLinesSpreadFullCoverage) {
  RecordingFilter rec(12, 8);
  DrawLine(AntiAlias(rec), 0, 1, 10, 6, kWhite);
  EXPECT_DOUBLE_EQ(rec.At(0, 1), 1.0);
  EXPECT_DOUBLE_EQ(rec.At(10, 6), 1.0);
  for (int x = 0; x <= 10; ++x) {
    double sum = 0;
    for (int y = 0; y < 8; ++y) sum += rec.At(x, y);
    EXPECT_NEAR(sum, 1.0, 1e-9) << x;
  }
  EXPECT_NEAR(rec.At(1, 1), 0.5, 1e-9);
  EXPECT_NEAR(rec.At(1, 2), 0.5, 1e-9);
  EXPECT_EQ(rec.At(11, 6), 0.0);

  // A 45 degree line is exact; its pixels get full intensity.
  RecordingFilter diag(5, 5);
  DrawLine(AntiAlias(diag), 4, 0, 0, 4, kWhite);
  EXPECT_EQ(diag.Pixels(), (std::set<XY>{{4, 0}, {3, 1}, {2, 2}, {1, 3}, {0, 4}}));
  for (const auto& c : diag.coverage) EXPECT_DOUBLE_EQ(c.second, 1.0);
}

TEST(HostDrawing, ArcsAreGaplessQuarterEllipses) {
  struct Case {
    int x1, y1, x2, y2;
  } cases[] = {{10, 1, 0, 10},  // top-left, as the scroll bar caps use it
               {1, 0, 10, 9},
               {3, 12, 14, 2},
               {14, 12, 2, 2},
               {2, 0, 13, 13}};
  for (bool aa : {false, true}) {
    for (const Case& c : cases) {
      SCOPED_TRACE(std::to_string(c.x1) + "," + std::to_string(c.y1) + " " + std::to_string(c.x2) +
                   "," + std::to_string(c.y2) + (aa ? " aa" : ""));
      RecordingFilter rec(16, 16);
      if (aa)
        DrawArc(AntiAlias(rec), c.x1, c.y1, c.x2, c.y2, kWhite);
      else
        DrawArc(rec, c.x1, c.y1, c.x2, c.y2, kWhite);
      const XY centre(c.x1, c.y2);
      const double rx = std::abs(c.x2 - c.x1), ry = std::abs(c.y2 - c.y1);
      EXPECT_DOUBLE_EQ(rec.At(c.x1, c.y1), 1.0);
      EXPECT_DOUBLE_EQ(rec.At(c.x2, c.y2), 1.0);
      std::set<int> cols, rows;
      for (const auto& p : rec.coverage) {
        const int x = p.first.first, y = p.first.second;
        // On the right side of the centre in both directions...
        EXPECT_GE((x - c.x1) * (c.x2 - c.x1), 0) << x << "," << y;
        EXPECT_GE((y - c.y2) * (c.y1 - c.y2), 0) << x << "," << y;
        // ...and close to the curve.
        EXPECT_LT(EllipseDistance(x, y, centre, rx, ry), aa ? 1.5 : 0.75) << x << "," << y;
        cols.insert(x);
        rows.insert(y);
      }
      EXPECT_EQ(cols.size(), static_cast<std::size_t>(rx + 1));
      EXPECT_EQ(rows.size(), static_cast<std::size_t>(ry + 1));
    }
  }
  RecordingFilter flat(10, 10);
  DrawArc(flat, 2, 3, 7, 3, kWhite);  // no height: a straight line
  EXPECT_EQ(flat.Pixels().size(), 6u);
  EXPECT_EQ(flat.At(5, 3), 1.0);
}

TEST(HostDrawing, CirclesAreSymmetricAndFillsCoverOutlines) {
  const int cx = 10, cy = 10, r = 6;
  RecordingFilter outline(21, 21);
  DrawCircle(outline, cx, cy, r, kWhite, false);
  RecordingFilter filled(21, 21);
  DrawCircle(filled, cx, cy, r, kWhite, true);
  RecordingFilter smooth(21, 21);
  DrawCircle(AntiAlias(smooth), cx, cy, r, kWhite, false);
  RecordingFilter smoothFilled(21, 21);
  DrawCircle(AntiAlias(smoothFilled), cx, cy, r, kWhite, true);
  for (const RecordingFilter* rec : {&outline, &filled, &smooth, &smoothFilled}) {
    for (const auto& p : rec->coverage) {
      const int dx = p.first.first - cx, dy = p.first.second - cy;
      for (XY m : {XY(-dx, dy), XY(dx, -dy), XY(dy, dx), XY(-dy, -dx)})
        EXPECT_NEAR(rec->At(cx + m.first, cy + m.second), p.second, 1e-9) << dx << "," << dy;
    }
  }
  for (XY p : {XY(cx + r, cy), XY(cx, cy - r), XY(cx - r, cy)}) {
    EXPECT_EQ(outline.At(p.first, p.second), 1.0);
    EXPECT_EQ(smooth.At(p.first, p.second), 1.0);
  }
  EXPECT_EQ(outline.At(cx, cy), 0.0);
  EXPECT_EQ(smooth.At(cx, cy), 0.0);
  EXPECT_EQ(filled.At(cx, cy), 1.0);
  EXPECT_EQ(smoothFilled.At(cx, cy), 1.0);
  for (const auto& p : outline.coverage) EXPECT_EQ(filled.At(p.first.first, p.first.second), 1.0);
  const double area = M_PI * r * r;
  EXPECT_NEAR(static_cast<double>(filled.coverage.size()), area, 2 * M_PI * r);
  double smoothArea = 0;
  for (const auto& p : smoothFilled.coverage) smoothArea += p.second;
  EXPECT_NEAR(smoothArea, area, 2.0);

  RecordingFilter dot(5, 5);
  DrawCircle(dot, 2, 2, 0, kWhite, false);
  EXPECT_EQ(dot.Pixels(), (std::set<XY>{{2, 2}}));
}
