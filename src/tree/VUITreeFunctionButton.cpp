// The function button of the tree: a click asks the host for its function
// editor (a NodeButtonPushHint); it keeps a value of every type meanwhile.
#include "VUITreeTexts.h"
#include "vorn/VUIControls.h"

VUITreeFunctionButton::VUITreeFunctionButton(AssetManager* assetman, VornString name,
                                             bool functionable)
    : VUITreeSubPrimBase(assetman, std::move(name), functionable,
                         LoadButtonImages(assetman, VUITreeTexts::kFunctionButton)) {}

VUITreeFunctionButton::~VUITreeFunctionButton() = default;
