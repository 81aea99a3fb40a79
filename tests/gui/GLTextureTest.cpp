// Texture upload inside a real OpenGL context (Mesa under Xvfb).
#include <vector>

#include "GLTestSupport.h"
#include "TestSupport.h"
#include "vorn/VornGLTextureCache.h"

namespace {
class GLTexture : public GLContextTest {
 protected:
  // Picture, texture and GL level sizes: w, h, tex w, tex h, level w, level h.
  static std::vector<int> Sizes(const CGLImage& texture) {
    GLint w = 0, h = 0;
    glBindTexture(GL_TEXTURE_2D, texture.GetImage());
    glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, GL_TEXTURE_WIDTH, &w);
    glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, GL_TEXTURE_HEIGHT, &h);
    return {texture.GetWidth(),
            texture.GetHeight(),
            texture.GetTexWidth(),
            texture.GetTexHeight(),
            w,
            h};
  }
  static std::vector<unsigned char> ReadBack(GLuint texture, GLenum format, int bytes) {
    std::vector<unsigned char> pixels(bytes, 0xEE);
    glBindTexture(GL_TEXTURE_2D, texture);
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glGetTexImage(GL_TEXTURE_2D, 0, format, GL_UNSIGNED_BYTE, pixels.data());
    return pixels;
  }
};

BitmapA Gradient(int width, int height) {
  BitmapA bmp;
  bmp.width = width;
  bmp.height = height;
  bmp.format = 3;
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x)
      bmp.data.insert(bmp.data.end(), {static_cast<unsigned char>(x), static_cast<unsigned char>(y),
                                       7, static_cast<unsigned char>(200 + (x + y) % 50)});
  return bmp;
}
}  // namespace

TEST_F(GLTexture, UploadsArePaddedToPowersOfTwo) {
  const BitmapA image = Gradient(100, 64);
  CGLImage texture;
  ASSERT_TRUE(texture.Copy(image));
  EXPECT_NE(texture.GetImage(), 0u);
  EXPECT_EQ(Sizes(texture), std::vector<int>({100, 64, 128, 64, 128, 64}));
  EXPECT_FLOAT_EQ(texture.GetfTexWidth(), 0.78125f);
  EXPECT_FLOAT_EQ(texture.GetfTexHeight(), 1.0f);
  GLint filter = 0, wrap = 0;
  glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, &filter);
  glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, &wrap);
  EXPECT_EQ(std::make_pair(filter, wrap), std::make_pair(GL_NEAREST, GL_CLAMP));

  // The picture sits at the top left; the padding is transparent black.
  const std::vector<unsigned char> px = ReadBack(texture.GetImage(), GL_RGBA, 128 * 64 * 4);
  auto at = [&](int x, int y) {
    const unsigned char* p = &px[(static_cast<std::size_t>(y) * 128 + x) * 4];
    return std::vector<int>(p, p + 4);
  };
  for (auto [x, y] : {std::pair{0, 0}, {99, 0}, {37, 63}, {99, 63}})
    EXPECT_EQ(at(x, y), std::vector<int>(image.Pixel(x, y), image.Pixel(x, y) + 4))
        << x << "," << y;
  EXPECT_EQ(at(100, 0), std::vector<int>(4, 0));
  EXPECT_EQ(at(127, 63), std::vector<int>(4, 0));

  // A second upload replaces the texture.
  const GLuint first = texture.GetImage();
  ASSERT_TRUE(texture.Copy(Gradient(3, 5)));
  EXPECT_EQ(Sizes(texture), std::vector<int>({3, 5, 4, 8, 4, 8}));
  EXPECT_FLOAT_EQ(texture.GetfTexHeight(), 0.625f);
  EXPECT_TRUE(first == texture.GetImage() || !glIsTexture(first));
  texture.Clear();
  EXPECT_EQ(texture.GetImage(), 0u);
  EXPECT_EQ(texture.GetWidth(), 3);

  // Grey pictures upload as RGB.
  Bitmap grey;
  Create(grey, 3, 1, 1);
  grey.data = {10, 128, 250};
  ASSERT_TRUE(texture.Copy(grey));
  EXPECT_EQ(Sizes(texture), std::vector<int>({3, 1, 4, 1, 4, 1}));
  EXPECT_FLOAT_EQ(texture.GetfTexWidth(), 0.75f);
  EXPECT_EQ(ReadBack(texture.GetImage(), GL_RGB, 4 * 3),
            (std::vector<unsigned char>{10, 10, 10, 128, 128, 128, 250, 250, 250, 0, 0, 0}));
}

TEST_F(GLTexture, PendingErrorsArePrinted) {
  Bitmap rgb;
  Create(rgb, 2, 2, 3);
  CaptureDprintf capture;
  glEnable(0x7FFF);  // leaves GL_INVALID_ENUM pending
  CGLImage texture;
  EXPECT_TRUE(texture.Copy(rgb));
  ASSERT_EQ(capture.Lines().size(), 1u) << capture.All();
  EXPECT_EQ(capture.Lines()[0].rfind("Error : ", 0), 0u) << capture.All();
  EXPECT_NE(capture.All().find("invalid enum"), std::string::npos) << capture.All();

  capture.ClearLines();
  glEnable(0x7FFF);
  CGLImage rgba;  // the RGBA upload reports a pending error once, after glTexImage2D
  EXPECT_TRUE(rgba.Copy(Gradient(2, 2)));
  EXPECT_EQ(capture.Lines().size(), 1u) << capture.All();
}

TEST_F(GLTexture, CacheCopiesEveryState) {
  BitmapA off = Gradient(16, 8), down = Gradient(5, 5);
  VornBitmapACache source;
  source.AssignImage(VIT_OFF, &off);
  source.AssignImage(VIT_OFF_DOWN, &down);
  VornGLTextureCache textures;
  ASSERT_TRUE(CopyImageCache(textures, source));
  std::vector<VORNIMAGETYPE> states;
  textures.GetStates(states);
  EXPECT_EQ(states, (std::vector<VORNIMAGETYPE>{VIT_OFF, VIT_OFF_DOWN}));
  EXPECT_EQ(std::make_pair(textures.GetWidth(), textures.GetHeight()), std::make_pair(16, 8));
  const CGLImage* texture = nullptr;
  ASSERT_TRUE(textures.GetImage(VIT_OFF_DOWN, texture));
  EXPECT_EQ(texture->GetTexWidth(), 8);
  EXPECT_TRUE(glIsTexture(texture->GetImage()));

  EXPECT_FALSE(textures.CopyConvertImage(VIT_ON, nullptr));
  VornBitmapACache empty;
  VornGLTextureCache none;
  EXPECT_FALSE(CopyImageCache(none, empty));
  EXPECT_EQ(FiredAssertion([&] { CopyImageCache(textures, source); }),
            "m_images[index].bOwn == false");
  const GLuint name = texture->GetImage();
  textures.Clear();
  EXPECT_FALSE(glIsTexture(name));
}
