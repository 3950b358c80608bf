// SPDX-License-Identifier: GPL-3.0-or-later
// What the program calls itself: on paper, in files and where a person's settings are kept.
#pragma once

namespace korvane {

inline constexpr const char* kVersion = "3.9";
/// On paper and in the words about the program.
inline constexpr const char* kProgramName = "KORVANE NS3472";
/// Ahead of the file's name in the title of the window.
inline constexpr const char* kTitleBegin = "KORVANE-NS3472: ";
/// Of the store of a person's settings.
inline constexpr const char* kSettingsName = "Korvane_ns";

}  // namespace korvane
