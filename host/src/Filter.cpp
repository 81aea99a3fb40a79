#include "vornhost/Filter.h"

#include <wx/image.h>

#include <cmath>
#include <cstdint>
#include <vector>

#include "PixelMath.h"

namespace {

// The result of blending c into old with weight i. Without alpha this is a
// plain mix; with alpha the mix is done on premultiplied colours so that a
// transparent pixel does not darken the colour drawn over it.
ColorA BlendIntensity(const ColorA& old, const ColorA& c, double i, bool hasAlpha) {
  if (i >= 1.0) return c;
  const double k = 1.0 - i;
  if (!hasAlpha) return ColorA(c.r * i + old.r * k, c.g * i + old.g * k, c.b * i + old.b * k, 1.0);
  const double ca = vornpix::Clamp01(c.a) * i;
  const double oa = vornpix::Clamp01(old.a) * k;
  const double a = ca + oa;
  if (a <= 0.0) return ColorA(c.r * i + old.r * k, c.g * i + old.g * k, c.b * i + old.b * k, 0.0);
  return ColorA((c.r * ca + old.r * oa) / a, (c.g * ca + old.g * oa) / a,
                (c.b * ca + old.b * oa) / a, a);
}

// Shared WritePixelI: intensity 0 leaves the pixel alone (but still reports
// whether it exists), 1 is a plain write.
bool WriteBlended(Filter& f, int x, int y, ColorA& c, double intensity, bool hasAlpha) {
  ColorA old;
  if (!f.ReadPixel(old, x, y)) return false;
  const double i = vornpix::Clamp01(intensity);
  if (i <= 0.0) return true;
  ColorA mixed = BlendIntensity(old, c, i, hasAlpha);
  return f.WritePixel(x, y, mixed);
}

// Filter over a Bitmap or BitmapA, through Set/Get so that format and size
// checks live in one place.
template <class B>
class BitmapFilter : public Filter {
 public:
  explicit BitmapFilter(B& bmp) : m_bmp(bmp) {}
  bool WritePixel(int x, int y, ColorA& c) override { return Store(x, y, c); }
  bool ReadPixel(ColorA& c, int x, int y) const override { return Load(c, x, y); }
  bool WritePixelI(int x, int y, ColorA& c, double i) override {
    return WriteBlended(*this, x, y, c, i, HasAlpha());
  }
  int GetWidth() const override { return m_bmp.IsEmpty() ? 0 : m_bmp.width; }
  int GetHeight() const override { return m_bmp.IsEmpty() ? 0 : m_bmp.height; }
  bool Clear() override { return ClearBitmapTo(); }
  bool Create(int w, int h) override { return ::Create(m_bmp, w, h, m_bmp.format); }

 private:
  bool HasAlpha() const;
  bool Store(int x, int y, const ColorA& c);
  bool Load(ColorA& c, int x, int y) const;
  bool ClearBitmapTo();
  B& m_bmp;
};

template <>
bool BitmapFilter<Bitmap>::HasAlpha() const {
  return false;
}
template <>
bool BitmapFilter<BitmapA>::HasAlpha() const {
  return true;
}
template <>
bool BitmapFilter<Bitmap>::Store(int x, int y, const ColorA& c) {
  return Set(m_bmp, x, y, CAtoC(c));
}
template <>
bool BitmapFilter<BitmapA>::Store(int x, int y, const ColorA& c) {
  return Set(m_bmp, x, y, c);
}
template <>
bool BitmapFilter<Bitmap>::Load(ColorA& c, int x, int y) const {
  Color rgb;
  if (!Get(m_bmp, x, y, rgb)) return false;
  c = CtoCA(rgb);
  return true;
}
template <>
bool BitmapFilter<BitmapA>::Load(ColorA& c, int x, int y) const {
  return Get(m_bmp, x, y, c);
}
template <>
bool BitmapFilter<Bitmap>::ClearBitmapTo() {
  return ClearBitmap(m_bmp, Color(0, 0, 0));
}
template <>
bool BitmapFilter<BitmapA>::ClearBitmapTo() {
  return ClearBitmap(m_bmp, ColorA(0, 0, 0, 0));
}

// Filter over a wxImage's RGB bytes; alpha reads as 1 and is not written.
class WxImageFilter : public Filter {
 public:
  explicit WxImageFilter(wxImage& img) : m_img(img) {}
  bool WritePixel(int x, int y, ColorA& c) override {
    if (!Inside(x, y)) return false;
    m_img.UnShare();  // the image may share its data with copies of it
    unsigned char* p = PixelAt(x, y);
    p[0] = vornpix::ToByte(c.r);
    p[1] = vornpix::ToByte(c.g);
    p[2] = vornpix::ToByte(c.b);
    return true;
  }
  bool ReadPixel(ColorA& c, int x, int y) const override {
    if (!Inside(x, y)) return false;
    const unsigned char* p = PixelAt(x, y);
    c = ColorA(p[0] / 255.0, p[1] / 255.0, p[2] / 255.0, 1.0);
    return true;
  }
  bool WritePixelI(int x, int y, ColorA& c, double i) override {
    return WriteBlended(*this, x, y, c, i, false);
  }
  int GetWidth() const override { return m_img.IsOk() ? m_img.GetWidth() : 0; }
  int GetHeight() const override { return m_img.IsOk() ? m_img.GetHeight() : 0; }
  bool Clear() override {
    if (!m_img.IsOk()) return false;
    m_img.Clear(0);
    return true;
  }
  bool Create(int w, int h) override {
    if (w <= 0 || h <= 0 || w > kMaxBitmapSide || h > kMaxBitmapSide) return false;
    return m_img.Create(w, h, true);
  }

