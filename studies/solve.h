// SPDX-License-Identifier: GPL-3.0-or-later
// How far one input can go while the member passes.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/calculation.h"
#include "studies/member_inputs.h"

namespace korvane {

/// What is asked.
struct Question {
  MemberInput input;
  double present = 0;        ///< its value now; 1 for a factor on the loads
  double low = 0, high = 0;  ///< where is looked
  bool sls = false;          ///< the deflection has to hold too
};

/// A value with its design.
struct Trial {
  double value = 0;
  bool passes = false;
  double IR = 0;
  Governing governing = Governing::None;  ///< of check, where it names one
  std::string check;  ///< governing check; "deflection", or a word on what is refused or stopped
};

/// An end of an interval: the last value that passes, to six digits, and the next one.
struct Border {
  Trial passing, failing;
};

/// A run of values that pass; an end that is not there reaches to the end of the range.
struct PassingInterval {
  double low = 0, high = 0;
  std::optional<Border> below, above;
};

struct Answer {
  Trial present;
  std::vector<PassingInterval> intervals;  ///< rising
  /// The one that holds the present value, or nullptr.
  const PassingInterval* OfPresent(double present) const;
};

/// The member with a value of the input, designed. work is written over.
Trial TryValue(const Design& started, const ProjectState& member, const MemberInputs& inputs,
               const Question& question, double value, Design& work);

/// The present value of an input.
double PresentValue(const ProjectState& member, const MemberInput& input);

/// Whether an input takes whole numbers alone.
bool TakesWholeNumbers(const MemberInput& input);

/// Where is looked unless told: within the limit of the input, from zero to ten times the present
/// value (a hundred where that is zero).
void DefaultRange(const ProjectState& member, Question& question);

/// Looks over the range and narrows each change of standing to six digits, by designing both
/// sides.
Answer Solve(const Design& started, const ProjectState& member, const MemberInputs& inputs,
             const Question& question);

}  // namespace korvane
