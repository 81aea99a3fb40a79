// AssetManager: loaders, the asset index and the best-variant choice, texts,
// menu texts and messages, and the clearing of everything the manager owns.
#include "vorn/AssetManager.h"

#include <algorithm>
#include <cstring>
#include <sstream>

#include "vorn/ArchiveAsset.h"
#include "vorn/FileAsset.h"
#include "vornhost/Debug.h"
#include "vornhost/Utility.h"

namespace {
const char kLoaderWarningTitle[] = "AssetManager Load Error";

const char* Str(const char* s) {
  return s ? s : "";
}

// Who a loader is, for messages.
std::string DescribeLoader(const AssetLoader& loader, std::size_t index) {
  if (const auto* archive = dynamic_cast<const ArchiveAssetLoader*>(&loader))
    return "archive [" + archive->GetPath() + "]";
  if (const auto* files = dynamic_cast<const FileAssetLoader*>(&loader))
    return "directory [" + files->GetRoot() + "]";
  return "asset loader " + std::to_string(index + 1);
}

std::string OpenFailureReason(const AssetLoader& loader) {
  if (const auto* archive = dynamic_cast<const ArchiveAssetLoader*>(&loader))
    if (!archive->GetLastError().empty()) return ": " + archive->GetLastError();
  return std::string();
}

// The seven identities tried in order, most specific first. The stored fields
// are lower-case, so lower-cased settings are compared exactly.
constexpr int kTries = 7;

const std::string& Generic() {
  static const std::string generic = "generic";
  return generic;
}

bool Is(const Asset& a, const std::string& p, const std::string& l, const std::string& s) {
  return a.platform == p && a.language == l && a.subLanguage == s;
}

bool Try(int index, const Asset& a, const std::string& platform, const std::string& language,
         const std::string& subLanguage) {
  static const std::string none;
  switch (index) {
    case 0:
      return Is(a, platform, language, subLanguage);
    case 1:
      return Is(a, Generic(), language, subLanguage);
    case 2:
      return Is(a, platform, language, none);
    case 3:
      return Is(a, Generic(), language, none);
    case 4:
      return Is(a, platform, none, none);
    case 5:
      return Is(a, Generic(), none, none);
    default:
      return Is(a, none, none, none);
  }
}

// The best variant for the lower-cased settings, or null.
Asset* Choose(const std::vector<Asset*>& variants, const std::string& platform,
              const std::string& language, const std::string& subLanguage) {
  for (int t = 0; t < kTries; ++t)
    for (Asset* a : variants)
      if (Try(t, *a, platform, language, subLanguage)) return a;
  return nullptr;
}

// s lower-cased equals lower, without building the lower-cased copy; the
// common case, s as stored or as the host gave it, costs one strcmp.
bool EqualsLowered(const char* s, const std::string& lower, const std::string& given) {
  if (std::strcmp(s, lower.c_str()) == 0 || std::strcmp(s, given.c_str()) == 0) return true;
  std::size_t i = 0;
  for (; s[i]; ++i) {
    char c = s[i];
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    if (i >= lower.size() || c != lower[i]) return false;
  }
  return i == lower.size();
}

// Bytes of an asset text as a wxString: UTF-8, or Latin-1 when the bytes are
// not valid UTF-8, so no text is lost to a failed conversion.
wxString ToWxString(const std::string& text) {
  wxString s = wxString::FromUTF8(text.data(), text.size());
  if (s.empty() && !text.empty()) s = wxString(text.data(), wxConvISO8859_1, text.size());
  return s;
}
}  // namespace

AssetManager::AssetManager() = default;

AssetManager::~AssetManager() {
  Clear();
}

// ---- Loaders and the asset index ------------------------------------------------

bool AssetManager::SetAssetLoader(AssetLoader* loader) {
  VORN_ASSERT(loader != nullptr);
  if (!loader) return false;
  m_loaders.emplace_back(loader);
  return true;
}

bool AssetManager::SetAssetLoader(std::unique_ptr<AssetLoader> loader) {
  return SetAssetLoader(loader.release());
}

