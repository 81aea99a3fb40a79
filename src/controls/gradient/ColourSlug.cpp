#include <algorithm>
#include <cmath>

#include "GradientTexts.h"
#include "vorn/GradientControl.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/VornAssert.h"
#include "vornhost/Debug.h"

using namespace GradientTexts;

namespace {

constexpr int kGap = 2;

// A marker's enable button: a small box, filled while its marker is on.
class SlugEnableButton : public VornControl {
 public:
  SlugEnableButton(ColourSlug* slug, bool minimum, int x, int y, VornControlGroup* group)
      : VornControl(x, y, ColourSlug::kButtonSize, ColourSlug::kButtonSize, slug, wxID_ANY, group),
        m_pSlug(slug),
        m_bMinimum(minimum) {}

  void OnMouseDownLeft() override {
    if (GetMouseDownLeft() && m_pControlGroup) m_pControlGroup->ControlSelected(GetId(), this);
  }
  void OnMouseOver() override {}
  void OnMouseButton() override {}
  void OnDraw(wxDC* dc) override {
    dc->SetBackground(wxBrush(m_pSlug->GetBackgroundColour()));
    dc->Clear();
    const bool on = m_bMinimum ? m_pSlug->GetMinEnable() : m_pSlug->GetMaxEnable();
    dc->SetPen(wxPen(m_pSlug->GetFgColour()));
    dc->SetBrush(on ? wxBrush(m_pSlug->GetFgColour()) : *wxTRANSPARENT_BRUSH);
    dc->DrawRectangle(1, 1, ColourSlug::kButtonSize - 2, ColourSlug::kButtonSize - 2);
  }
  bool IsMinimum() const { return m_bMinimum; }

 private:
  ColourSlug* m_pSlug;  // the parent window
  bool m_bMinimum;
};

double Clamp01(double v) {
  return std::min(1.0, std::max(0.0, v));
}

}  // namespace

void SlugButtonGroup::ControlSelected(unsigned int, VornControl* control) {
  if (m_pSlug) m_pSlug->ButtonClicked(control);
}

ColourSlug::~ColourSlug() {
  // The buttons report to m_pButtons; they go before it.
  DestroyChildren();
}

bool ColourSlug::Create(int x, int y, int width, int height, wxWindow* parent, int id,
                        VornControlGroup* group, long style) {
  if (!VornControl::Create(x, y, width, height, parent, id, group, style)) return false;
  m_pButtons = std::make_unique<SlugButtonGroup>(this);
  const int top = (height - kButtonSize) / 2;
  m_pMinButton = new SlugEnableButton(this, true, 0, top, m_pButtons.get());
  m_pMaxButton = new SlugEnableButton(this, false, width - kButtonSize, top, m_pButtons.get());
  return true;
}

// The colour table and the right button follow the size.
void ColourSlug::OnSize(wxSizeEvent& event) {
  SetDirty();
  if (m_pMaxButton)
    m_pMaxButton->SetPosition(GetClientSize().x - kButtonSize, m_pMaxButton->GetPosY());
  Refresh(false);
  event.Skip();
}

wxRect ColourSlug::GetStrip() const {
  const wxSize size = GetClientSize();
  const int left = kButtonSize + kGap;
  return wxRect(left, 2, std::max(0, size.x - 2 * left), std::max(0, size.y - 4));
}

void ColourSlug::SetMinMax(double minimum, double maximum) {
  m_min = Clamp01(std::min(minimum, maximum));
  m_max = Clamp01(std::max(minimum, maximum));
  Refresh(false);
}

void ColourSlug::SetEnable(bool minimum, bool enabled) {
  (minimum ? m_bMinEnable : m_bMaxEnable) = enabled;
  Refresh(false);
  if (m_pMinButton) m_pMinButton->Refresh(false);
  if (m_pMaxButton) m_pMaxButton->Refresh(false);
}

void ColourSlug::ButtonClicked(VornControl* button) {
  const bool minimum = button == m_pMinButton;
  if (!minimum && button != m_pMaxButton) return;
  SetEnable(minimum, !(minimum ? m_bMinEnable : m_bMaxEnable));
  Report();
}

void ColourSlug::Report() {
  dprintf(kSlugState, m_min, m_max, m_bMinEnable ? 1 : 0, m_bMaxEnable ? 1 : 0);
  GradientHintRange hint(m_min, m_max);
  Send(hint);
}

