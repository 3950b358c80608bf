// SPDX-License-Identifier: GPL-3.0-or-later
// A search takes no memory: no text is composed and no list grows while it runs.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "searches.h"
#include "tests/allocations.h"

namespace korvane {
namespace {

TEST(Allocation, TheCounterCounts) {
  const long before = allocations;
  const auto text = std::make_unique<std::string>(100, 'x');
  EXPECT_GE(allocations - before, 2);
  EXPECT_EQ(text->size(), 100U);
}

TEST(Allocation, ASearchOfAllSeriesTakesNone) {
  Design design = Prepared();
  OptimiserResults results;
  const long before = allocations;
  for (int row = 1; row <= kOptimiserRows; ++row) SearchRow(design, row, results);
  EXPECT_EQ(allocations - before, 0);
  EXPECT_EQ(design.st.ProfileType, 11);
}

}  // namespace
}  // namespace korvane
