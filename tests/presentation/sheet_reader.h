// SPDX-License-Identifier: GPL-3.0-or-later
// Reads the printed sheets back as a checker does: rows of the third sheet by heading and symbol,
// the lines of the checks, and the value of a printed formula.
#pragma once

#include <cmath>
#include <cstdlib>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tests/support/recording_target.h"

namespace korvane::sheet {

/// A row of the checker's sheet as printed.
struct Row {
  std::string value, unit, from;
};
using Block = std::map<std::string, Row>;
/// Blocks by the first words of their heading.
using Blocks = std::map<std::string, Block>;

/// A line of the checks as printed.
struct Line {
  std::string formula, numbers, value, limit;
};

/// Texts of the same line of print, from left to right.
inline std::vector<std::vector<const RecordedShape*>> LinesOfPrint(const RecordingTarget& page) {
  std::vector<std::vector<const RecordedShape*>> lines;
  for (const RecordedShape* text : page.OfKind(ShapeKind::Text)) {
    // Letters made smaller stand a little lower.
    const bool goesOn = !lines.empty() &&
                        std::fabs(lines.back().back()->box.top - text->box.top) < 2 &&
                        lines.back().back()->box.left < text->box.left + 1E-9;
    if (!goesOn) lines.emplace_back();
    lines.back().push_back(text);
  }
  return lines;
}

/// The checker's sheet; the heading's part in brackets is dropped.
inline Blocks ReadChecker(const RecordingTarget& page) {
  Blocks blocks;
  Block* block = nullptr;
  for (const auto& line : LinesOfPrint(page)) {
    const std::string& first = line.front()->text;
    if (line.front()->style.bold) {
      block = &blocks[first.substr(0, first.find(" ("))];
    } else if (block != nullptr && line.size() >= 2) {
      Row row{line[1]->text, "", ""};
      // An empty unit or source is not printed.
      for (std::size_t i = 2; i < line.size(); ++i) {
        (i == 2 && line.size() > 3 ? row.unit : row.from) = line[i]->text;
      }
      block->emplace(first, row);
    }
  }
  return blocks;
}

/// The ratio of a line is in its colour; a failing line is bold as a whole.
inline bool IsRatio(const RecordedShape& text) {
  return text.style.bold && text.style.colour != Role::Ink;
}

/// The lines of both controls on the control report.
inline std::vector<Line> ReadCheckLines(const RecordingTarget& page) {
  std::vector<Line> lines;
  std::string pending;
  for (const auto& print : LinesOfPrint(page)) {
    std::string text;
    std::size_t i = print.front()->text == "> " ? 1 : 0;
    while (i < print.size() && !IsRatio(*print[i])) text += print[i++]->text;
    if (text.rfind("IR =", 0) == 0 && i == print.size()) {
      pending = text;
      continue;
    }
    const std::string whole = pending + (pending.empty() ? text : text.substr(text.find('=') + 1));
    pending.clear();
    if (whole.rfind("IR =", 0) != 0 || i == print.size()) continue;
    const auto first = whole.find('=');
    const auto second = whole.find('=', first + 1);
    Line line{whole.substr(first + 1, second - first - 1),
              whole.substr(second + 1, whole.rfind('=') - second - 1), print[i]->text, ""};
    for (++i; i < print.size(); ++i) line.limit += print[i]->text;
    lines.push_back(line);
  }
  return lines;
}

/// A printed number, nothing where the row is missing or holds words.
inline std::optional<double> Value(const Block& block, const std::string& symbol) {
  const auto row = block.find(symbol);
  if (row == block.end()) return std::nullopt;
  char* end = nullptr;
  const double value = std::strtod(row->second.value.c_str(), &end);
  if (*end != '\0') return std::nullopt;
  return value;
}

/// Works out a printed formula with the symbols of a block. Where the block holds "|N|", the line
/// means the size of N.
class Formula {
public:
  Formula(std::string text, const Block& block) : text_(std::move(text)), block_(block) {}

  /// Nothing where a symbol isn't on the sheet; missing() names it.
  std::optional<double> Work() {
    at_ = 0;
    const double value = Sum();
    if (!missing_.empty() || at_ != text_.size()) return std::nullopt;
    return value;
  }
  const std::string& missing() const { return missing_; }
  /// The greatest term of a sum, by size.
  double greatest() const { return greatest_; }

private:
  void Blanks() {
    while (at_ < text_.size() && text_[at_] == ' ') ++at_;
  }
  bool Take(char c) {
    Blanks();
    if (at_ >= text_.size() || text_[at_] != c) return false;
    ++at_;
    return true;
  }
  double Sum() {
    double value = Take('-') ? -Term() : Term();
    for (;;) {
      if (Take('+')) {
        value += Term();
      } else if (Take('-')) {
        value -= Term();
      } else {
        Blanks();
        return value;
      }
    }
  }
  double Term() {
    const double value = Product();
    greatest_ = std::fmax(greatest_, std::fabs(value));
    return value;
  }
  double Product() {
    double value = Power();
    for (;;) {
      if (Take('*')) {
        value *= Power();
      } else if (Take('/')) {
        value /= Power();
      } else {
        return value;
      }
    }
  }
  double Power() {
    const double base = Atom();
    return Take('^') ? std::pow(base, Atom()) : base;
  }
  double Atom() {
    for (const auto& [open, close] : {std::pair{'(', ')'}, std::pair{'[', ']'}}) {
      if (Take(open)) {
        const double value = Sum();
        if (!Take(close)) missing_ += close;
        return value;
      }
    }
    Blanks();
    std::string symbol;
    while (at_ < text_.size() && (std::isalnum(static_cast<unsigned char>(text_[at_])) != 0)) {
      symbol += text_[at_++];
    }
    for (const std::string& name : {"|" + symbol + "|", symbol}) {
      if (const auto value = Value(block_, name)) return *value;
    }
    missing_ += " '" + symbol + "'";
    return 1;
  }

  std::string text_;
  const Block& block_;
  std::size_t at_ = 0;
  double greatest_ = 0;
  std::string missing_;
};

}  // namespace korvane::sheet
