// PNG decoding and encoding through libpng's simplified API.
#include <png.h>

#include <cstdint>
#include <cstring>
#include <utility>

#include "vornhost/Bitmap.h"

namespace {

std::uint32_t ReadBigEndian32(const unsigned char* p) {
  return (std::uint32_t(p[0]) << 24) | (std::uint32_t(p[1]) << 16) | (std::uint32_t(p[2]) << 8) |
         std::uint32_t(p[3]);
}

// Checks the header before libpng sizes any buffer: the size limit, and
// whether the compressed bytes could possibly hold the picture (deflate
// expands at most about 1032 to 1), so that a few bytes claiming a huge image
// cannot make us allocate for it.
bool PlausibleHeader(const unsigned char* data, std::size_t size) {
  static const unsigned char kSignature[8] = {137, 80, 78, 71, 13, 10, 26, 10};
  const std::size_t kIhdrEnd = 8 + 8 + 13 + 4;  // signature, chunk head, fields, CRC
  if (size < kIhdrEnd || std::memcmp(data, kSignature, 8) != 0 ||
      std::memcmp(data + 12, "IHDR", 4) != 0)
    return false;
  const std::uint32_t width = ReadBigEndian32(data + 16);
  const std::uint32_t height = ReadBigEndian32(data + 20);
  const unsigned depth = data[24];
  if (width == 0 || height == 0 || width > static_cast<std::uint32_t>(kMaxBitmapSide) ||
      height > static_cast<std::uint32_t>(kMaxBitmapSide))
    return false;
  unsigned channels;
  switch (data[25]) {
    case 0:
      channels = 1;
      break;  // grey
    case 2:
      channels = 3;
      break;  // RGB
    case 3:
      channels = 1;
      break;  // palette
    case 4:
      channels = 2;
      break;  // grey + alpha
    case 6:
      channels = 4;
      break;  // RGBA
    default:
      return false;
  }
  if (depth == 0 || depth > 16) return false;
  // Filtered scan lines, with room for the extra filter bytes of interlacing.
  const std::uint64_t rowBytes = (std::uint64_t(width) * channels * depth + 7) / 8 + 1;
  const std::uint64_t raw = rowBytes * height + std::uint64_t(height) * 7;
  return raw <= std::uint64_t(size) * 1100 + 65536;
}

// Decodes to 8-bit RGBA; false on any problem.
bool DecodeRgba(const unsigned char* data, int size, BitmapA& out) {
  if (!data || size <= 0 || !PlausibleHeader(data, static_cast<std::size_t>(size))) return false;
  png_image image;
  std::memset(&image, 0, sizeof image);
  image.version = PNG_IMAGE_VERSION;
  if (!png_image_begin_read_from_memory(&image, data, static_cast<std::size_t>(size))) {
    png_image_free(&image);
    return false;
  }
  if (image.width == 0 || image.height == 0 ||
      image.width > static_cast<png_uint_32>(kMaxBitmapSide) ||
      image.height > static_cast<png_uint_32>(kMaxBitmapSide)) {
    png_image_free(&image);
    return false;
  }
  image.format = PNG_FORMAT_RGBA;
  // 16-bit files without colour-space chunks are sRGB in practice, like 8-bit ones.
  image.flags |= PNG_IMAGE_FLAG_16BIT_sRGB;
  BitmapA decoded;
  if (!Create(decoded, static_cast<int>(image.width), static_cast<int>(image.height), 3)) {
    png_image_free(&image);
    return false;
  }
  const int ok = png_image_finish_read(&image, nullptr, decoded.data.data(), 0, nullptr);
  const bool failed = !ok || PNG_IMAGE_FAILED(image);
  png_image_free(&image);
  if (failed) return false;
  out = std::move(decoded);
  return true;
}

bool Encode(const void* pixels, int width, int height, png_uint_32 format,
            std::vector<unsigned char>& out) {
  png_image image;
  std::memset(&image, 0, sizeof image);
  image.version = PNG_IMAGE_VERSION;
  image.width = static_cast<png_uint_32>(width);
  image.height = static_cast<png_uint_32>(height);
  image.format = format;
  png_alloc_size_t bytes = 0;
  if (!png_image_write_to_memory(&image, nullptr, &bytes, 0, pixels, 0, nullptr) || bytes == 0) {
    png_image_free(&image);
    return false;
  }
  std::vector<unsigned char> encoded(bytes);
  const int ok = png_image_write_to_memory(&image, encoded.data(), &bytes, 0, pixels, 0, nullptr);
  png_image_free(&image);
  if (!ok) return false;
  encoded.resize(bytes);
  out = std::move(encoded);
  return true;
}

template <class B>
bool Encodable(const B& bmp) {
  return bmp.format == 3 && !bmp.IsEmpty() && bmp.width <= kMaxBitmapSide &&
         bmp.height <= kMaxBitmapSide &&
         bmp.data.size() == std::size_t(bmp.width) * bmp.height * bmp.BytesPerPixel();
}

}  // namespace

bool LoadBitmapADecode(const unsigned char* data, int size, BitmapA& out) {
  return DecodeRgba(data, size, out);
}

bool LoadBitmapDecode(const unsigned char* data, int size, Bitmap& out) {
  BitmapA rgba;
  if (!DecodeRgba(data, size, rgba)) return false;
  return ConvertTo(out, rgba);
}

bool SaveBitmapEncode(const Bitmap& bmp, std::vector<unsigned char>& out) {
  return Encodable(bmp) && Encode(bmp.data.data(), bmp.width, bmp.height, PNG_FORMAT_RGB, out);
}

bool SaveBitmapAEncode(const BitmapA& bmp, std::vector<unsigned char>& out) {
  return Encodable(bmp) && Encode(bmp.data.data(), bmp.width, bmp.height, PNG_FORMAT_RGBA, out);
}
