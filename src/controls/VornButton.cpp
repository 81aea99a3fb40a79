// The button family: state images and drawing, and the press and release
// reactions of each kind of button.
#include "vorn/VornButton.h"

#include <wx/control.h>
#include <wx/dcmemory.h>
#include <wx/graphics.h>

#include <algorithm>
#include <cmath>

#include "vorn/ValInterface.h"
#include "vorn/VornAssert.h"
#include "vornhost/Debug.h"

namespace {

// The state table shared by every button: disabled wins, then a held mouse
// button, then the pointer over it.
VORNIMAGETYPE StateFor(bool enabled, bool on, bool down, bool over) {
  if (!enabled) return on ? VIT_DISABLED_ON : VIT_DISABLED_OFF;
  if (down) return on ? VIT_ON_DOWN : VIT_OFF_DOWN;
  if (over) return on ? VIT_ON_MOUSE_OVER : VIT_OFF_MOUSE_OVER;
  return on ? VIT_ON : VIT_OFF;
}

// The radio release: switch an off button on and the rest of its group off;
// switch an on button off only when toggling is allowed.
void RadioRelease(VornButton& button, VornControlGroup1ofN* group, bool toggle) {
  if (!button.GetOn()) {
    button.SetOn(true);
    if (group) {
      group->SetOnAll(&button, false, nullptr);
      group->ControlSelected(button.GetId(), &button);
    }
  } else if (toggle) {
    button.SetOn(false);
    if (group) group->ControlUnSelected(button.GetId(), &button);
  }
}

// A group that was cleared or destroyed has unbound the button, so a stored
// group pointer is trusted only while the binding still names it.
template <class Group>
Group* WhileBound(const VornControl& button, Group* stored) {
  const VornControlGroup* bound = button.GetGroup();
  return stored && bound == static_cast<VornControlGroup1ofN*>(stored) ? stored : nullptr;
}

wxColour Mix(const wxColour& a, const wxColour& b, double t) {
  auto channel = [t](unsigned char x, unsigned char y) {
    return static_cast<unsigned char>(std::lround(x + (y - x) * t));
  };
  return wxColour(channel(a.Red(), b.Red()), channel(a.Green(), b.Green()),
                  channel(a.Blue(), b.Blue()));
}

// Copies a rectangle of a sheet to (0, 0) of dc.
void BlitSheet(wxDC& dc, const WallpaperImageInfo<wxBitmap>& info) {
  wxMemoryDC source;
  source.SelectObjectAsSource(*info.bitmap);
  dc.Blit(0, 0, info.width, info.height, &source, info.x, info.y, wxCOPY, false);
  source.SelectObject(wxNullBitmap);
}

// The label shortened with an ellipsis when wider than width.
wxString FitLabel(wxDC& dc, const wxString& label, int width) {
  if (width <= 0) return wxString();
  if (dc.GetTextExtent(label).x <= width) return label;
  return wxControl::Ellipsize(label, dc, wxELLIPSIZE_END, width);
}

// Where a label of the given extent starts: at pos, or centred in span when
// pos is negative.
int LabelStart(int pos, int span, int extent) {
  return pos >= 0 ? pos : (span - extent) / 2;
}

}  // namespace

// ---- VornButton ------------------------------------------------------------

VornButton::VornButton() = default;

VornButton::VornButton(const VornwxBitmapCache* cache, int x, int y, wxWindow* parent, int id,
                       VornControlGroup* group, long style) {
  VornButton::Create(cache, x, y, parent, id, group, style);
}

VornButton::VornButton(const VornwxBitmapCache* cache, int x, int y, int w, int h, wxWindow* parent,
                       int id, VornControlGroup* group, long style) {
  VornButton::Create(cache, x, y, w, h, parent, id, group, style);
}

VornButton::~VornButton() = default;

bool VornButton::Create(const VornwxBitmapCache* cache, int x, int y, wxWindow* parent, int id,
                        VornControlGroup* group, long style) {
  m_pImageCache = cache;
  const bool created = VornControl::Create(x, y, parent, id, group, style);
  if (cache) {
    int w = 0;
    int h = 0;
    if (cache->GetSize(w, h)) SetSize(w, h);
  }
  return created;
}

bool VornButton::Create(const VornwxBitmapCache* cache, int x, int y, int w, int h,
                        wxWindow* parent, int id, VornControlGroup* group, long style) {
  m_pImageCache = cache;
  return VornControl::Create(x, y, w, h, parent, id, group, style);
}

