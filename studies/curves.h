// SPDX-License-Identifier: GPL-3.0-or-later
// What becomes of a member's ratios while one of its inputs is varied.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "core/calculation.h"
#include "studies/member_inputs.h"
#include "studies/solve.h"

namespace korvane {

/// The checks that have a curve of their own, in the order of the result lines.
inline constexpr std::array kCurveChecks{Governing::Section,   Governing::Vz,       Governing::Vy,
                                         Governing::Lateral,   Governing::Ny,       Governing::Nz,
                                         Governing::CombinedY, Governing::CombinedZ};
using CheckRatios = std::array<double, kCurveChecks.size()>;

/// A value of the input with the ratios of its design.
struct CurveSample {
  double x = 0;
  bool there = false;           ///< the value is accepted and the calculation went through
  CheckRatios ratios{};         ///< in the order of kCurveChecks
  double IR = 0;                ///< the greatest of all checks
  double overZ = 0, overY = 0;  ///< deflection over its limit, 0 without one
};

struct Curves {
  MemberInput input;
  std::vector<CurveSample> samples;                    ///< in the order of the values
  double limit = 1;                                    ///< the allowable ratio
  std::array<std::string, kCurveChecks.size()> names;  ///< of the checks, in words
};

/// So many values from low to high, both ends; whole ones alone for an input that takes no others.
std::vector<double> EvenValues(const MemberInput& input, double low, double high, int count);

/// Designs the member with each value.
Curves SampleCurves(const Design& started, const ProjectState& member, const MemberInputs& inputs,
                    const MemberInput& input, const std::vector<double>& values);

/// A check in the words of a person; those of a trial that no check stopped as they are.
std::string WordsOf(const Trial& trial);

/// The ends of what passes as sentences: "L up to 6.84 m: lateral torsional buckling", "nothing
/// passes from 0 to 12 m", "everything passes from 0 to 12 m".
std::vector<std::string> WordsOf(const Question& question, const Answer& answer);
/// The words of one end.
std::string WordsOfEnd(const Question& question, const Border& border, bool above);

/// Where is drawn unless told: around the present value, within the limit of the input.
void DrawnRange(const ProjectState& member, Question& question);

}  // namespace korvane
