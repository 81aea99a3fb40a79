// The curve button of the tree: a click asks the host for its curve
// editor (a NodeButtonPushHint).
#include "VUITreeTexts.h"
#include "vorn/VUIControls.h"

VUITreeCurveButton::VUITreeCurveButton(AssetManager* assetman, VornString name, bool functionable)
    : VUITreeSubPrimBase(assetman, std::move(name), functionable,
                         LoadButtonImages(assetman, VUITreeTexts::kCurveButton)) {}

VUITreeCurveButton::~VUITreeCurveButton() = default;
