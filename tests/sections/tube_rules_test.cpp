// SPDX-License-Identifier: GPL-3.0-or-later
// Rules of the tube and the general profile; what looks odd in them is meant.
#include <gtest/gtest.h>

#include <cmath>

#include "tests/sections/section_support.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

using testing::ExpectClose;
using testing::kFd;
using testing::Made;

const double kPlain = std::acos(-1.0);

/// 300x10: A = pi*290*10 = 9110.62, Wpl = (300^3 - 280^3)/6 = 841333.3.
Made Tube() {
  Made m(31);
  m.All();
  m.family().routines.capacities(m.st, m.f, m.rec);
  return m;
}

constexpr double kMdy = 841333.3333 * kFd / 1E6;

// ---- tube

TEST(Tube, WeightSurfaceAndShear) {
  const Made m = Tube();
  ExpectClose(m.rec.S, kPlain * 2900 * 7850E-6, "S");
  ExpectClose(m.rec.g, kPlain * 0.3, "g");
  ExpectClose(m.rec.Avz, 2 * 2900, "Avz");
  EXPECT_EQ(double(m.rec.Avy), double(m.rec.Avz));
  ExpectClose(m.rec.Vdz, 5800 * kFd / std::sqrt(3.0) / 1000, "Vdz");
  EXPECT_EQ(double(m.rec.Vdy), double(m.rec.Vdz));
  EXPECT_EQ(double(m.rec.tmax), 10);
}

TEST(Tube, LimitsOfTheFirstTwoClassesAreIncludedToo) {
  Made m(31);
  m.st.fyk = 235.0;
  m.st.p31_tw = 10.0;
  const auto of = [&m](double d) {
    m.st.p31_d = d;
    m.Load();
    return int(m.rec.class_);
  };
  EXPECT_EQ(of(500), 1);
  EXPECT_EQ(of(501), 2);
  EXPECT_EQ(of(700), 2);
  EXPECT_EQ(of(701), 3);
}

TEST(Tube, ForcesDoNotTouchItsClass) {
  Made m(31);
  m.st.p31_d = 600.0;  // 60 against 59.6 = 90*235/355: class 4
  m.All();
  for (const double N : {-1000., 0., 1000.}) {
    m.ClassFor(N, N / 10, -N);
    EXPECT_EQ(int(m.rec.class_), 4) << N;
  }
}

// The section step classifies with the eps that the last material step left; the checks do it
// again with the new one.
TEST(Tube, TheSectionStepClassifiesWithTheFormerYieldStress) {
  Made m(31);
  m.st.p31_d = 600.0;
  m.st.fyk = 355.0;
  m.st.epsilon = 1;
  m.family().load(m.st, SourceLibrary()->catalogues, m.rec);
  EXPECT_EQ(int(m.rec.class_), 2);  // 60 between 50 and 70
  m.st.epsilon = std::sqrt(235.0 / 355);
  m.ClassFor(0, 0, 0);
  EXPECT_EQ(int(m.rec.class_), 4);
}

TEST(Tube, ShearTakesItsShareOfTheMomentBothWays) {
  Made m = Tube();
  m.f.Vz = 0.75 * m.rec.Vdz;
  m.f.Vy = 0.9 * m.rec.Vdy;
  m.family().routines.capacities(m.st, m.f, m.rec);
  ExpectClose(m.rec.Mdy, kMdy, "Mdy");
  ExpectClose(m.rec.Mvdy, 0.75 * kMdy, "Mvdy");
  ExpectClose(m.rec.Mvdz, 0.36 * kMdy, "Mvdz");
  m.f.Vz = 0.5 * m.rec.Vdz;
  m.f.Vy = 2 * m.rec.Vdy;  // the share is at most 1
  m.family().routines.capacities(m.st, m.f, m.rec);
  EXPECT_EQ(double(m.rec.Mvdy), double(m.rec.Mdy));
  EXPECT_EQ(double(m.rec.Mvdz), 1);
}

TEST(Tube, AxialForceUpToASeventhCostsNothing) {
  Made m = Tube();
  const auto share = [&m](double n) {
    m.f.N = n * m.rec.Ntd;
    m.family().routines.capacities(m.st, m.f, m.rec);
    EXPECT_EQ(double(m.rec.Mndz), double(m.rec.Mndy));
    return m.rec.Mndy / m.rec.Mdy;
  };
  EXPECT_EQ(share(0), 1);
  EXPECT_EQ(share(0.14), 1);  // 1.04*(1 - 0.03535) = 1.0032
  EXPECT_NEAR(share(0.15), 1.04 * (1 - std::pow(0.15, 1.7)), 1e-6);
  EXPECT_NEAR(share(-0.5), 1.04 * 0.692214, 1e-6);
  EXPECT_EQ(double(m.rec.alfa), 2);
  EXPECT_EQ(double(m.rec.beta), 2);
}

// The family has no capacity of flanges and no plastic rest: nothing is left of the moment once
// both shear and axial force count.
TEST(Tube, ShearBesideAxialForceLeavesNothing) {
  Made m = Tube();
  m.f.N = 0.3 * m.rec.Ntd;
  m.f.Vz = 0.51 * m.rec.Vdz;
  m.f.Vy = 0.5 * m.rec.Vdy;
  m.family().routines.capacities(m.st, m.f, m.rec);
  EXPECT_EQ(double(m.rec.Mvndy), 0);
  EXPECT_EQ(double(m.rec.Mvndz), double(m.rec.Mndz));
}

