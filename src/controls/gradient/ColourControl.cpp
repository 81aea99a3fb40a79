#include <wx/dcclient.h>

#include <cmath>
#include <cstdlib>

#include "GradientTexts.h"
#include "vorn/AssetManager.h"
#include "vorn/GradientControl.h"
#include "vorn/VUIControls.h"
#include "vorn/VornAssert.h"
#include "vornhost/Debug.h"

using namespace GradientTexts;
using Geo = GradientPointGeometry;

constexpr int GradientPointGeometry::kMarkTop[3];

int GradientPointGeometry::MarkBand(int y) {
  for (int i = 0; i < 3; ++i)
    if (y >= kMarkTop[i] && y <= kMarkTop[i] + kMarkSize) return i;
  return -1;
}

namespace {

// Within a point's hit column: |px - x| < 7 and above the line to the dot.
constexpr int kHitHalfWidth = 7;
constexpr int kMarkReleaseSlack = 3;
constexpr int kHoldSlack = 1;  // pixels the pointer may stray during the hold

VUITreeSlider* SliderOf(VornVUIControlNode* node) {
  return node ? dynamic_cast<VUITreeSlider*>(node->GetVornVUIControl()) : nullptr;
}

}  // namespace

ColourControl::~ColourControl() = default;

bool ColourControl::Create(AssetManager& resources, int x, int y, int width, int height,
                           wxWindow* parent, int id, VornControlGroup* group, long style) {
  if (!VornControl::Create(x, y, width, height, parent, id, group, style)) return false;
  m_pResources = &resources;
  wxColour c;
  if (resources.GetColour(kBgColour, c)) SetBgColour(c);
  if (resources.GetColour(kFgColour, c)) SetFgColour(c);
  if (resources.GetColour(kHandleColour, c)) m_handleColour = c;
  m_bInit = true;
  return true;
}

void ColourControl::SetSpace(int left, int right) {
  m_left = left;
  m_right = right;
  SetDirty();
  Refresh(false);
}

// ---- positions ----------------------------------------------------------------

int ColourControl::GetActiveWidth() const {
  return GetClientSize().GetWidth() - m_left - m_right;
}

double ColourControl::CalcLogicalPosition(int x) const {
  const int w = GetClientSize().GetWidth();
  if (x < m_left) return m_displayMin;
  if (x > w - m_right) return m_displayMax;
  const int active = GetActiveWidth();
  if (active <= 0) return m_displayMin;
  return m_displayMin + (m_displayMax - m_displayMin) * (x - m_left) / active;
}

int ColourControl::CalcPixelPosition(double v) const {
  const double span = m_displayMax - m_displayMin;
  if (span == 0.0) return m_left;
  return static_cast<int>(std::floor(GetActiveWidth() * (v - m_displayMin) / span + 0.5)) + m_left;
}

// ---- selection ------------------------------------------------------------------

void ColourControl::SetSelect(unsigned int index) {
  m_selected = index;
  Gradient::CONTROL_POINT point;
  if (m_pTree && m_pGradient && m_pGradient->GetPoint(index, point)) ShowInTree(point);
}

// ---- the mouse ------------------------------------------------------------------

void ColourControl::OnMouseDownLeft() {
  if (GetMouseDownLeft()) {
    // The Delete key reaches the editor through the strip.
    if (FindFocus() != this) SetFocus();
    PressAt(m_lastDownX, m_lastDownY);
  } else {
    ReleaseAt(m_lastMouseX, m_lastMouseY);
  }
}

