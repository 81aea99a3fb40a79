#include <wx/dc.h>

#include <algorithm>
#include <memory>

#include "vorn/GraphicsFunctions.h"
#include "vorn/VornAngleControl.h"
#include "vornhost/Filter.h"

namespace {
// The layer turns twice over the value range, clockwise.
constexpr double kLayerDegreesPerValue = -720.0;
}  // namespace

VornTimeControl::VornTimeControl(const VornBitmapACache* images, const BitmapA* layer, int radius,
                                 int x, int y, int w, int h, wxWindow* parent, int id,
                                 VornControlGroupValue* group, long style) {
  VornTimeControl::Create(images, layer, radius, x, y, w, h, parent, id, group, style);
}

bool VornTimeControl::Create(const VornBitmapACache* images, const BitmapA* layer, int radius,
                             int x, int y, int w, int h, wxWindow* parent, int id,
                             VornControlGroupValue* group, long style) {
  return VornTimeControl::Create(images, layer, w / 2, h / 2, radius, x, y, w, h, parent, id, group,
                                 style);
}

bool VornTimeControl::Create(const VornBitmapACache* images, const BitmapA* layer, int cx, int cy,
                             int radius, int x, int y, int w, int h, wxWindow* parent, int id,
                             VornControlGroupValue* group, long style) {
  m_pImages = images;
  m_pLayer = layer;
  return VornAngleControl::Create(cx, cy, radius, x, y, w, h, parent, id, group, style);
}

VORNIMAGETYPE VornTimeControl::GetState() const {
  if (!GetEnabled()) return VIT_DISABLED_OFF;
  if (GetMouseDownLeft()) return VIT_OFF_DOWN;
  return GetMouseOver() ? VIT_OFF_MOUSE_OVER : VIT_OFF;
}

void VornTimeControl::RecalcState() {
  BitmapA canvas;
  if (::Create(canvas, std::max(1, GetWidth()), std::max(1, GetHeight()))) {
    ClearBitmap(canvas, WxCtoCA(GetBgColour()));
    const BitmapA* face = nullptr;
    if (m_pImages && VornGetImageWithFallback(*m_pImages, GetState(), face))
      Blit(canvas, *face, (canvas.width - face->width) / 2, (canvas.height - face->height) / 2);
    if (m_pLayer && !m_pLayer->IsEmpty()) {
      BitmapA layer = *m_pLayer, turned;
      std::unique_ptr<Filter> from = CreateFilter(layer), to = CreateFilter(turned);
      Rotate(*to, *from, kLayerDegreesPerValue * GetValue());
      Blit(canvas, turned, m_centreX - turned.width / 2, m_centreY - turned.height / 2);
    }
    ConvertTo(m_drawing, canvas);
  }
  m_drawnTurn = m_turn;
  VornAngleControl::RecalcState();
}

void VornTimeControl::OnDraw(wxDC* dc) {
  if (!IsShown()) return;
  if (IsDirty() || m_drawnTurn != m_turn || !m_drawing.IsOk()) RecalcState();
  if (m_drawing.IsOk()) dc->DrawBitmap(m_drawing, 0, 0, false);
}
