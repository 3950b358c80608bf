// SPDX-License-Identifier: GPL-3.0-or-later
// All sizes at a glance, inputs by name, how far a value can go.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <string>

#include "checks/results.h"
#include "optimiser/optimize.h"
#include "sections/names.h"
#include "studies/all_sections.h"
#include "studies/member.h"
#include "studies/member_inputs.h"
#include "studies/result_columns.h"
#include "studies/solve.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

/// A column of 4 m under 100 kN and 5 kN/m.
ProjectState Column(const Design& started) {
  ProjectState st = started.st;
  st.L = 4;
  st.NP = 100;
  st.q1 = 5;
  return st;
}

TEST(AllSections, HoldEachSizeOnceAndRectanglesTwice) {
  // 957 rows in the 21 catalogues, 274 of them rectangles: 158 hot and 116 cold formed.
  EXPECT_EQ(AllSizes().size(), 957U + 158U + 116U);
  std::set<std::tuple<int, int, int, bool>> seen;
  for (const CatalogueSize& s : AllSizes()) {
    EXPECT_TRUE(seen.insert({s.family->code, s.catalogue->sub, s.row, s.turned}).second);
  }
}

TEST(AllSections, ATurnedRectangleHasItsSidesExchanged) {
  const Design started = StartedDesign(SourceLibrary());
  const auto rows = DesignSizes(started, Column(started), [](const CatalogueSize& s) {
    return s.catalogue->cat == Cat::RHS && s.row == 0;
  });
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0].name, "RHS 50x30x2.6");
  EXPECT_EQ(rows[1].name, "RHS 30x50x2.6");
  EXPECT_EQ(rows[0].h, 50);
  EXPECT_EQ(rows[1].h, 30);
  EXPECT_EQ(rows[1].b, 50);
  EXPECT_GT(rows[1].MaxIR, rows[0].MaxIR);
}

TEST(AllSections, TheLightestIsTheSizeThatTheOptimiserFinds) {
  const Design started = StartedDesign(SourceLibrary());
  for (const double L : {2.0, 4.0, 7.0}) {
    ProjectState member = Column(started);
    member.L = L;
    for (const OptimiserRow& row : AllOptimiserRows()) {
      SCOPED_TRACE(row.series);
      // The search's row 11 compares with 1 and looks at sizes as they are catalogued.
      const auto sizes = DesignSizes(started, member, [&](const CatalogueSize& s) {
        return s.family->code == row.ProfileType && !s.turned;
      });
      const SizeResult* lightest = nullptr;
      for (const SizeResult& size : sizes) {
        if (size.standing == Standing::Stopped || !(size.MaxIR < member.iufa)) continue;
        if (lightest == nullptr || size.weight < lightest->weight) lightest = &size;
      }
      Design searched = started;
      searched.st = member;
      searched.st.ProfileType = row.ProfileType;
      searched.st.RhsOrientation = 1;
      searched.st.ResultView = kCriterionUls;
      Calculate(searched);
      searched.st.ResultView = kCriterionUls;
      OptimiserResults results;
      SearchRow(searched, row.row, results);
      if (!results.Passes[row.row]) continue;  // only the last size decides whether one is taken
      ASSERT_NE(lightest, nullptr);
      EXPECT_EQ(lightest->size.row, int(searched.st.*row.index));
      EXPECT_FLOAT_EQ(lightest->MaxIR, results.BestIR[row.row].Single());
    }
  }
}

// --- Inputs by name -----------------------------------------------------------------------------

class Inputs : public ::testing::Test {
protected:
  std::string Set(const std::string& name, const std::string& text, bool comma = false) {
    const auto input = FindMemberInput(name, st);
    if (!input) return "no such input";
    const InputCell cell{&*input, text};
    return inputs.Set({&cell, 1}, comma, st).value_or("");
  }
  std::string Title() const { return SectionTitle(st, SourceLibrary()->catalogues); }
  ProjectState st = StartedDesign(SourceLibrary()).st;
  MemberInputs inputs{SourceLibrary()};
};

