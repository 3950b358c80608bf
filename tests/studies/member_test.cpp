// SPDX-License-Identifier: GPL-3.0-or-later
// The way of a row: whatever was designed before it, a member's results are those of a design of
// its own. KORVANE_STUDY_ROWS sets how many random members are tried.
#include "studies/member.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "../design/random_states.h"
#include "../design/walk_results.h"
#include "core/text.h"
#include "studies/result_columns.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

int Rows() {
  const char* rows = std::getenv("KORVANE_STUDY_ROWS");
  return rows == nullptr ? 640 : std::atoi(rows);
}

using Results = std::vector<std::string>;

/// Everything that stands in a design; the bits of numbers, so that a zero's sign shows too.
Results ResultsOf(const Design& d) {
  Results all;
  ForEachResult(
      d, true, [&](const char* name, double v) { all.push_back(name + (" " + FileText(v))); },
      [&](const char* name, const std::string& text) { all.push_back(name + (" " + text)); });
  for (const ResultColumn& column : AllResultColumns()) {
    all.push_back(CellOf(column, {d, VerdictOf(d)}));
  }
  return all;
}

/// What the window does with a project: a start, the opening, two calculations with their texts.
std::string OpenAlone(Design& d, const ProjectState& st) {
  StartDesign(d);
  Calculate(d);
  d.messages.clear();
  d.st = st;
  ForgetFormerInput(d);
  try {
    SetMaterial(d.lib->materials, d.rec.tmax, d.st);
    Calculate(d);
    Calculate(d);
  } catch (const CalculationFault& fault) {
    return fault.what();
  } catch (const ArithmeticFault& fault) {
    return std::string("SetMaterial: ") + fault.what();
  }
  return {};
}

ProjectState RandomInput(unsigned seed) {
  Design d(SourceLibrary());
  StartDesign(d);
  const auto families = AllFamilies();
  RandomState(seed, families[seed % families.size()].code, d.st);
  return d.st;
}

TEST(Member, ARowIsADesignOfItsOwn) {
  const Design started = StartedDesign(SourceLibrary());
  Design work = started;
  int calculated = 0;
  for (int row = 0; row < Rows(); ++row) {
    SCOPED_TRACE(row);
    const ProjectState input = RandomInput(static_cast<unsigned>(row));
    const MemberRun run = DesignMember(started, input, work);
    Design alone(SourceLibrary());
    const std::string fault = OpenAlone(alone, input);
    ASSERT_EQ(run.what, fault);
    ASSERT_EQ(run.fault.has_value(), !fault.empty());
    if (run.fault) continue;
    ++calculated;
    ASSERT_EQ(work.messages, alone.messages);
    ASSERT_EQ(ResultsOf(work), ResultsOf(alone));
  }
  EXPECT_GT(calculated, Rows() / 2);
}

TEST(Member, NumbersAloneAreThoseOfTheWholeCalculation) {
  const Design started = StartedDesign(SourceLibrary());
  Design silent = started;
  Design whole = started;
  for (int row = 0; row < Rows(); ++row) {
    SCOPED_TRACE(row);
    const ProjectState input = RandomInput(static_cast<unsigned>(row));
    const MemberRun run = DesignMember(started, input, silent, Lines::None);
    const MemberRun other = DesignMember(started, input, whole);
    ASSERT_EQ(run.what, other.what);
    for (const ResultColumn& column : AllResultColumns()) {
      ASSERT_EQ(CellOf(column, {silent, VerdictOf(silent)}),
                CellOf(column, {whole, VerdictOf(whole)}))
          << column.name;
    }
    ASSERT_EQ(silent.st, whole.st);
  }
}

TEST(Member, AFailureLeavesNothingOfAnotherMember) {
  const Design started = StartedDesign(SourceLibrary());
  ProjectState input = started.st;
  input.fyk = 0;
  input.MaterialIndex = SourceLibrary()->materials.Last();
  Design work = started;
  const MemberRun run = DesignMember(started, input, work);
  ASSERT_TRUE(run.fault);
  EXPECT_EQ(*run.fault, "SetMaterial");
  EXPECT_EQ(work.checks.IRsection, 0);
  EXPECT_EQ(VerdictOf(work).standing, Standing::Stopped);
  // The next row is whole again.
  DesignMember(started, started.st, work);
  EXPECT_EQ(work.checks.IRsection, started.checks.IRsection);
  EXPECT_GT(work.checks.IRsection, 0);
}

}  // namespace
}  // namespace korvane
