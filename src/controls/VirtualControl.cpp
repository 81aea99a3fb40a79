// Windowless windows, controls and the two-state windowless button.
#include "vorn/VirtualControl.h"

#include <wx/dcmemory.h>

#include "vorn/GraphicsFunctions.h"
#include "vorn/VornAssert.h"
#include "vorn/VornControlGroup.h"
#include "vorn/VornWindow.h"

VirtualWindow::VirtualWindow() {
  Init();
}

VirtualWindow::~VirtualWindow() {
  VirtualWindow::Clear();
}

void VirtualWindow::Init() {
  m_pParent = nullptr;
  m_pHost = nullptr;
  m_bMouseCaptive = false;
  m_bVisible = false;
  m_pToolTip.reset();
}

bool VirtualWindow::Create(int x, int y, VirtualWindow* parent, VornWindow* host, unsigned int id) {
  return VirtualWindow::Create(x, y, 10, 10, parent, host, id);
}

bool VirtualWindow::Create(int x, int y, int w, int h, VirtualWindow* parent, VornWindow* host,
                           unsigned int id) {
  m_pParent = parent;
  m_pHost = host;
  m_id = id;
  SetWindowPos(x, y, w, h);
  return true;
}

void VirtualWindow::Clear() {
  m_pToolTip.reset();
}
void VirtualWindow::OnShow() {}
void VirtualWindow::OnHide() {}

void VirtualWindow::OnDraw(wxDC* dc) {
  VORN_ASSERT(dc != nullptr);
  if (dc) dc->Clear();
}

void VirtualWindow::Refresh(bool) {
  if (m_pHost) m_pHost->Refresh(true);
}

void VirtualWindow::SetSize(int w, int h) {
  m_width = w;
  m_height = h;
}

void VirtualWindow::SetPosition(int x, int y) {
  m_x = x;
  m_y = y;
}

void VirtualWindow::SetWindowPos(int x, int y, int w, int h) {
  SetPosition(x, y);
  SetSize(w, h);
}

void VirtualWindow::CaptureMouse() {
  if (m_bMouseCaptive || !m_pHost || m_pHost->IsMouseCaptive()) return;
  m_pHost->CaptureMouse();
  m_bMouseCaptive = true;
}

void VirtualWindow::ReleaseMouse() {
  if (!m_pHost || !m_pHost->IsMouseCaptive()) return;
  m_pHost->ReleaseMouse();
  m_bMouseCaptive = false;
}

bool VirtualWindow::Show() {
  return Show(true);
}
bool VirtualWindow::Hide() {
  return Show(false);
}

bool VirtualWindow::Show(bool show) {
  m_bVisible = show;
  if (show)
    OnShow();
  else
    OnHide();
  return true;
}

void VirtualWindow::SetFgColour(const Color& colour) {
  m_fgColour = CtoWxC(colour);
}
void VirtualWindow::SetBgColour(const Color& colour) {
  m_bgColour = CtoWxC(colour);
}

void VirtualWindow::SetToolTip(const VornString& text) {
  if (m_pHost) {
    m_pHost->SetToolTip(text);
    return;
  }
  const wxString tip = wxString::FromUTF8(text.c_str());
  if (m_pToolTip)
    m_pToolTip->SetTip(tip);
  else
    m_pToolTip = std::make_unique<wxToolTip>(tip);
}

wxToolTip* VirtualWindow::GetToolTip() const {
  return m_pHost ? m_pHost->GetToolTip() : m_pToolTip.get();
}

void VirtualWindow::OnEraseBackground(wxEraseEvent&) {}

// ---------------------------------------------------------------------------

VirtualControl::~VirtualControl() {
  // By pointer: the id alone could name a window control of the same group.
  if (m_pControlGroup) m_pControlGroup->DeRegister(this, true);
  m_pControlGroup = nullptr;
}

void VirtualControl::OnDraw(wxDC* dc) {
  VirtualWindow::OnDraw(dc);
  if (m_bDirty) RecalcState();
}

bool VirtualControl::Create(int x, int y, VirtualWindow* parent, VornWindow* host, unsigned int id,
                            VornControlGroup* group) {
  VirtualWindow::Create(x, y, parent, host, id);
  StoreGroup(group);
  return true;
}

bool VirtualControl::Create(int x, int y, int w, int h, VirtualWindow* parent, VornWindow* host,
                            unsigned int id, VornControlGroup* group) {
  VirtualWindow::Create(x, y, w, h, parent, host, id);
  StoreGroup(group);
  return true;
}

