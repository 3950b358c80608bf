// SPDX-License-Identifier: GPL-3.0-or-later
// Internal forces by hand: stations, branches at the loads, spring ends, extremes, quarter
// points and moment zeros.
#include "analysis/beam.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "members.h"

namespace korvane {
namespace {

/// Values are stored in single precision.
constexpr double kSingle = 1e-6;

ProjectState LineLoaded(int support, double L, double q) {
  ProjectState st = BareMember(support, L);
  st.q1 = q;
  return st;
}

ProjectState PointLoaded(int support, double L, double P, double a) {
  ProjectState st = BareMember(support, L);
  PutPoint(st, 1, P, a);
  return st;
}

ProjectState MomentLoaded(int support, double L, double Mo, double a) {
  ProjectState st = BareMember(support, L);
  PutMoment(st, 1, Mo, a);
  return st;
}

// --- Line load --------------------------------------------------------------------------------

struct LineCase {
  int support;
  double V0, VL, M0, Mmid, ML;  // q = 10, L = 6, 50 % restraint
};
constexpr LineCase kLines[] = {
    {0, 30, -30, 0, 45, 0},     {1, 22.5, -37.5, 0, 22.5, -45}, {2, 30, -30, -30, 15, -30},
    {3, 30, -30, -15, 30, -15}, {4, -60, 0, -180, -45, 0},      {5, 26.25, -33.75, 0, 33.75, -22.5},
};

TEST(LineLoad, EndsAndMiddleOfEachSupport) {
  for (const LineCase& c : kLines) {
    SCOPED_TRACE(c.support);
    const BeamResults r = Analysed(LineLoaded(c.support, 6, 10));
    EXPECT_NEAR(r.z.V[0], c.V0, 60 * kSingle);
    EXPECT_NEAR(r.z.V[50], c.VL, 60 * kSingle);
    EXPECT_NEAR(r.z.M[0], c.M0, 60 * kSingle);
    EXPECT_NEAR(r.z.M[25], c.Mmid, 60 * kSingle);
    EXPECT_NEAR(r.z.M[50], c.ML, 60 * kSingle);
  }
}

TEST(LineLoad, SimpleBeam) {
  const BeamResults r = Analysed(LineLoaded(0, 6, 10));
  EXPECT_NEAR(r.z.M[25], 45, 45 * kSingle);
  EXPECT_EQ(r.z.V[0], 30);
  EXPECT_EQ(r.z.V[50], -30);
  EXPECT_EQ(r.betaMy, 1.3);
}

TEST(LineLoad, CantileverShearHasTheOtherSign) {
  const BeamResults r = Analysed(LineLoaded(4, 6, 10));
  for (int i = 0; i < 50; ++i) EXPECT_LT(r.z.V[i], 0) << i;
  EXPECT_GT(r.z.M[1], r.z.M[0]);  // the moment rises along the member
}

TEST(LineLoad, FixedBeamHasTwoMomentZeros) {
  const BeamResults r = Analysed(LineLoaded(2, 6, 10));
  EXPECT_NEAR(r.z.M_zero1, 0.2113, 2e-4);
  EXPECT_NEAR(r.z.M_zero2, 0.7887, 2e-4);
}

TEST(MomentZeros, AreInterpolatedBetweenStations) {
  const BeamResults r = Analysed(LineLoaded(2, 6, 10));
  const double m = r.z.M[10];
  const double next = r.z.M[11];
  ASSERT_LT(m, 0);
  ASSERT_GT(next, 0);
  EXPECT_NEAR(r.z.M_zero1, 0.2 + 0.02 * -m / (next - m), kSingle);
}

TEST(MomentZeros, ProppedBeamHasOneInTheRightHalf) {
  const BeamResults r = Analysed(LineLoaded(1, 6, 10));
  EXPECT_EQ(r.z.M_zero1, 0);
  EXPECT_NEAR(r.z.M_zero2, 0.75, 2e-4);
}

TEST(MomentZeros, SimpleBeamAndCantileverHaveNone) {
  for (const int support : {0, 4}) {
    SCOPED_TRACE(support);
    ProjectState st = MomentLoaded(support, 6, 10, 3.1);
    st.q1 = -1;
    const BeamResults r = Analysed(st);
    EXPECT_EQ(r.z.M_zero1, 0);
    EXPECT_EQ(r.z.M_zero2, 0);
  }
}

TEST(MomentZeros, TheLastOneOfAHalfCounts) {
  // A moment at 2.1 m of a fixed beam: the curve crosses 0 before the jump, at the jump and
  // after it.
  const BeamResults r = Analysed(MomentLoaded(2, 6, 10, 2.1));
  int last = 0;
  int crossings = 0;
  for (int i = 1; i <= 25; ++i) {
    if (r.z.M[i] * r.z.M[i + 1] > 0) continue;
    last = i;
    ++crossings;
  }
  EXPECT_EQ(crossings, 2);
  EXPECT_GE(r.z.M_zero1, last / 50.0);
  EXPECT_LE(r.z.M_zero1, (last + 1) / 50.0);
}

TEST(MomentZeros, OneJustBehindTheMiddleBelongsToBothHalves) {
  ProjectState st = MomentLoaded(1, 50, 100, 25.5);
  PutPoint(st, 2, -4, 40);  // keeps the fixed end on the positive side
  const BeamResults r = Analysed(st);
  ASSERT_LT(r.z.M[25], 0);
  ASSERT_GT(r.z.M[26], 0);
  EXPECT_GT(r.z.M_zero1, 0.5);
  EXPECT_LT(r.z.M_zero1, 0.52);
  EXPECT_EQ(r.z.M_zero2, r.z.M_zero1);
}

TEST(MomentZeros, StandForTheYPlaneToo) {
  ProjectState st = LineLoaded(2, 6, 10);
  st.q1_yz = 0;
  const BeamResults r = Analysed(st);
  EXPECT_NEAR(r.y.M_zero1, 0.2113, 2e-4);
  EXPECT_NEAR(r.y.M_zero2, 0.7887, 2e-4);
  EXPECT_EQ(r.z.M_zero1, 0);
  EXPECT_EQ(r.z.M_zero2, 0);
}

// --- Point load -------------------------------------------------------------------------------

struct PointCase {
  int support;
  double V0, VL, M0, Ma, ML;  // P = 27 at a = 2 of L = 6
};
constexpr PointCase kPoints[] = {
    {0, 18, -9, 0, 36, 0},
    {1, 14, -13, 0, 28, -24},
    {2, 20, -7, -24, 16, -12},
    {4, -27, 0, -54, 0, 0},
};

TEST(PointLoad, EndsAndLoadOfEachRigidSupport) {
  for (const PointCase& c : kPoints) {
    SCOPED_TRACE(c.support);
    ProjectState st = PointLoaded(c.support, 6, 27, 2);
    st.cp_mode = 1;
    st.cp_x[1] = 2;
    const BeamResults r = Analysed(st);
    EXPECT_NEAR(r.z.V[0], c.V0, 60 * kSingle);
    EXPECT_NEAR(r.z.V[50], c.VL, 60 * kSingle);
    EXPECT_NEAR(r.z.M[0], c.M0, 60 * kSingle);
    EXPECT_NEAR(r.z.M_pt[r.pt_last], c.Ma, 60 * kSingle);
    EXPECT_NEAR(r.z.M[50], c.ML, 60 * kSingle);
  }
}

/// A load at a station: the simple and the propped beam count it to the right, the fixed beam
/// and the cantilever to the left, spring ends to the right.
TEST(PointLoad, BranchAtItsOwnStation) {
  struct Case {
    int support;
    int neighbour;  // the station that has the same shear
  };
  constexpr Case cases[] = {{0, 21}, {1, 21}, {2, 19}, {3, 21}, {4, 19}, {5, 21}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.support);
    // L = 50 puts station 20 at exactly 20 m
    const BeamResults r = Analysed(PointLoaded(c.support, 50, 10, 20));
    EXPECT_EQ(r.z.V[20], r.z.V[c.neighbour]);
    EXPECT_NE(r.z.V[19], r.z.V[21]);
  }
}

TEST(PointLoad, AtTheTipOfACantilever) {
  const BeamResults r = Analysed(PointLoaded(4, 6, 10, 6));
  EXPECT_EQ(r.z.V[50], -10);
  EXPECT_EQ(r.z.M[50], 0);
  for (int i = 0; i < 50; ++i) {
    EXPECT_NEAR(r.z.M[i], -10 * (6 - 0.12 * i), 60 * kSingle) << i;
    EXPECT_EQ(r.z.V[i], -10) << i;
  }
}

TEST(PointLoad, InsideACantileverLeavesTheTipFree) {
  const BeamResults r = Analysed(PointLoaded(4, 6, 10, 3.1));
  EXPECT_EQ(r.z.V[50], 0);
  EXPECT_EQ(r.z.M[50], 0);
  EXPECT_EQ(r.z.M[30], 0);
}

// --- Moment load ------------------------------------------------------------------------------

struct MomentCase {
  int support;
  double V, M0, ML;  // Mo = 36 at a = 2 of L = 6
};
constexpr MomentCase kMoments[] = {{0, -6, 0, 0}, {1, -8, 0, -12}, {2, -8, 0, -12}, {4, 0, -36, 0}};

TEST(MomentLoad, EndsAndShearOfEachRigidSupport) {
  for (const MomentCase& c : kMoments) {
    SCOPED_TRACE(c.support);
    const BeamResults r = Analysed(MomentLoaded(c.support, 6, 36, 2));
    for (int i = 0; i <= 50; ++i) EXPECT_NEAR(r.z.V[i], c.V, 60 * kSingle) << i;
    EXPECT_NEAR(r.z.M[0], c.M0, 60 * kSingle);
    EXPECT_NEAR(r.z.M[50], c.ML, 60 * kSingle);
  }
}

TEST(MomentLoad, JumpsUpByItsSize) {
  for (int support = 0; support <= 5; ++support) {
    SCOPED_TRACE(support);
    const BeamResults r = Analysed(MomentLoaded(support, 50, 36, 20.5));
    const double slope = r.z.M[20] - r.z.M[19];
    EXPECT_NEAR(r.z.M[21] - r.z.M[20] - slope, 36, 60 * kSingle);
  }
}

TEST(MomentLoad, BranchAtItsOwnStation) {
  for (int support = 0; support <= 5; ++support) {
    SCOPED_TRACE(support);
    const BeamResults r = Analysed(MomentLoaded(support, 50, 36, 20));
    const bool left = support == 4;
    EXPECT_LT(std::fabs(r.z.M[20] - r.z.M[left ? 19 : 21]), 5);
    EXPECT_GT(std::fabs(r.z.M[20] - r.z.M[left ? 21 : 19]), 30);
  }
}

/// A moment on an end: what the two end stations show.
TEST(MomentLoad, OnTheEnds) {
  struct Case {
    int support;
    double a, M0, ML;
  };
  constexpr Case cases[] = {
      {0, 0, 36, 0},   {0, 6, 0, -36},  // the member's own pinned ends
      {1, 0, 36, -18},                  // half is carried over to the fixed end
      {5, 0, 36, -9},                   // at 50 % restraint, a quarter
      {4, 6, -36, 0},                   // the tip shows nothing
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::to_string(c.support) + " at " + std::to_string(c.a));
    const BeamResults r = Analysed(MomentLoaded(c.support, 6, 36, c.a));
    EXPECT_NEAR(r.z.M[0], c.M0, 60 * kSingle);
    EXPECT_NEAR(r.z.M[50], c.ML, 60 * kSingle);
  }
}

