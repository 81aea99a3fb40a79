// The control base: mouse state machine, enabled and dirty flags, group
// membership and hint arrival.
#include "vorn/VornControl.h"

#include "vorn/VornAssert.h"
#include "vorn/VornControlGroup.h"

VornControl::VornControl() {
  Init();
}

VornControl::VornControl(int x, int y, wxWindow* parent, int id, VornControlGroup* group,
                         long style) {
  Init();
  VornControl::Create(x, y, parent, id, group, style);
}

VornControl::VornControl(int x, int y, int w, int h, wxWindow* parent, int id,
                         VornControlGroup* group, long style) {
  Init();
  VornControl::Create(x, y, w, h, parent, id, group, style);
}

VornControl::~VornControl() {
  if (m_pControlGroup) m_pControlGroup->DeRegister(VornControl::GetId(), true);
  m_pControlGroup = nullptr;
}

void VornControl::Init() {
  m_pControlGroup = nullptr;
  m_bEnabled = true;
  m_bMouseOver = false;
  m_bMouseDownLeft = false;
  m_bMouseDownRight = false;
  m_bDirty = true;
  m_bMetaA = false;
  m_bMetaB = false;
}

bool VornControl::Create(int x, int y, wxWindow* parent, int id, VornControlGroup* group,
                         long style) {
  const bool created = VornWindow::Create(x, y, parent, id, style);
  FinishCreate(id, group);
  return created;
}

bool VornControl::Create(int x, int y, int w, int h, wxWindow* parent, int id,
                         VornControlGroup* group, long style) {
  const bool created = VornWindow::Create(x, y, w, h, parent, id, style);
  FinishCreate(id, group);
  return created;
}

void VornControl::FinishCreate(int id, VornControlGroup* group) {
  Init();
  if (id == -1) id = wxWindow::GetId();
  StoreGroup(group, id);
}

void VornControl::StoreGroup(VornControlGroup* group, int id) {
  // A refused registration (the id is taken) leaves no link: the group
  // would not clear it when it goes, and our id names the other control.
  m_pControlGroup = group && group->Register(static_cast<unsigned int>(id), this) ? group : nullptr;
}

void VornControl::Bind(VornControlGroup* group) {
  VORN_ASSERT_TEXT(m_pControlGroup == nullptr, "m_pControlGroup == __null");
  if (m_pControlGroup) return;
  StoreGroup(group, GetId());
}

void VornControl::SetGroup(VornControlGroup* group) {
  StoreGroup(group, GetId());
}

void VornControl::OnDraw(wxDC* dc) {
  VornWindow::OnDraw(dc);
  if (m_bDirty) RecalcState();
}

void VornControl::Reset() {}

void VornControl::SetEnabled(bool enabled) {
  if (enabled != m_bEnabled) {
    m_bEnabled = enabled;
    if (!enabled) {
      // Directly: a disabled control reports no button changes.
      m_bMouseDownLeft = false;
      m_bMouseDownRight = false;
    }
    OnEnable(enabled);
    m_bDirty = true;
    Refresh(false);
  }
  RecalcState();
}

bool VornControl::GetEnabled() const {
  return m_bEnabled;
}
void VornControl::OnEnable(bool) {}
void VornControl::OnUpdate(unsigned int, VornControl*, VornControlHint*) {}
int VornControl::GetId() const {
  return wxWindow::GetId();
}
void VornControl::RecalcState() {
  m_bDirty = false;
}

void VornControl::SetMouseOver(bool over) {
  if (over == m_bMouseOver) return;
  m_bMouseOver = over;
  OnMouseOver();
}

void VornControl::SetMouseDownLeft(bool down) {
  if (down == m_bMouseDownLeft) return;
  m_bMouseDownLeft = down;
  OnMouseDownLeft();
  OnMouseButton();
}

void VornControl::SetMouseDownRight(bool down) {
  if (down == m_bMouseDownRight) return;
  m_bMouseDownRight = down;
  OnMouseDownRight();
  OnMouseButton();
}

void VornControl::SetLastMousePos(int x, int y) {
  m_lastMouseX = x;
  m_lastMouseY = y;
}

void VornControl::SetLastDownPos(int x, int y) {
  m_lastDownX = x;
  m_lastDownY = y;
}

void VornControl::OnMouseMove(int, int) {}

void VornControl::OnMouseOver() {
  m_bDirty = true;
  Refresh(false);
}

void VornControl::OnMouseDownLeft() {
  Refresh(false);
}
void VornControl::OnMouseDownRight() {
  Refresh(false);
}

void VornControl::OnMouseButton() {
  m_bDirty = true;
  Refresh(false);
}

