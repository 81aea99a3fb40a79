// vornpack: packs an asset tree into a .vrk archive, lists an archive, and
// unpacks one into a tree again.
//
//   vornpack create OUT.vrk ROOT [PLATFORM]
//   vornpack list ARCHIVE
//   vornpack extract ARCHIVE DIR
#include <cstdio>
#include <string>
#include <vector>

#include "vorn/ArchiveWriter.h"

namespace {
int Usage() {
  std::fprintf(stderr,
               "usage: vornpack create OUT.vrk ROOT [PLATFORM]\n"
               "       vornpack list ARCHIVE\n"
               "       vornpack extract ARCHIVE DIR\n");
  return 2;
}

int Failed(const std::string& error) {
  std::fprintf(stderr, "vornpack: %s\n", error.c_str());
  return 1;
}

int Create(const std::string& out, const std::string& root, const std::string& platform) {
  std::vector<VornArchiveEntry> entries;
  std::vector<std::string> ignored;
  std::string error;
  if (!VornCollectAssetTree(root, platform, entries, error, &ignored)) return Failed(error);
  for (const std::string& dir : ignored)
    std::fprintf(stderr, "vornpack: not packed (not an asset directory): %s\n", dir.c_str());
  if (!VornWriteArchive(out, entries, error)) return Failed(error);
  std::printf("%zu assets packed into %s\n", entries.size(), out.c_str());
  return 0;
}

int List(const std::string& archive) {
  std::vector<VornArchiveEntry> entries;
  std::string error;
  if (!VornReadArchive(archive, entries, error)) return Failed(error);
  for (const VornArchiveEntry& e : entries)
    std::printf("%s %s %s %s %zu\n", e.name.c_str(), e.platform.c_str(), e.language.c_str(),
                e.subLanguage.c_str(), e.bytes.size());
  return 0;
}

int Extract(const std::string& archive, const std::string& dir) {
  std::vector<VornArchiveEntry> entries;
  std::string error;
  if (!VornReadArchive(archive, entries, error) || !VornExtractArchive(entries, dir, error))
    return Failed(error);
  std::printf("%zu assets extracted into %s\n", entries.size(), dir.c_str());
  return 0;
}
}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> args(argv + 1, argv + argc);
  if (args.empty()) return Usage();
  const std::string& command = args[0];
  if (command == "create" && (args.size() == 3 || args.size() == 4))
    return Create(args[1], args[2], args.size() == 4 ? args[3] : std::string());
  if (command == "list" && args.size() == 2) return List(args[1]);
  if (command == "extract" && args.size() == 3) return Extract(args[1], args[2]);
  return Usage();
}
