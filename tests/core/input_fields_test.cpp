// SPDX-License-Identifier: GPL-3.0-or-later
// The table of inputs and the limits as data.
#include "core/input_fields.h"

#include <gtest/gtest.h>

#include <set>
#include <stdexcept>

namespace korvane {
namespace {

using S = ProjectState;

TEST(Limits, AreToldInWords) {
  EXPECT_EQ(RangeWords(Between(0.3, 2, "")), "0.3 to 2");
  EXPECT_EQ(RangeWords(Between(100, 1500, "")), "100 to 1500");
  EXPECT_EQ(RangeWords(AtLeast(0.05, "")), "at least 0.05");
  EXPECT_EQ(RangeWords(Above(0, "")), "more than 0");
  EXPECT_EQ(RangeWords({.high = 4, .highIncluded = false}), "less than 4");
  EXPECT_EQ(RangeWords({}), "any");
  EXPECT_FALSE(HasLimit({}));
  EXPECT_TRUE(HasLimit({.high = 4}));
}

TEST(Limits, FollowTheInputsThatTheyName) {
  S st;
  st.L = 6;
  EXPECT_EQ(RangeWords(LimitOf(st, InputOf(&S::a_webstiff))), "at least 100, less than 6000");
  EXPECT_EQ(RangeWords(LimitOf(st, InputOf(&S::pmx, 3))), "0 to 6");
  st.pmx_relative = 1;
  EXPECT_EQ(RangeWords(LimitOf(st, InputOf(&S::pmx, 3))), "0 to 1");
  EXPECT_EQ(RangeWords(LimitOf(st, InputOf(&S::k_ltb))), "0.5 to 1");
  st.SupportType = 4;
  EXPECT_EQ(RangeWords(LimitOf(st, InputOf(&S::k_ltb))), "1 to 2");
}

TEST(Inputs, AreKnownByNameAndByMember) {
  std::set<std::string> names;
  for (const InputField& field : AllInputFields()) {
    EXPECT_TRUE(names.insert(field.name).second) << field.name;
    EXPECT_EQ(FindInputField(field.name), &field);
    EXPECT_EQ(InputOf(field.member).field, &field) << field.name;
  }
  EXPECT_EQ(FindInputField("nothing"), nullptr);
  EXPECT_THROW(InputOf(InputMember(static_cast<float32 S::*>(nullptr))), std::logic_error);
}

TEST(Inputs, StoreWhatIsRefusedAndSaySo) {
  S st;
  EXPECT_EQ(StoreInput(st, InputOf(&S::L), 7.5), nullptr);
  EXPECT_EQ(st.L, 7.5);
  EXPECT_STREQ(StoreInput(st, InputOf(&S::L), 0.01), " L >= 0.050 ");
  EXPECT_EQ(st.L, float32(0.01));
}

TEST(Inputs, RefusedPositionsOfLoadsBecomeZero) {
  S st;
  EXPECT_EQ(StoreInput(st, InputOf(&S::pmx, 2), 5), nullptr);
  EXPECT_STREQ(StoreInput(st, InputOf(&S::pmx, 2), 5.1), " 0 < x <= l ");
  EXPECT_EQ(st.pmx[2], 0.0);
  EXPECT_STREQ(StoreInput(st, InputOf(&S::cp_x, 2), 5.1), " 0 < x <= l ");
  EXPECT_EQ(st.cp_x[2], float32(5.1));
}

TEST(Inputs, PositionsAreSharesWhileTheirFlagSaysSo) {
  S st;
  st.qtx_relative = 1;
  EXPECT_EQ(StoreInput(st, InputOf(&S::qt1_x2), 0.5), nullptr);
  EXPECT_EQ(st.qt1_x2, 2.5);
  EXPECT_EQ(ReadInput(st, InputOf(&S::qt1_x2)), 0.5);
  EXPECT_STREQ(StoreInput(st, InputOf(&S::qt3_x2), 1.5), " 0 < x1 <= 1 ");
}

// 100.4 is stored as 100, 99.5 as 100 and 99.4 as 99.
TEST(Inputs, IntegersAreTestedAsTheyAreStored) {
  S st;
  const InputRef limit = InputOf(&S::DeflectionLimit);
  EXPECT_EQ(StoreInput(st, limit, 1500.4), nullptr);
  EXPECT_EQ(st.DeflectionLimit, 1500);
  EXPECT_EQ(StoreInput(st, limit, 99.5), nullptr);
  EXPECT_EQ(st.DeflectionLimit, 100);
  EXPECT_STREQ(StoreInput(st, limit, 99.4), "100 <= Deflection <=1500 ");
  EXPECT_EQ(st.DeflectionLimit, 99);
  EXPECT_THROW(StoreInput(st, limit, 40000), ArithmeticFault);
}

TEST(Inputs, TheLimitOfAnotherControlMayStandInForTheirOwn) {
  S st;
  const InputRef spring = InputOf(&S::SpringRestraint);
  EXPECT_EQ(StoreInput(st, spring, 100), nullptr);
  EXPECT_STREQ(StoreInput(st, spring, 100, Between(1, 99, "other")), "other");
}

}  // namespace
}  // namespace korvane
