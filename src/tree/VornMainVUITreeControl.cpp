// The outer tree window: the scroll bar at the left, the tree to its right.
#include <algorithm>
#include <cmath>

#include "TreeDrawing.h"
#include "TreeTexts.h"
#include "vorn/AssetManager.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/VornAssert.h"
#include "vorn/VornNode.h"

using namespace vorn_tree;

namespace {
// The tree starts this far right of the scroll bar's right edge.
constexpr int kTreeGap = 25;
// Pixels of tree per wheel notch.
constexpr double kWheelStep = 3.0 * kHeaderRowHeight;

// The bar leaves 10 pixels above and below it; a tree lower than that keeps
// a one-pixel bar (GTK refuses negative sizes).
int BarHeight(int treeHeight) {
  return std::max(1, treeHeight - 20);
}

// The view's right edge: a tree narrower than the bar and its gap keeps a
// one-pixel view.
int ViewRight(int treeWidth, int barWidth) {
  return std::max(treeWidth, barWidth + kTreeGap + 1);
}

template <class C>
C ReadColour(AssetManager* assets, const char* name) {
  C colour;
  const bool val = assets->GetColour(name, colour);
  VORN_ASSERT_TEXT(val == true, kLoaded);
  return colour;
}
}  // namespace

wxBEGIN_EVENT_TABLE(VornMainVUITreeControl, VornControl)
    EVT_MOUSEWHEEL(VornMainVUITreeControl::OnWheel) wxEND_EVENT_TABLE()

        VornMainVUITreeControl::VornMainVUITreeControl() = default;

VornMainVUITreeControl::~VornMainVUITreeControl() {
  // The tree's windows are children of this one: they go before wx deletes
  // children itself.
  m_pRoot.reset();
  m_pScrollBar.reset();
}

bool VornMainVUITreeControl::Create(int alignment, AssetManager* assetManager, int x, int y, int w,
                                    int h, wxWindow* parent, int id, VornControlGroup* group,
                                    long style) {
  const bool created = VornControl::Create(x, y, w, h, parent, id, group, style);
  VORN_ASSERT_TEXT(assetManager != nullptr, kAssetManagerNotNull);
  if (!created || !assetManager) return false;

  const auto fg = ReadColour<wxColour>(assetManager, kScrollBarFg);
  const auto bg = ReadColour<wxColour>(assetManager, kScrollBarBg);
  const auto mo = ReadColour<wxColour>(assetManager, kScrollBarMo);
  m_pScrollGroup = std::make_unique<VornControlGroupValue>();
  m_pScrollBar = std::make_unique<VornTreeRootScrollControl>();
  m_pScrollBar->Create(fg, bg, mo, 10, 10, BarHeight(h), this, wxID_ANY, m_pScrollGroup.get());
  m_pScrollBar->SetSliderVal(0.0, false);
  m_pScrollBar->Show(true);
  m_pScrollBar->SetRoot(this);

  m_pRoot = std::make_unique<VornTreeRootNode>(alignment, Color(), assetManager);
  m_pRoot->SetTreeControl(this);
  SetBackgroundCol(ReadColour<Color>(assetManager, kTreeBg));
  SetLineCol(ReadColour<Color>(assetManager, kTreeFg));
  SetMouseOverCol(ReadColour<Color>(assetManager, kTreeMo));
  // The tree is shown from the start: nodes built under it take its
  // visibility.
  m_pRoot->SetVisible(true);
  PlaceRoot(w, h);
  Update();
  return true;
}

void VornMainVUITreeControl::PlaceRoot(int w, int h) {
  const int left = m_pScrollBar->GetWidth() + kTreeGap;
  const int right = ViewRight(w, m_pScrollBar->GetWidth());
  m_pRoot->SetDisplay(left, 0, right, h);
  m_pRoot->GetRootControl()->SetWindowPos(left, 0, right - left, h);
}

// ---- operations ------------------------------------------------------------------

void VornMainVUITreeControl::SetTreeSize(int w, int h) {
  SetSize(w, h);
  const double value = m_pScrollBar->GetSliderVal();
  m_pScrollBar->SetSize(m_pScrollBar->GetWidth(), BarHeight(h));
  m_pScrollBar->MakeTabImages();
  m_pScrollBar->SetSliderVal(value, false);
  m_pScrollBar->Refresh(false);
  m_pRoot->SetDisplay(m_pScrollBar->GetWidth() + kTreeGap, 0,
                      ViewRight(w, m_pScrollBar->GetWidth()), h);
  Update();
  RefreshTree();
}

