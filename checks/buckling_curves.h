// SPDX-License-Identifier: GPL-3.0-or-later
// Buckling curves: imperfection factors, letters and the automatic choice.
#pragma once

#include <optional>

#include "core/project_state.h"
#include "sections/section_record.h"

namespace korvane {

/// Imperfection factor of curve a0, a, b, c, d by its index; any other index is d.
double ImperfectionFactor(int curve);

/// The table that angles use, one curve lower: index 0 is curve a.
double AngleImperfectionFactor(int curve);

/// "a0", "a", "b", "c", "d".
const char* CurveLetter(int curve);

/// Letter of the curve that an angle's check used at this index.
const char* AngleCurveLetter(int curve);

/// Buckling length factor of end condition case 1 to 5 (0: no buckling); case 6 is typed in and
/// has none, which reads as -1.
double LengthFactorOfCase(int bucklingCase);

/// Indices of the curves about y and z.
struct CurvePair {
  int y, z;
};

/// The curves that a family's row chooses by proportions (mm) and fyk (MPa); none for a family
/// without a row.
std::optional<CurvePair> AutomaticCurves(int profileType, const SectionRecord& rec,
                                         const ProjectState& st);

/// For a family without a row of its own but with a buckling control: the curves that the row of
/// like sections would choose (British sections those of the European shapes, the general profile
/// curve c).
std::optional<CurvePair> CurvesOfLikeSections(int profileType, const SectionRecord& rec,
                                              const ProjectState& st);

/// Sets BucklingCurveY and BucklingCurveZ by family, proportions (mm) and fyk (MPa); families
/// without a rule keep theirs.
void ChooseBucklingCurves(const SectionRecord& rec, ProjectState& st);

}  // namespace korvane
