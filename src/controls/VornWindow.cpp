// Custom-drawn windows, panels and the toolkit's key and hint events.
#include "vorn/VornWindow.h"

#include <wx/dcclient.h>
#include <wx/gdicmn.h>
#include <wx/sysopt.h>

#include "vorn/GraphicsFunctions.h"
#include "vorn/VornAssert.h"
#include "vorn/VornControlGroup.h"

wxDEFINE_EVENT_ALIAS(VORNEVT_KEY_DOWN, VornWindowKeyEvent, kVornEventKeyDown);
wxDEFINE_EVENT_ALIAS(VORNEVT_KEY_UP, VornWindowKeyEvent, kVornEventKeyUp);
wxDEFINE_EVENT_ALIAS(VORNEVT_HINT, VornHintEvent, kVornEventHint);

VornWindowKeyEvent::VornWindowKeyEvent(wxEventType type) : wxCommandEvent(type, 0) {}

VornWindowKeyEvent::VornWindowKeyEvent(wxEventType type, const wxKeyEvent& key)
    : wxCommandEvent(type, 0),
      m_bAltDown(key.AltDown()),
      m_bControlDown(key.ControlDown()),
      m_keyCode(key.GetKeyCode()),
      m_bMetaDown(key.MetaDown()),
      m_bShiftDown(key.ShiftDown()),
      // The stored position: GetX() would substitute the current pointer
      // position for events that carry none.
      m_x(key.m_x),
      m_y(key.m_y) {}

VornHintEvent::VornHintEvent(int eventType, unsigned int id, VornControl* source,
                             VornControlHint* hint)
    : wxCommandEvent(eventType, 0), m_pHint(hint), m_pSource(source), m_id(id) {}

VornHintEvent::VornHintEvent(const VornHintEvent& other)
    : wxCommandEvent(other),
      m_pHint(std::move(other.m_pHint)),
      m_pSource(other.m_pSource),
      m_id(other.m_id) {}

VornHintEvent::~VornHintEvent() = default;

void VornHintEvent::SetHint(VornControlHint* hint) {
  m_pHint.reset(hint);
}

// ---------------------------------------------------------------------------

VornWindow::VornWindow() {
  Init();
}

VornWindow::VornWindow(int x, int y, wxWindow* parent, int id, long style) {
  Init();
  VornWindow::Create(x, y, parent, id, style);
}

VornWindow::VornWindow(int x, int y, int w, int h, wxWindow* parent, int id, long style) {
  Init();
  VornWindow::Create(x, y, w, h, parent, id, style);
}

VornWindow::~VornWindow() {
  Clear();
  // wx refuses to destroy a window that still holds the capture.
  if (HasCapture()) wxWindow::ReleaseMouse();
}

namespace {
// wx asks the environment for the default window variant each time a window
// object is constructed, unless the option is set: a tree of thousands of
// controls spent a tenth of its building time there. Set it once to what the
// environment says now (normal when unset), which changes nothing else.
void SettleDefaultVariant() {
  static const bool settled = [] {
    const int variant = wxSystemOptions::HasOption(wxWINDOW_DEFAULT_VARIANT)
                            ? wxSystemOptions::GetOptionInt(wxWINDOW_DEFAULT_VARIANT)
                            : static_cast<int>(wxWINDOW_VARIANT_NORMAL);
    wxSystemOptions::SetOption(wxWINDOW_DEFAULT_VARIANT, variant);
    return true;
  }();
  (void)settled;
}
}  // namespace

void VornWindow::Init() {
  SettleDefaultVariant();
  m_bMouseCaptive = false;
  m_bVisible = false;
  m_pToolTip = nullptr;
}

bool VornWindow::CreateWindow(int x, int y, const wxSize& size, wxWindow* parent, int id,
                              long style) {
  if (!wxWindow::Create(parent, id, wxPoint(x, y), size, style | wxCLIP_CHILDREN, wxPanelNameStr))
    return false;
  Init();
  if (parent && parent->UseBgCol())
    SetBgColour(parent->GetBackgroundColour());
  else
    SetBgColour(wxString("YELLOW GREEN"));
  return true;
}

bool VornWindow::Create(int x, int y, wxWindow* parent, int id, long style) {
  if (!CreateWindow(x, y, wxDefaultSize, parent, id, style)) return false;
  m_width = -1;
  m_height = -1;
  SetPosition(x, y);
  return true;
}

bool VornWindow::Create(int x, int y, int w, int h, wxWindow* parent, int id, long style) {
  if (!CreateWindow(x, y, wxSize(w, h), parent, id, style)) return false;
  SetWindowPos(x, y, w, h);
  return true;
}

bool VornWindow::Show(bool show) {
  m_bVisible = show;
  const bool result = wxWindow::Show(show);
  if (show)
    OnShow();
  else
    OnHide();
  return result;
}

void VornWindow::CaptureMouse() {
  if (!m_bMouseCaptive) wxWindow::CaptureMouse();
  m_bMouseCaptive = true;
}

void VornWindow::ReleaseMouse() {
  if (m_bMouseCaptive && HasCapture()) wxWindow::ReleaseMouse();
  m_bMouseCaptive = false;
}

void VornWindow::OnMouseCaptureLost(wxMouseCaptureLostEvent&) {
  m_bMouseCaptive = false;
}

void VornWindow::Clear() {}
void VornWindow::OnShow() {}
void VornWindow::OnHide() {}

void VornWindow::OnDraw(wxDC* dc) {
  VORN_ASSERT(dc != nullptr);
  if (!dc) return;
  dc->SetBackground(wxBrush(GetBackgroundColour(), wxBRUSHSTYLE_SOLID));
  dc->Clear();
}

