// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/geometry.h"

namespace korvane {
namespace {

// Cuts the part [t0, t1] of a line down to low <= start + t*delta <= high.
bool Cut(double start, double delta, double low, double high, double& t0, double& t1) {
  if (delta == 0) return start >= low && start <= high;
  double in = (low - start) / delta;
  double out = (high - start) / delta;
  if (in > out) std::swap(in, out);
  t0 = std::max(t0, in);
  t1 = std::min(t1, out);
  return t0 <= t1;
}

}  // namespace

bool Meets(Point a, Point b, const Box& r) {
  double t0 = 0, t1 = 1;
  return Cut(a.x, b.x - a.x, r.left, r.right, t0, t1) &&
         Cut(a.y, b.y - a.y, r.top, r.bottom, t0, t1);
}

}  // namespace korvane
