#include "vorn/GradientControl.h"

#include <algorithm>

#include "GradientTexts.h"
#include "vorn/AssetManager.h"
#include "vorn/ColourPicker.h"
#include "vorn/VUIControls.h"
#include "vorn/VornNode.h"
#include "vornhost/Debug.h"

using namespace GradientTexts;

namespace {

// The fixed layout, top to bottom: range bar, strip, preview, tree.
constexpr int kRangeTop = 0, kRangeHeight = 20;
constexpr int kStripTop = 22, kStripHeight = 96;
constexpr int kSummaryTop = 120, kSummaryHeight = 22;
constexpr int kTreeTop = 146;
constexpr int kTreeAlignment = 70;
constexpr int kDeleteCode = 127;   // WXK_DELETE
constexpr int kBackspaceCode = 8;  // WXK_BACK

}  // namespace

GradientControl::~GradientControl() {
  // The parts report to m_parts as they go, so they go first.
  DestroyChildren();
}

bool GradientControl::Create(AssetManager& resources, int x, int y, wxWindow* parent, int id,
                             VornControlGroup* group, long style) {
  if (!VornControl::Create(x, y, kWidth, kHeight, parent, id, group, style)) return false;
  m_pResources = &resources;
  m_parts.Register(static_cast<VornControl*>(this));

  m_pRange = new GradientRangeControl;
  m_pRange->VornControl::Create(0, kRangeTop, kWidth, kRangeHeight, this, wxID_ANY, &m_parts);
  m_pColour = new ColourControl;
  m_pColour->Create(resources, 0, kStripTop, kWidth, kStripHeight, this, wxID_ANY, &m_parts);
  m_pSummary = new GradientSummary;
  m_pSummary->Create(0, kSummaryTop, kWidth, kSummaryHeight, this, wxID_ANY, &m_parts);
  BuildTree(resources);

  wxColour bg, fg, track, window, handle;
  if (resources.GetColour(kBgColour, bg)) SetBgColour(bg);
  if (resources.GetColour(kFgColour, fg)) SetFgColour(fg);
  if (resources.GetColour(kTrackColour, track) && resources.GetColour(kWindowColour, window) &&
      resources.GetColour(kRangeHandleColour, handle))
    m_pRange->SetColours(track, window, handle);
  return true;
}

// Four sliders: the selected point's position and its red, green and blue.
void GradientControl::BuildTree(AssetManager& resources) {
  m_pTree = new VornMainVUITreeControl;
  m_pTree->Create(kTreeAlignment, &resources, 0, kTreeTop, kWidth, kHeight - kTreeTop, this,
                  wxID_ANY, &m_parts);
  VornTreeRootNode* root = m_pTree->GetTreeRoot();
  VornVUIControlNode* nodes[4] = {};
  const char* names[4] = {kPositionRow, kRedRow, kGreenRow, kBlueRow};
  for (int i = 0; i < 4; ++i) {
    const std::string shown = resources.GetMessage(names[i]);
    auto* slider =
        new VUITreeSlider(&resources, shown.empty() ? names[i] : shown, false, 0.0, 1.0, 0.0);
    nodes[i] = new VornVUIControlNode(slider, root, true);
    root->AddToEnd(nodes[i]);
  }
  m_pTree->RefreshTree();
  m_pColour->SetTreeNodes(m_pTree, nodes[0], nodes[1], nodes[2], nodes[3]);
}

void GradientControl::ForEachPart(const std::function<void(GradientControlComp*)>& f) {
  for (GradientControlComp* part :
       {static_cast<GradientControlComp*>(m_pRange), static_cast<GradientControlComp*>(m_pColour),
        static_cast<GradientControlComp*>(m_pSummary)})
    if (part) f(part);
}

void GradientControl::Bind(Gradient* gradient) {
  GradientControlComp::Bind(gradient);
  ForEachPart([gradient](GradientControlComp* part) { part->Bind(gradient); });
}

// Lets go of the gradient.
void GradientControl::Clear() {
  m_pGradient = nullptr;
  m_selected = 0;
  ForEachPart([](GradientControlComp* part) { part->Bind(static_cast<Gradient*>(nullptr)); });
}

void GradientControl::SetBgColour(const wxColour& colour) {
  VornWindow::SetBgColour(colour);
  if (m_pColour) m_pColour->SetBgColour(colour);
  if (m_pRange) m_pRange->SetBgColour(colour);
  if (m_pSummary) m_pSummary->SetBgColour(colour);
  Refresh(false);
}

