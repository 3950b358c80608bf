// SPDX-License-Identifier: GPL-3.0-or-later
// Exit statuses of the console program.
#pragma once

namespace korvane {

enum ExitStatus { kAllPass = 0, kCheckFails = 1, kBadInput = 2, kArithmeticFailure = 3 };

/// Added to the number of the signal that stopped a command, as shells do.
inline constexpr int kStoppedBySignal = 128;

}  // namespace korvane
