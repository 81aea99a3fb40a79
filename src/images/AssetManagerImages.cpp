// PLACEHOLDER until the image loading of the manager lands: every image
// request is refused so that programs link. Replaced wholesale by the real
// implementation.
#include "vorn/AssetManager.h"

bool AssetManager::LoadImage(const char*, wxImage&) { return false; }
bool AssetManager::LoadImage(const char*, BitmapA&) { return false; }
bool AssetManager::LoadImage(const char*, Bitmap&) { return false; }
bool AssetManager::LoadImage(const char*, wxBitmap&) { return false; }
bool AssetManager::LoadBitmap(const char*, wxBitmap&) { return false; }
bool AssetManager::LoadBitmap(const char*, wxBitmap&, long) { return false; }
bool AssetManager::LoadImageDirect(const char*, wxImage&) { return false; }
bool AssetManager::LoadImageDirect(const char*, BitmapA&) { return false; }
bool AssetManager::LoadImageDirect(const char*, Bitmap&) { return false; }
bool AssetManager::LoadImageFromScript(const char*, wxImage&) { return false; }
bool AssetManager::LoadImageFromScript(const char*, BitmapA&) { return false; }
bool AssetManager::LoadImageFromScript(const char*, Bitmap&) { return false; }
bool AssetManager::LoadImages(const char*, VornBitmapACache&) { return false; }
bool AssetManager::LoadImages(const char*, VornBitmapCache&) { return false; }
bool AssetManager::LoadImages(const char*, VornwxImageCache&) { return false; }
bool AssetManager::LoadImages(const char*, VornwxBitmapCache&) { return false; }
bool AssetManager::LoadImagesFromScript(const std::string&, VornBitmapACache&) { return false; }
bool AssetManager::LoadImageCached(const char*, const Bitmap*&) { return false; }
bool AssetManager::LoadImageCached(const char*, const wxBitmap*&) { return false; }
bool AssetManager::LoadImageCached(const char*, const wxImage*&) { return false; }
bool AssetManager::LoadImageCached(const char*, const BitmapA*&) { return false; }
bool AssetManager::LoadImagesCached(const char*, const VornBitmapCache*&) { return false; }
bool AssetManager::LoadImagesCached(const char*, const VornBitmapACache*&) { return false; }
bool AssetManager::LoadImagesCached(const char*, const VornwxBitmapCache*&) { return false; }
bool AssetManager::LoadImagesCached(const char*, const VornwxImageCache*&) { return false; }
bool AssetManager::LoadEditWidget(const char*, wxBitmap&, VornEditInfo&) { return false; }
bool AssetManager::LoadEditWidgetCached(const char*, const wxBitmap*&, VornEditInfo&) { return false; }
bool AssetManager::LoadListBox(const char*, OldVornListBoxInfo&) { return false; }
bool AssetManager::LoadListBoxCached(const char*, VornListBoxInfo&) { return false; }
