// SPDX-License-Identifier: GPL-3.0-or-later
// A design for reading on a terminal.
#pragma once

#include <string>

#include "core/calculation.h"

namespace korvane {

/// Name, section with dimensions, properties and capacities, extreme forces, the long view of
/// both result blocks, deflections and, if asked for, natural frequencies. With colour the values
/// of checks are green or red.
std::string DesignText(const Design& design, bool colour);

/// The verdict alone, as at the foot of DesignText: for a calculation that stopped.
std::string VerdictText(const Design& design, bool colour);

}  // namespace korvane
