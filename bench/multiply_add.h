// SPDX-License-Identifier: GPL-3.0-or-later
// The machine's own pace, as a floor for the times of the engine.
#pragma once

namespace korvane {

/// Multiplications and additions a second (each counts as one operation) of chains that don't
/// wait for each other, built with the project's flags. The best of several short runs.
struct Pace {
  double scalar = 0;  ///< one value an instruction, as the engine's formulas run
  double packed = 0;  ///< two values an instruction where the compiler packs them
};
Pace MultiplyAddRate();

}  // namespace korvane