bool AssetManager::SetLanguageAndReload(const char* language, const char* subLanguage) {
  SetLanguage(language, subLanguage);
  // Loaders index only the current language's directories: start afresh.
  ClearIndex();
  bool ok = LoadAssets();
  const std::vector<std::string> messageFiles = m_messageFiles;
  ClearMessageDatabase();
  for (const std::string& name : messageFiles) ok = LoadMessages(name.c_str()) && ok;
  if (!m_fontFile.empty()) {
    const std::string name = m_fontFile;
    ClearFontDatabase();
    ok = LoadFontData(name.c_str()) && ok;
  }
  if (!m_colourFile.empty()) {
    const std::string name = m_colourFile;
    ClearColourDatabase();
    ok = LoadColourData(name.c_str()) && ok;
  }
  return ok;
}

void AssetManager::SetPlatform(const char* platform) {
  m_platform = Str(platform);
  m_platformKey = ToLower(m_platform);
  ForgetChoices();
}

void AssetManager::GetPlatform(std::string& out) const {
  out = m_platform;
}

void AssetManager::SetLanguage(const char* language, const char* subLanguage) {
  m_language = ToLower(Str(language));
  m_subLanguage = ToLower(Str(subLanguage));
  ForgetChoices();
}

void AssetManager::GetLanguage(std::string& language, std::string& subLanguage) const {
  language = m_language;
  subLanguage = m_subLanguage;
}

bool AssetManager::LoadAssets() {
  VORN_ASSERT(!m_loaders.empty());
  if (m_loaders.empty()) return false;
  ForgetChoices();
  bool ok = true;
  for (std::size_t i = 0; i < m_loaders.size(); ++i) {
    AssetLoader& loader = *m_loaders[i];
    if (!loader.Open()) {
      WarningMessage(kLoaderWarningTitle,
                     "Cannot open " + DescribeLoader(loader, i) + OpenFailureReason(loader));
      ok = false;
      continue;
    }
    if (!loader.LoadResources(*this)) {
      WarningMessage(kLoaderWarningTitle, "Cannot load the assets of " + DescribeLoader(loader, i));
      ok = false;
    }
  }
  CompactLookup();
  return ok;
}

bool AssetManager::SetAsset(Asset* asset) {
  VORN_ASSERT(asset != nullptr);
  if (!asset) return false;
  std::unique_ptr<Asset> owned(asset);
  auto [entry, added] = m_byName.try_emplace(asset->name);
  if (added) {
    entry->second.variants = static_cast<std::uint32_t>(m_variantLists.size());
    m_variantLists.emplace_back();
  }
  std::vector<Asset*>& variants = m_variantLists[entry->second.variants];
  auto range = m_assets.equal_range(asset->name);
  for (auto it = range.first; it != range.second; ++it) {
    if (it->second->IsEqual(asset->name.c_str(), asset->platform.c_str(), asset->language.c_str(),
                            asset->subLanguage.c_str())) {
      variants.erase(std::find(variants.begin(), variants.end(), it->second.get()));
      m_assets.erase(it);
      break;
    }
  }
  // Placed after every variant already under the name.
  variants.push_back(asset);
  m_assets.emplace_hint(range.second, asset->name, std::move(owned));
  // A memo may point at the asset just deleted, or miss the new one.
  ForgetChoices();
  return true;
}

void AssetManager::ForgetChoices() {
  if (++m_memoGeneration != 0) return;
  // Wrapped round: no memo may look current by accident.
  for (auto& entry : m_byName) entry.second.memo = 0;
  m_memoGeneration = 1;
}

// Loaders register assets one at a time among their other allocations; a
// fresh copy of the name table puts its nodes next to each other, which is
// what keeps lookups over many names quick.
void AssetManager::CompactLookup() {
  std::unordered_map<std::string, NameEntry> compact;
  compact.reserve(m_byName.size());
  for (const auto& entry : m_byName) compact.emplace(entry.first, entry.second);
  m_byName.swap(compact);
}

void AssetManager::ClearIndex() {
  m_byName.clear();
  m_variantLists.clear();
  m_assets.clear();
  ForgetChoices();
}

const AssetManager::NameEntry* AssetManager::FindName(const char* name) const {
  m_lookupKey.assign(Str(name));
  for (char& c : m_lookupKey)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  const auto it = m_byName.find(m_lookupKey);
  return it == m_byName.end() ? nullptr : &it->second;
}

Asset* AssetManager::BestForSettings(const NameEntry& entry) const {
  if (entry.memo != m_memoGeneration) {
    entry.best = Choose(m_variantLists[entry.variants], m_platformKey, m_language, m_subLanguage);
    entry.memo = m_memoGeneration;
  }
  return entry.best;
}

