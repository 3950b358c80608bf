// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the record of results that design/DesignRecord compares with. Run it only when results
// were meant to change: record_designs > tests/design/design_record.csv
#include <cstdio>

#include "../design_record.h"

int main() {
  using namespace korvane::record;
  std::puts(Header().c_str());
  ForEachMember([](int family, unsigned seed) { std::puts(TextOf(RowOf(family, seed)).c_str()); });
  return 0;
}
