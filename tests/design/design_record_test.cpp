// SPDX-License-Identifier: GPL-3.0-or-later
// A thousand random members against their stored results: forces, deflections and ratios within
// a millionth, the texts of the result lines letter by letter. A change that is to make the
// program faster or tidier leaves them all as they are.
#include "design_record.h"

#include <gtest/gtest.h>

#include <fstream>

#include "places.h"

namespace korvane {
namespace {

using namespace record;

std::vector<std::string> StoredLines() {
  std::ifstream file(KORVANE_SOURCE_DIR "/tests/design/design_record.csv");
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  return lines;
}

TEST(DesignRecord, HoldsForEveryMember) {
  const std::vector<std::string> lines = StoredLines();
  ASSERT_FALSE(lines.empty());
  ASSERT_EQ(lines.front(), Header());
  std::size_t k = 1;
  int faults = 0;
  ForEachMember([&](int family, unsigned seed) {
    ASSERT_LT(k, lines.size()) << "family " << family << " seed " << seed;
    const Row before = RowFrom(lines[k++]);
    ASSERT_EQ(before.family, family);
    ASSERT_EQ(before.seed, seed);
    if (!before.fault.empty()) ++faults;
    EXPECT_EQ(Differences(before, RowOf(family, seed)), "")
        << "family " << family << " seed " << seed;
  });
  EXPECT_EQ(k, lines.size());
  // A record of failures would say nothing of the figures.
  EXPECT_LT(faults, static_cast<int>(lines.size()) / 4);
}

/// What the comparison sees and what it passes.
TEST(DesignRecord, SeesAChangeOfTwoMillionths) {
  const Row stored = RowOf(1, kFirstSeed + 1001);
  ASSERT_EQ(stored.fault, "");
  for (std::size_t i = 0; i < stored.figures.size(); ++i) {
    Row now = stored;
    now.figures[i] *= 1 + 5e-7;
    EXPECT_EQ(Differences(stored, now), "") << Columns()[i].name;
    if (stored.figures[i] == 0 || Columns()[i].group != kOwn) continue;
    now.figures[i] = stored.figures[i] * (1 + 2e-6);
    EXPECT_NE(Differences(stored, now), "") << Columns()[i].name;
  }
  for (std::size_t i = 0; i < stored.texts.size(); ++i) {
    Row now = stored;
    ++now.texts[i];
    EXPECT_NE(Differences(stored, now), "") << kLineNames[i];
  }
}

}  // namespace
}  // namespace korvane
