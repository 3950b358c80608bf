// SPDX-License-Identifier: GPL-3.0-or-later
// A design as one JSON object, read by other tools: names and groups are fixed.
#pragma once

#include <optional>
#include <string>

#include "core/calculation.h"

namespace korvane {

/// The whole design. fault is the name of the step where the calculation stopped, if it did, or
/// why the results are not those of the state.
/// Numbers in full precision; values that a calculation did not write are 0 or "".
std::string DesignJson(const Design& design, const std::optional<std::string>& fault);

}  // namespace korvane
