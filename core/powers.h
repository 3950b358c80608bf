// SPDX-License-Identifier: GPL-3.0-or-later
// Third and fourth powers, to the last bit the same on every machine: what the mathematics
// libraries of two systems give for them differs there now and then.
#pragma once

#include <cmath>

namespace korvane {

namespace powers {

/// A product with what its rounding lost.
struct Product {
  double rounded, lost;
};

/// Exact for factors below 1E70 and as long as nothing is smaller than the smallest numbers.
inline Product Exact(double a, double b) {
  constexpr double half = 134217729;  // 2^27 + 1 splits a number's digits in two
  const double aUpper = half * a - (half * a - a);
  const double bUpper = half * b - (half * b - b);
  const double aLower = a - aUpper;
  const double bLower = b - bUpper;
  const double p = a * b;
  return {p, ((aUpper * bUpper - p) + aUpper * bLower + aLower * bUpper) + aLower * bLower};
}

/// Beyond, the plain product: it overflows or is checked where it goes.
inline constexpr double kLargest = 1E70;

}  // namespace powers

/// x to the third, rounded once.
inline double Cube(double x) {
  if (!(std::fabs(x) < powers::kLargest)) return x * x * x;
  const powers::Product square = powers::Exact(x, x);
  const powers::Product cube = powers::Exact(square.rounded, x);
  return cube.rounded + (cube.lost + square.lost * x);
}

/// x to the fourth, rounded once.
inline double Fourth(double x) {
  if (!(std::fabs(x) < powers::kLargest)) return x * x * (x * x);
  const powers::Product square = powers::Exact(x, x);
  const powers::Product fourth = powers::Exact(square.rounded, square.rounded);
  return fourth.rounded + (fourth.lost + 2 * square.rounded * square.lost);
}

}  // namespace korvane
