// SPDX-License-Identifier: GPL-3.0-or-later
// The search of the rolled series against a plain walk over all sizes, and its kept habits.
#include "optimiser/optimize.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "searches.h"

namespace korvane {
namespace {

int IndexOf(const Design& design, int row) {
  return design.st.*OptimiserRowOf(row).index;
}

/// A member for a search.
struct Member {
  const char* name;
  std::function<void(ProjectState&)> change;
};

const std::vector<Member>& Members() {
  static const std::vector<Member> members{
      {"New", [](ProjectState&) {}},
      {"HeavyBeam",
       [](ProjectState& st) {
         st.NP = 0.0;
         st.q1 = 45.0;
         st.L = 7.0;
       }},
      {"SlenderColumn",
       [](ProjectState& st) {
         st.NP = 350.0;
         st.q1 = 1.0;
         st.L = 8.0;
       }},
      {"BothAxes",
       [](ProjectState& st) {
         st.NP = 50.0;
         st.q1 = 8.0;
         st.q2 = 3.0;
         st.q2_yz = 0;
         st.SupportType = 1;
         st.SectionControlMode = 1;
       }},
      {"NoLateralCheck",
       [](ProjectState& st) {
         st.LateralTorsionalBuckling = 0;
         st.q1 = 20.0;
         st.iufa = 0.8;
       }},
  };
  return members;
}

struct Case {
  const Member* member;
  int row;
};

std::vector<Case> AllCases() {
  std::vector<Case> cases;
  for (const Member& member : Members())
    for (int row = 1; row <= kOptimiserRows; ++row) cases.push_back({&member, row});
  return cases;
}

class Search : public testing::TestWithParam<Case> {
protected:
  const int row_ = GetParam().row;
  const Design before_ = Prepared(GetParam().member->change);
  const double iufa_ = before_.st.iufa;

