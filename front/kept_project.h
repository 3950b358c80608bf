// SPDX-License-Identifier: GPL-3.0-or-later
// What a running program keeps on disk of its project, so that an unclean end loses nothing.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/project_state.h"
#include "front/project_files.h"

namespace korvane {

/// A project with its names, its path and what is known of its file.
struct KeptProject {
  ProjectState st;
  FileRecord file;
  bool modified = false;  ///< it is another than its file holds
};

/// What is to be kept of the session: the state in force, or the last one that could be
/// calculated where it can't. Nothing of a new project that nobody has touched.
std::optional<KeptProject> ToKeep(const Session& session);

/// The text of the file: a project file, with the whole record and what is known of the project's
/// file behind it, which the project's reader passes over.
std::string KeptText(const KeptProject& kept);

/// The project of such a text, or nothing; fields that the text lacks are those of `fresh`.
std::optional<KeptProject> ReadKept(std::string_view text, const ProjectState& fresh);

/// "column.kvn, with unsaved changes"
std::string KeptWords(const KeptProject& kept);

}  // namespace korvane
