// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/aprint.h"

#include "presentation/checker_sheet.h"
#include "presentation/figures.h"
#include "presentation/page.h"
#include "sections/profile_table.h"

namespace korvane {

const char* ReportTitle(Report report) {
  switch (report) {
    case Report::SectionProperty:
      return "Section Property and Capacity";
    case Report::Checker:
      return "Numbers for the Checker";
    default:
      return "Section and Stability Control";
  }
}

namespace {

void DrawSectionReport(DrawingTarget& t, double line, const Design& d) {
  t.FontSize = kBodySize;
  DrawMaterial(t, line + 1.5, "Material: ", d);
  line += 4;
  t.FontSize = kFrameSize;
  PutHeading(t, kC1, line, ProfileLine(d));
  t.FontSize = kBodySize;
  line = DrawSectionValues(t, line + 2.5, d) + 1;
  PutText(t, kC8, line, ModulusLine(d));
  if (IsHsq(d.st.ProfileType)) {
    PutText(t, kC1, line + 1, FlangeLoadLine(d));
  }
  const std::string classFour = ClassFourLine(d);
  if (!classFour.empty()) PutText(t, kC1, line, classFour);
  FigureOptions figure;
  figure.report = true;
  DrawSectionFigure(t, Box{kC1 + 20, line + 3, kRightEdge - 20, line + 35}, Destination::Page, d.st,
                    d.rec, figure);
}

}  // namespace

void DrawReport(DrawingTarget& page, Report report, const Design& design, const ReportTime& time,
                const std::string& notice) {
  const ScopedFrame grid(page, Box{0, 0, kPageWidth, kPageHeight},
                         Box{0, 0, kPageColumns, kPageLines});
  if (!notice.empty()) DrawNotice(page, notice);
  const double line = DrawPageFrame(page, design, time);
  if (report == Report::SectionProperty) {
    DrawSectionReport(page, line, design);
  } else if (report == Report::Checker) {
    DrawCheckerSheet(page, line, design);
  } else {
    DrawControlReport(page, line, design);
  }
}

}  // namespace korvane
