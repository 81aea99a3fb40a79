// Image scripts and image loading through the asset manager, on a small test
// skin written into a temporary directory (so restyling the default skin
// never breaks these tests), plus one pass over the real default skin.
#include <gtest/gtest.h>
#include <wx/wx.h>

#include <array>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "GuiTestSupport.h"
#include "TestSupport.h"
#include "vorn/AssetManager.h"
#include "vorn/FileAsset.h"
#include "vorn/ImageScriptParser.h"

namespace {

std::string Png(const Bitmap& b) {
  std::vector<unsigned char> bytes;
  EXPECT_TRUE(SaveBitmapEncode(b, bytes));
  return std::string(bytes.begin(), bytes.end());
}

// A w x 1 picture from RGB triples.
Bitmap Row(const std::vector<std::array<int, 3>>& pixels) {
  Bitmap b;
  Create(b, static_cast<int>(pixels.size()), 1, 3);
  for (std::size_t x = 0; x < pixels.size(); ++x)
    for (int c = 0; c < 3; ++c) b.Pixel(static_cast<int>(x), 0)[c] = pixels[x][c];
  return b;
}

// An in-memory asset that counts how often it is opened.
class CountingAsset : public Asset {
 public:
  CountingAsset(const std::string& assetName, std::string bytes, int* opens)
      : m_bytes(std::move(bytes)), m_pOpens(opens) {
    name = assetName;
  }
  bool Open() override {
    ++*m_pOpens;
    m_bOpen = true;
    return true;
  }
  bool Close() override {
    m_bOpen = false;
    return true;
  }
  unsigned char* GetDataPtr() override {
    return m_bOpen ? reinterpret_cast<unsigned char*>(m_bytes.data()) : nullptr;
  }
  const char* GetTextPtr() override { return m_bOpen ? m_bytes.c_str() : nullptr; }
  int GetSize() override { return m_bOpen ? static_cast<int>(m_bytes.size()) : -1; }

 private:
  std::string m_bytes;
  int* m_pOpens;
  bool m_bOpen = false;
};

const char kColours[] =
    "# test skin\n"
    "base 200 100 50\n"
    "paint 0 255 255\n"
    "half 30 60 90 128\n"
    "pink 255 0 128\nred 200 10 20\nblue 0 0 200\npurple 120 0 120\n"
    "brown 100 60 20\ngreen 0 160 0\norange 250 130 0\nlightblue 130 190 250\n";

// The test skin: a colour and a font database and 3 x 1 pictures.
class World {
 public:
  World() {
    Put("colours.txt", kColours);
    Put("fonts.txt", "plain 9 swiss\n");
    Put("grey.png", Png(Row({{0, 0, 0}, {128, 128, 128}, {255, 255, 255}})));
    Put("pic.png", Png(Row({{10, 20, 30}, {40, 50, 60}, {70, 80, 90}})));
    Put("wide.png", Png(Row({{1, 1, 1}, {2, 2, 2}, {3, 3, 3}, {4, 4, 4}})));
    Put("bad.png", "\x89PNG\r\n\x1a\n this is not a picture");
    BitmapA rgba;
    Create(rgba, 3, 1, 3);
    for (int x = 0; x < 3; ++x) {
      unsigned char* p = rgba.Pixel(x, 0);
      p[0] = 10, p[1] = 20, p[2] = 30, p[3] = 77;
    }
    std::vector<unsigned char> bytes;
    SaveBitmapAEncode(rgba, bytes);
    Put("alpha.png", std::string(bytes.begin(), bytes.end()));
  }
  void Put(const std::string& name, const std::string& bytes) {
    m_dir.Write("Generic/" + name, bytes);
  }
  // Indexes the directory on first use; add every file before.
  AssetManager& Manager() {
    if (!m_pManager) {
      m_pManager = std::make_unique<AssetManager>();
      auto* loader = new FileAssetLoader;
      loader->Init(m_dir.Path());
      m_pManager->SetAssetLoader(loader);
      m_pManager->SetLanguage("english", "");
      EXPECT_TRUE(m_pManager->LoadAssets());
      EXPECT_TRUE(m_pManager->LoadColourData("colours.txt"));
      EXPECT_TRUE(m_pManager->LoadFontData("fonts.txt"));
    }
    return *m_pManager;
  }

