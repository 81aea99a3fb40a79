// A tiny host program built against an installed Vorn.
#include <vorn/Vorn.h>

#include <cstdio>
#include <filesystem>
#include <sstream>

int main() {
  AssetManager manager;
  std::string msg = "hello";
  std::string fr = "bonjour";
  manager.SetMessage(msg, fr);
  std::ostringstream bytes;
  VornOutputStream out(bytes);
  out.Write32(7);
  std::istringstream in(bytes.str());
  VornInputStream reader(in);
  // The installed skin, as the library finds it and as the package names it.
  const std::string skin = VornDefaultSkinDir();
  std::error_code ec;
  const bool skinOk = !skin.empty() && std::filesystem::exists(skin + "Generic/colours.txt") &&
                      std::filesystem::equivalent(skin, VORN_EXPECTED_SKIN_DIR, ec);
  if (!skinOk) std::printf("skin dir '%s', expected '%s'\n", skin.c_str(), VORN_EXPECTED_SKIN_DIR);
  const bool ok = manager.GetMessage("hello") == "bonjour" && reader.Read32() == 7 &&
                  ToLower("ABC") == "abc" && skinOk;
  std::puts(ok ? "consumer ok" : "consumer FAILED");
  return ok ? 0 : 1;
}
