#pragma once
// Everything a host needs: the toolkit and the host layer it builds on.
#include "vornhost/VornHost.h"

#include "vorn/Asset.h"
#include "vorn/AssetManager.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/ImageScriptParser.h"
#include "vorn/UIFilters.h"
#include "vorn/ValInterface.h"
#include "vorn/VirtualControl.h"
#include "vorn/VornAssert.h"
#include "vorn/VornButton.h"
#include "vorn/VornControl.h"
#include "vorn/VornControlGroup.h"
#include "vorn/VornGLTextureCache.h"
#include "vorn/VornImageCache.h"
#include "vorn/VornWindow.h"
