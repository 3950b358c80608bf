// SPDX-License-Identifier: GPL-3.0-or-later
// Effective sections on paper: a gross section less rectangles, about its own new centroid.
#pragma once

#include <cmath>
#include <vector>

#include "tests/sections/section_support.h"

namespace korvane::testing {

/// Rectangle taken off: width along the bending axis, height across it, middle below the
/// compressed edge, mm.
struct Removed {
  double width, height, middle;
};

/// Section with its centroid at z below the compressed edge.
struct Bending {
  double A, I, z;

  Bending Less(const std::vector<Removed>& parts) const {
    Bending rest{A, I, 0};
    double moment = 0;  // of what is removed, about the old centroid
    for (const Removed& p : parts) {
      rest.A -= p.width * p.height;
      moment += p.width * p.height * (p.middle - z);
    }
    const double shift = -moment / rest.A;
    rest.z = z + shift;
    for (const Removed& p : parts) {
      const double arm = p.middle - z;
      rest.I -= p.width * std::pow(p.height, 3) / 12 + p.width * p.height * arm * arm;
    }
    rest.I -= rest.A * shift * shift;
    return rest;
  }
  /// Modulus of the compressed edge.
  double W() const { return I / z; }
};

/// Webs of a bent section: total thickness, depth between the flanges, slenderness of one.
struct Webs {
  double thickness, depth, ratio;
};

/// Bent section without `lost` mm of the width of its compressed flange (thickness t) and
/// without the strip that its webs lose: of their compressed height hc, 0.4*rho stay at the
/// flange and 0.6*rho at the neutral axis.
inline Bending Bend(const Bending& gross, double lost, double t, const Webs& webs, double eps,
                    bool wholeWebs) {
  const Removed flange{lost, t, t / 2};
  const double hc = gross.Less({flange}).z - t;
  const double psi = 1 - webs.depth / hc;
  const double k = 7.81 - 6.29 * psi + 9.78 * psi * psi;
  const double rho = wholeWebs ? 1 : Rho(webs.ratio, eps, k);
  const double strip = (1 - rho) * hc;
  return gross.Less({flange, {webs.thickness, strip, t + 0.4 * rho * hc + strip / 2}});
}

}  // namespace korvane::testing
