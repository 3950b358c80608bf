// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/position_row.h"

#include <algorithm>

#include "core/text.h"

namespace korvane {
namespace {

constexpr double kSmaller = 0.85;  // size of the numbers against that of the labels
constexpr std::size_t kInOneRow = 8;
constexpr double kLeastLetters = 6;  // pt on paper, where the labels are not smaller
constexpr double kMark = 0.65;       // from the line to the first row, of the labels' size
constexpr double kGap = 0.9;         // between two numbers, and the way of a thin line

double RowHeight(double text) {
  return 1.3 * kSmaller * text;
}

int RowsFor(std::size_t count) {
  return count > kInOneRow ? 2 : 1;
}

struct Number {
  double x = 0;       // of its mark
  double centre = 0;  // of the text
  double width = 0;
  std::string text;
};

// Numbers first, first + step, ... in one row.
void Spread(std::vector<Number>& numbers, std::size_t first, std::size_t step, const Box& room) {
  std::vector<double> wanted, widths;
  for (std::size_t i = first; i < numbers.size(); i += step) {
    wanted.push_back(numbers[i].x);
    widths.push_back(numbers[i].width);
  }
  const std::vector<double> centres = SpreadInRow(wanted, widths, kGap, room.left, room.right);
  for (std::size_t i = first, k = 0; i < numbers.size(); i += step, ++k) {
    numbers[i].centre = centres[k];
  }
}

// A second row's line passes between two numbers of the first row.
double Passage(const std::vector<Number>& numbers, std::size_t i) {
  const Number& before = numbers[i - 1];
  const double left = before.centre + before.width / 2 + kGap / 2;
  if (i + 1 >= numbers.size()) return std::max(left, numbers[i].x);
  const Number& after = numbers[i + 1];
  return std::clamp(numbers[i].x, left, std::max(left, after.centre - after.width / 2 - kGap / 2));
}

void Print(DiagramSheet& sheet, const Number& n, double y) {
  sheet.Labels().Fix({{n.text}}, {n.centre - n.width / 2, y});
}

void DrawMarks(DiagramSheet& sheet, const std::vector<Number>& numbers, double y) {
  DrawingTarget& t = sheet.Target();
  sheet.Pen(Role::Quiet, 0.12);
  t.Line({sheet.X(0), y}, {sheet.X(1), y});
  const double height = sheet.Labels().LineHeight();
  const std::vector<LabelRun> x = {{"x", Role::Quiet}};
  sheet.Labels().Fix(x, {sheet.X(0) - sheet.Labels().WidthOf(x) - t.Across(1.2), y - height / 2});
  const std::vector<LabelRun> mark = {{"I"}};
  const double width = sheet.Labels().WidthOf(mark);
  double end = sheet.X(0) - width;
  for (const Number& n : numbers) {
    if (n.x - width / 2 < end) {
      // Too near to the mark before: a stroke instead of a letter.
      sheet.Pen(Role::Ink, 0.12);
      t.Line({n.x, y - height / 4}, {n.x, y + height / 4});
      continue;
    }
    sheet.Labels().Fix(mark, {n.x - width / 2, y - height / 2});
    end = n.x + width / 2;
  }
}

}  // namespace

double PositionRowHeight(std::size_t count, double text) {
  if (count == 0) return 0;
  return text * (0.9 + kMark) + RowsFor(count) * RowHeight(text);
}

void DrawPositionRow(DiagramSheet& sheet, const std::vector<double>& positions, double L, double y,
                     double text) {
  if (positions.empty()) return;
  DrawingTarget& t = sheet.Target();
  const DrawingState before = t;
  const double size = t.FontSize;
  t.SetTextUnits(text * kSmaller);
  if (size > 0.99 * kLeastLetters) {
    t.FontSize = std::max(t.FontSize, std::min(size, kLeastLetters));
  }
  std::vector<Number> numbers;
  for (const double at : positions) {
    Number n;
    n.x = sheet.X(L > 0 ? std::clamp(at / L, 0., 1.) : 0);
    n.text = Format(at, "#0.000");
    n.width = t.TextWidth(n.text);
    numbers.push_back(n);
  }
  const double line = y + text * 0.9;
  const double first = line + text * kMark;
  DrawMarks(sheet, numbers, line);
  const std::size_t rows = static_cast<std::size_t>(RowsFor(numbers.size()));
  for (std::size_t row = 0; row < rows; ++row) Spread(numbers, row, rows, sheet.Bounds());
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const Number& n = numbers[i];
    const Point mark{n.x, line + text * kMark / 2};
    sheet.Pen(Role::Quiet, 0.08);
    if (i % rows == 0) {
      t.Line(mark, {n.centre, first});
      Print(sheet, n, first);
      continue;
    }
    const double x = Passage(numbers, i);
    const double second = first + RowHeight(text);
    t.Line(mark, {x, first});
    t.Line({x, first}, {x, second});
    Print(sheet, n, second);
  }
  static_cast<DrawingState&>(t) = before;
}

}  // namespace korvane
