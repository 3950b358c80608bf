// SPDX-License-Identifier: GPL-3.0-or-later
// A project from its file to its results, in the order in which a person gets there.
#pragma once

#include <memory>
#include <string>

#include "core/calculation.h"
#include "core/project_file.h"

namespace korvane {

/// Exit statuses of the console program.
enum ExitStatus { kAllPass = 0, kCheckFails = 1, kCannotRead = 2, kArithmeticFailure = 3 };

/// A design after the start sequence and the first calculation, that of the new project. Its
/// failure is passed over. A copy of it is as good as a start of one's own.
Design StartedDesign(std::shared_ptr<const Library> library);

/// Opens a project in a started design, up to its material step; nothing is calculated. Throws
/// ArithmeticFault where the material step fails.
FileResult OpenInDesign(const std::string& path, Design& design);

/// The two calculations that follow an open: that of the command and that of the window's
/// getting the focus back. Throws CalculationFault.
void CalculateOpened(Design& design);

/// What the program says about a file that it can't use; empty for Ok.
std::string FileMessage(FileResult result, const std::string& path);

/// What the program says about a calculation that stopped.
std::string FaultMessage(const ArithmeticFault& fault);

}  // namespace korvane
