// SPDX-License-Identifier: GPL-3.0-or-later
// The walk to the plastic axis where the typed flanges are thicker than the section is high: the
// input limits let them pass.
#include <gtest/gtest.h>

#include "core/calculation.h"
#include "core/numeric.h"
#include "sections/section_sum.h"

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

TEST(PlasticWalk, DesignsFlangesThatOverlap) {
  Design d(ReadLibrary(KORVANE_SOURCE_DIR "/data"));
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
