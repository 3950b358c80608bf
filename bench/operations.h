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
    {"calculate_default", 3731},
    {"calculate_full", 14733},
    {"calculate_silent", 3728},
    {"search_all", 2532508},
    {"analysis_full", 11392},
    {"naive_full", 315425},
    {"naive_full_loads_only", 147940},
}};

}  // namespace korvane
