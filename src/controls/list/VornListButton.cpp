// A push button that opens the pop-up list; it draws like any push button
// and reports only the choice made in the pop-up.
#include <algorithm>

#include "vorn/VornListBox.h"

VornListButton::VornListButton(VornListBoxInfo& info, int x, int y, wxWindow* parent, int id,
                               VornControlGroup* group, long style) {
  Create(info, x, y, parent, id, group, style);
}

VornListButton::~VornListButton() {
  HideExpandedBox();
}

bool VornListButton::Create(VornListBoxInfo& info, int x, int y, wxWindow* parent, int id,
                            VornControlGroup* group, long style) {
  TakeInfo(info);
  m_listWidth = info.textWidth;
  m_selected = -1;
  m_shownText.clear();
  return VornPushButton::Create(info.bitmaps, x, y, parent, id, group, style);
}

int VornListButton::GetListWidth() const {
  return std::max(m_listWidth, GetWidth());
}

void VornListButton::SetSelected(int index, bool notify) {
  VornListBoxCallback::SetSelected(index, notify);
}

bool VornListButton::Show(bool show) {
  if (show && !m_pExpanded) {
    m_bMouseDownLeft = false;
    m_bMouseDownRight = false;
    m_bMouseOver = false;
    Redraw();
  }
  return VornPushButton::Show(show);
}

void VornListButton::OnMouseButton() {
  Redraw();
  if (!GetMouseDown() || !GetEnabled() || m_pExpanded) return;
  if (m_pDisplayCallback) m_pDisplayCallback->UpDateData(this);
  OpenExpanded(GetListWidth(), m_font, false);
}
