// Archive reading, its refusals of broken archives, discovery of the
// archives of a set, and the round trip through the archive writer.
#include <algorithm>
#include <filesystem>
#include <fstream>

#include "AssetTestUtil.h"
#include "TestSupport.h"
#include "vorn/ArchiveAsset.h"
#include "vorn/ArchiveWriter.h"

namespace fs = std::filesystem;

namespace {

std::string Le32(std::uint32_t v) {
  return {static_cast<char>(v & 0xff), static_cast<char>((v >> 8) & 0xff),
          static_cast<char>((v >> 16) & 0xff), static_cast<char>((v >> 24) & 0xff)};
}

// An archive built by hand: the length field, the data, the directory.
std::string RawArchive(std::uint32_t n, const std::string& data, const std::string& directory) {
  return Le32(n) + data + Le32(static_cast<std::uint32_t>(directory.size())) + directory;
}

// 100 bytes 0..99 right after the length field.
std::string Hundred() {
  std::string s;
  for (int i = 0; i < 100; ++i) s.push_back(static_cast<char>(i));
  return s;
}

TEST(ArchiveAsset, EntriesServeBytesFromTheBufferWithoutOpen) {
  TempDir dir;
  const std::string path = dir.Write("a.vrk", RawArchive(110, Hundred() + "x\r\ny\rz",
                                                         "icon.png NONE NONE NONE 4 104\n"
                                                         "Title.TXT Generic English NONE 104 110\n"
                                                         "empty.txt Linux english UK 50 50"));
  AssetManager m;
  m.SetAssetLoader(new ArchiveAssetLoader(path.c_str()));
  CaptureDprintf debug;
  ASSERT_TRUE(m.LoadAssets());
  EXPECT_TRUE(debug.Contains(path + "\n"));
  EXPECT_EQ(m.GetNumAssets(), 3u);

  for (const char* platform : {"", "Linux", "Mac"}) {
    m.SetPlatform(platform);
    m.SetLanguage("german", "");
    Asset* icon = nullptr;
    ASSERT_TRUE(m.GetAsset("ICON.PNG", icon)) << platform;
    EXPECT_EQ(Identity(icon), "//");
    ASSERT_EQ(icon->GetSize(), 100);
    EXPECT_EQ(std::string(reinterpret_cast<char*>(icon->GetDataPtr()), 100), Hundred());
  }
  Asset* title = nullptr;
  m.SetLanguage("english", "");
  ASSERT_TRUE(m.GetAsset("title.txt", title));
  EXPECT_EQ(title->name, "title.txt");
  EXPECT_EQ(Identity(title), "generic/english/");
  EXPECT_STREQ(title->GetTextPtr(), "x\ny\nz");  // no Open needed

  m.SetPlatform("linux");
  m.SetLanguage("english", "uk");
  Asset* empty = nullptr;
  ASSERT_TRUE(m.GetAsset("empty.txt", empty));
  EXPECT_EQ(empty->GetSize(), 0);
  EXPECT_STREQ(empty->GetTextPtr(), "");

  // After the loader freed its buffer, the assets serve nothing.
  Asset* icon = nullptr;
  m.GetAsset("icon.png", icon);
  m.CloseAll();
  EXPECT_EQ(icon->GetDataPtr(), nullptr);
  EXPECT_EQ(icon->GetTextPtr(), nullptr);
  EXPECT_STREQ(title->GetTextPtr(), "x\ny\nz");  // built earlier, kept
}

struct BrokenArchive {
  const char* what;
  std::string bytes;  // empty with missing=true: no file at all
  bool missing = false;
};

TEST(ArchiveAsset, BrokenArchivesAreRefusedByOpen) {
  const std::string data = Hundred();
  const BrokenArchive cases[] = {
      {"missing file", "", true},
      {"empty file", ""},
      {"short length", "\x05\x00"},
      {"length 0", RawArchive(0, data, "a NONE NONE NONE 4 5\n")},
      {"length 3", RawArchive(3, data, "a NONE NONE NONE 4 5\n")},
      {"length beyond the file", RawArchive(100000, data, "a NONE NONE NONE 4 5\n")},
      {"no directory", Le32(104) + data},
      {"directory length beyond the file", Le32(104) + data + Le32(50) + "abc"},
      {"huge directory length", Le32(104) + data + Le32(0xffffffffu)},
  };
  for (const BrokenArchive& c : cases) {
    TempDir dir;
    const std::string path = dir.Path() + "data1.vrk";
    if (!c.missing) dir.Write("data1.vrk", c.bytes);
    ArchiveAssetLoader loader(path.c_str());
    EXPECT_FALSE(loader.Open()) << c.what;
    EXPECT_FALSE(loader.GetLastError().empty()) << c.what;
    EXPECT_TRUE(loader.GetDirectory().empty()) << c.what;

    // Through the manager: reported by name, skipped, the others load.
    dir.Write("good.txt", "good");
    AssetManager m;
    m.SetAssetLoader(new ArchiveAssetLoader(path.c_str()));
    auto* files = new FileAssetLoader;
    files->Init(dir.Path());
    m.SetAssetLoader(files);
    CaptureWarnings warnings;
    EXPECT_FALSE(m.LoadAssets()) << c.what;
    ASSERT_EQ(warnings.Warnings().size(), 1u) << c.what;
    EXPECT_EQ(warnings.Warnings()[0].title, "AssetManager Load Error");
    EXPECT_NE(warnings.Warnings()[0].text.find("Cannot open archive [" + path + "]: "),
              std::string::npos)
        << warnings.Warnings()[0].text;
    std::string text;
    EXPECT_TRUE(m.LoadText("good.txt", text)) << c.what;
  }
  ArchiveAssetLoader unnamed;
  EXPECT_FALSE(unnamed.Open());
  AssetManager m;
  EXPECT_FALSE(unnamed.LoadResources(m));  // never opened
}

TEST(ArchiveAsset, DirectoryLinesOutsideTheDataBlockAreSkippedWithAWarning) {
  TempDir dir;
  const std::string path =
      dir.Write("a.vrk", RawArchive(104, Hundred(),
                                    "ok1 NONE NONE NONE 4 14\n"
                                    "before NONE NONE NONE 0 10\n"
                                    "past NONE NONE NONE 50 105\n"
                                    "reversed NONE NONE NONE 20 10\n"
                                    "negative NONE NONE NONE -4 10\n"
                                    "overflow NONE NONE NONE 4 99999999999999999999999\n"
                                    "\n"
                                    "five NONE NONE NONE 4\n"
                                    "letters NONE NONE NONE 4 1x\n"
                                    "plus NONE NONE NONE +4 10\n"
                                    "ok2 NONE NONE NONE 100 104 extra words\n"));
  AssetManager m;
  m.SetAssetLoader(new ArchiveAssetLoader(path.c_str()));
  CaptureWarnings warnings;
  EXPECT_TRUE(m.LoadAssets());
  EXPECT_EQ(m.GetNumAssets(), 2u);
  const char* refused[] = {"before", "past", "reversed", "negative", "overflow"};
  ASSERT_EQ(warnings.Warnings().size(), 5u);
  for (std::size_t i = 0; i < 5; ++i) {
    EXPECT_EQ(warnings.Warnings()[i].title, "ArchiveAsset Error");
    EXPECT_EQ(
        warnings.Warnings()[i].text.rfind(std::string("Entry [") + refused[i] + "] on line " +
                                              std::to_string(i + 2) + " of archive [" + path + "]",
                                          0),
        0u)
        << warnings.Warnings()[i].text;
  }
  Asset* ok = nullptr;
  ASSERT_TRUE(m.GetAsset("ok2", ok));
  ASSERT_EQ(ok->GetSize(), 4);
  EXPECT_EQ(ok->GetDataPtr()[0], 96);
}

TEST(ArchiveDiscovery, ArchivesOfASetOrderedByNumber) {
  TempDir dir;
  for (const char* name : {"data10.vrk", "DATA2.vrk", "patch.vrk", "data3.VRK", "data.vrk",
                           "data1.vrk", "data5.vrk.bak", ".vrk", "dat.vrk", "data7x.vrk"})
    dir.Write(name, "");
  fs::create_directories(dir.Path() + "data4.vrk");
  CaptureDprintf debug;
  const auto loaders = ArchiveAssetLoader::GetArchiveAssetLoaders(dir.Path(), "Data");
  EXPECT_TRUE(debug.Contains(dir.Path() + "\n"));
  std::vector<std::string> names;
  for (const auto& l : loaders) names.push_back(fs::path(l->GetPath()).filename().string());
  EXPECT_EQ(names, (std::vector<std::string>{"data.vrk", "data1.vrk", "DATA2.vrk", "data7x.vrk",
                                             "data10.vrk"}));
  EXPECT_EQ(loaders[0]->GetPath(), dir.Path() + "data.vrk");

  EXPECT_TRUE(ArchiveAssetLoader::GetArchiveAssetLoaders(dir.Path() + "none/", "data").empty());
  EXPECT_TRUE(ArchiveAssetLoader::GetArchiveAssetLoaders("", "data").empty());
}

// Writes a tree, packing it as archives, and loading both ways.
class RoundTripTest : public testing::Test {
 protected:
  void SetUp() override {
    m_tree.Write("root.txt", "root\r\n");
    m_tree.Write("README", "no extension");
    m_tree.Write("shared.png", std::string("\x89PNG\0\1\2", 7));
    m_tree.Write("Generic/shared.png", "generic");
    m_tree.Write("Generic/english/shared.png", "generic english");
    m_tree.Write("Generic/english/uk/shared.png", "generic uk");
    m_tree.Write("Linux/shared.png", "linux");
    m_tree.Write("Linux/english/shared.png", "linux english");
    m_tree.Write("Linux/english/uk/shared.png", "linux uk");
    m_tree.Write("Linux/english/uk/Only.TXT", "");
    m_tree.Write("Linux/english/uk/deeper/ignored.txt", "x");
    m_tree.Write("Linux/.hidden", "x");
  }
  static void Settings(AssetManager& m) {
    m.SetPlatform("Linux");
    m.SetLanguage("english", "uk");
  }
  // Every variant of the names, as "identity=bytes", sorted.
  static std::vector<std::string> Variants(AssetManager& m) {
    std::vector<std::string> out;
    for (const char* name : {"root.txt", "readme.", "shared.png", "only.txt", "ignored.txt"}) {
      std::vector<Asset*> all;
      m.GetAllAssets(name, all);
      for (Asset* a : all) {
        a->Open();
        out.push_back(a->name + " " + Identity(a) + "=" +
                      std::string(reinterpret_cast<char*>(a->GetDataPtr()), a->GetSize()));
        a->Close();
      }
    }
    std::sort(out.begin(), out.end());
    return out;
  }
  TempDir m_tree;
  TempDir m_out;
};

TEST_F(RoundTripTest, PackedTreeLoadsLikeTheTree) {
  std::vector<VornArchiveEntry> entries;
  std::string error;
  std::vector<std::string> ignored;
  ASSERT_TRUE(VornCollectAssetTree(m_tree.Path(), "Linux", entries, error, &ignored)) << error;
  EXPECT_EQ(ignored, std::vector<std::string>{m_tree.Path() + "Linux/english/uk/deeper/"});
  const std::string archive = m_out.Path() + "data1.vrk";
  ASSERT_TRUE(VornWriteArchive(archive, entries, error)) << error;

  AssetManager fromTree, fromArchive;
  Settings(fromTree);
  Settings(fromArchive);
  ASSERT_TRUE(LoadTree(fromTree, m_tree.Path()));
  for (auto& loader : ArchiveAssetLoader::GetArchiveAssetLoaders(m_out.Path(), "data"))
    fromArchive.SetAssetLoader(loader.release());
  ASSERT_TRUE(fromArchive.LoadAssets());
  EXPECT_EQ(fromArchive.GetNumAssets(), fromTree.GetNumAssets());
  EXPECT_EQ(fromTree.GetNumAssets(), 10u);
  const auto variants = Variants(fromTree);
  EXPECT_EQ(Variants(fromArchive), variants);
  EXPECT_EQ(variants.size(), 10u);
}

TEST_F(RoundTripTest, HigherNumberedArchiveOverridesVariantByVariant) {
  std::vector<VornArchiveEntry> base, patch;
  std::string error;
  ASSERT_TRUE(VornCollectAssetTree(m_tree.Path(), "", base, error)) << error;
  TempDir patchTree;
  patchTree.Write("Linux/english/shared.png", "patched linux english");
  patchTree.Write("Linux/new.txt", "new");
  ASSERT_TRUE(VornCollectAssetTree(patchTree.Path(), "", patch, error)) << error;
  // The patch is numbered 10 and listed in any order with 2.
  ASSERT_TRUE(VornWriteArchive(m_out.Path() + "set10.vrk", patch, error));
  ASSERT_TRUE(VornWriteArchive(m_out.Path() + "SET2.vrk", base, error));

  AssetManager m;
  for (auto& loader : ArchiveAssetLoader::GetArchiveAssetLoaders(m_out.Path(), "set"))
    m.SetAssetLoader(loader.release());
  Settings(m);
  ASSERT_TRUE(m.LoadAssets());
  EXPECT_EQ(m.GetNumAssets(), 11u);  // ten variants, one replaced, one added
  std::string text;
  m.SetLanguage("english", "");
  ASSERT_TRUE(m.LoadText("shared.png", text));
  EXPECT_EQ(text, "patched linux english");
  m.SetLanguage("english", "uk");
  ASSERT_TRUE(m.LoadText("shared.png", text));
  EXPECT_EQ(text, "linux uk");
  ASSERT_TRUE(m.LoadText("new.txt", text));
  EXPECT_EQ(text, "new");
}

TEST_F(RoundTripTest, ExtractRecreatesTheTree) {
  std::vector<VornArchiveEntry> entries, read;
  std::string error;
  ASSERT_TRUE(VornCollectAssetTree(m_tree.Path(), "", entries, error)) << error;
  const std::string archive = m_out.Path() + "a.vrk";
  ASSERT_TRUE(VornWriteArchive(archive, entries, error));
  ASSERT_TRUE(VornReadArchive(archive, read, error)) << error;
  ASSERT_EQ(read.size(), entries.size());
  const std::string target = m_out.Path() + "tree/";
  ASSERT_TRUE(VornExtractArchive(read, target, error)) << error;
  std::vector<std::string> files;
  for (const auto& e : fs::recursive_directory_iterator(target))
    if (e.is_regular_file()) {
      const std::string rel = e.path().string().substr(target.size());
      files.push_back(rel);
      EXPECT_EQ(ReadFileBytes(e.path().string()), ReadFileBytes(m_tree.Path() + rel)) << rel;
    }
  std::sort(files.begin(), files.end());
  EXPECT_EQ(files.size(), 10u);
  EXPECT_TRUE(std::binary_search(files.begin(), files.end(), "Linux/english/uk/Only.TXT"));
  EXPECT_TRUE(std::binary_search(files.begin(), files.end(), "README"));
}

TEST(ArchiveWriter, RefusesWhatATreeOrArchiveCannotHold) {
  std::string error;
  std::vector<VornArchiveEntry> entries;
  {
    TempDir tree;
    tree.Write("my icon.png", "x");
    EXPECT_FALSE(VornCollectAssetTree(tree.Path(), "", entries, error));
    EXPECT_NE(error.find("white space"), std::string::npos) << error;
  }
  {
    TempDir tree;
    tree.Write("NONE/a.txt", "x");
    EXPECT_FALSE(VornCollectAssetTree(tree.Path(), "", entries, error));
  }
  EXPECT_FALSE(VornCollectAssetTree("/nonexistent/tree/", "", entries, error));

  TempDir out;
  const struct {
    const char *name, *platform, *language, *sub;
  } unplaceable[] = {
      {"../escape", "NONE", "NONE", "NONE"}, {"a", "..", "NONE", "NONE"},
      {"a", "NONE", "english", "NONE"},      {"a", "Linux", "NONE", "uk"},
      {"..", "NONE", "NONE", "NONE"},
  };
  for (const auto& u : unplaceable) {
    VornArchiveEntry good, bad;
    good.name = "good.txt";
    bad.name = u.name;
    bad.platform = u.platform;
    bad.language = u.language;
    bad.subLanguage = u.sub;
    EXPECT_EQ(VornArchiveEntryPath(bad), "") << u.name << " " << u.platform;
    EXPECT_FALSE(VornExtractArchive({good, bad}, out.Path() + "x/", error));
    EXPECT_FALSE(fs::exists(out.Path() + "x/good.txt"));  // nothing written
  }
  VornArchiveEntry blank;
  blank.name = "a b";
  EXPECT_FALSE(VornWriteArchive(out.Path() + "w.vrk", {blank}, error));
  EXPECT_FALSE(VornWriteArchive(out.Path() + "no/such/dir/w.vrk", {}, error));
}

}  // namespace
