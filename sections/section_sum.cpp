// SPDX-License-Identifier: GPL-3.0-or-later
#include "sections/section_sum.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/numeric.h"

namespace korvane {

SumResult SectionSum(const RectList& list) {
  SumResult s;
  double Ax = 0;
  double Ay = 0;
  const auto add = [&](double area, double x, double y, double ownY, double ownZ) {
    s.A += area;
    Ax += area * x;
    Ay += area * y;
    s.Iy += area * y * y + ownY;
    s.Iz += area * x * x + ownZ;
  };
  for (const Rect& r : list) {
    add(r.Area(), r.x0 + r.w / 2, r.y0 + r.t / 2, r.w * r.t * r.t * r.t / 12,
        r.t * r.w * r.w * r.w / 12);
    const double shortSide = std::min(r.w, r.t);
    s.Ix += std::max(r.w, r.t) * shortSide * shortSide * shortSide / 3;
  }
  for (int i = 0; i < list.filletCount; ++i) {
    const Fillet& f = list.fillets[static_cast<std::size_t>(i)];
    add(f.area, f.x, f.y, f.own, f.own);
  }
  s.xbar = Ax / s.A;
  s.ybar = Ay / s.A;
  s.Iy -= s.ybar * s.ybar * s.A;
  s.Iz -= s.xbar * s.xbar * s.A;
  return s;
}

namespace {

/// Height of the part of a rectangle that lies below y. The input limits allow flanges that
/// overlap; the web between them has a negative height then and takes area away where it lies.
double HeightBelow(const Rect& r, double y) {
  const double lowest = std::min(r.y0, r.Top());
  const double part = std::clamp(y - lowest, 0.0, std::fabs(r.t));
  return r.t < 0 ? -part : part;
}

double AreaBelow(const RectList& list, double y) {
  double below = 0;
  for (const Rect& r : list) below += r.w * HeightBelow(r, y);
  return below;
}

/// The lowest height with so much area below it: the area grows in a straight line between two
/// edges of rectangles.
double CrossingHeight(const RectList& list, double area) {
  std::array<double, 2 * RectList::kCapacity> edges{};
  std::size_t count = 0;
  for (const Rect& r : list) {
    if (!std::isfinite(r.y0) || !std::isfinite(r.Top())) throw ArithmeticFault("overflow");
    edges[count++] = r.y0;
    edges[count++] = r.Top();
  }
  std::sort(edges.begin(), edges.begin() + static_cast<std::ptrdiff_t>(count));
  double last = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const double below = AreaBelow(list, edges[i]);
    if (below >= area) {
      if (i == 0 || below == last) return edges[i];
      return edges[i] - (edges[i] - edges[i - 1]) * (below - area) / (below - last);
    }
    last = below;
  }
  throw ArithmeticFault("no plastic axis inside the section");
}

}  // namespace

double WalkPlasticAxis(const RectList& list, double A, double H) {
  constexpr double step = 0.1;
  constexpr double tall = 1E5;  // mm; beyond it the steps are not taken one by one
  const double crossing = CrossingHeight(list, A / 2);
  double y = 2.0;
  if (crossing > tall) {
    y += step * std::ceil((crossing - y) / step);
  } else {
    while (y < crossing - 2 * step) y += step;  // no test below the crossing can succeed
    while (y <= H && AreaBelow(list, y) < A / 2) y += step;
  }
  if (y <= H) return y;
  throw ArithmeticFault("no plastic axis inside the section");
}

double PlasticModulus(const RectList& list, double y) {
  double W = 0;
  for (const Rect& r : list) {
    const double mid = (r.y0 + r.Top()) / 2;
    if (r.y0 < y && y <= r.Top()) {
      W += (y - r.y0) * (y - r.y0) * r.w / 2 + (r.Top() - y) * (r.Top() - y) * r.w / 2;
    } else {
      W += (mid > y ? mid - y : y - mid) * r.Area();
    }
  }
  return W;
}

PlasticT PlasticAxisOfT(double A, double b, double tf, double hw, double tw) {
  if (tf * b > A / 2) {
    const double y = (A / 2) / b;
    return {y, ((tf - y) * (tf - y) + y * y) * b / 2 + (hw / 2 + tf - y) * hw * tw};
  }
  const double y = (A / 2 - tf * b) / tw + tf;
  const double below = hw + tf - y;
  return {y, (y - tf) * (y - tf) * tw / 2 + (y - tf / 2) * tf * b + below * below * tw / 2};
}

}  // namespace korvane
