// SPDX-License-Identifier: GPL-3.0-or-later
// Curves over a varied input: each sample is a plain design, and the words are those of the answer.
#include "studies/curves.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "studies/interaction.h"
#include "studies/member.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

class CurvesTest : public testing::Test {
protected:
  CurvesTest() : started_(StartedDesign(SourceLibrary())), member_(NewMember(SourceLibrary())) {
    member_.q1 = 10;
    member_.NP = 50;
  }
  Question Asked(const char* name) const {
    Question q;
    q.input = *FindMemberInput(name, member_);
    q.present = PresentValue(member_, q.input);
    DrawnRange(member_, q);
    return q;
  }
  Answer Solved(const Question& q) const { return Solve(started_, member_, inputs_, q); }

  Design started_;
  ProjectState member_;
  MemberInputs inputs_{SourceLibrary()};
};

TEST_F(CurvesTest, EverySampleIsThePlainDesignOfItsValue) {
  const Question q = Asked("L");
  const Curves curves =
      SampleCurves(started_, member_, inputs_, q.input, EvenValues(q.input, 1, 9, 33));
  ASSERT_EQ(curves.samples.size(), 33u);
  for (const CurveSample& s : curves.samples) {
    ProjectState st = member_;
    st.L = s.x;
    Design d = started_;
    DesignMember(started_, st, d);
    ASSERT_TRUE(s.there);
    EXPECT_EQ(s.ratios[0], double(d.checks.IRsection));
    EXPECT_EQ(s.ratios[3], double(d.checks.IRlateral));
    EXPECT_EQ(s.ratios[7], double(d.checks.IRcombinedZ));
    EXPECT_EQ(float(s.IR), float(VerdictOf(d).IR)) << s.x;
    // L/x against L/limit: limit * w / L.
    const double w = std::max(double(d.deflections.DeflZ_max), -double(d.deflections.DeflZ_min));
    EXPECT_NEAR(s.overZ, d.st.DeflectionLimit * w / (s.x * 1000), 1e-6);
  }
  EXPECT_EQ(curves.names[3], "lateral torsional buckling");
  EXPECT_EQ(curves.names[1], "shear Vz");
}

TEST_F(CurvesTest, ValuesBeyondALimitAreNotThere) {
  const Question q = Asked("L");
  const Curves curves = SampleCurves(started_, member_, inputs_, q.input, {0.0, 0.04, 0.05, 5});
  EXPECT_FALSE(curves.samples[0].there);
  EXPECT_FALSE(curves.samples[1].there);
  EXPECT_TRUE(curves.samples[2].there);
  EXPECT_TRUE(curves.samples[3].there);
}

TEST_F(CurvesTest, EvenValuesHaveBothEndsAndWholeOnesNoDecimals) {
  const auto lengths = EvenValues(*FindMemberInput("L", member_), 2, 4, 5);
  EXPECT_EQ(lengths, (std::vector<double>{2, 2.5, 3, 3.5, 4}));
  const auto whole = EvenValues(*FindMemberInput("SupportType", member_), 0, 5, 200);
  EXPECT_EQ(whole, (std::vector<double>{0, 1, 2, 3, 4, 5}));
}

TEST_F(CurvesTest, TheEndIsToldInWordsOnThePassingSide) {
  Question q = Asked("L");
  EXPECT_EQ(q.low, 0.05);
  EXPECT_EQ(q.high, 10);
  const Answer answer = Solved(q);
  ASSERT_EQ(answer.intervals.size(), 1u);
  ASSERT_TRUE(answer.intervals[0].above);
  const Border& end = *answer.intervals[0].above;
  // Three digits, rounded to where it passes.
  const double shown = std::floor(end.passing.value * 100) / 100;
  char number[32];
  std::snprintf(number, sizeof number, "%.3g", shown);
  EXPECT_EQ(WordsOf(q, answer), std::vector<std::string>{"L up to " + std::string(number) +
                                                         " m: " + WordsOf(end.failing)});
  EXPECT_LE(shown, end.passing.value);
  EXPECT_GT(shown + 0.01, end.passing.value);
}

TEST_F(CurvesTest, LateralBucklingIsToldInFull) {
  member_.NP = 0;
  const Question q = Asked("L");
  const Answer answer = Solved(q);
  const std::vector<std::string> words = WordsOf(q, answer);
  ASSERT_EQ(words.size(), 1u);
  EXPECT_TRUE(words[0].ends_with(" m: lateral torsional buckling")) << words[0];
}

TEST_F(CurvesTest, NothingAndEverythingAreTold) {
  Question q = Asked("L");
  q.high = 1;
  EXPECT_EQ(WordsOf(q, Solved(q)), std::vector<std::string>{"everything passes from 0.05 to 1 m"});
  q.low = 30;
  q.high = 40;
  EXPECT_EQ(WordsOf(q, Solved(q)), std::vector<std::string>{"nothing passes from 30 to 40 m"});
}

TEST_F(CurvesTest, DrawnRangeHoldsThePresentValue) {
  for (const char* name : {"L", "q1", "NP", "loads", "iufa", "spring", "fyk", "E"}) {
    const auto input = FindMemberInput(name, member_);
    if (!input) continue;
    const Question q = Asked(name);
    EXPECT_LT(q.low, q.high) << name;
    EXPECT_LE(q.low, q.present) << name;
    EXPECT_GE(q.high, q.present) << name;
  }
  member_.NP = -50;
  const Question tension = Asked("NP");
  EXPECT_EQ(tension.low, -100);
}

TEST_F(CurvesTest, InteractionDiagramsHoldTheMembersPoints) {
  Design d = started_;
  DesignMember(started_, member_, d);
  const auto diagrams = InteractionDiagrams(started_, member_, 16);
  ASSERT_EQ(diagrams.size(), 3u);
  const auto& my = diagrams[0];
  EXPECT_EQ(my.ratio, double(d.checks.IRsection));
  EXPECT_EQ(my.envelope.size(), 16u);
  ASSERT_EQ(my.points.size(), std::size_t(d.beam.pt_last) + 1);
  EXPECT_EQ(my.points[0].a, double(d.forces.N));
  // The governing point is one of them, where the moment is the greatest: qL2/8 of 10*1.2.
  EXPECT_NE(std::find_if(my.points.begin(), my.points.end(),
                         [&](const EnvelopePoint& p) {
                           return p.a == my.governing.a && p.b == my.governing.b;
                         }),
            my.points.end());
  EXPECT_NEAR(my.governing.b, d.beam.z.M_max, 1e-3);
  EXPECT_STREQ(WordOf(diagrams[2].axes), "My-Mz");
}

}  // namespace
}  // namespace korvane
