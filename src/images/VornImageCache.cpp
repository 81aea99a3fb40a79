// State tokens and fallback chain, the concrete caches, the shared sheets and
// the colour-dot images.
#include "vorn/VornImageCache.h"

#include <wx/dcmemory.h>

#include <cmath>

#include "vornhost/Filter.h"

namespace {
struct StateWord {
  VORNIMAGETYPE state;
  const char* word;
};
constexpr StateWord kStateWords[] = {
    {VIT_OFF, "off"},
    {VIT_ON, "on"},
    {VIT_ON_MOUSE_OVER, "on_mouse_over"},
    {VIT_OFF_MOUSE_OVER, "off_mouse_over"},
    {VIT_DISABLED_ON, "disabled_on"},
    {VIT_DISABLED_OFF, "disabled_off"},
    {VIT_ON_DOWN, "on_down"},
    {VIT_OFF_DOWN, "off_down"},
};

bool FitsOnSheet(const wxBitmap& image) {
  return image.GetWidth() <= VornwxBitmapWallpaper::kSize &&
         image.GetHeight() <= VornwxBitmapWallpaper::kSize;
}
}  // namespace

VORNIMAGETYPE VornNextFallbackState(VORNIMAGETYPE state) {
  switch (state) {
    case VIT_OFF:
    case VIT_ON:
      return VIT_NONE;
    case VIT_ON_MOUSE_OVER:
      return VIT_ON;
    case VIT_OFF_MOUSE_OVER:
      return VIT_OFF;
    case VIT_DISABLED_ON:
      return VIT_ON;
    case VIT_DISABLED_OFF:
      return VIT_OFF;
    case VIT_ON_DOWN:
      return VIT_ON_MOUSE_OVER;
    case VIT_OFF_DOWN:
      return VIT_OFF_MOUSE_OVER;
    default:
      break;
  }
  // VIT_NONE is never looked up and VIT_SPARE has no substitute.
  VORN_ASSERT_TEXT(state >= VIT_OFF && state <= VIT_OFF_DOWN,
                   "state >= VIT_OFF && state <= VIT_OFF_DOWN");
  return VIT_NONE;
}

bool VornImageStateFromToken(const std::string& word, VORNIMAGETYPE& out) {
  for (const StateWord& entry : kStateWords) {
    if (word == entry.word) {
      out = entry.state;
      return true;
    }
  }
  return false;
}

const char* VornImageStateToken(VORNIMAGETYPE state) {
  for (const StateWord& entry : kStateWords)
    if (entry.state == state) return entry.word;
  return "";
}

// ---- concrete caches ----

int VornBitmapCache::GetImageWidth(const Bitmap* image) const {
  VORN_ASSERT(image != nullptr);
  return image ? image->width : -1;
}

int VornBitmapCache::GetImageHeight(const Bitmap* image) const {
  VORN_ASSERT(image != nullptr);
  return image ? image->height : -1;
}

int VornBitmapACache::GetImageWidth(const BitmapA* image) const {
  VORN_ASSERT(image != nullptr);
  return image ? image->width : -1;
}

int VornBitmapACache::GetImageHeight(const BitmapA* image) const {
  VORN_ASSERT(image != nullptr);
  return image ? image->height : -1;
}

int VornwxImageCache::GetImageWidth(const wxImage* image) const {
  VORN_ASSERT(image != nullptr);
  return image ? image->GetWidth() : -1;
}

int VornwxImageCache::GetImageHeight(const wxImage* image) const {
  VORN_ASSERT(image != nullptr);
  return image ? image->GetHeight() : -1;
}

int VornwxBitmapCache::GetImageWidth(const wxBitmap* image) const {
  VORN_ASSERT(image != nullptr);
  return image ? image->GetWidth() : -1;
}

int VornwxBitmapCache::GetImageHeight(const wxBitmap* image) const {
  VORN_ASSERT(image != nullptr);
  return image ? image->GetHeight() : -1;
}

