// SPDX-License-Identifier: GPL-3.0-or-later
// Column buckling: slendernesses, reduction and moment factors of columns worked out by hand, and
// which ratios each kind of section has.
#include "checks/column_buckling.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "check_bench.h"
#include "checks/buckling_curves.h"

namespace korvane {
namespace {

using Kind = SectionControlKind;

// Published reduction factors at the slendernesses 0.5, 1.0 and 2.0 (EN 1993-1-1, figure 6.4).
TEST(ColumnReduction, AgreesWithThePublishedCurves) {
  const double lambdas[] = {0.5, 1.0, 2.0};
  const double published[5][3] = {{0.9513, 0.7253, 0.2323},
                                  {0.9243, 0.6656, 0.2229},
                                  {0.8842, 0.5970, 0.2095},
                                  {0.8430, 0.5399, 0.1962},
                                  {0.7793, 0.4671, 0.1766}};
  for (int curve = 0; curve < 5; ++curve) {
    for (int i = 0; i < 3; ++i) {
      EXPECT_NEAR(ColumnReduction(lambdas[i], ImperfectionFactor(curve)), published[curve][i], 6e-5)
          << curve << " at " << lambdas[i];
    }
  }
}

TEST(ColumnReduction, IsOneUpToAFifth) {
  EXPECT_EQ(ColumnReduction(0, 0.49), 1);
  EXPECT_EQ(ColumnReduction(0.2, 0.49), 1);
  EXPECT_LT(ColumnReduction(0.2001, 0.49), 1);
  EXPECT_GT(ColumnReduction(0.2001, 0.49), 0.999);
}

/// 5 m, A = 10000 mm2, iy = 100, iz = 50 mm, E 210000, S355, curves b and c, N = 400 kN,
/// Ncrd = 800, Mdy = 125, Mdz = 62.5, gammam1 = 1.1, betaM = 1.3. Slenderness of 1:
/// PI*sqrt(E/fyk) = 76.40915; Lybar = 50/76.40915 = 0.6543719, Lzbar = 1.3087438.
/// y: Phi = 0.5*(1 + 0.34*0.4543719 + 0.4282026) = 0.7913445, Xy = 0.8088371.
/// z: Phi = 0.5*(1 + 0.49*1.1087438 + 1.7128104) = 1.6280474, Xz = 0.3851470.
CheckBench Column(int type, Kind control, BucklingKind kind) {
  CheckBench bench(type, control, kind);
  bench.st.L = 5;
  bench.st.E = 210000;
  bench.st.BucklingCurveY = 2;
  bench.st.BucklingCurveZ = 3;
  SectionRecord& rec = bench.rec;
  rec.A = 10000;
  rec.Iy = 1E8;
  rec.Iz = 2.5E7;
  rec.betaA = 1;
  rec.Wely = 1E6;
  rec.Wply = 1.12E6;
  rec.Welz = 4E5;
  rec.Wplz = 6E5;
  bench.f.N = 400;
  bench.beam.betaMy = 1.3;
  bench.beam.betaMz = 1.3;
  return bench;
}

CheckBench Open() {
  return Column(1, Kind::DoubleSymmetric, BucklingKind::DoubleSymmetric);
}

TEST(ColumnBuckling, SlendernessAndReduction) {
  CheckBench bench = Open();
  bench.ControlBuckling();
  const BucklingResults& b = bench.buckling;
  EXPECT_NEAR(b.LyOverI, 50, 1e-12);
  EXPECT_NEAR(b.LzOverI, 100, 1e-12);
  EXPECT_NEAR(b.Lybar, 0.6543719, 1e-7);
  EXPECT_NEAR(b.Lzbar, 1.3087438, 1e-7);
  EXPECT_NEAR(b.Xy, 0.8088371, 1e-7);
  EXPECT_NEAR(b.Xz, 0.3851470, 1e-7);
  EXPECT_EQ(b.Xmin, b.Xz);
  EXPECT_NEAR(b.Nyd, 647.06967, 1e-4);    // 0.8088371*800
  EXPECT_NEAR(b.Nzd, 308.11763, 1e-4);    // 0.3851470*800
  EXPECT_NEAR(b.NXmin, 1242.9745, 1e-3);  // 0.3851470*10000*355/1.1/1000
  EXPECT_NEAR(bench.out.IRny, 400 / 647.06967, 1e-6);
  EXPECT_NEAR(bench.out.IRnz, 400 / 308.11763, 1e-6);
  EXPECT_EQ(bench.out.IRcombinedY, 0);
  EXPECT_EQ(bench.out.IRcombinedZ, 0);
}

TEST(ColumnBuckling, LengthFactorsAndEffectiveAreaScaleTheSlenderness) {
  CheckBench bench = Open();
  bench.st.bly = 2;
  bench.st.blz = 0.5;
  bench.rec.betaA = 0.81;
  bench.ControlBuckling();
  EXPECT_NEAR(bench.buckling.LyOverI, 100, 1e-12);  // the geometric one takes no betaA
  EXPECT_NEAR(bench.buckling.LzOverI, 50, 1e-12);
  EXPECT_NEAR(bench.buckling.Lybar, 0.9 * 1.3087438, 1e-7);
  EXPECT_NEAR(bench.buckling.Lzbar, 0.9 * 0.6543719, 1e-7);
  EXPECT_NEAR(bench.buckling.NXmin, 0.81 * bench.buckling.Xmin * 10000 * 355 / 1.1 / 1000, 1e-3);
}

// mu_y = 0.6543719*(2*1.3 - 4) + 0.12 = -0.7961207,
// ky = 1 + 0.7961207*400/0.8088371/800/1.1 = 1.4473991; kz = 2.57 is cut to 1.5;
// klt: mu = 0.15*(1.3087438*1.3 - 1) = 0.1052050, 1 - 0.1052050*400/0.3851470/800/1.1.
TEST(ColumnBuckling, MomentFactors) {
  CheckBench bench = Open();
  bench.ControlBuckling();
  EXPECT_NEAR(bench.buckling.ky, 1.4473991, 1e-6);
  EXPECT_EQ(bench.buckling.kz, 1.5);
  EXPECT_NEAR(bench.buckling.klt, 0.8758384, 1e-6);
}

TEST(ColumnBuckling, PlasticReserveCountsOnlyForPlasticBending) {
  CheckBench bench = Open();
  bench.f.N = 100;  // mu_y = -0.9161207 without the reserve: 1 + mu*100/0.8088371/800/1.1
  bench.rec.class_ = 3;
  bench.ControlBuckling();
  EXPECT_NEAR(bench.buckling.ky, 1 + 0.9161207 * 100 / 0.8088371 / 880, 1e-6);
  bench.rec.class_ = 2;
  bench.st.BendingCapacityMode = 1;
  bench.ControlBuckling();
  EXPECT_NEAR(bench.buckling.ky, 1 + 0.9161207 * 100 / 0.8088371 / 880, 1e-6);
  bench.st.BendingCapacityMode = 0;
  bench.ControlBuckling();
  EXPECT_NEAR(bench.buckling.ky, 1 + 0.7961207 * 100 / 0.8088371 / 880, 1e-6);
}

TEST(ColumnBuckling, MuHasAnUpperLimitAndNoLowerOne) {
  CheckBench bench = Open();
  bench.rec.Wply = 5E6;   // mu0 = 4
  bench.rec.Wplz = 16E5;  // mu0 = 3
  bench.ControlBuckling();
  EXPECT_NEAR(bench.buckling.ky, 1 - 0.9 * 400 / 0.8088371 / 880, 1e-6);
  EXPECT_NEAR(bench.buckling.kz, 1 - 0.9 * 400 / 0.3851470 / 880, 1e-6);
  bench.rec.Wply = 1E6;
  bench.beam.betaMy = 0;  // no moment: mu = -4*Lybar
  bench.f.N = 100;
  bench.ControlBuckling();
  EXPECT_NEAR(bench.buckling.ky, 1 + 4 * 0.6543719 * 100 / 0.8088371 / 880, 1e-6);
}

TEST(ColumnBuckling, LateralFactorIsAtMostOne) {
  CheckBench bench = Open();
  bench.beam.betaMy = 0.5;  // 0.15*(0.654 - 1) < 0
  bench.ControlBuckling();
  EXPECT_EQ(bench.buckling.klt, 1);
  bench.beam.betaMy = 20;  // above 0.9
  bench.ControlBuckling();
  EXPECT_NEAR(bench.buckling.klt, 1 - 0.9 * 400 / 0.3851470 / 880, 1e-6);
}

// 400/1242.9745 + 1.4473991*50/125 = 0.3218087 + 0.5789596; 400/308.11763 + 0.8758384*50/125 =
// 1.2982055 + 0.3503354; Mz adds 1.5*10/62.5 = 0.24 to both.
TEST(ColumnBuckling, WithBending) {
  CheckBench bench = Open();
  bench.beam.MyAbsMax = 50;
  bench.ControlBuckling();
  EXPECT_NEAR(bench.out.IRcombinedY, 0.9007683, 1e-6);
  EXPECT_NEAR(bench.out.IRcombinedZ, 1.6485409, 1e-6);
  EXPECT_EQ(bench.out.IRny, 0);
  EXPECT_EQ(bench.out.IRnz, 0);
  bench.beam.MzAbsMax = 10;
  bench.ControlBuckling();
  EXPECT_NEAR(bench.out.IRcombinedY, 1.1407683, 1e-6);
  EXPECT_NEAR(bench.out.IRcombinedZ, 1.8885409, 1e-6);
}

TEST(ColumnBuckling, LateralReductionCountsWhereTheOptionIsOn) {
  CheckBench bench = Open();
  bench.beam.MyAbsMax = 50;
  bench.ltb.chiLT_min = 0.5;
  bench.st.LateralTorsionalBuckling = 1;
  bench.ControlBuckling();
  EXPECT_NEAR(bench.out.IRcombinedZ, 1.2982055 + 0.3503354 / 0.5, 1e-6);
  bench.st.LateralTorsionalBuckling = 0;
  bench.ControlBuckling();
  EXPECT_NEAR(bench.out.IRcombinedZ, 1.6485409, 1e-6);
}

TEST(ColumnBuckling, LateralBucklingCaseSixHasNoSecondRatio) {
  CheckBench bench = Open();
  bench.beam.MyAbsMax = 50;
  bench.st.LateralBucklingCase = 6;
  bench.ControlBuckling();
  EXPECT_EQ(bench.out.IRcombinedZ, 0);
  EXPECT_EQ(bench.out.lineBucklingZ.formula, "");
  EXPECT_NE(bench.out.lineBucklingY.formula, "");
}

TEST(ColumnBuckling, MemberIsClassifiedForItsGoverningForces) {
  CheckBench bench = Open();
  bench.beam.MyAbsMax = 50;
  bench.beam.MzAbsMax = 10;
  bench.f.Vz = 77;
  bench.ControlBuckling();
  EXPECT_EQ(bench.f.Ncl, 400);
  EXPECT_EQ(bench.f.My, 50);
  EXPECT_EQ(bench.f.Mz, 10);
  EXPECT_EQ(bench.f.Vz, 77);
}

TEST(ColumnBuckling, ClassRoutinesOfTheFamilies) {
  const auto rolled = FindFamily(1)->routines.sectionClass;
  for (const int type : {1, 5, 15, 16, 101, 102, 103}) {
    EXPECT_EQ(FindFamily(type)->routines.bucklingClass, rolled) << type;
  }
  EXPECT_NE(FindFamily(5)->routines.sectionClass, rolled);
  EXPECT_NE(FindFamily(16)->routines.sectionClass, rolled);
  EXPECT_NE(FindFamily(103)->routines.sectionClass, rolled);
  EXPECT_NE(FindFamily(21)->routines.bucklingClass, rolled);
  EXPECT_EQ(FindFamily(21)->routines.bucklingClass, FindFamily(21)->routines.sectionClass);
  for (const int type : {24, 25, 27, 51, 52, 53, 54, 55, 56}) {
    EXPECT_EQ(FindFamily(type)->routines.buckling, BucklingKind::None) << type;
  }
}

TEST(ColumnBuckling, GeneralProfileTakesTheClassOfItsSectionControl) {
  CheckBench bench = Column(41, Kind::DoubleSymmetric, BucklingKind::DoubleSymmetric);
  bench.out.ClassGoverning = 3;
  bench.f.N = 100;
  bench.ControlBuckling();
  EXPECT_EQ(bench.rec.class_, 3);
  EXPECT_NEAR(bench.buckling.ky, 1 + 0.9161207 * 100 / 0.8088371 / 880, 1e-6);
}

TEST(ColumnBuckling, HollowAndFlatBarHaveNoLateralRatio) {
  for (const BucklingKind kind : {BucklingKind::Hollow, BucklingKind::FlatBar}) {
    CheckBench bench = Column(6, Kind::Hollow, kind);
    bench.beam.MyAbsMax = 50;
    bench.buckling.klt = 0.25;
    bench.ControlBuckling();
    EXPECT_NEAR(bench.out.IRcombinedY, 0.9007683, 1e-6);
    EXPECT_EQ(bench.out.IRcombinedZ, 0);
    EXPECT_EQ(bench.out.lineBucklingZ.formula, "");
    if (kind == BucklingKind::FlatBar) {
      EXPECT_NEAR(bench.buckling.klt, 0.8758384, 1e-6);  // worked out, not used
    } else {
      EXPECT_EQ(bench.buckling.klt, 0.25);
    }
  }
}

TEST(ColumnBuckling, TubeKeepsItsRatioInTheSecondPlace) {
  CheckBench bench = Column(31, Kind::Tube, BucklingKind::Tube);
  bench.beam.MyAbsMax = 50;
  bench.ControlBuckling();
  EXPECT_EQ(bench.out.IRcombinedY, 0);
  EXPECT_NEAR(bench.out.IRcombinedZ, 0.9007683, 1e-6);
  EXPECT_EQ(bench.out.lineBucklingY.value, "0.90");
  EXPECT_EQ(bench.out.lineBucklingZ.formula, "");
}

TEST(ColumnBuckling, TTakesNoNoticeOfMoments) {
  CheckBench bench = Column(26, Kind::T, BucklingKind::T);
  bench.beam.MyAbsMax = 50;
  bench.ControlBuckling();
  EXPECT_NEAR(bench.out.IRny, 400 / 647.06967, 1e-6);
  EXPECT_NEAR(bench.out.IRnz, 400 / 308.11763, 1e-6);
  EXPECT_EQ(bench.out.IRcombinedY, 0);
}

TEST(ColumnBuckling, SinglySymmetricTakesTheSmallerModulusAndAStandingLateralFactor) {
  CheckBench bench = Column(22, Kind::SingleSymmetric, BucklingKind::SingleSymmetric);
  bench.rec.Wely1 = 1E6;
  bench.rec.Wely2 = 2E6;
  bench.rec.Wely = 9E6;
  bench.beam.MyAbsMax = 50;
  bench.beam.MzAbsMax = 10;  // takes no part
  bench.buckling.klt = 0.25;
  bench.ControlBuckling();
  EXPECT_NEAR(bench.buckling.ky, 1.4473991, 1e-6);
  EXPECT_EQ(bench.buckling.klt, 0.25);
  EXPECT_NEAR(bench.out.IRnz, 400 / 308.11763, 1e-6);
  EXPECT_EQ(bench.out.IRny, 0);
  EXPECT_NEAR(bench.out.IRcombinedY, 0.9007683, 1e-6);
  EXPECT_NEAR(bench.out.IRcombinedZ, 1.2982055 + 0.25 * 50 / 125, 1e-6);
}

// These sections write a class for each side and none for the whole: the plastic reserve goes by
// the class that another section left.
TEST(ColumnBuckling, SinglySymmetricReadsTheClassThatStands) {
  CheckBench bench = Column(22, Kind::SingleSymmetric, BucklingKind::SingleSymmetric);
  bench.rec.Wely1 = bench.rec.Wely2 = 1E6;
  bench.rec.classTop = bench.rec.classBottom = 4;
  bench.beam.MyAbsMax = 50;
  bench.f.N = 100;
  bench.rec.class_ = 2;
  bench.ControlBuckling();
  EXPECT_NEAR(bench.buckling.ky, 1 + 0.7961207 * 100 / 0.8088371 / 880, 1e-6);
  bench.rec.class_ = 3;
  bench.ControlBuckling();
  EXPECT_NEAR(bench.buckling.ky, 1 + 0.9161207 * 100 / 0.8088371 / 880, 1e-6);
}

TEST(ColumnBuckling, SinglySymmetricWithoutMyIsPureCompression) {
  CheckBench bench = Column(22, Kind::SingleSymmetric, BucklingKind::SingleSymmetric);
  bench.rec.Wely1 = bench.rec.Wely2 = 1E6;
  bench.beam.MzAbsMax = 10;
  bench.ControlBuckling();
  EXPECT_NEAR(bench.out.IRny, 400 / 647.06967, 1e-6);
  EXPECT_NEAR(bench.out.IRnz, 400 / 308.11763, 1e-6);
  EXPECT_EQ(bench.out.IRcombinedY, 0);
  EXPECT_EQ(bench.out.IRcombinedZ, 0);
}

}  // namespace
}  // namespace korvane
