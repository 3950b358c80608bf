// SPDX-License-Identifier: GPL-3.0-or-later
// Puts the verification book together as Markdown.
#include <algorithm>
#include <cmath>
#include <cstdio>

#include "case.h"
#include "places.h"

namespace korvane::verification {

/// Five digits, which both single precision and the independent values hold.
std::string Figure(double value) {
  char text[40];
  std::snprintf(text, sizeof text, "%.5g", value);
  return text;
}

/// In per cent with three decimals, never "-0.000".
std::string Percent(const Case& c) {
  double percent = c.independent == 0 ? 0 : std::round(100000 * Difference(c)) / 1000;
  if (percent == 0) percent = 0;
  char text[40];
  std::snprintf(text, sizeof text, "%+.3f %%", percent);
  return percent == 0 ? "0.000 %" : text;
}

std::string Summary(const std::vector<Chapter>& book) {
  std::size_t count = 0;
  std::size_t near = 0;
  for (const Chapter& chapter : book) {
    count += chapter.cases.size();
    near +=
        std::size_t(std::count_if(chapter.cases.begin(), chapter.cases.end(),
                                  [](const Case& c) { return std::fabs(Difference(c)) < 1e-3; }));
  }
  return std::to_string(count) + " cases; " + std::to_string(near) + " of them agree within 0.1 %.";
}

namespace {

void AddCell(std::string& line, const std::string& text) {
  line += " " + text + " |";
}

std::string Row(int number, const Case& c) {
  std::string line = "|";
  AddCell(line, std::to_string(number));
  AddCell(line, c.name);
  AddCell(line, c.source);
  AddCell(line, c.inputs);
  AddCell(line, Figure(c.independent));
  AddCell(line, Figure(c.ours));
  AddCell(line, c.unit);
  AddCell(line, Percent(c));
  AddCell(line, c.remark);
  return line + "\n";
}

constexpr const char* kHead = R"(# Verification

Written by `build/release/tests/test_verification --write`; the test program of the same name fails
when a value leaves its tolerance or when this file is not what it writes. Never edit it by hand.

A case sets a value that was worked out apart from the program, or that is printed in a standard or
a textbook, beside the program's own. No independent value comes from the program. Differences are
ours over independent less 1. Where the program follows a rule that differs from the exact one, the
remark says so and the difference says by how much.
)";

}  // namespace

std::vector<Chapter> Book() {
  std::vector<Chapter> book{CatalogueSections(), BuiltSections(), BucklingCurveCases(),
                            PlateElements(),     ClassLimits(),   CriticalMoments(),
                            BeamFormulas(),      Frequencies()};
  for (Chapter& member : Members()) book.push_back(std::move(member));
  book.push_back(SettledRules());
  book.push_back(NoteFigures());
  return book;
}

std::string BookText(const std::vector<Chapter>& book) {
  std::string text = kHead + ("\n" + Summary(book) + "\n");
  int number = 0;
  for (const Chapter& chapter : book) {
    text += "\n## " + chapter.title + "\n\n" + chapter.introduction + "\n\n";
    text +=
        "| No. | Case | Source | Inputs | Independent | KORVANE | Unit | Difference | Remark |\n";
    text += "| ---: | --- | --- | --- | ---: | ---: | --- | ---: | --- |\n";
    for (const Case& c : chapter.cases) text += Row(++number, c);
  }
  return text;
}

std::string BookPath() {
  return KORVANE_SOURCE_DIR "/docs/VERIFICATION.md";
}

}  // namespace korvane::verification
