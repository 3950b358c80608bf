// SPDX-License-Identifier: GPL-3.0-or-later
// Moment, shear and deflection diagrams.
#include <gtest/gtest.h>

#include "core/numeric.h"
#include "samples.h"

namespace korvane {
namespace {

using sample::Member;

constexpr DiagramStyle kStyle{};

// The curves of 51 points in the order of drawing.
std::vector<const RecordedShape*> Curves(const RecordingTarget& t) {
  return t.WithPoints(ShapeKind::Line, 51);
}

// The height of the axis under a curve: that of the line over the member's whole width.
double AxisOf(const RecordingTarget& t, std::size_t which) {
  std::vector<double> axes;
  for (const RecordedShape* s : t.WithPoints(ShapeKind::Line, 2)) {
    const std::vector<Point>& p = s->Points();
    if (p[0].y == p[1].y && p[1].x - p[0].x == kMemberWidth) axes.push_back(p[0].y);
  }
  return axes.at(which);
}

RecordingTarget DrawnMoments(const Member& m, Plane plane = Plane::Z, bool zeros = true) {
  RecordingTarget t;
  DrawMomentShear(t, {}, m.st, m.beam, plane, zeros, kStyle);
  return t;
}

TEST(MomentShear, HasFiftyOnePointsOfTheGrid) {
  const RecordingTarget t = DrawnMoments(sample::SimpleBeam());
  ASSERT_EQ(Curves(t).size(), 2U);
  for (const RecordedShape* curve : Curves(t)) {
    for (int i = 0; i <= 50; ++i) {
      EXPECT_NEAR(curve->Points().at(static_cast<std::size_t>(i)).x, kMemberLeft + 1.4 * i, 1e-9);
    }
  }
}

TEST(MomentShear, TheGreatestMomentHangsTwelveUnits) {
  const Member m = sample::SimpleBeam();
  const RecordingTarget t = DrawnMoments(m);
  const double axis = AxisOf(t, 0);
  for (const std::size_t i : {0U, 10U, 25U, 40U, 50U}) {
    const double ordinate = 12 * m.beam.z.M[static_cast<int>(i)] / 45;
    EXPECT_NEAR(Curves(t).at(0)->Points().at(i).y, axis + ordinate, 1e-5) << i;
  }
}

TEST(MomentShear, PositiveShearStandsTwelveUnitsAboveTheAxis) {
  const RecordingTarget t = DrawnMoments(sample::SimpleBeam());
  const double axis = AxisOf(t, 1);
  EXPECT_NEAR(Curves(t).at(1)->Points().front().y, axis - 12, 1e-9);
  EXPECT_NEAR(Curves(t).at(1)->Points().at(25).y, axis, 1e-6);
  EXPECT_NEAR(Curves(t).at(1)->Points().back().y, axis + 12, 1e-9);
}

TEST(MomentShear, TheGreaterExtremeSetsTheScale) {
  const RecordingTarget t = DrawnMoments(sample::FixedBeam());
  const double axis = AxisOf(t, 0);
  EXPECT_NEAR(Curves(t).at(0)->Points().front().y, axis - 12, 1e-9);  // -30 kNm
  EXPECT_NEAR(Curves(t).at(0)->Points().at(25).y, axis + 6, 1e-5);    // 15 kNm
}

TEST(MomentShear, AVerticalLineClosesEachEnd) {
  const RecordingTarget t = DrawnMoments(sample::FixedBeam());
  const double axis = AxisOf(t, 0);
  int closing = 0;
  for (const RecordedShape* s : t.WithPoints(ShapeKind::Line, 2)) {
    for (const std::size_t end : {0U, 50U}) {
      const Point p = Curves(t).at(0)->Points().at(end);
      if (s->Points()[0] == Point{p.x, axis} && s->Points()[1] == p &&
          s->stroke.colour == Role::Accent && s->stroke.width > 0.2) {
        ++closing;
      }
    }
  }
  EXPECT_EQ(closing, 2);
}

TEST(MomentShear, TheAreaIsFilledAtLowOpacity) {
  const RecordingTarget t = DrawnMoments(sample::SimpleBeam());
  const auto areas = t.WithPoints(ShapeKind::Polygon, 53);
  ASSERT_EQ(areas.size(), 2U);
  for (const RecordedShape* area : areas) {
    EXPECT_GT(area->fill.opacity, 0.05);
    EXPECT_LT(area->fill.opacity, 0.3);
    EXPECT_DOUBLE_EQ(area->stroke.width, 0);
  }
}

TEST(MomentShear, TitlesOfTheZPlane) {
  const RecordingTarget t = DrawnMoments(sample::SimpleBeam());
  EXPECT_EQ(t.Count("Bending moment (My, kNm)"), 1);
  EXPECT_EQ(t.Count("Shear (Vz, kN)"), 1);
}

TEST(MomentShear, TitlesOfTheYPlane) {
  Member m = sample::SimpleBeam();
  std::swap(m.beam.y, m.beam.z);
  m.beam.y.M_zero1 = 0.25;
  const RecordingTarget t = DrawnMoments(m, Plane::Y);
  EXPECT_EQ(t.Count("Bending moment (Mz, kNm)"), 1);
  EXPECT_EQ(t.Count("Shear (Vy, kN)"), 1);
  EXPECT_EQ(t.Count("Mz=0 at  x = 1.500 m"), 1);
  EXPECT_EQ(t.Count("45.0"), 1);
}

TEST(MomentShear, LabelsOfTheExtremes) {
  const RecordingTarget t = DrawnMoments(sample::FixedBeam());
  EXPECT_EQ(t.Count("-30.0"), 2);  // moment at the left end, shear at the right end
  EXPECT_EQ(t.Count("15.0"), 1);
  EXPECT_EQ(t.Count("30.0"), 1);
}

TEST(MomentShear, AnExtremeOfZeroHasNoLabel) {
  const RecordingTarget t = DrawnMoments(sample::SimpleBeam());
  EXPECT_EQ(t.Count("45.0"), 1);
  EXPECT_EQ(t.Count("0.0"), 0);
}

TEST(MomentShear, LabelsStandOutsideTheCurveAtTheirStation) {
  const RecordingTarget t = DrawnMoments(sample::SimpleBeam());
  const RecordedShape* label = t.FindText("45.0");
  ASSERT_NE(label, nullptr);
  EXPECT_NEAR(label->box.Centre().x, kMemberLeft + 35, 0.1);
  EXPECT_GT(label->box.top, AxisOf(t, 0) + 12);
}

TEST(MomentShear, AnExtremeBetweenStationsIsLabelledWhereItStands) {
  Member m = sample::SimpleBeam();
  m.beam.pt_last = 12;
  m.beam.pt_x[11] = 0.4095;
  m.beam.z.M_pt[11] = 60.0;
  m.beam.z.M_max = 60.0;
  const RecordingTarget t = DrawnMoments(m);
  EXPECT_NEAR(t.FindText("60.0")->box.Centre().x, kMemberLeft + 70 * 0.4095, 0.1);
}

TEST(MomentShear, APlateauIsLabelledInItsMiddle) {
  Member m;
  m.st.L = 4;
  sample::Fill(
      m.beam.z,
      [](double x) {
        return std::min({x, 0.2, 1 - x}) * 100;
      },
      [](double x) { return x < 0.2   ? 5.0
                            : x > 0.8 ? -5.0
                                      : 0.0; });
  const RecordingTarget t = DrawnMoments(m);
  EXPECT_NEAR(t.FindText("20.0")->box.Centre().x, kMemberLeft + 35, 0.1);
}

TEST(MomentShear, ZeroPositionsInMetres) {
  const RecordingTarget t = DrawnMoments(sample::FixedBeam());
  EXPECT_EQ(t.Count("My=0 at  x = 1.268 m x = 4.732 m"), 1);
}

TEST(MomentShear, OnlyZeroPositionsThatAreNotZeroAreListed) {
  Member m = sample::FixedBeam();
  m.beam.z.M_zero1 = 0.0;
  EXPECT_EQ(DrawnMoments(m).Count("My=0 at  x = 4.732 m"), 1);
  m.beam.z.M_zero2 = 0.0;
  for (const std::string& text : DrawnMoments(m).Texts()) {
    EXPECT_EQ(text.find("My=0"), std::string::npos);
  }
}

TEST(MomentShear, EndForcesHaveNoZeroPositions) {
  for (const std::string& text : DrawnMoments(sample::FixedBeam(), Plane::Z, false).Texts()) {
    EXPECT_EQ(text.find("My=0"), std::string::npos);
  }
}

TEST(MomentShear, EqualExtremesOfAConstantMomentHaveOneLabel) {
  Member m;
  m.st.L = 5;
  for (int i = 0; i <= 50; ++i) m.beam.z.M[i] = 50.0;
  m.beam.z.M_max = m.beam.z.M_min = 50.0;
  const RecordingTarget t = DrawnMoments(m, Plane::Z, false);
  EXPECT_EQ(t.Count("50.0"), 1);
  EXPECT_NEAR(Curves(t).at(0)->Points().at(7).y, AxisOf(t, 0) + 12, 1e-9);
}

TEST(MomentShear, AZeroDiagramIsFlatWithoutLabelsAndDividesByNothing) {
  const FloatWatch watch;
  const RecordingTarget t = DrawnMoments(Member{});
  EXPECT_NO_THROW(watch.Check());
  ASSERT_EQ(Curves(t).size(), 2U);
  for (std::size_t c = 0; c < 2; ++c) {
    for (const Point& p : Curves(t).at(c)->Points()) EXPECT_DOUBLE_EQ(p.y, AxisOf(t, c));
  }
  EXPECT_EQ(t.Texts(), (std::vector<std::string>{"Bending moment (My, kNm)", "Shear (Vz, kN)"}));
}

TEST(MomentShear, StaysInsideItsHeight) {
  for (const Member& m : {sample::SimpleBeam(), sample::FixedBeam(), Member{}}) {
    const Box b = DrawnMoments(m).Bounds().value();
    const double height = MomentShearHeight(m.beam, Plane::Z, kStyle);
    EXPECT_TRUE(Within({0, 0, kPictureWidth, height}, b, 0.01))
        << b.left << " " << b.top << " " << b.right << " " << b.bottom << " of " << height;
  }
}

TEST(MomentShear, TheOriginMovesThePicture) {
  const Member m = sample::FixedBeam();
  const RecordingTarget at0 = DrawnMoments(m);
  RecordingTarget moved;
  DrawMomentShear(moved, {100, 50}, m.st, m.beam, Plane::Z, true, kStyle);
  ASSERT_EQ(moved.Shapes().size(), at0.Shapes().size());
  for (std::size_t i = 0; i < moved.Shapes().size(); ++i) {
    EXPECT_NEAR(moved.Shapes()[i].box.left, at0.Shapes()[i].box.left + 100, 1e-9);
    EXPECT_NEAR(moved.Shapes()[i].box.top, at0.Shapes()[i].box.top + 50, 1e-9);
  }
}

TEST(MomentShear, APictureBoxIsClearedAPageIsNot) {
  const Member m = sample::SimpleBeam();
  RecordingTarget t;
  t.Print("before");
  DrawMomentShear(t, {0, 20, Destination::Page}, m.st, m.beam, Plane::Z, true, kStyle);
  EXPECT_EQ(t.Count("before"), 1);
  DrawMomentShear(t, {0, 20, Destination::Picture}, m.st, m.beam, Plane::Z, true, kStyle);
  EXPECT_EQ(t.Count("before"), 0);
}

TEST(MomentShear, LeavesTheTargetsStateAsItWas) {
  RecordingTarget t;
  t.FontSize = 33;
  t.ForeColor = Role::Pass;
  t.FontBold = true;
  const Member m = sample::FixedBeam();
  DrawMomentShear(t, {}, m.st, m.beam, Plane::Z, true, kStyle);
  EXPECT_DOUBLE_EQ(t.FontSize, 33);
  EXPECT_EQ(t.ForeColor, Role::Pass);
  EXPECT_TRUE(t.FontBold);
}

RecordingTarget DrawnDeflection(const Member& m, Plane plane = Plane::Z) {
  RecordingTarget t;
  DrawDeflection(t, {}, m.st, m.deflections, plane, kStyle);
  return t;
}

TEST(Deflection, TitleRatioAndExtreme) {
  const RecordingTarget t = DrawnDeflection(sample::SimpleBeam());
  EXPECT_EQ(t.Count("Deflection (SLS): z (mm): L/750"), 1);  // 6000/8
  EXPECT_EQ(t.Count("8.0"), 1);
}

TEST(Deflection, TheGreatestHangsTenUnits) {
  const Member m = sample::SimpleBeam();
  const RecordingTarget t = DrawnDeflection(m);
  ASSERT_EQ(Curves(t).size(), 1U);
  const double axis = AxisOf(t, 0);
  EXPECT_NEAR(Curves(t).at(0)->Points().at(25).y, axis + 10, 1e-5);
  EXPECT_NEAR(Curves(t).at(0)->Points().at(10).y, axis + 10 * m.deflections.DeflZ[10] / 8, 1e-5);
}

TEST(Deflection, TheGreaterExtremeDecidesTheRatio) {
  Member m;
  m.st.L = 5;
  m.deflections.DeflY[20] = -10.0;
  m.deflections.DeflY[30] = 4.0;
  m.deflections.DeflY_min = -10.0;
  m.deflections.DeflY_max = 4.0;
  const RecordingTarget t = DrawnDeflection(m, Plane::Y);
  EXPECT_EQ(t.Count("Deflection (SLS): y (mm): L/500"), 1);
  EXPECT_EQ(t.Count("-10.0"), 1);
  EXPECT_EQ(t.Count("4.0"), 1);
  EXPECT_NEAR(Curves(t).at(0)->Points().at(20).y, AxisOf(t, 0) - 10, 1e-9);
}

TEST(Deflection, NoneGivesARatioOfZeroAndAFlatLine) {
  const FloatWatch watch;
  const RecordingTarget t = DrawnDeflection(Member{});
  EXPECT_NO_THROW(watch.Check());
  EXPECT_EQ(t.Texts(), std::vector<std::string>{"Deflection (SLS): z (mm): L/0"});
  for (const Point& p : Curves(t).at(0)->Points()) EXPECT_DOUBLE_EQ(p.y, AxisOf(t, 0));
}

}  // namespace
}  // namespace korvane
