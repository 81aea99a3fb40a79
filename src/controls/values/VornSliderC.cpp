// The two-picture slider: a track picture stretched to the width and a
// thumb picture.
#include <wx/dc.h>

#include "ValueDrawing.h"
#include "vorn/VornSlider.h"

using namespace ValueDrawing;

VornSliderC::VornSliderC(const wxBitmap* track, const wxBitmap* thumb, int x, int y, int w, int h,
                         wxWindow* parent, int id, VornControlGroupValue* group, long style) {
  VornSliderC::Create(track, thumb, x, y, w, h, parent, id, group, style);
}

bool VornSliderC::Create(const wxBitmap* track, const wxBitmap* thumb, int x, int y, int w, int h,
                         wxWindow* parent, int id, VornControlGroupValue* group, long style) {
  if (!VornSlider::Create(x, y, w, h, parent, id, group, style)) return false;
  m_track = track && track->IsOk() ? Scaled(*track, w, track->GetHeight()) : wxBitmap();
  m_thumb = thumb ? *thumb : wxBitmap();
  m_trackDisabled = Greyed(m_track, GetBgColour());
  m_thumbDisabled = Greyed(m_thumb, GetBgColour());
  if (m_thumb.IsOk()) SetupSlider(0, m_thumb.GetWidth(), m_thumb.GetHeight(), -1);
  return true;
}

void VornSliderC::DrawSlider(wxDC& dc) {
  const SliderLayout l = GetLayout();
  const int h = GetHeight();
  const wxBitmap& track = GetEnabled() ? m_track : m_trackDisabled;
  const wxBitmap& thumb = GetEnabled() ? m_thumb : m_thumbDisabled;
  if (track.IsOk()) Draw(dc, track, 0, (h - track.GetHeight()) / 2);
  Draw(dc, thumb, l.thumbX, (h - l.thumbHeight) / 2);
}
