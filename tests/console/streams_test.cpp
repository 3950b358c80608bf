// SPDX-License-Identifier: GPL-3.0-or-later
// Standard input and output in the place of files, signals to a batch, and words that were
// mistyped.
#include <gtest/gtest.h>
#include <signal.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "core/project_file.h"
#include "front/console/terminal.h"
#include "projects.h"
#include "run_program.h"

namespace korvane {
namespace {

const std::string kColumn = KORVANE_SOURCE_DIR "/examples/column-hea200.kvn";

TEST(Streams, ADashIsTheStandardInput) {
  const std::string wanted = RunProgram({"design", kColumn}).output;
  EXPECT_EQ(RunProgram({"design", "-"}, {}, "/", kColumn).output, wanted);
  const std::string rows = RunProgram({"batch", "-"}, {}, "/", kColumn).output;
  EXPECT_NE(rows.find("\n'-,HEA200,"), std::string::npos) << rows;
  const TempFolder folder;
  PutFile(folder / "list", kColumn + "\n");
  EXPECT_EQ(RunProgram({"batch", "--list", "-"}, {}, "/", folder / "list").output,
            RunProgram({"batch", kColumn}).output);
}

TEST(Drawing, EndForcesGiveNeitherLoadsNorDeflections) {
  const TempFolder folder;
  const std::string ends = folder / "ends.kvn";
  ProjectState st;
  ASSERT_EQ(OpenProject(kColumn, st), FileResult::Ok);
  st.AnalysisMode = 0;
  ASSERT_EQ(SaveProject(ends, st).why, "");
  for (const char* what : {"loads-z", "loads-y", "dz", "dy"}) {
    const ProgramRun run = RunProgram({"draw", ends, "--what", what, "-o", folder / "out.svg"});
    EXPECT_EQ(run.status, 2) << what;
    EXPECT_NE(run.errors.find("the project gives end forces - " + ends), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(folder / "out.svg"));
    EXPECT_EQ(RunProgram({"draw", kColumn, "--what", what, "-o", "-"}).status, 0) << what;
  }
}

TEST(Streams, ADashIsTheStandardOutput) {
  const TempFolder folder;
  EXPECT_EQ(RunProgram({"new", "-o", "-"}, {}, folder.Path()).output, RunProgram({"new"}).output);
  EXPECT_EQ(RunProgram({"batch", kColumn, "--csv", "-"}, {}, folder.Path()).output,
            RunProgram({"batch", kColumn}).output);
  const ProgramRun drawn = RunProgram({"draw", kColumn, "--what", "my", "-o", "-"});
  EXPECT_EQ(drawn.status, 0);
  EXPECT_EQ(drawn.output.find("<?xml"), 0U);
  EXPECT_EQ(drawn.output.substr(drawn.output.size() - 7), "</svg>\n");
  const ProgramRun best = RunProgram({"optimise", kColumn, "--families", "HEA", "-o", "-"});
  EXPECT_EQ(best.output.find("390\r\n"), 0U);
  EXPECT_NE(best.errors.find("HEA"), std::string::npos);
  EXPECT_EQ(folder.Count(), 0);
}

TEST(Streams, BothReportsAsPicturesAreTwoFiles) {
  const TempFolder folder;
  const ProgramRun run =
      RunProgram({"report", kColumn, "--kind", "both", "-o", "x.svg"}, {}, folder.Path());
  EXPECT_EQ(run.status, 0) << run.errors;
  EXPECT_EQ(run.output, "x-1.svg\nx-2.svg\n");
  EXPECT_EQ(folder.Count(), 2);
  EXPECT_NE(GetFile(folder / "x-1.svg").find("Section property:"), std::string::npos);
  EXPECT_NE(GetFile(folder / "x-2.svg").find("SECTION CONTROL"), std::string::npos);
  EXPECT_EQ(RunProgram({"report", kColumn, "--kind", "both", "-o", "-", "--format", "svg"}).status,
            2);
}

TEST(Streams, AFileWithoutAVersionIsTold) {
  const TempFolder folder;
  std::string old = "Projects of 1998\r\n";
  for (int i = 0; i < 200; ++i) old += "1\r\n";
  PutFile(folder / "a.kvn", old);
  EXPECT_EQ(RunProgram({"design", folder / "a.kvn"})
                .errors.find("first line holds no version number; read as an old project\n"),
            0U);
  EXPECT_EQ(RunProgram({"design", kColumn}).errors, "");
}

TEST(Streams, AMistypedCommandNamesTheNearest) {
  const ProgramRun run = RunProgram({"desing", kColumn});
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(run.output, "");
  EXPECT_EQ(run.errors, "unknown command desing (nearest: design)\n");
}

TEST(Streams, AScriptMayBeginWithAByteOrderMark) {
  const TempFolder folder;
  PutFile(folder / "script", "\xEF\xBB\xBFshow il\n");
  const ProgramRun run = RunProgram({"session", folder / "script"});
  EXPECT_EQ(run.status, 0) << run.errors;
  EXPECT_NE(run.output.find("il = 5.000"), std::string::npos) << run.output;
}

TEST(Streams, ControlCharactersAreShownOnATerminalAlone) {
  EXPECT_EQ(Visible("a\x1B[2Jb\x7F"), "a\\x1B[2Jb\\x7F");
  EXPECT_EQ(Visible("k\xC3\xB8 \xC2\x9B"), "k\xC3\xB8 \xC2\\x9B");
  const std::string name = "/no/\x1B[31m.kvn";
  EXPECT_EQ(RunProgram({"design", name}).errors, "can't find file - " + name + "\n");
  EXPECT_NE(RunOnTerminal({"design", name}, false).output.find("/no/\\x1B[31m.kvn"),
            std::string::npos);
}

TEST(Streams, AScriptShowsControlCharactersOnATerminalAlone) {
  const TempFolder folder;
  PutFile(folder / "script", "enter iproj a\x1B[2Jb\nshow iproj\nsave /no/\x1B[31m.kvn\nno\x07\n");
  const ProgramRun piped = RunProgram({"session", folder / "script"});
  EXPECT_NE(piped.output.find("iproj = a\x1B[2Jb\n"), std::string::npos) << piped.output;
  const std::string shown = RunOnTerminal({"session", folder / "script"}, false).output;
  EXPECT_EQ(shown.find('\x1B'), std::string::npos) << shown;
  EXPECT_EQ(shown.find('\x07'), std::string::npos) << shown;
  EXPECT_NE(shown.find("iproj = a\\x1B[2Jb\r\n"), std::string::npos) << shown;
  EXPECT_NE(shown.find("/no/\\x1B[31m.kvn"), std::string::npos) << shown;
  EXPECT_NE(shown.find("no action no\\x07"), std::string::npos) << shown;
}

TEST(Streams, NoProgressBarOnADumbTerminal) {
  const TempFolder folder;
  PutProjects(folder, 64);
  ::setenv("TERM", "dumb", 1);
  const ProgramRun run = RunOnTerminal({"batch", folder.Path(), "--csv", folder / "t.csv"}, false);
  ::unsetenv("TERM");
  EXPECT_EQ(run.output.find("\x1B[K"), std::string::npos) << run.output;
  EXPECT_NE(run.output.find("64 projects: "), std::string::npos);
}

// --- Signals ------------------------------------------------------------------------------------

/// Waits until the process catches the signal itself.
void WaitUntilCaught(pid_t process, int signal) {
  const std::string status = "/proc/" + std::to_string(process) + "/status";
  for (int tries = 0; tries < 20000; ++tries) {
    const std::string text = GetFile(status);
    const std::size_t at = text.find("SigCgt:");
    if (at == std::string::npos) return;
    if ((std::stoull(text.substr(at + 7), nullptr, 16) >> (signal - 1) & 1U) != 0) return;
    ::usleep(1000);
  }
}

/// Starts a batch of many rows, sends it the signal when its table begins, or, where that goes to
/// a file, when the program catches the signal, and takes the rest.
ProgramRun StopBatch(int signal, const std::string& list, const std::string& errors,
                     const std::string& csv = "-") {
  std::array<int, 2> ends{};
  if (::pipe(ends.data()) != 0) throw std::runtime_error("no pipe");
  const pid_t child = ::fork();
  if (child == 0) {
    ::dup2(ends[1], STDOUT_FILENO);
    ::close(ends[0]);
    ::close(ends[1]);
    if (std::freopen(errors.c_str(), "w", stderr) == nullptr) ::_exit(126);
    ::execl(KORVANE_CLI, KORVANE_CLI, "batch", "--list", list.c_str(), "--csv", csv.c_str(),
            nullptr);
    ::_exit(127);
  }
  ::close(ends[1]);
  if (csv != "-") {
    WaitUntilCaught(child, signal);
    ::kill(child, signal);
  }
  ProgramRun run;
  std::array<char, 4096> bytes;
  for (ssize_t n; (n = ::read(ends[0], bytes.data(), bytes.size())) > 0;) {
    if (run.output.empty()) ::kill(child, signal);
    run.output.append(bytes.data(), static_cast<std::size_t>(n));
  }
  ::close(ends[0]);
  int waited = 0;
  ::waitpid(child, &waited, 0);
  run.status = ExitStatusOf(waited);
  run.errors = GetFile(errors);
  return run;
}

TEST(Signals, EndABatchWithWholeRowsAWordAndTheirStatus) {
  const TempFolder folder;
  constexpr long many = 60000;
  std::string names;
  for (long i = 0; i < many; ++i) names += kColumn + "\n";
  PutFile(folder / "list", names);
  for (const auto& [signal, name] : {std::pair(SIGINT, "SIGINT"), std::pair(SIGTERM, "SIGTERM")}) {
    const ProgramRun run = StopBatch(signal, folder / "list", folder / "errors");
    EXPECT_EQ(run.status, 128 + signal);
    const long lines = std::count(run.output.begin(), run.output.end(), '\n');
    EXPECT_GT(lines, 1);
    EXPECT_LT(lines, many);
    EXPECT_EQ(run.output.back(), '\n');
    const std::size_t last = run.output.rfind('\n', run.output.size() - 2) + 1;
    const std::size_t first = run.output.find('\n') + 1;
    EXPECT_EQ(run.output.substr(last), run.output.substr(first, run.output.size() - last));
    EXPECT_EQ(run.errors, std::string("stopped by ") + name + " after " +
                              std::to_string(lines - 1) +
                              " of 60000 projects; the table ends "
                              "there\n");
  }
}

TEST(Signals, LeaveTheOldTableAndNothingBeside) {
  const TempFolder folder;
  std::string names;
  for (int i = 0; i < 60000; ++i) names += kColumn + "\n";
  PutFile(folder / "list", names);
  PutFile(folder / "t.csv", "old");
  const ProgramRun run = StopBatch(SIGTERM, folder / "list", folder / "errors", folder / "t.csv");
  EXPECT_EQ(run.status, 128 + SIGTERM);
  EXPECT_EQ(GetFile(folder / "t.csv"), "old");
  EXPECT_EQ(folder.Count(), 3);
  EXPECT_NE(run.errors.find("; the table is not written\n"), std::string::npos) << run.errors;
}

TEST(Threads, FewerThanAskedForDesignTheSame) {
  const TempFolder folder;
  PutProjects(folder, 200);
  const std::string wanted = RunProgram({"batch", folder.Path(), "--jobs", "1"}).output;
  // Stacks of 8 MB each: the limit ends the threads long before the two hundredth.
  const std::string command = "ulimit -v 400000; " + Quoted(KORVANE_CLI) + " batch " +
                              Quoted(folder.Path()) + " --jobs 200 >" + Quoted(folder / "table") +
                              " 2>/dev/null";
  EXPECT_LE(ExitStatusOf(std::system(command.c_str())), 3);
  EXPECT_EQ(GetFile(folder / "table"), wanted);
}

}  // namespace
}  // namespace korvane
