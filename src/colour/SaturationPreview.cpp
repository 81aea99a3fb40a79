#include <wx/dc.h>

#include <algorithm>

#include "ColourDrawing.h"
#include "vorn/ColourPicker.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/VornAssert.h"

namespace {

// The scale runs from full saturation at y 5 to none at y 115.
constexpr int kScaleTop = 5;
constexpr int kScaleBottom = 115;
constexpr int kScaleLeft = 3;
constexpr int kTabColumnWidth = 13;
constexpr int kTabHalfHeight = 3;

}  // namespace

wxBEGIN_EVENT_TABLE(SaturationPreview, ColourPickerComp) EVT_MOUSEWHEEL(SaturationPreview::OnWheel)
    EVT_SIZE(SaturationPreview::OnSize) wxEND_EVENT_TABLE()

        SaturationPreview::SaturationPreview(int x, int y, int w, int h, wxWindow* parent, int id,
                                             VornControlGroup* group)
    : ColourPickerComp(x, y, w, h, parent, id, group) {
  Recalc();
}

void SaturationPreview::SetSaturation(double s) {
  s = std::clamp(s, 0.0, 1.0);
  if (s == m_saturation) return;
  StoreHSV(m_hue, s, m_value);
  OnColourChanged();
  SendCurrentHSV();
}

void SaturationPreview::Recalc() {
  const wxSize size = GetClientSize();
  const int scaleWidth = std::max(1, size.x - kScaleLeft - kTabColumnWidth - 1);
  m_scale = wxRect(kScaleLeft, kScaleTop, scaleWidth, kScaleBottom - kScaleTop + 1);
  m_tabColumn =
      wxRect(m_scale.GetRight() + 1, 0, std::max(1, size.x - m_scale.GetRight() - 1), size.y);
}

int SaturationPreview::SatToPos(double s) {
  if (s >= 1.0) return 3;
  if (s <= 0.0) return 117;
  return static_cast<int>((1.0 - s) * 110.0 + 4.0);
}

double SaturationPreview::PosToSat(int y) {
  return std::clamp(1.0 - (y - 5) / 110.0, 0.0, 1.0);
}

bool SaturationPreview::IsSlider(int x, int y) const {
  const int centre = SatToPos(m_saturation);
  return x >= m_tabColumn.GetLeft() && x <= m_tabColumn.GetRight() &&
         y >= centre - kTabHalfHeight && y <= centre + kTabHalfHeight;
}

bool SaturationPreview::IsScale(int x, int y) const {
  return x >= m_scale.GetLeft() && x <= m_tabColumn.GetRight() && y >= kScaleTop &&
         y <= kScaleBottom;
}

void SaturationPreview::TrackDrag(int, int y) {
  double change = (m_pressY - y) * kStep;
  if (GetMetaA()) change /= 10.0;
  const double s = std::clamp(m_pressSaturation + change, 0.0, 1.0);
  if (s != m_saturation) SetSaturation(s);
}

void SaturationPreview::ScrollUp() {
  SetSaturation(m_saturation + kStep);
}

void SaturationPreview::ScrollDown() {
  SetSaturation(m_saturation - kStep);
}

void SaturationPreview::OnMouseDownLeft() {
  if (GetMouseDownLeft()) {
    Recalc();  // a part made by the default constructor has had no size event
    const int x = m_lastDownX, y = m_lastDownY;
    const bool onSlider = IsSlider(x, y);
    if (!onSlider && !IsScale(x, y)) return;
    m_bDragging = true;
    CaptureMouse();
    if (m_pControlGroup) m_pControlGroup->ControlSelected(GetId(), this);
    // A press beside the tab brings it there; the drag goes on from it.
    if (!onSlider) SetSaturation(PosToSat(y));
    m_pressSaturation = m_saturation;
    m_pressY = y;
  } else if (m_bDragging) {
    m_bDragging = false;
    ReleaseMouse();
    if (m_pControlGroup) m_pControlGroup->ControlUnSelected(GetId(), this);
  }
}

void SaturationPreview::OnMouseMove(int x, int y) {
  if (m_bDragging && GetMouseDownLeft()) TrackDrag(x, y);
}

void SaturationPreview::OnWheel(wxMouseEvent& event) {
  if (!m_bEnabled) return;
  if (event.GetWheelRotation() > 0)
    ScrollUp();
  else if (event.GetWheelRotation() < 0)
    ScrollDown();
}

void SaturationPreview::OnSize(wxSizeEvent& event) {
  Recalc();
  Refresh(false);
  event.Skip();
}

void SaturationPreview::OnDraw(wxDC* dc) {
  VORN_ASSERT(dc != nullptr);
  if (!dc) return;
  Recalc();
  ColourDrawing::Fill(*dc, wxRect(wxPoint(0, 0), GetClientSize()), m_look.frame);
  DrawScale(*dc);
  DrawSlider(*dc);
  ClearDirty();
}

void SaturationPreview::DrawScale(wxDC& dc) const {
  ColourDrawing::Outline(dc, wxRect(m_scale).Inflate(1, 1), m_look.edge);
  for (int y = m_scale.GetTop(); y <= m_scale.GetBottom(); ++y) {
    Color c;
    c.HSVtoRGB(m_hue, PosToSat(y), m_value);
    ColourDrawing::Fill(dc, wxRect(m_scale.GetLeft(), y, m_scale.GetWidth(), 1), CtoWxC(c));
  }
}

void SaturationPreview::DrawSlider(wxDC& dc) const {
  ColourDrawing::Tab(dc, m_tabColumn.GetLeft() + 1, SatToPos(m_saturation),
                     m_tabColumn.GetWidth() - 3, m_look.slider, m_look.markerShadow);
}
