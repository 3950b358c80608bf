// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/mode_shapes.h"

#include <gtest/gtest.h>

#include <cmath>

namespace korvane {
namespace {

struct Row {
  int support, mode;
  double x, expected;
};

/// Ends on a support don't move; the free end of a cantilever moves most.
TEST(ModeShapeTest, EndsAndSymmetry) {
  constexpr Row rows[] = {{0, 1, 0, 0},    {0, 1, 1, 0},   {0, 1, 0.5, 1}, {0, 2, 0.5, 0},
                          {0, 3, 0.5, -1}, {1, 1, 0, 0},   {1, 2, 1, 0},   {2, 1, 0, 0},
                          {2, 3, 1, 0},    {2, 2, 0.5, 0}, {2, 1, 0.5, 1}, {4, 1, 0, 0},
                          {4, 1, 1, 1},    {3, 1, 0.5, 0}, {5, 2, 0.3, 0}};
  for (const Row& r : rows) {
    EXPECT_NEAR(ModeShape(r.support, r.mode, r.x), r.expected, 2e-3)
        << r.support << " mode " << r.mode << " at " << r.x;
  }
}

/// A clamped end has no slope.
TEST(ModeShapeTest, ClampedEndsAreLevel) {
  for (const int support : {2, 4}) {
    for (int mode = 1; mode <= 3; ++mode) {
      EXPECT_LT(std::fabs(ModeShape(support, mode, 0.001)), 1e-4) << support << " " << mode;
    }
  }
  EXPECT_LT(std::fabs(ModeShape(1, 1, 0.999)), 1e-4);
}

/// A higher mode crosses the axis as often as its number less one.
TEST(ModeShapeTest, CrossingsCountTheMode) {
  for (const int support : {0, 1, 2, 4}) {
    for (int mode = 1; mode <= 3; ++mode) {
      int crossings = 0;
      for (int i = 2; i < 99; ++i) {
        const double a = ModeShape(support, mode, i / 100.0 + 0.003);
        const double b = ModeShape(support, mode, (i + 1) / 100.0 + 0.003);
        if (a * b < 0) ++crossings;
      }
      EXPECT_EQ(crossings, mode - 1) << support << " mode " << mode;
    }
  }
}

}  // namespace
}  // namespace korvane