// --- Spring ends ------------------------------------------------------------------------------

TEST(SpringEnds, MomentOnAnEndHasNoPinnedPart) {
  ProjectState st = MomentLoaded(3, 6, 36, 0);
  st.SpringRestraint = 0;
  EXPECT_EQ(Analysed(st).z.M[0], 0);
  st.pmx[1] = 6;
  EXPECT_EQ(Analysed(st).z.M[50], 0);
  st.SpringRestraint = 100;
  EXPECT_NEAR(Analysed(st).z.M[50], 36, 60 * kSingle);
}

TEST(SpringEnds, MomentAtThePinnedEndOfOneSpringStays) {
  for (const int s : {0, 30, 100}) {
    SCOPED_TRACE(s);
    ProjectState st = MomentLoaded(5, 6, 36, 0);
    st.SpringRestraint = s;
    EXPECT_NEAR(Analysed(st).z.M[0], 36, 60 * kSingle);
  }
}

TEST(SpringEnds, ThePinnedEndOfOneSpringHasNoMoment) {
  for (int s = 0; s <= 100; s += 10) {
    SCOPED_TRACE(s);
    ProjectState st = LineLoaded(5, 6, 10);
    st.SpringRestraint = s;
    PutPoint(st, 1, 10, 2);
    PutMoment(st, 2, 10, 3);
    EXPECT_EQ(Analysed(st).z.M[0], 0);
  }
}

