// SPDX-License-Identifier: GPL-3.0-or-later
// Calculation points and extremes: slots around the loads, characteristic points, the point at
// exactly x = L, and the governing moments.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <tuple>

#include "members.h"

namespace korvane {
namespace {

TEST(EvenPoints, AreEveryFifthStation) {
  ProjectState st = BareMember(1, 6);
  st.q1 = 10;
  st.q2 = 3;
  st.q2_yz = 0;
  const BeamResults r = Analysed(st);
  for (int j = 0; j <= 10; ++j) {
    SCOPED_TRACE(j);
    EXPECT_EQ(r.pt_x[j], float32(j / 10.0));
    EXPECT_EQ(r.z.M_pt[j], r.z.M[5 * j]);
    EXPECT_EQ(r.z.V_pt[j], r.z.V[5 * j]);
    EXPECT_EQ(r.y.M_pt[j], r.y.M[5 * j]);
    EXPECT_EQ(r.y.V_pt[j], r.y.V[5 * j]);
  }
  EXPECT_EQ(r.pt_first, 0);
  EXPECT_EQ(r.pt_last, 10);
}

TEST(LoadPoints, EachEntryHasItsOwnTwoSlots) {
  for (int i = 1; i <= 8; ++i) {
    SCOPED_TRACE(i);
    ProjectState st = BareMember(0, 6);
    PutPoint(st, i, 10, 2);
    const BeamResults r = Analysed(st);
    EXPECT_EQ(r.pt_last, 2 * i + 10);
    EXPECT_EQ(r.pt_first, 0);
    EXPECT_EQ(r.pt_x[2 * i + 9], float32(2 * 0.999 / 6));
    EXPECT_EQ(r.pt_x[2 * i + 10], float32(2 * 1.001 / 6));
    EXPECT_NEAR(r.z.M_pt[2 * i + 9], 10 * 4.0 / 6 * 1.998, 1e-5);
    EXPECT_NEAR(r.z.V_pt[2 * i + 9], 10 * 4.0 / 6, 1e-5);
    EXPECT_NEAR(r.z.V_pt[2 * i + 10], -10 * 2.0 / 6, 1e-5);
  }
}

TEST(LoadPoints, AnEntryOnAnEndHasNone) {
  for (const double x : {0.0, 6.0}) {
    SCOPED_TRACE(x);
    ProjectState st = BareMember(0, 6);
    PutMoment(st, 3, 10, x);
    const BeamResults r = Analysed(st);
    EXPECT_EQ(r.pt_last, 10);
    EXPECT_EQ(r.pt_x[15], 0);
    EXPECT_EQ(r.pt_x[16], 0);
  }
}

TEST(LoadPoints, OnlyThePositionDecides) {
  ProjectState st = BareMember(0, 6);
  PutPoint(st, 2, 0, 3);        // of no size
  PutMoment(st, 4, 5, 1.5, 0);  // a moment of the other plane
  const BeamResults r = Analysed(st);
  EXPECT_EQ(r.pt_last, 18);
  EXPECT_EQ(r.pt_x[13], float32(0.4995));
  EXPECT_EQ(r.pt_x[14], float32(0.5005));
  EXPECT_EQ(r.pt_x[17], float32(0.24975));
  EXPECT_EQ(r.pt_x[18], float32(0.25025));
}

TEST(LoadPoints, SlotsWithoutAnEntryKeepTheirPositionsAndAreEvaluated) {
  ProjectState st = BareMember(0, 6);
  st.q1 = 10;
  PutPoint(st, 8, 1, 3);
  WorkingLoads loads;
  BeamResults r;
  number N;
  r.pt_x[11] = 0.3;  // from an earlier calculation
  AnalyseBeam(st, 0, loads, r, N);
  EXPECT_EQ(r.pt_last, 26);
  EXPECT_EQ(r.pt_x[11], float32(0.3));
  EXPECT_NEAR(r.z.M_pt[11], 30 * 1.8 - 5 * 1.8 * 1.8 + 0.5 * 1.8, 1e-4);
  EXPECT_EQ(r.pt_x[12], 0);
  EXPECT_EQ(r.z.M_pt[12], 0);
  EXPECT_NEAR(r.z.V_pt[12], 30.5, 1e-5);
}

TEST(LoadPoints, WidenTheExtremes) {
  // The peak stands at 1.98 m, between the stations at 1.92 m and 2.04 m.
  ProjectState st = BareMember(0, 6);
  PutPoint(st, 1, 10, 1.98);
  const BeamResults r = Analysed(st);
  double station = 0;
  for (const float32 m : r.z.M) station = std::max<double>(station, m);
  EXPECT_GT(r.z.M_max, station);
  EXPECT_EQ(r.z.M_max, std::max<double>(r.z.M_pt[11], r.z.M_pt[12]));
  EXPECT_EQ(r.MyAbsMax, r.z.M_max);
}

// --- Characteristic points --------------------------------------------------------------------

TEST(CharacteristicPoints, FollowTheEvenPointsWhereNoLoadHasPoints) {
  ProjectState st = BareMember(0, 6);
  st.q1 = 10;
  st.cp_mode = 1;
  st.cp_count = 2;
  const BeamResults r = Analysed(st);
  EXPECT_EQ(r.pt_first, 11);
  EXPECT_EQ(r.pt_last, 12);
  EXPECT_EQ(r.pt_x[11], float32(1.0 / 6));
  EXPECT_EQ(r.pt_x[12], float32(2.0 / 6));
  EXPECT_NEAR(r.z.M_pt[11], 25, 1e-5);
  EXPECT_NEAR(r.z.M_pt[12], 40, 1e-5);
  EXPECT_NEAR(r.z.V_pt[11], 20, 1e-5);
  EXPECT_EQ(r.pt_x[13], 0);
}

TEST(CharacteristicPoints, FollowTheLastLoadSlot) {
  ProjectState st = BareMember(0, 6);
  PutPoint(st, 8, 10, 2);
  st.cp_mode = 1;
  st.cp_count = 3;
  const BeamResults r = Analysed(st);
  EXPECT_EQ(r.pt_first, 27);
  EXPECT_EQ(r.pt_last, 29);
  for (int k = 1; k <= 3; ++k) EXPECT_EQ(r.pt_x[26 + k], float32(k / 6.0)) << k;
}

TEST(CharacteristicPoints, ServeBothPlanes) {
  ProjectState st = BareMember(0, 6);
  st.q1 = 10;
  st.q1_yz = 0;
  st.cp_mode = 1;
  const BeamResults r = Analysed(st);
  EXPECT_NEAR(r.y.M_pt[11], 25, 1e-5);
  EXPECT_EQ(r.z.M_pt[11], 0);
}

TEST(CharacteristicPoints, AreLeftOutWhenSwitchedOff) {
  ProjectState st = BareMember(0, 6);
  st.cp_count = 3;
  EXPECT_EQ(Analysed(st).pt_last, 10);
}

TEST(CharacteristicPoints, WidenTheExtremes) {
  // A propped beam's sagging peak stands at 3/8 L, not at a station of 2 % steps.
  ProjectState st = BareMember(1, 6);
  st.q1 = 10;
  const double without = Analysed(st).z.M_max;
  st.cp_mode = 1;
  st.cp_x[1] = 2.25;
  const BeamResults r = Analysed(st);
  EXPECT_GT(r.z.M_max, without);
  EXPECT_NEAR(r.z.M_max, 9.0 / 128 * 360, 1e-5);
  EXPECT_EQ(r.MyAbsMax, r.z.M[50] * -1);  // the fixed end still governs
}

TEST(CharacteristicPoints, AMemberMayHaveFortyOnePointsAtMost) {
  ProjectState st = BareMember(0, 6);
  st.cp_mode = 1;
  st.cp_count = 30;
  EXPECT_THROW(Analysed(st), ArithmeticFault);
}

/// A point at x = L of a member with one load, without the rules of the member's ends.
double MomentAtFarPoint(ProjectState st, double x) {
  st.cp_mode = 1;
  st.cp_x[1] = x;
  const BeamResults r = Analysed(st);
  return r.z.M_pt[r.pt_last];
}

TEST(PointAtTheFarEnd, CountsAMomentOfAPinnedBeamInFull) {
  for (const double a : {0.0, 2.0, 6.0}) {
    SCOPED_TRACE(a);
    ProjectState st = BareMember(0, 6);
    PutMoment(st, 1, 36, a);
    EXPECT_NEAR(MomentAtFarPoint(st, 6), -36, 1e-5);
  }
}

TEST(PointAtTheFarEnd, OnlyTheMomentLoadHasTheRule) {
  ProjectState st = BareMember(0, 6);
  st.q1 = 10;
  PutPoint(st, 1, 20, 2);
  EXPECT_NEAR(MomentAtFarPoint(st, 6), 0, 1e-4);
  PutMoment(st, 2, 36, 2);
  PutMoment(st, 3, 9, 4);
  EXPECT_NEAR(MomentAtFarPoint(st, 6), -45, 1e-4);
}

/// A stiffened plate under loads that only sag has no hogging moment, not even a rounding error.
TEST(PointAtTheFarEnd, HasNoCrumbsOfAMoment) {
  for (const double P : {0.7, 3.3, 17.9, 61.3, 104.7}) {
    for (const double a : {0.31, 1.7, 2.9, 4.43}) {
      SCOPED_TRACE(std::to_string(P) + " kN at " + std::to_string(a));
      ProjectState st = BareMember(0, 4.97);
      st.ProfileType = 52;
      PutPoint(st, 1, P, a);
      PutPoint(st, 2, P / 3, a / 2);
      PutTrapezoid(st, 1, P, 2 * P, 0.3, a + 0.2);
      EXPECT_EQ(MomentAtFarPoint(st, 4.97), 0);
      st.cp_mode = 1;
      st.cp_x[1] = 4.97;
      EXPECT_EQ(Analysed(st).My_gov, 0);
    }
  }
}

TEST(PointAtTheFarEnd, JustBeforeItTheCurveIsTheMembersOwn) {
  ProjectState st = BareMember(0, 6);
  PutMoment(st, 1, 36, 2);
  EXPECT_NEAR(MomentAtFarPoint(st, 5.9), 36 * 0.1 / 6, 1e-4);
}

TEST(PointAtTheFarEnd, TheStationKeepsTheEndRule) {
  ProjectState st = BareMember(0, 6);
  PutMoment(st, 1, 36, 2);
  st.cp_mode = 1;
  st.cp_x[1] = 6;
  const BeamResults r = Analysed(st);
  EXPECT_EQ(r.z.M[50], 0);
  EXPECT_EQ(r.z.M_pt[10], 0);
  EXPECT_NEAR(r.z.M_min, -36, 1e-5);  // the point widens the extremes
}

TEST(PointAtTheFarEnd, OtherSupportsFollowTheCurve) {
  struct Case {
    int support;
    double M;  // Mo = 36 at 2 m of 6 m, 50 % restraint
  };
  constexpr Case cases[] = {{1, -12}, {2, -12}, {3, -6}, {4, 0}, {5, -6}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.support);
    ProjectState st = BareMember(c.support, 6);
    PutMoment(st, 1, 36, 2);
    EXPECT_NEAR(MomentAtFarPoint(st, 6), c.M, 1e-4);
  }
}

TEST(PointAtTheNearEnd, HasNoEndRule) {
  // The station shows 0 for a moment away from the end; the cantilever point load shows -P*a.
  ProjectState st = BareMember(4, 6);
  PutPoint(st, 1, 10, 2);
  EXPECT_NEAR(MomentAtFarPoint(st, 0), -20, 1e-5);
  st = BareMember(0, 6);
  PutMoment(st, 1, 36, 0);
  EXPECT_NEAR(MomentAtFarPoint(st, 0), 36, 1e-5);
}

TEST(PointOfALoad, TakesTheBranchOfItsSupport) {
  struct Case {
    int support;
    double V;  // P = 27 at 32 m of 64 m, at a point there; 50 % restraint
  };
  constexpr Case cases[] = {{0, -13.5}, {1, -27 * 11.0 / 16}, {2, 13.5}, {3, -13.5}, {4, -27}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.support);
    ProjectState st = BareMember(c.support, 64);
    PutPoint(st, 1, 27, 32);
    st.cp_mode = 1;
    st.cp_x[1] = 32;
    const BeamResults r = Analysed(st);
    EXPECT_NEAR(r.z.V_pt[r.pt_last], c.V, 1e-4);
  }
}

