// Asset identity, the text line-end rule, FileAsset and the seven-directory
// scan of FileAssetLoader.
#include <filesystem>
#include <map>
#include <set>

#include "AssetTestUtil.h"
#include "TestSupport.h"
#include "vorn/FileAsset.h"

namespace {

TEST(AssetText, LineEndRule) {
  const struct {
    std::string bytes, text;
  } cases[] = {
      {std::string("A\r\nB\rC\r"), "A\nB\nC\n"},
      {"", ""},
      {"\r\r\n\n", "\n\n\n"},
      {"x\n\ry", "x\n\ny"},
      {"\r", "\n"},
      {std::string("a\0b", 3), std::string("a\0b", 3)},
      {"\xff\xfe\r\n", "\xff\xfe\n"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(VornNormaliseLineEnds(reinterpret_cast<const unsigned char*>(c.bytes.data()),
                                    static_cast<int>(c.bytes.size())),
              c.text)
        << testing::PrintToString(c.bytes);
  }
}

TEST(AssetIdentity, IsEqualLowerCasesArgumentsAndEmptyMatchesOnlyEmpty) {
  MemoryAsset a("icon.png", "linux", "english", "", "");
  EXPECT_TRUE(a.IsEqual("ICON.png", "Linux", "ENGLISH", ""));
  EXPECT_FALSE(a.IsEqual("icon.png", "linux", "english", "uk"));
  EXPECT_FALSE(a.IsEqual("icon.png", "", "english", ""));
  EXPECT_FALSE(a.IsEqual("icon.pn", "linux", "english", ""));
  EXPECT_FALSE(a.IsEqual("icon.pngx", "linux", "english", ""));
  MemoryAsset upper("Icon.png", "", "", "", "");  // fields are compared as stored
  EXPECT_FALSE(upper.IsEqual("Icon.png", "", "", ""));
}

TEST(FileAsset, OpenCloseAndTextLifecycle) {
  TempDir dir;
  const std::string path = dir.Write("t.txt", "A\r\nB\rC\r");
  FileAsset asset(path.c_str());
  EXPECT_EQ(asset.GetSize(), -1);
  EXPECT_EQ(asset.GetDataPtr(), nullptr);
  EXPECT_EQ(asset.GetTextPtr(), nullptr);

  ASSERT_TRUE(asset.Open());
  EXPECT_TRUE(asset.Open());  // already open
  ASSERT_EQ(asset.GetSize(), 7);
  EXPECT_EQ(std::string(reinterpret_cast<char*>(asset.GetDataPtr()), 7), "A\r\nB\rC\r");
  EXPECT_STREQ(asset.GetTextPtr(), "A\nB\nC\n");

  EXPECT_TRUE(asset.Close());
  EXPECT_EQ(asset.GetSize(), -1);
  EXPECT_EQ(asset.GetDataPtr(), nullptr);
  EXPECT_EQ(asset.GetTextPtr(), nullptr);

  // The text is built once: a changed file gives new bytes but the old text.
  dir.Write("t.txt", "changed");
  ASSERT_TRUE(asset.Open());
  EXPECT_EQ(asset.GetSize(), 7);
  EXPECT_EQ(std::string(reinterpret_cast<char*>(asset.GetDataPtr()), 7), "changed");
  EXPECT_STREQ(asset.GetTextPtr(), "A\nB\nC\n");

  FileAsset copy(asset);
  asset.Close();
  EXPECT_EQ(std::string(reinterpret_cast<char*>(copy.GetDataPtr()), 7), "changed");
}

TEST(FileAsset, EmptyFileAndVanishedFile) {
  TempDir dir;
  FileAsset empty(dir.Write("empty", "").c_str());
  ASSERT_TRUE(empty.Open());
  EXPECT_EQ(empty.GetSize(), 0);
  EXPECT_STREQ(empty.GetTextPtr(), "");

  const std::string path = dir.Write("gone.txt", "x");
  FileAsset gone(path.c_str());
  std::filesystem::remove(path);
  CaptureDprintf debug;
  EXPECT_FALSE(gone.Open());
  EXPECT_FALSE(gone.IsOpen());
  EXPECT_EQ(gone.GetSize(), -1);
  EXPECT_EQ(gone.GetDataPtr(), nullptr);
  EXPECT_EQ(gone.GetTextPtr(), nullptr);
  EXPECT_TRUE(debug.Contains("NONFATAL ERROR")) << debug.All();

  FileAsset directory(dir.Path().c_str());  // not a regular file
  EXPECT_FALSE(directory.Open());
}

TEST(FileAssetLoader, InitRefusesShortRoots) {
  FileAssetLoader loader;
  EXPECT_FALSE(loader.Init("/"));
  EXPECT_EQ(loader.GetRoot(), "");
  EXPECT_TRUE(loader.Init("a/"));
  EXPECT_FALSE(loader.Init(""));
  EXPECT_EQ(loader.GetRoot(), "a/");
}

// name -> every identity registered under it, as "platform/language/sub".
std::map<std::string, std::multiset<std::string>> IndexOf(AssetManager& manager,
                                                          const std::set<std::string>& names) {
  std::map<std::string, std::multiset<std::string>> index;
  // GetBestAsset per identity would hide duplicates; list through a manager
  // whose settings match every variant present.
  for (const std::string& name : names) {
    std::vector<Asset*> all;
    manager.GetAllAssets(name.c_str(), all);
    for (Asset* a : all) index[name].insert(Identity(a));
  }
  return index;
}

// Writes one file per directory the loader reads, and decoys it must not.
void WriteTree(const TempDir& dir) {
  dir.Write("root.txt", "r");
  dir.Write("Generic/generic.txt", "g");
  dir.Write("Linux/platform.txt", "p");
  dir.Write("Generic/english/genlang.txt", "gl");
  dir.Write("Linux/english/platlang.txt", "pl");
  dir.Write("Generic/english/uk/gensub.txt", "gs");
  dir.Write("Linux/english/uk/platsub.txt", "ps");
  // Decoys: other platform, other language, other sub-language, spelling of
  // the directories, deeper and unrelated directories, hidden files.
  dir.Write("Windows/decoy1.txt", "x");
  dir.Write("linux/decoy2.txt", "x");
  dir.Write("generic/decoy3.txt", "x");
  dir.Write("Generic/french/decoy4.txt", "x");
  dir.Write("Linux/english/us/decoy5.txt", "x");
  dir.Write("Linux/English/decoy6.txt", "x");
  dir.Write("Linux/english/uk/deeper/decoy7.txt", "x");
  dir.Write("misc/decoy8.txt", "x");
  dir.Write(".hidden.txt", "x");
  dir.Write("Linux/.hidden.txt", "x");
}

TEST(FileAssetLoader, SevenPassesGiveTheirIdentityFields) {
  TempDir dir;
  WriteTree(dir);
  AssetManager manager;
  auto* loader = new FileAssetLoader;
  ASSERT_TRUE(loader->Init(dir.Path()));
  manager.SetAssetLoader(loader);
  // Set after registering: the loader takes them at LoadAssets time.
  manager.SetPlatform("Linux");
  manager.SetLanguage("English", "UK");
  ASSERT_TRUE(manager.LoadAssets());

  EXPECT_EQ(manager.GetNumAssets(), 7u);
  const struct {
    const char* path;
    const char* identity;
  } expected[] = {
      {"root.txt", "//"},
      {"Generic/generic.txt", "generic//"},
      {"Linux/platform.txt", "linux//"},
      {"Generic/english/genlang.txt", "generic/english/"},
      {"Linux/english/platlang.txt", "linux/english/"},
      {"Generic/english/uk/gensub.txt", "generic/english/uk"},
      {"Linux/english/uk/platsub.txt", "linux/english/uk"},
  };
  for (const auto& e : expected) {
    const std::string name = std::filesystem::path(e.path).filename().string();
    Asset* asset = nullptr;
    ASSERT_TRUE(manager.GetAsset(name.c_str(), asset)) << name;
    EXPECT_EQ(asset->name, name);
    EXPECT_EQ(Identity(asset), e.identity) << name;
    auto* file = dynamic_cast<FileAsset*>(asset);
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->GetPath(), dir.Path() + e.path);
  }
  for (int i = 1; i <= 8; ++i) {
    Asset* asset = nullptr;
    const std::string name = "decoy" + std::to_string(i) + ".txt";
    EXPECT_FALSE(manager.GetAsset(name.c_str(), asset)) << name;
  }
  Asset* hidden = nullptr;
  EXPECT_FALSE(manager.GetAsset(".hidden.txt", hidden));
}

TEST(FileAssetLoader, KeysAreLowerCasedAndCaseCollisionsKeepOneAsset) {
  TempDir dir;
  dir.Write("Icon.PNG", "upper");
  dir.Write("icon.png", "lower");
  dir.Write("README", "no extension");
  dir.Write("Archive.Tar.GZ", "two dots");
  AssetManager manager;
  ASSERT_TRUE(LoadTree(manager, dir.Path()));
  EXPECT_EQ(manager.GetNumAssets(), 3u);
  std::vector<Asset*> icons;
  ASSERT_TRUE(manager.GetAllAssets("ICON.png", icons));
  ASSERT_EQ(icons.size(), 1u);
  std::string text;
  ASSERT_TRUE(manager.LoadText("icon.png", text));
  EXPECT_TRUE(text == "upper" || text == "lower");
  ASSERT_TRUE(manager.LoadText("readme.", text));
  EXPECT_EQ(text, "no extension");
  ASSERT_TRUE(manager.LoadText("archive.tar.gz", text));
  EXPECT_EQ(text, "two dots");
}

TEST(FileAssetLoader, EmptyPlatformAndLanguageIndexEachFileOnce) {
  // Pass 3 then reads root + "/" and passes 4 to 7 read doubled separators:
  // the files found again get the same identity and replace their copies.
  TempDir dir;
  dir.Write("a.txt", "a");
  dir.Write("b.txt", "b");
  dir.Write("Generic/c.txt", "c");
  AssetManager manager;
  ASSERT_TRUE(LoadTree(manager, dir.Path()));
  EXPECT_EQ(manager.GetNumAssets(), 3u);
  const auto index = IndexOf(manager, {"a.txt", "b.txt", "c.txt"});
  EXPECT_EQ(index.at("a.txt"), std::multiset<std::string>{"//"});
  EXPECT_EQ(index.at("c.txt"), std::multiset<std::string>{"generic//"});
}

TEST(FileAssetLoader, MissingRootIsNotAnError) {
  TempDir dir;
  AssetManager manager;
  EXPECT_TRUE(LoadTree(manager, dir.Path() + "nothing/"));
  EXPECT_EQ(manager.GetNumAssets(), 0u);
}

}  // namespace
