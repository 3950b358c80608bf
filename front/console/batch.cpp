// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/console/batch.h"

#include <algorithm>
#include <charconv>
#include <csignal>
#include <filesystem>
#include <optional>
#include <ostream>
#include <sstream>
#include <system_error>
#include <utility>

#include "core/file_path.h"
#include "front/console/exit_status.h"
#include "front/console/files_of_commands.h"
#include "front/console/run_design.h"
#include "front/console/stop_signal.h"
#include "front/console/terminal.h"
#include "studies/in_order.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;

/// Files that a thread takes at once: many enough that taking is nothing, few enough that no
/// thread is left with a long rest.
constexpr std::size_t kMostPerChunk = 64;

/// A run of files with its lines, once they are done.
struct Chunk : BatchPiece {
  std::size_t first = 0, last = 0;  ///< files first..last-1
};

/// Designs the files of a chunk, up to the one that a signal leaves out.
void DesignChunk(const std::vector<std::string>& files, const Design& started, bool optimise,
                 Design& work, Chunk& chunk) {
  for (std::size_t f = chunk.first; f < chunk.last && StopSignal::Received() == 0; ++f)
    AppendBatchLine(files[f], started, work, optimise, chunk);
}

bool IsProjectName(const fs::path& path) {
  std::string extension = FileName(path.extension());
  for (char& c : extension)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return extension == ".kvn";
}

void AddProjectsBelow(const fs::path& folder, std::vector<std::string>& found) {
  std::error_code failed;
  fs::directory_iterator it(folder, failed);
  for (const fs::directory_iterator end; !failed && it != end; it.increment(failed)) {
    std::error_code unknown;
    if (it->is_directory(unknown)) {
      // A link to a folder may lead back up.
      if (!it->is_symlink(unknown)) AddProjectsBelow(it->path(), found);
    } else if (IsProjectName(it->path())) {
      found.push_back(FileName(it->path()));
    }
  }
  if (failed) found.push_back(FileName(folder));
}

std::vector<std::string> ProjectsBelow(const fs::path& folder) {
  std::vector<std::string> found;
  AddProjectsBelow(folder, found);
  std::sort(found.begin(), found.end());
  return found;
}

/// Files of a chunk.
std::size_t ChunkSize(std::size_t files, int threads) {
  return std::clamp<std::size_t>(files / (static_cast<std::size_t>(threads) * 8), 1, kMostPerChunk);
}

std::string Totals(const BatchCounts& counts) {
  return std::to_string(counts.All()) + " projects: " + std::to_string(counts.pass) + " pass, " +
         std::to_string(counts.fail) + " fail, " + std::to_string(counts.notChecked) +
         " not checked, " + std::to_string(counts.fault) + " arithmetic failures, " +
         std::to_string(counts.unread) + " unreadable\n";
}

}  // namespace

void BatchCounts::Add(const BatchCounts& other) {
  pass += other.pass;
  fail += other.fail;
  notChecked += other.notChecked;
  fault += other.fault;
  unread += other.unread;
}

int BatchCounts::ExitStatus() const {
  if (unread > 0) return kBadInput;
  if (fault > 0) return kArithmeticFailure;
  return fail + notChecked > 0 ? kCheckFails : kAllPass;
}

std::vector<std::string> FindProjects(const std::vector<std::string>& inputs) {
  std::vector<std::string> files;
  for (const std::string& input : inputs) {
    std::error_code unknown;
    if (!fs::is_directory(FilePath(input), unknown)) {
      files.push_back(input);
      continue;
    }
    for (std::string& file : ProjectsBelow(FilePath(input))) files.push_back(std::move(file));
  }
  return files;
}

std::vector<std::string> TakeShard(const std::vector<std::string>& files, int shard, int shards) {
  std::vector<std::string> taken;
  const auto step = static_cast<std::size_t>(shards);
  for (auto i = static_cast<std::size_t>(shard - 1); i < files.size(); i += step)
    taken.push_back(files[i]);
  return taken;
}

