#include "vorn/ArchiveAsset.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <filesystem>
#include <fstream>
#include <new>

#include "vorn/AssetManager.h"
#include "vornhost/Debug.h"
#include "vornhost/Utility.h"
#include "vornhost/VornInputStream.h"

namespace fs = std::filesystem;

namespace {
const char kArchiveWarningTitle[] = "ArchiveAsset Error";
const char kExtension[] = ".vrk";
constexpr std::size_t kExtensionLength = sizeof(kExtension) - 1;
}  // namespace

// ---- ArchiveAsset ---------------------------------------------------------------

ArchiveAsset::ArchiveAsset(unsigned char* data, int size) : m_size(size), m_pData(data) {}

ArchiveAsset::ArchiveAsset(unsigned char* data, int size, std::weak_ptr<const void> guard)
    : m_size(size), m_pData(data), m_guard(std::move(guard)), m_bGuarded(true) {}

ArchiveAsset::~ArchiveAsset() = default;

bool ArchiveAsset::Open() {
  return true;
}

bool ArchiveAsset::Close() {
  return true;
}

unsigned char* ArchiveAsset::GetDataPtr() {
  return BufferGone() ? nullptr : m_pData;
}

const char* ArchiveAsset::GetTextPtr() {
  if (!m_bTextReady) {
    if (BufferGone()) return nullptr;
    m_text = VornNormaliseLineEnds(m_pData, m_size);
    m_bTextReady = true;
  }
  return m_text.c_str();
}

int ArchiveAsset::GetSize() {
  return m_size;
}

// ---- ArchiveAssetLoader ---------------------------------------------------------

ArchiveAssetLoader::ArchiveAssetLoader(const char* path) : m_path(path ? path : "") {}

ArchiveAssetLoader::~ArchiveAssetLoader() = default;

bool ArchiveAssetLoader::Fail(const std::string& why) {
  m_error = why;
  m_directory.clear();
  m_pBuffer.reset();
  m_dataSize = 0;
  return false;
}

bool ArchiveAssetLoader::Open() {
  m_error.clear();
  if (m_path.empty()) return Fail("no archive path");
  dprintf("%s\n", m_path.c_str());

  std::ifstream file(m_path, std::ios::binary);
  if (!file) return Fail("cannot open the file");
  file.seekg(0, std::ios::end);
  const std::streamoff fileSize = file.tellg();
  file.seekg(0, std::ios::beg);
  if (fileSize < 0 || !file) return Fail("cannot seek in the file");

  VornInputStream in(file);
  const std::uint32_t n = in.Read32();
  if (!in.good()) return Fail("cannot read the data length");
  if (n < 4) return Fail("data length " + std::to_string(n) + " is below 4");
  if (static_cast<std::streamoff>(n) > fileSize)
    return Fail("data length " + std::to_string(n) + " is beyond the end of the file (" +
                std::to_string(fileSize) + " bytes)");

  file.seekg(static_cast<std::streamoff>(n), std::ios::beg);
  if (!file) return Fail("cannot seek to the directory");
  std::string directory;
  in >> directory;
  if (!in.good()) return Fail("cannot read the directory");

  file.seekg(0, std::ios::beg);
  if (!file) return Fail("cannot seek to the data block");
  std::shared_ptr<unsigned char[]> buffer(new (std::nothrow) unsigned char[n]);
  if (!buffer) return Fail("cannot allocate " + std::to_string(n) + " bytes");
  if (!file.read(reinterpret_cast<char*>(buffer.get()), static_cast<std::streamsize>(n)))
    return Fail("cannot read the data block");

  m_directory = std::move(directory);
  m_pBuffer = std::move(buffer);
  m_dataSize = n;
  return true;
}

bool ArchiveAssetLoader::Close() {
  m_pBuffer.reset();
  m_dataSize = 0;
  return true;
}

namespace {
bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\v' || c == '\f';
}

// Splits off the next white-space separated word of line, from pos on.
bool NextWord(std::string_view line, std::size_t& pos, std::string_view& word) {
  while (pos < line.size() && IsBlank(line[pos])) ++pos;
  const std::size_t start = pos;
  while (pos < line.size() && !IsBlank(line[pos])) ++pos;
  word = line.substr(start, pos - start);
  return !word.empty();
}

// A decimal integer filling the whole word; an overflow reads as the largest
// value, so the range check refuses it.
bool ParseOffset(std::string_view word, long long& out) {
  const char* first = word.data();
  const char* last = word.data() + word.size();
  const auto result = std::from_chars(first, last, out);
  if (result.ec == std::errc::result_out_of_range && result.ptr == last) {
    out = word[0] == '-' ? LLONG_MIN : LLONG_MAX;
    return true;
  }
  return result.ec == std::errc() && result.ptr == last;
}
}  // namespace

