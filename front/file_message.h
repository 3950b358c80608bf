// SPDX-License-Identifier: GPL-3.0-or-later
// What is said of a project file that can't be read, or was read in doubt.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/project_file.h"

namespace korvane {

/// The remark on a file that is read as an old project for want of a version.
inline constexpr const char* kNoVersion =
    "first line holds no version number; read as an old project";

/// What the engineer should know of a file that was read.
std::vector<std::string> RemarksOn(std::string_view bytes);

/// The message of a file that could not be opened, empty when it could.
std::string FileMessage(FileResult result, const std::string& path);

}  // namespace korvane
