// SPDX-License-Identifier: GPL-3.0-or-later
// Channels: the flange class about z, the section that bends about a centroid off its middle, and
// what each of the four tables means by outstand, radius and shear centre.
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

/// UPE200 with its flange, b/tf, at `limit` times eps.
Made FlangeAt(double limit) {
  Made m(5);
  m.st.idxUPE = 6;
  m.Load();
  m.st.fyk = 235 / std::pow(m.rec.b / m.rec.tf / limit, 2);
  m.All();
  return m;
}

int ClassAboutZ(double limit) {
  Made m = FlangeAt(limit);
  m.ClassFor(0, 0, 10);
  return m.rec.class_;
}

// Bent about z the tip is compressed and the back in tension: the flange is compressed over
// (b - e)/b of its width, and the limits of classes 2 and 3 rise.
TEST(ChannelFlange, AboutZIsPartlyInTension) {
  const Made m = FlangeAt(10);
  const double alpha = (m.rec.b - m.rec.e) / m.rec.b;
  const double psi = -m.rec.e / (m.rec.b - m.rec.e);
  const double third = 23 * std::sqrt(0.57 - 0.21 * psi + 0.07 * psi * psi);
  ASSERT_LT(11 / alpha, third);
  EXPECT_EQ(ClassAboutZ(9.99), 1);  // the limit of class 1 is that of an even stress
  EXPECT_EQ(ClassAboutZ(10.01), 2);
  EXPECT_EQ(ClassAboutZ(11 / alpha * 0.999), 2);
  EXPECT_EQ(ClassAboutZ(11 / alpha * 1.001), 3);
  EXPECT_EQ(ClassAboutZ(third * 0.999), 3);
  EXPECT_EQ(ClassAboutZ(third * 1.001), 4);
}

// With the tip at -s*(b - e) - N/A and the back at +s*e - N/A, N small enough to leave tension.
TEST(ChannelFlange, AxialForceMovesTheBorderOfTension) {
  const Made gross = FlangeAt(10);
  const double A = gross.rec.A, Iz = gross.rec.Iz, b = gross.rec.b, e = gross.rec.e;
  const double tip = 10E6 / Iz * (b - e) + 100E3 / A;
  const double back = 10E6 / Iz * e - 100E3 / A;
  ASSERT_GT(back, 0);
  const double alpha = tip / (tip + back);
  const auto at = [](double limit) {
    Made m = FlangeAt(limit);
    m.st.IgnoreWebBuckling = 1;  // the web is compressed evenly
    m.ClassFor(100, 0, 10);
    return int(m.rec.class_);
  };
  EXPECT_EQ(at(11 / alpha * 0.999), 2);
  EXPECT_EQ(at(11 / alpha * 1.001), 3);
}

TEST(ChannelFlange, CompressedEvenlyTakesTheLimitsOfAnOutstand) {
  const auto at = [](double limit) {
    Made m = FlangeAt(limit);
    m.st.IgnoreWebBuckling = 1;
    m.ClassFor(10, 0, 0);
    return int(m.rec.class_);
  };
  EXPECT_EQ(at(10.99), 2);
  EXPECT_EQ(at(11.01), 3);
  EXPECT_EQ(at(14.99), 3);
  EXPECT_EQ(at(15.01), 4);
}

TEST(ChannelEffective, ClassFourKeepsTheElasticModulusAboutZ) {
  Made m = FlangeAt(25);
  m.ClassFor(0, 0, 10);
  ASSERT_EQ(m.rec.class_, 4);
  ASSERT_LT(m.rec.Aeff, 0.9 * m.rec.A);
  EXPECT_EQ(double(m.rec.Weffz), double(m.rec.Welz));
  m.family().routines.capacities(m.st, m.f, m.rec);
  EXPECT_NEAR(m.rec.Mdz, m.rec.Welz * m.st.fyk / 1.1 / 1E6, 1e-3);
}

class ChannelEffectiveSections : public ::testing::TestWithParam<int> {};

TEST_P(ChannelEffectiveSections, LoseOneOutstandOfTheCompressedFlange) {
  for (const auto& [noFlange, noWeb] : {std::pair{0, 0}, {1, 0}, {0, 1}}) {
    Made m(GetParam());
    m.st.idxUPE = 10;
    m.st.idxUNP = 10;
    m.st.fyk = 16000.0;
    m.st.IgnoreFlangeBuckling = noFlange;
    m.st.IgnoreWebBuckling = noWeb;
    m.All();
    const SectionRecord& r = m.rec;
    const double eps = std::sqrt(235. / 16000);
    const double h = r.h, c = r.c, d = r.d, tf = r.tf, tw = r.tw;
    const double lost = noFlange ? 0 : (1 - Rho(c / tf, eps, 0.43)) * c;
    const double web = noWeb ? 0 : (1 - Rho(d / tw, eps, 4)) * d;
    ASSERT_TRUE(noFlange || lost > 5);
    EXPECT_NEAR(r.Aeff, r.A - 2 * lost * tf - web * tw, 0.02);
    const Bending y = Bend({r.A, r.Iy, h / 2}, lost, tf, {tw, h - 2 * tf, d / tw}, eps, noWeb == 1);
    EXPECT_NEAR(r.Weffy, y.W(), r.Wely * 2e-5);
    EXPECT_LT(y.W(), 0.9995 * r.Wely);
  }
}

INSTANTIATE_TEST_SUITE_P(Families, ChannelEffectiveSections, ::testing::Values(5, 16, 103));

