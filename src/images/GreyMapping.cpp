// The grey-mask functions of the image scripts: the colour channels and the
// alpha of an RGBA bitmap set or blended from the brightness of a mask.
//
// Every result depends only on the pixel's grey level and, for the blends,
// on the destination byte, so each call tabulates what depends on the grey
// level once. Where the processor has AVX-512 (with byte permutes) or AVX2,
// the pixels then go through integer arithmetic that gives the same bytes
// as the double formulas (GreyMappingAvx512.cpp, GreyMappingAvx2.cpp);
// elsewhere, and for the last few pixels, a plain loop reads the tables.
#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>
#include <cstring>

#include "GreyMappingKernels.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/VornAssert.h"

namespace grey_detail {

unsigned char Blend(int a, int d, double keep) {
  // Both terms lie in 0..255, so the sum converts to int safely.
  return static_cast<unsigned char>(static_cast<int>(a + d * keep));
}

const BlendRule& Rule() {
  static const BlendRule rule = [] {
    BlendRule r;
    for (int j = 1; j < 256; ++j)
      r.log16[j] = static_cast<unsigned char>(std::floor(16 * std::log2(j)));
    for (int j = 0; j < 64; ++j) {
      const int e = (j >> 2) - 2;
      r.highMask[j] = static_cast<unsigned char>(e < 0 ? 0xFF : e >= 8 ? 0 : 256 - (1 << e));
    }
    for (int g = 1; g < 255; ++g) {
      const double keep = 1 - g / 255.0;
      // For each whole n: the largest a that comes out one less, or -1.
      std::array<int, 256> wholeN{}, lastA{};
      int count = 0;
      bool any = false;
      for (int d = 1; d < 256; ++d) {
        if (d * (255 - g) % 255) continue;
        const int n = d * (255 - g) / 255;
        int last = -1;
        for (int a = 0; a < 256; ++a)
          if (Blend(a, d, keep) != static_cast<unsigned char>(a + n)) last = a;
        wholeN[count] = n;
        lastA[count++] = last;
        any |= last >= 0;
      }
      if (!any) continue;
      // The rule's cases for n: a + n <= min(2^e, 256), and a + n == 1 for e < 0.
      int found = 0;
      for (int lambda = 1; lambda < 128 && !found; ++lambda) {
        bool agrees = true;
        for (int i = 0; i < count && agrees; ++i) {
          const int e = ((r.log16[wholeN[i]] + lambda) >> 4) - 2;
          const int limit = e < 0 ? 1 : 1 << std::min(e, 8);
          const int last = std::min(255, limit - wholeN[i]);
          agrees = std::max(last, -1) == lastA[i];
        }
        if (agrees) found = lambda;
      }
      if (!found) r.usable = false;
      r.lambda[g] = static_cast<unsigned char>(found);
    }
    return r;
  }();
  return rule;
}

}  // namespace grey_detail

namespace {
using namespace grey_detail;

std::atomic<GreyPath> forcedPath{GreyPath::kAuto};

// trunc(v) as its low byte, without undefined behaviour for huge or NaN v.
inline unsigned char LowByte(double v) {
  if (v > -2147483648.0 && v < 2147483648.0) return static_cast<unsigned char>(static_cast<int>(v));
  if (std::isnan(v)) return 0;
  double m = std::fmod(std::trunc(v), 256.0);
  if (m < 0) m += 256.0;
  return static_cast<unsigned char>(m);
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

template <ColourMode colours>
void FillTables(GreyTables& tables, const Color* colour) {
  if constexpr (colours == ColourMode::kKeep) return;
  const double c[3] = {colour->r, colour->g, colour->b};
  const BlendRule& rule = Rule();
  for (int g = 0; g < 256; ++g) {
    const double t = g / 255.0;
    tables.keep[g] = 1 - t;
    std::uint32_t packed = colours == ColourMode::kMap ? std::uint32_t{rule.lambda[g]} << 24 : 0;
    for (int ch = 0; ch < 3; ++ch) {
      tables.byGrey[ch][g] =
          colours == ColourMode::kMap ? LowByte(c[ch] * t * 255) : LowByte(c[ch] * g);
      packed |= std::uint32_t{tables.byGrey[ch][g]} << (8 * ch);
    }
    tables.packed[g] = packed;
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

GreyPath BestPath() {
  if (HasAvx512Path()) return GreyPath::kAvx512;
  if (HasAvx2Path()) return GreyPath::kAvx2;
  return GreyPath::kPlain;
}

template <ColourMode colours, AlphaMode alpha>
bool ApplyGrey(BitmapA& dst, const wxImage& grey, const Color* colour) {
  if (!GreyMaskUsable(dst, grey)) return false;
  const std::size_t count = static_cast<std::size_t>(dst.width) * dst.height;
  if (count == 0) return true;
  GreyTables tables;
  FillTables<colours>(tables, colour);
  unsigned char* px = dst.data.data();
  const unsigned char* mask = grey.GetData();
  std::size_t done = 0;
  // The blends in integers need the rule; the other forms are exact anyway.
  if (colours != ColourMode::kMap || Rule().usable) {
    switch (CurrentGreyPath()) {
      case GreyPath::kAvx512:
        done = GreyAvx512<colours, alpha>(px, mask, count, tables);
        break;
      case GreyPath::kAvx2:
        done = GreyAvx2<colours, alpha>(px, mask, count, tables);
        break;
      default:
        break;
    }
  }
  GreyLoop<colours, alpha>(px + 4 * done, mask + 3 * done, count - done, tables);
  return true;
}
}  // namespace

bool GreyPathAvailable(GreyPath path) {
  switch (path) {
    case GreyPath::kAvx512:
      return HasAvx512Path();
    case GreyPath::kAvx2:
      return HasAvx2Path();
    default:
      return true;
  }
}

bool ForceGreyPath(GreyPath path) {
  if (!GreyPathAvailable(path)) return false;
  forcedPath = path;
  return true;
}

GreyPath CurrentGreyPath() {
  const GreyPath forced = forcedPath;
  if (forced != GreyPath::kAuto) return forced;
  static const GreyPath best = BestPath();
  return best;
}

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
