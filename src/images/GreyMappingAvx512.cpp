// The grey-mask functions with AVX-512 byte permutes, 64 pixels per step:
// the grey levels of the 64 pixels packed one byte each, so that every
// per-call table is read once per step with two 128-byte permutes, then the
// looked-up bytes interleaved back into pixels. The blend follows the
// integer rule of GreyMappingKernels.h.
#include <algorithm>
#include <cstdint>

#include "GreyMappingKernels.h"

#if defined(__x86_64__) && defined(__GNUC__)
#include <immintrin.h>
#define VORN_GREY_AVX512 1
#endif

namespace grey_detail {

#ifdef VORN_GREY_AVX512
bool HasAvx512Path() {
  static const bool has =
      (__builtin_cpu_init(), true) && __builtin_cpu_supports("avx512f") &&
      __builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("avx512vbmi") &&
      __builtin_cpu_supports("avx512vbmi2") && __builtin_cpu_supports("avx512vnni");
  return has;
}

namespace {
#define VORN_AVX512 __attribute__((target("avx512f,avx512bw,avx512vbmi,avx512vbmi2,avx512vnni")))

constexpr __mmask64 kColour = 0x7777777777777777ull;
constexpr __mmask64 kAlpha = 0x8888888888888888ull;
constexpr __mmask64 kOdd = 0xAAAAAAAAAAAAAAAAull;

// Packing the grey sums of four 16-pixel blocks with two saturating packs
// puts pixel j of block v at byte 16 * (j / 4) + 4 * v + j % 4: in the
// 128-bit lane of the pixel's own bytes in the block, so that bytes looked up
// by packed grey level go back to their pixels with in-lane unpacks and
// shuffles.
struct Indexes {
  alignas(64) unsigned char spread[64];     // pixel p's r, g, b from mask bytes 3p..3p+2
  alignas(64) unsigned char widen[64];      // grey of dword p to its four bytes
  alignas(64) unsigned char own[4][64];     // each byte of block v's pixel: its packed byte
  alignas(64) unsigned char quotient[64];   // byte i from the even or odd product's high byte
  alignas(64) unsigned char remainder[64];  // byte i from the even or odd product's low byte
  Indexes() {
    for (int i = 0; i < 64; ++i) {
      widen[i] = static_cast<unsigned char>((i % 16) / 4 * 4);
      spread[i] = static_cast<unsigned char>(i % 4 == 3 ? 0 : (i / 4) * 3 + i % 4);
      for (int v = 0; v < 4; ++v) own[v][i] = static_cast<unsigned char>(4 * v + (i / 4) % 4);
      quotient[i] = static_cast<unsigned char>(i % 2 ? 64 + i : i + 1);
      remainder[i] = static_cast<unsigned char>(i % 2 ? 63 + i : i);
    }
  }
};

struct Table {
  __m512i q[4];
};

VORN_AVX512 inline Table LoadTable(const unsigned char* bytes) {
  Table t;
  for (int i = 0; i < 4; ++i) t.q[i] = _mm512_loadu_si512(bytes + 64 * i);
  return t;
}

// 64 lookups in a 256-byte table; high: the lanes whose index is 128 or more.
VORN_AVX512 inline __m512i Lookup(const Table& t, __m512i index, __mmask64 high) {
  const __m512i low = _mm512_permutex2var_epi8(t.q[0], index, t.q[1]);
  const __m512i up = _mm512_permutex2var_epi8(t.q[2], index, t.q[3]);
  return _mm512_mask_blend_epi8(high, low, up);
}

// What one call's steps share: the per-call tables loaded into registers.
struct Loaded {
  Table red, green, blue, lambdas, log16;
  __m512i highMask;
};

// The blend's rare case: lanes where d * (255 - grey) is a multiple of 255
// at a grey level that can come out one less (see GreyMappingKernels.h).
// n is the exact quotient, sum the table byte plus n. Where x is 0, log16[0]
// keeps e below 8, and a - 1 either carries or has high bits, so nothing
// changes.
VORN_AVX512 inline __m512i OneLess(__m512i sum, __m512i a, __m512i n, __m512i lambda,
                                   __mmask64 maybe, const Loaded& t) {
  const __m512i sumBelow = _mm512_sub_epi8(sum, _mm512_set1_epi8(1));
  const __m512i log = Lookup(t.log16, n, _mm512_movepi8_mask(n));
  const __m512i bits = _mm512_maskz_permutexvar_epi8(
      ~0ull, _mm512_srli_epi16(_mm512_add_epi8(log, lambda), 2), t.highMask);
  const __mmask64 oneLess =
      _mm512_mask_testn_epi8_mask(maybe, sumBelow, bits) & ~_mm512_cmplt_epu8_mask(sumBelow, a);
  return _mm512_mask_blend_epi8(oneLess, sum, sumBelow);
}

template <bool full>
VORN_AVX512 inline void Store(unsigned char* out, __mmask64 lanes, __m512i value) {
  if (full && lanes == ~0ull)
    _mm512_storeu_si512(out, value);
  else
    _mm512_mask_storeu_epi8(out, lanes, value);
}

// One step of up to 64 pixels from pixel i. Whole steps (full) go with plain
// loads and stores; only the last, partial one needs masks.
template <ColourMode colours, AlphaMode alpha, bool full>
VORN_AVX512 inline void Step(unsigned char* px, const unsigned char* mask, std::size_t i,
                             std::size_t count, const Loaded& t, const Indexes& ix) {
  const __m512i sumWeights = _mm512_set1_epi32(0x00010101);
  const __m512i third = _mm512_set1_epi16(21846);  // (s * 21846) >> 16 == s / 3 for s <= 765
  __m512i grey[4];
  __mmask64 in4[4];
#pragma GCC unroll 4
  for (int v = 0; v < 4; ++v) {
    const std::size_t first = i + 16 * v;
    const std::size_t n = full ? 16 : first >= count ? 0 : std::min<std::size_t>(16, count - first);
    in4[v] = n == 16 ? ~0ull : (1ull << (4 * n)) - 1;
    // Each pixel's three mask bytes into its dword and summed; the thirds
    // are taken once packed to words.
    const __mmask64 in3 = n == 16 ? 0xFFFFFFFFFFFFull : (1ull << (3 * n)) - 1;
    const __m512i rgb = _mm512_maskz_permutexvar_epi8(
        kColour, _mm512_load_si512(ix.spread), _mm512_maskz_loadu_epi8(in3, mask + 3 * first));
    grey[v] = _mm512_dpbusd_epi32(_mm512_setzero_si512(), rgb, sumWeights);
  }
  if constexpr (colours == ColourMode::kKeep) {
    // Alpha alone: each block's grey bytes to its alpha lanes.
    const __m512i widen = _mm512_load_si512(ix.widen);
#pragma GCC unroll 4
    for (int v = 0; v < 4; ++v) {
      if (!in4[v]) break;
      __m512i g = _mm512_shuffle_epi8(_mm512_mulhi_epu16(grey[v], third), widen);
      if constexpr (alpha == AlphaMode::kMap) g = _mm512_movm_epi8(_mm512_test_epi8_mask(g, g));
      Store<full>(px + 4 * (i + 16 * v), in4[v] & kAlpha, g);
    }
  } else {
    const __m512i packed =
        _mm512_packus_epi16(_mm512_mulhi_epu16(_mm512_packus_epi32(grey[0], grey[1]), third),
                            _mm512_mulhi_epu16(_mm512_packus_epi32(grey[2], grey[3]), third));
    const __mmask64 high = _mm512_movepi8_mask(packed);
    const __m512i r = Lookup(t.red, packed, high);
    const __m512i g = Lookup(t.green, packed, high);
    const __m512i b = Lookup(t.blue, packed, high);
    __m512i alphas = packed;
    if constexpr (alpha == AlphaMode::kMap)
      alphas = _mm512_movm_epi8(_mm512_test_epi8_mask(packed, packed));
    // The table bytes of block v's pixels: r, g, b and alpha interleaved.
    const __m512i rgLow = _mm512_unpacklo_epi8(r, g), rgHigh = _mm512_unpackhi_epi8(r, g);
    const __m512i baLow = _mm512_unpacklo_epi8(b, alphas), baHigh = _mm512_unpackhi_epi8(b, alphas);
    const __m512i a[4] = {_mm512_unpacklo_epi16(rgLow, baLow), _mm512_unpackhi_epi16(rgLow, baLow),
                          _mm512_unpacklo_epi16(rgHigh, baHigh),
                          _mm512_unpackhi_epi16(rgHigh, baHigh)};
    if constexpr (colours == ColourMode::kSet) {
#pragma GCC unroll 4
      for (int v = 0; v < 4; ++v)
        if (in4[v])
          Store<full>(px + 4 * (i + 16 * v), alpha == AlphaMode::kKeep ? in4[v] & kColour : in4[v],
                      a[v]);
    } else {
      const __m512i inverse = _mm512_sub_epi8(_mm512_set1_epi8(-1), packed);  // 255 - grey
      const __m512i lambda = Lookup(t.lambdas, packed, high);
      const __m512i lowOne = _mm512_set1_epi16(0x0100), oneWord = _mm512_set1_epi16(1);
      const __m512i highByte = _mm512_set1_epi16(static_cast<short>(0xFF00));
      const __m512i quotients = _mm512_load_si512(ix.quotient);
      const __m512i remainders = _mm512_load_si512(ix.remainder);
#pragma GCC unroll 4
      for (int v = 0; v < 4; ++v) {
        if (!in4[v]) break;
        unsigned char* out = px + 4 * (i + 16 * v);
        const __m512i own = _mm512_load_si512(ix.own[v]);
        const __m512i d = full ? _mm512_loadu_si512(out) : _mm512_maskz_loadu_epi8(in4[v], out);
        // With x = d * (255 - grey) and keep 255 - grey in both bytes of
        // each word, the high half of (256 d + 1) * keep has x / 255
        // rounded down in its high byte, and a low byte of 0 exactly where
        // x is a multiple of 255. Even bytes and odd bytes each take one
        // multiply.
        const __m512i keep = _mm512_shuffle_epi8(inverse, own);
        const __m512i ye = _mm512_mulhi_epu16(_mm512_shldi_epi16(d, lowOne, 8), keep);
        const __m512i yo =
            _mm512_mulhi_epu16(_mm512_ternarylogic_epi32(d, highByte, oneWord, 0xEA), keep);
        const __m512i n = _mm512_permutex2var_epi8(ye, quotients, yo);
        __m512i sum = _mm512_mask_add_epi8(alpha == AlphaMode::kKeep ? d : a[v], kColour, a[v], n);
        // Multiples of 255 at grey levels that can come out one less.
        const __m512i lambdaPx = _mm512_shuffle_epi8(lambda, own);
        const __m512i low = _mm512_permutex2var_epi8(ye, remainders, yo);
        const __mmask64 maybe = _mm512_mask_testn_epi8_mask(
            _mm512_mask_test_epi8_mask(kColour, lambdaPx, lambdaPx), low, low);
        if (maybe) sum = OneLess(sum, a[v], n, lambdaPx, maybe, t);
        Store<full>(out, in4[v], sum);
      }
    }
  }
}

template <ColourMode colours, AlphaMode alpha>
VORN_AVX512 std::size_t Run(unsigned char* px, const unsigned char* mask, std::size_t count,
                            const GreyTables& tables) {
  static const Indexes ix;
  const BlendRule& rule = Rule();
  Loaded t{};
  if constexpr (colours != ColourMode::kKeep) {
    t.red = LoadTable(tables.byGrey[0].data());
    t.green = LoadTable(tables.byGrey[1].data());
    t.blue = LoadTable(tables.byGrey[2].data());
  }
  if constexpr (colours == ColourMode::kMap) {
    t.lambdas = LoadTable(rule.lambda.data());
    t.log16 = LoadTable(rule.log16.data());
    t.highMask = _mm512_load_si512(rule.highMask.data());
  }
  std::size_t i = 0;
  for (; i + 64 <= count; i += 64) Step<colours, alpha, true>(px, mask, i, count, t, ix);
  if (i < count) Step<colours, alpha, false>(px, mask, i, count, t, ix);
  return count;
}
}  // namespace

template <ColourMode colours, AlphaMode alpha>
std::size_t GreyAvx512(unsigned char* px, const unsigned char* mask, std::size_t count,
                       const GreyTables& tables) {
  return HasAvx512Path() ? Run<colours, alpha>(px, mask, count, tables) : 0;
}
#else
bool HasAvx512Path() {
  return false;
}

template <ColourMode colours, AlphaMode alpha>
std::size_t GreyAvx512(unsigned char*, const unsigned char*, std::size_t, const GreyTables&) {
  return 0;
}
#endif

#define VORN_GREY_INSTANTIATE(C, A)                             \
  template std::size_t GreyAvx512<ColourMode::C, AlphaMode::A>( \
      unsigned char*, const unsigned char*, std::size_t, const GreyTables&);
VORN_GREY_INSTANTIATE(kKeep, kMap)
VORN_GREY_INSTANTIATE(kKeep, kSet)
VORN_GREY_INSTANTIATE(kMap, kKeep)
VORN_GREY_INSTANTIATE(kMap, kMap)
VORN_GREY_INSTANTIATE(kSet, kKeep)
VORN_GREY_INSTANTIATE(kSet, kSet)

}  // namespace grey_detail
