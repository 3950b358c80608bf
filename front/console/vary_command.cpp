// SPDX-License-Identifier: GPL-3.0-or-later
// The command vary: the grid of all values, as rows of a table that nobody wrote.
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <ostream>
#include <sstream>

#include "front/console/exit_status.h"
#include "front/console/files_of_commands.h"
#include "front/console/stop_signal.h"
#include "front/console/studies.h"
#include "front/console/table_rows.h"
#include "front/console/terminal.h"
#include "front/console/vary.h"
#include "front/nearest.h"
#include "studies/all_sections.h"
#include "studies/in_order.h"
#include "studies/member.h"

namespace korvane {

namespace {

constexpr std::size_t kRowsPerPiece = 256;
constexpr std::size_t kMostValues = 1000000;

bool ParseNumber(std::string_view text, double& value) {
  const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
  return read.ec == std::errc() && read.ptr == text.data() + text.size() && std::isfinite(value);
}

std::string Twelve(double value) {
  std::array<char, 40> text;
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value,
                                     std::chars_format::general, 12)
                           .ptr};
}

/// The values of "2:12:0.25", both ends; false for anything else.
bool ParseSteps(const std::string& text, std::vector<std::string>& values) {
  const auto first = text.find(':');
  const auto second = text.find(':', first + 1);
  if (first == std::string::npos || second == std::string::npos) return false;
  double from = 0;
  double to = 0;
  double step = 0;
  const std::string_view all = text;
  if (!ParseNumber(all.substr(0, first), from) ||
      !ParseNumber(all.substr(first + 1, second - first - 1), to) ||
      !ParseNumber(all.substr(second + 1), step)) {
    return false;
  }
  const double steps = (to - from) / step;
  if (!(steps >= 0) || steps > kMostValues) return false;
  for (int i = 0; i <= static_cast<int>(std::floor(steps + 1E-9)); ++i) {
    // Twelve digits: steps of decimals add up to decimals.
    values.push_back(Twelve(from + i * step));
  }
  return true;
}

/// The names of a series: "family:HEA".
bool ParseFamily(const std::string& text, const Library& library,
                 std::vector<std::string>& values) {
  constexpr std::string_view kFamily = "family:";
  if (!text.starts_with(kFamily)) return false;
  values = NamesOfSeries(std::string_view(text).substr(kFamily.size()), library.catalogues);
  return !values.empty();
}

}  // namespace

std::optional<VaryAxis> ParseAxis(const std::string& set, const ProjectState& st,
                                  const Library& library, std::ostream& errors) {
  const auto equals = set.find('=');
  const std::string name = set.substr(0, equals);
  const auto input = FindMemberInput(name, st);
  if (!input) {
    errors << "unknown input " << NameOnErrors(name)
           << " (nearest: " << NearestWord(name, MemberInputNames()) << ")\n";
    return std::nullopt;
  }
  VaryAxis axis{{name, input}, {}};
  const std::string list = equals == std::string::npos ? "" : set.substr(equals + 1);
  const bool number = input->kind == InputKind::Field || input->kind == InputKind::Loads;
  const bool parsed =
      number ? ParseSteps(list, axis.values)
             : input->kind == InputKind::Section && ParseFamily(list, library, axis.values);
  if (!parsed) {
    axis.values.clear();
    std::istringstream in(list);
    for (std::string value; std::getline(in, value, ',');) axis.values.push_back(value);
    double ignored = 0;
    const bool good = std::all_of(axis.values.begin(), axis.values.end(), [&](const auto& value) {
      return !value.empty() && (!number || ParseNumber(value, ignored));
    });
    if (axis.values.empty() || !good || list.starts_with("family:")) {
      errors << "--set " << NameOnErrors(name)
             << "=FROM:TO:STEP, a list, or section=family:SERIES\n";
      return std::nullopt;
    }
  }
  return axis;
}

