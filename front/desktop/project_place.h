// SPDX-License-Identifier: GPL-3.0-or-later
// Where dialogs begin: in the project's folder, with a name that says what is saved.
#pragma once

#include <QString>

namespace korvane {

class Session;

/// The folder of the project, or the person's documents before it has a file.
QString ProjectFolder(const Session& session);

/// A path beside the project for something made of it: "Column 12-control.pdf". The name is the
/// project's own, before it has a file its identification or name. suffix: "-control.pdf".
QString BesideProject(const Session& session, const QString& suffix);

}  // namespace korvane
