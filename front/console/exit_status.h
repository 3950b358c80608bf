// SPDX-License-Identifier: GPL-3.0-or-later
// Exit statuses of the console program.
#pragma once

namespace korvane {

enum ExitStatus { kAllPass = 0, kCheckFails = 1, kBadInput = 2, kArithmeticFailure = 3 };

}  // namespace korvane
