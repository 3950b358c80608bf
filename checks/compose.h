// SPDX-License-Identifier: GPL-3.0-or-later
// The texts of the check lines, composed once from the governing numbers.
#pragma once

#include "checks/checked_member.h"

namespace korvane {

/// Writes all CheckLines of a calculation: section control, and column buckling where it ran
/// (else its lines keep the text of the last run). A family without a control has no lines at all.
void ComposeLines(const CheckedMember& m, const SectionRecord& rec, const SectionForces& f,
                  const BucklingResults& b, CheckResults& out);

/// Empties all CheckLines: those of an unknown family.
void ClearLines(CheckResults& out);

}  // namespace korvane
