// SPDX-License-Identifier: GPL-3.0-or-later
// Tables of members: a row is a member, its cells are inputs by name; the results follow them.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

#include "core/calculation.h"

namespace korvane {

/// What a person asks of a table.
struct TableOptions {
  std::string members;  ///< file; "-": the standard input
  std::string base;     ///< project whose values the cells replace; empty: a new project
  std::string output;   ///< file; empty or "-": the standard output
  std::string columns;  ///< results by name, separated by commas; empty: all
  std::string keep;     ///< headings handed through beside id, name, mark, member, group, comment
  bool optimise = false;
  bool jsonLines = false;
  int jobs = 0;
  int shard = 1;
  int shards = 1;
};

/// How the rows came out.
struct TableCounts {
  std::size_t pass = 0, fail = 0, notChecked = 0, stopped = 0, refused = 0;
  /// Adds those of another run.
  void Add(const TableCounts& other);
  std::size_t All() const { return pass + fail + notChecked + stopped + refused; }
  /// 2 when a row was refused, else 3 when a calculation stopped, else 1 when a member fails or
  /// isn't checked, else 0.
  int ExitStatus() const;
};

/// "12 members: 10 pass, ..." with a line end.
std::string Totals(const TableCounts& counts, const char* what);

/// Designs the rows of the table that comes from in, in options.jobs threads, and writes them in
/// their order to out; members of a shard are those whose row begins in its share of the bytes
/// (size: those of the whole table). Messages on errors. Returns nothing where the headings, the
/// options or the base are no good.
int DesignTable(std::shared_ptr<const Library> library, const TableOptions& options,
                std::istream& in, std::size_t size, std::ostream& out, std::ostream& errors,
                bool showProgress, TableCounts& counts);

/// The command: reads, designs, writes, and a line of totals on errors. Returns the exit status.
int RunTable(std::shared_ptr<const Library> library, const TableOptions& options,
             std::ostream& output, std::ostream& errors, bool showProgress);

/// All inputs and results with their units and meaning, for --list-columns.
void ListColumns(const Library& library, std::ostream& output);

}  // namespace korvane
