// Image scripts and image loading through the asset manager, on a small test
// skin written into a temporary directory (so restyling the default skin
// never breaks these tests), plus one pass over the real default skin.
#include <gtest/gtest.h>
#include <wx/wx.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "../unit/AssetTestUtil.h"
#include "GuiTestSupport.h"
#include "TestSupport.h"
#include "vorn/AssetManager.h"
#include "vorn/FileAsset.h"
#include "vorn/ImageScriptParser.h"

namespace {

// A w x 1 PNG from RGB pixels, or RGBA pixels when they have four values.
std::string PngRow(const std::vector<std::vector<int>>& pixels) {
  std::vector<unsigned char> bytes;
  const int w = static_cast<int>(pixels.size());
  auto fill = [&](auto& b) {
    Create(b, w, 1, 3);
    for (int x = 0; x < w; ++x)
      for (std::size_t c = 0; c < pixels[x].size(); ++c) b.Pixel(x, 0)[c] = pixels[x][c];
  };
  Bitmap rgb;
  BitmapA rgba;
  const bool alpha = pixels[0].size() == 4;
  alpha ? fill(rgba) : fill(rgb);
  EXPECT_TRUE(alpha ? SaveBitmapAEncode(rgba, bytes) : SaveBitmapEncode(rgb, bytes));
  return std::string(bytes.begin(), bytes.end());
}

// Row 0 as "r,g,b[,a] ...", from channel c of pixel x.
template <class F>
std::string RowOf(int w, int channels, F at) {
  std::string s;
  for (int i = 0; i < w * channels; ++i)
    s += (i == 0 ? "" : i % channels ? "," : " ") + std::to_string(at(i / channels, i % channels));
  return s;
}
template <class B>
std::string Row(const B& b, int channels) {
  return RowOf(b.width, channels, [&](int x, int c) { return b.Pixel(x, 0)[c]; });
}
std::string Rgb(const wxImage& i) {
  return RowOf(i.GetWidth(), 3, [&](int x, int c) { return i.GetData()[x * 3 + c]; });
}
std::string Rgb(const wxBitmap& b) {
  return Rgb(b.ConvertToImage());
}

// The test skin: a colour and a font database and 3 x 1 pictures.
class World {
 public:
  World() {
    Put("colours.txt",
        "# test skin\nbase 200 100 50\npaint 0 255 255\nhalf 30 60 90 128\n"
        "pink 255 0 128\nred 200 10 20\nblue 0 0 200\npurple 120 0 120\n"
        "brown 100 60 20\ngreen 0 160 0\norange 250 130 0\nlightblue 130 190 250\n");
    Put("fonts.txt", "plain 9 swiss\n");
    Put("grey.png", PngRow({{0, 0, 0}, {128, 128, 128}, {255, 255, 255}}));
    Put("pic.png", PngRow({{10, 20, 30}, {40, 50, 60}, {70, 80, 90}}));
    Put("wide.png", PngRow({{1, 1, 1}, {2, 2, 2}, {3, 3, 3}, {4, 4, 4}}));
    Put("alpha.png", PngRow({{10, 20, 30, 77}, {10, 20, 30, 77}, {10, 20, 30, 77}}));
    Put("bad.png", "\x89PNG\r\n\x1a\n this is not a picture");
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

// A database colour as "r,g,b,a".
std::string Db(AssetManager& am, const char* colour) {
  ColorA c;
  am.GetColour(colour, c);
  const double v[] = {c.r, c.g, c.b, c.a};
  return RowOf(1, 4, [&](int, int i) { return static_cast<int>(v[i] * 255); });
}

template <class Cache>
std::vector<VORNIMAGETYPE> States(const Cache& cache) {
  std::vector<VORNIMAGETYPE> states;
  cache.GetStates(states);
  return states;
}

// ---- Command effects ------------------------------------------------------

TEST(ImageScript, EachCommandHasItsEffect) {
  // "grey.png" holds greys 0, 128 and 255; "paint" is (0, 255, 255), drawn
  // over "base" (200, 100, 50).
  const std::pair<const char*, const char*> cases[] = {
      // clear keeps the colour and takes alpha by image type
      {"size rgba 3 1\nclear half\n", "30,60,90,0 30,60,90,0 30,60,90,0"},
      {"size rgb 3 1\nclear half\n", "30,60,90,128 30,60,90,128 30,60,90,128"},
      {"size rgba 3 1\nclear base\ncopy pic.png\n", "10,20,30,255 40,50,60,255 70,80,90,255"},
      {"size rgb 3 1\nclear base\ncopya alpha.png\n", "10,20,30,77 10,20,30,77 10,20,30,77"},
      // grey masks blend the colour in; a white mask replaces
      {"size rgba 3 1\nclear base\nmap grey.png paint\n", "200,100,50,0 99,177,152,0 0,255,255,0"},
      {"size rgba 3 1\nclear base\nmapmask grey.png paint\n",
       "200,100,50,0 99,177,152,255 0,255,255,255"},
      {"size rgba 3 1\nclear base\nsetalphafromgrey grey.png\n",
       "200,100,50,0 200,100,50,128 200,100,50,255"},
      // blank lines are skipped
      {"size rgb 3 1\n\n   \nclear base\n\n", "200,100,50,255 200,100,50,255 200,100,50,255"},
  };
  for (const auto& [body, pixels] : cases) {
    World w;
    // Nothing after finish is read.
    w.Put("s.sts", std::string(body) + "assign image\nfinish\nbogus words");
    BitmapA out;
    CaptureWarnings warnings;
    EXPECT_TRUE(w.Manager().LoadImage("s.sts", out)) << body;
    EXPECT_EQ(Row(out, 4), pixels) << body;
    for (const auto& warning : warnings.Warnings()) ADD_FAILURE() << body << ": " << warning.text;
  }

  // States are assigned in sequence, as copies.
  World w;
  w.Put("set.sts", "size rgba 3 1\nclear base\nassign off\nmap grey.png paint\nassign on\nfinish");
  VornBitmapACache cache;
  ASSERT_TRUE(w.Manager().LoadImages("set.sts", cache));
  EXPECT_EQ(States(cache), (std::vector<VORNIMAGETYPE>{VIT_OFF, VIT_ON}));
  const BitmapA *off = nullptr, *on = nullptr;
  cache.GetImage(VIT_OFF, off);
  cache.GetImage(VIT_ON, on);
  EXPECT_EQ(Row(*off, 4), "200,100,50,0 200,100,50,0 200,100,50,0");
  EXPECT_EQ(Row(*on, 4), "200,100,50,0 99,177,152,0 0,255,255,0");
}

// ---- Errors -----------------------------------------------------------------

enum Build { kCache, kImage, kEdit, kListBox };

TEST(ImageScript, EveryCommandErrorIsReportedWithItsMessage) {
  // Scripts start with "size rgba 3 1" unless they say otherwise; the line
  // is the faulty one's.
  const struct {
    Build build;
    const char *script, *message;
    int line;
  } cases[] = {
      {kCache, "clear\n", "missing arg for clear", 2},
      {kCache, "clear nosuch\n", "unrecognised colour => nosuch", 2},
      {kCache, "copy\n", "missing arg for copy", 2},
      {kCache, "copy none.png\n", "Cannot load image => none.png", 2},
      {kCache, "copya\n", "missing arg for copya", 2},
      {kCache, "copya none.png\n", "Cannot load image => none.png", 2},
      {kCache, "map\n", "Missing 1st arg for map", 2},
      {kCache, "map grey.png\n", "Missing 2nd arg for map", 2},
      {kCache, "map grey.png nosuch\n", "Could not get colour => nosuch", 2},
      {kCache, "mapmask\n", "Missing 1st arg for mapmask", 2},
      {kCache, "mapmask grey.png\n", "Missing 2nd arg for mapmask", 2},
      {kCache, "setalphafromgrey\n", "Missing 1st arg for setalphafromgrey", 2},
      {kCache, "\nassign\n", "missing arg for assign", 3},
      {kCache, "assign off\nassign off\n", "Assign not work", 3},
      {kCache, "assign image\n", "Image being assigned to a ButtonCache. Cannot do that!!", 2},
      {kImage, "assign on\n",
       "Either trying to assign a buttonstate to an image, or spelled 'assign image' wrong.", 2},
      // A script that uses itself is stopped.
      {kImage, "copy s.sts\nassign image\nfinish\n", "Cannot load image => s.sts", 2},
      {kCache, "assign sideways\n", "unrecognisez button state [sideways]", 2},
      {kCache, "edit 0 0 1 1 base base plain\n", "Found edit line without an edit class", 2},
      {kCache, "lbText 0 0 1 1 base\n", "No list box info set up for lbText", 2},
      {kCache, "lbExpand 1 base base base\n", "No list box info set up for lbExpand", 2},
      {kCache, "lbSelDot pic.png\n", "No list box info set up for lbSelDot", 2},
      {kCache, "Clear base\n", "we got something that was not a command in the file...", 2},
      {kCache, "clear base\n", "We've ended without a finish..", 3},
      {kCache, "copy wide.png\n",
       "File [wide.png] is of size [4,1] but should be of size [3,1].  Cannot load..", 2},
      {kEdit, "edit 1 2 3\n", "Missing arguments for edit line", 2},
      {kEdit, "edit 1 2 3 4 base nosuch plain\n", "Could not get colour => nosuch", 2},
      {kEdit, "edit 1 2 3 4 base base nosuch\n", "Could not get font => nosuch", 2},
      {kListBox, "lbText 1 2\n", "Error parsing list box text line", 2},
      {kListBox, "lbText 1 2 3 4 nosuch\n", "Could not get colour => nosuch", 2},
      {kListBox, "lbExpand 5 base\n", "Error parsing list box expand line", 2},
      {kListBox, "lbExpand 5 base base base\n",
       "Bad Vorn loading the scroll bar images for the list box", 2},
      {kListBox, "lbSelDot none.png\n", "Error parsing list box selDot line", 2},
      // The two commands that need an alpha channel, on an rgb image.
      {kCache, "size rgb 3 1\nmapmask grey.png paint\n",
       "Cannot use mapmask on an image type other than rgba", 2},
      {kCache, "size rgb 3 1\nsetalphafromgrey grey.png\n",
       "Cannot use setalphafromgrey on an image type other than rgba", 2},
  };
  for (const auto& c : cases) {
    World w;
    const std::string script = std::string(c.script);
    const char* name = c.build == kListBox ? "s.lbs" : "s.sts";
    w.Put(name, (script.rfind("size", 0) == 0 ? "" : "size rgba 3 1\n") + script);
    AssetManager& am = w.Manager();
    CaptureWarnings warnings;
    if (c.build == kCache) {
      VornBitmapACache cache;
      EXPECT_TRUE(am.LoadImages(name, cache)) << script;
    } else if (c.build == kImage) {
      BitmapA image;
      EXPECT_TRUE(am.LoadImage(name, image)) << script;
      EXPECT_EQ(Row(image, 4).substr(0, Db(am, "pink").size()), Db(am, "pink"));
    } else if (c.build == kEdit) {
      wxBitmap bitmap;
      VornEditInfo info;
      am.LoadEditWidget(name, bitmap, info);
    } else {
      VornwxBitmapCache bitmaps;
      OldVornListBoxInfo info;
      info.bitmaps = &bitmaps;
      am.LoadListBox(name, info);
    }
    const std::string expected = std::string(c.message) + " [line " + std::to_string(c.line) + "]";
    bool found = false;
    for (const auto& warning : warnings.Warnings())
      found = found || (warning.title == "Image Script Parser" && warning.text == expected);
    EXPECT_TRUE(found) << script << "\nexpected: " << expected << "\ngot: "
                       << (warnings.Warnings().empty() ? "nothing" : warnings.Warnings()[0].text);
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
  const VORNIMAGETYPE states[] = {VIT_ON,          VIT_OFF,           VIT_ON_DOWN,
                                  VIT_OFF_DOWN,    VIT_ON_MOUSE_OVER, VIT_OFF_MOUSE_OVER,
                                  VIT_DISABLED_ON, VIT_DISABLED_OFF};
  const char* colours[] = {"pink",  "red",   "blue",   "purple",
                           "brown", "green", "orange", "lightblue"};
  EXPECT_EQ(States(cache).size(), 8u);
  for (int i = 0; i < 8; ++i) {
    const BitmapA* image = nullptr;
    ASSERT_TRUE(cache.GetImage(states[i], image)) << colours[i];
    const std::string c = Db(w.Manager(), colours[i]);
    EXPECT_EQ(Row(*image, 4), c + " " + c + " " + c) << colours[i];
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
      {"size rgba 16384 16384\n", "too large: at most 16777216 pixels"},
      {"size rgb 4097 4096\n", "too large"},
      {"size rgb 16384 1025\n", "too large"},
  };
  for (const auto& [script, message] : cases) {
    World w;
    w.Put("s.sts", script);
    CaptureWarnings warnings;
    VornBitmapACache cache;
    EXPECT_FALSE(w.Manager().LoadImages("s.sts", cache)) << script;
    EXPECT_TRUE(warnings.Contains("Error", message)) << script;
    EXPECT_TRUE(States(cache).empty()) << script;
    const VornBitmapACache* cached = nullptr;
    EXPECT_FALSE(w.Manager().LoadImagesCached("s.sts", cached)) << script;
    EXPECT_EQ(cached, nullptr);
  }
  // The largest side and the largest area are allowed.
  World w;
  w.Put("s.sts", "size rgb 16384 1\nclear base\nassign image\nfinish\n");
  w.Put("area.sts", "size rgba 16384 1024\nclear base\nassign image\nfinish\n");
  BitmapA big;
  EXPECT_TRUE(w.Manager().LoadImage("s.sts", big));
  EXPECT_EQ(big.width, 16384);
  BitmapA wide;
  EXPECT_TRUE(w.Manager().LoadImage("area.sts", wide));
  EXPECT_EQ(wide.width * wide.height, 4096 * 4096);
}

// ---- Loading by name ------------------------------------------------------

TEST(ImageLoading, TheEndingChoosesDecoderOrScript) {
  World w;
  // A header that claims a picture far too large to allocate.
  std::string huge = PngRow({{1, 2, 3}});
  huge[16] = 0x7f;
  w.Put("huge.png", huge);
  w.Put("sts_named.png", PngRow({{5, 6, 7}}));
  w.Put("png_named.sts", "size rgb 2 1\nclear base\nassign image\nfinish\n");
  AssetManager& am = w.Manager();
  CaptureWarnings warnings;
  for (const auto& [name, pixels] : {std::pair{"sts_named.png", "5,6,7"},
                                     {"STS_NAMED.PNG", "5,6,7"},
                                     {"png_named.sts", "200,100,50 200,100,50"},
                                     {"PNG_NAMED.STS", "200,100,50 200,100,50"}}) {
    wxImage image;
    Bitmap rgb;
    ASSERT_TRUE(am.LoadImage(name, image) && am.LoadImage(name, rgb)) << name;
    EXPECT_EQ(Rgb(image), pixels);
    EXPECT_EQ(Row(rgb, 3), pixels);
  }
  wxBitmap bitmap;
  ASSERT_TRUE(am.LoadBitmap("pic.png", bitmap, 0));
  EXPECT_EQ(Rgb(bitmap), "10,20,30 40,50,60 70,80,90");

  // Refused without a warning: too short, another ending, a missing asset.
  for (const char* name : {"a.png", "pic.Png", "pic.bmp", "none.png", "none.sts", "png"}) {
    wxImage image;
    BitmapA a;
    EXPECT_FALSE(am.LoadImage(name, image) || am.LoadImage(name, a)) << name;
  }
  EXPECT_TRUE(warnings.Warnings().empty());

  // Corrupt pictures are reported and refused.
  for (const char* name : {"bad.png", "huge.png"}) {
    wxImage image;
    BitmapA a;
    EXPECT_FALSE(am.LoadImage(name, image) || am.LoadImage(name, a)) << name;
    EXPECT_FALSE(image.IsOk());
    const std::string message = std::string("Failed because the file was corrupt [") + name + "]";
    EXPECT_TRUE(warnings.Contains(message, message)) << name;
  }
}

TEST(ImageLoading, CachedPicturesAreSharedAndReadOnce) {
  World w;
  AssetManager& am = w.Manager();
  // Each read of an asset ends with its Close.
  auto* picture = new MemoryAsset("counted.png", "", "", "", PngRow({{9, 8, 7}}));
  auto* mask = new MemoryAsset("mask.png", "", "", "", PngRow({{255, 255, 255}}));
  const char* script = "size rgba 1 1\nclear base\nmap mask.png paint\nassign off\nfinish\n";
  auto* set = new MemoryAsset("set.sts", "", "", "", script);
  auto* other = new MemoryAsset("other.sts", "", "", "", script);
  for (Asset* asset : std::initializer_list<Asset*>{picture, mask, set, other}) am.SetAsset(asset);

  const wxImage *first = nullptr, *second = nullptr;
  ASSERT_TRUE(am.LoadImageCached("counted.png", first));
  ASSERT_TRUE(am.LoadImageCached("counted.png", second));
  EXPECT_EQ(first, second);
  EXPECT_EQ(picture->closes, 1);

  const VornBitmapACache *cached = nullptr, *again = nullptr, *otherCached = nullptr;
  ASSERT_TRUE(am.LoadImagesCached("set.sts", cached));
  ASSERT_TRUE(am.LoadImagesCached("set.sts", again));
  ASSERT_TRUE(am.LoadImagesCached("other.sts", otherCached));
  EXPECT_EQ(cached, again);
  EXPECT_NE(cached, otherCached);
  EXPECT_EQ(std::make_pair(set->closes, other->closes), std::make_pair(1, 1));
  EXPECT_EQ(mask->closes, 1);  // the mask both scripts use: decoded once

  // After ClearCaches every request loads again.
  am.ClearCaches();
  ASSERT_TRUE(am.LoadImageCached("counted.png", first));
  ASSERT_TRUE(am.LoadImagesCached("set.sts", cached));
  EXPECT_EQ(std::make_pair(picture->closes, set->closes), std::make_pair(2, 2));
  EXPECT_EQ(Rgb(*first), "9,8,7");

  // A failed load inserts nothing.
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
  VornBitmapCache rgb;
  VornwxImageCache images;
  VornwxBitmapCache bitmaps;
  const VornwxBitmapCache* sheet = nullptr;
  ASSERT_TRUE(am.LoadImages("three.sts", source) && am.LoadImages("three.sts", rgb) &&
              am.LoadImages("three.sts", images) && am.LoadImages("three.sts", bitmaps) &&
              am.LoadImagesCached("three.sts", sheet));
  EXPECT_GE(am.GetWallpaperHolder().NumSheets(), 1);
  EXPECT_EQ(sheet->GetWallpaperInfo().size(), 10u);  // held as sheet entries
  const std::vector<VORNIMAGETYPE> expected = {VIT_OFF, VIT_ON, VIT_ON_DOWN};
  EXPECT_EQ(States(source), expected);
  EXPECT_EQ(States(rgb), expected);
  EXPECT_EQ(States(images), expected);
  EXPECT_EQ(States(bitmaps), expected);
  EXPECT_EQ(States(*sheet), expected);

  for (VORNIMAGETYPE state : expected) {
    SCOPED_TRACE(state);
    const BitmapA* a = nullptr;
    const Bitmap* b = nullptr;
    const wxImage* i = nullptr;
    const wxBitmap *x = nullptr, *y = nullptr;
    ASSERT_TRUE(source.GetImage(state, a) && rgb.GetImage(state, b) && images.GetImage(state, i) &&
                bitmaps.GetImage(state, x) && sheet->GetImage(state, y));  // cut out now
    const std::string want = Row(*a, 3);
    EXPECT_EQ(Row(*b, 3), want);
    EXPECT_EQ(Rgb(*i), want);
    EXPECT_EQ(Rgb(*x), want);
    EXPECT_EQ(y->GetSize(), wxSize(3, 1));
    EXPECT_EQ(Rgb(*y), want);
  }
}

// ---- Edit widgets and list boxes ---------------------------------------------

wxString Css(const wxColour& c) {
  return c.IsOk() ? c.GetAsString(wxC2S_CSS_SYNTAX) : "-";
}

std::string Layout(const VornEditInfo& i) {
  return wxString::Format("%d %d %d %d %s %s %s", i.x, i.y, i.width, i.height, Css(i.colour1),
                          Css(i.colour2), Css(i.background))
      .ToStdString();
}

std::string Layout(const VornListBoxInfo& i) {
  return wxString::Format("%d %d %d %d %s %d %s %s %s", i.textX, i.textY, i.textWidth, i.textHeight,
                          Css(i.textColour), i.expand, Css(i.expandColour1), Css(i.expandColour2),
                          Css(i.expandColour3))
      .ToStdString();
}

TEST(ImageLoading, EditWidgetsAndListBoxesCarryTheirLayout) {
  World w;
  w.Put("field.sts",
        "size rgb 3 1\nclear base\nassign image\nedit 1 2 30 40 half paint plain\nfinish");
  w.Put("noedit.sts", "size rgb 3 1\nclear base\nassign image\nfinish");
  for (const char* piece :
       {"plenth_scroll_off.sts", "plenth_scroll_up.sts", "plenth_scroll_down.sts"})
    w.Put(piece, "size rgb 2 1\nclear paint\nassign image\nfinish\n");
  w.Put("list.lbs",
        "size rgba 3 1\nclear base\nassign on\nassign on_mouse_over\n"
        "lbText 4 5 60 16 half\nlbExpand 120 red blue green\nlbSelDot pic.png\nfinish\n");
  w.Put("notext.lbs", "size rgba 3 1\nclear base\nassign on\nfinish\n");
  AssetManager& am = w.Manager();
  CaptureWarnings warnings;

  const wxBitmap *bitmap = nullptr, *again = nullptr;
  VornEditInfo edit;
  ASSERT_TRUE(am.LoadEditWidgetCached("field.sts", bitmap, edit));
  ASSERT_TRUE(am.LoadEditWidgetCached("field.sts", again, edit));
  EXPECT_EQ(bitmap, again);
  EXPECT_EQ(Rgb(*bitmap), "200,100,50 200,100,50 200,100,50");
  EXPECT_EQ(Layout(edit), "1 2 30 40 rgb(30, 60, 90) rgb(0, 255, 255) -");
  EXPECT_TRUE(edit.font.IsOk());

  VornListBoxInfo list;
  ASSERT_TRUE(am.LoadListBoxCached("list.lbs", list));
  EXPECT_TRUE(warnings.Warnings().empty());
  ASSERT_NE(list.bitmaps, nullptr);
  EXPECT_EQ(States(*list.bitmaps), (std::vector<VORNIMAGETYPE>{VIT_ON, VIT_ON_MOUSE_OVER}));
  EXPECT_EQ(Layout(list),
            "4 5 60 16 rgb(30, 60, 90) 120 rgb(200, 10, 20) rgb(0, 0, 200) rgb(0, 160, 0)");
  ASSERT_TRUE(list.selDot && list.scrollUp && list.scrollOff && list.scrollDown);
  EXPECT_EQ(Rgb(*list.selDot), "10,20,30 40,50,60 70,80,90");
  EXPECT_EQ(Rgb(*list.scrollUp), "0,255,255 0,255,255");
  const wxBitmap* shared = nullptr;
  ASSERT_TRUE(am.LoadImageCached("plenth_scroll_up.sts", shared));
  EXPECT_EQ(shared, list.scrollUp);
  VornListBoxInfo listAgain;
  ASSERT_TRUE(am.LoadListBoxCached("list.lbs", listAgain));
  EXPECT_EQ(listAgain.bitmaps, list.bitmaps);

  // Failures leave the defaults.
  for (const char* name : {"noedit.sts", "none.sts"}) {
    VornEditInfo fallback;
    const wxBitmap* none = &wxNullBitmap;
    EXPECT_FALSE(am.LoadEditWidgetCached(name, none, fallback)) << name;
    EXPECT_EQ(none, nullptr);
    EXPECT_EQ(Layout(fallback), "-1 -1 -1 -1 rgb(0, 0, 100) rgb(255, 0, 255) rgb(0, 100, 0)");
  }
  EXPECT_TRUE(warnings.Contains("Create Edit Widget", "Didn't find any edit widget data"));
  for (const char* name : {"notext.lbs", "none.lbs"}) {
    VornListBoxInfo fallback;
    fallback.selDot = &wxNullBitmap;
    EXPECT_FALSE(am.LoadListBoxCached(name, fallback)) << name;
    EXPECT_EQ(fallback.bitmaps, nullptr);
    EXPECT_EQ(fallback.selDot, nullptr);
    EXPECT_EQ(Layout(fallback),
              "-1 -1 -1 -1 rgb(255, 255, 255) -1 rgb(100, 0, 0) rgb(0, 100, 0) rgb(0, 0, 100)");
  }
  EXPECT_TRUE(warnings.Contains("Create List Box", "Didn't find any text widget data"));

  // Without a bitmap cache, or an edit record, it is a programming error.
  OldVornListBoxInfo old;
  EXPECT_EQ(FiredAssertion([&] { am.LoadListBox("list.lbs", old); }), "info->bitmaps");
  ImageScriptParser parser(&am);
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
  ASSERT_TRUE(am.LoadColourData("colours.txt") && am.LoadFontData("fonts.txt") &&
              am.LoadMessages("messages.txt"));
  EXPECT_EQ(am.GetMessage("Cancel"), "Cancel");

  int scripts = 0;
  for (const auto& entry :
       std::filesystem::directory_iterator(std::string(VORN_SKIN_DIR) + "/Generic")) {
    const std::string name = entry.path().filename().string();
    const std::string ending = entry.path().extension().string();
    const std::string text = ReadFileBytes(entry.path().string());
    if (ending != ".lbs" && ending != ".sts") continue;
    ++scripts;
    VornListBoxInfo list;
    VornEditInfo edit;
    const wxBitmap* bitmap = nullptr;
    const VornwxBitmapCache* cache = nullptr;
    if (ending == ".lbs") {
      EXPECT_TRUE(am.LoadListBoxCached(name.c_str(), list)) << name;
    } else if (text.find("\nedit ") != std::string::npos) {
      EXPECT_TRUE(am.LoadEditWidgetCached(name.c_str(), bitmap, edit)) << name;
    } else if (text.find("assign image") != std::string::npos) {
      EXPECT_TRUE(am.LoadImageCached(name.c_str(), bitmap)) << name;
    } else {  // button families assign all eight states
      ASSERT_TRUE(am.LoadImagesCached(name.c_str(), cache)) << name;
      EXPECT_EQ(States(*cache).size(), 8u) << name;
    }
  }
  EXPECT_GE(scripts, 13);
  for (const auto& w : warnings.Warnings()) ADD_FAILURE() << w.title << ": " << w.text;
  EXPECT_FALSE(debug.Contains("NONFATAL")) << debug.All();
}

}  // namespace
