// Image scripts come from skin designers: any text must give images or error
// images, never a crash or an unbounded allocation.
#include <cstdint>
#include <string>

#include "FuzzSupport.h"
#include "vorn/AssetManager.h"
#include "vorn/ImageScriptParser.h"

namespace {
const char kColours[] =
    "pink 255 192 203\nred 255 0 0\nblue 0 0 255\npurple 128 0 128\nbrown 150 75 0\n"
    "green 0 255 0\norange 255 165 0\nlightblue 173 216 230\nhalf 10 20 30 128\n";
}

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
  manager.LoadColourData("colours.txt");
  {
    ImageScriptParser parser(&manager);
    VornBitmapACache cache;
    parser.CreateImageCache(text, cache);
  }
  {
    ImageScriptParser parser(&manager);
    BitmapA image;
    parser.CreateImage(text, image);
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
