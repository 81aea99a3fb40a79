// The tree control's scroll bar.
#include "vorn/VornNode.h"

VornTreeRootScrollControl::~VornTreeRootScrollControl() = default;

void VornTreeRootScrollControl::OnSliderChange() {
  if (m_pTree) m_pTree->Update();
}
