// SPDX-License-Identifier: GPL-3.0-or-later
// The texts of the check lines, composed once from the governing numbers.
#pragma once

#include "analysis/beam.h"
#include "checks/check_line.h"
#include "sections/profile_table.h"

namespace korvane {

/// Writes all CheckLines of a calculation: section control, and column buckling where it ran
/// (else its lines keep the text of the last run). A family without a control, or null, has no
/// lines at all.
void ComposeLines(const Family* family, const ProjectState& st, const SectionRecord& rec,
                  const SectionForces& f, const BeamResults& beam, const LtbResults& ltb,
                  const BucklingResults& b, CheckResults& out);

}  // namespace korvane
