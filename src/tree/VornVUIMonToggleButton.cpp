// The toggle that opens and closes a table editor's box.
#include "vorn/VUIControls.h"

VornVUIMonToggleButton::VornVUIMonToggleButton(VUITreeMonsterBox* owner,
                                               const VornwxBitmapCache* images, int x, int y,
                                               wxWindow* parent, int id)
    : VornButton(images, x, y, parent, id, nullptr), m_pOwner(owner) {}

void VornVUIMonToggleButton::OnMouseButton() {
  VornButton::OnMouseButton();
  if (!m_pOwner || !IsRelease() || !GetMouseOver()) return;
  // The owner sets this button's state with the box's.
  m_pOwner->SetOpen(!GetOn());
  Redraw();
}
