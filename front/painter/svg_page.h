// SPDX-License-Identifier: GPL-3.0-or-later
// A page of a job as SVG, which needs no painter.
#pragma once

#include <cstddef>
#include <string>

#include "front/painter/paint_files.h"
#include "presentation/svg_target.h"

namespace korvane {

/// The document of one page, counted from 0.
inline std::string SvgPage(const PaintJob& job, std::size_t page) {
  SvgTarget target(job.width, job.height, job.title, Palette::Light());
  job.pages.at(page)(target);
  return target.Document();
}

}  // namespace korvane
