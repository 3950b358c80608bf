// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a project database: every row that was read can be listed, loaded, designed,
// moved and removed, and what is written reads back as the same rows.
#include "fuzz/fuzz_support.h"
#include "sections/databasebas.h"

using namespace korvane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto library = ReadLibrary(KORVANE_DATA_FOLDER);
  static const std::string folder = fuzz::OwnDataFolder();
  const std::string path = folder + "/korvane.db";
  fuzz::Write(path, fuzz::Bytes(data, size));
  Database db;
  ReadDatabase(path, db);
  const auto list = FillDatabaseList(db, library->catalogues);
  Design design(library);
  StartDesign(design);
  for (int row = 0; row <= db.DbLast; ++row) {
    db.DbRow = row;
    try {
      design.st.ProfileType = DatabaseRowType(db);
      LoadDatabaseRow(db, design.st);
    } catch (const ArithmeticFault&) {
      continue;
    }
    if (row < 4) fuzz::CalculateOrFail(design);
  }
  if (!WriteDatabase(path, db)) std::abort();
  Database again;
  ReadDatabase(path, again);
  // A name with a quotation mark in it doesn't survive, as its form in the file says.
  bool quoted = false;
  for (int row = 0; row <= db.DbLast; ++row) {
    quoted = quoted || db.DbTable[row].name.find('"') != std::string::npos;
  }
  if (!quoted && FillDatabaseList(again, library->catalogues) != list) std::abort();
  MoveRowUp(db, db.DbLast);
  MoveRowDown(db, 0);
  while (RemoveRow(db, 0)) {
  }
  return 0;
}
