// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/console/optimise.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <nlohmann/json.hpp>
#include <ostream>
#include <set>
#include <sstream>
#include <utility>

#include "core/input_fields.h"
#include "core/text.h"
#include "front/console/exit_status.h"
#include "front/console/files_of_commands.h"
#include "front/console/run_design.h"
#include "front/console/terminal.h"

namespace korvane {
namespace {

struct CriterionWord {
  const char* word;
  Criterion criterion;
};

constexpr std::array<CriterionWord, 3> kCriteria{{
    {"uls", kCriterionUls},
    {"sls", kCriterionSls},
    {"uls-sls", kCriterionUlsSls},
}};

constexpr const char* kNonePasses = "no section of this series passes";
constexpr const char* kDeflectionUntested =
    "End forces give no deflection: the deflection limit isn't tested.";

InputRef DeflectionLimit() {
  return InputOf(&ProjectState::DeflectionLimit);
}

/// False for a value that the limit refuses or the field can't hold.
bool TakeLimit(double limit, ProjectState& st) {
  try {
    return StoreInput(st, DeflectionLimit(), limit) == nullptr;
  } catch (const ArithmeticFault&) {
    return false;
  }
}

std::string Upper(std::string text) {
  for (char& c : text)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return text;
}

std::string Captions(const OptimiseOptions& options) {
  for (const CriterionWord& c : kCriteria)
    if (options.criterion == c.word) return kCriterionCaptions[c.criterion];
  return {};
}

std::string Padded(const std::string& text, std::size_t width, bool right) {
  const std::string blanks(width > text.size() ? width - text.size() : 0, ' ');
  return right ? blanks + text : text + blanks;
}

/// Whether the search was asked for a deflection that there is none of.
bool DeflectionUntested(const OptimiseOptions& options, const ProjectState& st) {
  return options.criterion != kCriteria[0].word && st.AnalysisMode != 1;
}

void PrintTable(const std::vector<SearchedRow>& rows, const OptimiseOptions& options,
                const ProjectState& st, std::ostream& out, bool colour) {
  out << "Optimize rolled profiles: " << Captions(options);
  if (options.criterion != kCriteria[0].word)
    out << ", limit L/" << static_cast<int>(st.DeflectionLimit);
  out << "\n\n"
      << Padded("Row", 4, false) << Padded("Name", 22, false) << Padded("kg/m", 8, true)
      << Padded("m2/m", 8, true) << Padded("IR", 8, true) << Padded("Deflection", 12, true) << '\n';
  for (const SearchedRow& row : rows) {
    out << Padded(std::to_string(row.row), 4, false) << Padded(row.view.name, 22, false)
        << Padded(row.view.weight, 8, true) << Padded(row.view.surface, 8, true)
        << Red(Padded(row.view.ir, 8, true), colour && !row.passes)
        << Padded(row.view.deflection, 12, true);
    if (!row.view.remark.empty()) out << "  " << row.view.remark;
    if (!row.passes) out << (row.view.remark.empty() ? "  " : "; ") << kNonePasses;
    out << '\n';
  }
  if (DeflectionUntested(options, st)) out << '\n' << kDeflectionUntested << '\n';
}

void PrintJson(const std::vector<SearchedRow>& rows, const OptimiseOptions& options,
               const ProjectState& st, std::ostream& out) {
  nlohmann::ordered_json json;
  json["criterion"] = options.criterion;
  json["rows"] = nlohmann::ordered_json::array();
  for (const SearchedRow& row : rows) {
    nlohmann::ordered_json object;
    object["row"] = row.row;
    object["ProfileType"] = row.ProfileType;
    object["index"] = row.index;
    object["name"] = row.view.name;
    object["weight"] = row.view.S;
    object["surface"] = row.view.g;
    object["IR"] = row.view.IR;
    object["deflection"] = row.view.deflection;
    object["passes"] = row.passes;
    object["remark"] = row.view.remark;
    json["rows"].push_back(std::move(object));
  }
  if (DeflectionUntested(options, st)) json["note"] = kDeflectionUntested;
  json["ProfileType"] = static_cast<int>(st.ProfileType);
  out << json.dump(2) << '\n';
}

std::vector<int> AllRows() {
  std::vector<int> rows;
  for (const OptimiserRow& row : AllOptimiserRows()) rows.push_back(row.row);
  return rows;
}

/// Refuses what can't be searched for. False after a line on errors.
bool ArgumentsHold(const OptimiseOptions& options, std::ostream& errors) {
  if (!CriterionOf(options.criterion)) {
    errors << "unknown criterion " << options.criterion << ": uls, sls or uls-sls\n";
    return false;
  }
  ProjectState any;
  if (options.limit && !TakeLimit(*options.limit, any)) {
    errors << DeflectionLimit().field->limit.message << '\n';
    return false;
  }
  return true;
}

/// Opens and calculates the project; another status than kAllPass after a line on errors.
int Opened(const OptimiseOptions& options, Design& design, std::ostream& errors) {
  const DesignRun run = RunProject(design, options.file);
  if (run.file != FileResult::Ok) {
    errors << FileMessage(run.file, NameOnErrors(options.file)) << '\n';
    return kBadInput;
  }
  for (const std::string& remark : run.remarks) errors << remark << '\n';
  if (!CanOptimise(design.st)) {
    errors << kOnlyDatabaseProfiles << '\n';
    return kBadInput;
  }
  if (!run.fault) return kAllPass;
  errors << FaultText(run.what) << '\n';
  return kArithmeticFailure;
}

/// Saves the project with the section found. Returns the exit status.
int SaveBest(const OptimiseOptions& options, const std::optional<ProjectState>& best,
             std::ostream& output, std::ostream& errors) {
  if (!best) {
    errors << "no section passes, nothing is saved\n";
    return kCheckFails;
  }
  return SaveOutput(options.save, ProjectText(*best), {{options.file}}, output, errors);
}

int Candidates(const std::vector<int>& rows) {
  int all = 0;
  for (const int row : rows) all += OptimiserRowOf(row).last + 1;
  return all;
}

}  // namespace

std::optional<Criterion> CriterionOf(const std::string& word) {
  for (const CriterionWord& c : kCriteria)
    if (word == c.word) return c.criterion;
  return std::nullopt;
}

std::optional<std::vector<int>> RowsOf(const std::string& list, std::string& unknown) {
  std::set<int> rows;
  std::istringstream words(list);
  for (std::string word; std::getline(words, word, ',');) {
    const auto all = AllOptimiserRows();
    const auto found = std::find_if(
        all.begin(), all.end(), [&](const OptimiserRow& row) { return Upper(word) == row.series; });
    if (found == all.end()) {
      unknown = word;
      return std::nullopt;
    }
    rows.insert(found->row);
  }
  return std::vector<int>(rows.begin(), rows.end());
}

std::string SeriesWords() {
  std::string words;
  for (const OptimiserRow& row : AllOptimiserRows())
    words += (words.empty() ? "" : ",") + std::string(row.series);
  return words;
}

std::vector<SearchedRow> SearchRows(Design& design, const std::vector<int>& rows,
                                    std::optional<ProjectState>& best,
                                    const SearchProgress& progress) {
  OptimiserResults results;
  std::vector<SearchedRow> searched;
  const int all = Candidates(rows);
  int before = 0;
  double lightest = 0.0;
  for (const int row : rows) {
    const OptimiserRow& series = OptimiserRowOf(row);
    SearchRow(design, row, results, [&](int done, int) {
      if (progress) progress(before + done, all);
    });
    before += series.last + 1;
    SearchedRow found{row, series.ProfileType, design.st.*series.index, results.Passes[row],
                      ShowRow(design, row, results)};
    if (found.passes && (!best || found.view.S < lightest)) {
      lightest = found.view.S;
      best = design.st;
    }
    searched.push_back(std::move(found));
  }
  return searched;
}

int RunOptimise(std::shared_ptr<const Library> library, const OptimiseOptions& options,
                std::ostream& output, std::ostream& errors, bool colour, bool showProgress) {
  if (!ArgumentsHold(options, errors)) return kBadInput;
  Design design = StartedDesign(std::move(library));
  ProgressBar bar(errors, showProgress, "sections");
  try {
    if (const int failed = Opened(options, design, errors)) return failed;
    design.st.ManualBucklingCurves = 0;
    design.st.ResultView = *CriterionOf(options.criterion);
    if (options.limit) TakeLimit(*options.limit, design.st);
    std::optional<ProjectState> best;
    const auto rows = SearchRows(
        design, options.rows.empty() ? AllRows() : options.rows, best, [&](int done, int all) {
          bar.Update(static_cast<std::size_t>(done), static_cast<std::size_t>(all));
        });
    bar.Finish();
    const bool save = !options.save.empty();
    const ProjectState& inForce = save && best ? *best : design.st;
    // The project on the standard output stands there alone.
    std::ostream& table = options.save == kStandardStream ? errors : output;
    if (options.json)
      PrintJson(rows, options, inForce, table);
    else
      PrintTable(rows, options, inForce, table, colour);
    table.flush();
    if (save) return SaveBest(options, best, output, errors);
    return best ? kAllPass : kCheckFails;
  } catch (const ArithmeticFault& fault) {
    bar.Finish();
    errors << FaultText(fault.what()) << '\n';
    return kArithmeticFailure;
  }
}

}  // namespace korvane
