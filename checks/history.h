// SPDX-License-Identifier: GPL-3.0-or-later
// What calculations did to input and record that their numbers don't show: kept for the verdict.
#pragma once

#include <memory>
#include <string>

#include "core/project_state.h"

namespace korvane {

/// The section that a value stands from: its family and, for a catalogue, series and row. Of no
/// family: from the project file or the start.
struct Origin {
  int family = 0;
  int series = 0;
  int row = -1;
};

/// Design forces of the loads that a calculation took out of the input, greatest sizes, kN, kNm.
struct RemovedForces {
  double N = 0, My = 0, Mz = 0, Vy = 0, Vz = 0;
  bool Any() const { return N != 0 || My != 0 || Mz != 0 || Vy != 0 || Vz != 0; }
};

/// Written by the driver, never saved.
struct History {
  RemovedForces removed;
  /// The input as the calculation left it that removed something; another input than this one
  /// ends the note.
  std::shared_ptr<const ProjectState> afterRemoval;
  int ltbOffBy = 0;   ///< family whose calculation switched lateral buckling off; 0: none did
  Origin b, tf, tf2;  ///< of the record's fields
  Origin klt, curves;
  std::string
      stoppedIn;  ///< step of the arithmetic failure; empty when the calculation went through
};

}  // namespace korvane
