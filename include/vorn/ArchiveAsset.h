#pragma once
// Assets served from packed archive files ("<prefix><number>.vrk").
//
// Layout: a 32-bit length N (VornInputStream::Read32, little-endian) that
// counts the data block from offset 0, the asset bytes at offsets 4..N, then
// the directory as one VornInputStream string. Each directory line holds
//   name platform language sub-language start end
// white-space separated, "NONE" for an empty identity field, and the byte
// range [start, end) counted from the start of the file.
//
// Archives are untrusted: Open refuses a file that is missing, has N below 4
// or beyond the file, or fails a read or seek (false, GetLastError says why);
// a directory line whose range leaves 4..N is skipped with a WarningMessage
// titled "ArchiveAsset Error". Lines without six readable fields (the two
// offsets as plain decimal digits) are skipped silently.
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "vorn/Asset.h"

class ArchiveAsset : public Asset {
 public:
  ArchiveAsset() = default;
  // data points into a buffer the caller keeps alive; not owned.
  ArchiveAsset(unsigned char* data, int size);
  // As above, but the bytes are served only while guard's owner lives: after
  // the loader freed its buffer the data and text pointers are null.
  ArchiveAsset(unsigned char* data, int size, std::weak_ptr<const void> guard);
  ArchiveAsset(const ArchiveAsset& other) = default;
  ArchiveAsset& operator=(const ArchiveAsset&) = delete;
  ~ArchiveAsset() override;

  // The bytes are always in memory: both do nothing and return true.
  bool Open() override;
  bool Close() override;
  unsigned char* GetDataPtr() override;
  // Built on the first call (open or not) and kept.
  const char* GetTextPtr() override;
  int GetSize() override;

 private:
  bool BufferGone() const { return m_bGuarded && m_guard.expired(); }

  std::string m_text;
  bool m_bTextReady = false;
  int m_size = -1;
  unsigned char* m_pData = nullptr;
  std::weak_ptr<const void> m_guard;
  bool m_bGuarded = false;
};

class AssetManager;

class ArchiveAssetLoader : public AssetLoader {
 public:
  // One directory line as written in the archive ("NONE" not yet removed).
  struct Entry {
    std::string_view name;
    std::string_view platform;
    std::string_view language;
    std::string_view subLanguage;
    unsigned char* data;
    int size;
  };

  ArchiveAssetLoader() = default;
  explicit ArchiveAssetLoader(const char* path);
  ~ArchiveAssetLoader() override;

  // Registers one ArchiveAsset per valid directory line; false when the
  // archive is not open.
  bool LoadResources(AssetManager& manager) override;
  // Reads the data block and the directory into memory.
  bool Open() override;
  // Frees the data block; the loader's assets then serve no bytes.
  bool Close() override;

  // Calls visit for every valid directory line of the open archive, in
  // order; false when the archive is not open.
  bool VisitEntries(const std::function<void(const Entry&)>& visit) const;

  const std::string& GetPath() const { return m_path; }
  const std::string& GetDirectory() const { return m_directory; }
  // Why the last Open failed.
  const std::string& GetLastError() const { return m_error; }

  // The archives in directory (a plain prefix ending with a separator) whose
  // names are prefix (any letter case), a number and ".vrk", as new loaders
  // ordered by that number. A missing directory gives none.
  static std::vector<std::unique_ptr<ArchiveAssetLoader>> GetArchiveAssetLoaders(
      std::string directory, std::string prefix);

 private:
  bool Fail(const std::string& why);

  std::string m_path;
  std::string m_directory;
  std::shared_ptr<unsigned char[]> m_pBuffer;
  std::uint32_t m_dataSize = 0;
  std::string m_error;
};
