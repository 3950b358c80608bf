// SPDX-License-Identifier: GPL-3.0-or-later
// Section control with the families' own class and capacity routines: what hollow sections,
// tubes and flat bars do differently, worked out by hand.
#include <gtest/gtest.h>

#include <cmath>

#include "check_bench.h"

namespace korvane {
namespace {

/// Replaces the routines of a bench by those of the family.
CheckBench RealBench(int type) {
  const Family& family = *FindFamily(type);
  CheckBench bench(type, family.routines.sectionControl, family.routines.buckling);
  bench.family = family;
  return bench;
}

/// A box section 100 x 100 x 5 (mm, mm2, mm3): A = 1900, Wel 55000, Wpl 67500.
CheckBench HollowBench() {
  CheckBench bench = RealBench(6);
  SectionRecord& rec = bench.rec;
  rec.h = rec.b = 100;
  rec.tw = rec.tf = 5;
  rec.A = rec.Aeff = 1900;
  rec.Iy = rec.Iz = 2.75E6;
  rec.d = rec.c = 85;  // 17 thicknesses: class 1
  rec.Wely = rec.Welz = rec.Weffy = rec.Weffz = 55000;
  rec.Wply = rec.Wplz = 67500;
  rec.Avz = rec.Avy = 1000;
  rec.class_ = 1;
  bench.st.epsilon = std::sqrt(235.0 / 355);
  return bench;
}

double HollowExponent(double n) {
  CheckBench bench = HollowBench();
  bench.f.N = -n * 1900 * 355 / 1.1 / 1000;
  bench.family.routines.capacities(bench.st, bench.f, bench.rec);
  EXPECT_EQ(bench.rec.alfa, bench.rec.beta);
  return bench.rec.alfa;
}

TEST(HollowControl, ExponentClimbsToSixAndFallsToOne) {
  EXPECT_NEAR(HollowExponent(0), 1.66, 1e-6);
  EXPECT_NEAR(HollowExponent(0.5), 1.66 / 0.7175, 1e-5);  // 1 - 1.13*0.25
  EXPECT_NEAR(HollowExponent(0.7), 1.66 / 0.4463, 1e-5);  // 1 - 1.13*0.49
  EXPECT_EQ(HollowExponent(0.81), 6);                     // 1.66/0.2586 = 6.4
  EXPECT_EQ(HollowExponent(0.94), 6);
  EXPECT_EQ(HollowExponent(0.9408), 1);  // just beyond the root 0.9407
  EXPECT_EQ(HollowExponent(0.99), 1);
}

// Vz = 0.75*Vdz: rho = (2*0.75 - 1)^2 = 0.25; off Mdy go 0.25*1000^2/4/(5 + 5) = 6250 mm3, the
// moment capacity is (67500 - 6250)*355/1.1/1E6 = 19.767045; the check is 10 over this.
TEST(HollowControl, ShearTakesOffBothWebs) {
  CheckBench bench = HollowBench();
  bench.AddPoint({0.5, 10, 150, 0, 0});
  bench.ControlSection();
  EXPECT_NEAR(bench.rec.Mvdy, 19.767045, 1e-5);
  EXPECT_NEAR(bench.out.IRsection, 10 / 19.767045, 1e-6);
  EXPECT_EQ(bench.out.lineSection.formula, "IR = My/Mvdy = ");
}

// Exactly half of the shear capacity: unreduced, 67500*355/1.1/1E6 = 21.784091, but the words
// already name the reduced one.
TEST(HollowControl, HalfOfTheShearCapacityReducesNothing) {
  CheckBench bench = HollowBench();
  bench.AddPoint({0.5, 10, 100, 0, 0});
  bench.ControlSection();
  EXPECT_NEAR(bench.rec.Mvdy, 21.784091, 1e-5);
  EXPECT_EQ(bench.out.lineSection.formula, "IR = My/Mvdy = ");
  EXPECT_EQ(bench.out.lineSection.limit, "  <  1.00 (0.50L; Ch 12.2.7)");
}

// n = 0.5: aw = 1 - 2*100*5/1900 = 0.473684; Mndy = Mdy*0.5/(1 - 0.236842) = 0.655172*Mdy.
TEST(HollowControl, AxialForceReducesBothMoments) {
  CheckBench bench = HollowBench();
  bench.st.SectionControlMode = 1;
  bench.f.N = -0.5 * 1900 * 355 / 1.1 / 1000;
  bench.AddPoint({0.5, 10, 0, 0, 0});
  bench.ControlSection();
  EXPECT_NEAR(bench.rec.Mndy, 0.655172 * 21.784091, 1e-4);
  EXPECT_NEAR(bench.out.IRsection, 10 / (0.655172 * 21.784091), 1e-5);
  EXPECT_EQ(bench.out.lineSection.label, "N+My:");
}

/// A tube of 200 x 10: A = 5969, Wel 268000, Wpl 361000 (mm2, mm3, rounded).
CheckBench TubeBench() {
  CheckBench bench = RealBench(31);
  SectionRecord& rec = bench.rec;
  rec.d = 200;
  rec.tw = 10;
  rec.A = 5969;
  rec.Wely = 268000;
  rec.Wply = 361000;
  bench.st.epsilon = std::sqrt(235.0 / 355);
  return bench;
}

TEST(TubeControl, ClassAndModulusFollowTheWall) {
  CheckBench bench = TubeBench();
  bench.AddPoint({0.5, 10, 0, 0, 0});
  bench.ControlSection();
  EXPECT_EQ(bench.out.ClassGoverning, 1);  // 20 against 50*0.662 = 33.1
  EXPECT_NEAR(bench.rec.Mdy, 361000 * 355 / 1.1 / 1E6, 1e-4);
  bench.rec.tw = 4;  // 50 against 46.3 and 59.6
  bench.ControlSection();
  EXPECT_EQ(bench.out.ClassGoverning, 3);
  EXPECT_NEAR(bench.rec.Mdy, 268000 * 355 / 1.1 / 1E6, 1e-4);
  bench.rec.tw = 10;
  bench.st.BendingCapacityMode = 1;
  bench.ControlSection();
  EXPECT_NEAR(bench.rec.Mdy, 268000 * 355 / 1.1 / 1E6, 1e-4);
}

TEST(TubeControl, FullShearLeavesACapacityOfOne) {
  CheckBench bench = TubeBench();
  bench.AddPoint({0.5, 10, 200, 0, 0});  // Vz = Vdz: rho = 1
  bench.ControlSection();
  EXPECT_EQ(bench.rec.Mvdy, 1);
  EXPECT_EQ(bench.out.IRsection, 10);
  EXPECT_EQ(bench.out.lineSection.label, "My+Vz:");
}

// n = 0.5: Mndy = 1.04*Mdy*(1 - 0.5^1.7) = 1.04*0.692214*Mdy; exponents 2.
TEST(TubeControl, AxialForceReducesBothMomentsAlike) {
  CheckBench bench = TubeBench();
  bench.st.SectionControlMode = 1;
  bench.f.N = 0.5 * 5969 * 355 / 1.1 / 1000;
  bench.AddPoint({0.5, 60, 0, 60, 0});
  bench.ControlSection();
  const double Mnd = 1.04 * 0.692214 * 361000 * 355 / 1.1 / 1E6;
  EXPECT_NEAR(bench.rec.Mndy, Mnd, 1e-3);
  EXPECT_NEAR(bench.rec.Mndz, Mnd, 1e-3);
  // The sum of squares 1.0236 is more than 60/Mnd = 0.7154.
  EXPECT_NEAR(bench.out.IRsection, 2 * std::pow(60 / Mnd, 2), 1e-5);
  EXPECT_EQ(bench.out.lineSection.label, "N+My+Mz:");
}

/// A flat bar 150 x 12: A = 1800, Wely 45000, Wply 67500, Welz 3600, Wplz 5400.
CheckBench FlatBench() {
  CheckBench bench = RealBench(28);
  SectionRecord& rec = bench.rec;
  rec.h = 150;
  rec.tw = 12;
  rec.hw = 150;
  rec.A = rec.Aeff = 1800;
  rec.Wely = 45000;
  rec.Wply = 67500;
  rec.Welz = 3600;
  rec.Wplz = 5400;
  rec.class_ = 4;
  return bench;
}

TEST(FlatBarControl, IsOfClassOneWithTheTensionCapacity) {
  CheckBench bench = FlatBench();
  bench.AddPoint({0.5, 10, 0, 0, 0});
  bench.ControlSection();
  EXPECT_EQ(bench.out.ClassGoverning, 1);
  EXPECT_EQ(bench.rec.Ncrd, bench.rec.Ntd);
  EXPECT_NEAR(bench.rec.Ntd, 1800 * 355 / 1.1 / 1000, 1e-3);
  EXPECT_NEAR(bench.out.IRsection, 10 / (67500 * 355 / 1.1 / 1E6), 1e-6);
}

TEST(FlatBarControl, ElasticBendingTakesTheElasticModuli) {
  CheckBench bench = FlatBench();
  bench.st.BendingCapacityMode = 1;
  bench.AddPoint({0.5, 10, 0, 1, 0});
  bench.ControlSection();
  // 10/14.522727 + 1/1.161818.
  EXPECT_NEAR(bench.out.IRsection, 10 / 14.522727 + 1 / 1.161818, 1e-5);
}

}  // namespace
}  // namespace korvane
