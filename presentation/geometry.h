// SPDX-License-Identifier: GPL-3.0-or-later
// Points and rectangles of drawings, in any unit.
#pragma once

#include <algorithm>

namespace korvane {

struct Point {
  double x = 0, y = 0;
  friend bool operator==(const Point&, const Point&) = default;
};

/// A rectangle with y down: top <= bottom.
struct Box {
  double left = 0, top = 0, right = 0, bottom = 0;

  static Box At(double x, double y, double width, double height) {
    return {x, y, x + width, y + height};
  }
  double Width() const { return right - left; }
  double Height() const { return bottom - top; }
  Point Centre() const { return {(left + right) / 2, (top + bottom) / 2}; }
  Box Moved(double dx, double dy) const { return {left + dx, top + dy, right + dx, bottom + dy}; }
  Box Grown(double dx, double dy) const { return {left - dx, top - dy, right + dx, bottom + dy}; }
  /// The area in common is more than a touch.
  bool Overlaps(const Box& o, double tolerance = 0) const {
    return std::min(right, o.right) - std::max(left, o.left) > tolerance &&
           std::min(bottom, o.bottom) - std::max(top, o.top) > tolerance;
  }
  void Include(const Box& o) {
    left = std::min(left, o.left);
    top = std::min(top, o.top);
    right = std::max(right, o.right);
    bottom = std::max(bottom, o.bottom);
  }
  void Include(Point p) { Include(Box{p.x, p.y, p.x, p.y}); }
};

/// The straight line from a to b passes through the rectangle or touches it.
bool Meets(Point a, Point b, const Box& r);

}  // namespace korvane
