// SPDX-License-Identifier: GPL-3.0-or-later
// Welded I sections: classes of plates without radius, the two sides of a singly symmetric I, and
// what their routines leave as the section before had it.
#include <gtest/gtest.h>

#include <cmath>

#include "tests/sections/removed_parts.h"
#include "tests/sections/section_support.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

using testing::Bend;
using testing::Bending;
using testing::Made;
using testing::Rho;

/// 700 high, 350 x 25 on top, 200 x 15 below, web 12.
Made Unequal() {
  Made m(22);
  m.st.p22_h = 700.0;
  m.st.p22_b = 350.0;
  m.st.p22_b2 = 200.0;
  m.st.p22_tf1 = 25.0;
  m.st.p22_tf2 = 15.0;
  m.st.p22_tw = 12.0;
  return m;
}

// 600 x 300, web 12, flanges 20: the fillet welds count nowhere.
TEST(WeldedI, HasNoRadiusAndItsTrueOutstand) {
  Made m(21);
  m.rec.r = 12.0;
  m.Load();
  EXPECT_EQ(double(m.rec.r), 0);
  EXPECT_EQ(double(m.rec.c), 144);
  EXPECT_EQ(double(m.rec.d), 560);
  EXPECT_NEAR(m.rec.S, (2 * 6000 + 6720) * 0.00785, 1e-3);
  EXPECT_NEAR(m.rec.g, (80 + 600 + 576 + 1120) / 1000., 1e-6);
  EXPECT_NEAR(m.rec.Iw, 27E6 * 20 / 24 * 580. * 580, 1E8);
  EXPECT_NEAR(m.rec.Welz, (2 * 20 * 27E6 + 560 * 1728) / 12. / 150, 1);
  EXPECT_NEAR(m.rec.Wplz, 36. * 560 + 2 * 22500 * 20, 0.1);
}

TEST(WeldedI, TheShearAreaOfAStockyWebIsTheWeb) {
  for (const int type : {21, 22, 51, 52, 53, 54, 56}) {
    SCOPED_TRACE(type);
    Made m(type);
    m.st.fyk = 100.0;
    m.All();
    ASSERT_LT(m.rec.hw / m.rec.tw, 60 * std::sqrt(2.35));
    EXPECT_NEAR(m.rec.Avz, m.rec.hw * m.rec.tw, 1e-2);
    EXPECT_NEAR(m.rec.Vdz, m.rec.hw * m.rec.tw * 100 / std::sqrt(3.0) / 1.1 / 1000, 1e-2);
  }
}

// About z both tip and root of the compressed half are compressed, so 9, 10 and 14 apply; the
// root carries tw/2 only.
TEST(WeldedI, AFlangeBentAboutZIsCompressedOverItsHalf) {
  const auto at = [](double limit) {
    Made m(21);
    m.st.fyk = 235 / std::pow(144 / 20. / limit, 2);
    m.All();
    m.ClassFor(0, 0, 10);
    return int(m.rec.class_);
  };
  EXPECT_EQ(at(8.99), 1);
  EXPECT_EQ(at(9.01), 2);
  EXPECT_EQ(at(10.01), 3);
  EXPECT_EQ(at(14.01), 4);
}

// Tension leaves the tip compressed and the root not: 10/alpha and 21*sqrt(k) then.
TEST(WeldedI, UnderTensionAndBendingTheFlangeIsPartlyCompressed) {
  Made gross(21);
  gross.Load();
  const double tip = 100E6 / gross.rec.Iz * 150 - 500E3 / gross.rec.A;
  const double root = 500E3 / gross.rec.A - 100E6 / gross.rec.Iz * 6;
  ASSERT_GT(tip, 0);
  ASSERT_GT(root, 0);
  const double alpha = tip / (tip + root);
  const double psi = -root / tip;
  const double third = 21 * std::sqrt(0.57 - 0.21 * psi + 0.07 * psi * psi);
  ASSERT_LT(10 / alpha, third);
  const auto at = [](double limit) {
    Made m(21);
    m.st.fyk = 235 / std::pow(144 / 20. / limit, 2);
    m.All();
    m.ClassFor(-500, 0, 100);
    return int(m.rec.class_);
  };
  EXPECT_EQ(at(10 / alpha * 0.999), 2);
  EXPECT_EQ(at(10 / alpha * 1.001), 3);
  EXPECT_EQ(at(third * 0.999), 3);
  EXPECT_EQ(at(third * 1.001), 4);
}

