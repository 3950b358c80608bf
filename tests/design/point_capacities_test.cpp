// SPDX-License-Identifier: GPL-3.0-or-later
// What the walk over the points relies on: the capacities of a family follow from the classes, N
// and shears above half of their capacity alone.
#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "designs.h"
#include "random_runs.h"
#include "sections/profile_table.h"
#include "sections/section_fields.h"

namespace korvane {
namespace {

std::vector<double> ValuesOf(const SectionRecord& rec) {
  std::vector<double> values;
  ForEachSectionField(rec, [&](const char*, const auto& field) { values.push_back(field); });
  return values;
}

std::vector<double> CapacitiesAt(const Design& d, const SectionForces& forces) {
  SectionRecord rec = d.rec;
  FindFamily(d.st.ProfileType)->routines.capacities(d.st, forces, rec);
  return ValuesOf(rec);
}

TEST(PointCapacities, FollowFromClassAxialForceAndLargeShearsAlone) {
  Design d = StartedDesign(1);
  std::set<int> changedByShear;
  std::set<int> seen;
  for (const Family& family : AllFamilies()) {
    if (family.routines.capacities == nullptr) continue;
    for (unsigned seed = 1; seed <= 40; ++seed) {
      // Above half of a negative capacity is every shear.
      if (RunDesign(d, seed, family.code) || d.rec.Vdz < 0 || d.rec.Vdy < 0) continue;
      SectionForces forces = d.forces;
      forces.My = 0;
      forces.Mz = 0;
      forces.Vy = 0;
      forces.Vz = 0;
      family.routines.capacities(d.st, forces, d.rec);
      const std::vector<double> unsheared = CapacitiesAt(d, forces);
      seen.insert(family.code);
      forces.My = seed % 3 == 0 ? -3.0 * seed : 2.0 * seed;
      forces.Mz = 0.5 * seed;
      forces.Ncl = 7.0 * seed;
      forces.Vz = 0.5 * d.rec.Vdz;
      forces.Vy = 0.4 * d.rec.Vdy;
      EXPECT_EQ(CapacitiesAt(d, forces), unsheared) << family.code << " seed " << seed;
      forces.Vz = 0.8 * d.rec.Vdz;
      forces.Vy = 0.8 * d.rec.Vdy;
      if (CapacitiesAt(d, forces) != unsheared) changedByShear.insert(family.code);
    }
  }
  // The general profile has no reduction for shear.
  EXPECT_GE(seen.size(), 25U);
  std::set<int> all = seen;
  all.erase(41);
  EXPECT_EQ(changedByShear, all);
}

}  // namespace
}  // namespace korvane
