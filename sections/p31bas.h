// SPDX-License-Identifier: GPL-3.0-or-later
// The circular tube, and the general profile of typed section constants.
#pragma once

#include "sections/profile_table.h"

namespace korvane {

/// Dimensions and class; the class reads epsilon as the last material step left it.
void LoadTube(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
void TubeShear(const ProjectState& st, SectionRecord& rec);
/// Class by d/tw and epsilon squared, whatever the forces.
void TubeClass(const ProjectState& st, const SectionForces& f, SectionRecord& rec);
/// Class 4 brings no reduction anywhere.
void TubeCapacities(const ProjectState& st, const SectionForces& f, SectionRecord& rec);

void LoadGeneral(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
void GeneralEffective(const ProjectState& st, SectionRecord& rec);
/// The class is typed in: nothing to do.
void GeneralClass(const ProjectState& st, const SectionForces& f, SectionRecord& rec);
void GeneralCapacities(const ProjectState& st, const SectionForces& f, SectionRecord& rec);
void GeneralShear(const ProjectState& st, SectionRecord& rec);
void GeneralNominalCapacities(const ProjectState& st, const Family& family, SectionForces& f,
                              SectionRecord& rec);

}  // namespace korvane
