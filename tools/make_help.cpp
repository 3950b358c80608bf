// SPDX-License-Identifier: GPL-3.0-or-later
// Command that makes the help book's page of all inputs from the tables of the forms, its page of
// all notes from their table, and the list of pages for a browser from the book's contents.
#include <exception>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

#include "tools/help_tables.h"

namespace {

bool Write(const std::string& file, const std::string& text) {
  std::ofstream out(file, std::ios::binary);
  out << text;
  out.close();
  if (!out) std::cerr << "make_help: can't write " << file << '\n';
  return static_cast<bool>(out);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: make_help DATA BOOK\n"
                 "Writes inputs.html, with the data folder DATA, notes.html and pages.js into the "
                 "folder BOOK.\n"
                 "In this project: make_help data docs/help\n";
    return 2;
  }
  try {
    const std::string book = std::string(argv[2]) + '/';
    std::ifstream in(book + "index.html", std::ios::binary);
    std::ostringstream index;
    index << in.rdbuf();
    const bool done =
        Write(book + "inputs.html", korvane::InputsPage(korvane::ReadLibrary(argv[1]))) &&
        Write(book + "notes.html", korvane::NotesPage()) &&
        Write(book + "pages.js", korvane::PagesScript(index.str()));
    return done ? 0 : 1;
  } catch (const std::exception& e) {
    std::cerr << "make_help: " << e.what() << '\n';
    return 1;
  }
}
