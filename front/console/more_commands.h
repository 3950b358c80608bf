// SPDX-License-Identifier: GPL-3.0-or-later
// The console commands on many projects and on whole series, for the program's command table.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "core/calculation.h"

namespace CLI {
class App;
}

namespace korvane {

/// What the program gives its commands. Must outlive the parsing of the arguments.
struct ConsoleServices {
  /// The library of the data folder that the person named (empty: found by the program). Says on
  /// stderr what is missing and returns nullptr where there is none.
  std::function<std::shared_ptr<const Library>(const std::string& dataOption)> library;
  /// Exit status of the command that ran.
  int exitStatus = 0;
};

/// Adds the commands optimise and batch. Each one runs as a callback of the parsing and leaves
/// its status in services.
void AddBatchCommands(CLI::App& app, ConsoleServices& services);

}  // namespace korvane
