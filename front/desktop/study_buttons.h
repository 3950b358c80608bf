// SPDX-License-Identifier: GPL-3.0-or-later
// The buttons of the main window that open the windows of the studies.
#pragma once

class QLayout;

namespace korvane {

class Desktop;

/// Adds the buttons to a row; their windows are made when they are first asked for.
void AddStudyButtons(Desktop& desktop, QLayout* row);

}  // namespace korvane