bool ArchiveAssetLoader::VisitEntries(const std::function<void(const Entry&)>& visit) const {
  if (!m_pBuffer) return false;
  const std::string_view directory(m_directory);
  std::size_t lineStart = 0;
  int lineNumber = 0;
  while (lineStart < directory.size()) {
    std::size_t lineEnd = directory.find('\n', lineStart);
    if (lineEnd == std::string_view::npos) lineEnd = directory.size();
    const std::string_view line = directory.substr(lineStart, lineEnd - lineStart);
    lineStart = lineEnd + 1;
    ++lineNumber;

    Entry entry{};
    std::string_view startWord, endWord;
    std::size_t pos = 0;
    long long start = 0, end = 0;
    if (!NextWord(line, pos, entry.name) || !NextWord(line, pos, entry.platform) ||
        !NextWord(line, pos, entry.language) || !NextWord(line, pos, entry.subLanguage) ||
        !NextWord(line, pos, startWord) || !NextWord(line, pos, endWord) ||
        !ParseOffset(startWord, start) || !ParseOffset(endWord, end))
      continue;
    if (start < 4 || end < start || end > static_cast<long long>(m_dataSize) ||
        end - start > INT_MAX) {
      WarningMessage(kArchiveWarningTitle, "Entry [" + std::string(entry.name) + "] on line " +
                                               std::to_string(lineNumber) + " of archive [" +
                                               m_path + "] has range " + std::string(startWord) +
                                               "-" + std::string(endWord) +
                                               " outside the data block 4-" +
                                               std::to_string(m_dataSize) + "; entry skipped");
      continue;
    }
    entry.data = m_pBuffer.get() + start;
    entry.size = static_cast<int>(end - start);
    visit(entry);
  }
  return true;
}

bool ArchiveAssetLoader::LoadResources(AssetManager& manager) {
  const std::weak_ptr<const void> guard = std::shared_ptr<const void>(m_pBuffer);
  const auto field = [](std::string_view value) {
    return value == "NONE" ? std::string() : ToLower(std::string(value));
  };
  return VisitEntries([&](const Entry& entry) {
    auto asset = std::make_unique<ArchiveAsset>(entry.data, entry.size, guard);
    asset->name = ToLower(std::string(entry.name));
    asset->platform = field(entry.platform);
    asset->language = field(entry.language);
    asset->subLanguage = field(entry.subLanguage);
    manager.SetAsset(asset.release());
  });
}

namespace {
bool StartsWithIgnoringCase(const std::string& text, const std::string& prefix) {
  return text.size() >= prefix.size() && ToLower(text.substr(0, prefix.size())) == ToLower(prefix);
}

// The leading decimal digits of text as a number, 0 when there are none.
unsigned long long LeadingNumber(const std::string& text) {
  unsigned long long value = 0;
  for (char c : text) {
    if (c < '0' || c > '9') break;
    const unsigned digit = static_cast<unsigned>(c - '0');
    value = value > (ULLONG_MAX - digit) / 10 ? ULLONG_MAX : value * 10 + digit;
  }
  return value;
}
}  // namespace

std::vector<std::unique_ptr<ArchiveAssetLoader>> ArchiveAssetLoader::GetArchiveAssetLoaders(
    std::string directory, std::string prefix) {
  std::vector<std::unique_ptr<ArchiveAssetLoader>> loaders;
  dprintf("%s\n", directory.c_str());
  // The directory is a plain prefix: the listing reads the directory part and
  // any text after the last separator must start the file name.
  const std::size_t slash = directory.rfind('/');
  if (slash == std::string::npos) {
    dprintf("NONFATAL ERROR: Archive directory '%s' names no directory\n", directory.c_str());
    return loaders;
  }
  const std::string listDir = directory.substr(0, slash + 1);
  const std::string namePattern = directory.substr(slash + 1);
  std::error_code ec;
  if (!fs::is_directory(listDir, ec)) {
    dprintf("NONFATAL ERROR: Archive directory '%s' does not exist\n", listDir.c_str());
    return loaders;
  }

  struct Found {
    unsigned long long number;
    std::string path;
  };
  std::vector<Found> found;
  fs::directory_iterator it(listDir, ec), end;
  for (; !ec && it != end; it.increment(ec)) {
    std::error_code typeError;
    if (!it->is_regular_file(typeError)) continue;
    const std::string fileName = it->path().filename().string();
    if (fileName.empty() || fileName[0] == '.') continue;
    if (fileName.compare(0, namePattern.size(), namePattern) != 0) continue;
    if (fileName.size() <= kExtensionLength ||
        fileName.compare(fileName.size() - kExtensionLength, kExtensionLength, kExtension) != 0 ||
        !StartsWithIgnoringCase(fileName, prefix))
      continue;
    const std::size_t numberEnd = fileName.size() - kExtensionLength;
    const std::string digits =
        prefix.size() < numberEnd ? fileName.substr(prefix.size(), numberEnd - prefix.size()) : "";
    found.push_back({LeadingNumber(digits), listDir + fileName});
  }
  std::stable_sort(found.begin(), found.end(),
                   [](const Found& a, const Found& b) { return a.number < b.number; });
  for (const Found& f : found)
    loaders.push_back(std::make_unique<ArchiveAssetLoader>(f.path.c_str()));
  return loaders;
}
