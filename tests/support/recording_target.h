// SPDX-License-Identifier: GPL-3.0-or-later
// A target that keeps what was drawn, so that pictures can be tested without pixels.
#pragma once

#include <optional>
#include <utility>

#include "presentation/drawing_target.h"

namespace korvane {

/// Whether a rectangle lies within a place, or sticks out no further than the tolerance.
inline bool Within(const Box& place, const Box& box, double tolerance = 0) {
  return box.left >= place.left - tolerance && box.right <= place.right + tolerance &&
         box.top >= place.top - tolerance && box.bottom <= place.bottom + tolerance;
}

enum class ShapeKind { Text, Line, Polygon, Ellipse, Arc };

/// One thing drawn, in page units.
struct RecordedShape {
  ShapeKind kind = ShapeKind::Line;
  std::vector<std::vector<Point>> outlines;  ///< lines and polygons
  Point centre;                              ///< ellipses and arcs
  double rx = 0, ry = 0;
  double start = 0, sweep = 0;  ///< deg, arcs
  std::string text;
  TextStyle style;
  Stroke stroke;
  Fill fill;
  Box box;  ///< bounds, of text from its advance widths

  /// The points of the first outline.
  const std::vector<Point>& Points() const { return outlines.at(0); }
};

/// Keeps every shape with its bounds.
class RecordingTarget : public DrawingTarget {
public:
  void Clear() override { shapes_.clear(); }

  const std::vector<RecordedShape>& Shapes() const { return shapes_; }
  std::vector<const RecordedShape*> OfKind(ShapeKind kind) const;
  /// All texts in the order of printing.
  std::vector<std::string> Texts() const;
  int Count(std::string_view text) const;
  /// The first text that is equal, or nullptr.
  const RecordedShape* FindText(std::string_view text) const;
  /// Open lines and closed outlines with this number of points.
  std::vector<const RecordedShape*> WithPoints(ShapeKind kind, std::size_t points) const;

  /// Bounds of everything drawn, if anything was.
  std::optional<Box> Bounds() const;
  /// Pairs of texts whose boxes have more than the tolerance (page units) in common in both
  /// directions. Blank texts don't count.
  std::vector<std::pair<std::string, std::string>> OverlappingTexts(double tolerance) const;

protected:
  void OnText(Point topLeft, const std::string& text, double width,
              const TextStyle& style) override;
  void OnPath(const std::vector<std::vector<Point>>& outlines, bool closed, const Stroke& stroke,
              const Fill& fill) override;
  void OnEllipse(Point centre, double rx, double ry, const Stroke& stroke,
                 const Fill& fill) override;
  void OnArc(Point centre, double radius, double start, double sweep,
             const Stroke& stroke) override;

private:
  std::vector<RecordedShape> shapes_;
};

}  // namespace korvane
