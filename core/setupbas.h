// SPDX-License-Identifier: GPL-3.0-or-later
// The list of steel grades, the engineer's defaults, and the material step.
#pragma once

#include <string>
#include <vector>

#include "core/files.h"
#include "core/project_state.h"

namespace korvane {

/// One steel grade with its yield stresses in MPa.
struct Material {
  std::string name;
  float32 fykThin;   ///< thickness up to 40 mm
  float32 fykThick;  ///< thickness above 40 mm
};

/// The grades of NSmat.dat, at most 31; the last one is the free entry, whose numbers are not
/// used.
struct MaterialTable {
  std::vector<Material> rows;
  /// Row number of the free entry; -1 for an empty list.
  int Last() const { return static_cast<int>(rows.size()) - 1; }
};

/// Reads NSmat.dat in the folder: name in quotes and two stresses, separated by commas or line
/// ends. Errors are ignored: what was read before one counts.
MaterialTable ReadMaterials(const std::string& folder);

/// The path of default_ns.dat in a folder.
std::string DefaultsPath(const std::string& folder);

/// Reads default_ns.dat in the folder into the state; errors are ignored, fields not read keep
/// their value.
void ReadDefaults(const std::string& folder, ProjectState& st);

/// Writes the fourteen lines of default_ns.dat as WriteFile does.
WriteResult WriteDefaults(const std::string& folder, const ProjectState& st);

/// The material step. For a row before the free entry fyk follows from the governing thickness
/// tmax (mm): up to and with 40 mm the first stress. Always writes fd = fyk/gammam1 and
/// epsilon = sqrt(235/fyk). Throws ArithmeticFault for gammam1 or fyk of 0 and for a negative
/// row index.
void SetMaterial(const MaterialTable& materials, double tmax, ProjectState& st);

}  // namespace korvane
