// SPDX-License-Identifier: GPL-3.0-or-later
// What a case of the verification book is: an independent value beside the program's own.
#pragma once

#include <cmath>
#include <string>
#include <vector>

namespace korvane::verification {

/// Relative tolerance of values that both sides work out from the same figures: the program
/// keeps its results in single precision, the independent values carry seven digits.
inline constexpr double kExact = 2e-5;
/// Relative tolerance against tables that print three or four digits.
inline constexpr double kPrinted = 5e-3;

/// One case. The independent value never comes from the program: it is printed in a standard
/// or a textbook, or was worked out apart from the program in the way that source and inputs
/// tell.
struct Case {
  std::string name;
  std::string source;
  std::string inputs;
  double independent = 0;
  double ours = 0;
  std::string unit;
  double tolerance = kExact;  ///< relative to the independent value, absolute where that is 0
  std::string remark;         ///< why the two differ, where they do so on purpose
};

/// Cases of one kind with a sentence ahead of them.
struct Chapter {
  std::string title;
  std::string introduction;
  std::vector<Case> cases;
};

/// Ours over independent less 1; the plain difference where the independent value is 0.
inline double Difference(const Case& c) {
  return c.independent == 0 ? c.ours : c.ours / c.independent - 1;
}

// The chapters, each from its own file.
Chapter CatalogueSections();
Chapter BuiltSections();
Chapter BucklingCurveCases();
Chapter PlateElements();
Chapter ClassLimits();
Chapter CriticalMoments();
Chapter BeamFormulas();
Chapter Frequencies();
Chapter SettledRules();
Chapter NoteFigures();
std::vector<Chapter> Members();

/// All chapters in the order of the book.
std::vector<Chapter> Book();

/// The whole book as Markdown, the same bytes on every machine.
std::string BookText(const std::vector<Chapter>& book);

/// The whole book as a page of the help book.
std::string BookPage(const std::vector<Chapter>& book);

/// Five digits, which both single precision and the independent values hold.
std::string Figure(double value);
/// The difference in per cent with three decimals, never "-0.000".
std::string Percent(const Case& c);
/// How many cases there are and how many agree.
std::string Summary(const std::vector<Chapter>& book);

/// The folder of the help book, with a slash.
std::string HelpPath();

/// Where the book stands in the source tree.
std::string BookPath();

}  // namespace korvane::verification
