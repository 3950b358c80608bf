// SPDX-License-Identifier: GPL-3.0-or-later
// Arithmetic failures of a calculation: each names the step where it stopped, and results stay
// as far as the calculation had got.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "../core/temp_folder.h"
#include "designs.h"
#include "sections/profile_table.h"

namespace korvane {
namespace {

std::string FaultStep(Design& d) {
  try {
    Calculate(d);
  } catch (const CalculationFault& fault) {
    EXPECT_EQ(std::string(fault.what()).find(fault.Step() + ": "), 0U) << fault.what();
    return fault.Step();
  }
  return "";
}

struct FaultCase {
  const char* name;
  std::function<void(ProjectState&)> spoil;
  const char* step;
};

TEST(CalculationFaults, NameTheStepWhereItStopped) {
  const std::vector<FaultCase> cases{
      {"no length", [](ProjectState& st) { st.L = 0; }, "AnalyseBeam"},
      {"no material factor", [](ProjectState& st) { st.gammam1 = 0; }, "SetMaterial"},
      {"material below the list", [](ProjectState& st) { st.MaterialIndex = -1; }, "SetMaterial"},
      {"row beyond the catalogue", [](ProjectState& st) { st.idxHEA = 500; }, "LoadSection"},
      {"row before the catalogue", [](ProjectState& st) { st.idxHEA = -1; }, "LoadSection"},
      {"no length factor", [](ProjectState& st) { st.k_ltb = 0; }, "LateralTorsionalBuckling"},
      {"no modulus of elasticity", [](ProjectState& st) { st.E = 0; }, "LateralTorsionalBuckling"},
      {"modulus of elasticity below 0, no lateral step",
       [](ProjectState& st) {
         st.ProfileType = 6;
         st.E = -1;
       },
       "BucklingControl"},
      {"deflections without stiffness",
       [](ProjectState& st) {
         st.ProfileType = 6;
         st.E = 0;
         st.NP = 0;
       },
       "Deflections"},
      {"too many points", [](ProjectState& st) { st.cp_mode = 1, st.cp_count = 40; },
       "AnalyseBeam"},
      {"points below 0", [](ProjectState& st) { st.cp_mode = 1, st.cp_count = -1; }, "AnalyseBeam"},
  };
  for (const FaultCase& c : cases) {
    SCOPED_TRACE(c.name);
    Design d = StartedDesign();
    c.spoil(d.st);
    EXPECT_EQ(FaultStep(d), c.step);
  }
}

TEST(CalculationFaults, ResultsStayAsFarAsItHadGot) {
  Design d = StartedDesign();
  Calculate(d);
  const double IR = d.checks.IRsection;
  const std::string numbers = d.checks.lineSection.numbers;
  d.st.q1 = 20;
  d.st.gammam1 = 0;
  EXPECT_EQ(FaultStep(d), "SetMaterial");
  EXPECT_NEAR(d.beam.z.M_max, 75, 1e-4);  // the analysis is new
  EXPECT_EQ(d.checks.IRsection, IR);      // the checks are not
  EXPECT_EQ(d.checks.lineSection.numbers, numbers);
  EXPECT_EQ(d.st.q1, 20);
}

TEST(CalculationFaults, DesignGoesOnWhenTheCauseIsGone) {
  Design d = StartedDesign();
  Calculate(d);
  const std::string numbers = d.checks.lineSection.numbers;
  d.st.L = 0;
  EXPECT_EQ(FaultStep(d), "AnalyseBeam");
  d.st.L = 5;
  Calculate(d);
  EXPECT_EQ(d.checks.lineSection.numbers, numbers);
}

TEST(CalculationFaults, StartWithoutDefaultsWaitsForTheFirstCalculation) {
  const TempFolder empty;
  Design d(std::make_shared<const Library>(
      Library{empty.Path(), SourceLibrary()->catalogues, SourceLibrary()->materials}));
  EXPECT_NO_THROW(StartDesign(d));
  EXPECT_EQ(d.st.gammam1, 0);
  EXPECT_EQ(d.st.fyk, 355);  // the material step came as far as this
  EXPECT_EQ(FaultStep(d), "SetMaterial");
}

// A folder without catalogues gives rows of zeros; no family makes numbers of them.
TEST(CalculationFaults, RowOfZerosIsNoSection) {
  const TempFolder empty;
  const auto zeros = std::make_shared<const Library>(
      Library{SourceLibrary()->folder, ReadCatalogues(empty.Path()), SourceLibrary()->materials});
  for (const int type : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 15, 16, 101, 102, 103}) {
    Design d(zeros);
    StartDesign(d);
    d.st.ProfileType = type;
    const std::string step = FaultStep(d);
    EXPECT_TRUE(step == "LoadSection" || step == "EffectiveSection") << type << " " << step;
  }
}

TEST(CalculationFaults, SilentRecalculationNamesItsStepToo) {
  Design d = StartedDesign();
  d.st.idxHEA = 500;
  try {
    SilentRecalculation(d);
    FAIL() << "no fault";
  } catch (const CalculationFault& fault) {
    EXPECT_EQ(fault.Step(), "LoadSection");
  }
}

TEST(StartDesign, SetsANewProjectWithTheDefaults) {
  Design d(SourceLibrary());
  d.st.L = 9;
  d.st.ProfileType = 31;
  StartDesign(d);
  EXPECT_EQ(d.st.L, 5);
  EXPECT_EQ(d.st.ProfileType, 1);
  EXPECT_EQ(d.st.gammam1, float32(1.1));
  EXPECT_EQ(d.st.lfv1_uls, 1.5);
  EXPECT_EQ(d.st.DeflectionLimit, 300);
  EXPECT_EQ(d.st.fyk, 355);
  EXPECT_NEAR(d.st.fd, 355 / 1.1, 1e-4);
  EXPECT_EQ(d.st.CurrentDir, SourceLibrary()->folder);
  EXPECT_EQ(d.rec.A, 0);  // nothing is calculated yet
  EXPECT_EQ(d.beam.z.M_max, 0);
  EXPECT_EQ(d.checks.lineSection.formula, "");
}

}  // namespace
}  // namespace korvane
