// SPDX-License-Identifier: GPL-3.0-or-later
// Section control: which check governs, ties, limits, what takes part in each kind of section.
#include "checks/section_control.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "check_bench.h"

namespace korvane {
namespace {

using Kind = SectionControlKind;

class SectionControlTest : public testing::Test {
protected:
  CheckBench Open() { return {1, Kind::DoubleSymmetric, BucklingKind::None}; }
  CheckBench Single() {
    CheckBench bench(22, Kind::SingleSymmetric, BucklingKind::None);
    bench.rec.MvdyTop = 120;
    bench.rec.MvdyBottom = 90;
    bench.rec.classTop = 2;
    bench.rec.classBottom = 3;
    return bench;
  }
};

TEST_F(SectionControlTest, NoLoadLeavesAllLinesEmpty) {
  CheckBench bench = Open();
  bench.AddPoint({0.3, 50, 50, 25, 50});
  bench.st.LateralTorsionalBuckling = 1;
  bench.beam.MyAbsMax = 50;
  bench.ltb.Mdb = 80;
  bench.ControlSection();
  ASSERT_NE(bench.out.lineSection.formula, "");
  bench.beam = {};
  bench.ControlSection();
  for (const CheckLine* line :
       {&bench.out.lineSection, &bench.out.lineVz, &bench.out.lineVy, &bench.out.lineLateral}) {
    EXPECT_EQ(line->label, "");
    EXPECT_EQ(line->formula, "");
    EXPECT_EQ(line->numbers, "");
    EXPECT_EQ(line->value, "");
    EXPECT_EQ(line->limit, "");
  }
  EXPECT_EQ(bench.out.IRsection, 0);
  EXPECT_EQ(bench.out.IRvz, 0);
  EXPECT_EQ(bench.out.IRvy, 0);
  EXPECT_EQ(bench.out.IRlateral, 0);
}

TEST_F(SectionControlTest, RatioAtTheAllowableUsagePasses) {
  CheckBench bench = Open();
  bench.AddPoint({0.5, 100, 200, 0, 300});
  bench.ControlSection();
  EXPECT_EQ(bench.out.IRsection, 1);
  EXPECT_EQ(bench.out.lineSection.colour, 2);
  EXPECT_EQ(bench.out.lineVz.colour, 2);
  EXPECT_EQ(bench.out.lineVy.colour, 2);
}

TEST_F(SectionControlTest, RatioAboveFailsByColourAlone) {
  CheckBench bench = Open();
  bench.AddPoint({0.5, 100.01, 200.01, 0, 300.01});
  bench.ControlSection();
  EXPECT_EQ(bench.out.lineSection.colour, 4);
  EXPECT_EQ(bench.out.lineVz.colour, 4);
  EXPECT_EQ(bench.out.lineVy.colour, 4);
  EXPECT_EQ(bench.out.lineSection.limit, "  <  1.00 (0.50L; Ch 12.2.7)");
}

TEST_F(SectionControlTest, AllowableUsageOnlyMovesTheLimit) {
  CheckBench bench = Open();
  bench.st.iufa = 0.5;
  bench.st.LateralTorsionalBuckling = 1;
  bench.beam.MyAbsMax = 60;
  bench.beam.My_gov = 60;
  bench.ltb.Mdb = 80;
  bench.AddPoint({0.5, 60, 100, 0, 0});
  bench.ControlSection();
  EXPECT_DOUBLE_EQ(bench.out.IRsection, 0.6);
  EXPECT_EQ(bench.out.lineSection.colour, 4);
  EXPECT_EQ(bench.out.lineSection.limit, "  <  0.50 (0.50L; Ch 12.2.7)");
  EXPECT_EQ(bench.out.lineVz.colour, 2);  // exactly 0.5
  EXPECT_EQ(bench.out.IRlateral, 0.75);
  EXPECT_EQ(bench.out.lineLateral.colour, 4);
}

TEST_F(SectionControlTest, EarlierPointWinsATie) {
  CheckBench bench = Open();
  bench.AddPoint({0.1, 0, 100, 25, 0});
  bench.AddPoint({0.2, 50, 100, 0, 0});
  bench.ControlSection();
  EXPECT_EQ(bench.out.lineSection.label, "Mz:");
  EXPECT_EQ(bench.out.lineVz.limit, "  <  1.00 (0.10L; Ch 12.2.5)");
}

TEST_F(SectionControlTest, EarlierCheckWinsATieAtAPoint) {
  CheckBench bench = Open();
  bench.st.SectionControlMode = 1;
  bench.rec.Mvndy = 100;  // as Mvdy
  bench.f.N = 400;
  bench.AddPoint({0.1, 50, 0, 0, 0});
  bench.ControlSection();
  EXPECT_EQ(bench.out.IRsection, 0.5);
  EXPECT_EQ(bench.out.lineSection.label, "My:");
}

TEST_F(SectionControlTest, LargerPointReplacesTheWholeLine) {
  CheckBench bench = Open();
  bench.AddPoint({0.1, 50, 100, 0, 0});
  bench.AddPoint({0.2, 60, 20, 0, 0});
  bench.AddPoint({0.3, 10, 5, 0, 0});
  bench.ControlSection();
  EXPECT_EQ(bench.out.lineSection.formula, "IR = My/Mdy = ");
  EXPECT_EQ(bench.out.lineSection.numbers, "60.0/100.0 = ");
  EXPECT_EQ(bench.out.lineSection.limit, "  <  1.00 (0.20L; Ch 12.2.4)");
  EXPECT_EQ(bench.out.lineVz.numbers, "100.0/200.0 = ");
}

struct RatioCase {
  const char* name;
  double N, My, Mz;
  int mode;
  double IR;
};

TEST_F(SectionControlTest, RatiosOfTheInteractions) {
  // Ntd 1000, Ncrd 800, Mvdy 100, Mvdz 50, Mvndy 80, Mvndz 40, exponents 3 and 1.5.
  const std::vector<RatioCase> cases{
      {"My and Mz", 0, 50, 25, 0, 1.0},
      {"N tension with both", -500, 50, 25, 0, 1.5},
      {"N compression with both", 400, 50, 25, 0, 1.5},
      {"exact, no N", 0, 80, 40, 1, std::pow(0.8, 3) + std::pow(0.8, 1.5)},
      {"exact, N", -500, 64, 32, 1, std::pow(0.8, 3) + std::pow(0.8, 1.5)},
      // 0.5^3 + 0.5^1.5 = 0.479: the plain ratio 0.5 stays.
      {"exact sum below the single ratio", 0, 50, 25, 1, 0.5},
      // With N, |My/Mvndy| = 0.5 is larger than 40/100 and than 0.125 + 0.354.
      {"exact, N, one moment larger", 400, 40, 20, 1, 0.5},
  };
  for (const RatioCase& c : cases) {
    SCOPED_TRACE(c.name);
    CheckBench bench = Open();
    bench.st.SectionControlMode = c.mode;
    bench.f.N = c.N;
    bench.AddPoint({0.3, c.My, 0, c.Mz, 0});
    bench.ControlSection();
    EXPECT_NEAR(bench.out.IRsection, c.IR, 1e-12);
  }
}

TEST_F(SectionControlTest, AxialForceAloneOnlyWhereNoMomentActs) {
  CheckBench bench = Open();
  bench.st.SectionControlMode = 1;
  bench.f.N = -900;  // 0.9 alone; exact with My only 1/80
  bench.AddPoint({0.1, 1, 0, 0, 0});
  bench.ControlSection();
  EXPECT_DOUBLE_EQ(bench.out.IRsection, 1.0 / 80);
  bench.AddPoint({0.2, 0, 0, 0, 0});
  bench.ControlSection();
  EXPECT_DOUBLE_EQ(bench.out.IRsection, 0.9);
  EXPECT_EQ(bench.out.lineSection.label, "N:");
}

/// Class routine that gives class 3 to a point with Vz, else 2.
void ClassByShear(const ProjectState&, const SectionForces& f, SectionRecord& rec) {
  rec.class_ = f.Vz > 0 ? 3 : 2;
}

TEST_F(SectionControlTest, ClassIsThatOfTheGoverningPoint) {
  CheckBench bench = Open();
  bench.family.routines.sectionClass = ClassByShear;
  bench.ControlSection();
  EXPECT_EQ(bench.out.ClassGoverning, 1);  // nothing checked
  bench.AddPoint({0.1, 50, 10, 0, 0});
  bench.AddPoint({0.2, 40, 0, 0, 0});
  bench.ControlSection();
  EXPECT_EQ(bench.out.ClassGoverning, 3);
  EXPECT_EQ(bench.rec.class_, 2);
}

TEST_F(SectionControlTest, TubeTakesTheClassOfEachPoint) {
  CheckBench bench(31, Kind::Tube, BucklingKind::None);
  bench.family.routines.sectionClass = ClassByShear;
  bench.AddPoint({0.1, 50, 10, 0, 0});
  bench.AddPoint({0.2, 0, 0, 0, 0});
  bench.ControlSection();
  EXPECT_EQ(bench.out.IRsection, 0.5);
  EXPECT_EQ(bench.out.ClassGoverning, 2);
}

TEST_F(SectionControlTest, TubeLeavesSingleMomentsOutBesideOthers) {
  CheckBench bench(31, Kind::Tube, BucklingKind::None);
  bench.st.SectionControlMode = 1;
  bench.AddPoint({0.1, 50, 0, 25, 0});
  bench.ControlSection();
  // 0.125 + 0.354 although My alone would give 0.5.
  EXPECT_NEAR(bench.out.IRsection, std::pow(0.5, 3) + std::pow(0.5, 1.5), 1e-12);
  bench.rec.Mvndy = 1000;
  bench.rec.Mvndz = 1000;
  bench.f.N = 1;
  bench.ControlSection();
  EXPECT_DOUBLE_EQ(bench.out.IRsection, 0.05);
}

/// Capacity routine that notes the forces of the point.
void NoteForces(const ProjectState&, const SectionForces& f, SectionRecord& rec) {
  rec.Mfdy = f.My;
  rec.Mfdz = f.Mz;
  rec.Mndy = f.Vy;
  rec.Mndz = f.Vz;
  rec.Mndypl = f.Ncl;
}

TEST_F(SectionControlTest, PointsHandAbsoluteForcesToTheCapacities) {
  CheckBench bench = Open();
  bench.family.routines.capacities = NoteForces;
  bench.f.N = -7;
  bench.AddPoint({0.1, -1, -2, -3, -4});
  bench.ControlSection();
  EXPECT_EQ(bench.rec.Mfdy, 1);
  EXPECT_EQ(bench.rec.Mndz, 2);
  EXPECT_EQ(bench.rec.Mfdz, 3);
  EXPECT_EQ(bench.rec.Mndy, 4);
  EXPECT_EQ(bench.rec.Mndypl, -7);
  EXPECT_EQ(bench.f.My, 1);  // the last point's forces stay
}

TEST_F(SectionControlTest, SinglySymmetricKeepsTheSignOfMy) {
  CheckBench bench = Single();
  bench.family.routines.capacities = NoteForces;
  bench.AddPoint({0.1, -1, -2, -3, -4});
  bench.ControlSection();
  EXPECT_EQ(bench.rec.Mfdy, -1);
  EXPECT_EQ(bench.rec.Mndz, 2);
}

TEST_F(SectionControlTest, SinglySymmetricTakesCapacityAndClassOfTheSide) {
  CheckBench bench = Single();
  bench.AddPoint({0.1, 60, 0, 0, 0});
  bench.ControlSection();
  EXPECT_EQ(bench.out.IRsection, 0.5);
  EXPECT_EQ(bench.out.ClassGoverning, 2);
  bench.AddPoint({0.2, -54, 0, 0, 0});
  bench.ControlSection();
  EXPECT_DOUBLE_EQ(bench.out.IRsection, 0.6);
  EXPECT_EQ(bench.out.ClassGoverning, 3);
}

TEST_F(SectionControlTest, SinglySymmetricChecksNOnceAtTheFirstPoint) {
  CheckBench bench = Single();
  bench.f.N = 400;
  bench.AddPoint({0.25, 0, 0, 0, 0});
  bench.AddPoint({0.75, 0, 0, 0, 0});
  bench.ControlSection();
  EXPECT_EQ(bench.out.lineSection.limit, "  <  1.00 (0.25L; Ch 12.2.3.2)");
}

TEST_F(SectionControlTest, OneSidedKindsHaveNoShearAlongY) {
  for (const Kind kind : {Kind::SingleSymmetric, Kind::Plate}) {
    CheckBench bench(22, kind, BucklingKind::None);
    bench.AddPoint({0.25, 0, 10, 50, 100});
    bench.ControlSection();
    EXPECT_EQ(bench.out.IRvy, 0);
    EXPECT_EQ(bench.out.lineVy.formula, "");
    EXPECT_EQ(bench.out.IRsection, 0);
    EXPECT_DOUBLE_EQ(bench.out.IRvz, 0.05);
  }
}

TEST_F(SectionControlTest, PlateTakesNoAxialForce) {
  CheckBench bench(51, Kind::Plate, BucklingKind::None);
  bench.rec.MvdyBottom = 90;
  bench.f.N = 400;
  bench.AddPoint({0.25, -45, 0, 0, 0});
  bench.ControlSection();
  EXPECT_EQ(bench.out.IRsection, 0.5);
  EXPECT_EQ(bench.out.lineSection.label, "My:");
}

TEST_F(SectionControlTest, TSectionIgnoresTheForcesOfThePoints) {
  CheckBench bench(26, Kind::T, BucklingKind::None);
  bench.f.N = -500;
  bench.AddPoint({0.25, 500, 500, 500, 500});
  bench.ControlSection();
  EXPECT_EQ(bench.out.IRsection, 0.5);
  EXPECT_EQ(bench.out.IRvz, 0);
  EXPECT_EQ(bench.out.IRvy, 0);
}

TEST_F(SectionControlTest, LateralNeedsTheOptionAndAMoment) {
  CheckBench bench = Open();
  bench.beam.MyAbsMax = 60;
  bench.beam.My_gov = -60;
  bench.ltb.Mdb = 80;
  bench.ControlSection();
  EXPECT_EQ(bench.out.IRlateral, 0);
  EXPECT_EQ(bench.out.lineLateral.formula, "");
  bench.st.LateralTorsionalBuckling = 1;
  bench.ControlSection();
  EXPECT_EQ(bench.out.IRlateral, 0.75);
  bench.beam.MyAbsMax = 0;
  bench.ControlSection();
  EXPECT_EQ(bench.out.IRlateral, 0);
}

struct PlateLateralCase {
  double MyAbsMax, My_gov;
  int option, optionAfter;
  double IR;
};

TEST_F(SectionControlTest, PlateLateralRunsForHoggingAndElseSwitchesItselfOff) {
  const std::vector<PlateLateralCase> cases{{60, -60, 1, 1, 0.75},
                                            {60, 0, 1, 0, 0},
                                            {60, 60, 1, 0, 0},
                                            {60, -60, 0, 0, 0},
                                            {0, 0, 1, 1, 0}};
  for (const PlateLateralCase& c : cases) {
    SCOPED_TRACE(testing::Message() << c.MyAbsMax << " " << c.My_gov << " " << c.option);
    CheckBench bench(51, Kind::Plate, BucklingKind::None);
    bench.st.LateralTorsionalBuckling = c.option;
    bench.st.LoadLevel = 3;
    bench.beam.MyAbsMax = c.MyAbsMax;
    bench.beam.My_gov = c.My_gov;
    bench.ltb.Mdb = 80;
    bench.ControlSection();
    EXPECT_EQ(bench.st.LateralTorsionalBuckling, c.optionAfter);
    EXPECT_EQ(bench.out.IRlateral, c.IR);
    EXPECT_EQ(bench.st.LoadLevel, 1);
  }
}

TEST_F(SectionControlTest, CapacityOfZeroIsAFault) {
  CheckBench bench = Open();
  bench.rec.Mvdy = 0;
  bench.AddPoint({0.1, 1, 0, 0, 0});
  EXPECT_THROW(bench.ControlSection(), ArithmeticFault);
  CheckBench shear = Open();
  shear.rec.Vdz = 0;
  shear.AddPoint({0.1, 0, 1, 0, 0});
  EXPECT_THROW(shear.ControlSection(), ArithmeticFault);
}

}  // namespace
}  // namespace korvane
