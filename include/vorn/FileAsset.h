#pragma once
// Assets served from a directory tree on disk.
//
// FileAssetLoader reads seven directories below its root, each giving the
// assets in it one identity:
//   root/                                    (no platform, no language)
//   root/Generic/                            generic
//   root/<platform>/                         platform
//   root/Generic/<language>/                 generic, language
//   root/<platform>/<language>/              platform, language
//   root/Generic/<language>/<sub-language>/  generic, language, sub-language
//   root/<platform>/<language>/<sub-language>/
// "Generic" and the platform are matched on disk as spelled (the platform as
// the host gave it), the language and sub-language in lower case; every
// identity field is stored lower-cased. Only regular files are indexed,
// hidden ones (name starting with a dot) left out, and no other
// sub-directory is read. A file's key is its lower-cased base name,
// a dot and its lower-cased extension ("readme." for a file without one).
#include <memory>
#include <string>

#include "vorn/Asset.h"

class FileAsset : public Asset {
 public:
  FileAsset() = default;
  explicit FileAsset(const char* path);
  FileAsset(const FileAsset& other);
  FileAsset& operator=(const FileAsset&) = delete;
  ~FileAsset() override;

  // Reads the whole file. A file that vanished or cannot be read after the
  // scan leaves the asset closed, writes a "NONFATAL ERROR" debug line and
  // gives false.
  bool Open() override;
  // Frees the bytes; the text form built earlier survives.
  bool Close() override;
  unsigned char* GetDataPtr() override;
  // Built on the first call while open, then kept (also across Close).
  const char* GetTextPtr() override;
  int GetSize() override;

  const std::string& GetPath() const { return m_path; }
  bool IsOpen() const { return m_bOpen; }

 private:
  std::string m_path;
  std::unique_ptr<unsigned char[]> m_pData;
  bool m_bOpen = false;
  int m_size = -1;
  std::string m_text;
  bool m_bTextReady = false;
};

class AssetManager;

class FileAssetLoader : public AssetLoader {
 public:
  FileAssetLoader() = default;
  ~FileAssetLoader() override;

  // Takes the platform and language from the manager, then indexes the seven
  // directories; a missing directory is skipped. True when finished.
  bool LoadResources(AssetManager& manager) override;
  bool Open() override { return true; }
  bool Close() override { return true; }

  // root is a plain prefix and must end with a path separator. A root of
  // fewer than two characters is refused (false, nothing changes).
  bool Init(const std::string& root);
  void SetPlatform(const char* platform);
  void SetLanguage(const char* language, const char* subLanguage);

  const std::string& GetRoot() const { return m_root; }

 private:
  std::string m_root;
  std::string m_platform;
  std::string m_language;
  std::string m_subLanguage;
};
