// SPDX-License-Identifier: GPL-3.0-or-later
// Notes on rules that stand as they are settled and lean to the unsafe side where they matter.
#pragma once

#include "checks/verdict.h"
#include "sections/profile_table.h"

namespace korvane {

/// The ratio with another value counts when it would govern: this much above the greatest one.
inline constexpr double kMatters = 1.005;

/// Classes by the tension side, strip of a flat, outstands and flats that no class reads,
/// tripping with the plate's second moment.
void AddSectionCautions(const Family& family, const Finished& d, double IR, NoteList& notes);

/// Options and factors: typed C factors out of use, exponents, buckling left out of account,
/// moment factors below 0, usage factor.
void AddOptionCautions(const Family& family, const Finished& d, NoteList& notes);

/// Values of other sections that decide a ratio.
void AddStaleValues(const Family& family, const Finished& d, double IR, NoteList& notes);

/// Whether the lateral check has a moment to judge.
bool LateralMomentActs(const Family& family, const Finished& d);

}  // namespace korvane