void ExpectSameStations(const BeamResults& a, const BeamResults& b) {
  for (int i = 0; i <= 50; ++i) {
    EXPECT_NEAR(a.z.M[i], b.z.M[i], 1e-5) << i;
    EXPECT_NEAR(a.z.V[i], b.z.V[i], 1e-5) << i;
  }
}

/// Loads away from the stations, so that branches at the load don't matter.
ProjectState Mixed(int support) {
  ProjectState st = LineLoaded(support, 6, 10);
  PutTrapezoid(st, 1, 3, 9, 1.01, 4.63);
  PutPoint(st, 1, 20, 2.3);
  PutMoment(st, 2, -15, 4.1);
  return st;
}

TEST(SpringEnds, NoRestraintIsTheSimpleBeamAndFullRestraintTheFixedOne) {
  struct Case {
    int support, s, same;
  };
  constexpr Case cases[] = {{3, 0, 0}, {3, 100, 2}, {5, 0, 0}, {5, 100, 1}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.support * 1000 + c.s);
    ProjectState st = Mixed(c.support);
    st.SpringRestraint = c.s;
    ExpectSameStations(Analysed(st), Analysed(Mixed(c.same)));
  }
}

TEST(SpringEnds, NearlyFullRestraintIsNotTheFixedBeam) {
  ProjectState st = LineLoaded(3, 6, 10);
  st.SpringRestraint = 99;
  const BeamResults r = Analysed(st);
  EXPECT_NEAR(r.z.M[0], -29.7, 30 * kSingle);
  EXPECT_NEAR(r.z.M[25], 15.3, 30 * kSingle);
}

