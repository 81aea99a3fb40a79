// The grey-mask functions of the image scripts: the colour channels and the
// alpha of an RGBA bitmap set or blended from the brightness of a mask.
//
// Every result depends only on the pixel's grey level and, for the blends,
// on the destination byte, so each call tabulates what depends on the grey
// level once. Where the processor has 512-bit byte permutes the pixels then
// go sixteen at a time through integer arithmetic and table permutes that
// give the same bytes as the double formulas; elsewhere a plain loop reads
// the tables.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

#include "vorn/GraphicsFunctions.h"
#include "vorn/VornAssert.h"

#if defined(__x86_64__) && defined(__GNUC__)
#include <immintrin.h>
#define VORN_GREY_VBMI 1
#endif

namespace {
// trunc(v) as its low byte, without undefined behaviour for huge or NaN v.
inline unsigned char LowByte(double v) {
  if (v > -2147483648.0 && v < 2147483648.0) return static_cast<unsigned char>(static_cast<int>(v));
  if (std::isnan(v)) return 0;
  double m = std::fmod(std::trunc(v), 256.0);
  if (m < 0) m += 256.0;
  return static_cast<unsigned char>(m);
}

// The blend of one colour channel: trunc(a + d * keep) with a and d bytes.
// Both terms lie in 0..255, so the sum converts to int safely.
inline unsigned char Blend(int a, int d, double keep) {
  return static_cast<unsigned char>(static_cast<int>(a + d * keep));
}

inline int GreyAt(const unsigned char* rgb) {
  return (rgb[0] + rgb[1] + rgb[2]) / 3;
}

bool GreyMaskUsable(const BitmapA& dst, const wxImage& grey) {
  const int gw = grey.IsOk() ? grey.GetWidth() : 0;
  const int gh = grey.IsOk() ? grey.GetHeight() : 0;
  VORN_ASSERT(dst.width == gw && dst.height == gh);
  VORN_ASSERT(dst.format == 3);
  if (dst.width != gw || dst.height != gh || dst.format != 3) return false;
  const bool fits = dst.data.size() >= static_cast<std::size_t>(gw) * gh * 4;
  VORN_ASSERT(fits);
  return fits;
}

enum class AlphaMode { kKeep, kMap, kSet };
enum class ColourMode { kKeep, kMap, kSet };

// What a call's results depend on besides the pixel's own bytes.
struct GreyTables {
  // map: trunc(c*t*255) mod 256; set: trunc(c*grey) mod 256
  alignas(64) std::array<std::array<unsigned char, 256>, 3> byGrey{};
  std::array<double, 256> keep{};  // map: 1 - t
};

template <ColourMode colours>
void FillTables(GreyTables& tables, const Color* colour) {
  if constexpr (colours == ColourMode::kKeep) return;
  const double c[3] = {colour->r, colour->g, colour->b};
  for (int g = 0; g < 256; ++g) {
    const double t = g / 255.0;
    tables.keep[g] = 1 - t;
    for (int ch = 0; ch < 3; ++ch)
      tables.byGrey[ch][g] =
          colours == ColourMode::kMap ? LowByte(c[ch] * t * 255) : LowByte(c[ch] * g);
  }
}

template <ColourMode colours, AlphaMode alpha>
void GreyLoop(unsigned char* px, const unsigned char* mask, std::size_t count,
              const GreyTables& tables) {
  for (std::size_t i = 0; i < count; ++i, mask += 3, px += 4) {
    const int g = GreyAt(mask);
    if constexpr (colours == ColourMode::kMap) {
      for (int ch = 0; ch < 3; ++ch) px[ch] = Blend(tables.byGrey[ch][g], px[ch], tables.keep[g]);
    } else if constexpr (colours == ColourMode::kSet) {
      for (int ch = 0; ch < 3; ++ch) px[ch] = tables.byGrey[ch][g];
    }
    if constexpr (alpha == AlphaMode::kMap)
      px[3] = g == 0 ? 0 : 255;
    else if constexpr (alpha == AlphaMode::kSet)
      px[3] = static_cast<unsigned char>(g);
  }
}

#ifdef VORN_GREY_VBMI
// The blend in integers: a + n, n = d*(255-grey)/255 rounded down. Where that
// quotient is not whole it is at least 1/255 away from a whole number, far
// beyond the rounding of the doubles, so both forms agree. Where it is whole
// the double product can land just below it, and the sum with a then rounds
// to just below a + n (one less after trunc) exactly while a + n is at most
// the largest power of two not above k*n, for one factor k per grey level
// (0 where it never happens). The factors are found once, from the double
// blend itself, and checked against it for every whole case and every a; if
// any disagreed the fast path would stay off.
struct BlendFactors {
  alignas(64) std::array<unsigned char, 256> low{};   // k * 256, low byte
  alignas(64) std::array<unsigned char, 256> high{};  // k * 256, high byte
  bool usable = true;
};

inline int FloorPowerOfTwo(int x) {
  int p = 1;
  while (p * 2 <= x) p *= 2;
  return x > 0 ? p : 0;
}

const BlendFactors& Factors() {
  static const BlendFactors factors = [] {
    BlendFactors f;
    std::array<int, 256> k256{};
    // The smallest factor that covers every a that comes out one less.
    for (int g = 1; g < 255; ++g) {
      const double keep = 1 - g / 255.0;
      for (int d = 1; d < 256; ++d) {
        const int product = d * (255 - g);
        if (product % 255) continue;
        const int n = product / 255;
        int last = -1;
        for (int a = 0; a < 256; ++a)
          if (Blend(a, d, keep) != static_cast<unsigned char>(a + n)) last = a;
        if (last >= 0) k256[g] = std::max(k256[g], ((last + n) * 256 + n - 1) / n);
      }
    }
    for (int g = 0; g < 256; ++g) {
      if (k256[g] > 0xFFFF) f.usable = false;
      f.low[g] = static_cast<unsigned char>(k256[g] & 0xFF);
      f.high[g] = static_cast<unsigned char>((k256[g] >> 8) & 0xFF);
    }
    // The rule, as the kernel computes it, against the double blend.
    for (int g = 1; g < 255 && f.usable; ++g) {
      const double keep = 1 - g / 255.0;
      for (int d = 1; d < 256; ++d) {
        const int product = d * (255 - g);
        if (product % 255) continue;
        const int n = product / 255;
        const int limit = FloorPowerOfTwo((n * 256 * (k256[g] & 0xFFFF)) >> 16);
        for (int a = 0; a < 256; ++a) {
          const auto rule = static_cast<unsigned char>(a + n - (a + n <= limit ? 1 : 0));
          if (rule != Blend(a, d, keep)) f.usable = false;
        }
      }
    }
    return f;
  }();
  return factors;
}

bool HasByteShuffles() {
  static const bool has = (__builtin_cpu_init(), true) && __builtin_cpu_supports("avx512f") &&
                          __builtin_cpu_supports("avx512bw") &&
                          __builtin_cpu_supports("avx512vbmi");
  return has;
}

#define VORN_VBMI __attribute__((target("avx512f,avx512bw,avx512vbmi")))

struct Table {
  __m512i q[4];
};

VORN_VBMI inline Table LoadTable(const unsigned char* bytes) {
  Table t;
  for (int i = 0; i < 4; ++i) t.q[i] = _mm512_loadu_si512(bytes + 64 * i);
  return t;
}

// 64 lookups in a 256-byte table.
VORN_VBMI inline __m512i Lookup(const Table& t, __m512i index) {
  const __m512i low = _mm512_permutex2var_epi8(t.q[0], index, t.q[1]);
  const __m512i high = _mm512_permutex2var_epi8(t.q[2], index, t.q[3]);
  return _mm512_mask_blend_epi8(_mm512_movepi8_mask(index), low, high);
}

// The blend of 32 lanes widened to sixteen bits (d, 255 - grey, a and the
// grey level's factor), as its low byte.
VORN_VBMI inline __m512i BlendHalf(__m512i d, __m512i keep, __m512i a, __m512i factor) {
  const __m512i x = _mm512_mullo_epi16(d, keep);
  // (x * 0x8081) >> 23 == x / 255 for every 16-bit x.
  const __m512i n =
      _mm512_srli_epi16(_mm512_mulhi_epu16(x, _mm512_set1_epi16(static_cast<short>(0x8081))), 7);
  const __mmask32 whole = _mm512_cmpeq_epi16_mask(x, _mm512_sub_epi16(_mm512_slli_epi16(n, 8), n));
  // a + n <= the largest power of two not above limit exactly when the top
  // bit of limit is not below that of 2(a + n) - 1: msb(x) < msb(y) holds
  // exactly when x < y and x < (x ^ y).
  const __m512i limit = _mm512_mulhi_epu16(_mm512_slli_epi16(n, 8), factor);
  const __m512i sum = _mm512_add_epi16(a, n);
  const __m512i twice = _mm512_sub_epi16(_mm512_add_epi16(sum, sum), _mm512_set1_epi16(1));
  const __mmask32 lowerTop = _mm512_cmplt_epu16_mask(limit, twice) &
                             _mm512_cmplt_epu16_mask(limit, _mm512_xor_si512(limit, twice));
  const __mmask32 oneLess = whole & _mm512_test_epi16_mask(n, n) & ~lowerTop;
  const __m512i r = _mm512_mask_sub_epi16(sum, oneLess, sum, _mm512_set1_epi16(1));
  return _mm512_and_si512(r, _mm512_set1_epi16(0x00FF));
}

constexpr __mmask64 kGreen = 0x2222222222222222ull;
constexpr __mmask64 kBlue = 0x4444444444444444ull;
constexpr __mmask64 kColourLanes = 0x7777777777777777ull;
constexpr __mmask64 kAlphaLanes = 0x8888888888888888ull;

// Sixteen pixels per step; the last step masks its loads and stores.
template <ColourMode colours, AlphaMode alpha>
VORN_VBMI void GreyVbmi(unsigned char* px, const unsigned char* mask, std::size_t count,
                        const GreyTables& tables, const BlendFactors& factors) {
  alignas(64) unsigned char spread[64];  // pixel p's r, g, b from mask bytes 3p..3p+2
  alignas(64) unsigned char widen[64];   // grey of dword p to all its four bytes
  for (int i = 0; i < 64; ++i) {
    spread[i] = static_cast<unsigned char>(i % 4 == 3 ? 0 : (i / 4) * 3 + i % 4);
    widen[i] = static_cast<unsigned char>((i % 16) / 4 * 4);
  }
  const __m512i spreadIndex = _mm512_load_si512(spread);
  const __m512i widenIndex = _mm512_load_si512(widen);
  const __m512i sumWeights = _mm512_set1_epi32(0x00010101);
  const __m512i ones16 = _mm512_set1_epi16(1);
  const __m512i third = _mm512_set1_epi32(21846);  // (s * 21846) >> 16 == s / 3 for s <= 765
  const __m512i zero = _mm512_setzero_si512();
  Table red{}, green{}, blue{}, factorLow{}, factorHigh{};
  if constexpr (colours != ColourMode::kKeep) {
    red = LoadTable(tables.byGrey[0].data());
    green = LoadTable(tables.byGrey[1].data());
    blue = LoadTable(tables.byGrey[2].data());
  }
  if constexpr (colours == ColourMode::kMap) {
    factorLow = LoadTable(factors.low.data());
    factorHigh = LoadTable(factors.high.data());
  }
  for (std::size_t i = 0; i < count; i += 16) {
    const std::size_t n = std::min<std::size_t>(16, count - i);
    const __mmask64 in3 = n == 16 ? 0xFFFFFFFFFFFFull : (1ull << (3 * n)) - 1;
    const __mmask64 in4 = n == 16 ? ~0ull : (1ull << (4 * n)) - 1;
    const __m512i rgb = _mm512_maskz_loadu_epi8(in3, mask + 3 * i);
    const __m512i spreadRgb = _mm512_maskz_permutexvar_epi8(kColourLanes, spreadIndex, rgb);
    const __m512i sum = _mm512_madd_epi16(_mm512_maddubs_epi16(spreadRgb, sumWeights), ones16);
    const __m512i grey = _mm512_shuffle_epi8(_mm512_mulhi_epu16(sum, third), widenIndex);
    const __m512i d = _mm512_maskz_loadu_epi8(in4, px + 4 * i);
    __m512i out = d;
    if constexpr (colours != ColourMode::kKeep) {
      __m512i v = _mm512_mask_blend_epi8(kGreen, Lookup(red, grey), Lookup(green, grey));
      v = _mm512_mask_blend_epi8(kBlue, v, Lookup(blue, grey));
      if constexpr (colours == ColourMode::kMap) {
        const __m512i keep = _mm512_xor_si512(grey, _mm512_set1_epi8(-1));  // 255 - grey
        const __m512i kLow = Lookup(factorLow, grey), kHigh = Lookup(factorHigh, grey);
        const __m512i low =
            BlendHalf(_mm512_unpacklo_epi8(d, zero), _mm512_unpacklo_epi8(keep, zero),
                      _mm512_unpacklo_epi8(v, zero), _mm512_unpacklo_epi8(kLow, kHigh));
        const __m512i high =
            BlendHalf(_mm512_unpackhi_epi8(d, zero), _mm512_unpackhi_epi8(keep, zero),
                      _mm512_unpackhi_epi8(v, zero), _mm512_unpackhi_epi8(kLow, kHigh));
        v = _mm512_packus_epi16(low, high);
      }
      out = _mm512_mask_blend_epi8(kColourLanes, out, v);
    }
    if constexpr (alpha == AlphaMode::kMap)
      out = _mm512_mask_blend_epi8(kAlphaLanes, out,
                                   _mm512_movm_epi8(_mm512_test_epi8_mask(grey, grey)));
    else if constexpr (alpha == AlphaMode::kSet)
      out = _mm512_mask_blend_epi8(kAlphaLanes, out, grey);
    _mm512_mask_storeu_epi8(px + 4 * i, in4, out);
  }
}
#endif

template <ColourMode colours, AlphaMode alpha>
bool ApplyGrey(BitmapA& dst, const wxImage& grey, const Color* colour) {
  if (!GreyMaskUsable(dst, grey)) return false;
  const std::size_t count = static_cast<std::size_t>(dst.width) * dst.height;
  if (count == 0) return true;
  GreyTables tables;
  FillTables<colours>(tables, colour);
#ifdef VORN_GREY_VBMI
  if (HasByteShuffles() && Factors().usable) {
    GreyVbmi<colours, alpha>(dst.data.data(), grey.GetData(), count, tables, Factors());
    return true;
  }
#endif
  GreyLoop<colours, alpha>(dst.data.data(), grey.GetData(), count, tables);
  return true;
}
}  // namespace

bool MapAlphaFromGrey(BitmapA& dst, const wxImage& grey) {
  return ApplyGrey<ColourMode::kKeep, AlphaMode::kMap>(dst, grey, nullptr);
}

bool MapColoursFromGrey(BitmapA& dst, const wxImage& grey, const Color& c) {
  return ApplyGrey<ColourMode::kMap, AlphaMode::kKeep>(dst, grey, &c);
}

bool MapAllFromGrey(BitmapA& dst, const wxImage& grey, const Color& c) {
  return ApplyGrey<ColourMode::kMap, AlphaMode::kMap>(dst, grey, &c);
}

bool SetAlphaFromGrey(BitmapA& dst, const wxImage& grey) {
  return ApplyGrey<ColourMode::kKeep, AlphaMode::kSet>(dst, grey, nullptr);
}

bool SetColoursFromGrey(BitmapA& dst, const wxImage& grey, const Color& c) {
  return ApplyGrey<ColourMode::kSet, AlphaMode::kKeep>(dst, grey, &c);
}

bool SetAllFromGrey(BitmapA& dst, const wxImage& grey, const Color& c) {
  return ApplyGrey<ColourMode::kSet, AlphaMode::kSet>(dst, grey, &c);
}
