// SPDX-License-Identifier: GPL-3.0-or-later
// The driver: the order of the steps as far as it shows in results, and which results a step
// leaves standing.
#include "core/calculation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "designs.h"
#include "sections/profile_table.h"
#include "sections/section_fields.h"

namespace korvane {
namespace {

// 1.2*10*5^2/8 = 37.5 kNm, 1.2*10*5/2 = 30 kN, 1.2*100 = 120 kN.
TEST(Calculate, GoesFromTheLoadsToTheLines) {
  Design d = StartedDesign();
  Calculate(d);
  EXPECT_NEAR(d.beam.z.M_max, 37.5, 1e-5);
  EXPECT_NEAR(d.beam.z.V_max, 30, 1e-5);
  EXPECT_NEAR(d.forces.N, 120, 1e-5);
  EXPECT_NEAR(d.beam.MyAbsMax, 37.5, 1e-5);
  EXPECT_NEAR(d.beam.My_gov, 37.5, 1e-5);
  EXPECT_EQ(d.beam.MzAbsMax, 0);
  EXPECT_EQ(d.rec.h, 190);
  EXPECT_EQ(d.checks.lineSection.label, "N+My:");
  EXPECT_EQ(d.checks.lineVz.label, "Vz:");
  EXPECT_EQ(d.checks.lineVy.label, "");
  EXPECT_EQ(d.checks.lineLateral.label, "Lateral:");
  EXPECT_EQ(d.checks.lineBucklingY.label, "N+My+Mz:");
  EXPECT_EQ(d.checks.lineBucklingZ.label, "N+My+Mz:");
  EXPECT_GT(MaxIR(d.checks), 0);
  // SLS 10 kN/m: 5/384*10*5000^4/(210000*Iy).
  EXPECT_NEAR(d.deflections.DeflZ_max, 5.0 / 384 * 10 * 6.25E14 / (210000 * d.rec.Iy), 1e-3);
}

TEST(Calculate, ClosesTheOptimiserAndResetsItsCriterion) {
  Design d = StartedDesign();
  d.st.OptimiseOpen = 1;
  d.st.ResultView = 0;
  Calculate(d);
  EXPECT_EQ(d.st.OptimiseOpen, 0);
  EXPECT_EQ(d.st.ResultView, 3);
}

TEST(Calculate, ResetsTheOptimiserBeforeAnyFault) {
  Design d = StartedDesign();
  d.st.L = 0;
  d.st.OptimiseOpen = 1;
  d.st.ResultView = 0;
  EXPECT_THROW(Calculate(d), CalculationFault);
  EXPECT_EQ(d.st.OptimiseOpen, 0);
  EXPECT_EQ(d.st.ResultView, 3);
}

// The analysis comes before the section step: self weight is that of the section before.
TEST(Calculate, SelfWeightIsThatOfTheFormerSection) {
  Design d = StartedDesign();
  d.st.SelfWeight = 1;
  Calculate(d);
  EXPECT_NEAR(d.beam.z.M_max, 37.5, 1e-5);  // no section yet
  const double S = d.rec.S;
  ASSERT_GT(S, 40);
  d.st.idxHEA = 10;
  Calculate(d);
  EXPECT_NEAR(d.beam.z.M_max, 37.5 + 1.2 * S * 0.01 * 25 / 8, 1e-4);
  const double heavier = d.rec.S;
  ASSERT_GT(heavier, 80);
  Calculate(d);
  EXPECT_NEAR(d.beam.z.M_max, 37.5 + 1.2 * heavier * 0.01 * 25 / 8, 1e-4);
}

TEST(Calculate, DeflectionsTakeTheNewSection) {
  Design d = StartedDesign();
  Calculate(d);
  const double before = d.deflections.DeflZ_max * d.rec.Iy;
  d.st.idxHEA = 10;
  Calculate(d);
  EXPECT_NEAR(d.deflections.DeflZ_max * d.rec.Iy / before, 1, 1e-5);
  EXPECT_NEAR(d.deflections.DeflStiff / before, 1, 1e-5);
}

TEST(Calculate, EndForcesHaveNoDeflections) {
  Design d = StartedDesign();
  Calculate(d);
  ASSERT_GT(d.deflections.DeflStiff, 0);
  ASSERT_GT(d.deflections.DeflZ_max, 0);
  d.st.AnalysisMode = 0;
  Calculate(d);
  EXPECT_EQ(d.deflections.DeflStiff, 0);
  EXPECT_EQ(d.deflections.DeflZ_max, 0);
  EXPECT_EQ(d.deflections.DeflZ[25], 0);
}

// The load record exists in load mode only: the mass of end forces is the member's own.
TEST(Calculate, EndForcesHaveNoMassOfLoads) {
  Design d = StartedDesign();
  d.st.ModalAnalysis = 1;
  d.st.AnalysisMode = 0;
  Calculate(d);
  EXPECT_EQ(d.modal.ModalMass, double(d.rec.S));
}

TEST(Calculate, ModalAnalysisRunsWhereAskedFor) {
  Design d = StartedDesign();
  Calculate(d);
  EXPECT_EQ(d.modal.ModalMass, 0);
  d.st.ModalAnalysis = 1;
  Calculate(d);
  EXPECT_NEAR(d.modal.ModalMass, 1020 + d.rec.S, 1e-3);  // 10 kN/m and the new section
  EXPECT_NEAR(d.modal.ModalFreq[1],
              1.57 * std::sqrt(210000E-6 * d.rec.Iy / (625 * d.modal.ModalMass)), 1e-6);
  const double first = d.modal.ModalFreq[1];
  d.st.ModalAnalysis = 0;
  d.st.L = 6;
  Calculate(d);
  EXPECT_EQ(d.modal.ModalFreq[1], first);
}

TEST(Calculate, CurvesAreChosenUnlessByHand) {
  Design d = StartedDesign();
  d.st.BucklingCurveY = 4;
  d.st.BucklingCurveZ = 0;
  Calculate(d);
  EXPECT_EQ(d.st.BucklingCurveY, 2);  // 190 deep, 200 wide
  EXPECT_EQ(d.st.BucklingCurveZ, 3);
  d.st.ManualBucklingCurves = 1;
  d.st.BucklingCurveY = 4;
  d.st.BucklingCurveZ = 0;
  Calculate(d);
  EXPECT_EQ(d.st.BucklingCurveY, 4);
  EXPECT_EQ(d.st.BucklingCurveZ, 0);
}

TEST(Calculate, MaterialFollowsTheThickness) {
  Design d = StartedDesign();
  Calculate(d);
  EXPECT_EQ(d.st.fyk, 355);
  EXPECT_NEAR(d.st.fd, 355 / 1.1, 1e-4);
  d.st.ProfileType = 21;
  d.st.p21_tf = 45;
  Calculate(d);
  EXPECT_LT(d.st.fyk, 355);
  EXPECT_NEAR(d.st.fd, d.st.fyk / 1.1, 1e-4);
}

TEST(Calculate, ComputedFactorsAreClearedForFamiliesWithoutLateralBuckling) {
  Design d = StartedDesign();
  Calculate(d);
  ASSERT_GT(d.ltb.C1, 1);
  const double Mcr = d.ltb.Mcr;
  const double chi = d.ltb.chiLT_min;
  d.st.ProfileType = 6;
  Calculate(d);
  EXPECT_EQ(d.ltb.C1, 0);
  EXPECT_EQ(d.ltb.C2, 0);
  EXPECT_EQ(d.ltb.C3, 0);
  EXPECT_EQ(d.ltb.Mcr, Mcr);  // nothing else of the step is touched
  EXPECT_EQ(d.ltb.chiLT_min, chi);
  EXPECT_EQ(d.checks.IRlateral, 0);
  EXPECT_EQ(d.checks.lineLateral.formula, "");
}

// A singly symmetric section takes the lateral factor that the last doubly symmetric one left.
TEST(Calculate, LateralFactorOfTheLastCalculationStands) {
  Design fresh = StartedDesign(22);
  Calculate(fresh);
  EXPECT_EQ(fresh.buckling.klt, 0);
  Design d = StartedDesign(1);
  Calculate(d);
  const double klt = d.buckling.klt;
  ASSERT_GT(klt, 0);
  d.st.ProfileType = 22;
  Calculate(d);
  EXPECT_EQ(d.buckling.klt, klt);
  EXPECT_GT(d.checks.IRcombinedZ, fresh.checks.IRcombinedZ);
}

TEST(Calculate, BucklingLinesStayWithoutCompressionButNotTheirRatios) {
  Design d = StartedDesign();
  d.st.check_slend = 1;
  Calculate(d);
  const CheckLine y = d.checks.lineBucklingY;
  ASSERT_NE(y.formula, "");
  ASSERT_GT(d.checks.IRcombinedY, 0);
  d.st.NP = -100;
  Calculate(d);
  EXPECT_EQ(d.checks.lineBucklingY.formula, y.formula);
  EXPECT_EQ(d.checks.lineBucklingY.numbers, y.numbers);
  EXPECT_EQ(d.checks.lineBucklingZ.label, "N+My+Mz:");
  EXPECT_EQ(d.checks.lineSlenderness.label, "Slenderness: Y/Z-axis: ");
  EXPECT_EQ(d.checks.IRcombinedY, 0);
  EXPECT_EQ(d.checks.IRcombinedZ, 0);
  EXPECT_EQ(d.checks.IRny, 0);
  EXPECT_EQ(d.checks.IRnz, 0);
}

TEST(Calculate, FamilyWithoutControlLeavesNoLinesOfAnother) {
  Design d = StartedDesign();
  d.st.check_slend = 1;
  Calculate(d);
  d.st.ProfileType = 27;
  Calculate(d);
  for (const CheckLine* line :
       {&d.checks.lineSection, &d.checks.lineVz, &d.checks.lineVy, &d.checks.lineLateral,
        &d.checks.lineBucklingY, &d.checks.lineBucklingZ, &d.checks.lineSlenderness}) {
    EXPECT_EQ(line->label, "");
    EXPECT_EQ(line->formula, "");
  }
  EXPECT_EQ(MaxIR(d.checks), 0);
}

TEST(Calculate, UnknownFamilyRunsNoSectionAndNoCheck) {
  Design d = StartedDesign();
  Calculate(d);
  const double A = d.rec.A;
  d.st.ProfileType = 99;
  Calculate(d);
  EXPECT_EQ(d.rec.A, A);
  EXPECT_NEAR(d.beam.z.M_max, 37.5, 1e-5);
  EXPECT_EQ(d.checks.lineSection.formula, "");
  EXPECT_EQ(MaxIR(d.checks), 0);
}

TEST(Calculate, OverloadedFlangeSwitchesItsLoadingOffAndSaysSo) {
  Design d = StartedDesign(24);
  d.st.q1 = 5000;
  Calculate(d);
  ASSERT_EQ(d.messages.size(), 1U);
  EXPECT_EQ(d.messages[0], " Flange overloaded! Program removes flangeloading ");
  EXPECT_EQ(d.st.HsqKind, 1);
  Calculate(d);
  EXPECT_EQ(d.messages.size(), 1U);  // the option stays off
}

/// All values of the record and the lines, as far as they describe the result.
std::vector<std::string> Fingerprint(const Design& d) {
  std::vector<std::string> all;
  ForEachSectionField(d.rec, [&all](const char* name, const auto& field) {
    all.push_back(std::string(name) + " " + std::to_string(double(field)));
  });
  for (const CheckLine* line :
       {&d.checks.lineSection, &d.checks.lineVz, &d.checks.lineVy, &d.checks.lineLateral,
        &d.checks.lineBucklingY, &d.checks.lineBucklingZ}) {
    all.push_back(line->label + line->formula + line->numbers + line->value + line->limit);
  }
  all.push_back(std::to_string(MaxIR(d.checks)));
  all.push_back(std::to_string(double(d.ltb.Mcr)));
  all.push_back(std::to_string(double(d.deflections.DeflZ_max)));
  return all;
}

// What one design calculates leaves no trace in another.
TEST(Calculate, FreshDesignDoesNotDependOnOthers) {
  for (const int type : {1, 6, 10, 22, 28, 41, 51}) {
    Design before = StartedDesign(type);
    Calculate(before);
    Design other = StartedDesign();
    for (const Family& family : AllFamilies()) {
      other.st.ProfileType = family.code;
      Calculate(other);
    }
    Design after = StartedDesign(type);
    Calculate(after);
    EXPECT_EQ(Fingerprint(before), Fingerprint(after)) << type;
  }
}

TEST(Calculate, SecondCalculationOfASettledMemberChangesNothing) {
  for (const Family& family : AllFamilies()) {
    Design d = StartedDesign(family.code);
    Calculate(d);
    Calculate(d);
    const auto settled = Fingerprint(d);
    Calculate(d);
    EXPECT_EQ(Fingerprint(d), settled) << family.code;
  }
}

}  // namespace
}  // namespace korvane
