// Lines, arcs and circles on filters. Every loop runs over the image's own
// rows or columns, so coordinates far outside the image cost nothing and can
// never be written.
#include <algorithm>
#include <cmath>
#include <cstdint>

#include "PixelMath.h"
#include "vornhost/Filter.h"

namespace {

typedef std::int64_t i64;

constexpr double kEps = 1e-9;

class Painter {
 public:
  Painter(Filter& f, const ColorA& c)
      : m_f(f), m_c(c), m_w(f.GetWidth()), m_h(f.GetHeight()), m_aa(f.IsAntiAliased()) {}
  bool Usable() const { return m_w > 0 && m_h > 0; }
  bool AntiAliased() const { return m_aa; }
  i64 Width() const { return m_w; }
  i64 Height() const { return m_h; }

  void Plot(i64 x, i64 y, double intensity = 1.0) {
    if (x < 0 || y < 0 || x >= m_w || y >= m_h || intensity <= kEps) return;
    if (intensity >= 1.0 - kEps)
      m_f.WritePixel(static_cast<int>(x), static_cast<int>(y), m_c);
    else
      m_f.WritePixelI(static_cast<int>(x), static_cast<int>(y), m_c, intensity);
  }

 private:
  Filter& m_f;
  ColorA m_c;
  i64 m_w, m_h;
  bool m_aa;
};

// The pixels, along one row or column, that stand for points of a curve.
// The passes below never produce the same pixel twice for one run.
class PixelRun {
 public:
  void Add(i64 offset, double intensity) {
    if (intensity <= kEps || m_n == kMax) return;
    m_offset[m_n] = offset;
    m_value[m_n++] = intensity;
  }
  // Adds the pixels that represent the exact position v (relative offset,
  // along the run, from the curve's centre) in direction sign.
  void AddPosition(double v, int sign, bool aa) {
    if (!aa) {
      Add(sign * static_cast<i64>(std::floor(v + 0.5)), 1.0);
      return;
    }
    double base = std::floor(v);
    double frac = v - base;
    if (frac > 1.0 - kEps) {
      base += 1.0;
      frac = 0.0;
    }
    Add(sign * static_cast<i64>(base), 1.0 - frac);
    Add(sign * (static_cast<i64>(base) + 1), frac);
  }
  template <class PlotFn>
  void Emit(PlotFn plot) const {
    for (int i = 0; i < m_n; ++i) plot(m_offset[i], m_value[i]);
  }

 private:
  static constexpr int kMax = 4;
  i64 m_offset[kMax] = {};
  double m_value[kMax] = {};
  int m_n = 0;
};

// Quadrant bits, by the signs of x and y relative to the centre (y down).
constexpr unsigned kRightDown = 1, kLeftDown = 2, kRightUp = 4, kLeftUp = 8;

unsigned QuadrantBit(int sx, int sy) {
  if (sx > 0) return sy > 0 ? kRightDown : kRightUp;
  return sy > 0 ? kLeftDown : kLeftUp;
}

// One pass of an ellipse: along the columns (or, transposed, the rows) whose
// offset from the centre is at most limit, one curve sample each. Pixels
// whose offset across the pass is at most skip are left to the other pass.
struct EllipseAxes {
  bool rows;  // pass runs along the rows (major axis is y)
  i64 centreMajor, centreMinor;
  double radiusMajor, radiusMinor;
};

void EllipsePass(Painter& p, const EllipseAxes& e, i64 limit, i64 skip, unsigned mask) {
  const i64 extent = e.rows ? p.Height() : p.Width();
  const i64 first = std::max<i64>(e.centreMajor - limit, 0);
  const i64 last = std::min<i64>(e.centreMajor + limit, extent - 1);
  for (i64 m = first; m <= last; ++m) {
    const i64 d = m - e.centreMajor;
    const double t = static_cast<double>(d) / e.radiusMajor;
    const double v = e.radiusMinor * std::sqrt(std::max(0.0, 1.0 - t * t));
    PixelRun run;
    for (int sMinor = -1; sMinor <= 1; sMinor += 2) {
      bool wanted = false;
      for (int sMajor = -1; sMajor <= 1; sMajor += 2) {
        const unsigned bit = e.rows ? QuadrantBit(sMinor, sMajor) : QuadrantBit(sMajor, sMinor);
        if ((d == 0 || (d > 0) == (sMajor > 0)) && (mask & bit)) wanted = true;
      }
      if (wanted) run.AddPosition(v, sMinor, p.AntiAliased());
    }
    run.Emit([&](i64 off, double value) {
      if (std::llabs(off) <= skip) return;
      if (e.rows)
        p.Plot(e.centreMinor + off, m, value);
      else
        p.Plot(m, e.centreMinor + off, value);
    });
  }
}

// Draws the quadrants named by mask of the ellipse with centre (cx, cy) and
// radii rx, ry (both positive). Columns where the curve is flatter than 45
// degrees get one sample per column, the rest one per row (Wu's method when
// anti-aliased), so the curve has no gaps and no pixel is drawn twice.
void DrawEllipse(Painter& p, i64 cx, i64 cy, i64 rx, i64 ry, unsigned mask) {
  const double frx = static_cast<double>(rx), fry = static_cast<double>(ry);
  const double diag = std::sqrt(frx * frx + fry * fry);
  const i64 colLimit = static_cast<i64>(std::floor(frx * frx / diag));
  const i64 rowLimit = static_cast<i64>(std::floor(fry * fry / diag));
  EllipsePass(p, EllipseAxes{false, cx, cy, frx, fry}, colLimit, -1, mask);
  EllipsePass(p, EllipseAxes{true, cy, cx, fry, frx}, rowLimit, colLimit, mask);
}

}  // namespace

