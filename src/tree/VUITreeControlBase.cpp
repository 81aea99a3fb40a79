// The tree editors' common part: skin fonts and colours, metrics, the
// function button and the translation of inner change hints into node hints.
// The name label is drawn in VUITreeLabel.cpp.
#include "TreeDrawing.h"
#include "VUITreeTexts.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/VUIControls.h"
#include "vorn/VornAssert.h"

namespace {

// The function type each row of the function list stands for; the
// separator (row 1) stands for none.
int FunctionTypeOfRow(int row) {
  switch (row) {
    case 0:
      return FunctionButtonPushHint::FT_WIDGET;
    case 2:
      return FunctionButtonPushHint::FT_TEXTURE;
    case 3:
      return FunctionButtonPushHint::FT_FUNCTION;
    default:
      VORN_ASSERT_TEXT(false, VUITreeTexts::kBadFunctionRow);
      return -1;
  }
}

}  // namespace

void VUITreeFuncCG::ControlSelected(unsigned int, VornControl*) {
  if (m_pOwner) m_pOwner->OnFunctionButtonPush();
}

VUITreeControlBase::VUITreeControlBase(AssetManager* assetman, VornString name, bool functionable)
    : m_pAssetManager(assetman), m_name(std::move(name)), m_functionable(functionable) {
  VORN_ASSERT_TEXT(assetman != nullptr, VUITreeTexts::kNoAssetManager);
  if (!assetman) return;
  bool val = assetman->GetFont(VUITreeTexts::kNameFont, m_nameFont);
  VORN_ASSERT_TEXT(val == true, VUITreeTexts::kLoadFailed);
  val = assetman->GetColour(VUITreeTexts::kNameColour, m_nameColour);
  VORN_ASSERT_TEXT(val == true, VUITreeTexts::kLoadFailed);
  val = assetman->GetColour(VUITreeTexts::kHighlightColour, m_highlightColour);
  VORN_ASSERT_TEXT(val == true, VUITreeTexts::kLoadFailed);
  SetNameTextSizes();
}

VUITreeControlBase::~VUITreeControlBase() {
  // The function button reports to a group of ours: it goes first.
  DestroyChildren();
}

bool VUITreeControlBase::Create(wxWindow* parent, int id, VornControlGroup* group, long style) {
  if (!VornVUIControl::Create(parent, id, group, style)) return false;
  if (m_functionable) {
    bool val = m_pAssetManager->GetFont(VUITreeTexts::kListFont, m_listFont);
    VORN_ASSERT_TEXT(val == true, VUITreeTexts::kLoadFailed);
    VornListBoxInfo info;
    val = m_pAssetManager->LoadListBoxCached(VUITreeTexts::kFunctionList, info);
    VORN_ASSERT_TEXT(val == true, VUITreeTexts::kLoadFailed);
    if (val) {
      m_pFunctionButton = new VornListButton(info, 0, 0, this, 1, &m_functionGroup);
      m_pFunctionButton->SetDisplayCallback(this);
      UpDateData(m_pFunctionButton);
      m_pFunctionButton->SetSelected(0, false);
      PlaceFunctionButton();
      m_pFunctionButton->Show();
    }
  }
  m_bCreated = true;
  return true;
}

// ---- metrics -----------------------------------------------------------------

int VUITreeControlBase::GetAllignmentPt() {
  return m_nameWidth + kNameGap;
}

int VUITreeControlBase::GetMaxWidth() {
  return GetAllignmentPt() + EditorWidth() + (m_functionable ? kFunctionSpace : 0);
}

int VUITreeControlBase::GetMaxHeight() {
  return kHeight;
}

void VUITreeControlBase::SetNameTextSizes() {
  m_nameWidth = vorn_tree::MeasureText(wxString::FromUTF8(m_name.c_str()), m_nameFont).x;
}

void VUITreeControlBase::SetParamName(const VornString& name) {
  m_name = name;
  SetNameTextSizes();
  InvalidateLabel();
  Refresh(false);
}

void VUITreeControlBase::PlaceFunctionButton() {
  if (!m_pFunctionButton) return;
  const wxSize size = m_pFunctionButton->GetSize();
  m_pFunctionButton->Move(GetMaxWidth() - kFunctionSpace + (kFunctionSpace - size.x) / 2,
                          RowTop(size.y));
}

wxColour VUITreeControlBase::BackgroundColour() const {
  return CtoWxC(GetBackgroundCol());
}

int VUITreeControlBase::GetNodeId() {
  VornVUIControlNode* node = GetVUIControlNode();
  return node ? node->GetNodeID() : -1;
}

void VUITreeControlBase::Relayout() {
  if (VornVUIControlNode* node = GetVUIControlNode())
    if (VornNode* root = node->GetRoot()) root->Refresh();
}

// ---- the function button -------------------------------------------------------

void VUITreeControlBase::UpDateData(VornListButton* button) {
  VORN_ASSERT_TEXT(m_functionable, VUITreeTexts::kNotFunctionable);
  if (!button) return;
  const int selected = button->GetSelected();
  button->ClearAll();
  button->Append(VUITreeTexts::kWidget, nullptr);
  button->Append();
  button->Append(VUITreeTexts::kTexture, nullptr);
  button->Append(VUITreeTexts::kFunction, nullptr);
  // Refilling keeps the row the user chose last.
  if (selected >= 0 && selected < button->GetCount()) button->SetSelected(selected, false);
}

void VUITreeControlBase::OnFunctionButtonPush() {
  VORN_ASSERT_TEXT(m_functionable, VUITreeTexts::kNotFunctionable);
  if (!m_pFunctionButton) return;
  const int type = FunctionTypeOfRow(m_pFunctionButton->GetSelected());
  FunctionButtonPushHint hint(GetNodeId(), type, FunctionButtonPushHint::FT_WIDGET);
  if (type > FunctionButtonPushHint::FT_WIDGET && GetGroup()) GetGroup()->Update(0, this, &hint);
}

// ---- reports ---------------------------------------------------------------------

void VUITreeControlBase::NotifyParentGroup(unsigned int, VornControl* source,
                                           VornControlHint* hint) {
  if (source == this || !hint || !GetGroup()) return;
  if (dynamic_cast<VUIControlChanging*>(hint)) {
    if (!m_bChanging) {
      m_bChanging = true;
      InvalidateLabel();
      Refresh(false);
    }
    NodeChangingHint node(GetNodeId());
    GetGroup()->Update(0, this, &node);
  } else if (dynamic_cast<VUIControlChanged*>(hint)) {
    if (m_bChanging) {
      m_bChanging = false;
      InvalidateLabel();
      Refresh(false);
    }
    NodeChangedHint node(GetNodeId());
    GetGroup()->Update(0, this, &node);
  }
}

bool VUITreeControlBase::IsInner(const VornControl* source) const {
  return source && source != this && source->GetParent() == this;
}

void VUITreeControlBase::OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) {
  // The tree's group brings the other leaves' hints too: only our own
  // editors' changes are ours to pass on.
  if (IsInner(source)) NotifyParentGroup(id, source, hint);
}
