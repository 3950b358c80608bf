// SPDX-License-Identifier: GPL-3.0-or-later
// Designs for the tests of the optimiser, and the search done plainly for comparison.
#pragma once

#include <cmath>
#include <functional>
#include <memory>

#include "optimiser/optimize.h"
#include "tests/support/source_library.h"

namespace korvane {

/// A new project after its first calculation, changed by the test and calculated again.
inline Design Prepared(const std::function<void(ProjectState&)>& change = {}) {
  Design design(SourceLibrary());
  StartDesign(design);
  Calculate(design);
  if (change) change(design.st);
  Calculate(design);
  design.st.ResultView = kCriterionUls;
  return design;
}

/// One size of a series, recalculated in a copy of its own.
struct Size {
  double weight = 0.0;
  double ir = 0.0;
  double deflectionRatio = 0.0;  ///< L/deflection, 0 without deflection
};

inline Size SizeOf(const Design& before, int row, int index) {
  const OptimiserRow& series = OptimiserRowOf(row);
  Design design = before;
  design.st.ProfileType = series.ProfileType;
  design.st.*series.index = index;
  SilentRecalculation(design);
  const double deflection = std::fabs(design.deflections.DeflZ_max);
  return {design.rec.S, MaxIR(design.checks),
          deflection > 0.0 ? design.st.L * 1000.0 / deflection : 0.0};
}

/// The lightest size for which passes holds, the earlier one at equal weight; -1 for none.
inline int LightestSize(const Design& before, int row,
                        const std::function<bool(const Size&)>& passes) {
  int best = -1;
  double weight = 1000.0;
  for (int k = 0; k <= OptimiserRowOf(row).last; ++k) {
    const Size size = SizeOf(before, row, k);
    if (passes(size) && size.weight < weight) {
      weight = size.weight;
      best = k;
    }
  }
  return best;
}

}  // namespace korvane
