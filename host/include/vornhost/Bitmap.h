#pragma once
// Plain in-memory images. Rows run top to bottom, pixels left to right, with
// no row padding.
//   Bitmap:  format 3 = R,G,B (3 bytes/pixel); format 1 = grey (1 byte).
//   BitmapA: format 3 = R,G,B,A (4 bytes/pixel); format 1 = grey,alpha (2 bytes).
// Every function here returns false (and leaves its output unchanged unless
// stated) for an unsupported format or a bad size; none reads or writes
// outside an image.
#include <cstddef>
#include <vector>

#include "vornhost/Color.h"

struct Bitmap {
  int width = 0;
  int height = 0;
  int format = 3;
  std::vector<unsigned char> data;

  int BytesPerPixel() const { return format == 1 ? 1 : 3; }
  bool IsEmpty() const { return width <= 0 || height <= 0; }
  unsigned char* Pixel(int x, int y) {
    return data.data() + (static_cast<std::size_t>(y) * width + x) * BytesPerPixel();
  }
  const unsigned char* Pixel(int x, int y) const {
    return data.data() + (static_cast<std::size_t>(y) * width + x) * BytesPerPixel();
  }
};

struct BitmapA {
  int width = 0;
  int height = 0;
  int format = 3;
  std::vector<unsigned char> data;

  int BytesPerPixel() const { return format == 1 ? 2 : 4; }
  bool IsEmpty() const { return width <= 0 || height <= 0; }
  unsigned char* Pixel(int x, int y) {
    return data.data() + (static_cast<std::size_t>(y) * width + x) * BytesPerPixel();
  }
  const unsigned char* Pixel(int x, int y) const {
    return data.data() + (static_cast<std::size_t>(y) * width + x) * BytesPerPixel();
  }
};

// Largest width or height Create accepts; keeps a bad size from a data file
// from asking for unbounded memory.
constexpr int kMaxBitmapSide = 16384;

// Allocates width x height pixels of the format, all bytes zero. False (and
// the bitmap emptied) for a non-positive or too large size or a format other
// than 1 or 3.
bool Create(Bitmap& bmp, int width, int height, int format = 3);
bool Create(BitmapA& bmp, int width, int height, int format = 3);

// Frees the pixels: width and height 0, format 3.
bool Clear(Bitmap& bmp);
bool Clear(BitmapA& bmp);

// Sets one pixel (false outside the image). Grey formats take the mean of the
// colour channels. Channels are stored as trunc(c * 255) clamped to 0..255.
bool Set(Bitmap& bmp, int x, int y, const Color& c);
bool Set(BitmapA& bmp, int x, int y, const ColorA& c);
// Reads one pixel as channels / 255.0 (alpha 1 for Bitmap); false outside.
bool Get(const Bitmap& bmp, int x, int y, Color& out);
bool Get(const BitmapA& bmp, int x, int y, ColorA& out);

// Sets every pixel (false for an empty bitmap).
bool ClearBitmap(Bitmap& bmp, const Color& c);
bool ClearBitmap(BitmapA& bmp, const ColorA& c);

// dst becomes an exact copy (size, format, pixels); an empty src gives an
// empty dst.
bool Copy(Bitmap& dst, const Bitmap& src);
bool Copy(BitmapA& dst, const BitmapA& src);

// Copies the rectangle (x, y, w, h) of src into dst, which takes its size and
// format. The rectangle is clipped to src; false when nothing is left.
bool Crop(Bitmap& dst, const Bitmap& src, int x, int y, int w, int h);
bool Crop(BitmapA& dst, const BitmapA& src, int x, int y, int w, int h);

// Draws top onto dst with its top-left corner at (x, y), clipped to dst.
// For BitmapA the top image's alpha blends it over dst ("over" compositing);
// the Bitmap form copies. Both images must have the same format. A top image
// lying entirely outside dst draws nothing and is not an error.
bool Blit(Bitmap& dst, const Bitmap& top, int x, int y);
bool Blit(BitmapA& dst, const BitmapA& top, int x, int y);

// Mirror images in place.
bool FlipVert(Bitmap& bmp);
bool FlipVert(BitmapA& bmp);
bool FlipHoz(Bitmap& bmp);
bool FlipHoz(BitmapA& bmp);

// Conversions between the two kinds: RGB(A) <-> grey(+alpha) keeps the format;
// ConvertTo(Bitmap&, const BitmapA&) drops alpha, the other sets alpha 255.
bool ConvertTo(Bitmap& dst, const BitmapA& src);
bool ConvertTo(BitmapA& dst, const Bitmap& src);

// Decodes PNG bytes (RGB, RGBA, grey, grey+alpha and palette files, any bit
// depth) into a format-3 image; the Bitmap form drops alpha and keeps the
// colour. False, output unchanged, for corrupt or truncated data, an image
// larger than kMaxBitmapSide, or a header claiming more pixels than the bytes
// could hold.
bool LoadBitmapDecode(const unsigned char* data, int size, Bitmap& out);
bool LoadBitmapADecode(const unsigned char* data, int size, BitmapA& out);

// Encodes a format-3 image as PNG bytes (used by tools and tests).
bool SaveBitmapEncode(const Bitmap& bmp, std::vector<unsigned char>& out);
bool SaveBitmapAEncode(const BitmapA& bmp, std::vector<unsigned char>& out);
