// SPDX-License-Identifier: GPL-3.0-or-later
// What the windows ask of the system that they stand in.
#pragma once

namespace korvane {

/// What has to be settled before the application begins.
void PrepareLook();

/// Whether the person has asked the system for dark windows; once the application has begun.
bool SystemIsDark();

/// The letters of all windows, where the system's own choice can't be relied on. After the theme:
/// a style brings the system's letters along.
void ChooseLetters();

}  // namespace korvane
