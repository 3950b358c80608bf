// SPDX-License-Identifier: GPL-3.0-or-later
// Internal forces: closed-form beam solutions at 51 stations and at the calculation points.
#pragma once

#include "analysis/loads.h"
#include "core/project_state.h"

namespace korvane {

using StationValues = Indexed<float32, 0, 50>;
using PointValues = Indexed<float32, 0, 40>;

/// Moments and shears of one plane. M in kNm, V in kN.
struct PlaneForces {
  StationValues M, V;  ///< station i stands at (i/50)*L
  float32 M_max, M_min, V_max, V_min;
  Indexed<float32, 0, 4> M_q;  ///< moments at 0, about L/4, L/2, about 3L/4, L
  float32 M_zero1, M_zero2;    ///< relative positions of moment zeros, 0 if none
  PointValues M_pt, V_pt;      ///< forces at the calculation points
};

/// Results of the analysis. z is the plane of My and Vz, y that of Mz and Vy.
struct BeamResults {
  PlaneForces z, y;
  PointValues pt_x;              ///< relative positions of the calculation points
  int16 pt_first, pt_last = 10;  ///< range evaluated last; pt_last is the last point in use
  number betaMy, betaMz;         ///< moment factors of the buckling check
  number MyAbsMax, MzAbsMax;     ///< kNm, largest absolute moments
  float32 My_gov;                ///< kNm, signed governing moment about y
};

/// The plane in which the member bends: Z that of My and Vz, Y that of Mz and Vy.
enum class Plane { Z, Y };

/// betaMy and betaMz from the moments at the ends and at mid-span.
void MomentFactors(BeamResults& out);

/// End-force mode: stations, extremes (which start at station 0), even points.
void EndForceStations(const ProjectState& st, BeamResults& out);

/// End-force mode: moment factors from the two end moments.
void EndForceMomentFactors(const ProjectState& st, BeamResults& out);

/// End-force mode: straight lines at the points pt_first..pt_last; extremes are not touched.
void EndForcePoints(const ProjectState& st, BeamResults& out);

/// The whole analysis of a calculation in the active mode: strips plate types, combines the ULS
/// loads (S: section weight in kg/m), fills stations, points and factors, and sets the axial
/// force N in kN. Changes the load record where the family demands it.
void AnalyseBeam(ProjectState& st, double S, WorkingLoads& loads, BeamResults& out, number& N);

}  // namespace korvane
