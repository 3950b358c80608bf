// SPDX-License-Identifier: GPL-3.0-or-later
// Asks for a printer, or for a PDF file, and for the sheets that go with a report.
#pragma once

#include <functional>

class QPrinter;
class QWidget;

namespace korvane {

/// Sets the printer up as the person wants it; a file becomes its output. withChecker: whether the
/// checker's sheet goes with the report, as it was last time. preview: shows the pages, with that
/// sheet or without. The printer's file, where it has one, is the name proposed. False where
/// nothing is to be printed.
bool AskForPrinter(QPrinter& printer, bool& withChecker, const std::function<void(bool)>& preview,
                   QWidget* owner);

}  // namespace korvane
