// SPDX-License-Identifier: GPL-3.0-or-later
// Load pictures and axial loads.
#include <gtest/gtest.h>

#include <set>

#include "presentation/load_items.h"
#include "samples.h"

namespace korvane {
namespace {

constexpr DiagramStyle kStyle{};

ProjectState Unloaded() {
  ProjectState st;
  st.L = 10;
  st.q1 = 0;
  st.NP = 0;
  return st;
}

RecordingTarget Drawn(const ProjectState& st, Plane plane = Plane::Z, bool variable = false) {
  RecordingTarget t;
  DrawLoads(t, {}, st, plane, variable, kStyle);
  return t;
}

double X(double relative) {
  return kMemberLeft + kMemberWidth * relative;
}

// The member's line: the thickest line over its whole width.
double Axis(const RecordingTarget& t) {
  const RecordedShape* thickest = nullptr;
  for (const RecordedShape* s : t.WithPoints(ShapeKind::Line, 2)) {
    const std::vector<Point>& p = s->Points();
    if (p[0].y != p[1].y || p[1].x - p[0].x != kMemberWidth) continue;
    if (!thickest || s->stroke.width > thickest->stroke.width) thickest = s;
  }
  return thickest->Points()[0].y;
}

// Arrow heads with their tip at the member's line and the tail above or below.
struct Arrow {
  double x;
  double length;
};
std::vector<Arrow> Arrows(const RecordingTarget& t, double width, bool down = true) {
  std::vector<Arrow> arrows;
  const double axis = Axis(t);
  for (const RecordedShape* s : t.WithPoints(ShapeKind::Line, 2)) {
    const std::vector<Point>& p = s->Points();
    if (p[0].x != p[1].x || std::fabs(s->stroke.width - width) > 1e-9) continue;
    const double tail = down ? axis - p[0].y : p[0].y - axis;
    if (tail > 0 && std::fabs(p[1].y - axis) < tail) arrows.push_back({p[0].x, tail});
  }
  return arrows;
}
constexpr double kBandPen = 0.12;
constexpr double kPointPen = 0.32;

TEST(Loads, Titles) {
  const ProjectState st = Unloaded();
  EXPECT_EQ(Drawn(st).Texts(), std::vector<std::string>{"Permanent load - z-axis: (kN/kNm)"});
  EXPECT_EQ(Drawn(st, Plane::Z, true).Texts(),
            std::vector<std::string>{"Variable load - z-axis: (kN/kNm)"});
  EXPECT_EQ(Drawn(st, Plane::Y).Texts(),
            std::vector<std::string>{"Permanent load - y-axis: (kN/kNm)"});
  EXPECT_EQ(Drawn(st, Plane::Y, true).Texts(),
            std::vector<std::string>{"Variable load - y-axis: (kN/kNm)"});
}

TEST(Loads, LineLoadsOfOneGroupAreOneLoad) {
  ProjectState st = Unloaded();
  st.q1 = 10;
  st.q2 = 2.5;
  const RecordingTarget t = Drawn(st);
  EXPECT_EQ(t.Count("12.5"), 1);
  EXPECT_EQ(t.Count("10.0"), 0);
  EXPECT_EQ(t.Count("I"), 0);  // no positions over the whole length
}

TEST(Loads, OnlyLoadsOfThePlaneAndTheGroups) {
  ProjectState st = Unloaded();
  st.q1 = 1, st.q1_pv = 0, st.q1_yz = 1;
  st.q2 = 2, st.q2_pv = 1, st.q2_yz = 1;
  st.q3 = 3, st.q3_pv = 0, st.q3_yz = 0;
  st.q4 = 4, st.q4_pv = 2, st.q4_yz = 0;
  struct Case {
    Plane plane;
    bool variable;
    const char* text;
  };
  const Case cases[] = {{Plane::Z, false, "1.0"},
                        {Plane::Z, true, "2.0"},
                        {Plane::Y, false, "3.0"},
                        {Plane::Y, true, "4.0"}};
  for (const Case& shown : cases) {
    const RecordingTarget t = Drawn(st, shown.plane, shown.variable);
    for (const Case& other : cases) {
      EXPECT_EQ(t.Count(other.text), other.text == shown.text ? 1 : 0) << shown.text;
    }
  }
}

TEST(Loads, VariableLoadsTellTheirGroup) {
  ProjectState st = Unloaded();
  st.q1 = 2, st.q1_pv = 1;
  st.q2 = 3, st.q2_pv = 2;
  st.q3 = 4, st.q3_pv = 7;  // counts as variable 2
  const RecordingTarget t = Drawn(st, Plane::Z, true);
  EXPECT_EQ(t.Count("2.0"), 1);
  EXPECT_EQ(t.Count("7.0"), 1);
  EXPECT_EQ(t.Count(" V1"), 1);
  EXPECT_EQ(t.Count(" V2"), 1);
}

TEST(Loads, ArrowsOfALineLoadReachTheMemberAllAlongIt) {
  ProjectState st = Unloaded();
  st.q1 = 10;
  const std::vector<Arrow> arrows = Arrows(Drawn(st), kBandPen);
  ASSERT_GE(arrows.size(), 15U);
  EXPECT_NEAR(arrows.front().x, X(0), 1e-9);
  EXPECT_NEAR(arrows.back().x, X(1), 1e-9);
  for (const Arrow& a : arrows) EXPECT_NEAR(a.length, 5, 1e-9);
}

TEST(Loads, MoreIntensityHasMoreAndLongerArrows) {
  ProjectState st = Unloaded();
  st.qt1_1 = st.qt1_2 = 10.0;
  st.qt1_x1 = 0.0, st.qt1_x2 = 4.0;
  st.qt2_1 = st.qt2_2 = 4.0;
  st.qt2_x1 = 6.0, st.qt2_x2 = 10.0;
  std::vector<Arrow> strong, weak;
  for (const Arrow& a : Arrows(Drawn(st), kBandPen)) (a.x < X(0.5) ? strong : weak).push_back(a);
  EXPECT_GT(strong.size(), weak.size());
  ASSERT_FALSE(weak.empty());
  EXPECT_NEAR(weak.front().length / strong.front().length, 0.4, 1e-9);
}

TEST(Loads, ATrapezoidHasItsTwoValuesAndPositions) {
  ProjectState st = Unloaded();
  st.qt1_1 = 2;
  st.qt1_2 = 8;
  st.qt1_x1 = 1.5;
  st.qt1_x2 = 6;
  const RecordingTarget t = Drawn(st);
  for (const char* text : {"2.0", "8.0", "1.500", "6.000", "x"})
    EXPECT_EQ(t.Count(text), 1) << text;
  EXPECT_EQ(t.Count("I"), 2);
  const std::vector<Arrow> arrows = Arrows(t, kBandPen);
  ASSERT_GE(arrows.size(), 3U);
  EXPECT_NEAR(arrows.back().length / arrows.front().length, 4, 0.01);
}

TEST(Loads, AConstantTrapezoidHasOneValue) {
  ProjectState st = Unloaded();
  st.qt2_1 = st.qt2_2 = 3.0;
  st.qt2_x1 = 1.0, st.qt2_x2 = 2.0;
  EXPECT_EQ(Drawn(st).Count("3.0"), 1);
}

TEST(Loads, ATrapezoidWithoutLengthIsNotDrawn) {
  ProjectState st = Unloaded();
  st.qt1_1 = 5, st.qt1_2 = 5, st.qt1_x1 = 3, st.qt1_x2 = 3;
  EXPECT_EQ(Drawn(st).Texts().size(), 1U);
}

TEST(Loads, APointLoadHasAnArrowAValueAndAPosition) {
  ProjectState st = Unloaded();
  st.pm[3] = 25;
  st.pmx[3] = 4;
  const RecordingTarget t = Drawn(st);
  EXPECT_EQ(t.Count("25.0"), 1);
  EXPECT_EQ(t.Count("4.000"), 1);
  const std::vector<Arrow> arrows = Arrows(t, kPointPen);
  ASSERT_EQ(arrows.size(), 1U);
  EXPECT_NEAR(arrows[0].x, X(0.4), 1e-9);
  const RecordedShape* mark = t.FindText("I");
  ASSERT_NE(mark, nullptr);
  EXPECT_NEAR(mark->box.Centre().x, X(0.4), 1e-9);
}

TEST(Loads, TheGreaterPointLoadHasTheLongerArrow) {
  ProjectState st = Unloaded();
  st.pm[1] = 10, st.pmx[1] = 2;
  st.pm[2] = 40, st.pmx[2] = 7;
  const std::vector<Arrow> arrows = Arrows(Drawn(st), kPointPen);
  ASSERT_EQ(arrows.size(), 2U);
  EXPECT_GT(arrows[1].length, arrows[0].length + 2.5);
}

TEST(Loads, NegativeLoadsStandBelowAndPointUp) {
  ProjectState st = Unloaded();
  st.q1 = -6;
  st.pm[1] = -12, st.pmx[1] = 5;
  const RecordingTarget t = Drawn(st);
  EXPECT_TRUE(Arrows(t, kPointPen).empty());
  EXPECT_EQ(Arrows(t, kPointPen, false).size(), 1U);
  EXPECT_GE(Arrows(t, kBandPen, false).size(), 15U);
  EXPECT_GT(t.FindText("-12.0")->box.top, Axis(t));
  EXPECT_GT(t.FindText("-6.0")->box.top, Axis(t));
}

TEST(Loads, MomentsAreCurvedArrowsTurningWithTheirSign) {
  ProjectState st = Unloaded();
  st.pm[1] = 30, st.pmx[1] = 2, st.pm_pm[1] = 1;
  st.pm[2] = -15, st.pmx[2] = 8, st.pm_pm[2] = 1;
  const RecordingTarget t = Drawn(st);
  const auto arcs = t.OfKind(ShapeKind::Arc);
  ASSERT_EQ(arcs.size(), 2U);
  EXPECT_LT(arcs[0]->sweep, 0);  // positive: clockwise
  EXPECT_GT(arcs[1]->sweep, 0);
  EXPECT_GT(arcs[0]->rx, arcs[1]->rx);
  EXPECT_NEAR(arcs[0]->centre.x, X(0.2), 1e-9);
  EXPECT_NEAR(arcs[0]->centre.y, Axis(t), 1e-9);
  EXPECT_EQ(t.Count("30.0"), 1);
  EXPECT_EQ(t.Count("-15.0"), 1);
}

TEST(Loads, OnePositionIsToldOnce) {
  ProjectState st = Unloaded();
  st.pm[1] = 10, st.pmx[1] = 5;
  st.pm[2] = 20, st.pmx[2] = 5, st.pm_pm[2] = 1;
  const RecordingTarget t = Drawn(st);
  EXPECT_EQ(t.Count("5.000"), 1);
  EXPECT_EQ(t.Count("I"), 1);
}

TEST(Loads, DistributedLoadsOfOneStretchAreStacked) {
  ProjectState st = Unloaded();
  st.q1 = 2;
  st.qt1_1 = 4, st.qt1_2 = 4, st.qt1_x1 = 1, st.qt1_x2 = 4;
  st.qt2_1 = 4, st.qt2_2 = 4, st.qt2_x1 = 6, st.qt2_x2 = 9;
  st.qt3_1 = -4, st.qt3_2 = -4, st.qt3_x1 = 2, st.qt3_x2 = 9;
  const LoadItems items = CollectLoads(st, Plane::Z, false);
  ASSERT_EQ(items.distributed.size(), 4U);
  EXPECT_EQ(items.distributed[0].layer, 0);
  EXPECT_EQ(items.distributed[1].layer, 1);
  EXPECT_EQ(items.distributed[2].layer, 1);  // beside the former
  EXPECT_EQ(items.distributed[3].layer, 0);  // on the other side
  EXPECT_EQ(items.layersAbove, 2);
  EXPECT_EQ(items.layersBelow, 1);
}

TEST(Loads, APositionBeyondTheMemberIsDrawnAtItsEndAndToldAsItIs) {
  ProjectState st = Unloaded();
  st.pm[1] = 10, st.pmx[1] = 12.5;
  const RecordingTarget t = Drawn(st);
  EXPECT_EQ(t.Count("12.500"), 1);
  EXPECT_NEAR(Arrows(t, kPointPen).at(0).x, X(1), 1e-9);
}

TEST(Loads, AMemberWithoutLengthDividesByNothing) {
  ProjectState st = Unloaded();
  st.L = 0;
  st.pm[1] = 10, st.pmx[1] = 1;
  const FloatWatch watch;
  EXPECT_NEAR(Arrows(Drawn(st), kPointPen).at(0).x, X(0), 1e-9);
  EXPECT_NO_THROW(watch.Check());
}

void ExpectClean(const ProjectState& st, unsigned seed) {
  for (const Plane plane : {Plane::Z, Plane::Y}) {
    for (const bool variable : {false, true}) {
      const RecordingTarget t = Drawn(st, plane, variable);
      for (const auto& [a, b] : t.OverlappingTexts(0.02)) {
        ADD_FAILURE() << "seed " << seed << ": " << a << " over " << b;
      }
      const double height = LoadsHeight(st, plane, variable, kStyle);
      const Box page{0, 0, kPictureWidth, height};
      for (const RecordedShape* s : t.OfKind(ShapeKind::Text)) {
        EXPECT_TRUE(Within(page, s->box, 0.05)) << "seed " << seed << ": " << s->text;
      }
      EXPECT_TRUE(Within(page, t.Bounds().value(), 0.3)) << "seed " << seed;
    }
  }
}

TEST(Loads, NoTextStandsOverAnotherWithAllLoadsInUse) {
  for (unsigned seed = 1; seed <= 150; ++seed) ExpectClean(sample::FullLoads(seed), seed);
}

TEST(Loads, NoTextStandsOverAnotherWithAllLoadsInOneCrowd) {
  for (unsigned seed = 1; seed <= 60; ++seed) {
    ExpectClean(sample::CrowdedLoads(seed, static_cast<int>(seed % 3)), seed);
  }
}

TEST(Loads, EveryLoadOfACrowdIsTold) {
  const ProjectState st = sample::CrowdedLoads(7, 0);
  const RecordingTarget t = Drawn(st);
  const LoadItems items = CollectLoads(st, Plane::Z, false);
  EXPECT_EQ(items.points.size(), 8U);
  std::size_t values = 0;
  for (const DistributedLoad& d : items.distributed) values += d.q1 == d.q2 ? 1 : 2;
  values += items.points.size();
  std::size_t marks = 0;
  std::size_t numbers = 0;
  for (const std::string& text : t.Texts()) {
    if (text == "I") {
      ++marks;
    } else if (text.find_first_not_of("-.0123456789") == std::string::npos) {
      ++numbers;
    }
  }
  EXPECT_EQ(numbers, values + items.Positions().size());
  EXPECT_LE(marks, items.Positions().size());
  EXPECT_GE(marks, 3U);
}

// Arrow heads of the axial loads: filled triangles; their tips tell the direction.
std::vector<Point> Tips(const RecordingTarget& t) {
  std::vector<Point> tips;
  for (const RecordedShape* s : t.WithPoints(ShapeKind::Polygon, 3)) tips.push_back(s->Points()[0]);
  return tips;
}

TEST(AxialLoads, CompressionPointsAtTheMember) {
  ProjectState st = Unloaded();
  st.NP = 100;
  RecordingTarget t;
  DrawAxialPermanent(t, {}, st, kStyle);
  EXPECT_EQ(t.Count("Permanent axial load"), 1);
  EXPECT_EQ(t.Count("100.0"), 1);
  ASSERT_EQ(Tips(t).size(), 2U);
  EXPECT_NEAR(Tips(t)[0].x, X(0) - 0.5, 1e-9);
  EXPECT_NEAR(Tips(t)[1].x, X(1) + 0.5, 1e-9);
}

// On a page that is short of room a grid unit across the member is a third of one along it; the
// heads of the arrows are still as long as the width of the member lets them be.
TEST(AxialLoads, ArrowsOfAFlattenedPictureKeepTheirSize) {
  ProjectState st;
  st.NP = 100.0;
  const auto longest = [&st](double across, double pen) {
    RecordingTarget t;
    const DiagramStyle style{2.4 / across, pen};
    const double height = AxialLoadHeight(st, false, style);
    const ScopedFrame frame(t, Box{0, 0, 84, height * across}, Box::At(0, 0, 84, height));
    DrawAxialPermanent(t, {}, st, style);
    double length = 0;
    for (const RecordedShape* s : t.OfKind(ShapeKind::Polygon)) length = s->box.Width();
    return length;
  };
  EXPECT_NEAR(longest(1, 1), 1.6, 1e-6);
  EXPECT_NEAR(longest(0.5, 2), 1.6, 1e-6);
  EXPECT_NEAR(longest(1 / 3., 3), 4 / 3., 1e-6);
}

TEST(PointLoads, HeadsOfAFlattenedPictureKeepTheirSize) {
  ProjectState st;
  st.L = 6.0;
  st.pm[1] = 10.0;
  st.pmx[1] = 3.0;
  const auto head = [&st](double across, double pen) {
    RecordingTarget t;
    const DiagramStyle style{2.4 / across, pen};
    const double height = LoadsHeight(st, Plane::Z, false, style);
    const ScopedFrame frame(t, Box{0, 0, 84, height * across}, Box::At(0, 0, 84, height));
    DrawLoads(t, {}, st, Plane::Z, false, style);
    double length = 0;
    for (const RecordedShape* s : t.OfKind(ShapeKind::Polygon)) {
      if (s->fill.colour == Role::Accent) length = std::max(length, s->box.Height());
    }
    return length;
  };
  EXPECT_NEAR(head(1, 1), 1.7, 1e-6);
  EXPECT_NEAR(head(0.5, 2), 1.7, 1e-6);
}

TEST(PointLoads, MomentsOfOnePositionStandSideBySide) {
  ProjectState st = Unloaded();
  st.L = 6.0;
  for (int i = 1; i <= 3; ++i) {
    st.pm[i] = 10.0 * i;
    st.pmx[i] = 3.0;
    st.pm_pm[i] = 1;
  }
  RecordingTarget t;
  DrawLoads(t, {}, st, Plane::Z, false, kStyle);
  const auto arcs = t.OfKind(ShapeKind::Arc);
  ASSERT_EQ(arcs.size(), 3U);
  for (std::size_t i = 1; i < arcs.size(); ++i) {
    EXPECT_GT(arcs[i]->centre.x - arcs[i - 1]->centre.x, arcs[i]->rx + arcs[i - 1]->rx);
  }
  for (const char* value : {"10.0", "20.0", "30.0"}) EXPECT_EQ(t.Count(value), 1);
}

TEST(AxialLoads, TensionPointsAway) {
  ProjectState st = Unloaded();
  st.NP = -40;
  RecordingTarget t;
  DrawAxialPermanent(t, {}, st, kStyle);
  EXPECT_EQ(t.Count("-40.0"), 1);
  EXPECT_LT(Tips(t).at(0).x, X(0) - 4);
  EXPECT_GT(Tips(t).at(1).x, X(1) + 4);
}

TEST(AxialLoads, BothVariableGroupsHaveALine) {
  ProjectState st = Unloaded();
  st.NV1 = 20;
  st.NV2 = -30.5;
  RecordingTarget t;
  DrawAxialVariable(t, {}, st, kStyle);
  EXPECT_EQ(t.Texts(), (std::vector<std::string>{"Variable axial load", "20.0", " kN", "  V1",
                                                 "-30.5", " kN", "  V2"}));
  EXPECT_EQ(Tips(t).size(), 4U);
}

TEST(AxialLoads, AVariableLoadOfZeroHasNoLineBesideTheOther) {
  ProjectState st = Unloaded();
  st.NV2 = 12;
  RecordingTarget t;
  DrawAxialVariable(t, {}, st, kStyle);
  EXPECT_EQ(t.Count("  V1"), 0);
  EXPECT_EQ(t.Count("  V2"), 1);
  EXPECT_LT(t.Bounds()->bottom, AxialLoadHeight(st, true, kStyle));
}

TEST(AxialForce, CompressionAboveTheLineTensionBelow) {
  for (const double N : {250.0, -80.0}) {
    RecordingTarget t;
    DrawAxialForce(t, {}, N, kStyle);
    EXPECT_EQ(t.Count(" Axial force (kN) "), 1);
    const auto bands = t.WithPoints(ShapeKind::Polygon, 4);
    ASSERT_EQ(bands.size(), 1U);
    const double axis = bands[0]->Points()[0].y;
    const double edge = bands[0]->Points()[2].y;
    EXPECT_EQ(edge<axis, N> 0);
    EXPECT_EQ(t.Count(N > 0 ? "250.0" : "-80.0"), 1);
  }
}

TEST(AxialForce, NoForceIsAFlatLine) {
  RecordingTarget t;
  DrawAxialForce(t, {}, 0, kStyle);
  EXPECT_EQ(t.Texts(), std::vector<std::string>{" Axial force (kN) "});
  EXPECT_TRUE(t.OfKind(ShapeKind::Polygon).empty());
}

}  // namespace
}  // namespace korvane
