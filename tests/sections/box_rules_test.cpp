// SPDX-License-Identifier: GPL-3.0-or-later
// Rules of the welded sections with two webs: box, box with unequal flanges and HSQ beams:
// dimensions, shear areas and effective section. What looks odd in them is meant.
#include <gtest/gtest.h>

#include <cmath>

#include "tests/sections/section_support.h"

namespace korvane {
namespace {

using testing::ExpectClose;
using testing::ExpectEffective;
using testing::kFd;
using testing::Made;
using testing::ThinHsq;

const double kEps = std::sqrt(235.0 / 355);

// ---- welded box

// p = 600 - 2*50 - 10 = 490, q = 580: webs p^2*tw = 2.401E6, flanges b*q*tf = 6.96E6;
// q^2/24*(p^2*q*tw + b^3*tf)*((2.401 - 6.96)/(2.401 + 6.96))^2.
TEST(Box, WarpingSurfaceAndWidthBetweenTheWebs) {
  Made m(23);
  m.Load();
  ExpectClose(m.rec.Iw, 580. * 580 / 24 * (2.401E6 * 580 + 4.32E9) * std::pow(4.559 / 9.361, 2),
              "Iw");
  EXPECT_EQ(double(m.rec.bw), 480);
  EXPECT_EQ(double(m.rec.c), 480);
  EXPECT_EQ(double(m.rec.r), 0);
  EXPECT_EQ(double(m.rec.d), 560);
  // Four flange edges, two flange faces, both sides of the four free edges, two webs.
  ExpectClose(m.rec.g, (80 + 1200 + 200 + 1120) / 1000., "g");
  EXPECT_EQ(double(m.rec.tmax), 20);
}

TEST(Box, GoesTheWayOfTheHollowSections) {
  const Family& box = *FindFamily(23);
  const Family& tube = *FindFamily(6);
  EXPECT_EQ(box.routines.effective, tube.routines.effective);
  EXPECT_EQ(box.routines.sectionClass, tube.routines.sectionClass);
  EXPECT_EQ(box.routines.capacities, tube.routines.capacities);
  EXPECT_EQ(box.routines.nominal, tube.routines.nominal);
  EXPECT_NE(box.routines.shear, tube.routines.shear);
}

TEST(Box, TheSignOfAMomentHasNoSayInItsClass) {
  Made m(23);
  m.st.p23_tw = 7.0;
  m.st.p23_tf = 11.0;
  m.All();
  for (const double N : {-500., 0., 2000.}) {
    m.ClassFor(N, 100, 50);
    const int positive = m.rec.class_;
    for (const double My : {-100., 100.}) {
      m.ClassFor(N, My, -50);
      EXPECT_EQ(int(m.rec.class_), positive) << N;
    }
  }
}

TEST(Box, StockyShearAlongYIsShownWithTheWebsAndWorksWithTheFlanges) {
  Made m(23);
  m.All();
  const double perArea = kFd / std::sqrt(3.0) / 1000;
  ExpectClose(m.rec.Vdyshown, 2 * 480 * 10 * perArea, "shown");
  ExpectClose(m.rec.Vdy, 2 * 480 * 20 * perArea, "working");
  EXPECT_EQ(double(m.rec.Avy), 2 * 480 * 20);
}

// bw/tf = 480/8 = 60 is above 72*eps/1.2 = 48.8; lam = 60/86.4/eps.
TEST(Box, ASlenderFlangeShearsWithTheThicknessOfTheWeb) {
  Made m(23);
  m.st.p23_tf = 8.0;
  m.All();
  const double V = 2 * 480 * 10 * (0.83 / (60 / 86.4 / kEps)) * kFd / std::sqrt(3.0) / 1000;
  ExpectClose(m.rec.Vdy, V, "working");
  ExpectClose(m.rec.Vdyshown, V, "shown");
  EXPECT_EQ(double(m.rec.Avy), 2 * 480 * 10);
}

// ---- HSQ and unequal box: dimensions

TEST(Hsq, TheHeightIsMeasuredFromTheTopOfTheBottomPlate) {
  Made m(24);
  m.Load();  // h 285, b 540, tw 6, tf1 25, tf2 15, a 120, c 5
  EXPECT_EQ(double(m.rec.h), 285);
  EXPECT_EQ(double(m.rec.hw), 260);
  EXPECT_EQ(double(m.rec.d), 260);
  EXPECT_EQ(double(m.rec.b), 540);
  EXPECT_EQ(double(m.rec.cm), 540 - 2 * 126);
  EXPECT_EQ(double(m.rec.co), 120);
  EXPECT_EQ(double(m.rec.tmax), 25);
  ExpectClose(m.rec.g, (2 * 300 + 2 * 540) / 1000., "g");
  // 300 in all: the axis from below and from above.
  EXPECT_NEAR(m.rec.ez + m.rec.ezel, 300, 1e-4);
}

TEST(Hsq, OneSidedFlangeHasOneOutstand) {
  Made m(25);
  m.st.p25_tw = 26.0;
  m.Load();  // b1 300, b2 430, a 10
  EXPECT_EQ(double(m.rec.co), 430 - 300 - 10);
  EXPECT_EQ(double(m.rec.cm), 300 - 2 * 26);
  EXPECT_EQ(double(m.rec.b), 430);
  EXPECT_EQ(double(m.rec.b1), 300);
  EXPECT_EQ(double(m.rec.tmax), 26);
  ExpectClose(m.rec.g, (2 * 300 + 2 * 430) / 1000., "g");
}

TEST(UnequalBox, TheWebsStandAtTheirDistance) {
  Made m(27);
  m.st.p27_b1 = 520.0;
  m.Load();  // h 600, b2 600, tw 10, tf 20, a 490
  EXPECT_EQ(double(m.rec.cm), 480);
  EXPECT_EQ(double(m.rec.co), (600 - 490 - 10) / 2);
  EXPECT_EQ(double(m.rec.hw), 560);
  EXPECT_EQ(double(m.rec.b), 600);
  ExpectClose(m.rec.g, (2 * 600 + 2 * 520 + 2 * 600 - 2 * 500) / 1000., "g");
}

TEST(Hsq, WritesNoModuliAboutZNoWarpingAndNoClass) {
  for (const int type : {24, 25, 27}) {
    Made m(type);
    m.rec.Welz = 77.0;
    m.rec.Wplz = 78.0;
    m.rec.Ncrdshown = 79.0;
    m.rec.class_ = 7;
    m.rec.Iw = 80.0;
    m.rec.r = 18.0;
    m.All();
    EXPECT_EQ(double(m.rec.Welz), 77) << type;
    EXPECT_EQ(double(m.rec.Wplz), 78) << type;
    EXPECT_EQ(double(m.rec.Ncrdshown), 79) << type;  // no axial pass
    EXPECT_EQ(int(m.rec.class_), 7) << type;
    EXPECT_EQ(double(m.rec.Iw), 0) << type;
    EXPECT_EQ(double(m.rec.r), 0) << type;
    EXPECT_EQ(double(m.rec.tf), double(m.rec.tf1)) << type;
    EXPECT_EQ(double(m.rec.bw), double(m.rec.cm)) << type;
    EXPECT_EQ(double(m.f.My), 10) << type;
    EXPECT_EQ(double(m.f.Ncl), 0) << type;
  }
}

TEST(Hsq, StockyShearAlongYIsShownByTheShareOfTheWidth) {
  for (const int type : {24, 25, 27}) {
    Made m(type);
    m.All();
    const double perArea = kFd / std::sqrt(3.0) / 1000;
    const SectionRecord& r = m.rec;
    ExpectClose(r.Vdyshown, r.A * r.b / (r.b + r.h) * perArea, "shown");
    ExpectClose(r.Vdy, 2 * r.cm * r.tf1 * perArea, "working");
  }
  Made m(24);
  m.All();  // 260/6 = 43.3 is stocky
  ExpectClose(m.rec.Vdz, 2 * 260 * 6 * kFd / std::sqrt(3.0) / 1000, "z");
}

// ---- effective section: plates so thin that every part is reduced, worked out part by part

// A 21496, Iy 2.446300E9, ez 323.259. Top: 570/8 at k = 4, rho 0.5561, webs 0.4706. Bottom: 570/10,
// rho 0.6661, two outstands 160/10 at k = 0.43, rho 0.7497, webs 0.6552.
TEST(Hsq, TheBottomPlateLosesItsTwoOutstandsToo) {
  Made m = ThinHsq();
  m.All();
  ExpectEffective(m.rec, {2789562.42, 7276508.84, 5417122.55, 4867874.82, 11010.0785});
}

TEST(Hsq, EachOptionSparesItsOwnPlates) {
  Made flange = ThinHsq();
  flange.st.IgnoreFlangeBuckling = 1;
  flange.All();
  ExpectEffective(flange.rec, {4339450.12, 7741305.19, 7318554.62, 5042258.87, 15738.3598});
  Made web = ThinHsq();
  web.st.IgnoreWebBuckling = 1;
  web.All();
  ExpectEffective(web.rec, {3586098.97, 7051228.18, 5779666.69, 4837292.21, 16767.7187});
}

// The own inertia of the removed web strip counts hc cubed, not its part of hc: with the rule of
// the other families Weffy1c would be 2718927, 2.7 % more.
TEST(Hsq, TheOneSidedBeamTakesTheWholeStripsOwnInertia) {
  Made m(25);
  m.st.p25_h = 800.0;
  m.st.p25_b1 = 500.0;
  m.st.p25_b2 = 700.0;
  m.st.p25_tw = 5.0;
  m.st.p25_tf1 = 8.0;
  m.st.p25_tf2 = 10.0;
  m.st.p25_a = 20.0;
  m.st.p25_c = 4.0;
  m.All();
  ExpectEffective(m.rec, {2648114.42, 5770414.08, 4550947.35, 4293504.78, 9842.14232});
}

// Outstands 147.5 above and 247.5 below, two of each.
TEST(UnequalBox, LosesTheOutstandsOfBothFlanges) {
  Made m(27);
  m.st.p27_h = 800.0;
  m.st.p27_b1 = 700.0;
  m.st.p27_b2 = 900.0;
  m.st.p27_tw = 5.0;
  m.st.p27_tf1 = 8.0;
  m.st.p27_tf2 = 10.0;
  m.st.p27_a = 400.0;
  m.All();
  ExpectEffective(m.rec, {3862435.65, 7533331.37, 5321429.55, 5492068.75, 12332.0306});
}

}  // namespace
}  // namespace korvane
