// The two menu buttons: placing the menu, opening it on a press, closing it
// when the menu asks, and the menu's list operations passed through.
#include "vorn/VornPopUpButton.h"

// ---- placement -------------------------------------------------------------------

wxPoint VornPopUpMenuPlace(const wxRect& button, const wxSize& menu, int itemHeight,
                           int horizontalMode, int verticalMode) {
  const int y = verticalMode != 0 ? button.y - menu.y - itemHeight : button.y + button.height;
  const int x = horizontalMode == 0 ? button.x + button.width - menu.x : button.x;
  return wxPoint(x, y);
}

wxPoint VornPopSideMenuPlace(const wxRect& button, const wxSize& menu, int sideMode) {
  const int x = sideMode != 0 ? button.x + button.width : button.x - menu.x;
  return wxPoint(x, button.y);
}

// ---- VornMenuOpener ------------------------------------------------------------------

VornMenuOpener::~VornMenuOpener() {
  if (!m_pMenu) return;
  if (m_pMenu->GetPopUpButton() == this) m_pMenu->SetPopUpButton(nullptr);
  if (m_bOn) m_pMenu->ShowMenu(false);
}

void VornMenuOpener::Init() {
  m_bOn = false;
  m_bButtonDown = false;
  m_pMenu = nullptr;
  m_pCompanion = nullptr;
  m_bActive = false;
}

void VornMenuOpener::SetUpMenu() {
  if (!m_pMenu) return;
  m_pMenu->SetPopUpButton(this);
  const wxRect button(GetPosition(), GetSize());
  wxPoint at = MenuPlace(button, m_pMenu->GetMenuSize());
  if (wxWindow* parent = GetParent()) at = parent->ClientToScreen(at);
  m_pMenu->Move(at);
}

void VornMenuOpener::OpenMenu() {
  m_bOn = true;
  Redraw();
  SetUpMenu();
  OnMenuOpening();
  m_pMenu->Show(true);
  if (!m_pMenu->HasCapture()) m_pMenu->CaptureMouse();
  OnMenuOpened();
}

void VornMenuOpener::OnMouseButton() {
  SetButtonDown(GetMouseDown());
  // A press while the menu is open does nothing: the menu holds the mouse.
  if (GetMouseDown() && !m_bOn && m_pMenu) OpenMenu();
}

void VornMenuOpener::Reset() {
  if (m_bResetting) return;
  m_bResetting = true;
  m_bOn = false;
  m_bButtonDown = false;
  // The release that ended the press went to the menu, which held the
  // mouse; the button must not wait for it.
  m_bMouseDownLeft = false;
  m_bMouseDownRight = false;
  if (m_pMenu) m_pMenu->ShowMenu(false);
  OnMenuClosed();
  Redraw();
  m_bResetting = false;
}

void VornMenuOpener::AppendRadioItem(wxString text, int id, VornControlGroup* group) {
  if (m_pMenu) m_pMenu->AppendRadioItem(text, id, group);
}

void VornMenuOpener::AppendSelectItem(wxString text, int id, VornControlGroup* group) {
  if (m_pMenu) m_pMenu->AppendSelectItem(text, id, group);
}

void VornMenuOpener::AppendLineBreak() {
  if (m_pMenu) m_pMenu->AppendLineBreak();
}

void VornMenuOpener::DeleteItemID(int id) {
  if (m_pMenu) m_pMenu->DeleteItemID(id);
}

void VornMenuOpener::DeleteItemPos(int position) {
  if (m_pMenu) m_pMenu->DeleteItemPos(position);
}

void VornMenuOpener::ClearAll() {
  if (m_pMenu) m_pMenu->ClearAll();
}

int VornMenuOpener::FindItem(int id) const {
  return m_pMenu ? m_pMenu->FindItem(id) : -1;
}

void VornMenuOpener::SetItemText(int id, wxString text) {
  if (m_pMenu) m_pMenu->SetItemText(id, text);
}

void VornMenuOpener::SetSelected(int id) {
  if (m_pMenu) m_pMenu->SetSelected(id);
}

int VornMenuOpener::GetSelected() const {
  return m_pMenu ? m_pMenu->GetSelected() : 0;
}

int VornMenuOpener::GetCount() const {
  return m_pMenu ? m_pMenu->GetCount() : 0;
}

// ---- VornPopUpButton ------------------------------------------------------------------

