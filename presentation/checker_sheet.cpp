// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/checker_sheet.h"

#include <algorithm>
#include <iterator>

#include "presentation/checker_rows.h"
#include "presentation/page.h"

namespace korvane {

namespace {

constexpr int kColumns = 3;
constexpr double kGap = 1.6;  ///< between the columns
constexpr double kWidth = (kRightEdge - kMargin - (kColumns - 1) * kGap) / kColumns;
constexpr double kFoot = 87.0;
constexpr double kMostStep = 0.95;      ///< lines from row to row
constexpr double kLettersOfStep = 7.2;  ///< pt of letters for a step of one line
constexpr double kHeadingGap = 0.7;     ///< rows above a heading

/// Stops of a row in columns of the page.
constexpr double kValue = 17.9;  ///< right end of a number
constexpr double kWords = 9.4;   ///< left end of words in the place of a number
constexpr double kUnit = 18.4;
constexpr double kFrom = 23.2;
constexpr double kBehind = 0.8;  ///< from a symbol to words behind it

/// A row, or a heading where the row is null.
struct Placed {
  const CheckerBlock* block;
  const CheckerRow* row;
};

std::vector<Placed> Flow(const CheckerBlocks& blocks) {
  std::vector<Placed> flow;
  for (const CheckerBlock& block : blocks) {
    flow.push_back({&block, nullptr});
    for (const CheckerRow& row : block.rows) flow.push_back({&block, &row});
  }
  return flow;
}

/// Columns that the flow takes when a column holds this many rows; a block that goes on in the
/// next column has its heading again.
struct Walk {
  double capacity;
  bool whole;  ///< blocks are not broken
  double used = 0;
  int column = 0;

  /// Rows that must stay with a heading.
  double Together(const CheckerBlock& block) const {
    return std::min<double>(static_cast<double>(block.rows.size()), whole ? 1E9 : 2) + 1;
  }

  /// Makes room for an element; true where a block goes on in a new column.
  bool Place(const Placed& element) {
    const bool heading = element.row == nullptr;
    const double gap = heading && used > 0 ? kHeadingGap : 0;
    const double need = gap + (heading ? Together(*element.block) : 1);
    const bool next = used > 0 && used + need > capacity;
    if (!next) {
      used += gap + 1;
      return false;
    }
    ++column;
    used = heading ? 1 : 2;
    return !heading;
  }
};

int ColumnsFor(const std::vector<Placed>& flow, Walk walk) {
  for (const Placed& element : flow) {
    walk.Place(element);
    if (walk.used > walk.capacity) return kColumns + 1;  // a block longer than the page
  }
  return walk.column + 1;
}

/// The shortest columns that hold the flow, unbroken blocks where the page allows.
Walk WalkFor(const std::vector<Placed>& flow, double mostRows) {
  const double fewest = static_cast<double>(flow.size()) / kColumns;
  for (const bool whole : {true, false}) {
    for (double rows = fewest; rows <= mostRows; rows += 0.5) {
      if (ColumnsFor(flow, {rows, whole}) <= kColumns) return {rows, whole};
    }
  }
  return {0, false};
}

bool IsNumber(const std::string& text) {
  return !text.empty() && text.find_first_not_of("+-.0123456789E") == std::string::npos;
}

void DrawRow(DrawingTarget& t, double column, double line, const CheckerRow& row) {
  PutText(t, column, line, row.symbol);
  if (IsNumber(row.value)) {
    PutRight(t, column + kValue, line, row.value);
    PutText(t, column + kUnit, line, row.unit);
    t.ForeColor = Role::Quiet;
    PutFitted(t, column + kFrom, line, row.from, kWidth - kFrom);
    t.ForeColor = Role::Ink;
    return;
  }
  const double words = std::max(kWords, t.TextWidth(row.symbol) + kBehind);
  PutFitted(t, column + words, line, row.value, kWidth - words);
}

}  // namespace

void DrawCheckerSheet(DrawingTarget& t, double line, const Design& d) {
  CheckerBlocks blocks = CheckerInputs(d);
  std::ranges::move(CheckerResults(d), std::back_inserter(blocks));
  std::erase_if(blocks, [](const CheckerBlock& b) { return b.rows.empty(); });
  const auto flow = Flow(blocks);
  const double top = line + 1.4;
  double step = kMostStep;
  Walk walk = WalkFor(flow, (kFoot - top) / step);
  while (walk.capacity == 0) {
    step *= 0.98;
    walk = WalkFor(flow, (kFoot - top) / step);
  }

  const double size = t.FontSize;
  for (const Placed& element : flow) {
    t.FontSize = kLettersOfStep * step;
    const bool goesOn = walk.Place(element);
    const double column = kMargin + walk.column * (kWidth + kGap);
    const double at = top + (walk.used - 1) * step;
    if (element.row == nullptr) {
      PutHeading(t, column, at, element.block->heading);
      continue;
    }
    if (goesOn) PutHeading(t, column, at - step, element.block->heading + " (continued)");
    DrawRow(t, column, at, *element.row);
  }
  t.FontSize = size;
}

}  // namespace korvane
