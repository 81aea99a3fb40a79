// The colour editor of the tree: a swatch on a button; a click opens the
// colour dialog on the current colour and applies the colour chosen with OK.
#include <wx/dc.h>
#include <wx/toplevel.h>

#include "VUITreeTexts.h"
#include "vorn/ColourPicker.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/VUIControls.h"

namespace {
// The swatch sits inside the button's well.
constexpr int kSwatchInset = 4;
}  // namespace

VUITreeColorButton::VUITreeColorButton(AssetManager* assetman, VornString name, bool functionable,
                                       const Color& colour)
    : VUITreeSubPrimBase(assetman, std::move(name), functionable,
                         LoadButtonImages(assetman, VUITreeTexts::kColourButton)),
      m_colour(colour) {}

VUITreeColorButton::~VUITreeColorButton() = default;

bool VUITreeColorButton::SetValue(Color value) {
  m_colour = value;
  if (m_pButton) m_pButton->Refresh(false);
  return true;
}

bool VUITreeColorButton::GetValue(Color& out) {
  out = m_colour;
  return true;
}

void VUITreeColorButton::OnButtonPush(int) {
  if (!m_pAssetManager) return;
  VornColourDialog dialog(wxGetTopLevelParent(this), *m_pAssetManager, m_colour);
  const std::optional<Color> chosen = m_dialogStep ? m_dialogStep(dialog) : dialog.Choose();
  if (!chosen) return;
  SetValue(*chosen);
  NodeChangedHint hint(GetNodeId());
  if (GetGroup()) GetGroup()->Update(0, this, &hint);
}

void VUITreeColorButton::DrawButtonFace(wxDC& dc, const wxRect& face) {
  const wxRect swatch = wxRect(face).Deflate(kSwatchInset);
  if (swatch.IsEmpty()) return;
  dc.SetPen(*wxTRANSPARENT_PEN);
  dc.SetBrush(wxBrush(CtoWxC(m_colour)));
  dc.DrawRectangle(swatch);
}
