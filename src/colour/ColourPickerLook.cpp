#include "ColourTexts.h"
#include "vorn/AssetManager.h"
#include "vorn/ColourPicker.h"

namespace {

// A name the skin lacks keeps the default.
void Take(const AssetManager& assets, const char* name, wxColour& colour) {
  wxColour found;
  if (assets.GetColour(name, found)) colour = found;
}

void Take(const AssetManager& assets, const char* name, wxFont& font) {
  wxFont found;
  if (assets.GetFont(name, found)) font = found;
}

}  // namespace

ColourPickerLook ColourPickerLook::FromSkin(const AssetManager& assets) {
  using namespace ColourTexts;
  ColourPickerLook look;
  Take(assets, kFrameColour, look.frame);
  Take(assets, kEdgeColour, look.edge);
  Take(assets, kLabelColour, look.label);
  Take(assets, kFieldTextColour, look.fieldText);
  Take(assets, kFieldFillColour, look.fieldFill);
  Take(assets, kFieldSelectionColour, look.fieldSelection);
  Take(assets, kMarkerColour, look.marker);
  Take(assets, kMarkerShadowColour, look.markerShadow);
  Take(assets, kSliderColour, look.slider);
  Take(assets, kLabelFont, look.labelFont);
  Take(assets, kFieldFont, look.fieldFont);
  return look;
}