VORNIMAGETYPE VornButton::ComputeState() const {
  return StateFor(GetEnabled(), m_bOn, GetMouseDown(), GetMouseOver());
}

void VornButton::RecalcState() {
  m_state = ComputeState();
  VornControl::RecalcState();
}

void VornButton::Redraw() {
  SetDirty();
  Refresh(false);
}

bool VornButton::GetImageInfo(WallpaperImageInfo<wxBitmap>& info) {
  info = WallpaperImageInfo<wxBitmap>();
  if (!m_pImageCache) return false;
  VORNIMAGETYPE state = m_state;
  while (state != VIT_NONE) {
    if (m_pImageCache->GetImageFromWallpaper(state, info) && info.bitmap) return true;
    state = VornNextFallbackState(state);
  }
  info = WallpaperImageInfo<wxBitmap>();
  return false;
}

void VornButton::OnDraw(wxDC* dc) {
  VORN_ASSERT(dc != nullptr);
  if (!dc) return;
  if (IsDirty()) RecalcState();
  WallpaperImageInfo<wxBitmap> info;
  if (!GetImageInfo(info) || !info.bitmap->IsOk()) return;
  BlitSheet(*dc, info);
}

void VornButton::SetOn(bool on) {
  if (on == m_bOn) return;
  m_bOn = on;
  Redraw();
}

bool VornButton::GetOn() const {
  return m_bOn;
}

void VornButton::SetButtonDown(bool down) {
  if (down == m_bButtonDown) return;
  m_bButtonDown = down;
  SetDirty();
  OnButtonDown();
}

bool VornButton::GetButtonDown() const {
  return m_bButtonDown;
}

void VornButton::OnButtonDown() {
  Refresh(false);
}

void VornButton::SetImageCache(const VornwxBitmapCache* cache) {
  m_pImageCache = cache;
  Redraw();
}

void VornButton::OnMouseButton() {
  SetButtonDown(GetMouseDown());
  dprintf(m_bButtonDown ? "button - mouse down\n" : "button - mouse up\n");
}

// ---- VornPushButton --------------------------------------------------------

void VornPushButton::OnMouseButton() {
  Redraw();
  VornControlGroup* group = VornControl::GetGroup();
  if (GetMouseDown()) {
    if (group) group->ControlSelected(GetId(), this);
  } else if (IsRelease() && GetMouseOver()) {
    if (group) group->ControlUnSelected(GetId(), this);
  }
}

// ---- VornButtonToggle ------------------------------------------------------

void VornButtonToggle::OnMouseButton() {
  Redraw();
  if (!IsRelease()) return;
  const bool on = !GetOn();
  SetOn(on);
  if (VornControlGroup* group = VornControl::GetGroup()) {
    if (on)
      group->ControlSelected(GetId(), this);
    else
      group->ControlUnSelected(GetId(), this);
    IntValChanged hint(on ? 1 : 0);
    group->Update(GetId(), this, &hint);
  }
}

// ---- VornRadioButton -------------------------------------------------------

VornRadioButton::VornRadioButton(const VornwxBitmapCache* cache, int x, int y, wxWindow* parent,
                                 int id, VornControlGroup1ofN* group, long style) {
  VornRadioButton::Create(cache, x, y, parent, id, group, style);
}

VornRadioButton::VornRadioButton(const VornwxBitmapCache* cache, int x, int y, int w, int h,
                                 wxWindow* parent, int id, VornControlGroup1ofN* group,
                                 long style) {
  VornRadioButton::Create(cache, x, y, w, h, parent, id, group, style);
}

bool VornRadioButton::Create(const VornwxBitmapCache* cache, int x, int y, wxWindow* parent, int id,
                             VornControlGroup1ofN* group, long style) {
  m_pGroup1ofN = group;
  return VornButton::Create(cache, x, y, parent, id, group, style);
}

bool VornRadioButton::Create(const VornwxBitmapCache* cache, int x, int y, int w, int h,
                             wxWindow* parent, int id, VornControlGroup1ofN* group, long style) {
  m_pGroup1ofN = group;
  return VornButton::Create(cache, x, y, w, h, parent, id, group, style);
}

VornControlGroup1ofN* VornRadioButton::GetGroup() {
  return WhileBound(*this, m_pGroup1ofN);
}