void ColourControl::PressAt(int x, int y) {
  if (!m_pGradient) return;
  Gradient::CONTROL_POINT point;
  if (!m_pGradient->GetClosest(CalcLogicalPosition(x), point)) {
    SetSelect(0);
    dprintf("%s", kNoClosest);
    return;
  }
  const int px = CalcPixelPosition(point.position);
  if (std::abs(px - x) < kHitHalfWidth && y < Geo::kLineTop) {
    const bool wasSelected = m_selected == point.index;
    if (y < Geo::kMarkTop[0]) {
      // The handle: a point selected by this press follows at once; one
      // selected before waits for the hold.
      if (!wasSelected) SelectByUser(point.index);
      m_bDragPending = true;
      m_bDragSelected = !wasSelected;
      m_pressTime = m_clock ? m_clock() : 0;
      m_dragTimer.Start();
      if (m_bDragSelected) CaptureMouse();
      dprintf("%s", kPrepareDrag);
      ClearMarkFlags();
    } else {
      if (!wasSelected) {
        SelectByUser(point.index);
        m_bDragSelected = false;
      }
      const int band = Geo::MarkBand(y);
      if (band >= 0) m_bMark[band] = true;
      m_dotX = px;
    }
  } else if (m_selected != 0) {
    const int dx = x - Geo::kDotX, dy = y - Geo::kDotY;
    if (dx * dx + dy * dy < Geo::kDotHitRadius2) ClickColourDot(x, y);
  }
  Refresh(false);
}

void ColourControl::OnMouseMove(int x, int y) {
  if (m_bDragPending) {
    if (Elapsed() > kHoldMilliseconds) {
      m_bDragSelected = true;
      m_bDragPending = false;
      CaptureMouse();
      dprintf("%s", kTrackingDrag);
    } else {
      dprintf("%s", kCancelledDrag);
      if (std::abs(x - m_lastDownX) > kHoldSlack || std::abs(y - m_lastDownY) > kHoldSlack)
        m_bDragPending = false;
    }
  }
  if (!m_bDragSelected || m_selected == 0) return;
  // The logical position stops at the displayed part's ends, so a pointer
  // beyond the strip asks for the displayed part to scroll.
  const int w = GetClientSize().GetWidth();
  if (x < m_left || x > w - m_right) SendScroll(x > w - m_right);
  TrackDrag(CalcLogicalPosition(x));
}

void ColourControl::ReleaseAt(int x, int y) {
  if (m_bDragSelected) {
    VORN_ASSERT_TEXT(m_selected != 0, kSelectedOnRelease);
    if (m_selected != 0) TrackDrag(CalcLogicalPosition(x));
    m_bDragSelected = false;
    ReleaseMouse();
    if (m_pControlGroup) m_pControlGroup->ControlUnSelected(GetId(), this);
  }
  const int mark = PressedMark();
  if (mark >= 0 && std::abs(x - m_dotX) <= kMarkReleaseSlack && Geo::MarkBand(y) == mark)
    ToggleMark(mark);
  ClearMarkFlags();
  m_bDragPending = false;
}

void ColourControl::OnDoubleClick(wxMouseEvent& event) {
  if (!m_bEnabled) return;
  const int x = event.GetX(), y = event.GetY();
  if (y < Geo::kMarkTop[0] && AddPointAt(x)) return;
  // Anywhere else the second click of a pair is a press.
  VornControl::OnLeftDClick(event);
}

// ---- changes --------------------------------------------------------------------

void ColourControl::TrackDrag(double v) {
  VORN_ASSERT_TEXT(v >= 0.0, kValNotNegative);
  VORN_ASSERT_TEXT(v <= 1.0, kValNotAboveOne);
  VORN_ASSERT_TEXT(m_bDragSelected, kDragArmed);
  VORN_ASSERT_TEXT(0 != m_selected, kSelectedForDrag);
  if (v < 0.0 || v > 1.0 || !m_bDragSelected || m_selected == 0 || !m_pGradient) return;
  if (v < m_displayMin || v > m_displayMax) SendScroll(v >= m_displayMin);
  Gradient::CONTROL_POINT point;
  if (!m_pGradient->GetPoint(m_selected, point)) return;
  const Gradient::CONTROL_POINT old = point;
  point.position = v;
  m_pGradient->SetPoint(m_selected, point);
  if (m_pTree) SetTree(old, point);
  GradientHintMove hint(old.position, v);
  Send(hint);
  SetDirty();
  RedrawNow();
}

void ColourControl::SendScroll(bool up) {
  GradientHintScroll hint(up, m_displayMax - 0.1 * m_displayMin);
  Send(hint);
}

