// SPDX-License-Identifier: GPL-3.0-or-later
// The grid of a report page, 136 columns by 88 lines, and the blocks that both reports share.
#pragma once

#include <string>
#include <string_view>

#include "core/calculation.h"
#include "presentation/aprint.h"
#include "presentation/drawing_target.h"
#include "sections/shown_values.h"

namespace korvane {

inline constexpr double kPageLines = 88;
inline constexpr double kPageColumns = 136;
inline constexpr double kMargin = 0.1 * kPageColumns;
inline constexpr double kRightEdge = kPageColumns - 0.06 * kPageColumns;
inline constexpr double kLineStep = 1.0;
inline constexpr double kBodySize = 8;    ///< pt
inline constexpr double kFrameSize = 11;  ///< pt
inline constexpr double kLeastSize = 6;   ///< pt, letters are never smaller

/// Column stops of the body.
inline constexpr double kC1 = kMargin;
inline constexpr double kC5 = kC1 + 6 + 12 + 12 + 2;
inline constexpr double kC8 = kC5 + 6 + 12 + 12;

/// Text at a column and line.
void PutText(DrawingTarget& t, double column, double line, std::string_view text);
/// Bold heading.
void PutHeading(DrawingTarget& t, double column, double line, std::string_view text);
/// Text whose right end stands at the column.
void PutRight(DrawingTarget& t, double column, double line, std::string_view text);
/// Text in a field: a long one takes smaller letters, and only then loses its end, which "..."
/// stands for.
void PutFitted(DrawingTarget& t, double column, double line, const std::string& text, double width);
/// Text in a field of two lines: a long one wraps, at blanks where it can, in letters not under
/// kLeastSize; only then it loses its end, which "..." stands for.
void PutWrapped(DrawingTarget& t, double column, double line, const std::string& text,
                double width);
/// Where the first of several lines of a text ends: behind the last blank or slash that fits the
/// width, else behind the last character that does.
std::size_t LineBreak(const DrawingTarget& t, const std::string& text, double width);
/// A text with each number of more than 12 digits before its point printed short
/// ("3.999E+13"), so that no number leaves its field.
std::string ShortNumbers(std::string_view text);
/// name "=" value unit, the value right aligned; the width of the block is 26 columns.
void PutValue(DrawingTarget& t, double column, double line, std::string_view name,
              std::string_view value, std::string_view unit);

/// A notice above the frame, in the colour of what fails.
void DrawNotice(DrawingTarget& t, const std::string& notice);

/// The frame with title, project and date blocks. Returns the line below it.
double DrawPageFrame(DrawingTarget& t, const Design& d, const ReportTime& time);
/// "Material:" with fy, fd, E and gm1 on one line.
void DrawMaterial(DrawingTarget& t, double line, std::string_view heading, const Design& d);
/// Three blocks of values from the line on: dimensions, properties, capacities. Returns the line
/// below the longest.
double DrawSectionValues(DrawingTarget& t, double line, const Design& d);

/// "  HEA200", "  RHS 100x100x5 (Hotf.)".
std::string ProfileLine(const Design& d);
/// What the flange of an HSQ beam carries, and whether the program has left it out.
std::string FlangeLoadLine(const Design& d);
/// "Section class 1-2: Plastic section modulus ", empty where a family has no such option.
std::string ModulusLine(const Design& d);
/// The options of class 4 in force; empty with none, and where a family has none.
std::string ClassFourLine(const Design& d);

/// The whole control report below the frame.
void DrawControlReport(DrawingTarget& t, double line, const Design& d);

}  // namespace korvane
