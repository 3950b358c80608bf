// SPDX-License-Identifier: GPL-3.0-or-later
// The loadable painter: without it every command starts without Qt.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "front/painter/paint_files.h"

namespace korvane {

/// The painter of the module in the first of the folders that has it; nullptr, with what went wrong
/// in error, where there is none. It stays loaded to the program's end.
PaintEntry LoadPainter(const std::vector<std::filesystem::path>& folders, std::string& error);

/// Paints through it. Returns an empty text, or what went wrong.
inline std::string PaintByModule(const PaintJob& job,
                                 const std::vector<std::filesystem::path>& folders,
                                 std::string& bytes) {
  std::string error;
  if (const PaintEntry paint = LoadPainter(folders, error)) paint(&job, &bytes, &error);
  return error;
}

}  // namespace korvane
