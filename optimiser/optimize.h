// SPDX-License-Identifier: GPL-3.0-or-later
// The optimiser: searches eleven series of rolled sections for the lightest size that passes.
#pragma once

#include <functional>
#include <span>
#include <string>

#include "core/calculation.h"
#include "sections/profile_table.h"

namespace korvane {

/// Values of ResultView, the criterion of a search.
enum Criterion { kCriterionUls = 0, kCriterionSls = 1, kCriterionUlsSls = 2, kCriterionNone = 3 };

/// What each criterion is called, by its value.
inline constexpr const char* kCriterionCaptions[] = {"ULS (Buckling/Section Control)",
                                                     "SLS (Deflection - z-dir)", "ULS/SLS"};

/// One series: a family that has one (Family::search), with what its row of the table tells.
struct OptimiserRow {
  int row = 0;  ///< 1 to 11
  int ProfileType = 0;
  const char* series = "";  ///< the series in words of the command line: "HEA", "SHS"
  const char* word = "";    ///< beginning of the name on the row
  SizeText size = SizeText::Number;
  Cat catalogue = Cat::Count;
  int last = 0;  ///< last catalogue index of the search
  /// The family's size index, which is also the row's BestIndex.
  int16 ProjectState::*index = nullptr;
};

inline constexpr int kOptimiserRows = 11;
/// Shown in a warning box for a family that has no row.
inline constexpr const char* kOnlyDatabaseProfiles = " Only database profiles can be optimized ";

/// All rows in order.
std::span<const OptimiserRow> AllOptimiserRows();
/// A row by its number; throws ArithmeticFault outside 1 to 11.
const OptimiserRow& OptimiserRowOf(int row);

/// What the searches leave beside the state. Outlives the form, as the size indices do.
struct OptimiserResults {
  Indexed<float32, 1, kOptimiserRows> BestIR;
  /// The last search of the row accepted a size and left it in force. False: no section of this
  /// series passes (or the row was not searched).
  Indexed<bool, 1, kOptimiserRows> Passes;
  int RowChosen = 0;  ///< row marked to be taken over, 0 for none
};

/// Called after each recalculation of a search with the candidates done and those of the row.
using SearchProgress = std::function<void(int done, int all)>;

/// True when the family has a row of its own, so that the form may be opened; the command has
/// set ManualBucklingCurves to 0 by then.
bool CanOptimise(const ProjectState& st);

/// Searches one series by the state's ResultView. Leaves the state at the row's family with the
/// size found (the largest of the series when that fails itself), the design recalculated and
/// BestIR and Passes of the row written. Nothing is restored. Throws CalculationFault, and for
/// the deflection criteria ArithmeticFault where there is no deflection.
void SearchRow(Design& design, int row, OptimiserResults& results,
               const SearchProgress& progress = {});

/// The fields of a row, as text, with their numbers.
struct OptimiserRowView {
  std::string name, weight, surface, ir, deflection;
  /// What the ratio alone doesn't say: that the size doesn't pass by the verdict, with the code of
  /// its gravest note, and that lateral torsional buckling was off. Mostly empty.
  std::string remark;
  /// By the verdict, in a limit state that the criterion names.
  bool fails = false;
  double S = 0.0;  ///< kg/m
  double g = 0.0;  ///< m2/m
  double IR = 0.0;
};

/// The display of a searched row: the size is the family's index, the figures are those of the
/// last recalculation, whichever row that was for. Rows 6 to 11 store MaxIR in BestIR first.
OptimiserRowView ShowRow(const Design& design, int row, OptimiserResults& results);

/// The row through whose display a row is shown when a criterion is clicked: row 3 goes through
/// that of row 1, so HEA gets the figures of the HEM section and the HEM row stays as it was.
int RowShownOnReSearch(int row);

/// The command of the accepting button: for RowChosen 1 to 11 the family of that row comes in
/// force with its size and is recalculated. Returns whether it was.
bool TakeOverRow(Design& design, const OptimiserResults& results);

/// The search of the state's own family, from the main window. False for a family without a row,
/// where nothing is searched. The redraw is the caller's.
bool OptimiseCurrent(Design& design, OptimiserResults& results,
                     const SearchProgress& progress = {});

}  // namespace korvane
