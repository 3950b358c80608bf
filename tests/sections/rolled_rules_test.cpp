// SPDX-License-Identifier: GPL-3.0-or-later
// Rolled I and H sections: effective section, shear, classes and reduced capacities as the
// designer works them out by hand.
#include <gtest/gtest.h>

#include <cmath>

#include "sections/elements.h"
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

/// HEA200 in S235: class 2, so all plastic.
Made Hea200() {
  Made m(1);
  m.st.fyk = 235.0;
  m.All();
  m.f = SectionForces{};
  return m;
}

void Capacities(Made& m, double N, double Vz, double Vy) {
  m.f.N = N;
  m.f.Vz = Vz;
  m.f.Vy = Vy;
  m.family().routines.capacities(m.st, m.f, m.rec);
}

TEST(RolledClass, AnUnstressedTipHasTheFactorOfAnEvenStress) {
  EXPECT_DOUBLE_EQ(OutstandFactor(0), 0.57);
  EXPECT_EQ(OutstandClass(0, 5, 1000, 1, kRolledOutstand), 1);
}

// IPE600: d = 514, tw = 12. My = 300 and N = 500 give 83.7 +- and 32.1 N/mm2 at the ends of the
// straight web, so 69 % of it are compressed and class 2 ends at 456*eps/(13*0.69 - 1).
TEST(RolledClass, TheWebIsTestedWhereItsStraightPartEnds) {
  Made m(4);
  m.st.idxIPE = 17;
  m.Load();
  ASSERT_NEAR(m.rec.d, 514, 1e-3);
  const double bending = 300E6 / m.rec.Iy * 257;
  const double axial = 500E3 / m.rec.A;
  const double alpha = (bending + axial) / (2 * bending);
  const double limit = 456 / (13 * alpha - 1);
  m.st.fyk = YieldFor(514 / 12., limit * 0.999);
  m.Load();
  m.ClassFor(500, 300, 0);
  EXPECT_EQ(m.rec.class_, 2);
  m.st.fyk = YieldFor(514 / 12., limit * 1.001);
  m.Load();
  m.ClassFor(500, 300, 0);
  EXPECT_EQ(m.rec.class_, 3);
}

TEST(RolledClass, TheSignOfAMomentDoesNotMatter) {
  Made m(4);
  m.st.idxIPE = 17;
  m.Load();
  m.ClassFor(800, 250, 20);
  const int both = m.rec.class_;
  ASSERT_GT(both, 1);
  m.ClassFor(800, -250, -20);
  EXPECT_EQ(int(m.rec.class_), both);
}

// IPE300 with d/tw = 40*eps: lam = 40/56.8 = 0.7042, rho = 0.97637.
TEST(RolledCapacity, CompressionOfAClassThreeWebIsBelowThatOfTheWholeArea) {
  Made m(4);
  m.st.idxIPE = 10;
  m.Load();
  m.st.fyk = YieldFor(m.rec.d / m.rec.tw, 40);
  m.All();
  const double lam = 40 / 56.8;
  const double lost = (1 - (lam - 0.22) / (lam * lam)) * m.rec.d * m.rec.tw;
  EXPECT_EQ(m.rec.classN, 3);
  EXPECT_NEAR(m.rec.Ncrdshown, (m.rec.A - lost) * m.st.fyk / 1.1 / 1000, 0.05);
  EXPECT_LT(m.rec.Ncrdshown, m.rec.Ntd);
}

TEST(RolledCapacity, ElasticBendingKeepsThePlasticModuliOfTheInteraction) {
  Made m = Hea200();
  m.st.BendingCapacityMode = 1;
  m.All();
  ASSERT_EQ(m.rec.classMy, 2);
  const double fd = 235 / 1.1 / 1E6;
  EXPECT_NEAR(m.rec.Mdyshown, m.rec.Wely * fd, 1e-3);
  EXPECT_NEAR(m.rec.Mdzshown, m.rec.Welz * fd, 1e-3);
  EXPECT_NEAR(m.rec.Mndypl, m.rec.Wply * fd, 1e-3);
  EXPECT_NEAR(m.rec.Mndzpl, m.rec.Wplz * fd, 1e-3);
}

