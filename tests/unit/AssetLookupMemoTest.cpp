// Lookups remember the variant chosen for each name; every change of the
// settings or of the index must make them choose again.
#include "AssetTestUtil.h"
#include "TestSupport.h"

namespace {

std::string Found(const AssetManager& m, const char* name) {
  Asset* out = nullptr;
  return m.GetAsset(name, out) ? Identity(out) : "none";
}

// One name with variants for two languages and two platforms.
void AddTitleVariants(AssetManager& m) {
  for (const char* p : {"", "generic", "linux"})
    for (const char* l : {"", "english", "french"})
      m.SetAsset(new MemoryAsset("title.txt", p, l, "", std::string(p) + l));
}

TEST(AssetLookupMemo, SettingChangesApplyToTheNextLookup) {
  AssetManager m;
  m.SetPlatform("Linux");
  m.SetLanguage("English", "");
  AddTitleVariants(m);
  EXPECT_EQ(Found(m, "Title.txt"), "linux/english/");
  m.SetLanguage("FRENCH", "");
  EXPECT_EQ(Found(m, "title.txt"), "linux/french/");
  m.SetPlatform("Windows");
  EXPECT_EQ(Found(m, "title.txt"), "generic/french/");
  m.SetLanguage("german", "");
  EXPECT_EQ(Found(m, "title.txt"), "generic//");
  // Other settings given explicitly neither use nor spoil the remembered one.
  Asset* out = nullptr;
  ASSERT_TRUE(m.GetBestAsset(out, "TITLE.TXT", "LINUX", "English", ""));
  EXPECT_EQ(Identity(out), "linux/english/");
  EXPECT_EQ(Found(m, "title.txt"), "generic//");
  ASSERT_TRUE(m.GetBestAsset(out, "title.txt", "WINDOWS", "German", ""));
  EXPECT_EQ(Identity(out), "generic//");
}

TEST(AssetLookupMemo, IndexChangesApplyToTheNextLookup) {
  AssetManager m;
  m.SetPlatform("Linux");
  m.SetLanguage("english", "uk");
  int deaths = 0;
  m.SetAsset(new MemoryAsset("a.txt", "", "", "", "root", &deaths));
  Asset* first = nullptr;
  ASSERT_TRUE(m.GetAsset("a.txt", first));
  // The same variant again replaces (and deletes) the remembered asset.
  m.SetAsset(new MemoryAsset("a.txt", "", "", "", "again", &deaths));
  EXPECT_EQ(deaths, 1);
  std::string text;
  ASSERT_TRUE(m.LoadText("a.txt", text));
  EXPECT_EQ(text, "again");
  // A better variant registered later wins at once.
  m.SetAsset(new MemoryAsset("a.txt", "generic", "english", "", "better", &deaths));
  ASSERT_TRUE(m.LoadText("A.TXT", text));
  EXPECT_EQ(text, "better");
  m.ClearAssets();
  EXPECT_EQ(Found(m, "a.txt"), "none");

  auto* loader = new FakeLoader;
  loader->toRegister = {new MemoryAsset("a.txt", "linux", "", "", "loaded", &deaths)};
  m.SetAssetLoader(loader);
  ASSERT_TRUE(m.LoadAssets());
  EXPECT_EQ(Found(m, "a.txt"), "linux//");
  m.Clear();
  EXPECT_EQ(Found(m, "a.txt"), "none");
}

TEST(AssetLookupMemo, LanguageSwitchWithReloadForgetsDeletedAssets) {
  AssetManager m;
  m.SetPlatform("Linux");
  m.SetLanguage("english", "");
  auto* loader = new FakeLoader;
  loader->toRegister = {new MemoryAsset("b.txt", "generic", "english", "", "en")};
  m.SetAssetLoader(loader);
  ASSERT_TRUE(m.LoadAssets());
  EXPECT_EQ(Found(m, "b.txt"), "generic/english/");
  // The reload deletes every asset and registers what the loader gives now.
  loader->toRegister = {new MemoryAsset("b.txt", "generic", "french", "", "fr")};
  m.SetLanguageAndReload("french", "");
  EXPECT_EQ(Found(m, "b.txt"), "generic/french/");
  m.SetLanguageAndReload("english", "");
  EXPECT_EQ(Found(m, "b.txt"), "none");
}

}  // namespace
