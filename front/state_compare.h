// SPDX-License-Identifier: GPL-3.0-or-later
// Whether two input records are the same, or differ in nothing that results follow.
#pragma once

#include "core/project_state.h"

namespace korvane {

/// Every field is the same.
bool SameInputs(const ProjectState& a, const ProjectState& b);

/// Every field that results follow is the same.
bool SameResults(const ProjectState& a, const ProjectState& b);

}  // namespace korvane
