// SPDX-License-Identifier: GPL-3.0-or-later
// Natural frequencies: the mass and the constants of each support.
#include "analysis/modal.h"

#include <gtest/gtest.h>

#include <cmath>

#include "members.h"

namespace korvane {
namespace {

ModalResults Frequencies(const ProjectState& st, double S = 100, double Iy = 1E8) {
  ModalResults out;
  ModalAnalysisRun(st, S, Iy, out);
  return out;
}

TEST(Modal, SimpleBeam) {
  const ModalResults r = Frequencies(BareMember(0, 6));
  EXPECT_EQ(r.ModalMass, 100);
  EXPECT_NEAR(r.ModalFreq[1], 1.57 * std::sqrt(2.1E7 / 129600), 1e-9);
  EXPECT_NEAR(r.ModalFreq[1], 19.98, 0.01);
}

TEST(Modal, ConstantsOfEachSupport) {
  struct Case {
    int support;
    double c[3];
  };
  constexpr Case cases[] = {{0, {1.57, 6.28, 14.1}},
                            {1, {2.45, 7.95, 16.6}},
                            {2, {3.56, 9.82, 19.2}},
                            {4, {0.56, 3.51, 9.82}}};
  const double base = std::sqrt(2.1E7 / 129600);
  for (const Case& c : cases) {
    const ModalResults r = Frequencies(BareMember(c.support, 6));
    for (int n = 1; n <= 3; ++n) {
      EXPECT_NEAR(r.ModalFreq[n], base * c.c[n - 1], 1e-9) << c.support << ", mode " << n;
    }
  }
}

/// The first constants come from the roots of the frequency equation: (beta*L)^2/(2*pi).
TEST(Modal, ConstantsAreNearTheory) {
  constexpr double roots[3] = {3.14159265, 3.92660231, 4.73004074};
  for (int support = 0; support <= 2; ++support) {
    const ModalResults r = Frequencies(BareMember(support, 6));
    const double bl = roots[support];
    const double theory = bl * bl / (2 * kPi) * std::sqrt(2.1E7 / 129600);
    EXPECT_NEAR(r.ModalFreq[1], theory, 0.01 * theory) << support;
  }
}

TEST(Modal, SpringSupportsLeaveTheFrequencies) {
  for (const int support : {3, 5}) {
    SCOPED_TRACE(support);
    ModalResults r;
    for (int n = 1; n <= 3; ++n) r.ModalFreq[n] = n;
    ModalAnalysisRun(BareMember(support, 6), 100, 1E8, r);
    for (int n = 1; n <= 3; ++n) EXPECT_EQ(r.ModalFreq[n], n);
    EXPECT_EQ(r.ModalMass, 100);
  }
}

TEST(Modal, LineLoadsInZAddMass) {
  ProjectState st = BareMember(0, 6);
  st.q1 = 1;
  EXPECT_EQ(Frequencies(st).ModalMass, 202);
  st.q1_yz = 0;
  EXPECT_EQ(Frequencies(st).ModalMass, 100);
}

TEST(Modal, MassHasServiceabilityFactors) {
  ProjectState st = BareMember(0, 6);
  st.lfp_uls = 9;
  st.lfp_sls = 0.5;
  st.lfv1_sls = 0.25;
  st.lfv2_sls = 0.125;
  st.q1 = 8;
  st.q2 = 8;
  st.q2_pv = 1;
  st.q4 = 8;
  st.q4_pv = 2;
  EXPECT_EQ(Frequencies(st).ModalMass, 102 * 7 + 100);
}

TEST(Modal, SectionsWeightCountsOnceWhateverTheSwitch) {
  ProjectState st = BareMember(0, 6);
  EXPECT_EQ(Frequencies(st).ModalMass, 100);
  st.SelfWeight = 1;
  EXPECT_EQ(Frequencies(st).ModalMass, 100);
}

TEST(Modal, OtherLoadsAddNoMass) {
  ProjectState st = BareMember(0, 6);
  PutTrapezoid(st, 1, 5, 5, 0, 6);
  PutPoint(st, 1, 50, 3);
  st.NP = 100;
  EXPECT_EQ(Frequencies(st).ModalMass, 100);
}

TEST(Modal, FourfoldMassHalvesTheFrequencies) {
  const ModalResults light = Frequencies(BareMember(2, 6), 100);
  const ModalResults heavy = Frequencies(BareMember(2, 6), 400);
  for (int n = 1; n <= 3; ++n) {
    EXPECT_NEAR(heavy.ModalFreq[n], light.ModalFreq[n] / 2, 1e-9) << n;
  }
}

TEST(Modal, DoubleLengthQuartersTheFrequencies) {
  const ModalResults close = Frequencies(BareMember(1, 4));
  const ModalResults far = Frequencies(BareMember(1, 8));
  for (int n = 1; n <= 3; ++n) EXPECT_NEAR(far.ModalFreq[n], close.ModalFreq[n] / 4, 1e-9) << n;
}

TEST(Modal, NoMassIsAnArithmeticFault) {
  EXPECT_THROW(Frequencies(BareMember(0, 6), 0), ArithmeticFault);
}

TEST(Modal, NegativeMassIsAnArithmeticFault) {
  ProjectState st = BareMember(0, 6);
  st.q1 = -10;
  EXPECT_THROW(Frequencies(st), ArithmeticFault);
}

}  // namespace
}  // namespace korvane
