// The grey-mask functions with AVX-512 byte permutes, 64 pixels per step:
// the grey levels of the 64 pixels packed one byte each, so that every
// per-call table is read once per step with two 128-byte permutes, then the
// looked-up bytes spread to each pixel's channels. The blend follows the
// integer rule of GreyMappingKernels.h.
#include <algorithm>

#include "GreyMappingKernels.h"

#if defined(__x86_64__) && defined(__GNUC__)
#include <immintrin.h>
#define VORN_GREY_AVX512 1
#endif

namespace grey_detail {

#ifdef VORN_GREY_AVX512
bool HasAvx512Path() {
  static const bool has = (__builtin_cpu_init(), true) && __builtin_cpu_supports("avx512f") &&
                          __builtin_cpu_supports("avx512bw") &&
                          __builtin_cpu_supports("avx512vbmi");
  return has;
}

namespace {
#define VORN_AVX512 __attribute__((target("avx512f,avx512bw,avx512vbmi")))

constexpr __mmask64 kGreen = 0x2222222222222222ull;
constexpr __mmask64 kBlue = 0x4444444444444444ull;
constexpr __mmask64 kColour = 0x7777777777777777ull;
constexpr __mmask64 kAlpha = 0x8888888888888888ull;
constexpr __mmask64 kOdd = 0xAAAAAAAAAAAAAAAAull;

// Byte indexes. Packing the grey dwords of four 16-pixel blocks with two
// saturating packs puts pixel j of block v at byte 16 * (j / 4) + 4 * v + j % 4:
// in the same 128-bit lane as the pixel's own bytes in the block, so that
// in-lane byte shuffles, cheaper than permutes across the register, spread
// whatever is looked up by packed grey level.
struct Indexes {
  alignas(64) unsigned char spread[64];  // pixel p's r, g, b from mask bytes 3p..3p+2
  alignas(64) unsigned char widen[64];   // grey of dword p to its four bytes
  alignas(64) unsigned char own[4][64];  // each byte of block v's pixel: its packed byte in-lane
  Indexes() {
    for (int i = 0; i < 64; ++i) {
      spread[i] = static_cast<unsigned char>(i % 4 == 3 ? 0 : (i / 4) * 3 + i % 4);
      widen[i] = static_cast<unsigned char>((i % 16) / 4 * 4);
      for (int v = 0; v < 4; ++v) {
        own[v][i] = static_cast<unsigned char>(4 * v + (i / 4) % 4);
      }
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

// The blend of one 16-pixel block: a holds the table bytes, base what the
// alpha lanes get, d the destination, keep 255 - grey in both bytes of each
// word. With x = d * (255 - grey), the high half of (d << 8) * keep is
// y = x + (x >> 8) (see GreyMappingKernels.h) without a separate multiply,
// shift and add.
VORN_AVX512 inline __m512i BlendBlock(__m512i a, __m512i base, __m512i d, __m512i keep,
                                      __m512i lambda, const Table& log16, __m512i highMask) {
  const __m512i highByte = _mm512_set1_epi16(static_cast<short>(0xFF00));
  const __m512i allOnes = _mm512_set1_epi8(-1);
  const __m512i ye = _mm512_mulhi_epu16(_mm512_slli_epi16(d, 8), keep);
  const __m512i yo = _mm512_mulhi_epu16(_mm512_and_si512(d, highByte), keep);
  const __m512i n =
      _mm512_mask_blend_epi8(kOdd, _mm512_srli_epi16(ye, 8), yo);  // less one if whole
  const __m512i low = _mm512_mask_blend_epi8(kOdd, ye, _mm512_slli_epi16(yo, 8));
  const __mmask64 whole = _mm512_mask_cmpeq_epi8_mask(kColour, low, allOnes);
  const __m512i sum = _mm512_mask_add_epi8(base, kColour, a, n);
  __mmask64 plusOne = whole;
  const __mmask64 maybe = _mm512_mask_test_epi8_mask(whole, lambda, lambda);
  if (maybe) {  // rare: whole blends at the grey levels that can come out one less
    const __m512i log = Lookup(log16, n, _mm512_movepi8_mask(n));
    const __m512i bits = _mm512_maskz_permutexvar_epi8(
        ~0ull, _mm512_srli_epi16(_mm512_add_epi8(log, lambda), 2), highMask);
    const __mmask64 oneLess =
        _mm512_mask_testn_epi8_mask(maybe, sum, bits) & ~_mm512_cmplt_epu8_mask(sum, a);
    plusOne = whole & ~oneLess;
  }
  return _mm512_mask_sub_epi8(sum, plusOne, sum, allOnes);
}

// What one call's steps share: the per-call tables loaded into registers.
struct Loaded {
  Table red, green, blue, lambdas, log16;
  __m512i highMask;
};

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
  const __m512i spread = _mm512_load_si512(ix.spread);
  const __m512i sumWeights = _mm512_set1_epi32(0x00010101);
  const __m512i ones16 = _mm512_set1_epi16(1);
  const __m512i third = _mm512_set1_epi32(21846);  // (s * 21846) >> 16 == s / 3 for s <= 765
  __m512i grey[4];
  __mmask64 in4[4];
  for (int v = 0; v < 4; ++v) {
    const std::size_t first = i + 16 * v;
    const std::size_t n = full ? 16 : first >= count ? 0 : std::min<std::size_t>(16, count - first);
    const __mmask64 in3 = n == 16 ? 0xFFFFFFFFFFFFull : (1ull << (3 * n)) - 1;
    in4[v] = n == 16 ? ~0ull : (1ull << (4 * n)) - 1;
    const __m512i rgb = _mm512_maskz_loadu_epi8(in3, mask + 3 * first);
    const __m512i spreadRgb = _mm512_maskz_permutexvar_epi8(kColour, spread, rgb);
    const __m512i sum = _mm512_madd_epi16(_mm512_maddubs_epi16(spreadRgb, sumWeights), ones16);
    grey[v] = _mm512_mulhi_epu16(sum, third);
  }
  if constexpr (colours == ColourMode::kKeep) {
    // Alpha alone: each block's grey bytes to its alpha lanes.
    const __m512i widen = _mm512_load_si512(ix.widen);
    for (int v = 0; v < 4 && in4[v]; ++v) {
      __m512i g = _mm512_shuffle_epi8(grey[v], widen);
      if constexpr (alpha == AlphaMode::kMap) g = _mm512_movm_epi8(_mm512_test_epi8_mask(g, g));
      Store<full>(px + 4 * (i + 16 * v), in4[v] & kAlpha, g);
    }
  } else {
    const __m512i packed = _mm512_packus_epi16(_mm512_packus_epi32(grey[0], grey[1]),
                                               _mm512_packus_epi32(grey[2], grey[3]));
    const __mmask64 high = _mm512_movepi8_mask(packed);
    const __m512i r = Lookup(t.red, packed, high);
    const __m512i g = Lookup(t.green, packed, high);
    const __m512i b = Lookup(t.blue, packed, high);
    __m512i alphas = packed;
    if constexpr (alpha == AlphaMode::kMap)
      alphas = _mm512_movm_epi8(_mm512_test_epi8_mask(packed, packed));
    __m512i lambda = _mm512_setzero_si512();
    __m512i inverse = _mm512_setzero_si512();  // 255 - grey
    if constexpr (colours == ColourMode::kMap) {
      lambda = Lookup(t.lambdas, packed, high);
      inverse = _mm512_sub_epi8(_mm512_set1_epi8(-1), packed);
    }
    for (int v = 0; v < 4 && in4[v]; ++v) {
      unsigned char* out = px + 4 * (i + 16 * v);
      const __m512i own = _mm512_load_si512(ix.own[v]);
      __m512i a = _mm512_shuffle_epi8(r, own);
      a = _mm512_mask_shuffle_epi8(a, kGreen, g, own);
      a = _mm512_mask_shuffle_epi8(a, kBlue, b, own);
      if constexpr (alpha != AlphaMode::kKeep) a = _mm512_mask_shuffle_epi8(a, kAlpha, alphas, own);
      if constexpr (colours == ColourMode::kSet) {
        Store<full>(out, alpha == AlphaMode::kKeep ? in4[v] & kColour : in4[v], a);
      } else {
        const __m512i d = full ? _mm512_loadu_si512(out) : _mm512_maskz_loadu_epi8(in4[v], out);
        const __m512i keep = _mm512_shuffle_epi8(inverse, own);
        const __m512i lambdaPx = _mm512_shuffle_epi8(lambda, own);
        Store<full>(out, in4[v],
                    BlendBlock(a, alpha == AlphaMode::kKeep ? d : a, d, keep, lambdaPx, t.log16,
                               t.highMask));
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
