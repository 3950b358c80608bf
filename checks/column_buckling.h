// SPDX-License-Identifier: GPL-3.0-or-later
// Column buckling control: the member under compression, alone or with bending (12.3).
#pragma once

#include "checks/checked_member.h"

namespace korvane {

/// Reduction factor of a relative slenderness with the imperfection factor alfa (12.3.2).
double ColumnReduction(double lambda, double alfa);

/// Runs for N > 0. Reads the governing moments and moment factors of the analysis, writes
/// slendernesses, reduction and moment factors, the ratios, and what each line shows; the text
/// is composed afterwards by ComposeLines.
void BucklingControl(const CheckedMember& m, SectionForces& f, SectionRecord& rec,
                     BucklingResults& b, CheckResults& out);

/// Curves and klt other than those in force.
struct BucklingChoice {
  int curveY, curveZ;
  bool ownKlt;  ///< klt is worked out for a singly symmetric section too
};
/// BucklingControl with that choice, for what it would give.
void BucklingControlWith(const BucklingChoice& choice, const CheckedMember& m, SectionForces& f,
                         SectionRecord& rec, BucklingResults& b, CheckResults& out);

/// Whether the control of this kind works out klt.
constexpr bool HasKlt(BucklingKind kind) {
  return kind == BucklingKind::DoubleSymmetric || kind == BucklingKind::FlatBar;
}

/// The lateral reduction that the buckling check takes: 1 when lateral buckling is off.
double LateralReduction(const ProjectState& st, const LtbResults& ltb);

}  // namespace korvane
