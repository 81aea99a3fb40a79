#include <gtest/gtest.h>

#include <climits>
#include <cmath>
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
  std::set<XY> pixels;            // every pixel written
  double At(int x, int y) const {
    auto it = coverage.find({x, y});
    return it == coverage.end() ? 0.0 : it->second;
  }

 private:
  bool Inside(int x, int y) const { return x >= 0 && y >= 0 && x < m_w && y < m_h; }
  bool Record(int x, int y, double i) {
    if (!Inside(x, y)) return ++outside, false;
    ++writes[{x, y}];
    pixels.insert({x, y});
    coverage[{x, y}] += i;
    return true;
  }
  int m_w, m_h;
};

const ColorA kWhite(1, 1, 1, 1);

// A line ('l'), arc ('a'), circle ('c') or filled circle ('f') over the four numbers.
struct Shape {
  const char* name;
  char kind;
  int a, b, c, d;
};

bool Draw(Filter& f, const Shape& s, bool aa) {
  AntiAliasFilter smooth = AntiAlias(f);
  Filter& t = aa ? static_cast<Filter&>(smooth) : f;
  if (s.kind == 'l') return DrawLine(t, s.a, s.b, s.c, s.d, kWhite);
  if (s.kind == 'a') return DrawArc(t, s.a, s.b, s.c, s.d, kWhite);
  return DrawCircle(t, s.a, s.b, s.c, kWhite, s.kind == 'f');
}

// Pixel distance of (x, y) from the ellipse with centre c and radii rx, ry.
double EllipseDistance(int x, int y, XY c, double rx, double ry) {
  const double dx = (x - c.first) / rx, dy = (y - c.second) / ry;
  return std::fabs(std::sqrt(dx * dx + dy * dy) - 1.0) * std::min(rx, ry);
}

}  // namespace

TEST(HostDrawing, NothingIsWrittenOutsideTheImageOrTwice) {
  const Shape shapes[] = {
      {"diagonal across int range", 'l', INT_MIN, INT_MIN, INT_MAX, INT_MAX},
      {"long shallow line", 'l', -1000000000, 7, 1000000000, 8},
      {"long steep line", 'l', 5, INT_MIN, 6, INT_MAX},
      {"line left of image", 'l', -100, -100, -5, 300},
      {"huge far arc", 'a', INT_MAX, 0, 0, INT_MAX},
      {"wide arc through image", 'a', -1000, 7, 1000, -3},
      {"arc leaving at the top", 'a', 10, -5, 30, 40},
      {"arc with negative extent", 'a', 25, 20, -30, -2},
      {"huge circle", 'c', 10, 7, 1000000000, 0},
      {"huge filled circle", 'f', 10, 7, 1000000000, 0},
      {"extreme circle", 'f', INT_MIN, 0, INT_MAX, 0},
      {"circle over corner", 'c', -2, -2, 6, 0},
      {"filled circle over edge", 'f', 19, 8, 5, 0},
  };
  for (bool aa : {false, true}) {
    for (const Shape& s : shapes) {
      SCOPED_TRACE(std::string(s.name) + (aa ? " (anti-aliased)" : ""));
      RecordingFilter rec(20, 15);
      ASSERT_TRUE(Draw(rec, s, aa));
      EXPECT_EQ(rec.outside, 0);
      for (const auto& w : rec.writes)
        EXPECT_EQ(w.second, 1) << w.first.first << "," << w.first.second;
    }
  }
  RecordingFilter rec(5, 5), none(0, 0);
  EXPECT_FALSE(DrawCircle(rec, 2, 2, -1, kWhite, true));
  EXPECT_FALSE(DrawLine(none, 0, 0, 3, 3, kWhite));
}

TEST(HostDrawing, LinesHitTheExpectedPixels) {
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
    EXPECT_EQ(rec.pixels, c.pixels) << c.x1 << "," << c.y1 << " " << c.x2 << "," << c.y2;
  }
  // Anti-aliased, every column gets full coverage in total.
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
  EXPECT_EQ(diag.pixels, (std::set<XY>{{4, 0}, {3, 1}, {2, 2}, {1, 3}, {0, 4}}));
  for (const auto& c : diag.coverage) EXPECT_DOUBLE_EQ(c.second, 1.0);
}

