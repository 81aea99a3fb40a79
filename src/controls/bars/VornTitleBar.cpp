// The title bar: a strip with a title that moves a window by the pointer's
// motion on the screen while dragged.
#include <wx/dc.h>

#include "vorn/VornMovieBar.h"

wxBEGIN_EVENT_TABLE(VornTitleBar, VornControl) EVT_SET_FOCUS(VornTitleBar::OnFocus)
    EVT_KILL_FOCUS(VornTitleBar::OnFocus) wxEND_EVENT_TABLE()

        VornTitleBar::VornTitleBar(wxString title, int x, int y, int w, int h, wxWindow* parent,
                                   int id, long style) {
  VornTitleBar::Create(title, x, y, w, h, parent, id, style);
}

bool VornTitleBar::Create(wxString title, int x, int y, int w, int h, wxWindow* parent, int id,
                          long style) {
  m_title = title;
  return VornControl::Create(x, y, w, h, parent, id, nullptr, style);
}

void VornTitleBar::SetTitle(wxString title) {
  m_title = title;
  Refresh(false);
}

void VornTitleBar::SetTitlePos(int x, int y) {
  m_titleX = x;
  m_titleY = y;
  Refresh(false);
}

bool VornTitleBar::SetFont(const wxFont& font) {
  m_font = font;
  Refresh(false);
  return VornControl::SetFont(font);
}

wxWindow* VornTitleBar::GetMovedWindow() const {
  return m_pMoved ? m_pMoved : GetParent();
}

void VornTitleBar::OnFocus(wxFocusEvent&) {}

void VornTitleBar::OnMouseButton() {
  if (GetMouseDownLeft()) {
    m_dragging = 1;
    CaptureMouse();
    int x = 0, y = 0;
    GetLastDownPos(x, y);
    ClientToScreen(&x, &y);
    m_lastX = x;
    m_lastY = y;
  } else {
    ReleaseMouse();
    m_dragging = 0;
  }
}

void VornTitleBar::OnMouseMove(int x, int y) {
  wxWindow* moved = GetMovedWindow();
  if (!m_dragging || !moved) return;
  ClientToScreen(&x, &y);
  const int dx = x - m_lastX, dy = y - m_lastY;
  m_lastX = x;
  m_lastY = y;
  if (dx != 0 || dy != 0) moved->Move(moved->GetPosition() + wxPoint(dx, dy));
}

void VornTitleBar::OnDraw(wxDC* dc) {
  if (!dc) return;
  dc->SetBackground(wxBrush(GetBackgroundColour()));
  dc->Clear();
  if (m_font.IsOk()) dc->SetFont(m_font);
  dc->SetTextForeground(GetFgColour().IsOk() ? GetFgColour() : GetForegroundColour());
  dc->SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
  dc->DrawText(m_title, m_titleX, m_titleY);
  if (IsDirty()) RecalcState();
}
