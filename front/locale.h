// SPDX-License-Identifier: GPL-3.0-or-later
// How the locale of the environment writes numbers.
#pragma once

namespace korvane {

/// Whether the environment's locale (LC_ALL, LC_NUMERIC, LANG) writes a decimal comma.
bool LocaleWritesComma();

}  // namespace korvane
