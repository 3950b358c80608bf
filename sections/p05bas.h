// SPDX-License-Identifier: GPL-3.0-or-later
// Rolled channels: UPE, UNP, PFC, CH.
#pragma once

#include "sections/profile_table.h"

namespace korvane {

// Dimension steps: the chosen row of the catalogue to the record, in mm, mm2, mm3, mm4, mm6, kg/m
// and m2/m. They throw ArithmeticFault for a row that the catalogue lacks.

/// The row idxUPE of UPE. The field c is the whole width.
void LoadUPE(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
/// Leaves the field r as it was, though class and shear routines read it: kept.
void LoadUNP(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
/// PFC or CH by p103_sub; another value takes no dimension step.
void LoadBritishC(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);

/// Aeff, Weffy; Weffz is not reduced.
void ChannelEffectiveSection(const ProjectState& st, SectionRecord& rec);
/// WebShear (12.2.5) with the stocky area A - 2*b*tf + (tw + r)*tf, mm2.
void ChannelShear(const ProjectState& st, SectionRecord& rec);
/// SectionClass with the flange stresses of a section whose centroid is off centre.
void ChannelClass(const ProjectState& st, const SectionForces& f, SectionRecord& rec);

}  // namespace korvane
