// SPDX-License-Identifier: GPL-3.0-or-later
// Adding, loading and ordering the rows of the project database.
#include "sections/databasebas.h"

#include <array>
#include <span>
#include <utility>

#include "core/fixed_list.h"
#include "core/state_field.h"
#include "sections/profile_table.h"

namespace korvane {
namespace {

using S = ProjectState;

/// Columns from 3 on: the field that each is copied to and from, in the file's own order. The
/// catalogue row of a family in column 2 follows from the family table.
struct FamilyColumns {
  int family;
  FixedList<StateField, 13> from3{};
  /// Loading takes the last row of the table, whichever is selected: kept as it always was.
  bool loadsLastRow = false;
};

constexpr std::array<FamilyColumns, 16> kColumns{{
    {21, {&S::p21_h, &S::p21_b, &S::p21_tw, &S::p21_tf}},
    {22, {&S::p22_h, &S::p22_b, &S::p22_b2, &S::p22_tw, &S::p22_tf1, &S::p22_tf2}},
    {23, {&S::p23_h, &S::p23_b, &S::p23_a, &S::p23_tw, &S::p23_tf}},
    {24, {&S::p24_h, &S::p24_b, &S::p24_a, &S::p24_c, &S::p24_tw, &S::p24_tf1, &S::p24_tf2}},
    {25,
     {&S::p25_h, &S::p25_b1, &S::p25_b2, &S::p25_a, &S::p25_c, &S::p25_tw, &S::p25_tf1,
      &S::p25_tf2}},
    {26, {&S::p26_h, &S::p26_b, &S::p26_tw, &S::p26_tf}},
    {27,
     {&S::p27_h, &S::p27_b1, &S::p27_b2, &S::p27_tw, &S::p27_tf1, &S::p27_tf2, &S::p27_a},
     true},
    {28, {&S::p28_h, &S::p28_tw}},
    {31, {&S::p31_d, &S::p31_tw}},
    {41,
     {&S::p41_name, &S::p41_A, &S::p41_Az, &S::p41_Ay, &S::p41_Iy, &S::p41_Iz, &S::p41_Ix,
      &S::p41_Iw, &S::p41_Wely, &S::p41_Welz, &S::p41_Wply, &S::p41_Wplz, &S::p41_option}},
    {51, {&S::p51_h, &S::p51_b, &S::p51_tw, &S::p51_tf1}},
    {52, {&S::p52_b1, &S::p52_t1}},
    {53, {&S::p53_h, &S::p53_b1, &S::p53_b2, &S::p53_tw, &S::p53_tf1, &S::p53_tf2}},
    {54, {&S::p54_b1, &S::p54_t1}},
    {55, {&S::p55_h, &S::p55_b1, &S::p55_b2, &S::p55_tw, &S::p55_tf1, &S::p55_a}, true},
    {56, {&S::p56_h, &S::p56_b1, &S::p56_b2, &S::p56_tw, &S::p56_tf1, &S::p56_tf2}},
}};

/// Kept as they always were: loading these two families fills fields of family 56 in place of
/// their own, although adding writes their own.
constexpr std::array<FamilyColumns, 2> kLoadExceptions{{
    {51, {&S::p51_h, &S::p56_b1, StateField{}, &S::p56_tw, &S::p56_tf1}},
    {52, {&S::p56_b1, &S::p56_tf1}},
}};

const FamilyColumns* ColumnsOf(std::span<const FamilyColumns> table, int family) {
  for (const FamilyColumns& c : table)
    if (c.family == family) return &c;
  return nullptr;
}

/// The catalogue of exactly the sub-family in force, or nullptr.
const FamilyCatalogue* ExactCatalogue(const Family& family, const ProjectState& st) {
  return CatalogueOfSub(family, family.sub == nullptr ? 0 : int(st.*family.sub));
}

// An empty number stays empty on its way in both directions.
void Store(const ProjectState& st, const StateField& field, int column, DatabaseRow& row) {
  std::visit(
      [&](auto member) {
        if constexpr (std::is_same_v<decltype(member), std::string S::*>) {
          row.name = st.*member;
        } else if (member != nullptr) {
          row.col[column] = st.*member;
        }
      },
      field);
}

void Fetch(const DatabaseRow& row, int column, const StateField& field, ProjectState& st) {
  std::visit(
      [&](auto member) {
        using Member = decltype(member);
        if constexpr (std::is_same_v<Member, std::string S::*>) {
          st.*member = row.name;
        } else if constexpr (std::is_same_v<Member, int16 S::*>) {
          if (member != nullptr) st.*member = ToInt16(row.col[column]);
        } else {
          if (member != nullptr) st.*member = row.col[column];
        }
      },
      field);
}

}  // namespace

void ResetDatabase(Database& db) {
  db.listUpdate = false;
}

int DatabaseRowType(const Database& db) {
  return ToInt16(db.DbTable[db.DbRow].col[1]);
}

const StateField* DatabaseField(int family, int column) {
  const FamilyColumns* columns = ColumnsOf(kColumns, family);
  const auto place = static_cast<std::size_t>(column - 3);
  return columns != nullptr && column >= 3 && place < columns->from3.size() ? &columns->from3[place]
                                                                            : nullptr;
}

const Family* FamilyOfRow(const DatabaseRow& row) {
  const double code = row.col[1];
  for (const Family& family : AllFamilies())
    if (family.code == code) return &family;
  return nullptr;
}

void LoadDatabaseRow(const Database& db, ProjectState& st) {
  const Family* family = FindFamily(st.ProfileType);
  if (family == nullptr) return;
  const FamilyColumns* columns = ColumnsOf(kLoadExceptions, st.ProfileType);
  if (!columns) columns = ColumnsOf(kColumns, st.ProfileType);
  const bool last = columns != nullptr && columns->loadsLastRow;
  const DatabaseRow& row = db.DbTable[last ? db.DbLast : db.DbRow];
  // Column 2 is the sub-family where there are several, and column 3 then the catalogue row.
  if (family->sub != nullptr) st.*family->sub = ToInt16(row.col[2]);
  if (const FamilyCatalogue* catalogue = ExactCatalogue(*family, st)) {
    st.*catalogue->index = ToInt16(row.col[family->sub == nullptr ? 2 : 3]);
  }
  if (columns == nullptr) return;
  for (std::size_t i = 0; i < columns->from3.size(); ++i)
    Fetch(row, static_cast<int>(i) + 3, columns->from3[i], st);
}

void AddToDatabase(ProjectState& st, Database& db) {
  st.DatabaseMode = 0;
  const int last = db.DbLast + 1;
  DatabaseRow& row = db.DbTable[last];
  row = DatabaseRow{};
  row.col[1] = st.ProfileType;
  if (const Family* family = FindFamily(st.ProfileType)) {
    if (family->sub != nullptr) row.col[2] = st.*family->sub;
    if (const FamilyCatalogue* catalogue = ExactCatalogue(*family, st)) {
      row.col[family->sub == nullptr ? 2 : 3] = st.*catalogue->index;
    }
  }
  if (const FamilyColumns* columns = ColumnsOf(kColumns, st.ProfileType)) {
    for (std::size_t i = 0; i < columns->from3.size(); ++i)
      Store(st, columns->from3[i], static_cast<int>(i) + 3, row);
  }
  db.DbLast = last;
  db.DbRow = last;
}

void ClearDatabase(Database& db) {
  db.DbTable.Fill(DatabaseRow{});
  db.DbLast = -1;
}

bool MoveRowUp(Database& db, int row) {
  db.listUpdate = false;
  if (row < 1 || row > db.DbLast) return false;
  std::swap(db.DbTable[row], db.DbTable[row - 1]);
  return true;
}

bool MoveRowDown(Database& db, int row) {
  return row >= 0 && MoveRowUp(db, row + 1);
}

bool RemoveRow(Database& db, int row) {
  const int last = db.DbLast;
  if (row < 0 || row > last) return false;
  for (int i = row; i < last; ++i) db.DbTable[i] = std::move(db.DbTable[i + 1]);
  db.DbTable[last] = DatabaseRow{};
  db.DbLast = last - 1;
  return true;
}

}  // namespace korvane
