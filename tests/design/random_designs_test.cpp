// SPDX-License-Identifier: GPL-3.0-or-later
// Thousands of random members of every family: no crash, no number that is none, no endless loop,
// and the same results from the same input. KORVANE_LONG=1 makes it ten thousand a family, a
// larger number that many.
#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <set>

#include "designs.h"
#include "random_runs.h"
#include "walk_results.h"

namespace korvane {
namespace {

int DesignsPerFamily() {
  const char* wish = std::getenv("KORVANE_LONG");
  const int count = wish == nullptr ? 0 : std::atoi(wish);
  return count <= 0 ? 300 : count == 1 ? 10000 : count;
}

/// Ends the process with a word when one design takes longer than ten seconds.
class Watchdog {
public:
  explicit Watchdog(unsigned seed) {
    std::snprintf(text_, sizeof text_, "design with seed %u does not end\n", seed);
    std::signal(SIGALRM, [](int) {
      const auto written = ::write(STDERR_FILENO, text_, std::strlen(text_));
      std::_Exit(written < 0 ? 2 : 1);
    });
    ::alarm(10);
  }
  ~Watchdog() { ::alarm(0); }

private:
  inline static char text_[80];
};

/// All numbers and texts of a design folded into one number (FNV-1a), and the first result that
/// is no number or shows one.
struct Digest {
  std::uint64_t hash = 14695981039346656037U;
  std::string wrong;
  void Add(const void* bytes, std::size_t size) {
    for (std::size_t i = 0; i < size; ++i) {
      hash = (hash ^ static_cast<const unsigned char*>(bytes)[i]) * 1099511628211U;
    }
  }
};

bool NamesNoNumber(const std::string& text) {
  return text.find("inf") != std::string::npos || text.find("nan") != std::string::npos;
}

Digest DigestOf(const Design& d, bool shown) {
  Digest digest;
  ForEachResult(
      d, shown,
      [&](const char* name, double value) {
        if (!std::isfinite(value) && digest.wrong.empty()) digest.wrong = name;
        digest.Add(&value, sizeof value);
      },
      [&](const char* name, const std::string& text) {
        if (NamesNoNumber(text) && digest.wrong.empty()) digest.wrong = name + (": " + text);
        digest.Add(text.data(), text.size());
      });
  return digest;
}

class RandomDesigns : public testing::TestWithParam<int> {};

TEST_P(RandomDesigns, GiveNumbersOrAnArithmeticFault) {
  const int count = DesignsPerFamily();
  int faults = 0;
  Digest family;
  for (int i = 0; i < count; ++i) {
    const unsigned seed = 100000U * static_cast<unsigned>(GetParam()) + static_cast<unsigned>(i);
    const Watchdog watchdog(seed);
    Design first(SourceLibrary());
    const auto fault = RunDesign(first, seed, GetParam());
    const Digest digest = DigestOf(first, !fault);
    ASSERT_EQ(digest.wrong, "") << "seed " << seed;
    Design second(SourceLibrary());
    ASSERT_EQ(RunDesign(second, seed, GetParam()), fault) << "seed " << seed;
    ASSERT_EQ(DigestOf(second, !fault).hash, digest.hash) << "seed " << seed;
    family.Add(&digest.hash, sizeof digest.hash);
    if (fault) ++faults;
  }
  // The limits allow members that no formula fits; the most must still be designed.
  EXPECT_LT(faults, count / 2);
  std::printf("family %d: %d designs, %d arithmetic faults, digest %016llx\n", GetParam(), count,
              faults, static_cast<unsigned long long>(family.hash));
}

std::vector<int> AllCodes() {
  std::vector<int> codes;
  for (const Family& family : AllFamilies()) codes.push_back(family.code);
  return codes;
}

INSTANTIATE_TEST_SUITE_P(Families, RandomDesigns, testing::ValuesIn(AllCodes()),
                         [](const auto& code) { return "f" + std::to_string(code.param); });

/// The generator reaches what it should: both modes, all supports, failing and passing members.
TEST(RandomStates, ReachAllWaysOfAMember) {
  std::set<int> supports, modes, levels, classes;
  int passing = 0;
  int failing = 0;
  for (unsigned seed = 0; seed < 200; ++seed) {
    Design d(SourceLibrary());
    if (RunDesign(d, seed, 4)) continue;
    supports.insert(d.st.SupportType);
    modes.insert(d.st.AnalysisMode);
    levels.insert(d.st.LoadLevel);
    classes.insert(d.checks.ClassGoverning);
    ++(MaxIR(d.checks) <= d.st.iufa ? passing : failing);
  }
  EXPECT_EQ(supports.size(), 6U);
  EXPECT_EQ(modes.size(), 2U);
  EXPECT_EQ(levels.size(), 4U);
  EXPECT_EQ(classes.size(), 4U);
  EXPECT_GT(passing, 0);
  EXPECT_GT(failing, 0);
}

}  // namespace
}  // namespace korvane