void ColourControl::ToggleMark(int mark) {
  Gradient::CONTROL_POINT point;
  if (!m_pGradient || !m_pGradient->GetPoint(m_selected, point)) return;
  bool* flags[3] = {&point.mark1, &point.mark2, &point.mark3};
  *flags[mark] = !*flags[mark];
  m_pGradient->SetPoint(m_selected, point);
  GradientHintMove hint(point.position, point.position);
  Send(hint);
  Refresh(false);
}

void ColourControl::SelectByUser(unsigned int index) {
  SetSelect(index);
  GradientHintSelect hint(index);
  Send(hint);
}

bool ColourControl::AddPointAt(int x) {
  if (!m_pGradient) return false;
  Gradient::CONTROL_POINT near;
  if (m_pGradient->GetClosest(CalcLogicalPosition(x), near) &&
      std::abs(CalcPixelPosition(near.position) - x) < kHitHalfWidth)
    return false;  // not empty strip
  const double v = CalcLogicalPosition(x);
  const unsigned int index = m_pGradient->AddPoint(v, m_pGradient->GetColour(v));
  SetSelect(index);
  GradientHintAdd hint(index);
  Send(hint);
  SetDirty();
  Refresh(false);
  return true;
}

void ColourControl::ClickColourDot(int x, int y) {
  dprintf(kColourDotClick, x, y);
  auto* composite = dynamic_cast<GradientControl*>(GetParent());
  Gradient::CONTROL_POINT point;
  if (!composite || !m_pGradient || !m_pGradient->GetPoint(m_selected, point)) return;
  const wxPoint screen = ClientToScreen(wxPoint(x, y));
  // A modal picker takes the release; without this the next press would
  // find the button still down and be lost.
  m_bMouseDownLeft = false;
  Color colour = point.colour;
  if (!composite->PickColour(screen.x, screen.y, colour)) return;
  point.colour = colour;
  m_pGradient->SetPoint(m_selected, point);
  if (m_pTree) ShowInTree(point);
  GradientHintValue hint;
  Send(hint);
  SetDirty();
  Refresh(false);
}

void ColourControl::DeleteKeyPressed() {
  dprintf("%s", kDeleteThanks);
  Gradient::CONTROL_POINT point;
  if (!m_pGradient || m_selected == 0 || !m_pGradient->GetPoint(m_selected, point)) return;
  if (point.position < m_displayMin || point.position > m_displayMax) return;
  const unsigned int index = m_selected;
  m_pGradient->DeletePoint(index);
  GradientHintDelete hint(index);
  Send(hint);
  SetSelect(0);
  SetDirty();
  RedrawNow();
  if (m_pControlGroup) m_pControlGroup->ControlUnSelected(GetId(), this);
}

void ColourControl::CCOnKeyDown(wxKeyEvent& event) {
  const int code = event.GetKeyCode();
  if ((code == WXK_DELETE || code == WXK_BACK) && !dynamic_cast<GradientControl*>(GetParent()))
    DeleteKeyPressed();
  GradientControlComp::OnKeyDown(event);
}

// ---- hints and the tree -------------------------------------------------------------

void ColourControl::OnUpdate(unsigned int id, VornControl* sender, VornControlHint* hint) {
  if (sender == this) return;
  if (dynamic_cast<NodeChangingHint*>(hint) || dynamic_cast<NodeChangedHint*>(hint)) {
    if (m_pTree && IsTreeSender(sender)) TreeChanged();
    return;
  }
  if (dynamic_cast<GradientHintMove*>(hint)) {
    SetDirty();
    Refresh(false);
  } else {
    GradientControlComp::OnUpdate(id, sender, hint);
  }
  if (dynamic_cast<GradientHintMove*>(hint) || dynamic_cast<GradientHintValue*>(hint)) {
    Gradient::CONTROL_POINT point;
    if (m_pTree && m_pGradient && m_pGradient->GetPoint(m_selected, point)) ShowInTree(point);
  }
}

