// The root: fixed alignment line, root control and the node registry.
#include <algorithm>

#include "TreeTexts.h"
#include "vorn/VornAssert.h"
#include "vorn/VornNode.h"

using namespace vorn_tree;

VornTreeRootNode::VornTreeRootNode(int alignment, Color background, AssetManager* assetManager)
    : m_rootAllignment(alignment), m_pAssetManager(assetManager) {
  m_pRootControl = std::make_unique<VornVUITreeRootControl>(this);
  m_pRootControl->SetBackgroundCol(background);
  m_nodeID = 0;
  m_nextID = 1;
  m_bVisible = false;
}

VornTreeRootNode::~VornTreeRootNode() {
  // Children's windows live inside the root control: they go first.
  m_registry.clear();
  DeleteAllLeafNodes();
  m_pRootControl.reset();
}

void VornTreeRootNode::SetTreeControl(VornMainVUITreeControl* tree) {
  m_pTreeControl = tree;
  if (tree && !m_pRootControl->GetHandle()) m_pRootControl->Create(tree, wxID_ANY, nullptr);
}

Color VornTreeRootNode::GetBackgroundCol() const {
  return m_pRootControl->GetBackgroundCol();
}

Color VornTreeRootNode::GetLineCol() const {
  return m_pRootControl->GetLineCol();
}

VornVUIControl* VornTreeRootNode::GetVornVUIControl() {
  return m_pRootControl.get();
}

// ---- the registry ------------------------------------------------------------------

void VornTreeRootNode::Register(VornNode* node) {
  VORN_ASSERT_TEXT(node && node->GetNodeID() == -1, kNodeUnregistered);
  if (!node || node->GetNodeID() != -1) return;
  node->SetNodeID(m_nextID++);
  m_registry.push_back(node);
}

void VornTreeRootNode::Deregister(VornNode* node) {
  if (!node || node->GetNodeID() < 1) return;
  // Ids grow with registration, so the registry is sorted by id; a slot is
  // cleared rather than erased so that deleting many nodes stays linear.
  const int id = node->GetNodeID();
  const auto it = std::lower_bound(
      m_registry.begin(), m_registry.end(), id,
      [](VornNode* entry, int wanted) { return entry == nullptr || entry->GetNodeID() < wanted; });
  auto slot = std::find(it, m_registry.end(), node);
  if (slot == m_registry.end()) slot = std::find(m_registry.begin(), m_registry.end(), node);
  if (slot == m_registry.end()) return;
  *slot = nullptr;
  ++m_deregistered;
  if (m_deregistered * 2 > static_cast<int>(m_registry.size())) Compact();
}

void VornTreeRootNode::Compact() {
  m_registry.erase(std::remove(m_registry.begin(), m_registry.end(), nullptr), m_registry.end());
  m_deregistered = 0;
}

const std::vector<VornNode*>& VornTreeRootNode::GetNodeList() {
  if (m_deregistered) Compact();
  return m_registry;
}

VornNode* VornTreeRootNode::GetNodeFromVornControlID(int id) {
  for (VornNode* node : m_registry) {
    if (!node) continue;
    VornVUIControl* control = node->GetVornVUIControl();
    if (control && control->GetId() == id) return node;
  }
  return nullptr;
}

// ---- alignment and layout -------------------------------------------------------------

void VornTreeRootNode::ResetAllign(int alignment) {
  m_rootAllignment = alignment;
}

int VornTreeRootNode::GetRealTreeAllign() {
  return VornTreeNode::GetAllignmentPoint();
}

int VornTreeRootNode::GetRealTreeWidth() {
  return VornTreeNode::GetWidth();
}

int VornTreeRootNode::GetAllignmentPoint() {
  return m_rootAllignment;
}

int VornTreeRootNode::GetWidth() {
  return m_rootAllignment - GetRealTreeAllign() + GetRealTreeWidth();
}

void VornTreeRootNode::SetDisplay(int x1, int y1, int x2, int y2) {
  VORN_ASSERT_TEXT(m_pRootControl->GetHandle() != nullptr, kWindowExists);
  m_rx1 = x1;
  m_ry1 = y1;
  m_rx2 = x2;
  m_ry2 = y2;
  const int shift = m_rootAllignment - GetRealTreeAllign();
  VornTreeNode::SetDisplay(shift, 0, GetRealTreeWidth() + shift, GetHeight());
}

void VornTreeRootNode::GetNodeFromPoint(VornNode*& out, int x, int y) {
  VornTreeNode::GetNodeFromPoint(out, x - (m_rootAllignment - GetRealTreeAllign()), y);
}

void VornTreeRootNode::Refresh() {
  VORN_ASSERT_TEXT(m_pRootControl->GetHandle() != nullptr, kWindowExists);
  if (!m_pRootControl->GetHandle()) return;
  SetDisplay(m_rx1, m_ry1, m_rx2, m_ry2);
  m_pRootControl->Show(IsVisible());
  PlaceWindow(m_pRootControl.get(), m_rx1, m_ry1, m_rx2 - m_rx1, m_ry2 - m_ry1);
  const bool wasShown = m_pRootControl->IsVisible();
  // Hidden while the children move, so they do not repaint one by one.
  m_pRootControl->Show(false);
  // The children go straight to where the scroll bar shows them, so that a
  // window whose place did not change is not moved.
  if (m_pTreeControl) m_pTreeControl->SetScrollPos(m_pTreeControl->GetTargetScrollPos());
  VornTreeNode::Refresh();
  if (m_pTreeControl) m_pTreeControl->Update();
  m_pRootControl->Show(wasShown);
}

void VornTreeRootNode::CreateWindowsInView() {
  if (!IsVisible()) return;
  int top = 0;
  for (VornLeafNode* child : m_children) {
    const int bottom = top + child->GetHeight();
    auto* branch = dynamic_cast<VornBranchNode*>(child);
    if (branch && !branch->HasWindow() && InView(this, top, bottom)) branch->Refresh();
    top = bottom;
  }
}
