// SPDX-License-Identifier: GPL-3.0-or-later
// Charts of values over values: axes, curves with their names, a limit, marks, and maps.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "presentation/drawing_target.h"

namespace korvane {

/// A curve in the units of the axes; where a value has no point a new run begins.
struct ChartLine {
  std::string name;  ///< stands at its right end, or beside its first point where it is closed
  std::vector<std::vector<Point>> runs;
  Role colour = Role::Accent;
  Dash dash = Dash::Solid;
  bool strong = false;  ///< a broad band below the other curves
  bool closed = false;  ///< an envelope; what it encloses is filled
};

/// A point with its words.
struct ChartMark {
  Point at;
  std::string text;
  Role colour = Role::Ink;
  bool upright = false;  ///< with a line down to the axis
};

/// A rectangle of a map: its share of the limit decides on its colour.
struct ChartCell {
  Box place;  ///< in the units of the axes; top is the smaller value
  double share = 0;
};

/// A range of values along an axis.
struct ChartRange {
  double low = 0, high = 1;
  double Length() const { return high - low; }
};

struct Chart {
  std::string title;
  std::string below;  ///< a line of words under the title
  std::string xName, yName;
  ChartRange x, y;
  std::vector<ChartLine> lines;
  std::vector<ChartMark> marks;
  std::vector<ChartCell> cells;
  std::optional<double> limit;  ///< a level line; what lies above it fails
  std::string limitName;
  std::optional<double> present;  ///< an upright line
  std::string presentName;
};

/// Draws the chart into a place of the target's user units, which are square; what lies beyond the
/// ranges is cut off. letters: em height of the text, user units.
void DrawChart(DrawingTarget& target, const Box& place, const Chart& chart, double letters);

/// Round values inside a range, about so many.
std::vector<double> RoundSteps(const ChartRange& range, int wanted);

/// The value at a position across a chart that was drawn into the place: what the pointer shows.
double ValueAcross(const Box& place, const Chart& chart, double letters, double x);

}  // namespace korvane
