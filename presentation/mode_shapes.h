// SPDX-License-Identifier: GPL-3.0-or-later
// The shapes in which a uniform member vibrates, for the pictures of the modal analysis.
#pragma once

#include "presentation/drawing_target.h"

namespace korvane {

/// Ordinate of mode 1 to 3 of a support case at the relative position x, scaled so that the
/// greatest is about 1: the free vibration of a beam, sin, cos, sinh and cosh of the eigenvalue.
/// Spring supports have no modes: 0.
double ModeShape(int supportType, int mode, double x);

/// Draws the three modes under each other into the place (user units), titles with letters of
/// the given em height.
void DrawModeShapes(DrawingTarget& target, const Box& place, int supportType, double letters);

}  // namespace korvane
