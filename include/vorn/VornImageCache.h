#pragma once
// Image sets keyed by control state, and the shared sheets that hold the
// wxBitmap sets of many controls.
#include <wx/bitmap.h>
#include <wx/image.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "vorn/VornAssert.h"
#include "vornhost/Bitmap.h"
#include "vornhost/Color.h"

// The ten control image states. The order matters: a cache's first image is
// the one in the lowest-numbered filled state.
enum VORNIMAGETYPE {
  VIT_NONE = 0,
  VIT_SPARE = 1,
  VIT_OFF = 2,
  VIT_ON = 3,
  VIT_ON_MOUSE_OVER = 4,
  VIT_OFF_MOUSE_OVER = 5,
  VIT_DISABLED_ON = 6,
  VIT_DISABLED_OFF = 7,
  VIT_ON_DOWN = 8,
  VIT_OFF_DOWN = 9
};
constexpr int VIT_COUNT = 10;

// The next state to try when a cache has no image for state: down -> mouse
// over -> plain, disabled -> plain, mouse over -> plain, plain -> VIT_NONE.
// VIT_NONE, VIT_SPARE and values outside 0..9 have no successor (assertion).
VORNIMAGETYPE VornNextFallbackState(VORNIMAGETYPE state);

// Script words ("off", "on_mouse_over", ...) for the eight drawable states.
// False for any other word.
bool VornImageStateFromToken(const std::string& word, VORNIMAGETYPE& out);
// The word for a state, or "" for VIT_NONE and VIT_SPARE.
const char* VornImageStateToken(VORNIMAGETYPE state);

template <class T>
class VornImageCache {
 public:
  struct ITEMDATA {
    bool bOwn = false;
    const T* pVal = nullptr;
  };

  VornImageCache() : m_images(VIT_COUNT) {}
  VornImageCache(const VornImageCache&) = delete;
  VornImageCache& operator=(const VornImageCache&) = delete;
  virtual ~VornImageCache() { ClearSlots(); }

  virtual bool GetStates(std::vector<VORNIMAGETYPE>& out) const {
    for (int i = 0; i < VIT_COUNT; ++i)
      if (m_images[i].pVal) out.push_back(static_cast<VORNIMAGETYPE>(i));
    return true;
  }
  virtual bool GetImage(VORNIMAGETYPE state, const T*& out) const {
    out = InRange(state) ? m_images[state].pVal : nullptr;
    return out != nullptr;
  }
  virtual int GetHeight() const {
    const T* first = FirstImage();
    return first ? GetImageHeight(first) : -1;
  }
  virtual int GetWidth() const {
    const T* first = FirstImage();
    return first ? GetImageWidth(first) : -1;
  }
  virtual bool GetSize(int& width, int& height) const {
    width = GetWidth();
    height = GetHeight();
    return width != -1 && height != -1;
  }
  virtual int GetImageWidth(const T* image) const = 0;
  virtual int GetImageHeight(const T* image) const = 0;
  // Stores a borrowed image; the slot must be empty.
  virtual bool AssignImage(VORNIMAGETYPE state, const T* image) {
    return Store(state, image, false);
  }
  // Stores an image the cache now owns; the slot must be empty.
  virtual bool AssignImageOwn(VORNIMAGETYPE state, T* image) { return Store(state, image, true); }
  // Deletes the owned images and empties every slot.
  virtual bool Clear() {
    ClearSlots();
    return true;
  }

 protected:
  static bool InRange(int state) { return state >= 0 && state < VIT_COUNT; }
  const T* FirstImage() const {
    for (const ITEMDATA& item : m_images)
      if (item.pVal) return item.pVal;
    return nullptr;
  }
  bool Store(VORNIMAGETYPE state, const T* image, bool own) const {
    VORN_ASSERT(InRange(state));
    if (!InRange(state)) return false;
    const int index = state;
    VORN_ASSERT_TEXT(m_images[index].bOwn == false, "m_images[index].bOwn == false");
    VORN_ASSERT_TEXT(m_images[index].pVal == nullptr, "m_images[index].pVal == __null");
    m_images[index].bOwn = own && image != nullptr;
    m_images[index].pVal = image;
    return true;
  }
  void ClearSlots() {
    for (ITEMDATA& item : m_images) {
      if (item.bOwn) delete item.pVal;
      item.pVal = nullptr;
      item.bOwn = false;
    }
  }

