// SPDX-License-Identifier: GPL-3.0-or-later
// Lets a long command end in order when it is interrupted.
#pragma once

#include <array>
#include <csignal>

namespace korvane {

/// While one stands, SIGINT and SIGTERM are noted rather than obeyed; a second one of the same
/// kind ends the program at once. What was ignored before stays ignored.
class StopSignal {
public:
  StopSignal();
  ~StopSignal();
  StopSignal(const StopSignal&) = delete;
  StopSignal& operator=(const StopSignal&) = delete;

  /// The signal that came, 0 as long as none has.
  static int Received();

private:
  std::array<struct sigaction, 2> before_{};
};

}  // namespace korvane
