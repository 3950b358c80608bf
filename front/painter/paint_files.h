// SPDX-License-Identifier: GPL-3.0-or-later
// Drawings as PDF and PNG, painted into memory. Loaded on demand by the console program, so that
// its other commands start without Qt.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "presentation/drawing_target.h"

namespace korvane {

enum class PaintFormat { Pdf, Png };

/// What is to be painted.
struct PaintJob {
  PaintFormat format = PaintFormat::Pdf;
  double width = 0;  ///< points
  double height = 0;
  /// One routine for each page; a PNG takes the first alone.
  std::vector<std::function<void(DrawingTarget&)>> pages;
  std::string title, subject;
  std::string attachmentName, attachment;  ///< embedded in a PDF
  double pixelsPerPoint = 2;               ///< PNG
};

/// Paints the job with Qt, without a display, into bytes. Returns an empty text, or what went
/// wrong.
std::string PaintIntoMemory(const PaintJob& job, std::string& bytes);

/// The entry of the loadable module.
using PaintEntry = void (*)(const PaintJob*, std::string* bytes, std::string* error);
inline constexpr const char* kPaintEntry = "korvane_paint";

}  // namespace korvane
