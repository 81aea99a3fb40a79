// The asset index: replacement, the seven-step choice, GetAllAssets, loaders,
// texts, menu texts and clearing.
#include <wx/string.h>

#include <filesystem>

#include "AssetTestUtil.h"
#include "TestSupport.h"
#include "vorn/FileAsset.h"

namespace {

// The seven identities in the order the choice tries them, for platform
// Linux, language english, sub-language uk.
const char* const kPriority[7][3] = {
    {"linux", "english", "uk"},
    {"generic", "english", "uk"},
    {"linux", "english", ""},
    {"generic", "english", ""},
    {"linux", "", ""},
    {"generic", "", ""},
    {"", "", ""},
};
// Variants that are never chosen for those settings.
const char* const kDecoys[][3] = {
    {"linux", "french", ""}, {"linux", "english", "us"}, {"windows", "", ""},
    {"generic", "", "uk"},   {"", "english", ""},        {"linux", "", "uk"},
};

void Configure(AssetManager& m) {
  m.SetPlatform("Linux");
  m.SetLanguage("English", "UK");
}

void AddDecoys(AssetManager& m, const char* name) {
  for (const auto& d : kDecoys) m.SetAsset(new MemoryAsset(name, d[0], d[1], d[2], ""));
}

TEST(AssetManagerChoice, EachStepOutranksTheLaterOnes) {
  for (int first = 0; first < 7; ++first) {
    for (bool decoysFirst : {true, false}) {
      AssetManager m;
      Configure(m);
      if (decoysFirst) AddDecoys(m, "title.txt");
      // Registered from least to most preferred, so registration order
      // cannot be what decides.
      for (int i = 6; i >= first; --i)
        m.SetAsset(new MemoryAsset("title.txt", kPriority[i][0], kPriority[i][1], kPriority[i][2],
                                   std::to_string(i)));
      if (!decoysFirst) AddDecoys(m, "title.txt");
      Asset* out = nullptr;
      ASSERT_TRUE(m.GetAsset("TITLE.TXT", out));
      EXPECT_EQ(Identity(out), std::string(kPriority[first][0]) + "/" + kPriority[first][1] + "/" +
                                   kPriority[first][2])
          << "first available step " << first + 1;
    }
  }
}

TEST(AssetManagerChoice, OnlyOtherLanguagesGiveFalseAndLeaveOutAlone) {
  AssetManager m;
  Configure(m);
  AddDecoys(m, "title.txt");
  MemoryAsset sentinel("x", "", "", "", "");
  Asset* out = &sentinel;
  EXPECT_FALSE(m.GetAsset("title.txt", out));
  EXPECT_FALSE(m.GetAsset("unknown.txt", out));
  EXPECT_EQ(out, &sentinel);
  // The explicit form uses its arguments, not the settings; a later language
  // change applies to lookups at once.
  EXPECT_TRUE(m.GetBestAsset(out, "Title.txt", "Windows", "", ""));
  EXPECT_EQ(Identity(out), "windows//");
  m.SetLanguage("French", "");
  EXPECT_TRUE(m.GetAsset("title.txt", out));
  EXPECT_EQ(Identity(out), "linux/french/");
}

TEST(AssetManagerIndex, LaterLoaderReplacesTheSameVariantAndDeletesTheEarlierAsset) {
  AssetManager m;
  int deaths = 0;
  auto *first = new FakeLoader, *second = new FakeLoader;
  first->toRegister = {new MemoryAsset("a.txt", "linux", "", "", "first", &deaths),
                       new MemoryAsset("a.txt", "", "", "", "root", &deaths)};
  second->toRegister = {new MemoryAsset("a.txt", "linux", "", "", "second", &deaths)};
  m.SetAssetLoader(first);
  m.SetAssetLoader(second);
  ASSERT_TRUE(m.LoadAssets());
  EXPECT_EQ(deaths, 1);
  EXPECT_EQ(m.GetNumAssets(), 2u);
  std::vector<Asset*> all;
  m.SetPlatform("LINUX");
  ASSERT_TRUE(m.GetAllAssets("a.txt", all));
  ASSERT_EQ(all.size(), 2u);
  // Registration order: the replacement goes after the variants present.
  EXPECT_EQ(Identity(all[0]), "//");
  EXPECT_EQ(Identity(all[1]), "linux//");
  std::string text;
  ASSERT_TRUE(m.LoadText("a.txt", text));
  EXPECT_EQ(text, "second");
  m.ClearAssets();
  EXPECT_EQ(deaths, 3);
}

TEST(AssetManagerIndex, GetAllAssetsAppendsUsableVariantsInRegistrationOrder) {
  AssetManager m;
  Configure(m);
  MemoryAsset sentinel("s", "", "", "", "");
  std::vector<Asset*> out = {&sentinel};
  EXPECT_FALSE(m.GetAllAssets("none.txt", out));
  m.SetAsset(new MemoryAsset("f.txt", "linux", "french", "", ""));
  EXPECT_TRUE(m.GetAllAssets("f.txt", out));
  EXPECT_EQ(out.size(), 1u);

  for (int i = 6; i >= 0; i -= 2)  // steps 7, 5, 3, 1
    m.SetAsset(new MemoryAsset("t.txt", kPriority[i][0], kPriority[i][1], kPriority[i][2], ""));
  AddDecoys(m, "t.txt");
  m.SetAsset(new MemoryAsset("t.txt", "generic", "english", "uk", ""));
  ASSERT_TRUE(m.GetAllAssets("T.txt", out));
  std::vector<std::string> got;
  for (Asset* a : out) got.push_back(a == &sentinel ? "sentinel" : Identity(a));
  EXPECT_EQ(got, (std::vector<std::string>{"sentinel", "//", "linux//", "linux/english/",
                                           "linux/english/uk", "generic/english/uk"}));
}

TEST(AssetManagerLoaders, FailingLoaderIsReportedSkippedAndMakesTheResultFalse) {
  AssetManager m;
  auto *bad = new FakeLoader, *partial = new FakeLoader, *good = new FakeLoader;
  bad->failOpen = true;
  partial->failLoad = true;
  partial->toRegister.push_back(new MemoryAsset("p.txt", "", "", "", ""));
  good->toRegister.push_back(new MemoryAsset("g.txt", "", "", "", ""));
  for (AssetLoader* l : std::initializer_list<AssetLoader*>{bad, partial, good})
    m.SetAssetLoader(l);
  CaptureWarnings warnings;
  EXPECT_FALSE(m.LoadAssets());
  EXPECT_EQ(bad->loads, 0);
  EXPECT_EQ(good->loads, 1);
  EXPECT_EQ(m.GetNumAssets(), 2u);
  ASSERT_EQ(warnings.Warnings().size(), 2u);
  EXPECT_TRUE(warnings.Contains("AssetManager Load Error", "Cannot open asset loader 1"));
  EXPECT_TRUE(
      warnings.Contains("AssetManager Load Error", "Cannot load the assets of asset loader 2"));
}

TEST(AssetManagerLoaders, CloseAllClosesAssetsThenLoadersAndClearDeletesBoth) {
  AssetManager m;
  EXPECT_EQ(FiredAssertion([&] { m.LoadAssets(); }), "!m_loaders.empty()");
  int deaths = 0;
  auto* a = new MemoryAsset("a.txt", "", "", "", "", &deaths);
  m.SetAsset(a);
  auto* loader = new FakeLoader;
  m.SetAssetLoader(loader);
  m.CloseAll();
  EXPECT_EQ(a->closes, 1);
  EXPECT_EQ(loader->closes, 1);

  m.SetMessage("key", "text");
  m.SetColour("red", 255, 0, 0, 255);
  m.SetPlatform("Linux");
  m.Clear();
  EXPECT_EQ(deaths, 1);
  EXPECT_EQ(m.GetNumAssets(), 0u);
  std::vector<std::string> colours;
  m.GetColourNameList(colours);
  EXPECT_TRUE(colours.empty());
  EXPECT_EQ(m.GetMessage("key"), "text");  // messages survive Clear
  std::string platform;
  m.GetPlatform(platform);
  EXPECT_EQ(platform, "Linux");                                              // stored as given
  EXPECT_EQ(FiredAssertion([&] { m.LoadAssets(); }), "!m_loaders.empty()");  // loaders gone
}

TEST(AssetManagerText, LoadTextClosesTheAssetAndLeavesOutAloneOnFailure) {
  TempDir dir;
  dir.Write("t.txt", "line1\r\nline2\rcaf\xc3\xa9");
  dir.Write("latin.txt", "caf\xe9");
  AssetManager m;
  ASSERT_TRUE(LoadTree(m, dir.Path()));
  std::string text = "untouched";
  EXPECT_FALSE(m.LoadText("missing.txt", text));
  EXPECT_EQ(text, "untouched");
  ASSERT_TRUE(m.LoadText("T.TXT", text));
  EXPECT_EQ(text, "line1\nline2\ncaf\xc3\xa9");
  Asset* asset = nullptr;
  ASSERT_TRUE(m.GetAsset("t.txt", asset));
  EXPECT_FALSE(dynamic_cast<FileAsset*>(asset)->IsOpen());

  wxString wx = "untouched";
  EXPECT_FALSE(m.LoadText("missing.txt", wx));
  EXPECT_EQ(wx, "untouched");
  ASSERT_TRUE(m.LoadText("t.txt", wx));
  EXPECT_EQ(wx, wxString::FromUTF8("line1\nline2\ncaf\xc3\xa9"));
  ASSERT_TRUE(m.LoadText("latin.txt", wx));  // not UTF-8: kept as Latin-1
  EXPECT_EQ(wx, wxString::FromUTF8("caf\xc3\xa9"));

  // A file deleted after the scan gives no text rather than a crash.
  std::filesystem::remove(dir.Path() + "t.txt");
  CaptureDprintf debug;
  EXPECT_FALSE(m.LoadText("t.txt", text));
  EXPECT_EQ(text, "line1\nline2\ncaf\xc3\xa9");
}

TEST(AssetManagerText, MenuTextGrammar) {
  const struct {
    std::string text;
    std::vector<std::pair<int, std::string>> items;
  } cases[] = {
      {"1 First\n2 Second", {{1, "First"}, {2, "Second"}}},
      {"1 First\n2\n3 Third\n", {{1, "First"}}},
      {"7  Two spaces\n", {{7, " Two spaces"}}},
      {"\n\n  12 Open file\r\n-3 Minus\n", {{12, "Open file"}, {-3, "Minus"}}},
      {"1 One\n# comment\n2 Two\n", {{1, "One"}}},
      {"5 \n6 Six\n", {{6, "Six"}}},  // a lone separator gives no item
      {"1\t\xc3\xa9t\xc3\xa9\n", {{1, "\xc3\xa9t\xc3\xa9"}}},
      {"1 " + std::string(150, 'x') + "\n", {{1, std::string(98, 'x')}}},  // 99 read, 1 dropped
      {"99999999999 Too big\n", {}},
      {"", {}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    TempDir dir;
    dir.Write("menu.txt", c.text);
    AssetManager m;
    ASSERT_TRUE(LoadTree(m, dir.Path()));
    std::vector<MENUITEM> items(1);  // appended to, not cleared
    items[0].id = 42;
    ASSERT_TRUE(m.LoadMenuText("menu.txt", items));
    ASSERT_EQ(items.size(), c.items.size() + 1);
    EXPECT_EQ(items[0].id, 42);
    for (std::size_t i = 0; i < c.items.size(); ++i) {
      EXPECT_EQ(items[i + 1].id, c.items[i].first);
      EXPECT_EQ(items[i + 1].text.utf8_string(), c.items[i].second);
    }
    EXPECT_FALSE(m.LoadMenuText("other.txt", items));
    EXPECT_EQ(items.size(), c.items.size() + 1);
  }
}

}  // namespace
