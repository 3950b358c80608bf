// SPDX-License-Identifier: GPL-3.0-or-later
// The two result views as lines of text runs: the short view (label, IR, limit) and the long
// view (formula and numbers as well). Targets print them as they stand.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "checks/check_line.h"
#include "core/project_state.h"

namespace korvane {

/// The greatest ratio of the last calculation, in single precision. Throws ArithmeticFault when
/// it is too large for that.
float MaxIR(const CheckResults& checks);

/// A piece of a line in one style.
struct TextRun {
  std::string text;
  bool bold = false;
  bool underline = false;
  int colour = kBlack;            ///< index of the 16-colour basic palette
  bool atTab = false;             ///< starts at the second column, left margin + 10
  std::optional<double> ratio{};  ///< of the run that is a check's value
};

/// A line of a view; advance is the way down behind it, in lines.
struct ViewLine {
  std::vector<TextRun> runs;
  double advance = 1;
};
using View = std::vector<ViewLine>;

/// Whether a value of the line is red, or a ratio beyond the limit where its colour never turns.
bool Fails(const ViewLine& line, double limit);

/// Fixed string ahead of a value.
inline constexpr const char* kIRPrefix = "IR = ";

/// The short views: a heading, and a line for each check that was made.
/// Section, shear in z and y, lateral buckling.
View SectionControlShort(const ProjectState& st, const CheckResults& checks);
/// Buckling about y and z, and the slenderness where it is checked.
View BucklingShort(const ProjectState& st, const CheckResults& checks, const BucklingResults& b);

/// The long views. breaks(text) tells whether formula, numbers, value and limit together exceed
/// the width of the target; then the formula stands alone and "    = " and the numbers follow.
template <class Breaks>
View SectionControlLong(const ProjectState& st, const CheckResults& checks, Breaks&& breaks);
/// Buckling, in the same way.
template <class Breaks>
View BucklingLong(const ProjectState& st, const CheckResults& checks, const BucklingResults& b,
                  Breaks&& breaks);

/// Whether the views show the buckling block: compression, a family that has it, and an axis
/// that can buckle.
bool ShowsBuckling(const ProjectState& st, double N);

namespace view {
/// A block's first line: the text, and the chosen points in m or parts of L where there are any.
ViewLine Heading(const ProjectState& st, const char* text);
/// The text, L/i about y and z, "N/A" for an axis that can't buckle, and the limit (11.7).
ViewLine SlendernessLine(const ProjectState& st, const std::string& text, const BucklingResults& b);
/// Adds a check: its label, and formula, numbers, value and limit in one line, or in two where it
/// is broken.
void AddLong(View& v, const CheckLine& line, bool broken);
/// Formula, numbers, value and limit one behind the other, as their width is measured.
std::string WholeText(const CheckLine& line);
/// The value of a check in its colour, with its ratio.
TextRun ValueRun(const CheckLine& line);
}  // namespace view

template <class Breaks>
View SectionControlLong(const ProjectState& st, const CheckResults& checks, Breaks&& breaks) {
  View v{view::Heading(st, "SECTION CONTROL:")};
  for (const CheckLine* line :
       {&checks.lineSection, &checks.lineVz, &checks.lineVy, &checks.lineLateral}) {
    if (!line->formula.empty()) view::AddLong(v, *line, breaks(view::WholeText(*line)));
  }
  return v;
}

template <class Breaks>
View BucklingLong(const ProjectState& st, const CheckResults& checks, const BucklingResults& b,
                  Breaks&& breaks) {
  View v{view::Heading(st, "BUCKLING CONTROL:")};
  for (const CheckLine* line : {&checks.lineBucklingY, &checks.lineBucklingZ}) {
    if (!line->formula.empty()) view::AddLong(v, *line, breaks(view::WholeText(*line)));
  }
  if (!checks.lineSlenderness.formula.empty()) {
    v.push_back(view::SlendernessLine(st, checks.lineSlenderness.formula, b));
  }
  return v;
}

}  // namespace korvane
