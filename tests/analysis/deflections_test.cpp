// SPDX-License-Identifier: GPL-3.0-or-later
// Deflections by hand: textbook values of each support, ends, branches, extremes, planes and
// the stiffness figure of the optimiser.
#include "analysis/deflections.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "members.h"

namespace korvane {
namespace {

/// Iy of 1E8 mm4 and E of 210000 MPa: 1 kN*m^3 is K mm.
constexpr double kK = 1E12 / (210000.0 * 1E8);

ProjectState LineLoaded(int support, double L = 6, double q = 10) {
  ProjectState st = BareMember(support, L);
  st.q1 = q;
  return st;
}

TEST(Deflections, SimpleBeamUnderLineLoad) {
  const Deflections d = Deflected(LineLoaded(0));
  EXPECT_NEAR(d.DeflZ[25], 5 * 10 * 1296 / 384.0 * kK, 1e-5);
  EXPECT_NEAR(d.DeflZ[25], 8.04, 0.005);
  EXPECT_NEAR(6000 / d.DeflZ_max, 746.7, 0.1);
}

struct TextbookCase {
  const char* name;
  int support, station;
  double q, P, Mo, a;
  double value;  ///< kN*m^3, EI times the deflection; L = 6
};
constexpr TextbookCase kTextbook[] = {
    {"propped, q*L^4/192 at mid-span", 1, 25, 10, 0, 0, 0, 10 * 1296 / 192.0},
    {"fixed, q*L^4/384 at mid-span", 2, 25, 10, 0, 0, 0, 10 * 1296 / 384.0},
    {"cantilever, q*L^4/8 at the tip", 4, 50, 10, 0, 0, 0, 10 * 1296 / 8.0},
    {"simple, P*L^3/48", 0, 25, 0, 10, 0, 3, 10 * 216 / 48.0},
    {"propped, 7*P*L^3/768", 1, 25, 0, 10, 0, 3, 7 * 10 * 216 / 768.0},
    {"fixed, P*L^3/192", 2, 25, 0, 10, 0, 3, 10 * 216 / 192.0},
    {"cantilever, tip load P*L^3/3", 4, 50, 0, 10, 0, 6, 10 * 216 / 3.0},
    {"cantilever, load at mid-span, at the tip 5*P*L^3/48", 4, 50, 0, 10, 0, 3,
     5 * 10 * 216 / 48.0},
    {"cantilever, load at mid-span, there P*L^3/24", 4, 25, 0, 10, 0, 3, 10 * 216 / 24.0},
    {"simple, moment on the left end, Mo*L^2/16", 0, 25, 0, 0, 10, 0, 10 * 36 / 16.0},
    {"simple, moment on the right end, -Mo*L^2/16", 0, 25, 0, 0, 10, 6, -10 * 36 / 16.0},
    {"propped, moment on the pinned end, Mo*L^2/32", 1, 25, 0, 0, 10, 0, 10 * 36 / 32.0},
    {"cantilever, moment at the tip, Mo*L^2/2", 4, 50, 0, 0, 10, 6, 10 * 36 / 2.0},
    {"cantilever, moment at mid-span, at the tip 3*Mo*L^2/8", 4, 50, 0, 0, 10, 3,
     3 * 10 * 36 / 8.0},
};

TEST(Deflections, TextbookValues) {
  for (const TextbookCase& c : kTextbook) {
    SCOPED_TRACE(c.name);
    ProjectState st = LineLoaded(c.support, 6, c.q);
    if (c.P != 0) PutPoint(st, 1, c.P, c.a);
    if (c.Mo != 0) PutMoment(st, 1, c.Mo, c.a);
    EXPECT_NEAR(Deflected(st).DeflZ[c.station], c.value * kK, 1e-6 * std::fabs(c.value * kK));
  }
}

TEST(Deflections, MomentAtMidSpanOfASimpleOrFixedBeamLeavesItStill) {
  for (const int support : {0, 2, 3}) {
    SCOPED_TRACE(support);
    ProjectState st = BareMember(support, 6);
    PutMoment(st, 1, 10, 3);
    const Deflections d = Deflected(st);
    EXPECT_NEAR(d.DeflZ[25], 0, 1e-9);
    EXPECT_LT(d.DeflZ[12], -1e-3);  // the left half rises, the right half sinks
    EXPECT_GT(d.DeflZ[38], 1e-3);
  }
}

TEST(Deflections, TheEndsStandStill) {
  for (int support = 0; support <= 5; ++support) {
    SCOPED_TRACE(support);
    ProjectState st = LineLoaded(support);
    PutPoint(st, 1, 10, 2.5);
    PutMoment(st, 2, 10, 3.5);
    PutTrapezoid(st, 1, 1, 4, 1, 5);
    const Deflections d = Deflected(st);
    EXPECT_EQ(d.DeflZ[0], 0);
    if (support == 4) {
      EXPECT_EQ(d.DeflZ[50], d.DeflZ_max);
      EXPECT_GT(d.DeflZ[50], d.DeflZ[49]);
    } else {
      EXPECT_EQ(d.DeflZ[50], 0);
      EXPECT_GT(d.DeflZ[49], 0);
    }
  }
}

/// At a moment load deflection and slope are continuous; the curve bends by Mo/EI there.
TEST(Deflections, AMomentLoadBendsTheCurveAtItsPlace) {
  for (int support = 0; support <= 5; ++support) {
    SCOPED_TRACE(support);
    ProjectState st = BareMember(support, 64);
    PutMoment(st, 1, 10, 32);
    const Deflections d = Deflected(st);
    const double h = 64 / 50.0;
    const auto bend = [&](int i) { return d.DeflZ[i - 1] - 2 * d.DeflZ[i] + d.DeflZ[i + 1]; };
    // second differences left and right of the load: they differ by -Mo*h^2 (and the slow
    // change of the moment over two stations)
    const double jump = bend(26) - bend(24);
    EXPECT_NEAR(jump, -10 * h * h * kK, 0.1 * 10 * h * h * kK);
  }
}

TEST(Deflections, BranchesMeetAtAPointLoad) {
  for (int support = 0; support <= 5; ++support) {
    SCOPED_TRACE(support);
    ProjectState at = BareMember(support, 64);
    PutPoint(at, 1, 10, 32);
    ProjectState after = at;
    after.pmx[1] = 32.001;
    const double w = Deflected(at).DeflZ[25];
    EXPECT_NEAR(Deflected(after).DeflZ[25], w, 1e-3 * w);
  }
}

TEST(Deflections, LoadAtTheTipCoversTheWholeCantilever) {
  ProjectState st = BareMember(4, 6);
  PutPoint(st, 1, 10, 6);
  const Deflections d = Deflected(st);
  for (int i = 0; i <= 50; ++i) {
    const double x = 0.12 * i;
    const double expected = 10 * x * x * (3 * 6 - x) / 6 * kK;
    EXPECT_NEAR(d.DeflZ[i], expected, 1e-6 * expected + 1e-12) << i;
  }
}

TEST(Deflections, CantileverIsStraightBeyondItsLoad) {
  ProjectState st = BareMember(4, 6);
  PutPoint(st, 1, 10, 2);
  const Deflections d = Deflected(st);
  const double slope = 10 * 4 / 2.0 * kK;  // P*a^2/2, per m
  for (int i = 20; i < 50; ++i) {
    EXPECT_NEAR(d.DeflZ[i + 1] - d.DeflZ[i], 0.12 * slope, 1e-5) << i;
  }
}

TEST(Deflections, SpringEndsBlend) {
  for (const int s : {0, 25, 50, 100}) {
    SCOPED_TRACE(s);
    ProjectState both = LineLoaded(3);
    both.SpringRestraint = s;
    ProjectState one = LineLoaded(5);
    one.SpringRestraint = s;
    const double t = s / 100.0;
    const double simple = 5 * 10 * 1296 / 384.0;
    EXPECT_NEAR(Deflected(both).DeflZ[25], ((1 - t) * simple + t * 10 * 1296 / 384.0) * kK, 1e-5);
    EXPECT_NEAR(Deflected(one).DeflZ[25], ((1 - t) * simple + t * 10 * 1296 / 192.0) * kK, 1e-5);
  }
}

TEST(Deflections, ExtremesStartAtZero) {
  const Deflections down = Deflected(LineLoaded(0));
  EXPECT_EQ(down.DeflZ_max, down.DeflZ[25]);
  EXPECT_EQ(down.DeflZ_min, 0);
  const Deflections up = Deflected(LineLoaded(0, 6, -10));
  EXPECT_EQ(up.DeflZ_max, 0);
  EXPECT_EQ(up.DeflZ_min, up.DeflZ[25]);
}

TEST(Deflections, ExtremesAreThoseOfTheStationsAlone) {
  ProjectState st = LineLoaded(1);
  PutPoint(st, 1, 10, 2.47);
  st.cp_mode = 1;
  st.cp_x[1] = 2.6;
  const Deflections d = Deflected(st);
  EXPECT_EQ(d.DeflZ_max, *std::max_element(d.DeflZ.begin(), d.DeflZ.end()));
}

TEST(Deflections, EachPlaneHasItsSecondMomentOfArea) {
  ProjectState st = LineLoaded(0);
  st.q2 = 10;
  st.q2_yz = 0;
  const Deflections d = Deflected(st, 1E8, 0.25E8);
  for (int i = 0; i <= 50; ++i) EXPECT_NEAR(d.DeflY[i], 4 * d.DeflZ[i], 1e-5) << i;
  EXPECT_NEAR(d.DeflY_max, 4 * d.DeflZ_max, 1e-5);
  EXPECT_EQ(d.DeflY_min, 0);
}

TEST(Deflections, ALoadInOnePlaneLeavesTheOther) {
  ProjectState st = LineLoaded(0);
  st.q1_yz = 0;
  const Deflections d = Deflected(st);
  for (int i = 0; i <= 50; ++i) EXPECT_EQ(d.DeflZ[i], 0) << i;
  EXPECT_GT(d.DeflY_max, 0);
  EXPECT_EQ(d.DeflStiff, 0);
}

TEST(Deflections, SelfWeightAloneDeflects) {
  ProjectState st = BareMember(0, 6);
  st.SelfWeight = 1;
  st.lfsw_uls = 3;  // an ultimate factor has no say here
  EXPECT_NEAR(Deflected(st, 1E8, 1E8, 100).DeflZ[25], 5 * 1296 / 384.0 * kK, 1e-6);
}

TEST(Deflections, StiffnessFigureIsFreeOfTheSection) {
  const Deflections soft = Deflected(LineLoaded(0), 1E7);
  const Deflections stiff = Deflected(LineLoaded(0), 1E8);
  EXPECT_NEAR(soft.DeflStiff, soft.DeflZ_max * 1E7, 100);
  EXPECT_NEAR(soft.DeflStiff / stiff.DeflStiff, 1, 1e-6);
}

TEST(Deflections, UpwardDeflectionDoesNotReachTheStiffnessFigure) {
  EXPECT_EQ(Deflected(LineLoaded(0, 6, -10)).DeflStiff, 0);
}

TEST(Deflections, FormerValuesAreOverwritten) {
  WorkingLoads loads;
  Deflections d = Deflected(LineLoaded(4));
  const ProjectState empty = BareMember(0, 6);
  CombineSls(empty, 0, loads);
  ComputeDeflections(empty, loads, 1E8, 1E8, d);
  for (int i = 0; i <= 50; ++i) EXPECT_EQ(d.DeflZ[i], 0) << i;
  EXPECT_EQ(d.DeflZ_max, 0);
  EXPECT_EQ(d.DeflStiff, 0);
}

TEST(Deflections, AnUnknownSupportGivesZeros) {
  const Deflections d = Deflected(LineLoaded(6));
  for (int i = 0; i <= 50; ++i) EXPECT_EQ(d.DeflZ[i], 0) << i;
}

TEST(Deflections, NoLengthIsAnArithmeticFault) {
  for (const int support : {0, 1, 2, 3, 5}) {
    SCOPED_TRACE(support);
    EXPECT_THROW(Deflected(LineLoaded(support, 0)), ArithmeticFault);
  }
}

// A file can hold a length that no form accepts: the line load's formulas are even in the length.
TEST(Deflections, ANegativeLengthStillCarriesTheLineLoad) {
  for (const int support : {0, 1, 2, 4}) {
    SCOPED_TRACE(support);
    const Deflections forward = Deflected(LineLoaded(support));
    const Deflections backward = Deflected(LineLoaded(support, -6));
    EXPECT_GT(forward.DeflZ[25], 1);
    EXPECT_NEAR(backward.DeflZ[25], forward.DeflZ[25], 1e-5);
  }
}

TEST(Deflections, ASectionWithoutStiffnessIsAnArithmeticFault) {
  EXPECT_THROW(Deflected(LineLoaded(0), 0), ArithmeticFault);
}

// A file can hold positions that no form accepts: the formulas of the clamped member then go on.
TEST(Deflections, CantileverLoadsOutsideTheMember) {
  const double L = 6;
  for (const double a : {-1.5, 7.0}) {
    SCOPED_TRACE(a);
    ProjectState st = BareMember(4, L);
    PutPoint(st, 1, 10, a);
    const double b = L - a;
    const double tip = kK * 10 / 6 * (2 * L * L * L - 3 * L * L * b + b * b * b);
    const Deflections d = Deflected(st);
    EXPECT_EQ(d.DeflZ[0], 0);
    EXPECT_NEAR(d.DeflZ[50], tip, std::fabs(tip) * 1e-6);
  }
  ProjectState st = BareMember(4, L);
  PutMoment(st, 1, 10, -1.5);
  const Deflections d = Deflected(st);
  EXPECT_NEAR(d.DeflZ[0], -kK * 10 * 1.5 * 1.5 / 2, 1e-6);
  EXPECT_NEAR(d.DeflZ[50], kK * 10 * (1.5 * 1.5 / 2 - 1.5 * 7.5), 1e-5);
}

// A length below 0 stands in files alone: stations lie at x <= 0, ahead of every load, so that the
// left branch covers them: b = L - a, K*P*L*b*x/6 * (1 - (b/L)^2 - (x/L)^2).
TEST(Deflections, PointLoadOnANegativeLengthTakesItsLeftBranch) {
  ProjectState st = BareMember(0, -6);
  st.pm[1] = 10;
  st.pmx[1] = 2;
  const Deflections d = Deflected(st);
  const double L = -6;
  const double b = L - 2;
  const double x = L / 2;
  const double expected = kK * 10 * L * b * x / 6 * (1 - b * b / (L * L) - 0.25);
  ASSERT_GT(std::fabs(expected), 1);
  EXPECT_NEAR(d.DeflZ[25], expected, 1e-4 * std::fabs(expected));
}

TEST(Deflections, LessThanAThousandthOfAMillimetreHasNoRatio) {
  EXPECT_EQ(LengthOverDeflection(6, 12, -3), 500);
  EXPECT_EQ(LengthOverDeflection(6, 3, -12), 500);
  EXPECT_EQ(LengthOverDeflection(-6, 12, 0), 500);
  EXPECT_EQ(LengthOverDeflection(6, 0.00099, 0), 0);
  EXPECT_NEAR(LengthOverDeflection(6, 0, -0.001), 6E6, 1);
  EXPECT_EQ(LengthOverDeflection(6, 0, 0), 0);
}

}  // namespace
}  // namespace korvane
