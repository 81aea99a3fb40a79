// What a host meets first: controls laid out by sizers, quick clicks that wx
// reports as double clicks, and switching language with live controls.
#include <gtest/gtest.h>
#include <wx/sizer.h>

#include "ControlTestSupport.h"
#include "vorn/AssetManager.h"
#include "vorn/FileAsset.h"

namespace {

TEST(HostSizerTest, BoxSizerLaysOutControlsAtTheirImageSizes) {
  TestFrame frame(wxSize(400, 200));
  auto small = MakeCache(AllStates(), 24, 16), large = MakeCache(AllStates(), 40, 30);
  auto* panel = new wxPanel(frame.Get());
  auto* sizer = new wxBoxSizer(wxHORIZONTAL);
  VornPushButton* buttons[] = {new VornPushButton(small.get(), 0, 0, panel, 1, nullptr),
                               new VornPushButton(large.get(), 0, 0, panel, 2, nullptr),
                               new VornPushButton(small.get(), 0, 0, panel, 3, nullptr)};
  for (VornPushButton* b : buttons) sizer->Add(b, 0, wxALL, 5);
  panel->SetSizer(sizer);
  panel->SetSize(400, 200);
  panel->Layout();

  std::string rects;
  for (VornPushButton* b : buttons) {
    const wxRect r = b->GetRect();
    int x, y, w, h;
    b->GetWindowPos(x, y, w, h);
    rects += wxString::Format("%d,%d %dx%d (%d,%d %dx%d); ", r.x, r.y, r.width, r.height, x, y,
                              w, h)
                 .ToStdString();
  }
  // The stored geometry follows the sizer's placement.
  EXPECT_EQ(rects,
            "5,5 24x16 (5,5 24x16); 39,5 40x30 (39,5 40x30); 89,5 24x16 (89,5 24x16); ");
}

TEST(HostSizerTest, StoredGeometryFollowsOutsideMovesButKeepsOwnSetters) {
  TestFrame frame;
  VornPanel panel(0, 0, frame.Get(), wxID_ANY);  // no size given: stored -1, -1
  int w, h;
  panel.GetSize(w, h);
  EXPECT_EQ(wxSize(w, h), wxSize(-1, -1));
  panel.wxWindow::SetSize(7, 9, 50, 60);  // as a sizer would
  EXPECT_EQ(wxRect(panel.GetPosX(), panel.GetPosY(), panel.GetWidth(), panel.GetHeight()),
            wxRect(7, 9, 50, 60));
  EXPECT_EQ(panel.GetBestSize(), wxSize(50, 60));
  panel.SetSize(30, 20);
  EXPECT_EQ(panel.GetBestSize(), wxSize(30, 20));
}

class FastClickTest : public ::testing::Test {
 protected:
  TestFrame frame{wxSize(300, 200)};
  EventLog log;
  RecordingGroup group{&log};
  RecordingReceiver hints{&log};
  std::unique_ptr<VornwxBitmapCache> cache = MakeCache(AllStates());
  void SetUp() override { group.Register(&hints); }
  void TearDown() override { group.DeRegister(&hints); }
};

TEST_F(FastClickTest, SecondPressOfAQuickPairCounts) {
  const struct {
    const char* kind;
    const char* log;
    bool on;
  } cases[] = {
      {"moment", "sel 3 first 3 unsel 3 sel 3 first 3 dbl 3 unsel 3", false},
      {"push", "sel 3 unsel 3 sel 3 dbl 3 unsel 3", false},
      {"toggle", "sel 3 int 1 3 dbl 3 unsel 3 int 0 3", false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.kind);
    std::unique_ptr<VornButton> button;
    const std::string kind = c.kind;
    if (kind == "moment")
      button = std::make_unique<VornMomentBtn>(cache.get(), 0, 0, frame.Get(), 3, &group);
    else if (kind == "push")
      button = std::make_unique<VornPushButton>(cache.get(), 0, 0, frame.Get(), 3, &group);
    else
      button = std::make_unique<VornButtonToggle>(cache.get(), 0, 0, frame.Get(), 3, &group);
    log.clear();
    Do(button.get(), "enter down up dclick up");
    EXPECT_EQ(Joined(log), c.log);
    EXPECT_EQ(button->GetOn(), c.on);
  }
}

TEST_F(FastClickTest, MomentButtonDefaultsToTheScrollBarTiming) {
  VornMomentBtn button(cache.get(), 0, 0, frame.Get(), 3, &group);
  EXPECT_EQ(VornMomentBtn::kDefaultInitialDelay, 500);
  EXPECT_EQ(VornMomentBtn::kDefaultRepeatInterval, 10);
}

TEST_F(FastClickTest, WindowlessDoubleClickThroughItsHost) {
  VornPanel host(0, 0, 100, 50, frame.Get(), wxID_ANY);
  VirtualButton button;
  ASSERT_TRUE(button.Create(cache.get(), false, 0, 0, nullptr, &host, 7, &group));
  wxMouseEvent event = MakeMouseEvent(&host, wxEVT_LEFT_DCLICK, 3, 3);
  button.OnLeftDClick(event);
  EXPECT_TRUE(button.GetMouseDownLeft());
  EXPECT_EQ(Joined(log), "dbl 7");
  button.SetEnabled(false);
  log.clear();
  button.OnLeftDClick(event);
  EXPECT_EQ(Joined(log), "");
}

// A skin with one button script and texts in two languages.
class LanguageSwitchTest : public ::testing::Test {
 protected:
  TempDir skin;
  AssetManager assets;
  void SetUp() override {
    skin.Write("Generic/colours.txt", "bg 10 20 30\nfg 200 200 200\n");
    skin.Write("Generic/fonts.txt", "label 10 swiss normal normal\n");
    skin.Write("Generic/box.sts", "size rgba 8 8\nclear bg\nassign off\nfinish\n");
    for (const char* lang : {"english", "french"}) {
      const bool en = std::string(lang) == "english";
      skin.Write(std::string("Generic/") + lang + "/messages.txt",
                 en ? "Apply \nApply \nClose \nClose \n" : "Apply \nAppliquer \nClose \nFermer \n");
      skin.Write(std::string("Generic/") + lang + "/extra.txt",
                 en ? "Open \nOpen \n" : "Open \nOuvrir \n");
    }
    auto loader = std::make_unique<FileAssetLoader>();
    ASSERT_TRUE(loader->Init(skin.Path()));
    ASSERT_TRUE(assets.SetAssetLoader(std::unique_ptr<AssetLoader>(std::move(loader))));
    assets.SetPlatform("Linux");
    assets.SetLanguage("english", "");
    ASSERT_TRUE(assets.LoadAssets());
    ASSERT_TRUE(assets.LoadMessages("messages.txt"));
    ASSERT_TRUE(assets.LoadMessages("extra.txt"));
    ASSERT_TRUE(assets.LoadFontData("fonts.txt"));
    ASSERT_TRUE(assets.LoadColourData("colours.txt"));
  }
};

TEST_F(LanguageSwitchTest, OneCallSwitchesEveryDatabaseAndKeepsLiveControlsValid) {
  TestFrame frame;
  // A live button drawing from an image set the manager cached.
  const VornwxBitmapCache* images = nullptr;
  ASSERT_TRUE(assets.LoadImagesCached("box.sts", images));
  VornPushButton button(images, 0, 0, frame.Get(), 1, nullptr);
  const wxBitmap before = Render(&button, 8, 8);
  const struct {
    const char* language;
    const char *apply, *open;
  } steps[] = {{"french", "Appliquer", "Ouvrir"},
               {"english", "Apply", "Open"},
               {"french", "Appliquer", "Ouvrir"}};
  for (const auto& s : steps) {
    SCOPED_TRACE(s.language);
    EXPECT_TRUE(assets.SetLanguageAndReload(s.language, ""));
    EXPECT_EQ(assets.GetMessage("Apply"), s.apply);
    EXPECT_EQ(assets.GetMessage("Open"), s.open);
    wxColour bg;
    EXPECT_TRUE(assets.GetColour("bg", bg));
    EXPECT_EQ(bg, wxColour(10, 20, 30));
    wxFont font;
    EXPECT_TRUE(assets.GetFont("label", font));
    // The same cached set, still drawable (ASan watches the memory).
    const VornwxBitmapCache* again = nullptr;
    ASSERT_TRUE(assets.LoadImagesCached("box.sts", again));
    EXPECT_EQ(again, images);
    button.SetDirty();
    EXPECT_TRUE(SamePixels(Render(&button, 8, 8), before));
  }
}

TEST_F(LanguageSwitchTest, PlainReloadKeepsTheFirstTranslation) {
  // What a host gets without the one call: duplicate keys keep the old text.
  assets.SetLanguage("french", "");
  ASSERT_TRUE(assets.LoadAssets());
  CaptureDprintf debug;
  ASSERT_TRUE(assets.LoadMessages("messages.txt"));
  EXPECT_EQ(assets.GetMessage("Apply"), "Apply");
}

TEST(AssetLoaderSetupTest, RootWithoutSeparatorWarnsAndNamesTheFix) {
  TempDir dir;
  dir.Write("Generic/a.txt", "x");
  std::string root = dir.Path();
  root.pop_back();
  const struct {
    std::string root;
    bool warns;
  } cases[] = {{root, true}, {root + "/", false}, {root + "/prefix_", false}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.root);
    CaptureWarnings warnings;
    FileAssetLoader loader;
    EXPECT_TRUE(loader.Init(c.root));
    ASSERT_EQ(warnings.Warnings().size(), c.warns ? 1u : 0u);
    if (c.warns) {
      EXPECT_NE(warnings.Warnings()[0].text.find("pass \"" + root + "/\""), std::string::npos)
          << warnings.Warnings()[0].text;
    }
  }
}

}  // namespace