// --- Extremes and governing moments -----------------------------------------------------------

TEST(Extremes, NeverLeaveZeroOut) {
  ProjectState st = BareMember(0, 6);
  st.q1 = -10;
  const BeamResults r = Analysed(st);
  EXPECT_EQ(r.z.M_max, 0);
  EXPECT_NEAR(r.z.M_min, -45, 1e-4);
  EXPECT_EQ(r.My_gov, r.z.M_min);
  EXPECT_NEAR(r.MyAbsMax, 45, 1e-4);
}

TEST(Extremes, ALoadInOnePlaneLeavesTheOther) {
  ProjectState st = BareMember(0, 6);
  PutPoint(st, 1, 10, 3, 0);
  const BeamResults r = Analysed(st);
  EXPECT_EQ(r.z.M_max, 0);
  EXPECT_EQ(r.z.M_min, 0);
  EXPECT_EQ(r.z.V_max, 0);
  EXPECT_EQ(r.z.V_min, 0);
  EXPECT_EQ(r.MyAbsMax, 0);
  EXPECT_NEAR(r.MzAbsMax, 15, 1e-4);
}

TEST(Extremes, CoverShearsToo) {
  ProjectState st = BareMember(1, 6);
  st.q1 = 10;
  const BeamResults r = Analysed(st);
  EXPECT_NEAR(r.z.V_max, 22.5, 1e-5);
  EXPECT_NEAR(r.z.V_min, -37.5, 1e-5);
}

