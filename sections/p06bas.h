// SPDX-License-Identifier: GPL-3.0-or-later
// Rectangular hollow sections, hot and cold formed, and the wall routines that welded boxes and
// HSQ sections share with them.
#pragma once

#include "sections/profile_table.h"

namespace korvane {

// Dimension steps: the chosen row of the catalogue to the record, in mm, mm2, mm3, mm4, kg/m and
// m2/m. They throw ArithmeticFault for a row that the catalogue lacks.

/// The row idxRHSs of the hot formed square sections, corners of 1.5*t.
void LoadHotSquare(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
/// The row idxRHSr of the hot formed rectangular ones, turned as RhsOrientation tells.
void LoadHotRectangular(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
/// The row idxCFRHSs of the cold formed square sections, corners by ColdCornerRadius.
void LoadColdSquare(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
/// The row idxCFRHSr of the cold formed rectangular ones, turned as RhsOrientation tells.
void LoadColdRectangular(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);

/// Outer corner radius of a cold formed section of wall t, mm.
double ColdCornerRadius(double t);

/// Aeff, Weffy, Weffz with two webs and two flanges, all internal elements.
void BoxEffectiveSection(const ProjectState& st, SectionRecord& rec);

/// Shear in both directions. Stocky areas: hollow sections by the share of depth and width of
/// the area; welded ones by their walls.
void HollowShear(const ProjectState& st, SectionRecord& rec);
/// Doubly symmetric welded box.
void BoxShear(const ProjectState& st, SectionRecord& rec);
/// Sections with two webs and unequal flanges.
void TwoWebShear(const ProjectState& st, SectionRecord& rec);

/// Class of web and flange, both internal elements, under Ncl in kN and My, Mz in kNm (12.1).
void BoxClass(const ProjectState& st, const SectionForces& f, SectionRecord& rec);
/// Axial and moment capacities in kN and kNm, reduced for shear and axial force (12.2.3 to 12.2.8),
/// with the exponents alfa and beta. Mndzpl alone has no upper limit: kept.
void BoxCapacities(const ProjectState& st, const SectionForces& f, SectionRecord& rec);

}  // namespace korvane
