#pragma once
#include <cstdint>

// The program's whole numbers are 16-bit signed.
using Integer = std::int16_t;
