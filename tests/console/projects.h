// SPDX-License-Identifier: GPL-3.0-or-later
// Project files for the tests of the console's commands.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "../core/temp_folder.h"
#include "core/calculation.h"
#include "core/project_file.h"
#include "sections/profile_table.h"
#include "tests/support/source_library.h"

namespace korvane {

/// Writes a new project with the test's changes.
inline void PutProject(const std::string& path,
                       const std::function<void(ProjectState&)>& change = {}) {
  Design design(SourceLibrary());
  StartDesign(design);
  if (change) change(design.st);
  PutFile(path, ProjectText(design.st));
}

/// count (up to 1,000) projects p000.kvn, p001.kvn, ... of all families, with lengths and loads of
/// their own: some pass and some fail.
inline void PutProjects(const TempFolder& folder, int count) {
  const auto families = AllFamilies();
  for (int i = 0; i < count; ++i) {
    const std::string number = std::to_string(1000 + i).substr(1);
    PutProject(folder / ("p" + number + ".kvn"), [&](ProjectState& st) {
      st.ProfileType = families[static_cast<std::size_t>(i) % families.size()].code;
      st.L = 2.0 + 0.13 * (i % 50);
      st.q1 = 2.0 + i % 37;
      st.NP = 10.0 * (i % 23);
      st.SupportType = i % 6;
    });
  }
}

}  // namespace korvane
