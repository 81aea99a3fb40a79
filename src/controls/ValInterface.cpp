// Out-of-line destructors give each hint type, the base included, one home
// for its type information, so dynamic_cast works across library boundaries.
#include "vorn/ValInterface.h"

VornControlHint::~VornControlHint() = default;
VUIControlChanged::~VUIControlChanged() = default;
VUIControlChanging::~VUIControlChanging() = default;
IntValChanged::~IntValChanged() = default;
RealValChanged::~RealValChanged() = default;
RealValChanging::~RealValChanging() = default;
StringValChanged::~StringValChanged() = default;
