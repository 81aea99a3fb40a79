// Archive reading, its refusals of broken archives, discovery of the
// archives of a set, and the round trip through the archive writer.
#include <algorithm>
#include <array>
#include <filesystem>

#include "AssetTestUtil.h"
#include "TestSupport.h"
#include "vorn/ArchiveAsset.h"
#include "vorn/ArchiveWriter.h"

namespace fs = std::filesystem;

namespace {

std::string Le32(std::uint32_t v) {
  std::string s;
  for (int shift = 0; shift < 32; shift += 8) s.push_back(static_cast<char>((v >> shift) & 0xff));
  return s;
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

std::string Bytes(Asset* a) {
  return std::string(reinterpret_cast<char*>(a->GetDataPtr()), a->GetSize());
}

TEST(ArchiveAsset, EntriesServeBytesWithoutOpenAndLinesOutsideTheBlockAreSkipped) {
  TempDir dir;
  const std::string path =
      dir.Write("a.vrk", RawArchive(110, Hundred() + "x\r\ny\rz",
                                    "icon.png NONE NONE NONE 4 104\n"
                                    "Title.TXT Generic English NONE 104 110\n"
                                    "empty.txt Linux english UK 50 50\n"
                                    "before NONE NONE NONE 0 10\n"
                                    "past NONE NONE NONE 50 111\n"
                                    "reversed NONE NONE NONE 20 10\n"
                                    "negative NONE NONE NONE -4 10\n"
                                    "overflow NONE NONE NONE 4 99999999999999999999999\n"
                                    "\n"
                                    "five NONE NONE NONE 4\n"
                                    "letters NONE NONE NONE 4 1x\n"
                                    "plus NONE NONE NONE +4 10\n"
                                    "ok NONE NONE NONE 100 104 extra words"));
  AssetManager m;
  m.SetAssetLoader(new ArchiveAssetLoader(path.c_str()));
  CaptureDprintf debug;
  CaptureWarnings warnings;
  ASSERT_TRUE(m.LoadAssets());
  EXPECT_TRUE(debug.Contains(path + "\n"));
  EXPECT_EQ(m.GetNumAssets(), 4u);
  const char* refused[] = {"before", "past", "reversed", "negative", "overflow"};
  ASSERT_EQ(warnings.Warnings().size(), 5u);
  for (std::size_t i = 0; i < 5; ++i) {
    const auto& w = warnings.Warnings()[i];
    EXPECT_EQ(w.title, "ArchiveAsset Error");
    EXPECT_EQ(w.text.find(std::string("Entry [") + refused[i] + "] on line " +
                          std::to_string(i + 4) + " of archive [" + path + "]"),
              0u)
        << w.text;
  }
  Asset *icon = nullptr, *title = nullptr, *empty = nullptr, *ok = nullptr;
  m.SetPlatform("Mac");
  m.SetLanguage("german", "");
  ASSERT_TRUE(m.GetAsset("ICON.PNG", icon));
  EXPECT_EQ(Identity(icon), "//");
  EXPECT_EQ(Bytes(icon), Hundred());
  ASSERT_TRUE(m.GetAsset("ok", ok));
  EXPECT_EQ(Bytes(ok), "\x60\x61\x62\x63");
  m.SetLanguage("english", "");
  ASSERT_TRUE(m.GetAsset("title.txt", title));
  EXPECT_EQ(title->name, "title.txt");
  EXPECT_EQ(Identity(title), "generic/english/");
  EXPECT_STREQ(title->GetTextPtr(), "x\ny\nz");  // no Open needed
  m.SetPlatform("linux");
  m.SetLanguage("english", "uk");
  ASSERT_TRUE(m.GetAsset("empty.txt", empty));
  EXPECT_EQ(empty->GetSize(), 0);
  EXPECT_STREQ(empty->GetTextPtr(), "");

  // After the loader freed its buffer, the assets serve nothing.
  m.CloseAll();
  EXPECT_EQ(icon->GetDataPtr(), nullptr);
  EXPECT_EQ(icon->GetTextPtr(), nullptr);
  EXPECT_STREQ(title->GetTextPtr(), "x\ny\nz");  // built earlier, kept
}

TEST(ArchiveAsset, BrokenArchivesAreRefusedByOpen) {
  const std::string data = Hundred(), line = "a NONE NONE NONE 4 5\n";
  const struct {
    const char* what;
    std::string bytes;
    bool missing;
  } cases[] = {
      {"missing file", "", true},
      {"empty file", "", false},
      {"short length", "\x05", false},
      {"length 0", RawArchive(0, data, line), false},
      {"length 3", Le32(3) + std::string(3, 0), false},  // a readable empty directory at 3
      {"length beyond the file", RawArchive(100000, data, line), false},
      {"no directory", Le32(104) + data, false},
      {"directory length beyond the file", Le32(104) + data + Le32(50) + "abc", false},
      {"huge directory length", Le32(104) + data + Le32(0xffffffffu), false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    TempDir dir;
    const std::string path = dir.Path() + "data1.vrk";
    if (!c.missing) dir.Write("data1.vrk", c.bytes);
    ArchiveAssetLoader loader(path.c_str());
    EXPECT_FALSE(loader.Open());
    EXPECT_FALSE(loader.GetLastError().empty());
    EXPECT_TRUE(loader.GetDirectory().empty());

    // Through the manager: reported by name, skipped, the others load.
    dir.Write("good.txt", "good");
    AssetManager m;
    m.SetAssetLoader(new ArchiveAssetLoader(path.c_str()));
    CaptureWarnings warnings;
    EXPECT_FALSE(LoadTree(m, dir.Path()));
    ASSERT_EQ(warnings.Warnings().size(), 1u);
    EXPECT_EQ(warnings.Warnings()[0].title, "AssetManager Load Error");
    EXPECT_EQ(warnings.Warnings()[0].text.find("Cannot open archive [" + path + "]: "), 0u)
        << warnings.Warnings()[0].text;
    std::string text;
    EXPECT_TRUE(m.LoadText("good.txt", text));
  }
  ArchiveAssetLoader unnamed;
  EXPECT_FALSE(unnamed.Open());
  AssetManager m;
  EXPECT_FALSE(unnamed.LoadResources(m));  // never opened
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
  std::vector<std::string> paths;
  for (const auto& l : loaders) paths.push_back(l->GetPath());
  std::vector<std::string> expected;
  for (const char* name : {"data.vrk", "data1.vrk", "DATA2.vrk", "data7x.vrk", "data10.vrk"})
    expected.push_back(dir.Path() + name);
  EXPECT_EQ(paths, expected);
  EXPECT_TRUE(ArchiveAssetLoader::GetArchiveAssetLoaders(dir.Path() + "none/", "data").empty());
  EXPECT_TRUE(ArchiveAssetLoader::GetArchiveAssetLoaders("", "data").empty());
}

// A tree with a variant in every directory the loader reads, packed as
// archives and loaded both ways.
class RoundTripTest : public testing::Test {
 protected:
  void SetUp() override {
    m_tree.Write("root.txt", "root\r\n");
    m_tree.Write("README", "no extension");
    m_tree.Write("shared.png", std::string("\x89PNG\0\1\2", 7));
    for (const char* d : {"Generic/", "Generic/english/", "Generic/english/uk/", "Linux/",
                          "Linux/english/", "Linux/english/uk/"})
      m_tree.Write(std::string(d) + "shared.png", d);
    m_tree.Write("Linux/english/uk/Only.TXT", "");
    m_tree.Write("Linux/english/uk/deeper/ignored.txt", "x");
    m_tree.Write("Linux/.hidden", "x");
  }
  // Loads the archives of a set into m, with platform Linux, english, uk.
  void LoadSet(AssetManager& m, const std::string& prefix) {
    for (auto& loader : ArchiveAssetLoader::GetArchiveAssetLoaders(m_out.Path(), prefix))
      m.SetAssetLoader(loader.release());
    m.SetPlatform("Linux");
    m.SetLanguage("english", "uk");
    ASSERT_TRUE(m.LoadAssets());
  }
  // Every variant of the names, as "name identity=bytes", sorted.
  static std::vector<std::string> Variants(AssetManager& m) {
    std::vector<std::string> out;
    for (const char* name : {"root.txt", "readme.", "shared.png", "only.txt", "ignored.txt"}) {
      std::vector<Asset*> all;
      m.GetAllAssets(name, all);
      for (Asset* a : all) {
        a->Open();
        out.push_back(a->name + " " + Identity(a) + "=" + Bytes(a));
        a->Close();
      }
    }
    std::sort(out.begin(), out.end());
    return out;
  }
  TempDir m_tree, m_out;
  std::string m_error;
};

TEST_F(RoundTripTest, PackedTreeLoadsLikeTheTree) {
  std::vector<VornArchiveEntry> entries;
  std::vector<std::string> ignored;
  ASSERT_TRUE(VornCollectAssetTree(m_tree.Path(), "Linux", entries, m_error, &ignored)) << m_error;
  EXPECT_EQ(ignored, std::vector<std::string>{m_tree.Path() + "Linux/english/uk/deeper/"});
  ASSERT_TRUE(VornWriteArchive(m_out.Path() + "data1.vrk", entries, m_error)) << m_error;

  AssetManager fromTree, fromArchive;
  fromTree.SetPlatform("Linux");
  fromTree.SetLanguage("english", "uk");
  ASSERT_TRUE(LoadTree(fromTree, m_tree.Path()));
  LoadSet(fromArchive, "data");
  EXPECT_EQ(fromTree.GetNumAssets(), 10u);
  EXPECT_EQ(fromArchive.GetNumAssets(), 10u);
  EXPECT_EQ(Variants(fromArchive), Variants(fromTree));
  EXPECT_EQ(Variants(fromTree).size(), 10u);
}

TEST_F(RoundTripTest, HigherNumberedArchiveOverridesVariantByVariant) {
  std::vector<VornArchiveEntry> base, patch;
  ASSERT_TRUE(VornCollectAssetTree(m_tree.Path(), "", base, m_error)) << m_error;
  TempDir patchTree;
  patchTree.Write("Linux/english/shared.png", "patched");
  patchTree.Write("Linux/new.txt", "new");
  ASSERT_TRUE(VornCollectAssetTree(patchTree.Path(), "", patch, m_error)) << m_error;
  // The patch is numbered 10 and listed in any order with 2.
  ASSERT_TRUE(VornWriteArchive(m_out.Path() + "set10.vrk", patch, m_error));
  ASSERT_TRUE(VornWriteArchive(m_out.Path() + "SET2.vrk", base, m_error));
  AssetManager m;
  LoadSet(m, "set");
  EXPECT_EQ(m.GetNumAssets(), 11u);  // ten variants, one replaced, one added
  std::string text;
  for (const auto& [sub, expected] : {std::pair{"", "patched"}, {"uk", "Linux/english/uk/"}}) {
    m.SetLanguage("english", sub);
    ASSERT_TRUE(m.LoadText("shared.png", text));
    EXPECT_EQ(text, expected);
  }
  ASSERT_TRUE(m.LoadText("new.txt", text));
  EXPECT_EQ(text, "new");
}

// White space, a missing tree and bad archives are refused by vornpack's own
// test; these are the refusals that keep extraction inside its directory.
TEST(ArchiveWriter, RefusesWhatATreeOrArchiveCannotHold) {
  std::string error;
  std::vector<VornArchiveEntry> entries;
  TempDir tree;
  tree.Write("NONE/a.txt", "x");
  EXPECT_FALSE(VornCollectAssetTree(tree.Path(), "", entries, error));
  EXPECT_FALSE(error.empty());
  const std::array<const char*, 4> unplaceable[] = {{"../escape", "NONE", "NONE", "NONE"},
                                                    {"a", "..", "NONE", "NONE"},
                                                    {"a", "NONE", "english", "NONE"},
                                                    {"a", "Linux", "NONE", "uk"},
                                                    {"..", "NONE", "NONE", "NONE"}};
  for (const auto& u : unplaceable) {
    const VornArchiveEntry good{"good.txt", "NONE", "NONE", "NONE", ""},
        bad{u[0], u[1], u[2], u[3], ""};
    EXPECT_EQ(VornArchiveEntryPath(bad), "") << u[0] << " " << u[1];
    EXPECT_FALSE(VornExtractArchive({good, bad}, tree.Path() + "x/", error));
    EXPECT_FALSE(fs::exists(tree.Path() + "x/good.txt"));  // nothing written
  }
}

}  // namespace
