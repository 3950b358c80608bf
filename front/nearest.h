// SPDX-License-Identifier: GPL-3.0-or-later
// Finds the name that a mistyped one of a script was meant to be.
#pragma once

#include <string>
#include <vector>

namespace korvane {

/// The word that takes the fewest changes of single letters; the first of several, empty without
/// words.
std::string NearestWord(const std::string& word, const std::vector<std::string>& words);

/// The form meant by a name; empty when there is a form of that name.
std::string NearestForm(const std::string& name);

/// The control meant by an address, "control" on the form given or "form.control", written in
/// the same way; empty when the control exists.
std::string NearestControl(const std::string& address, const std::string& formOnTop);

/// The menu command meant by a name; empty when there is one of that name.
std::string NearestCommand(const std::string& name);

}  // namespace korvane