void VornRadioButton::OnMouseButton() {
  Redraw();
  if (IsRelease()) RadioRelease(*this, GetGroup(), m_bToggle);
}

// ---- VornMoonButton --------------------------------------------------------

VornMoonButton::VornMoonButton(const VornwxBitmapCache* cache, int x, int y, wxWindow* parent,
                               int id, VornValueControlGroup1ofN* group, long style) {
  m_pValueGroup = group;
  VornRadioButton::Create(cache, x, y, parent, id, static_cast<VornControlGroup1ofN*>(group),
                          style);
}

VornMoonButton::VornMoonButton(const VornwxBitmapCache* cache, int x, int y, int w, int h,
                               wxWindow* parent, int id, VornValueControlGroup1ofN* group,
                               long style) {
  m_pValueGroup = group;
  VornRadioButton::Create(cache, x, y, w, h, parent, id, static_cast<VornControlGroup1ofN*>(group),
                          style);
}

VornValueControlGroup1ofN* VornMoonButton::GetValueGroup() {
  return WhileBound(*this, m_pValueGroup);
}

void VornMoonButton::OnMouseButton() {
  if (GetMouseDown()) {
    CaptureMouse();
    int downX = 0;
    int downY = 0;
    GetLastDownPos(downX, downY);
    m_dragStartPointerX = GetPosX() + downX;
    m_dragStartX = GetPosX();
  } else {
    ReleaseMouse();
  }
  VornRadioButton::OnMouseButton();
}

void VornMoonButton::OnMouseMove(int x, int y) {
  SetLastMousePos(x, y);
  if (!GetMouseDown()) return;
  // Event positions are relative to the button, which moves with the drag.
  const int pointerX = GetPosX() + x;
  const int parentWidth = GetParent() ? GetParent()->GetClientSize().GetWidth() : 0;
  const int maxX = std::max(0, parentWidth - GetWidth());
  const int newX = std::clamp(m_dragStartX + pointerX - m_dragStartPointerX, 0, maxX);
  if (newX != GetPosX()) SetPosition(newX, GetPosY());
  if (VornValueControlGroup1ofN* group = GetValueGroup())
    static_cast<VornControlGroupValue*>(group)->ControlDrag(GetId(), this);
}

// ---- VornRingButton --------------------------------------------------------

VornRingButton::VornRingButton(const wxColour& colour, int thickness, int leftWidth, int rightWidth,
                               int x, int y, int w, int h, wxWindow* parent, int id,
                               VornValueControlGroup1ofN* group, long style) {
  VornRingButton::Create(colour, thickness, leftWidth, rightWidth, x, y, w, h, parent, id, group,
                         style);
}

bool VornRingButton::Create(const wxColour& colour, int thickness, int leftWidth, int rightWidth,
                            int x, int y, int w, int h, wxWindow* parent, int id,
                            VornValueControlGroup1ofN* group, long style) {
  m_colour = colour;
  m_thickness = std::max(1, thickness);
  m_leftWidth = std::max(0, leftWidth);
  m_rightWidth = std::max(0, rightWidth);
  m_pValueGroup = group;
  return VornRadioButton::Create(nullptr, x, y, w, h, parent, id,
                                 static_cast<VornControlGroup1ofN*>(group), style);
}

VornValueControlGroup1ofN* VornRingButton::GetValueGroup() {
  return WhileBound(*this, m_pValueGroup);
}

void VornRingButton::SetColour(const wxColour& colour) {
  m_colour = colour;
  Redraw();
}

void VornRingButton::OnMouseButton() {
  Redraw();
  if (GetMouseDown()) {
    CaptureMouse();
    SetOn(true);
    if (VornControlGroup1ofN* group = GetGroup()) {
      group->SetOnAll(this, false, nullptr);
      group->ControlSelected(GetId(), this);
    }
    int x = 0;
    int y = 0;
    GetLastDownPos(x, y);
    m_bLeftHit = x < m_leftWidth;
    m_bRightHit = !m_bLeftHit && x >= GetWidth() - m_rightWidth;
    m_bRingHit = !m_bLeftHit && !m_bRightHit;
  } else {
    m_bLeftHit = m_bRightHit = m_bRingHit = false;
    ReleaseMouse();
  }
}

