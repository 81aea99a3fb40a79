#pragma once
// Pixel arithmetic shared by the image, filter and drawing code.
#include <algorithm>
#include <cstdint>

#include "vornhost/Color.h"

namespace vornpix {

// 0..1 channel to a byte: trunc(c * 255), clamped; NaN gives 0.
inline unsigned char ToByte(double c) {
  if (!(c > 0.0)) return 0;
  if (c >= 1.0) return 255;
  return static_cast<unsigned char>(c * 255.0);
}

inline double Clamp01(double v) {
  return v > 0.0 ? (v < 1.0 ? v : 1.0) : 0.0;
}

// The part of [start, start + length) that lies in [0, limit).
struct Span {
  int start;
  int count;
};
inline Span Clip(std::int64_t start, std::int64_t length, std::int64_t limit) {
  const std::int64_t lo = std::max<std::int64_t>(start, 0);
  const std::int64_t hi = std::min<std::int64_t>(start + length, limit);
  return Span{static_cast<int>(std::min<std::int64_t>(lo, limit)),
              static_cast<int>(std::max<std::int64_t>(hi - lo, 0))};
}

// "Over" compositing of colour s with coverage weight onto d, with straight
// (not premultiplied) colours. Weight 1 gives s exactly, weight 0 gives d.
inline ColorA Over(const ColorA& s, double weight, const ColorA& d) {
  const double w = Clamp01(weight);
  if (w >= 1.0) return ColorA(s.r, s.g, s.b, 1.0);
  const double da = Clamp01(d.a) * (1.0 - w);
  const double a = w + da;
  if (a <= 0.0) return ColorA(0.0, 0.0, 0.0, 0.0);
  return ColorA((s.r * w + d.r * da) / a, (s.g * w + d.g * da) / a, (s.b * w + d.b * da) / a, a);
}

}  // namespace vornpix
