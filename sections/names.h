// SPDX-License-Identifier: GPL-3.0-or-later
// Names of sections: entries of the size lists and titles.
#pragma once

#include <string>
#include <vector>

#include "core/project_state.h"
#include "sections/readprofiles.h"

namespace korvane {

/// The catalogue that a family lists, by ProfileType and, for 101 and 103, the chosen
/// sub-family. Families of typed dimensions have none.
struct SizeList {
  bool hasCatalogue = false;
  Cat catalogue = Cat::HEA;
  int row = 0;  ///< the chosen row
};
/// The list of the family in force with its chosen row.
SizeList SizesOf(const ProjectState& st);

/// One entry of a size list, numbers in general form with their leading blank ("HEA 100",
/// "RHS  100x 100x 5", "UB  1016x 305x 487").
std::string ListEntry(Cat catalogue, const Catalogues& cat, int row);

/// The dimensions in the section's name without its word ("200", "600x300x12x20").
std::string NameDimensions(const ProjectState& st, const Catalogues& cat);

/// Number of entries in a list.
int ListLength(Cat catalogue);

/// A number without the blank that stands for its sign.
std::string Plain(double value);

}  // namespace korvane