TEST(GoverningMoment, IsTheLargerOneSigned) {
  ProjectState st = BareMember(1, 6);  // 25.3 sagging, -45 at the fixed end
  st.q1 = 10;
  BeamResults r = Analysed(st);
  EXPECT_NEAR(r.My_gov, -45, 1e-4);
  EXPECT_EQ(r.MyAbsMax, -r.My_gov);
  st.q1 = -10;
  r = Analysed(st);
  EXPECT_NEAR(r.My_gov, 45, 1e-4);
}

TEST(GoverningMoment, OfPlatesWithStiffenersIsTheHoggingOne) {
  for (int type = 51; type <= 56; ++type) {
    SCOPED_TRACE(type);
    ProjectState st = BareMember(0, 6);
    st.ProfileType = type;
    st.q1 = 10;
    EXPECT_EQ(Analysed(st).My_gov, 0);
    EXPECT_NEAR(Analysed(st).MyAbsMax, 45, 1e-4);
    st.q1 = -10;
    EXPECT_NEAR(Analysed(st).My_gov, -45, 1e-4);
    st.SupportType = 1;
    EXPECT_NEAR(Analysed(st).My_gov, -9.0 / 128 * 360, 0.02);
  }
}

TEST(GoverningMoment, OfNeighbouringTypesIsTheLargerOne) {
  for (const int type : {41, 50, 57, 101}) {
    SCOPED_TRACE(type);
    ProjectState st = BareMember(0, 6);
    st.ProfileType = type;
    st.q1 = 10;
    EXPECT_NEAR(Analysed(st).My_gov, 45, 1e-4);
  }
}

