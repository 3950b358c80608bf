// SPDX-License-Identifier: GPL-3.0-or-later
// Charts: round steps, what is cut off, names that don't collide, and what a study's chart holds.
#include "presentation/chart.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "presentation/study_charts.h"
#include "studies/member.h"
#include "tests/support/recording_target.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

TEST(Chart, StepsAreRound) {
  EXPECT_EQ(RoundSteps({0, 10}, 5), (std::vector<double>{0, 2, 4, 6, 8, 10}));
  EXPECT_EQ(RoundSteps({-1, 1}, 4), (std::vector<double>{-1, -0.5, 0, 0.5, 1}));
  EXPECT_EQ(RoundSteps({0.3, 26}, 5), (std::vector<double>{10, 20}));
  EXPECT_TRUE(RoundSteps({1, 1}, 5).empty());
}

constexpr Box kPlace{0, 0, 600, 400};
constexpr double kLetters = 10;

Chart Plain() {
  Chart chart;
  chart.xName = "x";
  chart.yName = "y";
  chart.x = {0, 10};
  chart.y = {0, 2};
  return chart;
}

/// The open lines with so many points.
std::vector<const RecordedShape*> Curves(const RecordingTarget& target, std::size_t points) {
  return target.WithPoints(ShapeKind::Line, points);
}

TEST(Chart, WhatLiesBeyondTheRangesIsCutOffAtThem) {
  Chart chart = Plain();
  // Rises through the top of the chart half way between x 4 and 6.
  chart.lines.push_back({"", {{{2, 1}, {4, 1}, {6, 3}, {9, 3}}}});
  RecordingTarget target;
  DrawChart(target, kPlace, chart, kLetters);
  const auto lines = Curves(target, 3);
  ASSERT_EQ(lines.size(), 1u);
  const auto& p = lines[0]->Points();
  // Equal steps of x from 2 to 4 and from 4 to 5; the height of the plot is 2.
  EXPECT_NEAR(p[1].x - p[0].x, 2 * (p[2].x - p[1].x), 1e-9);
  EXPECT_NEAR(p[0].y, p[1].y, 1e-9);
  EXPECT_GE(p[2].y, 0);
}

TEST(Chart, ARunOfItsOwnBeginsWhereTheCurveComesBack) {
  Chart chart = Plain();
  chart.lines.push_back({"", {{{0, 1}, {2, 5}, {4, 5}, {6, 1}, {8, 1}}}});
  RecordingTarget target;
  DrawChart(target, kPlace, chart, kLetters);
  // In to the border, and from the border on.
  EXPECT_EQ(Curves(target, 3).size(), 1u);
}

TEST(Chart, NamesStandAtTheEndsAndNoneOverAnother) {
  Chart chart = Plain();
  for (const char* name : {"first", "second", "third", "fourth"}) {
    chart.lines.push_back({name, {{{0, 0.5}, {10, 1.0}}}});
  }
  RecordingTarget target;
  DrawChart(target, kPlace, chart, kLetters);
  EXPECT_TRUE(target.OverlappingTexts(0.1).empty());
  for (const char* name : {"first", "second", "third", "fourth"}) {
    ASSERT_EQ(target.Count(name), 1) << name;
    EXPECT_LE(target.FindText(name)->box.right, kPlace.right);
  }
}

TEST(Chart, EverythingStaysInItsPlace) {
  Chart chart = Plain();
  chart.title = "A title";
  chart.limit = 1;
  chart.limitName = "limit 1.00";
  chart.present = 5;
  chart.presentName = "x = 5";
  chart.lines.push_back({"name", {{{0, 0}, {10, 7}}}});
  chart.marks.push_back({{1.43, 1}, "x up to 1.43: a check with many words", Role::Ink, true});
  RecordingTarget target;
  DrawChart(target, kPlace, chart, kLetters);
  ASSERT_TRUE(target.Bounds());
  EXPECT_TRUE(Within(kPlace, *target.Bounds(), 0.5));
  EXPECT_TRUE(target.OverlappingTexts(0.1).empty());
  for (const char* text : {"A title", "limit 1.00", "x = 5"}) EXPECT_EQ(target.Count(text), 1);
}

TEST(Chart, ThePointerShowsTheValueThatIsDrawnThere) {
  Chart chart = Plain();
  chart.lines.push_back({"", {{{2, 1}, {7, 1}}}});
  RecordingTarget target;
  DrawChart(target, kPlace, chart, kLetters);
  const auto lines = Curves(target, 2);
  const auto line = std::find_if(lines.begin(), lines.end(), [](const RecordedShape* s) {
    return s->stroke.colour == Role::Accent;
  });
  ASSERT_NE(line, lines.end());
  EXPECT_NEAR(ValueAcross(kPlace, chart, kLetters, (*line)->Points()[0].x), 2, 1e-9);
  EXPECT_NEAR(ValueAcross(kPlace, chart, kLetters, (*line)->Points()[1].x), 7, 1e-9);
}

