#pragma once
// Everything the host layer offers.
#include "vornhost/Bitmap.h"
#include "vornhost/Color.h"
#include "vornhost/Debug.h"
#include "vornhost/Filter.h"
#include "vornhost/Gradient.h"
#include "vornhost/Types.h"
#include "vornhost/Utility.h"
#include "vornhost/Vector.h"
#include "vornhost/VornInputStream.h"
