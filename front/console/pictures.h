// SPDX-License-Identifier: GPL-3.0-or-later
// Drawings of a command as files: SVG by itself, PDF and PNG through the painter's module.
#pragma once

#include <iosfwd>
#include <optional>
#include <string>

#include "core/files.h"
#include "front/painter/paint_files.h"

namespace korvane {

enum class PictureFormat { Pdf, Svg, Png };

/// Where the pictures go.
struct PictureOutput {
  std::string path;    ///< "-": the standard output
  std::string format;  ///< pdf, svg or png, whatever the path; empty: by its ending
};

/// The format asked for, else that of the path's ending; nothing for any other ending.
std::optional<PictureFormat> FormatOf(const PictureOutput& to, PictureFormat onStandardOutput);

/// Paints everything, then writes it: one PDF of all pages, or a picture a page as OUT-1, OUT-2,
/// whose names are printed. Returns the exit status, after a word on errors where something failed.
int WritePictures(const PaintJob& job, const PictureOutput& to, PictureFormat onStandardOutput,
                  const WriteRules& rules, std::ostream& output, std::ostream& errors);

}  // namespace korvane
