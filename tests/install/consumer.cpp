// A tiny host program built against an installed Vorn.
#include <vorn/Vorn.h>

#include <cstdio>
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
  const bool ok = manager.GetMessage("hello") == "bonjour" && reader.Read32() == 7 &&
                  ToLower("ABC") == "abc";
  std::puts(ok ? "consumer ok" : "consumer FAILED");
  return ok ? 0 : 1;
}
