// SPDX-License-Identifier: GPL-3.0-or-later
// Section control of angles: principal moments, the three corners, the line put together from
// its terms, and the shear that is kept in the other axis's ratio.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "check_bench.h"
#include "checks/results.h"

namespace korvane {
namespace {

/// Axes y and u coincide; capacities of the corners 100 200 50 about u and 20 10 40 about v,
/// Ntd 1000, Ncrd 800, Vdz 200, Vdy 300.
CheckBench AngleBench(int type) {
  CheckBench bench(type,
                   type == 10 ? SectionControlKind::EqualAngle : SectionControlKind::UnequalAngle,
                   BucklingKind::Angle);
  SectionRecord& rec = bench.rec;
  rec.Mud1 = 100;
  rec.Mud2 = 200;
  rec.Mud3 = 50;
  rec.Mvd1 = 20;
  rec.Mvd2 = 10;
  rec.Mvd3 = 40;
  rec.class_ = 3;
  return bench;
}

struct CornerCase {
  const char* name;
  int type;
  double N, My, Mz, IR;
  int corner;
  const char *label, *formula, *numbers;
};

// clang-format off
const std::vector<CornerCase> kCorners{
    // 0.1, 0.05, 0.2.
    {"Mu", 11, 0, 10, 0, 0.2, 3, "Mu:", "IR =Msud/Mrud = ", "10.0/50.0 = "},
    // 0.05, 0.1, 0.025.
    {"Mv", 11, 0, 0, 1, 0.1, 2, "+Mv:", "IR =+Msvd/Mrvd = ", "1.0/10.0 = "},
    // -0.1 - 0.1, -0.1 + 0.05, -0.1 + 0.2.
    {"N+Mu", 11, 80, 10, 0, 0.2, 1, "N+Mu:", "IR = N/Ncd Msud/Mrud = ", "80.0/800.0 + 10.0/100.0 = "},
    // 0.1 - 0.1 + 0.04, 0.1 + 0.05 - 0.08, 0.1 + 0.2 + 0.02.
    {"all, tension", 11, -100, 10, 0.8, 0.32, 3, "N+Mu+Mv:", "IR = N/Ntd Msud/Mrud+Msvd/Mrvd = ", "-100.0/1000.0 + 10.0/50.0 + 0.8/40.0 = "},
    // -0.1 + 0.1 - 0.05, -0.1 - 0.05 + 0.1, -0.1 - 0.2 - 0.025: signs stay.
    {"all, negative", 11, 80, -10, -0.8, 0.32, 3, "N+Mu+Mv:", "IR = N/Ncd Msud/Mrud+Msvd/Mrvd = ", "80.0/800.0 + -10.0/50.0 + -0.8/40.0 = "},
    // All corners alike: the last.
    {"N", 11, 80, 0, 0, 0.1, 3, "N:", "IR = N/Ncd  = ", "80.0/800.0 = "},
    {"N of an equal angle", 10, -100, 0, 0, 0.1, 3, "N:", "IR = N/Ntd  = ", "-100.0/1000.0 = "},
    // Corner 2 of an equal angle lies on u: -0.1 - 0.1 + 0.05, -0.1 - 0.1, -0.1 + 0.2 + 0.025.
    {"corner 2 of an equal angle", 10, 80, 10, 1, 0.2, 2, "N+Mv:", "IR = N/Ncd +Msvd/Mrvd = ", "80.0/800.0 + 1.0/10.0 = "},
    // The unequal angle takes both there: -0.1 - 0.08 + 0.06, -0.1 + 0.04 - 0.12, -0.1 + 0.16 + 0.03.
    {"corner 2 of an unequal angle", 11, 80, 8, 1.2, 0.18, 2, "N+Mu+Mv:", "IR = N/Ncd Msud/Mrud+Msvd/Mrvd = ", "80.0/800.0 + 8.0/200.0 + 1.2/10.0 = "},
};
// clang-format on

TEST(AngleControl, LargestCornerGovernsWithItsTerms) {
  for (const CornerCase& c : kCorners) {
    SCOPED_TRACE(c.name);
    CheckBench bench = AngleBench(c.type);
    bench.f.N = c.N;
    bench.AddPoint({0.3, c.My, 0, c.Mz, 0});
    bench.ControlSection();
    EXPECT_NEAR(bench.out.IRsection, c.IR, 1e-8);
    EXPECT_EQ(bench.out.section.corner, c.corner);
    EXPECT_EQ(bench.out.ClassGoverning, 3);
    EXPECT_EQ(bench.out.lineSection.label, c.label);
    EXPECT_EQ(bench.out.lineSection.formula, c.formula);
    EXPECT_EQ(bench.out.lineSection.numbers, c.numbers);
    EXPECT_EQ(bench.out.lineSection.limit, "  <  1.00 (0.30L; Ch 12.2.3.1)");
  }
}

TEST(AngleControl, LaterCornerWinsATie) {
  CheckBench bench = AngleBench(11);
  bench.rec.Mvd1 = 8;
  bench.rec.Mvd2 = 8;
  bench.rec.Mvd3 = 16;
  bench.AddPoint({0.3, 0, 0, 1, 0});
  bench.ControlSection();
  EXPECT_EQ(bench.out.section.corner, 2);
  bench.rec.Mvd2 = 16;
  bench.rec.Mvd3 = 8;
  bench.ControlSection();
  EXPECT_EQ(bench.out.section.corner, 3);
}

TEST(AngleControl, TurnsMomentsIntoThePrincipalAxes) {
  // 30 degrees: cos 0.8660254, sin 0.5.
  const PrincipalMoments a = ToPrincipal(10, 0, 30);
  EXPECT_NEAR(a.Mu, 8.660254, 1e-6);
  EXPECT_NEAR(a.Mv, -5, 1e-6);
  const PrincipalMoments b = ToPrincipal(0, 10, 30);
  EXPECT_NEAR(b.Mu, 5, 1e-6);
  EXPECT_NEAR(b.Mv, 8.660254, 1e-6);
  const PrincipalMoments c = ToPrincipal(10, -10, 45);
  EXPECT_NEAR(c.Mu, 0, 1e-6);
  EXPECT_NEAR(c.Mv, -14.142136, 1e-6);
}

TEST(AngleControl, FirstPointWinsATieAndTheLastLeavesItsCorners) {
  CheckBench bench = AngleBench(11);
  bench.AddPoint({0.1, 10, 0, 0, 0});
  bench.AddPoint({0.2, -10, 0, 0, 0});
  bench.AddPoint({0.3, 5, 0, 0, 0});
  bench.ControlSection();
  EXPECT_EQ(bench.out.lineSection.limit, "  <  1.00 (0.10L; Ch 12.2.3.1)");
  EXPECT_NEAR(bench.out.cornerIR[0], 0.05, 1e-12);
  EXPECT_NEAR(bench.out.cornerIR[1], 0.025, 1e-12);
  EXPECT_NEAR(bench.out.cornerIR[2], 0.1, 1e-12);
  EXPECT_EQ(MaxIR(bench.out), 0.2F);
}

// The shear along z goes into the ratio of y: the line shows the last point, never red.
TEST(AngleControl, ShearAlongZIsKeptInTheRatioOfY) {
  CheckBench bench = AngleBench(11);
  bench.AddPoint({0.1, 0, 400, 0, 0});
  bench.AddPoint({0.2, 0, -40, 0, 0});
  bench.AddPoint({0.3, 0, 0, 0, 0});
  bench.ControlSection();
  EXPECT_EQ(bench.out.IRvz, 0);
  EXPECT_EQ(bench.out.IRvy, 0.2);
  EXPECT_EQ(bench.out.lineVz.numbers, "40.0/200.0 = ");
  EXPECT_EQ(bench.out.lineVz.value, "0.20");
  EXPECT_EQ(bench.out.lineVz.limit, "  <  1.00 (0.20L; Ch 12.2.5)");
  EXPECT_EQ(bench.out.lineVy.formula, "");
}

TEST(AngleControl, FailingShearAlongZStaysGreen) {
  CheckBench bench = AngleBench(11);
  bench.AddPoint({0.1, 0, 400, 0, 0});
  bench.ControlSection();
  EXPECT_EQ(bench.out.IRvy, 2);
  EXPECT_EQ(bench.out.lineVz.value, "2.00");
  EXPECT_EQ(bench.out.lineVz.colour, 2);
}

TEST(AngleControl, ShearAlongYShowsWhereItExceedsThatAlongZ) {
  CheckBench bench = AngleBench(11);
  bench.AddPoint({0.1, 0, 100, 0, 210});  // 0.5, then 0.7
  bench.AddPoint({0.2, 0, 40, 0, 75});    // 0.2, then 0.25 after all
  bench.AddPoint({0.3, 0, 40, 0, 30});    // 0.2, then 0.1: not shown
  bench.ControlSection();
  EXPECT_EQ(bench.out.IRvy, 0.2);
  EXPECT_EQ(bench.out.lineVy.numbers, "75.0/300.0 = ");
  EXPECT_EQ(bench.out.lineVy.limit, "  <  1.00 (0.20L; Ch 12.2.5)");
  bench.AddPoint({0.4, 0, 0, 0, 330});
  bench.ControlSection();
  EXPECT_DOUBLE_EQ(bench.out.IRvy, 1.1);
  EXPECT_EQ(bench.out.lineVy.colour, 4);
}

TEST(AngleControl, HasNoLateralCheck) {
  CheckBench bench = AngleBench(11);
  bench.st.LateralTorsionalBuckling = 1;
  bench.beam.MyAbsMax = 60;
  bench.beam.My_gov = -60;
  bench.ltb.Mdb = 80;
  bench.AddPoint({0.1, 10, 0, 0, 0});
  bench.ControlSection();
  EXPECT_EQ(bench.out.IRlateral, 0);
  EXPECT_EQ(bench.out.lineLateral.formula, "");
}

TEST(AngleControl, SilentPassKeepsNoCornersOfAnotherFamily) {
  CheckBench bench = AngleBench(10);
  bench.AddPoint({0.1, 10, 0, 0, 0});
  bench.ControlSection();
  EXPECT_TRUE(bench.out.hasCorners);
  ClearSectionResults(bench.out);
  EXPECT_EQ(MaxIR(bench.out), 0);
}

}  // namespace
}  // namespace korvane
