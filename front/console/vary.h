// SPDX-License-Identifier: GPL-3.0-or-later
// The grid of the command vary: its axes, and its picture.
#pragma once

#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "front/console/studies.h"
#include "front/console/table_rows.h"

namespace korvane {

/// A varied input with its values as they are written.
struct VaryAxis {
  TableColumn column;
  std::vector<std::string> values;
};

/// "L=2:12:0.25", "q1=5,10,20", "section=family:HEA"; nothing, after a word on errors, for anything
/// else.
std::optional<VaryAxis> ParseAxis(const std::string& set, const ProjectState& st,
                                  const Library& library, std::ostream& errors);

/// Draws one or two varied inputs into options.plot: curves, a family of them, or a map. Returns
/// the exit status.
int PlotGrid(std::shared_ptr<const Library> library, const Design& started,
             const ProjectState& base, std::vector<VaryAxis> axes, const VaryOptions& options,
             std::ostream& output, std::ostream& errors);

}  // namespace korvane
