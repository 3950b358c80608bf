// SPDX-License-Identifier: GPL-3.0-or-later
// The picture of a cross-section with its axes and dimension letters.
#pragma once

#include <string>
#include <string_view>

#include "presentation/drawing_target.h"
#include "presentation/grafik.h"
#include "presentation/section_shape.h"

namespace korvane {

/// The square window of a figure is this many times the greater size of the section.
inline constexpr double kFigureRoom = 1.8;

/// Smallest letters of the figure and of the sketch on a report, pt.
inline constexpr double kReportLetters = 6.5;

/// The letter by which the reports name a dimension: the wall of a tube, of a stiffener and of a
/// trapezoid is "t" there and "tw" on the form.
std::string_view ReportLetter(int profileType, std::string_view letter);

struct FigureOptions {
  bool dimensions = true;  ///< dimension lines with their letters
  bool caption = true;     ///< "Figure to scale" or "Figure not to scale"
  std::string highlight;   ///< letter of the dimension to be shown in the accent colour
  bool report = false;     ///< letters of the report's tables, none too small for paper
};

/// Corner of the section's bounding box in the figure's window (mm): the room left is the same
/// on both sides. The width decides where it is greater, otherwise the height.
Point FigureOrigin(double H, double W);

/// Draws the section of the record into a rectangle of the target's user units, undistorted.
/// The state's FigureNotToScale says whether thin walls are drawn thicker.
void DrawSectionFigure(DrawingTarget& target, const Box& place, Destination destination,
                       const ProjectState& st, const SectionRecord& rec,
                       const FigureOptions& options);

}  // namespace korvane
