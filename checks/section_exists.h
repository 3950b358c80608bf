// SPDX-License-Identifier: GPL-3.0-or-later
// Whether the input gives a section that can exist, and which input a failure hangs on.
#pragma once

#include "core/project_state.h"
#include "sections/profile_table.h"

namespace korvane {

/// An input with its value, in the engineer's words ("the web thickness tw"). Unset: nothing is
/// wrong.
struct WrongInput {
  const char* words = "";
  double value = 0;
  bool Set() const { return *words != '\0'; }
};

/// A part of the section without size, parts that overlap, or a section value that isn't above 0.
WrongInput ImpossiblePart(const ProjectState& st, const SectionRecord& rec);

/// The input that is 0 or less where the formulas divide by it or take its root.
WrongInput InputOfFailure(const ProjectState& st);

/// The series of a British section is none of the program's, so that no section is loaded.
bool UnknownSeries(const Family& family, const ProjectState& st);

}  // namespace korvane
