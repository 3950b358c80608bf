// SPDX-License-Identifier: GPL-3.0-or-later
// The texts of the project database's list.
#include <array>
#include <cmath>
#include <string>

#include "core/text.h"
#include "sections/databasebas.h"

namespace korvane {
namespace {

/// A number in the general form as titles of typed sections have it: without the sign's blank.
std::string Plain(double v) {
  std::string text = Str(v);
  if (text.starts_with(' ')) text.erase(0, 1);
  return text;
}

/// A catalogue number in the general form, with the blank in the place of the sign.
std::string Catalogued(const CatalogueTable& table, int row, int column) {
  return Str(float32(table(row, column)));
}

/// Entry of a rolled family: word and number or three dimensions of a catalogue row.
struct RolledEntry {
  int family;
  int sub;  ///< column 2, where that is the sub-family; else 0
  const char* word;
  Cat table;
  std::array<int, 3> columns;  ///< columns shown; a single one is a number with two digits
};

/// Family 16 shows the number of the same row in the table of family 5: kept as it always was.
constexpr std::array<RolledEntry, 19> kRolled{{
    {1, 0, "HEA ", Cat::HEA, {1}},           {2, 0, "HEB ", Cat::HEB, {1}},
    {3, 0, "HEM ", Cat::HEM, {1}},           {4, 0, "IPE ", Cat::IPE, {1}},
    {5, 0, "UPE ", Cat::UPE, {1}},           {6, 0, "RHS ", Cat::SHS, {1, 1, 2}},
    {7, 0, "RHS ", Cat::RHS, {1, 2, 3}},     {8, 0, "CFRHS ", Cat::CFSHS, {1, 2, 3}},
    {9, 0, "CFRHS ", Cat::CFRHS, {1, 2, 3}}, {10, 0, "L ", Cat::L1, {1, 1, 2}},
    {11, 0, "L ", Cat::L2, {1, 2, 3}},       {15, 0, "INP ", Cat::INP, {1}},
    {16, 0, "UNP ", Cat::UPE, {1}},          {101, 1, "UB ", Cat::UB, {1, 2, 3}},
    {101, 2, "UC ", Cat::UC, {1, 2, 3}},     {101, 3, "UBP ", Cat::UBP, {1, 2, 3}},
    {102, 0, "J ", Cat::J, {1, 2, 3}},       {103, 1, "PFC ", Cat::PFC, {1, 2, 3}},
    {103, 2, "CH ", Cat::CH, {1, 2, 3}},
}};

/// Entry of a typed family: words around the numbers of the columns from 3 on.
struct TypedEntry {
  int family;
  const char* word;
  int numbers;
  const char* joints;  ///< the mark before each number but the first
  const char* end;
};

constexpr std::array<TypedEntry, 15> kTyped{{
    {21, "I ", 4, "x/x", ""},
    {22, "I ", 6, "x/xxx", "  (Single symm.)"},
    {23, "Box ", 5, "xxxx", ""},
    {24, "HSQ ", 7, "xxxxxx", "  (Symm fl)"},
    {25, "HSQ ", 8, "xxxxxxx", "  (Non symm fl)"},
    {26, "T ", 4, "xxx", ""},
    {27, "BOX ", 7, "xxxxxx", "  (Single sym)"},
    {28, "Fb ", 2, "x", ""},
    {31, "Tube ", 2, "x", ""},
    {51, "PLate + Fb ", 4, "xxx", ""},
    {52, "PLate + L ", 2, "x", ""},
    {53, "PLate + L ", 6, "xxxxx", ""},
    {54, "PLate + BF ", 2, "x", ""},
    {55, "Plate + Trapez ", 6, "xxxxx", ""},
    {56, "PLate + T ", 6, "xxxxx", ""},
}};

/// A column as a catalogue row; beyond any table for what is no row.
int RowNumber(double v) {
  return v >= 0.0 && v <= 32767.0 ? static_cast<int>(std::nearbyint(v)) : -1;
}

std::string RolledText(const RolledEntry& entry, const DatabaseRow& row, const Catalogues& cat) {
  const CatalogueTable& table = cat[entry.table];
  const int index = RowNumber(row.col[entry.sub == 0 ? 2 : 3]);
  if (entry.columns[1] == 0) return entry.word + Format(table(index, entry.columns[0]), "00");
  return entry.word + Catalogued(table, index, entry.columns[0]) + "x" +
         Catalogued(table, index, entry.columns[1]) + "x" +
         Catalogued(table, index, entry.columns[2]);
}

std::string TypedText(const TypedEntry& entry, const DatabaseRow& row) {
  std::string text = entry.word + Plain(row.col[3]);
  for (int i = 1; i < entry.numbers; ++i) text += entry.joints[i - 1] + Plain(row.col[3 + i]);
  return text + entry.end;
}

}  // namespace

std::string DatabaseEntry(const DatabaseRow& row, const Catalogues& cat) {
  const double family = row.col[1];
  for (const RolledEntry& entry : kRolled)
    if (entry.family == family && (entry.sub == 0 || entry.sub == row.col[2]))
      return RolledText(entry, row, cat);
  for (const TypedEntry& entry : kTyped)
    if (entry.family == family) return TypedText(entry, row);
  if (family == 41) return "General - " + row.name;
  return " ";
}

std::vector<std::string> FillDatabaseList(const Database& db, const Catalogues& cat) {
  std::vector<std::string> list;
  for (int i = 0; i <= db.DbLast; ++i) {
    try {
      list.push_back(DatabaseEntry(db.DbTable[i], cat));
    } catch (const ArithmeticFault&) {
      list.emplace_back(" ");
    }
  }
  return list;
}

}  // namespace korvane
