// SPDX-License-Identifier: GPL-3.0-or-later
// The verdict in one line, as console and report print it.
#pragma once

#include "checks/results.h"
#include "checks/verdict.h"

namespace korvane {

/// Standing, greatest ratio with limit and the check that governs, and the standing of the
/// serviceability limit state where there is one.
ViewLine VerdictLine(const Verdict& verdict);

}  // namespace korvane
