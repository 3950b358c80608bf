// SPDX-License-Identifier: GPL-3.0-or-later
// Equal and unequal angles, designed about their principal axes.
#pragma once

#include "sections/profile_table.h"

namespace korvane {

/// Dimension step: the row idxLeq of the equal angles in mm, mm2, mm3, mm4, kg/m, m2/m, with the
/// distances of the corners from the principal axes. Throws ArithmeticFault for a row that the
/// catalogue lacks.
void LoadEqualAngle(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
/// The same for the row idxLuneq of the unequal angles.
void LoadUnequalAngle(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);

/// Class, effective area, axial capacities in kN and moment capacities in kNm, elastic, one for
/// each corner point; they stay unreduced in class 4. Reads fd, fyk, gammam1, epsilon. 12.1,
/// 12.2.2 to 12.2.4.
void EqualAngleCapacities(const ProjectState& st, SectionRecord& rec);
/// The same with each leg's own part in the reduction of the area.
void UnequalAngleCapacities(const ProjectState& st, SectionRecord& rec);

/// Vdz and Vdy in kN, of the legs along z and y. 12.2.5.
void EqualAngleShear(const ProjectState& st, SectionRecord& rec);
/// The same for h along z and b along y.
void UnequalAngleShear(const ProjectState& st, SectionRecord& rec);

}  // namespace korvane
