// SPDX-License-Identifier: GPL-3.0-or-later
// What a system tells of its terminal beside terminal.h.
#pragma once

#include <cstddef>

namespace korvane {

/// Columns of a terminal that doesn't tell them.
inline constexpr std::size_t kUsualTerminal = 80;

/// Columns of the terminal behind the standard error output.
std::size_t ColumnsOfErrors();

}  // namespace korvane