TEST(AxialForce, ComesOutOfTheAnalysis) {
  ProjectState st = BareMember(0, 6);
  st.NP = 10;
  st.NV1 = 20;
  st.lfp_uls = 1.25;
  st.lfv1_uls = 1.5;
  st.SelfWeight = 1;
  WorkingLoads loads;
  BeamResults r;
  number N;
  AnalyseBeam(st, 100, loads, r, N);
  EXPECT_EQ(N, 42.5);
  EXPECT_NEAR(r.z.M[25], 1 * 36 / 8.0, 1e-5);  // 100 kg/m are 1 kN/m
}

// A file can put a load before the first support: its two points see the line load all the same.
TEST(LoadPoints, BeforeTheMemberTheLineLoadGoesOn) {
  const double L = 6;
  for (const auto& [support, m1, m0] :
       {std::tuple{0, 30.0, 0.0}, {1, 22.5, 0.0}, {2, 30.0, -30.0}, {4, 60.0, -180.0}}) {
    SCOPED_TRACE(support);
    ProjectState st = BareMember(support, L);
    st.q1 = 10;
    st.pmx[1] = -1;  // a position alone, without a load, makes the points
    const BeamResults r = Analysed(st);
    const double x = L * r.pt_x[11];
    ASSERT_NEAR(x, -0.999, 1e-6);
    EXPECT_NEAR(r.z.M_pt[11], m0 + m1 * x - 5 * x * x, 1e-4);
  }
}

}  // namespace
}  // namespace korvane