VornPopUpButton::VornPopUpButton() {
  Init();
}

VornPopUpButton::VornPopUpButton(const VornwxBitmapCache* images, VornMenu* menu,
                                 int horizontalMode, int verticalMode, int x, int y,
                                 wxWindow* parent, int id, VornControlGroup* group, long style) {
  Init();
  VornPopUpButton::Create(images, menu, horizontalMode, verticalMode, x, y, parent, id, group,
                          style);
}

bool VornPopUpButton::Create(const VornwxBitmapCache* images, VornMenu* menu, int horizontalMode,
                             int verticalMode, int x, int y, wxWindow* parent, int id,
                             VornControlGroup* group, long style) {
  m_pMenu = menu;
  m_horizontalMode = horizontalMode;
  m_verticalMode = verticalMode;
  m_bActive = true;
  const bool created = VornButton::Create(images, x, y, parent, id, group, style);
  SetUpMenu();
  return created;
}

bool VornPopUpButton::Create(const VornwxBitmapCache* images, VornMenu* menu, int horizontalMode,
                             int verticalMode, int x, int y, int w, int h, wxWindow* parent, int id,
                             VornControlGroup* group, long style, wxWindow* companion) {
  m_pMenu = menu;
  m_pCompanion = companion;
  m_horizontalMode = horizontalMode;
  m_verticalMode = verticalMode;
  m_bActive = true;
  const bool created = VornButton::Create(images, x, y, w, h, parent, id, group, style);
  SetUpMenu();
  return created;
}

wxPoint VornPopUpButton::MenuPlace(const wxRect& button, const wxSize& menu) const {
  return VornPopUpMenuPlace(button, menu, m_pMenu ? m_pMenu->GetItemHeight() : 0, m_horizontalMode,
                            m_verticalMode);
}

void VornPopUpButton::OnMenuOpening() {
  if (m_verticalMode != 1 || !m_pCompanion || !m_pMenu) return;
  // Beside the menu's right edge, tops aligned.
  wxPoint at = m_pMenu->GetPosition() + wxPoint(m_pMenu->GetMenuSize().x, 0);
  if (!m_pCompanion->IsTopLevel() && m_pCompanion->GetParent())
    at = m_pCompanion->GetParent()->ScreenToClient(at);
  m_pCompanion->Move(at);
  m_pCompanion->Show(true);
  m_pCompanion->Refresh(false);
}

void VornPopUpButton::OnMenuOpened() {
  m_pMenu->Raise();
}

void VornPopUpButton::OnMenuClosed() {
  if (m_pCompanion) m_pCompanion->Show(false);
}

// ---- VornPopSideButton -----------------------------------------------------------------

VornPopSideButton::VornPopSideButton() {
  Init();
}

VornPopSideButton::VornPopSideButton(const VornwxBitmapCache* images, VornMenu* menu, int sideMode,
                                     int verticalMode, int x, int y, wxWindow* parent, int id,
                                     VornControlGroup* group, long style) {
  Init();
  VornPopSideButton::Create(images, menu, sideMode, verticalMode, x, y, parent, id, group, style);
}

bool VornPopSideButton::Create(const VornwxBitmapCache* images, VornMenu* menu, int sideMode,
                               int verticalMode, int x, int y, wxWindow* parent, int id,
                               VornControlGroup* group, long style) {
  m_pMenu = menu;
  m_sideMode = sideMode;
  m_verticalMode = verticalMode;
  m_bActive = true;
  const bool created = VornButton::Create(images, x, y, parent, id, group, style);
  SetUpMenu();
  return created;
}

bool VornPopSideButton::Create(const VornwxBitmapCache* images, VornMenu* menu, int sideMode,
                               int verticalMode, int x, int y, int w, int h, wxWindow* parent,
                               int id, VornControlGroup* group, long style) {
  m_pMenu = menu;
  m_sideMode = sideMode;
  m_verticalMode = verticalMode;
  m_bActive = true;
  const bool created = VornButton::Create(images, x, y, w, h, parent, id, group, style);
  SetUpMenu();
  return created;
}

wxPoint VornPopSideButton::MenuPlace(const wxRect& button, const wxSize& menu) const {
  return VornPopSideMenuPlace(button, menu, m_sideMode);
}

void VornPopSideButton::OnMenuOpened() {
  if (VornControlGroup* group = GetGroup()) group->ControlSelected(GetId(), this);
}
