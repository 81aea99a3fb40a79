#pragma once
// Fakes shared by the asset tests.
#include <string>
#include <utility>
#include <vector>

#include "vorn/Asset.h"
#include "vorn/AssetManager.h"
#include "vorn/FileAsset.h"

// An in-memory asset that counts its destructions and closes.
class MemoryAsset : public Asset {
 public:
  MemoryAsset(std::string n, std::string p, std::string l, std::string s, std::string bytes,
              int* deaths = nullptr)
      : m_bytes(std::move(bytes)), m_deaths(deaths) {
    name = std::move(n);
    platform = std::move(p);
    language = std::move(l);
    subLanguage = std::move(s);
  }
  ~MemoryAsset() override {
    if (m_deaths) ++*m_deaths;
  }
  bool Open() override { return m_open = true; }
  bool Close() override {
    m_open = false;
    ++closes;
    return true;
  }
  unsigned char* GetDataPtr() override {
    return m_open ? reinterpret_cast<unsigned char*>(m_bytes.data()) : nullptr;
  }
  const char* GetTextPtr() override { return m_open ? m_bytes.c_str() : nullptr; }
  int GetSize() override { return m_open ? static_cast<int>(m_bytes.size()) : -1; }
  int closes = 0;

 private:
  std::string m_bytes;
  int* m_deaths;
  bool m_open = false;
};

// A loader that registers given assets and can be told to fail.
class FakeLoader : public AssetLoader {
 public:
  bool failOpen = false;
  bool failLoad = false;
  int loads = 0, closes = 0;
  std::vector<MemoryAsset*> toRegister;  // owned until registered
  ~FakeLoader() override {
    for (MemoryAsset* a : toRegister) delete a;
  }
  bool LoadResources(AssetManager& manager) override {
    ++loads;
    for (MemoryAsset* a : toRegister) manager.SetAsset(a);
    toRegister.clear();
    return !failLoad;
  }
  bool Open() override { return !failOpen; }
  bool Close() override {
    ++closes;
    return true;
  }
};

// The identity of an asset as one string, "platform/language/sub-language".
inline std::string Identity(const Asset* a) {
  return a ? a->platform + "/" + a->language + "/" + a->subLanguage : std::string("(none)");
}

// Registers a FileAssetLoader on root and loads; the result of LoadAssets.
inline bool LoadTree(AssetManager& manager, const std::string& root) {
  auto* loader = new FileAssetLoader;
  loader->Init(root);
  manager.SetAssetLoader(loader);
  return manager.LoadAssets();
}
