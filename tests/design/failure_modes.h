// SPDX-License-Identifier: GPL-3.0-or-later
// What the tests of failure modes share: members without loads and their ratios.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "analysis/loads.h"
#include "designs.h"

namespace korvane {

/// A member of 4 m of S355 without loads.
inline Design Unloaded(int profileType) {
  Design d = StartedDesign(profileType);
  ClearLoads(d.st);
  d.st.L = 4;
  d.st.lfp_uls = 1;
  d.st.lfp_sls = 1;
  d.st.idxIPE = d.st.idxINP = 6;  // of 200 mm height, like the HEA
  return d;
}

/// Calculated twice: the second time with the weight and the moments of the first.
inline Design& Settle(Design& d) {
  Calculate(d);
  Calculate(d);
  return d;
}

inline Design Settled(Design d) {
  return Settle(d);
}

/// One of the ratios of a design.
struct Ratio {
  const char* name;
  number CheckResults::*value;
};
inline constexpr Ratio kRatios[] = {{"section", &CheckResults::IRsection},
                                    {"Vz", &CheckResults::IRvz},
                                    {"Vy", &CheckResults::IRvy},
                                    {"lateral", &CheckResults::IRlateral},
                                    {"Ny", &CheckResults::IRny},
                                    {"Nz", &CheckResults::IRnz},
                                    {"combined y", &CheckResults::IRcombinedY},
                                    {"combined z", &CheckResults::IRcombinedZ}};

/// Equal but for a relative tolerance.
inline void ExpectSame(double a, double b, double tolerance, const std::string& what) {
  EXPECT_NEAR(a, b, tolerance * std::max(std::fabs(a), std::fabs(b)) + 1e-9) << what;
}

}  // namespace korvane
