// SPDX-License-Identifier: GPL-3.0-or-later
// Command that makes the data folder's binary files from the readable section tables.
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "tools/catalogue_maker.h"

namespace {

constexpr const char* kUsage =
    "usage: make_catalogues SOURCE TARGET\n"
    "Reads the section tables (*.csv) of the folder SOURCE, checks them and writes the\n"
    "catalogue files (*.dat) and NSmat.dat into the folder TARGET. Nothing is written when\n"
    "a table is wrong. In this project: make_catalogues data/source data\n";

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> args(argv + 1, argv + argc);
  if (args.size() == 1 && (args[0] == "--help" || args[0] == "-h")) {
    std::cout << kUsage;
    return 0;
  }
  if (args.size() != 2 || args[0].empty() || args[1].empty()) {
    std::cerr << kUsage;
    return 2;
  }
  try {
    const auto files = korvane::MakeDataFiles(args[0]);
    korvane::WriteDataFiles(files, args[1]);
    std::cout << files.size() << " files written to " << args[1] << '\n';
  } catch (const std::exception& e) {
    std::cerr << "make_catalogues: " << e.what() << '\n';
    return 1;
  }
  return 0;
}
