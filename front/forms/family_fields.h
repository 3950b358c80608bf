// SPDX-License-Identifier: GPL-3.0-or-later
// The typed dimensions of the section families with their limits.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "front/form_table.h"

namespace korvane {

/// Appends the input fields of a family; none for a family that is only chosen from a list.
void AddTypedFields(int code, std::vector<Control>& controls);

/// Name of the control that shows a value of the section: "ostwely" of Wely.
std::string ValueControlName(std::string_view symbol);

}  // namespace korvane
