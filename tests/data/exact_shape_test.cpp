// SPDX-License-Identifier: GPL-3.0-or-later
// Proves the tests' integrator on shapes with closed solutions.
#include "tests/support/exact_shape.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace korvane::testing {
namespace {

constexpr double kRound = 1e-4;  // relative, of circles cut into chords

TEST(ExactShape, Rectangle) {
  const Shape s({Rounded({{10, 20, 0}, {40, 20, 0}, {40, 80, 0}, {10, 80, 0}})});
  EXPECT_DOUBLE_EQ(s.A(), 1800);
  EXPECT_DOUBLE_EQ(s.Cx(), 25);
  EXPECT_DOUBLE_EQ(s.Cy(), 50);
  EXPECT_NEAR(s.Iy(), 30 * 60.0 * 60 * 60 / 12, 1e-6);
  EXPECT_NEAR(s.Iz(), 60 * 30.0 * 30 * 30 / 12, 1e-6);
  EXPECT_NEAR(s.Iyz(), 0, 1e-6);
  EXPECT_NEAR(s.Wply(), 30 * 60.0 * 60 / 4, 1e-6);
  EXPECT_NEAR(s.Wplz(), 60 * 30.0 * 30 / 4, 1e-6);
  EXPECT_DOUBLE_EQ(s.Perimeter(), 180);
}

TEST(ExactShape, CircleFromFourRoundedCorners) {
  const double r = 7;
  const Shape s({Rounded({{-r, -r, r}, {r, -r, r}, {r, r, r}, {-r, r, r}})});
  const double pi = std::numbers::pi;
  EXPECT_NEAR(s.A() / (pi * r * r), 1, kRound);
  EXPECT_NEAR(s.Iy() / (pi * r * r * r * r / 4), 1, kRound);
  EXPECT_NEAR(s.Wply() / (4 * r * r * r / 3), 1, kRound);
  EXPECT_NEAR(s.Perimeter() / (2 * pi * r), 1, kRound);
}

TEST(ExactShape, RightAngledTriangle) {
  const double b = 30;
  const double h = 60;
  const Shape s({Rounded({{0, 0, 0}, {b, 0, 0}, {0, h, 0}})});
  EXPECT_NEAR(s.Cy(), h / 3, 1e-9);
  EXPECT_NEAR(s.Iy(), b * h * h * h / 36, 1e-6);
  EXPECT_NEAR(s.Iyz(), -b * b * h * h / 72, 1e-6);
  // The axis that halves the area lies h/sqrt(2) below the tip.
  EXPECT_NEAR(s.Wply(), b * h * h * (2 - std::sqrt(2.0)) / 6, 1e-6);
}

TEST(ExactShape, RootFilletsOfAnIAddFourSpandrels) {
  const IShape plain{200, 100, 6, 10, 0};
  IShape filleted = plain;
  filleted.r = 12;
  const double spandrel = 12 * 12 * (1 - std::numbers::pi / 4);
  EXPECT_NEAR(MakeI(filleted).A() - MakeI(plain).A(), 4 * spandrel, 4 * spandrel * kRound);
}

TEST(ExactShape, ASlopedFlangeMeasuredAtItsMiddleKeepsTheArea) {
  const IShape flat{200, 100, 6, 10, 0};
  const IShape sloped{200, 100, 6, 10, 0, 0.14, (100 - 6) / 4.0};
  EXPECT_NEAR(MakeI(sloped).A(), MakeI(flat).A(), 1e-9);
  EXPECT_LT(MakeI(sloped).Iz(), MakeI(flat).Iz());
}

TEST(ExactShape, AHoleIsTakenOff) {
  const Shape s = MakeHollow(100, 60, 5, 0, 0);
  EXPECT_NEAR(s.A(), 100 * 60 - 90 * 50, 1e-9);
  EXPECT_NEAR(s.Wply(), 60 * 100.0 * 100 / 4 - 50 * 90.0 * 90 / 4, 1e-6);
}

}  // namespace
}  // namespace korvane::testing
