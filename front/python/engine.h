// SPDX-License-Identifier: GPL-3.0-or-later
// What the module for Python holds: the data read once, a member's input, a finished design.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "core/calculation.h"
#include "studies/member_inputs.h"

namespace korvane::python {

/// What all designs of a process share, read-only.
struct Engine {
  explicit Engine(const std::string& dataFolder);
  std::shared_ptr<const Library> library;
  Design started;      ///< the start sequence and the first calculation
  ProjectState fresh;  ///< input of a new project
  MemberInputs inputs;
};

/// Reads the data of the folder; to be called once, before anything else. Throws DataFolderError
/// where it lacks catalogues.
void StartEngine(const std::string& dataFolder);
const Engine& TheEngine();

/// A member's input with the file that it came from.
struct Member {
  ProjectState st;
  std::string file;  ///< empty for a new project

  Member() : st(TheEngine().fresh) {}
};

/// A calculation that stopped.
struct StoppedCalculation {
  std::string step;
  std::string what;  ///< "SectionControl: division by zero"
};

/// A finished design: results for one input, which change no more.
struct Outcome {
  explicit Outcome(const ProjectState& member);
  /// The design with its lines, which are composed when they are first asked for.
  const Design& WithLines();

  ProjectState input;
  Design design;
  Verdict verdict;
  std::optional<StoppedCalculation> stopped;

private:
  bool composed_ = false;
};

/// An input as a calculation leaves it: a yield stress of a listed grade, curves chosen by the
/// program. The input itself where the calculation stops.
ProjectState WorkedOut(const ProjectState& member);

/// "IPE300 L=6.5 m"
std::string MemberWords(const ProjectState& st);
/// "passes 0.84 (lateral buckling)", "stopped in SectionControl"
std::string OutcomeWords(const Outcome& outcome);

}  // namespace korvane::python