std::unique_ptr<wxBitmap> VornwxBitmapCache::MakeImageFromWallpaper(
    WallpaperImageInfo<wxBitmap> info) const {
  VORN_ASSERT(info.bitmap != nullptr);
  VORN_ASSERT(info.width > 0 && info.height > 0);
  if (!info.bitmap || info.width <= 0 || info.height <= 0) return nullptr;
  auto image = std::make_unique<wxBitmap>(info.width, info.height);
  {
    wxMemoryDC source;
    source.SelectObjectAsSource(*info.bitmap);
    wxMemoryDC target;
    target.SelectObject(*image);
    target.Blit(0, 0, info.width, info.height, &source, info.x, info.y, wxCOPY, false);
    target.SelectObject(wxNullBitmap);
    source.SelectObject(wxNullBitmap);
  }
  return image;
}

// ---- one sheet ----

VornwxBitmapWallpaper::VornwxBitmapWallpaper() : m_sheet(kSize, kSize) {}

bool VornwxBitmapWallpaper::AddImage(const wxBitmap* image, WallpaperImageInfo<wxBitmap>& info) {
  VORN_ASSERT(image != nullptr);
  if (!image) return false;
  const int width = image->GetWidth();
  const int height = image->GetHeight();
  if (width > kSize || height > kSize) return false;

  int x = 0;
  int y = 0;
  if (m_rowBottom != -1 && !m_placed.empty()) {
    const WallpaperImageInfo<wxBitmap>& last = m_placed.back();
    x = last.x + last.width;
    y = last.y;
    if (x + width > kSize) {
      x = 0;
      y = m_rowBottom;
    }
    if (y + height > kSize) return false;
  }

  {
    wxMemoryDC dc;
    dc.SelectObject(m_sheet);
    dc.DrawBitmap(*image, x, y, false);
    dc.SelectObject(wxNullBitmap);
  }
  if (y + height > m_rowBottom) m_rowBottom = y + height;

  info.x = x;
  info.y = y;
  info.width = width;
  info.height = height;
  info.bitmap = &m_sheet;
  m_placed.push_back(info);
  return true;
}

// ---- all sheets ----

bool WallpaperBitmapHolder::AddImage(const wxBitmap* image, WallpaperImageInfo<wxBitmap>& info) {
  VORN_ASSERT(image != nullptr);
  if (!image) return false;
  if (FitsOnSheet(*image)) {
    if (m_sheets.empty()) m_sheets.push_back(std::make_unique<VornwxBitmapWallpaper>());
    if (m_sheets.back()->AddImage(image, info)) return true;
    m_sheets.push_back(std::make_unique<VornwxBitmapWallpaper>());
    const bool placed = m_sheets.back()->AddImage(image, info);
    VORN_ASSERT(placed);
    return placed;
  }
  // Too big for a sheet: keep a copy of its own that does not share pixels
  // with the caller's bitmap.
  auto copy = std::make_unique<wxBitmap>(
      image->GetSubBitmap(wxRect(0, 0, image->GetWidth(), image->GetHeight())));
  info.x = 0;
  info.y = 0;
  info.width = copy->GetWidth();
  info.height = copy->GetHeight();
  info.bitmap = copy.get();
  m_large.push_back(std::move(copy));
  return true;
}

bool WallpaperBitmapHolder::AddImage(const std::string& name, const wxBitmap& image,
                                     WallpaperImageInfo<wxBitmap>& info) {
  WallpaperImageInfo<wxBitmap> existing;
  VORN_ASSERT_TEXT(!GetImage(name, existing), "!GetImage(name, existing)");
  if (!AddImage(&image, info)) return false;
  m_namedImages.emplace_back(name, info);
  return true;
}

