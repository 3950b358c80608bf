// SPDX-License-Identifier: GPL-3.0-or-later
// What the checks of a member read and leave alone.
#pragma once

#include "analysis/beam.h"
#include "checks/check_line.h"
#include "sections/profile_table.h"

namespace korvane {

/// The member with its forces and its lateral torsional values, as analysis and section steps have
/// left them.
struct CheckedMember {
  const Family& family;
  const ProjectState& st;
  const BeamResults& beam;
  const LtbResults& ltb;
};

}  // namespace korvane