void VornRingButton::OnMouseMove(int x, int y) {
  SetLastMousePos(x, y);
  if (!GetMouseDown()) return;
  if (m_bLeftHit)
    OnMoveLeft(x, y);
  else if (m_bRightHit)
    OnMoveRight(x, y);
  else if (m_bRingHit)
    OnMoveRing(x, y);
}

void VornRingButton::OnMoveLeft(int, int) {}
void VornRingButton::OnMoveRight(int, int) {}
void VornRingButton::OnMoveRing(int, int) {}

// Drawn anti-aliased into an off-screen bitmap, then copied in one piece: the
// ring in its colour, thicker and with a light halo when on; handles at the
// sides while it is on or under the pointer; everything faded when disabled.
void VornRingButton::OnDraw(wxDC* dc) {
  VORN_ASSERT(dc != nullptr);
  if (!dc) return;
  if (IsDirty()) RecalcState();
  const int w = GetWidth();
  const int h = GetHeight();
  if (w <= 0 || h <= 0) return;

  const wxColour background = GetBgColour();
  wxBitmap canvas(w, h);
  {
    wxMemoryDC mem(canvas);
    mem.SetBackground(wxBrush(background));
    mem.Clear();
    std::unique_ptr<wxGraphicsContext> gc(wxGraphicsContext::Create(mem));
    if (gc) {
      const bool enabled = GetEnabled();
      const bool on = GetOn();
      const bool over = GetMouseOver();
      const bool down = GetMouseDown();
      const wxColour halo = Mix(background, *wxWHITE, 0.85);

      wxColour ring = m_colour;
      if (!enabled)
        ring = Mix(m_colour, background, 0.6);
      else if (down)
        ring = Mix(m_colour, *wxBLACK, 0.25);
      else if (over && !on)
        ring = Mix(m_colour, *wxWHITE, 0.2);

      const double boxW = std::max(2, w - m_leftWidth - m_rightWidth);
      const double cx = m_leftWidth + boxW / 2.0;
      const double cy = h / 2.0;
      const double outer = std::min(boxW, static_cast<double>(h)) / 2.0 - 1.0;
      const double pen = m_thickness + (on ? 1.0 : 0.0);
      const double haloGap = 2.0;
      const double radius = outer - pen / 2.0 - (on ? haloGap + 1.0 : 0.0);
      if (radius > 0) {
        if (on || over) {
          gc->SetPen(
              gc->CreatePen(wxGraphicsPenInfo(on ? (enabled ? halo : Mix(halo, background, 0.6))
                                                 : Mix(background, halo, 0.5))
                                .Width(on ? 1.5 : 1.0)));
          gc->SetBrush(*wxTRANSPARENT_BRUSH);
          const double r = outer - 0.75;
          gc->DrawEllipse(cx - r, cy - r, 2 * r, 2 * r);
        }
        gc->SetPen(gc->CreatePen(wxGraphicsPenInfo(ring).Width(pen)));
        gc->SetBrush(*wxTRANSPARENT_BRUSH);
        gc->DrawEllipse(cx - radius, cy - radius, 2 * radius, 2 * radius);
      }

      // Handles: small triangles pointing outwards.
      if ((on || over) && enabled) {
        gc->SetPen(*wxTRANSPARENT_PEN);
        gc->SetBrush(wxBrush(on ? halo : Mix(background, halo, 0.5)));
        const double th = std::min(h / 3.0, 8.0);
        auto triangle = [&](double tipX, double baseX) {
          wxGraphicsPath path = gc->CreatePath();
          path.MoveToPoint(tipX, cy);
          path.AddLineToPoint(baseX, cy - th / 2);
          path.AddLineToPoint(baseX, cy + th / 2);
          path.CloseSubpath();
          gc->FillPath(path);
        };
        if (m_leftWidth >= 4) triangle(1.0, m_leftWidth - 1.0);
        if (m_rightWidth >= 4) triangle(w - 1.0, w - m_rightWidth + 1.0);
      }
    }
    mem.SelectObject(wxNullBitmap);
  }
  dc->DrawBitmap(canvas, 0, 0, false);
}

// ---- VornMomentBtn ---------------------------------------------------------

VornMomentHint::~VornMomentHint() = default;

VornButtonTimer::VornButtonTimer(VornMomentBtn* button) : m_pButton(button) {
  m_stopWatch.Start(0);
}

