// SPDX-License-Identifier: GPL-3.0-or-later
// The text of a drawing surface: what stands in a diagram, for scripts and screen readers.
#pragma once

#include <string>

#include "core/calculation.h"

namespace korvane {

/// Titles and figures of the pane, joined by " | "; empty for a pane that shows nothing.
std::string PaneText(const Design& design, const std::string& pane);

/// The value of a diagram under the pointer, at the station nearest to the relative position
/// (0 to 1): " x = 2.500 m  My = 37.5 kNm  Vz = 0.0"; empty for other panes.
std::string ValueUnderPointer(const Design& design, const std::string& pane, double relative);

}  // namespace korvane
