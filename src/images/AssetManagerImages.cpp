// The image side of the asset manager: pictures decoded from PNG assets or
// built by image scripts, state sets, edit widgets and list-box layouts, and
// the per-manager caches that make every request after the first one free.
#include <wx/image.h>
#include <wx/log.h>
#include <wx/mstream.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "vorn/AssetManager.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/ImageScriptParser.h"
#include "vornhost/Debug.h"
#include "vornhost/Utility.h"

namespace {

enum class PictureKind { kRefused, kPicture, kScript };

// Chosen by the last three characters; names shorter than five characters
// are refused.
PictureKind KindOf(const char* name) {
  if (!name) return PictureKind::kRefused;
  const std::size_t n = std::strlen(name);
  if (n < 5) return PictureKind::kRefused;
  const char* end = name + n - 3;
  if (std::strcmp(end, "png") == 0 || std::strcmp(end, "PNG") == 0) return PictureKind::kPicture;
  if (std::strcmp(end, "sts") == 0 || std::strcmp(end, "STS") == 0) return PictureKind::kScript;
  return PictureKind::kRefused;
}

// Width and height from a PNG header, so that a picture claiming a huge size
// is refused before anything is allocated for it. False when the bytes do not
// start like a PNG file.
bool PngHeaderSize(const unsigned char* data, int size, long& width, long& height) {
  static const unsigned char kSignature[8] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n'};
  if (!data || size < 24 || std::memcmp(data, kSignature, 8) != 0 ||
      std::memcmp(data + 12, "IHDR", 4) != 0)
    return false;
  auto be32 = [data](int at) {
    return (static_cast<long>(data[at]) << 24) | (static_cast<long>(data[at + 1]) << 16) |
           (static_cast<long>(data[at + 2]) << 8) | static_cast<long>(data[at + 3]);
  };
  width = be32(16);
  height = be32(20);
  return true;
}

void ReportCorrupt(const char* name) {
  const std::string message = std::string("Failed because the file was corrupt [") + name + "]";
  WarningMessage(message, message);
}

// Scripts may name other scripts as pictures; these guard against a script
// that reaches itself, directly or through others, and against runaway
// nesting.
constexpr std::size_t kMaxScriptNesting = 32;
std::vector<std::pair<const AssetManager*, std::string>>& ScriptsInProgress() {
  static std::vector<std::pair<const AssetManager*, std::string>> running;
  return running;
}

class ScriptGuard {
 public:
  ScriptGuard(const AssetManager* manager, const char* name) {
    auto& running = ScriptsInProgress();
    const std::pair<const AssetManager*, std::string> key(manager, ToLower(name));
    if (std::find(running.begin(), running.end(), key) != running.end()) {
      WarningMessage("Image Script Parser",
                     std::string("Script [") + name + "] uses itself as a picture");
      return;
    }
    if (running.size() >= kMaxScriptNesting) {
      WarningMessage("Image Script Parser",
                     std::string("Scripts nested too deeply at [") + name + "]");
      return;
    }
    running.push_back(key);
    m_bEntered = true;
  }
  ~ScriptGuard() {
    if (m_bEntered) ScriptsInProgress().pop_back();
  }
  ScriptGuard(const ScriptGuard&) = delete;
  ScriptGuard& operator=(const ScriptGuard&) = delete;
  bool Entered() const { return m_bEntered; }