TEST(RolledCapacity, ClassFourTakesTheEffectiveModulusInBothModes) {
  for (const int mode : {0, 1}) {
    Made m(4);
    m.st.idxIPE = 17;
    m.st.fyk = 2000.0;
    m.st.BendingCapacityMode = mode;
    m.All();
    ASSERT_EQ(m.rec.classMy, 4);
    ASSERT_LT(m.rec.Weffy, 0.99 * m.rec.Wely);
    EXPECT_NEAR(m.rec.Mdyshown, m.rec.Weffy * 2000 / 1.1 / 1E6, 0.01);
    EXPECT_NEAR(m.rec.Mdzshown, m.rec.Weffz * 2000 / 1.1 / 1E6, 0.01);
  }
}

// HEA260 in S355 is class 3: elastic 269.9 kNm up to half of the shear capacity, and just above
// it the plastic 296.8 kNm.
TEST(RolledCapacity, ClassThreeJumpsUpToThePlasticMomentBeyondHalfOfTheShear) {
  Made m(1);
  m.st.idxHEA = 8;
  m.All();
  m.ClassFor(0, 10, 0);
  ASSERT_EQ(m.rec.class_, 3);
  Capacities(m, 0, 0.5 * m.rec.Vdz, 0);
  EXPECT_NEAR(m.rec.Mvndy, 269.929, 0.01);
  Capacities(m, 0, 0.5001 * m.rec.Vdz, 0);
  EXPECT_NEAR(m.rec.Mvndy, 919771 * 355 / 1.1 / 1E6, 0.01);
}

TEST(RolledShear, HalfTheFlangesCountAlongYWhateverTheStiffeners) {
  Made m = Hea200();
  EXPECT_NEAR(m.rec.Avy, 4000, 1e-3);
  EXPECT_NEAR(m.rec.Vdyshown, 4000 / 1.5 * 235 / std::sqrt(3.0) / 1.1 / 1000, 1e-2);
  m.st.WebStiffener = 1;
  m.st.EndStiffener = 1;
  m.All();
  EXPECT_EQ(double(m.rec.Vdy), double(m.rec.Vdyshown));
}

// A - 2*b*tf + (tw + 2*r)*tf = A - 4000 + 425.
TEST(RolledShear, TheFilletsOfAStockyWebCarryShear) {
  const Made m = Hea200();
  EXPECT_NEAR(m.rec.Avz, m.rec.A - 3575, 1e-2);
  EXPECT_NEAR(m.rec.Vdz, (m.rec.A - 3575) * 235 / std::sqrt(3.0) / 1.1 / 1000, 1e-2);
}

TEST(RolledShear, TakesItsShareOffTheMomentUpToTheWholeWeb) {
  Made m = Hea200();
  m.ClassFor(0, 10, 0);
  const double fd = 235 / 1.1 / 1E6;
  const double Mdy = m.rec.Wply * fd;
  const double web = m.rec.Avz * m.rec.Avz / 4 / 6.5 * fd;
  Capacities(m, 0, 0.75 * m.rec.Vdz, 0);
  EXPECT_NEAR(m.rec.Mvdy, Mdy - 0.25 * web, 1e-3);
  Capacities(m, 0, m.rec.Vdz, 0);
  EXPECT_NEAR(m.rec.Mvdy, Mdy - web, 1e-3);
  Capacities(m, 0, 1.5 * m.rec.Vdz, 0);
  EXPECT_NEAR(m.rec.Mvdy, Mdy - web, 1e-3);  // no more than all of it
}

