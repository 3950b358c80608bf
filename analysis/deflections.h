// SPDX-License-Identifier: GPL-3.0-or-later
// Deflections at the 51 stations, by closed formulas from the SLS working loads.
#pragma once

#include "analysis/beam.h"

namespace korvane {

/// mm; extremes start at 0.
struct Deflections {
  StationValues DeflZ, DeflY;
  float32 DeflZ_max, DeflZ_min, DeflY_max, DeflY_min;
  float32 DeflStiff;  ///< mm*mm4, |DeflZ_max|*Iy: the z deflection freed from the section
};

/// x of L/x: the length (m) over the greater of two extremes (mm); 0 where both are less than a
/// thousandth of a millimetre.
double LengthOverDeflection(double L, double max, double min);

/// One plane with the second moment of area I (mm4): writes the deflections (mm) and their
/// extremes.
void PlaneDeflections(const ProjectState& st, const PlaneLoads& loads, double I,
                      StationValues& defl, float32& max, float32& min);

/// Both planes, y then z, and DeflStiff.
void ComputeDeflections(const ProjectState& st, const WorkingLoads& loads, double Iy, double Iz,
                        Deflections& out);

}  // namespace korvane
