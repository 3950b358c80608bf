// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/console/csv.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace korvane {

namespace {

bool IsBlank(char c) {
  return c == ' ' || c == '\r' || c == '\n';
}

std::string_view Trimmed(std::string_view text, char separator) {
  const auto blank = [separator](char c) { return IsBlank(c) || (c == '\t' && separator != '\t'); };
  while (!text.empty() && blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && blank(text.back())) text.remove_suffix(1);
  return text;
}

/// Walks over text outside and inside quotes; a quote opens at the beginning of a cell alone, and
/// blanks may stand before it. at(i, c) is called for what stands outside; it returns false to end.
template <class At>
void WalkOutsideQuotes(std::string_view text, char separator, bool& quoted, At&& at) {
  bool atBeginning = true;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (quoted) {
      if (c != '"') continue;
      if (i + 1 < text.size() && text[i + 1] == '"') {
        ++i;
      } else {
        quoted = false;
      }
      continue;
    }
    if (c == '"' && atBeginning) {
      quoted = true;
      atBeginning = false;
      continue;
    }
    if (c == separator || c == '\n') {
      atBeginning = true;
    } else if (!IsBlank(c)) {
      atBeginning = false;
    }
    if (!at(i, c)) return;
  }
}

}  // namespace

std::size_t RowLength(std::string_view text, char separator, bool last) {
  const void* const lineEnd = std::memchr(text.data(), '\n', text.size());
  const std::size_t line =
      lineEnd == nullptr
          ? text.size()
          : static_cast<std::size_t>(static_cast<const char*>(lineEnd) - text.data()) + 1;
  // Most rows hold no quote.
  if (std::memchr(text.data(), '"', line) == nullptr) {
    return lineEnd != nullptr || last ? line : std::string_view::npos;
  }
  bool quoted = false;
  std::size_t length = std::string_view::npos;
  WalkOutsideQuotes(text, separator, quoted, [&](std::size_t i, char c) {
    if (c == '\n') length = i + 1;
    return c != '\n';
  });
  if (length != std::string_view::npos) return length;
  return last ? text.size() : std::string_view::npos;
}

void SplitRow(std::string_view row, char separator, std::vector<std::string_view>& cells,
              std::string& store) {
  cells.clear();
  store.clear();
  // Views into the store stay as long as it doesn't grow.
  store.reserve(row.size());
  row = Trimmed(row, separator == '\t' ? '\t' : '\0');
  std::size_t begin = 0;
  const auto add = [&](std::size_t end) {
    std::string_view cell = Trimmed(row.substr(begin, end - begin), separator);
    begin = end + 1;
    if (!cell.starts_with('"')) {
      cells.push_back(cell);
      return;
    }
    const std::size_t first = store.size();
    bool open = true;
    for (std::size_t i = 1; i < cell.size(); ++i) {
      if (open && cell[i] == '"') {
        if (i + 1 < cell.size() && cell[i + 1] == '"') {
          store += '"';
          ++i;
        } else {
          open = false;
        }
      } else {
        store += cell[i];
      }
    }
    cells.push_back(std::string_view(store).substr(first));
  };
  if (row.find('"') == std::string_view::npos) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      if (row[i] == separator) add(i);
    }
  } else {
    bool quoted = false;
    WalkOutsideQuotes(row, separator, quoted, [&](std::size_t i, char c) {
      if (c == separator) add(i);
      return true;
    });
  }
  add(row.size());
}

char SeparatorOf(std::string_view heading) {
  constexpr std::array kSeparators{';', '\t', ','};
  char most = ',';
  std::ptrdiff_t count = 0;
  for (const char separator : kSeparators) {
    std::ptrdiff_t here = 0;
    bool quoted = false;
    WalkOutsideQuotes(heading, separator, quoted, [&](std::size_t, char c) {
      here += c == separator;
      return true;
    });
    if (here > count) {
      most = separator;
      count = here;
    }
  }
  return most;
}

bool WritesDecimalComma(std::string_view rows, char separator, const std::vector<bool>& numbers) {
  if (separator == ',') return false;
  std::vector<std::string_view> cells;
  std::string store;
  while (!rows.empty()) {
    const std::size_t length = RowLength(rows, separator, true);
    SplitRow(rows.substr(0, length), separator, cells, store);
    for (std::size_t i = 0; i < std::min(cells.size(), numbers.size()); ++i) {
      if (numbers[i] && cells[i].find(',') != std::string_view::npos) return true;
    }
    rows.remove_prefix(length);
  }
  return false;
}

bool IsUnitsRow(const std::vector<std::string_view>& cells) {
  bool any = false;
  for (const std::string_view cell : cells) {
    if (cell.empty()) continue;
    const bool square = cell.front() == '[' && cell.back() == ']';
    const bool round = cell.front() == '(' && cell.back() == ')';
    if (!square && !round) return false;
    any = true;
  }
  return any;
}

void AppendCell(std::string_view cell, const CsvManner& manner, std::string& line) {
  const bool bare = std::none_of(cell.begin(), cell.end(), [&](char c) {
    return c == manner.separator || c == '"' || c == '\r' || c == '\n';
  });
  if (bare) {
    line += cell;
    return;
  }
  line += '"';
  for (const char c : cell) {
    if (c == '"') line += '"';
    line += c;
  }
  line += '"';
}

}  // namespace korvane
