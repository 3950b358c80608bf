// SPDX-License-Identifier: GPL-3.0-or-later
// The small signs of engineering drawings: arrows, supports, dimension lines, moment arrows.
#pragma once

#include "presentation/drawing_target.h"

namespace korvane {

/// A point beside another by vertical user units in both directions, so that signs keep their
/// shape in a distorted frame.
Point Beside(const DrawingTarget& target, Point p, double dx, double dy);

/// A filled arrow head with its tip at a point; the direction (of any length) is that in which
/// the arrow points, in user units.
void DrawArrowHead(DrawingTarget& target, Point tip, double dx, double dy, double size);

/// A line from tail to tip with a head.
void DrawArrow(DrawingTarget& target, Point tail, Point tip, double head);

/// Length of the head of a moment's arrow as a part of the radius.
inline constexpr double kMomentHead = 0.7;
/// Part of a circle around a point with an arrow head at its end; clockwise for a positive moment.
void DrawMomentArrow(DrawingTarget& target, Point centre, double radius, bool clockwise);

inline constexpr double kOutsideHeads = 3.2;  ///< length in heads below which they stand outside
inline constexpr double kOutsideTail = 2.2;   ///< length of an outside arrow in heads
/// A dimension line between two points. Shorter than kOutsideHeads heads it has them outside,
/// pointing inwards.
void DrawDimension(DrawingTarget& target, Point a, Point b, double head);

/// The supports of a member whose axis runs between two points of one height and which is
/// 2*half high. size is the height of a sign.
void DrawSupports(DrawingTarget& target, int supportType, Point left, Point right, double half,
                  double size);

}  // namespace korvane