TEST(SpringEnds, SlicesOfATrapezoidTakeTheFixedBranchInTheFixedPart) {
  // The slices stand at 22 + k, k = 1..20, so slice 10 stands at mid-span, 32 m; 20 kN each.
  ProjectState st = BareMember(3, 64);
  PutTrapezoid(st, 1, 20, 20, 22.5, 42.5);
  st.SpringRestraint = 100;
  const BeamResults fixed = Analysed(st);
  EXPECT_NEAR(fixed.z.V[0] - fixed.z.V[25], 9 * 20, 1e-4);
  st.SpringRestraint = 0;
  const BeamResults pinned = Analysed(st);
  EXPECT_NEAR(pinned.z.V[0] - pinned.z.V[25], 10 * 20, 1e-4);
  st.SpringRestraint = 25;
  const BeamResults blend = Analysed(st);
  EXPECT_NEAR(blend.z.V[0] - blend.z.V[25], 9.75 * 20, 1e-4);
}

// --- Faults -----------------------------------------------------------------------------------

TEST(Beam, AnUnknownSupportGivesZeros) {
  for (const int support : {-1, 6, 99}) {
    SCOPED_TRACE(support);
    const BeamResults r = Analysed(Mixed(support));
    for (int i = 0; i <= 50; ++i) {
      EXPECT_EQ(r.z.M[i], 0) << i;
      EXPECT_EQ(r.z.V[i], 0) << i;
    }
    EXPECT_EQ(r.MyAbsMax, 0);
  }
}

TEST(Beam, NoLengthIsAnArithmeticFault) {
  for (const int support : {0, 1, 2, 3, 5}) {
    SCOPED_TRACE(support);
    ProjectState st = LineLoaded(support, 6, 10);
    st.L = 0;
    EXPECT_THROW(Analysed(st), ArithmeticFault);
  }
}

TEST(Beam, ACharacteristicPointWithoutLengthIsAnArithmeticFault) {
  ProjectState st = BareMember(4, 6);
  st.L = 0;
  st.cp_mode = 1;
  EXPECT_THROW(Analysed(st), ArithmeticFault);
}

}  // namespace
}  // namespace korvane
