// SPDX-License-Identifier: GPL-3.0-or-later
// The loadable painter: without it every command starts without Qt.
#pragma once

#include <string>

#include "front/painter/paint_files.h"

namespace korvane {

/// The painter of the module beside the program or in the library folder; nullptr, with what went
/// wrong in error, where there is none. It stays loaded to the program's end.
PaintEntry LoadPainter(std::string& error);

}  // namespace korvane
