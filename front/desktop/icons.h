// SPDX-License-Identifier: GPL-3.0-or-later
// The line pictures of the program's buttons, drawn at any size in the colours of the window.
#pragma once

#include <QIcon>

#include "front/form_table.h"

namespace korvane {

/// The picture of a sign, null when there is none. A sign that follows a field shows the code in
/// force of a state that must outlive the picture.
QIcon PictureOf(const Sign& sign, const ProjectState& st);

/// Width over height of the pictures.
inline constexpr double kPictureRatio = 40.0 / 28.0;

}  // namespace korvane
