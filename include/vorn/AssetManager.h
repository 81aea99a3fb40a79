#pragma once
// The one object through which a host and its controls reach resources:
// loaders and the index of asset variants, the best-variant choice for the
// current platform and language, texts and menu texts, the font, colour and
// message databases, and the per-manager image caches.
#include <wx/bitmap.h>
#include <wx/colour.h>
#include <wx/font.h>
#include <wx/image.h>
#include <wx/string.h>

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "vorn/Asset.h"
#include "vorn/VornImageCache.h"
#include "vornhost/Bitmap.h"
#include "vornhost/Color.h"

// A menu entry: the id reported when chosen, and its label.
struct MENUITEM {
  int id = 0;
  wxString text;
};

// Layout of an edit widget, filled by the "edit" line of its script.
struct VornEditInfo {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  wxColour colour1;
  wxColour colour2;
  wxColour background;  // not set by scripts
  wxFont font = wxNullFont;
};

// Layout record filled by list-box scripts.
struct OldVornListBoxInfo {
  VornwxBitmapCache* bitmaps = nullptr;
  bool ownsBitmaps = false;
  int textX = 0, textY = 0, textWidth = 0, textHeight = 0;
  wxColour textColour;
  int expand = 0;
  const wxBitmap* selDot = nullptr;
  wxColour expandColour1, expandColour2, expandColour3;
  const wxBitmap* scrollOff = nullptr;
  const wxBitmap* scrollUp = nullptr;
  const wxBitmap* scrollDown = nullptr;
};

// The record handed to list boxes; every picture belongs to the manager.
struct VornListBoxInfo {
  const VornwxBitmapCache* bitmaps = nullptr;
  int textX = 0, textY = 0, textWidth = 0, textHeight = 0;
  wxColour textColour;
  int expand = 0;
  const wxBitmap* selDot = nullptr;
  wxColour expandColour1, expandColour2, expandColour3;
  const wxBitmap* scrollOff = nullptr;
  const wxBitmap* scrollUp = nullptr;
  const wxBitmap* scrollDown = nullptr;
};

class AssetManager {
 public:
  // One cached edit widget: its picture and layout.
  struct EDITWIDGET {
    wxBitmap bitmap;
    VornEditInfo info;
  };

  AssetManager();
  AssetManager(const AssetManager&) = delete;
  AssetManager& operator=(const AssetManager&) = delete;
  virtual ~AssetManager();

  // ---- Loaders and the asset index --------------------------------------
  // Takes ownership of the loader; later loaders override earlier ones.
  bool SetAssetLoader(AssetLoader* loader);
  // The same for an owning pointer, as GetArchiveAssetLoaders hands them out.
  bool SetAssetLoader(std::unique_ptr<AssetLoader> loader);
  void SetPlatform(const char* platform);
  void GetPlatform(std::string& out) const;
  void SetLanguage(const char* language, const char* subLanguage);
  void GetLanguage(std::string& language, std::string& subLanguage) const;
  // Opens every loader and lets it register its assets. A loader whose Open
  // or LoadResources fails is reported through WarningMessage and skipped;
  // the others still load and the result is false. No loader at all is a
  // programming error (assertion).
  bool LoadAssets();
  // Takes ownership; replaces (and deletes) an asset of the same identity.
  bool SetAsset(Asset* asset);
  bool GetAsset(const char* name, Asset*& out) const;
  bool GetBestAsset(Asset*& out, const char* name, const char* platform, const char* language,
                    const char* subLanguage) const;
  bool GetAllAssets(const char* name, std::vector<Asset*>& out) const;
  bool LoadText(const char* name, std::string& out);
  bool LoadText(const char* name, wxString& out);
  bool LoadMenuText(const char* name, std::vector<MENUITEM>& out);
  // Switches the language at run time in one call: sets it, re-indexes the
  // assets through the same loaders, empties the message table and reloads
  // the message files, the font database and the colour database this
  // manager loaded last (in their original order). False when any step
  // failed; the others still ran.
  //
  // Cached images are kept, so live controls that draw from them stay
  // valid. Texts a control was given at creation (labels) do not change by
  // themselves: rebuild or relabel such controls after the call. A host whose
  // image assets have language variants must call ClearCaches and rebuild
  // every control instead: ClearCaches deletes every cached image and image
  // set, and a control still drawing from one would read freed memory.
  bool SetLanguageAndReload(const char* language, const char* subLanguage);
  void CloseAll();
  void ClearAssets();
  void ClearCaches();
  void Clear();
  void SetSpecialInfo(void* info) { m_pSpecialInfo = info; }
  void* GetSpecialInfo() const { return m_pSpecialInfo; }
  // Number of variants in the index (all names).
  std::size_t GetNumAssets() const { return m_assets.size(); }

  // ---- Messages ------------------------------------------------------------
  std::string GetMessage(const std::string& key) const;
  std::string GetMessage(const char* key) const;
  bool SetMessage(const std::string& key, const std::string& text);
  // Reads a message file; false (with a WarningMessage) when the asset is
  // missing. A duplicate key keeps the first translation and is reported
  // through dprintf.
  bool LoadMessages(const char* name);
  void ClearMessageDatabase();

  // ---- Fonts ---------------------------------------------------------------
  // False (with a WarningMessage) for a missing asset; a faulty line is
  // reported, skipped, and makes the result false.
  bool LoadFontData(const char* name);
  bool SetFont(const std::string& name, const wxFont& font);
  // An unknown name gives the default GUI font, a "NONFATAL ERROR" debug line
  // and false.
  bool GetFont(const std::string& name, wxFont& out) const;
  void GetFontNameList(std::vector<std::string>& out) const;
  void ClearFontDatabase();

