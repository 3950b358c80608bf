// SPDX-License-Identifier: GPL-3.0-or-later
// The diagrams of the control report: rows of pictures that share one length scale, so that
// stations stand below one another.
#pragma once

#include "core/calculation.h"
#include "presentation/drawing_target.h"

namespace korvane {

/// Draws the pictures of the analysis mode between two lines of the page: the z plane in the
/// left half, the y plane in the right one. All letters have the body's size; what doesn't fit
/// takes lower ordinates, and at last smaller letters.
/// spare: lines above that other blocks leave empty; pictures of loads go there when they would be
/// too small otherwise.
void DrawReportDiagrams(DrawingTarget& t, double top, double bottom, const Box& spare,
                        const Design& d);

}  // namespace korvane
