// SPDX-License-Identifier: GPL-3.0-or-later
// One member from its input to its results, as a person who opens its project gets them: the way
// of every row of a batch, a table and a study.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "core/calculation.h"

namespace korvane {

/// What came of a member's calculation.
struct MemberRun {
  std::optional<std::string> fault;  ///< step of the arithmetic failure
  std::string what;                  ///< its cause
};

/// The start sequence and the first calculation of the new project, whose failure is passed over.
Design StartedDesign(std::shared_ptr<const Library> library);

/// The input of a new project.
ProjectState NewMember(std::shared_ptr<const Library> library);

/// Whether the result lines are wanted.
enum class Lines { Composed, None };

/// Opens the state of a started design and calculates as opening and the focus of the window do.
/// After a failure the design holds what this member's calculation reached and nothing else. The
/// results depend on the state and the library alone.
MemberRun OpenMember(Design& design, Lines lines = Lines::Composed);

/// The same for an input: work becomes what opening it in a copy of started gives.
MemberRun DesignMember(const Design& started, const ProjectState& input, Design& work,
                       Lines lines = Lines::Composed);

}  // namespace korvane
