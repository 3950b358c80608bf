// SPDX-License-Identifier: GPL-3.0-or-later
// The typed dimensions of the section families, in the order of their forms.
#pragma once

#include "front/form_table.h"
#include "sections/profile_table.h"

namespace korvane {

/// Appends the input fields of a family; none for a family that is only chosen from a list.
void AddTypedFields(const Family& family, Form& form);

}  // namespace korvane
