// SPDX-License-Identifier: GPL-3.0-or-later
// A plate on top of one stiffener: flat bar, angle, welded angle, bulb flat, trapezoid, T girder.
// All take bending about y only.
#pragma once

#include "sections/profile_table.h"

namespace korvane {

void LoadPlateFlat(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
void LoadPlateAngle(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
void LoadPlateWeldedAngle(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
void LoadPlateBulb(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
void LoadPlateTrapez(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
void LoadPlateT(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);

/// Equivalent flange of a bulb flat: width and thickness in mm.
struct BulbFlange {
  double width, thickness;
};
BulbFlange EquivalentFlange(double tw, double bulb, double radius, double h, double A);

void FlatStiffenerEffective(const ProjectState& st, SectionRecord& rec);
void AngleStiffenerEffective(const ProjectState& st, SectionRecord& rec);
void TrapezEffective(const ProjectState& st, SectionRecord& rec);

void FlatStiffenerClass(const ProjectState& st, const SectionForces& f, SectionRecord& rec);
/// Moment capacities by side; no axial capacities and no governing Mdy.
void FlatStiffenerCapacities(const ProjectState& st, const SectionForces& f, SectionRecord& rec);

}  // namespace korvane
