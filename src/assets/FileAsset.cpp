#include "vorn/FileAsset.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <filesystem>

#include "vorn/AssetManager.h"
#include "vornhost/Debug.h"
#include "vornhost/Utility.h"

namespace fs = std::filesystem;

// ---- FileAsset ----------------------------------------------------------------

FileAsset::FileAsset(const char* path) : m_path(path ? path : "") {}

FileAsset::FileAsset(const FileAsset& other)
    : Asset(other),
      m_path(other.m_path),
      m_bOpen(other.m_bOpen),
      m_size(other.m_size),
      m_text(other.m_text),
      m_bTextReady(other.m_bTextReady) {
  if (other.m_pData) {
    const std::size_t n = other.m_size > 0 ? static_cast<std::size_t>(other.m_size) : 0;
    m_pData = std::make_unique<unsigned char[]>(n);
    std::copy(other.m_pData.get(), other.m_pData.get() + n, m_pData.get());
  }
}

FileAsset::~FileAsset() = default;

namespace {
const char kRootWarningTitle[] = "FileAssetLoader Root";
// Reads the whole regular file at path; false on any failure.
bool ReadWholeFile(const std::string& path, std::unique_ptr<unsigned char[]>& data, int& size,
                   const char*& why) {
  const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) {
    why = "cannot open";
    return false;
  }
  struct stat st;
  bool ok = ::fstat(fd, &st) == 0 && S_ISREG(st.st_mode);
  if (!ok) why = "not a regular file";
  if (ok && st.st_size > INT_MAX) {
    why = "too large";
    ok = false;
  }
  if (ok) {
    const std::size_t length = static_cast<std::size_t>(st.st_size);
    auto buffer = std::make_unique<unsigned char[]>(length);
    std::size_t done = 0;
    while (done < length) {
      const ssize_t n = ::read(fd, buffer.get() + done, length - done);
      if (n < 0 && errno == EINTR) continue;
      if (n <= 0) break;
      done += static_cast<std::size_t>(n);
    }
    if (done == length) {
      data = std::move(buffer);
      size = static_cast<int>(length);
    } else {
      why = "read failed";
      ok = false;
    }
  }
  ::close(fd);
  return ok;
}
}  // namespace

bool FileAsset::Open() {
  if (m_bOpen) return true;
  m_pData.reset();
  const char* why = "";
  if (!ReadWholeFile(m_path, m_pData, m_size, why)) {
    m_pData.reset();
    m_size = -1;
    dprintf("NONFATAL ERROR: Cannot read asset file '%s' (%s)\n", m_path.c_str(), why);
    return false;
  }
  m_bOpen = true;
  return true;
}

bool FileAsset::Close() {
  m_pData.reset();
  m_size = -1;
  m_bOpen = false;
  return true;
}

unsigned char* FileAsset::GetDataPtr() {
  return m_bOpen ? m_pData.get() : nullptr;
}

const char* FileAsset::GetTextPtr() {
  if (!m_bOpen) return nullptr;
  if (!m_bTextReady) {
    m_text = VornNormaliseLineEnds(m_pData.get(), m_size);
    m_bTextReady = true;
  }
  return m_text.c_str();
}

int FileAsset::GetSize() {
  return m_size;
}

// ---- FileAssetLoader ----------------------------------------------------------

FileAssetLoader::~FileAssetLoader() = default;

bool FileAssetLoader::Init(const std::string& root) {
  if (root.size() < 2) return false;
  m_root = root;
  // The root is a plain prefix of every path: a directory named without its
  // separator would look for "skinGeneric/..." and find almost nothing.
  std::error_code error;
  if (root.back() != '/' && std::filesystem::is_directory(root, error))
    WarningMessage(kRootWarningTitle, "The asset root \"" + root +
                                          "\" is a directory but does not end with '/': "
                                          "pass \"" + root + "/\" to load the files inside it");
  return true;
}

void FileAssetLoader::SetPlatform(const char* platform) {
  m_platform = platform ? platform : "";
}

void FileAssetLoader::SetLanguage(const char* language, const char* subLanguage) {
  m_language = language ? language : "";
  m_subLanguage = subLanguage ? subLanguage : "";
}

namespace {
// The index key of a file name: lower-cased base name, a dot, lower-cased
// extension (the text after the last dot; none gives a trailing dot).
std::string AssetKey(const std::string& fileName) {
  std::string key = ToLower(fileName);
  if (key.find('.') == std::string::npos) key.push_back('.');
  return key;
}

// Registers every regular, non-hidden file directly inside dir. Hidden files
// are left out, as a files-only wx directory listing leaves them out.
void ScanDirectory(const std::string& dir, const std::string& platform, const std::string& language,
                   const std::string& subLanguage, AssetManager& manager) {
  std::error_code ec;
  if (!fs::is_directory(dir, ec)) return;
  fs::directory_iterator it(dir, ec), end;
  for (; !ec && it != end; it.increment(ec)) {
    std::error_code typeError;
    if (!it->is_regular_file(typeError)) continue;
    std::string fileName = it->path().filename().string();
    if (fileName.empty() || fileName[0] == '.') continue;
    auto asset = std::make_unique<FileAsset>((dir + fileName).c_str());
    asset->name = AssetKey(fileName);
    asset->platform = platform;
    asset->language = language;
    asset->subLanguage = subLanguage;
    manager.SetAsset(asset.release());
  }
}
}  // namespace

bool FileAssetLoader::LoadResources(AssetManager& manager) {
  std::string platform, language, subLanguage;
  manager.GetPlatform(platform);
  manager.GetLanguage(language, subLanguage);
  SetPlatform(platform.c_str());
  SetLanguage(language.c_str(), subLanguage.c_str());

  // Directories are matched as spelled here; the stored fields are lower-case.
  const std::string generic = "Generic";
  const std::string genericField = ToLower(generic);
  const std::string platformField = ToLower(m_platform);
  const std::string languageField = ToLower(m_language);
  const std::string subLanguageField = ToLower(m_subLanguage);
  const std::string& lang = m_language;
  const std::string& sub = m_subLanguage;
  struct Pass {
    std::string dir;
    const std::string& platform;
    const std::string& language;
    const std::string& subLanguage;
  };
  const std::string none;
  const Pass passes[] = {
      {m_root, none, none, none},
      {m_root + generic + "/", genericField, none, none},
      {m_root + m_platform + "/", platformField, none, none},
      {m_root + generic + "/" + lang + "/", genericField, languageField, none},
      {m_root + m_platform + "/" + lang + "/", platformField, languageField, none},
      {m_root + generic + "/" + lang + "/" + sub + "/", genericField, languageField,
       subLanguageField},
      {m_root + m_platform + "/" + lang + "/" + sub + "/", platformField, languageField,
       subLanguageField},
  };
  for (const Pass& pass : passes)
    ScanDirectory(pass.dir, pass.platform, pass.language, pass.subLanguage, manager);
  return true;
}
