// SPDX-License-Identifier: GPL-3.0-or-later
// Everything that the program writes, on a disk that fails: the old file or the new one, and a word
// and a status that tell which.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "projects.h"
#include "run_program.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;

const std::string kColumn = KORVANE_SOURCE_DIR "/examples/column-hea200.kvn";

/// Runs a line of shell; both outputs through a pipe, which no limit on files reaches.
ProgramRun RunShell(const std::string& line) {
  ProgramRun run;
  std::FILE* pipe = ::popen(("(" + line + ") 2>&1").c_str(), "r");
  std::array<char, 4096> bytes;
  for (std::size_t n; (n = std::fread(bytes.data(), 1, bytes.size(), pipe)) > 0;) {
    run.output.append(bytes.data(), n);
  }
  run.status = ExitStatusOf(::pclose(pipe));
  return run;
}

struct Writer {
  std::string command;  ///< without the name of the file
  std::string name;
};

std::vector<Writer> Writers() {
  std::vector<Writer> writers{
      {"new -o", "new.kvn"},
      {"optimise " + kColumn + " --json -o", "best.kvn"},
      {"batch " + kColumn + " --csv", "table.csv"},
      {"report " + kColumn + " -o", "report.svg"},
      {"draw " + kColumn + " --what my -o", "my.svg"},
  };
  if (fs::exists(fs::path(KORVANE_CLI).parent_path() / "korvane_paint.so")) {
    writers.push_back({"report " + kColumn + " --kind both -o", "report.pdf"});
    writers.push_back({"draw " + kColumn + " --what my -o", "my.png"});
  }
  return writers;
}

std::string CommandOf(const Writer& writer, const std::string& path) {
  return Quoted(KORVANE_CLI) + " " + writer.command + " " + Quoted(path);
}

TEST(Disk, AFullOneLeavesTheOldFileAndIsTold) {
  for (const Writer& writer : Writers()) {
    const TempFolder folder;
    const std::string path = folder / writer.name;
    const ProgramRun fresh = RunShell("ulimit -f 0; " + CommandOf(writer, path));
    EXPECT_EQ(fresh.status, 2) << writer.command;
    EXPECT_EQ(folder.Count(), 0) << writer.command;
    PutFile(path, "old");
    const ProgramRun run = RunShell("ulimit -f 0; " + CommandOf(writer, path));
    EXPECT_EQ(run.status, 2) << writer.command << run.output;
    EXPECT_NE(run.output.find("can't save file - " + path + "\nThe disk is full"),
              std::string::npos)
        << run.output;
    EXPECT_EQ(GetFile(path), "old") << writer.command;
    EXPECT_EQ(folder.Count(), 1) << writer.command;
    // The same command on a disk with room.
    EXPECT_LE(RunShell(CommandOf(writer, path)).status, 1) << writer.command;
    EXPECT_GT(GetFile(path).size(), 100U) << writer.command;
  }
}

struct Refused {
  std::string path;
  WriteStatus status;
};

TEST(Disk, WhatMayNotBeWrittenIsRefusedWithItsReason) {
  for (const Writer& writer : Writers()) {
    const TempFolder folder;
    PutFile(folder / ("locked-" + writer.name), "old");
    ASSERT_EQ(::chmod((folder / ("locked-" + writer.name)).c_str(), 0444), 0);
    fs::create_symlink("/dev/full", folder / ("device-" + writer.name));
    fs::create_symlink(kColumn, folder / ("input-" + writer.name));
    fs::create_directory(folder / ("folder-" + writer.name));
    std::vector<Refused> table{
        {folder / ("locked-" + writer.name), WriteStatus::ReadOnly},
        {folder / ("device-" + writer.name), WriteStatus::NotAFile},
        {folder / ("folder-" + writer.name), WriteStatus::IsFolder},
        {folder / ("gone/" + writer.name), WriteStatus::NoFolder},
    };
    const bool reads = writer.command.find(kColumn) != std::string::npos;
    if (reads) table.push_back({folder / ("input-" + writer.name), WriteStatus::IsInput});
    const std::string column = GetFile(kColumn);
    for (const Refused& c : table) {
      const ProgramRun run = RunShell(CommandOf(writer, c.path));
      EXPECT_EQ(run.status, 2) << writer.command << c.path;
      EXPECT_NE(run.output.find("can't save file - " + c.path + "\n" + ResultOf(c.status).why),
                std::string::npos)
          << run.output;
    }
    EXPECT_EQ(GetFile(kColumn), column);
    EXPECT_EQ(GetFile(folder / ("locked-" + writer.name)), "old");
    EXPECT_EQ(folder.Count(), 4);
  }
}

