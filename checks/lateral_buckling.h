// SPDX-License-Identifier: GPL-3.0-or-later
// Lateral torsional buckling: C factors, critical moment, reduction, design moment (12.3.4.1).
#pragma once

#include "analysis/beam.h"
#include "checks/check_line.h"
#include "sections/profile_table.h"

namespace korvane {

/// The whole step for a family that has it: without restraint points in load mode by the shape
/// of the moment diagram, else by segments. Writes C1, C2, C3, zg, Lk (m), Mcr (N*mm), lamLT,
/// chiLT, chiLT_min, Mdb, Mdb_min (kNm); state: Za, LoadLevel, LtbCriticalSegment; with
/// segments also My_gov. Leaves Ncl and My of the forces and the capacities for the moment
/// considered.
void LateralTorsionalStep(const Family& family, ProjectState& st, SectionForces& f,
                          SectionRecord& rec, BeamResults& beam, LtbResults& ltb);

/// C1 and C3 of a segment.
struct SegmentFactors {
  double C1, C3;
};
/// By the ratio r of its end moments (-1 to 1) and the length factor k (ENV 1993-1-1, Annex F,
/// Table F.1.1).
SegmentFactors FactorsOfSegment(double r, double k);

/// Critical stress (MPa), slenderness and reduction of a compressed stiffener that a plate carries.
struct PlateReduced {
  double sigma, lamLT, chiLT;
};
/// Over the length Lmm in mm; reads fyk and E, and the record's h, tw, tf, tf2, Afc, Afw and Iz.
/// Throws ArithmeticFault.
PlateReduced PlateReduction(LateralMethod method, const ProjectState& st, const SectionRecord& rec,
                            double Lmm);

/// C1, C2, C3 of one shape of the moment diagram.
struct CFactors {
  double C1 = 0, C2 = 0, C3 = 0;
};
/// The factors that the shape of the whole member's moment diagram selects, by support.
CFactors FactorsOfMember(const ProjectState& st, const BeamResults& beam);

}  // namespace korvane
