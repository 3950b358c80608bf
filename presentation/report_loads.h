// SPDX-License-Identifier: GPL-3.0-or-later
// The load information of the control report: axial loads, both load tables, the combinations.
#pragma once

#include "core/project_state.h"
#include "presentation/drawing_target.h"

namespace korvane {

/// Left column of the blocks to the right of the loads.
inline constexpr double kParametersLeft = 90;

/// Lines of the load information at full size.
double LoadLines(const ProjectState& st);

/// Draws it between two lines of the page, smaller where it has no room. Returns the rectangle that
/// a table shorter than its neighbour leaves empty.
Box DrawLoadInformation(DrawingTarget& t, double from, double to, const ProjectState& st);

}  // namespace korvane