  // Mutable so that the wallpaper form can keep an image it cut out during a
  // const GetImage.
  mutable std::vector<ITEMDATA> m_images;
};

// Where one image lies inside a shared sheet; bitmap null means no image.
template <class T>
struct WallpaperImageInfo {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  const T* bitmap = nullptr;
};

// A cache whose images may live in shared sheets and are cut out on first use.
template <class T>
class VornWallpaperImageCache : public VornImageCache<T> {
 public:
  ~VornWallpaperImageCache() override = default;

  bool GetStates(std::vector<VORNIMAGETYPE>& out) const override {
    VornImageCache<T>::GetStates(out);
    for (std::size_t i = 0; i < ImageInfoList.size(); ++i)
      if (ImageInfoList[i].bitmap) out.push_back(static_cast<VORNIMAGETYPE>(i));
    std::sort(out.begin(), out.end());
    out.erase(std::unique(out.begin(), out.end()), out.end());
    return true;
  }
  bool GetImage(VORNIMAGETYPE state, const T*& out) const override {
    if (VornImageCache<T>::GetImage(state, out)) return true;
    out = nullptr;
    WallpaperImageInfo<T> info;
    if (ImageInfoList.empty() || !GetImageFromWallpaper(state, info)) return false;
    std::unique_ptr<T> image = MakeImageFromWallpaper(info);
    if (!image) return false;
    T* raw = image.release();
    this->Store(state, raw, true);
    out = raw;
    return true;
  }
  int GetHeight() const override {
    int h = VornImageCache<T>::GetHeight();
    if (h != -1) return h;
    for (const auto& info : ImageInfoList)
      if (info.bitmap) return info.height;
    return -1;
  }
  int GetWidth() const override {
    int w = VornImageCache<T>::GetWidth();
    if (w != -1) return w;
    for (const auto& info : ImageInfoList)
      if (info.bitmap) return info.width;
    return -1;
  }
  bool Clear() override {
    ImageInfoList.clear();
    return VornImageCache<T>::Clear();
  }
  // The rectangle of a state's image: the slot image itself (as its own
  // sheet) or the sheet entry.
  virtual bool GetImageFromWallpaper(VORNIMAGETYPE state, WallpaperImageInfo<T>& info) const {
    const T* slot = nullptr;
    if (VornImageCache<T>::GetImage(state, slot)) {
      info.x = 0;
      info.y = 0;
      info.width = this->GetImageWidth(slot);
      info.height = this->GetImageHeight(slot);
      info.bitmap = slot;
      return true;
    }
    if (this->InRange(state) && static_cast<std::size_t>(state) < ImageInfoList.size() &&
        ImageInfoList[state].bitmap) {
      info = ImageInfoList[state];
      return true;
    }
    info.bitmap = nullptr;
    return false;
  }
  // A new image cut out of the sheet; the caller owns it.
  virtual std::unique_ptr<T> MakeImageFromWallpaper(WallpaperImageInfo<T> info) const = 0;

  void SetWallpaperInfo(const std::vector<WallpaperImageInfo<T>>& list) {
    VORN_ASSERT(ImageInfoList.size() == 0);
    ImageInfoList = list;
  }
  const std::vector<WallpaperImageInfo<T>>& GetWallpaperInfo() const { return ImageInfoList; }

 protected:
  std::vector<WallpaperImageInfo<T>> ImageInfoList;  // empty or exactly ten entries
};

class VornBitmapCache : public VornImageCache<Bitmap> {
 public:
  ~VornBitmapCache() override = default;
  int GetImageWidth(const Bitmap* image) const override;
  int GetImageHeight(const Bitmap* image) const override;
};

class VornBitmapACache : public VornImageCache<BitmapA> {
 public:
  ~VornBitmapACache() override = default;
  int GetImageWidth(const BitmapA* image) const override;
  int GetImageHeight(const BitmapA* image) const override;
};

class VornwxImageCache : public VornImageCache<wxImage> {
 public:
  ~VornwxImageCache() override = default;
  int GetImageWidth(const wxImage* image) const override;
  int GetImageHeight(const wxImage* image) const override;
};