TEST(Disk, LinksStayLinks) {
  for (const Writer& writer : Writers()) {
    const TempFolder folder;
    PutFile(folder / "real", "old");
    fs::create_symlink("real", folder / ("soft-" + writer.name));
    fs::create_hard_link(folder / "real", folder / ("hard-" + writer.name));
    for (const char* kind : {"soft-", "hard-"}) {
      PutFile(folder / "real", "old");
      EXPECT_LE(RunShell(CommandOf(writer, folder / (kind + writer.name))).status, 1);
      EXPECT_GT(GetFile(folder / "real").size(), 100U) << writer.command;
    }
    EXPECT_TRUE(fs::is_symlink(folder / ("soft-" + writer.name)));
    EXPECT_EQ(fs::hard_link_count(folder / "real"), 2U);
    EXPECT_EQ(folder.Count(), 3);
  }
}

// --- Every call of the system -------------------------------------------------------------------

bool StraceWorks() {
  return RunShell("strace -o /dev/null -e inject=fsync:error=EIO:when=1 true").status == 0;
}

// A part of a table, or of a script, would pass for the whole.
TEST(Disk, AnInputThatFailsHalfWayIsTold) {
  if (!StraceWorks()) GTEST_SKIP() << "strace is not installed or may not trace";
  const TempFolder folder;
  std::string rows = "L\n", lines;
  for (int i = 0; i < 100000; ++i) rows += "3\n";
  for (int i = 0; i < 2000; ++i) lines += "enter il 3\n";
  PutFile(folder / "rows.csv", rows);
  PutFile(folder / "script", lines + "save " + (folder / "saved.kvn") + "\n");
  const auto failing = [&](const std::string& name, const std::string& command) {
    return RunShell("strace -o /dev/null -P " + Quoted(folder / name) +
                    " -e inject=read:error=EIO:when=2 " + Quoted(KORVANE_CLI) + command);
  };
  const std::string table = Quoted(folder / "rows.csv"), out = folder / "out.csv";
  for (const std::string& input : {" " + table, " - <" + table}) {
    const ProgramRun run = failing("rows.csv", " table --columns MaxIR -o " + Quoted(out) + input);
    EXPECT_EQ(run.status, 2) << run.output;
    EXPECT_NE(run.output.find("can't read file - "), std::string::npos) << run.output;
    EXPECT_FALSE(fs::exists(out));
  }
  const ProgramRun run = failing("script", " session " + Quoted(folder / "script"));
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(run.output, "can't read the script to its end\n");
  EXPECT_FALSE(fs::exists(folder / "saved.kvn"));
}

/// A call of the system: its name and its number among those of the name.
struct Call {
  std::string name;
  int number;
};

/// The calls from the first that names the path on.
std::vector<Call> CallsOn(const std::string& log, const std::string& path) {
  std::vector<Call> calls;
  std::map<std::string, int> numbers;
  bool begun = false;
  std::istringstream lines(log);
  for (std::string line; std::getline(lines, line);) {
    const std::size_t end = line.find('(');
    if (end == std::string::npos || line.find_first_of("+-") == 0) continue;
    const std::string name = line.substr(0, end);
    const int number = ++numbers[name];
    begun = begun || line.find("\"" + path) != std::string::npos;
    if (begun && name != "exit_group" && name != "munmap" && name != "brk" && name != "mmap") {
      calls.push_back({name, number});
    }
  }
  return calls;
}

