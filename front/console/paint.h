// SPDX-License-Identifier: GPL-3.0-or-later
// The commands report and draw: pages and pictures of one project.
#pragma once

namespace CLI {
class App;
}

namespace korvane {

/// Adds the commands report and draw; each leaves its exit status in status.
void AddPaintCommands(CLI::App& app, int& status);

}  // namespace korvane
