// Conversions between the host's images and wx images, and colour
// conversions (the grey-mask functions are in GreyMapping.cpp).
#include "vorn/GraphicsFunctions.h"

#include <cmath>
#include <cstring>

#include "vorn/VornAssert.h"

namespace {
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
