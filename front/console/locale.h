// SPDX-License-Identifier: GPL-3.0-or-later
// How the person's system writes numbers, for a program without Qt.
#pragma once

namespace korvane {

/// Whether a decimal comma is written: by the environment's locale (LC_ALL, LC_NUMERIC, LANG), on
/// Windows by the formats that the person has chosen.
bool LocaleWritesComma();

}  // namespace korvane
