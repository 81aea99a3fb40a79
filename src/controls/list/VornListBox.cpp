// The closed list box: the chosen item's text on the skin's background, a
// press opens the pop-up list.
#include "vorn/VornListBox.h"

#include <wx/dcclient.h>
#include <wx/dcmemory.h>

#include "VornListBoxTexts.h"

using namespace vorn_list_texts;

namespace {
// The 12-point Swiss face used when the host gives no font.
wxFont DefaultListFont() {
  return wxFont(12, wxFONTFAMILY_SWISS, wxFONTSTYLE_NORMAL, wxFONTWEIGHT_NORMAL, false, "");
}
}  // namespace

VornListBox::VornListBox() : m_font(DefaultListFont()) {}

VornListBox::VornListBox(VornListBoxInfo& info, int x, int y, wxWindow* parent, int id,
                         VornControlGroup* group, long style)
    : VornListBox() {
  Create(info, x, y, parent, id, group, style);
}

VornListBox::VornListBox(VornListBoxInfo& info, int x, int y, wxWindow* parent, wxFont& font,
                         int id, VornControlGroup* group, long style)
    : VornListBox() {
  Create(info, x, y, parent, font, id, group, style);
}

VornListBox::~VornListBox() {
  HideExpandedBox();
}

bool VornListBox::Create(VornListBoxInfo& info, int x, int y, wxWindow* parent, int id,
                         VornControlGroup* group, long style) {
  m_font = DefaultListFont();
  m_bFontGiven = false;
  return Setup(info, x, y, parent, id, group, style);
}

bool VornListBox::Create(VornListBoxInfo& info, int x, int y, wxWindow* parent, wxFont& font,
                         int id, VornControlGroup* group, long style) {
  m_font = font;
  m_bFontGiven = true;
  return Setup(info, x, y, parent, id, group, style);
}

bool VornListBox::Setup(VornListBoxInfo& info, int x, int y, wxWindow* parent, int id,
                        VornControlGroup* group, long style) {
  TakeInfo(info);
  m_pImages = info.bitmaps;
  m_textRect = wxRect(info.textX, info.textY, info.textWidth, info.textHeight);
  m_selected = -1;
  m_shownText.clear();
  const int w = m_pImages ? std::max(m_pImages->GetWidth(), 1) : info.textX + info.textWidth;
  const int h = m_pImages ? std::max(m_pImages->GetHeight(), 1) : info.textY + info.textHeight;
  const bool ok = VornControl::Create(x, y, w, h, parent, id, group, style);
  if (ok) SetFont(m_font);
  return ok;
}

void VornListBox::SetSelected(int index, bool notify) {
  VornListBoxCallback::SetSelected(index, notify);
}

bool VornListBox::Show(bool show) {
  // Back from the pop-up: the press that opened it never saw its release.
  if (show && !m_pExpanded) {
    m_bMouseDownLeft = false;
    m_bOver = false;
    Refresh(false);
  }
  return VornControl::Show(show);
}

// ---- pointer --------------------------------------------------------------------

void VornListBox::OnMouseButton() {
  if (!GetMouseDownLeft() || !GetEnabled() || m_pExpanded) return;
  if (m_pDisplayCallback) m_pDisplayCallback->UpDateData(this);
  OpenExpanded(GetWidth(), m_font, m_bFontGiven);
}

void VornListBox::OnMouseEntering() {
  if (!GetEnabled()) return;
  m_bOver = true;
  Refresh(false);
}

void VornListBox::OnMouseLeaving() {
  m_bOver = false;
  Refresh(false);
}

// ---- drawing --------------------------------------------------------------------

VornString VornListBox::GetDrawnText(wxDC& dc) const {
  if (!m_bFontGiven) return m_shownText;
  dc.SetFont(m_font);
  wxString text = wxString::FromUTF8(m_shownText.c_str());
  bool cut = false;
  while (!text.empty() && m_textRect.x + dc.GetTextExtent(text).x > m_textRect.width - 4) {
    text.RemoveLast();
    cut = true;
  }
  if (cut) text += kEllipsis;
  return VornString(text.utf8_str().data());
}

void VornListBox::OnDraw(wxDC* target) {
  if (!target || GetWidth() <= 0 || GetHeight() <= 0) return;
  if (!m_backBuffer.IsOk() || m_backBuffer.GetSize() != GetSize())
    m_backBuffer.Create(GetWidth(), GetHeight());
  wxMemoryDC dc(m_backBuffer);
  dc.SetBackground(wxBrush(GetBgColour()));
  dc.Clear();
  const wxBitmap* image = nullptr;
  if (m_pImages) VornGetImageWithFallback(*m_pImages, m_bOver ? VIT_ON_MOUSE_OVER : VIT_ON, image);
  if (image && image->IsOk()) dc.DrawBitmap(*image, 0, 0, true);
  dc.SetTextForeground(m_colours.text);
  dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
  dc.SetFont(m_font);
  const wxString text = wxString::FromUTF8(GetDrawnText(dc).c_str());
  dc.SetClippingRegion(m_textRect);
  dc.DrawText(text, m_textRect.x, m_textRect.y);
  dc.DestroyClippingRegion();
  dc.SelectObject(wxNullBitmap);
  target->DrawBitmap(m_backBuffer, 0, 0, false);
}
