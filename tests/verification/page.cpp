// SPDX-License-Identifier: GPL-3.0-or-later
// Puts the verification book together as a page of the help book.
#include <cctype>
#include <cmath>

#include "case.h"
#include "places.h"

namespace korvane::verification {

namespace {

/// From here on a difference stands ahead of all chapters with its reason.
constexpr double kSeen = 5e-3;

constexpr const char* kHead = R"(<!DOCTYPE html>
<html lang="en">
<!-- Made by test_verification of the cases: change those, not this page. -->
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>Verification</title>
<link rel="stylesheet" type="text/css" href="help.css">
<link rel="stylesheet" href="browser.css">
<script src="book.js" defer></script>
</head>
<body>
<p class="top"><a href="index.html">Contents</a></p>
<h1>Verification</h1>
<p>Each case sets a value that was worked out apart from the program, or that is printed in a
standard or a textbook, beside the program's own. No independent value comes from the program. A
test works all of them out anew at each change of the program and stops where a value leaves its
tolerance. Differences are the program's value over the independent one less 1.</p>
)";

std::string Escaped(const std::string& text) {
  std::string out;
  for (const char c : text) {
    if (c == '&') {
      out += "&amp;";
    } else if (c == '<') {
      out += "&lt;";
    } else if (c == '>') {
      out += "&gt;";
    } else {
      out += c;
    }
  }
  return out;
}

/// "Settled rules against mechanics" is settled-rules-against-mechanics.
std::string Anchor(const std::string& title) {
  std::string out;
  for (const char c : title) {
    if (std::isalnum(static_cast<unsigned char>(c)) != 0) {
      out += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    } else if (!out.empty() && out.back() != '-') {
      out += '-';
    }
  }
  return out;
}

std::string Cell(const std::string& text) {
  return "<td>" + Escaped(text) + "</td>";
}

std::string NameCell(const Case& c) {
  return Cell(c.inputs.empty() ? c.name : c.name + "; " + c.inputs);
}

std::string WithUnit(double value, const std::string& unit) {
  return Cell(Figure(value) + (unit.empty() ? "" : " " + unit));
}

/// The cases that differ so much that an engineer should know.
std::string Differing(const std::vector<Chapter>& book) {
  std::string rows;
  for (const Chapter& chapter : book) {
    for (const Case& c : chapter.cases) {
      if (std::fabs(Difference(c)) <= kSeen) continue;
      rows += "<tr>" + NameCell(c) + Cell(Percent(c)) + Cell(c.remark) + "<td><a href=\"#" +
              Anchor(chapter.title) + "\">" + Escaped(chapter.title) + "</a></td></tr>\n";
    }
  }
  return "<h2><a name=\"differences\"></a>Where the two differ by more than half a per cent</h2>\n"
         "<p>On which side a member is by such a difference, and what to do, is told in "
         "<a href=\"trust.html#sides\">Before you trust a result</a>.</p>\n"
         "<table>\n<tr><th>Case</th><th>Difference</th><th>Why</th><th>Chapter</th></tr>\n" +
         rows + "</table>\n";
}

std::string ChapterTable(const Chapter& chapter) {
  bool remarks = false;
  for (const Case& c : chapter.cases) remarks = remarks || !c.remark.empty();
  std::string table =
      "<h2><a name=\"" + Anchor(chapter.title) + "\"></a>" + Escaped(chapter.title) + "</h2>\n<p>" +
      Escaped(chapter.introduction) + "</p>\n" +
      "<table>\n<tr><th>Case</th><th>Source</th><th>Independent</th><th>KORVANE</th>"
      "<th>Difference</th>" +
      (remarks ? "<th>Remark</th>" : "") + "</tr>\n";
  for (const Case& c : chapter.cases) {
    table += "<tr>" + NameCell(c) + Cell(c.source) + WithUnit(c.independent, c.unit) +
             WithUnit(c.ours, c.unit) + Cell(Percent(c)) + (remarks ? Cell(c.remark) : "") +
             "</tr>\n";
  }
  return table + "</table>\n";
}

}  // namespace

std::string BookPage(const std::vector<Chapter>& book) {
  std::string page = kHead;
  page += "<p>" + Summary(book) +
          " Where the program follows a rule that differs from the exact "
          "one, the remark says so and the difference says by how much.</p>\n";
  page += Differing(book);
  for (const Chapter& chapter : book) page += ChapterTable(chapter);
  return page + "</body>\n</html>\n";
}

std::string HelpPath() {
  return KORVANE_SOURCE_DIR "/docs/help/";
}

}  // namespace korvane::verification
