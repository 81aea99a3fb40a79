// Archive files are untrusted: any bytes must be refused or read within bounds.
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <string>

#include "FuzzSupport.h"
#include "vorn/ArchiveAsset.h"
#include "vorn/AssetManager.h"

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  FuzzQuiet();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  char path[] = "/tmp/vorn-archive-fuzz-XXXXXX";
  const int fd = mkstemp(path);
  if (fd < 0) return 0;
  if (write(fd, data, size) != static_cast<ssize_t>(size)) {
    close(fd);
    unlink(path);
    return 0;
  }
  close(fd);
  {
    AssetManager manager;
    manager.SetAssetLoader(new ArchiveAssetLoader(path));
    manager.LoadAssets();
    std::vector<Asset*> all;
    unsigned sum = 0;
    for (const char* name : {"icon.png", "a", "b.txt", "x.sts"}) {
      Asset* asset = nullptr;
      if (manager.GetBestAsset(asset, name, "", "", "")) {
        asset->Open();
        const unsigned char* bytes = asset->GetDataPtr();
        for (int i = 0; bytes && i < asset->GetSize(); ++i) sum += bytes[i];
        const char* text = asset->GetTextPtr();
        if (text) sum += static_cast<unsigned char>(text[0]);
      }
    }
    if (sum == 0xdeadbeef) std::puts("");  // keep the reads
  }
  unlink(path);
  return 0;
}
