// PNG decoding of untrusted bytes.
#include <cstdint>

#include "FuzzSupport.h"
#include "vornhost/Bitmap.h"

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  FuzzQuiet();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size > (1u << 24)) return 0;
  BitmapA rgba;
  Bitmap rgb;
  LoadBitmapADecode(data, static_cast<int>(size), rgba);
  LoadBitmapDecode(data, static_cast<int>(size), rgb);
  return 0;
}
