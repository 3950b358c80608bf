// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a project database, defaults and material list: nothing crashes, every row that
// was read can be listed and loaded.
#include <unistd.h>

#include <cstdint>
#include <fstream>
#include <string>

#include "core/calculation.h"
#include "sections/databasebas.h"

using namespace korvane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto library = ReadLibrary(KORVANE_DATA_FOLDER);
  static const std::string folder = [] {
    char name[] = "/tmp/korvane_fuzz_XXXXXX";
    return std::string(mkdtemp(name));
  }();
  for (const char* name : {"/korvane.db", "/default_ns.dat", "/NSmat.dat", "/hea.dat"}) {
    std::ofstream(folder + name, std::ios::binary)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  }
  Database db;
  ReadDatabase(folder + "/korvane.db", db);
  FillDatabaseList(db, library->catalogues);
  ProjectState st;
  try {
    for (int row = 0; row <= db.DbLast; ++row) {
      db.DbRow = row;
      st.ProfileType = DatabaseRowType(db);
      LoadDatabaseRow(db, st);
    }
  } catch (const ArithmeticFault&) {
  }
  Design design(ReadLibrary(folder));
  StartDesign(design);
  try {
    Calculate(design);
  } catch (const ArithmeticFault&) {
  }
  return 0;
}