void VornWindow::SetSize(int w, int h) {
  m_width = w;
  m_height = h;
  ApplyGeometry(-1, -1, w, h, 0);
}

void VornWindow::SetPosition(int x, int y) {
  m_x = x;
  m_y = y;
  ApplyGeometry(x, y, -1, -1, 0);
}

void VornWindow::SetWindowPos(int x, int y, int w, int h) {
  m_x = x;
  m_y = y;
  m_width = w;
  m_height = h;
  ApplyGeometry(x, y, w, h, wxSIZE_ALLOW_MINUS_ONE);
}

void VornWindow::ApplyGeometry(int x, int y, int w, int h, int flags) {
  m_bApplyingOwnGeometry = true;
  wxWindow::SetSize(x, y, w, h, flags);
  m_bApplyingOwnGeometry = false;
  // The best size follows the stored one.
  InvalidateBestSize();
}

wxSize VornWindow::DoGetBestSize() const {
  if (m_width > 0 && m_height > 0) return wxSize(m_width, m_height);
  return wxWindow::DoGetBestSize();
}

void VornWindow::DoSetSize(int x, int y, int width, int height, int sizeFlags) {
  wxWindow::DoSetSize(x, y, width, height, sizeFlags);
  if (m_bApplyingOwnGeometry) return;
  const wxRect now = GetRect();
  const bool resized = now.width != m_width || now.height != m_height;
  m_x = now.x;
  m_y = now.y;
  m_width = now.width;
  m_height = now.height;
  if (resized) Refresh(false);
}

void VornWindow::GetSize(int& w, int& h) const {
  w = m_width;
  h = m_height;
}

void VornWindow::GetPosition(int& x, int& y) const {
  x = m_x;
  y = m_y;
}

void VornWindow::GetWindowPos(int& x, int& y, int& w, int& h) const {
  GetPosition(x, y);
  GetSize(w, h);
}

void VornWindow::SetFgColour(const wxColour& colour) {
  m_fgColour = colour;
}

void VornWindow::SetFgColour(const Color& colour) {
  m_fgColour = CtoWxC(colour);
}

const wxColour& VornWindow::SetBgColour(const wxString& name) {
  SetBackgroundColour(wxTheColourDatabase->Find(name));
  return GetBgColour();
}

const wxColour& VornWindow::SetBgColour(const wxColour& colour) {
  SetBackgroundColour(colour);
  return GetBgColour();
}

const wxColour& VornWindow::SetBgColour(const Color& colour) {
  SetBackgroundColour(CtoWxC(colour));
  return GetBgColour();
}

const wxColour& VornWindow::GetBgColour() {
  m_bgColour = GetBackgroundColour();
  return m_bgColour;
}

void VornWindow::SetToolTip(const VornString& text) {
  const wxString tip = wxString::FromUTF8(text.c_str());
  // Ask wx for the current tip rather than trusting the stored pointer: wx
  // owns it and may have replaced it.
  if (wxToolTip* current = GetToolTip())
    current->SetTip(tip);
  else
    wxWindow::SetToolTip(new wxToolTip(tip));
  m_pToolTip = GetToolTip();
}

void VornWindow::SetToolTip(const char* text) {
  SetToolTip(VornString(text ? text : ""));
}

void VornWindow::OnKillFocus(wxFocusEvent&) {}

void VornWindow::OnPaint(wxPaintEvent&) {
  wxPaintDC dc(this);
  OnDraw(&dc);
}

void VornWindow::OnEraseBackground(wxEraseEvent&) {}

void VornWindow::SendKeyEvent(wxEventType type, const wxKeyEvent& key) {
  VornWindowKeyEvent event(type, key);
  event.SetEventObject(this);
  GetEventHandler()->ProcessEvent(event);
}

void VornWindow::OnVornKeyDown(wxKeyEvent& event) {
  if (!m_bForwardKeyDown) {
    event.Skip();
    return;
  }
  SendKeyEvent(VORNEVT_KEY_DOWN, event);
}

void VornWindow::OnVornKeyUp(wxKeyEvent& event) {
  SendKeyEvent(VORNEVT_KEY_UP, event);
}

// ---------------------------------------------------------------------------

VornPanel::VornPanel(int x, int y, wxWindow* parent, int id, long style) {
  VornPanel::Create(x, y, parent, id, style);
}

VornPanel::VornPanel(int x, int y, int w, int h, wxWindow* parent, int id, long style) {
  VornPanel::Create(x, y, w, h, parent, id, style);
}

VornPanel::~VornPanel() {
  VornPanel::Clear();
}

bool VornPanel::Create(int x, int y, wxWindow* parent, int id, long style) {
  return VornWindow::Create(x, y, parent, id, style);
}

bool VornPanel::Create(int x, int y, int w, int h, wxWindow* parent, int id, long style) {
  return VornWindow::Create(x, y, w, h, parent, id, style);
}

void VornPanel::Clear() {
  VornWindow::Clear();
}

// clang-format off
wxBEGIN_EVENT_TABLE(VornWindow, wxWindow)
  EVT_PAINT(VornWindow::OnPaint)
  EVT_ERASE_BACKGROUND(VornWindow::OnEraseBackground)
  EVT_KEY_UP(VornWindow::OnVornKeyUp)
  EVT_KEY_DOWN(VornWindow::OnVornKeyDown)
  EVT_MOUSE_CAPTURE_LOST(VornWindow::OnMouseCaptureLost)
wxEND_EVENT_TABLE()
