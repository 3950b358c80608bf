// SPDX-License-Identifier: GPL-3.0-or-later
// Which values of the section record a family shows, with their formats and units.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/project_state.h"
#include "sections/section_record.h"

namespace korvane {

/// A value of the record as it is shown.
struct ShownValue {
  std::string_view name;  ///< symbol of the standard ("Wely")
  double value;
  std::string text;  ///< formatted
  std::string_view unit;
};
using ShownValues = std::vector<ShownValue>;

/// Dimensions, weight and surface of the family in force.
ShownValues Dimensions(const ProjectState& st, const SectionRecord& rec);
/// Section constants.
ShownValues Properties(const ProjectState& st, const SectionRecord& rec);
/// Capacities as shown: those of the nominal forces, shear for the unstiffened web.
ShownValues Capacities(const ProjectState& st, const SectionRecord& rec);
/// Class as shown: "1/1 N/My", "1 (N)", or by side; empty where a family shows none.
std::string ClassText(const ProjectState& st, const SectionRecord& rec);

}  // namespace korvane
