// SPDX-License-Identifier: GPL-3.0-or-later
// The circular tube, and the general profile of typed section constants.
#pragma once

#include "sections/profile_table.h"

namespace korvane {

/// Dimensions in mm and constants in mm2, mm3, mm4, and the class; the class reads epsilon as the
/// last material step left it.
void LoadTube(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
/// Avz, Avy of 2*A/pi in mm2, and the shear capacities in kN; no wall buckles in shear. 12.2.5.
void TubeShear(const ProjectState& st, SectionRecord& rec);
/// Class by d/tw and epsilon squared, whatever the forces. 12.1.
void TubeClass(const ProjectState& st, const SectionForces& f, SectionRecord& rec);
/// Ntd, Ncrd in kN and the moment capacities in kNm, reduced for shear and axial force (12.2.3 to
/// 12.2.8). Class 4 brings no reduction anywhere.
void TubeCapacities(const ProjectState& st, const SectionForces& f, SectionRecord& rec);

/// The typed constants, in mm2, mm3, mm4, mm6, and the typed class.
void LoadGeneral(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
/// Aeff = A, betaA = 1.
void GeneralEffective(const ProjectState& st, SectionRecord& rec);
/// The class is typed in: nothing to do.
void GeneralClass(const ProjectState& st, const SectionForces& f, SectionRecord& rec);
/// Axial, moment and shear capacities in kN and kNm; the yield stress is that up to 40 mm.
void GeneralCapacities(const ProjectState& st, const SectionForces& f, SectionRecord& rec);
/// Shear capacities in kN from the typed shear areas in mm2. 12.2.5.
void GeneralShear(const ProjectState& st, SectionRecord& rec);
/// Shown capacities by one pass with the forces in force.
void GeneralNominalCapacities(const ProjectState& st, const Family& family, SectionForces& f,
                              SectionRecord& rec);

}  // namespace korvane
