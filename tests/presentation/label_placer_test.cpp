// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/label_placer.h"

#include <gtest/gtest.h>

#include "tests/support/recording_target.h"

namespace korvane {
namespace {

constexpr Box kPage{0, 0, 200, 100};

Label At(const std::string& text, Point p, Side side = Side::Above) {
  return {{{text}}, p, side, 1, true};
}

TEST(LabelPlacer, AFreeLabelStandsOnItsSide) {
  RecordingTarget t;
  t.FontSize = 10;
  LabelPlacer labels(t, kPage);
  const Box above = labels.Place(At("12.0", {100, 50}));
  EXPECT_DOUBLE_EQ(above.bottom, 49);
  EXPECT_NEAR(above.Centre().x, 100, 1e-12);
  const Box below = labels.Place(At("7.5", {100, 60}, Side::Below));
  EXPECT_DOUBLE_EQ(below.top, 61);
  const Box left = labels.Place(At("h", {30, 50}, Side::Left));
  EXPECT_DOUBLE_EQ(left.right, 29);
  const Box right = labels.Place(At("tf", {150, 50}, Side::Right));
  EXPECT_DOUBLE_EQ(right.left, 151);
}

TEST(LabelPlacer, TheSecondLabelOfAPointMovesAway) {
  RecordingTarget t;
  t.FontSize = 10;
  LabelPlacer labels(t, kPage);
  const Box first = labels.Place(At("12.0", {100, 50}));
  const Box second = labels.Place(At("12.0", {100, 50}));
  EXPECT_FALSE(first.Overlaps(second));
  EXPECT_TRUE(t.OverlappingTexts(1e-6).empty());
}

TEST(LabelPlacer, AMovedLabelHasALeader) {
  RecordingTarget t;
  t.FontSize = 10;
  LabelPlacer labels(t, kPage);
  labels.Keep({60, 20, 140, 55});
  labels.Place(At("12.0", {100, 50}));
  const auto lines = t.OfKind(ShapeKind::Line);
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines.at(0)->Points().at(0), (Point{100, 50}));
  EXPECT_EQ(lines.at(0)->stroke.colour, Role::Quiet);
}

TEST(LabelPlacer, AnAnchorSlidesBeforeItsLabelLeavesTheLine) {
  RecordingTarget t;
  t.FontSize = 10;
  LabelPlacer labels(t, kPage);
  labels.Keep({90, 30, 110, 49});
  Label label = At("1.5", {100, 50});
  label.slide = 60;
  const Box box = labels.Place(label);
  EXPECT_DOUBLE_EQ(box.bottom, 49);
  EXPECT_NEAR(std::abs(box.Centre().x - 100), 30, 1e-9);
  EXPECT_TRUE(t.OfKind(ShapeKind::Line).empty());
}

TEST(LabelPlacer, ALabelThatStaysHasNone) {
  RecordingTarget t;
  LabelPlacer labels(t, kPage);
  labels.Place(At("12.0", {100, 50}));
  EXPECT_TRUE(t.OfKind(ShapeKind::Line).empty());
}

TEST(LabelPlacer, LabelsStayInsideTheBounds) {
  RecordingTarget t;
  t.FontSize = 10;
  LabelPlacer labels(t, kPage);
  for (const Point corner : {Point{0, 0}, Point{200, 0}, Point{0, 100}, Point{200, 100}}) {
    EXPECT_TRUE(Within(kPage, labels.Place(At("-123.4", corner)), 1e-9));
  }
}

TEST(LabelPlacer, StaysOffLinesWhereItCan) {
  RecordingTarget t;
  t.FontSize = 10;
  LabelPlacer labels(t, kPage);
  labels.Avoid({0, 45}, {200, 45});
  const Box box = labels.Place(At("12.0", {100, 50}));
  EXPECT_FALSE(Meets({0, 45}, {200, 45}, box));
}

TEST(LabelPlacer, ManyLabelsOfOnePointNeverOverlap) {
  RecordingTarget t;
  t.FontSize = 8;
  LabelPlacer labels(t, kPage);
  for (int i = 0; i < 24; ++i) labels.Place(At("-100." + std::to_string(i % 10), {100, 50}));
  EXPECT_TRUE(t.OverlappingTexts(1e-6).empty());
}

TEST(LabelPlacer, RunsKeepTheirStyles) {
  RecordingTarget t;
  t.ForeColor = Role::Accent;
  LabelPlacer labels(t, kPage);
  labels.Place({{{"20.0", Role::Ink, true}, {" V1", Role::Quiet, false}}, {50, 50}});
  EXPECT_TRUE(t.FindText("20.0")->style.bold);
  EXPECT_EQ(t.FindText(" V1")->style.colour, Role::Quiet);
  EXPECT_DOUBLE_EQ(t.FindText("20.0")->box.right, t.FindText(" V1")->box.left);
  EXPECT_EQ(t.ForeColor, Role::Accent);
  EXPECT_FALSE(t.FontBold);
}

TEST(SpreadInRow, BoxesWithRoomStay) {
  const std::vector<double> c = SpreadInRow({10, 30, 60}, {6, 6, 6}, 1, 0, 100);
  EXPECT_EQ(c, (std::vector<double>{10, 30, 60}));
}

TEST(SpreadInRow, TwoOnOnePlaceMoveApartAlike) {
  const std::vector<double> c = SpreadInRow({50, 50}, {6, 6}, 2, 0, 100);
  EXPECT_DOUBLE_EQ(c.at(0), 46);
  EXPECT_DOUBLE_EQ(c.at(1), 54);
}

TEST(SpreadInRow, BlocksThatMeetJoin) {
  const std::vector<double> c = SpreadInRow({10, 10, 20, 20}, {8, 8, 8, 8}, 0, 0, 100);
  for (std::size_t i = 1; i < c.size(); ++i) EXPECT_GE(c[i] - c[i - 1], 8 - 1e-12);
  EXPECT_NEAR((c.front() + c.back()) / 2, 16, 1e-9);  // held by the left end
}

TEST(SpreadInRow, TheRowsEndsHold) {
  const std::vector<double> left = SpreadInRow({0, 1}, {10, 10}, 0, 0, 100);
  EXPECT_DOUBLE_EQ(left.at(0), 5);
  EXPECT_DOUBLE_EQ(left.at(1), 15);
  const std::vector<double> right = SpreadInRow({99, 100}, {10, 10}, 0, 0, 100);
  EXPECT_DOUBLE_EQ(right.at(0), 85);
  EXPECT_DOUBLE_EQ(right.at(1), 95);
}

TEST(SpreadInRow, ARowThatIsTooLongStillHasNoOverlap) {
  const std::vector<double> c = SpreadInRow({5, 5, 5}, {10, 10, 10}, 1, 0, 20);
  EXPECT_GE(c.at(1) - c.at(0), 11 - 1e-12);
  EXPECT_GE(c.at(2) - c.at(1), 11 - 1e-12);
}

TEST(SpreadInRow, NoBoxes) {
  EXPECT_TRUE(SpreadInRow({}, {}, 1, 0, 10).empty());
}

}  // namespace
}  // namespace korvane