TEST(WeldedI, FortyMillimetresStillHaveTheYieldStressOfThinPlates) {
  Design d(SourceLibrary());
  StartDesign(d);
  d.st.ProfileType = 21;
  d.st.p21_tf = 40.0;
  Calculate(d);
  EXPECT_EQ(double(d.st.fyk), 355);
  d.st.p21_tf = 40.1;
  Calculate(d);
  EXPECT_LT(d.st.fyk, 355);
}

// I1 = 350^3*25/12, I2 = 200^3*15/12, hs = 700 - 12.5 - 7.5 = 680.
TEST(SingleI, WarpingAndShearCentreFollowTheFlanges) {
  Made m = Unequal();
  m.Load();
  const double I1 = 350. * 350 * 350 * 25 / 12;
  const double I2 = 200. * 200 * 200 * 15 / 12;
  const double share = I1 / (I1 + I2);
  EXPECT_NEAR(m.rec.Iw, I1 * I2 / (I1 + I2) * 680 * 680, m.rec.Iw * 1e-6);
  EXPECT_NEAR(m.rec.betafTop, share, 1e-6);
  EXPECT_NEAR(m.rec.betafBottom, 1 - share, 1e-6);
  // Statics of the elastic axis from the lower edge.
  const double A = 8750 + 660 * 12 + 3000;
  const double ybar = (8750 * 687.5 + 7920 * 345. + 3000 * 7.5) / A;
  EXPECT_NEAR(m.rec.zs, share * 680 + 7.5 - ybar, 1e-2);
  EXPECT_NEAR(m.rec.zjTop, 0.4 * (2 * share - 1) * 680, 1e-2);
  EXPECT_NEAR(m.rec.zjBottom, 0.5 * (1 - 2 * share) * 680, 1e-2);
}

TEST(SingleI, WritesTheFieldsThatOtherStepsReadOfAnI) {
  Made m = Unequal();
  m.rec.r = 12.0;
  m.Load();
  EXPECT_EQ(double(m.rec.r), 0);
  EXPECT_EQ(double(m.rec.b), 350);
  EXPECT_EQ(double(m.rec.tf), 25);
  EXPECT_EQ(double(m.rec.c1), 169);
  EXPECT_EQ(double(m.rec.c2), 94);
  EXPECT_EQ(double(m.rec.hw), 660);
  EXPECT_EQ(double(m.rec.d), 660);
  EXPECT_EQ(double(m.rec.tmax), 25);
  EXPECT_NEAR(m.rec.Welz, m.rec.Iz / 175, 1);
  EXPECT_NEAR(m.rec.Wplz, (25 * 350. * 350 + 15 * 200. * 200 + 660 * 144.) / 4, 1);
  EXPECT_EQ(double(m.rec.Afw), 7920);
  EXPECT_EQ(double(m.rec.Afc), 3000);
  EXPECT_NEAR(m.rec.g, (2 * (550 + 700) - 24) / 1000., 1e-6);
  // The wider flange decides, whichever it is.
  m.st.p22_b2 = 400.0;
  m.Load();
  EXPECT_NEAR(m.rec.Welz, m.rec.Iz / 200, 1);
}

// Bottom 2000 x 3, top 5 x 1, web 0.1: half of the area lies below 1.5 mm.
TEST(SingleI, APlasticAxisBelowTwoMillimetresIsTakenAtTwo) {
  Made m(22);
  m.st.p22_h = 50.0;
  m.st.p22_b = 5.0;
  m.st.p22_b2 = 2000.0;
  m.st.p22_tf1 = 1.0;
  m.st.p22_tf2 = 3.0;
  m.st.p22_tw = 0.1;
  m.Load();
  ASSERT_LT(m.rec.A / 2 / 2000, 1.6);
  EXPECT_EQ(double(m.rec.ezpl), 48);
}

/// Class of the web (flanges left out) where it stands at `limit` times eps.
int WebClass(double limit, double N, double My) {
  Made m = Unequal();
  m.st.IgnoreFlangeBuckling = 1;
  m.st.fyk = 235 / std::pow(55 / limit, 2);
  m.All();
  m.ClassFor(N, My, 0);
  EXPECT_EQ(int(m.rec.classTop), int(m.rec.classBottom));
  return m.rec.classTop;
}

/// Share of the web that the class test takes for compressed: the stress at its upper end over
/// the sum of both, N in kN and My in kNm.
double WebShare(double N, double My) {
  Made m = Unequal();
  m.Load();
  const double upper = My * 1E6 / m.rec.Iy * (m.rec.ezel - 25) + N * 1000 / m.rec.A;
  const double lower = My * 1E6 / m.rec.Iy * (700 - m.rec.ezel - 15) - N * 1000 / m.rec.A;
  return upper / (upper + lower);
}

