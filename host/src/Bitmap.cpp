#include "vornhost/Bitmap.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "PixelMath.h"

namespace {

// True when the fields describe a non-empty image whose buffer really holds
// every pixel; everything below refuses images that do not.
template <class B>
bool Valid(const B& bmp) {
  return (bmp.format == 1 || bmp.format == 3) && !bmp.IsEmpty() && bmp.width <= kMaxBitmapSide &&
         bmp.height <= kMaxBitmapSide &&
         bmp.data.size() == static_cast<std::size_t>(bmp.width) * bmp.height * bmp.BytesPerPixel();
}

// An empty image is a legitimate value to copy; an inconsistent one is not.
template <class B>
bool ValidOrEmpty(const B& bmp) {
  return Valid(bmp) || (bmp.width == 0 && bmp.height == 0 && bmp.data.empty() &&
                        (bmp.format == 1 || bmp.format == 3));
}

template <class B>
bool CreateImpl(B& bmp, int width, int height, int format) {
  bmp.data.clear();
  bmp.data.shrink_to_fit();
  if (width <= 0 || height <= 0 || width > kMaxBitmapSide || height > kMaxBitmapSide ||
      (format != 1 && format != 3)) {
    bmp.width = bmp.height = 0;
    bmp.format = 3;
    return false;
  }
  bmp.width = width;
  bmp.height = height;
  bmp.format = format;
  bmp.data.assign(static_cast<std::size_t>(width) * height * bmp.BytesPerPixel(), 0);
  return true;
}

template <class B>
bool ClearImpl(B& bmp) {
  bmp.data.clear();
  bmp.data.shrink_to_fit();
  bmp.width = bmp.height = 0;
  bmp.format = 3;
  return true;
}

bool Inside(int width, int height, int x, int y) {
  return x >= 0 && y >= 0 && x < width && y < height;
}

// Pixel bytes of a colour in the bitmap's layout.
void Encode(const Bitmap& bmp, const Color& c, unsigned char* out) {
  if (bmp.format == 1) {
    out[0] = vornpix::ToByte((c.r + c.g + c.b) / 3.0);
  } else {
    out[0] = vornpix::ToByte(c.r);
    out[1] = vornpix::ToByte(c.g);
    out[2] = vornpix::ToByte(c.b);
  }
}

void Encode(const BitmapA& bmp, const ColorA& c, unsigned char* out) {
  if (bmp.format == 1) {
    out[0] = vornpix::ToByte((c.r + c.g + c.b) / 3.0);
    out[1] = vornpix::ToByte(c.a);
  } else {
    out[0] = vornpix::ToByte(c.r);
    out[1] = vornpix::ToByte(c.g);
    out[2] = vornpix::ToByte(c.b);
    out[3] = vornpix::ToByte(c.a);
  }
}

template <class B, class C>
bool ClearBitmapImpl(B& bmp, const C& c) {
  if (!Valid(bmp)) return false;
  unsigned char px[4];
  Encode(bmp, c, px);
  const int bpp = bmp.BytesPerPixel();
  for (std::size_t i = 0; i < bmp.data.size(); i += bpp) std::memcpy(&bmp.data[i], px, bpp);
  return true;
}

template <class B>
bool CropImpl(B& dst, const B& src, int x, int y, int w, int h) {
  if (!Valid(src) || w <= 0 || h <= 0) return false;
  vornpix::Span cols = vornpix::Clip(x, w, src.width);
  vornpix::Span rows = vornpix::Clip(y, h, src.height);
  if (cols.count <= 0 || rows.count <= 0) return false;
  B out;
  CreateImpl(out, cols.count, rows.count, src.format);
  const std::size_t rowBytes = static_cast<std::size_t>(cols.count) * src.BytesPerPixel();
  for (int r = 0; r < rows.count; ++r)
    std::memcpy(out.Pixel(0, r), src.Pixel(cols.start, rows.start + r), rowBytes);
  dst = std::move(out);
  return true;
}

template <class B>
bool FlipVertImpl(B& bmp) {
  if (!Valid(bmp)) return false;
  const std::size_t rowBytes = static_cast<std::size_t>(bmp.width) * bmp.BytesPerPixel();
  for (int top = 0, bottom = bmp.height - 1; top < bottom; ++top, --bottom)
    std::swap_ranges(bmp.Pixel(0, top), bmp.Pixel(0, top) + rowBytes, bmp.Pixel(0, bottom));
  return true;
}

template <class B>
bool FlipHozImpl(B& bmp) {
  if (!Valid(bmp)) return false;
  const int bpp = bmp.BytesPerPixel();
  for (int y = 0; y < bmp.height; ++y)
    for (int left = 0, right = bmp.width - 1; left < right; ++left, --right)
      std::swap_ranges(bmp.Pixel(left, y), bmp.Pixel(left, y) + bpp, bmp.Pixel(right, y));
  return true;
}

}  // namespace

bool Create(Bitmap& bmp, int width, int height, int format) {
  return CreateImpl(bmp, width, height, format);
}
bool Create(BitmapA& bmp, int width, int height, int format) {
  return CreateImpl(bmp, width, height, format);
}

bool Clear(Bitmap& bmp) {
  return ClearImpl(bmp);
}
bool Clear(BitmapA& bmp) {
  return ClearImpl(bmp);
}