 private:
  bool m_bEntered = false;
};

// Runs a script that ends in "assign image".
bool RunImageScript(AssetManager& manager, const char* name, BitmapA& image) {
  ScriptGuard guard(&manager, name);
  if (!guard.Entered()) return false;
  std::string text;
  if (!manager.LoadText(name, text)) return false;
  ImageScriptParser parser(&manager);
  return parser.CreateImage(text, image) && !image.IsEmpty();
}

bool ToBitmap(wxBitmap& out, const wxImage& image) {
  if (!image.IsOk()) return false;
  out = wxBitmap(image);
  return out.IsOk();
}

// One state image of a script-built set in another image type; null when the
// conversion fails.
std::unique_ptr<Bitmap> Converted(const BitmapA& image, const Bitmap*) {
  auto out = std::make_unique<Bitmap>();
  if (!ConvertTo(*out, image)) out.reset();
  return out;
}
std::unique_ptr<wxImage> Converted(const BitmapA& image, const wxImage*) {
  auto out = std::make_unique<wxImage>();
  if (!ConvertTo(*out, image)) out.reset();
  return out;
}
std::unique_ptr<wxBitmap> Converted(const BitmapA& image, const wxBitmap*) {
  wxImage converted;
  auto out = std::make_unique<wxBitmap>();
  if (!ConvertTo(converted, image) || !ToBitmap(*out, converted)) out.reset();
  return out;
}

// A state set built as BitmapA images, then converted state by state.
template <class T>
bool LoadConvertedStates(AssetManager& manager, const char* name, VornImageCache<T>& dst) {
  VornBitmapACache source;
  if (!manager.LoadImages(name, source)) return false;
  dst.Clear();
  std::vector<VORNIMAGETYPE> states;
  source.GetStates(states);
  for (VORNIMAGETYPE state : states) {
    const BitmapA* image = nullptr;
    if (!source.GetImage(state, image)) continue;
    std::unique_ptr<T> converted = Converted(*image, static_cast<const T*>(nullptr));
    if (!converted) return false;
    dst.AssignImageOwn(state, converted.release());
  }
  return true;
}

// A picture by the ending of its name.
template <class T>
bool LoadByKind(AssetManager& manager, const char* name, T& out) {
  switch (KindOf(name)) {
    case PictureKind::kPicture:
      return manager.LoadImageDirect(name, out);
    case PictureKind::kScript:
      return manager.LoadImageFromScript(name, out);
    default:
      return false;
  }
}

// The shared object for name: found in the map, or loaded and inserted.
template <class T, class Load>
bool LoadShared(std::map<std::string, std::unique_ptr<T>>& map, const char* name, const T*& out,
                Load load) {
  out = nullptr;
  if (!name) return false;
  auto found = map.find(name);
  if (found != map.end()) {
    out = found->second.get();
    return true;
  }
  auto object = std::make_unique<T>();
  if (!load(*object)) return false;
  out = map.emplace(name, std::move(object)).first->second.get();
  return true;
}

}  // namespace

// ---- Single pictures ------------------------------------------------------

bool AssetManager::LoadImage(const char* name, wxImage& out) {
  return LoadByKind(*this, name, out);
}

bool AssetManager::LoadImage(const char* name, BitmapA& out) {
  return LoadByKind(*this, name, out);
}

bool AssetManager::LoadImage(const char* name, Bitmap& out) {
  return LoadByKind(*this, name, out);
}

bool AssetManager::LoadImage(const char* name, wxBitmap& out) {
  wxImage image;
  if (!LoadImage(name, image)) return false;
  return ToBitmap(out, image);
}

bool AssetManager::LoadBitmap(const char* name, wxBitmap& out) {
  return LoadImage(name, out);
}

bool AssetManager::LoadBitmap(const char* name, wxBitmap& out, long) {
  return LoadImage(name, out);
}

bool AssetManager::LoadImageDirect(const char* name, wxImage& out) {
  Asset* asset = nullptr;
  if (!name || !GetAsset(name, asset)) return false;
  out = wxImage();
  if (!wxImage::FindHandler(wxBITMAP_TYPE_PNG)) wxImage::AddHandler(new wxPNGHandler);
  asset->Open();
  const unsigned char* data = asset->GetDataPtr();
  const int size = asset->GetSize();
  long width = 0, height = 0;
  bool ok = PngHeaderSize(data, size, width, height) && width <= kMaxBitmapSide &&
            height <= kMaxBitmapSide;
  if (ok) {
    wxLogNull quiet;  // a corrupt file is reported below, not through wx's log
    wxMemoryInputStream stream(data, static_cast<size_t>(size));
    ok = out.LoadFile(stream, wxBITMAP_TYPE_PNG) && out.IsOk();
  }
  asset->Close();
  if (ok) return true;
  ReportCorrupt(name);
  out.Destroy();
  return false;
}

