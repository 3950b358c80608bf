// SPDX-License-Identifier: GPL-3.0-or-later
// The order of the Tab key: as a window is read, along its layouts.
#pragma once

class QWidget;

namespace korvane {

/// Chains all widgets below root that take the focus by keyboard, in the order of the layouts:
/// boxes from their first entry, grids row by row, splitters from their first pane.
void ChainTabsByLayout(QWidget* root);

}  // namespace korvane
