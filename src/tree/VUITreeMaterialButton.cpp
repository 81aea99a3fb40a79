// The material button of the tree: a click asks the host for its material
// editor (a NodeButtonPushHint).
#include "VUITreeTexts.h"
#include "vorn/VUIControls.h"

VUITreeMaterialButton::VUITreeMaterialButton(AssetManager* assetman, VornString name,
                                             bool functionable)
    : VUITreeSubPrimBase(assetman, std::move(name), functionable,
                         LoadButtonImages(assetman, VUITreeTexts::kMaterialButton)) {}

VUITreeMaterialButton::~VUITreeMaterialButton() = default;
