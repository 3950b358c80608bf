// SPDX-License-Identifier: GPL-3.0-or-later
#include "optimiser/optimize.h"

#include <array>
#include <cmath>

#include "core/text.h"

namespace korvane {
namespace {

/// The rows in the order of the family table.
std::array<OptimiserRow, kOptimiserRows> MakeRows() {
  std::array<OptimiserRow, kOptimiserRows> rows;
  std::size_t count = 0;
  for (const Family& family : AllFamilies()) {
    if (family.search.name == nullptr) continue;
    const SearchSeries& s = family.search;
    const FamilyCatalogue& catalogue = family.catalogues[0];
    rows.at(count) = {static_cast<int>(count) + 1,
                      family.code,
                      s.name,
                      s.word,
                      s.size,
                      catalogue.cat,
                      s.last,
                      catalogue.index};
    ++count;
  }
  return rows;
}

const std::array<OptimiserRow, kOptimiserRows>& Rows() {
  static const std::array<OptimiserRow, kOptimiserRows> rows = MakeRows();
  return rows;
}

/// No section of a catalogue is heavier than a search starts with, kg/m.
constexpr double kStartWeight = 1000.0;

/// The ULS limit of a search. Row 11 compares with 1 whatever iufa is: kept as it always was.
double UlsLimit(const OptimiserRow& row, const ProjectState& st) {
  return row.row == 11 ? 1.0 : static_cast<double>(st.iufa);
}

/// L/deflection of the z plane against the limit; no deflection is a division by zero. End forces
/// give none to test.
bool DeflectionPasses(const Design& design) {
  if (design.st.AnalysisMode != 1) return true;
  const double deflection = std::fabs(design.deflections.DeflZ_max);
  if (deflection == 0.0) throw CalculationFault("optimiser deflection", "division by zero");
  return design.st.L * 1000.0 / deflection > design.st.DeflectionLimit;
}

/// The search's own test: strictly below the limit, where the checks let the limit itself pass.
bool Accepts(const OptimiserRow& row, const Design& design, double ir) {
  const bool uls = ir < UlsLimit(row, design.st);
  switch (design.st.ResultView) {
    case kCriterionUls:
      return uls;
    case kCriterionSls:
      return DeflectionPasses(design);
    default:
      return DeflectionPasses(design) && uls;
  }
}

std::string SizeName(const OptimiserRow& row, const CatalogueTable& table, int index) {
  if (row.size == SizeText::Number) return row.word + Format(table(index, 1), "00");
  const bool square = row.size == SizeText::Square;
  const auto text = [&](int column) { return Str(float32(table(index, column))); };
  return row.word + text(1) + "x" + text(square ? 1 : 2) + "x" + text(square ? 2 : 3);
}

/// The silent calculation stays in force: a verdict on it knows where its values are from.
void Settle(Design& design) {
  design.history.stoppedIn.clear();
  RememberOrigins(design);
}

std::string DeflectionText(const Design& design) {
  const double stiff = design.deflections.DeflStiff;
  if (stiff == 0.0) return "No load";
  return "L/" + Format(std::fabs(design.st.L * 1000.0 / (stiff / design.rec.Iy)), "#0");
}

}  // namespace

std::span<const OptimiserRow> AllOptimiserRows() {
  return Rows();
}

const OptimiserRow& OptimiserRowOf(int row) {
  if (row < 1 || row > kOptimiserRows) throw ArithmeticFault("index out of range");
  return Rows()[static_cast<std::size_t>(row - 1)];
}

bool CanOptimise(const ProjectState& st) {
  // The codes of the families with a series come first; what lies below them, which only a file can
  // hold, passes too: kept.
  return st.ProfileType <= kOptimiserRows;
}

void SearchRow(Design& design, int row, OptimiserResults& results, const SearchProgress& progress) {
  const OptimiserRow& series = OptimiserRowOf(row);
  ProjectState& st = design.st;
  int16& index = st.*series.index;
  float32& ir = results.BestIR[row];
  st.ProfileType = series.ProfileType;
  results.Passes[row] = false;
  double bestWeight = kStartWeight;
  int best = 0;
  bool accepted = false;
  // The beam is analysed once for all candidates; where the self weight counts, which is their
  // only difference as loads, once for each.
  bool analysed = false;
  float32 My_gov;
  const auto candidate = [&] {
    if (analysed) return SilentRecalculationOnSameBeam(design, My_gov);
    SilentRecalculation(design);
    My_gov = design.beam.My_gov;
    analysed = st.SelfWeight != 1;
  };
  for (int k = 0; k <= series.last; ++k) {
    index = k;
    candidate();
    ir = MaxIR(design.checks);
    if (Accepts(series, design, ir) && design.rec.S < bestWeight) {
      bestWeight = design.rec.S;
      best = k;
      accepted = true;
    }
    if (progress) progress(k + 1, series.last + 1);
  }
  // Only the last size decides whether the one found is taken, and by its ratio alone, also for
  // the deflection criterion.
  index = ir > st.iufa ? series.last : best;
  candidate();
  ir = MaxIR(design.checks);
  Settle(design);
  results.Passes[row] =
      accepted && index == best && (st.ResultView == kCriterionSls || !(ir > st.iufa));
}

namespace {

/// The remark of a row: see OptimiserRowView.
std::string RemarkOf(const Design& design, const OptimiserRow& series, const Verdict& verdict) {
  std::string remark;
  if (!verdict.Passes()) {
    remark = StandingWord(verdict.standing);
    if (!verdict.notes.empty()) remark += std::string(": ") + KindOf(verdict.notes[0].code).word;
  }
  const bool judged = FindFamily(series.ProfileType)->lateral.method != LateralMethod::None;
  if (judged && design.st.LateralTorsionalBuckling != 1) {
    remark += std::string(remark.empty() ? "" : "; ") + "without lateral torsional buckling";
  }
  return remark;
}

bool Fails(const Verdict& verdict, int criterion) {
  return verdict.standing == Standing::Fails ||
         (criterion != kCriterionUls && verdict.sls == Serviceability::Fails);
}

}  // namespace

OptimiserRowView ShowRow(const Design& design, int row, OptimiserResults& results) {
  const OptimiserRow& series = OptimiserRowOf(row);
  if (row >= 6) results.BestIR[row] = MaxIR(design.checks);
  OptimiserRowView view;
  view.S = design.rec.S;
  view.g = design.rec.g;
  view.IR = results.BestIR[row];
  view.name = SizeName(series, design.lib->catalogues[series.catalogue], design.st.*series.index);
  view.weight = Format(view.S, "#00.0");
  view.surface = Format(view.g, "#0.00");
  view.ir = Format(view.IR, "#0.00");
  view.deflection = DeflectionText(design);
  const Verdict verdict = VerdictOf(design);
  view.remark = RemarkOf(design, series, verdict);
  view.fails = Fails(verdict, design.st.ResultView);
  return view;
}

int RowShownOnReSearch(int row) {
  return row == 3 ? 1 : row;
}

bool TakeOverRow(Design& design, const OptimiserResults& results) {
  if (results.RowChosen < 1 || results.RowChosen > kOptimiserRows) return false;
  design.st.ProfileType = OptimiserRowOf(results.RowChosen).ProfileType;
  SilentRecalculation(design);
  Settle(design);
  return true;
}

bool OptimiseCurrent(Design& design, OptimiserResults& results, const SearchProgress& progress) {
  for (const OptimiserRow& row : Rows()) {
    if (row.ProfileType != design.st.ProfileType) continue;
    SearchRow(design, row.row, results, progress);
    return true;
  }
  return false;
}

}  // namespace korvane
