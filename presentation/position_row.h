// SPDX-License-Identifier: GPL-3.0-or-later
// The line under a load picture that tells the positions of the loads.
#pragma once

#include <vector>

#include "presentation/diagram_sheet.h"

namespace korvane {

/// Grid units that the row needs for a number of positions; 0 for none.
double PositionRowHeight(std::size_t count, double text);

/// Draws a line with the mark "x" at its left and the mark "I" at each position (m, sorted),
/// and the positions ("#0.000") below, in as many rows as they need; thin lines lead to them.
void DrawPositionRow(DiagramSheet& sheet, const std::vector<double>& positions, double L, double y,
                     double text);

}  // namespace korvane
