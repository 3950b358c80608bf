// SPDX-License-Identifier: GPL-3.0-or-later
// Finds room for labels: each goes where it belongs or, if something stands there, near by.
#pragma once

#include <string>
#include <vector>

#include "presentation/drawing_target.h"

namespace korvane {

/// A piece of a label in one style.
struct LabelRun {
  std::string text;
  Role colour = Role::Ink;
  bool bold = false;
};

enum class Side { Above, Below, Left, Right, Centre };

/// A label and the point that it belongs to.
struct Label {
  std::vector<LabelRun> runs;
  Point anchor;
  Side side = Side::Above;
  double gap = 0;       ///< distance from the anchor, vertical user units
  bool leader = false;  ///< a thin line to the anchor when the label had to move away
  double slide = 0;     ///< the anchor may as well stand this far to its left or right
};

/// Places labels one after the other inside bounds, none over another; lines are crossed only
/// where there is no better place. All in the user units of the target's present frame, with
/// its present font.
class LabelPlacer {
public:
  LabelPlacer(DrawingTarget& target, const Box& bounds);

  /// Nothing is placed over this rectangle.
  void Keep(const Box& r) { kept_.push_back(r); }
  /// Labels stay off these lines where they can.
  void Avoid(Point a, Point b);
  /// The same for each piece of a line with corners.
  void Avoid(const std::vector<Point>& polyline);

  /// Finds the place, draws the label and keeps the place. Returns the label's rectangle.
  Box Place(const Label& label);
  /// Draws text with its top left corner at a point and keeps the place.
  Box Fix(const std::vector<LabelRun>& runs, Point topLeft);

  /// Width of the runs behind each other, bold ones as wide as they are printed.
  double WidthOf(const std::vector<LabelRun>& runs) const;
  /// Height of a label.
  double LineHeight() const;

private:
  struct Segment {
    Point a, b;
  };
  Box Preferred(const Label& label, double width) const;
  double Cost(const Box& r, double least) const;
  struct Candidate {
    Box box;
    double cost;
  };
  Candidate BestPlace(const Box& preferred) const;
  void Draw(const std::vector<LabelRun>& runs, Point topLeft);
  void DrawLeader(const Label& label, const Box& box);

  DrawingTarget& target_;
  Box bounds_;
  std::vector<Box> kept_;
  std::vector<Segment> lines_;
};

/// Centres of boxes in a row, each as near as possible to its wanted place without overlap.
/// wanted is sorted; the row lies between low and high, which it leaves if it is too long.
std::vector<double> SpreadInRow(const std::vector<double>& wanted,
                                const std::vector<double>& widths, double gap, double low,
                                double high);

}  // namespace korvane
