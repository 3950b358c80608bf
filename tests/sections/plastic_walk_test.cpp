// SPDX-License-Identifier: GPL-3.0-or-later
// The walk to the plastic axis where the typed flanges are thicker than the section is high: the
// input limits let them pass.
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>

#include "core/calculation.h"
#include "core/numeric.h"
#include "sections/section_sum.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

TEST(PlasticWalk, StopsAtTheFirstHeightWithHalfTheArea) {
  RectList list;
  list.Add(Rect{100, 40, 0, 0});
  list.Add(Rect{10, 120, 45, 40});
  list.Add(Rect{100, 40, 0, 160});
  // 4000 + 10*(y - 40) >= 4600
  EXPECT_NEAR(WalkPlasticAxis(list, 9200, 200), 100.0, 0.1);
}

TEST(PlasticWalk, TakesAWebOfNegativeHeightAwayWhereItLies) {
  RectList list;
  list.Add(Rect{100, 40, 0, 0});
  list.Add(Rect{10, -30, 45, 40});
  list.Add(Rect{90, 40, 5, 10});
  // The web lies between 10 and 40 mm: 100*y + 90*(y - 10) - 10*(y - 10) >= 3650 from 24.72 on.
  EXPECT_NEAR(WalkPlasticAxis(list, 7300, 50), 24.8, 1e-9);
}

// The literal walk: every step from 2 mm on is tested.
double StepByStep(const RectList& list, double A, double H) {
  for (double y = 2.0; y <= H; y += 0.1) {
    double below = 0;
    for (const Rect& r : list) below += r.w * std::clamp(y - r.y0, 0.0, r.t);
    if (below >= A / 2) return y;
  }
  return -1;
}

TEST(PlasticWalk, EndsOnTheVeryStepOfTheLiteralWalk) {
  std::mt19937 random(3472);
  std::uniform_real_distribution<double> length(1, 400);
  for (int i = 0; i < 500; ++i) {
    RectList list;
    double top = 0;
    double A = 0;
    for (int k = 0; k < 3; ++k) {
      list.Add(Rect{length(random), length(random), 0, top});
      top = list.rects[static_cast<std::size_t>(k)].Top();
      A += list.rects[static_cast<std::size_t>(k)].Area();
    }
    EXPECT_EQ(WalkPlasticAxis(list, A, top), StepByStep(list, A, top)) << i;
  }
}

TEST(PlasticWalk, AnswersAtOnceForASectionAsTallAsTheSky) {
  RectList list;
  list.Add(Rect{100, 40, 0, 0});
  list.Add(Rect{10, 1E15, 45, 40});
  const double A = 4000 + 1E16;
  EXPECT_NEAR(WalkPlasticAxis(list, A, 1E15 + 40), (A / 2 - 4000) / 10 + 40, 1);
}

// Flanges that overlap make a web that takes area away: the half may be passed twice.
TEST(PlasticWalk, GoesOnWhereTheFirstCrossingFallsBetweenTwoSteps) {
  RectList list;
  list.Add(Rect{100, 10.05, 0, 0});   // 1005 at 10.05
  list.Add(Rect{200, -4, 0, 14.05});  // takes 200 a mm from 10.05 to 14.05
  list.Add(Rect{1, 1E9, 0, 14.05});
  const double y = WalkPlasticAxis(list, 2009.9, 2E9);  // 1004.95 at 10.0495
  // 1005 - 800 + (y - 14.05) = 1004.95 at 814.
  EXPECT_NEAR(y, 814, 0.11);
}

TEST(PlasticWalk, RefusesEdgesWithoutAPlace) {
  RectList list;
  list.Add(Rect{1, std::numeric_limits<double>::infinity(), 0, 0});
  EXPECT_THROW(WalkPlasticAxis(list, 1, 10), ArithmeticFault);
}

TEST(PlasticWalk, DesignsFlangesThatOverlap) {
  Design d(SourceLibrary());
  StartDesign(d);
  d.st.ProfileType = 22;
  d.st.p22_h = 50;
  d.st.p22_b = 90;
  d.st.p22_b2 = 100;
  d.st.p22_tw = 10;
  d.st.p22_tf1 = 40;
  d.st.p22_tf2 = 40;
  try {
    Calculate(d);
  } catch (const CalculationFault&) {
    // The later steps may find no use for such a section.
  }
  EXPECT_EQ(double(d.rec.A), 7300.0);
  EXPECT_NEAR(d.rec.ezpl, 50 - 24.8, 1e-4);
}

TEST(PlasticWalk, EndsBeyondTheSection) {
  RectList list;
  list.Add(Rect{100, 1, 0, 0});
  list.Add(Rect{100, 0.5, 0, 1});
  EXPECT_THROW(WalkPlasticAxis(list, 150, 1.5), ArithmeticFault);
}

}  // namespace
}  // namespace korvane
