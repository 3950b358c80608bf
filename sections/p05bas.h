// SPDX-License-Identifier: GPL-3.0-or-later
// Rolled channels: UPE, UNP, PFC, CH.
#pragma once

#include "sections/profile_table.h"

namespace korvane {

void LoadUPE(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
/// Leaves the field r as it was, though class and shear routines read it: kept.
void LoadUNP(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
/// PFC or CH by p103_sub; another value takes no dimension step.
void LoadBritishC(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);

/// Aeff, Weffy; Weffz is not reduced.
void ChannelEffectiveSection(const ProjectState& st, SectionRecord& rec);
void ChannelShear(const ProjectState& st, SectionRecord& rec);
/// SectionClass with the flange stresses of a section whose centroid is off centre.
void ChannelClass(const ProjectState& st, const SectionForces& f, SectionRecord& rec);

}  // namespace korvane
