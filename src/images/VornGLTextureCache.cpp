// Control images uploaded as OpenGL textures.
#include "vorn/VornGLTextureCache.h"

#include <GL/glu.h>

#include <cmath>
#include <cstring>

#include "vornhost/Debug.h"

namespace {
void PrintGLError(GLenum error) {
  dprintf("Error : %s\n", reinterpret_cast<const char*>(gluErrorString(error)));
}

// Prints the pending error, if any; true when there was none.
bool CheckGLError() {
  const GLenum error = glGetError();
  if (error == GL_NO_ERROR) return true;
  PrintGLError(error);
  return false;
}

void SetTextureParameters() {
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP);
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP);
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
}

// Copies src into the top-left corner of a zeroed texWidth x texHeight
// scratch of outBpp bytes per pixel. Grey sources spread their grey byte to
// R, G and B; a grey-alpha source keeps its alpha.
template <class B>
std::vector<unsigned char> PadToTexture(const B& src, int texWidth, int texHeight, int outBpp) {
  std::vector<unsigned char> scratch(static_cast<std::size_t>(texWidth) * texHeight * outBpp, 0);
  const int inBpp = src.BytesPerPixel();
  for (int y = 0; y < src.height; ++y) {
    const unsigned char* in = src.Pixel(0, y);
    unsigned char* out = scratch.data() + static_cast<std::size_t>(y) * texWidth * outBpp;
    if (src.format == 3) {
      std::memcpy(out, in, static_cast<std::size_t>(src.width) * inBpp);
      continue;
    }
    for (int x = 0; x < src.width; ++x, in += inBpp, out += outBpp) {
      out[0] = out[1] = out[2] = in[0];
      if (outBpp == 4) out[3] = in[1];
    }
  }
  return scratch;
}

template <class B>
bool UsableSource(const B& image) {
  VORN_ASSERT(image.format == 3 || image.format == 1);
  if (image.format != 3 && image.format != 1) return false;
  if (image.width <= 0 || image.height <= 0 || image.width > kMaxBitmapSide ||
      image.height > kMaxBitmapSide)
    return false;
  const bool complete = image.data.size() >= static_cast<std::size_t>(image.width) * image.height *
                                                 image.BytesPerPixel();
  VORN_ASSERT(complete);
  return complete;
}
}  // namespace

int VornTextureSize(int size) {
  if (size <= 1) return 1;
  int e = static_cast<int>(std::log(static_cast<double>(size)) / std::log(2.0));
  if ((1 << e) < size) ++e;
  return 1 << e;
}

CGLImage::~CGLImage() {
  Clear();
}

void CGLImage::Clear() {
  if (m_texture != 0) glDeleteTextures(1, &m_texture);
  m_texture = 0;
}

bool CGLImage::Copy(const BitmapA& image) {
  Clear();
  m_width = image.width;
  m_height = image.height;
  if (!UsableSource(image)) return false;
  glGenTextures(1, &m_texture);
  glBindTexture(GL_TEXTURE_2D, m_texture);
  SetTextureParameters();
  const int texWidth = VornTextureSize(m_width);
  const int texHeight = VornTextureSize(m_height);
  const std::vector<unsigned char> pixels = PadToTexture(image, texWidth, texHeight, 4);
  return Upload(GL_RGBA, texWidth, texHeight, pixels.data());
}

bool CGLImage::Copy(const Bitmap& image) {
  Clear();
  m_width = image.width;
  m_height = image.height;
  if (!UsableSource(image)) return false;
  CheckGLError();
  glGenTextures(1, &m_texture);
  CheckGLError();
  glBindTexture(GL_TEXTURE_2D, m_texture);
  CheckGLError();
  SetTextureParameters();
  const int texWidth = VornTextureSize(m_width);
  const int texHeight = VornTextureSize(m_height);
  const std::vector<unsigned char> pixels = PadToTexture(image, texWidth, texHeight, 3);
  return Upload(GL_RGB, texWidth, texHeight, pixels.data());
}

bool CGLImage::Upload(GLenum format, int texWidth, int texHeight, const unsigned char* pixels) {
  // RGB rows of narrow textures are not 4-byte aligned.
  GLint alignment = 4;
  glGetIntegerv(GL_UNPACK_ALIGNMENT, &alignment);
  glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
  glTexImage2D(GL_TEXTURE_2D, 0, static_cast<GLint>(format), texWidth, texHeight, 0, format,
               GL_UNSIGNED_BYTE, pixels);
  CheckGLError();
  glPixelStorei(GL_UNPACK_ALIGNMENT, alignment);
  m_texWidth = texWidth;
  m_texHeight = texHeight;
  m_fTexWidth = static_cast<float>(m_width) / static_cast<float>(texWidth);
  m_fTexHeight = static_cast<float>(m_height) / static_cast<float>(texHeight);
  return glGetError() == GL_NO_ERROR;
}

int VornGLTextureCache::GetImageWidth(const CGLImage* image) const {
  VORN_ASSERT(image != nullptr);
  return image ? image->GetWidth() : -1;
}

int VornGLTextureCache::GetImageHeight(const CGLImage* image) const {
  VORN_ASSERT(image != nullptr);
  return image ? image->GetHeight() : -1;
}

bool VornGLTextureCache::CopyConvertImage(VORNIMAGETYPE state, const BitmapA* image) {
  if (!image) return false;
  auto texture = std::make_unique<CGLImage>();
  texture->Copy(*image);
  // The cache takes ownership only once the texture is stored.
  const bool stored = AssignImageOwn(state, texture.get());
  if (stored) texture.release();
  return stored;
}

bool CopyImageCache(VornGLTextureCache& dst, const VornBitmapACache& src) {
  std::vector<VORNIMAGETYPE> states;
  src.GetStates(states);
  for (VORNIMAGETYPE state : states) {
    const BitmapA* image = nullptr;
    const bool found = src.GetImage(state, image);
    VORN_ASSERT(found);
    if (!found) continue;
    const bool copied = dst.CopyConvertImage(state, image);
    VORN_ASSERT(copied);
  }
  return !states.empty();
}
