// SPDX-License-Identifier: GPL-3.0-or-later
#include <sys/ioctl.h>
#include <unistd.h>

#include "front/console/terminal.h"
#include "front/console/terminal_system.h"

namespace korvane {

StandardStreams::StandardStreams() = default;
StandardStreams::~StandardStreams() = default;

bool OutputIsTerminal() {
  return isatty(STDOUT_FILENO) == 1;
}

bool ErrorsAreTerminal() {
  return isatty(STDERR_FILENO) == 1;
}

std::size_t ColumnsOfErrors() {
  winsize size{};
  if (ioctl(STDERR_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0) return kUsualTerminal;
  return size.ws_col;
}

}  // namespace korvane