TEST(Tube, ClassThreeAndTheOptionTakeTheElasticModulus) {
  Made m = Tube();
  const double Wel = kPlain / 64 * (std::pow(300., 4) - std::pow(280., 4)) / 150;
  m.st.BendingCapacityMode = 1;
  m.family().routines.capacities(m.st, m.f, m.rec);
  ExpectClose(m.rec.Mdy, Wel * kFd / 1E6, "option");
  EXPECT_EQ(double(m.rec.Mdz), double(m.rec.Mdy));
  m.st.BendingCapacityMode = 0;
  for (const int sectionClass : {3, 4}) {
    m.rec.class_ = sectionClass;
    m.family().routines.capacities(m.st, m.f, m.rec);
    ExpectClose(m.rec.Mdy, Wel * kFd / 1E6, "class");
  }
}

// ---- general profile

/// As a new project has it: A 11000, Ay 8000, Az 3000, Wely 1.3E6, Welz 4.2E5, Wply 1.65E6,
/// Wplz 5.5E6, class 1.
Made General() {
  Made m(41);
  m.All();
  return m;
}

TEST(General, TypedConstantsStandInTheRecord) {
  Made m(41);
  m.st.p41_option = 3;
  m.All();
  EXPECT_EQ(double(m.rec.A), 11000);
  EXPECT_EQ(double(m.rec.Aw), 3000);
  EXPECT_EQ(double(m.rec.Af), 8000);
  EXPECT_EQ(double(m.rec.Avz), 3000);
  EXPECT_EQ(double(m.rec.Avy), 8000);
  EXPECT_EQ(double(m.rec.Aeff), 11000);
  EXPECT_EQ(double(m.rec.betaA), 1);
  EXPECT_EQ(double(m.rec.Ix), 8E6);
  EXPECT_EQ(int(m.rec.class_), 3);
  EXPECT_EQ(double(m.rec.tmax), 40);
  ExpectClose(m.rec.S, 86.35, "S");
  ExpectClose(m.rec.Vdz, 3000 * kFd / std::sqrt(3.0) / 1000, "Vdz");
  ExpectClose(m.rec.Vdy, 8000 * kFd / std::sqrt(3.0) / 1000, "Vdy");
}

TEST(General, TakesTheTypedClassWhateverTheForces) {
  Made m(41);
  m.st.p41_option = 2;
  m.All();
  m.ClassFor(1E5, 1E5, 1E5);
  EXPECT_EQ(int(m.rec.class_), 2);
}

TEST(General, ClassThreeAndTheOptionTakeTheElasticModuli) {
  Made m(41);
  m.st.p41_option = 3;
  m.All();
  ExpectClose(m.rec.Mdy, 1.3E6 * kFd / 1E6, "Mdy");
  ExpectClose(m.rec.Mdz, 4.2E5 * kFd / 1E6, "Mdz");
  m.st.p41_option = 1;
  m.All();
  ExpectClose(m.rec.Mdy, 1.65E6 * kFd / 1E6, "Mdy");
  ExpectClose(m.rec.Mdz, 5.5E6 * kFd / 1E6, "Mdz");
  m.st.BendingCapacityMode = 1;
  m.All();
  ExpectClose(m.rec.Mdy, 1.3E6 * kFd / 1E6, "Mdy");
}

TEST(General, ShearReducesNoMoment) {
  Made m = General();
  m.f.Vz = m.rec.Vdz;
  m.f.Vy = m.rec.Vdy;
  m.family().routines.capacities(m.st, m.f, m.rec);
  EXPECT_EQ(double(m.rec.Mvdy), double(m.rec.Mdy));
  EXPECT_EQ(double(m.rec.Mvdz), double(m.rec.Mdz));
  EXPECT_EQ(double(m.rec.Mvndy), double(m.rec.Mndy));
  EXPECT_EQ(double(m.rec.Mvndz), double(m.rec.Mndz));
}

// a = 3000/11000 = 0.272727; n = 0.5: 1.1*0.5 about y, 1 - (0.227273/0.727273)^2 = 0.902344 about
// z; beta = 2.5. The plastic values go the same way in class 3.
TEST(General, AxialForceReducesBySizeAboutBothAxes) {
  Made m(41);
  m.st.p41_option = 3;
  m.All();
  for (const double sign : {-1., 1.}) {
    m.f.N = sign * 0.5 * m.rec.Ntd;
    m.family().routines.capacities(m.st, m.f, m.rec);
    EXPECT_EQ(double(m.rec.alfa), 2);
    ExpectClose(m.rec.beta, 2.5, "beta");
    ExpectClose(m.rec.Mndy, 0.55 * 1.3E6 * kFd / 1E6, "Mndy");
    ExpectClose(m.rec.Mndypl, 0.55 * 1.65E6 * kFd / 1E6, "Mndypl");
    ExpectClose(m.rec.Mndz, 0.902344 * 4.2E5 * kFd / 1E6, "Mndz");
    ExpectClose(m.rec.Mndzpl, 0.902344 * 5.5E6 * kFd / 1E6, "Mndzpl");
  }
}

TEST(General, LittleAxialForceReducesNothing) {
  Made m = General();
  m.f.N = 0.09 * m.rec.Ntd;  // 1.1*0.91 = 1.001; 0.09 below 0.2727; 5*0.09 below 1
  m.family().routines.capacities(m.st, m.f, m.rec);
  EXPECT_EQ(double(m.rec.Mndy), double(m.rec.Mdy));
  EXPECT_EQ(double(m.rec.Mndz), double(m.rec.Mdz));
  EXPECT_EQ(double(m.rec.beta), 1);
}

}  // namespace
}  // namespace korvane