class StudyCharts : public testing::Test {
protected:
  StudyCharts() : started_(StartedDesign(SourceLibrary())), member_(NewMember(SourceLibrary())) {
    member_.q1 = 10;
    member_.NP = 0;
  }
  korvane::Curves Sampled(double low = 1, double high = 12) const {
    const MemberInput input = *FindMemberInput("L", member_);
    return SampleCurves(started_, member_, inputs_, input, EvenValues(input, low, high, 45));
  }
  Design started_;
  ProjectState member_;
  MemberInputs inputs_{SourceLibrary()};
};

TEST_F(StudyCharts, EachCheckWithSomethingToCheckHasItsCurve) {
  const Chart chart = CurvesChart(Sampled(), Drawn::Each, "");
  std::vector<std::string> names;
  for (const ChartLine& line : chart.lines) {
    if (!line.name.empty()) names.push_back(line.name);
  }
  // A beam under a load along z: no shear along y, no buckling.
  EXPECT_EQ(names, (std::vector<std::string>{"section control", "shear Vz",
                                             "lateral torsional buckling"}));
  EXPECT_EQ(chart.limit, 1.0);
  EXPECT_EQ(chart.xName, "L (m)");
}

TEST_F(StudyCharts, TheBandIsTheGreatestRatio) {
  const korvane::Curves curves = Sampled();
  const Chart chart = CurvesChart(curves, Drawn::Each, "");
  std::size_t points = 0;
  for (const ChartLine& line : chart.lines) {
    if (!line.strong) continue;
    for (const auto& run : line.runs) {
      for (const Point& p : run) {
        const auto sample = std::find_if(curves.samples.begin(), curves.samples.end(),
                                         [&](const CurveSample& s) { return s.x == p.x; });
        ASSERT_NE(sample, curves.samples.end());
        EXPECT_EQ(p.y, sample->IR);
        ++points;
      }
    }
  }
  EXPECT_EQ(points, curves.samples.size());
}

TEST_F(StudyCharts, TheEndOfWhatPassesIsMarkedInWords) {
  Question q;
  q.input = *FindMemberInput("L", member_);
  q.present = 5;
  q.low = 1;
  q.high = 12;
  Chart chart = CurvesChart(Sampled(), Drawn::Each, "");
  const Answer answer = Solve(started_, member_, inputs_, q);
  AddAnswer(q, answer, chart);
  ASSERT_EQ(chart.marks.size(), 1u);
  EXPECT_EQ(chart.marks[0].text, WordsOf(q, answer)[0]);
  EXPECT_EQ(chart.marks[0].at.x, answer.intervals.at(0).above->passing.value);
  EXPECT_EQ(chart.presentName, "L = 5");
  RecordingTarget target;
  DrawChart(target, kPlace, chart, kLetters);
  EXPECT_EQ(target.Count(chart.marks[0].text), 1);
  EXPECT_TRUE(target.OverlappingTexts(0.1).empty());
}

TEST_F(StudyCharts, AMapsLineIsWhereTheLimitIsReached) {
  const MemberInput q1 = *FindMemberInput("q1", member_);
  std::vector<double> loads;
  std::vector<korvane::Curves> rows;
  for (int i = 0; i < 12; ++i) {
    loads.push_back(2 + 2 * i);
    member_.q1 = loads.back();
    rows.push_back(Sampled(2, 10));
  }
  const Chart chart = MapChart(rows, q1, loads, Drawn::Greatest, "");
  EXPECT_EQ(chart.cells.size(), 12u * 45u);
  ASSERT_EQ(chart.lines.size(), 1u);
  ASSERT_FALSE(chart.lines[0].runs.empty());
  Design work = started_;
  for (const auto& run : chart.lines[0].runs) {
    for (const Point& p : run) {
      member_.L = p.x;
      member_.q1 = p.y;
      DesignMember(started_, member_, work);
      // Between samples the line is straight.
      EXPECT_NEAR(VerdictOf(work).IR, 1, 0.03) << p.x << " " << p.y;
    }
  }
}

TEST_F(StudyCharts, InteractionChartsHoldEnvelopeAndPoints) {
  member_.NP = 100;
  const auto diagrams = InteractionDiagrams(started_, member_, 24);
  const Chart chart = InteractionChart(diagrams.at(0), 1);
  ASSERT_EQ(chart.lines.size(), 1u);
  EXPECT_TRUE(chart.lines[0].closed);
  EXPECT_EQ(chart.lines[0].runs[0].size(), 24u);
  EXPECT_EQ(chart.marks.size(), diagrams[0].points.size() + 1);
  EXPECT_EQ(chart.marks.back().at.y, diagrams[0].governing.a);
  RecordingTarget target;
  DrawInteraction(target, {0, 0, 900, 300}, diagrams, 1, 8);
  EXPECT_EQ(target.Count("N and My"), 1);
  EXPECT_EQ(target.Count("My and Mz"), 1);
  for (const auto& [a, b] : target.OverlappingTexts(0.1)) ADD_FAILURE() << a << " over " << b;
}

}  // namespace
}  // namespace korvane
