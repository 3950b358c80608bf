// SPDX-License-Identifier: GPL-3.0-or-later
// Lets a long command end in order when it is interrupted.
#pragma once

#include <memory>

namespace korvane {

/// While one stands, SIGINT and SIGTERM are noted rather than obeyed; a second one of the same
/// kind ends the program at once. What was ignored before stays ignored. On Windows the keys
/// Ctrl+C and Ctrl+Break come as these two.
class StopSignal {
public:
  StopSignal();
  ~StopSignal();
  StopSignal(const StopSignal&) = delete;
  StopSignal& operator=(const StopSignal&) = delete;

  /// The signal that came, 0 as long as none has.
  static int Received();

private:
  struct Before;
  std::unique_ptr<Before> before_;
};

}  // namespace korvane
