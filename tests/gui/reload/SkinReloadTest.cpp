// Live skin reload: an edit to a copied skin reaches a control's pixels after
// ReloadSkin, a broken script shows its error images until it is fixed, and
// the watcher turns a burst of file changes into one reload.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>

#include "../ControlTestSupport.h"
#include "SkinReload.h"
#include "vorn/AssetManager.h"
#include "vorn/FileAsset.h"

namespace fs = std::filesystem;

namespace {

const char kScript[] = "button_text.sts";
const wxColour kFace(58, 66, 78);  // the default skin's "face"
const wxColour kEdited(200, 40, 40);

void ReplaceInFile(const std::string& path, const std::string& from, const std::string& to) {
  std::string text = ReadFileBytes(path);
  const auto at = text.find(from);
  ASSERT_NE(std::string::npos, at) << from << " not in " << path;
  text.replace(at, from.size(), to);
  std::ofstream(path, std::ios::binary) << text;
}

class SkinReloadTest : public ::testing::Test {
 protected:
  void SetUp() override {
    fs::copy(VORN_SKIN_DIR, skin.Path(), fs::copy_options::recursive);
    auto loader = std::make_unique<FileAssetLoader>();
    ASSERT_TRUE(loader->Init(skin.Path()));
    assets.SetAssetLoader(std::move(loader));
    assets.SetPlatform("Linux");
    assets.SetLanguage("english", "");
    ASSERT_TRUE(assets.LoadAssets());
    ASSERT_TRUE(assets.LoadColourData("colours.txt"));
    ASSERT_TRUE(assets.LoadFontData("fonts.txt"));
    MakeButton();
  }
  void TearDown() override { button.reset(); }

  void MakeButton() {
    images = nullptr;
    assets.LoadImagesCached(kScript, images);
    button = std::make_unique<VornTextPushButton>("", -1, -1, *wxNORMAL_FONT, *wxWHITE, *wxBLACK,
                                                  *wxWHITE, images, 0, 0, frame.Get(), 1, &group);
  }
  bool Reload() {
    return ReloadSkin(
        assets, [this] { button.reset(); }, [this] { MakeButton(); });
  }
  wxBitmap Shot() { return Render(button.get(), 96, 24); }
  std::string Path(const char* relative) const { return skin.Path() + "Generic/" + relative; }

  TempDir skin;
  TestFrame frame;
  AssetManager assets;
  VornControlGroup group;
  const VornwxBitmapCache* images = nullptr;
  std::unique_ptr<VornTextPushButton> button;
};

TEST_F(SkinReloadTest, EditedColourReachesTheControlAfterReload) {
  const wxBitmap before = Shot();
  ASSERT_GT(CountNear(before, kFace, 6), 200);
  ASSERT_EQ(0, CountNear(before, kEdited, 30));

  const VornwxBitmapCache* const old = images;
  ReplaceInFile(Path("colours.txt"), "face 58 66 78", "face 200 40 40");
  // The old images must still be there while the controls go, and the new
  // colours already loaded when they come back.
  const VornwxBitmapCache* seenAtTeardown = nullptr;
  wxColour seenAtRebuild;
  ASSERT_TRUE(ReloadSkin(
      assets,
      [&] {
        assets.LoadImagesCached(kScript, seenAtTeardown);
        button.reset();
      },
      [&] {
        assets.GetColour("face", seenAtRebuild);
        MakeButton();
      }));
  EXPECT_EQ(old, seenAtTeardown);
  EXPECT_EQ(kEdited, seenAtRebuild);

  const wxBitmap after = Shot();
  EXPECT_GT(CountNear(after, kEdited, 30), 200);
  EXPECT_EQ(0, CountNear(after, kFace, 6));
}

TEST_F(SkinReloadTest, BrokenScriptShowsErrorImagesUntilFixed) {
  const wxBitmap good = Shot();
  const std::string script = Path(kScript);
  const std::string original = ReadFileBytes(script);

  ReplaceInFile(script, "map text_body.png face\n", "map text_body.png\n");
  {
    CaptureWarnings warnings;
    Reload();
    ASSERT_FALSE(warnings.Warnings().empty());
    EXPECT_EQ("Image Script Parser", warnings.Warnings().front().title);
  }
  ASSERT_NE(nullptr, images);
  wxColour red;
  assets.GetColour("red", red);
  EXPECT_TRUE(Uniform(Shot(), red));

  std::ofstream(script, std::ios::binary) << original;
  CaptureWarnings none;
  EXPECT_TRUE(Reload());
  EXPECT_TRUE(none.Warnings().empty());
  EXPECT_TRUE(SamePixels(good, Shot()));
}

TEST(SkinWatcherTest, BurstOfChangesGivesOneReload) {
  int reloads = 0;
  SkinWatcher watcher([&] { ++reloads; });
  for (const char* path : {"/skin/Generic/colours.txt", "/skin/Generic/colours.txt",
                           "/skin/Generic/button_text.sts", "/skin/Generic/english/gallery.txt"})
    EXPECT_TRUE(watcher.NoteChange(path)) << path;
  EXPECT_TRUE(watcher.IsPending());
  EXPECT_EQ(0, reloads);
  watcher.Settle();  // what the timer does once the burst is quiet
  EXPECT_EQ(1, reloads);
  EXPECT_FALSE(watcher.IsPending());

  // Editors' scratch files never start a reload.
  for (const char* path :
       {"/skin/Generic/.colours.txt.swp", "/skin/Generic/colours.txt~", "/skin/Generic/4913",
        "/skin/Generic/#colours.txt#", "/skin/Generic/x.tmp"}) {
    EXPECT_FALSE(watcher.NoteChange(path)) << path;
    EXPECT_FALSE(watcher.IsPending()) << path;
  }
  // A later change is a new burst.
  EXPECT_TRUE(watcher.NoteChange("/skin/Generic/mask.png"));
  watcher.Settle();
  EXPECT_EQ(2, reloads);
}

}  // namespace
