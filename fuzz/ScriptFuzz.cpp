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
// A state set keeps up to nine images of the script's size: at the largest
// area the parser allows (64 MiB each) that is more than the fuzzer's memory
// limit, though bounded. Scripts above 1024 x 1024 (a backdrop, not a
// control) run as a single image only.
bool StateSetFits(const std::string& text) {
  std::istringstream in(text);
  std::string word, type;
  long long width = 0, height = 0;
  if (!(in >> word >> type >> width >> height)) return true;
  return width * height <= 1024LL * 1024LL;
}
}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  FuzzQuiet();
  FuzzStartWx();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  AssetManager manager;
  manager.SetAsset(new MemoryAsset("colours.txt", kColours));
  manager.SetAsset(new MemoryAsset("fuzz.sts", text));
  manager.SetAsset(new MemoryAsset("fonts.txt", kFonts));
  manager.SetAsset(new MemoryAsset("m.png", Picture(0)));
  manager.SetAsset(new MemoryAsset("a.png", Picture(1)));
  manager.SetAsset(new MemoryAsset("w.png", Picture(2)));
  for (const char* name :
       {"plenth_scroll_off.sts", "plenth_scroll_up.sts", "plenth_scroll_down.sts"})
    manager.SetAsset(new MemoryAsset(name, kTiny));
  manager.LoadColourData("colours.txt");
  manager.LoadFontData("fonts.txt");
  {
    ImageScriptParser parser(&manager);
    BitmapA image;
    parser.CreateImage(text, image);
  }
  if (!StateSetFits(text)) return 0;
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
  return 0;
}
