// SPDX-License-Identifier: GPL-3.0-or-later
// Tidying of the load record against length and support: trapezoids, load entries,
// characteristic points, stiffener distance, and the messages.
#include <gtest/gtest.h>

#include <string>

#include "members.h"

namespace korvane {
namespace {

constexpr char kSignText[] = " Trapezoidal load: One positive and one negative value ";
constexpr char kOrderText[] = " x1 < x2 ";

struct TrapezoidCase {
  const char* name;
  double q1, q2, x1, x2;  // entered, on 6 m
  double q1After, q2After, x1After, x2After;
};
constexpr TrapezoidCase kTrapezoids[] = {
    {"inside", 4, 8, 1, 5, 4, 8, 1, 5},
    {"no ordinates: positions go", 0, 0, 1, 5, 0, 0, 0, 0},
    {"one ordinate is enough", 0, 8, 1, 5, 0, 8, 1, 5},
    {"the other one is enough", 4, 0, 1, 5, 4, 0, 1, 5},
    {"to the end", 4, 8, 1, 6, 4, 8, 1, 6},
    {"end cut with its ordinate", 4, 8, 2, 9, 4, 8, 2, 6},
    {"both beyond", 4, 8, 7, 9, 0, 0, 0, 0},
    {"both at the end", 4, 8, 6, 6, 0, 0, 0, 0},
    {"start at the end, end beyond", 4, 8, 6, 9, 0, 0, 0, 0},
    {"both at the start", 4, 8, 0, 0, 0, 0, 0, 0},
    {"no length inside", 4, 8, 3, 3, 4, 8, 3, 3},
    {"from the start", 4, 8, 0, 2, 4, 8, 0, 2},
    {"negative ordinates", -4, -8, 2, 9, -4, -8, 2, 6},
};

TEST(NormaliseLoads, TidiesEachTrapezoid) {
  for (const TrapezoidCase& c : kTrapezoids) {
    for (int t = 1; t <= 3; ++t) {
      SCOPED_TRACE(std::string(c.name) + ", trapezoid " + std::to_string(t));
      ProjectState st = BareMember(0, 6);
      PutTrapezoid(st, t, c.q1, c.q2, c.x1, c.x2);
      EXPECT_FALSE(NormaliseLoads(st).has_value());
      EXPECT_EQ(st.*TrapezoidOf(t).q1, c.q1After);
      EXPECT_EQ(st.*TrapezoidOf(t).q2, c.q2After);
      EXPECT_EQ(st.*TrapezoidOf(t).x1, c.x1After);
      EXPECT_EQ(st.*TrapezoidOf(t).x2, c.x2After);
    }
  }
}

TEST(NormaliseLoads, RefusesOrdinatesOfBothSigns) {
  for (int t = 1; t <= 3; ++t) {
    for (const double q : {4.0, -4.0}) {
      SCOPED_TRACE(t * q);
      ProjectState st = BareMember(0, 6);
      PutTrapezoid(st, t, q, -q, 1, 2);
      const auto message = NormaliseLoads(st);
      ASSERT_TRUE(message.has_value());
      EXPECT_EQ(message->text, kSignText);
      EXPECT_EQ(message->field, TrapezoidOf(t).q2);
      EXPECT_EQ(st.*TrapezoidOf(t).q1, q);  // the entry stays for mending
      EXPECT_EQ(st.*TrapezoidOf(t).q2, -q);
    }
  }
}

TEST(NormaliseLoads, RefusesPositionsTheWrongWayRound) {
  for (int t = 1; t <= 3; ++t) {
    SCOPED_TRACE(t);
    ProjectState st = BareMember(0, 6);
    PutTrapezoid(st, t, 4, 8, 3, 2);
    const auto message = NormaliseLoads(st);
    ASSERT_TRUE(message.has_value());
    EXPECT_EQ(message->text, kOrderText);
    EXPECT_EQ(message->field, TrapezoidOf(t).x2);
    EXPECT_EQ(st.*TrapezoidOf(t).x1, 3);
    EXPECT_EQ(st.*TrapezoidOf(t).x2, 2);
  }
}

TEST(NormaliseLoads, RefusesAStartBeyondTheEndOfTheMember) {
  ProjectState st = BareMember(0, 6);
  PutTrapezoid(st, 2, 4, 8, 7, 5);
  const auto message = NormaliseLoads(st);
  ASSERT_TRUE(message.has_value());
  EXPECT_EQ(message->text, kOrderText);
  EXPECT_EQ(message->field, &ProjectState::qt2_x2);
}

TEST(NormaliseLoads, NamesTheFirstFaultyTrapezoid) {
  ProjectState st = BareMember(0, 6);
  PutTrapezoid(st, 2, 4, -8, 1, 2);
  PutTrapezoid(st, 3, 4, -8, 1, 2);
  EXPECT_EQ(NormaliseLoads(st)->field, &ProjectState::qt2_2);
  st = BareMember(0, 6);
  PutTrapezoid(st, 2, 4, 8, 3, 2);
  PutTrapezoid(st, 3, 4, 8, 3, 2);
  EXPECT_EQ(NormaliseLoads(st)->field, &ProjectState::qt2_x2);
}

TEST(NormaliseLoads, SignsOfAllTrapezoidsComeBeforePositions) {
  ProjectState st = BareMember(0, 6);
  PutTrapezoid(st, 1, 4, 8, 3, 2);
  PutTrapezoid(st, 3, 4, -8, 1, 2);
  const auto message = NormaliseLoads(st);
  ASSERT_TRUE(message.has_value());
  EXPECT_EQ(message->text, kSignText);
  EXPECT_EQ(message->field, &ProjectState::qt3_2);
}

TEST(NormaliseLoads, GoesOnWithTheRestAfterAFault) {
  for (const bool signs : {true, false}) {
    SCOPED_TRACE(signs);
    ProjectState st = BareMember(0, 6);
    PutTrapezoid(st, 1, 4, signs ? -8 : 8, 3, signs ? 4 : 2);
    PutPoint(st, 1, 10, 6);
    st.pmx[2] = 3;
    st.cp_x[3] = 8;
    st.WebStiffener = 1;
    st.a_webstiff = 7000;
    EXPECT_TRUE(NormaliseLoads(st).has_value());
    EXPECT_EQ(st.pm[1], 0);
    EXPECT_EQ(st.pmx[1], 0);
    EXPECT_EQ(st.pmx[2], 0);
    EXPECT_EQ(st.cp_x[3], 6);
    EXPECT_EQ(st.WebStiffener, 0);
    EXPECT_EQ(st.a_webstiff, 3000);
  }
}

// --- Load entries -----------------------------------------------------------------------------

struct ItemCase {
  bool moment;
  int support;
  bool keptAtStart, keptInside, keptAtEnd, keptBeyond;
};
constexpr ItemCase kItems[] = {
    {false, 0, false, true, false, false}, {false, 1, false, true, false, false},
    {false, 2, false, true, false, false}, {false, 3, false, true, false, false},
    {false, 4, false, true, true, false},  {false, 5, false, true, false, false},
    {true, 0, true, true, true, false},    {true, 1, true, true, false, false},
    {true, 2, false, true, false, false},  {true, 3, true, true, true, false},
    {true, 4, false, true, true, false},   {true, 5, true, true, false, false},
};

void ExpectItem(const ItemCase& c, int i, double x, bool kept) {
  SCOPED_TRACE("support " + std::to_string(c.support) + (c.moment ? ", moment " : ", point ") +
               std::to_string(i) + " at " + std::to_string(x));
  ProjectState st = BareMember(c.support, 6);
  PutPoint(st, i, 10, x);
  st.pm_pm[i] = c.moment ? 1 : 0;
  EXPECT_FALSE(NormaliseLoads(st).has_value());
  EXPECT_EQ(st.pm[i], kept ? 10 : 0);
  EXPECT_EQ(st.pmx[i], kept ? x : 0);
}

TEST(NormaliseLoads, KeepsOrClearsLoadEntriesByKindAndSupport) {
  for (const ItemCase& c : kItems) {
    for (const int i : {1, 4, 8}) {
      ExpectItem(c, i, 0, c.keptAtStart);
      ExpectItem(c, i, 3.5, c.keptInside);
      ExpectItem(c, i, 6, c.keptAtEnd);
      ExpectItem(c, i, 6.5, c.keptBeyond);
    }
  }
}

TEST(NormaliseLoads, AnEntryOfNoSizeLosesItsPosition) {
  for (int support = 0; support <= 5; ++support) {
    SCOPED_TRACE(support);
    ProjectState st = BareMember(support, 6);
    PutPoint(st, 3, 0, 2);
    PutMoment(st, 4, 0, 2);
    EXPECT_FALSE(NormaliseLoads(st).has_value());
    EXPECT_EQ(st.pmx[3], 0);
    EXPECT_EQ(st.pmx[4], 0);
  }
}

TEST(NormaliseLoads, ClearingKeepsGroupDirectionAndKind) {
  ProjectState st = BareMember(0, 6);
  PutMoment(st, 2, 5, 7, 0);
  st.pm_pv[2] = 2;
  NormaliseLoads(st);
  EXPECT_EQ(st.pm_pm[2], 1);
  EXPECT_EQ(st.pm_yz[2], 0);
  EXPECT_EQ(st.pm_pv[2], 2);
}

// --- Characteristic points and stiffeners -----------------------------------------------------

TEST(NormaliseLoads, CutsCharacteristicPointsToTheLength) {
  ProjectState st = BareMember(0, 6);
  st.cp_x[1] = 6.5;
  st.cp_x[2] = 6;
  st.cp_x[3] = 2;
  NormaliseLoads(st);
  EXPECT_EQ(st.cp_x[1], 6);
  EXPECT_EQ(st.cp_x[2], 6);
  EXPECT_EQ(st.cp_x[3], 2);
}

TEST(NormaliseLoads, StartingPointsStandUntilTidied) {
  ProjectState st = BareMember(0, 1.5);
  EXPECT_EQ(st.cp_x[1], 1);
  EXPECT_EQ(st.cp_x[2], 2);
  EXPECT_EQ(st.cp_x[3], 3);
  NormaliseLoads(st);
  EXPECT_EQ(st.cp_x[1], 1);
  EXPECT_EQ(st.cp_x[2], 1.5);
  EXPECT_EQ(st.cp_x[3], 1.5);
}

TEST(NormaliseLoads, StiffenerDistanceBeyondTheLengthIsHalvedLength) {
  ProjectState st = BareMember(0, 2);
  st.WebStiffener = 1;
  st.a_webstiff = 2500;
  NormaliseLoads(st);
  EXPECT_EQ(st.WebStiffener, 0);
  EXPECT_EQ(st.a_webstiff, 1000);
}

TEST(NormaliseLoads, StiffenerDistanceUpToTheLengthStays) {
  ProjectState st = BareMember(0, 2.5);
  st.WebStiffener = 1;
  st.a_webstiff = 2500;
  NormaliseLoads(st);
  EXPECT_EQ(st.WebStiffener, 1);
  EXPECT_EQ(st.a_webstiff, 2500);
}

}  // namespace
}  // namespace korvane
