// SPDX-License-Identifier: GPL-3.0-or-later
// Buckling curves: imperfection factors, letters and the automatic choice.
#pragma once

#include <optional>

#include "core/project_state.h"
#include "core/supports.h"
#include "sections/profile_table.h"

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

/// Puts a support in force with its case and length factor, about an axis that is not typed nor
/// without buckling, and against lateral buckling.
void TakeSupport(const Support& support, ProjectState& st);

/// Indices of the curves about y and z.
struct CurvePair {
  int y, z;
};

/// The curves that a rule chooses by proportions (mm) and fyk (MPa); none for CurveRule::Kept.
/// Table 11.
std::optional<CurvePair> CurvesOf(CurveRule rule, const SectionRecord& rec, const ProjectState& st);

/// Sets BucklingCurveY and BucklingCurveZ by the family's rule, the proportions (mm) and fyk (MPa);
/// a family without a rule keeps those in force. Table 11.
void ChooseBucklingCurves(CurveRule rule, const SectionRecord& rec, ProjectState& st);

}  // namespace korvane
