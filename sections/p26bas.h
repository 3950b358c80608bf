// SPDX-License-Identifier: GPL-3.0-or-later
// T sections, which take axial force alone, and flat bars.
#pragma once

#include "sections/profile_table.h"

namespace korvane {

/// Dimension step: typed dimensions of a T, flange at the top, to mm, mm2, mm3, mm4, mm6, kg/m,
/// m2/m.
void LoadT(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
/// Class, effective area in mm2 and axial capacities in kN of a T in uniform compression (12.1,
/// 12.2).
void TClass(const ProjectState& st, SectionRecord& rec);

/// Warping constant in mm6 of a T with flange b x tf and overall height h, mm.
double WarpingOfT(double b, double tf, double tw, double h);

/// Dimension step: typed dimensions of a flat bar to mm, mm2, mm3, mm4, kg/m; its surface is worked
/// out on what the last section left in b and tf: kept.
void LoadFlatBar(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
/// Vdz and Vdy in kN of two thirds of the area (12.2.5); no wall buckles in shear.
void FlatShear(const ProjectState& st, SectionRecord& rec);
/// A flat bar is class 1, however slender.
void FlatClass(const ProjectState& st, const SectionForces& f, SectionRecord& rec);
/// Axial and moment capacities in kN and kNm, reduced for shear and axial force by
/// TwoFlangeInteraction (12.2.3 to 12.2.8).
void FlatCapacities(const ProjectState& st, const SectionForces& f, SectionRecord& rec);
/// Shown capacities by one pass with the forces in force.
void FlatNominalCapacities(const ProjectState& st, const Family& family, SectionForces& f,
                           SectionRecord& rec);

}  // namespace korvane
