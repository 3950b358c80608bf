// SPDX-License-Identifier: GPL-3.0-or-later
// Hollow sections: corners, classes of the two wall pairs, effective section about both axes,
// shear of the walls (also those of boxes), and the interaction with its one missing limit.
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
using testing::YieldFor;

/// RHS 200 x 100 x 5, hot formed.
Made Rectangular() {
  Made m(7);
  const CatalogueTable& t = SourceLibrary()->catalogues[Cat::RHS];
  int row = 0;
  while (!(t(row, 1) == 200 && t(row, 2) == 100 && t(row, 3) == 5)) ++row;
  m.st.idxRHSr = row;
  return m;
}

double ShearOf(double area, double fyk) {
  return area * fyk / std::sqrt(3.0) / 1.1 / 1000;
}

TEST(HollowDimensions, CornersFollowTheFamilyAndTheSurfaceDoesNot) {
  for (const int type : {6, 7, 8, 9}) {
    SCOPED_TRACE(type);
    Made m(type);
    m.st.idxRHSs = m.st.idxRHSr = m.st.idxCFRHSs = m.st.idxCFRHSr = 60;
    m.Load();
    const double h = m.rec.h, b = m.rec.b, t = m.rec.tw;
    const double r = type < 8 ? 1.5 * t : t <= 6 ? 2 * t : t <= 10 ? 2.5 * t : 3 * t;
    EXPECT_NEAR(m.rec.r, r, 1e-4);
    EXPECT_NEAR(m.rec.rin, r - t, 1e-4);
    EXPECT_NEAR(m.rec.d, h - 3 * t, 1e-4);
    EXPECT_NEAR(m.rec.c, b - 3 * t, 1e-4);
    EXPECT_NEAR(m.rec.hw, h - 2 * t, 1e-4);
    EXPECT_NEAR(m.rec.bw, b - 2 * t, 1e-4);
    EXPECT_NEAR(m.rec.g, (2 * (h + b) - 20 * t + 15.707963 * t) / 1000, 1e-6);
  }
}

TEST(HollowDimensions, TurningTwiceRestoresTheSection) {
  Made m = Rectangular();
  m.Load();
  const SectionRecord before = m.rec;
  m.st.RhsOrientation = 0;
  m.Load();
  EXPECT_EQ(double(m.rec.h), 100);
  EXPECT_NEAR(m.rec.Wely, before.Iz / 50, 1);
  m.st.RhsOrientation = 1;
  m.Load();
  EXPECT_EQ(double(m.rec.h), 200);
  EXPECT_EQ(double(m.rec.b), 100);
  EXPECT_EQ(double(m.rec.Iy), double(before.Iy));
  EXPECT_EQ(double(m.rec.Iz), double(before.Iz));
  EXPECT_EQ(double(m.rec.Wply), double(before.Wply));
  EXPECT_EQ(double(m.rec.Wplz), double(before.Wplz));
}

TEST(HollowDimensions, ATurnedSectionKeepsItsName) {
  Made m = Rectangular();
  const Catalogues& cat = SourceLibrary()->catalogues;
  EXPECT_EQ(SectionTitle(m.st, cat), "RHS  200x 100x 5");
  m.st.RhsOrientation = 0;
  EXPECT_EQ(SectionTitle(m.st, cat), "RHS  200x 100x 5");
}

// A square tube bent about y alone, its flange left out: half of the web is compressed and the
// far edge as much in tension, so 72, 83 and 62*2*1 = 124 times eps are the limits.
TEST(HollowClass, TheWebOfABentSquareTubeIsHalfCompressed) {
  const auto at = [](double limit) {
    Made m(6);
    m.st.idxRHSs = 40;
    m.st.IgnoreFlangeBuckling = 1;
    m.Load();
    m.st.fyk = YieldFor(m.rec.d / m.rec.tw, limit);
    m.Load();
    m.ClassFor(0, 10, 0);
    return int(m.rec.class_);
  };
  EXPECT_EQ(at(71.9), 1);
  EXPECT_EQ(at(72.1), 2);
  EXPECT_EQ(at(82.9), 2);
  EXPECT_EQ(at(83.1), 3);
  EXPECT_EQ(at(123.9), 3);
  EXPECT_EQ(at(124.1), 4);
}