void VornControl::OnMouseEntering() {}
void VornControl::OnMouseLeaving() {}
bool VornControl::GetMouseDownLeft() const {
  return m_bMouseDownLeft;
}
bool VornControl::GetMouseDownRight() const {
  return m_bMouseDownRight;
}
bool VornControl::GetMouseDown() const {
  return m_bMouseDownLeft || m_bMouseDownRight;
}
bool VornControl::GetMouseOver() const {
  return m_bMouseOver;
}
bool VornControl::GetMetaA() const {
  return m_bMetaA;
}
bool VornControl::GetMetaB() const {
  return m_bMetaB;
}
bool VornControl::GetMetaKey() const {
  return m_bMetaA || m_bMetaB;
}

void VornControl::GetLastMousePos(int& x, int& y) {
  x = m_lastMouseX;
  y = m_lastMouseY;
}

void VornControl::GetLastDownPos(int& x, int& y) {
  x = m_lastDownX;
  y = m_lastDownY;
}

void VornControl::TakeMeta(const wxMouseEvent& event) {
  m_bMetaA = event.AltDown();
  m_bMetaB = event.ShiftDown();
}

void VornControl::ButtonDown(const wxMouseEvent& event, bool left) {
  if (!m_bEnabled) return;
  SetMouseOver(true);
  SetLastMousePos(event.GetX(), event.GetY());
  SetLastDownPos(event.GetX(), event.GetY());
  TakeMeta(event);
  if (left)
    SetMouseDownLeft(true);
  else
    SetMouseDownRight(true);
}

void VornControl::ButtonUp(const wxMouseEvent& event, bool left) {
  if (!m_bEnabled) return;
  SetLastMousePos(event.GetX(), event.GetY());
  TakeMeta(event);
  if (left)
    SetMouseDownLeft(false);
  else
    SetMouseDownRight(false);
}

void VornControl::OnLeftDown(wxMouseEvent& event) {
  ButtonDown(event, true);
}
void VornControl::OnLeftDClick(wxMouseEvent& event) {
  if (!m_bEnabled) return;
  ButtonDown(event, true);
  if (m_pControlGroup) m_pControlGroup->ControlDoubleClick(GetId(), this);
}
void VornControl::OnLeftUp(wxMouseEvent& event) {
  ButtonUp(event, true);
}
void VornControl::OnRightDown(wxMouseEvent& event) {
  ButtonDown(event, false);
}
void VornControl::OnRightUp(wxMouseEvent& event) {
  ButtonUp(event, false);
}

// wx 3 reports enter and leave positions in client coordinates already, so
// no screen-to-client conversion is applied.
void VornControl::OnEntering(wxMouseEvent& event) {
  if (!m_bEnabled) return;
  SetLastMousePos(event.GetX(), event.GetY());
  SetMouseOver(true);
  OnMouseEntering();
}

void VornControl::OnLeaving(wxMouseEvent& event) {
  if (!m_bEnabled) return;
  SetLastMousePos(event.GetX(), event.GetY());
  SetMouseOver(false);
  if (!IsMouseCaptive()) {
    if (m_bMouseDownLeft) SetMouseDownLeft(false);
    if (m_bMouseDownRight) SetMouseDownRight(false);
  }
  OnMouseLeaving();
}

void VornControl::OnMouseMoveHdlr(wxMouseEvent& event) {
  if (!m_bEnabled) return;
  TakeMeta(event);
  OnMouseMove(event.GetX(), event.GetY());
}

void VornControl::OnEraseBackground(wxEraseEvent&) {}

void VornControl::OnVornHintArrive(VornHintEvent& event) {
  OnUpdate(event.GetHintId(), event.GetSource(), event.GetHint());
}

// clang-format off
wxBEGIN_EVENT_TABLE(VornControl, VornWindow)
  EVT_LEFT_DOWN(VornControl::OnLeftDown)
  EVT_LEFT_UP(VornControl::OnLeftUp)
  EVT_LEFT_DCLICK(VornControl::OnLeftDClick)
  EVT_RIGHT_DOWN(VornControl::OnRightDown)
  EVT_RIGHT_DCLICK(VornControl::OnRightDown)
  EVT_RIGHT_UP(VornControl::OnRightUp)
  EVT_LEAVE_WINDOW(VornControl::OnLeaving)
  EVT_ENTER_WINDOW(VornControl::OnEntering)
  EVT_MOTION(VornControl::OnMouseMoveHdlr)
  EVT_ERASE_BACKGROUND(VornControl::OnEraseBackground)
  EVT_VORN_HINT(VornControl::OnVornHintArrive)
wxEND_EVENT_TABLE()
