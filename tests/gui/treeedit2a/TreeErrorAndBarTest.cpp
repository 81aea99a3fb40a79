// The error control (stored values, metrics, the sign and its three lines
// read back from the drawn pixels) and the tree's movie bar drawing.
#include <gtest/gtest.h>

#include "../tree/TreeEditorTestSupport.h"

namespace {

using namespace treetest;

bool Close(const wxColour& a, const wxColour& b, int tolerance = 40) {
  return std::abs(a.Red() - b.Red()) <= tolerance && std::abs(a.Green() - b.Green()) <= tolerance &&
         std::abs(a.Blue() - b.Blue()) <= tolerance;
}

wxColour NameColour() {
  wxColour c;
  Skin().GetColour("vuiedit_tree_ContNameCol", c);
  return c;
}

TEST(ErrorControlTest, EveryValueSetIsReturnedUnchanged) {
  ErrorControl e(300, 40, &Skin(), "Noise", "no editor", "PT_CURVE", "VUITreeCurveButton");
  e.SetValue(int32(-7));
  e.SetValue(2.5);
  e.SetValue(Vec2d(1, 2));
  e.SetValue(Vec3d(3, 4, 5));
  e.SetValue(Vec4d(6, 7, 8, 9));
  e.SetValue(Quaternion(0.1, 0.2, 0.3, 0.9));
  e.SetValue(Color(0.25, 0.5, 0.75));
  e.SetValue(ColorA(0.1, 0.2, 0.3, 0.4));
  e.SetValue(VornString("kept"));
  int32 i = 0;
  double r = 0;
  Vec2d v2;
  Vec3d v3;
  Vec4d v4;
  Quaternion q;
  Color c;
  ColorA ca;
  VornString s;
  ASSERT_TRUE(e.GetValue(i) && e.GetValue(r) && e.GetValue(v2) && e.GetValue(v3) &&
              e.GetValue(v4) && e.GetValue(q) && e.GetValue(c) && e.GetValue(ca) && e.GetValue(s));
  EXPECT_TRUE(i == -7 && r == 2.5 && v2.y == 2 && v3.z == 5 && v4.w == 9 && q.w == 0.9 &&
              c.g == 0.5 && ca.a == 0.4 && s == "kept");
}

TEST(ErrorControlTest, MetricsComeFromTheConstructorAndTheNameFont) {
  ErrorControl e(320, 44, &Skin(), "Displacement", "x", "y", "z");
  wxFont font;
  ASSERT_TRUE(Skin().GetFont("vui_control_name", font));
  wxBitmap scratch(10, 10);
  wxMemoryDC dc(scratch);
  dc.SetFont(font);
  EXPECT_EQ(e.GetAllignmentPt(), dc.GetTextExtent("Displacement").x + 20);
  EXPECT_EQ(e.GetMaxWidth(), 320);
  EXPECT_EQ(e.GetMaxHeight(), 44);
  EXPECT_EQ(e.GetLine(0), "Error: x");
  EXPECT_EQ(e.GetLine(1), "ValType: y");
  EXPECT_EQ(e.GetLine(2), "Widget: z");
  AssetManager bare;
  EXPECT_EQ(FiredAssertion([&] { ErrorControl x(10, 10, &bare, "a", "b", "c", "d"); }),
            "val == true");
  EXPECT_EQ(FiredAssertion([] { ErrorControl x(10, 10, nullptr, "a", "b", "c", "d"); }),
            "assetman != __null");
}

TEST(ErrorControlTest, TheSignAndTheThreeLinesAreDrawn) {
  const int w = 360, h = 44;
  ErrorControl e(w, h, &Skin(), "Noise", "no editor", "PT_CURVE", "VUITreeCurveButton");
  ErrorControl other(w, h, &Skin(), "Noise", "missing image", "PT_CURVE", "VUITreeCurveButton");
  const wxImage a = Render(&e, w, h).ConvertToImage();
  const wxImage b = Render(&other, w, h).ConvertToImage();
  const wxRect text = e.GetTextRect();
  ASSERT_EQ(text.height % 3, 0);
  const int line = text.height / 3;
  // Each line's band holds text in the name colour; only the first line
  // depends on the message.
  for (int i = 0; i < 3; ++i) {
    int inked = 0, differing = 0;
    for (int y = text.y + i * line; y < text.y + (i + 1) * line; ++y)
      for (int x = text.x; x < w; ++x) {
        inked += Close(ImagePixel(a, x, y), NameColour(), 60);
        differing += ImagePixel(a, x, y) != ImagePixel(b, x, y);
      }
    EXPECT_GT(inked, 15) << "line " << i;
    if (i == 0)
      EXPECT_GT(differing, 15);
    else
      EXPECT_EQ(differing, 0) << "line " << i;
  }
  // Nothing of the lines left of the text area, right of the sign.
  for (int y = 0; y < h; ++y)
    for (int x = e.GetSignRect().GetRight() + 2; x < text.x; ++x)
      EXPECT_EQ(ImagePixel(a, x, y), *wxBLACK) << x << "," << y;

  // The sign: a red disc, a white cross through its middle, soft edges.
  const wxRect sign = e.GetSignRect();
  const int cx = sign.x + sign.width / 2, cy = sign.y + sign.height / 2;
  EXPECT_TRUE(Close(ImagePixel(a, cx, cy), *wxWHITE, 60));
  EXPECT_TRUE(Close(ImagePixel(a, cx, sign.y + 2), wxColour(217, 31, 31), 40));
  int blended = 0;
  for (int y = sign.y - 1; y <= sign.GetBottom() + 1; ++y)
    for (int x = sign.x - 1; x <= sign.GetRight() + 1; ++x) {
      const wxColour p = ImagePixel(a, x, y);
      blended +=
          !Close(p, *wxBLACK, 8) && !Close(p, wxColour(217, 31, 31), 8) && !Close(p, *wxWHITE, 8);
    }
  EXPECT_GT(blended, 8);
}

TEST(TreeMovieBarTest, DrawsTheTrackAsALineAndTheRangeAsAnOutlinedBand) {
  TestFrame frame{wxSize(300, 100)};
  const wxBitmap start = SolidBitmap(6, 10, wxColour(0, 0, 255));
  const wxBitmap end = SolidBitmap(6, 10, wxColour(0, 255, 0));
  const wxBitmap head = SolidBitmap(8, 12, wxColour(255, 0, 255));
  VornVUIMovieBar bar(&start, &end, &head, 0, 0, 200, 30, frame.Get(), 5, nullptr);
  const wxColour bg(20, 30, 40), line(0, 200, 180), played(240, 160, 0);
  bar.SetTreeColours(WxCtoC(bg), WxCtoC(line), WxCtoC(played));
  bar.SetStart(0.5);  // the range starts at x 96
  bar.SetValue(0.5);  // the playhead at 141
  ASSERT_EQ(bar.GetStartMarker(), 96);
  ASSERT_EQ(bar.GetPlayhead(), 141);
  const wxImage img = Render(&bar, 200, 30).ConvertToImage();
  const struct {
    int x, y;
    wxColour expected;
    const char* what;
  } probes[] = {
      {50, 15, line, "the track's line"},      {50, 13, bg, "no band before the range"},
      {120, 10, line, "the range's top"},      {120, 19, line, "the range's bottom"},
      {120, 13, played, "the played part"},    {170, 13, bg, "the range not yet played"},
      {143, 5, wxColour(255, 0, 255), "head"}, {93, 25, wxColour(0, 0, 255), "start marker"},
  };
  for (const auto& p : probes) EXPECT_TRUE(Close(ImagePixel(img, p.x, p.y), p.expected)) << p.what;
}

}  // namespace
