#pragma once
// The colour, font and asset names the toolkit's own code asks a skin for,
// by control family. Skin checkers and skin documentation read this list;
// a control that reads a new name adds it here.
#include <vector>

struct VornSkinName {
  enum Kind { kColour, kFont, kAsset };
  Kind kind;
  const char* name;
  const char* family;
};

const std::vector<VornSkinName>& VornToolkitSkinNames();
