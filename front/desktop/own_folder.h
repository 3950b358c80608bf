// SPDX-License-Identifier: GPL-3.0-or-later
// Where the desktop program writes what it keeps: beside its data, or in the user's own folder.
#pragma once

#include <string>

#include "front/session.h"

namespace korvane {

/// The folders for a data folder. Where no file can be written there, `own` is the user's data
/// folder, made when it is missing; otherwise `own` is empty.
Folders FoldersOf(const std::string& data);

}  // namespace korvane
