// SPDX-License-Identifier: GPL-3.0-or-later
// Rolled I and H sections: HEA, HEB, HEM, IPE, INP, UB, UC, UBP, J. Their routines are the
// model of the other families.
#pragma once

#include "sections/profile_table.h"

namespace korvane {

// Dimension steps: the chosen row of the catalogue to the record, in mm, mm2, mm3, mm4, mm6, kg/m
// and m2/m. They throw ArithmeticFault for a row that the catalogue lacks.

/// The row idxHEA of HEA.
void LoadHEA(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
/// The row idxHEB of HEB.
void LoadHEB(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
/// The row idxHEM of HEM.
void LoadHEM(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
/// The row idxIPE of IPE.
void LoadIPE(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
/// The row idxINP of INP, whose flanges are tapered.
void LoadINP(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
/// UB, UC or UBP by p101_sub; another value takes no dimension step.
void LoadBritishU(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
/// The row p102_idx of the joists.
void LoadJ(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);

/// Columns 4 to 9 of the British tables: S, h, b, tw, tf, r, and from column `first` on A, g,
/// Iy, Wely, Wply, Iz, Welz, Wplz, Ix, Iw.
void LoadBritish(const CatalogueTable& table, int row, int first, SectionRecord& rec);

/// Aeff, Weffy, Weffz of a doubly symmetric I section; runs for every class.
void EffectiveSection(const ProjectState& st, SectionRecord& rec);

/// Avz, Avy and the shear capacities of a web between two flanges, for the stocky area given.
void WebShear(const ProjectState& st, double stockyArea, SectionRecord& rec);
/// WebShear with the stocky area of rolled I sections.
void RolledShear(const ProjectState& st, SectionRecord& rec);

/// Class of web and flange under Ncl, My, Mz (12.1).
void SectionClass(const ProjectState& st, const SectionForces& f, SectionRecord& rec);

}  // namespace korvane
