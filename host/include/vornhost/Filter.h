#pragma once
// Filters: a uniform pixel-access view of an image, through which the drawing
// functions below work on Bitmap, BitmapA and wxImage alike.
#include <memory>
#include <vector>

#include "vornhost/Bitmap.h"
#include "vornhost/Color.h"

class wxImage;

struct FilterPoint {
  int x = 0;
  int y = 0;
};

class Filter {
 public:
  virtual ~Filter();
  // Writes one pixel; false outside the image (nothing written).
  virtual bool WritePixel(int x, int y, ColorA& c) = 0;
  // Reads one pixel; false outside the image.
  virtual bool ReadPixel(ColorA& c, int x, int y) const = 0;
  // Blends c into the pixel with weight intensity (0..1): 1 is a plain write,
  // 0 leaves the pixel. Images with alpha mix premultiplied colours, so a
  // transparent pixel does not darken what is drawn over it.
  virtual bool WritePixelI(int x, int y, ColorA& c, double intensity) = 0;
  virtual bool WritePoint(const FilterPoint& p, ColorA& c);
  virtual bool ReadPoint(ColorA& c, const FilterPoint& p) const;
  virtual bool WritePointI(const FilterPoint& p, ColorA& c, double intensity);
  virtual int GetWidth() const = 0;
  virtual int GetHeight() const = 0;
  // Sets every pixel to transparent black.
  virtual bool Clear() = 0;
  // Resizes the underlying image (contents become transparent black); false
  // when the image cannot be resized (views such as crops).
  virtual bool Create(int width, int height) = 0;

  // True for the anti-aliasing wrapper returned by AntiAlias().
  virtual bool IsAntiAliased() const { return false; }
};

// Owning filters over the host's image types and wxImage. The image must
// outlive the filter. A wxImage filter reads alpha 1 and ignores alpha when
// writing, like an RGB Bitmap.
std::unique_ptr<Filter> CreateFilter(Bitmap& bmp);
std::unique_ptr<Filter> CreateFilter(BitmapA& bmp);
std::unique_ptr<Filter> CreateFilter(wxImage& img);

// Forwards to another filter and asks the drawing functions for anti-aliased
// lines, arcs and circles. Use as DrawLine(AntiAlias(*f), ...).
class AntiAliasFilter : public Filter {
 public:
  explicit AntiAliasFilter(Filter& target) : m_target(target) {}
  bool WritePixel(int x, int y, ColorA& c) override { return m_target.WritePixel(x, y, c); }
  bool ReadPixel(ColorA& c, int x, int y) const override { return m_target.ReadPixel(c, x, y); }
  bool WritePixelI(int x, int y, ColorA& c, double i) override {
    return m_target.WritePixelI(x, y, c, i);
  }
  int GetWidth() const override { return m_target.GetWidth(); }
  int GetHeight() const override { return m_target.GetHeight(); }
  bool Clear() override { return m_target.Clear(); }
  bool Create(int w, int h) override { return m_target.Create(w, h); }
  bool IsAntiAliased() const override { return true; }

 private:
  Filter& m_target;
};
inline AntiAliasFilter AntiAlias(Filter& f) {
  return AntiAliasFilter(f);
}

// A view of the rectangle from (x1, y1) up to, not including, (x2, y2) of
// another filter; coordinates are relative to (x1, y1). Reads and writes
// outside the parent image fail like any out-of-range access.
class CropFilter : public Filter {
 public:
  CropFilter(Filter& target, int x1, int y1, int x2, int y2);
  bool WritePixel(int x, int y, ColorA& c) override;
  bool ReadPixel(ColorA& c, int x, int y) const override;
  bool WritePixelI(int x, int y, ColorA& c, double i) override;
  int GetWidth() const override { return m_w; }
  int GetHeight() const override { return m_h; }
  bool Clear() override;
  // Succeeds (and clears the view) only for the view's own size.
  bool Create(int w, int h) override;
  bool IsAntiAliased() const override { return m_target.IsAntiAliased(); }

 private:
  bool Inside(int x, int y) const { return x >= 0 && y >= 0 && x < m_w && y < m_h; }
  Filter& m_target;
  int m_x, m_y, m_w, m_h;
};
inline CropFilter Crop(Filter& f, int x1, int y1, int x2, int y2) {
  return CropFilter(f, x1, y1, x2, y2);
}

