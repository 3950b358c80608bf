// SPDX-License-Identifier: GPL-3.0-or-later
// The door through which the console program reaches the painter.
#include "front/painter/paint_files.h"

extern "C" void korvane_paint(const korvane::PaintJob* job, std::string* bytes,
                              std::string* error) {
  *error = korvane::PaintIntoMemory(*job, *bytes);
}
