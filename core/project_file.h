// SPDX-License-Identifier: GPL-3.0-or-later
// Project files (*.kvn): one field a line, the meaning of a value is its position.
#pragma once

#include <string>
#include <string_view>

#include "core/files.h"
#include "core/project_state.h"

namespace korvane {

/// What came of reading a file.
enum class FileResult {
  Ok,
  NotFound,    ///< no such file
  TooShort,    ///< past the end of the file: not compatible with this version
  OtherError,  ///< anything else (an int beyond 16 bits, a read error)
};

/// Reads a project from the text of a file: versions above 260 in the current sequence, others
/// in the old one. Fields read before a failure stay in the state.
FileResult ReadProject(std::string_view bytes, ProjectState& st);

/// The text of a project file, version 390, lines ended by CR LF, UTF-8, decimal point always
/// ".". Loads or end forces by AnalysisMode, then the payload of the chosen family.
std::string ProjectText(const ProjectState& st);

/// ReadProject on the file's content.
FileResult OpenProject(const std::string& path, ProjectState& st);

/// Writes the project as WriteFile does: a failure leaves the old file as it was.
WriteResult SaveProject(const std::string& path, const ProjectState& st,
                        const WriteRules& rules = {});

}  // namespace korvane
