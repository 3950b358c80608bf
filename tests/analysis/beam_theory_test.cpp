// SPDX-License-Identifier: GPL-3.0-or-later
// The closed formulas of forces and deflections against a finite element solution, for all
// supports, kinds of load and many positions.
//
// Deliberate differences from theory, respected below: the cantilever's shear from line and
// point loads has the opposite sign; a trapezoid acts as 20 point loads; with springs at both
// ends a moment on an end leaves the pinned part's end station at 0.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "beam_reference.h"
#include "members.h"

namespace korvane {
namespace {

/// Relative to the largest value of the curve: single precision of the stations and the
/// rounding of the dense solution.
constexpr double kTight = 2e-6;
/// kNm, kN and mm, where a curve is 0 all along and the dense solution leaves its rounding.
constexpr double kFloor = 1e-6;

constexpr double kIy = 5E7;  // mm4

/// Which side of a load a station at its very position shows.
enum class Side { Left, Right };

struct Blended {
  Ends a, b;
  double weightB;
};

Blended BlendOf(int support, double s) {
  switch (support) {
    case 1:
      return {Ends::PinnedPinned, Ends::PinnedFixed, 1};
    case 2:
      return {Ends::PinnedPinned, Ends::FixedFixed, 1};
    case 3:
      return {Ends::PinnedPinned, Ends::FixedFixed, s / 100};
    case 4:
      return {Ends::PinnedPinned, Ends::FixedFree, 1};
    case 5:
      return {Ends::PinnedPinned, Ends::PinnedFixed, s / 100};
    default:
      return {Ends::PinnedPinned, Ends::PinnedPinned, 0};
  }
}

struct Curves {
  std::array<double, 51> M{}, V{}, w{};  // kNm, kN, mm
};

Curves Reference(Ends ends, double L, const ReferenceLoads& loads, Side side, double E) {
  const ReferenceBeam beam(ends, L, loads);
  Curves c;
  for (int i = 0; i <= 50; ++i) {
    const ReferenceNode& n = beam.Station(i);
    const bool left = i == 50 || (i > 0 && side == Side::Left);
    const auto k = static_cast<std::size_t>(i);
    c.M[k] = left ? n.M_left : n.M_right;
    c.V[k] = left ? n.V_left : n.V_right;
    c.w[k] = n.EIw * 1E12 / (E * kIy);
  }
  return c;
}

Curves Reference(const ProjectState& st, const ReferenceLoads& loads, Side side) {
  const Blended blend = BlendOf(st.SupportType, st.SpringRestraint);
  const Curves a = Reference(blend.a, st.L, loads, side, st.E);
  const Curves b = Reference(blend.b, st.L, loads, side, st.E);
  const double t = blend.weightB;
  const double sign = st.SupportType == 4 ? -1 : 1;  // the cantilever's shear
  Curves c;
  for (std::size_t i = 0; i <= 50; ++i) {
    c.M[i] = (1 - t) * a.M[i] + t * b.M[i];
    c.V[i] = sign * ((1 - t) * a.V[i] + t * b.V[i]);
    c.w[i] = (1 - t) * a.w[i] + t * b.w[i];
  }
  return c;
}

double Largest(const std::array<double, 51>& values) {
  double m = 0;
  for (const double v : values) m = std::max(m, std::fabs(v));
  return m;
}

/// What may be off: M in kNm, V in kN, w as a part of the largest deflection.
struct Tolerances {
  double M, V, w;
};

/// All stations of M, V and deflection.
void ExpectCurves(const ProjectState& st, const ReferenceLoads& loads, Side side,
                  const Tolerances& more = {}) {
  SCOPED_TRACE("support " + std::to_string(int(st.SupportType)));
  const Curves c = Reference(st, loads, side);
  const BeamResults r = Analysed(st);
  const Deflections d = Deflected(st, kIy);
  const double M = kTight * Largest(c.M) + kFloor + more.M;
  const double V = kTight * Largest(c.V) + kFloor + more.V;
  const double w = (kTight + more.w) * Largest(c.w) + kFloor;
  for (int i = 0; i <= 50; ++i) {
    const auto k = static_cast<std::size_t>(i);
    EXPECT_NEAR(r.z.M[i], c.M[k], M) << "M, station " << i;
    EXPECT_NEAR(r.z.V[i], c.V[k], V) << "V, station " << i;
    EXPECT_NEAR(d.DeflZ[i], c.w[k], w) << "deflection, station " << i;
  }
}

/// All supports, with several restraints where they are springs.
std::vector<ProjectState> Members(double L) {
  std::vector<ProjectState> all;
  for (const int support : {0, 1, 2, 4}) all.push_back(BareMember(support, L));
  for (const int support : {3, 5}) {
    for (const int s : {1, 35, 99}) {
      all.push_back(BareMember(support, L));
      all.back().SpringRestraint = s;
    }
  }
  return all;
}

/// The rigid fixed beam and the cantilever count a point load's own position to the left.
Side PointSide(int support) {
  return support == 2 || support == 4 ? Side::Left : Side::Right;
}

TEST(BeamTheory, LineLoad) {
  for (const double L : {0.5, 6.0, 24.0}) {
    for (ProjectState st : Members(L)) {
      SCOPED_TRACE(L);
      st.q1 = 12.5;
      ReferenceLoads loads;
      loads.q = 12.5;
      ExpectCurves(st, loads, Side::Right);
    }
  }
}

TEST(BeamTheory, PointLoadAwayFromTheStations) {
  for (const double a : {0.03125, 1.0, 2.71875, 3.0625, 5.5, 5.96875}) {
    for (ProjectState st : Members(6)) {
      SCOPED_TRACE(a);
      PutPoint(st, 1, 40, a);
      ReferenceLoads loads;
      loads.points = {{40, a}};
      ExpectCurves(st, loads, Side::Right);
    }
  }
}

TEST(BeamTheory, PointLoadAtAStation) {
  for (ProjectState st : Members(64)) {
    PutPoint(st, 6, -40, 32);
    ReferenceLoads loads;
    loads.points = {{-40, 32}};
    ExpectCurves(st, loads, PointSide(st.SupportType));
  }
}

TEST(BeamTheory, PointLoadAtTheTipOfACantilever) {
  ProjectState st = BareMember(4, 6);
  PutPoint(st, 1, 40, 6);
  ReferenceLoads loads;
  loads.points = {{40, 6}};
  ExpectCurves(st, loads, Side::Right);
}

TEST(BeamTheory, MomentLoadAwayFromTheStations) {
  for (const double a : {0.03125, 1.0, 2.71875, 3.0625, 5.5, 5.96875}) {
    for (ProjectState st : Members(6)) {
      SCOPED_TRACE(a);
      PutMoment(st, 1, 40, a);
      ReferenceLoads loads;
      loads.moments = {{40, a}};
      ExpectCurves(st, loads, Side::Right);
    }
  }
}

TEST(BeamTheory, MomentLoadAtAStation) {
  for (ProjectState st : Members(64)) {
    PutMoment(st, 3, -40, 32);
    ReferenceLoads loads;
    loads.moments = {{-40, 32}};
    ExpectCurves(st, loads, st.SupportType == 4 ? Side::Left : Side::Right);
  }
}

TEST(BeamTheory, MomentLoadOnAPinnedEnd) {
  for (const int support : {0, 1, 5}) {
    ProjectState st = BareMember(support, 6);
    PutMoment(st, 1, 40, 0);
    ReferenceLoads loads;
    loads.moments = {{40, 0}};
    ExpectCurves(st, loads, Side::Right);
  }
  ProjectState st = BareMember(0, 6);
  PutMoment(st, 1, 40, 6);
  ReferenceLoads loads;
  loads.moments = {{40, 6}};
  ExpectCurves(st, loads, Side::Right);
}

/// Theory puts the share of the pinned part at the end station; the member shows 0 there.
TEST(BeamTheory, MomentLoadOnASpringEndDiffersAtThatStationAlone) {
  ProjectState st = BareMember(3, 6);
  st.SpringRestraint = 35;
  PutMoment(st, 1, 40, 0);
  ReferenceLoads loads;
  loads.moments = {{40, 0}};
  const Curves c = Reference(st, loads, Side::Right);
  const BeamResults r = Analysed(st);
  EXPECT_NEAR(c.M[0], 26, 1e-4);
  EXPECT_NEAR(r.z.M[0], -14, 1e-4);  // the fixed part alone, seen from outside the load
  for (int i = 1; i <= 50; ++i) {
    const auto k = static_cast<std::size_t>(i);
    EXPECT_NEAR(r.z.M[i], c.M[k], 40 * kTight) << i;
    EXPECT_NEAR(r.z.V[i], c.V[k], 40 * kTight) << i;
  }
}

TEST(BeamTheory, CantileverShearIsMinusTheSlopeOfItsMoment) {
  ReferenceLoads loads;
  loads.q = 10;
  loads.points = {{20, 3.1}};
  const Curves theory = Reference(Ends::FixedFree, 6, loads, Side::Right, 210000);
  ProjectState st = BareMember(4, 6);
  st.q1 = 10;
  PutPoint(st, 1, 20, 3.1);
  const BeamResults r = Analysed(st);
  EXPECT_NEAR(theory.V[0], 80, 1e-4);
  EXPECT_NEAR(r.z.V[0], -80, 1e-4);
  EXPECT_NEAR(r.z.M[0], theory.M[0], 1e-3);
}

// --- Trapezoids -------------------------------------------------------------------------------

struct RampCase {
  double q1, q2, x1, x2;
};
/// No slice of these stands at a station of 6 m.
constexpr RampCase kRamps[] = {{10, 10, 0, 6},    {0, 18, 0, 6},
                               {18, 0, 0, 6},     {4, 13, 1.03125, 4.53125},
                               {-7, -2, 3.25, 6}, {0, 9, 2.03125, 2.53125}};

TEST(BeamTheory, TrapezoidIsTwentyPointLoads) {
  for (const RampCase& c : kRamps) {
    for (ProjectState st : Members(6)) {
      SCOPED_TRACE("from " + std::to_string(c.x1));
      PutTrapezoid(st, 2, c.q1, c.q2, c.x1, c.x2);
      ReferenceLoads loads;
      const double h = (c.x2 - c.x1) / 20;
      for (int k = 0; k < 20; ++k) {
        const double t = (k + 0.5) / 20;
        loads.points.push_back({h * (c.q1 + t * (c.q2 - c.q1)), c.x1 + t * (c.x2 - c.x1)});
      }
      ExpectCurves(st, loads, Side::Right);
    }
  }
}

/// How far 20 slices may be off the true trapezoid. With P the largest slice and h the width of
/// one: the shear by half a slice, and some for the slope within it and the other reactions;
/// the moment by P*h/8 between slices, and by the moment of the slices' own slopes, which the
/// load at mid-slice drops; the deflection, measured, by less than 0.3 %.
Tolerances SliceTolerances(const RampCase& c) {
  const double h = (c.x2 - c.x1) / 20;
  const double P = h * std::max(std::fabs(c.q1), std::fabs(c.q2));
  return {P * h / 8 + std::fabs(c.q2 - c.q1) * h * h / 12, 0.55 * P, 0.003};
}

TEST(BeamTheory, TrapezoidIsNearTheTrueOne) {
  for (const RampCase& c : kRamps) {
    for (ProjectState st : Members(6)) {
      SCOPED_TRACE("from " + std::to_string(c.x1));
      PutTrapezoid(st, 3, c.q1, c.q2, c.x1, c.x2);
      ReferenceLoads loads;
      loads.ramps = {{c.q1, c.q2, c.x1, c.x2}};
      ExpectCurves(st, loads, Side::Right, SliceTolerances(c));
    }
  }
}

// --- All together -----------------------------------------------------------------------------

TEST(BeamTheory, AllLoadsTogether) {
  for (ProjectState st : Members(6)) {
    st.q1 = 7;
    PutTrapezoid(st, 1, 4, 13, 1.03125, 4.53125);
    PutPoint(st, 1, 20, 1.3125);
    PutPoint(st, 2, -35, 4.0625);
    if (st.SupportType != 4) PutMoment(st, 5, 25, 2.34375);
    ReferenceLoads loads;
    loads.q = 7;
    loads.points = {{20, 1.3125}, {-35, 4.0625}};
    if (st.SupportType != 4) loads.moments = {{25, 2.34375}};
    for (int k = 0; k < 20; ++k) {
      const double t = (k + 0.5) / 20;
      loads.points.push_back({3.5 / 20 * (4 + 9 * t), 1.03125 + 3.5 * t});
    }
    ExpectCurves(st, loads, Side::Right);
  }
}

/// The y plane has the same formulas with Iz.
TEST(BeamTheory, YPlane) {
  for (ProjectState st : Members(6)) {
    SCOPED_TRACE(int(st.SupportType));
    st.q1 = 7;
    PutPoint(st, 1, 20, 1.3125);
    PutMoment(st, 2, 25, 2.34375);
    PutTrapezoid(st, 1, 4, 13, 1.03125, 4.53125);
    const BeamResults z = Analysed(st);
    const Deflections dz = Deflected(st, kIy, 0.5 * kIy);
    st.q1_yz = 0;
    st.pm_yz[1] = 0;
    st.pm_yz[2] = 0;
    st.qt1_yz = 0;
    const BeamResults y = Analysed(st);
    const Deflections dy = Deflected(st, kIy, 0.5 * kIy);
    for (int i = 0; i <= 50; ++i) {
      EXPECT_EQ(y.y.M[i], z.z.M[i]) << i;
      EXPECT_EQ(y.y.V[i], z.z.V[i]) << i;
      EXPECT_EQ(y.z.M[i], 0) << i;
      EXPECT_NEAR(dy.DeflY[i], 2 * dz.DeflZ[i], 1e-6 * std::fabs(dy.DeflY[i]) + 1e-12) << i;
      EXPECT_EQ(dy.DeflZ[i], 0) << i;
    }
  }
}

}  // namespace
}  // namespace korvane
