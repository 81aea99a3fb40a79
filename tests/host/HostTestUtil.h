#pragma once
// Helpers shared by the host layer tests.
#include <algorithm>
#include <cmath>
#include <vector>

#include "vornhost/Bitmap.h"

typedef std::vector<unsigned char> Px;

// The bytes of one pixel, in the image's own layout.
template <class B>
Px Bytes(const B& b, int x, int y) {
  return Px(b.Pixel(x, y), b.Pixel(x, y) + b.BytesPerPixel());
}

// An opaque image whose every pixel encodes its own position: R = x, G = y, B = 7.
template <class B>
B Numbered(int w, int h) {
  B b;
  Create(b, w, h, 3);
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) {
      unsigned char* p = b.Pixel(x, y);
      p[0] = static_cast<unsigned char>(x);
      p[1] = static_cast<unsigned char>(y);
      p[2] = 7;
      if (b.BytesPerPixel() == 4) p[3] = 255;
    }
  return b;
}

// Largest channel difference between two colours.
inline double Distance(const Color& a, const Color& b) {
  return std::max({std::fabs(a.r - b.r), std::fabs(a.g - b.g), std::fabs(a.b - b.b)});
}
