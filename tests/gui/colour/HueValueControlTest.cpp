// The hue-value field: marker geometry, tables that agree with it, presses
// inside and outside the field, the grey strip keeping the hue, and the
// painted pixels.
#include <gtest/gtest.h>

#include <cmath>

#include "ColourTestSupport.h"

namespace {

constexpr int W = 222, H = 136;

class HueValueTest : public colourtest::ColourTest {
 protected:
  HueValueControl* hv = new HueValueControl(0, 0, W, H, frame.Get(), 3, &group);

  HueValueTest() { colours.names = {{hv, "hv"}}; }
  std::string Press(int x, int y) {
    log.clear();
    Mouse(hv, wxEVT_LEFT_DOWN, x, y);
    Mouse(hv, wxEVT_LEFT_UP, x, y);
    return Take();
  }
};

TEST_F(HueValueTest, MarkerPositions) {
  const struct {
    double h, v;
    int x, y;
  } colour[] = {{0.5, 1, 111, 11}, {0.5, 0, 111, 111}, {0, 0.5, 11, 61}, {1, 1, 211, 11}};
  for (const auto& c : colour) {
    int x = -1, y = -1;
    ASSERT_TRUE(hv->GetColourPixelPos(c.h, c.v, x, y)) << c.h << " " << c.v;
    EXPECT_EQ(wxPoint(x, y), wxPoint(c.x, c.y)) << c.h << " " << c.v;
  }
  int x = -1, y = -1;
  ASSERT_TRUE(hv->GetGreyPixelPos(0, x, y));
  EXPECT_EQ(wxPoint(x, y), wxPoint(11, 125));
  ASSERT_TRUE(hv->GetGreyPixelPos(1, x, y));
  EXPECT_EQ(wxPoint(x, y), wxPoint(211, 125));
  for (double bad : {-0.01, 1.01, std::nan("")}) {
    EXPECT_FALSE(hv->GetColourPixelPos(bad, 0.5, x, y)) << bad;
    EXPECT_FALSE(hv->GetColourPixelPos(0.5, bad, x, y)) << bad;
    EXPECT_FALSE(hv->GetGreyPixelPos(bad, x, y)) << bad;
  }
}

TEST_F(HueValueTest, TablesAgreeWithTheMarker) {
  const auto& hues = hv->GetHueTable();
  const auto& values = hv->GetValueTable();
  ASSERT_EQ(hues.size(), 210u);
  ASSERT_EQ(values.size(), 129u);
  // Every column and row the marker can reach maps back onto itself.
  int x = 0, y = 0;
  for (int px = 11; px <= 211; ++px) {
    ASSERT_TRUE(hv->GetColourPixelPos(hues[px - 6], 0.5, x, y));
    EXPECT_EQ(x, px);
  }
  for (int py = 11; py <= 111; ++py) {
    ASSERT_TRUE(hv->GetColourPixelPos(0.5, values[py - 6], x, y));
    EXPECT_EQ(y, py);
  }
  // Hue rises, value falls, and the strip is the last 20 rows, y = 125 in it.
  for (std::size_t i = 1; i < hues.size(); ++i) EXPECT_GE(hues[i], hues[i - 1]);
  EXPECT_EQ(hues.front(), 0.0);
  EXPECT_EQ(hues.back(), 1.0);
  for (std::size_t j = 0; j < values.size(); ++j) {
    const bool strip = j >= values.size() - 20;
    EXPECT_EQ(values[j] < 0, strip) << j;
    if (!strip && j > 0) {
      EXPECT_LE(values[j], values[j - 1]) << j;
    }
  }
  EXPECT_EQ(values[125 - 6], -1.0);
  EXPECT_EQ(values[111 - 6], 0.0);
}

TEST_F(HueValueTest, PressesPickWithinTheFieldOnly) {
  Arrive(ColourHintCurrentHSV(0.2, 0.6, 0.4));
  // Outside the field: the frame's columns and rows.
  for (const wxPoint& p :
       {wxPoint(5, 60), wxPoint(W - 6, 60), wxPoint(100, 5), wxPoint(100, H - 1)}) {
    EXPECT_EQ(Press(p.x, p.y), "sel 3 unsel 3") << p.x << "," << p.y;
    EXPECT_EQ(colourtest::State(*hv), "0.2 0.6 0.4 | 0.352 0.4 0.16") << p.x << "," << p.y;
  }
  // The field's first and last columns clamp the hue; saturation is kept.
  EXPECT_EQ(Press(6, 11), "sel 3 hsv hv 0 0.6 1 unsel 3");
  EXPECT_EQ(Press(W - 7, 111), "sel 3 hsv hv 1 0.6 0 unsel 3");
  // A drag follows the pointer and stops at the field's edge.
  log.clear();
  Mouse(hv, wxEVT_LEFT_DOWN, 111, 11);
  EXPECT_TRUE(hv->IsMouseCaptive());
  Mouse(hv, wxEVT_MOTION, 61, 61);
  Mouse(hv, wxEVT_MOTION, 300, 61);
  Mouse(hv, wxEVT_LEFT_UP, 300, 61);
  EXPECT_EQ(Joined(log), "sel 3 hsv hv 0.5 0.6 1 hsv hv 0.25 0.6 0.5 unsel 3");
  EXPECT_FALSE(hv->IsMouseCaptive());
  // Motion without a press picks nothing.
  log.clear();
  Mouse(hv, wxEVT_MOTION, 150, 50);
  EXPECT_EQ(Joined(log), "");
  // Disabled in the middle of a drag: the capture goes.
  Mouse(hv, wxEVT_LEFT_DOWN, 111, 11);
  hv->SetEnabled(false);
  EXPECT_FALSE(hv->IsMouseCaptive());
}

TEST_F(HueValueTest, GreyKeepsTheLastHue) {
  Arrive(ColourHintCurrentHSV(0.3, 0.8, 0.9));
  // The strip gives a grey of the column's level and keeps the hue.
  EXPECT_EQ(Press(111, 125), "sel 3 hsv hv 0.3 0 0.5 unsel 3");
  double h, v;
  hv->GetHueValue(h, v);
  EXPECT_EQ(h, 0.3);
  // A grey arriving as RGB keeps it too; a colour brings its own.
  Arrive(ColourHintCurrentRGB(Color(0.2, 0.2, 0.2)));
  EXPECT_EQ(colourtest::State(*hv), "0.3 0 0.2 | 0.2 0.2 0.2");
  Arrive(ColourHintCurrentRGB(Color(0, 0, 1)));
  hv->GetHueValue(h, v);
  EXPECT_NEAR(h, 2.0 / 3.0, 1e-12);
  // The marker sits in the strip while the colour is grey.
  Arrive(ColourHintCurrentRGB(Color(0.5, 0.5, 0.5)));
  const wxBitmap shot = Render(hv, W, H);
  const int level = int(hv->GetHueTable()[111 - 4 - 6] * 255);
  EXPECT_NE(PixelAt(shot, 111 - 4, 125), wxColour(level, level, level));
  EXPECT_EQ(PixelAt(shot, 111 - 4, 61), wxColour(127, 127, 127));
  // The host's setter clamps and tells no one.
  hv->SetHueValue(1.5, -2);
  EXPECT_EQ(colourtest::State(*hv), "1 0 0 | 0 0 0");
  EXPECT_EQ(Joined(log), "");
}

TEST_F(HueValueTest, PaintedFieldIsTheTablesColours) {
  Arrive(ColourHintCurrentHSV(0.0, 0.7, 0.05));  // marker in the dark corner
  const wxImage shot = Render(hv, W, H).ConvertToImage();
  const auto& hues = hv->GetHueTable();
  const auto& values = hv->GetValueTable();
  int mx, my;
  hv->GetColourPixelPos(0.0, 0.05, mx, my);
  int checked = 0;
  for (int y = 6; y <= H - 2; ++y)
    for (int x = 6; x <= W - 7; ++x) {
      if (std::abs(x - mx) <= 7 && std::abs(y - my) <= 7) continue;
      Color c(hues[x - 6], hues[x - 6], hues[x - 6]);
      if (values[y - 6] >= 0) c.HSVtoRGB(hues[x - 6], 0.7, values[y - 6]);
      const wxColour want(int(c.r * 255), int(c.g * 255), int(c.b * 255));
      ASSERT_EQ(ImagePixel(shot, x, y), want) << x << "," << y;
      ++checked;
    }
  EXPECT_GT(checked, 26000);
  // A new saturation repaints the field.
  Arrive(ColourHintCurrentHSV(0.0, 0.0, 0.05));
  EXPECT_EQ(PixelAt(Render(hv, W, H), 150, 11), wxColour(255, 255, 255));
}

TEST_F(HueValueTest, RecalcGuardsItsSizes) {
  EXPECT_EQ(FiredAssertion([&] { hv->Recalc(-1, 10); }), "width >= 0");
  EXPECT_EQ(FiredAssertion([&] { hv->Recalc(10, -1); }), "height >= 0");
  hv->Clear();
  EXPECT_TRUE(hv->GetHueTable().empty());
  // Resizing rebuilds the tables on the next pick or paint.
  hv->SetSize(122, 86);
  EXPECT_EQ(Press(61, 11), "sel 3 hsv hv 0.5 0 1 unsel 3");
  EXPECT_EQ(hv->GetHueTable().size(), 110u);
}

}  // namespace
