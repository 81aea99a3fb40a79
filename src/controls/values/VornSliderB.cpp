// The colour slider: a rounded track and a round thumb, anti-aliased, from
// two colours and no pictures.
#include <wx/dc.h>
#include <wx/image.h>

#include <algorithm>

#include "ValueDrawing.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/VornSlider.h"
#include "vornhost/Filter.h"

namespace {

// Track thickness and thumb diameter for a slider of height h.
int TrackThickness(int h) {
  return std::max(2, h / 4) | 1;  // odd, so the bar has a middle row
}
int ThumbDiameter(int h) {
  return std::max(8, std::min(h - 2, 20));
}

// A bar with round ends from x0 to x1 (the end circles' centres) on row cy.
void RoundBar(Filter& f, int x0, int x1, int cy, int r, const ColorA& c) {
  if (x1 < x0) std::swap(x0, x1);
  Clear(Crop(f, x0, cy - r, x1 + 1, cy + r + 1), c);
  DrawCircle(AntiAlias(f), x0, cy, r, c, true);
  DrawCircle(AntiAlias(f), x1, cy, r, c, true);
}

}  // namespace

VornSliderB::VornSliderB(const wxColour& track, const wxColour& thumb, int x, int y, int w, int h,
                         wxWindow* parent, int id, VornControlGroupValue* group, long style) {
  VornSliderB::Create(track, thumb, x, y, w, h, parent, id, group, style);
}

bool VornSliderB::Create(const wxColour& track, const wxColour& thumb, int x, int y, int w, int h,
                         wxWindow* parent, int id, VornControlGroupValue* group, long style) {
  if (!VornSlider::Create(x, y, w, h, parent, id, group, style)) return false;
  m_track = track;
  m_thumb = thumb;
  const int d = ThumbDiameter(h);
  SetupSlider(0, d, d, -1);
  return true;
}

void VornSliderB::DrawSlider(wxDC& dc) {
  const SliderLayout l = GetLayout();
  const int w = GetWidth(), h = GetHeight();
  if (w <= 0 || h <= 0) return;
  const wxColour bg = GetBgColour();
  // Disabled: both colours sink halfway into the background.
  const double fade = GetEnabled() ? 0.0 : 0.55;
  const wxColour track = ValueDrawing::Mix(m_track, bg, fade);
  const wxColour thumb = ValueDrawing::Mix(m_thumb, bg, fade);
  const wxColour fill = ValueDrawing::Mix(track, thumb, 0.6);

  wxImage image(w, h);
  image.SetRGB(wxRect(0, 0, w, h), bg.Red(), bg.Green(), bg.Blue());
  std::unique_ptr<Filter> f = CreateFilter(image);
  const int cy = h / 2, r = TrackThickness(h) / 2;
  RoundBar(*f, l.trackLeft, l.trackRight, cy, r, WxCtoCA(track));
  const int from =
      GetSliderType() == SLIDER_CENTRED ? (l.trackLeft + l.trackRight) / 2 : l.trackLeft;
  if (from != l.thumbMiddle) RoundBar(*f, from, l.thumbMiddle, cy, r, WxCtoCA(fill));
  const int tr = (std::min(l.thumbWidth, l.thumbHeight) - 1) / 2;
  DrawCircle(AntiAlias(*f), l.thumbMiddle, cy, tr, WxCtoCA(thumb), true);
  f.reset();
  dc.DrawBitmap(wxBitmap(image), 0, 0);
}
