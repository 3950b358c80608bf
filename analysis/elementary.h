// SPDX-License-Identifier: GPL-3.0-or-later
// Elementary beam solutions: one load on one support case as a few polynomial coefficients, and
// a plane's loads as a list of them.
#pragma once

#include <array>
#include <cstddef>

#include "analysis/loads.h"
#include "core/project_state.h"

namespace korvane {

/// Moment m0 + m1*x + m2*x^2 (kNm) and shear v0 + v1*x (kN) on one side of a load.
struct ForceBranch {
  double m0 = 0, m1 = 0, m2 = 0, v0 = 0, v1 = 0;
};

/// A load's forces: the branch left of its position a, the one right of it, and the values at
/// the ends of the member, which have rules of their own.
struct ForcePart {
  double a = 0;
  bool inclusive = false;  ///< x = a belongs to the left branch
  ForceBranch left, right;
  double V0 = 0, VL = 0, M0 = 0, ML = 0;
  double endMoment = 0;  ///< what a moment load gives at a point at exactly x = L

  const ForceBranch& At(double x) const { return x < a || (inclusive && x == a) ? left : right; }
};

/// Deflection in mm on one side of a load: a quartic of x, or of L - x where mirrored.
struct DeflectionBranch {
  std::array<double, 5> c{};
  bool mirrored = false;
};

/// A load's deflection; x = a belongs to the right branch.
struct DeflectionPart {
  double a = 0;
  DeflectionBranch left, right;
  double start = 0;  ///< at x = 0, which stands still but under a moment before a clamped end
};

/// Fixed-capacity list: a plane has at most a line load, 60 slices and 16 load entries, each in
/// two parts where a spring support blends two cases.
template <class Part>
class PartList {
public:
  void Add(const Part& part) { parts_.at(count_++) = part; }
  const Part* begin() const { return parts_.data(); }
  const Part* end() const { return parts_.data() + count_; }

private:
  std::array<Part, 160> parts_;
  std::size_t count_ = 0;
};

/// All loads of one plane on the member's support, as forces. L in m, loads in kN, kN/m, kNm.
void CollectForces(const ProjectState& st, const PlaneLoads& loads, PartList<ForcePart>& parts);

/// All loads of one plane as deflections; K = 1E12/(E*I) turns kN*m^3 into mm.
void CollectDeflections(const ProjectState& st, const PlaneLoads& loads, double K,
                        PartList<DeflectionPart>& parts);

}  // namespace korvane
