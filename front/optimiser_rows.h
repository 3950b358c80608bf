// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of the optimiser form: which are included, what they show, what their searches left.
#pragma once

#include <string>

#include "optimiser/optimize.h"

namespace korvane {

struct OptimiserRows {
  struct Row {
    bool included = false;  ///< its box is checked
    bool searched = false;  ///< its figures are those of a search
    OptimiserRowView view;
  };
  OptimiserResults results;
  Indexed<Row, 1, kOptimiserRows> row;
};

/// The form is opened: a criterion is set, and the row of the family in force is included without
/// a search.
void OpenRows(Design& design, OptimiserRows& rows);
/// The box of a row: includes it with a search, or takes it out.
void ToggleRow(Design& design, OptimiserRows& rows, int row, const SearchProgress& progress);
/// A criterion is chosen: all rows that are included are searched again.
void SearchAgain(Design& design, OptimiserRows& rows, int criterion,
                 const SearchProgress& progress);
/// What is to be said of a row beside its figures, with the verdict's note; or nothing.
std::string WordsOf(const OptimiserRows& rows, int row);
/// The row's section doesn't do, which WordsOf says too.
bool RowFails(const OptimiserRows& rows, int row);
/// The searched row of the least weight whose size passes, 0 for none.
int LightestRow(const OptimiserRows& rows);

}  // namespace korvane