bool AssetManager::GetAsset(const char* name, Asset*& out) const {
  const NameEntry* entry = FindName(name);
  Asset* best = entry ? BestForSettings(*entry) : nullptr;
  if (best) out = best;
  return best != nullptr;
}

bool AssetManager::GetBestAsset(Asset*& out, const char* name, const char* platform,
                                const char* language, const char* subLanguage) const {
  const NameEntry* entry = FindName(name);
  if (!entry) return false;
  Asset* best = nullptr;
  if (EqualsLowered(Str(platform), m_platformKey, m_platform) &&
      EqualsLowered(Str(language), m_language, m_language) &&
      EqualsLowered(Str(subLanguage), m_subLanguage, m_subLanguage))
    best = BestForSettings(*entry);
  else
    best = Choose(m_variantLists[entry->variants], ToLower(Str(platform)), ToLower(Str(language)),
                  ToLower(Str(subLanguage)));
  if (best) out = best;
  return best != nullptr;
}

bool AssetManager::GetAllAssets(const char* name, std::vector<Asset*>& out) const {
  const NameEntry* entry = FindName(name);
  if (!entry) return false;
  for (Asset* a : m_variantLists[entry->variants]) {
    for (int t = 0; t < kTries; ++t) {
      if (Try(t, *a, m_platformKey, m_language, m_subLanguage)) {
        out.push_back(a);
        break;
      }
    }
  }
  return true;
}

bool AssetManager::LoadText(const char* name, std::string& out) {
  Asset* asset = nullptr;
  if (!GetAsset(name, asset)) return false;
  asset->Open();
  // A file that vanished since the scan serves no text.
  const char* text = asset->GetTextPtr();
  if (text) out = text;
  asset->Close();
  return text != nullptr;
}

bool AssetManager::LoadText(const char* name, wxString& out) {
  std::string text;
  if (!LoadText(name, text)) return false;
  out = ToWxString(text);
  return true;
}

bool AssetManager::LoadMenuText(const char* name, std::vector<MENUITEM>& out) {
  std::string text;
  if (!LoadText(name, text)) return false;
  std::istringstream in(text);
  while (in.good()) {
    int32 id = 0;
    in >> id;
    if (!in) break;
    char label[100];
    in.get(label, sizeof label, '\n');
    const std::streamsize got = in.gcount();
    // The first character read is the separator after the number.
    if (got > 1 && !in.fail()) {
      MENUITEM item;
      item.id = id;
      item.text = ToWxString(std::string(label + 1, static_cast<std::size_t>(got - 1)));
      out.push_back(item);
    }
  }
  return true;
}

void AssetManager::CloseAll() {
  for (auto& entry : m_assets) entry.second->Close();
  for (auto& loader : m_loaders) loader->Close();
}

void AssetManager::ClearAssets() {
  // Assets first: archive assets point into their loader's buffer.
  ClearIndex();
  m_loaders.clear();
}

void AssetManager::ClearCaches() {
  for (auto& entry : m_listBoxInfos) {
    if (entry.second.ownsBitmaps) delete entry.second.bitmaps;
    entry.second.bitmaps = nullptr;
  }
  m_listBoxInfos.clear();
  m_editWidgets.clear();
  m_bitmapACaches.clear();
  m_bitmapCaches.clear();
  m_wxBitmapCaches.clear();
  m_wxImageCaches.clear();
  m_bitmapAs.clear();
  m_bitmaps.clear();
  m_wxBitmaps.clear();
  m_wxImages.clear();
  // Last: the sheet-backed caches above refer to the sheets.
  m_wallpaper.ClearAll();
}

void AssetManager::Clear() {
  ClearAssets();
  ClearCaches();
  CloseAll();
  ClearFontDatabase();
  ClearColourDatabase();
}

// ---- Messages -------------------------------------------------------------------

std::string AssetManager::GetMessage(const std::string& key) const {
  const auto it = m_messages.find(key);
  if (it != m_messages.end()) return it->second;
  dprintf("WARNING : Message *%s* not translated\n", key.c_str());
  return key;
}

std::string AssetManager::GetMessage(const char* key) const {
  return GetMessage(std::string(Str(key)));
}

bool AssetManager::SetMessage(const std::string& key, const std::string& text) {
  return m_messages.emplace(key, text).second;
}

void AssetManager::ClearMessageDatabase() {
  m_messages.clear();
}
