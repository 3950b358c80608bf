// SPDX-License-Identifier: GPL-3.0-or-later
// The limit of an input as data: what is accepted, and the words that tell it.
#pragma once

#include <limits>
#include <string>

#include "core/project_state.h"

namespace korvane {

/// The accepted values of an input and the literal message for the others. Without bounds and
/// without a rule everything is accepted.
struct Limit {
  double low = -std::numeric_limits<double>::infinity();
  bool lowIncluded = true;  ///< low itself is accepted
  double high = std::numeric_limits<double>::infinity();
  bool highIncluded = true;  ///< high itself is accepted
  const char* message = "";  ///< literal, blanks and misspellings included
  /// Of a limit that follows another input: the limit as it then stands, or null.
  Limit (*follows)(const ProjectState&) = nullptr;
};

/// low <= v.
constexpr Limit AtLeast(double low, const char* message) {
  return {.low = low, .message = message};
}

/// low < v.
constexpr Limit Above(double low, const char* message) {
  return {.low = low, .lowIncluded = false, .message = message};
}

/// low <= v <= high.
constexpr Limit Between(double low, double high, const char* message) {
  return {.low = low, .high = high, .message = message};
}

/// The limit that holds for this state.
inline Limit InForce(const Limit& limit, const ProjectState& st) {
  return limit.follows == nullptr ? limit : limit.follows(st);
}

/// Whether the value is accepted by a limit in force.
constexpr bool Accepts(const Limit& limit, double v) {
  return (limit.lowIncluded ? v >= limit.low : v > limit.low) &&
         (limit.highIncluded ? v <= limit.high : v < limit.high);
}

/// The accepted values in words: "0.3 to 2", "at least 0.05", "more than 0", "any"; of a limit in
/// force.
std::string RangeWords(const Limit& limit);

/// Whether there are values that are refused.
bool HasLimit(const Limit& limit);

}  // namespace korvane
