// The simple scroll bar: a generated thumb on an 11-pixel track, optional
// end buttons with auto-repeat, and a value reported through OnSliderChange.
#include "vorn/VornSimpleScrollBar.h"

#include <wx/dcclient.h>
#include <wx/dcmemory.h>

#include <cmath>

#include "VornScrollImages.h"
#include "VornScrollThumb.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/VornAssert.h"
#include "vorn/VornValueNotify.h"
#include "vornhost/Filter.h"
#include "vornhost/Utility.h"

namespace {

constexpr int kBarWidth = 11;
constexpr int kEndButtonSpace = 12;  // each end button's share of the height
constexpr int kButtonDelay = 500;    // ms before the first repeat
constexpr int kButtonRepeat = 10;    // ms between repeats

// The assertion texts of the tab pieces.
constexpr const char* kNoBase = "!pbase";
constexpr const char* kNoBottomBase = "!pbottombase";
constexpr const char* kNoArrow = "!parrow";
constexpr const char* kNoBottomArrow = "!pbottomarrow";

}  // namespace

wxBEGIN_EVENT_TABLE(VornSimpleScrollBar, VornControl)
    EVT_MOUSEWHEEL(VornSimpleScrollBar::OnMouseWheel) wxEND_EVENT_TABLE()

        VornSimpleScrollBar::VornSimpleScrollBar()
    : m_pThumb(std::make_unique<VornScrollThumb>()) {}

VornSimpleScrollBar::~VornSimpleScrollBar() {
  DestroyEndButtons();
}

bool VornSimpleScrollBar::Create(const wxColour& first, const wxColour& second,
                                 const wxColour& third, int x, int y, int height, wxWindow* parent,
                                 int id, VornControlGroupValue* group, long style) {
  m_first = first;
  m_second = second;
  m_third = third;
  m_sliderVal = 0.0;
  m_bDragging = false;
  m_dragStartY = 0;
  m_bMouseOverTab = false;
  const bool created = VornControl::Create(x, y, kBarWidth, height, parent, id, group, style);
  MakeTabImages();
  if (m_bEndButtons) CreateEndButtons();
  return created;
}

void VornSimpleScrollBar::CreateEndButtons() {
  MakeButtonImages();
  m_pInternalGroup = std::make_unique<VornControlGroup>();
  // The buttons' hints reach OnUpdate through the internal group.
  m_pInternalGroup->Register(static_cast<VornControl*>(this));
  m_pUpButton = std::make_unique<VornMomentBtn>(
      m_pUpImages.get(), 0, 0, this, -1, m_pInternalGroup.get(), 0, kButtonDelay, kButtonRepeat);
  m_pDownButton = std::make_unique<VornMomentBtn>(
      m_pDownImages.get(), 0, GetScrollStart() + GetScrollHeight(), this, -1,
      m_pInternalGroup.get(), 0, kButtonDelay, kButtonRepeat);
}

void VornSimpleScrollBar::DestroyEndButtons() {
  // The buttons leave the internal group and stop using the image sets first.
  m_pUpButton.reset();
  m_pDownButton.reset();
  if (m_pInternalGroup && m_pInternalGroup->CurrentlyRegistered(static_cast<VornControl*>(this)))
    m_pInternalGroup->DeRegister(static_cast<VornControl*>(this));
  m_pInternalGroup.reset();
  m_pUpImages.reset();
  m_pDownImages.reset();
}

// ---- value

void VornSimpleScrollBar::SetSliderVal(double value, bool notify) {
  if (value == m_sliderVal || std::isnan(value)) return;
  m_sliderVal = VornValueNotify::Clamp(value);
  if (m_bDragging)
    RedrawNow();
  else if (GetHandle())
    Refresh(false);
  if (notify) OnSliderChange();
}

void VornSimpleScrollBar::SetFractionVal(double fraction) {
  if (fraction == m_fraction || std::isnan(fraction)) return;
  ExtremeHelper::ClampValue(0.0001, 0.9999, fraction);
  m_fraction = fraction;
  MakeTabImages();
  if (GetHandle()) Refresh(false);
}