TEST_F(Inputs, SectionsAreKnownInAnySpelling) {
  for (const auto& [name, title] : std::vector<std::pair<std::string, std::string>>{
           {"HEA200", "HEA200"},
           {"hea 200", "HEA200"},
           {"Ipe  300", "IPE300"},
           {"rhs 100*100*5", "RHS  100x 100x 5"},
           {"SHS 100x100x5", "RHS  100x 100x 5"},
           {"RHS 100\xC3\x97"
            "50X5",
            "RHS  100x 50x 5"},
           {"UB 457x191x67", "UB  457x 191x 67"},
           {"L 20x20x3", "L  20x 20x 3"},
           {"I 600x300x12x20", "I 600x300x12x20"},
           {"box 500x400x10x15", "Box 500x400x10x15"},
           {"Plate + 500x12 + hp 200x10", "Plate + 500x12 + HP  200x 10"}}) {
    EXPECT_EQ(Set("section", name), "") << name;
    EXPECT_EQ(Title(), title) << name;
  }
  EXPECT_EQ(Set("section", "RHS 50x100x5"), "");
  EXPECT_EQ(int(st.RhsOrientation), 0);
  const ProjectState before = st;
  EXPECT_EQ(Set("section", "HEA 205"), "column section: no such section - HEA 205");
  EXPECT_EQ(Set("section", "I 600x300x12x"), "column section: no such section - I 600x300x12x");
  EXPECT_EQ(st, before);
  EXPECT_EQ(Set("section", "I 600x3x12x20"), "column section: b >= 5");
}

TEST_F(Inputs, ANumberIsTakenAsItsDigitsAre) {
  const auto L = FindMemberInput("L", st);
  const auto q1 = FindMemberInput("q1", st);
  const InputCell cells[] = {{&*L, {}, 6.25}, {&*q1, {}, 12.1}};
  EXPECT_FALSE(inputs.Put(cells, false, st));
  EXPECT_EQ(st.L.Single(), 6.25F);
  EXPECT_EQ(st.q1.Single(), 12.1F);
  EXPECT_EQ(Typed(st.q1.Single()), 12.1);
  const InputCell shorter{&*L, {}, 0.0};
  const auto refused = inputs.Put({&shorter, 1}, false, st);
  ASSERT_TRUE(refused);
  EXPECT_EQ(refused->name, "L");
  EXPECT_EQ(refused->message, LimitOf(st, L->ref).message);
  EXPECT_EQ(refused->InColumn(17).rfind("column L, row 17: ", 0), 0U);
  const InputCell none{&*L};
  EXPECT_FALSE(none.IsGiven());
}

// A position is asked in m whatever the form shows: what stands now is tried as it stands.
TEST_F(Inputs, APresentPositionIsThatOfTheRecord) {
  st.pm[1] = 10;
  st.pmx[1] = 2;
  st.pmx_relative = 1;
  EXPECT_EQ(PresentValue(st, *FindMemberInput("pmx[1]", st)), 2.0);
}

TEST_F(Inputs, NamesOfSectionsAreReadBack) {
  const Catalogues& cat = SourceLibrary()->catalogues;
  for (const char* name :
       {"HEA200", "RHS 100x50x5", "RHS 50x100x5", "UB 457x191x67", "I 600x300x12x20"}) {
    EXPECT_EQ(Set("section", name), "");
    EXPECT_EQ(SectionName(st, cat), name);
  }
  const auto series = NamesOfSeries("ipe", cat);
  EXPECT_EQ(series.size(), 18U);  // IPE 80 to IPE 600
  EXPECT_EQ(series.front(), "IPE80");
  EXPECT_EQ(series.back(), "IPE600");
  EXPECT_TRUE(NamesOfSeries("IPEX", cat).empty());
}

TEST_F(Inputs, EverySizeIsFoundByItsName) {
  for (const CatalogueSize& size : AllSizes()) {
    if (size.turned) continue;
    const ProjectState wanted = WithSize(st, size);
    const std::string title = SectionTitle(wanted, SourceLibrary()->catalogues);
    ASSERT_EQ(Set("section", title), "") << title;
    EXPECT_EQ(Title(), title);
    EXPECT_EQ(int(st.ProfileType), size.family->code) << title;
  }
}