void GradientControl::SetFgColour(const wxColour& colour) {
  VornWindow::SetFgColour(colour);
  if (m_pColour) m_pColour->SetFgColour(colour);
  if (m_pRange) m_pRange->SetFgColour(colour);
  if (m_pSummary) m_pSummary->SetFgColour(colour);
  Refresh(false);
}

void GradientControl::SetDirty() {
  VornControl::SetDirty();
  ForEachPart([](GradientControlComp* part) {
    part->VornControl::SetDirty();
    part->Refresh(false);
  });
}

void GradientControl::Recalc() {
  if (m_pColour) m_pColour->RecalcColours();
  if (m_pSummary) m_pSummary->RecalcColours();
  if (m_pColour) m_pColour->SetSelect(m_pColour->GetSelect());  // the tree shows the point again
  ForEachPart([](GradientControlComp* part) { part->Refresh(false); });
}

void GradientControl::DeleteKeyPressed() {
  if (m_pColour) m_pColour->DeleteKeyPressed();
}

bool GradientControl::PickColour(int screenX, int screenY, Color& colour) {
  const wxPoint at(screenX, screenY);
  if (m_chooser) return m_chooser(colour, at);
  if (!m_pResources) return false;
  VornColourDialog dialog(this, *m_pResources, colour);
  dialog.Move(at);
  const std::optional<Color> chosen = dialog.Choose();
  if (!chosen) return false;
  colour = *chosen;
  return true;
}

void GradientControl::OnDraw(wxDC* dc) {
  if (IsDirty()) RecalcState();
  dc->SetBackground(wxBrush(GetBackgroundColour()));
  dc->Clear();
}

// ---- hints ---------------------------------------------------------------------------

// A part's gradient hint goes on to the composite's own group; one from
// outside goes to the parts. A scroll request moves the displayed part.
void GradientControl::OnUpdate(unsigned int id, VornControl* sender, VornControlHint* hint) {
  if (sender == this) return;
  auto* gradientHint = dynamic_cast<GradientControlHint*>(hint);
  if (!gradientHint) return;
  const bool fromPart = sender && sender->GetParent() == this;
  ReactToHint(hint);
  if (!fromPart) {
    m_parts.Update(static_cast<unsigned int>(GetId()), this, hint);
    return;
  }
  if (m_pControlGroup) m_pControlGroup->Update(static_cast<unsigned int>(GetId()), this, hint);
  if (auto* scroll = dynamic_cast<GradientHintScroll*>(hint)) Scroll(scroll->m_bUp);
  (void)id;
}

// A tenth of the displayed width towards the hint's end, kept inside 0..1.
void GradientControl::Scroll(bool up) {
  const double width = m_displayMax - m_displayMin;
  const double shift = 0.1 * width;
  double lo, hi;
  if (up) {
    hi = std::min(1.0, m_displayMax + shift);
    lo = hi - width;
  } else {
    lo = std::max(0.0, m_displayMin - shift);
    hi = lo + width;
  }
  if (lo == m_displayMin && hi == m_displayMax) return;
  SetDisplayRange(lo, hi);
  GradientHintRange range(lo, hi);
  m_parts.Update(static_cast<unsigned int>(GetId()), this, &range);
  if (m_pControlGroup) m_pControlGroup->Update(static_cast<unsigned int>(GetId()), this, &range);
}

// ---- keys ----------------------------------------------------------------------------

void GradientControl::XOnKeyDown(VornWindowKeyEvent& event) {
  const long code = event.GetKeyCode();
  dprintf(kKeyDown, static_cast<int>(code));
  if (code == kDeleteCode || code == kBackspaceCode) DeleteKeyPressed();
  event.Skip();  // the host's panels hear the key too
}

void GradientControl::XGCOnKeyDown(wxKeyEvent& event) {
  GradientControlComp::OnKeyDown(event);
}

void GradientControl::XGCOnKeyUp(wxKeyEvent& event) {
  GradientControlComp::OnKeyUp(event);
}

// clang-format off
wxBEGIN_EVENT_TABLE(GradientControl, GradientControlComp)
  EVT_VORN_KEY_DOWN(GradientControl::XOnKeyDown)
wxEND_EVENT_TABLE()
    // clang-format on
