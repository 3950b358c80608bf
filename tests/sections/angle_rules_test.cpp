// SPDX-License-Identifier: GPL-3.0-or-later
// Angles: corner points in the principal axes, the short class rule, and what class 4 touches.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "sections/shown_values.h"
#include "tests/sections/removed_parts.h"
#include "tests/sections/section_support.h"

namespace korvane {
namespace {

using testing::Made;
using testing::Rho;

/// L-unequal row with its yield stress set so that (b + h)/(2*t) stands at `limit` times eps.
Made UnequalAt(double limit) {
  Made m(11);
  m.st.idxLuneq = 20;
  m.Load();
  m.st.fyk = 235 / std::pow((m.rec.b + m.rec.h) / (2 * m.rec.tw) / limit, 2);
  m.All();
  return m;
}

// The corners are the heel and the tips at half the thickness; turned by alfa about the
// centroid their coordinates are u1 to u3 and v1 to v3.
TEST(AngleCorners, StandWhereTheTurnedAxesPutThem) {
  for (int row = 0; row < 49; ++row) {
    SCOPED_TRACE(row);
    Made m(11);
    m.st.idxLuneq = row;
    m.Load();
    const SectionRecord& r = m.rec;
    const double a = r.alfadeg * std::acos(-1.0) / 180;
    const auto along = [&](double x, double y) {  // from the centroid along u
      return (x - r.ey) * std::cos(a) + (y - r.ez) * std::sin(a);
    };
    const auto across = [&](double x, double y) {  // and along v
      return (y - r.ez) * std::cos(a) - (x - r.ey) * std::sin(a);
    };
    const double half = r.tw / 2;
    EXPECT_NEAR(r.v1, across(half, r.h), 1e-3);
    EXPECT_NEAR(r.v2, -across(0, 0), 1e-3);
    EXPECT_NEAR(r.v3, -across(r.b, half), 1e-3);
    // The distance of the heel is published, in rounded figures; the tips follow from it.
    EXPECT_NEAR(r.u2, -along(0, 0), 0.01 * r.h);
    EXPECT_NEAR(r.u1, along(half, r.h), 0.01 * r.h);
    EXPECT_NEAR(r.u3, along(r.b, half), 0.01 * r.h);
    EXPECT_NEAR(r.Wv1, r.Iu / r.v1, 1);
    EXPECT_NEAR(r.Wv2, r.Iu / r.v2, r.Wv2 * 1e-5);
    EXPECT_NEAR(r.Wv3, r.Iu / r.v3, 1);
    EXPECT_NEAR(r.Wu1, r.Iv / r.u1, 1);
    EXPECT_NEAR(r.Wu2, r.Iv / r.u2, 1);
    EXPECT_NEAR(r.Wu3, r.Iv / r.u3, 1);
  }
}

TEST(AngleCorners, OfAnEqualAngleLieAtFortyFiveDegrees) {
  Made m(10);
  m.st.idxLeq = 30;
  m.Load();
  const double half = std::sqrt(0.5);
  const double b = m.rec.b, t = m.rec.tw;
  EXPECT_NEAR(m.rec.v1, (b - t / 2) * half, 1e-3);
  EXPECT_EQ(double(m.rec.v3), double(m.rec.v1));
  EXPECT_NEAR(m.rec.u1, (b + t / 2) * half - m.rec.u2, 1e-3);
  EXPECT_EQ(double(m.rec.u3), double(m.rec.u1));
  EXPECT_NEAR(m.rec.u2, m.rec.ez * std::sqrt(2.0), 0.01 * m.rec.u2);
  // Two strips of the middle line's length.
  EXPECT_NEAR(m.rec.Ix, 2 * (b - t / 2) * t * t * t / 3, m.rec.Ix * 1e-6);
  EXPECT_NEAR(m.rec.g, (4 * b - 2 * m.rec.r + 1.5707963 * m.rec.r) / 1000, 1e-6);
}

TEST(AngleClass, TheLimitOfAnUnequalAngleBelongsToClassOne) {
  const Made inside = UnequalAt(11.5 * 0.99999);
  EXPECT_EQ(inside.rec.class_, 1);
  EXPECT_EQ(double(inside.rec.betaA), 1);
  EXPECT_EQ(double(inside.rec.Aeff), double(inside.rec.A));
  const Made outside = UnequalAt(11.5 * 1.001);
  EXPECT_EQ(outside.rec.class_, 4);
}

TEST(AngleClass, EachLegOfAnUnequalAngleIsReducedByItsOwnSlenderness) {
  const Made m = UnequalAt(20);
  const double eps = std::sqrt(235 / m.st.fyk);
  const double b = m.rec.b, h = m.rec.h, t = m.rec.tw;
  const double lostB = b * t * (1 - Rho(b / t, eps, 0.43));
  const double lostH = h * t * (1 - Rho(h / t, eps, 0.43));
  ASSERT_GT(lostH, lostB);
  ASSERT_GT(lostB, 0);
  EXPECT_NEAR(m.rec.Aeff, m.rec.A - lostB - lostH, 1e-2);
  EXPECT_NEAR(m.rec.Ncrd, (m.rec.A - lostB - lostH) * m.st.fyk / 1.1 / 1000, 0.02);
  EXPECT_NEAR(m.rec.Ntd, m.rec.A * m.st.fyk / 1.1 / 1000, 0.02);
}

TEST(AngleClass, BothLegsOfAnEqualAngleAreReducedAlike) {
  Made m(10);
  m.st.idxLeq = 30;
  m.Load();
  m.st.fyk = 235 / std::pow(m.rec.h / m.rec.tw / 20, 2);
  m.All();
  const double eps = std::sqrt(235 / m.st.fyk);
  const double lost = 2 * m.rec.b * m.rec.tw * (1 - Rho(20 * eps, eps, 0.43));
  EXPECT_EQ(m.rec.class_, 4);
  EXPECT_NEAR(m.rec.Aeff, m.rec.A - lost, 0.05);
}

TEST(AngleClass, FourLeavesAllMomentCapacitiesAlone) {
  const Made m = UnequalAt(20);
  const double fd = m.st.fyk / 1.1 / 1E6;
  ASSERT_LT(m.rec.betaA, 0.9);
  EXPECT_NEAR(m.rec.Mud1, m.rec.Iu / m.rec.v1 * fd, m.rec.Mud1 * 1e-5);
  EXPECT_NEAR(m.rec.Mud2, m.rec.Iu / m.rec.v2 * fd, m.rec.Mud2 * 1e-5);
  EXPECT_NEAR(m.rec.Mud3, m.rec.Iu / m.rec.v3 * fd, m.rec.Mud3 * 1e-5);
  EXPECT_NEAR(m.rec.Mvd1, m.rec.Iv / m.rec.u1 * fd, m.rec.Mvd1 * 1e-5);
  EXPECT_NEAR(m.rec.Mvd2, m.rec.Iv / m.rec.u2 * fd, m.rec.Mvd2 * 1e-5);
  EXPECT_NEAR(m.rec.Mvd3, m.rec.Iv / m.rec.u3 * fd, m.rec.Mvd3 * 1e-5);
}

TEST(AngleClass, BucklingOfAnglesIsAlwaysTakenIntoAccount) {
  Made m = UnequalAt(20);
  const double Ncrd = m.rec.Ncrd;
  m.st.IgnoreFlangeBuckling = 1;
  m.st.IgnoreWebBuckling = 1;
  m.All();
  EXPECT_EQ(m.rec.class_, 4);
  EXPECT_EQ(double(m.rec.Ncrd), Ncrd);
}

TEST(AngleShear, GoesWithTheLegsBeyondTheCorner) {
  const Made m = UnequalAt(11);
  const double tau = m.st.fyk / 1.1 / std::sqrt(3.0) / 1.5 / 1000;
  EXPECT_NEAR(m.rec.Vdz, (m.rec.h - m.rec.tw) * m.rec.tw * tau, 1e-3);
  EXPECT_NEAR(m.rec.Vdy, (m.rec.b - m.rec.tw) * m.rec.tw * tau, 1e-3);
  Made e(10);
  e.All();
  EXPECT_EQ(double(e.rec.Vdy), double(e.rec.Vdz));
}

// The one step after the material fills what angles have; the rest is the former section's.
TEST(AngleRecord, KeepsWhatItDoesNotFill) {
  for (const int type : {10, 11}) {
    Made m(type);
    m.rec.Iw = 11.0;
    m.rec.Weffy = 12.0;
    m.rec.Mdy = 13.0;
    m.rec.Ncrdshown = 14.0;
    m.rec.Wply = 15.0;
    m.All();
    EXPECT_EQ(double(m.rec.Iw), 11);
    EXPECT_EQ(double(m.rec.Weffy), 12);
    EXPECT_EQ(double(m.rec.Mdy), 13);
    EXPECT_EQ(double(m.rec.Ncrdshown), 14);
    EXPECT_EQ(double(m.rec.Wply), 15);
  }
}

double Shown(const ShownValues& values, std::string_view name) {
  const auto it = std::find_if(values.begin(), values.end(),
                               [name](const ShownValue& v) { return v.name == name; });
  return it == values.end() ? -1 : it->value;
}

TEST(AngleLabels, ArentRenumberedToMatchTheCorners) {
  for (const int type : {10, 11}) {
    Made m(type);
    m.All();
    const ShownValues shown = Properties(m.st, m.rec);
    EXPECT_EQ(Shown(shown, "Wu1"), double(m.rec.Wu2));
    EXPECT_EQ(Shown(shown, "Wv2"), double(m.rec.Wv1));
    EXPECT_NE(double(m.rec.Wu1), double(m.rec.Wu2));
  }
}

TEST(AngleLabels, AnEqualAngleHasNoneForTheSecondCapacityAboutU) {
  Made equal(10);
  equal.All();
  EXPECT_EQ(Shown(Capacities(equal.st, equal.rec), "Mud2"), -1);
  EXPECT_GT(Shown(Capacities(equal.st, equal.rec), "Mud3"), 0);
  Made unequal(11);
  unequal.All();
  EXPECT_GT(Shown(Capacities(unequal.st, unequal.rec), "Mud2"), 0);
}

}  // namespace
}  // namespace korvane
