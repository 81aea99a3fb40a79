#pragma once
// Windowless controls: rectangles inside a real VornWindow (the host) that
// keep window geometry and control state without being wx windows. The host
// routes its mouse events to them and calls OnDraw with the DC origin set to
// the control's position.
#include <wx/bitmap.h>
#include <wx/colour.h>
#include <wx/dc.h>
#include <wx/event.h>
#include <wx/tooltip.h>

#include <memory>

#include "vorn/VornImageCache.h"
#include "vornhost/Color.h"
#include "vornhost/Types.h"

class VornWindow;
class VornControlGroup;
class VornControlHint;

class VirtualWindow {
 public:
  VirtualWindow();
  VirtualWindow(const VirtualWindow&) = delete;
  VirtualWindow& operator=(const VirtualWindow&) = delete;

  virtual ~VirtualWindow();
  // Without a size the window is 10 by 10.
  virtual bool Create(int x, int y, VirtualWindow* parent, VornWindow* host, unsigned int id);
  virtual bool Create(int x, int y, int w, int h, VirtualWindow* parent, VornWindow* host,
                      unsigned int id);
  // Drops the tool tip this window owns.
  virtual void Clear();
  virtual void OnShow();
  virtual void OnHide();
  virtual void OnDraw(wxDC* dc);
  // Refreshes the whole host window (with erasing); the argument is ignored.
  virtual void Refresh(bool erase = true);

  // Geometry is stored only; nothing is moved.
  void SetWidth(int w) { m_width = w; }
  void SetHeight(int h) { m_height = h; }
  void SetPosX(int x) { m_x = x; }
  void SetPosY(int y) { m_y = y; }
  void SetSize(int w, int h);
  void SetPosition(int x, int y);
  void SetWindowPos(int x, int y, int w, int h);
  int GetWidth() const { return m_width; }
  int GetHeight() const { return m_height; }
  int GetPosX() const { return m_x; }
  int GetPosY() const { return m_y; }

  unsigned int GetId() const { return m_id; }
  VirtualWindow* GetParent() const { return m_pParent; }
  VornWindow* GetHost() const { return m_pHost; }

  // Captures through the host unless this window or the host already holds
  // the capture; releases only when the host holds it.
  void CaptureMouse();
  void ReleaseMouse();
  bool IsMouseCaptive() const { return m_bMouseCaptive; }

  // Visibility is a flag only; wxWidgets shows or hides nothing.
  bool Show();
  bool Show(bool show);
  bool Hide();
  bool IsVisible() const { return m_bVisible; }

  void SetFgColour(const wxColour& colour) { m_fgColour = colour; }
  void SetFgColour(const Color& colour);
  void SetBgColour(const wxColour& colour) { m_bgColour = colour; }
  void SetBgColour(const Color& colour);
  const wxColour& GetFgColour() const { return m_fgColour; }
  const wxColour& GetBgColour() const { return m_bgColour; }

  // With a host, the tip is the host window's (wxWidgets owns it); without
  // one, this window keeps its own until Clear.
  void SetToolTip(const VornString& text);
  wxToolTip* GetToolTip() const;

  void OnEraseBackground(wxEraseEvent& event);

 protected:
  void Init();

  unsigned int m_id = 0;
  VirtualWindow* m_pParent = nullptr;  // not owned
  VornWindow* m_pHost = nullptr;       // not owned
  wxColour m_fgColour;
  wxColour m_bgColour;
  int m_width = 10;
  int m_height = 10;
  int m_x = 0;
  int m_y = 0;
  bool m_bMouseCaptive = false;
  bool m_bVisible = false;
  std::unique_ptr<wxToolTip> m_pToolTip;  // only while there is no host
};

class VirtualControl : public VirtualWindow {
 public:
  VirtualControl() = default;
  // Deregisters from the group by id (without deletion), then clears.
  ~VirtualControl() override;

  void OnDraw(wxDC* dc) override;

