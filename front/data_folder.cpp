// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/data_folder.h"

#include <filesystem>

#include "core/file_path.h"
#include "front/system.h"
#include "sections/readprofiles.h"

namespace korvane {

namespace {

namespace fs = std::filesystem;

bool HasAnyCatalogue(const fs::path& folder) {
  std::error_code error;
  return fs::is_regular_file(folder / "hea.dat", error);
}

std::string Checked(const std::string& folder) {
  const auto missing = MissingCatalogues(folder);
  if (missing.empty()) return folder;
  std::string text = "data folder " + folder + " lacks";
  for (const std::string& name : missing) text += " " + name;
  throw DataFolderError(text);
}

}  // namespace

std::string FindDataFolder(const std::string& asked) {
  if (!asked.empty()) return Checked(asked);
  if (const auto named = Environment("KORVANE_DATA")) return Checked(*named);
  const fs::path here = ProgramFolder();
  if (!here.empty()) {
    // Installed beside the program's prefix, or run from a build folder inside the sources.
    for (const fs::path& candidate : {here / KORVANE_DATA_FROM_BIN, here / "data"}) {
      if (HasAnyCatalogue(candidate)) return Checked(FileName(candidate.lexically_normal()));
    }
    for (fs::path up = here; up.has_relative_path(); up = up.parent_path()) {
      if (HasAnyCatalogue(up / "data")) return Checked(FileName(up / "data"));
    }
  }
  return Checked(KORVANE_BUILD_DATA);
}

}  // namespace korvane
