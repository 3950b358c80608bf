// SPDX-License-Identifier: GPL-3.0-or-later
// The project database: the sections collected for a project, in memory and in its own file.
#pragma once

#include <string>
#include <vector>

#include "core/files.h"
#include "core/project_state.h"
#include "sections/profile_table.h"
#include "sections/readprofiles.h"

namespace korvane {

/// One collected section: column 1 the family code, column 2 the catalogue row (or sub-family),
/// 3 to 16 the family's numbers. Of a general profile column 3 is its name.
struct DatabaseRow {
  Indexed<number, 1, 16> col;
  std::string name;  ///< the column that holds a text
};

/// Rows 0 to 80. Lives as long as the session; no design owns it.
struct Database {
  Indexed<DatabaseRow, 0, 80> DbTable;
  int16 DbLast = -1;  ///< last row in use, -1 for an empty table
  int16 DbRow = 0;    ///< selected row
  std::string DbFile = "korvane.db";
  bool listUpdate = false;  ///< raised while the list is rebuilt: clicks then load nothing
};

/// Lowers the flag of list updates; rows stay.
void ResetDatabase(Database& db);

/// Reads the rows of a .db file into an emptied table. Errors are ignored: what was complete
/// before one counts, an incomplete last row is dropped, rows beyond 81 are not read. A missing
/// file leaves an empty table. DbRow and DbFile stay.
void ReadDatabase(const std::string& path, Database& db);

/// Writes rows 0 to DbLast, 16 lines a row, as WriteFile does.
WriteResult WriteDatabase(const std::string& path, const Database& db);

/// The text of one row in the list of the form. Throws ArithmeticFault for a catalogue row that
/// does not exist.
std::string DatabaseEntry(const DatabaseRow& row, const Catalogues& cat);

/// The list of the form, one entry for each row 0 to DbLast. A row whose catalogue entry does
/// not exist (a damaged file) is shown as " ".
std::vector<std::string> FillDatabaseList(const Database& db, const Catalogues& cat);

/// The state's field of a family's column from 3 on, or nullptr where the family has none there.
const StateField* DatabaseField(int family, int column);

/// The family of a row, or nullptr where column 1 is no code.
const Family* FamilyOfRow(const DatabaseRow& row);

/// The family code of the row DbRow.
int DatabaseRowType(const Database& db);

/// Copies the row DbRow into the family's fields of the state by the state's ProfileType, with
/// the exceptions of families 27, 51, 52 and 55. Reads and writes nothing for an unknown code.
void LoadDatabaseRow(const Database& db, ProjectState& st);

/// Appends the state's section: DatabaseMode becomes 0, DbRow and DbLast the new row. The 82nd
/// row throws ArithmeticFault and changes neither table nor DbLast.
void AddToDatabase(ProjectState& st, Database& db);

/// Clears all rows; DbLast becomes -1.
void ClearDatabase(Database& db);

/// Swaps a row with the one above; nothing at row 0 or outside the table. Returns whether it
/// moved. Which entry stays selected is the form's own.
bool MoveRowUp(Database& db, int row);

/// Swaps a row with the one below; nothing at the last row.
bool MoveRowDown(Database& db, int row);

/// Takes a row out: all behind it move up by one, DbLast goes down by one. False (the form
/// beeps) on an empty table or a row outside it (nothing selected is -1).
bool RemoveRow(Database& db, int row);

}  // namespace korvane
