// SPDX-License-Identifier: GPL-3.0-or-later
// Asks for a printer, or for a PDF file, and for the sheets that go with a report.
#pragma once

class QPrinter;
class QWidget;

namespace korvane {

/// Sets the printer up as the person wants it; a file becomes its output. withChecker: whether the
/// checker's sheet goes with the report, as it was last time. False where nothing is to be printed.
bool AskForPrinter(QPrinter& printer, bool& withChecker, QWidget* owner);

}  // namespace korvane