long VornButtonTimer::ElapsedMilliseconds() const {
  return m_clock ? m_clock() : m_stopWatch.Time();
}

void VornButtonTimer::Notify() {
  // A tick already queued when the button was disabled must not restart it.
  if (!m_pButton->GetEnabled()) return;
  const long total = ElapsedMilliseconds() + m_remainder;
  int interval = m_pButton->GetRepeatInterval();
  VORN_ASSERT(interval > 0);
  interval = std::max(1, interval);
  Start(interval, wxTIMER_ONE_SHOT);

  long count = 0;
  if (m_bFirstTick) {
    m_bFirstTick = false;
  } else {
    count = total / interval;
    m_remainder = static_cast<int>(total % interval);
  }

  const unsigned int id = m_pButton->GetId();
  for (long i = 0; i <= count; ++i) {
    // A receiver may disable the button (or unbind it) in the middle.
    VornControlGroup* group = m_pButton->GetGroup();
    if (!group || !m_pButton->GetEnabled()) break;
    group->ControlSelected(id, m_pButton);
    VornMomentHint hint(false);
    group->Update(id, m_pButton, &hint);
  }
  m_stopWatch.Start(0);
}

VornMomentBtn::VornMomentBtn() : m_pTimer(std::make_unique<VornButtonTimer>(this)) {}

VornMomentBtn::VornMomentBtn(const VornwxBitmapCache* cache, int x, int y, wxWindow* parent, int id,
                             VornControlGroup* group, long style, int initialDelay,
                             int repeatInterval)
    : m_pTimer(std::make_unique<VornButtonTimer>(this)) {
  VornMomentBtn::Create(cache, x, y, parent, id, group, style, initialDelay, repeatInterval);
}

VornMomentBtn::VornMomentBtn(const VornwxBitmapCache* cache, int x, int y, int w, int h,
                             wxWindow* parent, int id, VornControlGroup* group, long style,
                             int initialDelay, int repeatInterval)
    : m_pTimer(std::make_unique<VornButtonTimer>(this)) {
  VornMomentBtn::Create(cache, x, y, w, h, parent, id, group, style, initialDelay, repeatInterval);
}

VornMomentBtn::~VornMomentBtn() {
  m_pTimer->Stop();
}

bool VornMomentBtn::Create(const VornwxBitmapCache* cache, int x, int y, wxWindow* parent, int id,
                           VornControlGroup* group, long style, int initialDelay,
                           int repeatInterval) {
  m_initialDelay = initialDelay;
  m_repeatInterval = repeatInterval;
  return VornButton::Create(cache, x, y, parent, id, group, style);
}

bool VornMomentBtn::Create(const VornwxBitmapCache* cache, int x, int y, int w, int h,
                           wxWindow* parent, int id, VornControlGroup* group, long style,
                           int initialDelay, int repeatInterval) {
  m_initialDelay = initialDelay;
  m_repeatInterval = repeatInterval;
  return VornButton::Create(cache, x, y, w, h, parent, id, group, style);
}

void VornMomentBtn::OnEnable(bool enabled) {
  if (!enabled && m_pTimer->IsRunning()) m_pTimer->Stop();
}

void VornMomentBtn::OnMouseButton() {
  Redraw();
  VornControlGroup* group = VornControl::GetGroup();
  if (GetMouseDown()) {
    m_pTimer->SetFirstTick(true);
    m_pTimer->Start(std::max(1, m_initialDelay), wxTIMER_ONE_SHOT);
    if (group) {
      group->ControlSelected(GetId(), this);
      VornMomentHint hint(true);
      group->Update(GetId(), this, &hint);
    }
  } else if (IsRelease()) {
    if (group && GetMouseOver()) group->ControlUnSelected(GetId(), this);
    if (m_pTimer->IsRunning()) m_pTimer->Stop();
  }
}

// ---- VornTextPushButton ----------------------------------------------------

VornTextPushButton::VornTextPushButton(const VornString& text, int textX, int textY,
                                       const wxFont& font, const wxColour& textColour,
                                       const wxColour& background, const wxColour& textColour2,
                                       const VornwxBitmapCache* cache, int x, int y,
                                       wxWindow* parent, int id, VornControlGroup* group,
                                       long style) {
  VornTextPushButton::Create(text, textX, textY, font, textColour, background, textColour2, cache,
                             x, y, parent, id, group, style);
}

