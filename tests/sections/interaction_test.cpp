// SPDX-License-Identifier: GPL-3.0-or-later
// Capacities of a doubly symmetric section by the formulas of 12.2.3 to 12.2.8, worked out here
// in their own words on a record of round numbers.
#include <gtest/gtest.h>

#include <cmath>

#include "sections/capacities.h"

namespace korvane {
namespace {

constexpr double kFy = 300;
constexpr double kGamma = 1.2;  // fd = 250 MPa

struct Bench {
  ProjectState st;
  SectionRecord rec;
  SectionForces f;

  Bench() {
    st.fyk = kFy;
    st.gammam1 = kGamma;
    rec.h = 400.0;
    rec.b = 200.0;
    rec.tw = 10.0;
    rec.tf = 20.0;
    rec.r = 15.0;
    rec.hw = 360.0;
    rec.A = 12000.0;
    rec.Aeff = 9000.0;
    rec.Wely = 1.6E6;
    rec.Weffy = 1.2E6;
    rec.Wply = 2.0E6;
    rec.Welz = 2.4E5;
    rec.Weffz = 1.8E5;
    rec.Wplz = 4.0E5;
    rec.Avz = 4000.0;
    rec.Vdz = 500.0;
    rec.Vdy = 800.0;
  }
  SectionRecord& At(int sectionClass) {
    rec.class_ = sectionClass;
    SectionCapacities(st, f, rec);
    return rec;
  }
};

TEST(Capacities, AxialForceTakesTheEffectiveAreaAtEveryClass) {
  for (const int c : {1, 2, 3, 4}) {
    Bench b;
    b.At(c);
    EXPECT_NEAR(b.rec.Ntd, 12000 * 250 / 1000.0, 1e-3);
    EXPECT_NEAR(b.rec.betaA, 0.75, 1e-7);
    EXPECT_NEAR(b.rec.Ncrd, 9000 * 250 / 1000.0, 1e-3);
  }
}

TEST(Capacities, EachClassHasItsModulus) {
  struct Row {
    int sectionClass, mode;
    double Mdy, Mdz;
  };
  for (const Row& r :
       {Row{1, 0, 500, 100}, Row{2, 0, 500, 100}, Row{3, 0, 400, 60}, Row{4, 0, 300, 45},
        Row{1, 1, 400, 60}, Row{2, 1, 400, 60}, Row{3, 1, 400, 60}, Row{4, 1, 300, 45}}) {
    SCOPED_TRACE(r.sectionClass * 10 + r.mode);
    Bench b;
    b.st.BendingCapacityMode = r.mode;
    b.At(r.sectionClass);
    EXPECT_NEAR(b.rec.Mdy, r.Mdy, 1e-4);
    EXPECT_NEAR(b.rec.Mdz, r.Mdz, 1e-4);
  }
}

TEST(Capacities, FlangesAlone) {
  Bench b;
  b.At(1);
  EXPECT_NEAR(b.rec.Mfdy, 380 * 200 * 20 * 250 / 1E6, 1e-4);
  EXPECT_NEAR(b.rec.Mfdz, 20000 * 20 * 250 / 1E6, 1e-4);
}

TEST(Capacities, ShearTakesTheWebFromTheMomentAboutY) {
  Bench b;
  b.f.Vz = 250.0;  // exactly half: nothing yet
  b.At(1);
  EXPECT_EQ(double(b.rec.Mvdy), double(b.rec.Mdy));
  b.f.Vz = 375.0;  // (2*0.75 - 1)^2 = 0.25
  b.At(1);
  EXPECT_NEAR(b.rec.Mvdy, 500 - 0.25 * 4000. * 4000 / 4 / 10 * 250 / 1E6, 1e-3);
  b.f.Vz = 5000.0;  // at most the whole web
  b.At(1);
  EXPECT_NEAR(b.rec.Mvdy, 500 - 4000. * 4000 / 4 / 10 * 250 / 1E6, 1e-3);
}

TEST(Capacities, ShearTakesTheFlangesFromTheMomentAboutZ) {
  // What stands without shear: 4*(b/2)^2*tf/2 = 400000, web 25*720/2 = 9000, roots 900*q*lever.
  const double roots = 4 * 15 * 15 * (1 - 3.14159265 / 4) * (5 + 0.2234 * 15);
  Bench b;
  b.rec.Wplz = 8.0E5;  // so that the capacity itself doesn't govern
  b.f.Vy = 400.0;
  b.At(1);
  EXPECT_EQ(double(b.rec.Mvdz), double(b.rec.Mdz));
  b.f.Vy = 600.0;  // rho = 0.25
  b.At(1);
  EXPECT_NEAR(b.rec.Mvdz, (300000 + 9000 + roots) * 250 / 1E6, 1e-3);
  b.rec.Wplz = 1.0E5;
  b.At(1);
  EXPECT_EQ(double(b.rec.Mvdz), double(b.rec.Mdz));
}

TEST(Capacities, AxialForceReducesByItsShareOfTheRightCapacity) {
  Bench b;
  const double a = (12000 - 8000) / 12000.0;
  b.f.N = -1500.0;  // tension: 1500/3000
  b.At(1);
  EXPECT_NEAR(b.rec.beta, 2.5, 1e-6);
  EXPECT_EQ(double(b.rec.alfa), 2);
  EXPECT_NEAR(b.rec.Mndy, 500 * 0.5 / (1 - 0.5 * a), 1e-3);
  EXPECT_NEAR(b.rec.Mndz, 100 * (1 - std::pow((0.5 - a) / (1 - a), 2)), 1e-4);
  b.f.N = 1500.0;  // compression: 1500/2250
  b.At(3);
  const double n = 2 / 3.0;
  EXPECT_NEAR(b.rec.beta, 5 * n, 1e-5);
  EXPECT_NEAR(b.rec.Mndy, 400 * (1 - n) / (1 - 0.5 * a), 1e-3);
  EXPECT_NEAR(b.rec.Mndypl, 500 * (1 - n) / (1 - 0.5 * a), 1e-3);
  EXPECT_NEAR(b.rec.Mndz, 60 * (1 - std::pow((n - a) / (1 - a), 2)), 1e-4);
  EXPECT_NEAR(b.rec.Mndzpl, 100 * (1 - std::pow((n - a) / (1 - a), 2)), 1e-4);
}

TEST(Capacities, ALittleAxialForceCostsNothing) {
  Bench b;
  b.f.N = 225.0;  // n = 0.1
  b.At(1);
  EXPECT_EQ(double(b.rec.beta), 1);
  EXPECT_EQ(double(b.rec.Mndy), double(b.rec.Mdy));
  EXPECT_EQ(double(b.rec.Mndz), double(b.rec.Mdz));
}

TEST(Capacities, ShearBesideAxialForceGoesDownToTheFlanges) {
  Bench b;
  b.f.N = 1500.0;
  b.f.Vz = 375.0;
  b.f.Vy = 600.0;
  b.At(3);
  EXPECT_NEAR(b.rec.Mvndy, 380 + (double(b.rec.Mndypl) - 380) * 0.75, 1e-3);
  EXPECT_NEAR(b.rec.Mvndz, 100 + (double(b.rec.Mndzpl) - 100) * 0.75, 1e-3);
  b.f.Vz = 250.0;
  b.f.Vy = 400.0;
  b.At(3);
  EXPECT_EQ(double(b.rec.Mvndy), double(b.rec.Mndy));
  EXPECT_EQ(double(b.rec.Mvndz), double(b.rec.Mndz));
}

}  // namespace
}  // namespace korvane
