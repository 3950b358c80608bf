// SPDX-License-Identifier: GPL-3.0-or-later
// Section control: the cross-section at every calculation point (12.2).
#pragma once

#include "analysis/beam.h"
#include "checks/check_line.h"
#include "sections/profile_table.h"

namespace korvane {

/// Walks the calculation points 0..pt_last with the family's class and capacity routines and
/// keeps the governing ratio of each group of checks with its numbers. Leaves the forces of the
/// last point in f. May switch LateralTorsionalBuckling off and set LoadLevel (plate families).
/// Text is composed afterwards by ComposeLines.
void SectionControl(const Family& family, ProjectState& st, const BeamResults& beam,
                    const LtbResults& ltb, SectionForces& f, SectionRecord& rec, CheckResults& out);

/// Sets all ratios to 0 and forgets the governing numbers of section control.
void ClearSectionResults(CheckResults& out);

/// Moments of an angle about its principal axes u and v, kNm; alfadeg in degrees.
struct PrincipalMoments {
  double Mu, Mv;
};
/// My and Mz in kNm, turned by the angle from y to u.
PrincipalMoments ToPrincipal(double My, double Mz, double alfadeg);

}  // namespace korvane