  // ---- Colours -------------------------------------------------------------
  // As LoadFontData.
  bool LoadColourData(const char* name);
  bool SetColour(const std::string& name, int r, int g, int b, int a);
  // An unknown name sets out to the default "funny red" and returns false.
  bool GetColour(const std::string& name, Color& out) const;
  bool GetColour(const std::string& name, ColorA& out) const;
  bool GetColour(const std::string& name, wxColour& out) const;
  void GetColourNameList(std::vector<std::string>& out) const;
  void ClearColourDatabase();

  // ---- Images --------------------------------------------------------------
  // Names must have at least five characters and end in "png"/"PNG" (picture)
  // or "sts"/"STS" (image script); anything else is refused with false.
  bool LoadImage(const char* name, wxImage& out);
  bool LoadImage(const char* name, BitmapA& out);
  bool LoadImage(const char* name, Bitmap& out);
  bool LoadImage(const char* name, wxBitmap& out);
  bool LoadBitmap(const char* name, wxBitmap& out);
  bool LoadBitmap(const char* name, wxBitmap& out, long ignored);
  bool LoadImageDirect(const char* name, wxImage& out);
  bool LoadImageDirect(const char* name, BitmapA& out);
  bool LoadImageDirect(const char* name, Bitmap& out);
  bool LoadImageFromScript(const char* name, wxImage& out);
  bool LoadImageFromScript(const char* name, BitmapA& out);
  bool LoadImageFromScript(const char* name, Bitmap& out);
  bool LoadImages(const char* name, VornBitmapACache& cache);
  bool LoadImages(const char* name, VornBitmapCache& cache);
  bool LoadImages(const char* name, VornwxImageCache& cache);
  bool LoadImages(const char* name, VornwxBitmapCache& cache);
  bool LoadImagesFromScript(const std::string& text, VornBitmapACache& cache);

  // Shared, loaded once per name; valid until ClearCaches or destruction.
  bool LoadImageCached(const char* name, const Bitmap*& out);
  bool LoadImageCached(const char* name, const wxBitmap*& out);
  bool LoadImageCached(const char* name, const wxImage*& out);
  bool LoadImageCached(const char* name, const BitmapA*& out);
  bool LoadImagesCached(const char* name, const VornBitmapCache*& out);
  bool LoadImagesCached(const char* name, const VornBitmapACache*& out);
  bool LoadImagesCached(const char* name, const VornwxBitmapCache*& out);
  bool LoadImagesCached(const char* name, const VornwxImageCache*& out);

  bool LoadEditWidget(const char* name, wxBitmap& bitmap, VornEditInfo& info);
  bool LoadEditWidgetCached(const char* name, const wxBitmap*& bitmap, VornEditInfo& info);
  bool LoadListBox(const char* name, OldVornListBoxInfo& info);
  bool LoadListBoxCached(const char* name, VornListBoxInfo& info);

  WallpaperBitmapHolder& GetWallpaperHolder() { return m_wallpaper; }

 private:
  std::string m_platform;
  std::string m_language;
  std::string m_subLanguage;
  std::multimap<std::string, std::unique_ptr<Asset>> m_assets;
  std::vector<std::unique_ptr<AssetLoader>> m_loaders;
  // Lookup side of the index: per name, its variants in registration order
  // (m_variantLists[variants]) and the variant last chosen for the current
  // settings, valid while memo equals m_memoGeneration. Anything that changes
  // the settings or the index moves the generation on. Kept small so that a
  // lookup touches one node.
  struct NameEntry {
    mutable Asset* best = nullptr;
    mutable std::uint32_t memo = 0;
    std::uint32_t variants = 0;
  };
  std::unordered_map<std::string, NameEntry> m_byName;
  std::vector<std::vector<Asset*>> m_variantLists;
  std::uint32_t m_memoGeneration = 1;
  std::string m_platformKey;        // m_platform lower-cased
  mutable std::string m_lookupKey;  // reused so lookups do not allocate
  void ForgetChoices();
  void ClearIndex();
  void CompactLookup();
  const NameEntry* FindName(const char* name) const;
  Asset* BestForSettings(const NameEntry& entry) const;
  void* m_pSpecialInfo = nullptr;
  std::map<std::string, ColorA> m_colours;
  std::map<std::string, wxFont> m_fonts;
  std::map<std::string, std::string> m_messages;
  // What the databases were last loaded from, for SetLanguageAndReload.
  std::vector<std::string> m_messageFiles;
  std::string m_fontFile;
  std::string m_colourFile;
  WallpaperBitmapHolder m_wallpaper;
  std::map<std::string, std::unique_ptr<VornBitmapACache>> m_bitmapACaches;
  std::map<std::string, std::unique_ptr<VornBitmapCache>> m_bitmapCaches;
  std::map<std::string, std::unique_ptr<VornwxBitmapCache>> m_wxBitmapCaches;
  std::map<std::string, std::unique_ptr<VornwxImageCache>> m_wxImageCaches;
  std::map<std::string, std::unique_ptr<BitmapA>> m_bitmapAs;
  std::map<std::string, std::unique_ptr<Bitmap>> m_bitmaps;
  std::map<std::string, std::unique_ptr<wxBitmap>> m_wxBitmaps;
  std::map<std::string, std::unique_ptr<wxImage>> m_wxImages;
  std::map<std::string, OldVornListBoxInfo> m_listBoxInfos;  // owns bitmaps when ownsBitmaps
  std::map<std::string, EDITWIDGET> m_editWidgets;
};
