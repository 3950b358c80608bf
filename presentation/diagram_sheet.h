// SPDX-License-Identifier: GPL-3.0-or-later
// The sheet that a diagram is drawn on: grid, title, axis and the labels already placed.
#pragma once

#include <string>
#include <vector>

#include "presentation/grafik.h"
#include "presentation/label_placer.h"

namespace korvane {

/// Prepares a target for one diagram and restores its state at the end.
class DiagramSheet {
public:
  DiagramSheet(DrawingTarget& target, const DiagramOrigin& origin, const DiagramStyle& style,
               double height);
  ~DiagramSheet();
  DiagramSheet(const DiagramSheet&) = delete;
  DiagramSheet& operator=(const DiagramSheet&) = delete;

  DrawingTarget& Target() { return target_; }
  LabelPlacer& Labels() { return labels_; }
  const Box& Bounds() const { return bounds_; }
  /// User x of a relative position of the member.
  double X(double relative) const { return bounds_.left + kMemberLeft + kMemberWidth * relative; }
  /// A title in bold, its upper left corner at the sheet's left edge; returns its rectangle.
  Box Title(const std::string& text, double y);
  /// The member's line with a tick at each end.
  void Axis(double y);
  /// Colour and width of the lines that follow; the width is multiplied by the style's pen.
  void Pen(Role colour, double width);
  /// Size of an arrow head or another sign, grid units across the member: where the picture is
  /// flattened, signs keep the size that they have along the member.
  double Sign(double size) const { return size * pen_; }
  double Gap() const { return gap_; }

private:
  DrawingTarget& target_;
  DrawingState before_;
  Box bounds_;
  LabelPlacer labels_;
  double pen_;
  double gap_;
};

/// Height of a line of text with its air, grid units.
inline double LineOf(const DiagramStyle& style) {
  return 1.25 * style.text;
}

/// Length of an arrow head that is read at arm's length, grid units across the member: 1.5 mm on
/// paper, where no letters are under 6 pt.
inline double LeastHead(const DiagramStyle& style) {
  return 1.7 / 2.4 * style.text;
}

/// The least distance of a value from the line that it belongs to, grid units.
inline double LabelGap(const DiagramStyle& style) {
  return 0.2 * style.text;
}

/// A value of a diagram ("#0.0"), short where it is longer than any picture.
std::string DiagramNumber(double value);

/// One curve over the member.
struct Curve {
  const StationValues& values;
  double max = 0, min = 0;
  /// Ordinate of the greatest size in grid units; positive draws positive values upwards.
  double scale = 12;
  Role colour = Role::Accent;
  /// Positions and values between the stations, where an extreme may stand.
  std::vector<Point> between;
  std::vector<double> zeros;  ///< relative positions to be marked on the axis
};

/// Grid units that a curve and its labels need above and below the axis.
struct CurveRoom {
  double above = 0, below = 0;
};
/// For a curve between max and min whose greatest ordinate is scale grid units.
CurveRoom RoomOf(double max, double min, double scale, const DiagramStyle& style);

/// Ordinate of a value in grid units, upwards; 0 where the greatest is 0.
double Ordinate(double value, double greatest, double scale);

/// Draws the curve over 51 points, the closing lines at the ends and the labels of its extremes
/// ("#0.0"); a curve of zeros is a flat line without labels.
void DrawCurve(DiagramSheet& sheet, const Curve& curve, double axis);

}  // namespace korvane