// My and Mz together: the web has the moment about z at the distance (b - tw)/2 = 47.5 and its
// own ends at d/2 = 92.5; the flange has c/2 = 42.5 and (h - tf)/2 = 97.5 (mm).
TEST(HollowClass, BothMomentsActOnBothWalls) {
  const auto classAt = [](double limit, bool web) {
    Made m = Rectangular();
    m.Load();
    m.st.IgnoreFlangeBuckling = web;
    m.st.IgnoreWebBuckling = !web;
    m.st.fyk = YieldFor(web ? 185 / 5. : 85 / 5., limit);
    m.Load();
    m.ClassFor(20, 20, 3);
    return int(m.rec.class_);
  };
  Made m = Rectangular();
  m.Load();
  const double y = 20E6 / m.rec.Iy;
  const double z = 3E6 / m.rec.Iz;
  const double N = 20E3 / m.rec.A;
  const double low = y * 92.5 + z * 47.5 + N;
  const double high = y * 92.5 - z * 47.5 - N;
  ASSERT_GT(high, 0);
  const double alpha = low / (low + high);
  ASSERT_GT(alpha, 0.5);
  EXPECT_EQ(classAt(456 / (13 * alpha - 1) * 0.999, true), 2);
  EXPECT_EQ(classAt(456 / (13 * alpha - 1) * 1.001, true), 3);
  // The whole flange is compressed.
  const double psi = (y * 97.5 - z * 42.5 + N) / (y * 97.5 + z * 42.5 + N);
  ASSERT_GT(psi, 0);
  EXPECT_EQ(classAt(126 / (2 + psi) * 0.999, false), 3);
  EXPECT_EQ(classAt(126 / (2 + psi) * 1.001, false), 4);
}

class HollowEffective : public ::testing::TestWithParam<std::pair<int, int>> {};

// About z the web is the compressed element and goes by the option of flanges; the flanges are
// bent like webs and go by the option of webs.
TEST_P(HollowEffective, OptionsStayWithTheRoleOfAWall) {
  const auto [noFlange, noWeb] = GetParam();
  Made m = Rectangular();
  m.st.fyk = 16000.0;
  m.st.IgnoreFlangeBuckling = noFlange;
  m.st.IgnoreWebBuckling = noWeb;
  m.All();
  const SectionRecord& r = m.rec;
  const double eps = std::sqrt(235. / 16000);
  const double flange = (1 - Rho(17, eps, 4)) * 85;
  const double web = (1 - Rho(37, eps, 4)) * 185;
  ASSERT_GT(flange, 5);
  EXPECT_NEAR(r.Aeff, r.A - (noFlange ? 0 : 10 * flange) - (noWeb ? 0 : 10 * web), 0.02);
  const Bending y =
      Bend({r.A, r.Iy, 100}, noFlange ? 0 : flange, 5, {10, 190, 37}, eps, noWeb == 1);
  EXPECT_NEAR(r.Weffy, y.W(), r.Wely * 2e-5);
  const Bending z = Bend({r.A, r.Iz, 50}, noFlange ? 0 : web, 5, {10, 90, 17}, eps, noWeb == 1);
  EXPECT_NEAR(r.Weffz, z.W(), r.Welz * 2e-5);
  EXPECT_EQ(z.W() < 0.999 * r.Welz, !(noFlange && noWeb));
}

INSTANTIATE_TEST_SUITE_P(Options, HollowEffective,
                         ::testing::Values(std::pair{0, 0}, std::pair{1, 0}, std::pair{0, 1},
                                           std::pair{1, 1}));

TEST(HollowShear, StockyWallsShareTheAreaByTheirLengths) {
  Made m = Rectangular();
  m.All();
  EXPECT_NEAR(m.rec.Avz, m.rec.A * 2 / 3, 1e-2);
  EXPECT_NEAR(m.rec.Avy, m.rec.A / 3, 1e-2);
  EXPECT_NEAR(m.rec.Vdz, ShearOf(m.rec.A * 2 / 3, 355), 1e-2);
  EXPECT_NEAR(m.rec.Vdyshown, ShearOf(m.rec.A / 3, 355), 1e-2);
  EXPECT_EQ(double(m.rec.Vdy), double(m.rec.Vdyshown));
}

// Stiffeners at 90 mm, that is a/d = 1 for the walls along y (k = 9.34) and 90/190 for those
// along z (k = 4 + 5.34*(190/90)^2 = 27.80). The shown values stay those without.
TEST(HollowShear, StiffenersCountForBothDirections) {
  Made m = Rectangular();
  m.st.fyk = 10000.0;
  m.All();
  const double eps = std::sqrt(235. / 10000);
  const double z = 38 / 86.4 / eps;
  const double y = 18 / 86.4 / eps;
  EXPECT_NEAR(m.rec.Vdz, ShearOf(1900 * 0.83 / z, 10000), 0.05);
  EXPECT_NEAR(m.rec.Vdy, ShearOf(900 * 0.83 / y, 10000), 0.05);
  const double shownZ = m.rec.Vdzshown;
  m.st.WebStiffener = 1;
  m.st.a_webstiff = 90.0;
  m.All();
  const double kz = 4 + 5.34 * std::pow(190. / 90, 2);
  const double stiffZ = 38 / 37.4 / eps / std::sqrt(kz);
  const double stiffY = 18 / 37.4 / eps / std::sqrt(9.34);
  ASSERT_GT(stiffY, 0.83 / 1.05);
  EXPECT_NEAR(m.rec.Vdz, ShearOf(1900 * 0.83 / stiffZ, 10000), 0.05);
  EXPECT_NEAR(m.rec.Vdy, ShearOf(900 * 0.83 / stiffY, 10000), 0.05);
  EXPECT_EQ(double(m.rec.Vdzshown), shownZ);
}

