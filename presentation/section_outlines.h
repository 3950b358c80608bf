// SPDX-License-Identifier: GPL-3.0-or-later
// Closed outlines of the parts that sections are made of, in mm, y up.
#pragma once

#include <vector>

#include "presentation/geometry.h"

namespace korvane {

using Outline = std::vector<Point>;

/// Points between the two ends of a rounded corner. One of them stands where the outline of a
/// catalogue section has it, at 0.3*r from both sides; more follow the quarter of the circle.
using ArcSteps = int;

/// Sizes of an I section or a channel; tip is the flange's thickness at its edge.
struct FlangedSizes {
  double h = 0, b = 0, tw = 0, tf = 0, r = 0, tip = 0;
};

/// I or H section, with one step 21 points from the lower left corner.
Outline IOutline(const FlangedSizes& s, ArcSteps steps);
/// Channel with its web at the left: 13 points.
Outline ChannelOutline(const FlangedSizes& s, ArcSteps steps);
/// Angle with its heel at the lower left corner: 9 points.
Outline AngleOutline(double h, double b, double t, double r, ArcSteps steps);
/// A box of h by b with rounded corners whose lower left corner is at (x, y): 13 points.
Outline RoundedBox(double x, double y, double b, double h, double r, ArcSteps steps);
/// A rectangle of width w and height t, 5 points.
Outline RectangleOutline(double w, double t, double x0, double y0);
/// A web with a leg to the right at its foot, mm.
struct LegSizes {
  double h, b;    ///< height of the web, width over web and leg
  double tw, tf;  ///< of web and leg
  double r1, r2;  ///< root and toe radius
  double x0;      ///< left edge of the web
};
/// Its outline: 11 points.
Outline LegOutline(const LegSizes& s, ArcSteps steps);
/// A bulb flat: the web of thickness tw at the left of x0 + tw, the bulb to the right at its
/// foot. over is the width of the equivalent flange beside the web, area the area of the bulb.
Outline BulbOutline(double h, double tw, double over, double area, double x0);
/// Circle of 72 points.
Outline CircleOutline(Point centre, double radius);

}  // namespace korvane
