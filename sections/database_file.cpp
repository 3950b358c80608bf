// SPDX-License-Identifier: GPL-3.0-or-later
// The file of the project database: 16 lines a row, no header, no count.
#include <optional>
#include <string>
#include <string_view>

#include "core/text.h"
#include "sections/databasebas.h"

namespace korvane {
namespace {

constexpr int kColumns = 16;

/// Takes the next line off the text; nothing at its end.
std::optional<std::string_view> NextLine(std::string_view& rest) {
  if (rest.empty()) return std::nullopt;
  const std::size_t end = rest.find('\n');
  std::string_view line = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

/// The text between the quotes, up to the closing one; without quotes the line as it stands.
std::string Unquoted(std::string_view line) {
  const std::size_t first = line.find_first_not_of(' ');
  if (first == std::string_view::npos || line[first] != '"') return std::string(line);
  line.remove_prefix(first + 1);
  return std::string(line.substr(0, line.find('"')));
}

number NumberOf(std::string_view line) {
  if (line.find_first_not_of(' ') == std::string_view::npos) return number::Empty();
  return LeadingNumber(line);
}

bool IsName(const DatabaseRow& row, int column) {
  const Family* family = FamilyOfRow(row);
  const StateField* field = family == nullptr ? nullptr : DatabaseField(family->code, column);
  return field != nullptr && IsText(*field);
}

/// Whether the text held a complete row.
bool ReadRow(std::string_view& rest, DatabaseRow& row) {
  for (int column = 1; column <= kColumns; ++column) {
    const auto line = NextLine(rest);
    if (!line) return false;
    if (IsName(row, column))
      row.name = Unquoted(*line);
    else
      row.col[column] = NumberOf(*line);
  }
  return true;
}

}  // namespace

void ReadDatabase(const std::string& path, Database& db) {
  ClearDatabase(db);
  const auto bytes = ReadWholeFile(path);
  if (!bytes) return;
  const std::string text = ToUtf8(*bytes);
  std::string_view rest = text;
  try {
    while (db.DbLast < db.DbTable.kLast) {
      DatabaseRow row;
      if (!ReadRow(rest, row)) return;
      db.DbTable[db.DbLast + 1] = row;
      db.DbLast = db.DbLast + 1;
    }
  } catch (const ArithmeticFault&) {
    // A number beyond double precision ends the reading like any other error.
  }
}

WriteResult WriteDatabase(const std::string& path, const Database& db) {
  std::string text;
  for (int i = 0; i <= db.DbLast; ++i) {
    const DatabaseRow& row = db.DbTable[i];
    for (int column = 1; column <= kColumns; ++column) {
      const number& value = row.col[column];
      if (IsName(row, column))
        text += '"' + row.name + '"';
      else if (!value.IsEmpty())
        text += FileText(static_cast<double>(value));
      text += "\r\n";
    }
  }
  return WriteFile(path, text);
}

}  // namespace korvane
