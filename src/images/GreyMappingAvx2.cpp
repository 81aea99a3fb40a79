// The grey-mask functions with AVX2, 8 pixels per step: the per-call table
// bytes of each pixel's grey level fetched with one dword gather. The blend
// follows the integer rule of GreyMappingKernels.h except in its rare
// possibly-one-less lanes, which take the double formula itself.
#include "GreyMappingKernels.h"

#if defined(__x86_64__) && defined(__GNUC__)
#include <immintrin.h>
#define VORN_GREY_AVX2 1
#endif

namespace grey_detail {

#ifdef VORN_GREY_AVX2
bool HasAvx2Path() {
  static const bool has = (__builtin_cpu_init(), true) && __builtin_cpu_supports("avx2");
  return has;
}

namespace {
#define VORN_AVX2 __attribute__((target("avx2")))

// Lanes whose blend may come out one less: recomputed with doubles.
void BlendExactly(unsigned char* out, const unsigned char* d, const unsigned char* mask,
                  unsigned lanes, const GreyTables& tables) {
  for (; lanes; lanes &= lanes - 1) {
    const int lane = __builtin_ctz(lanes);
    const int g = GreyAt(mask + 3 * (lane / 4));
    out[lane] = Blend(tables.byGrey[lane % 4][g], d[lane], tables.keep[g]);
  }
}

template <ColourMode colours, AlphaMode alpha>
VORN_AVX2 std::size_t Run(unsigned char* px, const unsigned char* mask, std::size_t count,
                          const GreyTables& tables) {
  const __m256i spread = _mm256_setr_epi8(0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11, -1, 0,
                                          1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11, -1);
  const __m256i widen = _mm256_setr_epi8(0, 0, 0, 0, 4, 4, 4, 4, 8, 8, 8, 8, 12, 12, 12, 12, 0, 0,
                                         0, 0, 4, 4, 4, 4, 8, 8, 8, 8, 12, 12, 12, 12);
  const __m256i wordGrey =
      _mm256_setr_epi8(0, -1, 0, -1, 4, -1, 4, -1, 8, -1, 8, -1, 12, -1, 12, -1, 0, -1, 0, -1, 4,
                       -1, 4, -1, 8, -1, 8, -1, 12, -1, 12, -1);
  const __m256i topByte = _mm256_setr_epi8(3, 3, 3, 3, 7, 7, 7, 7, 11, 11, 11, 11, 15, 15, 15, 15,
                                           3, 3, 3, 3, 7, 7, 7, 7, 11, 11, 11, 11, 15, 15, 15, 15);
  const __m256i sumWeights = _mm256_set1_epi32(0x00010101);
  const __m256i ones16 = _mm256_set1_epi16(1);
  const __m256i third = _mm256_set1_epi32(21846);  // (s * 21846) >> 16 == s / 3 for s <= 765
  const __m256i colourLanes = _mm256_set1_epi32(0x00FFFFFF);
  const __m256i lowByte = _mm256_set1_epi16(0x00FF);
  const __m256i allOnes = _mm256_set1_epi8(-1);
  const __m256i zero = _mm256_setzero_si256();
  const int* packed = reinterpret_cast<const int*>(tables.packed.data());
  std::size_t i = 0;
  // The second half loads 16 mask bytes from pixel i + 4: stop where that
  // would read past the mask.
  for (; i + 10 <= count; i += 8) {
    const unsigned char* m = mask + 3 * i;
    const __m256i rgb = _mm256_loadu2_m128i(reinterpret_cast<const __m128i*>(m + 12),
                                            reinterpret_cast<const __m128i*>(m));
    const __m256i sum = _mm256_madd_epi16(
        _mm256_maddubs_epi16(_mm256_shuffle_epi8(rgb, spread), sumWeights), ones16);
    const __m256i grey = _mm256_mulhi_epu16(sum, third);
    unsigned char* out = px + 4 * i;
    const __m256i d = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(out));
    __m256i result = d;
    if constexpr (colours != ColourMode::kKeep) {
      const __m256i a = _mm256_i32gather_epi32(packed, grey, 4);
      __m256i colour = a;
      if constexpr (colours == ColourMode::kMap) {
        const __m256i h16 = _mm256_sub_epi16(lowByte, _mm256_shuffle_epi8(grey, wordGrey));
        const __m256i xe = _mm256_mullo_epi16(_mm256_and_si256(d, lowByte), h16);
        const __m256i xo = _mm256_mullo_epi16(_mm256_srli_epi16(d, 8), h16);
        const __m256i ye = _mm256_add_epi16(xe, _mm256_srli_epi16(xe, 8));
        const __m256i yo = _mm256_add_epi16(xo, _mm256_srli_epi16(xo, 8));
        const __m256i n =
            _mm256_or_si256(_mm256_srli_epi16(ye, 8), _mm256_andnot_si256(lowByte, yo));
        const __m256i low =
            _mm256_or_si256(_mm256_and_si256(ye, lowByte), _mm256_slli_epi16(yo, 8));
        const __m256i whole = _mm256_and_si256(_mm256_cmpeq_epi8(low, allOnes), colourLanes);
        colour = _mm256_sub_epi8(_mm256_add_epi8(a, n), whole);  // whole lanes: one more
        const __m256i lambda = _mm256_shuffle_epi8(a, topByte);
        const unsigned maybe = static_cast<unsigned>(
            _mm256_movemask_epi8(_mm256_andnot_si256(_mm256_cmpeq_epi8(lambda, zero), whole)));
        if (maybe) {
          alignas(32) unsigned char before[32], after[32];
          _mm256_store_si256(reinterpret_cast<__m256i*>(before), d);
          _mm256_store_si256(reinterpret_cast<__m256i*>(after), colour);
          BlendExactly(after, before, m, maybe, tables);
          colour = _mm256_load_si256(reinterpret_cast<const __m256i*>(after));
        }
      }
      result = _mm256_blendv_epi8(d, colour, colourLanes);
    }
    if constexpr (alpha != AlphaMode::kKeep) {
      __m256i g = _mm256_shuffle_epi8(grey, widen);
      if constexpr (alpha == AlphaMode::kMap)
        g = _mm256_xor_si256(_mm256_cmpeq_epi8(g, zero), allOnes);
      result = _mm256_blendv_epi8(g, result, colourLanes);
    }
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(out), result);
  }
  return i;
}
}  // namespace

template <ColourMode colours, AlphaMode alpha>
std::size_t GreyAvx2(unsigned char* px, const unsigned char* mask, std::size_t count,
                     const GreyTables& tables) {
  return HasAvx2Path() ? Run<colours, alpha>(px, mask, count, tables) : 0;
}
#else
bool HasAvx2Path() {
  return false;
}

template <ColourMode colours, AlphaMode alpha>
std::size_t GreyAvx2(unsigned char*, const unsigned char*, std::size_t, const GreyTables&) {
  return 0;
}
#endif

#define VORN_GREY_INSTANTIATE(C, A)                                                                \
  template std::size_t GreyAvx2<ColourMode::C, AlphaMode::A>(unsigned char*, const unsigned char*, \
                                                             std::size_t, const GreyTables&);
VORN_GREY_INSTANTIATE(kKeep, kMap)
VORN_GREY_INSTANTIATE(kKeep, kSet)
VORN_GREY_INSTANTIATE(kMap, kKeep)
VORN_GREY_INSTANTIATE(kMap, kMap)
VORN_GREY_INSTANTIATE(kSet, kKeep)
VORN_GREY_INSTANTIATE(kSet, kSet)

}  // namespace grey_detail