bool WallpaperBitmapHolder::GetImage(const std::string& name,
                                     WallpaperImageInfo<wxBitmap>& info) const {
  for (const auto& entry : m_namedImages) {
    if (entry.first == name) {
      info = entry.second;
      return true;
    }
  }
  return false;
}

bool WallpaperBitmapHolder::AddImageCache(const std::string& name, const VornwxBitmapCache& cache) {
  {
    VornwxBitmapCache scratch;
    VORN_ASSERT_TEXT(!GetImageCache(name, scratch), "!GetImageCache(name, scratch)");
  }
  std::vector<WallpaperImageInfo<wxBitmap>> entries;
  entries.reserve(VIT_COUNT);
  for (int state = 0; state < VIT_COUNT; ++state) {
    const wxBitmap* image = nullptr;
    WallpaperImageInfo<wxBitmap> info;
    if (cache.GetImage(static_cast<VORNIMAGETYPE>(state), image) && !AddImage(image, info))
      info = WallpaperImageInfo<wxBitmap>();
    entries.push_back(info);
  }
  m_namedCaches.emplace_back(name, std::move(entries));
  return true;
}

bool WallpaperBitmapHolder::GetImageCache(const std::string& name, VornwxBitmapCache& cache) const {
  for (const auto& entry : m_namedCaches) {
    if (entry.first == name) {
      cache.Clear();
      cache.SetWallpaperInfo(entry.second);
      return true;
    }
  }
  return false;
}

void WallpaperBitmapHolder::ClearAll() {
  m_sheets.clear();
  m_large.clear();
  m_namedImages.clear();
  m_namedCaches.clear();
}

// ---- colour dots ----

VornColImageHolder::VornColImageHolder(int xsize, int ysize, const Color& background,
                                       const Color& normalRing, const Color& mouseOverRing,
                                       const Color& pressedRing, const Color& dot)
    : m_xsize(xsize),
      m_ysize(ysize),
      m_dot(dot),
      m_background(background),
      m_normalRing(normalRing),
      m_mouseOverRing(mouseOverRing),
      m_pressedRing(pressedRing),
      m_pCache(std::make_unique<VornwxBitmapCache>()) {
  VORN_ASSERT(xsize > 0);
  VORN_ASSERT(ysize > 0);
  RefillImageCache();
}

VornColImageHolder::~VornColImageHolder() = default;

void VornColImageHolder::ChangeColour(const Color& dot) {
  m_dot = dot;
  RefillImageCache();
}

void VornColImageHolder::RefillImageCache() {
  m_pCache->Clear();
  if (m_xsize <= 0 || m_ysize <= 0) return;
  struct StateRing {
    VORNIMAGETYPE state;
    const Color* ring;
  };
  const StateRing order[] = {
      {VIT_OFF, &m_normalRing},
      {VIT_OFF_MOUSE_OVER, &m_mouseOverRing},
      {VIT_OFF_DOWN, &m_pressedRing},
      {VIT_ON, &m_normalRing},
      {VIT_ON_MOUSE_OVER, &m_mouseOverRing},
      {VIT_ON_DOWN, &m_pressedRing},
  };
  const int cx = static_cast<int>(m_xsize * 0.5);
  const int cy = static_cast<int>(m_ysize * 0.5);
  const int ringRadius = static_cast<int>(m_xsize * 0.5);
  const int dotRadius = static_cast<int>(m_xsize * 0.5 - 1);
  for (const StateRing& entry : order) {
    wxImage image(m_xsize, m_ysize);
    std::unique_ptr<Filter> filter = CreateFilter(image);
    Clear(*filter, CtoCA(m_background, 1.0));
    DrawCircle(*filter, cx, cy, ringRadius, CtoCA(*entry.ring, 1.0), true);
    DrawCircle(*filter, cx, cy, dotRadius, CtoCA(m_dot, 1.0), true);
    filter.reset();
    m_pCache->AssignImageOwn(entry.state, new wxBitmap(image));
  }
}
