// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/elementary.h"

#include <algorithm>

#include "core/supports.h"

namespace korvane {

namespace {

using Case = RigidCase;

// --- Forces -----------------------------------------------------------------------------------

ForcePart LineForces(Case support, double L, double q) {
  ForcePart p;
  ForceBranch& b = p.right;
  switch (support) {
    case Case::Pinned:
      b = {0, q * L / 2, -q / 2, q * L / 2, -q};
      break;
    case Case::Propped:
      b = {0, 3 * q * L / 8, -q / 2, 3 * q * L / 8, -q};
      break;
    case Case::Fixed:
      b = {-q * L * L / 12, q * L / 2, -q / 2, q * L / 2, -q};
      break;
    // The shear has the opposite sign to the slope of the moment: kept.
    case Case::Cantilever:
      b = {-q * L * L / 2, q * L, -q / 2, -q * L, q};
      break;
  }
  p.left = b;  // a point before the first support sees the load too
  p.V0 = b.v0;
  p.VL = b.v0 + b.v1 * L;
  p.M0 = b.m0;
  p.ML = support == Case::Propped ? -q * L * L / 8 : support == Case::Fixed ? b.m0 : 0;
  p.endMoment = p.ML;
  return p;
}

ForcePart PointForces(Case support, double L, double P, double a, bool inclusive) {
  ForcePart p;
  p.a = a;
  p.inclusive = inclusive;
  const double b = L - a;
  double MA = 0;
  double MB = 0;
  double RA = 0;
  double RB = 0;
  switch (support) {
    case Case::Pinned:
      RA = P * b / L;
      RB = RA - P;
      break;
    case Case::Propped:
      RA = (P * b * b / (2 * L * L)) * (3 - b / L);
      RB = -(P * a / (2 * L)) * (3 - a * a / (L * L));
      MB = -(P * a / 2) * (1 - a * a / (L * L));
      break;
    case Case::Fixed:
      RA = (P * b * b / (L * L)) * (2 * a / L + 1);
      RB = RA - P;
      MA = -P * a * b * b / (L * L);
      MB = -P * a * a * b / (L * L);
      break;
    case Case::Cantilever:
      p.left = {-P * a, P, 0, -P, 0};
      p.V0 = -P;
      p.VL = a == L ? -P : 0;
      p.M0 = -P * a;
      return p;
  }
  p.left = {MA, RA, 0, RA, 0};
  p.right = {MB - RB * L, RB, 0, RB, 0};
  p.V0 = RA;
  p.VL = RB;
  p.M0 = MA;
  p.ML = MB;
  p.endMoment = MB;
  return p;
}

ForcePart MomentForces(Case support, double L, double Mo, double a) {
  ForcePart p;
  p.a = a;
  if (support == Case::Cantilever) {
    p.inclusive = true;
    p.left = {-Mo, 0, 0, 0, 0};
    p.M0 = -Mo;
    return p;
  }
  const double al = a / L;
  double V = 0;
  double M0 = 0;
  switch (support) {
    case Case::Pinned:
      V = -Mo / L;
      p.M0 = a == 0 ? Mo : 0;
      p.ML = a == L ? -Mo : 0;
      p.endMoment = -Mo;
      break;
    case Case::Propped:
      V = (3 * al * al - 3) * Mo / (2 * L);
      p.M0 = a == 0 ? Mo : 0;
      p.ML = (3 * al * al - 1) * Mo / 2;
      p.endMoment = p.ML;
      break;
    case Case::Fixed: {
      const double be = (L - a) / L;
      V = (al * al + be * be - 1) * 3 * Mo / L;
      M0 = -(al * al + 2 * be * be - 1) * Mo;
      p.M0 = M0;
      p.ML = (2 * al * al + be * be - 1) * Mo;
      p.endMoment = p.ML;
      break;
    }
    case Case::Cantilever:
      break;
  }
  p.left = {M0, V, 0, V, 0};
  p.right = {M0 + Mo, V, 0, V, 0};
  p.V0 = V;
  p.VL = V;
  return p;
}

ForcePart Scaled(ForcePart p, double w) {
  for (ForceBranch* b : {&p.left, &p.right}) {
    b->m0 *= w;
    b->m1 *= w;
    b->m2 *= w;
    b->v0 *= w;
    b->v1 *= w;
  }
  p.V0 *= w;
  p.VL *= w;
  p.M0 *= w;
  p.ML *= w;
  p.endMoment *= w;
  return p;
}

// --- Deflections ------------------------------------------------------------------------------

DeflectionPart LineDeflection(Case support, double L, double Kq) {
  DeflectionPart p;
  const double L2 = L * L;
  const double L3 = L2 * L;
  switch (support) {
    case Case::Pinned:
      p.right = {{0, Kq * L3 / 24, 0, -Kq * L / 12, Kq / 24}};
      break;
    case Case::Propped:
      p.right = {{0, Kq * L3 / 48, 0, -Kq * L / 16, Kq / 24}};
      break;
    case Case::Fixed:
      p.right = {{0, 0, Kq * L2 / 24, -Kq * L / 12, Kq / 24}};
      break;
    case Case::Cantilever:
      p.right = {{3 * Kq * L3 * L / 24, -Kq * L3 / 6, 0, 0, Kq / 24}, true};
      break;
  }
  p.left = p.right;  // where the length is negative, every station lies before 0
  return p;
}

DeflectionPart PointDeflection(Case support, double L, double KP, double a) {
  DeflectionPart p;
  p.a = a;
  const double b = L - a;
  if (support == Case::Cantilever) {
    const double tip = KP / 6 * (2 * L * L * L - 3 * L * L * b + b * b * b);
    // The free end takes the tip value wherever the load stands; with a negative length every
    // station lies before the load.
    p.a = L < 0 ? a : std::min(a, L);
    p.left = {{0, 0, KP * a / 2, -KP / 6}};
    p.right = {{tip, -KP * a * a / 2}, true};
    return p;
  }
  const double al = a / L;
  const double be = b / L;
  switch (support) {
    case Case::Pinned:
      p.left = {{0, KP * L * b / 6 * (1 - be * be), 0, -KP * b / (6 * L)}};
      p.right = {{0, KP * L * a / 6 * (1 - al * al), 0, -KP * a / (6 * L)}, true};
      break;
    case Case::Propped:
      p.left = {{0, KP * b * b / 4 * al, 0, -KP * b * b / 12 * (2 + al) / (L * L)}};
      p.right = {{0, 0, KP * a / 4 * (1 - al * al), -KP * a / 12 * (3 - al * al) / L}, true};
      break;
    case Case::Fixed:
      p.left = {{0, 0, KP * a / 2 * (al * al + 1 - 2 * al),
                 -KP / 6 * (2 * al * al * al + 1 - 3 * al * al)}};
      p.right = {{0, 0, KP * b / 2 * (be * be + 1 - 2 * be),
                  -KP / 6 * (2 * be * be * be + 1 - 3 * be * be)},
                 true};
      break;
    case Case::Cantilever:
      break;
  }
  return p;
}

DeflectionPart MomentDeflection(Case support, double L, double KM, double a) {
  DeflectionPart p;
  p.a = a;
  std::array<double, 5>& c = p.left.c;
  switch (support) {
    case Case::Pinned:
      c[1] = KM * (2 * L * L - 6 * a * L + 3 * a * a) / (6 * L);
      c[3] = KM / (6 * L);
      break;
    case Case::Propped:
      c[1] = -KM * (L - a) * (3 * a - L) / (4 * L);
      c[3] = KM * (L * L - a * a) / (4 * L * L * L);
      break;
    case Case::Fixed:
      c[2] = KM * (L * L - 4 * a * L + 3 * a * a) / (2 * L * L);
      c[3] = KM * a * (L - a) / (L * L * L);
      break;
    case Case::Cantilever:
      c[2] = KM / 2;
      p.right = {{-KM * a * a / 2, KM * a}};
      p.start = a < 0 ? p.right.c[0] : 0;
      return p;
  }
  p.right = p.left;
  p.right.c[0] -= KM * a * a / 2;
  p.right.c[1] += KM * a;
  p.right.c[2] -= KM / 2;
  return p;
}

DeflectionPart Scaled(DeflectionPart p, double w) {
  for (double& c : p.left.c) c *= w;
  for (double& c : p.right.c) c *= w;
  p.start *= w;
  return p;
}

// --- Walk over the loads ----------------------------------------------------------------------

/// Calls slice(P, a) for the 20 point loads that a trapezoid is cut into.
template <class Slice>
void ForEachSlice(double q1, double q2, double x1, double x2, Slice&& slice) {
  const double dx = (x2 - x1) / 20;
  const double dq = (q2 - q1) / 20;
  for (int k = 1; k <= 20; ++k) {
    slice(dx * (q1 + k * dq - 0.5 * dq), x1 + k * dx - 0.5 * dx);
  }
}

/// Calls line(q), slice(P, a), point(P, a), moment(M, a) for all loads of a plane that are not 0.
template <class Line, class Slice, class Point, class Moment>
void ForEachLoad(const ProjectState& st, const PlaneLoads& loads, Line&& line, Slice&& slice,
                 Point&& point, Moment&& moment) {
  if (loads.q != 0) line(loads.q);
  for (int t = 1; t <= 3; ++t) {
    if (loads.qt1[t] == 0 && loads.qt2[t] == 0) continue;
    const Trapezoid& s = TrapezoidOf(t);
    ForEachSlice(loads.qt1[t], loads.qt2[t], st.*s.x1, st.*s.x2, slice);
  }
  for (int i = 1; i <= 8; ++i) {
    if (loads.P[i] != 0) point(loads.P[i], st.pmx[i]);
    if (loads.M[i] != 0) moment(loads.M[i], st.pmx[i]);
  }
}

/// The rigid cases of a support and their weights; a spring support blends the pinned case with
/// a fixed one.
struct Blend {
  int count = 0;
  Case cases[2] = {Case::Pinned, Case::Pinned};
  double weights[2] = {1, 0};
};

Blend BlendOf(const ProjectState& st) {
  const Support* support = FindSupport(st.SupportType);
  if (support == nullptr) return {};
  if (!IsSpring(st.SupportType)) return {1, {support->stiff}, {1}};
  const double s = st.SpringRestraint / 100.0;
  return {2, {Case::Pinned, support->stiff}, {1 - s, s}};
}

/// The formulas divide by the length in every case but the cantilever's.
void CheckLength(const ProjectState& st) {
  if (st.L == 0 && !IsCantilever(st.SupportType))
    throw ArithmeticFault("division by a length of 0");
}

}  // namespace

void CollectForces(const ProjectState& st, const PlaneLoads& loads, PartList<ForcePart>& parts) {
  const Blend blend = BlendOf(st);
  if (blend.count == 0) return;
  CheckLength(st);
  const double L = st.L;
  const bool spring = IsSpring(st.SupportType);
  const bool bothSprings = IsSpringAtBothEnds(st.SupportType);
  const auto add = [&](auto&& part) {
    for (int k = 0; k < blend.count; ++k) {
      parts.Add(Scaled(part(blend.cases[k]), blend.weights[k]));
    }
  };
  // The load's own position belongs to the left in the fixed cases; where both ends are springs
  // only the slices keep that rule.
  const auto inclusive = [](Case c) { return c == Case::Fixed || c == Case::Cantilever; };
  ForEachLoad(
      st, loads, [&](double q) { add([&](Case c) { return LineForces(c, L, q); }); },
      [&](double P, double a) {
        add([&](Case c) { return PointForces(c, L, P, a, inclusive(c)); });
      },
      [&](double P, double a) {
        add([&](Case c) { return PointForces(c, L, P, a, inclusive(c) && !bothSprings); });
      },
      [&](double M, double a) {
        add([&](Case c) {
          ForcePart p = MomentForces(c, L, M, a);
          if (c == Case::Pinned && spring) p.endMoment = 0;
          if (bothSprings && c == Case::Pinned) {  // no end moments here, whatever the position
            p.M0 = 0;
            p.ML = 0;
          }
          return p;
        });
      });
}

void CollectDeflections(const ProjectState& st, const PlaneLoads& loads, double K,
                        PartList<DeflectionPart>& parts) {
  const Blend blend = BlendOf(st);
  if (blend.count == 0) return;
  CheckLength(st);
  const double L = st.L;
  const auto add = [&](auto&& part) {
    for (int k = 0; k < blend.count; ++k) {
      parts.Add(Scaled(part(blend.cases[k]), blend.weights[k]));
    }
  };
  const auto point = [&](double P, double a) {
    add([&](Case c) { return PointDeflection(c, L, K * P, a); });
  };
  ForEachLoad(
      st, loads, [&](double q) { add([&](Case c) { return LineDeflection(c, L, K * q); }); }, point,
      point,
      [&](double M, double a) { add([&](Case c) { return MomentDeflection(c, L, K * M, a); }); });
}

}  // namespace korvane
