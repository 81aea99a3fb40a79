// The OpenGL drawing region: sizes and bounds without GL, then the state
// PrepareContext leaves and the pixels the base draws in a Mesa context.
#include <array>
#include <vector>

#include "../GLTestSupport.h"
#include "vorn/VornGLWindow.h"

namespace {

// A region that only records its hooks, so Draw runs without a context.
class HookRegion : public VornGLWindow {
 public:
  void Paint() override { ++paints; }
  int paints = 0;
};

std::array<int, 2> Size(const VornGLWindow& w) {
  std::array<int, 2> s{};
  w.GetSize(s[0], s[1]);
  return s;
}

TEST(VornGLWindow, SizesKeepTheirMinimum) {
  HookRegion region;
  EXPECT_EQ(Size(region), (std::array<int, 2>{10, 10}));
  int mw = 0, mh = 0;
  region.GetMinSize(mw, mh);
  EXPECT_EQ(std::make_pair(mw, mh), std::make_pair(5, 5));
  const struct {
    int w, h, expectW, expectH;
  } cases[] = {{2, 3, 5, 5}, {20, 30, 20, 30}, {4, 40, 5, 40}, {-7, 6, 5, 6}};
  for (const auto& c : cases) {
    region.SetSize(c.w, c.h);
    EXPECT_EQ(Size(region), (std::array<int, 2>{c.expectW, c.expectH})) << c.w << "x" << c.h;
  }
  // New minima apply from the next SetSize on.
  int w = 12, h = 1;
  region.SetMinSize(w, h);
  EXPECT_EQ(Size(region), (std::array<int, 2>{5, 6}));
  region.SetSize(3, 3);
  EXPECT_EQ(Size(region), (std::array<int, 2>{12, 3}));
}

TEST(VornGLWindow, DrawPlacesAndBounds) {
  HookRegion region;
  region.SetSize(20, 30);
  region.Draw(100, 50);
  int x = 0, y = 0;
  region.GetLastPosition(x, y);
  EXPECT_EQ(std::make_pair(x, y), std::make_pair(100, 50));
  EXPECT_EQ(std::make_pair(region.GetRight(), region.GetBottom()), std::make_pair(119, 79));
  EXPECT_EQ(region.paints, 1);
  // A non-positive size (through minima of 0) covers one pixel after Draw.
  int zero = 0;
  region.SetMinSize(zero, zero);
  region.SetSize(0, -4);
  region.Draw(-3, 7);
  EXPECT_EQ(std::make_pair(region.GetRight(), region.GetBottom()), std::make_pair(-3, 7));
  EXPECT_EQ(Size(region), (std::array<int, 2>{1, 1}));
  EXPECT_EQ(region.paints, 2);
}

class VornGLWindowContext : public GLContextTest {
 protected:
  void SetUp() override {
    GLContextTest::SetUp();
    if (!IsSkipped() && !DrawOffScreen()) GTEST_SKIP() << "no off-screen framebuffer";
  }
  // Window pixels to GL: x right, y down, as a host sets it up.
  static void PixelProjection() {
    glViewport(0, 0, kSide, kSide);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(0, kSide, kSide, 0, -1, 1);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
  }
  // The colour at window pixel (x, y).
  static std::vector<int> Pixel(int x, int y) {
    unsigned char rgb[3] = {1, 2, 3};
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glReadPixels(x, kSide - 1 - y, 1, 1, GL_RGB, GL_UNSIGNED_BYTE, rgb);
    return {rgb[0], rgb[1], rgb[2]};
  }
};

TEST_F(VornGLWindowContext, PrepareContextLeavesAFlatUnlitState) {
  for (GLenum cap : {GL_LIGHTING, GL_DEPTH_TEST, GL_CULL_FACE, GL_BLEND}) glEnable(cap);
  glPolygonMode(GL_FRONT_AND_BACK, GL_LINE);
  glShadeModel(GL_SMOOTH);
  glMatrixMode(GL_MODELVIEW);
  glLoadIdentity();
  glTranslatef(5, 6, 0);
  glMatrixMode(GL_PROJECTION);  // the current matrix gets the identity
  glLoadIdentity();
  glScalef(2, 3, 4);

  VornGLWindow region;
  region.PrepareContext();
  for (GLenum cap : {GL_LIGHTING, GL_DEPTH_TEST, GL_CULL_FACE, GL_BLEND})
    EXPECT_FALSE(glIsEnabled(cap)) << cap;
  GLint mode[2] = {0, 0}, shade = 0, matrix = 0;
  glGetIntegerv(GL_POLYGON_MODE, mode);
  glGetIntegerv(GL_SHADE_MODEL, &shade);
  glGetIntegerv(GL_MATRIX_MODE, &matrix);
  EXPECT_EQ(std::make_pair(mode[0], mode[1]), std::make_pair(GL_FILL, GL_FILL));
  EXPECT_EQ(shade, GL_FLAT);
  EXPECT_EQ(matrix, GL_MODELVIEW);
  GLfloat projection[16], modelview[16];
  glGetFloatv(GL_PROJECTION_MATRIX, projection);
  glGetFloatv(GL_MODELVIEW_MATRIX, modelview);
  for (int i = 0; i < 16; ++i) EXPECT_EQ(projection[i], i % 5 == 0 ? 1.f : 0.f) << i;
  EXPECT_EQ(std::make_pair(modelview[12], modelview[13]), std::make_pair(5.f, 6.f));
  EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}

TEST_F(VornGLWindowContext, BaseFillsItsRectangleInTheCurrentColour) {
  PixelProjection();
  glClearColor(0, 0, 0, 1);
  glClear(GL_COLOR_BUFFER_BIT);
  glColor3f(1, 0.5f, 0);
  VornGLWindow region;
  region.SetSize(20, 10);
  region.Draw(10, 20);
  glColor3f(0, 0, 1);
  VornGLWindow corner;  // the default 10 x 10
  corner.Draw(40, 40);
  glFinish();
  const std::vector<int> orange{255, 127, 0}, blue{0, 0, 255}, black{0, 0, 0};
  const std::vector<int> o = Pixel(15, 25);
  EXPECT_EQ(o[0], 255);
  EXPECT_NEAR(o[1], 127, 1);
  EXPECT_EQ(o[2], 0);
  for (auto [x, y] : {std::pair{10, 20}, {27, 20}, {10, 27}, {27, 27}})
    EXPECT_EQ(Pixel(x, y)[0], 255) << x << "," << y;
  for (auto [x, y] : {std::pair{9, 25}, {31, 25}, {15, 19}, {15, 31}, {5, 5}})
    EXPECT_EQ(Pixel(x, y), black) << x << "," << y;
  EXPECT_EQ(Pixel(44, 44), blue);
  EXPECT_EQ(Pixel(51, 44), black);
  EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}

}  // namespace
