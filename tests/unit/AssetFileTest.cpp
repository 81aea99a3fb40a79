// Asset identity, the text line-end rule, FileAsset and the seven-directory
// scan of FileAssetLoader.
#include <filesystem>

#include "AssetTestUtil.h"
#include "TestSupport.h"
#include "vorn/FileAsset.h"

namespace {

TEST(AssetText, LineEndRule) {
  const struct {
    std::string bytes, text;
  } cases[] = {
      {"A\r\nB\rC\r", "A\nB\nC\n"},
      {"", ""},
      {"\r\r\n\n", "\n\n\n"},
      {"x\n\ry", "x\n\ny"},
      {"\r", "\n"},
      {"\xff\xfe\r\n", "\xff\xfe\n"},
      {std::string("a\0b", 3), std::string("a\0b", 3)},
  };
  for (const auto& c : cases)
    EXPECT_EQ(VornNormaliseLineEnds(reinterpret_cast<const unsigned char*>(c.bytes.data()),
                                    static_cast<int>(c.bytes.size())),
              c.text)
        << testing::PrintToString(c.bytes);
}

TEST(AssetIdentity, IsEqualLowerCasesArgumentsAndEmptyMatchesOnlyEmpty) {
  MemoryAsset a("icon.png", "linux", "english", "", "");
  EXPECT_TRUE(a.IsEqual("ICON.png", "Linux", "ENGLISH", ""));
  EXPECT_FALSE(a.IsEqual("icon.png", "linux", "english", "uk"));
  EXPECT_FALSE(a.IsEqual("icon.png", "", "english", ""));
  EXPECT_FALSE(a.IsEqual("icon.pn", "linux", "english", ""));
  MemoryAsset upper("Icon.png", "", "", "", "");  // fields are compared as stored
  EXPECT_FALSE(upper.IsEqual("Icon.png", "", "", ""));
}

std::string Bytes(Asset& a) {
  return std::string(reinterpret_cast<char*>(a.GetDataPtr()), a.GetSize());
}

void ExpectClosed(FileAsset& asset) {
  EXPECT_FALSE(asset.IsOpen());
  EXPECT_EQ(asset.GetSize(), -1);
  EXPECT_EQ(asset.GetDataPtr(), nullptr);
  EXPECT_EQ(asset.GetTextPtr(), nullptr);
}

TEST(FileAsset, OpenCloseAndTextLifecycle) {
  TempDir dir;
  const std::string path = dir.Write("t.txt", "A\r\nB\rC\r");
  FileAsset asset(path.c_str());
  ExpectClosed(asset);
  ASSERT_TRUE(asset.Open());
  EXPECT_TRUE(asset.Open());  // already open
  EXPECT_EQ(Bytes(asset), "A\r\nB\rC\r");
  EXPECT_STREQ(asset.GetTextPtr(), "A\nB\nC\n");
  EXPECT_TRUE(asset.Close());
  ExpectClosed(asset);
  // The text is built once: a changed file gives new bytes but the old text.
  dir.Write("t.txt", "changed");
  ASSERT_TRUE(asset.Open());
  EXPECT_EQ(Bytes(asset), "changed");
  EXPECT_STREQ(asset.GetTextPtr(), "A\nB\nC\n");
  FileAsset copy(asset);  // has its own buffer
  asset.Close();
  EXPECT_EQ(Bytes(copy), "changed");

  FileAsset empty(dir.Write("empty", "").c_str());
  ASSERT_TRUE(empty.Open());
  EXPECT_EQ(empty.GetSize(), 0);
  EXPECT_STREQ(empty.GetTextPtr(), "");

  // A vanished file or a directory cannot be opened and stays closed.
  std::filesystem::remove(path);
  CaptureDprintf debug;
  copy.Close();
  EXPECT_FALSE(copy.Open());
  ExpectClosed(copy);
  EXPECT_TRUE(debug.Contains("NONFATAL ERROR")) << debug.All();
  FileAsset directory(dir.Path().c_str());
  EXPECT_FALSE(directory.Open());
  ExpectClosed(directory);
}

TEST(FileAssetLoader, InitRefusesShortRoots) {
  FileAssetLoader loader;
  EXPECT_FALSE(loader.Init("/"));
  EXPECT_TRUE(loader.Init("a/"));
  EXPECT_FALSE(loader.Init(""));
  EXPECT_EQ(loader.GetRoot(), "a/");
}

TEST(FileAssetLoader, SevenPassesGiveTheirIdentityFields) {
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
  // Never read: other platform, language or sub-language, other spellings of
  // the directories, deeper and unrelated directories, hidden files.
  const char* const decoys[] = {"Windows/d1",
                                "linux/d2",
                                "generic/d3",
                                "Generic/french/d4",
                                "Linux/english/us/d5",
                                "Linux/English/d6",
                                "Linux/english/uk/deeper/d7",
                                "misc/d8",
                                ".h1",
                                "Linux/.h2"};
  TempDir dir;
  for (const auto& e : expected) dir.Write(e.path, "x");
  for (const char* d : decoys) dir.Write(d, "x");
  AssetManager manager;
  manager.SetPlatform("Linux");
  manager.SetLanguage("English", "UK");
  ASSERT_TRUE(LoadTree(manager, dir.Path()));

  EXPECT_EQ(manager.GetNumAssets(), 7u);
  Asset* asset = nullptr;
  for (const auto& e : expected) {
    const std::string name = std::filesystem::path(e.path).filename().string();
    ASSERT_TRUE(manager.GetAsset(name.c_str(), asset)) << name;
    EXPECT_EQ(asset->name, name);
    EXPECT_EQ(Identity(asset), e.identity) << name;
    EXPECT_EQ(dynamic_cast<FileAsset&>(*asset).GetPath(), dir.Path() + e.path);
  }
  for (const char* d : decoys) {
    const std::string name = std::filesystem::path(d).filename().string();
    EXPECT_FALSE(manager.GetAsset(name.c_str(), asset)) << name;
  }
}

TEST(FileAssetLoader, KeysAreLowerCasedAndEmptySettingsIndexEachFileOnce) {
  // With no platform or language, pass 3 reads root + "/" and passes 4 to 7
  // read doubled separators: the files found again get the same identity and
  // replace their copies. Names differing in case collide in one key.
  TempDir dir;
  for (const char* name : {"Icon.PNG", "icon.png", "README", "Archive.Tar.GZ", "Generic/c.txt"})
    dir.Write(name, name);
  AssetManager manager;
  ASSERT_TRUE(LoadTree(manager, dir.Path()));
  EXPECT_EQ(manager.GetNumAssets(), 4u);
  std::vector<Asset*> all;
  for (const char* key : {"ICON.png", "readme.", "archive.tar.gz", "c.txt"})
    EXPECT_TRUE(manager.GetAllAssets(key, all)) << key;
  ASSERT_EQ(all.size(), 4u);
  const char* identities[] = {"//", "//", "//", "generic//"};
  const char* texts[] = {"icon.png", "README", "Archive.Tar.GZ", "Generic/c.txt"};
  std::string text;
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(Identity(all[i]), identities[i]);
    ASSERT_TRUE(manager.LoadText(all[i]->name.c_str(), text));
    EXPECT_TRUE(text == texts[i] || (i == 0 && text == "Icon.PNG")) << text;
  }
  AssetManager missing;  // a missing root is not an error
  EXPECT_TRUE(LoadTree(missing, dir.Path() + "nothing/"));
  EXPECT_EQ(missing.GetNumAssets(), 0u);
}

}  // namespace
