// SPDX-License-Identifier: GPL-3.0-or-later
// Floating-point operations of each piece of work, as counted. Written by scripts/flops.
#pragma once

#include <array>

namespace korvane {

struct Operations {
  const char* work;
  double count;
};

inline constexpr std::array<Operations, 7> kOperations{{
    {"calculate_default", 3728},
    {"calculate_full", 14797},
    {"calculate_silent", 3725},
    {"search_all", 2056384},
    {"analysis_full", 11456},
    {"naive_full", 315425},
    {"naive_full_loads_only", 147940},
}};

}  // namespace korvane
