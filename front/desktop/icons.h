// SPDX-License-Identifier: GPL-3.0-or-later
// The line pictures of the program's buttons, drawn at any size in the colours of the window.
#pragma once

#include <QIcon>
#include <functional>
#include <string>

namespace korvane {

/// The picture of a control, null when there is none. case: asks for the code that a picture
/// follows (the end condition in force), for pictures that change.
QIcon PictureOf(const std::string& form, const std::string& control,
                std::function<int()> code = {});

/// Width over height of the pictures.
inline constexpr double kPictureRatio = 40.0 / 28.0;

}  // namespace korvane
