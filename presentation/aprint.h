// SPDX-License-Identifier: GPL-3.0-or-later
// The two printed reports and the checker's sheet, each on one A4 page with a fixed frame.
#pragma once

#include <string>

#include "core/calculation.h"
#include "presentation/drawing_target.h"

namespace korvane {

/// A4 in points, the page units of the reports.
inline constexpr double kPageWidth = 595.276;
inline constexpr double kPageHeight = 841.890;

enum class Report { SectionProperty = 0, SectionAndStability = 1, Checker = 2 };

/// Local date and time of the print.
struct ReportTime {
  int year = 0, month = 0, day = 0, hour = 0, minute = 0;
};

/// Draws a report on a page of kPageWidth by kPageHeight units, from the state of the last
/// calculation; nothing is calculated for a print. A notice stands at the head of the page: why
/// the results are not those of the state.
void DrawReport(DrawingTarget& page, Report report, const Design& design, const ReportTime& time,
                const std::string& notice = {});

/// The report's name, for titles and files.
const char* ReportTitle(Report report);

}  // namespace korvane
