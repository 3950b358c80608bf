// SPDX-License-Identifier: GPL-3.0-or-later
// The texts of the project database's list.
#include <array>
#include <cmath>
#include <string>

#include "core/text.h"
#include "sections/databasebas.h"
#include "sections/names.h"

namespace korvane {
namespace {

/// Entry of a rolled family. The families of a single number show it with two digits behind
/// their own word; the others read as the entry of the size list.
struct RolledEntry {
  int family;
  int sub;  ///< column 2, where that is the sub-family; else 0
  Cat catalogue;
  const char* word;  ///< nullptr: the entry of the size list
};

/// Family 16 shows the number of the same row in the table of family 5: kept as it always was.
constexpr std::array<RolledEntry, 19> kRolled{{
    {1, 0, Cat::HEA, "HEA "},    {2, 0, Cat::HEB, "HEB "},    {3, 0, Cat::HEM, "HEM "},
    {4, 0, Cat::IPE, "IPE "},    {5, 0, Cat::UPE, "UPE "},    {6, 0, Cat::SHS, nullptr},
    {7, 0, Cat::RHS, nullptr},   {8, 0, Cat::CFSHS, nullptr}, {9, 0, Cat::CFRHS, nullptr},
    {10, 0, Cat::L1, nullptr},   {11, 0, Cat::L2, nullptr},   {15, 0, Cat::INP, "INP "},
    {16, 0, Cat::UPE, "UNP "},   {101, 1, Cat::UB, nullptr},  {101, 2, Cat::UC, nullptr},
    {101, 3, Cat::UBP, nullptr}, {102, 0, Cat::J, nullptr},   {103, 1, Cat::PFC, nullptr},
    {103, 2, Cat::CH, nullptr},
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
  const int index = RowNumber(row.col[entry.sub == 0 ? 2 : 3]);
  if (entry.word == nullptr) return ListEntry(entry.catalogue, cat, index);
  return entry.word + Format(cat[entry.catalogue](index, 1), "00");
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