void VornMainVUITreeControl::Update() {
  if (!m_pRoot || !m_pScrollBar) return;
  const int treeHeight = m_pRoot->GetHeight();
  VornVUITreeRootControl* view = m_pRoot->GetRootControl();
  const int viewHeight = view->GetHeight();
  if (treeHeight <= viewHeight) {
    if (m_pScrollBar->IsVisible()) m_pScrollBar->Show(false);
    // Nothing left to scroll: bring a scrolled tree back to its top.
    if (m_scrollPos != 0) {
      view->ScrollWindow(0, m_scrollPos);
      m_scrollPos = 0;
    }
    return;
  }
  if (!m_pScrollBar->IsVisible()) {
    m_pScrollBar->SetSliderVal(0.0, false);
    m_pScrollBar->Show(true);
  }
  const double fraction = static_cast<double>(viewHeight) / treeHeight;
  if (fraction != m_pScrollBar->GetFractionVal()) m_pScrollBar->SetFractionVal(fraction);
  const int pos = static_cast<int>(m_pScrollBar->GetSliderVal() * (treeHeight - viewHeight) + 0.5);
  if (pos != m_scrollPos) {
    const int old = m_scrollPos;
    m_scrollPos = pos;
    view->ScrollWindow(0, -(pos - old));
    m_pRoot->CreateWindowsInView();
  }
}

int VornMainVUITreeControl::GetTargetScrollPos() {
  if (!m_pRoot || !m_pScrollBar) return 0;
  const int treeHeight = m_pRoot->GetHeight();
  const int viewHeight = m_pRoot->GetRootControl()->GetHeight();
  // Update shows a hidden bar at the top.
  if (treeHeight <= viewHeight || !m_pScrollBar->IsVisible()) return 0;
  return static_cast<int>(m_pScrollBar->GetSliderVal() * (treeHeight - viewHeight) + 0.5);
}

void VornMainVUITreeControl::RefreshTree() {
  if (m_pRoot) m_pRoot->Refresh();
}

void VornMainVUITreeControl::ScrollBy(double pixels) {
  if (!m_pRoot || !m_pScrollBar) return;
  const int range = m_pRoot->GetHeight() - m_pRoot->GetRootControl()->GetHeight();
  if (range <= 0) return;
  m_pScrollBar->SetSliderVal(std::clamp(m_pScrollBar->GetSliderVal() + pixels / range, 0.0, 1.0),
                             true);
}

void VornMainVUITreeControl::OnWheel(wxMouseEvent& event) {
  if (event.GetWheelAxis() != wxMOUSE_WHEEL_VERTICAL || event.GetWheelDelta() == 0) {
    event.Skip();
    return;
  }
  ScrollBy(-static_cast<double>(event.GetWheelRotation()) / event.GetWheelDelta() * kWheelStep);
}

// ---- colours -------------------------------------------------------------------------

namespace {
template <class F>
void ForEveryControl(VornTreeRootNode* root, F&& f) {
  if (!root) return;
  f(root->GetRootControl());
  for (VornNode* node : root->GetNodeList())
    if (VornVUIControl* control = node->GetVornVUIControl()) f(control);
}
}  // namespace

void VornMainVUITreeControl::SetBackgroundCol(const Color& colour) {
  m_backgroundCol = colour;
  SetBgColour(colour);
  ForEveryControl(m_pRoot.get(), [&](VornVUIControl* c) { c->SetBackgroundCol(colour); });
}

void VornMainVUITreeControl::SetLineCol(const Color& colour) {
  m_lineCol = colour;
  ForEveryControl(m_pRoot.get(), [&](VornVUIControl* c) { c->SetLineCol(colour); });
}

void VornMainVUITreeControl::SetMouseOverCol(const Color& colour) {
  m_mouseOverCol = colour;
  ForEveryControl(m_pRoot.get(), [&](VornVUIControl* c) { c->SetMouseOverCol(colour); });
}

// ---- the row under the pointer -----------------------------------------------------------

void VornMainVUITreeControl::SetHighlightedRow(VornVUIControl* control) {
  VornVUIControl* old = m_pHighlighted.get();
  if (old == control) return;
  if (old) old->SetRowHighlight(false);
  m_pHighlighted = control;
  if (control) control->SetRowHighlight(true);
}

void VornMainVUITreeControl::OnDraw(wxDC* dc) {
  if (!dc) return;
  int w = 0;
  int h = 0;
  GetSize(w, h);
  FillRect(*dc, wxRect(0, 0, w, h), m_backgroundCol);
}