bool AssetManager::LoadImageDirect(const char* name, BitmapA& out) {
  Asset* asset = nullptr;
  if (!name || !GetAsset(name, asset)) return false;
  asset->Open();
  const bool ok = LoadBitmapADecode(asset->GetDataPtr(), asset->GetSize(), out);
  asset->Close();
  if (!ok) ReportCorrupt(name);
  return ok;
}

bool AssetManager::LoadImageDirect(const char* name, Bitmap& out) {
  wxImage image;
  if (!LoadImage(name, image)) return false;
  return ConvertTo(out, image);
}

bool AssetManager::LoadImageFromScript(const char* name, wxImage& out) {
  BitmapA image;
  return RunImageScript(*this, name, image) && ConvertTo(out, image);
}

bool AssetManager::LoadImageFromScript(const char* name, BitmapA& out) {
  BitmapA image;
  if (!RunImageScript(*this, name, image)) return false;
  ::Clear(out);
  out = std::move(image);
  return true;
}

bool AssetManager::LoadImageFromScript(const char* name, Bitmap& out) {
  BitmapA image;
  return RunImageScript(*this, name, image) && ConvertTo(out, image);
}

// ---- State sets -------------------------------------------------------------

bool AssetManager::LoadImages(const char* name, VornBitmapACache& cache) {
  std::string text;
  if (!name || !LoadText(name, text)) return false;
  return LoadImagesFromScript(text, cache);
}

bool AssetManager::LoadImagesFromScript(const std::string& text, VornBitmapACache& cache) {
  cache.Clear();
  ImageScriptParser parser(this);
  return parser.CreateImageCache(text, cache);
}

bool AssetManager::LoadImages(const char* name, VornBitmapCache& cache) {
  return LoadConvertedStates(*this, name, cache);
}

bool AssetManager::LoadImages(const char* name, VornwxImageCache& cache) {
  return LoadConvertedStates(*this, name, cache);
}

bool AssetManager::LoadImages(const char* name, VornwxBitmapCache& cache) {
  return LoadConvertedStates(*this, name, cache);
}

// ---- Cached forms -----------------------------------------------------------

bool AssetManager::LoadImageCached(const char* name, const Bitmap*& out) {
  return LoadShared(m_bitmaps, name, out, [&](Bitmap& b) { return LoadImage(name, b); });
}

bool AssetManager::LoadImageCached(const char* name, const wxBitmap*& out) {
  return LoadShared(m_wxBitmaps, name, out, [&](wxBitmap& b) { return LoadImage(name, b); });
}

bool AssetManager::LoadImageCached(const char* name, const wxImage*& out) {
  return LoadShared(m_wxImages, name, out, [&](wxImage& i) { return LoadImage(name, i); });
}

bool AssetManager::LoadImageCached(const char* name, const BitmapA*& out) {
  return LoadShared(m_bitmapAs, name, out, [&](BitmapA& b) { return LoadImage(name, b); });
}

bool AssetManager::LoadImagesCached(const char* name, const VornBitmapCache*& out) {
  return LoadShared(m_bitmapCaches, name, out,
                    [&](VornBitmapCache& c) { return LoadImages(name, c); });
}

bool AssetManager::LoadImagesCached(const char* name, const VornBitmapACache*& out) {
  return LoadShared(m_bitmapACaches, name, out,
                    [&](VornBitmapACache& c) { return LoadImages(name, c); });
}

bool AssetManager::LoadImagesCached(const char* name, const VornwxImageCache*& out) {
  return LoadShared(m_wxImageCaches, name, out,
                    [&](VornwxImageCache& c) { return LoadImages(name, c); });
}