 private:
  TempDir m_dir;
  std::unique_ptr<AssetManager> m_pManager;
};

std::array<int, 4> Rgba(const BitmapA& b, int x) {
  const unsigned char* p = b.Pixel(x, 0);
  return {p[0], p[1], p[2], p[3]};
}

std::array<int, 4> Db(AssetManager& am, const char* colour) {
  ColorA c;
  am.GetColour(colour, c);
  return {static_cast<int>(c.r * 255), static_cast<int>(c.g * 255), static_cast<int>(c.b * 255),
          static_cast<int>(c.a * 255)};
}

// Runs a single-image script and returns its picture.
BitmapA RunImage(const std::string& body) {
  World w;
  w.Put("s.sts", body);
  BitmapA out;
  CaptureWarnings warnings;
  EXPECT_TRUE(w.Manager().LoadImage("s.sts", out)) << body;
  for (const auto& warning : warnings.Warnings()) ADD_FAILURE() << body << ": " << warning.text;
  return out;
}

// ---- Command effects ------------------------------------------------------

TEST(ImageScript, ClearKeepsTheColourAndTakesAlphaByType) {
  EXPECT_EQ(Rgba(RunImage("size rgba 3 1\nclear half\nassign image\nfinish\n"), 0),
            (std::array<int, 4>{30, 60, 90, 0}));
  EXPECT_EQ(Rgba(RunImage("size rgb 3 1\nclear half\nassign image\nfinish\n"), 0),
            (std::array<int, 4>{30, 60, 90, 128}));
}

TEST(ImageScript, CopyAndCopyAReplaceTheImage) {
  const BitmapA copy = RunImage("size rgba 3 1\nclear base\ncopy pic.png\nassign image\nfinish\n");
  EXPECT_EQ(Rgba(copy, 1), (std::array<int, 4>{40, 50, 60, 255}));
  const BitmapA copya =
      RunImage("size rgb 3 1\nclear base\ncopya alpha.png\nassign image\nfinish\n");
  EXPECT_EQ(Rgba(copya, 2), (std::array<int, 4>{10, 20, 30, 77}));
}

TEST(ImageScript, GreyMasksBlendColourAndSetAlpha) {
  // The mask's three pixels are grey 0, 128 and 255; "paint" is (0, 1, 1)
  // over "base" (200, 100, 50).
  auto mapped = [](int d, double c, int grey) {
    const double t = grey / 255.0;
    return static_cast<int>((static_cast<int>(c * t * 255) % 256) + d * (1 - t));
  };
  const BitmapA map =
      RunImage("size rgba 3 1\nclear base\nmap grey.png paint\nassign image\nfinish");
  const BitmapA mask =
      RunImage("size rgba 3 1\nclear base\nmapmask grey.png paint\nassign image\nfinish");
  const BitmapA alpha =
      RunImage("size rgba 3 1\nclear base\nsetalphafromgrey grey.png\nassign image\nfinish");
  const int greys[3] = {0, 128, 255};
  for (int x = 0; x < 3; ++x) {
    const std::array<int, 3> blended = {mapped(200, 0.0, greys[x]), mapped(100, 1.0, greys[x]),
                                        mapped(50, 1.0, greys[x])};
    EXPECT_EQ(Rgba(map, x), (std::array<int, 4>{blended[0], blended[1], blended[2], 0})) << x;
    EXPECT_EQ(Rgba(mask, x),
              (std::array<int, 4>{blended[0], blended[1], blended[2], greys[x] ? 255 : 0}))
        << x;
    EXPECT_EQ(Rgba(alpha, x), (std::array<int, 4>{200, 100, 50, greys[x]})) << x;
  }
  EXPECT_EQ(Rgba(map, 2), (std::array<int, 4>{0, 255, 255, 0}));  // a white mask replaces
}

TEST(ImageScript, BlankLinesAreSkippedAndNothingAfterFinishIsRead) {
  const BitmapA b =
      RunImage("size rgb 3 1\n\n   \nclear base\n\nassign image\nfinish\nbogus words");
  EXPECT_EQ(Rgba(b, 0), (std::array<int, 4>{200, 100, 50, 255}));
}

TEST(ImageScript, StatesAreAssignedInSequenceAsCopies) {
  World w;
  w.Put("set.sts", "size rgba 3 1\nclear base\nassign off\nmap grey.png paint\nassign on\nfinish");
  VornBitmapACache cache;
  ASSERT_TRUE(w.Manager().LoadImages("set.sts", cache));
  std::vector<VORNIMAGETYPE> states;
  cache.GetStates(states);
  EXPECT_EQ(states, (std::vector<VORNIMAGETYPE>{VIT_OFF, VIT_ON}));
  const BitmapA *off = nullptr, *on = nullptr;
  cache.GetImage(VIT_OFF, off);
  cache.GetImage(VIT_ON, on);
  EXPECT_EQ(Rgba(*off, 2), (std::array<int, 4>{200, 100, 50, 0}));
  EXPECT_EQ(Rgba(*on, 2), (std::array<int, 4>{0, 255, 255, 0}));
}

// ---- Errors -----------------------------------------------------------------

enum class Build { kCache, kImage, kEdit, kListBox };

struct ErrorCase {
  Build build;
  const char* script;
  const char* message;
  int line;
};

// Loads s.sts (or s.lbs) the way the case says; the warnings it produced.
std::vector<CaptureWarnings::Warning> RunFaulty(World& w, const ErrorCase& c) {
  const bool listBox = c.build == Build::kListBox;
  const char* name = listBox ? "s.lbs" : "s.sts";
  w.Put(name, c.script);
  AssetManager& am = w.Manager();
  CaptureWarnings warnings;
  if (c.build == Build::kCache) {
    VornBitmapACache cache;
    EXPECT_TRUE(am.LoadImages(name, cache)) << c.script;
  } else if (c.build == Build::kImage) {
    BitmapA image;
    EXPECT_TRUE(am.LoadImage(name, image)) << c.script;
    EXPECT_EQ(Rgba(image, 0), Db(am, "pink"));
  } else if (c.build == Build::kEdit) {
    wxBitmap bitmap;
    VornEditInfo info;
    am.LoadEditWidget(name, bitmap, info);
  } else {
    VornwxBitmapCache bitmaps;
    OldVornListBoxInfo info;
    info.bitmaps = &bitmaps;
    am.LoadListBox(name, info);
  }
  return warnings.Warnings();
}

TEST(ImageScript, EveryCommandErrorIsReportedWithItsMessage) {
  const ErrorCase cases[] = {
      {Build::kCache, "size rgba 3 1\nclear\n", "missing arg for clear", 2},
      {Build::kCache, "size rgba 3 1\nclear nosuch\n", "unrecognised colour => nosuch", 2},
      {Build::kCache, "size rgba 3 1\ncopy\n", "missing arg for copy", 2},
      {Build::kCache, "size rgba 3 1\ncopy none.png\n", "Cannot load image => none.png", 2},
      {Build::kCache, "size rgba 3 1\ncopya\n", "missing arg for copya", 2},
      {Build::kCache, "size rgba 3 1\ncopya none.png\n", "Cannot load image => none.png", 2},
      {Build::kCache, "size rgba 3 1\nmap\n", "Missing 1st arg for map", 2},
      {Build::kCache, "size rgba 3 1\nmap grey.png\n", "Missing 2nd arg for map", 2},
      {Build::kCache, "size rgba 3 1\nmap grey.png nosuch\n", "Could not get colour => nosuch", 2},
      {Build::kCache, "size rgb 3 1\nmapmask grey.png paint\n",
       "Cannot use mapmask on an image type other than rgba", 2},
      {Build::kCache, "size rgba 3 1\nmapmask\n", "Missing 1st arg for mapmask", 2},
      {Build::kCache, "size rgba 3 1\nmapmask grey.png\n", "Missing 2nd arg for mapmask", 2},
      {Build::kCache, "size rgb 3 1\nsetalphafromgrey grey.png\n",
       "Cannot use setalphafromgrey on an image type other than rgba", 2},
      {Build::kCache, "size rgba 3 1\nsetalphafromgrey\n", "Missing 1st arg for setalphafromgrey",
       2},
      {Build::kCache, "size rgba 3 1\n\nassign\n", "missing arg for assign", 3},
      {Build::kCache, "size rgba 3 1\nassign off\nassign off\n", "Assign not work", 3},
      {Build::kCache, "size rgba 3 1\nassign image\n",
       "Image being assigned to a ButtonCache. Cannot do that!!", 2},
      {Build::kImage, "size rgba 3 1\nassign on\n",
       "Either trying to assign a buttonstate to an image, or spelled 'assign image' wrong.", 2},
      {Build::kCache, "size rgba 3 1\nassign sideways\n", "unrecognisez button state [sideways]",
       2},
      {Build::kCache, "size rgba 3 1\nedit 0 0 1 1 base base plain\n",
       "Found edit line without an edit class", 2},
      {Build::kCache, "size rgba 3 1\nlbText 0 0 1 1 base\n", "No list box info set up for lbText",
       2},
      {Build::kCache, "size rgba 3 1\nlbExpand 1 base base base\n",
       "No list box info set up for lbExpand", 2},
      {Build::kCache, "size rgba 3 1\nlbSelDot pic.png\n", "No list box info set up for lbSelDot",
       2},
      {Build::kCache, "size rgba 3 1\nClear base\n",
       "we got something that was not a command in the file...", 2},
      {Build::kCache, "size rgba 3 1\nclear base\n", "We've ended without a finish..", 3},
      {Build::kCache, "size rgba 3 1\ncopy wide.png\n",
       "File [wide.png] is of size [4,1] but should be of size [3,1].  Cannot load..", 2},
      {Build::kEdit, "size rgba 3 1\nedit 1 2 3\n", "Missing arguments for edit line", 2},
      {Build::kEdit, "size rgba 3 1\nedit 1 2 3 4 base nosuch plain\n",
       "Could not get colour => nosuch", 2},
      {Build::kEdit, "size rgba 3 1\nedit 1 2 3 4 base base nosuch\n",
       "Could not get font => nosuch", 2},
      {Build::kListBox, "size rgba 3 1\nlbText 1 2\n", "Error parsing list box text line", 2},
      {Build::kListBox, "size rgba 3 1\nlbText 1 2 3 4 nosuch\n", "Could not get colour => nosuch",
       2},
      {Build::kListBox, "size rgba 3 1\nlbExpand 5 base\n", "Error parsing list box expand line",
       2},
      {Build::kListBox, "size rgba 3 1\nlbExpand 5 base base base\n",
       "Bad Vorn loading the scroll bar images for the list box", 2},
      {Build::kListBox, "size rgba 3 1\nlbSelDot none.png\n", "Error parsing list box selDot line",
       2},
  };
  for (const ErrorCase& c : cases) {
    World w;
    const auto warnings = RunFaulty(w, c);
    ASSERT_FALSE(warnings.empty()) << c.script;
    const std::string expected = std::string(c.message) + " [line " + std::to_string(c.line) + "]";
    bool found = false;
    for (const auto& warning : warnings)
      found = found || (warning.title == "Image Script Parser" && warning.text == expected);
    EXPECT_TRUE(found) << c.script << "\nexpected: " << expected << "\nfirst: " << warnings[0].title
                       << ": " << warnings[0].text;
  }
}

TEST(ImageScript, AFailedCacheHoldsTheEightErrorColours) {
  World w;
  // Assigned before the fault, then replaced by the error images.
  w.Put("s.sts", "size rgba 3 1\nclear base\nassign off\nassign on\ncopy wide.png\nfinish");
  CaptureWarnings warnings;
  VornBitmapACache cache;
  ASSERT_TRUE(w.Manager().LoadImages("s.sts", cache));
  ASSERT_EQ(warnings.Warnings().size(), 1u);
  const std::pair<VORNIMAGETYPE, const char*> expected[] = {{VIT_ON, "pink"},
                                                            {VIT_OFF, "red"},
                                                            {VIT_ON_DOWN, "blue"},
                                                            {VIT_OFF_DOWN, "purple"},
                                                            {VIT_ON_MOUSE_OVER, "brown"},
                                                            {VIT_OFF_MOUSE_OVER, "green"},
                                                            {VIT_DISABLED_ON, "orange"},
                                                            {VIT_DISABLED_OFF, "lightblue"}};
  std::vector<VORNIMAGETYPE> states;
  cache.GetStates(states);
  EXPECT_EQ(states.size(), 8u);
  for (const auto& [state, colour] : expected) {
    const BitmapA* image = nullptr;
    ASSERT_TRUE(cache.GetImage(state, image)) << colour;
    EXPECT_EQ(image->width, 3);
    EXPECT_EQ(Rgba(*image, 1), Db(w.Manager(), colour)) << colour;
  }
}

TEST(ImageScript, FirstLineErrorsFailTheLoadWithTitleError) {
  const std::pair<const char*, const char*> cases[] = {
      {"", "cannot get first word off first line..."},
      {"   \nclear base\n", "cannot get first word off first line..."},
      {"sise rgba 3 1\n", "first line not size..."},
      {"size\n", "cannot get second arg off first line..."},
      {"size rgbx 3 1\n", "token not rgb,rgba or gui8"},
      {"size rgba 3\n", "Image not same size as specified by Size command"},
      {"size gui8 3 1\nassign off\nfinish\n", "gui8"},
      {"size rgba 0 1\n", "out of range"},
      {"size rgba 3 -1\n", "out of range"},
      {"size rgba 16385 1\n", "out of range"},
      {"size rgb 1 100000\n", "out of range"},
  };
  for (const auto& [script, message] : cases) {
    World w;
    w.Put("s.sts", script);
    CaptureWarnings warnings;
    VornBitmapACache cache;
    EXPECT_FALSE(w.Manager().LoadImages("s.sts", cache)) << script;
    EXPECT_TRUE(warnings.Contains("Error", message)) << script;
    std::vector<VORNIMAGETYPE> states;
    cache.GetStates(states);
    EXPECT_TRUE(states.empty()) << script;
    const VornBitmapACache* cached = nullptr;
    EXPECT_FALSE(w.Manager().LoadImagesCached("s.sts", cached)) << script;
    EXPECT_EQ(cached, nullptr);
  }
  // The largest side is allowed.
  World w;
  w.Put("s.sts", "size rgb 16384 1\nclear base\nassign image\nfinish\n");
  BitmapA big;
  EXPECT_TRUE(w.Manager().LoadImage("s.sts", big));
  EXPECT_EQ(big.width, 16384);
}

TEST(ImageScript, AScriptThatUsesItselfIsStopped) {
  World w;
  w.Put("loop.sts", "size rgba 3 1\ncopy loop.sts\nassign image\nfinish\n");
  CaptureWarnings warnings;
  BitmapA image;
  EXPECT_TRUE(w.Manager().LoadImage("loop.sts", image));
  EXPECT_TRUE(warnings.Contains("Image Script Parser", "Cannot load image => loop.sts"));
  EXPECT_EQ(Rgba(image, 0), Db(w.Manager(), "pink"));
}

// ---- Loading by name ------------------------------------------------------

TEST(ImageLoading, TheEndingChoosesDecoderOrScript) {
  World w;
  w.Put("sts_named.png", Png(Row({{5, 6, 7}})));
  w.Put("png_named.sts", "size rgb 2 2\nclear base\nassign image\nfinish\n");
  AssetManager& am = w.Manager();
  CaptureWarnings warnings;
  for (const char* name : {"sts_named.png", "STS_NAMED.PNG"}) {
    wxImage image;
    ASSERT_TRUE(am.LoadImage(name, image)) << name;
    EXPECT_EQ(image.GetWidth(), 1);
    EXPECT_EQ(image.GetRed(0, 0), 5);
  }
  for (const char* name : {"png_named.sts", "PNG_NAMED.STS"}) {
    wxImage image;
    ASSERT_TRUE(am.LoadImage(name, image)) << name;
    EXPECT_EQ(image.GetWidth(), 2);
    EXPECT_EQ(image.GetRed(1, 1), 200);
  }
  Bitmap rgb;
  ASSERT_TRUE(am.LoadImage("pic.png", rgb));
  EXPECT_EQ(rgb.Pixel(2, 0)[2], 90);
  ASSERT_TRUE(am.LoadImage("png_named.sts", rgb));
  EXPECT_EQ(rgb.Pixel(0, 0)[1], 100);
  wxBitmap bitmap;
  ASSERT_TRUE(am.LoadBitmap("pic.png", bitmap, 0));
  EXPECT_EQ(PixelAt(bitmap, 1, 0), wxColour(40, 50, 60));
  EXPECT_TRUE(warnings.Warnings().empty());

  // Refused: too short, another ending, a missing asset.
  for (const char* name : {"a.png", "pic.Png", "pic.bmp", "none.png", "none.sts", "png"}) {
    wxImage image;
    BitmapA a;
    EXPECT_FALSE(am.LoadImage(name, image)) << name;
    EXPECT_FALSE(am.LoadImage(name, a)) << name;
  }
  EXPECT_TRUE(warnings.Warnings().empty());
}

TEST(ImageLoading, CorruptPicturesAreReportedAndRefused) {
  World w;
  // A header that claims a picture far too large to allocate.
  std::string huge = Png(Row({{1, 2, 3}}));
  huge[16] = 0x7f;
  w.Put("huge.png", huge);
  AssetManager& am = w.Manager();
  for (const char* name : {"bad.png", "huge.png"}) {
    CaptureWarnings warnings;
    wxImage image;
    EXPECT_FALSE(am.LoadImage(name, image)) << name;
    EXPECT_FALSE(image.IsOk());
    const std::string message = std::string("Failed because the file was corrupt [") + name + "]";
    EXPECT_TRUE(warnings.Contains(message, message)) << name;
    BitmapA a;
    EXPECT_FALSE(am.LoadImage(name, a)) << name;
  }
}

TEST(ImageLoading, CachedPicturesAreSharedAndReadOnce) {
  World w;
  AssetManager& am = w.Manager();
  int pictureOpens = 0, maskOpens = 0, scriptOpens = 0;
  am.SetAsset(new CountingAsset("counted.png", Png(Row({{9, 8, 7}})), &pictureOpens));
  am.SetAsset(new CountingAsset("mask.png", Png(Row({{255, 255, 255}})), &maskOpens));
  am.SetAsset(new CountingAsset(
      "set.sts", "size rgba 1 1\nclear base\nmap mask.png paint\nassign off\nfinish\n",
      &scriptOpens));
  am.SetAsset(new CountingAsset(
      "other.sts", "size rgba 1 1\nclear base\nmap mask.png base\nassign off\nfinish\n",
      &scriptOpens));

  const wxImage *first = nullptr, *second = nullptr;
  ASSERT_TRUE(am.LoadImageCached("counted.png", first));
  ASSERT_TRUE(am.LoadImageCached("counted.png", second));
  EXPECT_EQ(first, second);
  EXPECT_EQ(pictureOpens, 1);

  const VornBitmapACache *set = nullptr, *again = nullptr, *other = nullptr;
  ASSERT_TRUE(am.LoadImagesCached("set.sts", set));
  ASSERT_TRUE(am.LoadImagesCached("set.sts", again));
  ASSERT_TRUE(am.LoadImagesCached("other.sts", other));
  EXPECT_EQ(set, again);
  EXPECT_EQ(scriptOpens, 2);  // each script once
  EXPECT_EQ(maskOpens, 1);    // the mask both scripts use: decoded once

  // After ClearCaches every request loads again.
  am.ClearCaches();
  ASSERT_TRUE(am.LoadImageCached("counted.png", first));
  ASSERT_TRUE(am.LoadImagesCached("set.sts", set));
  EXPECT_EQ(pictureOpens, 2);
  EXPECT_EQ(scriptOpens, 3);
  EXPECT_EQ(first->GetRed(0, 0), 9);

  // A failed load inserts nothing: the next request tries again.
  const wxImage* missing = &wxNullImage;
  EXPECT_FALSE(am.LoadImageCached("none.png", missing));
  EXPECT_EQ(missing, nullptr);
}

TEST(ImageLoading, StateSetsConvertToEveryCacheType) {
  World w;
  w.Put("three.sts",
        "size rgba 3 1\nclear base\nassign off\nmap grey.png paint\nassign on\n"
        "copy pic.png\nassign on_down\nfinish\n");
  AssetManager& am = w.Manager();
  VornBitmapACache source;
  ASSERT_TRUE(am.LoadImages("three.sts", source));
  const std::vector<VORNIMAGETYPE> expected = {VIT_OFF, VIT_ON, VIT_ON_DOWN};

  VornBitmapCache rgb;
  VornwxImageCache images;
  VornwxBitmapCache bitmaps;
  ASSERT_TRUE(am.LoadImages("three.sts", rgb));
  ASSERT_TRUE(am.LoadImages("three.sts", images));
  ASSERT_TRUE(am.LoadImages("three.sts", bitmaps));
  const VornwxBitmapCache* sheet = nullptr;
  ASSERT_TRUE(am.LoadImagesCached("three.sts", sheet));
  EXPECT_GE(am.GetWallpaperHolder().NumSheets(), 1);
  EXPECT_EQ(sheet->GetWallpaperInfo().size(), 10u);  // held as sheet entries

  std::vector<VORNIMAGETYPE> s1, s2, s3, s4;
  rgb.GetStates(s1);
  images.GetStates(s2);
  bitmaps.GetStates(s3);
  sheet->GetStates(s4);
  EXPECT_EQ(s1, expected);
  EXPECT_EQ(s2, expected);
  EXPECT_EQ(s3, expected);
  EXPECT_EQ(s4, expected);

  for (VORNIMAGETYPE state : expected) {
    const BitmapA* a = nullptr;
    const Bitmap* b = nullptr;
    const wxImage* i = nullptr;
    const wxBitmap *x = nullptr, *y = nullptr;
    ASSERT_TRUE(source.GetImage(state, a));
    ASSERT_TRUE(rgb.GetImage(state, b));
    ASSERT_TRUE(images.GetImage(state, i));
    ASSERT_TRUE(bitmaps.GetImage(state, x));
    ASSERT_TRUE(sheet->GetImage(state, y));  // cut out of the sheet now
    EXPECT_EQ(y->GetWidth(), 3);
    EXPECT_EQ(y->GetHeight(), 1);
    for (int px = 0; px < 3; ++px) {
      const wxColour want(a->Pixel(px, 0)[0], a->Pixel(px, 0)[1], a->Pixel(px, 0)[2]);
      EXPECT_EQ(wxColour(b->Pixel(px, 0)[0], b->Pixel(px, 0)[1], b->Pixel(px, 0)[2]), want);
      EXPECT_EQ(wxColour(i->GetRed(px, 0), i->GetGreen(px, 0), i->GetBlue(px, 0)), want);
      EXPECT_EQ(PixelAt(*x, px, 0), want);
      EXPECT_EQ(PixelAt(*y, px, 0), want) << "state " << state << " pixel " << px;
    }
  }
}

// ---- Edit widgets and list boxes ---------------------------------------------

TEST(ImageLoading, EditWidgetsCarryTheirLayout) {
  World w;
  w.Put("field.sts",
        "size rgb 3 1\nclear base\nassign image\nedit 1 2 30 40 half paint plain\nfinish");
  w.Put("noedit.sts", "size rgb 3 1\nclear base\nassign image\nfinish");
  AssetManager& am = w.Manager();
  CaptureWarnings warnings;
  const wxBitmap *bitmap = nullptr, *again = nullptr;
  VornEditInfo info;
  ASSERT_TRUE(am.LoadEditWidgetCached("field.sts", bitmap, info));
  ASSERT_TRUE(am.LoadEditWidgetCached("field.sts", again, info));
  EXPECT_EQ(bitmap, again);
  EXPECT_EQ(PixelAt(*bitmap, 0, 0), wxColour(200, 100, 50));
  EXPECT_EQ(info.x, 1);
  EXPECT_EQ(info.y, 2);
  EXPECT_EQ(info.width, 30);
  EXPECT_EQ(info.height, 40);
  EXPECT_EQ(info.colour1, wxColour(30, 60, 90));
  EXPECT_EQ(info.colour2, wxColour(0, 255, 255));
  EXPECT_TRUE(info.font.IsOk());
  EXPECT_TRUE(warnings.Warnings().empty());

  for (const char* name : {"noedit.sts", "none.sts"}) {
    VornEditInfo fallback;
    const wxBitmap* none = &wxNullBitmap;
    EXPECT_FALSE(am.LoadEditWidgetCached(name, none, fallback)) << name;
    EXPECT_EQ(none, nullptr);
    EXPECT_EQ(fallback.x, -1);
    EXPECT_EQ(fallback.height, -1);
    EXPECT_EQ(fallback.colour1, wxColour(0, 0, 100));
    EXPECT_EQ(fallback.colour2, wxColour(255, 0, 255));
    EXPECT_EQ(fallback.background, wxColour(0, 100, 0));
  }
  EXPECT_TRUE(warnings.Contains("Create Edit Widget", "Didn't find any edit widget data"));
}

TEST(ImageLoading, ListBoxesCarryTheirLayoutAndScrollPictures) {
  World w;
  for (const char* piece :
       {"plenth_scroll_off.sts", "plenth_scroll_up.sts", "plenth_scroll_down.sts"})
    w.Put(piece, "size rgb 2 2\nclear paint\nassign image\nfinish\n");
  w.Put("list.lbs",
        "size rgba 3 1\nclear base\nassign on\nassign on_mouse_over\n"
        "lbText 4 5 60 16 half\nlbExpand 120 red blue green\nlbSelDot pic.png\nfinish\n");
  w.Put("notext.lbs", "size rgba 3 1\nclear base\nassign on\nfinish\n");
  AssetManager& am = w.Manager();
  CaptureWarnings warnings;
  VornListBoxInfo info;
  ASSERT_TRUE(am.LoadListBoxCached("list.lbs", info));
  EXPECT_TRUE(warnings.Warnings().empty());
  ASSERT_NE(info.bitmaps, nullptr);
  std::vector<VORNIMAGETYPE> states;
  info.bitmaps->GetStates(states);
  EXPECT_EQ(states, (std::vector<VORNIMAGETYPE>{VIT_ON, VIT_ON_MOUSE_OVER}));
  EXPECT_EQ(info.textX, 4);
  EXPECT_EQ(info.textHeight, 16);
  EXPECT_EQ(info.textColour, wxColour(30, 60, 90));
  EXPECT_EQ(info.expand, 120);
  EXPECT_EQ(info.expandColour1, wxColour(200, 10, 20));
  EXPECT_EQ(info.expandColour3, wxColour(0, 160, 0));
  ASSERT_NE(info.selDot, nullptr);
  EXPECT_EQ(PixelAt(*info.selDot, 0, 0), wxColour(10, 20, 30));
  ASSERT_NE(info.scrollUp, nullptr);
  EXPECT_EQ(PixelAt(*info.scrollUp, 1, 1), wxColour(0, 255, 255));
  const wxBitmap* shared = nullptr;
  ASSERT_TRUE(am.LoadImageCached("plenth_scroll_up.sts", shared));
  EXPECT_EQ(shared, info.scrollUp);
  VornListBoxInfo again;
  ASSERT_TRUE(am.LoadListBoxCached("list.lbs", again));
  EXPECT_EQ(again.bitmaps, info.bitmaps);

  for (const char* name : {"notext.lbs", "none.lbs"}) {
    VornListBoxInfo fallback;
    fallback.selDot = &wxNullBitmap;
    EXPECT_FALSE(am.LoadListBoxCached(name, fallback)) << name;
    EXPECT_EQ(fallback.bitmaps, nullptr);
    EXPECT_EQ(fallback.textX, -1);
    EXPECT_EQ(fallback.textWidth, -1);
    EXPECT_EQ(fallback.textColour, wxColour(255, 255, 255));
    EXPECT_EQ(fallback.expand, -1);
    EXPECT_EQ(fallback.selDot, nullptr);
    EXPECT_EQ(fallback.expandColour1, wxColour(100, 0, 0));
    EXPECT_EQ(fallback.expandColour2, wxColour(0, 100, 0));
    EXPECT_EQ(fallback.expandColour3, wxColour(0, 0, 100));
  }
  EXPECT_TRUE(warnings.Contains("Create List Box", "Didn't find any text widget data"));
}

TEST(ImageLoading, ListBoxWithoutBitmapCacheIsAProgrammingError) {
  World w;
  w.Put("list.lbs", "size rgba 3 1\nlbText 1 1 1 1 base\nfinish\n");
  OldVornListBoxInfo info;
  EXPECT_EQ(FiredAssertion([&] { w.Manager().LoadListBox("list.lbs", info); }), "info->bitmaps");
  ImageScriptParser parser(&w.Manager());
  BitmapA image;
  EXPECT_EQ(FiredAssertion([&] { parser.CreateEditWidget("", image, nullptr); }), "info");
}

// ---- The default skin ------------------------------------------------------

TEST(DefaultSkin, EveryScriptRendersWithoutAWarning) {
  AssetManager am;
  auto* loader = new FileAssetLoader;
  ASSERT_TRUE(loader->Init(std::string(VORN_SKIN_DIR) + "/"));
  am.SetAssetLoader(loader);
  am.SetLanguage("english", "");
  ASSERT_TRUE(am.LoadAssets());
  CaptureWarnings warnings;
  CaptureDprintf debug;
  ASSERT_TRUE(am.LoadColourData("colours.txt"));
  ASSERT_TRUE(am.LoadFontData("fonts.txt"));
  ASSERT_TRUE(am.LoadMessages("messages.txt"));
  EXPECT_EQ(am.GetMessage("Cancel"), "Cancel");

  int scripts = 0;
  for (const auto& entry :
       std::filesystem::directory_iterator(std::string(VORN_SKIN_DIR) + "/Generic")) {
    const std::string name = entry.path().filename().string();
    const std::string text = ReadFileBytes(entry.path().string());
    const bool listBox = name.size() > 4 && name.substr(name.size() - 4) == ".lbs";
    if (!listBox && (name.size() < 4 || name.substr(name.size() - 4) != ".sts")) continue;
    ++scripts;
    if (listBox) {
      VornListBoxInfo info;
      EXPECT_TRUE(am.LoadListBoxCached(name.c_str(), info)) << name;
    } else if (text.find("\nedit ") != std::string::npos) {
      const wxBitmap* bitmap = nullptr;
      VornEditInfo info;
      EXPECT_TRUE(am.LoadEditWidgetCached(name.c_str(), bitmap, info)) << name;
    } else if (text.find("assign image") != std::string::npos) {
      const wxBitmap* bitmap = nullptr;
      EXPECT_TRUE(am.LoadImageCached(name.c_str(), bitmap)) << name;
    } else {
      // Button families assign all eight states.
      const VornwxBitmapCache* cache = nullptr;
      ASSERT_TRUE(am.LoadImagesCached(name.c_str(), cache)) << name;
      std::vector<VORNIMAGETYPE> states;
      cache->GetStates(states);
      EXPECT_EQ(states.size(), 8u) << name;
    }
  }
  EXPECT_GE(scripts, 13);
  for (const auto& w : warnings.Warnings()) ADD_FAILURE() << w.title << ": " << w.text;
  EXPECT_FALSE(debug.Contains("NONFATAL")) << debug.All();
}

}  // namespace
