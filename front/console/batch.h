// SPDX-License-Identifier: GPL-3.0-or-later
// Designs of many project files in parallel threads, a line of CSV each.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

#include "core/calculation.h"

namespace korvane {

/// What a person asks of a batch.
struct BatchOptions {
  std::vector<std::string> inputs;  ///< files, and folders with their subfolders
  std::string list;                 ///< file with more inputs, one a line; "-": standard input
  std::string csv;                  ///< file of the table; empty or "-": the standard output
  int jobs = 0;                     ///< threads; 0: as many as the machine has cores
  bool optimise = false;            ///< also the lightest passing size of the project's series
  int shard = 1;                    ///< every shards-th file from this one on
  int shards = 1;
};

/// How the projects came out.
struct BatchCounts {
  std::size_t pass = 0, fail = 0, fault = 0, unread = 0, notChecked = 0;
  /// Adds those of another run.
  void Add(const BatchCounts& other);
  std::size_t All() const { return pass + fail + notChecked + fault + unread; }
  /// 2 when a file couldn't be read, else 3 when a calculation stopped, else 1 when a member
  /// fails or isn't checked, else 0.
  int ExitStatus() const;
};

/// The project files of the inputs: a file as it is named, whether it exists or not; of a folder
/// all *.kvn below it, in the order of their names' bytes. A folder that can't be read is listed
/// itself, as a project that can't be read.
std::vector<std::string> FindProjects(const std::vector<std::string>& inputs);

/// Every shards-th file from number shard (from 1) on.
std::vector<std::string> TakeShard(const std::vector<std::string>& files, int shard, int shards);

/// "I/N" with 1 <= I <= N into the options; false for anything else.
bool ParseShard(const std::string& text, BatchOptions& options);

/// The line with the names of the columns.
std::string BatchHeader(bool optimise);

/// What a run of projects has come to.
struct BatchPiece {
  std::string lines;    ///< of the table
  std::string remarks;  ///< what the engineer should know of the files
  BatchCounts counts;
};

/// Designs one project in work, which starts as a copy of started, and appends it to the piece.
void AppendBatchLine(const std::string& path, const Design& started, Design& work, bool optimise,
                     BatchPiece& piece);

/// Designs the files in options.jobs threads, or as many as the system gives, and writes their
/// lines in the order of the files, whatever the threads do. header: the names of the columns come
/// first. A signal to stop ends it behind a whole line: the counts then miss the rest.
BatchCounts DesignFiles(std::shared_ptr<const Library> library,
                        const std::vector<std::string>& files, const BatchOptions& options,
                        bool header, std::ostream& table, std::ostream& progress,
                        bool showProgress);

/// The command: finds the projects, designs them, writes the table (a file in place of the old
/// one when all is done; only the first shard has the line of names) and a line of totals on
/// errors. Stopped by a signal it leaves the old file. Returns the exit status.
int RunBatch(std::shared_ptr<const Library> library, const BatchOptions& options,
             std::ostream& output, std::ostream& errors, bool showProgress);

}  // namespace korvane
