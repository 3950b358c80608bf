// SPDX-License-Identifier: GPL-3.0-or-later
// The shape of a cross-section as its figure shows it: outlines, axes and dimensions.
#pragma once

#include <string>
#include <vector>

#include "core/project_state.h"
#include "presentation/geometry.h"
#include "sections/section_record.h"

namespace korvane {

/// Where the line of a dimension stands.
enum class DimensionSide { Below, Above, Left, Right, Inside };

/// One dimension with its letter, mm. The line stands at the given side of the section between
/// the two points; Inside between the points themselves.
struct SectionDimension {
  std::string letter;
  Point a, b;
  DimensionSide side = DimensionSide::Inside;
  /// Between the points, mm.
  double Length() const;
};

/// A circle of a round section.
struct SectionCircle {
  Point centre;
  double radius = 0;
};

/// A section in mm: x to the right from the leftmost, y up from the lowest point. Outlines close
/// with a repetition of their first point; an outline inside another is a hole.
struct SectionShape {
  std::vector<std::vector<Point>> polygons;
  std::vector<SectionCircle> circles;  ///< outer, then inner
  double H = 0, W = 0;                 ///< overall height and width
  double yAxis = 0;                    ///< height of the y axis above the lowest edge
  double zAxis = 0;                    ///< distance of the z axis from the leftmost edge
  bool principal = false;              ///< the axes u and v are shown
  double alfa = 0;                     ///< deg, from y to u, counter-clockwise
  std::vector<SectionDimension> dimensions;

  /// The greater of the two sizes, which decides the scale of the figure.
  double Greatest() const { return W > H ? W : H; }
  /// Sections given by their constants have none.
  bool HasOutline() const { return !polygons.empty() || !circles.empty(); }
};

/// The shape of the section in the record. Typed values that the record doesn't hold (diameter,
/// place of the webs, slope) come from the state. notToScale: walls that are too thin to be seen
/// are drawn thicker; overall sizes and axes stay. arcSteps: points inside each rounded corner, 1
/// for the plain outline of a catalogue section. The general profile has no outline.
SectionShape ShapeOfSection(const ProjectState& st, const SectionRecord& rec, bool notToScale,
                            int arcSteps = 1);

}  // namespace korvane