TEST_F(Inputs, LimitsAndMessagesAreThoseOfTheForms) {
  EXPECT_EQ(Set("L", "0.05"), "");
  EXPECT_EQ(Set("L", "0.04"), "column L: L >= 0.050");
  EXPECT_EQ(Set("L", "5,5"), "column L: Input string mismatch");
  EXPECT_EQ(Set("L", "5,5", true), "");
  EXPECT_EQ(st.L, 5.5);
  EXPECT_EQ(Set("L", "5.1"), "");
  EXPECT_EQ(Set("pmx[2]", "5.1"), "");
  EXPECT_EQ(Set("pmx[2]", "5.2"), "column pmx[2]: 0 < x <= l");
  for (const char* bad : {"nan", "inf", "1e50", "1e999", "--1", "0x10", "1 2", "1.2.3", "-"}) {
    EXPECT_NE(Set("q1", bad), "") << bad;
  }
  EXPECT_EQ(Set("q1", "+1.5e1"), "");
  EXPECT_EQ(st.q1, 15);
  EXPECT_EQ(Set("SupportType", "6"), "column SupportType: no such support");
  EXPECT_EQ(Set("q5", "1"), "no such input");
  EXPECT_EQ(Set("pm", "1"), "no such input");
  EXPECT_EQ(Set("pm[9]", "1"), "no such input");
  EXPECT_EQ(Set("fd", "1"), "no such input");
}

TEST_F(Inputs, AForceThatNobodyReadsIsRefused) {
  EXPECT_EQ(Set("My_end[1]", "20"), "column My_end[1]: end forces count with AnalysisMode 0 alone");
  EXPECT_EQ(Set("My_end[1]", "0"), "");
  st.AnalysisMode = 0;
  EXPECT_EQ(Set("My_end[1]", "20"), "");
  EXPECT_EQ(Set("q1", "20"), "column q1: loads count with AnalysisMode 1 alone");
  EXPECT_EQ(Set("fyk", "420").substr(0, 11), "column fyk:");
}

TEST_F(Inputs, WhatAFormSetsAlongIsSetToo) {
  EXPECT_EQ(Set("support", "Fixed-Free"), "");
  EXPECT_EQ(int(st.SupportType), 4);
  EXPECT_EQ(st.bly, 2);  // the cantilever's length factor
  EXPECT_EQ(st.blz, 2);
  EXPECT_EQ(Set("bly", "1.3"), "");
  EXPECT_EQ(int(st.BucklingCaseY), 6);
  EXPECT_EQ(Set("BucklingCaseZ", "4"), "");
  EXPECT_EQ(st.blz, 0.5);
  EXPECT_EQ(Set("material", "s355mh"), "");
  EXPECT_EQ(
      SourceLibrary()->materials.rows.at(static_cast<std::size_t>(int(st.MaterialIndex))).name,
      "S355MH");
  EXPECT_EQ(Set("material", "S356"), "column material: no such material - S356");
}

// --- How far a value can go ---------------------------------------------------------------------

Question Ask(const std::string& name, const ProjectState& st, double low, double high) {
  Question q;
  q.input = *FindMemberInput(name, st);
  q.present = PresentValue(st, q.input);
  q.low = low;
  q.high = high;
  return q;
}

TEST(Solving, TheAnswerPassesAndTheNextValueFails) {
  const Design started = StartedDesign(SourceLibrary());
  const MemberInputs inputs(SourceLibrary());
  Design work = started;
  int borders = 0;
  for (const char* name : {"L", "loads", "q1", "N"}) {
    SCOPED_TRACE(name);
    const ProjectState member = Column(started);
    const Question q = Ask(name, member, name == std::string("L") ? 0.05 : 0, 2000);
    const Answer answer = Solve(started, member, inputs, q);
    const PassingInterval* interval = answer.OfPresent(q.present);
    ASSERT_NE(interval, nullptr);
    ASSERT_TRUE(interval->above);
    const double value = interval->above->passing.value;
    const double next = interval->above->failing.value;
    EXPECT_GT(next, value);
    EXPECT_NEAR(next, value, 1.1E-5 * value);
    EXPECT_TRUE(TryValue(started, member, inputs, q, value, work).passes);
    EXPECT_FALSE(TryValue(started, member, inputs, q, next, work).passes);
    EXPECT_FALSE(interval->above->failing.check.empty());
    ++borders;
  }
  EXPECT_EQ(borders, 4);
}

