// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/console/table_rows.h"

#include <algorithm>
#include <array>
#include <exception>
#include <istream>
#include <ostream>
#include <set>
#include <sstream>

#include "front/console/terminal.h"
#include "front/json_writer.h"
#include "front/nearest.h"
#include "studies/member.h"

namespace korvane {

namespace {

constexpr std::size_t kReadAtOnce = 1 << 16;
/// A row beyond this ends at its first line end: a quote that nobody closed must not swallow a
/// table.
constexpr std::size_t kLongestRow = 1 << 20;

/// Headings handed through, in small letters.
constexpr std::array<std::string_view, 6> kNames{"id",     "name",  "mark",
                                                 "member", "group", "comment"};
constexpr std::array<const char*, 3> kOptimised{"optimised_section", "optimised_weight",
                                                "optimised_IR"};

std::string Small(std::string_view text) {
  std::string small(text);
  for (char& c : small) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return small;
}

/// A heading without the unit in brackets that a blank separates from it.
std::string_view WithoutUnit(std::string_view heading) {
  if (heading.empty() || (heading.back() != ']' && heading.back() != ')')) return heading;
  const auto open = heading.find_last_of("[(");
  if (open == std::string_view::npos || open == 0 || heading[open - 1] != ' ') return heading;
  heading = heading.substr(0, open);
  while (heading.ends_with(' ')) heading.remove_suffix(1);
  return heading;
}

void AppendNumber(const std::string& digits, const TablePlan& plan, std::string& lines) {
  const std::size_t first = lines.size();
  lines += digits;
  if (!plan.manner.decimalComma || plan.jsonLines) return;
  std::replace(lines.begin() + static_cast<std::ptrdiff_t>(first), lines.end(), '.', ',');
}

/// One line of the output, its cells in order.
class LineOfCells {
public:
  LineOfCells(const TablePlan& plan, std::string& lines) : plan_(plan), lines_(lines) {
    if (plan_.jsonLines) lines_ += '{';
  }
  void Text(std::string_view name, std::string_view text) {
    Begin(name);
    plan_.jsonLines ? AppendJsonText(text, lines_) : AppendCell(text, plan_.manner, lines_);
  }
  /// Digits, or nothing where there is no number.
  void Number(std::string_view name, const std::string& digits) {
    Begin(name);
    if (digits.empty() && plan_.jsonLines) lines_ += "null";
    AppendNumber(digits, plan_, lines_);
  }
  void End() { lines_ += plan_.jsonLines ? "}\n" : LineEnd(plan_.manner); }

private:
  void Begin(std::string_view name) {
    if (!first_) lines_ += plan_.jsonLines ? ',' : plan_.manner.separator;
    first_ = false;
    if (!plan_.jsonLines) return;
    AppendJsonText(name, lines_);
    lines_ += ':';
  }
  const TablePlan& plan_;
  std::string& lines_;
  bool first_ = true;
};

}  // namespace

std::vector<std::string> Words(const std::string& list) {
  std::vector<std::string> words;
  std::istringstream in(list);
  for (std::string word; std::getline(in, word, ',');) {
    word.erase(0, word.find_first_not_of(' '));
    word.erase(word.find_last_not_of(' ') + 1);
    if (!word.empty()) words.push_back(word);
  }
  return words;
}

std::optional<std::vector<const ResultColumn*>> ResultsOf(const std::string& list,
                                                          std::ostream& errors) {
  std::vector<const ResultColumn*> results;
  std::vector<std::string> names;
  for (const ResultColumn& column : AllResultColumns()) names.emplace_back(column.name);
  const std::vector<std::string> wanted = Words(list);
  for (const std::string& name : wanted.empty() ? names : wanted) {
    const ResultColumn* column = FindResultColumn(name);
    if (column == nullptr) {
      errors << "unknown result " << NameOnErrors(name) << " (nearest: " << NearestWord(name, names)
             << ")\n";
      return std::nullopt;
    }
    results.push_back(column);
  }
  return results;
}

std::optional<std::vector<TableColumn>> ReadHeadings(const std::vector<std::string_view>& headings,
                                                     const std::vector<std::string>& keep,
                                                     const ProjectState& base,
                                                     std::ostream& errors) {
  std::vector<TableColumn> columns;
  std::set<std::string> seen;
  for (const std::string_view cell : headings) {
    const std::string heading(WithoutUnit(cell));
    const std::string small = Small(heading);
    TableColumn column{heading, std::nullopt};
    const bool kept = std::find(kNames.begin(), kNames.end(), small) != kNames.end() ||
                      std::find(keep.begin(), keep.end(), heading) != keep.end();
    if (!kept) column.input = FindMemberInput(heading, base);
    if (!kept && !column.input) column.input = FindMemberInput(small, base);
    if (!kept && !column.input) {
      errors << "unknown column " << NameOnErrors(heading)
             << " (nearest: " << NearestWord(heading, MemberInputNames()) << ")\n";
      return std::nullopt;
    }
    const std::string name = kept ? small : column.input->name;
    if (!seen.insert(name).second) {
      errors << "column " << NameOnErrors(heading) << " stands twice\n";
      return std::nullopt;
    }
    columns.push_back(std::move(column));
  }
  return columns;
}

std::string TableHeader(const TablePlan& plan) {
  std::string line;
  if (plan.jsonLines) return line;
  if (plan.manner.byteOrderMark) line += "\xEF\xBB\xBF";
  bool first = true;
  const auto add = [&](std::string_view name) {
    if (!first) line += plan.manner.separator;
    first = false;
    AppendCell(name, plan.manner, line);
  };
  for (const std::size_t i : plan.kept) add(plan.columns[i].heading);
  for (const ResultColumn* column : plan.results) add(column->name);
  for (const char* name : kOptimised) {
    if (plan.optimise) add(name);
  }
  return line + LineEnd(plan.manner);
}

bool TableReader::Fill() {
  if (ended_) return false;
  buffer_.erase(0, at_);
  at_ = 0;
  const std::size_t had = buffer_.size();
  buffer_.resize(had + kReadAtOnce);
  in_.read(buffer_.data() + had, static_cast<std::streamsize>(kReadAtOnce));
  const auto got = static_cast<std::size_t>(in_.gcount());
  buffer_.resize(had + got);
  ended_ = got < kReadAtOnce;
  return got > 0;
}

std::string_view TableReader::Ahead(std::size_t bytes) {
  while (buffer_.size() - at_ < bytes && Fill()) {
  }
  return std::string_view(buffer_).substr(at_, bytes);
}

void TableReader::Skip(std::size_t bytes) {
  at_ += bytes;
  offset_ += bytes;
}

bool TableReader::Seek(std::size_t first, std::size_t place) {
  if (place <= first || place <= offset_) return false;
  // A quoted cell that is open at the place has its quote within the longest row before it.
  const std::size_t looked = std::min(kLongestRow, place - first);
  std::string before(looked, '\0');
  in_.clear();
  const auto here = in_.tellg();
  in_.seekg(static_cast<std::streamoff>(place - looked));
  in_.read(before.data(), static_cast<std::streamsize>(looked));
  const std::size_t end = before.rfind('\n');
  const bool known = in_.gcount() == static_cast<std::streamsize>(looked) &&
                     before.find('"') == std::string::npos && end != std::string::npos;
  in_.clear();
  if (!known) {
    in_.seekg(here);
    return false;
  }
  offset_ = place - looked + end + 1;
  in_.seekg(static_cast<std::streamoff>(offset_));
  buffer_.clear();
  at_ = 0;
  rows_ = 0;
  ended_ = false;
  return true;
}

std::string_view TableReader::Row(char separator) {
  while (true) {
    const std::string_view rest = std::string_view(buffer_).substr(at_);
    if (rest.empty()) {
      if (!Fill()) return {};
      continue;
    }
    std::size_t length = RowLength(rest, separator, ended_);
    if (length == std::string_view::npos && rest.size() < kLongestRow && Fill()) continue;
    if (length == std::string_view::npos || length > kLongestRow) {
      length = std::min(rest.find('\n'), kLongestRow - 1) + 1;
      length = std::min(length, rest.size());
    }
    Skip(length);
    ++rows_;
    return rest.substr(0, length);
  }
}

RowDesigner::RowDesigner(const TablePlan& plan, const MemberInputs& inputs, const Design& started)
    : plan_(plan), inputs_(inputs), started_(started), work_(started) {}

void RowDesigner::DesignRows(TablePiece& piece) {
  std::string_view rows = piece.rows;
  for (std::size_t number = piece.first; !rows.empty(); ++number) {
    const std::size_t length = RowLength(rows, plan_.manner.separator, true);
    SplitRow(rows.substr(0, length), plan_.manner.separator, cells_, store_);
    rows.remove_prefix(length);
    const bool empty = std::all_of(cells_.begin(), cells_.end(),
                                   [](std::string_view cell) { return cell.empty(); });
    if (!empty) DesignRow(number, piece);
  }
}

std::size_t RowDesigner::InWhole(std::size_t number) const {
  return number + (plan_.rowsBefore ? plan_.rowsBefore() : 0);
}

std::string RowDesigner::RowName(std::size_t number) const {
  return "row " + std::to_string(InWhole(number));
}

std::optional<std::string> RowDesigner::SetInputs(std::size_t number) {
  for (std::size_t i = plan_.columns.size(); i < cells_.size(); ++i) {
    if (!cells_[i].empty()) return RowName(number) + ": more cells than headings";
  }
  set_.clear();
  for (std::size_t i = 0; i < std::min(cells_.size(), plan_.columns.size()); ++i) {
    if (plan_.columns[i].input) set_.push_back({&*plan_.columns[i].input, cells_[i]});
  }
  input_ = plan_.base;
  const auto refused = inputs_.Put(set_, plan_.manner.decimalComma, input_);
  return refused ? std::optional(refused->InColumn(InWhole(number))) : std::nullopt;
}

void RowDesigner::DesignRow(std::size_t number, TablePiece& piece) {
  const std::size_t begun = piece.lines.size();
  std::optional<std::string> refused;
  try {
    refused = SetInputs(number);
    if (!refused) {
      DesignMember(started_, input_, work_, Lines::None);
      verdict_ = VerdictOf(work_);
    }
    AppendRow(refused ? &*refused : nullptr, piece.lines);
  } catch (const std::exception& other) {
    // Whatever a row comes upon is its own.
    piece.lines.resize(begun);
    refused = RowName(number) + ": " + other.what();
    AppendRow(&*refused, piece.lines);
  }
  Count(refused ? &*refused : nullptr, piece.counts);
}

void RowDesigner::Count(const std::string* refused, TableCounts& counts) const {
  if (refused != nullptr) {
    ++counts.refused;
    return;
  }
  switch (verdict_.standing) {
    case Standing::Passes:
      ++counts.pass;
      break;
    case Standing::Fails:
      ++counts.fail;
      break;
    case Standing::NotChecked:
      ++counts.notChecked;
      break;
    case Standing::Stopped:
      ++counts.stopped;
      break;
  }
}

void RowDesigner::AppendRow(const std::string* refused, std::string& lines) {
  LineOfCells line(plan_, lines);
  for (const std::size_t i : plan_.kept) {
    line.Text(plan_.columns[i].heading, i < cells_.size() ? cells_[i] : std::string_view());
  }
  for (const ResultColumn* column : plan_.results) {
    const std::string_view name = column->name;
    if (refused != nullptr) {
      const bool text = column->text != nullptr;
      const std::string cell = name == "standing" ? "refused" : name == "notes" ? *refused : "";
      text ? line.Text(name, cell) : line.Number(name, cell);
    } else if (column->text != nullptr) {
      line.Text(name, CellOf(*column, {work_, verdict_}));
    } else {
      line.Number(name, CellOf(*column, {work_, verdict_}));
    }
  }
  if (plan_.optimise) {
    std::optional<LightestSize> lightest;
    try {
      if (refused == nullptr && verdict_.standing != Standing::Stopped) {
        lightest = FindLightestSize(work_);
      }
    } catch (const ArithmeticFault&) {
      // The member itself went through; no size is told.
    }
    line.Text(kOptimised[0], lightest ? lightest->section : "");
    line.Number(kOptimised[1], lightest ? Digits(lightest->weight) : "");
    line.Number(kOptimised[2], lightest ? Digits(lightest->IR) : "");
  }
  line.End();
}

}  // namespace korvane
