// SPDX-License-Identifier: GPL-3.0-or-later
// Rectangular hollow sections: dimensions, effective section about both axes with the options as
// they lie, class of webs and flanges, shear both ways, interaction.
#include <gtest/gtest.h>

#include <cmath>

#include "sections/elements.h"
#include "sections/p06bas.h"
#include "tests/sections/section_support.h"

namespace korvane {
namespace {

using testing::ExpectClose;
using testing::Made;
using testing::Rho;

/// A record of round numbers: 300 x 200, walls 5.
Made Slender(int16 noFlange, int16 noWeb) {
  Made m(7);
  m.Load();
  m.st.IgnoreFlangeBuckling = noFlange;
  m.st.IgnoreWebBuckling = noWeb;
  m.rec.h = 300.0;
  m.rec.b = 200.0;
  m.rec.tw = 5.0;
  m.rec.tf = 5.0;
  m.rec.d = 285.0;
  m.rec.c = 185.0;
  m.rec.hw = 290.0;
  m.rec.bw = 190.0;
  m.rec.A = 4900.0;
  m.rec.Iy = 6.6E7;
  m.rec.Iz = 3.5E7;
  return m;
}

/// Effective modulus: width of the compressed element, walls at the sides, as the clause has it.
double Modulus(double depth, double side, double A, double I, double element, double wall,
               double rhoElement, double clear, double sideRatio, double eps, bool noSide) {
  const double F = (1 - rhoElement) * element * wall;
  const double A1 = A - F;
  const double e1 = (depth * A / 2 - F * wall / 2) / A1;
  const double hc = e1 - wall;
  const double psi = -(clear - hc) / hc;
  const double rho = noSide ? 1 : Rho(sideRatio, eps, 7.81 - 6.29 * psi + 9.78 * psi * psi);
  const double strip = 2 * side * (1 - rho) * hc;
  const double A2 = A1 - strip;
  const double mid = e1 - 0.6 * rho * hc - (1 - rho) * hc / 2;
  const double e2 = (depth * A / 2 - strip * mid - F * wall / 2) / A2;
  const double inertia = depth * depth * A / 4 + I - 2 * side * std::pow((1 - rho) * hc, 3) / 12 -
                         strip * mid * mid - F * wall * wall / 12 - F * wall * wall / 4;
  return (inertia - A2 * e2 * e2) / e2;
}

TEST(HollowClauses, EffectiveSectionAndItsOptions) {
  for (const int options : {0, 1, 2, 3}) {
    SCOPED_TRACE(options);
    const bool noFlange = (options & 1) != 0;
    const bool noWeb = (options & 2) != 0;
    Made m = Slender(noFlange, noWeb);
    BoxEffectiveSection(m.st, m.rec);
    const double eps = m.st.epsilon;
    const double rhof = noFlange ? 1 : Rho(37, eps, 4);
    const double rhow = noWeb ? 1 : Rho(57, eps, 4);
    // About z a web is the compressed element, and it is the flange option that spares it.
    const double rhoz = noFlange ? 1 : Rho(57, eps, 4);
    ExpectClose(m.rec.Aeff, 4900 - 2 * 185 * (1 - rhof) * 5 - (1 - rhow) * 2 * 285 * 5, "Aeff");
    ExpectClose(m.rec.Weffy, Modulus(300, 5, 4900, 6.6E7, 185, 5, rhof, 290, 57, eps, noWeb),
                "Weffy");
    ExpectClose(m.rec.Weffz, Modulus(200, 5, 4900, 3.5E7, 285, 5, rhoz, 190, 37, eps, noWeb),
                "Weffz");
  }
}

TEST(HollowClauses, BothWallsAreInternalElements) {
  Made m = Slender(0, 0);
  const double My = 20, Mz = 12;
  for (const double N : {-400., -100., 0., 100., 400.}) {
    SCOPED_TRACE(N);
    const double sN = N * 1000 / 4900;
    const double web = My * 1E6 / 6.6E7 * 285 / 2;
    const double webZ = Mz * 1E6 / 3.5E7 * 195 / 2;
    const double flange = My * 1E6 / 6.6E7 * 295 / 2;
    const double flangeZ = Mz * 1E6 / 3.5E7 * 185 / 2;
    const double eps = m.st.epsilon;
    const int webClass =
        InternalClass(-web - webZ - sN, web - webZ - sN, 57, eps, ZeroStress::Mixed);
    const int flangeClass =
        InternalClass(-flange - flangeZ - sN, -flange + flangeZ - sN, 37, eps, ZeroStress::Mixed);
    m.ClassFor(N, My, Mz);
    EXPECT_EQ(int(m.rec.class_), std::max(webClass, flangeClass));
    m.st.IgnoreWebBuckling = 1;
    m.ClassFor(N, My, Mz);
    EXPECT_EQ(int(m.rec.class_), flangeClass);
    m.st.IgnoreWebBuckling = 0;
    m.st.IgnoreFlangeBuckling = 1;
    m.ClassFor(N, My, Mz);
    EXPECT_EQ(int(m.rec.class_), webClass);
    m.st.IgnoreFlangeBuckling = 0;
  }
}

TEST(HollowClauses, DimensionsFollowTheWall) {
  Made m(8);
  m.st.idxCFRHSs = 40;
  m.Load();
  const double t = m.rec.tw, h = m.rec.h;
  EXPECT_EQ(double(m.rec.tf), t);
  EXPECT_NEAR(m.rec.d, h - 3 * t, 1e-4);
  EXPECT_NEAR(m.rec.c, h - 3 * t, 1e-4);
  EXPECT_NEAR(m.rec.hw, h - 2 * t, 1e-4);
  EXPECT_NEAR(m.rec.bw, h - 2 * t, 1e-4);
  EXPECT_NEAR(m.rec.rin, m.rec.r - t, 1e-4);
  Made hot(6);
  hot.Load();
  EXPECT_NEAR(hot.rec.r, 1.5 * hot.rec.tw, 1e-5);
}

TEST(HollowClauses, StockyShearByTheShareOfEachSide) {
  Made m = Slender(0, 0);
  m.st.fyk = 235.0;
  m.st.epsilon = 1;  // 58 and 38 below 60
  HollowShear(m.st, m.rec);
  const double tau = 235 / std::sqrt(3.0) / 1.1 / 1000;
  ExpectClose(m.rec.Vdz, 4900 * 300 / 500.0 * tau, "Vdz");
  ExpectClose(m.rec.Vdzshown, 4900 * 300 / 500.0 * tau, "Vdzshown");
  ExpectClose(m.rec.Vdy, 4900 * 200 / 500.0 * tau, "Vdy");
  ExpectClose(m.rec.Vdyshown, 4900 * 200 / 500.0 * tau, "Vdyshown");
}

TEST(HollowClauses, SlenderShearByTheWalls) {
  Made m = Slender(0, 0);
  m.st.fyk = 460.0;
  m.st.epsilon = 0.5;
  HollowShear(m.st, m.rec);
  const double tau = 460 / std::sqrt(3.0) / 1.1 / 1000;
  ExpectClose(m.rec.Vdz, 2 * 290 * 5 * 0.83 / (58 / 86.4 / 0.5) * tau, "Vdz");
  ExpectClose(m.rec.Vdy, 2 * 190 * 5 * 0.83 / (38 / 86.4 / 0.5) * tau, "Vdy");
}

TEST(HollowClauses, ShearTakesTwoWebsFromTheMoment) {
  Made m = Slender(0, 0);
  m.rec.class_ = 1;
  m.rec.Wply = 6E5;
  m.rec.Wplz = 4E5;
  m.rec.Aeff = 4900.0;
  m.rec.Vdz = 400.0;
  m.rec.Vdy = 300.0;
  m.rec.Avz = 2940.0;
  m.rec.Avy = 1960.0;
  const double fd = 355 / 1.1;
  const double Mdy = 6E5 * fd / 1E6, Mdz = 4E5 * fd / 1E6;
  const auto run = [&](double Vz, double Vy, double N) {
    m.f.Vz = Vz;
    m.f.Vy = Vy;
    m.f.N = N;
    BoxCapacities(m.st, m.f, m.rec);
  };
  run(200, 150, 0);  // exactly half
  ExpectClose(m.rec.Mvdy, Mdy, "Mvdy at half");
  ExpectClose(m.rec.Mvdz, Mdz, "Mvdz at half");
  run(300, 225, 0);
  ExpectClose(m.rec.Mvdy, Mdy - 0.25 * 2940. * 2940 / 4 / 10 * fd / 1E6, "Mvdy");
  ExpectClose(m.rec.Mvdz, Mdz - 0.25 * 1960. * 1960 / 4 / 10 * fd / 1E6, "Mvdz");
  ExpectClose(m.rec.Mfdy, 295 * 200 * 5 * fd / 1E6, "Mfdy");
  ExpectClose(m.rec.Mfdz, 195 * 300 * 5 * fd / 1E6, "Mfdz");
}

TEST(HollowClauses, AxialForceReducesByTheSharesOfTheWalls) {
  Made m = Slender(0, 0);
  m.rec.class_ = 3;
  m.rec.Wply = 6E5;
  m.rec.Wely = 5E5;
  m.rec.Wplz = 4E5;
  m.rec.Welz = 3.5E5;
  m.rec.Aeff = 4900.0;
  m.rec.Vdz = 400.0;
  m.rec.Vdy = 300.0;
  const double fd = 355 / 1.1;
  for (const double n : {0.1, 0.4, 0.8}) {
    SCOPED_TRACE(n);
    m.f.N = n * 4900 * fd / 1000;
    BoxCapacities(m.st, m.f, m.rec);
    const double aw = 0.5;                       // 1 - 2*200*5/4900 = 0.59 is too much
    const double af = 1 - 2 * 300 * 5 / 4900.0;  // 0.388
    const double y = (1 - n) / (1 - 0.5 * aw);
    const double z = (1 - n) / (1 - 0.5 * af);
    ExpectClose(m.rec.Mndy, std::min(y, 1.0) * 5E5 * fd / 1E6, "Mndy");
    ExpectClose(m.rec.Mndypl, std::min(y, 1.0) * 6E5 * fd / 1E6, "Mndypl");
    ExpectClose(m.rec.Mndz, std::min(z, 1.0) * 3.5E5 * fd / 1E6, "Mndz");
    // The plastic value about z has no upper limit.
    ExpectClose(m.rec.Mndzpl, z * 4E5 * fd / 1E6, "Mndzpl");
    EXPECT_NEAR(m.rec.alfa, std::clamp(1.66 / (1 - 1.13 * n * n), 1.0, 6.0), 1e-4);
    EXPECT_EQ(double(m.rec.beta), double(m.rec.alfa));
  }
}

}  // namespace
}  // namespace korvane
