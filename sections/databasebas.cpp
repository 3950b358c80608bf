// SPDX-License-Identifier: GPL-3.0-or-later
// Adding, loading and ordering the rows of the project database.
#include "sections/databasebas.h"

#include <array>
#include <cmath>
#include <span>
#include <type_traits>
#include <utility>
#include <variant>

namespace korvane {
namespace {

using Field = std::variant<std::monostate, int16 ProjectState::*, float32 ProjectState::*,
                           number ProjectState::*, std::string ProjectState::*>;
using S = ProjectState;

/// Which field of the state each column is copied to and from.
struct FamilyColumns {
  int family;
  int16 S::*index;                    ///< column 2, or nullptr
  std::array<Field, 13> from3{};      ///< columns 3 onward; an empty place is not copied
  std::array<int16 S::*, 3> bySub{};  ///< column 3 by sub-family, where column 2 is that
};

constexpr std::array<FamilyColumns, 32> kColumns{{
    {1, &S::idxHEA},
    {2, &S::idxHEB},
    {3, &S::idxHEM},
    {4, &S::idxIPE},
    {5, &S::idxUPE},
    {6, &S::idxRHSs},
    {7, &S::idxRHSr},
    {8, &S::idxCFRHSs},
    {9, &S::idxCFRHSr},
    {10, &S::idxLeq},
    {11, &S::idxLuneq},
    {15, &S::idxINP},
    {16, &S::idxUNP},
    {21, nullptr, {&S::p21_h, &S::p21_b, &S::p21_tw, &S::p21_tf}},
    {22, nullptr, {&S::p22_h, &S::p22_b, &S::p22_b2, &S::p22_tw, &S::p22_tf1, &S::p22_tf2}},
    {23, nullptr, {&S::p23_h, &S::p23_b, &S::p23_a, &S::p23_tw, &S::p23_tf}},
    {24,
     nullptr,
     {&S::p24_h, &S::p24_b, &S::p24_a, &S::p24_c, &S::p24_tw, &S::p24_tf1, &S::p24_tf2}},
    {25,
     nullptr,
     {&S::p25_h, &S::p25_b1, &S::p25_b2, &S::p25_a, &S::p25_c, &S::p25_tw, &S::p25_tf1,
      &S::p25_tf2}},
    {26, nullptr, {&S::p26_h, &S::p26_b, &S::p26_tw, &S::p26_tf}},
    {27,
     nullptr,
     {&S::p27_h, &S::p27_b1, &S::p27_b2, &S::p27_tw, &S::p27_tf1, &S::p27_tf2, &S::p27_a}},
    {28, nullptr, {&S::p28_h, &S::p28_tw}},
    {31, nullptr, {&S::p31_d, &S::p31_tw}},
    {41,
     nullptr,
     {&S::p41_name, &S::p41_A, &S::p41_Az, &S::p41_Ay, &S::p41_Iy, &S::p41_Iz, &S::p41_Ix,
      &S::p41_Iw, &S::p41_Wely, &S::p41_Welz, &S::p41_Wply, &S::p41_Wplz, &S::p41_option}},
    {51, nullptr, {&S::p51_h, &S::p51_b, &S::p51_tw, &S::p51_tf1}},
    {52, &S::p52_index, {&S::p52_b1, &S::p52_t1}},
    {53, nullptr, {&S::p53_h, &S::p53_b1, &S::p53_b2, &S::p53_tw, &S::p53_tf1, &S::p53_tf2}},
    {54, &S::p54_index, {&S::p54_b1, &S::p54_t1}},
    {55, nullptr, {&S::p55_h, &S::p55_b1, &S::p55_b2, &S::p55_tw, &S::p55_tf1, &S::p55_a}},
    {56, nullptr, {&S::p56_h, &S::p56_b1, &S::p56_b2, &S::p56_tw, &S::p56_tf1, &S::p56_tf2}},
    {101, &S::p101_sub, {}, {&S::p101_idx1, &S::p101_idx2, &S::p101_idx3}},
    {102, &S::p102_idx},
    {103, &S::p103_sub, {}, {&S::p103_idx1, &S::p103_idx2}},
}};

/// Kept as they always were: loading these two families fills fields of family 56 in place of
/// their own, although adding writes their own.
constexpr std::array<FamilyColumns, 2> kLoadExceptions{{
    {51, nullptr, {&S::p51_h, &S::p56_b1, Field{}, &S::p56_tw, &S::p56_tf1}},
    {52, &S::p52_index, {&S::p56_b1, &S::p56_tf1}},
}};

/// Kept as it always was: these families load the last row of the table, whichever is selected.
constexpr bool LoadsLastRow(int family) {
  return family == 27 || family == 55;
}

const FamilyColumns* ColumnsOf(std::span<const FamilyColumns> table, int family) {
  for (const FamilyColumns& c : table)
    if (c.family == family) return &c;
  return nullptr;
}

/// A column as a 16-bit integer, halves to even.
int16 Whole(const number& v) {
  const double rounded = std::nearbyint(v);
  if (!(rounded >= -32768.0 && rounded <= 32767.0)) throw ArithmeticFault("16-bit overflow");
  return static_cast<int>(rounded);
}

/// The row index of the sub-family in force, or nullptr where the code has none.
int16 S::*SubIndex(const FamilyColumns& columns, const ProjectState& st) {
  if (!columns.bySub[0]) return nullptr;
  const int sub = st.*columns.index;
  return sub >= 1 && sub <= 3 ? columns.bySub[static_cast<std::size_t>(sub - 1)] : nullptr;
}

void Store(const ProjectState& st, const Field& field, int column, DatabaseRow& row) {
  std::visit(
      [&](auto member) {
        if constexpr (std::is_same_v<decltype(member), std::string S::*>)
          row.name = st.*member;
        else if constexpr (!std::is_same_v<decltype(member), std::monostate>)
          row.col[column] = st.*member;
      },
      field);
}

void Fetch(const DatabaseRow& row, int column, const Field& field, ProjectState& st) {
  std::visit(
      [&](auto member) {
        using Member = decltype(member);
        if constexpr (std::is_same_v<Member, std::string S::*>)
          st.*member = row.name;
        else if constexpr (std::is_same_v<Member, int16 S::*>)
          st.*member = Whole(row.col[column]);
        else if constexpr (!std::is_same_v<Member, std::monostate>)
          st.*member = row.col[column];
      },
      field);
}

}  // namespace

void ResetDatabase(Database& db) {
  db.listUpdate = false;
}

int DatabaseRowType(const Database& db) {
  return Whole(db.DbTable[db.DbRow].col[1]);
}

void LoadDatabaseRow(const Database& db, ProjectState& st) {
  const FamilyColumns* columns = ColumnsOf(kLoadExceptions, st.ProfileType);
  if (!columns) columns = ColumnsOf(kColumns, st.ProfileType);
  if (!columns) return;
  const DatabaseRow& row = db.DbTable[LoadsLastRow(st.ProfileType) ? db.DbLast : db.DbRow];
  if (columns->index) st.*columns->index = Whole(row.col[2]);
  if (const auto sub = SubIndex(*columns, st)) st.*sub = Whole(row.col[3]);
  for (std::size_t i = 0; i < columns->from3.size(); ++i)
    Fetch(row, static_cast<int>(i) + 3, columns->from3[i], st);
}

void AddToDatabase(ProjectState& st, Database& db) {
  st.DatabaseMode = 0;
  const int last = db.DbLast + 1;
  DatabaseRow& row = db.DbTable[last];
  row = DatabaseRow{};
  row.col[1] = st.ProfileType;
  if (const FamilyColumns* columns = ColumnsOf(kColumns, st.ProfileType)) {
    if (columns->index) row.col[2] = st.*columns->index;
    if (const auto sub = SubIndex(*columns, st)) row.col[3] = st.*sub;
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