// ---- the mouse ----------------------------------------------------------------------

void ColourSlug::OnMouseDownLeft() {
  if (!GetMouseDownLeft()) {
    if (m_dragging != 0) ReleaseMouse();
    m_dragging = 0;
    return;
  }
  const wxRect strip = GetStrip();
  if (strip.width < 2 || m_lastDownX < strip.x || m_lastDownX >= strip.GetRight() + 1) return;
  const double v = static_cast<double>(m_lastDownX - strip.x) / (strip.width - 1);
  // The nearer enabled marker; the maximum on a tie when v lies above both.
  if (m_bMinEnable && m_bMaxEnable)
    m_dragging = std::fabs(v - m_min) < std::fabs(v - m_max) ||
                         (std::fabs(v - m_min) == std::fabs(v - m_max) && v < m_min)
                     ? -1
                     : 1;
  else
    m_dragging = m_bMinEnable ? -1 : (m_bMaxEnable ? 1 : 0);
  if (m_dragging == 0) return;
  CaptureMouse();
  MoveMarker(m_lastDownX);
}

void ColourSlug::OnMouseMove(int x, int) {
  if (m_dragging != 0 && GetMouseDownLeft()) MoveMarker(x);
}

// The dragged marker follows x; the markers never cross.
void ColourSlug::MoveMarker(int x) {
  const wxRect strip = GetStrip();
  if (strip.width < 2) return;
  const double v = Clamp01(static_cast<double>(x - strip.x) / (strip.width - 1));
  double lo = m_min, hi = m_max;
  if (m_dragging < 0)
    lo = std::min(v, m_max);
  else
    hi = std::max(v, m_min);
  if (lo == m_min && hi == m_max) return;
  m_min = lo;
  m_max = hi;
  Refresh(false);
  Report();
}

// ---- drawing ------------------------------------------------------------------------

void ColourSlug::RecalcColours() {
  RecalcColours(GetStrip().width);
}

void ColourSlug::RecalcColours(int width) {
  width = std::max(0, width);
  m_colours.assign(width, GetBackgroundColour());
  if (!m_pGradient || width < 2) return;
  for (int i = 0; i < width; ++i)
    m_colours[i] = CtoWxC(m_pGradient->GetColour(static_cast<double>(i) / (width - 1)));
}

void ColourSlug::OnDraw(wxDC* dc) {
  const wxRect strip = GetStrip();
  const std::size_t width = static_cast<std::size_t>(strip.width);
  if (IsDirty() || strip.width != m_tableWidth) {
    m_tableWidth = strip.width;
    RecalcColours();
    RecalcState();
  }
  VORN_ASSERT_TEXT(m_colours.size() == width, kSlugColours);
  dc->SetBackground(wxBrush(GetBackgroundColour()));
  dc->Clear();
  for (std::size_t i = 0; i < m_colours.size() && i < width; ++i) {
    dc->SetPen(wxPen(m_colours[i]));
    dc->DrawLine(strip.x + static_cast<int>(i), strip.y, strip.x + static_cast<int>(i),
                 strip.GetBottom() + 1);
  }
  if (strip.width < 2) return;
  // Markers: a line across the strip with a triangle at top; hollow when off.
  const double values[2] = {m_min, m_max};
  const bool enabled[2] = {m_bMinEnable, m_bMaxEnable};
  for (int i = 0; i < 2; ++i) {
    const int x = strip.x + static_cast<int>(values[i] * (strip.width - 1) + 0.5);
    dc->SetPen(wxPen(m_fgColour));
    dc->DrawLine(x, strip.y, x, strip.GetBottom() + 1);
    const wxPoint tip[3] = {wxPoint(x - 3, strip.y), wxPoint(x + 3, strip.y),
                            wxPoint(x, strip.y + 4)};
    dc->SetBrush(enabled[i] ? wxBrush(m_fgColour) : wxBrush(GetBackgroundColour()));
    dc->DrawPolygon(3, tip);
  }
}

// clang-format off
wxBEGIN_EVENT_TABLE(ColourSlug, GradientControlComp)
  EVT_SIZE(ColourSlug::OnSize)
wxEND_EVENT_TABLE()
    // clang-format on
