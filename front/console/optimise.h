// SPDX-License-Identifier: GPL-3.0-or-later
// The lightest passing size of each rolled series, for one project file.
#pragma once

#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/calculation.h"
#include "optimiser/optimize.h"

namespace korvane {

/// What a person asks of a search.
struct OptimiseOptions {
  std::string file;
  std::string criterion = "uls";  ///< "uls", "sls" or "uls-sls"
  std::vector<int> rows;          ///< rows to search, in rising order; empty: all eleven
  std::optional<double> limit;    ///< x of the deflection limit L/x
  bool json = false;
  std::string save;  ///< file for the project with the lightest passing section; may be empty
};

/// A searched row.
struct SearchedRow {
  int row = 0;
  int ProfileType = 0;
  int index = 0;  ///< catalogue row found
  bool passes = false;
  OptimiserRowView view;
};

/// The criterion of a word, nothing for an unknown one.
std::optional<Criterion> CriterionOf(const std::string& word);

/// The rows of a list of series like "HEA,cfrhs", in rising order and each once; of an empty list
/// none. For a word that is no series, nothing, and the word in unknown.
std::optional<std::vector<int>> RowsOf(const std::string& list, std::string& unknown);

/// The words of all series, separated by commas.
std::string SeriesWords();

/// Searches the rows in the order given on the one design, by its ResultView, and takes the
/// lightest passing one into the state of best, as it stood when that row was found; nothing
/// is taken where none passes. Throws CalculationFault.
std::vector<SearchedRow> SearchRows(Design& design, const std::vector<int>& rows,
                                    std::optional<ProjectState>& best,
                                    const SearchProgress& progress);

/// The command: opens, searches, prints, saves. Returns the exit status: 1 where no series has a
/// size that passes.
int RunOptimise(std::shared_ptr<const Library> library, const OptimiseOptions& options,
                std::ostream& output, std::ostream& errors, bool colour, bool showProgress);

}  // namespace korvane
