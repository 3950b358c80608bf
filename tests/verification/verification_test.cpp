// SPDX-License-Identifier: GPL-3.0-or-later
// Every case of the verification book lies within its tolerance, and the document is what the
// cases make. Called with --write it writes the document instead.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iostream>
#include <set>
#include <sstream>

#include "case.h"

namespace korvane::verification {
namespace {

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

TEST(Verification, TheDocumentIsWhatTheCasesMake) {
  std::ifstream file(BookPath(), std::ios::binary);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  EXPECT_TRUE(bytes.str() == BookText(TheBook()))
      << "write " << BookPath() << " anew with test_verification --write";
}

}  // namespace
}  // namespace korvane::verification

int main(int argc, char** argv) {
  using namespace korvane::verification;
  const bool write = std::any_of(argv + 1, argv + argc,
                                 [](const char* word) { return !std::strcmp(word, "--write"); });
  if (write) {
    std::ofstream file(BookPath(), std::ios::binary);
    file << BookText(Book());
    file.flush();
    if (!file) std::cerr << BookPath() << " could not be written\n";
    return file ? 0 : 1;
  }
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
