#include <gtest/gtest.h>

#include <sstream>

#include "HostTestUtil.h"
#include "TestSupport.h"
#include "vornhost/VornHost.h"

TEST(HostUtility, TextHelpers) {
  EXPECT_EQ(ToLower("Generic/Linux.STS"), "generic/linux.sts");
  EXPECT_EQ(ToLower("\xC3\x89t\xC3\xA9"), "\xC3\x89t\xC3\xA9");  // UTF-8 bytes untouched
  EXPECT_EQ(MakeDate(0) + " " + MakeTime(0), "1970-01-01 00:00:00");
  EXPECT_EQ(MakeDate(951782400 + 86399.9), "2000-02-29");  // leap day, last second
  EXPECT_EQ(MakeTime(951782400 + 86399.9), "23:59:59");
  EXPECT_EQ(MakeTime(-1), "23:59:59");
  EXPECT_EQ(MakeDate(1e300), "--");
  EnumStringParser p(" Linear | Smooth,Step ||  ");
  ASSERT_EQ(p.GetCount(), 3);
  EXPECT_EQ(p.GetName(0) + "/" + p.GetName(2), "Linear/Step");
  EXPECT_EQ(p.GetName(3) + p.GetName(-1), "");
  EXPECT_EQ(p.GetIndex("Smooth"), 1);
  EXPECT_EQ(p.GetIndex("smooth"), -1);
  EXPECT_EQ(p.Parse(""), 0);
}

TEST(HostUtility, ClampValue) {
  struct Case {
    double low, high, in, out;
    bool changed;
  } cases[] = {{0, 1, 0.5, 0.5, false}, {0, 1, -0.1, 0, true}, {0, 1, 1.5, 1, true},
               {0, 1, 0, 0, false},     {0, 1, 1, 1, false},   {0.0001, 0.9999, 1, 0.9999, true}};
  for (const Case& c : cases) {
    double v = c.in;
    EXPECT_EQ(ExtremeHelper::ClampValue(c.low, c.high, v), c.changed) << c.in;
    EXPECT_DOUBLE_EQ(v, c.out) << c.in;
  }
  int i = 12;
  EXPECT_TRUE(ExtremeHelper::ClampValue(0, 10, i));
  EXPECT_EQ(i, 10);
}

TEST(HostColor, HsvRoundTripsAndHueWraps) {
  struct Case {
    Color rgb;
    double h, s, v;
  } cases[] = {
      {{0, 0, 0}, 0, 0, 0},       {{0.5, 0.5, 0.5}, 0, 0, 0.5},     {{1, 1, 1}, 0, 0, 1},
      {{1, 0, 0}, 0, 1, 1},       {{0, 1, 0}, 1.0 / 3, 1, 1},       {{0, 0, 1}, 2.0 / 3, 1, 1},
      {{1, 0, 1}, 5.0 / 6, 1, 1}, {{0.5, 0.25, 0.25}, 0, 0.5, 0.5},
  };
  for (const Case& c : cases) {
    double h, s, v;
    c.rgb.RGBtoHSV(h, s, v);
    EXPECT_LT(Distance(Color(h, s, v), Color(c.h, c.s, c.v)), 1e-12) << c.h;
    Color back;
    back.HSVtoRGB(h, s, v);
    EXPECT_LT(Distance(back, c.rgb), 1e-12) << c.h;
  }
  Color a, b, c, red;
  a.HSVtoRGB(0.25, 1, 1);
  b.HSVtoRGB(1.25, 1, 1);
  c.HSVtoRGB(-0.75, 1, 1);
  red.HSVtoRGB(1.0, 1, 1);  // a full turn is red again, not out of range
  EXPECT_EQ(a, b);
  EXPECT_EQ(a, c);
  EXPECT_EQ(red, Color(1, 0, 0));
  EXPECT_EQ(CtoCA(Color(0.1, 0.2, 0.3)), ColorA(0.1, 0.2, 0.3, 1.0));
  EXPECT_EQ(CtoCA(Color(0.1, 0.2, 0.3), 0.5).a, 0.5);
  EXPECT_EQ(CAtoC(ColorA(0.1, 0.2, 0.3, 0.0)), Color(0.1, 0.2, 0.3));
}

TEST(HostStream, RoundTripsNumbersAndStrings) {
  std::ostringstream bytes;
  VornOutputStream out(bytes);
  out.Write32(0x01020304u);
  out << std::string("icon.png NONE NONE NONE 4 104\n") << std::string("") << std::string("\0x", 2);
  out.Write32(0xffffffffu);
  const std::string raw = bytes.str();
  ASSERT_EQ(raw.substr(0, 4), std::string("\x04\x03\x02\x01", 4));  // little-endian

  std::istringstream in(raw);
  VornInputStream reader(in);
  EXPECT_EQ(reader.Read32(), 0x01020304u);
  std::string a, b, c;
  reader >> a >> b >> c;
  EXPECT_EQ(a, "icon.png NONE NONE NONE 4 104\n");
  EXPECT_EQ(b, "");
  EXPECT_EQ(c, std::string("\0x", 2));
  EXPECT_EQ(reader.Read32(), 0xffffffffu);
  EXPECT_TRUE(reader.good());
  EXPECT_EQ(reader.Read32(), 0u);  // past the end
  EXPECT_FALSE(reader.good());

  std::istringstream huge(
      std::string("\xff\xff\xff\x7f"
                  "abc",
                  7));  // claims 2 GiB, holds 3
  VornInputStream hugeReader(huge);
  std::string s = "unchanged";
  hugeReader >> s;
  EXPECT_FALSE(hugeReader.good());
  EXPECT_EQ(s, "unchanged");
}

TEST(HostDebug, HandlersAreSwappable) {
  {
    CaptureDprintf lines;
    dprintf("value %d of %s\n", 7, "x");
    EXPECT_EQ(lines.Lines(), std::vector<std::string>{"value 7 of x\n"});
  }
  EXPECT_EQ(dprintf("discarded %d\n", 1), 0);  // default handler: nothing listens
  {
    CaptureWarnings warnings;
    WarningMessage("Title", "Text");
    ASSERT_EQ(warnings.Warnings().size(), 1u);
    EXPECT_EQ(warnings.Warnings()[0].title + "|" + warnings.Warnings()[0].text, "Title|Text");
  }
  testing::internal::CaptureStderr();
  WarningMessage("FontDatabase Script Error", "Unknown Family Arg [x] on line 3");
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "FontDatabase Script Error: Unknown Family Arg [x] on line 3\n");
}
