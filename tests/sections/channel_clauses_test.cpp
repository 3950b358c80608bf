// SPDX-License-Identifier: GPL-3.0-or-later
// Channels: surface, class under bending about z, effective section with one flange compressed.
#include <gtest/gtest.h>

#include <cmath>

#include "sections/elements.h"
#include "tests/sections/section_support.h"

namespace korvane {
namespace {

using testing::ExpectClose;
using testing::Made;
using testing::Rho;

TEST(ChannelClauses, SurfacesFollowTheOutline) {
  Made upe(5);  // UPE80: h 80, b 50, tw 4, tf 7, r 10
  upe.Load();
  ExpectClose(upe.rec.g, (100 + 80 + 14 + 2 * 36 + (80 - 14 - 20) + 10 * M_PI) / 1000, "UPE");
  Made unp(16);  // UNP80: h 80, b 45, tw 6, tf 8, r1 8, r2 4
  unp.Load();
  const double slope = 45 * std::sin(8 * M_PI / 180);
  const double round = 2 * (4 - M_PI);
  ExpectClose(unp.rec.g, (90 + 80 + 16 + 2 * 31 + (80 - 16 - 16 - slope) + 8 * M_PI - round) / 1000,
              "UNP");
}

TEST(ChannelClauses, SlendernessLengthsOfEachSeries) {
  Made upe(5);
  upe.Load();
  EXPECT_EQ(double(upe.rec.d), 80 - 2 * (10 + 7));
  EXPECT_EQ(double(upe.rec.c), 50);
  EXPECT_EQ(double(upe.rec.hw), 66);
  Made unp(16);
  unp.Load();
  EXPECT_EQ(double(unp.rec.d), 80 - 2 * (8 + 8));
  EXPECT_EQ(double(unp.rec.c), 45 - 8);
  Made pfc(103);  // PFC 430x100x64: b 100, tw 11, tf 19, r 15
  pfc.Load();
  EXPECT_EQ(double(pfc.rec.d), 430 - 2 * (19 + 15));
  EXPECT_EQ(double(pfc.rec.c), 100 - 11 - 15);
}

TEST(ChannelClauses, TipsInTensionPutTheFlangeInTheMixedTest) {
  // Mz alone: the tip has -|Mz|*(b - e)/Iz, the back +|Mz|*e/Iz: one sign each.
  Made m(5);
  m.st.idxUPE = 13;
  m.st.fyk = 460.0;
  m.All();
  const double e = m.rec.e;
  const double b = m.rec.b;
  const double alpha = (b - e) / b;
  const double psi = -e / (b - e);
  const double f = m.rec.c / m.rec.tf;
  const double eps = m.st.epsilon;
  const double k = 0.57 - 0.21 * psi + 0.07 * psi * psi;
  const int expected = f < 10 * eps                   ? 1
                       : f < 11 * eps / alpha         ? 2
                       : f <= 23 * eps * std::sqrt(k) ? 3
                                                      : 4;
  m.st.IgnoreWebBuckling = 1;
  m.ClassFor(0, 0, 10);
  EXPECT_EQ(int(m.rec.class_), expected);
  // In uniform compression the same flange would be judged by 15 eps.
  m.ClassFor(10, 0, 0);
  EXPECT_EQ(int(m.rec.class_), f < 10 * eps ? 1 : f < 11 * eps ? 2 : f < 15 * eps ? 3 : 4);
}

TEST(ChannelClauses, WebStressEndsAtTheRoots) {
  // Bending and tension: at w = 100 the web passes by the stress at h/2 - tf - r alone.
  Made m(5);
  m.Load();
  m.rec.d = 100.0 * m.rec.tw;
  m.st.IgnoreFlangeBuckling = 1;
  const double s = 10 * 1E6 / double(m.rec.Iy) * (40 - 7 - 10);
  for (const double share : {0.2, 0.5, 0.8}) {
    const double sN = share * s;  // compression
    m.ClassFor(sN * m.rec.A / 1000, 10, 0);
    EXPECT_EQ(int(m.rec.class_),
              InternalClass(-s - sN, s - sN, 100, m.st.epsilon, ZeroStress::Compressed));
  }
}

TEST(ChannelClauses, EffectiveSectionLosesOneFlangeAndTheWeb) {
  for (const int option : {0, 1, 2}) {
    SCOPED_TRACE(option);
    Made m(5);
    m.st.idxUPE = 13;  // UPE400
    m.st.fyk = 1200.0;
    m.st.IgnoreFlangeBuckling = option == 1;
    m.st.IgnoreWebBuckling = option == 2;
    m.All();
    const double h = m.rec.h, tw = m.rec.tw, tf = m.rec.tf, c = m.rec.c, d = m.rec.d;
    const double A = m.rec.A, Iy = m.rec.Iy, hw = m.rec.hw, eps = m.st.epsilon;
    const double rhof = option == 1 ? 1 : Rho(c / tf, eps, 0.43);
    const double rhow = option == 2 ? 1 : Rho(d / tw, eps, 4);
    if (option != 1) {
      ASSERT_LT(rhof, 1);
    }
    ExpectClose(m.rec.Aeff, A - 2 * c * (1 - rhof) * tf - (1 - rhow) * d * tw, "Aeff");
    const double F = (1 - rhof) * c * tf;
    const double A1 = A - F;
    const double e1 = (h * A / 2 - F * tf / 2) / A1;
    const double hc = e1 - tf;
    const double psi = -(hw - hc) / hc;
    const double rho = option == 2 ? 1 : Rho(d / tw, eps, 7.81 - 6.29 * psi + 9.78 * psi * psi);
    const double strip = (1 - rho) * tw * hc;
    const double A2 = A1 - strip;
    const double mid = e1 - 0.6 * rho * hc - (1 - rho) * hc / 2;
    const double e2 = (h * A / 2 - strip * mid - F * tf / 2) / A2;
    const double I = h * h * A / 4 + Iy - tw * std::pow((1 - rho) * hc, 3) / 12 -
                     strip * mid * mid - F * tf * tf / 12 - F * tf * tf / 4;
    EXPECT_NEAR(m.rec.Weffy, (I - A2 * e2 * e2) / e2, 1e-5 * m.rec.Weffy);
    EXPECT_EQ(double(m.rec.Weffz), double(m.rec.Welz));
  }
}

TEST(ChannelClauses, StockyShearAreaHasOneRoot) {
  Made m(5);
  m.All();
  ExpectClose(m.rec.Avz, 1006.9 - 2 * 50 * 7 + (4 + 10) * 7, "Avz");
}

}  // namespace
}  // namespace korvane
