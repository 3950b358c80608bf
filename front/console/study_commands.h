// SPDX-License-Identifier: GPL-3.0-or-later
// Binds the arguments of the commands sections, table, vary and solve to their routines.
#pragma once

namespace CLI {
class App;
}

namespace korvane {

/// Adds the commands; one that runs leaves its exit status in status.
void AddStudyCommands(CLI::App& app, int& status);

}  // namespace korvane
