// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/console/table.h"

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <memory>
#include <mutex>
#include <optional>
#include <sstream>
#include <utility>

#include "core/file_path.h"
#include "core/supports.h"
#include "front/console/exit_status.h"
#include "front/console/files_of_commands.h"
#include "front/console/stop_signal.h"
#include "front/console/studies.h"
#include "front/console/table_rows.h"
#include "front/console/terminal.h"
#include "studies/in_order.h"
#include "studies/member.h"

namespace korvane {

namespace {

/// What a thread takes at once, in bytes of rows: many enough that taking is nothing.
constexpr std::size_t kPieceBytes = 1 << 14;
/// How far the decimal separator of a table is looked for.
constexpr std::size_t kLookedAt = 1 << 16;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// Reads mark, headings and line of units; false, after a word, where they are no good.
bool ReadBeginning(const TableOptions& options, TableReader& reader, TablePlan& plan,
                   std::ostream& errors) {
  if (reader.Ahead(kByteOrderMark.size()) == kByteOrderMark) {
    plan.manner.byteOrderMark = true;
    reader.Skip(kByteOrderMark.size());
  }
  const std::string_view ahead = reader.Ahead(kLookedAt);
  plan.manner.separator = SeparatorOf(ahead.substr(0, ahead.find('\n')));
  const char separator = plan.manner.separator;
  const std::string headings(reader.Row(separator));
  if (headings.empty()) {
    errors << "the table is empty\n";
    return false;
  }
  plan.manner.carriageReturns = headings.ends_with("\r\n");
  std::vector<std::string_view> cells;
  std::string store;
  SplitRow(headings, separator, cells, store);
  auto columns = ReadHeadings(cells, Words(options.keep), plan.base, errors);
  if (!columns) return false;
  plan.columns = std::move(*columns);
  std::vector<bool> numbers;
  for (std::size_t i = 0; i < plan.columns.size(); ++i) {
    const auto& input = plan.columns[i].input;
    numbers.push_back(input && input->kind != InputKind::Text);
    if (!input) plan.kept.push_back(i);
  }
  // A copy: what is ahead moves when more is read.
  const std::string rows(reader.Ahead(kLookedAt));
  plan.manner.decimalComma = WritesDecimalComma(rows, separator, numbers);
  const std::size_t length = rows.empty() ? 0 : RowLength(rows, separator, true);
  SplitRow(std::string_view(rows).substr(0, length), separator, cells, store);
  if (IsUnitsRow(cells)) reader.Row(separator);
  return true;
}

/// The bytes of a shard: rows that begin in them are its own.
struct Share {
  std::size_t begin = 0;
  std::size_t end = static_cast<std::size_t>(-1);
};

Share ShareOf(const TableOptions& options, std::size_t first, std::size_t size) {
  if (options.shards == 1) return {};
  const std::size_t bytes = size > first ? size - first : 0;
  const auto border = [&](int shard) {
    return first +
           bytes / static_cast<std::size_t>(options.shards) * static_cast<std::size_t>(shard);
  };
  Share share{border(options.shard - 1), border(options.shard)};
  if (options.shard == options.shards) share.end = static_cast<std::size_t>(-1);
  return share;
}

/// The next piece of the share; false behind the last.
bool MakePiece(TableReader& reader, char separator, const Share& share, TablePiece& piece) {
  piece.rows.clear();
  piece.lines.clear();
  piece.counts = {};
  if (StopSignal::Received() != 0) return false;
  while (reader.Offset() < share.begin) {
    if (reader.Row(separator).empty()) return false;
  }
  piece.first = reader.Rows() + 1;
  while (piece.rows.size() < kPieceBytes && reader.Offset() < share.end) {
    const std::string_view row = reader.Row(separator);
    if (row.empty()) break;
    piece.rows += row;
  }
  piece.end = reader.Offset();
  return !piece.rows.empty();
}

/// The rows of the table in front of a place, read when first asked for: only a row that is refused
/// tells its number.
std::function<std::size_t()> RowsInFront(const std::string& path, char separator,
                                         std::size_t place) {
  struct Counted {
    std::once_flag once;
    std::size_t rows = 0;
  };
  return [path, separator, place, counted = std::make_shared<Counted>()] {
    std::call_once(counted->once, [&] {
      std::ifstream file(FilePath(path), std::ios::binary);
      TableReader reader(file);
      if (reader.Ahead(kByteOrderMark.size()) == kByteOrderMark) {
        reader.Skip(kByteOrderMark.size());
      }
      while (reader.Offset() < place && !reader.Row(separator).empty()) {
      }
      counted->rows = reader.Rows();
    });
    return counted->rows;
  };
}

/// Rows that there will be, by those so far.
std::size_t RowsExpected(std::size_t done, std::size_t bytes, std::size_t size) {
  if (bytes == 0 || size <= bytes) return done;
  return static_cast<std::size_t>(double(done) * double(size) / double(bytes));
}

}  // namespace

void TableCounts::Add(const TableCounts& other) {
  pass += other.pass;
  fail += other.fail;
  notChecked += other.notChecked;
  stopped += other.stopped;
  refused += other.refused;
}

std::string Totals(const TableCounts& counts, const char* what) {
  return std::to_string(counts.All()) + " " + what + ": " + std::to_string(counts.pass) +
         " pass, " + std::to_string(counts.fail) + " fail, " + std::to_string(counts.notChecked) +
         " not checked, " + std::to_string(counts.stopped) + " arithmetic failures, " +
         std::to_string(counts.refused) + " refused\n";
}

int TableCounts::ExitStatus() const {
  if (refused > 0) return kBadInput;
  if (stopped > 0) return kArithmeticFailure;
  return fail + notChecked > 0 ? kCheckFails : kAllPass;
}

int DesignTable(std::shared_ptr<const Library> library, const TableOptions& options,
                std::istream& in, std::size_t size, std::ostream& out, std::ostream& errors,
                bool showProgress, TableCounts& counts) {
  const Design started = StartedDesign(library);
  TablePlan plan;
  plan.optimise = options.optimise;
  plan.jsonLines = options.jsonLines;
  if (options.base.empty()) {
    plan.base = NewMember(library);
  } else {
    plan.base = started.st;
    if (!ReadMember(options.base, plan.base, errors)) return kBadInput;
  }
  auto results = ResultsOf(options.columns, errors);
  if (!results) return kBadInput;
  plan.results = std::move(*results);
  TableReader reader(in);
  if (!ReadBeginning(options, reader, plan, errors)) return kBadInput;
  const Share share = ShareOf(options, reader.Offset(), size);
  if (reader.Seek(reader.Offset(), share.begin)) {
    plan.rowsBefore = RowsInFront(options.members, plan.manner.separator, reader.Offset());
  }
  const MemberInputs inputs(library);
  ProgressBar bar(errors, showProgress, "members");
  if (options.shard == 1) out << TableHeader(plan);
  WorkInOrder<TablePiece>(
      ThreadsFor(options.jobs, static_cast<std::size_t>(-1)),
      [&](TablePiece& piece) { return MakePiece(reader, plan.manner.separator, share, piece); },
      [&] {
        return [designer = RowDesigner(plan, inputs, started)](TablePiece& piece) mutable {
          designer.DesignRows(piece);
        };
      },
      [&](const TablePiece& piece) {
        out << piece.lines;
        counts.Add(piece.counts);
        bar.Update(counts.All(), RowsExpected(counts.All(), piece.end, size));
        return bool(out);
      });
  bar.Finish();
  return kAllPass;
}

int RunTable(std::shared_ptr<const Library> library, const TableOptions& options,
             std::ostream& output, std::ostream& errors, bool showProgress) {
  const bool standard = options.members == kStandardStream;
  if (standard && (options.shards > 1 || options.base == kStandardStream)) {
    errors << "the standard input can't be shared\n";
    return kBadInput;
  }
  std::ifstream file;
  std::size_t size = 0;
  if (!standard) {
    std::error_code failed;
    size = std::filesystem::file_size(FilePath(options.members), failed);
    if (!failed) file.open(FilePath(options.members), std::ios::binary);
    if (failed || !file) {
      errors << "can't read file - " << NameOnErrors(options.members) << '\n';
      return kBadInput;
    }
  }
  const WriteRules rules{{options.members, options.base}};
  const bool toFile = !options.output.empty() && options.output != kStandardStream;
  const StopSignal stop;
  TableCounts counts;
  int status = kAllPass;
  const WriteResult written = WriteAsMade(options.output, rules, output, [&](std::ostream& to) {
    status = DesignTable(std::move(library), options, standard ? std::cin : file, size, to, errors,
                         showProgress, counts);
    return status == kAllPass && StopSignal::Received() == 0;
  });
  if (status != kAllPass) return status;
  if (const int signal = StopSignal::Received(); signal != 0) {
    errors << "stopped by " << (signal == SIGINT ? "SIGINT" : "SIGTERM") << " after "
           << counts.All() << " members"
           << (toFile ? "; the table is not written\n" : "; the table ends there\n");
    return kStoppedBySignal + signal;
  }
  if (!written) {
    TellNotSaved(options.output, written, errors);
    return kBadInput;
  }
  errors << Totals(counts, "members");
  return counts.ExitStatus();
}

void ListColumns(const Library& library, std::ostream& output) {
  ProjectState st;
  const auto line = [&](const std::string& name, const std::string& unit, const std::string& what) {
    output << "  " << name << std::string(name.size() < 26 ? 26 - name.size() : 1, ' ') << unit
           << std::string(unit.size() < 9 ? 9 - unit.size() : 1, ' ') << what << '\n';
  };
  output << "Inputs\n";
  for (const std::string& name : MemberInputNames()) {
    const MemberInput input = *FindMemberInput(name, st);
    std::string what = RangeOf(input, st);
    if (input.kind == InputKind::Section) what = "a name: HEA200, RHS 100x100x5, I 600x300x12x20";
    if (input.kind == InputKind::Loads) what = "a factor on all loads and end forces";
    if (input.kind == InputKind::Support) {
      for (const Support& support : kSupports)
        what += (what.empty() ? "" : ", ") + std::string(support.name);
    }
    if (input.kind == InputKind::Material) {
      what = "a name: " + library.materials.rows.front().name + " ... " +
             library.materials.rows.back().name;
    }
    line(name, UnitOf(input), what);
  }
  output << "Results\n";
  for (const ResultColumn& column : AllResultColumns()) {
    line(column.name, column.unit, column.meaning);
  }
}

}  // namespace korvane
