// SPDX-License-Identifier: GPL-3.0-or-later
// The optimiser's calculation: its own order of the steps, no text and no memory taken.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "designs.h"
#include "sections/profile_table.h"
#include "tests/allocations.h"

namespace korvane {
namespace {

long AllocationsOf(Design& d) {
  const long before = allocations;
  SilentRecalculation(d);
  return allocations - before;
}

TEST(SilentRecalculation, CounterCounts) {
  const long before = allocations;
  const auto text = std::make_unique<std::string>(100, 'x');
  EXPECT_GE(allocations - before, 2);
  EXPECT_EQ(text->size(), 100U);
}

TEST(SilentRecalculation, TakesNoMemory) {
  for (const Family& family : AllFamilies()) {
    for (const int segments : {0, 1, 6}) {
      Design d = StartedDesign(family.code);
      d.st.SelfWeight = 1;
      d.st.pm[1] = 10;
      d.st.pmx[1] = 2;
      d.st.q2 = 1;
      d.st.q2_yz = 0;
      d.st.cp_mode = 1;
      d.st.check_slend = 1;
      d.st.SupportType = 1;
      d.st.LtbSegments = segments;
      Calculate(d);
      EXPECT_EQ(AllocationsOf(d), 0) << family.code << " with " << segments;
      d.st.AnalysisMode = 0;
      EXPECT_EQ(AllocationsOf(d), 0) << family.code << ", end forces";
    }
  }
}

// The section comes first: self weight is that of the section at hand.
TEST(SilentRecalculation, LoadsTheSectionBeforeTheAnalysis) {
  Design d = StartedDesign();
  d.st.SelfWeight = 1;
  SilentRecalculation(d);
  ASSERT_GT(d.rec.S, 40);
  EXPECT_NEAR(d.beam.z.M_max, 37.5 + 1.2 * d.rec.S * 0.01 * 25 / 8, 1e-4);
}

// So the lateral step sees the moments of the calculation before.
TEST(SilentRecalculation, LateralStepTakesTheFormerMoments) {
  Design d = StartedDesign();
  SilentRecalculation(d);
  EXPECT_EQ(d.ltb.C1, 1.365);  // no moments yet: not spread
  SilentRecalculation(d);
  EXPECT_EQ(d.ltb.C1, 1.132);
}

// A point load off the restraints: the middle third, with nearly constant moment, governs with
// less than the peak. The driver keeps its moment, here the analysis writes the peak again.
TEST(SilentRecalculation, GoverningMomentIsThatOfTheWholeMember) {
  Design d = StartedDesign();
  d.st.q1 = 0;
  d.st.NP = 0;
  d.st.pm[1] = 10;
  d.st.LtbSegments = 2;
  d.st.L = 15;
  d.st.pmx[1] = 4.5;
  d.st.idxHEA = 0;
  Calculate(d);
  // 12*0.3*(1 - 0.3)*15 = 37.8 under the load, at station 17 12*0.3*(1 - 0.34)*15 = 35.64.
  EXPECT_EQ(d.st.LtbCriticalSegment, 1);
  EXPECT_NEAR(d.beam.My_gov, 35.64, 1e-4);
  SilentRecalculation(d);
  EXPECT_NEAR(d.beam.My_gov, 37.8, 1e-4);
}

TEST(SilentRecalculation, WritesNoTextAndLeavesTheOptimiserOpen) {
  Design d = StartedDesign();
  d.checks.lineSection.label = "label";
  d.checks.lineBucklingY.numbers = "numbers";
  d.st.OptimiseOpen = 1;
  d.st.ResultView = 2;
  d.st.ModalAnalysis = 1;
  d.st.a_webstiff = 9000;
  SilentRecalculation(d);
  EXPECT_EQ(d.checks.lineSection.label, "label");
  EXPECT_EQ(d.checks.lineSection.formula, "");
  EXPECT_EQ(d.checks.lineBucklingY.numbers, "numbers");
  EXPECT_EQ(d.st.OptimiseOpen, 1);
  EXPECT_EQ(d.st.ResultView, 2);
  EXPECT_EQ(d.modal.ModalMass, 0);  // no modal analysis
  EXPECT_EQ(d.st.a_webstiff, 9000);
  EXPECT_GT(d.checks.IRsection, 0);
}

TEST(SilentRecalculation, AgreesWithTheDriverOnASettledMember) {
  for (const Family& family : AllFamilies()) {
    SCOPED_TRACE(family.code);
    Design d = StartedDesign(family.code);
    Calculate(d);
    Calculate(d);
    const CheckResults settled = d.checks;
    const double DeflStiff = d.deflections.DeflStiff;
    SilentRecalculation(d);
    EXPECT_EQ(d.checks.IRsection, settled.IRsection);
    EXPECT_EQ(d.checks.IRvz, settled.IRvz);
    EXPECT_EQ(d.checks.IRlateral, settled.IRlateral);
    EXPECT_EQ(d.checks.IRcombinedY, settled.IRcombinedY);
    EXPECT_EQ(d.checks.IRcombinedZ, settled.IRcombinedZ);
    EXPECT_EQ(MaxIR(d.checks), MaxIR(settled));
    EXPECT_EQ(d.deflections.DeflStiff, DeflStiff);
  }
}

TEST(SilentRecalculation, EndForcesHaveNoDeflection) {
  Design d = StartedDesign();
  SilentRecalculation(d);
  EXPECT_GT(d.deflections.DeflStiff, 0);
  d.st.AnalysisMode = 0;
  SilentRecalculation(d);
  EXPECT_EQ(d.deflections.DeflStiff, 0);
}

}  // namespace
}  // namespace korvane
