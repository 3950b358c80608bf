// SPDX-License-Identifier: GPL-3.0-or-later
// A plate on top of one stiffener: flat bar, angle, welded angle, bulb flat, trapezoid, T girder.
// All take bending about y only.
#pragma once

#include "sections/profile_table.h"

namespace korvane {

/// Dimension steps: typed dimensions, and of the rolled stiffeners the row of the catalogue, to
/// mm, mm2, mm3, mm4, mm6, kg/m, m2/m. The plate b1 x tf1 lies on top, h is the overall height.
/// They throw ArithmeticFault for a catalogue row that does not exist.
/// This one: plate with a flat.
void LoadPlateFlat(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
/// Plate with a rolled angle, row p52_index of l3.dat, whose roundings count in the surface.
void LoadPlateAngle(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
/// Plate with an angle of two plates.
void LoadPlateWeldedAngle(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
/// Plate with a bulb flat, row p54_index of hp.dat, as an angle of EquivalentFlange.
void LoadPlateBulb(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
/// Plate with a trapezoid whose walls lean by p55_a on the height p55_h; Iw is 0.
void LoadPlateTrapez(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
/// Plate with a T girder.
void LoadPlateT(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);

/// Equivalent flange of a bulb flat: width and thickness in mm.
struct BulbFlange {
  double width, thickness;
};
/// A bulb flat as a web tw x h with a flange of the same area: all in mm, A of the whole flat in
/// mm2.
BulbFlange EquivalentFlange(double tw, double bulb, double radius, double h, double A);

/// Aeff in mm2 and the effective moduli of both sides in mm3, for every class. 12.2.
void FlatStiffenerEffective(const ProjectState& st, SectionRecord& rec);
/// The same with a leg on one side, which moments and Aeff count twice: kept.
void AngleStiffenerEffective(const ProjectState& st, SectionRecord& rec);
/// The same with two leaning walls.
void TrapezEffective(const ProjectState& st, SectionRecord& rec);

/// Class of the flat whose tip is compressed, by the share of it that is compressed;
/// FlatStiffenerClass takes the share in tension.
int FlatClassByCompression(const ProjectState& st, const SectionForces& f,
                           const SectionRecord& rec);
/// Capacity in kNm with the tip compressed and the flat reduced, where the strip taken off counts
/// with its whole second moment about the tip; FlatStiffenerEffective takes a part of it.
double FlatTipCapacity(const ProjectState& st, const SectionRecord& rec);
/// classTop with the plate compressed, classBottom with the tip of the flat compressed, for My in
/// kNm. 12.1.
void FlatStiffenerClass(const ProjectState& st, const SectionForces& f, SectionRecord& rec);
/// Moment capacities by side in kNm, reduced for shear (12.2.4, 12.2.7); no axial capacities and no
/// governing Mdy.
void FlatStiffenerCapacities(const ProjectState& st, const SectionForces& f, SectionRecord& rec);

}  // namespace korvane
