// SPDX-License-Identifier: GPL-3.0-or-later
// Interaction diagrams: their corners are the section's capacities, and what lies on them has the
// allowable ratio.
#include "studies/interaction.h"

#include <gtest/gtest.h>

#include <cmath>

#include "studies/member.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

/// HEA 200 of S235, whose flange is compact: Nd = A*fd, Myd = Wply*fd, Mzd = Wplz*fd.
TEST(Interaction, CornersAreTheCapacities) {
  const Design started = StartedDesign(SourceLibrary());
  Design d = started;
  ProjectState member = NewMember(SourceLibrary());
  member.MaterialIndex = 0;
  DesignMember(started, member, d);
  const double fd = d.st.fyk / d.st.gammam1;
  const auto my = InteractionEnvelope(started, member, InteractionAxes::NMy, {}, 4);
  ASSERT_EQ(my.size(), 4U);
  EXPECT_NEAR(my[0].a, d.rec.A * fd / 1E3, 0.5);
  EXPECT_NEAR(my[2].a, -d.rec.A * fd / 1E3, 0.5);
  EXPECT_NEAR(my[1].b, d.rec.Wply * fd / 1E6, 0.05);
  EXPECT_NEAR(my[3].b, -d.rec.Wply * fd / 1E6, 0.05);
  const auto mz = InteractionEnvelope(started, member, InteractionAxes::MyMz, {}, 4);
  ASSERT_EQ(mz.size(), 4U);
  EXPECT_NEAR(mz[1].b, d.rec.Wplz * fd / 1E6, 0.05);
}

TEST(Interaction, OnTheEnvelopeTheRatioIsTheAllowableOne) {
  const Design started = StartedDesign(SourceLibrary());
  ProjectState member = NewMember(SourceLibrary());
  member.iufa = 0.8;
  Design work = started;
  const auto points = InteractionEnvelope(started, member, InteractionAxes::NMy, {}, 24);
  ASSERT_EQ(points.size(), 24U);
  for (const EnvelopePoint& p : points) {
    EXPECT_LE(SectionRatio(started, member, {p.a, p.b, 0, 0, 0}, work), float32(0.8));
    EXPECT_GT(SectionRatio(started, member, {1.001 * p.a, 1.001 * p.b, 0, 0, 0}, work), 0.8);
  }
}

}  // namespace
}  // namespace korvane