bool AssetManager::LoadImagesCached(const char* name, const VornwxBitmapCache*& out) {
  return LoadShared(m_wxBitmapCaches, name, out, [&](VornwxBitmapCache& c) {
    if (!LoadImages(name, c)) return false;
    // The images move into the shared sheets; the cache then cuts each state
    // out of its sheet when it is first drawn.
    m_wallpaper.AddImageCache(name, c);
    c.Clear();
    return m_wallpaper.GetImageCache(name, c);
  });
}

// ---- Edit widgets and list boxes ---------------------------------------------

bool AssetManager::LoadEditWidget(const char* name, wxBitmap& bitmap, VornEditInfo& info) {
  std::string text;
  if (!name || !LoadText(name, text)) return false;
  BitmapA image;
  ImageScriptParser parser(this);
  const bool ok = parser.CreateEditWidget(text, image, &info);
  wxImage converted;
  if (!image.IsEmpty() && ConvertTo(converted, image)) ToBitmap(bitmap, converted);
  return ok;
}

bool AssetManager::LoadEditWidgetCached(const char* name, const wxBitmap*& bitmap,
                                        VornEditInfo& info) {
  auto found = name ? m_editWidgets.find(name) : m_editWidgets.end();
  if (found == m_editWidgets.end()) {
    EDITWIDGET widget;
    if (!name || !LoadEditWidget(name, widget.bitmap, widget.info) || !widget.bitmap.IsOk()) {
      info.x = info.y = info.width = info.height = -1;
      info.colour1 = wxColour(0, 0, 100);
      info.colour2 = wxColour(255, 0, 255);
      info.background = wxColour(0, 100, 0);
      bitmap = nullptr;
      return false;
    }
    found = m_editWidgets.emplace(name, std::move(widget)).first;
  }
  const VornEditInfo& cached = found->second.info;
  bitmap = &found->second.bitmap;
  info.x = cached.x;
  info.y = cached.y;
  info.width = cached.width;
  info.height = cached.height;
  info.colour1 = cached.colour1;
  info.colour2 = cached.colour2;
  info.background = cached.background;
  info.font = cached.font;
  return true;
}

bool AssetManager::LoadListBox(const char* name, OldVornListBoxInfo& info) {
  std::string text;
  if (!name || !LoadText(name, text)) return false;
  ImageScriptParser parser(this);
  return parser.CreateListBox(text, &info);
}

bool AssetManager::LoadListBoxCached(const char* name, VornListBoxInfo& info) {
  auto found = name ? m_listBoxInfos.find(name) : m_listBoxInfos.end();
  if (found == m_listBoxInfos.end()) {
    auto bitmaps = std::make_unique<VornwxBitmapCache>();
    OldVornListBoxInfo record;
    record.bitmaps = bitmaps.get();
    record.ownsBitmaps = true;
    if (!name || !LoadListBox(name, record)) {
      info.bitmaps = nullptr;
      info.textX = info.textY = info.textWidth = info.textHeight = -1;
      info.textColour = wxColour(255, 255, 255);
      info.expand = -1;
      info.selDot = nullptr;
      info.expandColour1 = wxColour(100, 0, 0);
      info.expandColour2 = wxColour(0, 100, 0);
      info.expandColour3 = wxColour(0, 0, 100);
      info.scrollOff = info.scrollUp = info.scrollDown = nullptr;
      return false;
    }
    bitmaps.release();  // now owned by the record, deleted by ClearCaches
    found = m_listBoxInfos.emplace(name, record).first;
  }
  const OldVornListBoxInfo& cached = found->second;
  info.bitmaps = cached.bitmaps;
  info.textX = cached.textX;
  info.textY = cached.textY;
  info.textWidth = cached.textWidth;
  info.textHeight = cached.textHeight;
  info.textColour = cached.textColour;
  info.expand = cached.expand;
  info.selDot = cached.selDot;
  info.expandColour1 = cached.expandColour1;
  info.expandColour2 = cached.expandColour2;
  info.expandColour3 = cached.expandColour3;
  info.scrollOff = cached.scrollOff;
  info.scrollUp = cached.scrollUp;
  info.scrollDown = cached.scrollDown;
  return true;
}
