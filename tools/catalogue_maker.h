// SPDX-License-Identifier: GPL-3.0-or-later
// Turns the readable section tables into the binary catalogue files and the material list.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace korvane {

/// A source table that can't be used; the text names the file, the line and what is wrong.
class CatalogueError : public std::runtime_error {
public:
  explicit CatalogueError(const std::string& what) : std::runtime_error(what) {}
};

/// A data file as it is to stand in the data folder.
struct DataFile {
  std::string name;
  std::string bytes;
};

/// Makes the catalogue files in the order in which they are read, then "NSmat.dat", from the
/// tables in the folder `source`. Headings, counts of rows and columns and every number are
/// checked; the first thing wrong throws CatalogueError.
std::vector<DataFile> MakeDataFiles(const std::filesystem::path& source);

/// Writes the files into the folder `target`, which is made when it is missing. Throws
/// CatalogueError when one can't be written.
void WriteDataFiles(const std::vector<DataFile>& files, const std::filesystem::path& target);

}  // namespace korvane
