// SPDX-License-Identifier: GPL-3.0-or-later
// Where the desktop program writes what it keeps: defaults, the profile database and settings.
#pragma once

#include <QSettings>
#include <QString>

#include "front/session.h"

namespace korvane {

/// The program's data folder where it can be written, else the person's own, which is made; on
/// Windows always the person's own.
Folders FoldersOf(const std::string& data, const QString& own);

/// The person's settings: places of windows, recent files.
QSettings UserSettings();

}  // namespace korvane
