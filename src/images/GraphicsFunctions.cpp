// Conversions between the host's images and wx images, colour conversions and
// the grey-mask functions of the image scripts.
#include "vorn/GraphicsFunctions.h"

#include <array>
#include <cmath>
#include <cstring>

#include "vorn/VornAssert.h"

namespace {
// trunc(v) as its low byte, without undefined behaviour for huge or NaN v.
inline unsigned char LowByte(double v) {
  if (v > -2147483648.0 && v < 2147483648.0) return static_cast<unsigned char>(static_cast<int>(v));
  if (std::isnan(v)) return 0;
  double m = std::fmod(std::trunc(v), 256.0);
  if (m < 0) m += 256.0;
  return static_cast<unsigned char>(m);
}

// trunc(v) clamped to 0..255.
inline unsigned char ClampByte(double v) {
  if (!(v > 0.0)) return 0;
  if (v >= 255.0) return 255;
  return static_cast<unsigned char>(v);
}

bool ValidBitmapSize(int width, int height, std::size_t bytesPerPixel, std::size_t dataSize) {
  return width > 0 && height > 0 &&
         dataSize >=
             static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * bytesPerPixel;
}

// Creates dst at src's size and fills it from src's pixels: format 3 copies
// the first three bytes of each pixel, format 1 spreads the grey byte.
template <class B>
bool ImageFromBitmap(wxImage& dst, const B& src) {
  VORN_ASSERT(src.format == 3 || src.format == 1);
  if (src.format != 3 && src.format != 1) return false;
  const std::size_t bpp = static_cast<std::size_t>(src.BytesPerPixel());
  if (!ValidBitmapSize(src.width, src.height, bpp, src.data.size())) return false;
  if (!dst.Create(src.width, src.height, false)) return false;
  unsigned char* out = dst.GetData();
  const unsigned char* in = src.data.data();
  const std::size_t count = static_cast<std::size_t>(src.width) * src.height;
  if (src.format == 3 && bpp == 3) {
    std::memcpy(out, in, count * 3);
    return true;
  }
  for (std::size_t i = 0; i < count; ++i, in += bpp, out += 3) {
    if (src.format == 3) {
      out[0] = in[0];
      out[1] = in[1];
      out[2] = in[2];
    } else {
      out[0] = out[1] = out[2] = in[0];
    }
  }
  return true;
}

template <class B>
bool BitmapFromHost(wxBitmap& dst, const B& src) {
  wxImage image;
  const bool converted = ImageFromBitmap(image, src);
  if (converted) dst = wxBitmap(image);
  return converted;
}

template <class B>
bool BlitOntoCopy(wxImage& dst, const B& base, const B& top, int x, int y) {
  B composed;
  if (!Copy(composed, base)) return false;
  Blit(composed, top, x, y);
  return ImageFromBitmap(dst, composed);
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

inline int GreyAt(const unsigned char* rgb) {
  return (rgb[0] + rgb[1] + rgb[2]) / 3;
}

enum class AlphaMode { kKeep, kMap, kSet };
enum class ColourMode { kKeep, kMap, kSet };

// One pass over the mask, one loop per mode combination. The per-grey factors
// are tabulated with exactly the expressions of the per-pixel formula, so the
// results are the same.
template <ColourMode colours, AlphaMode alpha>
bool ApplyGrey(BitmapA& dst, const wxImage& grey, const Color* colour) {
  if (!GreyMaskUsable(dst, grey)) return false;
  const std::size_t count = static_cast<std::size_t>(dst.width) * dst.height;
  if (count == 0) return true;
  const double c[3] = {colour ? colour->r : 0.0, colour ? colour->g : 0.0,
                       colour ? colour->b : 0.0};
  std::array<std::array<unsigned char, 256>, 3> byGrey{};  // map: trunc(c*t*255) mod 256;
                                                           // set: trunc(c*grey)
  std::array<double, 256> keep{};                          // map: 1 - t
  if constexpr (colours != ColourMode::kKeep) {
    for (int g = 0; g < 256; ++g) {
      const double t = g / 255.0;
      keep[g] = 1 - t;
      for (int ch = 0; ch < 3; ++ch)
        byGrey[ch][g] = colours == ColourMode::kMap ? LowByte(c[ch] * t * 255) : LowByte(c[ch] * g);
    }
  }
  const unsigned char* mask = grey.GetData();
  unsigned char* px = dst.data.data();
  for (std::size_t i = 0; i < count; ++i, mask += 3, px += 4) {
    const int g = GreyAt(mask);
    if constexpr (colours == ColourMode::kMap) {
      // Both terms lie in 0..255, so the sum converts to int safely.
      for (int ch = 0; ch < 3; ++ch)
        px[ch] = static_cast<unsigned char>(static_cast<int>(byGrey[ch][g] + px[ch] * keep[g]));
    } else if constexpr (colours == ColourMode::kSet) {
      for (int ch = 0; ch < 3; ++ch) px[ch] = byGrey[ch][g];
    }
    if constexpr (alpha == AlphaMode::kMap)
      px[3] = g == 0 ? 0 : 255;
    else if constexpr (alpha == AlphaMode::kSet)
      px[3] = static_cast<unsigned char>(g);
  }
  return true;
}
}  // namespace

bool ConvertTo(Bitmap& dst, const wxImage& src) {
  Clear(dst);
  if (!src.IsOk()) return false;
  if (!Create(dst, src.GetWidth(), src.GetHeight(), 3)) return false;
  std::memcpy(dst.data.data(), src.GetData(), dst.data.size());
  return true;
}

bool ConvertTo(BitmapA& dst, const wxImage& src) {
  Clear(dst);
  if (!src.IsOk()) return false;
  if (!Create(dst, src.GetWidth(), src.GetHeight(), 3)) return false;
  const unsigned char* in = src.GetData();
  unsigned char* out = dst.data.data();
  const std::size_t count = static_cast<std::size_t>(dst.width) * dst.height;
  for (std::size_t i = 0; i < count; ++i, in += 3, out += 4) {
    out[0] = in[0];
    out[1] = in[1];
    out[2] = in[2];
    out[3] = 255;
  }
  return true;
}

bool ConvertTo(wxImage& dst, const BitmapA& src) {
  return ImageFromBitmap(dst, src);
}

bool ConvertTo(wxImage& dst, const Bitmap& src) {
  return ImageFromBitmap(dst, src);
}

bool ConvertTo(wxBitmap& dst, const BitmapA& src) {
  return BitmapFromHost(dst, src);
}

bool ConvertTo(wxBitmap& dst, const Bitmap& src) {
  return BitmapFromHost(dst, src);
}

bool Copy(wxImage& dst, const wxImage& src) {
  if (!dst.IsSameAs(src)) dst = src;
  return true;
}

bool BlitwxImage(wxImage& dst, BitmapA& base, BitmapA& top, int x, int y) {
  return BlitOntoCopy(dst, base, top, x, y);
}

bool BlitwxImage(wxImage& dst, Bitmap& base, Bitmap& top, int x, int y) {
  return BlitOntoCopy(dst, base, top, x, y);
}

Color WxCtoC(const wxColour& c) {
  return Color(c.Red() / 255.0, c.Green() / 255.0, c.Blue() / 255.0);
}

ColorA WxCtoCA(const wxColour& c) {
  return ColorA(c.Red() / 255.0, c.Green() / 255.0, c.Blue() / 255.0, 1.0);
}

wxColour CtoWxC(const Color& c) {
  return wxColour(ClampByte(c.r * 255.0), ClampByte(c.g * 255.0), ClampByte(c.b * 255.0));
}

wxColour CAtoWxC(const ColorA& c) {
  return wxColour(ClampByte(c.r * 255.0), ClampByte(c.g * 255.0), ClampByte(c.b * 255.0));
}

bool ClearwxImage(wxImage& image, const Color& c) {
  VORN_ASSERT(image.IsOk() && image.GetWidth() > 0 && image.GetHeight() > 0);
  if (!image.IsOk() || image.GetWidth() <= 0 || image.GetHeight() <= 0) return false;
  const unsigned char rgb[3] = {ClampByte(c.r * 255), ClampByte(c.g * 255), ClampByte(c.b * 255)};
  unsigned char* px = image.GetData();
  const std::size_t count = static_cast<std::size_t>(image.GetWidth()) * image.GetHeight();
  for (std::size_t i = 0; i < count; ++i, px += 3) std::memcpy(px, rgb, 3);
  return true;
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