 private:
  bool Inside(int x, int y) const {
    return m_img.IsOk() && x >= 0 && y >= 0 && x < m_img.GetWidth() && y < m_img.GetHeight();
  }
  unsigned char* PixelAt(int x, int y) const {
    return m_img.GetData() + (static_cast<std::size_t>(y) * m_img.GetWidth() + x) * 3;
  }
  wxImage& m_img;
};

// Reads the whole picture, for operations whose source and destination are
// the same filter.
struct Snapshot {
  int width = 0, height = 0;
  std::vector<ColorA> pixels;
  std::vector<char> valid;

  explicit Snapshot(const Filter& f) : width(f.GetWidth()), height(f.GetHeight()) {
    if (width <= 0 || height <= 0) {
      width = height = 0;
      return;
    }
    const std::size_t n = static_cast<std::size_t>(width) * height;
    pixels.resize(n);
    valid.resize(n);
    for (int y = 0; y < height; ++y)
      for (int x = 0; x < width; ++x)
        valid[Index(x, y)] = f.ReadPixel(pixels[Index(x, y)], x, y) ? 1 : 0;
  }
  std::size_t Index(int x, int y) const { return static_cast<std::size_t>(y) * width + x; }
  bool Read(ColorA& c, int x, int y) const {
    if (x < 0 || y < 0 || x >= width || y >= height || !valid[Index(x, y)]) return false;
    c = pixels[Index(x, y)];
    return true;
  }
};

// Source reads that work the same on a live filter or a snapshot of it.
class Source {
 public:
  Source(const Filter& dst, const Filter& src) : m_src(src) {
    if (&dst == &src) m_copy.reset(new Snapshot(src));
  }
  int Width() const { return m_copy ? m_copy->width : m_src.GetWidth(); }
  int Height() const { return m_copy ? m_copy->height : m_src.GetHeight(); }
  bool Read(ColorA& c, int x, int y) const {
    return m_copy ? m_copy->Read(c, x, y) : m_src.ReadPixel(c, x, y);
  }

