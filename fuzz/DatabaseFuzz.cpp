// Colour, font, message and menu-text files: the first byte picks the
// grammar, the rest is the file.
#include <cstdint>
#include <string>
#include <vector>

#include "FuzzSupport.h"
#include "vorn/AssetManager.h"

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  FuzzQuiet();
  FuzzStartWx();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string text(reinterpret_cast<const char*>(data) + 1, size - 1);
  AssetManager manager;
  manager.SetAsset(new MemoryAsset("file.txt", text));
  switch (data[0] % 4) {
    case 0: {
      manager.LoadColourData("file.txt");
      std::vector<std::string> names;
      manager.GetColourNameList(names);
      for (const auto& n : names) {
        wxColour c;
        manager.GetColour(n, c);
      }
      break;
    }
    case 1:
      manager.LoadFontData("file.txt");
      break;
    case 2:
      manager.LoadMessages("file.txt");
      manager.GetMessage("Hello");
      break;
    default: {
      std::vector<MENUITEM> items;
      manager.LoadMenuText("file.txt", items);
      break;
    }
  }
  return 0;
}
