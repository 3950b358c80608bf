// SPDX-License-Identifier: GPL-3.0-or-later
// Command that makes the help book's page of all inputs from the tables of the forms.
#include <exception>
#include <fstream>
#include <iostream>

#include "tools/help_tables.h"

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: make_help DATA OUT\n"
                 "Writes the page of all inputs, with the data folder DATA, to the file OUT.\n"
                 "In this project: make_help data docs/help/inputs.html\n";
    return 2;
  }
  try {
    const std::string page = korvane::InputsPage(korvane::ReadLibrary(argv[1]));
    std::ofstream out(argv[2], std::ios::binary);
    out << page;
    out.close();
    if (!out) {
      std::cerr << "make_help: can't write " << argv[2] << '\n';
      return 1;
    }
  } catch (const std::exception& e) {
    std::cerr << "make_help: " << e.what() << '\n';
    return 1;
  }
  return 0;
}