void VirtualControl::StoreGroup(VornControlGroup* group) {
  // A refused registration (the id is taken) leaves no link: the group
  // would not clear it when it goes.
  m_pControlGroup = group && group->Register(m_id, this) ? group : nullptr;
}

void VirtualControl::Bind(VornControlGroup* group) {
  VORN_ASSERT_TEXT(m_pControlGroup == nullptr, "m_pControlGroup == __null");
  if (m_pControlGroup) return;
  StoreGroup(group);
}

void VirtualControl::SetGroup(VornControlGroup* group) {
  StoreGroup(group);
}

void VirtualControl::Reset() {}

void VirtualControl::SetEnabled(bool enabled) {
  if (enabled != m_bEnabled) {
    m_bEnabled = enabled;
    m_bDirty = true;
    Refresh(false);
  }
  RecalcState();
}

bool VirtualControl::GetEnabled() const {
  return m_bEnabled;
}
void VirtualControl::OnUpdate(unsigned int, void*, VornControlHint*) {}
void VirtualControl::RecalcState() {
  m_bDirty = false;
}

void VirtualControl::SetMouseOver(bool over) {
  if (over == m_bMouseOver) return;
  m_bMouseOver = over;
  m_bDirty = true;
  OnMouseOver();
}

void VirtualControl::SetMouseDownLeft(bool down) {
  if (down == m_bMouseDownLeft) return;
  m_bMouseDownLeft = down;
  m_bDirty = true;
  OnMouseDownLeft();
  OnMouseButton();
}

void VirtualControl::SetMouseDownRight(bool down) {
  if (down == m_bMouseDownRight) return;
  m_bMouseDownRight = down;
  m_bDirty = true;
  OnMouseDownRight();
  OnMouseButton();
}

void VirtualControl::SetLastMousePos(int x, int y) {
  m_lastMouseX = x;
  m_lastMouseY = y;
}

void VirtualControl::SetLastDownPos(int x, int y) {
  m_lastDownX = x;
  m_lastDownY = y;
}

void VirtualControl::OnMouseMove(int, int) {}
void VirtualControl::OnMouseOver() {
  Refresh(true);
}
void VirtualControl::OnMouseDownLeft() {
  Refresh(true);
}
void VirtualControl::OnMouseDownRight() {
  Refresh(true);
}
void VirtualControl::OnMouseButton() {
  Refresh(true);
}
bool VirtualControl::GetMouseDownLeft() const {
  return m_bMouseDownLeft;
}
bool VirtualControl::GetMouseDownRight() const {
  return m_bMouseDownRight;
}
bool VirtualControl::GetMouseDown() const {
  return m_bMouseDownLeft || m_bMouseDownRight;
}
bool VirtualControl::GetMouseOver() const {
  return m_bMouseOver;
}
bool VirtualControl::GetMetaA() const {
  return m_bMetaA;
}
bool VirtualControl::GetMetaB() const {
  return m_bMetaB;
}
bool VirtualControl::GetMetaKey() const {
  return m_bMetaA || m_bMetaB;
}

void VirtualControl::GetLastMousePos(int& x, int& y) {
  x = m_lastMouseX;
  y = m_lastMouseY;
}

void VirtualControl::GetLastDownPos(int& x, int& y) {
  x = m_lastDownX;
  y = m_lastDownY;
}

void VirtualControl::TakeMeta(const wxMouseEvent& event) {
  m_bMetaA = event.AltDown();
  m_bMetaB = event.ControlDown();
}

void VirtualControl::ButtonDown(const wxMouseEvent& event, bool left) {
  if (!m_bEnabled) return;
  SetLastMousePos(event.GetX(), event.GetY());
  SetLastDownPos(event.GetX(), event.GetY());
  TakeMeta(event);
  if (left)
    SetMouseDownLeft(true);
  else
    SetMouseDownRight(true);
}

void VirtualControl::ButtonUp(const wxMouseEvent& event, bool left) {
  if (!m_bEnabled) return;
  SetLastMousePos(event.GetX(), event.GetY());
  TakeMeta(event);
  if (left)
    SetMouseDownLeft(false);
  else
    SetMouseDownRight(false);
}

void VirtualControl::OnLeftDown(wxMouseEvent& event) {
  ButtonDown(event, true);
}
void VirtualControl::OnLeftDClick(wxMouseEvent& event) {
  if (!m_bEnabled) return;
  ButtonDown(event, true);
  if (m_pControlGroup) m_pControlGroup->ControlDoubleClick(m_id, this);
}
void VirtualControl::OnLeftUp(wxMouseEvent& event) {
  ButtonUp(event, true);
}
void VirtualControl::OnRightDown(wxMouseEvent& event) {
  ButtonDown(event, false);
}
void VirtualControl::OnRightUp(wxMouseEvent& event) {
  ButtonUp(event, false);
}

