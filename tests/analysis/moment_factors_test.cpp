// SPDX-License-Identifier: GPL-3.0-or-later
// Quarter-point moments and the moment factors of the buckling check, against hand values.
#include <gtest/gtest.h>

#include <string>

#include "members.h"

namespace korvane {
namespace {

/// Load that bends in one plane with a curve that isn't straight between stations.
ProjectState Curved(int axis) {
  ProjectState st = BareMember(1, 6);
  st.q1 = 10;
  st.q1_yz = axis;
  PutPoint(st, 1, 7, 2.2, axis);
  return st;
}

TEST(QuarterPoints, MyTakesMeansOfTwoStations) {
  const PlaneForces z = Analysed(Curved(1)).z;
  EXPECT_EQ(z.M_q[0], z.M[0]);
  EXPECT_NEAR(z.M_q[1], (z.M[12] + z.M[13]) / 2, 1e-5);
  EXPECT_EQ(z.M_q[2], z.M[25]);
  EXPECT_NEAR(z.M_q[3], (z.M[37] + z.M[38]) / 2, 1e-5);
  EXPECT_EQ(z.M_q[4], z.M[50]);
}

TEST(QuarterPoints, MzTakesSingleStations) {
  const PlaneForces y = Analysed(Curved(0)).y;
  EXPECT_EQ(y.M_q[0], y.M[0]);
  EXPECT_EQ(y.M_q[1], y.M[12]);
  EXPECT_EQ(y.M_q[2], y.M[25]);
  EXPECT_EQ(y.M_q[3], y.M[37]);
  EXPECT_EQ(y.M_q[4], y.M[50]);
}

TEST(QuarterPoints, TheAxesDifferForTheSameLoad) {
  const PlaneForces z = Analysed(Curved(1)).z;
  const PlaneForces y = Analysed(Curved(0)).y;
  EXPECT_EQ(z.M[12], y.M[12]);
  EXPECT_NE(z.M_q[1], y.M_q[1]);
  EXPECT_NE(z.M_q[3], y.M_q[3]);
}

struct FactorCase {
  const char* name;
  double M0, Mm, ML;
  double M12, M38;
  double beta;
};
/// Hand values. With end moments: 1.8 - 0.7*psi + (MQ/dM)*(1.3 - that).
constexpr FactorCase kFactors[] = {
    {"nothing at all", 0, 0, 0, 0, 0, 1.4},
    {"triangle: quarter moments are half", 0, 10, 0, 5, 5, 1.4},
    {"parabola: three quarters", 0, 10, 0, 7.5, 7.5, 1.3},
    {"exactly 1.2 times half is still 1.4", 0, 10, 0, 6, 6, 1.4},
    {"just above 1.2 times half", 0, 10, 0, 6.01, 6.01, 1.3},
    {"left station alone", 0, 10, 0, 6.5, 0, 1.3},
    {"right station alone", 0, 10, 0, 0, -6.5, 1.3},
    {"mid moment of the other sign", 0, -10, 0, -7.5, -7.5, 1.3},
    {"straight, equal ends", 10, 10, 10, 0, 0, 1.1},
    {"straight, other end 0", 10, 5, 0, 0, 0, 1.8},
    {"straight, other end 0, mirrored", 0, 5, 10, 0, 0, 1.8},
    {"straight, opposite ends", 10, 0, -10, 0, 0, 2.5},
    // psi = 0.5, beta_psi = 1.45, MQ = |7.5 - 20| = 12.5, A = 20, |B| = 5
    {"sagging beyond the ends", 10, 20, 5, 0, 0, 1.45 + 12.5 / 25 * (1.3 - 1.45)},
    // psi = 0.5, MQ = |-7.5 - 20| = 27.5; B = |-10|, A = |20|
    {"hogging ends, sagging middle", -10, 20, -5, 0, 0, 1.45 + 27.5 / 30 * (1.3 - 1.45)},
    // psi = 1, beta_psi = 1.1, MQ = 10, B = |min(-10, -20)| = 20, A = |max(-10, -20)| = 10
    {"hogging all along", -10, -20, -10, 0, 0, 1.1 + 10.0 / 30 * (1.3 - 1.1)},
    // big = -30 (right): psi = -1/3, beta_psi = 2.03333, MQ = |-10 - 5| = 15, B = 30, A = 10
    {"right end governs", 10, 5, -30, 0, 0, (1.8 + 0.7 / 3) + 15.0 / 40 * (1.3 - 1.8 - 0.7 / 3)},
    // Equal sizes, and the left end is taken as the big one: psi = -1,
    // beta_psi = 2.5, MQ = 4, big = -10: B = 10, A = 10
    {"equal sizes, left is big", -10, 4, 10, 0, 0, 2.5 + 4.0 / 20 * (1.3 - 2.5)},
};

void SetMoments(const FactorCase& c, PlaneForces& p) {
  p.M_q[0] = c.M0;
  p.M_q[2] = c.Mm;
  p.M_q[4] = c.ML;
  p.M[12] = c.M12;
  p.M[38] = c.M38;
}

TEST(MomentFactors, ByHandAboutBothAxes) {
  for (const FactorCase& c : kFactors) {
    SCOPED_TRACE(c.name);
    BeamResults r;
    SetMoments(c, r.z);
    MomentFactors(r);
    EXPECT_NEAR(r.betaMy, c.beta, 1e-12);
    EXPECT_EQ(r.betaMz, 1.4);  // nothing about z
    r = {};
    SetMoments(c, r.y);
    MomentFactors(r);
    EXPECT_NEAR(r.betaMz, c.beta, 1e-12);
    EXPECT_EQ(r.betaMy, 1.4);
  }
}

TEST(MomentFactors, WithoutEndMomentsTheStationsDecideNotTheQuarterPoints) {
  BeamResults r;
  r.z.M_q[2] = 10;
  r.z.M_q[1] = 9;
  r.z.M_q[3] = 9;
  MomentFactors(r);
  EXPECT_EQ(r.betaMy, 1.4);
}

TEST(MomentFactors, OfWholeMembers) {
  ProjectState line = BareMember(0, 6);
  line.q1 = 10;
  EXPECT_EQ(Analysed(line).betaMy, 1.3);
  ProjectState point = BareMember(0, 6);
  PutPoint(point, 1, 10, 3);
  EXPECT_EQ(Analysed(point).betaMy, 1.4);
  // Fixed beam, q*L^2 = 360: ends -30, middle 15; psi = 1, MQ = 45, dM = 45.
  ProjectState fixed = BareMember(2, 6);
  fixed.q1 = 10;
  EXPECT_NEAR(Analysed(fixed).betaMy, 1.3, 1e-6);
  // Cantilever: ends -180 and 0, middle -45: beta_psi = 1.8, MQ = 45, dM = 180 + 0.
  ProjectState cantilever = BareMember(4, 6);
  cantilever.q1 = 10;
  EXPECT_NEAR(Analysed(cantilever).betaMy, 1.8 + 45.0 / 180 * (1.3 - 1.8), 1e-6);
  // A moment at the left end of a simple beam: a triangle, no moment between the ends.
  ProjectState moment = BareMember(0, 6);
  PutMoment(moment, 1, 10, 0);
  EXPECT_NEAR(Analysed(moment).betaMy, 1.8, 1e-6);
}

TEST(MomentFactors, OfAMemberBentAboutBothAxes) {
  ProjectState st = BareMember(0, 6);
  st.q1 = 10;
  PutPoint(st, 1, 10, 3, 0);
  const BeamResults r = Analysed(st);
  EXPECT_EQ(r.betaMy, 1.3);
  EXPECT_EQ(r.betaMz, 1.4);
}

}  // namespace
}  // namespace korvane
