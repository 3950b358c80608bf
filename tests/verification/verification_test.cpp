// SPDX-License-Identifier: GPL-3.0-or-later
// Every case of the verification book lies within its tolerance, and the document is what the
// cases make. Called with --write it writes the document instead.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iostream>
#include <regex>
#include <set>
#include <sstream>

#include "case.h"

namespace korvane::verification {
namespace {

std::string PagePath() {
  return HelpPath() + "verification.html";
}

const std::vector<Chapter>& TheBook() {
  static const std::vector<Chapter> book = Book();
  return book;
}

TEST(Verification, EveryCaseLiesWithinItsTolerance) {
  for (const Chapter& chapter : TheBook()) {
    for (const Case& c : chapter.cases) {
      EXPECT_LE(std::fabs(Difference(c)), c.tolerance)
          << chapter.title << ": " << c.name << ", " << c.inputs << ": " << c.ours << " against "
          << c.independent;
    }
  }
}

/// A difference that can be seen has its reason beside it.
TEST(Verification, DifferencesAboveHalfAPerCentAreExplained) {
  for (const Chapter& chapter : TheBook()) {
    for (const Case& c : chapter.cases) {
      if (std::fabs(Difference(c)) > 5e-3) {
        EXPECT_FALSE(c.remark.empty()) << c.name << ", " << c.inputs;
      }
    }
  }
}

TEST(Verification, EveryCaseNamesItsSourceAndStandsOnce) {
  std::set<std::string> seen;
  std::size_t count = 0;
  for (const Chapter& chapter : TheBook()) {
    for (const Case& c : chapter.cases) {
      ++count;
      EXPECT_FALSE(c.source.empty()) << c.name;
      EXPECT_TRUE(seen.insert(chapter.title + c.name + c.inputs + c.source).second) << c.name;
    }
  }
  EXPECT_GE(count, 150U);
}

std::string Bytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

TEST(Verification, TheDocumentAndThePageAreWhatTheCasesMake) {
  EXPECT_TRUE(Bytes(BookPath()) == BookText(TheBook()))
      << "write " << BookPath() << " anew with test_verification --write";
  EXPECT_TRUE(Bytes(PagePath()) == BookPage(TheBook()))
      << "write " << PagePath() << " anew with test_verification --write";
}

/// The case of that name and inputs, "name; inputs".
const Case* FindCase(const std::string& name) {
  for (const Chapter& chapter : TheBook()) {
    for (const Case& c : chapter.cases) {
      if (name == c.name || name == c.name + "; " + c.inputs) return &c;
    }
  }
  return nullptr;
}

/// What the help book says of a case by its name, to the digits that it shows.
TEST(Verification, FiguresOfTheHelpBookAreThoseOfTheCases) {
  const std::regex figure("<span\\s+data-case=\"([^\"]*)\">([-+]?[0-9]+(\\.[0-9]+)?) %</span>");
  int told = 0;
  for (const char* page : {"trust.html", "validity.html"}) {
    const std::string html = Bytes(HelpPath() + page);
    for (std::sregex_iterator it(html.begin(), html.end(), figure), end; it != end; ++it) {
      ++told;
      const std::string name = (*it)[1], number = (*it)[2];
      const Case* c = FindCase(name);
      ASSERT_NE(c, nullptr) << page << ": " << name;
      const double half = (*it)[3].matched ? 0.05 : 0.5;
      EXPECT_NEAR(100 * Difference(*c), std::stod(number), half * 1.001) << page << ": " << name;
    }
  }
  EXPECT_GE(told, 12);
}

}  // namespace

bool Written(const std::string& path, const std::string& text) {
  std::ofstream file(path, std::ios::binary);
  file << text;
  file.flush();
  if (!file) std::cerr << path << " could not be written\n";
  return bool(file);
}

}  // namespace korvane::verification

int main(int argc, char** argv) {
  using namespace korvane::verification;
  const bool write = std::any_of(argv + 1, argv + argc,
                                 [](const char* word) { return !std::strcmp(word, "--write"); });
  if (write) {
    const std::vector<Chapter> book = Book();
    return Written(BookPath(), BookText(book)) && Written(PagePath(), BookPage(book)) ? 0 : 1;
  }
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
