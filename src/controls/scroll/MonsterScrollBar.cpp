// The monster box's scroll bar: a simple bar at the box's right whose up
// button can carry the rounded corner of the box's header.
#include <memory>

#include "VornScrollImages.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/VornMonsterBox.h"
#include "vorn/VornSimpleScrollBar.h"
#include "vornhost/Filter.h"

MonsterScrollBar::MonsterScrollBar(const wxBitmap*, const wxBitmap*, const wxBitmap*,
                                   const wxColour& first, const wxColour& second,
                                   const wxColour& third, int x, int y, int height,
                                   wxWindow* parent, int id, VornControlGroupValue* group,
                                   bool plainUp)
    : m_bPlainUp(plainUp) {
  SetLeft(false);
  SetEndButtons(true);
  Create(first, second, third, x, y, height, parent, id, group, 0);
}

void MonsterScrollBar::OnSliderChange() {
  if (m_pBox) m_pBox->SetScrollPos(GetSliderVal());
}

void MonsterScrollBar::MakeButtonImages() {
  VornSimpleScrollBar::MakeButtonImages();
  if (m_bPlainUp) return;
  const int w = m_pUpImages->GetWidth(), h = m_pUpImages->GetHeight();
  if (w <= 0 || h <= 0) return;
  wxImage corner = VornScrollImage(w, h, m_second);
  {
    std::unique_ptr<Filter> f = CreateFilter(corner);
    DrawArc(AntiAlias(*f), 2 * w - 1, 0, w - 1, 9, WxCtoCA(m_first));
    DrawLine(*f, w - 1, 10, w - 1, h, WxCtoCA(m_first));
  }
  wxImage normal = corner.Copy(), hover = corner;
  DrawVornScrollArrow(normal, m_first);
  DrawVornScrollArrow(hover, m_third);

  // A cache slot cannot be reassigned, so the up set is rebuilt around the
  // disabled image it already has.
  const wxBitmap* disabled = nullptr;
  m_pUpImages->GetImage(VIT_DISABLED_OFF, disabled);
  auto up = std::make_unique<VornwxBitmapCache>();
  up->AssignImageOwn(VIT_OFF, MirroredVornScrollBitmap(normal, false).release());
  up->AssignImageOwn(VIT_OFF_MOUSE_OVER, MirroredVornScrollBitmap(hover, false).release());
  up->AssignImageOwn(VIT_OFF_DOWN, MirroredVornScrollBitmap(normal, false).release());
  if (disabled) up->AssignImageOwn(VIT_DISABLED_OFF, new wxBitmap(*disabled));
  m_pUpImages = std::move(up);
}
