// SPDX-License-Identifier: GPL-3.0-or-later
// Writes seeded random members of all families as project files, so that the programs of two
// systems can design the same ones: random_projects FOLDER COUNT
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "../random_states.h"
#include "core/project_file.h"
#include "sections/profile_table.h"
#include "tests/support/source_library.h"

namespace {

/// Far from the seeds of the tests.
constexpr unsigned kFirstSeed = 70'000'000;

}  // namespace

int main(int argc, char** argv) {
  using namespace korvane;
  if (argc != 3) {
    std::fputs("random_projects FOLDER COUNT\n", stderr);
    return 2;
  }
  const auto& families = AllFamilies();
  for (unsigned i = 0; i < static_cast<unsigned>(std::atoi(argv[2])); ++i) {
    Design design(SourceLibrary());
    StartDesign(design);
    RandomState(kFirstSeed + i, families[i % families.size()].code, design.st);
    std::string number = std::to_string(i);
    number.insert(0, 6 - std::min<std::size_t>(6, number.size()), '0');
    std::ofstream file(argv[1] + ("/m" + number) + ".kvn", std::ios::binary);
    file << ProjectText(design.st);
    if (!file.flush()) {
      std::fprintf(stderr, "can't write into %s\n", argv[1]);
      return 1;
    }
  }
  return 0;
}
