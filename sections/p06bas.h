// SPDX-License-Identifier: GPL-3.0-or-later
// Rectangular hollow sections, hot and cold formed, and the wall routines that welded boxes and
// HSQ sections share with them.
#pragma once

#include "sections/profile_table.h"

namespace korvane {

void LoadHotSquare(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
void LoadHotRectangular(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
void LoadColdSquare(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
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

void BoxClass(const ProjectState& st, const SectionForces& f, SectionRecord& rec);
void BoxCapacities(const ProjectState& st, const SectionForces& f, SectionRecord& rec);

}  // namespace korvane