VornTextPushButton::VornTextPushButton(const VornString& text, int textX, int textY,
                                       const wxFont& font, const wxColour& textColour,
                                       const wxColour& background, const wxColour& textColour2,
                                       int x, int y, int w, int h, wxWindow* parent, int id,
                                       VornControlGroup* group, long style,
                                       const VornwxBitmapCache* cache) {
  VornTextPushButton::Create(text, textX, textY, font, textColour, background, textColour2, x, y, w,
                             h, parent, id, group, style, cache);
}

void VornTextPushButton::Setup(const VornString& text, int textX, int textY, const wxFont& font,
                               const wxColour& textColour, const wxColour& background,
                               const wxColour& textColour2, const VornwxBitmapCache* cache) {
  m_text = text;
  m_textX = textX;
  m_textY = textY;
  m_font = font;
  m_textColour = textColour;
  m_background = background;
  m_textColour2 = textColour2;
  m_pImageCache = cache;
  SetBgColour(background);
}

bool VornTextPushButton::Create(const VornString& text, int textX, int textY, const wxFont& font,
                                const wxColour& textColour, const wxColour& background,
                                const wxColour& textColour2, const VornwxBitmapCache* cache, int x,
                                int y, wxWindow* parent, int id, VornControlGroup* group,
                                long style) {
  const bool created = VornControl::Create(x, y, parent, id, group, style);
  Setup(text, textX, textY, font, textColour, background, textColour2, cache);
  int w = 0;
  int h = 0;
  if (cache && cache->GetSize(w, h)) SetSize(w, h);
  return created;
}

bool VornTextPushButton::Create(const VornString& text, int textX, int textY, const wxFont& font,
                                const wxColour& textColour, const wxColour& background,
                                const wxColour& textColour2, int x, int y, int w, int h,
                                wxWindow* parent, int id, VornControlGroup* group, long style,
                                const VornwxBitmapCache* cache) {
  const bool created = VornControl::Create(x, y, w, h, parent, id, group, style);
  Setup(text, textX, textY, font, textColour, background, textColour2, cache);
  return created;
}

const wxBitmap* VornTextPushButton::GetImage(VORNIMAGETYPE state) const {
  const wxBitmap* image = nullptr;
  if (m_pImageCache && VornGetImageWithFallback(*m_pImageCache, state, image)) return image;
  return nullptr;
}

// Only the off images: a push button is never on. Disabled uses its own
// image when the cache has one (it falls back to the plain one).
VORNIMAGETYPE VornTextPushButton::GetDrawState() const {
  return StateFor(GetEnabled(), false, GetMouseDown(), GetMouseOver());
}

void VornTextPushButton::SetText(const VornString& text) {
  m_text = text;
  Refresh(false);
}

void VornTextPushButton::OnMouseButton() {
  SetDirty();
  Refresh(false);
  VornControlGroup* group = GetGroup();
  if (!group) return;
  if (GetMouseDown())
    group->ControlSelected(GetId(), this);
  else if (GetMouseOver())
    group->ControlUnSelected(GetId(), this);
}

void VornTextPushButton::OnDraw(wxDC* dc) {
  VORN_ASSERT(dc != nullptr);
  if (!dc) return;
  if (IsDirty()) RecalcState();
  const VORNIMAGETYPE state = GetDrawState();
  const wxBitmap* image = GetImage(state);
  if (image && image->IsOk()) {
    wxMemoryDC source;
    source.SelectObjectAsSource(*image);
    dc->Blit(0, 0, image->GetWidth(), image->GetHeight(), &source, 0, 0, wxCOPY, false);
    source.SelectObject(wxNullBitmap);
  } else {
    dc->SetBackground(wxBrush(m_background));
    dc->Clear();
  }
  if (m_text.empty()) return;

  wxColour colour = m_textColour;
  if (!GetEnabled())
    colour = Mix(m_textColour, m_background, 0.55);
  else if (GetMouseDown() || GetMouseOver())
    colour = m_textColour2;
  dc->SetFont(m_font.IsOk() ? m_font : *wxNORMAL_FONT);
  const int room = m_textX >= 0 ? GetWidth() - m_textX : GetWidth() - 8;
  const wxString label = FitLabel(*dc, wxString::FromUTF8(m_text.c_str()), room);
  dc->SetTextForeground(colour);
  dc->SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
  wxCoord tw = 0;
  wxCoord th = 0;
  dc->GetTextExtent(label, &tw, &th);
  // The label sinks by a pixel while pressed, like the face.
  const int press = state == VIT_OFF_DOWN ? 1 : 0;
  dc->DrawText(label, LabelStart(m_textX, GetWidth(), tw) + press,
               LabelStart(m_textY, GetHeight(), th) + press);
}

