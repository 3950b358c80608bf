// SPDX-License-Identifier: GPL-3.0-or-later
// The loads of one load picture as items, and the layers that distributed loads are stacked in.
#pragma once

#include <string>
#include <vector>

#include "analysis/beam.h"
#include "core/project_state.h"

namespace korvane {

/// A load over a part of the member. Ordinates in kN/m, positions relative to the length.
struct DistributedLoad {
  double x1 = 0, x2 = 1;
  double q1 = 0, q2 = 0;
  double at1 = 0, at2 = 0;  ///< m, as entered
  bool whole = false;       ///< over the whole length: has no positions of its own
  const char* tag = "";     ///< group of a variable load
  int layer = 0;            ///< 0 stands at the member
  /// Its resultant acts upwards, so it stands below the member.
  bool Upward() const { return q1 + q2 < 0; }
};

/// A point load (kN) or a moment (kNm).
struct PointLoad {
  double x = 0, value = 0;
  double at = 0;  ///< m, as entered
  const char* tag = "";
  bool moment = false;
};

struct LoadItems {
  std::vector<DistributedLoad> distributed;
  std::vector<PointLoad> points;
  int layersAbove = 0, layersBelow = 0;
  double greatestQ = 0, greatestP = 0, greatestM = 0;  ///< sizes

  /// Positions in m that the picture tells, sorted, each once.
  std::vector<double> Positions() const;
};

/// The unfactored loads of a plane: those of the permanent group or of both variable ones.
LoadItems CollectLoads(const ProjectState& st, Plane plane, bool variable);

}  // namespace korvane
