// SPDX-License-Identifier: GPL-3.0-or-later
// One project from its file to its results, as a person with the window would get them.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/calculation.h"
#include "core/project_file.h"
#include "front/file_message.h"
#include "studies/member.h"

namespace korvane {

/// What came of a project.
struct DesignRun : MemberRun {
  FileResult file = FileResult::Ok;
  std::vector<std::string> remarks;  ///< what the engineer should know of the file
  std::string bytes;                 ///< the file as it was read
};

/// Opens the project (the standard input for "-") in a started design and designs it as
/// OpenMember does. The results depend on the file and the data alone.
DesignRun RunProject(Design& design, const std::string& path);

/// The exit status of a verdict: 0 only where the member passes, 3 where the calculation stopped.
int StatusOf(const Verdict& verdict);

}  // namespace korvane
