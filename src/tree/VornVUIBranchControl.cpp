// The header of a branch: toggle button and name, with the sub-tree's
// windows below it.
#include <algorithm>

#include "TreeDrawing.h"
#include "TreeTexts.h"
#include "vorn/AssetManager.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/VornAssert.h"
#include "vorn/VornNode.h"

using namespace vorn_tree;

VornVUIBranchControl::VornVUIBranchControl(AssetManager* assetManager, VornString name,
                                           VornBranchNode* branch)
    : m_pAssetManager(assetManager), m_name(std::move(name)), m_pBranch(branch) {
  VORN_ASSERT_TEXT(assetManager != nullptr, kAssetManagerNotNull);
  if (!assetManager) return;
  bool val = assetManager->GetFont(kNameFont, m_nameFont);
  VORN_ASSERT_TEXT(val == true, kLoaded);
  val = assetManager->GetColour(kNameColour, m_nameColour);
  VORN_ASSERT_TEXT(val == true, kLoaded);
}

VornVUIBranchControl::~VornVUIBranchControl() {
  // The button is a child window: delete it before wx would.
  m_pToggle.reset();
}

bool VornVUIBranchControl::Create(wxWindow* parent, int id, VornControlGroup* group, long style) {
  if (!VornVUIControl::Create(parent, id, group, style)) return false;
  const VornwxBitmapCache* images = nullptr;
  Asset* asset = nullptr;
  if (m_pAssetManager && m_pAssetManager->GetAsset(kToggleImages, asset))
    m_pAssetManager->LoadImagesCached(kToggleImages, images);
  const BranchHeaderGeometry g =
      ComputeBranchHeader(GetAllignmentPt(), GetNameWidth(), 0, GetMaxWidth());
  m_pToggleGroup = std::make_unique<VornControlGroup>();
  m_pToggle = std::make_unique<VornBranchToggleButton>(m_pBranch);
  m_pToggle->Create(images, g.toggle.x, g.toggle.y, g.toggle.width, g.toggle.height, this, wxID_ANY,
                    m_pToggleGroup.get());
  m_pToggle->SetOn(m_pBranch && m_pBranch->IsExpanded());
  return true;
}

// ---- metrics ----------------------------------------------------------------------

void VornVUIBranchControl::SetNameTextSizes() {
  m_nameWidth = MeasureText(wxString::FromUTF8(m_name.c_str()), m_nameFont).x;
}

int VornVUIBranchControl::GetNameWidth() {
  if (m_nameWidth < 0) SetNameTextSizes();
  return m_nameWidth;
}

int VornVUIBranchControl::GetAllignmentPt() {
  return GetNameWidth() + 20;
}

int VornVUIBranchControl::GetTreeOffsetX() {
  return static_cast<int>(GetAllignmentPt() + m_indent);
}

int VornVUIBranchControl::GetTreeOffsetY() {
  return static_cast<int>(m_topOffset + 18.0 + m_expGap);
}

int VornVUIBranchControl::GetMaxWidth() {
  const int collapsed = static_cast<int>(GetAllignmentPt() + m_indent + m_rightMargin);
  if (!m_pBranch || !m_pBranch->IsExpanded()) return collapsed;
  const int open =
      static_cast<int>(m_pBranch->GetTree()->GetWidth() + GetAllignmentPt() + m_indent);
  return std::max(collapsed, open);
}

int VornVUIBranchControl::GetMaxHeight() {
  if (!m_pBranch || !m_pBranch->IsExpanded()) return kHeaderRowHeight;
  return static_cast<int>(m_pBranch->GetTree()->GetHeight() + 18.0 + m_topOffset + m_expGap);
}

VornMainVUITreeControl* VornVUIBranchControl::FindTreeControl() {
  VornTreeRootNode* root = m_pBranch ? m_pBranch->GetRoot() : nullptr;
  return root ? root->GetTreeControl() : nullptr;
}

// ---- drawing ------------------------------------------------------------------------

void VornVUIBranchControl::OnDraw(wxDC* dc) {
  if (!dc) return;
  int w = 0;
  int h = 0;
  GetSize(w, h);
  dc->SetFont(m_nameFont.IsOk() ? m_nameFont : *wxNORMAL_FONT);
  const wxString name = wxString::FromUTF8(m_name.c_str());
  const wxSize text = dc->GetTextExtent(name);
  const BranchHeaderGeometry g = ComputeBranchHeader(GetAllignmentPt(), text.x, text.y, w);
  FillRect(*dc, wxRect(0, 0, w, h), m_backgroundCol);
  FillRect(*dc, g.row, GetRowBackgroundCol());
  // The line from the parent's tick into the toggle.
  dc->SetPen(wxPen(CtoWxC(m_lineCol), 1));
  dc->DrawLine(0, g.toggle.y + g.toggle.height / 2, g.toggle.x, g.toggle.y + g.toggle.height / 2);
  if (m_pBranch && m_pBranch->IsExpanded()) {
    std::vector<ConnectorRow> rows;
    VornTreeNode* tree = m_pBranch->GetTree();
    for (int i = 0; i < tree->GetSize(); ++i) {
      VornLeafNode* child = tree->GetAtPos(i);
      VornVUIControl* control = child->GetVornVUIControl();
      if (!control || !control->GetHandle()) continue;
      rows.push_back({control->GetPosX(), control->GetPosY(),
                      control->GetPosY() + std::min(control->GetHeight(), kHeaderRowHeight)});
    }
    DrawConnectors(*dc, g.stemX, g.stemTop, rows, m_lineCol);
  }
  dc->SetTextForeground(m_nameColour);
  dc->SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
  dc->DrawText(name, g.name);
}
