// SPDX-License-Identifier: GPL-3.0-or-later
// Runs the built console program as a shell or a terminal does, and gives back what it wrote.
#pragma once

#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <stdexcept>
#include <string>
#include <vector>

#include "../core/temp_folder.h"
#include "places.h"

namespace korvane {

/// Exit status (-1 when a signal ended it) and outputs of one run.
struct ProgramRun {
  int status = -1;
  std::string output, errors;
};

inline int ExitStatusOf(int waited) {
  return WIFEXITED(waited) ? WEXITSTATUS(waited) : -1;
}

inline std::string Quoted(const std::string& word) {
  return "'" + word + "'";
}

/// Runs the program with its outputs in files. environment: "NAME=value" words for env; the
/// data folder's variable is unset unless named there. input: the file on its standard input.
inline ProgramRun RunProgram(const std::vector<std::string>& arguments,
                             const std::string& environment = {}, const std::string& folder = "/",
                             const std::string& input = "/dev/null") {
  const TempFolder outputs;
  std::string command =
      "cd " + Quoted(folder) + " && env -u KORVANE_DATA " + environment + " " + Quoted(KORVANE_CLI);
  for (const std::string& argument : arguments) command += " " + Quoted(argument);
  command +=
      " <" + Quoted(input) + " >" + Quoted(outputs / "out") + " 2>" + Quoted(outputs / "err");
  ProgramRun run;
  run.status = ExitStatusOf(std::system(command.c_str()));
  run.output = GetFile(outputs / "out");
  run.errors = GetFile(outputs / "err");
  return run;
}

/// Runs the program on a terminal of its own, with NO_COLOR set or not; all it wrote is in
/// output.
inline ProgramRun RunOnTerminal(std::vector<std::string> arguments, bool noColor) {
  int terminal = -1;
  const pid_t child = ::forkpty(&terminal, nullptr, nullptr, nullptr);
  if (child < 0) throw std::runtime_error("no terminal");
  if (child == 0) {
    noColor ? ::setenv("NO_COLOR", "1", 1) : ::unsetenv("NO_COLOR");
    ::unsetenv("KORVANE_DATA");
    std::string program = KORVANE_CLI;
    std::vector<char*> words{program.data()};
    for (std::string& argument : arguments) words.push_back(argument.data());
    words.push_back(nullptr);
    ::execv(program.c_str(), words.data());
    ::_exit(127);
  }
  ProgramRun run;
  char bytes[4096];
  for (ssize_t n; (n = ::read(terminal, bytes, sizeof bytes)) > 0;) {
    run.output.append(bytes, static_cast<std::size_t>(n));
  }
  ::close(terminal);
  int waited = 0;
  ::waitpid(child, &waited, 0);
  run.status = ExitStatusOf(waited);
  return run;
}

}  // namespace korvane
