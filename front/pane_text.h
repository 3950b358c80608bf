// SPDX-License-Identifier: GPL-3.0-or-later
// The drawing panes of the main window: which diagram each one shows, and its text for scripts
// and screen readers.
#pragma once

#include <optional>
#include <string>

#include "core/calculation.h"
#include "presentation/grafik.h"

namespace korvane {

/// The diagram of a pane in the analysis mode in force; none for a pane that shows nothing then.
std::optional<DiagramKind> DiagramOfPane(const ProjectState& st, const std::string& pane);

/// What diagrams read of a design.
DiagramData DiagramDataOf(const Design& design);

/// The texts in the pane's diagram, joined by " | "; empty for a pane that shows nothing.
std::string PaneText(const Design& design, const std::string& pane);

/// The value of a pane's diagram under the pointer, at the station nearest to the relative
/// position (0 to 1); empty where there are no stations.
std::string ValueUnderPointer(const Design& design, const std::string& pane, double relative);

/// Whether the diagrams of a plane give their room to those of the other one: nothing acts there,
/// or there alone. Without any load the plane of My stays.
bool PlaneFolds(const Design& design, Plane plane);

}  // namespace korvane
