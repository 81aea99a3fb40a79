#pragma once
// Where the installed toolkit keeps its data.
#include <string>

// The directory of the default skin installed with this library, ending in
// '/', found relative to the library file itself so that a moved
// installation still finds it. Empty when the skin is not there (a library
// run from its build tree).
std::string VornDefaultSkinDir();
