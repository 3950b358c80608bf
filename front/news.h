// SPDX-License-Identifier: GPL-3.0-or-later
// What an action did beside what was asked for, in words for the status bar.
#pragma once

#include <string>

namespace korvane {

struct ProjectState;
class Session;

/// What the state has lost between two moments, and why: "HSQ carries no N: 450 kN removed". Empty
/// where nothing went. byFamily: the family in force can't carry it; else it lay off the member.
std::string RemovedWords(const Session& session, const ProjectState& before,
                         const ProjectState& after, bool byFamily);

}  // namespace korvane