// Records the old colour of every pixel written through it, so the writes can
// be undone newest first.
class UnDoFilter : public Filter {
 public:
  struct RECORD {
    int x;
    int y;
    ColorA old;
  };
  explicit UnDoFilter(Filter& target) : m_target(target) {}
  // Forgets the recorded changes.
  void Initialize() { m_records.clear(); }
  // Restores the recorded pixels, newest first, and forgets them.
  bool UnDo();
  const std::vector<RECORD>& GetRecords() const { return m_records; }

  bool WritePixel(int x, int y, ColorA& c) override;
  bool ReadPixel(ColorA& c, int x, int y) const override { return m_target.ReadPixel(c, x, y); }
  bool WritePixelI(int x, int y, ColorA& c, double i) override;
  int GetWidth() const override { return m_target.GetWidth(); }
  int GetHeight() const override { return m_target.GetHeight(); }
  bool Clear() override;
  // Forgets the recorded changes: they cannot be put back into a resized image.
  bool Create(int w, int h) override;
  bool IsAntiAliased() const override { return m_target.IsAntiAliased(); }

 private:
  Filter& m_target;
  std::vector<RECORD> m_records;
};

// Fills every pixel with c.
bool Clear(Filter& f, const ColorA& c);
// In the operations below dst and src may be the same filter; two different
// filters over one image must not overlap.
// dst takes src's size and pixels (when dst cannot be resized, the overlap is
// copied).
bool Copy(Filter& dst, const Filter& src);
// As Copy, mirrored top-to-bottom / left-to-right.
bool FlipVert(Filter& dst, const Filter& src);
bool FlipHoz(Filter& dst, const Filter& src);
// Composites src over dst at (x, y) using src's alpha; clipped to dst.
bool Blit(Filter& dst, const Filter& src, int x, int y);
// Composites src into dst at (x, y) through a mask: each pixel of src is
// blended over dst with weight src alpha * mask alpha * mask brightness, the
// mask being read at the same coordinates as src. Clipped to all three.
bool Blit(Filter& dst, const Filter& src, const Filter& mask, int x, int y);
// dst (resized to src's size) receives src rotated by degrees
// (counter-clockwise) about the image centre; uncovered pixels become
// transparent black. Bilinear sampling.
bool Rotate(Filter& dst, const Filter& src, double degrees);

// Drawing. All clip to the filter and never write outside it. Through an
// AntiAlias() filter they draw with anti-aliasing, else with whole pixels.
bool DrawLine(Filter& f, int x1, int y1, int x2, int y2, const ColorA& c);
// A quarter ellipse centred at (x1, y2) from (x1, y1) to (x2, y2): the four
// arguments name the arc's two end points. When x1 == x2 or y1 == y2 the
// ellipse is flat and the arc is the straight line between the points.
bool DrawArc(Filter& f, int x1, int y1, int x2, int y2, const ColorA& c);
// A circle of radius r centred at (cx, cy); filled when fill is true (whole
// pixels within r + 1/2 of the centre, or by coverage when anti-aliased).
// Radius 0 is the centre pixel; a negative radius fails.
bool DrawCircle(Filter& f, int cx, int cy, int r, const ColorA& c, bool fill);

inline bool DrawLine(AntiAliasFilter&& f, int x1, int y1, int x2, int y2, const ColorA& c) {
  return DrawLine(static_cast<Filter&>(f), x1, y1, x2, y2, c);
}
inline bool DrawArc(AntiAliasFilter&& f, int x1, int y1, int x2, int y2, const ColorA& c) {
  return DrawArc(static_cast<Filter&>(f), x1, y1, x2, y2, c);
}
inline bool DrawCircle(AntiAliasFilter&& f, int cx, int cy, int r, const ColorA& c, bool fill) {
  return DrawCircle(static_cast<Filter&>(f), cx, cy, r, c, fill);
}
inline bool Copy(CropFilter&& dst, const Filter& src) {
  return Copy(static_cast<Filter&>(dst), src);
}
inline bool Clear(CropFilter&& f, const ColorA& c) {
  return Clear(static_cast<Filter&>(f), c);
}
