// SPDX-License-Identifier: GPL-3.0-or-later
// What the tests of the catalogue rows share: the data folder, and one comparison.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <string>

#include "places.h"
#include "sections/readprofiles.h"
#include "tests/support/source_library.h"

namespace korvane::testing {

inline std::string DataFolder() {
  return (std::filesystem::path(KORVANE_SOURCE_DIR) / "data").string();
}

inline const Catalogues& Data() {
  return SourceLibrary()->catalogues;
}

/// Expects the catalogue's value to agree with the exact one within the relative tolerance.
inline void ExpectWithin(const char* name, double value, double exact, double tolerance) {
  EXPECT_LE(std::fabs(value - exact), tolerance * std::fabs(exact))
      << name << ": catalogue " << value << ", recomputed " << exact << ", off by "
      << 100 * (value / exact - 1) << " %";
}

/// The figures of the row's name ("406x178x74"), for the messages of failed rows.
inline std::string RowName(Cat cat, int row, int first, int last) {
  std::string name;
  for (int col = first; col <= last; ++col) {
    if (col > first) name += 'x';
    std::string digits = std::to_string(Data()[cat](row, col));
    digits.erase(digits.find_last_not_of('0') + 1);
    if (digits.back() == '.') digits.pop_back();
    name += digits;
  }
  return name;
}

}  // namespace korvane::testing