bool Set(Bitmap& bmp, int x, int y, const Color& c) {
  if (!Valid(bmp) || !Inside(bmp.width, bmp.height, x, y)) return false;
  Encode(bmp, c, bmp.Pixel(x, y));
  return true;
}

bool Set(BitmapA& bmp, int x, int y, const ColorA& c) {
  if (!Valid(bmp) || !Inside(bmp.width, bmp.height, x, y)) return false;
  Encode(bmp, c, bmp.Pixel(x, y));
  return true;
}

bool Get(const Bitmap& bmp, int x, int y, Color& out) {
  if (!Valid(bmp) || !Inside(bmp.width, bmp.height, x, y)) return false;
  const unsigned char* p = bmp.Pixel(x, y);
  if (bmp.format == 1)
    out = Color(p[0] / 255.0, p[0] / 255.0, p[0] / 255.0);
  else
    out = Color(p[0] / 255.0, p[1] / 255.0, p[2] / 255.0);
  return true;
}

bool Get(const BitmapA& bmp, int x, int y, ColorA& out) {
  if (!Valid(bmp) || !Inside(bmp.width, bmp.height, x, y)) return false;
  const unsigned char* p = bmp.Pixel(x, y);
  if (bmp.format == 1)
    out = ColorA(p[0] / 255.0, p[0] / 255.0, p[0] / 255.0, p[1] / 255.0);
  else
    out = ColorA(p[0] / 255.0, p[1] / 255.0, p[2] / 255.0, p[3] / 255.0);
  return true;
}

bool ClearBitmap(Bitmap& bmp, const Color& c) {
  return ClearBitmapImpl(bmp, c);
}
bool ClearBitmap(BitmapA& bmp, const ColorA& c) {
  return ClearBitmapImpl(bmp, c);
}

bool Copy(Bitmap& dst, const Bitmap& src) {
  if (!ValidOrEmpty(src)) return false;
  if (&dst != &src) dst = src;
  return true;
}

bool Copy(BitmapA& dst, const BitmapA& src) {
  if (!ValidOrEmpty(src)) return false;
  if (&dst != &src) dst = src;
  return true;
}

bool Crop(Bitmap& dst, const Bitmap& src, int x, int y, int w, int h) {
  return CropImpl(dst, src, x, y, w, h);
}
bool Crop(BitmapA& dst, const BitmapA& src, int x, int y, int w, int h) {
  return CropImpl(dst, src, x, y, w, h);
}

bool Blit(Bitmap& dst, const Bitmap& top, int x, int y) {
  if (!Valid(dst) || !Valid(top) || dst.format != top.format) return false;
  vornpix::Span cols = vornpix::Clip(x, top.width, dst.width);
  vornpix::Span rows = vornpix::Clip(y, top.height, dst.height);
  if (cols.count <= 0) return true;  // entirely outside: nothing to draw
  const std::size_t rowBytes = static_cast<std::size_t>(cols.count) * dst.BytesPerPixel();
  for (int r = 0; r < rows.count; ++r)
    std::memcpy(dst.Pixel(cols.start, rows.start + r),
                top.Pixel(cols.start - x, rows.start + r - y), rowBytes);
  return true;
}

bool Blit(BitmapA& dst, const BitmapA& top, int x, int y) {
  if (!Valid(dst) || !Valid(top) || dst.format != top.format) return false;
  vornpix::Span cols = vornpix::Clip(x, top.width, dst.width);
  vornpix::Span rows = vornpix::Clip(y, top.height, dst.height);
  for (int r = 0; r < rows.count; ++r) {
    for (int c = 0; c < cols.count; ++c) {
      ColorA under, over;
      Get(dst, cols.start + c, rows.start + r, under);
      Get(top, cols.start + c - x, rows.start + r - y, over);
      Encode(dst, vornpix::Over(over, over.a, under), dst.Pixel(cols.start + c, rows.start + r));
    }
  }
  return true;
}

bool FlipVert(Bitmap& bmp) {
  return FlipVertImpl(bmp);
}
bool FlipVert(BitmapA& bmp) {
  return FlipVertImpl(bmp);
}
bool FlipHoz(Bitmap& bmp) {
  return FlipHozImpl(bmp);
}
bool FlipHoz(BitmapA& bmp) {
  return FlipHozImpl(bmp);
}

bool ConvertTo(Bitmap& dst, const BitmapA& src) {
  if (!Valid(src)) return false;
  Bitmap out;
  CreateImpl(out, src.width, src.height, src.format);
  const int channels = src.format == 1 ? 1 : 3;
  for (int y = 0; y < src.height; ++y)
    for (int x = 0; x < src.width; ++x) std::memcpy(out.Pixel(x, y), src.Pixel(x, y), channels);
  dst = std::move(out);
  return true;
}

bool ConvertTo(BitmapA& dst, const Bitmap& src) {
  if (!Valid(src)) return false;
  BitmapA out;
  CreateImpl(out, src.width, src.height, src.format);
  const int channels = src.BytesPerPixel();
  for (int y = 0; y < src.height; ++y) {
    for (int x = 0; x < src.width; ++x) {
      unsigned char* p = out.Pixel(x, y);
      std::memcpy(p, src.Pixel(x, y), channels);
      p[channels] = 255;
    }
  }
  dst = std::move(out);
  return true;
}