class VornwxBitmapCache : public VornWallpaperImageCache<wxBitmap> {
 public:
  ~VornwxBitmapCache() override = default;
  int GetImageWidth(const wxBitmap* image) const override;
  int GetImageHeight(const wxBitmap* image) const override;
  std::unique_ptr<wxBitmap> MakeImageFromWallpaper(
      WallpaperImageInfo<wxBitmap> info) const override;
};

// One 1000 x 1000 sheet filled shelf by shelf.
class VornwxBitmapWallpaper {
 public:
  static constexpr int kSize = 1000;
  VornwxBitmapWallpaper();
  VornwxBitmapWallpaper(const VornwxBitmapWallpaper&) = delete;
  VornwxBitmapWallpaper& operator=(const VornwxBitmapWallpaper&) = delete;
  // Places the image; false (sheet unchanged) when it does not fit.
  bool AddImage(const wxBitmap* image, WallpaperImageInfo<wxBitmap>& info);
  int NumImages() const { return static_cast<int>(m_placed.size()); }
  const wxBitmap& GetSheet() const { return m_sheet; }

 private:
  wxBitmap m_sheet;
  std::vector<WallpaperImageInfo<wxBitmap>> m_placed;
  int m_rowBottom = -1;
};

// All sheets of one asset manager.
class WallpaperBitmapHolder {
 public:
  WallpaperBitmapHolder() = default;
  WallpaperBitmapHolder(const WallpaperBitmapHolder&) = delete;
  WallpaperBitmapHolder& operator=(const WallpaperBitmapHolder&) = delete;
  ~WallpaperBitmapHolder() { ClearAll(); }

  // Places an image in the last sheet (or a new one); an image larger than a
  // sheet is kept as a separate copy with info (0, 0, w, h, copy).
  bool AddImage(const wxBitmap* image, WallpaperImageInfo<wxBitmap>& info);
  bool AddImage(const std::string& name, const wxBitmap& image, WallpaperImageInfo<wxBitmap>& info);
  bool GetImage(const std::string& name, WallpaperImageInfo<wxBitmap>& info) const;
  // Copies every state image of cache into the sheets under name.
  bool AddImageCache(const std::string& name, const VornwxBitmapCache& cache);
  // Clears cache and points it at the sheet entries stored under name.
  bool GetImageCache(const std::string& name, VornwxBitmapCache& cache) const;
  void ClearAll();

  int NumSheets() const { return static_cast<int>(m_sheets.size()); }
  int NumLargeImages() const { return static_cast<int>(m_large.size()); }

 private:
  std::vector<std::unique_ptr<VornwxBitmapWallpaper>> m_sheets;
  std::vector<std::unique_ptr<wxBitmap>> m_large;
  std::vector<std::pair<std::string, WallpaperImageInfo<wxBitmap>>> m_namedImages;
  std::vector<std::pair<std::string, std::vector<WallpaperImageInfo<wxBitmap>>>> m_namedCaches;
};

// A cache of round colour dots (a ring and a dot) for six states.
class VornColImageHolder {
 public:
  VornColImageHolder(int xsize, int ysize, const Color& background, const Color& normalRing,
                     const Color& mouseOverRing, const Color& pressedRing, const Color& dot);
  VornColImageHolder(const VornColImageHolder&) = delete;
  VornColImageHolder& operator=(const VornColImageHolder&) = delete;
  ~VornColImageHolder();
  void ChangeColour(const Color& dot);
  VornwxBitmapCache* GetImageCache() { return m_pCache.get(); }
  void RefillImageCache();

 private:
  int m_xsize;
  int m_ysize;
  Color m_dot;
  Color m_background;
  Color m_normalRing;
  Color m_mouseOverRing;
  Color m_pressedRing;
  std::unique_ptr<VornwxBitmapCache> m_pCache;
};

// Finds the image for state, walking the fallback chain while the cache has
// none. False (out null) when the chain ends without an image.
template <class Cache, class T>
bool VornGetImageWithFallback(const Cache& cache, VORNIMAGETYPE state, const T*& out) {
  out = nullptr;
  if (state == VIT_NONE) return false;
  while (state != VIT_NONE) {
    if (cache.GetImage(state, out)) return true;
    if (state == VIT_SPARE) {
      VORN_ASSERT(state != VIT_SPARE);
      return false;
    }
    state = VornNextFallbackState(state);
  }
  out = nullptr;
  return false;
}
