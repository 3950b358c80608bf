// SPDX-License-Identifier: GPL-3.0-or-later
// Welded sections are summed from plates that meet: a web's height is what the flanges leave, not
// the rounded field hw. The expected figures come from exact fractions of the typed dimensions.
#include "section_support.h"

namespace korvane::testing {
namespace {

TEST(PlateHeights, SingleSymmetricWalkTurnsOnTheWholeWeb) {
  Made m(22);
  m.st.p22_h = 1323;
  m.st.p22_b = 1002;
  m.st.p22_b2 = 1002;
  m.st.p22_tw = 30;
  m.st.p22_tf1 = 43.6;
  m.st.p22_tf2 = 7.6;
  m.Load();
  // At 1244.7 mm above the bottom the area below is half the sum and 0.0007 mm2 more.
  EXPECT_NEAR(double(m.rec.ezpl), 78.3, 1e-3);
}

TEST(PlateHeights, HsqWalkTurnsOnTheWholeWeb) {
  Made m(24);
  m.st.p24_h = 1091;
  m.st.p24_b = 300;
  m.st.p24_tw = 9.3;
  m.st.p24_tf1 = 7.8;
  m.st.p24_tf2 = 28.4;
  m.st.p24_a = 42.4;
  m.st.p24_c = 8.8;
  m.Load();
  // At 382.4 mm above the bottom 0.00013 mm2 are missing to half the sum.
  EXPECT_NEAR(double(m.rec.ezpl), 736.9, 1e-3);
}

TEST(PlateHeights, ShearCentreNearTheElasticAxisKeepsItsDigits) {
  Made m(22);
  m.st.p22_h = 1097;
  m.st.p22_b = 849;
  m.st.p22_b2 = 936;
  m.st.p22_tw = 8.6;
  m.st.p22_tf1 = 14.5;
  m.st.p22_tf2 = 7.4;
  m.Load();
  EXPECT_NEAR(double(m.rec.zs), -0.1210834, 1e-5);
}

TEST(PlateHeights, AsymmetryOfNearlyEqualFlangesKeepsItsDigits) {
  Made m(22);
  m.st.p22_h = 1000;
  m.st.p22_b = 300;
  m.st.p22_b2 = 299.9;
  m.st.p22_tw = 12;
  m.st.p22_tf1 = 20;
  m.st.p22_tf2 = 20;
  m.Load();
  // 0.4 and 0.5 times (2*betaf - 1)*hs, with the share of the flange not rounded to single.
  EXPECT_NEAR(double(m.rec.zjTop), 0.1960446, 2e-6);
  EXPECT_NEAR(double(m.rec.zjBottom), -0.2450558, 2e-6);
}

}  // namespace
}  // namespace korvane::testing