void VirtualControl::OnEntering(wxMouseEvent& event) {
  if (!m_bEnabled) return;
  SetLastMousePos(event.GetX(), event.GetY());
  SetMouseOver(true);
}

void VirtualControl::OnLeaving(wxMouseEvent& event) {
  if (!m_bEnabled) return;
  SetLastMousePos(event.GetX(), event.GetY());
  SetMouseOver(false);
  if (!m_bMouseCaptive) {
    if (m_bMouseDownLeft) SetMouseDownLeft(false);
    if (m_bMouseDownRight) SetMouseDownRight(false);
  }
}

void VirtualControl::OnMouseMoveHdlr(wxMouseEvent& event) {
  if (!m_bEnabled) return;
  TakeMeta(event);
  OnMouseMove(event.GetX(), event.GetY());
}

// ---------------------------------------------------------------------------

VirtualButton::~VirtualButton() {
  TakeCache(nullptr, false);
}

void VirtualButton::TakeCache(VornwxBitmapCache* cache, bool ownCache) {
  if (m_pOwnedCache && m_pOwnedCache.get() == cache) {
    if (!ownCache) m_pOwnedCache.release();
  } else {
    if (m_pOwnedCache) m_pOwnedCache->Clear();
    m_pOwnedCache.reset(ownCache ? cache : nullptr);
  }
  m_pImageCache = cache;
}

bool VirtualButton::Create(VornwxBitmapCache* cache, bool ownCache, int x, int y,
                           VirtualWindow* parent, VornWindow* host, unsigned int id,
                           VornControlGroup* group) {
  TakeCache(cache, ownCache);
  VirtualControl::Create(x, y, parent, host, id, group);
  if (cache) SetSize(cache->GetWidth(), cache->GetHeight());
  return true;
}

bool VirtualButton::Create(VornwxBitmapCache* cache, bool ownCache, int x, int y, int w, int h,
                           VirtualWindow* parent, VornWindow* host, unsigned int id,
                           VornControlGroup* group) {
  TakeCache(cache, ownCache);
  return VirtualControl::Create(x, y, w, h, parent, host, id, group);
}

void VirtualButton::RecalcState() {
  if (!GetEnabled())
    m_state = m_bOn ? VIT_DISABLED_ON : VIT_DISABLED_OFF;
  else if (GetMouseDown())  // a held button wins over mouse over
    m_state = m_bOn ? VIT_ON_DOWN : VIT_OFF_DOWN;
  else if (GetMouseOver())
    m_state = m_bOn ? VIT_ON_MOUSE_OVER : VIT_OFF_MOUSE_OVER;
  else
    m_state = m_bOn ? VIT_ON : VIT_OFF;
  VirtualControl::RecalcState();
}

bool VirtualButton::GetImage(VORNIMAGETYPE state, const VornwxBitmapCache& cache,
                             const wxBitmap*& bitmap) const {
  return VornGetImageWithFallback(cache, state, bitmap);
}

const wxBitmap* VirtualButton::GetImage() {
  if (m_bDirty) RecalcState();
  if (!m_pImageCache) return nullptr;
  const wxBitmap* bitmap = nullptr;
  GetImage(m_state, *m_pImageCache, bitmap);
  return bitmap;
}

void VirtualButton::OnDraw(wxDC* dc) {
  VORN_ASSERT(dc != nullptr);
  if (!dc) return;
  const wxBitmap* bitmap = GetImage();
  if (!bitmap || !bitmap->IsOk()) return;
  wxMemoryDC source;
  source.SelectObjectAsSource(*bitmap);
  dc->Blit(0, 0, bitmap->GetWidth(), bitmap->GetHeight(), &source, 0, 0, wxCOPY, false);
  source.SelectObject(wxNullBitmap);
}

void VirtualButton::OnMouseButton() {
  SetButtonDown(GetMouseDown());
}

void VirtualButton::SetOn(bool on) {
  if (on == m_bOn) return;
  m_bOn = on;
  m_bDirty = true;
  Refresh(false);
}

bool VirtualButton::GetOn() const {
  return m_bOn;
}

void VirtualButton::SetButtonDown(bool down) {
  if (down == m_bButtonDown) return;
  m_bButtonDown = down;
  m_bDirty = true;
  OnButtonDown();
}

bool VirtualButton::GetButtonDown() const {
  return m_bButtonDown;
}
void VirtualButton::OnButtonDown() {
  Refresh(false);
}
