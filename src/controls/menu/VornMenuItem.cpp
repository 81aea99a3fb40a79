// The menu's windowless entries: geometry, highlight tracking, the mark
// image's fallback and drawing, and the four kinds of entry.
#include <wx/dcmemory.h>

#include "MenuTexts.h"
#include "vorn/VornAssert.h"
#include "vorn/VornControlGroup.h"
#include "vorn/VornMenu.h"

using namespace vorn_menu_texts;

VornMenuItem::~VornMenuItem() = default;

bool VornMenuItem::Create(wxWindow* host, int x, int y, int w, int h, int id,
                          VornControlGroup* group, const VornwxBitmapCache* marks) {
  m_pHostWindow = host;
  m_pMarks = marks;
  // The menu is a frame, not a toolkit window: the entries have no
  // windowless host and the menu redraws them itself.
  VirtualButton::Create(nullptr, false, x, y, w, h, nullptr, nullptr, static_cast<unsigned int>(id),
                        group);
  m_bitmap = wxBitmap(std::max(w, 1), std::max(h, 1));
  return true;
}

void VornMenuItem::SetWidth(int w) {
  SetSize(w, GetHeight());
  m_bitmap = wxBitmap(std::max(w, 1), std::max(GetHeight(), 1));
}

void VornMenuItem::Reset() {
  SetHighlight(false);
}

void VornMenuItem::RecalcState() {
  if (m_bOn)
    m_state = m_bHighlight ? VIT_ON_MOUSE_OVER : VIT_ON;
  else
    m_state = m_bHighlight ? VIT_OFF_MOUSE_OVER : VIT_OFF;
  VirtualControl::RecalcState();
}

void VornMenuItem::SetOn(bool on) {
  m_bOn = on;
}

bool VornMenuItem::InSide(int, int) {
  return false;
}

void VornMenuItem::Status(int, int) {}

void VornMenuItem::SetColours(wxColour normalBackground, wxColour text,
                              wxColour highlightBackground) {
  m_normal = normalBackground;
  m_textColour = text;
  m_highlight = highlightBackground;
  m_current = m_normal;
}

void VornMenuItem::GetPosition(int& x, int& y) const {
  x = GetPosX();
  y = GetPosY();
}

bool VornMenuItem::Contains(int x, int y) const {
  return x > GetPosX() && x < GetPosX() + GetWidth() && y > GetPosY() &&
         y < GetPosY() + GetHeight();
}

void VornMenuItem::SetHighlight(bool on) {
  m_bHighlight = on;
  m_current = on ? m_highlight : m_normal;
  m_bDirty = true;
}

void VornMenuItem::TrackHighlight(int x, int y) {
  const bool inside = Contains(x, y);
  if (inside && !m_bHighlight)
    SetHighlight(true);
  else if (!inside && m_bHighlight)
    SetHighlight(false);
}

bool VornMenuItem::ReportIfInside(int x, int y) {
  if (!Contains(x, y)) return false;
  if (m_pControlGroup) m_pControlGroup->ControlSelected(GetId(), this);
  return true;
}

bool VornMenuItem::GetImageInfo(WallpaperImageInfo<wxBitmap>& info) {
  VORN_ASSERT_TEXT(m_pMarks != nullptr, kMarksNeeded);
  info = WallpaperImageInfo<wxBitmap>();
  if (!m_pMarks) return false;
  if (m_bDirty) RecalcState();
  // Down falls back to mouse-over, then to plain; plain is the last try.
  for (VORNIMAGETYPE state = m_state; state != VIT_NONE; state = VornNextFallbackState(state)) {
    if (m_pMarks->GetImageFromWallpaper(state, info) && info.bitmap) return true;
  }
  info = WallpaperImageInfo<wxBitmap>();
  return false;
}

void VornMenuItem::OnDraw(wxMemoryDC* target) {
  VORN_ASSERT(target != nullptr);
  if (!target || !m_bitmap.IsOk()) return;
  RecalcState();
  {
    wxMemoryDC dc(m_bitmap);
    dc.SetBackground(wxBrush(m_current));
    dc.Clear();
    if (m_font.IsOk()) dc.SetFont(m_font);
    dc.SetTextBackground(m_bHighlight ? m_highlight : m_normal);
    dc.SetTextForeground(m_textColour);
    dc.SetBackgroundMode(wxBRUSHSTYLE_SOLID);
    DrawContent(dc);
  }
  wxMemoryDC source;
  source.SelectObjectAsSource(m_bitmap);
  target->Blit(GetPosX(), GetPosY(), GetWidth(), GetHeight(), &source, 0, 0, wxCOPY, false);
}

void VornMenuItem::DrawContent(wxDC& dc) {
  dc.DrawText(m_text, kTextX, 0);
}

// ---- the four kinds --------------------------------------------------------------

bool VornMenuTextEntry::InSide(int x, int y) {
  return ReportIfInside(x, y);
}

void VornMenuTextEntry::Status(int x, int y) {
  TrackHighlight(x, y);
}

bool VornMenuRadioEntry::InSide(int x, int y) {
  if (!ReportIfInside(x, y)) return false;
  SetOn(true);
  return true;
}

void VornMenuRadioEntry::Status(int x, int y) {
  TrackHighlight(x, y);
}

void VornMenuRadioEntry::DrawContent(wxDC& dc) {
  VornMenuItem::DrawContent(dc);
  WallpaperImageInfo<wxBitmap> info;
  if (!m_pMarks || !GetImageInfo(info) || !info.bitmap->IsOk()) return;
  // The mark keeps its alpha, so it sits on either background.
  const wxBitmap mark = info.bitmap->GetSubBitmap(wxRect(info.x, info.y, info.width, info.height));
  dc.DrawBitmap(mark, 0, kMarkY, true);
}

bool VornMenuTitleEntry::InSide(int, int) {
  return false;
}

void VornMenuTitleEntry::Status(int, int) {}

void VornMenuTitleEntry::DrawContent(wxDC& dc) {
  dc.SetTextBackground(m_current);
  dc.DrawText(m_text, kTitleX, 0);
}

bool VornMenuBreakEntry::InSide(int, int) {
  return false;
}

void VornMenuBreakEntry::Status(int, int) {}

void VornMenuBreakEntry::DrawContent(wxDC& dc) {
  dc.SetPen(wxPen(m_textColour, 1, wxPENSTYLE_SOLID));
  const int h = GetHeight() / 2;
  dc.DrawLine(0, h, GetWidth(), h);
}
