// SPDX-License-Identifier: GPL-3.0-or-later
// Inputs and failures in the engineer's words.
#pragma once

#include <string>

#include "front/form_table.h"

namespace korvane {

struct Design;

/// A control with what was put in: "gm1 = 0.00", "Profiles, IPE", "Web stiffeners".
std::string InputWords(const Session& session, const Control& control);

/// Where the last calculation stopped, and the input that it hangs on where there is one:
/// "it stopped in the material values: the material factor is 0".
std::string FailureWords(const Design& design);

}  // namespace korvane
