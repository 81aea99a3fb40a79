#pragma once
// Shared by the implementations of the grey-mask functions (GreyMapping*.cpp).
// Not installed: the library's own code and its tests use it.
#include <array>
#include <cstddef>
#include <cstdint>

// Which implementation the grey-mask functions use.
enum class GreyPath { kAuto, kAvx512, kAvx2, kPlain };

// Whether this processor can run the path (kAuto and kPlain always can).
bool GreyPathAvailable(GreyPath path);
// Makes later calls use the path; false, changing nothing, where it is not
// available. kAuto restores the choice by processor.
bool ForceGreyPath(GreyPath path);
// The path later calls use.
GreyPath CurrentGreyPath();

namespace grey_detail {

enum class AlphaMode { kKeep, kMap, kSet };
enum class ColourMode { kKeep, kMap, kSet };

// What a call's results depend on besides the pixel's own bytes.
struct GreyTables {
  // map: trunc(c*t*255) mod 256; set: trunc(c*grey) mod 256
  alignas(64) std::array<std::array<unsigned char, 256>, 3> byGrey{};
  alignas(
      64) std::array<std::uint32_t, 256> packed{};  // the three bytes, and lambda in the top one
  std::array<double, 256> keep{};                   // map: 1 - t
};

// The blend trunc(a + d * (1 - t)) in integers. With x = d * (255 - grey),
// n = x / 255 rounded down gives it as a + n wherever x is not a multiple of
// 255: x / 255 then lies at least 1/255 from a whole number, far beyond the
// rounding of the doubles. Where x is a nonzero multiple ("whole") the double
// product can land just below n, and the result is one less than a + n
// exactly while a + n <= 2^e, with
//   e = ((log16[n] + lambda[grey]) >> 4) - 2,
// applied as: no carry in a + n - 1 and (a + n - 1) & highMask[...] == 0.
// lambda is 0 for the grey levels where it never happens. The lambdas are
// found once from the double blend itself and checked against it for every
// whole case and every a; were any missing, the integer forms stay off.
struct BlendRule {
  alignas(64) std::array<unsigned char, 256> lambda{};
  alignas(64) std::array<unsigned char, 256> log16{};    // by n: floor(16 log2 n), 0 for 0
  alignas(64) std::array<unsigned char, 64> highMask{};  // by (log16 + lambda) >> 2
  bool usable = true;
};
const BlendRule& Rule();

unsigned char Blend(int a, int d, double keep);
inline int GreyAt(const unsigned char* rgb) {
  return (rgb[0] + rgb[1] + rgb[2]) / 3;
}

// Each returns how many leading pixels it did; the plain loop does the rest.
template <ColourMode colours, AlphaMode alpha>
std::size_t GreyAvx512(unsigned char* px, const unsigned char* mask, std::size_t count,
                       const GreyTables& tables);
template <ColourMode colours, AlphaMode alpha>
std::size_t GreyAvx2(unsigned char* px, const unsigned char* mask, std::size_t count,
                     const GreyTables& tables);

bool HasAvx512Path();
bool HasAvx2Path();

}  // namespace grey_detail
