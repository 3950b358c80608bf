// SPDX-License-Identifier: GPL-3.0-or-later
// Equal and unequal angles, designed about their principal axes.
#pragma once

#include "sections/profile_table.h"

namespace korvane {

void LoadEqualAngle(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
void LoadUnequalAngle(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);

/// Class, effective area, axial, moment and shear capacities. Moment capacities are elastic, one
/// for each corner point, and stay unreduced in class 4.
void EqualAngleCapacities(const ProjectState& st, SectionRecord& rec);
void UnequalAngleCapacities(const ProjectState& st, SectionRecord& rec);

}  // namespace korvane
