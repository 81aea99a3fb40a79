// The windowless scroll bar of the pop-up list: the simple bar's thumb and
// drag, drawn and fed mouse events by its owner.
#include <wx/dcclient.h>

#include <cmath>

#include "VornScrollThumb.h"
#include "vorn/VornSimpleScrollBar.h"
#include "vorn/VornValueNotify.h"
#include "vornhost/Utility.h"

namespace {
constexpr int kBarWidth = 11;
constexpr int kTrackMargin = 12;  // kept free at each end of the track
}  // namespace

VornListBoxScrollBar::VornListBoxScrollBar(const wxColour& first, const wxColour& second,
                                           const wxColour& third, int x, int y, int height,
                                           wxWindow* window)
    : m_first(first),
      m_second(second),
      m_third(third),
      m_width(kBarWidth),
      m_height(height),
      m_x(x),
      m_y(y),
      m_pThumb(std::make_unique<VornScrollThumb>()),
      m_pWindow(window) {
  SetFractionVal(0.2);
}

VornListBoxScrollBar::~VornListBoxScrollBar() = default;

void VornListBoxScrollBar::SetSliderVal(double value) {
  if (value == m_sliderVal || std::isnan(value)) return;
  m_sliderVal = VornValueNotify::Clamp(value);
  if (m_pBox) m_pBox->SetScrollPos(m_sliderVal);
}

void VornListBoxScrollBar::SetFractionVal(double fraction) {
  if (fraction == m_fraction || std::isnan(fraction)) return;
  ExtremeHelper::ClampValue(0.0001, 0.9999, fraction);
  m_fraction = fraction;
  m_pThumb->Make(GetScrollHeight(), m_fraction, m_first, m_second, m_third);
  if (m_pWindow) m_pWindow->Refresh(false);
}

int VornListBoxScrollBar::GetThumbHeight() const {
  return m_pThumb->GetHeight();
}

int VornListBoxScrollBar::GetThumbTop() const {
  return ThumbSpan().top;
}

VornScrollThumbSpan VornListBoxScrollBar::ThumbSpan() const {
  return VornScrollThumbAt(GetScrollStart(), GetScrollHeight(), GetThumbHeight(), m_sliderVal);
}

bool VornListBoxScrollBar::Hit(const wxMouseEvent& event) const {
  const int px = event.GetX(), py = event.GetY();
  return m_bVisible && px >= m_x && px <= m_x + m_width && py >= m_y && py <= m_y + m_height;
}

bool VornListBoxScrollBar::OnLeftDown(wxMouseEvent& event) {
  if (!Hit(event)) return false;
  const int y = event.GetY() - m_y;
  if (ThumbSpan().Contains(y)) {
    m_bDragging = true;
    m_dragStartY = y;
    m_dragStartVal = m_sliderVal;
  }
  return true;
}

bool VornListBoxScrollBar::OnLeftUp(wxMouseEvent& event) {
  if (!Hit(event)) return false;
  m_bDragging = false;
  return true;
}

bool VornListBoxScrollBar::OnMouseMove(wxMouseEvent& event) {
  if (!Hit(event)) return false;
  const int x = event.GetX() - m_x, y = event.GetY() - m_y;
  const VornScrollPointer pointer =
      VornScrollPointerAt(ThumbSpan(), GetScrollHeight(), m_width, x, y, m_bDragging, m_dragStartY,
                          m_dragStartVal, m_sliderVal);
  if (pointer.value != m_sliderVal) {
    m_bMouseOverTab = pointer.over;
    SetSliderVal(pointer.value);
    RepaintBox();
  } else if (pointer.over != m_bMouseOverTab) {
    m_bMouseOverTab = pointer.over;
    RepaintBox();
  }
  return true;
}

void VornListBoxScrollBar::OnDraw(wxDC& dc) {
  if (!m_bVisible) return;
  VornScrollBarLook look;
  look.rect = GetRect();
  look.outline = m_first;
  look.background = m_second;
  look.scrollStart = GetScrollStart();
  look.scrollHeight = GetScrollHeight();
  // The bar stands at the list's right: its separator faces the items.
  look.separator = true;
  look.left = false;
  look.tab = m_pThumb->GetTab(m_sliderVal, m_bMouseOverTab);
  look.thumbTop = GetThumbTop();
  DrawVornScrollBar(dc, look);
}

void VornListBoxScrollBar::RepaintBox() {
  if (!m_pBox || !m_pWindow) return;
  wxClientDC dc(m_pWindow);
  m_pBox->OnDrawBox(dc);
}
