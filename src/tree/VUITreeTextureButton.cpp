// The texture button of the tree: a click asks the host for its texture
// editor (a NodeButtonPushHint); it keeps a value of every type meanwhile.
#include "VUITreeTexts.h"
#include "vorn/VUIControls.h"

VUITreeTextureButton::VUITreeTextureButton(AssetManager* assetman, VornString name,
                                           bool functionable)
    : VUITreeSubPrimBase(assetman, std::move(name), functionable,
                         LoadButtonImages(assetman, VUITreeTexts::kTextureButton)) {}

VUITreeTextureButton::~VUITreeTextureButton() = default;
