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
constexpr double kValue = 18.6;  ///< right end of a number
constexpr double kWords = 10.4;  ///< left end of words in the place of a number
constexpr double kUnit = 19.2;
constexpr double kFrom = 24.6;

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

/// Whether a heading stands here with fewer than two rows below it in the column.
bool HeadingAtFoot(const std::vector<Placed>& flow, std::size_t i, double left) {
  return flow[i].row == nullptr && left < kHeadingGap + 3 && i + 1 < flow.size();
}

/// Columns that the flow takes when a column holds this many rows; a block that goes on in the
/// next column has its heading again.
struct Walk {
  double capacity;
  double used = 0;
  int column = 0;

  /// Makes room for an element; true where it begins a column.
  bool Place(const std::vector<Placed>& flow, std::size_t i) {
    const bool heading = flow[i].row == nullptr;
    const double need = heading && used > 0 ? 1 + kHeadingGap : 1;
    const bool next = used > 0 && (used + need > capacity ||
                                   (heading && HeadingAtFoot(flow, i, capacity - used)));
    if (next) {
      ++column;
      used = heading ? 1 : 2;
    } else {
      used += need;
    }
    return next || (i == 0);
  }
};

int ColumnsFor(const std::vector<Placed>& flow, double capacity) {
  Walk walk{capacity};
  for (std::size_t i = 0; i < flow.size(); ++i) walk.Place(flow, i);
  return walk.column + 1;
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
    PutText(t, column + kFrom, line, row.from);
    t.ForeColor = Role::Ink;
    return;
  }
  PutText(t, column + kWords, line, row.value);
}

}  // namespace

void DrawCheckerSheet(DrawingTarget& t, double line, const Design& d) {
  CheckerBlocks blocks = CheckerInputs(d);
  std::ranges::move(CheckerResults(d), std::back_inserter(blocks));
  std::erase_if(blocks, [](const CheckerBlock& b) { return b.rows.empty(); });
  const auto flow = Flow(blocks);
  const double top = line + 1.4;
  double step = kMostStep;
  while (ColumnsFor(flow, (kFoot - top) / step) > kColumns) step *= 0.98;
  // Columns of one length.
  double rows = static_cast<double>(flow.size()) / kColumns;
  while (ColumnsFor(flow, rows) > kColumns) rows += 1;

  const double size = t.FontSize;
  Walk walk{rows};
  for (std::size_t i = 0; i < flow.size(); ++i) {
    t.FontSize = kLettersOfStep * step;
    const bool first = walk.Place(flow, i);
    const double column = kMargin + walk.column * (kWidth + kGap);
    const double at = top + (walk.used - 1) * step;
    if (flow[i].row == nullptr) {
      PutHeading(t, column, at, flow[i].block->heading);
      continue;
    }
    if (first) PutHeading(t, column, at - step, flow[i].block->heading + " (continued)");
    DrawRow(t, column, at, *flow[i].row);
  }
  t.FontSize = size;
}

}  // namespace korvane