class FaultAtEachCall : public testing::Test {
protected:
  void SetUp() override {
    if (!StraceWorks()) GTEST_SKIP() << "strace is not installed or may not trace";
    ASSERT_EQ(RunShell(Save()).status, 0);
    new_ = GetFile(path_);
    PutOld();
    RunShell("strace -o " + Quoted(folder_ / "log") + " " + Save());
    calls_ = CallsOn(GetFile(folder_ / "log"), path_);
    fs::remove(folder_ / "log");
    ASSERT_GT(calls_.size(), 10U);
  }
  std::string Save() const { return Quoted(KORVANE_CLI) + " new -o " + Quoted(path_); }
  virtual void PutOld() { PutFile(path_, kOld); }
  ProgramRun SaveWith(const Call& call, const std::string& fault) {
    PutOld();
    return RunShell("strace -o /dev/null -e inject=" + call.name + ":" + fault +
                    ":when=" + std::to_string(call.number) + " " + Save());
  }
  /// Copies beside the file that hold the old content.
  int CopiesOfTheOld() const {
    int copies = 0;
    for (const auto& entry : fs::directory_iterator(folder_.Path())) {
      const bool copy = entry.path().string().find(".before.") != std::string::npos;
      if (copy && GetFile(entry.path().string()) == kOld) ++copies;
    }
    return copies;
  }
  void ClearFolder() {
    for (const auto& entry : fs::directory_iterator(folder_.Path())) fs::remove(entry.path());
  }

  const std::string kOld = std::string(700, 'o');
  TempFolder folder_;
  std::string path_ = folder_ / "file.kvn";
  std::string new_;
  std::vector<Call> calls_;
};

class FaultAtEachCallOnALink : public FaultAtEachCall {
protected:
  void PutOld() override {
    FaultAtEachCall::PutOld();
    fs::remove(folder_ / "link");
    fs::create_hard_link(path_, folder_ / "link");
  }
};

TEST_F(FaultAtEachCall, AnErrorLeavesTheOldFileOrTheNewAndTheStatusTellsWhich) {
  int failed = 0;
  for (const char* error : {"EIO", "ENOSPC"}) {
    for (const Call& call : calls_) {
      const ProgramRun run = SaveWith(call, std::string("error=") + error);
      const std::string place = call.name + " " + std::to_string(call.number) + " " + error;
      EXPECT_EQ(GetFile(path_), run.status == 0 ? new_ : kOld) << place << "\n" << run.output;
      if (run.status == 0) continue;
      ++failed;
      EXPECT_EQ(run.status, 2) << place;
      EXPECT_EQ(run.output.find("can't save file - " + path_ + "\n"), 0U) << place << run.output;
    }
  }
  // At least the creating, writing, flushing, closing and renaming, with both errors.
  EXPECT_GE(failed, 10);
}

TEST_F(FaultAtEachCall, AKillLeavesTheOldFileOrTheNew) {
  int olds = 0;
  int news = 0;
  for (const Call& call : calls_) {
    SaveWith(call, "signal=KILL");
    const std::string now = GetFile(path_);
    EXPECT_TRUE(now == kOld || now == new_) << call.name << " " << call.number;
    (now == kOld ? olds : news) += 1;
  }
  EXPECT_GT(olds, 5);
  EXPECT_GT(news, 0);
}

TEST_F(FaultAtEachCallOnALink, AnErrorLeavesTheOldFileOrTheNewAndTheStatusTellsWhich) {
  for (const char* error : {"EIO", "ENOSPC"}) {
    for (const Call& call : calls_) {
      const ProgramRun run = SaveWith(call, std::string("error=") + error);
      EXPECT_EQ(GetFile(folder_ / "link"), run.status == 0 ? new_ : kOld)
          << call.name << " " << call.number << " " << error << "\n"
          << run.output;
    }
  }
}

TEST_F(FaultAtEachCallOnALink, AKillLeavesTheOldFileOrTheNewOrACopyOfTheOld) {
  int copied = 0;
  for (const Call& call : calls_) {
    ClearFolder();
    SaveWith(call, "signal=KILL");
    const std::string now = GetFile(folder_ / "link");
    const bool whole = now == kOld || now == new_;
    if (!whole) ++copied;
    EXPECT_TRUE(whole || CopiesOfTheOld() == 1) << call.name << " " << call.number;
  }
  EXPECT_GT(copied, 0);
}

}  // namespace
}  // namespace korvane
