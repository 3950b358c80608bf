// SPDX-License-Identifier: GPL-3.0-or-later
#include "sections/elements.h"

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>
#include <utility>

#include "sections/section_sum.h"

namespace korvane {
namespace {

constexpr double kJust = 1e-9;

TEST(InternalElement, PureTensionIsClassOne) {
  EXPECT_EQ(InternalClass(10, 20, 500, 1, ZeroStress::Compressed), 1);
  EXPECT_EQ(InternalClass(0, 20, 500, 1, ZeroStress::Mixed), 1);
}

TEST(InternalElement, CompressedLimitsAreStrict) {
  const auto of = [](double w) { return InternalClass(-1, -1, w, 0.8, ZeroStress::Compressed); };
  EXPECT_EQ(of(33 * 0.8 - kJust), 1);
  EXPECT_EQ(of(33 * 0.8), 2);
  EXPECT_EQ(of(38 * 0.8 - kJust), 2);
  EXPECT_EQ(of(38 * 0.8), 3);
  EXPECT_EQ(of(42 * 0.8 - kJust), 3);  // 126/(2 + 1)
  EXPECT_EQ(of(42 * 0.8), 4);
}

TEST(InternalElement, MixedLimitsAreNotStrict) {
  // Pure bending: alpha = 0.5, psi = -1: 72, 83 and 124 eps.
  const auto of = [](double w) { return InternalClass(-1, 1, w, 1, ZeroStress::Compressed); };
  EXPECT_EQ(of(72), 1);
  EXPECT_EQ(of(72 + kJust), 2);
  EXPECT_EQ(of(83), 2);
  EXPECT_EQ(of(83 + kJust), 3);
  EXPECT_EQ(of(124), 3);
  EXPECT_EQ(of(124 + kJust), 4);
}

TEST(InternalElement, MoreThanHalfCompressedTakesTheOtherBranch) {
  // s1 = -3, s2 = 1: alpha = 0.75, psi = -1/3: 396/(13*0.75 - 1) = 45.257.
  const auto of = [](double w) { return InternalClass(-3, 1, w, 1, ZeroStress::Mixed); };
  EXPECT_EQ(of(396 / 8.75), 1);
  EXPECT_EQ(of(396 / 8.75 + 1e-6), 2);
  EXPECT_EQ(of(456 / 8.75), 2);
  EXPECT_EQ(of(456 / 8.75 + 1e-6), 3);
  EXPECT_EQ(of(126 / (2 - 1.0 / 3)), 3);
  EXPECT_EQ(of(126 / (2 - 1.0 / 3) + 1e-6), 4);
}

TEST(InternalElement, AZeroEdgeIsCompressedForAnIWebAndMixedForABox) {
  // As compressed: 126/2 = 63 for class 3, strict; as mixed alpha = 1: 33, 38 and 63 not strict.
  EXPECT_EQ(InternalClass(-1, 0, 33, 1, ZeroStress::Compressed), 2);
  EXPECT_EQ(InternalClass(-1, 0, 33, 1, ZeroStress::Mixed), 1);
  EXPECT_EQ(InternalClass(-1, 0, 63, 1, ZeroStress::Compressed), 4);
  EXPECT_EQ(InternalClass(-1, 0, 63, 1, ZeroStress::Mixed), 3);
}

TEST(InternalElement, LessThanHalfCompressedReachesFurther) {
  // s1 = -1, s2 = 3: alpha = 0.25, psi = -3: 144, 166 and 62*4*sqrt(3) = 429.5.
  const auto of = [](double w) { return InternalClass(-1, 3, w, 1, ZeroStress::Compressed); };
  EXPECT_EQ(of(144), 1);
  EXPECT_EQ(of(144.001), 2);
  EXPECT_EQ(of(166), 2);
  EXPECT_EQ(of(166.001), 3);
  EXPECT_EQ(of(62 * 4 * std::sqrt(3.0)), 3);
  EXPECT_EQ(of(429.6), 4);
}

TEST(InternalElement, CompressionThatFallsOffReachesFurtherInClassThree) {
  // psi = 0.5: 126/2.5 = 50.4, strict.
  EXPECT_EQ(InternalClass(-2, -1, 50.39, 1, ZeroStress::Compressed), 3);
  EXPECT_EQ(InternalClass(-2, -1, 50.4, 1, ZeroStress::Compressed), 4);
}

TEST(Outstand, RolledAndWeldedLimits) {
  struct Row {
    const OutstandLimits& limits;
    double first, second, third;
  };
  for (const Row& r : {Row{kRolledOutstand, 10, 11, 15}, Row{kWeldedOutstand, 9, 10, 14}}) {
    const auto of = [&](double f) { return OutstandClass(-1, -1, f, 1, r.limits); };
    EXPECT_EQ(of(r.first - kJust), 1);
    EXPECT_EQ(of(r.first), 2);
    EXPECT_EQ(of(r.second), 3);
    EXPECT_EQ(of(r.third), 4);
  }
}

TEST(Outstand, UnderAGradientClassOneCarriesNoAlpha) {
  // Tip -1, root +1: alpha = 0.5, so class 2 reaches 22 while class 1 stays at 10.
  EXPECT_EQ(OutstandClass(-1, 1, 9.9, 1, kRolledOutstand), 1);
  EXPECT_EQ(OutstandClass(-1, 1, 10, 1, kRolledOutstand), 2);
  EXPECT_EQ(OutstandClass(-1, 1, 21.9, 1, kRolledOutstand), 2);
  // psi = -1: k = 0.57 + 0.21 + 0.07 = 0.85; 23*sqrt(0.85) = 21.205, below the class 2 limit.
  EXPECT_EQ(OutstandClass(-1, 1, 22, 1, kRolledOutstand), 4);
  EXPECT_EQ(OutstandClass(0, 1, 99, 1, kRolledOutstand), 1);
}

TEST(Outstand, ThirdClassUnderAGradientGoesByTheBucklingFactor) {
  // Tip -4, root 1: psi = -0.25: k = 0.57 + 0.0525 + 0.004375; class 2 to 11/0.8 = 13.75.
  const double k = 0.626875;
  for (const auto& [limits, second, third] :
       {std::tuple{kRolledOutstand, 13.75, 23 * std::sqrt(k)},
        std::tuple{kWeldedOutstand, 12.5, 21 * std::sqrt(k)}}) {
    const auto of = [&](double f) { return OutstandClass(-4, 1, f, 1, limits); };
    EXPECT_EQ(of(second - kJust), 2);
    EXPECT_EQ(of(second + kJust), 3);
    EXPECT_EQ(of(third), 3);
    EXPECT_EQ(of(third + kJust), 4);
  }
}

TEST(Outstand, ATipWithoutStressIsAsGoodAsItsBucklingFactor) {
  // psi = 0 where the tip has none: k = 0.57, and alpha 0 puts no limit on class 2.
  EXPECT_EQ(OutstandClass(0, -1, 9.9, 1, kRolledOutstand), 1);
  EXPECT_EQ(OutstandFactor(0), 0.57);
}

TEST(EffectiveWidth, BeginsAboveASlendernessOf0673) {
  EXPECT_EQ(EffectiveWidth(28.4 * 2 * 0.673 * 0.9999, 1, 4, false), 1);
  // lam = 1: 1 - 0.22.
  EXPECT_NEAR(EffectiveWidth(28.4 * 2, 1, 4, false), 0.78, 1e-12);
  EXPECT_EQ(EffectiveWidth(500, 1, 4, true), 1);
}

TEST(Shear, EtaTurnsAt400) {
  ProjectState st;
  st.fyk = 399.0;
  EXPECT_EQ(ShearEta(st), 1.2);
  st.fyk = 400.0;
  EXPECT_EQ(ShearEta(st), 1.05);
}

ProjectState Steel() {
  ProjectState st;
  st.fyk = 235.0;
  st.epsilon = 1.0;
  st.gammam1 = 1.0;
  return st;
}

TEST(Shear, AStockyWallTakesItsStockyAreaAndNoEta) {
  float32 area;
  const ProjectState st = Steel();
  const double V = UnstiffenedShear(st, {1000, 800, 590, 59}, area);  // 59 < 72/1.2
  EXPECT_EQ(double(area), 1000);
  EXPECT_NEAR(V, 1000 * 235 / std::sqrt(3.0) / 1000, 1e-9);
}

TEST(Shear, ASlenderWallBucklesByItsEnds) {
  ProjectState st = Steel();
  float32 area;
  const ShearWall wall{1000, 800, 1296, 129.6};  // lam = 1.5
  const double plastic = 800 * 235 / std::sqrt(3.0) / 1000;
  EXPECT_NEAR(WorkingShear(st, wall, area), plastic * 0.83 / 1.5, 1e-9);
  st.EndStiffener = 1;
  EXPECT_NEAR(WorkingShear(st, wall, area), plastic * 1.37 / 2.2, 1e-9);
  // The shown value stays that of the unstiffened web.
  EXPECT_NEAR(UnstiffenedShear(st, wall, area), plastic * 0.83 / 1.5, 1e-9);
}

TEST(Shear, WebStiffenersRaiseTheBucklingFactor) {
  ProjectState st = Steel();
  st.WebStiffener = 1;
  st.a_webstiff = 1296.0;  // a/d = 1: k = 5.34 + 4
  float32 area;
  const double k = 9.34;
  const double lam = 129.6 / 37.4 / std::sqrt(k);
  const double plastic = 800 * 235 / std::sqrt(3.0) / 1000;
  EXPECT_NEAR(WorkingShear(st, {1000, 800, 1296, 129.6}, area), plastic * 0.83 / lam, 1e-6);
}

TEST(Shear, WebStiffenersCloserThanTheDepthHaveTheOtherFactor) {
  ProjectState st = Steel();
  st.WebStiffener = 1;
  float32 area;
  const double plastic = 800 * 235 / std::sqrt(3.0) / 1000;
  for (const auto& [a, k] : {std::pair{648., 4 + 5.34 * 4}, std::pair{2592., 5.34 + 4 * 0.25}}) {
    st.a_webstiff = a;
    const double lam = 200 / 37.4 / std::sqrt(k);
    EXPECT_NEAR(WorkingShear(st, {1000, 800, 1296, 200}, area), plastic * 0.83 / lam, 1e-6);
    // The stocky limit: 31*sqrt(k)/1.2.
    const double limit = 31 * std::sqrt(k) / 1.2;
    WorkingShear(st, {1000, 800, 1296, limit * 0.999}, area);
    EXPECT_EQ(double(area), 1000);
    WorkingShear(st, {1000, 800, 1296, limit * 1.001}, area);
    EXPECT_EQ(double(area), 800);
  }
}

TEST(Shear, StiffEndsCountFromASlendernessOf108) {
  ProjectState st = Steel();
  float32 area;
  const double plastic = 800 * 235 / std::sqrt(3.0) / 1000;
  const auto chi = [&](double lam) {
    return WorkingShear(st, {1000, 800, 500, lam * 86.4}, area) / plastic;
  };
  for (const int stiff : {0, 1}) {
    st.EndStiffener = stiff;
    EXPECT_NEAR(chi(0.699), 0.83 / 0.699, 1e-9);
    EXPECT_NEAR(chi(1.07), 0.83 / 1.07, 1e-9);
    EXPECT_NEAR(chi(1.09), stiff == 1 ? 1.37 / 1.79 : 0.83 / 1.09, 1e-9);
  }
}

TEST(Shear, AStiffenedWallJustBeyondStockyTakesEta) {
  // Between 31/37.4/1.2 = 0.6907 and 0.83/1.2 = 0.6917.
  ProjectState st = Steel();
  st.WebStiffener = 1;
  st.a_webstiff = 500.0;
  float32 area;
  const double V = WorkingShear(st, {1000, 800, 500, 0.6912 * 37.4 * std::sqrt(9.34)}, area);
  EXPECT_NEAR(V, 800 * 1.2 * 235 / std::sqrt(3.0) / 1000, 1e-9);
}

TEST(SectionSum, OneRectangle) {
  RectList list;
  list.Add(Rect{20, 100, 5, 10});
  const SumResult s = SectionSum(list);
  EXPECT_DOUBLE_EQ(s.A, 2000);
  EXPECT_DOUBLE_EQ(s.xbar, 15);
  EXPECT_DOUBLE_EQ(s.ybar, 60);
  EXPECT_NEAR(s.Iy, 20 * 1e6 / 12, 1e-6);
  EXPECT_NEAR(s.Iz, 100 * 8000.0 / 12, 1e-6);
  EXPECT_NEAR(s.Ix, 100 * 8000.0 / 3, 1e-6);
}

TEST(SectionSum, ThePlasticAxisIsWalkedFromTwoMillimetres) {
  RectList list;
  list.Add(Rect{100, 3, 0, 0});  // half of the area lies below 3 mm
  list.Add(Rect{1, 100, 0, 3});
  EXPECT_NEAR(WalkPlasticAxis(list, 400, 103), 2.0, 1e-12);
  RectList top;
  top.Add(Rect{1, 10, 0, 0});
  // The steps add up in double precision to a little less than 5, so one more is taken.
  EXPECT_NEAR(WalkPlasticAxis(top, 10, 10), 5.1, 1e-9);
  EXPECT_THROW(WalkPlasticAxis(top, 100, 10), ArithmeticFault);
}

TEST(SectionSum, ClosedFormOfTheTInBothCases) {
  // Axis in the web: A = 200*10 + 10*190 = 3900; flange 2000 > 1950: in the flange, y = 9.75.
  const PlasticT flange = PlasticAxisOfT(3900, 200, 10, 190, 10);
  EXPECT_NEAR(flange.y, 9.75, 1e-12);
  EXPECT_NEAR(flange.Wply, (0.25 * 0.25 + 9.75 * 9.75) * 100 + (95 + 0.25) * 1900, 1e-6);
  // Narrow flange: A = 1000 + 1900 = 2900; y = (1450 - 1000)/10 + 10 = 55.
  const PlasticT web = PlasticAxisOfT(2900, 100, 10, 190, 10);
  EXPECT_NEAR(web.y, 55, 1e-12);
  EXPECT_NEAR(web.Wply, 45 * 45 * 5 + 50 * 1000 + 145 * 145 * 5, 1e-6);
}

}  // namespace
}  // namespace korvane
