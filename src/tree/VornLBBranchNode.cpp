// A branch whose header carries a list: beside the name while collapsed,
// at the sub-tree's left offset while open.
#include <algorithm>

#include "TreeDrawing.h"
#include "VUITreeTexts.h"
#include "vorn/VUIControls.h"
#include "vorn/VornAssert.h"

namespace {
constexpr int kListGap = 4;  // from the alignment line to the collapsed list
}  // namespace

void VornLBBranchNodeCG::ControlSelected(unsigned int, VornControl*) {
  if (m_pOwner) m_pOwner->OnItemSelected();
}

VornLBBranchNode::VornLBBranchNode(VornTreeNode* parent, VornString name)
    : VornBranchNode(parent, std::move(name)) {}

VornLBBranchNode::~VornLBBranchNode() {
  // The list reports to our group, which goes before the header would
  // take the list with it.
  delete m_pList;
  m_pList = nullptr;
}

bool VornLBBranchNode::DoStartSequence() {
  VornVUIBranchControl* header = GetBranchControl();
  VORN_ASSERT_TEXT(header && header->GetHandle() != nullptr, VUITreeTexts::kNoHeaderWindow);
  if (!header || !header->GetHandle() || !header->GetAssetManager()) return false;
  AssetManager* assets = header->GetAssetManager();
  VornListBoxInfo info;
  bool val = assets->LoadListBoxCached(VUITreeTexts::kListScript, info);
  VORN_ASSERT_TEXT(val == true, VUITreeTexts::kLoadFailed);
  if (!val) return false;
  val = assets->GetFont(VUITreeTexts::kListFont, m_listFont);
  VORN_ASSERT_TEXT(val == true, VUITreeTexts::kLoadFailed);
  if (!m_pList) {
    m_pList = new VornListBox(info, 0, 0, header, m_listFont, wxID_ANY, &m_listGroup);
    m_pList->SetDisplayCallback(this);
  }
  // The header is wide enough for the list in either place.
  header->SetRightMargin(
      std::max(header->GetRightMargin(), static_cast<double>(m_pList->GetSize().x + kListGap)));
  OnStartUp();
  PlaceList();
  m_pList->Show();
  return true;
}

wxPoint VornLBBranchNode::GetListPosition() {
  VornVUIBranchControl* header = GetBranchControl();
  if (!header || !m_pList) return wxPoint(0, 0);
  const int h = m_pList->GetSize().y;
  const wxPoint collapsed(header->GetAllignmentPt() + kListGap,
                          (vorn_tree::kHeaderRowHeight - h) / 2);
  if (!IsExpanded()) return collapsed;
  return wxPoint(header->GetTreeOffsetX(), collapsed.y + h / 2);
}

void VornLBBranchNode::PlaceList() {
  if (m_pList) m_pList->Move(GetListPosition());
}

void VornLBBranchNode::OnExpand() {
  VornBranchNode::OnExpand();
  PlaceList();
}

void VornLBBranchNode::OnCollapse() {
  VornBranchNode::OnCollapse();
  PlaceList();
}

void VornLBBranchNode::OnStartUp() {}

void VornLBBranchNode::UpDateData(VornListBox*) {}

void VornLBBranchNode::OnItemSelected() {
  VornTreeRootNode* root = GetRoot();
  VornMainVUITreeControl* tree = root ? root->GetTreeControl() : nullptr;
  if (!tree || !tree->GetGroup()) return;
  NodeChangedHint hint(GetNodeID());
  tree->GetGroup()->Update(0, GetBranchControl(), &hint);
}