bool DrawLine(Filter& f, int x1, int y1, int x2, int y2, const ColorA& c) {
  Painter p(f, c);
  if (!p.Usable()) return false;
  const i64 dx = static_cast<i64>(x2) - x1, dy = static_cast<i64>(y2) - y1;
  if (dx == 0 && dy == 0) {
    p.Plot(x1, y1);
    return true;
  }
  // Walk the major axis over the part that lies inside the image; the minor
  // coordinate comes straight from the line equation.
  const bool xMajor = std::llabs(dx) >= std::llabs(dy);
  const i64 a1 = xMajor ? x1 : y1, a2 = xMajor ? x2 : y2;
  const i64 b1 = xMajor ? y1 : x1;
  const double slope = static_cast<double>(xMajor ? dy : dx) / static_cast<double>(a2 - a1);
  const i64 lo = std::max<i64>(std::min(a1, a2), 0);
  const i64 hi = std::min<i64>(std::max(a1, a2), (xMajor ? p.Width() : p.Height()) - 1);
  for (i64 a = lo; a <= hi; ++a) {
    const double b = static_cast<double>(b1) + static_cast<double>(a - a1) * slope;
    PixelRun run;
    run.AddPosition(b, 1, p.AntiAliased());
    run.Emit([&](i64 bb, double v) {
      if (xMajor)
        p.Plot(a, bb, v);
      else
        p.Plot(bb, a, v);
    });
  }
  return true;
}

bool DrawArc(Filter& f, int x1, int y1, int x2, int y2, const ColorA& c) {
  Painter p(f, c);
  if (!p.Usable()) return false;
  const i64 cx = x1, cy = y2;
  const i64 rx = std::llabs(static_cast<i64>(x2) - x1);
  const i64 ry = std::llabs(static_cast<i64>(y1) - y2);
  // A flat ellipse is the straight segment between the two end points.
  if (rx == 0 || ry == 0) return DrawLine(f, x1, y1, x2, y2, c);
  const int sx = x2 > x1 ? 1 : -1;
  const int sy = y1 > y2 ? 1 : -1;
  DrawEllipse(p, cx, cy, rx, ry, QuadrantBit(sx, sy));
  return true;
}

bool DrawCircle(Filter& f, int cx, int cy, int r, const ColorA& c, bool fill) {
  Painter p(f, c);
  if (!p.Usable() || r < 0) return false;
  if (r == 0) {
    p.Plot(cx, cy);
    return true;
  }
  if (!fill) {
    DrawEllipse(p, cx, cy, r, r, kRightDown | kLeftDown | kRightUp | kLeftUp);
    return true;
  }
  const i64 rr = r;
  const i64 y0 = std::max<i64>(cy - rr - 1, 0), y1 = std::min<i64>(cy + rr + 1, p.Height() - 1);
  for (i64 y = y0; y <= y1; ++y) {
    const i64 dy = y - cy;
    if (p.AntiAliased()) {
      // Coverage from the distance to the centre: full inside r - 0.5,
      // fading to nothing at r + 0.5.
      const i64 x0 = std::max<i64>(cx - rr - 1, 0), x1 = std::min<i64>(cx + rr + 1, p.Width() - 1);
      for (i64 x = x0; x <= x1; ++x) {
        const double d = std::hypot(static_cast<double>(x - cx), static_cast<double>(dy));
        p.Plot(x, y, vornpix::Clamp01(r + 0.5 - d));
      }
    } else {
      // Whole pixels whose centres lie within r + 1/2 of the centre; this
      // includes every pixel of the outline drawn for the same circle.
      const i64 span2 = rr * rr + rr - dy * dy;
      if (span2 < 0) continue;
      const i64 hw = static_cast<i64>(std::floor(std::sqrt(static_cast<double>(span2))));
      const i64 x0 = std::max<i64>(cx - hw, 0), x1 = std::min<i64>(cx + hw, p.Width() - 1);
      for (i64 x = x0; x <= x1; ++x) p.Plot(x, y);
    }
  }
  return true;
}
