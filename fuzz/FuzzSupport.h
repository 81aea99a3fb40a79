#pragma once
// Shared pieces of the fuzz targets.
#include <cstddef>
#include <cstdint>
#include <string>

#include "vorn/Asset.h"

// An asset whose bytes live in memory, for feeding fuzz input to the manager.
class MemoryAsset : public Asset {
 public:
  MemoryAsset(const std::string& assetName, std::string bytes) : m_bytes(std::move(bytes)) {
    name = assetName;
  }
  bool Open() override { return true; }
  bool Close() override { return true; }
  unsigned char* GetDataPtr() override {
    return reinterpret_cast<unsigned char*>(m_bytes.data());
  }
  const char* GetTextPtr() override {
    if (!m_ready) {
      m_text = VornNormaliseLineEnds(GetDataPtr(), static_cast<int>(m_bytes.size()));
      m_ready = true;
    }
    return m_text.c_str();
  }
  int GetSize() override { return static_cast<int>(m_bytes.size()); }

 private:
  std::string m_bytes;
  std::string m_text;
  bool m_ready = false;
};

// Starts wxWidgets once (fonts and bitmaps need it); a display is required,
// so the fuzzers and their replays run under Xvfb.
void FuzzStartWx();

// Silences dprintf and WarningMessage: the fuzzers make a lot of both.
void FuzzQuiet();
