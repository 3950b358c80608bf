// SPDX-License-Identifier: GPL-3.0-or-later
// One project from its file to its results, as a person with the window would get them.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/calculation.h"
#include "core/project_file.h"

namespace korvane {

/// The remark on a file that is read as an old project for want of a version.
inline constexpr const char* kNoVersion =
    "first line holds no version number; read as an old project";

/// What came of a project.
struct DesignRun {
  FileResult file = FileResult::Ok;
  std::optional<std::string> fault;  ///< step of the arithmetic failure
  std::string what;                  ///< its cause
  std::vector<std::string> remarks;  ///< what the engineer should know of the file
  std::string bytes;                 ///< the file as it was read
};

/// The start sequence and the first calculation of the new project, whose failure is passed over.
Design StartedDesign(std::shared_ptr<const Library> library);

/// Opens the project (the standard input for "-") in a started design and calculates twice, as
/// opening and the focus of the window do. The results depend on the file and the data alone.
DesignRun RunProject(Design& design, const std::string& path);

/// The exit status of a verdict: 0 only where the member passes, 3 where the calculation stopped.
int StatusOf(const Verdict& verdict);

/// The message of a file that could not be opened, empty when it could.
std::string FileMessage(FileResult result, const std::string& path);

}  // namespace korvane
