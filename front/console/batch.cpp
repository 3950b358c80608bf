// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/console/batch.h"

#include <algorithm>
#include <atomic>
#include <charconv>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <thread>
#include <utility>

#include "core/text.h"
#include "front/console/exit_status.h"
#include "front/console/run_design.h"
#include "front/console/terminal.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;

/// Files that a thread takes at once: many enough that taking is nothing, few enough that no
/// thread is left with a long rest.
constexpr std::size_t kMostPerChunk = 64;

/// A run of files with its lines, once they are done.
struct Chunk {
  std::size_t first = 0, last = 0;  ///< files first..last-1
  std::string lines;
  BatchCounts counts;
  std::atomic<bool> done = false;
};

bool IsProjectName(const fs::path& path) {
  std::string extension = path.extension().string();
  for (char& c : extension)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return extension == ".kvn";
}

/// A folder that can't be walked to its end gives what was found before.
std::vector<std::string> ProjectsBelow(const fs::path& folder) {
  std::vector<std::string> found;
  std::error_code failed;
  fs::recursive_directory_iterator it(folder, fs::directory_options::skip_permission_denied,
                                      failed);
  for (const fs::recursive_directory_iterator end; !failed && it != end; it.increment(failed)) {
    std::error_code unknown;
    if (IsProjectName(it->path()) && !it->is_directory(unknown))
      found.push_back(it->path().string());
  }
  std::sort(found.begin(), found.end());
  return found;
}

int Threads(const BatchOptions& options, std::size_t files) {
  const unsigned cores = std::max(1U, std::thread::hardware_concurrency());
  const auto wanted = static_cast<std::size_t>(options.jobs > 0 ? options.jobs : int(cores));
  return static_cast<int>(std::clamp<std::size_t>(wanted, 1, std::max<std::size_t>(files, 1)));
}

std::vector<Chunk> Chunks(std::size_t files, int threads) {
  const std::size_t share = files / (static_cast<std::size_t>(threads) * 8);
  const std::size_t size = std::clamp<std::size_t>(share, 1, kMostPerChunk);
  std::vector<Chunk> chunks((files + size - 1) / size);
  for (std::size_t i = 0; i < chunks.size(); ++i) {
    chunks[i].first = i * size;
    chunks[i].last = std::min(files, (i + 1) * size);
  }
  return chunks;
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
    if (!fs::is_directory(input, unknown)) {
      files.push_back(input);
      continue;
    }
    for (std::string& file : ProjectsBelow(input)) files.push_back(std::move(file));
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
  const int threads = Threads(options, files.size());
  std::vector<Chunk> chunks = Chunks(files.size(), threads);
  std::atomic<std::size_t> next = 0;
  const auto work = [&] {
    Design design = started;
    for (std::size_t i = next++; i < chunks.size(); i = next++) {
      Chunk& chunk = chunks[i];
      for (std::size_t f = chunk.first; f < chunk.last; ++f)
        AppendBatchLine(files[f], started, design, options.optimise, chunk.lines, chunk.counts);
      chunk.done = true;
      chunk.done.notify_one();
    }
  };
  std::vector<std::jthread> pool;
  pool.reserve(static_cast<std::size_t>(threads));
  for (int i = 0; i < threads; ++i) pool.emplace_back(work);

  BatchCounts counts;
  ProgressBar bar(progress, showProgress, "projects");
  if (header) table << BatchHeader(options.optimise);
  for (Chunk& chunk : chunks) {
    chunk.done.wait(false);
    table << chunk.lines;
    std::string().swap(chunk.lines);
    counts.Add(chunk.counts);
    bar.Update(chunk.last, files.size());
  }
  bar.Finish();
  return counts;
}

int RunBatch(std::shared_ptr<const Library> library, const BatchOptions& options,
             std::ostream& output, std::ostream& errors, bool showProgress) {
  const std::vector<std::string> all = FindProjects(options.inputs);
  if (all.empty()) {
    errors << "no project (*.kvn) found\n";
    return kBadInput;
  }
  const std::vector<std::string> files = TakeShard(all, options.shard, options.shards);
  const bool header = options.shard == 1;
  BatchCounts counts;
  if (options.csv.empty()) {
    counts = DesignFiles(std::move(library), files, options, header, output, errors, showProgress);
    output.flush();
  } else {
    // Beside the target and renamed over it at the end: a batch that is stopped leaves the old
    // table, and a folder that can't be written to shows before the work begins.
    const std::string beside = options.csv + ".part";
    std::ofstream table(beside, std::ios::binary | std::ios::trunc);
    if (table)
      counts = DesignFiles(std::move(library), files, options, header, table, errors, showProgress);
    table.close();
    if (!table || std::rename(beside.c_str(), options.csv.c_str()) != 0) {
      std::remove(beside.c_str());
      errors << "can't save file - " << ToUtf8(options.csv) << '\n';
      return kBadInput;
    }
  }
  errors << Totals(counts);
  return counts.ExitStatus();
}

}  // namespace korvane
