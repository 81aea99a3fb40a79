#include <wx/dc.h>

#include <algorithm>
#include <memory>

#include "vorn/GraphicsFunctions.h"
#include "vorn/VornAngleControl.h"
#include "vornhost/Filter.h"

namespace {
// The circle sits this far inside the control's smaller side.
constexpr int kRim = 3;
constexpr int kTickLength = 4;
constexpr int kDotRadius = 2;
}  // namespace

VornAngleControlB::VornAngleControlB(const ColorA& ring, const ColorA& needle, int x, int y, int w,
                                     int h, wxWindow* parent, int id, VornControlGroupValue* group,
                                     long style) {
  VornAngleControlB::Create(ring, needle, x, y, w, h, parent, id, group, style);
}

bool VornAngleControlB::Create(const ColorA& ring, const ColorA& needle, int x, int y, int w, int h,
                               wxWindow* parent, int id, VornControlGroupValue* group, long style) {
  m_ring = ring;
  m_needle = needle;
  const int radius = std::max(1, std::min(w, h) / 2 - kRim);
  return VornAngleControl::Create(w / 2, h / 2, radius, x, y, w, h, parent, id, group, style);
}

void VornAngleControlB::DrawPicture() {
  if (!::Create(m_picture, std::max(1, GetWidth()), std::max(1, GetHeight()))) return;
  ClearBitmap(m_picture, WxCtoCA(GetBgColour()));
  std::unique_ptr<Filter> target = CreateFilter(m_picture);
  DrawCircle(AntiAlias(*target), m_centreX, m_centreY, m_radius, m_ring, false);
  for (double quarter = 0.0; quarter < 1.0; quarter += 0.25) {
    const wxPoint outer = VornPointOnCircle(m_centreX, m_centreY, m_radius, quarter);
    const wxPoint inner = VornPointOnCircle(m_centreX, m_centreY, m_radius - kTickLength, quarter);
    DrawLine(AntiAlias(*target), inner.x, inner.y, outer.x, outer.y, m_ring);
  }
  DrawLine(AntiAlias(*target), m_centreX, m_centreY, m_knobX, m_knobY, m_needle);
  DrawCircle(AntiAlias(*target), m_knobX, m_knobY, kDotRadius, m_needle, true);
  m_drawnTurn = m_turn;
}

void VornAngleControlB::OnDraw(wxDC* dc) {
  if (!IsShown()) return;
  if (m_drawnTurn != m_turn || m_picture.width != GetWidth() || m_picture.height != GetHeight())
    DrawPicture();
  wxBitmap bitmap;
  if (!ConvertTo(bitmap, m_picture)) return;
  dc->DrawBitmap(bitmap, 0, 0, false);
}
