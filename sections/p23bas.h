// SPDX-License-Identifier: GPL-3.0-or-later
// Welded sections with two webs: box, box with unequal flanges, and the hat shaped HSQ beams on
// a wide bottom plate.
#pragma once

#include "sections/p22bas.h"
#include "sections/profile_table.h"

namespace korvane {

/// Dimension steps: typed dimensions to mm, mm2, mm3, mm4, kg/m, m2/m.
void LoadBox(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
/// HSQ with flanges symmetric about the vertical axis.
void LoadHsqSymmetric(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
/// HSQ with the bottom plate to one side.
void LoadHsqOneSided(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
/// Box with unequal flanges.
void LoadBoxUnequal(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);

/// A flange of a section with two webs: thickness, plate part between the webs, outstand and
/// the number of outstands.
struct TwoWebFlange {
  double t, cm, co;
  int outstands;
};

/// Aeff in mm2 and the effective moduli in mm3 of a section with two webs (12.2).
void TwoWebEffective(const ProjectState& st, const TwoWebFlange& top, const TwoWebFlange& bottom,
                     const EffectiveWeb& webs, SectionRecord& rec);

/// Aeff in mm2 and the effective moduli of both sides in mm3, for every class. 12.2.
void HsqSymmetricEffective(const ProjectState& st, SectionRecord& rec);
/// The same with one outstand of the bottom plate, the clear depth in psi and the whole strip's
/// inertia: kept.
void HsqOneSidedEffective(const ProjectState& st, SectionRecord& rec);
/// The same with two outstands at each flange, those of the top by p27_a.
void BoxUnequalEffective(const ProjectState& st, SectionRecord& rec);

/// classTop and classBottom; read My only, Ncl plays no part. 12.1.
void BoxUnequalClass(const ProjectState& st, const SectionForces& f, SectionRecord& rec);
/// The same with the overall height from the lower edge of the bottom plate.
void HsqClass(const ProjectState& st, const SectionForces& f, SectionRecord& rec);
/// SingleCapacities (kN, kNm) with the flange loading of HSQ beams; sets flangeOverloaded when the
/// load on one flange exceeds what it can carry.
void HsqCapacities(const ProjectState& st, const SectionForces& f, SectionRecord& rec);

/// The same without flange loading.
void BoxUnequalCapacities(const ProjectState& st, const SectionForces& f, SectionRecord& rec);

/// Load on one flange, kN per metre and flange length as the check counts it, 0 when flange
/// loading does not apply.
double FlangeLoad(const ProjectState& st);
/// What one flange can carry, in the same measure.
double FlangeStrength(const ProjectState& st, const SectionRecord& rec);

}  // namespace korvane
