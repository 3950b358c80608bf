// SPDX-License-Identifier: GPL-3.0-or-later
// Integrates a section cut into thin strips, on its own and without closed formulas.
#pragma once

#include <cmath>
#include <functional>

namespace korvane::testing {

/// Values about the horizontal axis of a section: mm.
struct StripValues {
  double A = 0;
  double y = 0;    ///< centroid above the lower edge
  double I = 0;    ///< second moment about the centroid
  double ypl = 0;  ///< plastic axis above the lower edge
  double Wpl = 0;
};

/// width(y) is the material's width at the height y of 0..H.
inline StripValues Integrate(double H, const std::function<double(double)>& width) {
  constexpr int strips = 200000;
  const double dy = H / strips;
  StripValues v;
  double first = 0;
  double second = 0;
  for (int i = 0; i < strips; ++i) {
    const double y = (i + 0.5) * dy;
    const double dA = width(y) * dy;
    v.A += dA;
    first += dA * y;
    second += dA * y * y;
  }
  v.y = first / v.A;
  v.I = second - v.A * v.y * v.y;
  double below = 0;
  for (int i = 0; i < strips && below < v.A / 2; ++i) {
    below += width((i + 0.5) * dy) * dy;
    v.ypl = (i + 1) * dy;
  }
  for (int i = 0; i < strips; ++i) {
    const double y = (i + 0.5) * dy;
    v.Wpl += width(y) * dy * std::fabs(y - v.ypl);
  }
  return v;
}

/// Width of a stack of rectangles (width, lower edge, upper edge).
struct Slab {
  double width, low, high;
};
template <class... Slabs>
std::function<double(double)> Stack(Slabs... slabs) {
  return [=](double y) {
    double w = 0;
    for (const Slab& s : {slabs...}) w += y > s.low && y < s.high ? s.width : 0;
    return w;
  };
}

}  // namespace korvane::testing
