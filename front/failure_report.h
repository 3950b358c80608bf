// SPDX-License-Identifier: GPL-3.0-or-later
// What a person is told when a failure outside a text field ends the program.
#pragma once

#include <string>

namespace korvane {

class Session;

struct FailureReport {
  std::string text;  ///< sentences in lines
  /// The person's own defaults make each start fail: the way out is to start with the program's.
  bool ownDefaults = false;
};

/// what: the failure itself, said where it isn't one of a calculation.
FailureReport ReportOf(const Session& session, const std::string& what);

}  // namespace korvane
