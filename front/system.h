// SPDX-License-Identifier: GPL-3.0-or-later
// What the programs ask of the operating system beside files: their words, their place, the
// environment and the clock. One unit for each system.
#pragma once

#include <ctime>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace korvane {

/// The words of the command line in UTF-8, the program's own name first.
std::vector<std::string> CommandWords(int argc, const char* const* argv);

/// A variable of the environment in UTF-8; nothing where it is not set, or empty.
std::optional<std::string> Environment(const char* name);

/// The folder of the running program, empty when the system doesn't tell.
std::filesystem::path ProgramFolder();

/// A moment on the clock of the place.
std::tm LocalTime(std::time_t moment);

/// What the system should leave to the program: a limit on the size of files, or a drive without
/// its disk, is told as any other failure of a writing.
void LeaveFailuresToUs();

}  // namespace korvane
