// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of the checker's sheet: every input and every step of the checks unrounded, so that
// each ratio of the control report can be followed with a pocket calculator.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/calculation.h"

namespace korvane {

/// One quantity. value is a number, or words where there is no number; from tells where it comes
/// from: a clause of the standard, "typed", "catalogue", a formula.
struct CheckerRow {
  std::string symbol, value, unit, from;
};

struct CheckerBlock {
  std::string heading;
  std::vector<CheckerRow> rows;
};
using CheckerBlocks = std::vector<CheckerBlock>;

/// A result with seven significant digits, with an exponent where it is very large or small.
std::string CheckerDigits(double value);

/// Member, material, factors, loads and the section as they were entered.
CheckerBlocks CheckerInputs(const Design& d);
/// Section values, capacities, the numbers behind each line of the checks, deflections and
/// frequencies of the last calculation.
CheckerBlocks CheckerResults(const Design& d);

namespace checker {

/// A row of a table of quantities; when null, or tells whether the design has the quantity.
struct Item {
  const char* symbol;
  double (*value)(const Design&);
  const char* unit;
  const char* from;
  bool (*when)(const Design&) = nullptr;
};

/// Unit of a section value by its name: "Iw" mm6, "Wely" mm3, "tw" mm.
std::string SectionUnit(std::string_view name);

/// Adds a number to a block.
inline void Add(CheckerBlock& block, std::string symbol, double value, std::string unit = "",
                std::string from = "") {
  block.rows.push_back({std::move(symbol), CheckerDigits(value), std::move(unit), std::move(from)});
}

/// Adds a quantity that is told in words.
inline void Words(CheckerBlock& block, std::string symbol, std::string words) {
  block.rows.push_back({std::move(symbol), std::move(words), "", ""});
}

/// Whether a section has a top and a bottom side with classes and capacities of their own.
bool OneSided(const Design& d);

/// The part of CheckerResults that is about the member.
CheckerBlocks MemberResults(const Design& d);

/// Adds the rows of a table to a block, those whose condition holds.
template <class Items>
void AddItems(CheckerBlock& block, const Items& items, const Design& d) {
  for (const Item& item : items) {
    if (item.when != nullptr && !item.when(d)) continue;
    block.rows.push_back({item.symbol, CheckerDigits(item.value(d)), item.unit, item.from});
  }
}

}  // namespace checker

}  // namespace korvane