// Box 600 x 600, tw 10, tf 20, plates 50 beyond the webs.
TEST(BoxShear, AlongYTheShownAreaTakesTheWebsThickness) {
  Made m(23);
  m.st.fyk = 235.0;
  m.All();
  const double bw = m.rec.bw;
  ASSERT_LT(bw / 20, 60);
  EXPECT_NEAR(m.rec.Vdyshown, ShearOf(2 * bw * 10, 235), 0.05);
  EXPECT_NEAR(m.rec.Vdy, ShearOf(2 * bw * 20, 235), 0.05);
  EXPECT_NEAR(m.rec.Avy, 2 * bw * 20, 0.05);
}

TEST(BoxShear, ASlenderWallAlongYTakesTheWebsThicknessInBoth) {
  Made m(23);
  m.st.fyk = 399.0;
  m.st.p23_tf = 8.0;
  m.All();
  const double bw = m.rec.bw;
  const double lam = bw / 8 / 86.4 / std::sqrt(235. / 399);
  ASSERT_GT(lam, 0.83 / 1.2);
  EXPECT_NEAR(m.rec.Avy, 2 * bw * 10, 0.05);
  EXPECT_NEAR(m.rec.Vdyshown, ShearOf(2 * bw * 10 * 0.83 / lam, 399), 0.05);
  EXPECT_EQ(double(m.rec.Vdy), double(m.rec.Vdyshown));
}

TEST(HollowCapacity, ShearAlongYTakesOffBothFlanges) {
  Made m = Rectangular();
  m.st.fyk = 235.0;
  m.All();
  const double fd = 235 / 1.1 / 1E6;
  m.ClassFor(0, 0, 10);
  m.f.N = 0.0;
  ASSERT_LE(m.rec.class_, 2);
  m.f.Vy = 0.75 * m.rec.Vdy;
  m.family().routines.capacities(m.st, m.f, m.rec);
  const double Avy = m.rec.A / 3;
  EXPECT_NEAR(m.rec.Mvdz, (m.rec.Wplz - 0.25 * Avy * Avy / 4 / 10) * fd, 1e-3);
  m.f.Vy = 1.5 * m.rec.Vdy;
  m.family().routines.capacities(m.st, m.f, m.rec);
  EXPECT_NEAR(m.rec.Mvdz, (m.rec.Wplz - Avy * Avy / 4 / 10) * fd, 1e-3);
  EXPECT_NEAR(m.rec.Mfdz, 95. * 200 * 5 * fd, 1e-3);
  EXPECT_NEAR(m.rec.Mfdy, 195. * 100 * 5 * fd, 1e-3);
}

// Without axial force 1/(1 - 0.5*a) raises all four; three are held at their moment capacity,
// the plastic one about z is not.
TEST(HollowCapacity, ThePlasticMomentAboutZHasNoUpperLimit) {
  Made m = Rectangular();
  m.st.fyk = 235.0;
  m.All();
  const double fd = 235 / 1.1 / 1E6;
  m.f.N = 0.0;
  m.family().routines.capacities(m.st, m.f, m.rec);
  const double af = std::min(1 - 2000 / m.rec.A, 0.5);
  ASSERT_GT(af, 0.2);
  EXPECT_NEAR(m.rec.Mndzpl, m.rec.Wplz * fd / (1 - af / 2), 1e-3);
  EXPECT_NEAR(m.rec.Mndypl, m.rec.Wply * fd, 1e-3);
  EXPECT_EQ(double(m.rec.Mndz), double(m.rec.Mdz));
  EXPECT_EQ(double(m.rec.Mndy), double(m.rec.Mdy));
}

// 1 - 2*b*tf/A is 0.66 for the upright section: the web counts with no more than a half.
TEST(HollowCapacity, TheWebsCountWithAHalfAtMost) {
  Made m = Rectangular();
  m.st.fyk = 235.0;
  m.All();
  m.f.N = -0.6 * m.rec.Ntd;
  ASSERT_GT(1 - 1000 / m.rec.A, 0.6);
  m.family().routines.capacities(m.st, m.f, m.rec);
  EXPECT_NEAR(m.rec.Mndy, m.rec.Mdy * 0.4 / 0.75, 1e-3);
  const double af = 1 - 2000 / m.rec.A;
  EXPECT_NEAR(m.rec.Mndz, m.rec.Mdz * 0.4 / (1 - af / 2), 1e-3);
}

}  // namespace
}  // namespace korvane
