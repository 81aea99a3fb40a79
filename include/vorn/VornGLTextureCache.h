#pragma once
// Control images as OpenGL textures. Every call needs a current GL context.
#include <GL/gl.h>

#include "vorn/VornImageCache.h"

// The smallest power of two not less than size (1 for sizes below 2): the
// texture side that holds an image side of that size.
int VornTextureSize(int size);

// An OpenGL texture made from an image. Texture sides are rounded up to
// powers of two; the image fills the top-left corner, the rest is zero.
class CGLImage {
 public:
  CGLImage() = default;
  CGLImage(const CGLImage&) = delete;
  CGLImage& operator=(const CGLImage&) = delete;
  ~CGLImage();

  // Uploads the image (format 3 or 1) as GL_RGBA / GL_RGB, replacing any
  // earlier texture. True when OpenGL reports no error.
  bool Copy(const BitmapA& image);
  bool Copy(const Bitmap& image);
  // Deletes the texture.
  void Clear();

  int GetWidth() const { return m_width; }
  int GetHeight() const { return m_height; }
  int GetTexWidth() const { return m_texWidth; }
  int GetTexHeight() const { return m_texHeight; }
  float GetfTexWidth() const { return m_fTexWidth; }
  float GetfTexHeight() const { return m_fTexHeight; }
  GLuint GetImage() const { return m_texture; }

 private:
  bool Upload(GLenum format, int texWidth, int texHeight, const unsigned char* pixels);

  int m_width = 0;
  int m_height = 0;
  int m_texWidth = 0;
  int m_texHeight = 0;
  float m_fTexWidth = 0.0f;
  float m_fTexHeight = 0.0f;
  GLuint m_texture = 0;
};

class VornGLTextureCache : public VornImageCache<CGLImage> {
 public:
  ~VornGLTextureCache() override = default;
  int GetImageWidth(const CGLImage* image) const override;
  int GetImageHeight(const CGLImage* image) const override;
  // Uploads image into a new texture owned by the cache under state. False
  // for a null image.
  virtual bool CopyConvertImage(VORNIMAGETYPE state, const BitmapA* image);
};

// Uploads every state image of src into dst. False when src is empty.
bool CopyImageCache(VornGLTextureCache& dst, const VornBitmapACache& src);