 private:
  const Filter& m_src;
  std::unique_ptr<Snapshot> m_copy;
};

// Gives dst the size w x h where it can be resized; a view keeps its size and
// the caller writes only the overlap.
bool PrepareDestination(Filter& dst, int w, int h) {
  if (w <= 0 || h <= 0) return false;
  if (dst.GetWidth() == w && dst.GetHeight() == h) return true;
  dst.Create(w, h);
  return dst.GetWidth() > 0 && dst.GetHeight() > 0;
}

enum class Mirror { kNone, kVertical, kHorizontal };

bool CopyMirrored(Filter& dst, const Filter& src, Mirror mirror) {
  if (&dst == &src && mirror == Mirror::kNone) return true;
  Source in(dst, src);
  const int w = in.Width(), h = in.Height();
  if (!PrepareDestination(dst, w, h)) return false;
  const int cw = std::min(w, dst.GetWidth()), ch = std::min(h, dst.GetHeight());
  for (int y = 0; y < ch; ++y) {
    for (int x = 0; x < cw; ++x) {
      const int sx = mirror == Mirror::kHorizontal ? w - 1 - x : x;
      const int sy = mirror == Mirror::kVertical ? h - 1 - y : y;
      ColorA c;
      if (in.Read(c, sx, sy)) dst.WritePixel(x, y, c);
    }
  }
  return true;
}

// Composites every pixel of src that lands in dst; weight gives each pixel's
// coverage (false skips it).
template <class WeightFn>
bool Composite(Filter& dst, const Filter& src, int x, int y, WeightFn weight) {
  Source in(dst, src);
  const vornpix::Span cols = vornpix::Clip(x, in.Width(), dst.GetWidth());
  const vornpix::Span rows = vornpix::Clip(y, in.Height(), dst.GetHeight());
  for (int r = rows.start; r < rows.start + rows.count; ++r) {
    for (int c = cols.start; c < cols.start + cols.count; ++c) {
      const int sx = static_cast<int>(static_cast<std::int64_t>(c) - x);
      const int sy = static_cast<int>(static_cast<std::int64_t>(r) - y);
      ColorA s, d;
      double w;
      if (!in.Read(s, sx, sy) || !weight(s, sx, sy, w) || !dst.ReadPixel(d, c, r)) continue;
      if (w <= 0.0) continue;
      ColorA out = vornpix::Over(s, w, d);
      dst.WritePixel(c, r, out);
    }
  }
  return true;
}

// Bilinear sample of premultiplied colour; missing neighbours are transparent.
ColorA SampleBilinear(const Source& in, double sx, double sy) {
  // Keep exact quarter turns exact despite rounding in the trigonometry.
  const double rx = std::round(sx), ry = std::round(sy);
  if (std::fabs(sx - rx) < 1e-9) sx = rx;
  if (std::fabs(sy - ry) < 1e-9) sy = ry;
  if (!(std::fabs(sx) < 4.0 * kMaxBitmapSide && std::fabs(sy) < 4.0 * kMaxBitmapSide))
    return ColorA(0, 0, 0, 0);
  const int x0 = static_cast<int>(std::floor(sx)), y0 = static_cast<int>(std::floor(sy));
  const double fx = sx - x0, fy = sy - y0;
  double r = 0, g = 0, b = 0, a = 0;
  const double wx[2] = {1.0 - fx, fx}, wy[2] = {1.0 - fy, fy};
  for (int j = 0; j < 2; ++j) {
    for (int i = 0; i < 2; ++i) {
      const double w = wx[i] * wy[j];
      ColorA c;
      if (w <= 0.0 || !in.Read(c, x0 + i, y0 + j)) continue;
      const double pa = w * vornpix::Clamp01(c.a);
      r += c.r * pa;
      g += c.g * pa;
      b += c.b * pa;
      a += pa;
    }
  }
  if (a <= 0.0) return ColorA(0, 0, 0, 0);
  return ColorA(r / a, g / a, b / a, std::min(a, 1.0));
}

}  // namespace

Filter::~Filter() = default;

bool Filter::WritePoint(const FilterPoint& p, ColorA& c) {
  return WritePixel(p.x, p.y, c);
}
bool Filter::ReadPoint(ColorA& c, const FilterPoint& p) const {
  return ReadPixel(c, p.x, p.y);
}
bool Filter::WritePointI(const FilterPoint& p, ColorA& c, double intensity) {
  return WritePixelI(p.x, p.y, c, intensity);
}

std::unique_ptr<Filter> CreateFilter(Bitmap& bmp) {
  return std::make_unique<BitmapFilter<Bitmap>>(bmp);
}
std::unique_ptr<Filter> CreateFilter(BitmapA& bmp) {
  return std::make_unique<BitmapFilter<BitmapA>>(bmp);
}
std::unique_ptr<Filter> CreateFilter(wxImage& img) {
  return std::make_unique<WxImageFilter>(img);
}

// ---- CropFilter

CropFilter::CropFilter(Filter& target, int x1, int y1, int x2, int y2)
    : m_target(target), m_x(x1), m_y(y1) {
  const std::int64_t w = static_cast<std::int64_t>(x2) - x1;
  const std::int64_t h = static_cast<std::int64_t>(y2) - y1;
  m_w = static_cast<int>(std::min<std::int64_t>(std::max<std::int64_t>(w, 0), kMaxBitmapSide));
  m_h = static_cast<int>(std::min<std::int64_t>(std::max<std::int64_t>(h, 0), kMaxBitmapSide));
}

namespace {
// Parent coordinate of a view coordinate, or false when it overflows int.
bool Offset(int origin, int v, int& out) {
  const std::int64_t p = static_cast<std::int64_t>(origin) + v;
  if (p < INT32_MIN || p > INT32_MAX) return false;
  out = static_cast<int>(p);
  return true;
}
}  // namespace

bool CropFilter::WritePixel(int x, int y, ColorA& c) {
  int px, py;
  return Inside(x, y) && Offset(m_x, x, px) && Offset(m_y, y, py) && m_target.WritePixel(px, py, c);
}