void VornSimpleScrollBar::StepBy(double step) {
  if (GetHeight() <= 0) return;
  // step is in content pixels; the content is height / fraction tall.
  SetSliderVal(m_sliderVal + step / (GetHeight() / m_fraction), true);
}

// ---- geometry

int VornSimpleScrollBar::GetScrollStart() const {
  return m_bEndButtons ? kEndButtonSpace : 0;
}

int VornSimpleScrollBar::GetScrollHeight() const {
  return m_bEndButtons ? GetHeight() - 2 * kEndButtonSpace : GetHeight();
}

int VornSimpleScrollBar::GetThumbHeight() const {
  return m_pThumb->GetHeight();
}

int VornSimpleScrollBar::GetThumbTop() const {
  return ThumbSpan().top;
}

VornScrollThumbSpan VornSimpleScrollBar::ThumbSpan() const {
  return VornScrollThumbAt(GetScrollStart(), GetScrollHeight(), GetThumbHeight(), m_sliderVal);
}

// ---- drawing

void VornSimpleScrollBar::OnDraw(wxDC* dc) {
  VORN_ASSERT(dc);
  const wxSize size(GetWidth(), GetHeight());
  if (!dc || size.x <= 0 || size.y <= 0) return;
  if (m_backBuffer.IsOk() && m_backBuffer.GetSize() != size) m_backBuffer = wxBitmap();
  if (!m_backBuffer.IsOk()) {
    m_backBuffer.Create(size);
    if (m_pUpButton) m_pUpButton->SetPosition(0, 0);
    if (m_pDownButton) m_pDownButton->SetPosition(0, size.y - m_pDownButton->GetHeight());
    MakeTabImages();
  }
  if (IsDirty()) RecalcState();

  VornScrollBarLook look;
  look.rect = wxRect(size);
  look.outline = m_first;
  look.background = m_second;
  look.scrollStart = GetScrollStart();
  look.scrollHeight = GetScrollHeight();
  look.separator = m_bEndButtons;
  look.left = m_bLeft;
  look.tab = m_pThumb->GetTab(m_sliderVal, m_bMouseOverTab);
  look.thumbTop = GetThumbTop();
  wxMemoryDC buffer(m_backBuffer);
  DrawVornScrollBar(buffer, look);
  dc->Blit(0, 0, size.x, size.y, &buffer, 0, 0, wxCOPY, false);
  buffer.SelectObject(wxNullBitmap);
}

void VornSimpleScrollBar::RedrawNow() {
  if (!GetHandle()) return;
  wxClientDC dc(this);
  OnDraw(&dc);
}

void VornSimpleScrollBar::MakeTabImages() {
  m_pThumb->Make(GetScrollHeight(), m_fraction, m_first, m_second, m_third);
}

void VornSimpleScrollBar::MakeBaseTabImages(wxBitmap*& pbase, wxBitmap*& pbottombase,
                                            wxBitmap*& parrow, wxBitmap*& pbottomarrow,
                                            const wxColour& foreground,
                                            const wxColour& background) {
  VORN_ASSERT_TEXT(!pbase, kNoBase);
  VORN_ASSERT_TEXT(!pbottombase, kNoBottomBase);
  VORN_ASSERT_TEXT(!parrow, kNoArrow);
  VORN_ASSERT_TEXT(!pbottomarrow, kNoBottomArrow);
  if (pbase || pbottombase || parrow || pbottomarrow) return;  // never overwrite an owned piece

  const ColorA fore = WxCtoCA(foreground);
  wxImage cap = VornScrollImage(11, 13, background);
  {
    std::unique_ptr<Filter> f = CreateFilter(cap);
    DrawArc(AntiAlias(*f), 10, 1, 0, 10, fore);
    DrawLine(*f, 10, 0, 10, 12, fore);
    DrawLine(*f, 0, 10, 0, 12, fore);
  }
  const wxImage plain = cap.Copy();
  {
    std::unique_ptr<Filter> f = CreateFilter(cap);
    DrawLine(AntiAlias(*f), 5, 8, 3, 12, fore);
    DrawLine(AntiAlias(*f), 5, 8, 7, 12, fore);
  }
  pbase = MirroredVornScrollBitmap(plain, false).release();
  pbottombase = MirroredVornScrollBitmap(plain, true).release();
  parrow = MirroredVornScrollBitmap(cap, false).release();
  pbottomarrow = MirroredVornScrollBitmap(cap, true).release();
}