TEST(SingleI, NoMomentIsOneKilonewtonMetreBesideTheAxialForce) {
  const double alpha = WebShare(0.5, 1);
  ASSERT_LT(alpha, 0.5);
  ASSERT_GT(alpha, 1.02 * WebShare(0.5, 2));
  EXPECT_EQ(WebClass(36 / alpha * 0.999, 0.5, 0), 1);
  EXPECT_EQ(WebClass(36 / alpha * 1.001, 0.5, 0), 2);
}

// A hogging moment enters with its sign and the formulas are those of sagging: without N the
// share is the same, and compression lowers it instead of raising it.
TEST(SingleI, AHoggingMomentKeepsTheShareOfTheUpperEnd) {
  const double bending = WebShare(0, 10);
  ASSERT_LT(bending, 0.5);
  for (const double My : {10., -10.}) {
    EXPECT_EQ(WebClass(36 / bending * 0.999, 0, My), 1);
    EXPECT_EQ(WebClass(36 / bending * 1.001, 0, My), 2);
  }
  const double hogging = WebShare(5, -10);
  const double sagging = WebShare(5, 10);
  ASSERT_LT(hogging, 0.98 * bending);
  ASSERT_GT(sagging, 1.02 * bending);
  ASSERT_LT(sagging, 0.5);
  EXPECT_EQ(WebClass(36 / hogging * 0.999, 5, -10), 1);
  EXPECT_EQ(WebClass(36 / hogging * 1.001, 5, -10), 2);
  EXPECT_EQ(WebClass(36 / sagging * 0.999, 5, 10), 1);
  EXPECT_EQ(WebClass(36 / sagging * 1.001, 5, 10), 2);
}

TEST(SingleI, TheOptionsReachItsClasses) {
  Made m = Unequal();
  m.st.fyk = 1500.0;
  m.All();
  m.ClassFor(0, 10, 0);
  ASSERT_EQ(m.rec.classTop, 4);
  m.st.IgnoreFlangeBuckling = 1;
  m.st.IgnoreWebBuckling = 1;
  m.ClassFor(0, 10, 0);
  EXPECT_EQ(m.rec.classTop, 1);
  EXPECT_EQ(m.rec.classBottom, 1);
}

TEST(SingleI, TheOneClassOfOtherSectionsStaysUnwritten) {
  for (const int type : {22, 24, 25, 27, 51, 52, 53, 54, 55, 56}) {
    SCOPED_TRACE(type);
    Made m(type);
    m.rec.class_ = 7;
    m.All();
    EXPECT_EQ(m.rec.class_, 7);
    EXPECT_GE(m.rec.classTop, 1);
  }
}

TEST(SingleI, WritesNoCapacityAboutZ) {
  Made m = Unequal();
  m.rec.Mdz = 61.0;
  m.rec.Mndy = 62.0;
  m.rec.Mndz = 63.0;
  m.All();
  EXPECT_EQ(double(m.rec.Mdz), 61);
  EXPECT_EQ(double(m.rec.Mndy), 62);
  EXPECT_EQ(double(m.rec.Mndz), 63);
}

class SingleEffective : public ::testing::TestWithParam<std::pair<int, int>> {};

TEST_P(SingleEffective, EachSideLosesItsOwnFlangeAndWebStrip) {
  const auto [noFlange, noWeb] = GetParam();
  Made m = Unequal();
  m.st.fyk = 1500.0;
  m.st.IgnoreFlangeBuckling = noFlange;
  m.st.IgnoreWebBuckling = noWeb;
  m.All();
  const SectionRecord& r = m.rec;
  const double eps = std::sqrt(235. / 1500);
  const double top = noFlange ? 0 : 2 * 169 * (1 - Rho(169 / 25., eps, 0.43));
  const double bottom = noFlange ? 0 : 2 * 94 * (1 - Rho(94 / 15., eps, 0.43));
  const double web = noWeb ? 0 : 660 * (1 - Rho(55, eps, 4));
  EXPECT_NEAR(r.Aeff, r.A - 25 * top - 15 * bottom - 12 * web, 0.05);
  const testing::Webs webs{12, 660, 55};
  const Bending t = Bend({r.A, r.Iy, r.ezel}, top, 25, webs, eps, noWeb == 1);
  EXPECT_NEAR(r.Weffy1c, t.I / t.z, r.Wely1 * 1e-5);
  EXPECT_NEAR(r.Weffy2t, t.I / (700 - t.z), r.Wely2 * 1e-5);
  const Bending b = Bend({r.A, r.Iy, 700 - r.ezel}, bottom, 15, webs, eps, noWeb == 1);
  EXPECT_NEAR(r.Weffy2c, b.I / b.z, r.Wely2 * 1e-5);
  EXPECT_NEAR(r.Weffy1t, b.I / (700 - b.z), r.Wely1 * 1e-5);
}

