// SPDX-License-Identifier: GPL-3.0-or-later
// The texts of the project database's list.
#include <cmath>
#include <string>

#include "core/text.h"
#include "sections/databasebas.h"
#include "sections/names.h"

namespace korvane {
namespace {

/// A column as a catalogue row; beyond any table for what is no row.
int RowNumber(double v) {
  return v >= 0.0 && v <= 32767.0 ? static_cast<int>(std::nearbyint(v)) : -1;
}

/// A family of the catalogues: the number with two digits behind a word of its own, or the entry of
/// the size list.
std::string RolledText(const Family& family, const DatabaseRow& row, const Catalogues& cat) {
  const double sub = family.sub == nullptr ? 0.0 : double(row.col[2]);
  const int index = RowNumber(row.col[family.sub == nullptr ? 2 : 3]);
  for (const FamilyCatalogue& c : family.catalogues) {
    if (c.sub != sub) continue;
    if (family.words.list == nullptr) return ListEntry(c.cat, cat, index);
    const Cat table = family.words.listCatalogue == Cat::Count ? c.cat : family.words.listCatalogue;
    return family.words.list + Format(cat[table](index, 1), "00");
  }
  return " ";
}

/// A family of typed dimensions: words around the columns from 3 on.
std::string TypedText(const Family& family, const DatabaseRow& row) {
  const FamilyWords& words = family.words;
  const StateField* first = DatabaseField(family.code, 3);
  if (first != nullptr && IsText(*first)) return words.list + row.name;
  std::string text = words.list + Plain(row.col[3]);
  int column = 4;
  for (const char* joint = words.joints; *joint != '\0'; ++joint) {
    text += *joint + Plain(row.col[column++]);
  }
  return text + words.listEnd;
}

}  // namespace

std::string DatabaseEntry(const DatabaseRow& row, const Catalogues& cat) {
  const Family* family = FamilyOfRow(row);
  if (family == nullptr) return " ";
  return family->dimensions.empty() ? RolledText(*family, row, cat) : TypedText(*family, row);
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