bool CropFilter::ReadPixel(ColorA& c, int x, int y) const {
  int px, py;
  return Inside(x, y) && Offset(m_x, x, px) && Offset(m_y, y, py) && m_target.ReadPixel(c, px, py);
}

bool CropFilter::WritePixelI(int x, int y, ColorA& c, double i) {
  int px, py;
  return Inside(x, y) && Offset(m_x, x, px) && Offset(m_y, y, py) &&
         m_target.WritePixelI(px, py, c, i);
}

bool CropFilter::Clear() {
  return ::Clear(*this, ColorA(0, 0, 0, 0));
}

bool CropFilter::Create(int w, int h) {
  return w == m_w && h == m_h && Clear();
}

// ---- UnDoFilter

bool UnDoFilter::WritePixel(int x, int y, ColorA& c) {
  ColorA old;
  if (!m_target.ReadPixel(old, x, y)) return false;
  if (!m_target.WritePixel(x, y, c)) return false;
  m_records.push_back(RECORD{x, y, old});
  return true;
}

bool UnDoFilter::WritePixelI(int x, int y, ColorA& c, double i) {
  ColorA old;
  if (!m_target.ReadPixel(old, x, y)) return false;
  if (!m_target.WritePixelI(x, y, c, i)) return false;
  m_records.push_back(RECORD{x, y, old});
  return true;
}

bool UnDoFilter::UnDo() {
  for (auto it = m_records.rbegin(); it != m_records.rend(); ++it)
    m_target.WritePixel(it->x, it->y, it->old);
  m_records.clear();
  return true;
}

bool UnDoFilter::Clear() {
  return ::Clear(*this, ColorA(0, 0, 0, 0));
}

bool UnDoFilter::Create(int w, int h) {
  // The old pixels cannot be put back into a resized image.
  m_records.clear();
  return m_target.Create(w, h);
}

// ---- whole-image operations

bool Clear(Filter& f, const ColorA& c) {
  const int w = f.GetWidth(), h = f.GetHeight();
  if (w <= 0 || h <= 0) return false;
  ColorA colour = c;
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) f.WritePixel(x, y, colour);
  return true;
}

bool Copy(Filter& dst, const Filter& src) {
  return CopyMirrored(dst, src, Mirror::kNone);
}
bool FlipVert(Filter& dst, const Filter& src) {
  return CopyMirrored(dst, src, Mirror::kVertical);
}
bool FlipHoz(Filter& dst, const Filter& src) {
  return CopyMirrored(dst, src, Mirror::kHorizontal);
}

bool Blit(Filter& dst, const Filter& src, int x, int y) {
  return Composite(dst, src, x, y, [](const ColorA& s, int, int, double& w) {
    w = s.a;
    return true;
  });
}

bool Blit(Filter& dst, const Filter& src, const Filter& mask, int x, int y) {
  return Composite(dst, src, x, y, [&mask](const ColorA& s, int sx, int sy, double& w) {
    ColorA m;
    if (!mask.ReadPixel(m, sx, sy)) return false;
    w = vornpix::Clamp01(s.a) * vornpix::Clamp01(m.a) * vornpix::Clamp01((m.r + m.g + m.b) / 3.0);
    return true;
  });
}

bool Rotate(Filter& dst, const Filter& src, double degrees) {
  if (!std::isfinite(degrees)) return false;
  Source in(dst, src);
  const int w = in.Width(), h = in.Height();
  if (!PrepareDestination(dst, w, h)) return false;
  double c, s;
  const double quarters = degrees / 90.0;
  if (quarters == std::floor(quarters)) {
    static const double kCos[4] = {1, 0, -1, 0}, kSin[4] = {0, 1, 0, -1};
    const int q = static_cast<int>(std::fmod(quarters, 4.0) + 4.0) % 4;
    c = kCos[q];
    s = kSin[q];
  } else {
    const double rad = degrees * M_PI / 180.0;
    c = std::cos(rad);
    s = std::sin(rad);
  }
  const double cx = (w - 1) / 2.0, cy = (h - 1) / 2.0;
  const int dw = dst.GetWidth(), dh = dst.GetHeight();
  for (int y = 0; y < dh; ++y) {
    for (int x = 0; x < dw; ++x) {
      // Counter-clockwise on screen (y down): inverse-map each destination
      // pixel into the source.
      const double dx = x - cx, dy = y - cy;
      ColorA out = SampleBilinear(in, cx + dx * c - dy * s, cy + dx * s + dy * c);
      dst.WritePixel(x, y, out);
    }
  }
  return true;
}