// About z the flanges lose their share, web and fillets keep theirs: 200000*0.75 + 1795.6 +
// 278.13*7.2712 = 153818 mm3.
TEST(RolledShear, AlongYTakesItsShareOffTheFlangesOnly) {
  Made m = Hea200();
  m.ClassFor(0, 0, 10);
  Capacities(m, 0, 0, 0.5 * m.rec.Vdy);
  EXPECT_EQ(double(m.rec.Mvdz), double(m.rec.Mdz));
  Capacities(m, 0, 0, 0.75 * m.rec.Vdy);
  EXPECT_NEAR(m.rec.Mvdz, 153818 * 235 / 1.1 / 1E6, 1e-3);
  // An elastic moment capacity of 133.6E3 mm3 lies below that: it is not raised.
  m.st.BendingCapacityMode = 1;
  Capacities(m, 0, 0, 0.75 * m.rec.Vdy);
  EXPECT_EQ(double(m.rec.Mvdz), double(m.rec.Mdz));
  EXPECT_LT(m.rec.Mvdz, 153818 * 235 / 1.1 / 1E6);
}

TEST(RolledInteraction, AxialForceReducesEachAxisInItsOwnWay) {
  Made m = Hea200();
  m.ClassFor(0, 10, 0);
  const double a = (m.rec.A - 4000) / m.rec.A;
  Capacities(m, -0.1 * m.rec.Ntd, 0, 0);
  EXPECT_EQ(double(m.rec.alfa), 2);
  EXPECT_EQ(double(m.rec.beta), 1);                  // 0.5, at least 1
  EXPECT_EQ(double(m.rec.Mndy), double(m.rec.Mdy));  // 0.9/0.87
  EXPECT_EQ(double(m.rec.Mndz), double(m.rec.Mdz));  // the web alone carries N
  Capacities(m, -0.6 * m.rec.Ntd, 0, 0);
  EXPECT_NEAR(m.rec.beta, 3, 1e-5);
  EXPECT_NEAR(m.rec.Mndy, m.rec.Mdy * 0.4 / (1 - a / 2), 1e-4);
  EXPECT_NEAR(m.rec.Mndz, m.rec.Mdz * (1 - std::pow((0.6 - a) / (1 - a), 2)), 1e-4);
}

TEST(RolledInteraction, CompressionCountsAgainstTheEffectiveAreaAndTensionAgainstAll) {
  Made m(4);
  m.st.idxIPE = 17;
  m.st.fyk = 460.0;
  m.All();
  ASSERT_LT(m.rec.Ncrd, 0.99 * m.rec.Ntd);
  const double N = m.rec.Ncrd;
  Capacities(m, N, 0, 0);
  EXPECT_NEAR(m.rec.Mndy, 0, 1e-3);
  EXPECT_NEAR(m.rec.beta, 5, 1e-5);
  Capacities(m, -N, 0, 0);
  EXPECT_NEAR(m.rec.beta, 5 * N / m.rec.Ntd, 1e-5);
}

class RolledEffective : public ::testing::TestWithParam<std::pair<int, int>> {};

// HEA300 so strong that flange and web are slender; each option keeps its own part whole.
TEST_P(RolledEffective, SectionIsTheGrossOneLessItsSlenderParts) {
  const auto [noFlange, noWeb] = GetParam();
  Made m(1);
  m.st.idxHEA = 10;
  m.st.fyk = 12000.0;
  m.st.IgnoreFlangeBuckling = noFlange;
  m.st.IgnoreWebBuckling = noWeb;
  m.All();
  const SectionRecord& r = m.rec;
  const double eps = std::sqrt(235. / 12000);
  const double h = r.h, b = r.b, tf = r.tf, tw = r.tw, d = r.d;
  const double rhof = noFlange ? 1 : Rho(b / 2 / tf, eps, 0.43);
  const double rhow = noWeb ? 1 : Rho(d / tw, eps, 4);
  const double lost = (1 - rhof) * b;  // two outstands of b/2 each
  EXPECT_NEAR(r.Aeff, r.A - 2 * lost * tf - (1 - rhow) * d * tw, 0.05);

  const Bending y = Bend({r.A, r.Iy, h / 2}, lost, tf, {tw, h - 2 * tf, d / tw}, eps, noWeb == 1);
  EXPECT_NEAR(r.Weffy, y.W(), r.Wely * 1e-5);
  EXPECT_EQ(y.W() < 0.999 * r.Wely, !(noFlange && noWeb));

  const double tip = noFlange ? 0 : (1 - Rho(b / 2 / tf, eps, 1.7)) * b / 2;
  const Bending z = Bending{r.A, r.Iz, b / 2}.Less({{2 * tf, tip, tip / 2}});
  // The removed tips count with w^3/4 for their own place and w^3/12 for themselves.
  EXPECT_NEAR(r.Weffz, z.W(), r.Welz * 1e-5);
}

