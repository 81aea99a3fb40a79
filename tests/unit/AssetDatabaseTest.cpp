// The message, colour and font file grammars with their messages. Fonts are
// only parsed here up to the point where a wxFont would be created; creating
// them needs a display (tests/gui/AssetFontTest.cpp).
#include <wx/colour.h>

#include "AssetTestUtil.h"
#include "TestSupport.h"

namespace {

class DatabaseTest : public testing::Test {
 protected:
  // Indexes one file called name holding text.
  void Load(const std::string& name, const std::string& text) {
    m_dir.Write(name, text);
    ASSERT_TRUE(LoadTree(m_manager, m_dir.Path()));
  }
  // The warnings' texts, each checked to carry the title.
  static std::vector<std::string> Texts(const CaptureWarnings& w, const std::string& title) {
    std::vector<std::string> texts;
    for (const auto& warning : w.Warnings()) {
      EXPECT_EQ(warning.title, title);
      texts.push_back(warning.text);
    }
    return texts;
  }
  TempDir m_dir;
  AssetManager m_manager;
};

TEST_F(DatabaseTest, MessagePairsEndAtAnExactFinishAndEachLineLosesItsLastCharacter) {
  m_dir.Write("end.txt", "B.\n2.\nC.");  // without FINISH: read to the end
  Load("msg.txt",
       "Hello \r\nBonjour \nGood bye!\nAu revoir!\n"
       "FINISH\nx \nfinish \nfini \n FINISH \nlater \n"  // none of these is "FINISH" + 1 char
       "A.\n1.\nA.\n2.\n"                                // a duplicate keeps the first
       "FINISH \nAfter \nNever \n");
  CaptureDprintf debug;
  ASSERT_TRUE(m_manager.LoadMessages("msg.txt"));
  EXPECT_TRUE(debug.Contains("*A*")) << debug.All();
  EXPECT_TRUE(debug.Contains("line 13")) << debug.All();
  const std::pair<const char*, const char*> expected[] = {
      {"Hello", "Bonjour"}, {"Good bye", "Au revoir"}, {"FINIS", "x"},
      {"finish", "fini"},   {" FINISH", "later"},      {"A", "1"}};
  for (const auto& [key, text] : expected) EXPECT_EQ(m_manager.GetMessage(key), text);
  debug.ClearLines();
  EXPECT_EQ(m_manager.GetMessage(std::string("After")), "After");
  EXPECT_EQ(debug.Lines(), std::vector<std::string>{"WARNING : Message *After* not translated\n"});

  m_manager.ClearMessageDatabase();
  ASSERT_TRUE(m_manager.LoadMessages("end.txt"));
  EXPECT_EQ(m_manager.GetMessage("B"), "2");
  EXPECT_EQ(m_manager.GetMessage("C"), "C");  // a key without translation line
  EXPECT_EQ(m_manager.GetMessage("Hello"), "Hello");
}

TEST_F(DatabaseTest, MissingAssetsWarnAndFail) {
  Load("other.txt", "");
  CaptureWarnings warnings;
  EXPECT_FALSE(m_manager.LoadMessages("msg.txt"));
  EXPECT_FALSE(m_manager.LoadFontData("fonts.txt"));
  EXPECT_FALSE(m_manager.LoadColourData("colours.txt"));
  EXPECT_TRUE(warnings.Contains("MessageDatabase Script Error", "msg.txt"));
  EXPECT_TRUE(warnings.Contains("FontDatabase Script Error", "fonts.txt"));
  EXPECT_TRUE(warnings.Contains("ColorDatabase Script Error", "colours.txt"));
}

TEST_F(DatabaseTest, ColourDefinitionsAliasesCommentsAndErrors) {
  Load("colours.txt",
       "Background 200 200 210\n"
       "\n"
       "Highlight 255 255 255 128\n"
       "# a comment 1 2 3\n"
       "ButtonFace Background\n"
       "HalfAlias Highlight\n"
       "#red 1 2 3\n"
       "Bright 510 -255 0\n"
       "Bad 1\n"
       "Background 1 2 3\n"
       "Ghost Nowhere\n"
       "   \n"
       "Lonely\n"
       "ButtonFace Highlight\n"
       "Tail 10 20 30 40 junk\n"
       "Huge 16325 0 0\n"
       "HugeAlias Huge");
  CaptureWarnings warnings;
  EXPECT_FALSE(m_manager.LoadColourData("colours.txt"));
  EXPECT_EQ(Texts(warnings, "ColorDatabase Script Error"),
            (std::vector<std::string>{
                "Got red but Cannot get green and blue data's on line 9",
                "We've already got colour [Background] on line 10",
                "Colour [Nowhere] does not exist, on line 11",
                "Cannot get 1st arg (colourname) on line 12",
                "Cannot get 2nd arg (predef_colorname or rednum) on line 13",
            }));
  const struct {
    const char* name;
    ColorA value;
  } stored[] = {
      {"Background", ColorA(200 / 255.0, 200 / 255.0, 210 / 255.0, 1.0)},
      {"Highlight", ColorA(1.0, 1.0, 1.0, 128 / 255.0)},
      {"ButtonFace", ColorA(200 / 255.0, 200 / 255.0, 210 / 255.0, 1.0)},  // first one stays
      {"HalfAlias", ColorA(1.0, 1.0, 1.0, 128 / 255.0)},
      {"#red", ColorA(1 / 255.0, 2 / 255.0, 3 / 255.0, 1.0)},
      {"Bright", ColorA(2.0, -1.0, 0.0, 1.0)},  // not clamped
      {"Tail", ColorA(10 / 255.0, 20 / 255.0, 30 / 255.0, 40 / 255.0)},
      // 16325/255*255 is a hair below 16325 in doubles: the alias truncates.
      {"HugeAlias", ColorA(16324 / 255.0, 0.0, 0.0, 1.0)},
  };
  ColorA c;
  for (const auto& s : stored) {
    ASSERT_TRUE(m_manager.GetColour(s.name, c)) << s.name;
    EXPECT_EQ(c, s.value) << s.name;
  }
  std::vector<std::string> names = {"stale"};
  m_manager.GetColourNameList(names);
  EXPECT_EQ(names,
            (std::vector<std::string>{"#red", "Background", "Bright", "ButtonFace", "HalfAlias",
                                      "Highlight", "Huge", "HugeAlias", "Tail"}));

  // A correct file loads true and sees the names of earlier files; loaded
  // again, its alias is refused silently and its definition with a message.
  m_dir.Write("b.txt", "Two Background\r\nOne 1 2 3\n");
  m_manager.ClearAssets();
  ASSERT_TRUE(LoadTree(m_manager, m_dir.Path()));
  EXPECT_TRUE(m_manager.LoadColourData("b.txt"));
  Color rgb;
  ASSERT_TRUE(m_manager.GetColour("Two", rgb));
  EXPECT_EQ(rgb, Color(200 / 255.0, 200 / 255.0, 210 / 255.0));
  warnings.ClearWarnings();
  EXPECT_FALSE(m_manager.LoadColourData("b.txt"));
  EXPECT_EQ(Texts(warnings, "ColorDatabase Script Error"),
            std::vector<std::string>{"We've already got colour [One] on line 2"});
}

TEST(ColourLookup, WxColourTruncatesAndUnknownNamesGiveFunnyRed) {
  AssetManager m;
  EXPECT_TRUE(m.SetColour("c", 128, 254, 1, 0));
  EXPECT_FALSE(m.SetColour("c", 0, 0, 0, 0));
  m.SetColour("out", 300, -5, 255, 255);
  wxColour wx;
  ASSERT_TRUE(m.GetColour("c", wx));
  EXPECT_EQ(wx, wxColour(128, 254, 1));
  ASSERT_TRUE(m.GetColour("out", wx));
  EXPECT_EQ(wx, wxColour(255, 0, 255));

  CaptureDprintf debug;
  Color c;
  ColorA ca;
  EXPECT_FALSE(m.GetColour("Nope", c));
  EXPECT_FALSE(m.GetColour("Nope", ca));
  EXPECT_FALSE(m.GetColour("Nope", wx));
  EXPECT_EQ(c, Color(1.0, 0.39215686274509803, 0.39215686274509803));
  EXPECT_EQ(ca, ColorA(1.0, 100 / 255.0, 100 / 255.0, 1.0));
  EXPECT_EQ(wx, wxColour(255, 100, 100));
  std::vector<std::string> expected;
  for (const char* form : {"Colour", "ColourA", "wxColour"}) {
    expected.push_back(std::string("NONFATAL ERROR: Failed to find ") + form + " called 'Nope'\n");
    expected.push_back("Setting 'Nope' to default funny red\n");
  }
  EXPECT_EQ(debug.Lines(), expected);
}

TEST_F(DatabaseTest, FaultyFontLinesAreReportedWithTheirLineNumbers) {
  // Only faulty and blank lines: no font gets created.
  Load("fonts.txt",
       "Big 20 swiss bold\n"
       "\n"
       "Odd 12 fancy\n"
       "Thin 12 roman italic heavy\n"
       "Caps 12 Swiss\n"
       "   \n"
       "NoSize swiss\n"
       "Zero 0 swiss\n"
       "Slanted 10 script slant wide\n");
  CaptureWarnings warnings;
  CaptureDprintf debug;
  EXPECT_FALSE(m_manager.LoadFontData("fonts.txt"));
  ASSERT_FALSE(debug.Lines().empty());
  EXPECT_EQ(debug.Lines()[0], "fonts.txt\n");
  EXPECT_EQ(Texts(warnings, "FontDatabase Script Error"),
            (std::vector<std::string>{
                "Unknown Style Arg [bold] on line 1", "Unknown Family Arg [fancy] on line 3",
                "Unknown Weight Arg [heavy] on line 4", "Unknown Family Arg [Swiss] on line 5",
                "Bad Point Size Arg [0] on line 8", "Unknown Weight Arg [wide] on line 9"}));
  std::vector<std::string> names = {"stale"};
  m_manager.GetFontNameList(names);
  EXPECT_TRUE(names.empty());
}

}  // namespace
