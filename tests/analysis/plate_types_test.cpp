// SPDX-License-Identifier: GPL-3.0-or-later
// What members carried by a plate lose: axial loads and the loads of the y direction.
#include <gtest/gtest.h>

#include "members.h"

namespace korvane {
namespace {

ProjectState LoadedBothWays(int type) {
  ProjectState st = BareMember(0, 6);
  st.ProfileType = type;
  st.NP = 1;
  st.NV1 = 2;
  st.NV2 = 3;
  st.q1 = 5;
  st.q2 = 6;
  st.q2_yz = 0;
  st.q3 = 7;
  st.q3_yz = 0;
  st.q4 = 8;
  for (int t = 1; t <= 3; ++t) {
    PutTrapezoid(st, t, 1, 2, 3, 4);
    st.*TrapezoidOf(t).yz = 0;
  }
  PutPoint(st, 1, 10, 1, 0);
  st.pm_pv[1] = 2;
  PutMoment(st, 2, 20, 2, 0);
  st.pm_pv[2] = 1;
  PutPoint(st, 3, 30, 3, 1);
  st.pm_pv[3] = 2;
  PutMoment(st, 8, 40, 4, 1);
  return st;
}

constexpr int kPlateTypes[] = {24, 25, 27, 51, 52, 53, 54, 55, 56};

TEST(StripForPlateTypes, AxialLoadsGo) {
  for (const int type : kPlateTypes) {
    SCOPED_TRACE(type);
    ProjectState st = LoadedBothWays(type);
    StripForPlateTypes(st);
    EXPECT_EQ(st.NP, 0);
    EXPECT_EQ(st.NV1, 0);
    EXPECT_EQ(st.NV2, 0);
  }
}

TEST(StripForPlateTypes, LineLoadsAcrossGoAndAllPointToZ) {
  for (const int type : kPlateTypes) {
    SCOPED_TRACE(type);
    ProjectState st = LoadedBothWays(type);
    StripForPlateTypes(st);
    EXPECT_EQ(st.q1, 5);
    EXPECT_EQ(st.q2, 0);
    EXPECT_EQ(st.q3, 0);
    EXPECT_EQ(st.q4, 8);
    EXPECT_EQ(st.q1_yz, 1);
    EXPECT_EQ(st.q2_yz, 1);
    EXPECT_EQ(st.q3_yz, 1);
    EXPECT_EQ(st.q4_yz, 1);
  }
}

TEST(StripForPlateTypes, FirstTwoTrapezoidsGoAndTheThirdStays) {
  for (const int type : kPlateTypes) {
    SCOPED_TRACE(type);
    ProjectState st = LoadedBothWays(type);
    StripForPlateTypes(st);
    for (int t = 1; t <= 2; ++t) {
      EXPECT_EQ(st.*TrapezoidOf(t).q1, 0);
      EXPECT_EQ(st.*TrapezoidOf(t).q2, 0);
      EXPECT_EQ(st.*TrapezoidOf(t).x1, 3);  // positions stay
      EXPECT_EQ(st.*TrapezoidOf(t).x2, 4);
      EXPECT_EQ(st.*TrapezoidOf(t).yz, 1);
    }
    EXPECT_EQ(st.qt3_1, 1);
    EXPECT_EQ(st.qt3_2, 2);
    EXPECT_EQ(st.qt3_yz, 0);
  }
}

TEST(StripForPlateTypes, TrapezoidsInZStay) {
  ProjectState st = BareMember(0, 6);
  st.ProfileType = 24;
  PutTrapezoid(st, 1, 1, 2, 3, 4);
  PutTrapezoid(st, 2, 5, 6, 1, 2);
  StripForPlateTypes(st);
  EXPECT_EQ(st.qt1_1, 1);
  EXPECT_EQ(st.qt1_2, 2);
  EXPECT_EQ(st.qt2_1, 5);
  EXPECT_EQ(st.qt2_2, 6);
}

TEST(StripForPlateTypes, LoadEntriesAcrossAreCleared) {
  for (const int type : kPlateTypes) {
    SCOPED_TRACE(type);
    ProjectState st = LoadedBothWays(type);
    StripForPlateTypes(st);
    for (int i = 1; i <= 2; ++i) {
      EXPECT_EQ(st.pm[i], 0);
      EXPECT_EQ(st.pmx[i], 0);
      EXPECT_EQ(st.pm_pv[i], 0);
      EXPECT_EQ(st.pm_yz[i], 1);
    }
    EXPECT_EQ(st.pm_pm[2], 1);  // the kind stays
    EXPECT_EQ(st.pm[3], 30);
    EXPECT_EQ(st.pmx[3], 3);
    EXPECT_EQ(st.pm_pv[3], 2);
    EXPECT_EQ(st.pm[8], 40);
    EXPECT_EQ(st.pmx[8], 4);
  }
}

TEST(StripForPlateTypes, OtherTypesKeepEverything) {
  for (const int type : {1, 4, 10, 21, 22, 23, 26, 28, 41, 50, 57, 101}) {
    SCOPED_TRACE(type);
    ProjectState st = LoadedBothWays(type);
    StripForPlateTypes(st);
    EXPECT_EQ(st.NP, 1);
    EXPECT_EQ(st.q2, 6);
    EXPECT_EQ(st.q2_yz, 0);
    EXPECT_EQ(st.qt1_1, 1);
    EXPECT_EQ(st.qt1_yz, 0);
    EXPECT_EQ(st.pm[1], 10);
    EXPECT_EQ(st.pm_yz[1], 0);
  }
}

TEST(StripForPlateTypes, AThirdTrapezoidAcrossStaysInTheAnalysis) {
  const BeamResults r = Analysed(LoadedBothWays(24));
  EXPECT_GT(r.y.M_max, 0);
}

}  // namespace
}  // namespace korvane
