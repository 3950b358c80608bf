// SPDX-License-Identifier: GPL-3.0-or-later
// The third printed sheet, for the checker: what the two reports round or leave out.
#pragma once

#include "core/calculation.h"
#include "presentation/drawing_target.h"

namespace korvane {

/// Draws the blocks of CheckerInputs and CheckerResults in three columns below the page's frame,
/// on the grid of a report page (presentation/page.h). The letters shrink with the number of rows.
void DrawCheckerSheet(DrawingTarget& t, double line, const Design& d);

}  // namespace korvane