/// Pure tension without transverse load: N/Nd = 1 at N = A*fyk/gammam1.
/// Whatever the member and the input: both sides of every end are what a plain design says.
TEST(Solving, EveryEndHoldsForMembersOfAllFamilies) {
  const Design started = StartedDesign(SourceLibrary());
  const MemberInputs inputs(SourceLibrary());
  Design work = started;
  int ends = 0;
  int number = 0;
  for (const Family& family : AllFamilies()) {
    ProjectState member = Column(started);
    member.ProfileType = family.code;
    member.L = 3 + number % 4;
    member.NP = 40.0 * (number % 5);
    const char* const names[] = {"L", "q1", "NP", "loads", "N"};
    Question q;
    q.input = *FindMemberInput(names[number++ % 5], member);
    q.present = PresentValue(member, q.input);
    q.sls = number % 2 == 0;
    DefaultRange(member, q);
    const Answer answer = Solve(started, member, inputs, q);
    for (const PassingInterval& interval : answer.intervals) {
      for (const auto& end : {interval.below, interval.above}) {
        if (!end) continue;
        ++ends;
        for (const Trial* side : {&end->passing, &end->failing}) {
          ProjectState st = member;
          const bool taken = !inputs.Set(q.input, side->value, st);
          bool passes = false;
          if (taken && !DesignMember(started, st, work).fault) {
            const Verdict v = VerdictOf(work);
            passes = v.Passes() && !(q.sls && v.sls == Serviceability::Fails);
          }
          EXPECT_EQ(passes, side == &end->passing)
              << family.menuCaption << " " << q.input.name << " " << side->value;
        }
      }
    }
  }
  EXPECT_GT(ends, 10);
}

TEST(Solving, TensionReachesTheCapacityOfTheSection) {
  const Design started = StartedDesign(SourceLibrary());
  ProjectState member = started.st;
  member.q1 = 0;
  member.NP = -100;
  member.lfp_uls = 1;
  const MemberInputs inputs(SourceLibrary());
  const Answer answer = Solve(started, member, inputs, Ask("NP", member, -4000, -1));
  ASSERT_EQ(answer.intervals.size(), 1U);
  ASSERT_TRUE(answer.intervals[0].below);
  Design d = started;
  DesignMember(started, member, d);
  EXPECT_NEAR(answer.intervals[0].low, -d.rec.A * d.st.fyk / d.st.gammam1 / 1000, 0.01);
}

TEST(Solving, SaysWhereAllOrNothingPasses) {
  const Design started = StartedDesign(SourceLibrary());
  const MemberInputs inputs(SourceLibrary());
  const ProjectState member = Column(started);
  const Answer all = Solve(started, member, inputs, Ask("q1", member, 1, 6));
  ASSERT_EQ(all.intervals.size(), 1U);
  EXPECT_FALSE(all.intervals[0].below || all.intervals[0].above);
  EXPECT_TRUE(Solve(started, member, inputs, Ask("q1", member, 1000, 2000)).intervals.empty());
}

/// A load of either sign: what passes lies between two ends.
TEST(Solving, FindsBothEndsOfAnInterval) {
  const Design started = StartedDesign(SourceLibrary());
  const MemberInputs inputs(SourceLibrary());
  ProjectState member = Column(started);
  member.NP = 0;
  member.LateralTorsionalBuckling = 0;  // the load on the other side would hold another flange
  const Answer answer = Solve(started, member, inputs, Ask("q1", member, -500, 500));
  ASSERT_EQ(answer.intervals.size(), 1U);
  ASSERT_TRUE(answer.intervals[0].below && answer.intervals[0].above);
  EXPECT_NEAR(answer.intervals[0].low, -answer.intervals[0].high, 1E-5 * answer.intervals[0].high);
}

}  // namespace
}  // namespace korvane
