// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that look at one member in many ways: all sections, a grid of values, how far one
// value can go.
#pragma once

#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/calculation.h"

namespace korvane {

/// What a person asks of all sections.
struct SectionsOptions {
  std::string file;
  std::string families = "all";               ///< words of series, separated by commas
  std::string sort = "weight";                ///< weight, height, width, surface, IR, deflection
  std::optional<double> maxHeight, maxWidth;  ///< mm
  bool passing = false;                       ///< those alone that pass
  bool sls = false;                           ///< the deflection has to hold too
  int top = 0;                                ///< so many rows; 0: all
  std::string csv;  ///< file; "-": the standard output; empty: a table of text
  bool json = false;
};

/// What a person asks of a grid.
struct VaryOptions {
  std::string file;
  std::vector<std::string> sets;  ///< "L=2:12:0.25", "q1=5,10,20", "section=family:HEA"
  std::string columns;            ///< results; empty: all
  std::string csv;                ///< file; empty or "-": the standard output
  std::string plot;               ///< picture; empty: none
  std::string y = "each";         ///< IR, deflection, each
  int jobs = 0;
};

/// What a person asks of a value.
struct SolveOptions {
  std::string file;
  std::string input;    ///< name of the input
  std::string between;  ///< "A:B"; empty: the default range
  bool sls = false;
  bool json = false;
};

/// What a person asks of the interaction diagrams.
struct InteractionOptions {
  std::string file;
  std::string csv;  ///< file; empty or "-": the standard output
  std::string plot;
  bool json = false;
  int directions = 72;
};

/// The commands. They open, design, print; messages on errors; return the exit status.
int RunSections(std::shared_ptr<const Library> library, const SectionsOptions& options,
                std::ostream& output, std::ostream& errors);
int RunVary(std::shared_ptr<const Library> library, const VaryOptions& options,
            std::ostream& output, std::ostream& errors, bool showProgress);
/// 0 where the present value passes, 1 where it doesn't.
int RunSolve(std::shared_ptr<const Library> library, const SolveOptions& options,
             std::ostream& output, std::ostream& errors);

/// 0 where the section control holds, 1 where it doesn't.
int RunInteraction(std::shared_ptr<const Library> library, const InteractionOptions& options,
                   std::ostream& output, std::ostream& errors);

/// Reads a member into a state of a started design; false after a word.
bool ReadMember(const std::string& file, ProjectState& st, std::ostream& errors);

}  // namespace korvane
