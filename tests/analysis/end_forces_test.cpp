// SPDX-License-Identifier: GPL-3.0-or-later
// End-force mode: straight lines between the end values, extremes, moment factors, points and
// what some families lose.
#include <gtest/gtest.h>

#include <string>

#include "members.h"

namespace korvane {
namespace {

ProjectState EndLoaded() {
  ProjectState st = BareMember(0, 6);
  st.AnalysisMode = 0;
  st.Ne = 123.5;
  st.My_end[1] = 100;
  st.My_end[2] = 50;
  st.Mz_end[1] = -20;
  st.Mz_end[2] = 30;
  st.Vy_end[1] = 4;
  st.Vy_end[2] = -6;
  st.Vz_end[1] = 11;
  st.Vz_end[2] = 7;
  return st;
}

struct Line {
  double start, end;
  double At(double t) const { return start + (end - start) * t; }
};
constexpr Line kMy{100, 50};
constexpr Line kMz{-20, 30};
constexpr Line kVy{4, -6};
constexpr Line kVz{11, 7};

TEST(EndForces, StationsLieOnStraightLines) {
  const BeamResults r = Analysed(EndLoaded());
  for (int i = 0; i <= 50; ++i) {
    SCOPED_TRACE(i);
    EXPECT_NEAR(r.z.M[i], kMy.At(i / 50.0), 1e-5);
    EXPECT_NEAR(r.y.M[i], kMz.At(i / 50.0), 1e-5);
    EXPECT_NEAR(r.y.V[i], kVy.At(i / 50.0), 1e-5);
    EXPECT_NEAR(r.z.V[i], kVz.At(i / 50.0), 1e-5);
  }
}

TEST(EndForces, EvenPointsLieOnStraightLines) {
  const BeamResults r = Analysed(EndLoaded());
  for (int j = 0; j <= 10; ++j) {
    SCOPED_TRACE(j);
    EXPECT_EQ(r.pt_x[j], float32(j / 10.0));
    EXPECT_NEAR(r.z.M_pt[j], kMy.At(j / 10.0), 2e-5);
    EXPECT_NEAR(r.y.M_pt[j], kMz.At(j / 10.0), 2e-5);
    EXPECT_NEAR(r.y.V_pt[j], kVy.At(j / 10.0), 2e-5);
    EXPECT_NEAR(r.z.V_pt[j], kVz.At(j / 10.0), 2e-5);
  }
  EXPECT_EQ(r.pt_first, 0);
  EXPECT_EQ(r.pt_last, 10);
}

TEST(EndForces, EvenPointsAreARunningSumInSinglePrecision) {
  ProjectState st = EndLoaded();
  st.My_end[1] = 0.1;
  st.My_end[2] = 7.3;
  const BeamResults r = Analysed(st);
  float32 point = st.My_end[1];
  for (int j = 1; j <= 9; ++j) {
    point = point + (st.My_end[2] - st.My_end[1]) / 10;
    EXPECT_EQ(r.z.M_pt[j], point) << j;
  }
  EXPECT_EQ(r.z.M_pt[10], st.My_end[2]);
}

TEST(EndForces, AxialForceIsTaken) {
  ProjectState st = EndLoaded();
  st.NP = 77;  // an axial load has no say here
  WorkingLoads loads;
  BeamResults r;
  number N;
  AnalyseBeam(st, 0, loads, r, N);
  EXPECT_EQ(N, 123.5);
}

TEST(EndForces, LoadsAndTheirFactorsHaveNoSay) {
  ProjectState st = EndLoaded();
  st.q1 = 10;
  st.lfp_uls = 3;
  PutPoint(st, 2, 30, 2);
  const BeamResults r = Analysed(st);
  EXPECT_NEAR(r.z.M[25], 75, 1e-5);
  EXPECT_EQ(r.pt_last, 10);
}

TEST(EndForces, QuarterPointsAreSetAtTheEndsAlone) {
  ProjectState st = EndLoaded();
  WorkingLoads loads;
  BeamResults r;
  number N;
  for (int k = 1; k <= 3; ++k) {
    r.z.M_q[k] = 10 + k;
    r.y.M_q[k] = 20 + k;
  }
  AnalyseBeam(st, 0, loads, r, N);
  EXPECT_EQ(r.z.M_q[0], 100);
  EXPECT_EQ(r.z.M_q[4], 50);
  EXPECT_EQ(r.y.M_q[0], -20);
  EXPECT_EQ(r.y.M_q[4], 30);
  for (int k = 1; k <= 3; ++k) {
    EXPECT_EQ(r.z.M_q[k], 10 + k) << k;
    EXPECT_EQ(r.y.M_q[k], 20 + k) << k;
  }
}

TEST(EndForces, ExtremesStartAtTheFirstStation) {
  const BeamResults r = Analysed(EndLoaded());
  EXPECT_EQ(r.z.M_max, 100);
  EXPECT_NEAR(r.z.M_min, 50, 1e-5);  // not 0
  EXPECT_NEAR(r.y.M_max, 30, 1e-5);
  EXPECT_EQ(r.y.M_min, -20);
  EXPECT_EQ(r.z.V_max, 11);
  EXPECT_NEAR(r.z.V_min, 7, 1e-5);
  EXPECT_EQ(r.y.V_max, 4);
  EXPECT_NEAR(r.y.V_min, -6, 1e-5);
  EXPECT_EQ(r.MyAbsMax, 100);
  EXPECT_NEAR(r.MzAbsMax, 30, 1e-5);
  EXPECT_EQ(r.My_gov, 100);
}

TEST(EndForces, TheLastStationIsTheSecondEndToTheLastBit) {
  for (const double M : {0.1, 0.8, 6.4, 7.8, 33.3, 161.9}) {
    SCOPED_TRACE(M);
    ProjectState st = EndLoaded();
    st.My_end[1] = M;
    st.My_end[2] = 0;
    const BeamResults r = Analysed(st);
    EXPECT_EQ(r.z.M[50], 0);
    EXPECT_EQ(r.z.M_min, 0);
  }
}

TEST(EndForces, EqualEndMomentsAreBothExtremes) {
  for (const double M : {40.0, -40.0}) {
    SCOPED_TRACE(M);
    ProjectState st = EndLoaded();
    st.My_end[1] = M;
    st.My_end[2] = M;
    const BeamResults r = Analysed(st);
    EXPECT_EQ(r.z.M_max, M);
    EXPECT_EQ(r.z.M_min, M);
    EXPECT_EQ(r.My_gov, M);
    EXPECT_EQ(r.MyAbsMax, 40);
  }
}

TEST(EndForces, ShearIsIndependentOfTheMoments) {
  ProjectState st = EndLoaded();
  st.My_end[2] = -100;
  const BeamResults r = Analysed(st);
  EXPECT_NEAR(r.z.V[25], 9, 1e-5);
}

TEST(EndForces, MomentFactors) {
  struct Case {
    double M1, M2, beta;
  };
  constexpr Case cases[] = {
      {100, 50, 1.45}, {50, 100, 1.45}, {100, -100, 2.5}, {-100, 100, 2.5}, {0, 0, 1.8},
      {0, 80, 1.8},    {80, 0, 1.8},    {80, 80, 1.1},    {-80, -80, 1.1},  {-80, 40, 2.15},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::to_string(c.M1) + " and " + std::to_string(c.M2));
    ProjectState st = BareMember(0, 6);
    st.AnalysisMode = 0;
    st.My_end[1] = c.M1;
    st.My_end[2] = c.M2;
    EXPECT_NEAR(Analysed(st).betaMy, c.beta, 1e-12);
    EXPECT_EQ(Analysed(st).betaMz, 1.8);
    st.Mz_end = st.My_end;
    st.My_end = {};
    EXPECT_NEAR(Analysed(st).betaMz, c.beta, 1e-12);
    EXPECT_EQ(Analysed(st).betaMy, 1.8);
  }
}

TEST(EndForces, SomeFamiliesLoseTheWeakAxisForGood) {
  for (const int type : {22, 24, 25, 27}) {
    SCOPED_TRACE(type);
    ProjectState st = EndLoaded();
    st.ProfileType = type;
    WorkingLoads loads;
    BeamResults r;
    number N;
    AnalyseBeam(st, 0, loads, r, N);
    for (int k = 1; k <= 2; ++k) {
      EXPECT_EQ(st.Mz_end[k], 0) << k;
      EXPECT_EQ(st.Vy_end[k], 0) << k;
    }
    EXPECT_EQ(st.My_end[1], 100);
    EXPECT_EQ(st.Vz_end[1], 11);
    EXPECT_EQ(r.MzAbsMax, 0);
    EXPECT_EQ(r.y.V_max, 0);
    EXPECT_EQ(N, 123.5);  // the axial force stays
  }
}

TEST(EndForces, OtherFamiliesKeepTheirEndValues) {
  for (const int type : {1, 21, 23, 26, 28, 41, 51, 53, 56}) {
    SCOPED_TRACE(type);
    ProjectState st = EndLoaded();
    st.ProfileType = type;
    WorkingLoads loads;
    BeamResults r;
    number N;
    AnalyseBeam(st, 0, loads, r, N);
    EXPECT_EQ(st.Mz_end[1], -20);
    EXPECT_EQ(st.Vy_end[2], -6);
    EXPECT_NEAR(r.MzAbsMax, 30, 1e-5);
  }
}

TEST(EndForces, TheLoadRecordIsNotStripped) {
  ProjectState st = EndLoaded();
  st.ProfileType = 24;
  st.NP = 5;
  st.q2 = 6;
  st.q2_yz = 0;
  WorkingLoads loads;
  BeamResults r;
  number N;
  AnalyseBeam(st, 0, loads, r, N);
  EXPECT_EQ(st.NP, 5);
  EXPECT_EQ(st.q2, 6);
  EXPECT_EQ(st.q2_yz, 0);
}

TEST(EndForces, CharacteristicPointsAreInterpolatedAndLeaveTheExtremes) {
  ProjectState st = EndLoaded();
  st.cp_mode = 1;
  st.cp_count = 3;
  st.cp_x[1] = 1.5;
  st.cp_x[2] = 6;
  st.cp_x[3] = 9;  // not tidied yet: beyond the member
  const BeamResults r = Analysed(st);
  EXPECT_EQ(r.pt_first, 11);
  EXPECT_EQ(r.pt_last, 13);
  constexpr double at[] = {0.25, 1, 1.5};
  for (int k = 0; k < 3; ++k) {
    SCOPED_TRACE(k);
    EXPECT_EQ(r.pt_x[11 + k], at[k]);
    EXPECT_NEAR(r.z.M_pt[11 + k], kMy.At(at[k]), 1e-5);
    EXPECT_NEAR(r.y.M_pt[11 + k], kMz.At(at[k]), 1e-5);
    EXPECT_NEAR(r.y.V_pt[11 + k], kVy.At(at[k]), 1e-5);
    EXPECT_NEAR(r.z.V_pt[11 + k], kVz.At(at[k]), 1e-5);
  }
  EXPECT_NEAR(r.z.M_min, 50, 1e-5);
  EXPECT_NEAR(r.MzAbsMax, 30, 1e-5);
}

}  // namespace
}  // namespace korvane
