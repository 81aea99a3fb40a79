#include "vorn/Asset.h"

namespace {
char LowerAscii(char c) {
  return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}

// field == ToLower(arg), without building the lower-cased copy: lookups run
// this for every variant they look at.
bool EqualsLowered(const std::string& field, const char* arg) {
  if (!arg) arg = "";
  std::size_t i = 0;
  for (; arg[i] != '\0'; ++i)
    if (i >= field.size() || field[i] != LowerAscii(arg[i])) return false;
  return i == field.size();
}
}  // namespace

Asset::~Asset() = default;

bool Asset::IsEqual(const char* name, const char* platform, const char* language,
                    const char* subLanguage) const {
  return EqualsLowered(this->name, name) && EqualsLowered(this->platform, platform) &&
         EqualsLowered(this->language, language) && EqualsLowered(this->subLanguage, subLanguage);
}

std::string VornNormaliseLineEnds(const unsigned char* data, int size) {
  std::string text;
  if (!data || size <= 0) return text;
  text.reserve(static_cast<std::size_t>(size));
  for (int i = 0; i < size; ++i) {
    const unsigned char c = data[i];
    if (c == '\r') {
      text.push_back('\n');
      if (i + 1 < size && data[i + 1] == '\n') ++i;
    } else {
      text.push_back(static_cast<char>(c));
    }
  }
  return text;
}

AssetLoader::~AssetLoader() = default;
