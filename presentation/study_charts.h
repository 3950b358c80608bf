// SPDX-License-Identifier: GPL-3.0-or-later
// Charts of what studies find: ratios over a varied input, and interaction diagrams.
#pragma once

#include <span>

#include "presentation/chart.h"
#include "studies/curves.h"
#include "studies/interaction.h"

namespace korvane {

/// What is drawn over the input.
enum class Drawn {
  Each,       ///< a curve for each check that has something to check, the greatest one on a band
  Greatest,   ///< the greatest ratio of all checks
  Deflection  ///< the deflections over their limit
};

/// The curves of one varied input. The title is the caller's, "" for none.
Chart CurvesChart(const Curves& curves, Drawn drawn, std::string title);

/// The present value, and the ends of what passes with their words. check: the answer is one of
/// the deflection limit too.
void AddAnswer(const Question& question, const Answer& answer, Chart& chart);

/// A family: a curve of the greatest ratio or deflection for each value of a second input.
Chart FamilyChart(std::span<const Curves> family, std::span<const std::string> names, Drawn drawn,
                  std::string title);

/// A map of the greatest ratio or deflection over two inputs: one row of samples for each value of
/// the second. The line is where the limit is reached.
Chart MapChart(std::span<const Curves> rows, const MemberInput& second,
               std::span<const double> values, Drawn drawn, std::string title);

/// An interaction diagram: the envelope and the member's points.
Chart InteractionChart(const InteractionDiagram& diagram, double limit);

/// The three diagrams side by side, or below each other in a place higher than wide.
void DrawInteraction(DrawingTarget& target, const Box& place,
                     std::span<const InteractionDiagram> diagrams, double limit, double letters);

}  // namespace korvane
