// Image scripts come from skin designers: any text must give images or error
// images, never a crash or an unbounded allocation.
#include <cstdint>
#include <sstream>
#include <string>

#include "FuzzSupport.h"
#include "vorn/AssetManager.h"
#include "vorn/ImageScriptParser.h"
#include "vornhost/Bitmap.h"

namespace {

const char kColours[] =
    "pink 255 192 203\nred 255 0 0\nblue 0 0 255\npurple 128 0 128\nbrown 150 75 0\n"
    "green 0 255 0\norange 255 165 0\nlightblue 173 216 230\nhalf 10 20 30 128\n";
const char kFonts[] = "f 10 swiss normal normal\n";
const char kTiny[] = "size rgb 2 2\nclear red\nassign image\nfinish\n";

// Masks and pictures the scripts may name, so that map, copy and the list
// box lines get past their loads: a grey ramp and an RGBA picture, both 4 x 4,
// and an 8 x 2 grey one.
std::string Png(int width, int height, bool grey) {
  BitmapA image;
  Create(image, width, height, 3);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) {
      const double v = (x + y * width) / static_cast<double>(width * height);
      Set(image, x, y, grey ? ColorA(v, v, v, 1) : ColorA(v, 1 - v, 0.5, v));
    }
  std::vector<unsigned char> bytes;
  SaveBitmapAEncode(image, bytes);
  return std::string(bytes.begin(), bytes.end());
}

const std::string& Picture(int which) {
  static const std::string pictures[] = {Png(4, 4, true), Png(4, 4, false), Png(8, 2, true)};
  return pictures[which];
}
// Big pictures run the same code as small ones, only slower: a size line
// over 64 x 64 pixels that the parser would accept is skipped, so that the
// fuzzer spends its time on the commands. Sizes the parser refuses (a side
// out of range, an area over 4096 x 4096) still run: the refusal is cheap.
bool Cheap(const std::string& text) {
  std::istringstream line(text.substr(0, text.find('\n')));
  std::string word, type;
  long long width = 0, height = 0;
  if (!(line >> word >> type >> width >> height)) return true;
  const bool refused = width < 1 || height < 1 || width > kMaxBitmapSide ||
                       height > kMaxBitmapSide || width * height > 4096LL * 4096LL;
  return refused || width * height <= 64 * 64;
}

// The colours, fonts and pictures every input may use, loaded once; each
// input only replaces the script and leaves no cached image behind.
AssetManager& Manager() {
  static AssetManager* manager = [] {
    auto* m = new AssetManager;
    m->SetAsset(new MemoryAsset("colours.txt", kColours));
    m->SetAsset(new MemoryAsset("fonts.txt", kFonts));
    m->SetAsset(new MemoryAsset("m.png", Picture(0)));
    m->SetAsset(new MemoryAsset("a.png", Picture(1)));
    m->SetAsset(new MemoryAsset("w.png", Picture(2)));
    for (const char* name :
         {"plenth_scroll_off.sts", "plenth_scroll_up.sts", "plenth_scroll_down.sts"})
      m->SetAsset(new MemoryAsset(name, kTiny));
    m->LoadColourData("colours.txt");
    m->LoadFontData("fonts.txt");
    return m;
  }();
  return *manager;
}
}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  FuzzQuiet();
  FuzzStartWx();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  if (!Cheap(text)) return 0;
  AssetManager& manager = Manager();
  manager.SetAsset(new MemoryAsset("fuzz.sts", text));
  {
    ImageScriptParser parser(&manager);
    BitmapA image;
    parser.CreateImage(text, image);
  }
  {
    ImageScriptParser parser(&manager);
    VornBitmapACache cache;
    parser.CreateImageCache(text, cache);
  }
  {
    ImageScriptParser parser(&manager);
    BitmapA image;
    VornEditInfo info;
    parser.CreateEditWidget(text, image, &info);
  }
  {
    ImageScriptParser parser(&manager);
    OldVornListBoxInfo info;
    VornwxBitmapCache bitmaps;
    info.bitmaps = &bitmaps;
    parser.CreateListBox(text, &info);
  }
  manager.ClearCaches();
  return 0;
}
