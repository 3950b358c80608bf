// SPDX-License-Identifier: GPL-3.0-or-later
// T sections, which take axial force alone, and flat bars.
#pragma once

#include "sections/profile_table.h"

namespace korvane {

void LoadT(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
/// Class, effective area and axial capacities of a T in uniform compression.
void TClass(const ProjectState& st, SectionRecord& rec);

/// Warping constant of a T with flange b x tf and overall height h.
double WarpingOfT(double b, double tf, double tw, double h);

void LoadFlatBar(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
void FlatShear(const ProjectState& st, SectionRecord& rec);
/// A flat bar is class 1, however slender.
void FlatClass(const ProjectState& st, const SectionForces& f, SectionRecord& rec);
void FlatCapacities(const ProjectState& st, const SectionForces& f, SectionRecord& rec);
void FlatNominalCapacities(const ProjectState& st, const Family& family, SectionForces& f,
                           SectionRecord& rec);

}  // namespace korvane
