#pragma once
// The shared base of the button family: image state, on flag, button-down
// flag and drawing from an image cache.
#include "vorn/VornControl.h"
#include "vorn/VornImageCache.h"

class VornButton : public VornControl {
 public:
  VornButton();
  // Sizes the window to the cache's image size.
  VornButton(const VornwxBitmapCache* cache, int x, int y, wxWindow* parent, int id,
             VornControlGroup* group, long style = 0);
  VornButton(const VornwxBitmapCache* cache, int x, int y, int w, int h, wxWindow* parent, int id,
             VornControlGroup* group, long style = 0);
  ~VornButton() override;

  void OnDraw(wxDC* dc) override;
  void RecalcState() override;
  void OnMouseButton() override;

  virtual bool Create(const VornwxBitmapCache* cache, int x, int y, wxWindow* parent, int id,
                      VornControlGroup* group, long style = 0);
  virtual bool Create(const VornwxBitmapCache* cache, int x, int y, int w, int h, wxWindow* parent,
                      int id, VornControlGroup* group, long style = 0);
  virtual void SetOn(bool on);
  virtual bool GetOn() const;
  virtual void SetButtonDown(bool down);
  virtual bool GetButtonDown() const;
  virtual void OnButtonDown();

  // The sheet rectangle of the current state's image, following the fallback
  // chain; false when there is no cache or no image.
  bool GetImageInfo(WallpaperImageInfo<wxBitmap>& info);
  const VornwxBitmapCache* GetImageCache() const { return m_pImageCache; }
  void SetImageCache(const VornwxBitmapCache* cache);
  VORNIMAGETYPE GetState() const { return m_state; }

 protected:
  VORNIMAGETYPE m_state = VIT_NONE;
  bool m_bOn = false;
  bool m_bButtonDown = false;
  const VornwxBitmapCache* m_pImageCache = nullptr;  // not owned
};
