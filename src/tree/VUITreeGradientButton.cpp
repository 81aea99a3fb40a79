// The gradient button of the tree: a click asks the host for its gradient
// editor (a NodeButtonPushHint).
#include "VUITreeTexts.h"
#include "vorn/VUIControls.h"

VUITreeGradientButton::VUITreeGradientButton(AssetManager* assetman, VornString name,
                                             bool functionable)
    : VUITreeSubPrimBase(assetman, std::move(name), functionable,
                         LoadButtonImages(assetman, VUITreeTexts::kGradientButton)) {}

VUITreeGradientButton::~VUITreeGradientButton() = default;
