// SPDX-License-Identifier: GPL-3.0-or-later
// Takes tabled sections through their steps and sets the values side by side.
#include "sections.h"

#include "../sections/section_support.h"

namespace korvane::verification {

std::vector<Case> SectionCases(std::span<const SectionValue> values) {
  std::vector<Case> cases;
  for (const SectionValue& v : values) {
    testing::Made made(1);
    v.choose(made.st);
    const double ours = made.All().*v.field;
    cases.push_back({std::string(v.section) + ", " + v.quantity, v.source, "", v.value, ours,
                     v.unit, v.tolerance, v.remark});
  }
  return cases;
}

}  // namespace korvane::verification
