// SPDX-License-Identifier: GPL-3.0-or-later
// The part of the driver that keeps what a calculation does to the input.
#pragma once

#include "core/calculation.h"

namespace korvane {

/// Before a calculation: forgets what no longer holds, and notes the design forces of the loads
/// that this one will remove. Returns whether there are any.
bool BeginHistory(Design& design);

}  // namespace korvane
