// SPDX-License-Identifier: GPL-3.0-or-later
// The painter with Qt, which is loaded from where it is installed; the module does without it.
#pragma once

#include <string>
#include <vector>

#include "front/painter/paint_files.h"

namespace korvane::python {

/// Paints through the loadable module in the first of the folders that has it. Returns an empty
/// text, or what went wrong.
std::string PaintByModule(const PaintJob& job, const std::vector<std::string>& folders,
                          std::string& bytes);

}  // namespace korvane::python
