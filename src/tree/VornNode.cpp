// The node base and the leaf base.
#include "vorn/VornNode.h"

VornNode::VornNode() = default;

VornNode::~VornNode() = default;

void VornNode::GetNodeFromPoint(VornNode*& out, int, int) {
  out = this;
}

void VornNode::SetVisible(bool visible) {
  m_bVisible = visible;
}

VornTreeRootNode* VornNode::GetRoot() {
  return m_pParent ? m_pParent->GetRoot() : nullptr;
}

VornLeafNode::~VornLeafNode() = default;

void VornLeafNode::SetPosition(POSITION position) {
  m_position = position;
}
