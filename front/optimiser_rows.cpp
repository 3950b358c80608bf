// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/optimiser_rows.h"

namespace korvane {

void OpenRows(Design& design, OptimiserRows& rows) {
  ProjectState& st = design.st;
  if (st.ResultView < kCriterionUls || st.ResultView > kCriterionUlsSls) {
    st.ResultView = kCriterionUls;
  }
  rows.row = {};
  rows.results.RowChosen = 0;
  for (const OptimiserRow& row : AllOptimiserRows()) {
    if (row.ProfileType != st.ProfileType) continue;
    rows.results.RowChosen = row.row;
    rows.row[row.row].included = true;
    rows.row[row.row].view = ShowRow(design, row.row, rows.results);
  }
}

void ToggleRow(Design& design, OptimiserRows& rows, int row, const SearchProgress& progress) {
  OptimiserRows::Row& target = rows.row[row];
  target.included = !target.included;
  target.searched = target.included;
  target.view = {};
  if (!target.included) return;
  SearchRow(design, row, rows.results, progress);
  target.view = ShowRow(design, row, rows.results);
}

void SearchAgain(Design& design, OptimiserRows& rows, int criterion,
                 const SearchProgress& progress) {
  design.st.ResultView = criterion;
  for (int row = 1; row <= kOptimiserRows; ++row) {
    if (!rows.row[row].included) continue;
    SearchRow(design, row, rows.results, progress);
    rows.row[row].searched = true;
    // The HEM row goes through the display of the HEA row: kept.
    const int shown = RowShownOnReSearch(row);
    OptimiserRows::Row& target = rows.row[shown];
    target.view = target.included ? ShowRow(design, shown, rows.results) : OptimiserRowView();
  }
}

std::string WordsOf(const OptimiserRows& rows, int row) {
  const OptimiserRows::Row& one = rows.row[row];
  if (!one.included) return {};
  std::string words = !one.searched               ? "not searched"
                      : !rows.results.Passes[row] ? "none passes"
                      : LightestRow(rows) == row  ? "lightest"
                                                  : "";
  if (!one.view.remark.empty()) words += (words.empty() ? "" : "; ") + one.view.remark;
  return words;
}

bool RowFails(const OptimiserRows& rows, int row) {
  const OptimiserRows::Row& one = rows.row[row];
  return one.included && (one.view.fails || (one.searched && !rows.results.Passes[row]));
}

int LightestRow(const OptimiserRows& rows) {
  int best = 0;
  for (int row = 1; row <= kOptimiserRows; ++row) {
    const OptimiserRows::Row& one = rows.row[row];
    if (!one.searched || one.view.name.empty() || !rows.results.Passes[row]) continue;
    if (best == 0 || one.view.S < rows.row[best].view.S) best = row;
  }
  return best;
}

}  // namespace korvane
