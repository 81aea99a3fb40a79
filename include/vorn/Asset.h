#pragma once
// A named blob of bytes in one variant (platform, language, sub-language),
// and the abstract source that finds such blobs.
#include <string>

class AssetManager;

class Asset {
 public:
  virtual ~Asset();
  // Brings the blob into memory; true when the asset is (now) open.
  virtual bool Open() = 0;
  // Releases the blob; always true.
  virtual bool Close() = 0;
  // The raw bytes, or null while no blob is held.
  virtual unsigned char* GetDataPtr() = 0;
  // The blob as text with line ends normalised to line feeds (CR LF and a
  // lone CR each become LF), or null while no blob is held.
  virtual const char* GetTextPtr() = 0;
  // Bytes in the blob, or -1 while no blob is held.
  virtual int GetSize() = 0;

  // True when all four identity fields equal the arguments lower-cased.
  bool IsEqual(const char* name, const char* platform, const char* language,
               const char* subLanguage) const;

  // Identity fields, stored lower-cased by the loader that creates the asset.
  std::string name;
  std::string platform;
  std::string language;
  std::string subLanguage;
};

// The text form of a blob: CR LF and lone CR become LF; other bytes are kept.
std::string VornNormaliseLineEnds(const unsigned char* data, int size);

class AssetLoader {
 public:
  virtual ~AssetLoader();
  // Registers one asset per blob found with manager.SetAsset.
  virtual bool LoadResources(AssetManager& manager) = 0;
  virtual bool Open() = 0;
  virtual bool Close() = 0;
};
