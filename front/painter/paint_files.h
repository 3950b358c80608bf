// SPDX-License-Identifier: GPL-3.0-or-later
// Drawings as PDF, SVG and PNG files. Loaded on demand by the console program, so that its other
// commands start without Qt.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "presentation/drawing_target.h"

namespace korvane {

/// What is to be painted, and where to.
struct PaintJob {
  std::string path;  ///< the ending decides: .pdf, .svg, .png
  double width = 0;  ///< points
  double height = 0;
  /// One routine for each page; SVG and PNG take the first alone.
  std::vector<std::function<void(DrawingTarget&)>> pages;
  std::string title, subject;
  std::string attachmentName, attachment;  ///< embedded in a PDF
  double pixelsPerPoint = 2;               ///< PNG
};

/// Paints the job with Qt, without a display. Returns an empty text, or what went wrong.
std::string PaintToFile(const PaintJob& job);

/// The entry of the loadable module.
using PaintEntry = void (*)(const PaintJob*, std::string* error);
inline constexpr const char* kPaintEntry = "korvane_paint";
inline constexpr const char* kPaintModule = "korvane_paint.so";

}  // namespace korvane
