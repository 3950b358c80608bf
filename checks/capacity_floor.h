// SPDX-License-Identifier: GPL-3.0-or-later
// A floor under the check lines, worked out apart from them: each force alone against its own
// capacity at every calculation point, and the capacities that a force needs above 0.
#pragma once

#include "checks/verdict.h"
#include "sections/profile_table.h"

namespace korvane {

/// A force and the capacity that it is held against, by name, kN or kNm, at x/L.
struct HeldForce {
  const char* force = "";
  const char* capacity = "";
  double acting = 0, held = 0, x = 0;
  bool Set() const { return *force != '\0'; }
};

struct CapacityFloor {
  double ratio = 0;  ///< greatest of the forces alone
  HeldForce worst;   ///< the force of this ratio
  HeldForce lost;    ///< the force whose capacity is 0 or less, the lowest one; may be unset
};

/// Walks the points on copies of record and forces. Throws ArithmeticFault where the section's
/// own routines do.
CapacityFloor FloorOf(const Family& family, const Finished& d);

}  // namespace korvane
