// SPDX-License-Identifier: GPL-3.0-or-later
// C factors of lateral torsional buckling: those of the whole member by support and shape of the
// moment diagram, those of a segment by its end moments.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "checks/lateral_buckling.h"

namespace korvane {
namespace {

/// Moments that decide: at the ends, at stations 12, 25 and 38.
struct Diagram {
  double M0, M12, M25, M38, ML;
};

BeamResults BeamOf(const Diagram& d, double sign = 1) {
  BeamResults beam;
  beam.z.M[0] = beam.z.M_q[0] = sign * d.M0;
  beam.z.M[12] = sign * d.M12;
  beam.z.M[25] = beam.z.M_q[2] = sign * d.M25;
  beam.z.M[38] = sign * d.M38;
  beam.z.M[50] = beam.z.M_q[4] = sign * d.ML;
  return beam;
}

struct MemberCase {
  const char* name;
  int support, spring;
  double k;
  Diagram diagram;
  double C1, C2, C3;
};

// At k = 1 the sets are U 1.132 0.459 0.525, P 1.365 0.553 1.735, UF 1.285 1.562 0.753,
// PF 1.565 1.267 2.645; at k = 0.5 U 0.972 0.304 0.98, P 1.07 0.432 3.05, UF 0.712 0.652 1.07.
const std::vector<MemberCase> kMembers{
    // Pinned ends: the limit at the quarter points is 0.6 * 100.
    {"pinned, spread on the left", 0, 0, 1, {0, 60.1, 100, 50, 0}, 1.132, 0.459, 0.525},
    {"pinned, spread on the right", 0, 0, 1, {0, 50, 100, 60.1, 0}, 1.132, 0.459, 0.525},
    {"pinned, exactly at the limit", 0, 0, 1, {0, 60, 100, 60, 0}, 1.365, 0.553, 1.735},
    {"pinned, k = 0.5, spread", 0, 0, 0.5, {0, 75, 100, 75, 0}, 0.972, 0.304, 0.98},
    {"pinned, k = 0.5, point", 0, 0, 0.5, {0, 50, 100, 50, 0}, 1.07, 0.432, 3.05},
    // t = 0.6: 1.132 - 0.096, 0.459 - 0.093, 0.525 + 0.273.
    {"pinned, k = 0.7, spread", 0, 0, 0.7, {0, 75, 100, 75, 0}, 1.036, 0.366, 0.798},
    // One fixed end: the limit at station 38 is (100 + 50)*0.6 - 50 = 40.
    // 0.6*P + 0.4*PF = 0.819 + 0.626, 0.3318 + 0.5068, 1.041 + 1.058.
    {"pinned-fixed, at the limit", 1, 0, 1, {0, 90, 100, 40, -50}, 1.445, 0.8386, 2.099},
    // 0.6*U + 0.4*UF = 0.6792 + 0.514, 0.2754 + 0.6248, 0.315 + 0.3012.
    {"pinned-fixed, above it", 1, 0, 1, {0, 0, 100, 40.1, -50}, 1.1932, 0.9002, 0.6162},
    // Two fixed ends: both limits are 40.
    {"fixed, spread on the right", 2, 0, 1, {-50, 0, 100, 40.1, -50}, 1.285, 1.562, 0.753},
    {"fixed, spread on the left", 2, 0, 1, {-50, 40.1, 100, 0, -50}, 1.285, 1.562, 0.753},
    {"fixed, at the limits", 2, 0, 1, {-50, 40, 100, 40, -50}, 1.565, 1.267, 2.645},
    {"fixed, k = 0.5, spread", 2, 0, 0.5, {-50, 45, 100, 45, -50}, 0.712, 0.652, 1.07},
    // Springs of 50 %: (1.285 + 1.132)/2, (1.562 + 0.459)/2, (0.753 + 0.525)/2.
    {"springs 50 %, spread", 3, 50, 1, {-50, 0, 100, 41, -50}, 1.2085, 1.0105, 0.639},
    // (1.565 + 1.365)/2, (1.267 + 0.553)/2, (2.645 + 1.735)/2.
    {"springs 50 %, point", 3, 50, 1, {-50, 40, 100, 40, -50}, 1.465, 0.91, 2.19},
    // 25 %: 0.32125 + 0.849, 0.3905 + 0.34425, 0.18825 + 0.39375.
    {"springs 25 %, spread", 3, 25, 1, {-50, 41, 100, 0, -50}, 1.17025, 0.73475, 0.582},
    // Cantilever: the limit at mid-span is 0.6 * |M0 + ML| = 60, the sets take half of k.
    {"cantilever, spread", 4, 0, 2, {-100, 0, -60.1, 0, 0}, 1.132, 0.459, 0.525},
    {"cantilever, at the limit", 4, 0, 2, {-100, 0, -60, 0, 0}, 1.365, 0.553, 1.735},
    {"cantilever, k = 1, spread", 4, 0, 1, {-100, 0, -70, 0, 0}, 0.972, 0.304, 0.98},
    {"cantilever, k = 1, point", 4, 0, 1, {-100, 0, -50, 0, 0}, 1.07, 0.432, 3.05},
    // One spring of 50 %: halves of (0.6*P + 0.4*PF) and P: 0.7225 + 0.6825 and so on.
    {"pinned-spring, point", 5, 50, 1, {0, 90, 100, 40, -50}, 1.405, 0.6958, 1.917},
    // Halves of (0.6*U + 0.4*UF) and U: 0.5966 + 0.566, 0.4501 + 0.2295, 0.3081 + 0.2625.
    {"pinned-spring, spread", 5, 50, 1, {0, 0, 100, 40.1, -50}, 1.1626, 0.6796, 0.5706},
};

TEST(FactorsOfMember, FollowSupportAndShapeInBothSigns) {
  for (const MemberCase& c : kMembers) {
    for (const double sign : {1.0, -1.0}) {
      SCOPED_TRACE(std::string(c.name) + (sign < 0 ? ", turned over" : ""));
      ProjectState st;
      st.SupportType = c.support;
      st.SpringRestraint = c.spring;
      st.k_ltb = c.k;
      const CFactors f = FactorsOfMember(st, BeamOf(c.diagram, sign));
      EXPECT_NEAR(f.C1, c.C1, 2e-7);
      EXPECT_NEAR(f.C2, c.C2, 2e-7);
      EXPECT_NEAR(f.C3, c.C3, 2e-7);
    }
  }
}

TEST(FactorsOfMember, LeaveTheLengthFactorOfACantilever) {
  ProjectState st;
  st.SupportType = 4;
  st.k_ltb = 2;
  FactorsOfMember(st, BeamOf({-100, 0, -50, 0, 0}));
  EXPECT_EQ(st.k_ltb, 2);
}

TEST(FactorsOfMember, AreZeroForAnUnknownSupport) {
  ProjectState st;
  st.SupportType = 9;
  const CFactors f = FactorsOfMember(st, BeamOf({0, 75, 100, 75, 0}));
  EXPECT_EQ(f.C1, 0);
  EXPECT_EQ(f.C2, 0);
  EXPECT_EQ(f.C3, 0);
}

// The peak is looked for in the middle three fifths only, stations 10 to 40.
TEST(FactorsOfMember, TakeThePeakOfTheMiddleThreeFifths) {
  const Diagram spread{0, 75, 100, 75, 0};
  for (const int station : {9, 41}) {
    BeamResults beam = BeamOf(spread);
    beam.z.M[station] = 1000;
    EXPECT_DOUBLE_EQ(FactorsOfMember(ProjectState{}, beam).C1, 1.132) << station;
  }
  for (const int station : {10, 40}) {
    BeamResults beam = BeamOf(spread);
    beam.z.M[station] = -1000;  // limit 600: the quarter points stay below
    EXPECT_DOUBLE_EQ(FactorsOfMember(ProjectState{}, beam).C1, 1.365) << station;
  }
}

// ---- segments

struct Cell {
  double reference, slope;
};
struct Row {
  double lower;
  Cell C1[3], C3[3];  ///< k = 1, 0.7, 0.5
};
const std::vector<Row> kRows{
    {0.75,
     {{1.141, -0.141}, {1.27, -0.27}, {1.305, -0.305}},
     {{0.998, 0.002}, {1.565, -0.452}, {2.283, -1.139}}},
    {0.5,
     {{1.323, -0.182}, {1.27, -0.203}, {1.305, -0.209}},
     {{0.992, 0.006}, {1.556, 0.009}, {2.271, 0.012}}},
    {0.25,
     {{1.563, -0.24}, {1.739, -0.266}, {1.788, -0.274}},
     {{0.977, 0.015}, {1.531, 0.025}, {2.235, 0.036}}},
    {0,
     {{1.879, -0.316}, {2.092, -0.353}, {2.15, -0.362}},
     {{0.939, 0.038}, {1.473, 0.058}, {2.15, 0.085}}},
    {-0.25,
     {{2.281, -0.402}, {2.538, -0.446}, {2.609, -0.459}},
     {{0.855, 0.084}, {1.34, 0.133}, {1.957, 0.193}}},
    {-0.5,
     {{2.704, -0.423}, {3.009, -0.471}, {3.093, -0.484}},
     {{0.676, 0.179}, {1.059, 0.281}, {1.546, 0.411}}},
    {-0.75,
     {{2.927, -0.223}, {3.009, 0}, {3.093, 0}},
     {{0.366, 0.31}, {0.575, 0.484}, {0.837, 0.709}}},
    {-1, {{2.752, 0.175}, {3.063, -0.054}, {3.149, -0.056}}, {{0, 0.366}, {0, 0.575}, {0, 0.837}}},
};
const double kLengths[] = {1, 0.7, 0.5};

TEST(FactorsOfSegment, StandAtTheLowerBorderOfEachRow) {
  for (const Row& row : kRows) {
    for (int i = 0; i < 3; ++i) {
      SCOPED_TRACE(testing::Message() << "r " << row.lower << " k " << kLengths[i]);
      const SegmentFactors f = FactorsOfSegment(row.lower, float32(kLengths[i]));
      EXPECT_NEAR(f.C1, row.C1[i].reference, 1e-7);
      EXPECT_NEAR(f.C3, row.C3[i].reference, 1e-7);
    }
  }
}

TEST(FactorsOfSegment, ReachTheSlopeJustBelowTheNextRow) {
  for (const Row& row : kRows) {
    for (int i = 0; i < 3; ++i) {
      SCOPED_TRACE(testing::Message() << "row " << row.lower << " k " << kLengths[i]);
      const double r = row.lower == 0.75 ? 1 : std::nextafter(row.lower + 0.25, -2);
      const SegmentFactors f = FactorsOfSegment(r, float32(kLengths[i]));
      EXPECT_NEAR(f.C1, row.C1[i].reference + row.C1[i].slope, 1e-7);
      EXPECT_NEAR(f.C3, row.C3[i].reference + row.C3[i].slope, 1e-7);
    }
  }
}

TEST(FactorsOfSegment, RunLinearlyWithinARow) {
  // r = 0.125: halfway: 1.879 - 0.158, 2.092 - 0.1765, 2.15 - 0.181.
  EXPECT_NEAR(FactorsOfSegment(0.125, 1).C1, 1.721, 1e-12);
  EXPECT_NEAR(FactorsOfSegment(0.125, 0.7).C1, 1.9155, 1e-12);
  EXPECT_NEAR(FactorsOfSegment(0.125, 0.5).C1, 1.969, 1e-12);
  // 2.15 + 0.0425.
  EXPECT_NEAR(FactorsOfSegment(0.125, 0.5).C3, 2.1925, 1e-12);
}

TEST(FactorsOfSegment, OfAConstantMomentIsOneForAnyLength) {
  for (const double k : {0.5, 0.6, 0.7, 0.85, 1.0, 2.0}) {
    EXPECT_NEAR(FactorsOfSegment(1, k).C1, 1, 1e-12) << k;
  }
  EXPECT_NEAR(FactorsOfSegment(1, 1).C3, 1, 1e-12);
  EXPECT_NEAR(FactorsOfSegment(1, 0.7).C3, 1.113, 1e-12);
  EXPECT_NEAR(FactorsOfSegment(1, 0.5).C3, 1.144, 1e-12);
}

// The table jumps here: 1.27 at the border, 1.27 - 0.203 = 1.067 just below.
TEST(FactorsOfSegment, JumpAtThreeQuarters) {
  EXPECT_NEAR(FactorsOfSegment(0.75, 0.7).C1, 1.27, 1e-12);
  EXPECT_NEAR(FactorsOfSegment(std::nextafter(0.75, 0), 0.7).C1, 1.067, 1e-12);
}

TEST(FactorsOfSegment, LieBetweenTheLengthsOfTheTable) {
  // r = 0: halfway from 2.092 to 1.879, and from 2.15 to 2.092.
  EXPECT_NEAR(FactorsOfSegment(0, 0.85).C1, 1.9855, 1e-12);
  EXPECT_NEAR(FactorsOfSegment(0, 0.6).C1, 2.121, 1e-12);
  // C3: halfway from 1.473 to 0.939, and from 2.15 to 1.473.
  EXPECT_NEAR(FactorsOfSegment(0, 0.85).C3, 1.206, 1e-12);
  EXPECT_NEAR(FactorsOfSegment(0, 0.6).C3, 1.8115, 1e-12);
  // Beyond the table the line goes on: 2.092 + (1.3/0.3)*(1.879 - 2.092) = 1.169.
  EXPECT_NEAR(FactorsOfSegment(0, 2).C1, 1.169, 1e-12);
}

}  // namespace
}  // namespace korvane
