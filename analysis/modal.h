// SPDX-License-Identifier: GPL-3.0-or-later
// Natural frequencies of bending in the z plane by tabulated eigenvalue constants.
#pragma once

#include "core/project_state.h"

namespace korvane {

struct ModalResults {
  number ModalMass;                 ///< kg/m
  Indexed<number, 1, 3> ModalFreq;  ///< Hz
};

/// Mass from the z line loads (SLS factors; 1 kN/m counts as 102 kg/m) and the section's weight
/// S (kg/m), which always counts; frequencies from Iy (mm4), E (MPa) and L (m). Supports 3 and 5
/// leave the frequencies as they were.
void ModalAnalysisRun(const ProjectState& st, double S, double Iy, ModalResults& out);

}  // namespace korvane
