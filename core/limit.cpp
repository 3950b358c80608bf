// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/limit.h"

#include <charconv>
#include <cmath>

namespace korvane {

namespace {

/// Six digits at most: bounds that are worked out carry the noise of single precision.
std::string Plain(double value) {
  char digits[32];
  const auto end =
      std::to_chars(digits, digits + sizeof digits, value, std::chars_format::general, 6);
  return std::string(digits, end.ptr);
}

}  // namespace

std::string RangeWords(const Limit& limit) {
  const bool low = std::isfinite(limit.low);
  const bool high = std::isfinite(limit.high);
  if (!low && !high) return "any";
  if (low && high && limit.lowIncluded && limit.highIncluded) {
    return Plain(limit.low) + " to " + Plain(limit.high);
  }
  std::string words;
  if (low) words = (limit.lowIncluded ? "at least " : "more than ") + Plain(limit.low);
  if (low && high) words += ", ";
  if (high) words += (limit.highIncluded ? "at most " : "less than ") + Plain(limit.high);
  return words;
}

bool HasLimit(const Limit& limit) {
  return limit.follows != nullptr || std::isfinite(limit.low) || std::isfinite(limit.high);
}

}  // namespace korvane
