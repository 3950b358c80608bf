// SPDX-License-Identifier: GPL-3.0-or-later
// The texts of column buckling, to the blank, by kind of section; angles, whose axes and curves
// differ, with their ratios.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "check_bench.h"

namespace korvane {
namespace {

using Kind = SectionControlKind;

/// 5 m, iy = 100, iz = 50 mm, S355, curves b and c, N = 400 kN, Ncrd = 800, Mdy = 125,
/// Mdz = 62.5: Xy = 0.8088, Xz = 0.3851, ky = 1.4474, kz = 1.5, klt = 0.8758.
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
  rec.Wely = rec.Wely1 = rec.Wely2 = 1E6;
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

struct Text {
  const char *label, *formula, *numbers, *value, *limit;
  int colour;
};
constexpr Text kNoLine{"", "", "", "", "", 0};

void ExpectLine(const CheckLine& line, const Text& text) {
  EXPECT_EQ(line.label, text.label);
  EXPECT_EQ(line.formula, text.formula);
  EXPECT_EQ(line.numbers, text.numbers);
  EXPECT_EQ(line.value, text.value);
  EXPECT_EQ(line.limit, text.limit);
  EXPECT_EQ(line.colour, text.colour);
}

constexpr const char* kPure = "  <  1.00 (Ch 12.3.2.1)";
constexpr const char* kCombined = "  <  1.00 (Ch 12.3.4.2)";
constexpr Text kNy{"Ny:", "IR = Nf/(Xy*Nd) = ", "400.0/(0.81*800.0) = ", "0.62", kPure, 2};
constexpr Text kNz{"Nz:", "IR = Nf/(Xz*Nd) = ", "400.0/(0.39*800.0) = ", "1.30", kPure, 4};

TEST(BucklingLines, OfPureCompression) {
  for (const BucklingKind kind : {BucklingKind::DoubleSymmetric, BucklingKind::Hollow,
                                  BucklingKind::FlatBar, BucklingKind::SingleSymmetric}) {
    CheckBench bench = Column(1, Kind::DoubleSymmetric, kind);
    bench.ControlBuckling();
    ExpectLine(bench.out.lineBucklingY, kNy);
    ExpectLine(bench.out.lineBucklingZ, kNz);
  }
}

TEST(BucklingLines, AxisThatCannotBuckleHasNoLine) {
  CheckBench bench = Open();
  bench.st.bly = 0;
  bench.ControlBuckling();
  EXPECT_EQ(bench.buckling.Lybar, 0);
  EXPECT_EQ(bench.buckling.Xy, 1);
  EXPECT_EQ(bench.out.IRny, 0);
  ExpectLine(bench.out.lineBucklingY, kNoLine);
  ExpectLine(bench.out.lineBucklingZ, kNz);
  bench.st.bly = 1;
  bench.st.blz = 0;
  bench.ControlBuckling();
  ExpectLine(bench.out.lineBucklingY, kNy);
  ExpectLine(bench.out.lineBucklingZ, kNoLine);
  bench.st.bly = 0;
  bench.beam.MyAbsMax = 50;  // both lines with bending all the same
  bench.ControlBuckling();
  EXPECT_EQ(bench.out.lineBucklingY.numbers, "400.0/(1.00*800.0) + 0.95*50.0/125.0 = ");
  EXPECT_EQ(bench.out.lineBucklingZ.label, "N+My+Mz:");
}

TEST(BucklingLines, WithBendingAboutY) {
  CheckBench bench = Open();
  bench.beam.MyAbsMax = 50;
  bench.ControlBuckling();
  ExpectLine(bench.out.lineBucklingY,
             {"N+My+Mz:", "IR = N/(Xmin*Nd)  + ky*My/Mdy  = ",
              "400.0/(0.39*800.0) + 1.45*50.0/125.0 = ", "0.90", kCombined, 2});
  ExpectLine(bench.out.lineBucklingZ,
             {"N+My+Mz:", "IR = N/(Xz*Nd) + klt*My/Mdy/Xlt  = ",
              "400.0/(0.39*800.0) + 0.88*50.0/125.0/1.00 = ", "1.65", kCombined, 4});
}

TEST(BucklingLines, WithBendingAboutZ) {
  CheckBench bench = Open();
  bench.beam.MzAbsMax = 10;
  bench.ControlBuckling();
  ExpectLine(bench.out.lineBucklingY,
             {"N+My+Mz:", "IR = N/(Xmin*Nd)  +  kz*Mz/Mdz  = ",
              "400.0/(0.39*800.0) + 1.50*10.0/62.5 = ", "0.56", kCombined, 2});
  ExpectLine(bench.out.lineBucklingZ, kNoLine);
}

TEST(BucklingLines, WithBendingAboutBoth) {
  CheckBench bench = Open();
  bench.beam.MyAbsMax = 50;
  bench.beam.MzAbsMax = 10;
  bench.st.LateralTorsionalBuckling = 1;
  bench.ltb.chiLT_min = 0.5;
  bench.ControlBuckling();
  ExpectLine(bench.out.lineBucklingY,
             {"N+My+Mz:", "IR = N/(Xmin*Nd)  + ky*My/Mdy  +  kz*Mz/Mdz  = ",
              "400.0/(0.39*800.0) + 1.45*50.0/125.0 + 1.50*10.0/62.5 = ", "1.14", kCombined, 4});
  ExpectLine(
      bench.out.lineBucklingZ,
      {"N+My+Mz:", "IR = N/(Xz*Nd) + klt*My/Mdy/Xlt  +  kz*Mz/Mdz  = ",
       "400.0/(0.39*800.0) + 0.88*50.0/125.0/0.50 + 1.50*10.0/62.5 = ", "2.24", kCombined, 4});
}

TEST(BucklingLines, OfSinglySymmetricSections) {
  CheckBench bench = Column(22, Kind::SingleSymmetric, BucklingKind::SingleSymmetric);
  bench.beam.MyAbsMax = 50;
  bench.buckling.klt = 0.25;  // left by a former calculation
  bench.ControlBuckling();
  ExpectLine(bench.out.lineBucklingY, kNz);
  ExpectLine(bench.out.lineBucklingZ,
             {"N+My:", "IR = N/(Xz*Nd) + klt*My/Mdy/Xlt  = ",
              "400.0/(0.39*800.0) + 0.25*50.0/125.0/1.00 = ", "1.40", kCombined, 4});
  bench.st.LateralBucklingCase = 6;
  bench.ControlBuckling();
  ExpectLine(bench.out.lineBucklingZ,
             {"N+My:", "IR = N/(Xmin*Nd)  + ky*My/Mdy  = ",
              "400.0/(0.39*800.0) + 1.45*50.0/125.0 = ", "0.90", kCombined, 2});
  bench.st.blz = 0;
  bench.ControlBuckling();
  ExpectLine(bench.out.lineBucklingY, kNoLine);
}

TEST(BucklingLines, OfTubesAreAlwaysWritten) {
  CheckBench bench = Column(31, Kind::Tube, BucklingKind::Tube);
  bench.ControlBuckling();
  ExpectLine(bench.out.lineBucklingY, kNy);
  Text z = kNz;
  z.limit = " 1.00 (Ch 12.3.2.1)";
  ExpectLine(bench.out.lineBucklingZ, z);
  bench.st.bly = 0;
  bench.st.blz = 0;
  bench.ControlBuckling();
  EXPECT_EQ(bench.out.lineBucklingY.numbers, "400.0/(1.00*800.0) = ");
  EXPECT_EQ(bench.out.lineBucklingZ.numbers, "400.0/(1.00*800.0) = ");
}

TEST(BucklingLines, OfTSectionsHaveLimitsOfTheirOwn) {
  CheckBench bench = Column(26, Kind::T, BucklingKind::T);
  bench.ControlBuckling();
  Text y = kNy;
  y.limit = "  (Ch 12.3.2.1)";
  ExpectLine(bench.out.lineBucklingY, y);
  Text z = kNz;
  z.limit = " 1.00 (Ch 12.3.2.1)";
  ExpectLine(bench.out.lineBucklingZ, z);
  bench.st.bly = 0;
  bench.ControlBuckling();
  ExpectLine(bench.out.lineBucklingY, kNoLine);
}

TEST(BucklingLines, RatioAtTheAllowableUsagePasses) {
  CheckBench bench = Column(31, Kind::Tube, BucklingKind::Tube);
  bench.st.bly = 0;
  bench.st.blz = 0;
  bench.st.iufa = 0.5;  // 400/(1*800)
  bench.ControlBuckling();
  EXPECT_EQ(bench.out.IRny, 0.5);
  EXPECT_EQ(bench.out.lineBucklingY.colour, 2);
  EXPECT_EQ(bench.out.lineBucklingY.limit, "  <  0.50 (Ch 12.3.2.1)");
  bench.f.N = 400.1;
  bench.ControlBuckling();
  EXPECT_EQ(bench.out.lineBucklingY.colour, 4);
}

TEST(BucklingLines, OfSlenderness) {
  CheckBench bench = Open();
  bench.ControlBuckling();
  EXPECT_EQ(bench.out.lineSlenderness.formula, "");
  bench.st.check_slend = 1;
  bench.st.bly = 0;
  bench.ControlBuckling();
  EXPECT_EQ(bench.out.lineSlenderness.label, "Slenderness: Y/Z-axis: ");
  EXPECT_EQ(bench.out.lineSlenderness.formula, "Slenderness: Y/Z-axis:  L/i = ");
  bench.st.blz = 0;
  bench.ControlBuckling();
  EXPECT_EQ(bench.out.lineSlenderness.label, "");
  EXPECT_EQ(bench.out.lineSlenderness.formula, "");
}

// Without compression the control doesn't run; its texts stay as the last run left them.
TEST(BucklingLines, StayWhereTheControlDidNotRun) {
  CheckBench bench = Open();
  bench.st.check_slend = 1;
  bench.ControlBuckling();
  bench.out.bucklingRan = false;
  bench.f.N = -1;
  bench.Compose();
  ExpectLine(bench.out.lineBucklingY, kNy);
  ExpectLine(bench.out.lineBucklingZ, kNz);
  EXPECT_EQ(bench.out.lineSlenderness.label, "Slenderness: Y/Z-axis: ");
}

TEST(BucklingLines, DoNotExistForAFamilyWithoutControl) {
  CheckBench bench = Open();
  bench.st.check_slend = 1;
  bench.AddPoint({0.1, 50, 50, 0, 0});
  bench.ControlSection();
  bench.ControlBuckling();
  bench.family.routines.sectionControl = Kind::None;
  bench.Compose();
  ExpectLine(bench.out.lineSection, kNoLine);
  ExpectLine(bench.out.lineVz, kNoLine);
  ExpectLine(bench.out.lineBucklingY, kNoLine);
  ExpectLine(bench.out.lineBucklingZ, kNoLine);
  EXPECT_EQ(bench.out.lineSlenderness.formula, "");
}

// ---- angles

/// 2 m, iu = 20, iv = 10 mm, curve index 1 (b for angles), N = 80 kN, y and u coincide.
/// Lbar = 2000/20/76.40915 = 1.3087438 and 2.6174876; 0.35 + 0.7*Lbar = 1.2661207, 2.1822413;
/// Xu = 0.4435594, Xv = 0.1791091.
CheckBench Angle() {
  CheckBench bench = Column(11, Kind::UnequalAngle, BucklingKind::Angle);
  bench.st.L = 2;
  bench.st.BucklingCurveY = 1;
  bench.st.BucklingCurveZ = 1;
  SectionRecord& rec = bench.rec;
  rec.Iu = 4E6;
  rec.Iv = 1E6;
  rec.Mud1 = 100;
  rec.Mud2 = 1;  // the second corner takes no part about u
  rec.Mud3 = 50;
  rec.Mvd1 = 20;
  rec.Mvd2 = 10;
  rec.Mvd3 = 40;
  bench.f.N = 80;
  return bench;
}

TEST(AngleBuckling, PureCompression) {
  CheckBench bench = Angle();
  bench.ControlBuckling();
  const BucklingResults& b = bench.buckling;
  EXPECT_NEAR(b.LyOverI, 100, 1e-12);
  EXPECT_NEAR(b.LzOverI, 200, 1e-12);
  EXPECT_NEAR(b.Lybar, 1.2661207, 1e-7);
  EXPECT_NEAR(b.Lzbar, 2.1822413, 1e-7);
  EXPECT_NEAR(b.Xy, 0.4435594, 1e-7);
  EXPECT_NEAR(b.Xz, 0.1791091, 1e-7);
  ExpectLine(bench.out.lineBucklingY,
             {"Nu:", "IR = N/(Xu*Ncd) = ", "80.0/(0.44*800.0) = ", "0.23", kPure, 2});
  ExpectLine(bench.out.lineBucklingZ, {"Nv:", "IR = N/(Xv*Nd) = ", "80.0/(0.18*800.0) = ", "0.56",
                                       " 1.00 (Ch 12.3.2.1)", 2});
}

// ku = 1 + 1.2661207*1.4*80/0.4435594/800/1.1 = 1.3632944, no plastic reserve; kv is cut to 1.5;
// 80/(0.1791091*10000*355/1.1/1000) = 0.1384003; + ku*10/50 + 1.5*2/10.
TEST(AngleBuckling, WithBending) {
  CheckBench bench = Angle();
  bench.beam.MyAbsMax = 10;
  bench.beam.MzAbsMax = 2;
  bench.ControlBuckling();
  EXPECT_NEAR(bench.buckling.ky, 1.3632944, 1e-6);
  EXPECT_EQ(bench.buckling.kz, 1.5);
  EXPECT_NEAR(bench.out.IRcombinedZ, 0.1384003 + 1.3632944 * 10 / 50 + 0.3, 1e-6);
  EXPECT_EQ(bench.out.IRcombinedY, 0);
  EXPECT_EQ(bench.out.IRny, 0);
  ExpectLine(bench.out.lineBucklingY,
             {"N+Mu+Mv:", "IR = N/(Xmin*Nd)  + ku*Mu/Mud  +  kv*Mv/Mvd  = ",
              "80.0/(0.18*800.0) + 1.36*10.0/50.0 + 1.50*2.0/10.0 = ", "0.71", kCombined, 2});
  ExpectLine(bench.out.lineBucklingZ, kNoLine);
}

TEST(AngleBuckling, TurnsTheMomentsIntoItsAxes) {
  CheckBench bench = Angle();
  bench.rec.alfadeg = 30;
  bench.beam.MyAbsMax = 10;
  bench.ControlBuckling();
  EXPECT_NEAR(bench.out.Mu, 8.660254, 1e-6);
  EXPECT_NEAR(bench.out.Mv, 5, 1e-6);  // its size
}

TEST(AngleBuckling, AxisWithoutBucklingIsCheckedAllTheSame) {
  CheckBench bench = Angle();
  bench.st.bly = 0;
  bench.st.blz = 0;
  bench.st.check_slend = 1;
  bench.ControlBuckling();
  EXPECT_NEAR(bench.buckling.Lybar, 0.35, 1e-12);
  EXPECT_EQ(bench.out.lineBucklingY.label, "Nu:");
  EXPECT_EQ(bench.out.lineBucklingZ.label, "Nv:");
  EXPECT_EQ(bench.out.lineSlenderness.formula, "");
}

TEST(AngleBuckling, NamesItsAxesInTheSlendernessLine) {
  CheckBench bench = Angle();
  bench.st.check_slend = 1;
  bench.ControlBuckling();
  EXPECT_EQ(bench.out.lineSlenderness.label, "Slenderness: U/V-axis: ");
  EXPECT_EQ(bench.out.lineSlenderness.formula, "Slenderness: U/V-axis:  L/i = ");
}

}  // namespace
}  // namespace korvane
