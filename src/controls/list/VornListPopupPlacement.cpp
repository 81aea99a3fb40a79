// Where a pop-up list opens: the chosen row over the control, a long list
// centred on it except near either end, and always on the display.
#include <algorithm>
#include <numeric>

#include "vorn/VornListBox.h"

VornListPopupPlace VornListPopupPlacement(const std::vector<int>& heights, int selected,
                                          int maxHeight) {
  VornListPopupPlace place;
  const int total = std::accumulate(heights.begin(), heights.end(), 0) + 2;
  // With nothing chosen the list opens as if its first row were.
  const int anchor = selected >= 0 && selected < static_cast<int>(heights.size()) ? selected : 0;
  const int above = std::accumulate(heights.begin(), heights.begin() + anchor, 0);
  if (total <= maxHeight) {
    place.height = total;
    place.offset = 1;
    place.y = -above;
    return place;
  }
  const int hs = heights.empty() ? 0 : heights[anchor];
  const int half = (maxHeight - hs) / 2;
  place.height = maxHeight;
  place.offset = std::max(std::min(half - above, 1), maxHeight - total + 1);
  if (above < half)
    place.y = -above;
  else if (above > total - half - hs)
    place.y = -(maxHeight + above - total);
  else
    place.y = -half;
  return place;
}

wxPoint VornKeepOnDisplay(const wxRect& box, const wxSize& display) {
  wxPoint p(std::max(box.x, 0), std::max(box.y, 0));
  if (p.x + box.width >= display.x) p.x = display.x - box.width - 1;
  if (p.y + box.height >= display.y) p.y = display.y - box.height - 1;
  return p;
}
