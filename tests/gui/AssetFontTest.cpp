// Fonts created from the font database (needs the window system).
#include <gtest/gtest.h>
#include <wx/settings.h>
#include <wx/wx.h>

#include "../unit/AssetTestUtil.h"
#include "TestSupport.h"
#include "vorn/AssetManager.h"
#include "vorn/FileAsset.h"

namespace {

TEST(AssetFonts, DatabaseLinesBecomeFonts) {
  TempDir dir;
  dir.Write("fonts.txt",
            "Title 12 swiss normal bold\n"
            "\n"
            "Plain 10 roman\n"
            "Fancy 14 decorative italic light\n"
            "Code 9 modern slant\n"
            "Title 20 swiss\n"
            "Odd 11 fancy\n"
            "Last 8 default normal normal");
  AssetManager m;
  ASSERT_TRUE(LoadTree(m, dir.Path()));
  CaptureWarnings warnings;
  EXPECT_FALSE(m.LoadFontData("fonts.txt"));  // two faulty lines
  ASSERT_EQ(warnings.Warnings().size(), 2u);
  EXPECT_EQ(warnings.Warnings()[0].text, "Already have font [Title] on line 6");
  EXPECT_EQ(warnings.Warnings()[1].text, "Unknown Family Arg [fancy] on line 7");

  const struct {
    const char* name;
    int points;
    wxFontFamily family;
    wxFontStyle style;
    wxFontWeight weight;
  } expected[] = {
      {"Title", 12, wxFONTFAMILY_SWISS, wxFONTSTYLE_NORMAL, wxFONTWEIGHT_BOLD},
      {"Plain", 10, wxFONTFAMILY_ROMAN, wxFONTSTYLE_NORMAL, wxFONTWEIGHT_NORMAL},
      {"Fancy", 14, wxFONTFAMILY_DECORATIVE, wxFONTSTYLE_ITALIC, wxFONTWEIGHT_LIGHT},
      {"Code", 9, wxFONTFAMILY_MODERN, wxFONTSTYLE_SLANT, wxFONTWEIGHT_NORMAL},
      {"Last", 8, wxFONTFAMILY_DEFAULT, wxFONTSTYLE_NORMAL, wxFONTWEIGHT_NORMAL},
  };
  for (const auto& e : expected) {
    wxFont font;
    CaptureDprintf debug;
    ASSERT_TRUE(m.GetFont(e.name, font)) << e.name;
    EXPECT_EQ(debug.Lines(), std::vector<std::string>{std::string(e.name) + "\n"});
    ASSERT_TRUE(font.IsOk());
    // GTK reports the family of the face it picked, so only the one family
    // with a visible property is checked.
    EXPECT_EQ(std::vector<int>({font.GetPointSize(), font.IsFixedWidth(), font.GetStyle(),
                                font.GetWeight(), font.GetUnderlined()}),
              std::vector<int>({e.points, e.family == wxFONTFAMILY_MODERN, e.style, e.weight, 0}))
        << e.name;
  }
  std::vector<std::string> names;
  m.GetFontNameList(names);
  EXPECT_EQ(names, (std::vector<std::string>{"Code", "Fancy", "Last", "Plain", "Title"}));
  wxFont other(*wxITALIC_FONT);
  EXPECT_FALSE(m.SetFont("Title", other));
  EXPECT_TRUE(m.SetFont("Other", other));
}

TEST(AssetFonts, UnknownFontGivesTheDefaultGuiFont) {
  AssetManager m;
  wxFont font;
  CaptureDprintf debug;
  EXPECT_FALSE(m.GetFont("Missing", font));
  EXPECT_EQ(debug.Lines(),
            (std::vector<std::string>{"Missing\n",
                                      "NONFATAL ERROR: Failed to find Font called 'Missing'\n",
                                      "Setting 'Missing' to default GUI font\n"}));
  EXPECT_TRUE(font.IsOk());
  EXPECT_EQ(font, wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT));
  m.SetFont("Missing", font);
  m.Clear();  // fonts go with Clear
  debug.ClearLines();
  EXPECT_FALSE(m.GetFont("Missing", font));
}

}  // namespace
