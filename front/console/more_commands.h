// SPDX-License-Identifier: GPL-3.0-or-later
// The console commands on many projects and on whole series, for the program's command table.
#pragma once

namespace CLI {
class App;
}

namespace korvane {

/// Adds the commands optimise and batch. Each one runs as a callback of the parsing and leaves
/// its exit status in status, which must outlive the parsing. A data folder that can't be used
/// comes out as DataFolderError.
void AddBatchCommands(CLI::App& app, int& status);

}  // namespace korvane
