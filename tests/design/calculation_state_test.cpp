// SPDX-License-Identifier: GPL-3.0-or-later
// What a calculation changes in the state itself: loads that a family can't carry, options that
// don't apply; and the calculation points that it sets up.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <vector>

#include "../core/state_values.h"
#include "designs.h"
#include "sections/profile_table.h"

namespace korvane {
namespace {

const std::vector<int> kPlateTypes{24, 25, 27, 51, 52, 53, 54, 55, 56};

/// Loads on both axes; those on the y axis are 1 to 4 in size.
void LoadBothAxes(ProjectState& st) {
  st.NP = 10;
  st.NV1 = 11;
  st.NV2 = 12;
  st.q1 = 5;
  st.q1_yz = 1;
  st.q2 = 1;
  st.q2_yz = 0;
  st.qt1_1 = st.qt1_2 = 2;
  st.qt1_x2 = 5;
  st.qt1_yz = 0;
  st.qt2_1 = st.qt2_2 = 6;
  st.qt2_x2 = 5;
  st.qt2_yz = 1;
  st.qt3_1 = st.qt3_2 = 3;
  st.qt3_x2 = 5;
  st.qt3_yz = 0;
  st.pm[1] = 7;
  st.pmx[1] = 1;
  st.pm_pv[1] = 2;
  st.pm_yz[1] = 1;
  st.pm[2] = 4;
  st.pmx[2] = 2;
  st.pm_pv[2] = 1;
  st.pm_yz[2] = 0;
  st.pm[8] = 4;
  st.pmx[8] = 3;
  st.pm_pm[8] = 1;
  st.pm_yz[8] = 0;
}

TEST(CalculateState, PlateTypesLoseWhatLiesAcrossThePlateForGood) {
  for (const int type : kPlateTypes) {
    SCOPED_TRACE(type);
    Design d = StartedDesign(type);
    ProjectState& st = d.st;
    LoadBothAxes(st);
    st.Ne = 13;
    Calculate(d);
    EXPECT_EQ(st.NP, 0);
    EXPECT_EQ(st.NV1, 0);
    EXPECT_EQ(st.NV2, 0);
    EXPECT_EQ(st.Ne, 13);
    EXPECT_EQ(st.q1, 5);
    EXPECT_EQ(st.q2, 0);
    EXPECT_EQ(st.q2_yz, 1);
    EXPECT_EQ(st.qt1_1, 0);
    EXPECT_EQ(st.qt1_2, 0);
    EXPECT_EQ(st.qt1_yz, 1);
    EXPECT_EQ(st.qt1_x2, 5);
    EXPECT_EQ(st.qt2_1, 6);
    EXPECT_EQ(st.pm[1], 7);
    EXPECT_EQ(st.pm_pv[1], 2);
    for (const int i : {2, 8}) {
      EXPECT_EQ(st.pm[i], 0);
      EXPECT_EQ(st.pmx[i], 0);
      EXPECT_EQ(st.pm_pv[i], 0);
      EXPECT_EQ(st.pm_yz[i], 1);
    }
    EXPECT_EQ(st.pm_pm[8], 1);
    // The third trapezoid survives with its axis.
    EXPECT_EQ(st.qt3_1, 3);
    EXPECT_EQ(st.qt3_2, 3);
    EXPECT_EQ(st.qt3_yz, 0);
    EXPECT_EQ(d.forces.N, 0);
  }
}

TEST(CalculateState, OtherTypesKeepTheirLoads) {
  Design d = StartedDesign(1);
  LoadBothAxes(d.st);
  const ProjectState before = d.st;
  Calculate(d);
  EXPECT_EQ(DifferingFields(before, d.st),
            (std::set<std::string>{"BucklingCurveY", "BucklingCurveZ", "Za"}));
}

TEST(CalculateState, PlateTypesKeepTheirLoadsInEndForceMode) {
  Design d = StartedDesign(51);
  LoadBothAxes(d.st);
  d.st.AnalysisMode = 0;
  Calculate(d);
  EXPECT_EQ(d.st.NP, 10);
  EXPECT_EQ(d.st.q2, 1);
  EXPECT_EQ(d.st.q2_yz, 0);
  EXPECT_EQ(d.st.pm[2], 4);
}

TEST(CalculateState, EndForcesAcrossAreClearedForOneSidedFamilies) {
  for (const int type : {1, 21, 22, 23, 24, 25, 27, 51, 56}) {
    SCOPED_TRACE(type);
    Design d = StartedDesign(type);
    ProjectState& st = d.st;
    st.AnalysisMode = 0;
    st.Ne = 20;
    for (const int end : {1, 2}) {
      st.My_end[end] = 4;
      st.Vz_end[end] = 5;
      st.Mz_end[end] = 6;
      st.Vy_end[end] = 7;
    }
    Calculate(d);
    const bool cleared = type == 22 || type == 24 || type == 25 || type == 27;
    for (const int end : {1, 2}) {
      EXPECT_EQ(st.My_end[end], 4);
      EXPECT_EQ(st.Vz_end[end], 5);
      EXPECT_EQ(st.Mz_end[end], cleared ? 0 : 6);
      EXPECT_EQ(st.Vy_end[end], cleared ? 0 : 7);
    }
    EXPECT_EQ(st.Ne, 20);
    // The unequal box runs no step that would take the axial force back.
    const bool carriesN = !IsPlateType(type) || type == 27;
    EXPECT_EQ(d.forces.N, carriesN ? 20 : 0);
  }
}

TEST(CalculateState, TSectionsCarryAxialForceAlone) {
  Design d = StartedDesign(26);
  ProjectState& st = d.st;
  LoadBothAxes(st);
  st.SelfWeight = 1;
  st.LoadLevel = 3;
  st.Ne = 14;
  st.My_end[1] = 4;
  st.Mz_end[2] = 4;
  st.Vy_end[1] = 4;
  st.Vz_end[2] = 4;
  Calculate(d);
  EXPECT_EQ(st.q1, 0);
  EXPECT_EQ(st.q2, 0);
  EXPECT_EQ(st.q2_yz, 1);
  EXPECT_EQ(st.qt1_1, 0);
  EXPECT_EQ(st.qt2_2, 0);
  EXPECT_EQ(st.qt3_1, 0);
  EXPECT_EQ(st.pm[1], 0);
  EXPECT_EQ(st.pmx[8], 0);
  EXPECT_EQ(st.My_end[1], 0);
  EXPECT_EQ(st.Mz_end[2], 0);
  EXPECT_EQ(st.Vy_end[1], 0);
  EXPECT_EQ(st.Vz_end[2], 0);
  EXPECT_EQ(st.SelfWeight, 0);
  EXPECT_EQ(st.LoadLevel, 1);
  EXPECT_EQ(st.NP, 10);
  EXPECT_EQ(st.NV1, 11);
  EXPECT_EQ(st.Ne, 14);
  EXPECT_EQ(d.checks.lineSection.label, "N:");
  EXPECT_EQ(d.checks.lineVz.formula, "");
  EXPECT_EQ(d.checks.lineBucklingY.label, "Ny:");
  // The first analysis still saw the loads, the next one doesn't.
  EXPECT_GT(d.beam.MyAbsMax, 0);
  Calculate(d);
  EXPECT_EQ(d.beam.MyAbsMax, 0);
  EXPECT_EQ(d.beam.MzAbsMax, 0);
}

TEST(CalculateState, LateralBucklingIsSwitchedOffWhereItDoesNotExist) {
  const std::set<int> off{6, 7, 8, 9, 10, 11, 23, 24, 25, 26, 27, 31};
  for (const Family& family : AllFamilies()) {
    for (const int mode : {0, 1}) {
      Design d = StartedDesign(family.code);
      d.st.AnalysisMode = mode;
      d.st.My_end[1] = d.st.My_end[2] = -5;
      d.st.q1 = -10;  // hogging: plates keep it too
      d.st.LtbSegments = 2;
      Calculate(d);
      EXPECT_EQ(d.st.LateralTorsionalBuckling, off.contains(family.code) ? 0 : 1) << family.code;
      EXPECT_EQ(d.st.LtbSegments, off.contains(family.code) ? 0 : 2) << family.code;
    }
  }
}

TEST(CalculateState, StiffenersAreTakenOffWhereTheyDoNotApply) {
  const std::set<int> none{5, 10, 11, 16, 26, 28, 31, 41, 103};
  for (const Family& family : AllFamilies()) {
    Design d = StartedDesign(family.code);
    d.st.WebStiffener = 1;
    d.st.EndStiffener = 1;
    Calculate(d);
    const int kept = none.contains(family.code) ? 0 : 1;
    EXPECT_EQ(d.st.WebStiffener, kept) << family.code;
    EXPECT_EQ(d.st.EndStiffener, kept) << family.code;
  }
}

TEST(CalculateState, ModalAnalysisIsClearedOnSpringSupports) {
  for (const int support : {0, 1, 2, 3, 4, 5}) {
    Design d = StartedDesign();
    d.st.SupportType = support;
    d.st.ModalAnalysis = 1;
    Calculate(d);
    const bool spring = support == 3 || support == 5;
    EXPECT_EQ(d.st.ModalAnalysis, spring ? 0 : 1) << support;
    EXPECT_GT(d.modal.ModalMass, 0) << support;  // it ran before
    EXPECT_EQ(d.modal.ModalFreq[1] > 0, !spring) << support;
  }
}

TEST(CalculateState, StiffenerDistanceIsAtMostTheLength) {
  Design d = StartedDesign();
  d.st.a_webstiff = 5000.5;
  Calculate(d);
  EXPECT_EQ(d.st.a_webstiff, 5000);
  d.st.a_webstiff = 4999;
  Calculate(d);
  EXPECT_EQ(d.st.a_webstiff, 4999);
}

// ---- calculation points

TEST(CalculationPoints, ElevenStandEvenlyWithoutPointItems) {
  Design d = StartedDesign();
  Calculate(d);
  EXPECT_EQ(d.beam.pt_first, 0);
  EXPECT_EQ(d.beam.pt_last, 10);
  for (int i = 0; i <= 10; ++i) EXPECT_EQ(d.beam.pt_x[i], float32(i / 10.0)) << i;
}

TEST(CalculationPoints, ItemsAtTheEndsAddNone) {
  Design d = StartedDesign();
  d.st.pm[1] = 10;
  d.st.pmx[1] = 0;
  d.st.pm[2] = 10;
  d.st.pmx[2] = 5;
  Calculate(d);
  EXPECT_EQ(d.beam.pt_last, 10);
}

TEST(CalculationPoints, ItemsAddAPairWhateverTheirValue) {
  Design d = StartedDesign();
  d.st.pmx[3] = 2;
  Calculate(d);
  EXPECT_EQ(d.beam.pt_first, 0);
  EXPECT_EQ(d.beam.pt_last, 16);
  EXPECT_EQ(d.beam.pt_x[15], float32(0.3996));  // 2*0.999/5
  EXPECT_EQ(d.beam.pt_x[16], float32(0.4004));
  EXPECT_EQ(d.beam.pt_x[11], 0);  // slots of skipped items stay as they were
  // M(x) = 1.2*10*x*(5 - x)/2.
  EXPECT_NEAR(d.beam.z.M_pt[15], 6 * 1.998 * 3.002, 1e-4);
}

TEST(CalculationPoints, ItemsAtOnePositionUseFourSlots) {
  Design d = StartedDesign();
  d.st.pmx[1] = 2;
  d.st.pmx[2] = 2;
  Calculate(d);
  EXPECT_EQ(d.beam.pt_last, 14);
  EXPECT_EQ(d.beam.pt_x[11], d.beam.pt_x[13]);
  EXPECT_EQ(d.beam.pt_x[12], d.beam.pt_x[14]);
  EXPECT_EQ(d.beam.z.M_pt[11], d.beam.z.M_pt[13]);
  EXPECT_EQ(d.beam.z.V_pt[12], d.beam.z.V_pt[14]);
}

TEST(CalculationPoints, UsersPointsFollowTheLastPair) {
  Design d = StartedDesign();
  d.st.cp_mode = 1;
  d.st.cp_count = 3;
  d.st.cp_x[1] = 0.5;
  d.st.cp_x[2] = 1;
  d.st.cp_x[3] = 5;
  Calculate(d);
  EXPECT_EQ(d.beam.pt_first, 11);
  EXPECT_EQ(d.beam.pt_last, 13);
  EXPECT_EQ(d.beam.pt_x[11], float32(0.1));
  EXPECT_EQ(d.beam.pt_x[13], 1);
  EXPECT_NEAR(d.beam.z.M_pt[12], 6 * 1 * 4, 1e-5);
  d.st.pmx[8] = 2;
  Calculate(d);
  EXPECT_EQ(d.beam.pt_first, 27);
  EXPECT_EQ(d.beam.pt_last, 29);
  EXPECT_NEAR(d.beam.z.M_pt[28], 6 * 1 * 4, 1e-5);
}

TEST(CalculationPoints, EndForcesRunStraightToTheUsersPoints) {
  Design d = StartedDesign();
  d.st.AnalysisMode = 0;
  d.st.cp_mode = 1;
  d.st.cp_count = 1;
  d.st.cp_x[1] = 1;
  d.st.My_end[1] = 10;
  d.st.My_end[2] = 20;
  d.st.Vy_end[1] = -5;
  d.st.Vy_end[2] = 5;
  d.st.pmx[1] = 2;  // no pair in this mode
  Calculate(d);
  EXPECT_EQ(d.beam.pt_first, 11);
  EXPECT_EQ(d.beam.pt_last, 11);
  EXPECT_NEAR(d.beam.z.M_pt[11], 12, 1e-5);
  EXPECT_NEAR(d.beam.y.V_pt[11], -3, 1e-5);
}

TEST(CalculationPoints, GoverningMomentOfPlatesIsTheHoggingOne) {
  Design d = StartedDesign(51);
  Calculate(d);
  EXPECT_NEAR(d.beam.MyAbsMax, 37.5, 1e-5);
  EXPECT_EQ(d.beam.My_gov, 0);
  EXPECT_EQ(d.st.LateralTorsionalBuckling, 0);  // nothing to buckle
  d.st.q1 = -10;
  Calculate(d);
  EXPECT_NEAR(d.beam.My_gov, -37.5, 1e-5);
}

}  // namespace
}  // namespace korvane