void VornSimpleScrollBar::MakeButtonImages() {
  m_pUpImages = std::make_unique<VornwxBitmapCache>();
  m_pDownImages = std::make_unique<VornwxBitmapCache>();
  wxImage frame = VornScrollImage(11, 12, m_second);
  {
    std::unique_ptr<Filter> f = CreateFilter(frame);
    DrawArc(AntiAlias(*f), 1, 0, 10, 9, WxCtoCA(m_first));
    DrawLine(*f, 10, 10, 10, 12, WxCtoCA(m_first));
  }
  wxImage normal = frame.Copy(), hover = frame.Copy();
  DrawVornScrollArrow(normal, m_first);
  DrawVornScrollArrow(hover, m_third);
  for (int down = 0; down < 2; ++down) {
    VornwxBitmapCache& set = down ? *m_pDownImages : *m_pUpImages;
    set.AssignImageOwn(VIT_OFF, MirroredVornScrollBitmap(normal, down).release());
    set.AssignImageOwn(VIT_OFF_MOUSE_OVER, MirroredVornScrollBitmap(hover, down).release());
    set.AssignImageOwn(VIT_OFF_DOWN, MirroredVornScrollBitmap(normal, down).release());
    set.AssignImageOwn(VIT_DISABLED_OFF, MirroredVornScrollBitmap(frame, down).release());
  }
}

// ---- reactions

void VornSimpleScrollBar::OnSliderChange() {}

void VornSimpleScrollBar::OnUpdate(unsigned int, VornControl* source, VornControlHint* hint) {
  if (source == this) return;
  const auto* moment = dynamic_cast<VornMomentHint*>(hint);
  if (!moment || !source) return;
  double direction = 0.0;
  if (source == m_pUpButton.get())
    direction = -1.0;
  else if (source == m_pDownButton.get())
    direction = 1.0;
  else
    return;
  StepBy(direction * (moment->GetFirstPress() ? m_initialStep : m_momentStep));
}

void VornSimpleScrollBar::OnMouseButton() {
  int x, y;
  GetLastMousePos(x, y);
  const VornScrollThumbSpan thumb = ThumbSpan();
  if (GetMouseDown()) {
    // A press beside the thumb neither pages nor moves it.
    if (!thumb.Contains(y)) return;
    m_bDragging = true;
    CaptureMouse();
    m_dragStartY = y;
    m_dragStartVal = m_sliderVal;
  } else {
    m_bDragging = false;
    ReleaseMouse();
    OnMouseMove(x, y);
  }
}

void VornSimpleScrollBar::OnMouseMove(int x, int y) {
  const VornScrollPointer pointer =
      VornScrollPointerAt(ThumbSpan(), GetScrollHeight(), GetWidth(), x, y, m_bDragging,
                          m_dragStartY, m_dragStartVal, m_sliderVal);
  if (pointer.value != m_sliderVal) {
    m_bMouseOverTab = pointer.over;
    SetSliderVal(pointer.value, true);
  } else if (pointer.over != m_bMouseOverTab) {
    m_bMouseOverTab = pointer.over;
    RedrawNow();
  }
}

void VornSimpleScrollBar::OnMouseLeaving() {
  if (!m_bMouseOverTab || m_bDragging) return;
  m_bMouseOverTab = false;
  Refresh(false);
}

void VornSimpleScrollBar::OnEnable(bool enabled) {
  for (VornMomentBtn* button : {m_pUpButton.get(), m_pDownButton.get()})
    if (button) button->SetEnabled(enabled);
}

void VornSimpleScrollBar::OnMouseWheel(wxMouseEvent& event) {
  if (!GetEnabled() || event.GetWheelAxis() != wxMOUSE_WHEEL_VERTICAL ||
      event.GetWheelDelta() == 0) {
    event.Skip();
    return;
  }
  // A notch away from the user (positive rotation) shows earlier content.
  const double notches = static_cast<double>(event.GetWheelRotation()) / event.GetWheelDelta();
  StepBy(-notches * m_momentStep);
}
