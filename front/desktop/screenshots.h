// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures of the main window and of every form, for looking at and for the documentation.
#pragma once

#include <QString>

namespace korvane {

class Desktop;
class NamedSession;

/// Writes PNG files into the folder: the main window in three sizes, light and dark, and every
/// form. Returns whether all could be written.
bool WriteScreenshots(Desktop& desktop, NamedSession& session, const QString& folder);

}  // namespace korvane
