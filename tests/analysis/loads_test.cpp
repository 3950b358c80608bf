// SPDX-License-Identifier: GPL-3.0-or-later
// The load record: combinations by group and direction, self weight and axial force.
#include "analysis/loads.h"

#include <gtest/gtest.h>

#include "members.h"

namespace korvane {
namespace {

/// Factors that all differ and are exact in single precision.
ProjectState FactoredMember() {
  ProjectState st = BareMember(0, 6);
  st.lfp_uls = 1.25;
  st.lfv1_uls = 1.5;
  st.lfv2_uls = 1.75;
  st.lfp_sls = 1;
  st.lfv1_sls = 0.5;
  st.lfv2_sls = 0.25;
  st.lfsw_uls = 1.5;
  return st;
}

struct GroupCase {
  int group;
  double uls, sls;
};
/// A group other than 0 and 1 counts as the second variable one.
constexpr GroupCase kGroups[] = {{0, 1.25, 1}, {1, 1.5, 0.5}, {2, 1.75, 0.25}, {7, 1.75, 0.25}};

TEST(Combinations, EachGroupHasItsFactorForLineLoads) {
  for (const GroupCase& c : kGroups) {
    SCOPED_TRACE(c.group);
    ProjectState st = FactoredMember();
    st.q3 = 8;
    st.q3_pv = c.group;
    WorkingLoads w;
    CombineUls(st, 0, w);
    EXPECT_EQ(w.z.q, 8 * c.uls);
    EXPECT_EQ(w.y.q, 0);
    CombineSls(st, 0, w);
    EXPECT_EQ(w.z.q, 8 * c.sls);
    EXPECT_EQ(w.y.q, 0);
  }
}

TEST(Combinations, EachGroupHasItsFactorForTrapezoids) {
  for (const GroupCase& c : kGroups) {
    for (int t = 1; t <= 3; ++t) {
      SCOPED_TRACE(c.group * 10 + t);
      ProjectState st = FactoredMember();
      PutTrapezoid(st, t, 4, 12, 1, 3);
      st.*TrapezoidOf(t).pv = c.group;
      WorkingLoads w;
      CombineUls(st, 0, w);
      EXPECT_EQ(w.z.qt1[t], 4 * c.uls);
      EXPECT_EQ(w.z.qt2[t], 12 * c.uls);
      EXPECT_EQ(w.y.qt1[t], 0);
      EXPECT_EQ(w.y.qt2[t], 0);
      CombineSls(st, 0, w);
      EXPECT_EQ(w.z.qt1[t], 4 * c.sls);
      EXPECT_EQ(w.z.qt2[t], 12 * c.sls);
      CombineCharacteristic(st, w);
      EXPECT_EQ(w.z.qt1[t], 4);
      EXPECT_EQ(w.z.qt2[t], 12);
    }
  }
}

TEST(Combinations, EachGroupHasItsFactorForLoadEntries) {
  for (const GroupCase& c : kGroups) {
    for (int i = 1; i <= 8; ++i) {
      SCOPED_TRACE(c.group * 10 + i);
      ProjectState st = FactoredMember();
      PutPoint(st, i, -16, 2);
      st.pm_pv[i] = c.group;
      WorkingLoads w;
      CombineUls(st, 0, w);
      EXPECT_EQ(w.z.P[i], -16 * c.uls);
      EXPECT_EQ(w.y.P[i], 0);
      CombineSls(st, 0, w);
      EXPECT_EQ(w.z.P[i], -16 * c.sls);
      CombineCharacteristic(st, w);
      EXPECT_EQ(w.z.P[i], -16);
    }
  }
}

TEST(Combinations, AllLineLoadsOfADirectionAddWithTheirOwnFactors) {
  ProjectState st = FactoredMember();
  st.q1 = 1;
  st.q2 = 10;
  st.q2_pv = 1;
  st.q3 = 100;
  st.q3_pv = 2;
  st.q4 = 1000;
  st.q4_yz = 0;
  WorkingLoads w;
  CombineUls(st, 0, w);
  EXPECT_EQ(w.z.q, 1.25 + 15 + 175);
  EXPECT_EQ(w.y.q, 1250);
}

TEST(Combinations, LineLoadsAreRoundedToSinglePrecisionOneByOne) {
  ProjectState st = FactoredMember();
  st.lfp_uls = 1;
  st.q1 = 16777216;  // 2^24: one more is lost in single precision
  st.q2 = 1;
  st.q3 = -16777216;
  st.SelfWeight = 1;
  WorkingLoads w;
  CombineUls(st, 0, w);
  EXPECT_EQ(w.z.q, 0);
  CombineSls(st, 50, w);
  EXPECT_EQ(w.z.q, 0.5);
  st.q3 = 0;
  CombineSls(st, 50, w);
  EXPECT_EQ(w.z.q, 16777216);
}

TEST(Combinations, TrapezoidsFollowTheirDirection) {
  for (int t = 1; t <= 3; ++t) {
    SCOPED_TRACE(t);
    ProjectState st = BareMember(0, 6);
    PutTrapezoid(st, t, 3, 5, 1, 2);
    st.*TrapezoidOf(t).yz = 0;
    WorkingLoads w;
    CombineUls(st, 0, w);
    EXPECT_EQ(w.y.qt1[t], 3);
    EXPECT_EQ(w.y.qt2[t], 5);
    EXPECT_EQ(w.z.qt1[t], 0);
    EXPECT_EQ(w.z.qt2[t], 0);
  }
}

/// The flag value 1 reads z for forces and "about y" for moments; any other value of a moment is
/// the y plane, any value but 0 of a point load the z plane.
TEST(Combinations, DirectionFlagOfLoadEntries) {
  struct Case {
    int kind, flag;
    double Pz, Py, Mz_plane, My_plane;
  };
  constexpr Case cases[] = {{0, 0, 0, 9, 0, 0}, {0, 1, 9, 0, 0, 0}, {0, 2, 9, 0, 0, 0},
                            {1, 0, 0, 0, 0, 9}, {1, 1, 0, 0, 9, 0}, {1, 2, 0, 0, 0, 9},
                            {3, 1, 0, 0, 9, 0}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.kind * 10 + c.flag);
    ProjectState st = BareMember(0, 6);
    PutPoint(st, 5, 9, 2, c.flag);
    st.pm_pm[5] = c.kind;
    WorkingLoads w;
    CombineUls(st, 0, w);
    EXPECT_EQ(w.z.P[5], c.Pz);
    EXPECT_EQ(w.y.P[5], c.Py);
    EXPECT_EQ(w.z.M[5], c.Mz_plane);
    EXPECT_EQ(w.y.M[5], c.My_plane);
  }
}

TEST(Combinations, LineLoadFlagOtherThanZeroIsTheZPlane) {
  ProjectState st = BareMember(0, 6);
  st.q1 = 4;
  st.q1_yz = 2;
  WorkingLoads w;
  CombineUls(st, 0, w);
  EXPECT_EQ(w.z.q, 4);
  EXPECT_EQ(w.y.q, 0);
}

TEST(Combinations, EachOneOverwritesTheFormer) {
  ProjectState full = BareMember(0, 6);
  full.q1 = 1;
  PutTrapezoid(full, 2, 1, 1, 1, 2);
  PutPoint(full, 3, 1, 2);
  PutMoment(full, 4, 1, 2, 0);
  const ProjectState empty = BareMember(0, 6);
  for (const auto combine : {CombineUls, CombineSls}) {
    WorkingLoads w;
    CombineUls(full, 0, w);
    combine(empty, 0, w);
    EXPECT_EQ(w.z.q, 0);
    EXPECT_EQ(w.z.qt1[2], 0);
    EXPECT_EQ(w.z.qt2[2], 0);
    EXPECT_EQ(w.z.P[3], 0);
    EXPECT_EQ(w.y.M[4], 0);
  }
}

TEST(Combinations, CharacteristicSumsByDirectionAndGroup) {
  ProjectState st = FactoredMember();
  st.q1 = 1;
  st.q2 = 2;
  st.q2_pv = 1;
  st.q3 = 4;
  st.q3_pv = 2;
  st.q4 = 8;
  st.q4_pv = 2;
  WorkingLoads w;
  CombineCharacteristic(st, w);
  EXPECT_EQ(w.qzByGroup[0], 1);
  EXPECT_EQ(w.qzByGroup[1], 2);
  EXPECT_EQ(w.qzByGroup[2], 12);
  for (float32 q : w.qyByGroup) EXPECT_EQ(q, 0);
  st.q1_yz = 0;
  st.q2_yz = 0;
  st.q3_yz = 0;
  CombineCharacteristic(st, w);
  EXPECT_EQ(w.qyByGroup[0], 1);
  EXPECT_EQ(w.qyByGroup[1], 2);
  EXPECT_EQ(w.qyByGroup[2], 4);
  EXPECT_EQ(w.qzByGroup[0], 0);
  EXPECT_EQ(w.qzByGroup[1], 0);
  EXPECT_EQ(w.qzByGroup[2], 8);
}

TEST(Combinations, CharacteristicHasNoSelfWeightAndLeavesTheLineLoads) {
  ProjectState st = FactoredMember();
  st.q1 = 8;
  st.q2 = 4;
  st.q2_yz = 0;
  st.SelfWeight = 1;
  WorkingLoads w;
  CombineUls(st, 200, w);
  EXPECT_EQ(w.z.q, 10 + 3);
  EXPECT_EQ(w.y.q, 5);
  CombineCharacteristic(st, w);
  EXPECT_EQ(w.z.q, 10 + 3);
  EXPECT_EQ(w.y.q, 5);
  EXPECT_EQ(w.qzByGroup[0], 8);
  EXPECT_EQ(w.qyByGroup[0], 4);
}

TEST(SelfWeight, AloneGivesALineLoadAndNoAxialForce) {
  ProjectState st = FactoredMember();
  st.SelfWeight = 1;
  WorkingLoads w;
  CombineUls(st, 50, w);
  EXPECT_EQ(w.z.q, 0.75);  // 50 kg/m * 0.01 * 1.5
  EXPECT_EQ(w.y.q, 0);
  EXPECT_EQ(AxialForceUls(st), 0);
}

TEST(SelfWeight, HasTheFactorOneInSls) {
  ProjectState st = FactoredMember();
  st.SelfWeight = 1;
  WorkingLoads w;
  CombineSls(st, 50, w);
  EXPECT_EQ(w.z.q, 0.5);
}

TEST(SelfWeight, CountsOnlyWhenSwitchedOn) {
  WorkingLoads w;
  CombineUls(FactoredMember(), 50, w);
  EXPECT_EQ(w.z.q, 0);
  CombineSls(FactoredMember(), 50, w);
  EXPECT_EQ(w.z.q, 0);
}

TEST(AxialForce, IsTheFactoredSum) {
  ProjectState st = FactoredMember();
  st.NP = 100;
  st.NV1 = 20;
  st.NV2 = -4;
  EXPECT_EQ(AxialForceUls(st), 125 + 30 - 7);
}

TEST(LineLoadSums, FlangeLoadTakesUlsLineLoadsAcrossZWithoutSelfWeight) {
  ProjectState st = FactoredMember();
  st.SelfWeight = 1;
  st.q1 = 8;
  st.q2 = 4;
  st.q2_pv = 1;
  st.q3 = 100;
  st.q3_yz = 0;
  EXPECT_EQ(FlangeLineLoad(st), 10 + 6);
}

TEST(LineLoadSums, ModalLoadTakesSlsLineLoadsOfDirectionOneAlone) {
  ProjectState st = FactoredMember();
  st.SelfWeight = 1;
  st.q1 = 8;
  st.q2 = 4;
  st.q2_pv = 1;
  st.q3 = 100;
  st.q3_yz = 0;
  st.q4 = 100;
  st.q4_yz = 2;
  EXPECT_EQ(ModalLineLoad(st), 8 + 2);
}

TEST(Trapezoids, AreNumberedOneToThree) {
  EXPECT_THROW(TrapezoidOf(0), ArithmeticFault);
  EXPECT_THROW(TrapezoidOf(4), ArithmeticFault);
}

}  // namespace
}  // namespace korvane
