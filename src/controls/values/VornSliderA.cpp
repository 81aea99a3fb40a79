// The picture slider: a track of three pictures, a fill of two, a thumb.
#include <wx/dc.h>

#include <algorithm>

#include "ValueDrawing.h"
#include "vorn/VornSlider.h"

using namespace ValueDrawing;

VornSliderA::VornSliderA(SliderType type, const wxBitmap* left, const wxBitmap* middle,
                         const wxBitmap* right, const wxBitmap* fillCap, const wxBitmap* fillMiddle,
                         const wxBitmap* thumb, int x, int y, int w, int h,
                         const wxColour& background, wxWindow* parent, int id,
                         VornControlGroupValue* group, long style) {
  VornSliderA::Create(type, left, middle, right, fillCap, fillMiddle, thumb, x, y, w, h, background,
                      parent, id, group, style);
}

bool VornSliderA::Create(SliderType type, const wxBitmap* left, const wxBitmap* middle,
                         const wxBitmap* right, const wxBitmap* fillCap, const wxBitmap* fillMiddle,
                         const wxBitmap* thumb, int x, int y, int w, int h,
                         const wxColour& background, wxWindow* parent, int id,
                         VornControlGroupValue* group, long style) {
  if (!VornSlider::Create(x, y, w, h, parent, id, group, style)) return false;
  m_type = type;
  const wxBitmap* given[kPictures] = {left, middle, right, fillCap, fillMiddle, thumb};
  for (int i = 0; i < kPictures; ++i) {
    m_pictures[i] = given[i] ? *given[i] : wxBitmap();
    m_disabled[i] = Greyed(m_pictures[i], background);
  }
  m_fillCapRight = Mirrored(m_pictures[kFillCap]);
  SetBgColour(background);
  if (m_pictures[kThumb].IsOk())
    SetupSlider(0, m_pictures[kThumb].GetWidth(), m_pictures[kThumb].GetHeight(), -1);
  return true;
}

void VornSliderA::DrawSlider(wxDC& dc) {
  const SliderLayout l = GetLayout();
  const wxBitmap* pics = GetEnabled() ? m_pictures : m_disabled;
  const int w = GetWidth(), h = GetHeight();
  const int capL = pics[kLeft].IsOk() ? pics[kLeft].GetWidth() : 0;
  const int capR = pics[kRight].IsOk() ? pics[kRight].GetWidth() : 0;
  const int trackH = pics[kMiddle].IsOk() ? pics[kMiddle].GetHeight() : 0;
  const int ty = (h - trackH) / 2;
  Draw(dc, pics[kLeft], 0, ty);
  TileAcross(dc, pics[kMiddle], capL, w - capR, ty);
  Draw(dc, pics[kRight], w - capR, ty);

  // The fill: from the left end, or from the middle, to the thumb's middle.
  const int from = m_type == SLIDER_CENTRED ? (l.trackLeft + l.trackRight) / 2 : 0;
  const int a = std::min(from, l.thumbMiddle), b = std::max(from, l.thumbMiddle);
  const wxBitmap& cap = pics[kFillCap];
  const wxBitmap capRight = GetEnabled() ? m_fillCapRight : Greyed(m_fillCapRight, GetBgColour());
  const int fillCapW = cap.IsOk() ? cap.GetWidth() : 0;
  const int fy = (h - (pics[kFillMiddle].IsOk() ? pics[kFillMiddle].GetHeight() : 0)) / 2;
  TileAcross(dc, pics[kFillMiddle], std::max(a, fillCapW), std::min(b, w - fillCapW), fy);
  if (cap.IsOk()) {
    const int cy = (h - cap.GetHeight()) / 2;
    if (a < fillCapW) DrawClipped(dc, cap, 0, cy, a, b);
    if (b > w - fillCapW) DrawClipped(dc, capRight, w - fillCapW, cy, a, b);
  }
  Draw(dc, pics[kThumb], l.thumbX, (h - l.thumbHeight) / 2);
}
