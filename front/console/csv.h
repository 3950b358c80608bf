// SPDX-License-Identifier: GPL-3.0-or-later
// Tables as spreadsheets write them: rows, cells and the manner in which they are separated.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

/// The manner of a table, which its output keeps.
struct CsvManner {
  char separator = ',';  ///< comma, semicolon or tab
  bool decimalComma = false;
  bool carriageReturns = false;  ///< lines end in CR LF
  bool byteOrderMark = false;
};

/// Where the row at the beginning of the text ends, behind its line end; a line end inside a quoted
/// cell belongs to the row. npos where the text ends before the row does; last: the text's end ends
/// it.
std::size_t RowLength(std::string_view text, char separator, bool last);

/// The cells of one row, without blanks around them. Quoted ones are unescaped into store; the
/// views hold as long as row and store do.
void SplitRow(std::string_view row, char separator, std::vector<std::string_view>& cells,
              std::string& store);

/// The separator of a heading: the one that it holds most often outside quotes.
char SeparatorOf(std::string_view heading);

/// Whether a number with a decimal comma stands in one of the rows, in the columns marked.
bool WritesDecimalComma(std::string_view rows, char separator, const std::vector<bool>& numbers);

/// Whether all cells that are not empty stand in brackets, and there is one: a line of units.
bool IsUnitsRow(const std::vector<std::string_view>& cells);

/// A cell at the end of a line, quoted where it must be.
void AppendCell(std::string_view cell, const CsvManner& manner, std::string& line);

/// The manner's line end.
inline const char* LineEnd(const CsvManner& manner) {
  return manner.carriageReturns ? "\r\n" : "\n";
}

}  // namespace korvane