  virtual bool Create(int x, int y, VirtualWindow* parent, VornWindow* host, unsigned int id,
                      VornControlGroup* group);
  virtual bool Create(int x, int y, int w, int h, VirtualWindow* parent, VornWindow* host,
                      unsigned int id, VornControlGroup* group);
  virtual void Reset();
  virtual void SetEnabled(bool enabled);
  virtual bool GetEnabled() const;
  virtual void OnUpdate(unsigned int id, void* source, VornControlHint* hint);
  virtual void RecalcState();
  virtual void SetMouseOver(bool over);
  virtual void SetMouseDownLeft(bool down);
  virtual void SetMouseDownRight(bool down);
  virtual void SetLastMousePos(int x, int y);
  virtual void SetLastDownPos(int x, int y);
  virtual void OnMouseMove(int x, int y);
  virtual void OnMouseOver();
  virtual void OnMouseDownLeft();
  virtual void OnMouseDownRight();
  virtual void OnMouseButton();
  virtual bool GetMouseDownLeft() const;
  virtual bool GetMouseDownRight() const;
  virtual bool GetMouseDown() const;
  virtual bool GetMouseOver() const;
  virtual bool GetMetaA() const;
  virtual bool GetMetaB() const;
  virtual bool GetMetaKey() const;
  virtual void GetLastMousePos(int& x, int& y);
  virtual void GetLastDownPos(int& x, int& y);

  using VirtualWindow::Create;
  void Bind(VornControlGroup* group);
  void SetGroup(VornControlGroup* group);
  VornControlGroup* GetGroup() const { return m_pControlGroup; }

  bool IsDirty() const { return m_bDirty; }
  void SetDirty(bool dirty = true) { m_bDirty = dirty; }

  // Called by the host with its own mouse events; positions are taken as the
  // host passes them. Nothing happens while disabled.
  void OnLeftDown(wxMouseEvent& event);
  void OnLeftUp(wxMouseEvent& event);
  // A host passes its wxEVT_LEFT_DCLICK here: a press, and ControlDoubleClick
  // to the group; the release follows as usual.
  void OnLeftDClick(wxMouseEvent& event);
  void OnRightDown(wxMouseEvent& event);
  void OnRightUp(wxMouseEvent& event);
  void OnEntering(wxMouseEvent& event);
  void OnLeaving(wxMouseEvent& event);
  void OnMouseMoveHdlr(wxMouseEvent& event);

 protected:
  VornControlGroup* m_pControlGroup = nullptr;  // not owned
  bool m_bEnabled = true;
  bool m_bMouseOver = false;
  bool m_bMouseDownLeft = false;
  bool m_bMouseDownRight = false;
  bool m_bDirty = true;
  int m_lastMouseX = 0;
  int m_lastMouseY = 0;
  int m_lastDownX = 0;
  int m_lastDownY = 0;
  bool m_bMetaA = false;  // Alt in the last mouse event
  bool m_bMetaB = false;  // Control in the last mouse event

 private:
  void StoreGroup(VornControlGroup* group);
  void TakeMeta(const wxMouseEvent& event);
  void ButtonDown(const wxMouseEvent& event, bool left);
  void ButtonUp(const wxMouseEvent& event, bool left);
};

// A two-state button drawn from an image cache.
class VirtualButton : public VirtualControl {
 public:
  VirtualButton() = default;
  ~VirtualButton() override;

  void OnDraw(wxDC* dc) override;
  void RecalcState() override;
  void OnMouseButton() override;

  virtual bool Create(VornwxBitmapCache* cache, bool ownCache, int x, int y, VirtualWindow* parent,
                      VornWindow* host, unsigned int id, VornControlGroup* group);
  virtual bool Create(VornwxBitmapCache* cache, bool ownCache, int x, int y, int w, int h,
                      VirtualWindow* parent, VornWindow* host, unsigned int id,
                      VornControlGroup* group);
  // The image of the current state (recomputed if dirty), or null.
  virtual const wxBitmap* GetImage();
  virtual void SetOn(bool on);
  virtual bool GetOn() const;
  virtual void SetButtonDown(bool down);
  virtual bool GetButtonDown() const;
  // The state's image, following the fallback chain while the cache has
  // none; false and null when the chain ends at VIT_NONE.
  virtual bool GetImage(VORNIMAGETYPE state, const VornwxBitmapCache& cache,
                        const wxBitmap*& bitmap) const;
  virtual void OnButtonDown();

  using VirtualControl::Create;
  VornwxBitmapCache* GetImageCache() const { return m_pImageCache; }
  VORNIMAGETYPE GetState() const { return m_state; }

 protected:
  VORNIMAGETYPE m_state = VIT_NONE;
  bool m_bOn = false;
  bool m_bButtonDown = false;
  VornwxBitmapCache* m_pImageCache = nullptr;
  // Holds the cache when the button owns it (own flag of Create).
  std::unique_ptr<VornwxBitmapCache> m_pOwnedCache;

 private:
  void TakeCache(VornwxBitmapCache* cache, bool ownCache);
};