namespace {

/// The grid's rows first..last-1; the last input varies fastest.
void WriteRows(const std::vector<VaryAxis>& axes, std::size_t first, std::size_t last,
               std::string& rows) {
  const CsvManner manner;
  for (std::size_t row = first; row < last; ++row) {
    std::size_t rest = row;
    std::vector<std::size_t> at(axes.size());
    for (std::size_t i = axes.size(); i-- > 0;) {
      at[i] = rest % axes[i].values.size();
      rest /= axes[i].values.size();
    }
    for (std::size_t i = 0; i < axes.size(); ++i) {
      if (i > 0) rows += manner.separator;
      AppendCell(axes[i].values[at[i]], manner, rows);
    }
    rows += '\n';
  }
}

/// What is designed.
struct Grid {
  const TablePlan& plan;
  const std::vector<VaryAxis>& axes;
  const Design& started;
  int jobs = 0;
  std::size_t all = 0;
};

void DesignGrid(const Grid& grid, const MemberInputs& inputs, std::ostream& out,
                std::ostream& errors, bool showProgress, TableCounts& counts) {
  ProgressBar bar(errors, showProgress, "designs");
  out << TableHeader(grid.plan);
  std::size_t next = 0;
  WorkInOrder<TablePiece>(
      ThreadsFor(grid.jobs, grid.all),
      [&](TablePiece& piece) {
        piece = {};
        piece.first = next + 2;
        const std::size_t last = std::min(grid.all, next + kRowsPerPiece);
        if (next == last || StopSignal::Received() != 0) return false;
        WriteRows(grid.axes, next, last, piece.rows);
        next = last;
        return true;
      },
      [&] {
        return [designer = RowDesigner(grid.plan, inputs, grid.started)](
                   TablePiece& piece) mutable { designer.DesignRows(piece); };
      },
      [&](const TablePiece& piece) {
        out << piece.lines;
        counts.Add(piece.counts);
        bar.Update(counts.All(), grid.all);
        return bool(out);
      });
  bar.Finish();
}

}  // namespace

int RunVary(std::shared_ptr<const Library> library, const VaryOptions& options,
            std::ostream& output, std::ostream& errors, bool showProgress) {
  const Design started = StartedDesign(library);
  TablePlan plan;
  plan.base = started.st;
  if (!ReadMember(options.file, plan.base, errors)) return kBadInput;
  auto results = ResultsOf(options.columns, errors);
  if (!results) return kBadInput;
  plan.results = std::move(*results);
  std::vector<VaryAxis> axes;
  std::size_t all = 1;
  for (const std::string& set : options.sets) {
    auto axis = ParseAxis(set, plan.base, *library, errors);
    if (!axis) return kBadInput;
    if (all > 1000000000 / axis->values.size()) {
      errors << "more than 1000000000 designs\n";
      return kBadInput;
    }
    all *= axis->values.size();
    plan.kept.push_back(axes.size());
    plan.columns.push_back(axis->column);
    axes.push_back(std::move(*axis));
  }
  if (!options.plot.empty()) {
    const int status = PlotGrid(library, started, plan.base, axes, options, output, errors);
    // The table is written where a place for it was named.
    if (status != kAllPass || options.csv.empty()) return status;
  }
  const StopSignal stop;
  const MemberInputs inputs(library);
  TableCounts counts;
  const WriteRules rules{{options.file}};
  const WriteResult written = WriteAsMade(options.csv, rules, output, [&](std::ostream& to) {
    DesignGrid({plan, axes, started, options.jobs, all}, inputs, to, errors, showProgress, counts);
    return StopSignal::Received() == 0 || counts.All() == all;
  });
  if (const int signal = StopSignal::Received(); signal != 0 && counts.All() < all) {
    errors << "stopped after " << counts.All() << " of " << all << " designs\n";
    return kStoppedBySignal + signal;
  }
  if (!written) {
    TellNotSaved(options.csv, written, errors);
    return kBadInput;
  }
  errors << Totals(counts, "designs");
  return counts.ExitStatus();
}

}  // namespace korvane
