#include "vorn/VornInstall.h"

#include <dlfcn.h>

#include <filesystem>

std::string VornDefaultSkinDir() {
  Dl_info info{};
  if (!dladdr(reinterpret_cast<void*>(&VornDefaultSkinDir), &info) || !info.dli_fname)
    return std::string();
  std::error_code error;
  const std::filesystem::path library = std::filesystem::canonical(info.dli_fname, error);
  if (error) return std::string();
  const std::filesystem::path skin =
      (library.parent_path() / VORN_SKIN_FROM_LIBDIR).lexically_normal();
  if (!std::filesystem::is_directory(skin, error)) return std::string();
  std::string dir = skin.string();
  if (dir.back() != '/') dir.push_back('/');
  return dir;
}