INSTANTIATE_TEST_SUITE_P(Options, RolledEffective,
                         ::testing::Values(std::pair{0, 0}, std::pair{1, 0}, std::pair{0, 1},
                                           std::pair{1, 1}));

// INP 80: 80 x 42, tw 3.9 = r, tf 5.9, flanges slanted by 14 degrees over half the width.
TEST(RolledDimensions, TheSurfaceOfAnInpLosesTheSlopeOfItsFlanges) {
  Made m(15);
  m.st.idxINP = 0;
  m.Load();
  ASSERT_EQ(double(m.rec.h), 80);
  const double straight = 80 - 11.8 - 7.8 - 21 * 0.2419219;
  EXPECT_NEAR(m.rec.g, (2 * (42 - 3.9 - 7.8) + 23.6 + 84 + 2 * straight + 24.504423) / 1000, 1e-6);
}

TEST(RolledDimensions, BritishTablesGiveTheirOwnModuliWeightAndSurface) {
  const Catalogues& cat = SourceLibrary()->catalogues;
  const auto expectTabled = [&](const SectionRecord& rec, Cat table, int row) {
    const CatalogueTable& t = cat[table];
    EXPECT_NEAR(rec.S, t(row, 4), 1e-4);
    EXPECT_NEAR(rec.g, t(row, 11), 1e-6);
    EXPECT_NEAR(rec.Wely, t(row, 13) * 1E3, 1);
    EXPECT_NEAR(rec.Wply, t(row, 14) * 1E3, 1);
    EXPECT_NEAR(rec.Welz, t(row, 16) * 1E3, 1);
    EXPECT_NEAR(rec.Wplz, t(row, 17) * 1E3, 1);
  };
  Made m(101);
  m.st.p101_idx1 = 3;
  m.st.p101_idx2 = 4;
  m.st.p101_idx3 = 5;
  const Cat tables[] = {Cat::UB, Cat::UC, Cat::UBP};
  for (int sub = 1; sub <= 3; ++sub) {
    m.st.p101_sub = sub;
    m.Load();
    expectTabled(m.rec, tables[sub - 1], 2 + sub);
    EXPECT_EQ(double(m.rec.c), double(m.rec.b) / 2);
  }
  Made j(102);
  j.st.p102_idx = 2;
  j.Load();
  expectTabled(j.rec, Cat::J, 2);
}

TEST(RolledDimensions, FlangeAndWebAreaFollowFromTheDimensionsInEveryTabledFamily) {
  for (const int type : {1, 2, 3, 4, 5, 6, 7, 8, 9, 15, 16, 21, 101, 102, 103}) {
    SCOPED_TRACE(type);
    Made m(type);
    m.Load();
    const double h = m.rec.h, b = m.rec.b, tw = m.rec.tw, tf = m.rec.tf;
    EXPECT_NEAR(m.rec.Af, 2 * b * tf, 1e-2);
    EXPECT_NEAR(m.rec.Aw, (h - 2 * tf) * tw, 1e-2);
    EXPECT_NEAR(m.rec.hw, h - 2 * tf, 1e-3);
    EXPECT_EQ(double(m.rec.tmax), std::max(tf, tw));
  }
}

}  // namespace
}  // namespace korvane