INSTANTIATE_TEST_SUITE_P(Options, SingleEffective,
                         ::testing::Values(std::pair{0, 0}, std::pair{1, 0}, std::pair{0, 1},
                                           std::pair{1, 1}));

TEST(SingleCapacity, EachSideTakesTheModulusOfItsClass) {
  Made m = Unequal();
  m.All();
  const double fd = 355 / 1.1 / 1E6;
  const double elastic = std::min<double>(m.rec.Wely1, m.rec.Wely2) * fd;
  const auto with = [&m](int top, int bottom) {
    m.rec.classTop = top;
    m.rec.classBottom = bottom;
    m.family().routines.capacities(m.st, m.f, m.rec);
  };
  with(2, 3);
  EXPECT_NEAR(m.rec.MdyTop, m.rec.Wply * fd, 0.01);
  EXPECT_NEAR(m.rec.MdyBottom, elastic, 0.01);
  EXPECT_EQ(double(m.rec.Mdy), double(m.rec.MdyBottom));
  // Whichever of the two edges gives less, compressed or in tension.
  m.rec.Weffy1c = 3E6;
  m.rec.Weffy2t = 2E6;
  m.rec.Weffy1t = 1.5E6;
  m.rec.Weffy2c = 1E6;
  with(4, 4);
  EXPECT_NEAR(m.rec.MdyTop, 2 * 355 / 1.1, 0.01);
  EXPECT_NEAR(m.rec.MdyBottom, 1 * 355 / 1.1, 0.01);
  m.st.BendingCapacityMode = 1;
  with(1, 2);
  EXPECT_NEAR(m.rec.MdyTop, elastic, 0.01);
  EXPECT_NEAR(m.rec.MdyBottom, elastic, 0.01);
}

/// Modulus that shear takes off both sides (rho = 0.25) with the plastic axis at ep, mm3.
double ShearedModulus(double ep) {
  Made m = Unequal();
  m.All();
  m.rec.ezpl = ep;
  m.f.Vz = 0.75 * m.rec.Vdz;
  m.family().routines.capacities(m.st, m.f, m.rec);
  EXPECT_NEAR(m.rec.MvdyTop, m.rec.MdyTop - m.rec.Mvred, 1e-3);
  EXPECT_NEAR(m.rec.MvdyBottom, m.rec.MdyBottom - m.rec.Mvred, 1e-3);
  return m.rec.Mvred * 1E6 * 1.1 / 355 / 0.25;
}

// The axis is stored from the top edge and read as if it were measured from the lower one. The
// whole web (660 x 12, its middle at 345) lies on one side of an axis within a flange; else two
// parts of it count, of 700 - 25 - ep and ep - 15.
TEST(SingleCapacity, ShearReadsThePlasticAxisAsStored) {
  EXPECT_NEAR(ShearedModulus(680), 7920. * (680 - 345), 20);
  EXPECT_NEAR(ShearedModulus(10), 7920. * (345 - 10), 20);
  EXPECT_NEAR(ShearedModulus(200), 6. * (475. * 475 + 185. * 185), 20);
}

TEST(SingleCapacity, ShearTakesNothingUpToHalfAndNoMoreThanAll) {
  Made m = Unequal();
  m.All();
  m.f.Vz = 0.5 * m.rec.Vdz;
  m.family().routines.capacities(m.st, m.f, m.rec);
  EXPECT_EQ(double(m.rec.MvdyTop), double(m.rec.MdyTop));
  m.f.Vz = m.rec.Vdz;
  m.family().routines.capacities(m.st, m.f, m.rec);
  const double all = m.rec.Mvred;
  EXPECT_GT(all, 0);
  m.f.Vz = 1.5 * m.rec.Vdz;
  m.family().routines.capacities(m.st, m.f, m.rec);
  EXPECT_NEAR(m.rec.Mvred, all, 1e-4);
}

}  // namespace
}  // namespace korvane
