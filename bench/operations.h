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
    {"calculate_default", 3739},
    {"calculate_full", 14936},
    {"calculate_silent", 3736},
    {"search_all", 2057192},
    {"analysis_full", 11595},
    {"naive_full", 315428},
    {"naive_full_loads_only", 147943},
}};

}  // namespace korvane
