// SPDX-License-Identifier: GPL-3.0-or-later
// Third and fourth powers against whole numbers, whose product is exact and is rounded once.
#include "core/powers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <random>

namespace korvane {
namespace {

__extension__ using Wide = unsigned __int128;

TEST(Powers, OfSmallNumbersAreTheirProducts) {
  EXPECT_EQ(Cube(0), 0);
  EXPECT_EQ(Cube(3), 27);
  EXPECT_EQ(Cube(-2.5), -15.625);
  EXPECT_EQ(Fourth(-3), 81);
  EXPECT_EQ(Fourth(0.5), 0.0625);
}

TEST(Powers, AreRoundedOnce) {
  std::mt19937_64 random(1);
  int cubesThatDiffer = 0;
  for (int i = 0; i < 20000; ++i) {
    const std::uint64_t m = random() >> 24U;  // 40 digits: the cube has 120
    const auto x = static_cast<double>(m);
    EXPECT_EQ(Cube(x), static_cast<double>(Wide{m} * m * m)) << m;
    // The same digits at another place of the point.
    EXPECT_EQ(Cube(std::ldexp(x, -50)), std::ldexp(static_cast<double>(Wide{m} * m * m), -150));
    if (x * x * x != Cube(x)) ++cubesThatDiffer;
    const std::uint64_t k = random() >> 33U;  // 31 digits: the fourth power has 124
    EXPECT_EQ(Fourth(static_cast<double>(k)), static_cast<double>(Wide{k} * k * k * k)) << k;
  }
  // A product that is rounded twice is another number for many.
  EXPECT_GT(cubesThatDiffer, 1000);
}

TEST(Powers, OfHugeNumbersAreStillPowers) {
  EXPECT_DOUBLE_EQ(Cube(1E90), 1E270);
  EXPECT_DOUBLE_EQ(Fourth(1E71), 1E284);
  EXPECT_TRUE(std::isinf(Cube(1E110)));
}

}  // namespace
}  // namespace korvane
