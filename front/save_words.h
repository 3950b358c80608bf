// SPDX-License-Identifier: GPL-3.0-or-later
// What the status bar says of the files: saved when, changed since, not saved and why.
#pragma once

#include <string>

namespace korvane {

class Session;

struct SaveWords {
  std::string text;     ///< empty where there is nothing to say
  bool failed = false;  ///< something was not saved: in red until a saving succeeds
};

SaveWords SaveWordsOf(const Session& session);

}  // namespace korvane
