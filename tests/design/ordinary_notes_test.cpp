// SPDX-License-Identifier: GPL-3.0-or-later
// Notes on ordinary members: a caution that stands everywhere is read nowhere, so fewer than one
// member in three of each family has one. KORVANE_LONG=1 makes it ten thousand a family, a larger
// number that many.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <map>
#include <set>
#include <string>

#include "designs.h"
#include "ordinary_members.h"

namespace korvane {
namespace {

int DesignsPerFamily() {
  const char* wish = std::getenv("KORVANE_LONG");
  const int count = wish == nullptr ? 0 : std::atoi(wish);
  return count <= 0 ? 200 : count == 1 ? 10000 : count;
}

class OrdinaryNotes : public testing::TestWithParam<int> {};

TEST_P(OrdinaryNotes, FewerThanOneMemberInThreeHasACaution) {
  const Family& family = *FindFamily(GetParam());
  const int wished = DesignsPerFamily();
  std::map<std::string, int> codes;
  std::set<std::string> stopped;
  int judged = 0;
  int cautioned = 0;
  for (int i = 0; i < wished; ++i) {
    const unsigned seed =
        9'000'000U + 20'000U * static_cast<unsigned>(family.code) + static_cast<unsigned>(i);
    Design d(SourceLibrary());
    StartDesign(d);
    OrdinaryState(seed, family, d.st);
    Dice dice(seed);
    try {
      Calculate(d);
      BringTo(dice.Uniform(0.3, 1.2), d);
    } catch (const ArithmeticFault& fault) {
      stopped.insert(fault.what());
      continue;
    }
    const Verdict v = VerdictOf(d);
    ++judged;
    bool caution = false;
    for (const Note& note : v.notes) {
      if (note.Weight() == Severity::Information) continue;
      ++codes[KindOf(note.code).word];
      caution = caution || note.Weight() == Severity::Caution;
    }
    cautioned += caution;
  }
  EXPECT_LT(3 * cautioned, judged);
  EXPECT_GE(judged, wished - wished / 200) << *stopped.begin();
  std::printf("family %d: %d members, %.1f%% with a caution", family.code, judged,
              100.0 * cautioned / judged);
  for (const auto& [code, count] : codes) std::printf(", %s %d", code.c_str(), count);
  std::printf("\n");
}

std::vector<int> AllCodes() {
  std::vector<int> codes;
  for (const Family& family : AllFamilies()) codes.push_back(family.code);
  return codes;
}

INSTANTIATE_TEST_SUITE_P(Families, OrdinaryNotes, testing::ValuesIn(AllCodes()),
                         [](const auto& code) { return "f" + std::to_string(code.param); });

}  // namespace
}  // namespace korvane