// ---- VornTextRadioButton ---------------------------------------------------

VornTextRadioButton::VornTextRadioButton(VornControlGroup1ofN* group, const VornString& text,
                                         const VornString& text2, const wxFont& font,
                                         const wxColour& offColour, const wxColour& onColour,
                                         const wxColour& overColour)
    : m_pGroup1ofN(group),
      m_text(text),
      m_text2(text2),
      m_font(font),
      m_offColour(offColour),
      m_onColour(onColour),
      m_overColour(overColour) {}

VornTextRadioButton::VornTextRadioButton(const VornwxBitmapCache* cache, const VornString& text,
                                         const VornString& text2, const wxFont& font,
                                         const wxColour& offColour, const wxColour& onColour,
                                         const wxColour& overColour, int x, int y, wxWindow* parent,
                                         int id, VornControlGroup1ofN* group, long style)
    : VornTextRadioButton(group, text, text2, font, offColour, onColour, overColour) {
  VornButton::Create(cache, x, y, parent, id, group, style);
}

VornTextRadioButton::VornTextRadioButton(const VornwxBitmapCache* cache, const VornString& text,
                                         const VornString& text2, const wxFont& font,
                                         const wxColour& offColour, const wxColour& onColour,
                                         const wxColour& overColour, int x, int y, int w, int h,
                                         wxWindow* parent, int id, VornControlGroup1ofN* group,
                                         long style)
    : VornTextRadioButton(group, text, text2, font, offColour, onColour, overColour) {
  VornButton::Create(cache, x, y, w, h, parent, id, group, style);
}

VornControlGroup1ofN* VornTextRadioButton::GetGroup() {
  return WhileBound(*this, m_pGroup1ofN);
}

void VornTextRadioButton::OnMouseButton() {
  Redraw();
  if (IsRelease()) RadioRelease(*this, GetGroup(), m_bToggle);
}

void VornTextRadioButton::SetText(const VornString& text) {
  m_text = text;
  Refresh(false);
}

void VornTextRadioButton::SetText2(const VornString& text) {
  m_text2 = text;
  Refresh(false);
}

wxColour VornTextRadioButton::GetTextColour() const {
  const wxColour base = m_bOn ? m_onColour : m_offColour;
  if (!GetEnabled()) return Mix(base, m_offColour, 0.5).ChangeLightness(60);
  if (GetMouseOver()) return m_bOn ? m_onColour.ChangeLightness(120) : m_overColour;
  return base;
}

void VornTextRadioButton::OnDraw(wxDC* dc) {
  VORN_ASSERT(dc != nullptr);
  if (!dc) return;
  VornButton::OnDraw(dc);
  if (m_text.empty() && m_text2.empty()) return;

  dc->SetFont(m_font.IsOk() ? m_font : *wxNORMAL_FONT);
  dc->SetTextForeground(GetTextColour());
  dc->SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
  const int pad = std::max(4, GetHeight() / 3);
  const int press = GetMouseDown() ? 1 : 0;
  const wxString second = FitLabel(*dc, wxString::FromUTF8(m_text2.c_str()), GetWidth() - 2 * pad);
  wxCoord tw = 0;
  wxCoord th = 0;
  // The first label gives way to the second when both do not fit.
  const int secondWidth = second.empty() ? 0 : dc->GetTextExtent(second).x + pad / 2;
  const wxString first =
      FitLabel(*dc, wxString::FromUTF8(m_text.c_str()), GetWidth() - 2 * pad - secondWidth);
  if (!first.empty()) {
    dc->GetTextExtent(first, &tw, &th);
    const int x = second.empty() ? (GetWidth() - tw) / 2 : pad;
    dc->DrawText(first, x + press, (GetHeight() - th) / 2 - 1 + press);
  }
  if (!second.empty()) {
    dc->GetTextExtent(second, &tw, &th);
    dc->DrawText(second, GetWidth() - pad - tw + press, (GetHeight() - th) / 2 - 1 + press);
  }
}
