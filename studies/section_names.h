// SPDX-License-Identifier: GPL-3.0-or-later
// Sections by their names, in whatever spelling a table has them.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "core/project_state.h"
#include "sections/profile_table.h"

namespace korvane {

/// A size of a catalogue.
struct CatalogueSize {
  const Family* family = nullptr;
  const FamilyCatalogue* catalogue = nullptr;
  int row = 0;
  bool turned = false;  ///< a rectangular hollow section turned by 90 degrees
};

/// Whether a catalogue holds sections that can be turned.
bool CanBeTurned(Cat catalogue);

/// Puts a size in force, as the family's form does.
void TakeSize(const CatalogueSize& size, ProjectState& st);

/// Whether a size is the section in force.
bool IsInForce(const CatalogueSize& size, const ProjectState& st);

/// All names of the catalogues of one library, read-only once made.
class SectionNames {
public:
  explicit SectionNames(const Catalogues& cat);

  /// Puts the named section in force: "HEA200", "ipe 300", "RHS 100*100*5", "UB 457x191x67", the
  /// typed families by their word and the dimensions of their name ("I 600x300x12x20"). Blanks,
  /// case and the sign between the dimensions don't matter. False, and nothing changed, for a name
  /// that no section has.
  bool Take(std::string_view name, ProjectState& st) const;

private:
  bool TakeTyped(const std::string& key, ProjectState& st) const;
  /// By the word ahead of a catalogue's name, which only families with typed dimensions have.
  std::unordered_map<std::string, CatalogueSize> sizes_;
  std::unordered_map<std::string, CatalogueSize> stiffeners_;
};

/// A name without blanks, in capitals, with "X" between the dimensions.
std::string SectionKey(std::string_view name);

}  // namespace korvane