TEST(ChannelDimensions, EachTableHasItsOwnOutstandAndWeb) {
  Made unp(16);
  unp.Load();
  EXPECT_NEAR(unp.rec.c, unp.rec.b - unp.rec.r1, 1e-3);
  EXPECT_NEAR(unp.rec.d, unp.rec.h - 2 * (unp.rec.tf + unp.rec.r1), 1e-3);
  Made upe(5);
  upe.Load();
  EXPECT_NEAR(upe.rec.d, upe.rec.h - 2 * (upe.rec.tf + upe.rec.r), 1e-3);
  for (const int sub : {1, 2}) {
    Made c(103);
    c.st.p103_sub = sub;
    c.Load();
    EXPECT_NEAR(c.rec.c, c.rec.b - c.rec.tw - c.rec.r, 1e-3);
    EXPECT_NEAR(c.rec.d, c.rec.h - 2 * (c.rec.tf + c.rec.r), 1e-3);
  }
}

TEST(ChannelDimensions, OnlyTheTaperedBritishChannelHasAToeRadius) {
  const Catalogues& cat = SourceLibrary()->catalogues;
  Made c(103);
  c.st.p103_sub = 1;
  c.rec.r2 = 77.0;
  c.Load();
  EXPECT_EQ(double(c.rec.r2), 77);
  c.st.p103_sub = 2;
  c.Load();
  EXPECT_NEAR(c.rec.r2, cat[Cat::CH](c.st.p103_idx2, 10), 1e-5);
}

TEST(ChannelDimensions, TheTablesHoldTheShearCentreFromTheBack) {
  struct Row {
    int type, sub;
    Cat table;
    int e;  // column; that of es + e follows
    double scale;
  };
  const Catalogues& cat = SourceLibrary()->catalogues;
  for (const Row& row : {Row{5, 1, Cat::UPE, 6, 1}, Row{16, 1, Cat::UNP, 7, 1},
                         Row{103, 1, Cat::PFC, 20, 10}, Row{103, 2, Cat::CH, 21, 10}}) {
    SCOPED_TRACE(row.type * 10 + row.sub);
    Made m(row.type);
    m.st.idxUPE = m.st.idxUNP = m.st.p103_idx1 = m.st.p103_idx2 = 4;
    m.st.p103_sub = row.sub;
    m.Load();
    const double e = cat[row.table](4, row.e) * row.scale;
    const double fromBack = cat[row.table](4, row.e + 1) * row.scale;
    EXPECT_NEAR(m.rec.e, e, 1e-4);
    EXPECT_NEAR(m.rec.es, fromBack - e, 1e-4);
  }
}

// UNP100: 100 x 50, 6 and 8.5 thick, r1 = 8.5, r2 = 4.5; sin 8 degrees = 0.1391731.
TEST(ChannelDimensions, TheSurfaceOfAUnpLosesSlopeAndToes) {
  Made m(16);
  const CatalogueTable& t = SourceLibrary()->catalogues[Cat::UNP];
  while (t(m.st.idxUNP, 1) != 100) m.st.idxUNP = m.st.idxUNP + 1;
  m.Load();
  const double straight = 100 - 17 - 17 - 50 * 0.1391731;
  const double outline = 100 + 100 + 17 + 2 * (50 - 6 - 8.5) + straight + 26.703538;
  EXPECT_NEAR(m.rec.g, (outline - 2 * 4.5 * (1 - 0.7853982)) / 1000, 1e-6);
}

// Parallel flanges: the outline with its two quarter rounds.
TEST(ChannelDimensions, TheSurfaceOfAUpeIsItsOutline) {
  Made m(5);
  m.st.idxUPE = 6;
  m.Load();
  const double h = m.rec.h, b = m.rec.b, tw = m.rec.tw, tf = m.rec.tf, r = m.rec.r;
  const double back = h + 2 * b + 2 * tf;
  const double inside = 2 * (b - tw - r) + h - 2 * tf - 2 * r;
  EXPECT_NEAR(m.rec.g * 1000, back + inside + std::acos(-1.0) * r, 1e-3);
  EXPECT_NEAR(m.rec.Wely, m.rec.Iy * 2 / h, 1);
  EXPECT_NEAR(m.rec.Welz, m.rec.Iz / (b - m.rec.e), 0.1);
  EXPECT_NEAR(m.rec.S, m.rec.A * 0.00785, 1e-4);
}

TEST(ChannelShear, HasOneFilletAtEachFlange) {
  Made m(5);
  m.st.idxUPE = 6;
  m.All();
  const SectionRecord& r = m.rec;
  EXPECT_NEAR(r.Avz, r.A - 2 * r.b * r.tf + (r.tw + r.r) * r.tf, 1e-2);
  EXPECT_NEAR(r.Avy, 2 * r.b * r.tf, 1e-2);
}

TEST(ChannelShear, AUnpTakesNoRadiusWhateverTheSectionBeforeLeft) {
  Made m(16);
  m.rec.r = 18.0;
  m.All();
  EXPECT_EQ(double(m.rec.r), 0);
  EXPECT_NEAR(m.rec.Avz, m.rec.A - 2 * m.rec.b * m.rec.tf + m.rec.tw * m.rec.tf, 1e-2);
}

// The model of an I section: both halves of a flange count at b/2 from its middle.
TEST(ChannelCapacity, CountsItsFlangesAsIfTheyWereCentred) {
  Made m(5);
  m.All();
  const double fd = 355 / 1.1 / 1E6;
  EXPECT_NEAR(m.rec.Mfdz, m.rec.b * m.rec.b / 2 * m.rec.tf * fd, 1e-3);
  EXPECT_NEAR(m.rec.Mfdy, (m.rec.h - m.rec.tf) * m.rec.b * m.rec.tf * fd, 1e-3);
}

}  // namespace
}  // namespace korvane
