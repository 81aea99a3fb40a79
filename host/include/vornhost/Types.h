#pragma once
// Basic scalar and string types shared by the host layer and the toolkit.
#include <cstdint>
#include <string>

typedef std::string VornString;
typedef std::int32_t int32;
typedef double real64;
