// SPDX-License-Identifier: GPL-3.0-or-later
// The completion of the console's words in bash, made from the program's own table of commands.
#pragma once

#include <string>

namespace CLI {
class App;
}

namespace korvane {

/// The script that bash reads: commands, options and values of the table, series and families of
/// theirs, files by their extension. Hidden commands are left out. Throws std::logic_error for an
/// option or an argument whose kind of value isn't known here.
std::string BashCompletion(const CLI::App& app);

/// Adds the hidden command completion, which prints the script. app must outlive the parsing.
void AddCompletionCommand(CLI::App& app);

}  // namespace korvane
