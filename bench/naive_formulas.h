// SPDX-License-Identifier: GPL-3.0-or-later
// The beam formulas as an engineer's table has them: one load on one rigid support case, at x.
#pragma once

namespace korvane::naive {

/// Rigid support cases: pinned-pinned, pinned-fixed, fixed-fixed, fixed-free.
enum Case { kPinned = 0, kPropped = 1, kFixed = 2, kCantilever = 4 };

/// Where a value is asked for: the ends have values of their own.
enum class At { Start, Inside, End };

/// kNm and kN.
struct Effect {
  double M = 0, V = 0;
};

/// A load on a case; left: x lies on the left of the load. L, a, x in m.
Effect LineForce(Case c, At at, double L, double q, double x);
Effect PointForce(Case c, At at, bool left, double L, double P, double a, double x);
Effect MomentForce(Case c, At at, bool left, double L, double Mo, double a, double x);

/// Deflections in mm; K = 1E12/(E*I). They hold at every x, but only a cantilever's at x = L.
double LineDeflection(Case c, double K, double L, double q, double x);
double PointDeflection(Case c, double K, double L, double P, double a, double x);
double MomentDeflection(Case c, double K, double L, double Mo, double a, double x);

}  // namespace korvane::naive
