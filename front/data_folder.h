// SPDX-License-Identifier: GPL-3.0-or-later
// Where the program finds its catalogues, materials and defaults.
#pragma once

#include <stdexcept>
#include <string>

namespace korvane {

/// The data folder can't be used; the text names it and what is missing.
class DataFolderError : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// The folder that was asked for, else the environment's KORVANE_DATA, else the installed or
/// built data folder found from the program's own place; never the current folder by accident.
/// Throws DataFolderError when the folder lacks catalogues.
std::string FindDataFolder(const std::string& asked);

}  // namespace korvane
