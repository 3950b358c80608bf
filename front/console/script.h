// SPDX-License-Identifier: GPL-3.0-or-later
// Drives a session from text, one action a line, and prints what a person would see.
#pragma once

#include <istream>
#include <memory>
#include <ostream>
#include <string>

#include "core/calculation.h"

namespace korvane {

/// Runs a script on a session that has been started. Actions: focus FORM, menu NAME, enter CONTROL
/// TEXT, return CONTROL, click CONTROL, select CONTROL INDEX, close FORM, open PATH, save PATH,
/// answer PATH|cancel, show CONTROL|FORM, results, verdict, json. Empty lines and those that begin
/// with # are skipped. Returns the exit status: 0, 2 for an unknown control or action (named with
/// its line on err), 3 for an arithmetic failure outside a text field. What is done to a control
/// that a person could not use, as it is disabled, hidden or on a form that isn't open, goes on
/// with a remark, on err with its line.
int RunScript(std::shared_ptr<const Library> library, bool decimalComma, std::istream& in,
              std::ostream& out, std::ostream& err);

}  // namespace korvane
