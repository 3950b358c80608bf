// SPDX-License-Identifier: GPL-3.0-or-later
// What the headings of a table of members mean, its rows in pieces, and a row's design.
#pragma once

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "front/console/csv.h"
#include "front/console/table.h"
#include "studies/member_inputs.h"
#include "studies/result_columns.h"

namespace korvane {

/// What is done with a column of the table.
struct TableColumn {
  std::string heading;
  std::optional<MemberInput> input;  ///< none: handed through
};

/// The table as its headings and the options lay it down.
struct TablePlan {
  CsvManner manner;
  std::vector<TableColumn> columns;
  std::vector<std::size_t> kept;  ///< columns handed through
  std::vector<const ResultColumn*> results;
  bool optimise = false;
  bool jsonLines = false;
  ProjectState base;
  /// Rows in front of the first that is numbered 1, asked for where a row's number is told; none
  /// where the table is read from its beginning. Any thread may ask.
  std::function<std::size_t()> rowsBefore;
};

/// The columns of the headings; nothing, after a word on errors, where one is unknown or stands
/// twice. keep: headings to hand through.
std::optional<std::vector<TableColumn>> ReadHeadings(const std::vector<std::string_view>& headings,
                                                     const std::vector<std::string>& keep,
                                                     const ProjectState& base,
                                                     std::ostream& errors);

/// The words of a list, separated by commas.
std::vector<std::string> Words(const std::string& list);

/// The results named, all of an empty list; nothing, after a word on errors, where one is unknown.
std::optional<std::vector<const ResultColumn*>> ResultsOf(const std::string& list,
                                                          std::ostream& errors);

/// The line of names.
std::string TableHeader(const TablePlan& plan);

/// Rows that a thread takes at once.
struct TablePiece {
  std::string rows;
  std::size_t first = 0;  ///< number of the first row, behind those of TablePlan::rowsBefore
  std::size_t end = 0;    ///< bytes of the table read behind them
  std::string lines;      ///< their results
  TableCounts counts;
};

/// Reads a table row by row, with a bounded part of it in memory.
class TableReader {
public:
  explicit TableReader(std::istream& in) : in_(in) {}
  /// What stands at the place reached, up to so many bytes.
  std::string_view Ahead(std::size_t bytes);
  /// The next row with its line end; empty behind the last. Holds until the next call.
  std::string_view Row(char separator);
  /// Bytes of the rows taken, and how many rows.
  std::size_t Offset() const { return offset_; }
  std::size_t Rows() const { return rows_; }
  void Skip(std::size_t bytes);
  /// Goes to the beginning of the row that the byte ahead of the place belongs to, without reading
  /// what stands far ahead of it, and counts rows anew from there. False, and nothing changed,
  /// where the longest row before the place doesn't tell: it holds a quote or no line end. first:
  /// where the rows begin.
  bool Seek(std::size_t first, std::size_t place);

private:
  bool Fill();
  std::istream& in_;
  std::string buffer_;
  std::size_t at_ = 0;
  std::size_t offset_ = 0;
  std::size_t rows_ = 0;
  bool ended_ = false;
};

/// Designs rows, each as if it were alone.
class RowDesigner {
public:
  RowDesigner(const TablePlan& plan, const MemberInputs& inputs, const Design& started);
  void DesignRows(TablePiece& piece);

private:
  void DesignRow(std::size_t number, TablePiece& piece);
  std::optional<std::string> SetInputs(std::size_t number);
  /// The number of a row in the whole table, and "row 17" of it.
  std::size_t InWhole(std::size_t number) const;
  std::string RowName(std::size_t number) const;
  void AppendRow(const std::string* refused, std::string& lines);
  void Count(const std::string* refused, TableCounts& counts) const;
  const TablePlan& plan_;
  const MemberInputs& inputs_;
  const Design& started_;
  Design work_;
  Verdict verdict_;
  ProjectState input_;
  std::vector<std::string_view> cells_;
  std::vector<InputCell> set_;
  std::string store_;
};

}  // namespace korvane