  /// Searches by the criterion and expects the size that the plain walk finds.
  void ExpectLightest(Criterion criterion, const std::function<bool(const Size&)>& passes) {
    Design design = before_;
    design.st.ResultView = criterion;
    const int lightest = LightestSize(before_, row_, passes);
    const int last = OptimiserRowOf(row_).last;
    const bool lastFails = SizeOf(before_, row_, last).ir > iufa_;
    const int want = lastFails ? last : std::max(lightest, 0);
    OptimiserResults results;
    SearchRow(design, row_, results);
    EXPECT_EQ(IndexOf(design, row_), want);
    EXPECT_EQ(design.st.ProfileType, OptimiserRowOf(row_).ProfileType);
    const Size found = SizeOf(before_, row_, want);
    EXPECT_EQ(double(design.rec.S), found.weight);
    EXPECT_FLOAT_EQ(results.BestIR[row_].Single(), static_cast<float>(found.ir));
    EXPECT_EQ(results.Passes[row_], lightest == want && passes(found) &&
                                        (criterion == kCriterionSls || found.ir <= iufa_));
  }
};

TEST_P(Search, FindsTheLightestByUls) {
  const double limit = row_ == 11 ? 1.0 : iufa_;
  ExpectLightest(kCriterionUls, [=](const Size& s) { return s.ir < limit; });
}

TEST_P(Search, FindsTheLightestBySls) {
  const int limit = before_.st.DeflectionLimit;
  ExpectLightest(kCriterionSls, [=](const Size& s) { return s.deflectionRatio > limit; });
}

TEST_P(Search, FindsTheLightestByBoth) {
  const double limit = row_ == 11 ? 1.0 : iufa_;
  const int deflection = before_.st.DeflectionLimit;
  ExpectLightest(kCriterionUlsSls,
                 [=](const Size& s) { return s.ir < limit && s.deflectionRatio > deflection; });
}

TEST_P(Search, NoLighterSizePassesWhereOneWasFound) {
  Design design = before_;
  OptimiserResults results;
  SearchRow(design, row_, results);
  const double limit = row_ == 11 ? 1.0 : iufa_;
  if (results.Passes[row_]) {
    EXPECT_LT(results.BestIR[row_], limit);
    for (int k = 0; k <= OptimiserRowOf(row_).last; ++k) {
      const Size size = SizeOf(before_, row_, k);
      if (size.weight < design.rec.S) {
        EXPECT_GE(size.ir, limit) << k;
      }
    }
  } else {
    EXPECT_GT(SizeOf(before_, row_, OptimiserRowOf(row_).last).ir, 0.0);
  }
}

INSTANTIATE_TEST_SUITE_P(All, Search, testing::ValuesIn(AllCases()), [](const auto& test) {
  return std::string(test.param.member->name) + "Row" + std::to_string(test.param.row);
});

TEST(Optimiser, TheMembersReachPassingAndFailingSeries) {
  int passing = 0;
  int failing = 0;
  for (const Case& c : AllCases()) {
    Design design = Prepared(c.member->change);
    OptimiserResults results;
    SearchRow(design, c.row, results);
    ++(results.Passes[c.row] ? passing : failing);
  }
  EXPECT_GE(passing, 20);
  EXPECT_GE(failing, 3);
}

TEST(Optimiser, AllSeriesTake698Recalculations) {
  Design design = Prepared();
  OptimiserResults results;
  int all = 0;
  for (int row = 1; row <= kOptimiserRows; ++row) {
    int calls = 0;
    SearchRow(design, row, results, [&](int done, int of) {
      EXPECT_EQ(done, ++calls);
      EXPECT_EQ(of, OptimiserRowOf(row).last + 1);
    });
    all += calls;
  }
  // Each row ends with one more for the size found.
  EXPECT_EQ(all + kOptimiserRows, 698);
}

TEST(Optimiser, ReachesTheRowsOfTheCatalogues) {
  for (const OptimiserRow& row : AllOptimiserRows())
    EXPECT_EQ(row.last + 1, ShapeOf(row.catalogue).rows) << row.row;
}

TEST(Optimiser, ARowOutsideTheTableIsAnIndexFailure) {
  Design design = Prepared();
  OptimiserResults results;
  EXPECT_THROW(SearchRow(design, 0, results), ArithmeticFault);
  EXPECT_THROW(SearchRow(design, 12, results), ArithmeticFault);
}

TEST(Optimiser, ASectionAtTheLimitIsRefusedThoughItPassesItsChecks) {
  Design design = Prepared();
  OptimiserResults results;
  SearchRow(design, 1, results);
  ASSERT_TRUE(results.Passes[1]);
  const int found = IndexOf(design, 1);
  const double weight = design.rec.S;
  const float32 ir = results.BestIR[1];
  Design again = Prepared([&](ProjectState& st) { st.iufa = ir; });
  SearchRow(again, 1, results);
  EXPECT_NE(IndexOf(again, 1), found);
  EXPECT_GT(double(again.rec.S), weight);
  EXPECT_EQ(CheckColour(ir, again.st.iufa), 2);
}

TEST(Optimiser, Row11ComparesWith1WhateverTheAllowableFactorIs) {
  const auto heavy = [](double iufa) {
    return [iufa](ProjectState& st) {
      st.NP = 60.0;
      st.q1 = 2.0;
      st.L = 3.0;
      st.iufa = iufa;
    };
  };
  OptimiserResults results;
  Design one = Prepared(heavy(1.0));
  SearchRow(one, 11, results);
  ASSERT_TRUE(results.Passes[11]);
  // A wider factor does not let a lighter size in, though it does for the equal angles.
  Design wide = Prepared(heavy(1.6));
  SearchRow(wide, 11, results);
  EXPECT_EQ(IndexOf(wide, 11), IndexOf(one, 11));
  EXPECT_LT(results.BestIR[11], 1.0);
  SearchRow(wide, 10, results);
  EXPECT_GT(results.BestIR[10], 1.0);
  EXPECT_LT(results.BestIR[10], 1.6);
  // A narrow factor lets a size in that exceeds it, as long as the largest size keeps it.
  Design narrow = Prepared(heavy(0.7));
  ASSERT_LE(SizeOf(narrow, 11, 48).ir, 0.7);
  SearchRow(narrow, 11, results);
  EXPECT_EQ(IndexOf(narrow, 11), IndexOf(one, 11));
  EXPECT_GT(results.BestIR[11], 0.7);
  EXPECT_FALSE(results.Passes[11]);
}

TEST(Optimiser, NoSectionPassingLeavesTheLargest) {
  Design design = Prepared([](ProjectState& st) { st.q1 = 50000.0; });
  OptimiserResults results;
  for (int row = 1; row <= kOptimiserRows; ++row) {
    SearchRow(design, row, results);
    EXPECT_EQ(IndexOf(design, row), OptimiserRowOf(row).last) << row;
    EXPECT_GT(results.BestIR[row], 1.0) << row;
    EXPECT_FALSE(results.Passes[row]) << row;
  }
}

TEST(Optimiser, NoneAcceptedWithALargestThatPassesUlsLeavesTheFirst) {
  Design design = Prepared([](ProjectState& st) { st.DeflectionLimit = 32000; });
  design.st.ResultView = kCriterionSls;
  OptimiserResults results;
  SearchRow(design, 4, results);
  EXPECT_EQ(IndexOf(design, 4), 0);
  EXPECT_FALSE(results.Passes[4]);
}

TEST(Optimiser, TheLargestFailingUlsTakesAnAcceptedDeflectionAway) {
  Design design = Prepared([](ProjectState& st) { st.NP = 90000.0; });
  design.st.ResultView = kCriterionSls;
  const int limit = design.st.DeflectionLimit;
  ASSERT_GE(LightestSize(design, 4, [=](const Size& s) { return s.deflectionRatio > limit; }), 0);
  OptimiserResults results;
  SearchRow(design, 4, results);
  EXPECT_EQ(IndexOf(design, 4), 17);
  EXPECT_FALSE(results.Passes[4]);
}

TEST(Optimiser, WithoutLoadEveryRowEndsAtTheLightestOfItsCatalogue) {
  Design design = Prepared([](ProjectState& st) { ClearLoads(st); });
  OptimiserResults results;
  for (int row = 1; row <= kOptimiserRows; ++row) {
    const int lightest = LightestSize(design, row, [](const Size&) { return true; });
    SearchRow(design, row, results);
    EXPECT_EQ(IndexOf(design, row), lightest) << row;
    EXPECT_EQ(results.BestIR[row], 0.0) << row;
    EXPECT_TRUE(results.Passes[row]) << row;
    EXPECT_EQ(ShowRow(design, row, results).deflection, "No load") << row;
  }
}

TEST(Optimiser, ADeflectionCriterionWithoutDeflectionIsADivisionByZero) {
  for (const Criterion criterion : {kCriterionSls, kCriterionUlsSls}) {
    Design design = Prepared([](ProjectState& st) { ClearLoads(st); });
    design.st.ResultView = criterion;
    OptimiserResults results;
    EXPECT_THROW(SearchRow(design, 1, results), ArithmeticFault);
  }
}

TEST(Optimiser, EndForcesAreSearchedByUls) {
  Design design = Prepared([](ProjectState& st) {
    st.AnalysisMode = 0;
    st.Ne = 250.0;
    st.My_end[1] = 40.0;
  });
  const int want = LightestSize(design, 2, [](const Size& s) { return s.ir < 1.0; });
  ASSERT_GT(want, 0);
  OptimiserResults results;
  SearchRow(design, 2, results);
  EXPECT_EQ(IndexOf(design, 2), want);
  EXPECT_EQ(ShowRow(design, 2, results).deflection, "No load");
}

TEST(Optimiser, ASearchOfHollowSectionsLeavesTheLateralCheckOff) {
  Design design = Prepared();
  ASSERT_EQ(design.st.LateralTorsionalBuckling, 1);
  OptimiserResults results;
  SearchRow(design, 6, results);
  EXPECT_EQ(design.st.LateralTorsionalBuckling, 0);
}

TEST(Optimiser, TakesTheChosenRowOver) {
  Design design = Prepared();
  OptimiserResults results;
  SearchRow(design, 1, results);
  SearchRow(design, 4, results);
  const int ipe = IndexOf(design, 4);
  EXPECT_FALSE(TakeOverRow(design, results));
  EXPECT_EQ(design.st.ProfileType, 4);
  results.RowChosen = 1;
  EXPECT_TRUE(TakeOverRow(design, results));
  EXPECT_EQ(design.st.ProfileType, 1);
  EXPECT_EQ(IndexOf(design, 4), ipe);
  EXPECT_EQ(MaxIR(design.checks), results.BestIR[1].Single());
}

TEST(Optimiser, OptimisesTheFamilyInForce) {
  Design design = Prepared([](ProjectState& st) { st.ProfileType = 4; });
  const int want = LightestSize(design, 4, [](const Size& s) { return s.ir < 1.0; });
  OptimiserResults results;
  EXPECT_TRUE(OptimiseCurrent(design, results));
  EXPECT_EQ(IndexOf(design, 4), want);
  EXPECT_EQ(design.st.ProfileType, 4);
}

TEST(Optimiser, LeavesOtherFamiliesAlone) {
  Design design = Prepared([](ProjectState& st) { st.ProfileType = 15; });
  OptimiserResults results;
  EXPECT_FALSE(CanOptimise(design.st));
  EXPECT_FALSE(OptimiseCurrent(design, results));
  EXPECT_EQ(design.st.ProfileType, 15);
  EXPECT_EQ(design.st.idxINP, 0);
  design.st.ProfileType = 11;
  EXPECT_TRUE(CanOptimise(design.st));
}

TEST(Optimiser, HemIsShownThroughTheRowOfHeaOnAReSearch) {
  for (int row = 1; row <= kOptimiserRows; ++row)
    EXPECT_EQ(RowShownOnReSearch(row), row == 3 ? 1 : row);
  Design design = Prepared();
  OptimiserResults results;
  SearchRow(design, 1, results);
  const OptimiserRowView hea = ShowRow(design, 1, results);
  SearchRow(design, 3, results);
  const OptimiserRowView shown = ShowRow(design, RowShownOnReSearch(3), results);
  EXPECT_EQ(shown.name, hea.name);
  EXPECT_NE(shown.weight, hea.weight);
  EXPECT_EQ(shown.S, double(design.rec.S));
}

}  // namespace
}  // namespace korvane