TEST(HostDrawing, ArcsAreGaplessQuarterEllipses) {
  const Shape arcs[] = {{"top-left, as the scroll bar caps use it", 'a', 10, 1, 0, 10},
                        {"top-right", 'a', 1, 0, 10, 9},
                        {"bottom-right", 'a', 3, 12, 14, 2},
                        {"bottom-left", 'a', 14, 12, 2, 2},
                        {"tall top-right", 'a', 2, 0, 13, 13}};
  for (bool aa : {false, true}) {
    for (const Shape& s : arcs) {
      SCOPED_TRACE(std::string(s.name) + (aa ? " aa" : ""));
      RecordingFilter rec(16, 16);
      Draw(rec, s, aa);
      const double rx = std::abs(s.c - s.a), ry = std::abs(s.d - s.b);
      EXPECT_DOUBLE_EQ(rec.At(s.a, s.b), 1.0);
      EXPECT_DOUBLE_EQ(rec.At(s.c, s.d), 1.0);
      std::set<int> cols, rows;
      for (const auto& p : rec.coverage) {
        const int x = p.first.first, y = p.first.second;
        // On the right side of the centre (a, d) in both directions, and close to the curve.
        EXPECT_GE((x - s.a) * (s.c - s.a), 0) << x << "," << y;
        EXPECT_GE((y - s.d) * (s.b - s.d), 0) << x << "," << y;
        EXPECT_LT(EllipseDistance(x, y, XY(s.a, s.d), rx, ry), aa ? 1.5 : 0.75) << x << "," << y;
        cols.insert(x);
        rows.insert(y);
      }
      EXPECT_EQ(cols.size(), static_cast<std::size_t>(rx + 1));
      EXPECT_EQ(rows.size(), static_cast<std::size_t>(ry + 1));
    }
  }
  RecordingFilter flat(10, 10);
  DrawArc(flat, 2, 3, 7, 3, kWhite);  // no height: a straight line
  EXPECT_EQ(flat.pixels.size(), 6u);
  EXPECT_EQ(flat.At(5, 3), 1.0);
}

TEST(HostDrawing, CirclesAreSymmetricAndFillsCoverOutlines) {
  const int cx = 10, cy = 10, r = 6;
  // Outline, filled, anti-aliased outline, anti-aliased filled.
  RecordingFilter recs[4] = {{21, 21}, {21, 21}, {21, 21}, {21, 21}};
  for (int i = 0; i < 4; ++i) Draw(recs[i], {"", i % 2 ? 'f' : 'c', cx, cy, r, 0}, i >= 2);
  for (const RecordingFilter& rec : recs) {
    for (const auto& p : rec.coverage) {
      const int dx = p.first.first - cx, dy = p.first.second - cy;
      for (XY m : {XY(-dx, dy), XY(dx, -dy), XY(dy, dx), XY(-dy, -dx)})
        EXPECT_NEAR(rec.At(cx + m.first, cy + m.second), p.second, 1e-9) << dx << "," << dy;
    }
    EXPECT_EQ(rec.At(cx, cy), &rec == &recs[1] || &rec == &recs[3] ? 1.0 : 0.0);
  }
  for (XY p : {XY(cx + r, cy), XY(cx, cy - r), XY(cx - r, cy)}) {
    EXPECT_EQ(recs[0].At(p.first, p.second), 1.0);
    EXPECT_EQ(recs[2].At(p.first, p.second), 1.0);
  }
  for (const auto& p : recs[0].coverage) EXPECT_EQ(recs[1].At(p.first.first, p.first.second), 1.0);
  const double area = M_PI * r * r;
  EXPECT_NEAR(static_cast<double>(recs[1].coverage.size()), area, 2 * M_PI * r);
  double smoothArea = 0;
  for (const auto& p : recs[3].coverage) smoothArea += p.second;
  EXPECT_NEAR(smoothArea, area, 2.0);

  RecordingFilter dot(5, 5);
  DrawCircle(dot, 2, 2, 0, kWhite, false);
  EXPECT_EQ(dot.pixels, (std::set<XY>{{2, 2}}));
}