bool ParseShard(const std::string& text, BatchOptions& options) {
  int shard = 0;
  int shards = 0;
  const char* const end = text.data() + text.size();
  const auto first = std::from_chars(text.data(), end, shard);
  if (first.ec != std::errc() || first.ptr == end || *first.ptr != '/') return false;
  const auto second = std::from_chars(first.ptr + 1, end, shards);
  if (second.ec != std::errc() || second.ptr != end) return false;
  if (shard < 1 || shard > shards) return false;
  options.shard = shard;
  options.shards = shards;
  return true;
}

BatchCounts DesignFiles(std::shared_ptr<const Library> library,
                        const std::vector<std::string>& files, const BatchOptions& options,
                        bool header, std::ostream& table, std::ostream& progress,
                        bool showProgress) {
  const Design started = StartedDesign(std::move(library));
  const int threads = ThreadsFor(options.jobs, files.size());
  const std::size_t size = ChunkSize(files.size(), threads);
  BatchCounts counts;
  ProgressBar bar(progress, showProgress, "projects");
  if (header) table << BatchHeader(options.optimise);
  std::size_t next = 0;
  WorkInOrder<Chunk>(
      threads,
      [&](Chunk& chunk) {
        chunk = Chunk{{}, next, std::min(files.size(), next + size)};
        next = chunk.last;
        return chunk.first < files.size();
      },
      [&] {
        return [&, design = started](Chunk& chunk) mutable {
          DesignChunk(files, started, options.optimise, design, chunk);
        };
      },
      [&](const Chunk& chunk) {
        table << chunk.lines;
        if (!chunk.remarks.empty()) {
          bar.Finish();
          progress << chunk.remarks;
        }
        counts.Add(chunk.counts);
        bar.Update(chunk.last, files.size());
        // The lines end where the work did: what other threads did behind it is left out.
        return chunk.counts.All() == chunk.last - chunk.first;
      });
  bar.Finish();
  return counts;
}

namespace {

/// The inputs named and those of the list; nothing where the list can't be read.
std::optional<std::vector<std::string>> InputsOf(const BatchOptions& options) {
  std::vector<std::string> inputs = options.inputs;
  if (options.list.empty()) return inputs;
  const auto bytes = ReadInput(options.list);
  if (!bytes) return std::nullopt;
  for (std::string& name : NamesOfList(*bytes)) inputs.push_back(std::move(name));
  return inputs;
}

/// The status of a batch that a signal stopped, after a word.
int TellStopped(int signal, const BatchCounts& counts, std::size_t files, bool toFile,
                std::ostream& errors) {
  errors << "stopped by " << (signal == SIGINT ? "SIGINT" : "SIGTERM") << " after " << counts.All()
         << " of " << files << " projects"
         << (toFile ? "; the table is not written\n" : "; the table ends there\n");
  return kStoppedBySignal + signal;
}

}  // namespace

int RunBatch(std::shared_ptr<const Library> library, const BatchOptions& options,
             std::ostream& output, std::ostream& errors, bool showProgress) {
  const auto inputs = InputsOf(options);
  if (!inputs) {
    errors << "can't read file - " << NameOnErrors(options.list) << '\n';
    return kBadInput;
  }
  const std::vector<std::string> all = FindProjects(*inputs);
  if (all.empty()) {
    errors << "no project (*.kvn) found\n";
    return kBadInput;
  }
  const std::vector<std::string> files = TakeShard(all, options.shard, options.shards);
  const bool toFile = !options.csv.empty() && options.csv != kStandardStream;
  WriteRules rules{all};
  rules.inputs.push_back(options.list);
  // What can't be written shows before the work begins.
  if (const WriteResult refused = toFile ? CheckWritable(options.csv, rules) : WriteResult();
      !refused) {
    TellNotSaved(options.csv, refused, errors);
    return kBadInput;
  }
  const StopSignal stop;
  std::ostringstream made;
  const BatchCounts counts = DesignFiles(std::move(library), files, options, options.shard == 1,
                                         toFile ? made : output, errors, showProgress);
  output.flush();
  if (const int signal = StopSignal::Received(); signal != 0 && counts.All() < files.size())
    return TellStopped(signal, counts, files.size(), toFile, errors);
  if (toFile) {
    const int failed = SaveOutput(options.csv, made.view(), rules, output, errors);
    if (failed != kAllPass) return failed;
  }
  errors << Totals(counts);
  return counts.ExitStatus();
}

}  // namespace korvane
