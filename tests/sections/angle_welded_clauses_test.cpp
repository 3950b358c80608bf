// SPDX-License-Identifier: GPL-3.0-or-later
// Angles about their principal axes, and welded I sections: capacities, class and effective
// section worked out from the clauses.
#include <gtest/gtest.h>

#include <cmath>

#include "sections/elements.h"
#include "sections/p10bas.h"
#include "sections/p22bas.h"
#include "tests/sections/section_support.h"

namespace korvane {
namespace {

using testing::ExpectClose;
using testing::kFd;
using testing::Made;
using testing::Rho;

TEST(AngleClauses, EqualLegsCapacities) {
  Made m(10);
  m.st.idxLeq = 20;
  m.All();
  const double t = m.rec.tw, b = m.rec.b;
  const double half = std::sqrt(0.5);
  ExpectClose(m.rec.v3, b * half - t / 2 * half, "v3");
  EXPECT_EQ(double(m.rec.v1), double(m.rec.v3));
  ExpectClose(m.rec.u3, b * half - m.rec.u2 + t / 2 * half, "u3");
  EXPECT_EQ(double(m.rec.u1), double(m.rec.u3));
  ExpectClose(m.rec.Ix, t * t * t * (b - t / 2) * 2 / 3, "Ix");
  ExpectClose(m.rec.g, (4 * b - 2 * m.rec.r + M_PI * m.rec.r / 2) / 1000, "g");
  ExpectClose(m.rec.Mud1, m.rec.Iu / m.rec.v1 * kFd / 1E6, "Mud1");
  ExpectClose(m.rec.Mvd1, m.rec.Iv / m.rec.u3 * kFd / 1E6, "Mvd1");
  ExpectClose(m.rec.Mvd2, m.rec.Iv / m.rec.u2 * kFd / 1E6, "Mvd2");
  EXPECT_EQ(double(m.rec.Mvd3), double(m.rec.Mvd1));
  ExpectClose(m.rec.Vdz, (b - t) / 1.5 * t * kFd / std::sqrt(3.0) / 1000, "Vdz");
  EXPECT_EQ(double(m.rec.Vdy), double(m.rec.Vdz));
  ExpectClose(m.rec.Ntd, kFd * m.rec.A / 1000, "Ntd");
}

TEST(AngleClauses, UnequalLegsCapacities) {
  Made m(11);
  m.st.idxLuneq = 25;
  m.All();
  const double t = m.rec.tw, b = m.rec.b, h = m.rec.h, ey = m.rec.ey, ez = m.rec.ez;
  const double s = std::sin(m.rec.alfadeg * M_PI / 180), k = std::cos(m.rec.alfadeg * M_PI / 180);
  const double v2 = ez * k - ey * s, v3 = b * s + v2 - t / 2 * k, v1 = h * k - v2 - t / 2 * s;
  const double u2 = m.rec.u2, u3 = b * k - u2 + t / 2 * s, u1 = h * s - u2 + t / 2 * k;
  ExpectClose(m.rec.Ix, t * t * t * (b + h - t) / 3, "Ix");
  ExpectClose(m.rec.Mud1, m.rec.Iu / v1 * kFd / 1E6, "Mud1");
  ExpectClose(m.rec.Mud2, m.rec.Iu / v2 * kFd / 1E6, "Mud2");
  ExpectClose(m.rec.Mud3, m.rec.Iu / v3 * kFd / 1E6, "Mud3");
  ExpectClose(m.rec.Mvd1, m.rec.Iv / u1 * kFd / 1E6, "Mvd1");
  ExpectClose(m.rec.Mvd2, m.rec.Iv / u2 * kFd / 1E6, "Mvd2");
  ExpectClose(m.rec.Mvd3, m.rec.Iv / u3 * kFd / 1E6, "Mvd3");
  ExpectClose(m.rec.Vdz, (h - t) / 1.5 * t * kFd / std::sqrt(3.0) / 1000, "Vdz");
  ExpectClose(m.rec.Vdy, (b - t) / 1.5 * t * kFd / std::sqrt(3.0) / 1000, "Vdy");
}

TEST(AngleClauses, ClassFourLowersCompressionAlone) {
  for (const int family : {10, 11}) {
    SCOPED_TRACE(family);
    Made stocky(family), slender(family);
    for (Made* m : {&stocky, &slender}) {
      m->st.idxLeq = 0;
      m->st.idxLuneq = 0;
      m->st.IgnoreFlangeBuckling = 1;  // no option spares an angle
      m->st.IgnoreWebBuckling = 1;
      m->Load();
    }
    slender.st.epsilon = 0.3;
    slender.family().routines.effective(slender.st, slender.rec);
    stocky.family().routines.effective(stocky.st, stocky.rec);
    const SectionRecord& r = slender.rec;
    EXPECT_EQ(int(r.class_), 4);
    EXPECT_EQ(int(stocky.rec.class_), 1);
    const double eps = 0.3, t = r.tw;
    const double lost = family == 10 ? 2 * r.b * (1 - Rho(r.b / t, eps, 0.43)) * t
                                     : r.b * (1 - Rho(r.b / t, eps, 0.43)) * t +
                                           r.h * (1 - Rho(r.h / t, eps, 0.43)) * t;
    ASSERT_GT(lost, 0);
    ExpectClose(r.Aeff, r.A - lost, "Aeff");
    ExpectClose(r.Ncrd, (r.A - lost) * kFd / 1000, "Ncrd");
    EXPECT_EQ(double(r.Ntd), double(stocky.rec.Ntd));
    EXPECT_EQ(double(r.Mud1), double(stocky.rec.Mud1));
    EXPECT_EQ(double(r.Mvd2), double(stocky.rec.Mvd2));
  }
}

TEST(AngleClauses, UnequalLegsAreClassOneUpToTheMeanOfBoth) {
  Made m(11);
  m.Load();
  const double mean = (m.rec.b + m.rec.h) / (2 * m.rec.tw);
  m.st.epsilon = mean / 11.5 * (1 + 1e-6);
  UnequalAngleCapacities(m.st, m.rec);
  EXPECT_EQ(int(m.rec.class_), 1);
  m.st.epsilon = mean / 11.5 * (1 - 1e-6);
  UnequalAngleCapacities(m.st, m.rec);
  EXPECT_EQ(int(m.rec.class_), 4);
}

TEST(WeldedClauses, ConstantsOfADoubleSymmetricI) {
  Made m(21);  // 600 x 300, 12, 20
  m.All();
  EXPECT_EQ(double(m.rec.r), 0);  // the throat of the weld is worked out and dropped
  ExpectClose(m.rec.g, (80 + 600 + 576 + 1120) / 1000.0, "g");
  ExpectClose(m.rec.S, 7850 * 18720 * 1E-6, "S");
  ExpectClose(m.rec.Wplz, 36.0 * 1120 / 2 + 4 * 22500. * 20 / 2, "Wplz");
  ExpectClose(m.rec.Iw, std::pow(300, 3) * 20 / 24 * 580. * 580, "Iw");
  ExpectClose(m.rec.Welz, m.rec.Iz / 150, "Welz");
  EXPECT_EQ(double(m.rec.c), 144);
  EXPECT_EQ(double(m.rec.d), 560);
  EXPECT_EQ(double(m.rec.tmax), 20);
  EXPECT_EQ(double(m.rec.Avz), 12 * 560);
}

TEST(WeldedClauses, ClassTakesTheOuterFibreOfTheFlange) {
  Made m(21);
  m.Load();
  m.rec.tf = 6.0;
  for (const double N : {-800., 0., 500.}) {
    for (const double Mz : {0., 40.}) {
      SCOPED_TRACE(N + Mz);
      const double My = 150;
      const double sN = N * 1000 / m.rec.A;
      const double flange = My * 1E6 / m.rec.Iy * 300;
      const double web = My * 1E6 / m.rec.Iy * (300 - 6);
      const double tip = Mz * 1E6 / m.rec.Iz * 150, root = Mz * 1E6 / m.rec.Iz * (150 - 144);
      const double eps = m.st.epsilon;
      const int expected = std::max(
          InternalClass(-web - sN, web - sN, 560 / 12.0, eps, ZeroStress::Compressed),
          OutstandClass(-flange - tip - sN, -root - flange - sN, 24, eps, kWeldedOutstand));
      m.ClassFor(N, My, Mz);
      EXPECT_EQ(int(m.rec.class_), expected);
    }
  }
}

TEST(WeldedClauses, ConstantsOfASingleSymmetricI) {
  Made m(22);
  m.st.p22_b = 400.0;
  m.st.p22_b2 = 200.0;
  m.st.p22_tf1 = 16.0;
  m.st.p22_tf2 = 24.0;
  m.All();
  EXPECT_EQ(double(m.rec.c1), 194);
  EXPECT_EQ(double(m.rec.c2), 94);
  EXPECT_EQ(double(m.rec.d), 560);
  ExpectClose(m.rec.g, (2 * (200 + 400 + 600) - 24) / 1000.0, "g");
  EXPECT_EQ(double(m.rec.tmax), 24);
  const double I1 = std::pow(400, 3) * 16 / 12, I2 = std::pow(200, 3) * 24 / 12;
  const double hs = 600 - 8 - 12;
  ExpectClose(m.rec.Iw, I1 * I2 * hs * hs / (I1 + I2), "Iw");
  const double beta = I1 / (I1 + I2);
  ExpectClose(m.rec.betafTop, beta, "betaf");
  ExpectClose(m.rec.betafBottom, 1 - beta, "betaf");
  ExpectClose(m.rec.zs, beta * hs + 12 - (600 - double(m.rec.ezel)), "zs");
  ExpectClose(m.rec.zjTop, 0.4 * (2 * beta - 1) * hs, "zj");
  ExpectClose(m.rec.zjBottom, 0.5 * (1 - 2 * beta) * hs, "zj");
}

TEST(WeldedClauses, EffectiveAreaOfASingleSymmetricI) {
  for (const int options : {0, 1, 2}) {
    Made m(22);
    m.st.p22_b = 500.0;
    m.st.p22_tw = 6.0;
    m.st.p22_tf1 = 10.0;
    m.st.IgnoreFlangeBuckling = options == 1;
    m.st.IgnoreWebBuckling = options == 2;
    m.All();
    const double eps = m.st.epsilon;
    const double rho1 = options == 1 ? 1 : Rho(247 / 10.0, eps, 0.43);
    const double rho2 = options == 1 ? 1 : Rho(147 / 20.0, eps, 0.43);
    const double rhow = options == 2 ? 1 : Rho(570 / 6.0, eps, 4);
    ExpectClose(
        m.rec.Aeff,
        m.rec.A - 2 * 247 * (1 - rho1) * 10 - (1 - rhow) * 570 * 6 - 2 * 147 * (1 - rho2) * 20,
        "Aeff");
  }
}

TEST(WeldedClauses, ASingleSymmetricIHasItsWebClassByTheSignOfTheMoment) {
  Made m(22);
  m.st.p22_b = 500.0;
  m.st.p22_tw = 5.0;
  m.All();
  m.st.IgnoreFlangeBuckling = 1;
  const double ez = m.rec.ezel, Iy = m.rec.Iy;
  for (const double My : {-80., 0., 80.}) {
    for (const double N : {-300., 0., 200.}) {
      SCOPED_TRACE(My);
      const double bent = My == 0 ? 1 : My;
      const double sN = N * 1000 / m.rec.A;
      const double s1 = -bent * 1E6 / Iy * (ez - 20) - sN;
      const double s2 = bent * 1E6 / Iy * (600 - ez - 20) - sN;
      m.ClassFor(N, My, 0);
      EXPECT_EQ(int(m.rec.classTop),
                InternalClass(s1, s2, 560 / 5.0, m.st.epsilon, ZeroStress::Compressed));
    }
  }
}

}  // namespace
}  // namespace korvane
