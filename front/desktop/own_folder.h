// SPDX-License-Identifier: GPL-3.0-or-later
// Where the desktop program writes what it keeps: defaults and the profile database.
#pragma once

#include <QString>

#include "front/session.h"

namespace korvane {

/// The program's data folder where it can be written, else the person's own, which is made.
Folders FoldersOf(const std::string& data, const QString& own);

}  // namespace korvane
