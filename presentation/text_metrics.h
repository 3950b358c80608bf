// SPDX-License-Identifier: GPL-3.0-or-later
// Advance widths of Arial and of the fonts that have the same metrics.
#pragma once

#include <string_view>

namespace korvane {

/// Width of a UTF-8 text in em. Characters outside the table count as 0.556 em.
double ArialWidth(std::string_view text, bool bold);

inline constexpr double kArialAscent = 0.905;   ///< em, top of the line to the base line
inline constexpr double kArialDescent = 0.212;  ///< em, below the base line
inline constexpr double kArialLine = 1.149;     ///< em, height of one line with its leading

}  // namespace korvane
