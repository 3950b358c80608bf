// SPDX-License-Identifier: GPL-3.0-or-later
// The yardstick of the analysis: the same forces and deflections in the plain way, the formula
// of every load, each of a trapezoid's 20 slices among them, worked out anew at every station.
#pragma once

#include "analysis/beam.h"
#include "analysis/deflections.h"

namespace korvane::naive {

/// Which loads the plain way visits: all slots, as the formulas are told, or those with a load.
enum class Visits { AllSlots, LoadsOnly };

/// What AnalyseBeam does in load mode for a member that carries its loads itself: ULS loads (S:
/// section weight in kg/m), stations, points, extremes and moment factors of both planes.
void Analyse(const ProjectState& st, double S, Visits visits, WorkingLoads& loads,
             BeamResults& out);

/// What ComputeDeflections does, from the SLS loads. Iy, Iz in mm4.
void Deflect(const ProjectState& st, double Iy, double Iz, Visits visits, const WorkingLoads& loads,
             Deflections& out);

}  // namespace korvane::naive