bool ColourControl::IsTreeSender(VornControl* sender) const {
  for (VornVUIControlNode* node : {m_pNodePos, m_pNodeRed, m_pNodeGreen, m_pNodeBlue})
    if (node && node->GetVornVUIControl() == sender) return true;
  return false;
}

void ColourControl::SetTreeNodes(VornMainVUITreeControl* tree, VornVUIControlNode* pos,
                                 VornVUIControlNode* red, VornVUIControlNode* green,
                                 VornVUIControlNode* blue) {
  m_pTree = tree;
  m_pNodePos = pos;
  m_pNodeRed = red;
  m_pNodeGreen = green;
  m_pNodeBlue = blue;
}

void ColourControl::SetTree(const Gradient::CONTROL_POINT& oldPoint,
                            const Gradient::CONTROL_POINT& newPoint) {
  VORN_ASSERT_TEXT(m_bInit, kInit);
  VORN_ASSERT_TEXT(m_pTree, kTree);
  VORN_ASSERT_TEXT(m_pNodePos, kNodePos);
  VORN_ASSERT_TEXT(m_pNodeRed, kNodeRed);
  VORN_ASSERT_TEXT(m_pNodeGreen, kNodeGreen);
  VORN_ASSERT_TEXT(m_pNodeBlue, kNodeBlue);
  if (!m_bInit || !m_pTree || !m_pNodePos || !m_pNodeRed || !m_pNodeGreen || !m_pNodeBlue) return;
  const bool moved = oldPoint.position != newPoint.position;
  const bool recoloured = oldPoint.colour != newPoint.colour;
  const bool all = !moved && !recoloured;  // a new point to show
  if (moved || all)
    if (auto* s = SliderOf(m_pNodePos)) s->SetVal(newPoint.position, false);
  if (recoloured || all) {
    if (auto* s = SliderOf(m_pNodeRed)) s->SetVal(newPoint.colour.r, false);
    if (auto* s = SliderOf(m_pNodeGreen)) s->SetVal(newPoint.colour.g, false);
    if (auto* s = SliderOf(m_pNodeBlue)) s->SetVal(newPoint.colour.b, false);
  }
}

void ColourControl::ShowInTree(const Gradient::CONTROL_POINT& point) {
  SetTree(point, point);
}

void ColourControl::TreeChanged() {
  Gradient::CONTROL_POINT point;
  if (!m_pGradient || !m_pGradient->GetPoint(m_selected, point)) return;
  VUITreeSlider* sliders[4] = {SliderOf(m_pNodePos), SliderOf(m_pNodeRed), SliderOf(m_pNodeGreen),
                               SliderOf(m_pNodeBlue)};
  for (VUITreeSlider* s : sliders)
    if (!s) return;
  const Gradient::CONTROL_POINT old = point;
  point.position = sliders[0]->GetVal();
  point.colour = Color(sliders[1]->GetVal(), sliders[2]->GetVal(), sliders[3]->GetVal());
  if (point.position == old.position && point.colour == old.colour) return;
  m_pGradient->SetPoint(m_selected, point);
  if (point.position != old.position) {
    GradientHintMove hint(old.position, point.position);
    Send(hint);
  }
  if (point.colour != old.colour) {
    GradientHintValue hint;
    Send(hint);
  }
  SetDirty();
  Refresh(false);
}

// ---- small helpers ------------------------------------------------------------------

void ColourControl::ClearMarkFlags() {
  m_bMark[0] = m_bMark[1] = m_bMark[2] = false;
}

int ColourControl::PressedMark() const {
  for (int i = 0; i < 3; ++i)
    if (m_bMark[i]) return i;
  return -1;
}

long ColourControl::Elapsed() const {
  return m_clock ? m_clock() - m_pressTime : m_dragTimer.Time();
}

void ColourControl::RedrawNow() {
  if (!IsShownOnScreen()) {
    Refresh(false);
    return;
  }
  wxClientDC dc(this);
  OnDraw(&dc);
}

// clang-format off
wxBEGIN_EVENT_TABLE(ColourControl, GradientControlComp)
  EVT_LEFT_DCLICK(ColourControl::OnDoubleClick)
wxEND_EVENT_TABLE()
    // clang-format on
