// The vertical range bar: the horizontal one turned, slider value 0 at the
// top.
#include "vorn/VornRangeControl.h"

VornVertRangeControl::VornVertRangeControl(const Color& track, const Color& bar, int x, int y,
                                           int w, int h, int scrollY1, int scrollY2,
                                           wxBitmap* picture, bool ownPicture, wxWindow* parent,
                                           int id, VornControlGroupValue* group, long style)
    : VornRangeBase(track, bar, x, y, w, h, scrollY1, scrollY2, picture, true, parent, id, group,
                    style) {
  if (ownPicture) m_ownPicture.reset(picture);
}
