// The toggle that opens and closes a pop-up box in the tree.
#include "vorn/VUIControls.h"

VornTreePopToggleButton::VornTreePopToggleButton(VUITreePopControl* owner,
                                                 const VornwxBitmapCache* images, int x, int y,
                                                 wxWindow* parent, int id)
    : VornButton(images, x, y, parent, id, nullptr), m_pOwner(owner) {}

void VornTreePopToggleButton::OnMouseButton() {
  VornButton::OnMouseButton();
  if (!m_pOwner || !IsRelease() || !GetMouseOver()) return;
  // The owner sets this button's state with the box's.
  m_pOwner->SetOpen(!GetOn());
  Redraw();
}
